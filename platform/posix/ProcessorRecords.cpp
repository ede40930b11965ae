/// @file
/// The kernel's folder of processors.
#include "platform/ProcessorRecords.h"

#include <exception>

#include "platform/posix/CpuTopology.h"

namespace vapp_platform {

std::optional<std::vector<TProcessorRecord>> ReadProcessorRecords() noexcept try {
    return ReadCpuTopology("/sys/devices/system/cpu");
} catch (const std::exception&) {
    return std::nullopt;
}

}  // namespace vapp_platform
