/// @file
/// The upper-case form of one character: for changing the case of a text, never for comparing.
///
/// The counterpart of FoldChar, by the same rules: ASCII here, everything else is the platform's own mapping,
/// remembered once it has been asked for.
#pragma once

#include "text/CaseAnswers.h"
#include "text/PlatformText.h"

namespace vapp_text {

/// The upper-case forms of characters above 0x7F.
extern CaseAnswers<vapp_platform::UpperCaseChar> gUpperAnswers;

/// The upper-case form of one 16-bit character.
[[nodiscard]] inline char16_t UpperChar(char16_t c) noexcept {
    if (c > 0x7F) return gUpperAnswers.For(c);
    const unsigned fromA = static_cast<unsigned>(c) - u'a';
    return static_cast<char16_t>(fromA < 26U ? c - 32U : c);
}

}  // namespace vapp_text
