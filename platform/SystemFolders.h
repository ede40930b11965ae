/// @file
/// Where the system says that the program, this library and the user's folders are. Implemented once for each
/// system. For KnownFolders; callers elsewhere take that. Empty text where the system can't tell.
#pragma once

#include "vapp/text/CStringU.h"

namespace vapp_platform {

/// The path of the process's program file.
[[nodiscard]] CStringU ProgramPath();

/// The path of the file that this code is linked into: the library, or the program itself.
[[nodiscard]] CStringU ModulePath();

/// The user's folder of documents, made if it is missing.
[[nodiscard]] CStringU DocumentsFolder();

/// The folder in which each application has one of its own for this user's data, made if it is missing.
[[nodiscard]] CStringU ApplicationDataFolder();

}  // namespace vapp_platform
