/// @file
/// Environment variables of the Unix side: those that programs started over there inherit.
///
/// Not the environment of a Windows program, which is another one (Environment.h); on native Linux there is
/// only one, the process's own. Where there is no Unix side, nothing is set and every value is empty.
///
/// Any thread, as long as only this library changes the environment meanwhile; under Wine as its own services
/// allow.
#pragma once

#include "platform/UnixSide.h"
#include "platform/World.h"
#include "vapp/text/CStringU.h"

/// The value, read in the active code page; empty where it is unset.
[[nodiscard]] CStringU gGetUnixEnv(const char* name);
/// Sets a variable; one that is set already only if `overwrite` is not 0. The Unix side's answer, 0 for done;
/// -1 where there is none, or for a null pointer.
int gSetUnixEnv(const char* name, const char* value, int overwrite);
/// Removes a variable; answers as gSetUnixEnv.
int gUnsetUnixEnv(const char* name);
/// Sets a variable by "NAME=value", which is copied; answers as gSetUnixEnv.
int gPutUnixEnv(const char* assignment);

namespace vapp_platform {

/// The operations above, in a world that is told.
[[nodiscard]] CStringU GetUnixEnv(const char* name, World world, const TUnixSide& unixSide);
int SetUnixEnv(const char* name, const char* value, int overwrite, World world, const TUnixSide& unixSide);
int UnsetUnixEnv(const char* name, World world, const TUnixSide& unixSide);
int PutUnixEnv(const char* assignment, World world, const TUnixSide& unixSide);

}  // namespace vapp_platform
