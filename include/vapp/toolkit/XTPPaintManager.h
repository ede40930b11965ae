/// @file
/// The fonts that records name when they say how an item looks.
#pragma once

#include "vapp/Export.h"
#include "vapp/toolkit/CFont.h"

/// Fonts that all reports share.
class VAPP_EXPORT XTPPaintManager {
public:
    [[nodiscard]] static const CFont& GetRegularFont();
    [[nodiscard]] static const CFont& GetRegularBoldFont();
};
