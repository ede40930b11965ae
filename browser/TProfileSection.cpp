/// @file
/// Settings in both directions.
#include "vapp/browser/TProfileSection.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "text/Tokenizer.h"
#include "vapp/toolkit/CWinAppEx.h"

namespace vapp_library_browser {

namespace {

// Settings are UTF-8 in the store; the marker stays inside of the process.
CStringU ReadTextSetting(const CString& section, const char* key, const CStringU& defaultValue) {
    const CWinAppEx* app = CWinAppEx::GetApp();
    if (app == nullptr) return defaultValue;
    return {app->GetProfileString(section, key, defaultValue.StripMarker()), TextEncoding::Utf8Auto};
}

void WriteTextSetting(const CString& section, const char* key, const CStringU& value) {
    if (CWinAppEx* app = CWinAppEx::GetApp()) app->WriteProfileString(section, key, value.StripMarker());
}

// A setting that is kept as the number 0 or 1; anything else is no text.
CStringU DigitSetting(const CString& section, const char* key) {
    constexpr int cnNeither = -1;
    const CWinAppEx* app = CWinAppEx::GetApp();
    const int number = app != nullptr ? app->GetProfileInt(section, key, cnNeither) : cnNeither;
    return number == 0 || number == 1 ? CStringU(number == 0 ? "0" : "1") : CStringU();
}

// The spellings that turn a setting away from its default. The single letters and digits are taken in these
// cases only; the words in any.
struct TBoolSpellings {
    const char* words[2];
    const char* exact[3];
};
constexpr TBoolSpellings csTrue = {{"true", "yes"}, {"1", "Y", "y"}};
constexpr TBoolSpellings csFalse = {{"false", "no"}, {"0", "N", "n"}};

bool IsSpelled(const CStringU& text, const TBoolSpellings& spellings) {
    return std::any_of(std::begin(spellings.words), std::end(spellings.words),
                       [&](const char* word) { return text.EqualsNoCase(word); }) ||
           std::any_of(std::begin(spellings.exact), std::end(spellings.exact),
                       [&](const char* word) { return text == word; });
}

}  // namespace

TProfileSection::TProfileSection(bool storeValues, const CString& subsection)
    : store(storeValues), section(csNavigatorSection) {
    if (!subsection.IsEmpty()) section += "\\" + subsection;
}

void TProfileSection::ExchangeBool(const char* key, bool& value, bool defaultValue) const {
    if (store) {
        WriteTextSetting(section, key, value ? "true" : "false");
        return;
    }
    CStringU text = ReadTextSetting(section, key, CStringU());
    // In a file that a user edits, a digit is a number.
    if (text.IsEmpty()) text = DigitSetting(section, key);
    value = IsSpelled(text, defaultValue ? csFalse : csTrue) != defaultValue;
}

void TProfileSection::ExchangeText(const char* key, CStringU& value, const CStringU& defaultValue) const {
    if (store) {
        WriteTextSetting(section, key, value);
    } else {
        value = ReadTextSetting(section, key, defaultValue);
    }
}

void TProfileSection::ExchangeInteger(const char* key, int& value, int defaultValue) const {
    CWinAppEx* app = CWinAppEx::GetApp();
    if (store) {
        if (app != nullptr) app->WriteProfileInt(section, key, value);
    } else {
        value = app != nullptr ? app->GetProfileInt(section, key, defaultValue) : defaultValue;
    }
}

void TProfileSection::ExchangeSet(const char* key, std::set<CStringIU>& value) const {
    if (store) {
        CStringU joined;
        for (auto name = value.begin(); name != value.end(); ++name) {
            if (name != value.begin()) joined += CStringU(", ");
            joined += *name;
        }
        WriteTextSetting(section, key, joined);
        return;
    }
    value.clear();
    const vapp_text::TTokenizer names(ReadTextSetting(section, key, CStringU()), ",");
    names.ForEachToken([&value](const CStringU& name) { value.insert(CStringIU(name)); });
}

}  // namespace vapp_library_browser
