/// @file
/// Standard input and output as plain bytes, as soon as they come; written once for each system.
#pragma once

#include <string>
#include <string_view>

/// What has come on standard input; empty at its end.
[[nodiscard]] std::string ReadInput();

/// Writes everything to standard output; false where nobody reads it any more.
bool WriteOutput(std::string_view bytes);
