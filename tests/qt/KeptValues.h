/// @file
/// What a store of settings gives back in the next run, wherever it keeps them: the same checks for a file
/// and for the registry. What only one of them can show is in the tests of that one.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "vapp/toolkit/qt/QtProfileStore.h"

namespace kept_values {

/// Opens the place under test once more, as the next run of a program does.
using Opener = std::function<std::unique_ptr<QtProfileStore>()>;

/// Names that mean something to a path, a file of settings or the registry. All differ without regard to
/// case, which the registry doesn't keep apart.
inline std::vector<const char*> OddNames() {
    return {"a\\b",    "a/b", "[a]", "a]b[", "a=b", "a;b",  "\"a\"",    "Gr\xC3\xB6", "%", "%5C",         "",
            "General", "a b", " a",  "a ",   "@a",  "\xFF", "a\tb\r\n", "size",       "1", "\xE4\xB8\xAD"};
}

inline void ExpectBothKindsComeBack(const Opener& open) {
    {
        const auto store = open();
        store->WriteInteger("LibraryNavigator", "toolCellsPaneHeight", 345);
        store->WriteInteger("LibraryNavigator", "least", INT32_MIN);
        store->WriteText("LibraryNavigator\\Setup1\\Columns\\Cell", "Visible", "true");
        store->WriteText("LibraryNavigator", "ExcludeViewNames", "");
    }
    const auto store = open();
    EXPECT_EQ(store->ReadInteger("LibraryNavigator", "toolCellsPaneHeight"), 345);
    EXPECT_EQ(store->ReadInteger("LibraryNavigator", "least"), INT32_MIN);
    EXPECT_EQ(store->ReadText("LibraryNavigator\\Setup1\\Columns\\Cell", "Visible"), CString("true"));
    EXPECT_EQ(store->ReadText("LibraryNavigator", "ExcludeViewNames"), CString(""))
        << "set to nothing is set";
    EXPECT_EQ(store->ReadText("LibraryNavigator", "missing"), std::nullopt);
    EXPECT_EQ(store->ReadInteger("LibraryNavigator", "missing"), std::nullopt);
}

/// A text is no integer, an integer no text, and the last write counts.
inline void ExpectLastKindWins(const Opener& open) {
    for (const bool flushes : {false, true}) {
        const auto store = open();
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

/// Each name as a section and as a key of each section.
inline void ExpectNamesStayApart(const Opener& open, const std::vector<const char*>& names) {
    {
        const auto store = open();
        int value = 0;
        for (const char* section : names) {
            for (const char* key : names)
                store->WriteInteger(section, key, value++);
        }
    }
    const auto store = open();
    int value = 0;
    for (const char* section : names) {
        for (const char* key : names)
            EXPECT_EQ(store->ReadInteger(section, key), value++) << '"' << section << "\" \"" << key << '"';
    }
}

inline void ExpectTextsComeBackByteByByte(const Opener& open) {
    const std::vector<const char*> texts = {"a, b",     "a;b",      "\"q\"",         "a\\nb",
                                            "a\nb\r\n", " blanks ", "@Invalid()",    "@ByteArray(x)",
                                            "@",        "@@x",      "500",           "-7",
                                            "007",      "+1",       "99999999999",   "1.5",
                                            "\xFF\xFE", "\xC3\xA4", "%41",           "{} [list] $x",
                                            "=",        "[s]",      "@Variant(\\0)", "\xEF\xBB\xBFx"};
    {
        const auto store = open();
        for (std::size_t i = 0; i < texts.size(); ++i)
            store->WriteText("s", CString(std::to_string(i).c_str()), texts[i]);
    }
    const auto store = open();
    for (std::size_t i = 0; i < texts.size(); ++i)
        EXPECT_EQ(store->ReadText("s", CString(std::to_string(i).c_str())), CString(texts[i])) << texts[i];
}

}  // namespace kept_values
