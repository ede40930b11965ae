#pragma once
/// The host's texts, UTF-8 as everywhere around its interpreter, as those that the library takes.

#include <string>

#include "vapp/text/CStringU.h"

namespace navigator {

/// Ends at a NUL.
[[nodiscard]] inline CStringU gLibraryText(const std::string& utf8) {
    return {utf8.c_str(), TextEncoding::Utf8Auto};
}

}  // namespace navigator
