/// @file
/// The environment variables of this process, for the children that it starts.
///
/// Not for asking a variable by its name: that is Environment.h.
///
/// Setting a variable and taking the snapshot exclude each other. On Linux nothing can exclude a host that
/// changes its environment by itself on another thread at that moment.
#pragma once

#include <vector>

#include "vapp/text/CString.h"

namespace vapp_platform {

/// Sets a variable, also to the empty text; both are bytes of the active code page.
void SetEnvironmentValue(const CString& name, const CString& value);

/// Takes a variable away.
void UnsetEnvironmentValue(const CString& name);

/// Every entry NAME=value, each with its NUL, one behind the other; no second NUL at the end. On Linux bytes
/// are read as UTF-8, and a byte that is none becomes 0xDC00 and the byte, so that a child that is started
/// with the result gets every byte back.
[[nodiscard]] std::vector<wchar_t> EnvironmentSnapshot();

}  // namespace vapp_platform
