// Hostile text into the expansion of environment references, with an environment that answers by the name: a
// name's length says whether it is unset, a plain value, or an absolute path.
//
// What no input may break: references come from left to right without overlap, no name is empty, unset
// variables change nothing, no value is searched again, and a result that is cut off begins as the whole one.
//
// Input: UTF-16 units, low byte first.

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>

#include "text/EnvironmentReferences.h"

namespace {

void Require(bool holds) {
    if (!holds) std::abort();
}

// Looks like references to each other: a second expansion would be seen.
std::optional<vapp_text::EnvironmentValue> Value(std::u16string_view name) {
    switch (name.size() % 3) {
        case 0:
            return std::nullopt;
        case 1:
            return vapp_text::EnvironmentValue{u"$ab%ab%${ab}", false};
        default:
            return vapp_text::EnvironmentValue{u"/$a", true};
    }
}

// The references by themselves, and what the text becomes if each is put in by hand.
std::u16string ExpandedByHand(std::u16string_view text) {
    std::u16string expanded;
    std::size_t behind = 0;
    vapp_text::EnvironmentReferences references(text);
    while (const auto reference = references.Next()) {
        Require(reference->first >= behind && reference->behind > reference->first);
        Require(reference->behind <= text.size() && !reference->name.empty());
        const auto value = Value(reference->name);
        expanded += text.substr(behind, reference->first - behind);
        if (value && value->isAbsolute) expanded.clear();
        expanded += value ? value->text : text.substr(reference->first, reference->behind - reference->first);
        behind = reference->behind;
    }
    return expanded += text.substr(behind);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > 4096) return 0;
    std::u16string text;
    for (std::size_t at = 0; at + 1 < size; at += 2)
        text += static_cast<char16_t>(data[at] | (data[at + 1] << 8U));
    const auto unset = [](std::u16string_view name) -> std::optional<vapp_text::EnvironmentValue> {
        Require(!name.empty());
        return std::nullopt;
    };
    const std::u16string byHand = ExpandedByHand(text);
    Require(vapp_text::ExpandEnvironmentReferences(text, unset) == text);
    Require(vapp_text::ExpandEnvironmentReferences(text, Value) == byHand);
    Require(vapp_text::ExpandEnvironmentReferences(text, Value, size % 8) == byHand.substr(0, size % 8));
    if (!vapp_text::MayHoldEnvironmentReference(text)) Require(byHand == text);
    return 0;
}
