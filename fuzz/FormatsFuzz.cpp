// Hostile formats into the wide printf, which takes them apart itself, with a value of every kind.
//
// No format may read a value that was not given or write without bounds; what stands outside of conversions
// comes out as it is, and a format with each percent sign doubled is plain text.
//
// Input: one byte for the number of values that are handed over, the format.

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <span>
#include <string>

#include "text/Formats.h"

namespace {

using vapp_text::WideFormatValue;

void Require(bool holds) {
    if (!holds) std::abort();
}

std::u16string WithoutConversions(const std::u16string& format) {
    std::u16string doubled;
    for (const char16_t unit : format)
        doubled.append(unit == u'%' ? 2 : 1, unit);
    return doubled;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 1 || size > 256) return 0;
    const std::array<WideFormatValue, 8> values{-42,
                                                std::numeric_limits<std::int64_t>::min(),
                                                "text",
                                                1.5,
                                                u'\u00e9',
                                                static_cast<const void*>(nullptr),
                                                -std::numeric_limits<double>::max(),
                                                static_cast<const char*>(nullptr)};
    const auto given = std::span(values).first(data[0] % (values.size() + 1));
    const std::string bytes(reinterpret_cast<const char*>(data + 1), size - 1);
    const std::u16string format = CStringU(bytes.c_str(), TextEncoding::Utf8Auto).ToWide();

    const auto percents = static_cast<std::size_t>(std::count(format.begin(), format.end(), u'%'));
    const std::u16string text = vapp_text::FormatWideValues(format, given);
    // The widest number has 65535 digits behind the 309 in front of its point.
    Require(text.size() <= format.size() + percents * (65535 + 400));
    Require(percents > 0 || text == format);
    const std::size_t first = std::min(format.find(u'%'), format.size());
    Require(text.compare(0, first, format, 0, first) == 0);
    Require(vapp_text::FormatWideValues(WithoutConversions(format), given) == format);
    return 0;
}
