/// @file
/// A UTF-16 needle as UTF-8 bytes, for the searches that compare bytes.
///
/// Not a text: it has no marker and lives as long as one search. Needles of up to 256 bytes, which is every
/// needle that people type, stay off the heap.
#pragma once

#include <array>
#include <cstddef>
#include <memory>

#include "text/Codec.h"

namespace vapp_text {

class EncodedNeedle {
public:
    /// Encodes the units up to NUL.
    explicit EncodedNeedle(const char16_t* needle) {
        for (const char16_t* unit = needle; *unit != 0; ++unit) {
            m_size += static_cast<std::size_t>(EncodedSize(*unit));
        }
        if (m_size >= m_stack.size()) {
            m_heap = std::make_unique<char[]>(m_size + 1);
            m_bytes = m_heap.get();
        }
        char* out = m_bytes;
        for (const char16_t* unit = needle; *unit != 0; ++unit)
            out += EncodeChar(*unit, out);
        *out = '\0';
    }
    EncodedNeedle(const EncodedNeedle&) = delete;
    EncodedNeedle& operator=(const EncodedNeedle&) = delete;

    /// The bytes, terminated by NUL.
    [[nodiscard]] const char* Bytes() const noexcept { return m_bytes; }
    /// True where the bytes needed the heap.
    [[nodiscard]] bool OnHeap() const noexcept { return m_heap != nullptr; }

private:
    std::array<char, 257> m_stack{};
    std::unique_ptr<char[]> m_heap;
    char* m_bytes = m_stack.data();
    std::size_t m_size = 0;
};

}  // namespace vapp_text
