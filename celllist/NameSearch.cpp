/// @file
/// Without case, the bytes are searched in a lower-case copy: making it is a loop that the compiler turns
/// into work on many bytes at a time, and costs less than looking at both cases of each.
#include "celllist/NameSearch.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace vapp_library_browser {

namespace {

// Compilers turn loops of a fixed length into work on many bytes at a time; of an unknown one, not all do.
constexpr std::size_t cnStep = 64;

template <typename Work>
void ForEachByte(std::size_t count, const Work& work) {
    std::size_t at = 0;
    for (; at + cnStep <= count; at += cnStep) {
        for (std::size_t step = 0; step < cnStep; ++step)
            work(at + step);
    }
    for (; at < count; ++at)
        work(at);
}

bool IsAscii(std::string_view bytes) {
    unsigned char seen = 0;
    const char* const first = bytes.data();
    ForEachByte(bytes.size(), [&seen, first](std::size_t at) {
        seen = static_cast<unsigned char>(seen | static_cast<unsigned char>(first[at]));
    });
    return seen < 0x80;
}

// So many bytes, and the rest of a name, are made lower-case and searched together.
constexpr std::size_t cnBlockBytes = 16384;

void AssignLower(std::string& lower, std::string_view bytes) {
    lower.assign(bytes);
    char* const first = lower.data();
    ForEachByte(lower.size(), [first](std::size_t at) {
        const auto fromA = static_cast<unsigned char>(first[at] - 'A');
        first[at] = static_cast<char>(first[at] + (fromA < 26 ? 'a' - 'A' : 0));
    });
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

// Looks through the bytes of some names, the first of which is `number`. `starts` are those of all names.
void MarkHits(std::string_view bytes, std::string_view text, std::span<const std::size_t> starts,
              std::size_t number, std::vector<NameAnswer>& answers) {
    const std::size_t base = starts[number];
    for (std::size_t place = bytes.find(text); place != std::string_view::npos;
         place = bytes.find(text, starts[number] - base)) {
        number = NumberAt(starts, number, base + place);
        answers[number++] = NameAnswer::Yes;
    }
}

void MarkHitsNoCase(std::string_view bytes, std::string_view text, std::span<const std::size_t> starts,
                    std::vector<NameAnswer>& answers) {
    std::string lowerText;
    AssignLower(lowerText, text);
    std::string lower;
    for (std::size_t number = 0; number < answers.size();) {
        const std::size_t wanted = starts[number] + cnBlockBytes;
        const std::size_t behind =
            wanted < bytes.size() ? NumberAt(starts, number, wanted) + 1 : answers.size();
        AssignLower(lower, bytes.substr(starts[number], starts[behind] - starts[number]));
        MarkHits(lower, lowerText, starts, number, answers);
        number = behind;
    }
}

void ForgetOthers(const NameTable& names, std::vector<NameAnswer>& answers) {
    for (std::size_t number = 0; number < answers.size(); ++number) {
        if (!IsAscii(names.At(static_cast<std::uint32_t>(number)))) answers[number] = NameAnswer::Unknown;
    }
}

}  // namespace

std::vector<NameAnswer> SearchNames(const NameTable& names, std::string_view text, bool caseSensitive) {
    const bool isForBytes = !text.empty() && IsAscii(text);
    std::vector answers(names.Count(), isForBytes ? NameAnswer::No : NameAnswer::Unknown);
    if (!isForBytes) return answers;
    const std::string_view bytes = names.AllBytes();
    if (caseSensitive) {
        if (!answers.empty()) MarkHits(bytes, text, names.Starts(), 0, answers);
    } else {
        MarkHitsNoCase(bytes, text, names.Starts(), answers);
    }
    if (!IsAscii(bytes)) ForgetOthers(names, answers);
    return answers;
}

}  // namespace vapp_library_browser
