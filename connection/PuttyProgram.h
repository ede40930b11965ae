/// @file
/// Where the programs of the PuTTY family lie that connections start.
#pragma once

#include "vapp/text/CStringU.h"

namespace vapp_connection {

/// The first word of a command line that starts `fileName`: its path below the module's folder, in quotes.
/// The same on every system, extension and `\` included, as it is shown to the user; on Linux a link of that
/// name leads to the system's own program.
[[nodiscard]] CStringU QuotedPuttyProgram(const CStringU& fileName);

}  // namespace vapp_connection
