/// @file
/// Environment variables in a text, replaced by their values in this process.
///
/// Which references there are, and what a value does to the text in front of it, is told in
/// EnvironmentReferences.h. Not for rules that are given an environment and a world: they take the walk from
/// there.
///
/// The surprise: whether a value counts as an absolute path, and so throws away what stands in front of its
/// reference, depends on the world. "/home/me" does so under Wine and on Linux, not on plain Windows.
#pragma once

#include <string>
#include <string_view>

#include "vapp/text/CStringU.h"

namespace vapp_text {

/// The text with ${NAME}, $NAME and %NAME% replaced where the variable is set. Nobody may change the
/// environment meanwhile.
[[nodiscard]] std::u16string ExpandEnvironment(std::u16string_view text);
/// The same; ASCII text without references is shared.
[[nodiscard]] CStringU ExpandEnvironment(const CStringU& text);

}  // namespace vapp_text
