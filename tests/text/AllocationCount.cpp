/// The operators that count. Arrays and what must not throw come here too: the library's own operators for
/// them call these.

#include "tests/text/AllocationCount.h"

#include <cstdlib>
#include <new>

namespace {

std::size_t gAllocations = 0;

}  // namespace

std::size_t text_test::AllocationCount() noexcept {
    return gAllocations;
}

void* operator new(std::size_t size) {
    ++gAllocations;
    void* const memory = std::malloc(size);
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
