/// @file
/// The state words themselves.
#include "vapp/browser/StateWords.h"

namespace vapp_library_browser {

const CStringU csLocked("Locked");
const CStringU csEmpty("");
const CStringU csStdVia("StdVia");
const CStringU csCustomVia("CustomVia");
const CStringU csVCell("V-Cell");
const CStringU csOutOfDate("OutOfDate");
const CStringU csAutoGen("AutoGen");
const CStringU csMemory("Memory");
const CStringU csNormal("Normal");
const CStringU csNew("New");
const CStringU csDeleted("Deleted");
const CStringU csUnresolved("Unresolved");
const CStringU csDelay("Delay");
const CStringU csCycle("Cycle");
const CStringU csReading("Reading");
const CStringU csModified("Modified");
const CStringU csReserved("Reserved");
const CStringU csSkipped("Skipped");
const CStringU csError("Error");
const CStringU csSuccess("Success");

}  // namespace vapp_library_browser
