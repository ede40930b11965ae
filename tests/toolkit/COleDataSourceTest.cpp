#include "vapp/toolkit/COleDataSource.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

namespace {

class DragRunnerGuard {
public:
    explicit DragRunnerGuard(COleDataSource::TDragRunner runner) {
        COleDataSource::InstallDragRunner(std::move(runner));
    }
    DragRunnerGuard(const DragRunnerGuard&) = delete;
    DragRunnerGuard& operator=(const DragRunnerGuard&) = delete;
    ~DragRunnerGuard() { COleDataSource::InstallDragRunner({}); }
};

TEST(COleDataSource, KeepsDataOfAnyTypeUnderItsFormat) {
    COleDataSource source;
    EXPECT_EQ(source.GetData("a"), nullptr);
    source.CacheData("a", std::string("text"));
    source.CacheData("A", 7);
    EXPECT_EQ(std::any_cast<std::string>(*source.GetData("a")), "text");
    EXPECT_EQ(std::any_cast<int>(*source.GetData("A")), 7);
    source.CacheData("a", 8);
    EXPECT_EQ(std::any_cast<int>(*source.GetData("a")), 8);
}

TEST(COleDataSource, DataThatIsWatchedEndsWithItsSource) {
    auto source = std::make_unique<COleDataSource>();
    const std::weak_ptr<const COleDataSource::TData> data = source->WatchData();
    source->CacheData("a", 7);
    ASSERT_NE(data.lock(), nullptr);
    EXPECT_EQ(data.lock()->count("a"), 1u) << "also what came later";
    source.reset();
    EXPECT_TRUE(data.expired());
}

TEST(COleDataSource, HasOneTextForEverybody) {
    COleDataSource source;
    EXPECT_TRUE(source.GetText().IsEmpty());
    source.SetText("lib inv sym");
    EXPECT_EQ(source.GetText(), "lib inv sym");
    EXPECT_EQ(source.GetData("text/plain"), nullptr) << "it is no data of a format";
}

TEST(COleDataSource, WithoutAnAdapterADragEndsWithNoDrop) {
    COleDataSource source;
    EXPECT_EQ(source.DoDragDrop(cnDropCopy, {}), cnDropNone);
}

TEST(COleDataSource, OnlyAnOfferedEffectCounts) {
    const DragRunnerGuard runner(
        [](COleDataSource&, UINT, const CRect& start) { return static_cast<UINT>(start.left); });
    COleDataSource source;
    EXPECT_EQ(source.DoDragDrop(cnDropCopy | cnDropLink, {4, 0, 9, 9}), cnDropLink);
    EXPECT_EQ(source.DoDragDrop(cnDropCopy | cnDropLink, {2, 0, 9, 9}), cnDropNone);
}

TEST(COleDataSource, AFunctionMayBePutAroundTheInstalledOne) {
    const DragRunnerGuard runner([](COleDataSource&, UINT, const CRect&) { return cnDropLink; });
    UINT heard = cnDropNone;
    COleDataSource::InstallDragRunner([&heard, inner = COleDataSource::GetDragRunner()](
                                          COleDataSource& source, UINT effects, const CRect& start) {
        heard = inner(source, effects, start);
        return heard;
    });
    COleDataSource source;
    EXPECT_EQ(source.DoDragDrop(cnDropCopy | cnDropLink, {}), cnDropLink);
    EXPECT_EQ(heard, cnDropLink);
}

TEST(COleDataSource, AnAdapterMayGoInTheMiddleOfADrag) {
    const DragRunnerGuard runner([kept = std::string(64, 'x')](COleDataSource&, UINT, const CRect&) {
        COleDataSource::InstallDragRunner({});
        return kept.size() == 64 ? cnDropCopy : cnDropNone;
    });
    COleDataSource source;
    EXPECT_EQ(source.DoDragDrop(cnDropCopy, {}), cnDropCopy);
    EXPECT_EQ(source.DoDragDrop(cnDropCopy, {}), cnDropNone);
}

}  // namespace
