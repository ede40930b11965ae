// Number texts of any value with any choices. Total on every input; and what holds for each of them: ASCII
// with a form that its grammar allows, the width of a column, and digits that read back as the number where
// all of it was written.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "vapp/text/FormatEngineering.h"

namespace {

using boost::logic::tribool;
using vapp::EngineeringFormatOption;

void Require(bool holds) {
    if (!holds) std::abort();
}

// What a number is read from: bytes of the input, zeroes behind its end.
class TInput {
public:
    TInput(const std::uint8_t* data, std::size_t size) : m_data(data), m_size(size) {}
    template <typename Type>
    Type Take() {
        Type value{};
        const std::size_t count = std::min(sizeof value, m_size);
        if (count != 0) std::memcpy(&value, m_data, count);
        m_data += count;
        m_size -= count;
        return value;
    }

private:
    const std::uint8_t* m_data;
    std::size_t m_size;
};

tribool ToTribool(unsigned bits) {
    return bits % 3 == 0   ? tribool(false)
           : bits % 3 == 1 ? tribool(true)
                           : tribool(boost::logic::indeterminate);
}

bool OnlyOf(const std::string& text, const char* allowed) {
    return text.find_first_not_of(allowed) == std::string::npos;
}

void CheckForm(const CStringU& text, bool align, double value) {
    const std::string bytes(text.Payload());
    Require(!bytes.empty() && bytes.size() <= 820 && !text.HasNonAscii());
    Require(static_cast<int>(bytes.size()) == text.GetByteLength());
    Require(OnlyOf(bytes, " -.0123456789yzafpnumkMXEGTPZYei"));  // "nan" and "inf" are among these letters
    if (!align) Require(bytes.find(' ') == std::string::npos);
    Require((bytes[bytes.find_first_not_of(' ')] == '-') == (value < 0.0));
}

// Scientific notation is what everyone reads.
void CheckReadsBack(double value) {
    if (!std::isfinite(value)) return;
    const CStringU text =
        vapp::FormatEngineering(value, 17, true, false, true, TeUnitScale::Scientific, false);
    Require(std::strtod(text.Payload(), nullptr) == value);
}

void CheckDistinct(double a, double b, TeUnitScale scale) {
    const CStringU ofA = vapp::FormatDistinct(a, b, scale);
    const CStringU ofB = vapp::FormatDistinct(b, a, scale);
    if (std::isfinite(a) && std::isfinite(b) && a != b) Require(ofA != ofB);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    TInput input(data, size);
    const auto value = input.Take<double>();
    const auto other = input.Take<double>();
    const auto digits = input.Take<unsigned>();
    const auto choices = input.Take<std::uint8_t>();
    const auto scale = static_cast<TeUnitScale>(input.Take<int>());
    const bool align = (choices & 1U) != 0;
    CheckForm(vapp::FormatEngineering(value, digits, (choices & 2U) != 0, align, ToTribool(choices / 4),
                                      scale, ToTribool(choices / 16)),
              align, value);
    const auto option1 = static_cast<EngineeringFormatOption>(input.Take<std::uint8_t>() % 12);
    const auto option2 = static_cast<EngineeringFormatOption>(input.Take<int>());
    CheckForm(vapp::FormatEngineeringOptions(value, digits, option1, option2), true, value);
    CheckForm(vapp::FormatEngineeringFull(value), false, value);
    CheckReadsBack(value);
    CheckDistinct(value, other, scale);
    Require(vapp::FormatGeneral(value).GetByteLength() <= 25);
    static_cast<void>(vapp::UnitSuffix(input.Take<int>(), scale));
    return 0;
}
