/// @file
/// Where the program, this library and the user's folders are. Empty text where the system can't tell.
#pragma once

#include "vapp/text/CStringU.h"

/// The path of the process's program file.
[[nodiscard]] CStringU gGetExePath();
/// The folder of the program file, without a separator at its end.
[[nodiscard]] CStringU gGetExeFolder();

/// The path of the file that this code is linked into: the shared library, or a program that it is a piece
/// of.
[[nodiscard]] CStringU gGetModulePath();
/// The folder of that file. Here lie the programs and files that belong to the library.
[[nodiscard]] CStringU gGetModuleFolder();

/// The user's folder of documents, made if it is missing: a Unix path under Wine and on Linux.
[[nodiscard]] CStringU gGetDocumentsFolder();

/// The folder for this suite's own data of the user, "Vornex EDA", under Wine and on Linux "Vornex_EDA". The
/// folder that it lies in is made if it is missing, it itself is not.
[[nodiscard]] CStringU gGetUserDataFolder();
