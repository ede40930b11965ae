#include "celllist/CellRows.h"

#include <gtest/gtest.h>
#include <tcl.h>

#include <algorithm>
#include <random>
#include <set>
#include <string>

#include "tests/browser/RecordingHost.h"
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

// --- Against the plain way: a set of values, sorted by comparing texts -----------------------------------

const char* const csPieces[] = {"a", "A",  "b",        "10",           "9",    "009",  "0", "",  "_",
                                "é", "É",  "\xD9\xA3", "\xE4\xB8\xAD", "cell", "Cell", "{", "}", "$x",
                                " ", "\n", "[exec]",   "\"",           ";",    "ß"};

class RandomNames {
public:
    explicit RandomNames(unsigned seed) : m_random(seed) {}

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
    const unsigned seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    RandomNames random(seed);
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

TEST_F(CellRowsTest, ArrangesByKeysAsComparingTheirTextsWould) {
    const unsigned seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    RandomNames random(seed);
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
    const unsigned seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const auto name = [&random] {
        std::string bytes;
        for (unsigned long count = random() % 5; count > 0; --count)
            bytes += "\x80\xBF\xC3\xE4\xF0\xFF\x61\x30"[random() % 8];
        return CStringU(bytes.c_str(), TextEncoding::Raw);
    };
    std::vector<TLibCellView> cells;
    for (int at = 0; at < 3000; ++at)
        cells.emplace_back(name(), name(), name());
    CellRows rows = Read(cells);
    rows.ArrangeAsSet();
    const std::size_t distinct = rows.Count();
    EXPECT_GT(distinct, 0u);
    const NameCriterion criteria[] = {
        {NameRole::Cell, true}, {NameRole::View, false}, {NameRole::Library, true}};
    rows.ArrangeByNames(criteria, true);
    EXPECT_EQ(rows.Count(), distinct);
}

}  // namespace
