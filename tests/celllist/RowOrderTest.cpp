#include "celllist/RowOrder.h"

#include <algorithm>
#include <random>

#include "tests/celllist/CellListFixture.h"
#include "tests/text/HostileText.h"

namespace {

using namespace vapp_library_browser;

// A column class of a host that is none of the report's own.
class SizeColumn : public TCellNamesReportCtrl::TColumn {
public:
    SizeColumn(TCellNamesReportCtrl& report, int itemIndex) : TColumn(report, itemIndex, "Size") {}
    [[nodiscard]] CStringU GetCellText(const TLibCellView& cell) override {
        ++m_asked;
        return CStringU(std::to_string(cell.cell.GetByteLength() + cell.view.GetByteLength()).c_str());
    }
    int m_asked = 0;
};

class RowOrderTest : public CellListFixture {
protected:
    using TColumn = TReport::TColumn;
    using TCustomColumn = TReport::TCustomColumn;
    struct Criterion {
        TColumn* column;
        bool forward;
    };

    void AddHostColumns(bool sortForward) {
        Report().AddColumn("Rank", &RankOf, sortForward, false);
        auto size = std::make_unique<SizeColumn>(Report(), Report().GetColumns().GetCount());
        m_size = size.get();
        Report().AddColumn(std::move(size));
    }
    static CStringU RankOf(const TLibCellView& cell) { return cell.view + cell.library; }

    // The sort columns as the report has them, then all others that break ties.
    [[nodiscard]] std::vector<Criterion> Criteria() {
        std::vector<Criterion> criteria;
        const CXTPReportColumnOrder& order = Report().GetColumns().GetSortOrder();
        const auto isKnown = [&criteria](const TColumn* column) {
            return std::any_of(criteria.begin(), criteria.end(),
                               [column](const Criterion& known) { return known.column == column; });
        };
        for (int place = 0; place < order.GetCount(); ++place) {
            auto* column = dynamic_cast<TColumn*>(order.GetAt(place));
            criteria.push_back({column, column->IsSortedIncreasing()});
        }
        for (int position = 0; position < Report().GetColumns().GetCount(); ++position) {
            auto* column = dynamic_cast<TColumn*>(Report().GetColumns().GetAt(position));
            if (dynamic_cast<TCustomColumn*>(column) == nullptr && !isKnown(column))
                criteria.push_back({column, true});
        }
        return criteria;
    }
    // True if the first criterion that tells them apart puts the left one in front.
    static bool MayPrecede(TLibCellView left, TLibCellView right, const std::vector<Criterion>& criteria) {
        if (dynamic_cast<TCustomColumn*>(criteria.front().column) != nullptr) {
            left.sortKey = RankOf(left);
            right.sortKey = RankOf(right);
        }
        for (const Criterion& criterion : criteria) {
            const int order = criterion.column->CompareCells(left, right);
            if (order != 0) return (order < 0) == criterion.forward;
        }
        return true;
    }
    void ExpectRowsInOrder(std::size_t count) {
        ASSERT_EQ(Report().GetCellViewCount(), count);
        const std::vector<Criterion> criteria = Criteria();
        for (int row = 0; row + 1 < static_cast<int>(count); ++row) {
            const TLibCellView left = Report().GetCell(row);
            const TLibCellView right = Report().GetCell(row + 1);
            EXPECT_TRUE(MayPrecede(left, right, criteria))
                << left.Join(" ").Payload() << " in front of " << right.Join(" ").Payload();
        }
    }

    SizeColumn* m_size = nullptr;
};

TEST_F(RowOrderTest, AgreesWithComparingNeighboursForAllSortOrdersAndDirections) {
    std::mt19937 random = text_test::SeededRandom();
    // In lower case: an added column compares keys that were made so.
    constexpr const char* csNames[] = {"a", "b", "a9", "a10", "a009", "9", "10", "\xC3\xA9", "_", "ab"};
    const auto name = [&] { return std::string(csNames[random() % std::size(csNames)]); };
    std::set<std::vector<std::string>> triples;
    while (triples.size() < 80)
        triples.insert({name(), name(), name()});
    ShowCells(TTriples(triples.begin(), triples.end()));
    AddHostColumns(random() % 2 == 0);
    std::vector<const char*> captions = {"Cell", "View", "Library", "Rank", "Size"};
    for (int turn = 0; turn < 250; ++turn) {
        std::shuffle(captions.begin(), captions.end(), random);
        for (std::size_t position = 0; position < captions.size(); ++position)
            Report().GetColumns().ChangeColumnOrder(static_cast<int>(position), &Column(captions[position]));
        std::shuffle(captions.begin(), captions.end(), random);
        CXTPReportColumnOrder& order = Report().GetColumns().GetSortOrder();
        order.Clear();
        std::string sorted = "sorted by";
        for (std::size_t place = 0; place < static_cast<std::size_t>(turn) % 6; ++place) {
            const bool increasing = random() % 2 == 0;
            order.Add(&Column(captions[place]), increasing);
            sorted.append(increasing ? " +" : " -").append(captions[place]);
        }
        SCOPED_TRACE(sorted);
        Report().Populate();
        ExpectRowsInOrder(triples.size());
    }
}

TEST_F(RowOrderTest, AsksAColumnClassOfTheHostOnceForEachRowAndNotBehindAllNames) {
    ShowCells({{"l1", "aaa", "v"}, {"l1", "b", "v"}, {"l1", "cc", "v"}});
    AddHostColumns(true);
    Report().Populate();
    EXPECT_EQ(m_size->m_asked, 0);
    Report().GetColumns().SetSortColumn(m_size, false);
    Report().Populate();
    EXPECT_EQ(m_size->m_asked, 3);
    EXPECT_EQ(Rows(), (std::vector<std::string>{"l1 aaa v", "l1 cc v", "l1 b v"}));
}

// A number as a host's class compares it: the shortest name first, whatever the text in the column says.
class LengthColumn : public TCellNamesReportCtrl::TColumn {
public:
    LengthColumn(TCellNamesReportCtrl& report, int itemIndex) : TColumn(report, itemIndex, "Length") {}
    [[nodiscard]] CStringU GetCellText(const TLibCellView& cell) override { return cell.cell; }
    [[nodiscard]] int CompareCells(const TLibCellView& left, const TLibCellView& right) override {
        return left.cell.GetByteLength() - right.cell.GetByteLength();
    }
};

TEST_F(RowOrderTest, AColumnClassOfTheHostDecidesByItsOwnCompare) {
    ShowCells({{"l1", "zz", "v"}, {"l1", "aaa", "v"}, {"l1", "b", "v"}, {"l2", "yy", "v"}, {"l1", "a", "v"}});
    auto length = std::make_unique<LengthColumn>(Report(), Report().GetColumns().GetCount());
    LengthColumn* const column = length.get();
    Report().AddColumn(std::move(length));
    Report().GetColumns().SetSortColumn(column, true);
    Report().Populate();
    EXPECT_EQ(Rows(), (std::vector<std::string>{"l1 a v", "l1 b v", "l2 yy v", "l1 zz v", "l1 aaa v"}));
    Report().GetColumns().SetSortColumn(column, false);
    Report().Populate();
    EXPECT_EQ(Rows(), (std::vector<std::string>{"l1 aaa v", "l2 yy v", "l1 zz v", "l1 a v", "l1 b v"}));
    // Behind the library it decides within each of them, and in front of the other ties.
    Report().GetColumns().SetSortColumn(&Column("Library"), false);
    Report().GetColumns().GetSortOrder().Add(column, true);
    Report().Populate();
    EXPECT_EQ(Rows(), (std::vector<std::string>{"l2 yy v", "l1 a v", "l1 b v", "l1 zz v", "l1 aaa v"}));
}

TEST_F(RowOrderTest, TakesTwoBuiltInColumnsThatBothDecrease) {
    ShowCells({{"l1", "a", "v"}, {"l1", "b", "v"}, {"l2", "a", "x"}, {"l2", "a", "v"}, {"l2", "b", "v"}});
    Report().GetColumns().SetSortColumn(&Column("Library"), false);
    Report().GetColumns().GetSortOrder().Add(&Column("Cell"), false);
    Report().Populate();
    EXPECT_EQ(Rows(), (std::vector<std::string>{"l2 b v", "l2 a v", "l2 a x", "l1 b v", "l1 a v"}));
}

}  // namespace
