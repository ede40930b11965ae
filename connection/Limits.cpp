/// @file
/// One set for the whole process.
#include "connection/Limits.h"

namespace vapp_connection {

namespace {

Limits gLimits;

}  // namespace

const Limits& CurrentLimits() noexcept {
    return gLimits;
}

void SetLimits(const Limits& limits) noexcept {
    gLimits = limits;
}

}  // namespace vapp_connection
