/// @file
/// Compares the conversions of a translation with those of its key.
#include "celllist/CountFormat.h"

#include <string>
#include <string_view>

#include "vapp/text/Translate.h"

namespace vapp_library_browser {

namespace {

constexpr std::string_view csBetweenPercentAndType = "-+ #'*.$0123456789hlLqjztI";

// Each conversion as it stands, one after the other; "%%" is none.
std::string ConversionsOf(std::string_view format) {
    std::string conversions;
    for (std::size_t start = format.find('%'); start < format.size(); start = format.find('%', start)) {
        const std::size_t type = format.find_first_not_of(csBetweenPercentAndType, start + 1);
        const std::size_t behind = type == std::string_view::npos ? format.size() : type + 1;
        const std::string_view conversion = format.substr(start, behind - start);
        if (conversion != "%%") conversions.append(conversion);
        start = behind;
    }
    return conversions;
}

std::string_view OwnText(std::string_view key) {
    const std::string_view prefix = vlang::csKeyPrefix;
    return key.starts_with(prefix) ? key.substr(prefix.size()) : key;
}

}  // namespace

CStringU CountFormat(const char* key) {
    const CString translated = vlang::gTranslate(key);
    const std::string_view own = OwnText(key);
    const bool fits = ConversionsOf(translated.View()) == ConversionsOf(own);
    // The own text ends where the key does.
    return {fits ? translated.GetString() : own.data(), TextEncoding::Utf8Auto};
}

}  // namespace vapp_library_browser
