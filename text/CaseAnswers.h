/// @file
/// What the platform said of the case of each character, remembered: a sort of many names outside of ASCII
/// asks for the same few characters over and over, and the platform's lookup costs a multiple of the compare
/// that needs it.
///
/// Not for ASCII, which is decided where it stands (Fold.h, Upper.h).
///
/// In zero-initialised memory it costs nothing at start, and only the pages of the scripts in use are ever
/// touched.
#pragma once

#include <array>
#include <atomic>

namespace vapp_text {

/// The answers of `Ask`. Filled entry by entry; two threads that ask at once store the same answer.
template <char16_t Ask(char16_t) noexcept>
class CaseAnswers {
public:
    [[nodiscard]] char16_t For(char16_t c) noexcept {
        std::atomic<char16_t>& answer = m_answers[c];
        char16_t form = answer.load(std::memory_order_relaxed);
        if (form == 0) {
            form = Ask(c);
            answer.store(form, std::memory_order_relaxed);
        }
        return form;
    }

private:
    // 0 where the platform has not been asked yet: only NUL has that form.
    std::array<std::atomic<char16_t>, 0x10000> m_answers{};
};

}  // namespace vapp_text
