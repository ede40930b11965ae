/// @file
/// References to the environment in paths and texts: which value counts as an absolute path, and so throws
/// away what stands in front of it.
///
/// The walk over references is that of text/EnvironmentReferences.h. What this file adds is an end: whether a
/// value is absolute is judged after normalising it, which replaces the references in it, whose values are
/// judged in turn, and so on; and a value may name itself.
///
/// Expanding by the environment and the world of this process is the text room's (text/ExpandEnvironment.h),
/// which is given its answers from here.
///
/// The surprise: a value whose judgement would never end, as it names itself or one that does, counts as not
/// absolute. All other answers are those of the plain recursion, but each variable is asked for and judged
/// only once in a call, and no stack grows with the chain.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/PathRules.h"

namespace vapp_platform {

/// The text with its references replaced, or the first `most` units of that; see
/// vapp_text::ExpandEnvironmentReferences.
[[nodiscard]] std::u16string ExpandEnvironment(std::u16string_view text, const PathRules& rules,
                                               std::size_t most = std::u16string_view::npos);

}  // namespace vapp_platform
