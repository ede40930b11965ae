#include <gtest/gtest.h>

#include <array>
#include <memory>

#include "tests/celllist/CellListFixture.h"
#include "text/PlatformProcess.h"
#include "vapp/celllist/CLibCellViewOleData.h"
#include "vapp/celllist/CLibCellViewOleDataSource.h"

namespace {

using namespace vapp_library_browser;

class CellDragTest : public CellListFixture {
protected:
    void SetUp() override {
        ShowCells({{"l1", "a", "sym"}, {"l2", "b", "lay"}});
        COleDataSource::InstallDragRunner([this](COleDataSource& source, UINT effects, const CRect& start) {
            ++m_drags;
            m_effects = effects;
            m_start = start;
            const std::any* data = source.GetData(CLibCellViewOleDataSource::ClipboardFormatLibCellView);
            const auto* record = std::any_cast<CLibCellViewOleData>(data);
            m_text = source.GetText();
            m_record = record != nullptr ? std::make_unique<CLibCellViewOleData>(*record) : nullptr;
            if (m_during) m_during(source);
            return m_effect;
        });
    }
    ~CellDragTest() override { COleDataSource::InstallDragRunner({}); }
    [[nodiscard]] CPoint InRow(int row) {
        return {10, Report().GetHeaderHeight() + row * Report().GetRowHeight() + 1};
    }

    std::function<void(COleDataSource&)> m_during;
    std::unique_ptr<CLibCellViewOleData> m_record;
    CStringU m_text;
    CRect m_start;
    UINT m_effects = 0;
    UINT m_effect = cnDropCopy;
    int m_drags = 0;
};

TEST_F(CellDragTest, TheFormatIsOfThisProcess) {
    std::array<char, 64> wanted{};
    std::snprintf(wanted.data(), wanted.size(), "VornexEDALibCellView%lX", vapp_platform::OwnProcessNumber());
    EXPECT_EQ(CLibCellViewOleDataSource::ClipboardFormatLibCellView, wanted.data());
    EXPECT_EQ(Report().GetDragFormat(), wanted.data());
    EXPECT_EQ(Report().GetDragFlags(), 6u);
}

TEST_F(CellDragTest, TheRowUnderThePointerIsDraggedWhateverIsSelected) {
    SelectRow(0);
    EXPECT_TRUE(Report().OnBeginDrag(InRow(1), 0));
    ASSERT_NE(m_record, nullptr);
    EXPECT_EQ(m_record->design, "top");
    EXPECT_EQ(m_record->library, "l2");
    EXPECT_EQ(m_record->cell, "b");
    EXPECT_EQ(m_record->view, "lay");
    EXPECT_EQ(m_record->sortKey, "");
    EXPECT_FALSE(m_record->startedByRightButton);
    EXPECT_EQ(m_effects, 5u) << "copy and link";
    EXPECT_EQ(m_start.top, Report().GetHeaderHeight() + Report().GetRowHeight());
    EXPECT_EQ(m_start.Height(), Report().GetRowHeight());
}

TEST_F(CellDragTest, OtherProgramsGetTheThreeNamesAsTheyAre) {
    EXPECT_TRUE(Report().OnBeginDrag(InRow(1), 0));
    EXPECT_EQ(m_text, "l2 b lay");
    const HookGuard hook;
    EXPECT_TRUE(Report().StartDragAndDrop(false, {"my lib", "a\"b", ""}, nullptr));
    EXPECT_EQ(m_text, "my lib a\"b ") << "no line is made of them, so no hook makes them safe";
}

TEST_F(CellDragTest, TheSecondBitOfTheFlagsIsTheRightButton) {
    for (const unsigned flags : {0U, 1U, 2U, 3U, 4U}) {
        EXPECT_TRUE(Report().OnBeginDrag(InRow(0), flags));
        EXPECT_EQ(m_record->startedByRightButton, (flags & 2) != 0) << flags;
    }
}

TEST_F(CellDragTest, ADragOnTheEmptyAreaDoesNotStart) {
    EXPECT_FALSE(Report().OnBeginDrag(InRow(2), 0));
    EXPECT_FALSE(Report().OnBeginDrag({10, 1}, 0)) << "nor on the header";
    EXPECT_EQ(m_drags, 0);
}

TEST_F(CellDragTest, OnlyADropIsAnEnd) {
    m_effect = cnDropNone;
    EXPECT_FALSE(Report().OnBeginDrag(InRow(0), 0));
    m_effect = cnDropLink;
    EXPECT_TRUE(Report().OnBeginDrag(InRow(0), 0));
    m_effect = cnDropMove;
    EXPECT_FALSE(Report().OnBeginDrag(InRow(0), 0)) << "which was not offered";
    COleDataSource::InstallDragRunner({});
    EXPECT_FALSE(Report().OnBeginDrag(InRow(0), 0)) << "nobody shows drags";
    EXPECT_FALSE(Report().IsInDragDrop());
}

TEST_F(CellDragTest, ASecondDragDeletesTheFirstSource) {
    std::weak_ptr<int> first;
    m_during = [&first](COleDataSource& source) {
        const auto token = std::make_shared<int>(1);
        first = token;
        source.CacheData("token", token);
    };
    EXPECT_TRUE(Report().OnBeginDrag(InRow(0), 0));
    EXPECT_FALSE(first.expired());
    m_during = nullptr;
    EXPECT_TRUE(Report().OnBeginDrag(InRow(1), 0));
    EXPECT_TRUE(first.expired());
}

TEST_F(CellDragTest, TheListTellsThatADragIsGoingOnAndBeginsNoOther) {
    m_during = [this](COleDataSource&) {
        EXPECT_TRUE(Report().IsInDragDrop());
        EXPECT_FALSE(Report().OnBeginDrag(InRow(1), 0));
    };
    EXPECT_TRUE(Report().OnBeginDrag(InRow(0), 0));
    EXPECT_EQ(m_drags, 1);
    EXPECT_FALSE(Report().IsInDragDrop());
}

TEST_F(CellDragTest, NothingCanBeDroppedOnTheList) {
    m_during = [this](COleDataSource& source) {
        EXPECT_EQ(Report().OnDragOver(source, InRow(0)), 0u);
        EXPECT_EQ(Report().OnDrop(source, InRow(0)), 0);
    };
    EXPECT_TRUE(Report().OnBeginDrag(InRow(0), 0));
}

TEST_F(CellDragTest, TheHostMayFetchRowsOrEndTheWindowDuringADrag) {
    m_during = [this](COleDataSource&) {
        AnswerCells({});
        Repopulate();
    };
    EXPECT_TRUE(Report().OnBeginDrag(InRow(0), 0));
    EXPECT_EQ(m_record->cell, "a");
    AnswerCells({{"l1", "a", "sym"}});
    Repopulate();
    m_during = [this](COleDataSource& source) {
        m_browser.DestroyWindow();
        EXPECT_NE(source.GetData(CLibCellViewOleDataSource::ClipboardFormatLibCellView), nullptr);
    };
    EXPECT_TRUE(Report().OnBeginDrag(InRow(0), 0));
    EXPECT_FALSE(m_browser.IsWindow());
}

TEST_F(CellDragTest, ARecordIsCopiedWhole) {
    CLibCellViewOleData record("d", {"l", "c", "v"}, true);
    record.sortKey = "k";
    CLibCellViewOleData other("", {}, false);
    other = record;
    EXPECT_EQ(other.sortKey, "k");
    const CLibCellViewOleData copy(other);
    EXPECT_EQ(copy.sortKey, "k");
    EXPECT_EQ(copy.design, "d");
    EXPECT_EQ(copy.library, "l");
    EXPECT_EQ(copy.cell, "c");
    EXPECT_EQ(copy.view, "v");
    EXPECT_TRUE(copy.startedByRightButton);
}

TEST_F(CellDragTest, WhileRowsAreFetchedNoneCanBeDragged) {
    bool asked = false;
    m_host.HandleStart(csList, [&](Tcl_Interp*) {
        asked = true;
        EXPECT_FALSE(Report().OnBeginDrag(InRow(0), 0));
        EXPECT_FALSE(Report().QueryDragAndDrop(false, InRow(0)));
        return 0;
    });
    Repopulate();
    EXPECT_TRUE(asked);
    EXPECT_EQ(m_drags, 0);
}

TEST_F(CellDragTest, ADragCanBeStartedWithoutAPlace) {
    EXPECT_TRUE(Report().StartDragAndDrop(true, {"l", "c", "v"}, nullptr));
    EXPECT_EQ(m_start, CRect());
    EXPECT_TRUE(m_record->startedByRightButton);
}

TEST_F(CellDragTest, TheLastSourceEndsWithTheList) {
    std::weak_ptr<int> kept;
    m_during = [&kept](COleDataSource& source) {
        const auto token = std::make_shared<int>(1);
        kept = token;
        source.CacheData("token", token);
    };
    EXPECT_TRUE(Report().OnBeginDrag(InRow(0), 0));
    EXPECT_FALSE(kept.expired());
    m_browser.DestroyWindow();
    EXPECT_TRUE(kept.expired());
}

}  // namespace
