/// @file
/// The host's translations, by key. Without one the key shows itself, without its prefix.
#include "vapp/toolkit/Translate.h"

#include <string_view>
#include <unordered_map>

namespace vlang {

namespace {

using Texts = std::unordered_map<CString, CString>;

Texts& Translations() {
    static Texts texts;
    return texts;
}

}  // namespace

CString gTranslate(const char* key) {
    const CString whole(key);
    if (const auto found = Translations().find(whole); found != Translations().end()) return found->second;
    const std::string_view prefix(csKeyPrefix);
    return whole.View().starts_with(prefix) ? whole.Mid(static_cast<int>(prefix.size())) : whole;
}

void gSetTranslation(const CString& key, const CString& text) {
    Translations().insert_or_assign(key, text);
}

void gClearTranslations() {
    Translations().clear();
}

}  // namespace vlang
