/// @file
/// Settings in the registry: what comes back in the next run, and what stands there for other eyes. Built and
/// run by tools/windows-settings.
#include <gtest/gtest.h>
#include <windows.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tests/qt/KeptValues.h"
#include "vapp/toolkit/qt/QtProfileStore.h"

namespace {

constexpr char csMaker[] = "vapp settings under test";
constexpr wchar_t csMakerKey[] = L"Software\\vapp settings under test";

// In a Wine prefix of the build, or on a Windows machine, nobody else has keys below this name.
class RegistrySettings : public testing::Test {
protected:
    RegistrySettings() { Forget(); }
    ~RegistrySettings() override { Forget(); }

    [[nodiscard]] std::unique_ptr<QtProfileStore> Open() {
        return QtProfileStore::ForUser(
            csMaker, "tool", [this](const CString& sentence) { m_warnings.emplace_back(sentence.View()); });
    }
    /// The kind of a value below the tool's key, as the system has it.
    [[nodiscard]] static std::optional<DWORD> KindOf(const std::wstring& path, const wchar_t* name) {
        DWORD kind = 0;
        const std::wstring key = std::wstring(csMakerKey) + L"\\tool\\" + path;
        const LSTATUS status =
            RegGetValueW(HKEY_CURRENT_USER, key.c_str(), name, RRF_RT_ANY, &kind, nullptr, nullptr);
        return status == ERROR_SUCCESS ? std::optional(kind) : std::nullopt;
    }
    static void WriteByHand(const std::wstring& path, const wchar_t* name, const std::wstring& text) {
        const std::wstring key = std::wstring(csMakerKey) + L"\\tool\\" + path;
        const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
        ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), name, REG_SZ, text.c_str(), size),
                  ERROR_SUCCESS);
    }

    std::vector<std::string> m_warnings;

private:
    static void Forget() { RegDeleteTreeW(HKEY_CURRENT_USER, csMakerKey); }
};

}  // namespace

TEST_F(RegistrySettings, ValuesOfBothKindsComeBackInTheNextRun) {
    EXPECT_EQ(Open()->GetPlace(), CString("HKEY_CURRENT_USER\\Software\\vapp settings under test\\tool"));
    kept_values::ExpectBothKindsComeBack([this] { return Open(); });
    EXPECT_TRUE(m_warnings.empty());
}

TEST_F(RegistrySettings, AnIntegerIsOneThereAndASectionIsAKey) {
    const auto store = Open();
    store->WriteInteger("LibraryNavigator", "toolCellsPaneHeight", 345);
    store->WriteText("LibraryNavigator\\Setup1", "Order", "Cell");
    store->Flush();
    EXPECT_EQ(KindOf(L"LibraryNavigator", L"toolCellsPaneHeight"), REG_DWORD);
    EXPECT_EQ(KindOf(L"LibraryNavigator\\Setup1", L"Order"), REG_SZ);
    EXPECT_EQ(KindOf(L"LibraryNavigator", L"Order"), std::nullopt);
}

TEST_F(RegistrySettings, WhatAUserTypesThereCounts) {
    WriteByHand(L"LibraryNavigator", L"ShowVias", L"no");
    WriteByHand(L"LibraryNavigator", L"toolCellsPaneHeight", L"77");
    const auto store = Open();
    EXPECT_EQ(store->ReadText("LibraryNavigator", "ShowVias"), CString("no"));
    EXPECT_EQ(store->ReadInteger("LibraryNavigator", "toolCellsPaneHeight"), 77);
}

TEST_F(RegistrySettings, ATextIsNeverAnIntegerNorAnIntegerAText) {
    kept_values::ExpectLastKindWins([this] { return Open(); });
}

TEST_F(RegistrySettings, TextsComeBackByteByByte) {
    kept_values::ExpectTextsComeBackByteByByte([this] { return Open(); });
}

TEST_F(RegistrySettings, NamesWithMarksOfAPathAreNamesAndNothingElse) {
    kept_values::ExpectNamesStayApart([this] { return Open(); }, kept_values::OddNames());
}

TEST_F(RegistrySettings, WhatAnotherProgramWroteStays) {
    const auto ours = Open();
    const auto theirs = Open();
    ours->WriteInteger("s", "ours", 1);
    theirs->WriteInteger("s", "theirs", 2);
    ours->Flush();
    theirs->Flush();
    ours->WriteInteger("s", "later", 3);
    ours->Flush();
    const auto store = Open();
    EXPECT_EQ(store->ReadInteger("s", "ours"), 1);
    EXPECT_EQ(store->ReadInteger("s", "theirs"), 2);
    EXPECT_EQ(store->ReadInteger("s", "later"), 3);
}
