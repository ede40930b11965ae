/// @file
/// CLibCellViewOleDataSource: the source of a drag out of the cell list. Its data is a `CLibCellViewOleData`
/// under `ClipboardFormatLibCellView`.
///
/// The format's name carries the number of the process, so that no other program takes the record for one of
/// its own.
#pragma once

#include "vapp/Export.h"
#include "vapp/text/CString.h"
#include "vapp/toolkit/COleDataSource.h"

namespace vapp_library_browser {

/// A data source that knows the name of its format.
class VAPP_EXPORT CLibCellViewOleDataSource : public COleDataSource {
public:
    CLibCellViewOleDataSource();
    ~CLibCellViewOleDataSource() override;

    /// "VornexEDALibCellView" and the process's number in hexadecimal; fixed from the start of the program.
    static const CString ClipboardFormatLibCellView;
};

}  // namespace vapp_library_browser
