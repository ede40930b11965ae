/// @file
/// The path is written with `\` on every system: the start of a process knows what it means.
#include "connection/PuttyProgram.h"

#include "platform/KnownFolders.h"

namespace vapp_connection {

CStringU QuotedPuttyProgram(const CStringU& fileName) {
    return CStringU("\"") + gGetModuleFolder() + R"(\putty\bin\)" + fileName + "\"";
}

}  // namespace vapp_connection
