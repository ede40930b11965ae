#include "celllist/OptionCommands.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <tuple>

namespace {

using namespace vapp_library_browser;
using TOptions = TCellNamesReportCtrl::TOptions;

// Which columns are searched: all, the cell's, the view's.
struct SearchState {
    bool all;
    bool cell;
    bool view;
    friend bool operator==(const SearchState&, const SearchState&) = default;
};

std::ostream& operator<<(std::ostream& out, const SearchState& state) {
    return out << (state.all ? "all " : "") << (state.cell ? "cell " : "") << (state.view ? "view" : "");
}

SearchState StateOf(const TOptions& options) {
    return {options.filterAllColumns, options.filterCellName, options.filterViewName};
}

constexpr SearchState cnCellAlone{false, true, false};
constexpr SearchState cnViewAlone{false, false, true};
constexpr SearchState cnCellAndView{false, true, true};
constexpr SearchState cnAllColumns{true, false, false};

// The states that the commands lead to from the first one, and those that only settings changed by hand give.
struct SearchStep {
    SearchState before;
    SearchState afterCell;
    SearchState afterView;
};
constexpr std::array cnSearchSteps = {
    SearchStep{cnCellAlone, cnCellAlone, cnCellAndView},
    SearchStep{cnViewAlone, cnCellAndView, cnCellAlone},
    SearchStep{cnCellAndView, cnViewAlone, cnCellAlone},
    SearchStep{cnAllColumns, cnCellAlone, cnViewAlone},
    SearchStep{{false, false, false}, cnCellAlone, cnViewAlone},
    SearchStep{{true, true, false}, cnCellAlone, cnCellAndView},
    SearchStep{{true, false, true}, cnCellAndView, cnCellAlone},
    SearchStep{{true, true, true}, cnViewAlone, cnCellAlone},
};

SearchState NextState(const SearchState& before, UINT command) {
    if (command == FilterAllColumns) return cnAllColumns;
    for (const SearchStep& step : cnSearchSteps) {
        if (step.before == before) return command == FilterCellName ? step.afterCell : step.afterView;
    }
    ADD_FAILURE() << "no such state: " << before;
    return before;
}

constexpr std::array<UINT, 10> cnAllOptionCommands = {
    ShowHiddenCells, ShowVias,          FilterCaseSensitive, FilterAllColumns, FilterCellName,
    FilterViewName,  ColorFilteredList, ColorReservedCells,  ColorHiddenCells, ColorUnresolvedCells};

// What each command of a single option is about, by the numbers that hosts see.
struct SwitchRow {
    UINT command;
    bool TOptions::*option;
    bool isOnAtFirst;
};
constexpr std::array cnSwitchRows = {SwitchRow{40621, &TOptions::showHiddenCells, false},
                                     SwitchRow{40630, &TOptions::showVias, true},
                                     SwitchRow{40626, &TOptions::filterCaseSensitive, false},
                                     SwitchRow{40627, &TOptions::filterAllColumns, false},
                                     SwitchRow{40628, &TOptions::filterCellName, true},
                                     SwitchRow{40629, &TOptions::filterViewName, false},
                                     SwitchRow{40661, &TOptions::colorFilteredList, true},
                                     SwitchRow{40662, &TOptions::colorReservedCells, true},
                                     SwitchRow{40664, &TOptions::colorHiddenCells, true},
                                     SwitchRow{40686, &TOptions::colorUnresolvedCells, true}};

bool TOptions::*SwitchOf(UINT command) {
    for (const SwitchRow& row : cnSwitchRows) {
        if (row.command == command) return row.option;
    }
    ADD_FAILURE() << command;
    return &TOptions::showVias;
}

auto TieOf(const TOptions& options) {
    return std::tie(options.showHiddenCells, options.showVias, options.viewFilter,
                    options.filterCaseSensitive, options.filterAllColumns, options.filterCellName,
                    options.filterViewName, options.colorFilteredList, options.colorReservedCells,
                    options.colorHiddenCells, options.colorUnresolvedCells);
}

TEST(OptionCommandsTest, TheCellNameCanNotBeSwitchedOffAlone) {
    TOptions options;
    ASSERT_EQ(StateOf(options), cnCellAlone);
    EXPECT_TRUE(ApplyOptionCommand(options, 40628));
    EXPECT_EQ(StateOf(options), cnCellAlone);
}

TEST(OptionCommandsTest, AllColumnsThenTheCellNameSearchesTheCellAlone) {
    TOptions options;
    ApplyOptionCommand(options, 40627);
    EXPECT_EQ(StateOf(options), cnAllColumns);
    ApplyOptionCommand(options, 40628);
    EXPECT_EQ(StateOf(options), cnCellAlone);
}

TEST(OptionCommandsTest, AllColumnsThenTheViewNameSearchesTheViewAlone) {
    TOptions options;
    ApplyOptionCommand(options, 40627);
    ApplyOptionCommand(options, 40629);
    EXPECT_EQ(StateOf(options), cnViewAlone);
}

TEST(OptionCommandsTest, AllColumnsAgainStaysSo) {
    TOptions options;
    ApplyOptionCommand(options, 40627);
    ApplyOptionCommand(options, 40627);
    EXPECT_EQ(StateOf(options), cnAllColumns);
}

TEST(OptionCommandsTest, EveryStateOfTheSearchGoesWhereItShould) {
    for (const SearchStep& step : cnSearchSteps) {
        SCOPED_TRACE(testing::PrintToString(step.before));
        for (const UINT command : {FilterAllColumns, FilterCellName, FilterViewName}) {
            TOptions options;
            std::tie(options.filterAllColumns, options.filterCellName, options.filterViewName) =
                std::make_tuple(step.before.all, step.before.cell, step.before.view);
            ApplyOptionCommand(options, command);
            EXPECT_EQ(StateOf(options), NextState(step.before, command)) << command;
        }
    }
}

// All sequences of the commands up to a length: after each command exactly what it says has changed, and some
// column is searched. The number of sequences is the proof that none was left out.
class CommandWalk {
public:
    void Go(const TOptions& options, int stepsLeft) {
        if (stepsLeft == 0) return;
        for (const UINT command : cnAllOptionCommands) {
            TOptions after = options;
            ASSERT_TRUE(ApplyOptionCommand(after, command));
            ++m_sequences;
            Check(options, after, command);
            if (testing::Test::HasFailure()) return;
            Go(after, stepsLeft - 1);
        }
    }
    [[nodiscard]] int Sequences() const { return m_sequences; }

private:
    static void Check(const TOptions& before, const TOptions& after, UINT command) {
        ASSERT_TRUE(after.filterAllColumns || after.filterCellName || after.filterViewName) << command;
        TOptions expected = before;
        switch (command) {
            case FilterAllColumns:
            case FilterCellName:
            case FilterViewName:
                ASSERT_EQ(StateOf(after), NextState(StateOf(before), command));
                std::tie(expected.filterAllColumns, expected.filterCellName, expected.filterViewName) =
                    std::tie(after.filterAllColumns, after.filterCellName, after.filterViewName);
                break;
            default:
                expected.*SwitchOf(command) = !(before.*SwitchOf(command));
                break;
        }
        ASSERT_EQ(TieOf(after), TieOf(expected)) << "nothing else changes by " << command;
    }

    int m_sequences = 0;
};

TEST(OptionCommandsTest, EverySequenceOfUpToFiveCommandsDoesWhatItsCommandsSay) {
    CommandWalk walk;
    walk.Go(TOptions(), 5);
    EXPECT_EQ(walk.Sequences(), 10 + 100 + 1000 + 10000 + 100000);
}

TEST(OptionCommandsTest, EachCommandShowsItsOptionAndNoOther) {
    for (const SwitchRow& row : cnSwitchRows) {
        SCOPED_TRACE(row.command);
        TOptions options;
        EXPECT_EQ(IsOptionOn(options, row.command), row.isOnAtFirst);
        options.*row.option = !row.isOnAtFirst;
        for (const SwitchRow& other : cnSwitchRows)
            EXPECT_EQ(IsOptionOn(options, other.command), other.isOnAtFirst != (&other == &row))
                << other.command;
    }
}

TEST(OptionCommandsTest, LeavesOtherCommandsAlone) {
    for (const UINT command : {0U, 40622U, 40625U, 40660U, 40663U, 40665U, 41000U, 43000U, 0xFFFFFFFFU}) {
        TOptions options;
        EXPECT_FALSE(ApplyOptionCommand(options, command)) << command;
        EXPECT_FALSE(IsOptionOn(options, command)) << command;
        EXPECT_EQ(TieOf(options), TieOf(TOptions()));
    }
}

}  // namespace
