// Hostile text through the readers of floating numbers, narrow and wide.
//
// Besides not crashing, the target holds what no input may break: all widths of characters read the same, the
// end lies within the text, the end is written exactly where there is a number, and what is behind the end
// has no say, in whatever code page.
//
// Input: one byte that chooses the reading, then a text. For the wide readers each byte is a character.

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "text/PlatformText.h"
#include "text/ReadDouble.h"
#include "vapp/text/DigitsSetting.h"
#include "vapp/text/ParseEngineering.h"

namespace {

using namespace vapp;
using namespace vapp_text;

void Require(bool holds) {
    if (!holds) std::abort();
}

bool IsSame(double a, double b) {
    return (std::isnan(a) && std::isnan(b)) ||
           std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

struct TReading {
    bool number = false;
    double value = 0;
    std::ptrdiff_t end = -1;
};

template <typename Unit>
TReading Read(const std::basic_string<Unit>& text, bool si) {
    TReading reading;
    const Unit* end = nullptr;
    reading.number = ParseEngineering(text.c_str(), &reading.value, &end, si).IsEmpty();
    if (end != nullptr) reading.end = end - text.c_str();
    return reading;
}

template <typename Unit>
std::basic_string<Unit> Widened(const std::string& text) {
    std::basic_string<Unit> wide;
    for (const char c : text)
        wide += static_cast<Unit>(static_cast<unsigned char>(c));
    return wide;
}

void ReadEngineering(const std::string& text, bool si) {
    const TReading reading = Read(text, si);
    const auto size = static_cast<std::ptrdiff_t>(text.size());
    Require(reading.number ? reading.end >= 0 && reading.end <= size : reading.end == -1);
    Require(reading.number || IsSame(reading.value, 0));
    for (const TReading& wide : {Read(Widened<char16_t>(text), si), Read(Widened<wchar_t>(text), si)}) {
        Require(wide.number == reading.number && wide.end == reading.end &&
                IsSame(wide.value, reading.value));
    }
    if (!reading.number) return;
    // A number without a suffix ends one character early in the SI reading.
    const std::string taken =
        text.substr(0, static_cast<std::size_t>(std::min(reading.end + (si ? 1 : 0), size)));
    Require(!si || IsSame(Read(taken, si).value, reading.value) ||
            IsSame(Read(text.substr(0, static_cast<std::size_t>(reading.end)), si).value, reading.value));
    Require(si || IsSame(Read(taken, si).value, reading.value));
}

void ReadPlain(const std::string& text) {
    const char* end = nullptr;
    const double value = ReadDouble(text.c_str(), &end);
    const std::ptrdiff_t taken = end - text.c_str();
    Require(taken >= 0 && taken <= static_cast<std::ptrdiff_t>(text.size()));
    Require(taken > 0 || IsSame(value, 0));
    Require(IsSame(ReadDouble(text.substr(0, static_cast<std::size_t>(taken)).c_str(), nullptr), value));
}

// The characters up to the end are the number: without the others it is the same.
void RequireNumberBefore(const CStringUPos& pos, double value) {
    const CStringU head = pos.owner->Head(pos);
    const std::u16string units = head.ToWide();
    // Overlong ASCII alone never meets the code page.
    const bool asciiOnly = std::all_of(units.begin(), units.end(), [](char16_t unit) { return unit < 0x80; });
    if (head.HasNonAscii() && asciiOnly) return;
    Require(IsSame(head.ToDouble(), value));
}

void ReadMembers(const CStringU& text, bool spice) {
    CStringUPos pos;
    const double value = text.ToDouble(&pos);
    Require(pos.offset >= 0 && pos.offset <= text.GetByteLength());
    RequireNumberBefore(pos, value);
    text.ToDoubleEngineering(spice, &pos);
    Require(pos.offset >= 0 && pos.offset <= text.GetByteLength());
    const unsigned digits = ParseDigitsSetting(text);
    Require(digits >= GetMinDigits() && digits <= GetMaxDigits());
    Require(ParseDecimalsSetting(text) <= 17);
}

void ReadMembersInCodePages(const CStringU& text, bool spice) {
    for (const unsigned codePage : {1252U, 932U, 54936U, vapp_platform::cnCodePageUtf8}) {
        vapp_platform::SetActiveCodePage(codePage);
        ReadMembers(text, spice);
    }
    vapp_platform::SetActiveCodePage(0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const bool si = (data[0] & 1U) != 0;
    const std::string bytes(data + 1, data + size);
    const std::string text = bytes.substr(0, bytes.find('\0'));
    ReadEngineering(text, si);
    ReadPlain(text);
    ReadMembersInCodePages(CStringU(text.c_str(), TextEncoding::Utf8Auto), !si);
    return 0;
}
