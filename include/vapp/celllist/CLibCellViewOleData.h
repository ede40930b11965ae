/// @file
/// CLibCellViewOleData: what a host's drop target receives of a dragged cell view.
#pragma once

#include "vapp/Export.h"
#include "vapp/browser/TLibCellView.h"
#include "vapp/text/CStringU.h"

namespace vapp_library_browser {

/// A cell view with its design. Copies are whole.
class VAPP_EXPORT CLibCellViewOleData {
public:
    CLibCellViewOleData(const CStringU& designName, const TLibCellView& lcv, bool rightButton);
    CLibCellViewOleData(const CLibCellViewOleData& other);
    CLibCellViewOleData& operator=(const CLibCellViewOleData& other);
    virtual ~CLibCellViewOleData();

    CStringU design;  ///< the one that was selected when the drag began
    CStringU library;
    CStringU cell;
    CStringU view;
    CStringU sortKey;  ///< the fourth text of a TLibCellView; empty
    bool startedByRightButton = false;

protected:
    /// Takes over all six fields.
    void Copy(const CLibCellViewOleData& other);
};

}  // namespace vapp_library_browser
