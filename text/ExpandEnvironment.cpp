/// @file
/// Most texts hold no reference: those are told from a glance at their characters, and the platform is not
/// asked.
#include "text/ExpandEnvironment.h"

#include "text/EnvironmentReferences.h"
#include "text/PlatformEnvironment.h"

namespace vapp_text {

std::u16string ExpandEnvironment(std::u16string_view text) {
    if (!MayHoldEnvironmentReference(text)) return std::u16string(text);
    return ExpandEnvironmentReferences(text, vapp_platform::AskEnvironment());
}

CStringU ExpandEnvironment(const CStringU& text) {
    if (!text.HasNonAscii() && !MayHoldEnvironmentReference(text.PayloadView())) return text;
    return CStringU(std::u16string_view(ExpandEnvironment(text.ToWide())));
}

}  // namespace vapp_text
