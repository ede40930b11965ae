/// @file
/// Which buttons a style has. The last one is always the one that commits to least, so it stands for closing.
#include "vapp/toolkit/TMessageBox.h"

#include <algorithm>

#include "text/TranslatedText.h"
#include "vapp/toolkit/Peer.h"

using vapp_text::TranslatedText;

namespace {

std::vector<TMessageBox::TButton> ButtonsOf(UINT style) {
    constexpr UINT cnButtonBits = 0xF;
    const TMessageBox::TButton ok{IDOK, TranslatedText("__$$Translatable$$_OK")};
    const TMessageBox::TButton cancel{IDCANCEL, TranslatedText("__$$Translatable$$_Cancel")};
    const TMessageBox::TButton yes{IDYES, TranslatedText("__$$Translatable$$_&Yes")};
    const TMessageBox::TButton no{IDNO, TranslatedText("__$$Translatable$$_&No")};
    switch (style & cnButtonBits) {
        case MB_OKCANCEL:
            return {ok, cancel};
        case MB_YESNO:
            return {yes, no};
        case MB_YESNOCANCEL:
            return {yes, no, cancel};
        default:
            return {ok};
    }
}

}  // namespace

TMessageBox::TMessageBox(CWnd* owner, const CStringU& title, const CStringU& text, UINT style)
    : m_owner(owner), m_title(title), m_text(text), m_style(style), m_buttons(ButtonsOf(style)) {}

void TMessageBox::SetButtonTexts(const std::vector<CStringU>& texts) {
    for (std::size_t i = 0; i < std::min(texts.size(), m_buttons.size()); ++i)
        m_buttons[i].text = texts[i];
}

std::optional<int> TMessageBox::Ask() const {
    PeerFactory* factory = PeerFactory::Installed();
    return factory != nullptr ? factory->ShowMessageBox(*this) : std::nullopt;
}

int TMessageBox::DoModal() const {
    return Ask().value_or(GetCloseAnswer());
}
