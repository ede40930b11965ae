/// @file
/// Without case, the bytes are searched in a lower-case copy: making it is a loop that the compiler turns
/// into work on many bytes at a time, and costs less than looking at both cases of each.
#include "celllist/NameSearch.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace vapp_library_browser {

namespace {

bool IsAscii(std::string_view bytes) {
    unsigned char seen = 0;
    for (const char byte : bytes)
        seen |= static_cast<unsigned char>(byte);
    return seen < 0x80;
}

std::string LowerAscii(std::string_view bytes) {
    std::string lower(bytes);
    for (char& byte : lower) {
        const bool isUpper = static_cast<unsigned char>(byte - 'A') < 26;
        byte = static_cast<char>(byte + (isUpper ? 'a' - 'A' : 0));
    }
    return lower;
}

// The number of the name that the place is in, which is not before the name `from`. Hits are near one another
// or few: the steps begin small and grow.
std::size_t NumberAt(std::span<const std::size_t> starts, std::size_t from, std::size_t place) {
    std::size_t step = 1;
    std::size_t low = from;
    while (low + step < starts.size() && starts[low + step] <= place) {
        low += step;
        step *= 2;
    }
    const auto first = starts.begin() + static_cast<std::ptrdiff_t>(low);
    const auto last = starts.begin() + static_cast<std::ptrdiff_t>(std::min(low + step, starts.size()));
    return static_cast<std::size_t>(std::upper_bound(first, last, place) - starts.begin()) - 1;
}

void MarkHits(std::string_view bytes, std::string_view text, std::span<const std::size_t> starts,
              std::vector<NameAnswer>& answers) {
    std::size_t number = 0;
    for (std::size_t place = bytes.find(text); place != std::string_view::npos;
         place = bytes.find(text, starts[number])) {
        number = NumberAt(starts, number, place);
        answers[number++] = NameAnswer::Yes;
    }
}

void ForgetOthers(const NameTable& names, std::vector<NameAnswer>& answers) {
    for (std::size_t number = 0; number < answers.size(); ++number) {
        if (!IsAscii(names.At(static_cast<std::uint32_t>(number)))) answers[number] = NameAnswer::Unknown;
    }
}

}  // namespace

std::vector<NameAnswer> SearchNames(const NameTable& names, std::string_view text, bool caseSensitive) {
    if (text.empty() || !IsAscii(text)) return std::vector(names.Count(), NameAnswer::Unknown);
    std::vector answers(names.Count(), NameAnswer::No);
    const std::string_view bytes = names.AllBytes();
    if (caseSensitive) {
        MarkHits(bytes, text, names.Starts(), answers);
    } else {
        MarkHits(LowerAscii(bytes), LowerAscii(text), names.Starts(), answers);
    }
    if (!IsAscii(bytes)) ForgetOthers(names, answers);
    return answers;
}

}  // namespace vapp_library_browser
