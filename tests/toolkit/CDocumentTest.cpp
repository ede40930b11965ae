/// @file
/// Documents and views: joining, leaving, and the walk that tells of a change.
#include "vapp/toolkit/CDocument.h"

#include <gtest/gtest.h>

#include <functional>

#include "vapp/toolkit/CView.h"

namespace {

class ToldView : public CView {
public:
    int told = 0;
    std::int64_t hint = 0;
    CView* sender = nullptr;
    std::function<void()> onUpdate;
    void OnUpdate(CView* from, std::int64_t newHint, CObject* /*hintObject*/) override {
        ++told;
        hint = newHint;
        sender = from;
        if (onUpdate) onUpdate();
    }
};

}  // namespace

TEST(CDocument, AllViewsButTheSenderAreTold) {
    CDocument document;
    ToldView first;
    ToldView second;
    document.AddView(&first);
    document.AddView(&second);
    document.UpdateAllViews(&first, 110);
    EXPECT_EQ(first.told, 0);
    EXPECT_EQ(second.told, 1);
    EXPECT_EQ(second.hint, 110);
    EXPECT_EQ(second.sender, &first);
}

TEST(CDocument, ViewIsAddedOnceAndToOneDocument) {
    CDocument document;
    CDocument other;
    ToldView view;
    document.AddView(&view);
    document.AddView(&view);
    other.AddView(&view);
    other.RemoveView(&view);
    document.AddView(nullptr);
    EXPECT_EQ(document.GetViews().size(), 1u);
    EXPECT_TRUE(other.GetViews().empty());
    EXPECT_EQ(view.GetDocument(), &document);
    document.RemoveView(&view);
    EXPECT_EQ(view.GetDocument(), nullptr);
}

TEST(CDocument, EitherMayEndFirst) {
    auto document = std::make_unique<CDocument>();
    ToldView stays;
    {
        ToldView goes;
        document->AddView(&goes);
        document->AddView(&stays);
    }
    EXPECT_EQ(document->GetViews(), std::vector<CView*>{&stays});
    document.reset();
    EXPECT_EQ(stays.GetDocument(), nullptr);
}

TEST(CDocument, ViewsMayLeaveAndJoinDuringTheWalk) {
    CDocument document;
    ToldView first;
    auto second = std::make_unique<ToldView>();
    ToldView third;
    ToldView joiner;
    document.AddView(&first);
    document.AddView(second.get());
    document.AddView(&third);
    first.onUpdate = [&] {
        second.reset();
        document.RemoveView(&first);
        document.AddView(&joiner);
    };
    document.UpdateAllViews(nullptr);
    EXPECT_EQ(first.told, 1);
    EXPECT_EQ(third.told, 1);
    EXPECT_EQ(joiner.told, 0);
    document.UpdateAllViews(nullptr);
    EXPECT_EQ(first.told, 1);
    EXPECT_EQ(third.told, 2);
    EXPECT_EQ(joiner.told, 1);
}

TEST(CDocument, PlainViewIsPaintedAnewOnUpdate) {
    CDocument document;
    CView view;
    document.AddView(&view);
    document.UpdateAllViews(nullptr);
    EXPECT_EQ(view.GetInvalidateCount(), 1u);
}
