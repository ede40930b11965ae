/// @file
/// The storage of the remembered foldings.
#include "text/Fold.h"

namespace vapp_text {

constinit CaseAnswers<vapp_platform::LowerCaseChar> gFoldAnswers{};

}  // namespace vapp_text
