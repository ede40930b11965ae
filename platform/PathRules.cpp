/// @file
/// The little words of the path rules that need more than a line.
#include "platform/PathRules.h"

#include <algorithm>
#include <climits>
#include <memory>

#include "platform/Environment.h"
#include "text/Codec.h"

namespace vapp_platform {
namespace {

int LengthOf(std::string_view bytes) {
    return static_cast<int>(std::min<std::size_t>(bytes.size(), INT_MAX));
}

}  // namespace

PathRules CurrentPathRules() {
    // Never destroyed: a host's own static objects may still ask about paths while the process ends.
    static const vapp_text::EnvironmentLookup* const ofSystem =
        std::make_unique<const vapp_text::EnvironmentLookup>(GetEnvironmentValue).release();
    return {CurrentWorld(), *ofSystem};
}

std::size_t DriveBytes(const CStringU& path) noexcept {
    const std::string_view bytes = path.PayloadView();
    if (bytes.empty()) return 0;
    const auto colon = static_cast<std::size_t>(vapp_text::StepForward(bytes.data(), 0));
    return colon < bytes.size() && bytes[colon] == ':' ? colon + 1 : 0;
}

std::size_t StartOfThird(const CStringU& path) noexcept {
    return std::min<std::size_t>(static_cast<std::size_t>(path.PrefixBytes2()), path.PayloadView().size());
}

CStringU PieceOf(const CStringU& path, std::string_view piece) {
    const auto encoding = path.HasNonAscii() ? TextEncoding::Utf8Auto : TextEncoding::Raw;
    return {piece.data(), encoding, LengthOf(piece)};
}

CStringU TextOf(std::string_view payload) {
    return {payload.data(), TextEncoding::Utf8Auto, LengthOf(payload)};
}

}  // namespace vapp_platform
