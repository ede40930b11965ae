/// @file
/// A record of the report: in virtual mode a single one answers for all rows.
#pragma once

#include <vector>

#include "vapp/Export.h"
#include "vapp/text/CString.h"
#include "vapp/toolkit/BasicTypes.h"
#include "vapp/toolkit/CFont.h"
#include "vapp/toolkit/CObject.h"

class CXTPReportColumn;
class CXTPReportControl;

/// One item of a record. In virtual mode it holds nothing: its place says which column it belongs to.
class CXTPReportRecordItem {};

/// What is being measured or painted.
struct CXTPReportRecordItemDrawArgs {
    CXTPReportControl* control = nullptr;
    CXTPReportColumn* column = nullptr;
    int row = -1;
};

/// How an item looks now. The caller may keep one and call `Reset` between items: no memory moves then.
struct CXTPReportRecordItemMetrics {
    CString text;   ///< in the active code page
    int icon = -1;  ///< index into the image list, -1 for none
    COLORREF foreground = cnNoColor;
    COLORREF background = cnNoColor;
    const CFont* font = nullptr;  ///< null: the control's own

    void Reset() { *this = CXTPReportRecordItemMetrics(); }
};

/// A record.
class VAPP_EXPORT CXTPReportRecord : public CObject {
public:
    CXTPReportRecord();
    ~CXTPReportRecord() override;

    void AddItem(CXTPReportRecordItem item) { m_items.push_back(item); }
    [[nodiscard]] int GetItemCount() const { return static_cast<int>(m_items.size()); }
    /// Fills the metrics of an item, called for each item that is measured or painted. The base leaves them.
    virtual void GetItemMetrics(const CXTPReportRecordItemDrawArgs& drawArgs,
                                CXTPReportRecordItemMetrics& metrics);

private:
    std::vector<CXTPReportRecordItem> m_items;
};
