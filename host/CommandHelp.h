#pragma once
/// The help of every command that the host registers, from the tables by which the commands are dispatched.

#include <string>

namespace navigator {

/// Usage and explanation of each line that a script may send.
std::string gDescribeAllCommands();

}  // namespace navigator
