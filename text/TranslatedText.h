/// @file
/// What a key says in the language of the user, as text to show: translations are UTF-8.
#pragma once

#include "vapp/text/CStringU.h"
#include "vapp/text/Translate.h"

namespace vapp_text {

/// The text of a key, or the key's own words where nobody has translated them.
[[nodiscard]] inline CStringU TranslatedText(const char* key) {
    return {vlang::gTranslate(key), TextEncoding::Utf8Auto};
}

}  // namespace vapp_text
