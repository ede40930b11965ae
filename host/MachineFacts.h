#pragma once
/// The facts of the machine that a support report needs, as lines "name: value".

#include <string>

class TOsInfo;

namespace navigator {

/// Asks the machine now; takes some milliseconds, as a clock is measured.
[[nodiscard]] std::string gMachineFacts(const TOsInfo& machine);

}  // namespace navigator
