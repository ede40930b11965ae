#include "celllist/CellRows.h"

#include <gtest/gtest.h>
#include <tcl.h>

#include <algorithm>
#include <array>
#include <random>
#include <set>
#include <string>

#include "tests/browser/RecordingHost.h"
#include "tests/text/HostileText.h"
#include "text/NaturalOrder.h"
#include "vapp/browser/TTclObject.h"

namespace {

using namespace vapp_library_browser;
using TRows = std::vector<std::string>;

// Tells the rows as texts, with the bytes as they came.
TRows Texts(const CellRows& rows) {
    TRows texts;
    for (std::size_t row = 0; row < rows.Count(); ++row)
        texts.emplace_back(rows.At(row).Join("|").Payload());
    return texts;
}

class CellRowsTest : public testing::Test {
protected:
    std::optional<CellRows> Read(const std::string& answer) {
        const TTclObject list(Tcl_NewStringObj(answer.data(), static_cast<int>(answer.size())));
        return CellRows::Read(list.Get());
    }
    CellRows Read(const std::vector<TLibCellView>& cells) {
        const TTclObject list(Tcl_NewListObj(0, nullptr));
        for (const TLibCellView& cell : cells) {
            Tcl_Obj* names[] = {Name(cell.library), Name(cell.cell), Name(cell.view)};
            Tcl_ListObjAppendElement(nullptr, list.Get(), Tcl_NewListObj(3, names));
        }
        return *CellRows::Read(list.Get());
    }
    static Tcl_Obj* Name(const CStringU& name) { return Tcl_NewStringObj(name.Payload(), -1); }

    RecordingHost m_host;
};

TEST_F(CellRowsTest, ReadsTriplesAndSkipsElementsOfOtherLengths) {
    const auto rows = Read("{l c v} {} {l c} {l c v w} {{} {} {}} {\"l 2\" {c\nd} \\{}");
    ASSERT_TRUE(rows);
    EXPECT_EQ(Texts(*rows), (TRows{"l|c|v", "||", "l 2|c\nd|{"}));
}

TEST_F(CellRowsTest, ReadsLongListsWhoseNeighboursShareNames) {
    std::string answer;
    TRows expected;
    for (int row = 0; row < 3000; ++row) {
        const std::string cell = "c" + std::to_string(row / 7 % 900);
        const std::string view = row % 300 < 290 ? "sym" : "lay";
        answer += "{l " + cell + " " + view + "} ";
        expected.push_back("l|" + cell + "|" + view);
    }
    EXPECT_EQ(Texts(*Read(answer)), expected);
}

TEST_F(CellRowsTest, RefusesAnAnswerOrAnElementThatIsNoList) {
    EXPECT_FALSE(Read("{l c v"));
    EXPECT_FALSE(Read("{l c v} \"{l c\""));
    EXPECT_FALSE(CellRows::Read(nullptr));
    EXPECT_EQ(Read("")->Count(), 0u);
}

TEST_F(CellRowsTest, KeepsTheFirstOfTriplesThatDifferInCaseAlone) {
    auto rows = Read("{L Inv v} {l inv V} {l buf v} {L INV v}");
    rows->ArrangeAsSet();
    EXPECT_EQ(Texts(*rows), (TRows{"l|buf|v", "L|Inv|v"}));
    rows = Read("{L Inv v} {l inv V} {l buf v} {L INV v}");
    const NameCriterion criteria[] = {
        {NameRole::View, true}, {NameRole::Cell, false}, {NameRole::Library, true}};
    rows->ArrangeByNames(criteria, true);
    EXPECT_EQ(Texts(*rows), (TRows{"L|Inv|v", "l|buf|v"}));
}

TEST_F(CellRowsTest, TellsNamesApartThatAreEqualInNaturalOrderOnly) {
    auto rows = Read("{l 3 b} {l \xD9\xA3 a} {l 3 a}");
    const NameCriterion criteria[] = {
        {NameRole::Cell, true}, {NameRole::View, true}, {NameRole::Library, true}};
    rows->ArrangeByNames(criteria, true);
    EXPECT_EQ(Texts(*rows), (TRows{"l|3|a", "l|\xD9\xA3|a", "l|3|b"}));
}

TEST_F(CellRowsTest, FindsTheFirstRowWithoutRegardToCaseAndView) {
    const auto rows = Read("{l a x} {l inv v1} {L INV v2}");
    const CStringU view = "V2";
    EXPECT_EQ(rows->Find("L", "Inv", nullptr), 1u);
    EXPECT_EQ(rows->Find("L", "Inv", &view), 2u);
    EXPECT_EQ(rows->Find("L", "x", nullptr), std::nullopt);
}

// Tcl hands texts out by their first byte alone, and everybody reads them to the first NUL.
TEST_F(CellRowsTest, EndsANameAtItsFirstNul) {
    const auto bytes = [](std::string_view text) {
        return Tcl_NewStringObj(text.data(), static_cast<int>(text.size()));
    };
    const TTclObject list(Tcl_NewListObj(0, nullptr));
    for (const std::string_view cell : {std::string_view("a\0b", 3), std::string_view("a"),
                                        std::string_view("a\0c", 3), std::string_view("\0", 1)}) {
        Tcl_Obj* names[] = {bytes("l"), bytes(cell), bytes("v")};
        Tcl_ListObjAppendElement(nullptr, list.Get(), Tcl_NewListObj(3, names));
    }
    auto rows = CellRows::Read(list.Get());
    ASSERT_TRUE(rows);
    EXPECT_EQ(Texts(*rows), (TRows{"l|a|v", "l|a|v", "l|a|v", "l||v"}));
    EXPECT_EQ(rows->Names(NameRole::Cell).Count(), 2u);
    rows->ArrangeAsSet();
    EXPECT_EQ(Texts(*rows), (TRows{"l||v", "l|a|v"}));
}

// --- Against the plain way: a set of values, sorted by comparing texts -----------------------------------

const char* const csPieces[] = {"a", "A",  "b",        "10",           "9",    "009",  "0", "",  "_",
                                "é", "É",  "\xD9\xA3", "\xE4\xB8\xAD", "cell", "Cell", "{", "}", "$x",
                                " ", "\n", "[exec]",   "\"",           ";",    "ß"};

class RandomNames {
public:
    explicit RandomNames(const std::mt19937& random) : m_random(random) {}

    CStringU Name() {
        std::string name;
        for (unsigned long count = m_random() % 4; count > 0; --count)
            name += csPieces[m_random() % std::size(csPieces)];
        return {name.c_str(), TextEncoding::Utf8Auto};
    }
    std::vector<TLibCellView> Cells(std::size_t count) {
        std::vector<TLibCellView> cells;
        for (std::size_t at = 0; at < count; ++at)
            cells.emplace_back(Name(), Name(), Name());
        return cells;
    }
    std::size_t Below(std::size_t limit) { return m_random() % limit; }

private:
    std::mt19937 m_random;
};

const CStringU& NameOf(const TLibCellView& cell, NameRole role) {
    return role == NameRole::Library ? cell.library : role == NameRole::Cell ? cell.cell : cell.view;
}

struct Model {
    std::vector<TLibCellView> cells;
    std::vector<NameCriterion> criteria;

    // The set's order where the criteria say nothing: a stable sort over it.
    void Sort() {
        std::stable_sort(cells.begin(), cells.end(), [this](const TLibCellView& a, const TLibCellView& b) {
            for (const NameCriterion& criterion : criteria) {
                const int order =
                    vapp_text::CompareNaturalNoCase(NameOf(a, criterion.role), NameOf(b, criterion.role));
                if (order != 0) return criterion.forward ? order < 0 : order > 0;
            }
            return false;
        });
    }
    [[nodiscard]] TRows Texts() const {
        TRows texts;
        for (const TLibCellView& cell : cells)
            texts.emplace_back(cell.Join("|").Payload());
        return texts;
    }
};

TEST_F(CellRowsTest, ArrangesAsASetAndASortOfTheValuesWould) {
    RandomNames random(text_test::SeededRandom());
    std::vector<NameRole> roles = {NameRole::Library, NameRole::Cell, NameRole::View};
    do {
        for (unsigned directions = 0; directions < 8; ++directions) {
            const std::vector<TLibCellView> cells = random.Cells(200);
            const std::set<TLibCellView> set(cells.begin(), cells.end());
            Model model{{set.begin(), set.end()}, {}};
            for (unsigned place = 0; place < 3; ++place)
                model.criteria.push_back({roles[place], (directions >> place & 1) != 0});

            CellRows asSet = Read(cells);
            asSet.ArrangeAsSet();
            EXPECT_EQ(Texts(asSet), model.Texts());

            model.Sort();
            CellRows atOnce = Read(cells);
            atOnce.ArrangeByNames(model.criteria, true);
            EXPECT_EQ(Texts(atOnce), model.Texts());
            asSet.ArrangeByNames(model.criteria, false);
            EXPECT_EQ(Texts(asSet), model.Texts());
        }
    } while (std::next_permutation(roles.begin(), roles.end()));
}

// Answers are read in blocks, and what a block ends with is remembered for the next one.
class AnswerBuilder {
public:
    explicit AnswerBuilder(unsigned seed) : m_random(seed) {}

    // Runs of one name, of lengths up to `longestRun`; the same object for the whole run, or for each row a
    // new one. Elements of other lengths stand in between.
    void Add(std::size_t count, std::size_t longestRun, std::size_t distinct) {
        std::array<std::size_t, 3> left{};
        std::array<std::string, 3> names;
        std::array<TTclObject, 3> objects;
        for (std::size_t row = 0; row < count; ++row) {
            for (std::size_t role = 0; role < 3; ++role) {
                const bool next = left[role] == 0;
                if (next) {
                    left[role] = 1 + m_random() % longestRun;
                    names[role] = "n" + std::to_string(m_random() % distinct);
                }
                --left[role];
                if (next || m_random() % 2 == 0) objects[role] = TTclObject(New(names[role]));
            }
            Tcl_Obj* triple[] = {objects[0].Get(), objects[1].Get(), objects[2].Get()};
            Append(Tcl_NewListObj(3, triple));
            m_cells.emplace_back(names[0].c_str(), names[1].c_str(), names[2].c_str());
            if (row % 256 >= 254 || m_random() % 50 == 0)
                Append(Tcl_NewListObj(static_cast<int>(m_random() % 3), triple));
        }
    }
    [[nodiscard]] Tcl_Obj* Get() const { return m_list.Get(); }
    [[nodiscard]] const std::vector<TLibCellView>& Cells() const { return m_cells; }

private:
    static Tcl_Obj* New(const std::string& name) { return Tcl_NewStringObj(name.c_str(), -1); }
    void Append(Tcl_Obj* element) { Tcl_ListObjAppendElement(nullptr, m_list.Get(), element); }

    std::mt19937 m_random;
    TTclObject m_list{Tcl_NewListObj(0, nullptr)};
    std::vector<TLibCellView> m_cells;
};

TEST_F(CellRowsTest, ReadsAnswersOfAnySizeAsTheyStand) {
    const auto seed = static_cast<unsigned>(text_test::SeededRandom()());
    for (const std::size_t size : {0u, 1u, 255u, 256u, 257u, 512u, 513u, 3000u}) {
        for (const std::size_t longestRun : {1u, 3u, 400u, 5000u}) {
            for (const std::size_t distinct : {2u, 100000u}) {
                SCOPED_TRACE(std::to_string(size) + " rows, runs of " + std::to_string(longestRun));
                AnswerBuilder answer(seed);
                answer.Add(size, longestRun, distinct);
                auto rows = CellRows::Read(answer.Get());
                ASSERT_TRUE(rows);
                TRows expected;
                for (const TLibCellView& cell : answer.Cells())
                    expected.emplace_back(cell.Join("|").Payload());
                ASSERT_EQ(Texts(*rows), expected);
                const std::set<TLibCellView> set(answer.Cells().begin(), answer.Cells().end());
                rows->ArrangeAsSet();
                EXPECT_EQ(Texts(*rows), (Model{{set.begin(), set.end()}, {}}.Texts()));
            }
        }
    }
}

TEST_F(CellRowsTest, ReadsThreeThousandNamesThatAreAllDifferent) {
    std::vector<TLibCellView> cells;
    TRows expected;
    for (int cell = 0; cell < 3000; ++cell) {
        cells.emplace_back("l", ("c" + std::to_string(cell * 7 % 3000)).c_str(), "v");
        expected.emplace_back(cells.back().Join("|").Payload());
    }
    const CellRows rows = Read(cells);
    EXPECT_EQ(Texts(rows), expected);
    EXPECT_EQ(rows.Names(NameRole::Cell).Count(), 3000u);
    EXPECT_EQ(rows.Names(NameRole::View).Count(), 1u);
}

TEST_F(CellRowsTest, ArrangesByKeysAsComparingTheirTextsWould) {
    RandomNames random(text_test::SeededRandom());
    for (int turn = 0; turn < 20; ++turn) {
        CellRows rows = Read(random.Cells(200));
        rows.ArrangeAsSet();
        RowKeys keys;
        keys.forward = turn % 2 == 0;
        std::vector<std::pair<CStringU, std::string>> model;
        const TRows texts = Texts(rows);
        for (std::size_t row = 0; row < rows.Count(); ++row) {
            const CStringU key = random.Name();
            keys.ofRow.push_back(keys.texts.Intern(key.PayloadView()));
            model.emplace_back(key, texts[row]);
        }
        std::stable_sort(model.begin(), model.end(), [&keys](const auto& a, const auto& b) {
            const int order = vapp_text::CompareNaturalNoCase(a.first, b.first);
            return keys.forward ? order < 0 : order > 0;
        });
        rows.ArrangeByKeys(keys, {});
        TRows expected;
        for (const auto& [key, text] : model)
            expected.push_back(text);
        EXPECT_EQ(Texts(rows), expected);
    }
}

TEST_F(CellRowsTest, OrdersMalformedTextWithoutHarm) {
    std::mt19937 random = text_test::SeededRandom();
    const auto name = [&random] {
        std::string bytes;
        for (unsigned long count = random() % 5; count > 0; --count)
            bytes += "\x80\xBF\xC3\xE4\xF0\xFF\x61\x30"[random() % 8];
        return CStringU(bytes.c_str(), TextEncoding::Raw);
    };
    std::vector<TLibCellView> cells;
    for (int at = 0; at < 3000; ++at)
        cells.emplace_back(name(), name(), name());
    // What an answer tells is what has come through one.
    const CellRows told = Read(cells);
    std::set<TLibCellView> set;
    for (std::size_t row = 0; row < told.Count(); ++row)
        set.insert(told.At(row));
    const TRows expected = Model{{set.begin(), set.end()}, {}}.Texts();
    CellRows rows = Read(cells);
    rows.ArrangeAsSet();
    EXPECT_EQ(Texts(rows), expected);
    const NameCriterion criteria[] = {
        {NameRole::Cell, true}, {NameRole::View, false}, {NameRole::Library, true}};
    rows = Read(cells);
    rows.ArrangeByNames(criteria, true);
    TRows arranged = Texts(rows);
    EXPECT_EQ(arranged.size(), expected.size());
    std::sort(arranged.begin(), arranged.end());
    TRows sorted = expected;
    std::sort(sorted.begin(), sorted.end());
    EXPECT_EQ(arranged, sorted);
}

// The first bytes of a character, and a character that begins with them: told apart by the compare, though
// read from the front both are the same.
TEST_F(CellRowsTest, KeepsANameThatIsCutOffBesideTheWholeOne) {
    auto rows = Read("{l \xC3 v} {l \xC3\x80 v}");
    rows->ArrangeAsSet();
    EXPECT_EQ(Texts(*rows).size(), 2u);
    rows = Read("{l \xC3 v} {l \xC3\x80 v}");
    const NameCriterion criteria[] = {
        {NameRole::Cell, true}, {NameRole::View, true}, {NameRole::Library, true}};
    rows->ArrangeByNames(criteria, true);
    EXPECT_EQ(Texts(*rows).size(), 2u);
}

}  // namespace
