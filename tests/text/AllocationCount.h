/// @file
/// The count of the allocations of this process. A test program that has AllocationCount.cpp among its
/// sources counts every one of them, those of the library and of the test alike.
#pragma once

#include <cstddef>

namespace text_test {

/// Allocations by operator new since the start of the process.
[[nodiscard]] std::size_t AllocationCount() noexcept;

/// The allocations of one call.
template <typename Function>
std::size_t CountAllocations(Function function) {
    const std::size_t before = AllocationCount();
    function();
    return AllocationCount() - before;
}

}  // namespace text_test
