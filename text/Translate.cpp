/// @file
/// The host's translations, by key. Without one the key shows itself, without its prefix. A lock, because
/// workers are started, and fail to start, on any thread.
#include "vapp/text/Translate.h"

#include <mutex>
#include <string_view>
#include <unordered_map>

#include "text/TranslationTable.h"

namespace vlang {

namespace {

using Texts = std::unordered_map<CString, CString>;

Texts& Translations() {
    static Texts texts;
    return texts;
}

std::mutex& Lock() {
    static std::mutex lock;
    return lock;
}

}  // namespace

CString gTranslate(const char* key) {
    const CString whole(key);
    const std::lock_guard guard(Lock());
    if (const auto found = Translations().find(whole); found != Translations().end()) return found->second;
    const std::string_view prefix(csKeyPrefix);
    return whole.View().starts_with(prefix) ? whole.Mid(static_cast<int>(prefix.size())) : whole;
}

void gSetTranslation(const CString& key, const CString& text) {
    const std::lock_guard guard(Lock());
    Translations().insert_or_assign(key, text);
}

int gLoadTranslations(std::string_view table) {
    const vapp_text::TTranslationTable read = vapp_text::ReadTranslationTable(table);
    const std::lock_guard guard(Lock());
    for (const auto& [english, text] : read.texts) {
        const std::string key = csKeyPrefix + english;
        Translations().insert_or_assign(key.c_str(), text.c_str());
    }
    return read.wrongLine;
}

void gClearTranslations() {
    const std::lock_guard guard(Lock());
    Translations().clear();
}

}  // namespace vlang
