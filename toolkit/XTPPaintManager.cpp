/// @file
/// The shared fonts: constants, so that a record can keep their address.
#include "vapp/toolkit/XTPPaintManager.h"

const CFont& XTPPaintManager::GetRegularFont() {
    static constexpr CFont font;
    return font;
}

const CFont& XTPPaintManager::GetRegularBoldFont() {
    static constexpr CFont font{.bold = true, .italic = false};
    return font;
}
