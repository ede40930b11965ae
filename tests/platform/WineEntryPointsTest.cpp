#include "platform/WineEntryPoints.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace {

using vapp_platform::TEntryPointFinder;
using vapp_platform::TWineEntryPoints;

// The functions that Wine might have, written down as they are called. Plain functions can't hold anything,
// so that what they give and got stands beside them.
struct TCalls {
    std::vector<std::string> got;
    const char16_t* wide = nullptr;
    const char* narrow = nullptr;
    int number = 0;
    int alive = 0;
};
TCalls gCalls;

template <typename Unit>
Unit* OnTheHeap(const Unit* text) {
    if (text == nullptr) return nullptr;
    const std::size_t bytes = (std::char_traits<Unit>::length(text) + 1) * sizeof(Unit);
    ++gCalls.alive;
    return static_cast<Unit*>(std::memcpy(std::malloc(bytes), text, bytes));
}

char16_t* DosFileName(const char* path) {
    gCalls.got.emplace_back(path);
    return OnTheHeap(gCalls.wide);
}
char* UnixFileName(const char16_t* path) {
    for (std::u16string_view units = path; !units.empty(); units.remove_prefix(1)) {
        gCalls.got.push_back(std::to_string(static_cast<unsigned>(units.front())));
    }
    return OnTheHeap(gCalls.narrow);
}
char* GetVariable(const char* name) {
    gCalls.got.emplace_back(name);
    return OnTheHeap(gCalls.narrow);
}
int SetVariable(const char* name, const char* value, int overwrite) {
    gCalls.got = {name, value, std::to_string(overwrite)};
    return gCalls.number;
}
int TakeOneText(const char* text) {
    gCalls.got = {text};
    return gCalls.number;
}

class TFinder final : public TEntryPointFinder {
public:
    [[nodiscard]] TFunction Find(const char* name) const noexcept override {
        m_looked.emplace_back(name);
        const auto found = m_functions.find(name);
        return found != m_functions.end() ? found->second : nullptr;
    }
    void Release(void* memory) const noexcept override {
        gCalls.alive -= static_cast<int>(memory != nullptr);
        std::free(memory);
    }
    template <typename Function>
    void Have(const char* name, Function* function) {
        m_functions[name] = reinterpret_cast<TFunction>(function);
    }
    mutable std::vector<std::string> m_looked;

private:
    std::map<std::string, TFunction, std::less<>> m_functions;
};

class WineEntryPointsTest : public testing::Test {
protected:
    WineEntryPointsTest() { gCalls = {}; }
    ~WineEntryPointsTest() override { EXPECT_EQ(gCalls.alive, 0) << "memory that was not released"; }

    void HaveAll() {
        m_finder.Have("wine_get_dos_file_name", DosFileName);
        m_finder.Have("wine_get_unix_stripped_file_name", UnixFileName);
        m_finder.Have("wine_get_unix_env", GetVariable);
        m_finder.Have("wine_set_unix_env", SetVariable);
        m_finder.Have("wine_unset_unix_env", TakeOneText);
        m_finder.Have("wine_put_unix_env", TakeOneText);
    }

    TFinder m_finder;
    TWineEntryPoints m_side{m_finder};
};

using TGot = std::vector<std::string>;

TEST_F(WineEntryPointsTest, AMissingFunctionSaysNothing) {
    EXPECT_EQ(m_side.DosFileName("/x"), std::nullopt);
    EXPECT_EQ(m_side.UnixFileName("C:\\x"), std::nullopt);
    EXPECT_EQ(m_side.GetVariable("N"), std::nullopt);
    EXPECT_EQ(m_side.SetVariable("N", "v", 1), std::nullopt);
    EXPECT_EQ(m_side.UnsetVariable("N"), std::nullopt);
    EXPECT_EQ(m_side.PutVariable("N=v"), std::nullopt);
    EXPECT_EQ(m_finder.m_looked,
              (TGot{"wine_get_dos_file_name", "wine_get_unix_stripped_file_name", "wine_get_unix_env",
                    "wine_set_unix_env", "wine_unset_unix_env", "wine_put_unix_env"}));
}

TEST_F(WineEntryPointsTest, AFunctionIsLookedUpAtEachCall) {
    EXPECT_EQ(m_side.PutVariable("N=v"), std::nullopt);
    HaveAll();
    gCalls.number = 7;
    EXPECT_EQ(m_side.PutVariable("N=v"), 7);
    EXPECT_EQ(m_finder.m_looked, (TGot{"wine_put_unix_env", "wine_put_unix_env"}));
}

TEST_F(WineEntryPointsTest, NamesAreTakenOverAndTheirMemoryReleased) {
    HaveAll();
    gCalls.wide = u"Z:\\var\\\u00E9";
    EXPECT_EQ(m_side.DosFileName("/var/\xC3\xA9"), CStringU(u"Z:\\var\\\u00E9"));
    EXPECT_EQ(gCalls.got, (TGot{"/var/\xC3\xA9"}));

    gCalls.got.clear();
    gCalls.narrow = "/home/\xC3\xA9";
    EXPECT_EQ(m_side.UnixFileName(CStringU(u"C\u00E9\U0001F600")), CString("/home/\xC3\xA9"));
    EXPECT_EQ(gCalls.got, (TGot{"67", "233", "55357", "56832"}));

    gCalls.got.clear();
    EXPECT_EQ(m_side.GetVariable("HOME"), CString("/home/\xC3\xA9"));
    EXPECT_EQ(gCalls.got, (TGot{"HOME"}));
}

TEST_F(WineEntryPointsTest, ANullOrEmptyAnswerIsAnEmptyName) {
    HaveAll();
    EXPECT_EQ(m_side.DosFileName("/x"), CStringU());
    EXPECT_EQ(m_side.UnixFileName("C:\\x"), CString());
    EXPECT_EQ(m_side.GetVariable("N"), CString());
    gCalls.wide = u"";
    gCalls.narrow = "";
    EXPECT_EQ(m_side.DosFileName("/x"), CStringU());
    EXPECT_EQ(m_side.UnixFileName("C:\\x"), CString());
    EXPECT_EQ(m_side.GetVariable("N"), CString());
}

TEST_F(WineEntryPointsTest, ChangesArePassedOnAndAnswered) {
    HaveAll();
    gCalls.number = -5;
    EXPECT_EQ(m_side.SetVariable("N", "v", 2), -5);
    EXPECT_EQ(gCalls.got, (TGot{"N", "v", "2"}));
    EXPECT_EQ(m_side.UnsetVariable("M"), -5);
    EXPECT_EQ(gCalls.got, (TGot{"M"}));
    EXPECT_EQ(m_side.PutVariable("N=v"), -5);
    EXPECT_EQ(gCalls.got, (TGot{"N=v"}));
}

}  // namespace
