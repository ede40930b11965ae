/// @file
/// By the compiler's own words for the instructions.
#include "platform/Cpuid.h"

#include <cpuid.h>
#include <x86intrin.h>

namespace vapp_platform {

TCpuidRegisters ReadCpuid(std::uint32_t leaf) noexcept {
    TCpuidRegisters registers;
    __cpuid_count(leaf, 0, registers.eax, registers.ebx, registers.ecx, registers.edx);
    return registers;
}

std::uint64_t ReadTimeStampCounter() noexcept {
    return __rdtsc();
}

}  // namespace vapp_platform
