/// @file
/// The header of a report: where its columns stand on the screen, and what the user does to them.
#pragma once

#include "vapp/Export.h"
#include "vapp/toolkit/CObject.h"
#include "vapp/toolkit/CPoint.h"

class CXTPReportColumn;
class CXTPReportControl;

/// Why the columns changed.
enum class TColumnsChange : int { Order = 1, Visibility = 2, Width = 4, Added = 8 };

/// The header; owned by its report.
class VAPP_EXPORT CXTPReportHeader : public CObject {
public:
    explicit CXTPReportHeader(CXTPReportControl& control);
    ~CXTPReportHeader() override;

    [[nodiscard]] CXTPReportControl& GetControl() const { return m_control; }
    void SetAutoColumnSizing(bool autoSizing) { m_autoColumnSizing = autoSizing; }
    [[nodiscard]] bool GetAutoColumnSizing() const { return m_autoColumnSizing; }
    /// The visible column whose header lies under a client point of the report, or null.
    [[nodiscard]] CXTPReportColumn* HitTest(CPoint point) const;

    /// The user clicked a header: sorts by it, increasing at first, turning around at each further click;
    /// with control added behind the present sort columns. The report's parent is told
    /// (cnReportSortOrderChanged). A column that is not sortable, or not of this report, does nothing.
    void ClickedByUser(CXTPReportColumn* column, bool addToOrder);
    /// The user dragged a header to a position among all columns.
    void MovedByUser(CXTPReportColumn* column, int position);
    /// The user dragged an edge.
    void ResizedByUser(CXTPReportColumn* column, int width);

    /// Columns were added, moved, hidden, shown or resized; `change` is a TColumnsChange, the column may be
    /// null. Every change of the columns comes through here. The base tells the report's peer, nobody else.
    virtual void OnColumnsChanged(int change, CXTPReportColumn* column);

private:
    CXTPReportControl& m_control;
    bool m_autoColumnSizing = true;
};
