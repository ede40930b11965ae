/// @file
/// Which clipboard, and the text's way into its two forms.
///
/// NATIVE: one form is in the system's code page, not in the active one: it is for other programs, which know
/// nothing of what the host has set for itself.
#include "vapp/toolkit/Clipboard.h"

#include "text/PlatformClipboard.h"
#include "text/PlatformText.h"
#include "toolkit/MemoryClipboard.h"
#include "vapp/toolkit/Peer.h"

ClipboardPeer::~ClipboardPeer() = default;

namespace {

class SystemClipboard final : public ClipboardPeer {
public:
    [[nodiscard]] bool SetText(std::u16string_view wide, std::optional<std::string_view> narrow) override {
        return vapp_platform::SetSystemClipboardText(wide, narrow);
    }
    [[nodiscard]] std::u16string GetText() const override { return vapp_platform::GetSystemClipboardText(); }
};

ClipboardPeer& CurrentClipboard() {
    static SystemClipboard system;
    static MemoryClipboard memory;
    if (vapp_platform::HasSystemClipboard()) return system;
    PeerFactory* const factory = PeerFactory::Installed();
    ClipboardPeer* const ofToolkit = factory != nullptr ? factory->GetClipboard() : nullptr;
    return ofToolkit != nullptr ? *ofToolkit : memory;
}

}  // namespace

bool SetClipboardText(const CStringU& text) {
    return CurrentClipboard().SetText(text.ToWide(), text.ToAnsi(vapp_platform::SystemCodePage()).View());
}

bool SetClipboardUnicodeText(const CStringU& text) {
    return CurrentClipboard().SetText(text.ToWide(), std::nullopt);
}

CStringU GetClipboardText() {
    return CStringU(CurrentClipboard().GetText().c_str());
}
