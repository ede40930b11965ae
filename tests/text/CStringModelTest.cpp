// CString beside std::string: the same random operations on both must give the same bytes, whatever is
// shared.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "tests/text/TextHelpers.h"
#include "vapp/text/CString.h"

namespace {

struct TPair {
    CString text;
    std::string model;
};

class TPlayer {
public:
    explicit TPlayer(std::mt19937 random) : m_random(random), m_pairs(6) {}

    void Play() {
        TPair& pair = m_pairs[Below(m_pairs.size())];
        const TPair other = m_pairs[Below(m_pairs.size())];
        const std::string word = Word();
        const int at = static_cast<int>(Below(pair.model.size() + 4)) - 2;
        const int count = static_cast<int>(Below(6)) - 1;
        switch (Below(13)) {
            case 0:
                pair = other;
                break;
            case 1:
                pair = {CString(word.c_str()), word};
                break;
            case 2:
                pair.text += other.text, pair.model += other.model;
                break;
            case 3:
                pair.text += word.c_str(), pair.model += word;
                break;
            case 4:
                pair.text.Insert(at, word.c_str()), pair.model.insert(Clamp(pair, at), word);
                break;
            case 5:
                pair.text.Delete(at, count), Erase(pair.model, Clamp(pair, at), count);
                break;
            case 6:
                pair.text.Replace("ab", word.c_str()), ReplaceAll(pair.model, word);
                break;
            case 7:
                pair.text.Remove('a'), std::erase(pair.model, 'a');
                break;
            case 8:
                pair.text = pair.text.Mid(at, count), pair.model = Cut(pair.model, Clamp(pair, at), count);
                break;
            case 9:
                pair.text.Trim("ab"), Trim(pair.model);
                break;
            case 10:
                SetAt(pair, at);
                break;
            case 11:
                pair.text.MakeUpper(), std::for_each(pair.model.begin(), pair.model.end(), Upper);
                break;
            default:
                CheckFinding(pair, word);
                break;
        }
        if (pair.model.size() > 300) pair = {};
    }

    void Check() const {
        for (const TPair& pair : m_pairs) {
            ASSERT_EQ(pair.text.View(), pair.model);
            ASSERT_EQ(pair.text.GetString()[pair.text.GetLength()], '\0');
        }
    }

private:
    std::size_t Below(std::size_t limit) { return m_random() % limit; }

    std::string Word() {
        std::string word(Below(5), '\0');
        std::generate(word.begin(), word.end(), [this] { return "abcAB \xC3\xA9"[Below(8)]; });
        return word;
    }

    static std::size_t Clamp(const TPair& pair, int at) {
        return std::min(static_cast<std::size_t>(std::max(at, 0)), pair.model.size());
    }
    static void Erase(std::string& model, std::size_t at, int count) {
        if (count > 0) model.erase(at, static_cast<std::size_t>(count));
    }
    static std::string Cut(const std::string& model, std::size_t at, int count) {
        return model.substr(at, static_cast<std::size_t>(std::max(count, 0)));
    }
    static void ReplaceAll(std::string& model, const std::string& word) {
        for (std::size_t at = model.find("ab"); at != std::string::npos;
             at = model.find("ab", at + word.size())) {
            model.replace(at, 2, word);
        }
    }
    static void Trim(std::string& model) {
        model.erase(0, model.find_first_not_of("ab"));
        model.erase(model.find_last_not_of("ab") + 1);
    }
    static void SetAt(TPair& pair, int at) {
        pair.text.SetAt(at, 'z');
        if (at >= 0 && static_cast<std::size_t>(at) < pair.model.size())
            pair.model[static_cast<std::size_t>(at)] = 'z';
    }
    static void Upper(char& byte) {
        if (byte >= 'a' && byte <= 'z') byte = static_cast<char>(byte - 32);
    }
    static int Index(std::size_t found) { return found == std::string::npos ? -1 : static_cast<int>(found); }
    static void CheckFinding(const TPair& pair, const std::string& word) {
        EXPECT_EQ(pair.text.Find(word.c_str()), Index(pair.model.find(word)));
        EXPECT_EQ(pair.text.FindOneOf(word.c_str()), Index(pair.model.find_first_of(word)));
        EXPECT_EQ(pair.text.ReverseFind('a'), Index(pair.model.rfind('a')));
        EXPECT_EQ(pair.text < word.c_str(), pair.model < word);
        EXPECT_EQ(pair.text == word.c_str(), pair.model == word);
    }

    std::mt19937 m_random;
    std::vector<TPair> m_pairs;
};

TEST(CStringModel, RandomOperationsAgreeWithTheStandardString) {
    TPlayer player(text_test::SeededRandom("CStringModel"));
    for (int round = 0; round < 20000; ++round) {
        player.Play();
        player.Check();
        if (::testing::Test::HasFailure()) FAIL() << "in round " << round;
    }
}

}  // namespace
