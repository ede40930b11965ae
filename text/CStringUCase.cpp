/// @file
/// Changing the case of a whole CStringU: for texts that a user sees. Compares fold for themselves (Fold.h).
///
/// One character becomes one character, in no locale (MappedText.h); a text in which none changes stays
/// whole.

#include "text/Fold.h"
#include "text/MappedText.h"
#include "text/Upper.h"
#include "vapp/text/CStringU.h"

namespace {

// What is stored of a text outside of ASCII once its case is changed; the same where nothing changes.
template <char16_t Form(char16_t)>
CString Formed(const CStringU& text) {
    const auto form = [](char16_t unit) { return Form(unit); };
    const vapp_text::TMappedSize size = vapp_text::MeasureMapped(text.Payload(), form);
    return size.changed ? vapp_text::Mapped(text.Payload(), size, form) : text.Stored();
}

}  // namespace

CStringU CStringU::ToLower() const {
    CStringU result = *this;
    if (HasNonAscii()) {
        result.m_stored = Formed<vapp_text::FoldChar>(*this);
    } else {
        result.m_stored.MakeLower();
    }
    return result;
}

CStringU CStringU::ToUpper() const {
    CStringU result = *this;
    if (HasNonAscii()) {
        result.m_stored = Formed<vapp_text::UpperChar>(*this);
    } else {
        result.m_stored.MakeUpper();
    }
    return result;
}
