/// @file
/// The storage of the remembered foldings. It lives in zero-initialised memory, so that it costs nothing at
/// start and only the pages of the scripts in use are ever touched.
#include "text/Fold.h"

namespace vapp_text {

constinit std::array<std::atomic<char16_t>, 0x10000> gFoldAnswers{};

}  // namespace vapp_text
