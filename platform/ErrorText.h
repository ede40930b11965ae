/// @file
/// Texts of system error codes, for messages. A code is what the system numbers its errors by: GetLastError
/// on Windows, errno on Linux.
#pragma once

#include <cstdint>

#include "vapp/text/CStringU.h"

/// The text of a code. 126 and 193, which loading a module gives on Windows, have texts of their own on every
/// system; other codes have the system's, line end and all; empty where it has none.
[[nodiscard]] CStringU gGetErrorText(std::uint32_t code);

/// The text of this thread's last failure: `prefix`, a line feed if both texts have something in them, and
/// the text of the code. The code is stored too, unless the pointer is null.
[[nodiscard]] CStringU gGetLastErrorText(const CStringU& prefix, std::uint32_t* code = nullptr);
