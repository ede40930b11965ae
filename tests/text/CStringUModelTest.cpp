// CStringU beside a plain UTF-16 text: the same random operations on both must give the same characters, and
// after each the stored bytes must keep the marker invariant.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "tests/text/TextHelpers.h"
#include "vapp/text/CStringU.h"

namespace {

struct TWidePair {
    CStringU text;
    std::u16string model;
};

class TWidePlayer {
public:
    explicit TWidePlayer(std::mt19937 random) : m_random(random), m_pairs(5) {}

    void Play() {
        TWidePair& pair = m_pairs[Below(m_pairs.size())];
        const TWidePair other = m_pairs[Below(m_pairs.size())];
        const std::size_t at = Below(pair.model.size() + 1);
        const std::size_t count = Below(pair.model.size() - at + 3);
        const CStringUPos pos = pair.text.Begin() + static_cast<std::int64_t>(at);
        const char16_t unit = Unit();
        const auto signedCount = static_cast<std::int64_t>(count);
        switch (Below(14)) {
            case 0:
                pair = other;
                break;
            case 1:
                pair = Fresh();
                break;
            case 2:
                pair.text += other.text, pair.model += other.model;
                break;
            case 3:
                pair.text += unit, pair.model += unit;
                break;
            case 4:
                pair = {other.text + pair.text, other.model + pair.model};
                break;
            case 5:
                pair = {pair.text.Head(pos), pair.model.substr(0, at)};
                break;
            case 6:
                pair = {pair.text.Tail(pos), pair.model.substr(at)};
                break;
            case 7:
                pair = {pair.text.Mid(pos, signedCount), pair.model.substr(at, count)};
                break;
            case 8:
                CheckCount(pair.text.Insert(pos, unit), pair.model.insert(at, 1, unit));
                break;
            case 9:
                CheckCount(pair.text.Insert(pos, other.text), pair.model.insert(at, other.model));
                break;
            case 10:
                CheckCount(pair.text.Erase(pos, signedCount), pair.model.erase(at, count));
                break;
            case 11:
                CheckCount(pair.text.Erase(pair.text.Begin(), pos), pair.model.erase(0, at));
                break;
            case 12:
                pair = {CStringU(pair.text.Prefix2()), pair.model.substr(0, 2)};
                break;
            default:
                CheckReading(pair, pos, at);
                break;
        }
        if (pair.model.size() > 80) pair = {};
    }

    void Check() const {
        for (const TWidePair& pair : m_pairs) {
            ASSERT_EQ(pair.text.ToWide(), pair.model);
            ASSERT_EQ(static_cast<std::size_t>(pair.text.GetCharCount()), pair.model.size());
            ASSERT_TRUE(text_test::HoldsMarkerInvariant(pair.text)) << text_test::Stored(pair.text);
        }
    }

private:
    std::size_t Below(std::size_t limit) { return m_random() % limit; }

    // ASCII more often than not; then two bytes, three bytes, half a pair. Never 0.
    char16_t Unit() {
        switch (Below(8)) {
            case 0:
                return static_cast<char16_t>(0x80 + Below(0x780));
            case 1:
                return static_cast<char16_t>(0x800 + Below(0xF800));
            case 2:
                return static_cast<char16_t>(0xD800 + Below(0x800));
            default:
                return static_cast<char16_t>(1 + Below(0x7F));
        }
    }

    TWidePair Fresh() {
        std::u16string units(Below(8), u'\0');
        std::generate(units.begin(), units.end(), [this] { return Unit(); });
        return {CStringU(units.c_str()), units};
    }

    static void CheckCount(int count, const std::u16string& model) {
        EXPECT_EQ(static_cast<std::size_t>(count), model.size());
    }

    static void CheckReading(const TWidePair& pair, CStringUPos pos, std::size_t at) {
        EXPECT_EQ(*pos, at < pair.model.size() ? pair.model[at] : u'\0');
        EXPECT_EQ(pos.AtEnd(), at == pair.model.size());
        EXPECT_EQ(pair.text.LastChar(), pair.model.empty() ? u'\0' : pair.model.back());
        CStringUPos advanced = pair.text.Begin();
        EXPECT_EQ(advanced.Advance(static_cast<std::uint64_t>(at)), pos);
        EXPECT_EQ(pair.text.End() - static_cast<std::int64_t>(pair.model.size() - at), pos);
        EXPECT_EQ(CStringU(pair.text.StripMarker().GetString(), TextEncoding::Utf8Auto), pair.text);
    }

    std::mt19937 m_random;
    std::vector<TWidePair> m_pairs;
};

TEST(CStringUModel, RandomOperationsAgreeWithPlainUtf16) {
    TWidePlayer player(text_test::SeededRandom("CStringUModel"));
    for (int round = 0; round < 20000; ++round) {
        player.Play();
        player.Check();
        if (::testing::Test::HasFailure()) FAIL() << "in round " << round;
    }
}

}  // namespace
