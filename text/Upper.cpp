/// @file
/// The storage of the remembered upper-case forms; like that of Fold.cpp it costs nothing until it is used.
#include "text/Upper.h"

namespace vapp_text {

constinit std::array<std::atomic<char16_t>, 0x10000> gUpperAnswers{};

}  // namespace vapp_text
