/// Puts the tables of the commands together.

#include "host/CommandHelp.h"

#include "host/DatabaseCommand.h"
#include "host/HostCommands.h"

namespace navigator {

std::string gDescribeAllCommands() {
    return gDescribe(DatabaseCommand::Help()) + gDescribe(HostCommands::Help());
}

}  // namespace navigator
