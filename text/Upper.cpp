/// @file
/// The storage of the remembered upper-case forms.
#include "text/Upper.h"

namespace vapp_text {

constinit CaseAnswers<vapp_platform::UpperCaseChar> gUpperAnswers{};

}  // namespace vapp_text
