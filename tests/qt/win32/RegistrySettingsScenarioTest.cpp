/// @file
/// Settings in the registry: what comes back in the next run, and what stands there for other eyes. Built and
/// run by tools/windows-settings.
#include <gtest/gtest.h>
#include <windows.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

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
    {
        const auto store = Open();
        EXPECT_EQ(store->GetPlace(), CString("HKEY_CURRENT_USER\\Software\\vapp settings under test\\tool"));
        store->WriteInteger("LibraryNavigator", "toolCellsPaneHeight", 345);
        store->WriteInteger("LibraryNavigator", "least", INT32_MIN);
        store->WriteText("LibraryNavigator\\Setup1\\Columns\\Cell", "Visible", "true");
        store->WriteText("LibraryNavigator", "ExcludeViewNames", "");
    }
    const auto store = Open();
    EXPECT_EQ(store->ReadInteger("LibraryNavigator", "toolCellsPaneHeight"), 345);
    EXPECT_EQ(store->ReadInteger("LibraryNavigator", "least"), INT32_MIN);
    EXPECT_EQ(store->ReadText("LibraryNavigator\\Setup1\\Columns\\Cell", "Visible"), CString("true"));
    EXPECT_EQ(store->ReadText("LibraryNavigator", "ExcludeViewNames"), CString(""))
        << "set to nothing is set";
    EXPECT_EQ(store->ReadText("LibraryNavigator", "missing"), std::nullopt);
    EXPECT_EQ(store->ReadInteger("LibraryNavigator", "missing"), std::nullopt);
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
    for (const bool flushes : {false, true}) {
        const auto store = Open();
        store->WriteText("s", "k", "12");
        if (flushes) store->Flush();
        EXPECT_EQ(store->ReadText("s", "k"), CString("12"));
        EXPECT_EQ(store->ReadInteger("s", "k"), std::nullopt);
        store->WriteInteger("s", "k", 12);
        if (flushes) store->Flush();
        EXPECT_EQ(store->ReadText("s", "k"), std::nullopt);
        EXPECT_EQ(store->ReadInteger("s", "k"), 12);
    }
}

TEST_F(RegistrySettings, TextsComeBackByteByByte) {
    const std::vector<const char*> texts = {
        "a, b", "\"q\"", "a\nb\r\n", " blanks ", "@Invalid()", "@ByteArray(x)", "@", "@@x", "500",
        "-7",   "007",   "1.5",      "\xFF\xFE", "\xC3\xA4",   "%41",           "=", "[s]", "\xEF\xBB\xBFx"};
    {
        const auto store = Open();
        for (std::size_t i = 0; i < texts.size(); ++i)
            store->WriteText("s", CString(std::to_string(i).c_str()), texts[i]);
    }
    const auto store = Open();
    for (std::size_t i = 0; i < texts.size(); ++i)
        EXPECT_EQ(store->ReadText("s", CString(std::to_string(i).c_str())), CString(texts[i])) << texts[i];
}

TEST_F(RegistrySettings, NamesWithMarksOfAPathAreNamesAndNothingElse) {
    // All different without regard to case, which the registry doesn't keep apart.
    const std::vector<const char*> names = {"a\\b",    "a/b", "[a]", "a=b", "%",    "%5C",  "",
                                            "General", "a b", " a",  "@a",  "\xFF", "a\tb", "\xE4\xB8\xAD"};
    {
        const auto store = Open();
        int value = 0;
        for (const char* section : names) {
            for (const char* key : names)
                store->WriteInteger(section, key, value++);
        }
    }
    const auto store = Open();
    int value = 0;
    for (const char* section : names) {
        for (const char* key : names)
            EXPECT_EQ(store->ReadInteger(section, key), value++) << '"' << section << "\" \"" << key << '"';
    }
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
