/// @file
/// A column of the report.
#pragma once

#include "vapp/Export.h"
#include "vapp/text/CString.h"
#include "vapp/toolkit/CObject.h"

class CXTPReportControl;
enum class TColumnsChange : int;

/// A column; owned by its report once added.
class VAPP_EXPORT CXTPReportColumn : public CObject {
public:
    static constexpr int cnMinShownWidth = 8;

    /// @param itemIndex  number of the record item that the column shows; also its lasting identity
    /// @param caption    text of the header, in the active code page
    /// @param internalName  name that doesn't change with the language
    /// @param width      pixels
    /// @param autoSize   takes part in automatic sizing
    /// @param icon       icon of the header, -1 for none
    CXTPReportColumn(int itemIndex, const CString& caption, const CString& internalName, int width,
                     bool autoSize = true, int icon = -1, bool sortable = true, bool visible = true);
    ~CXTPReportColumn() override;

    [[nodiscard]] int GetItemIndex() const { return m_itemIndex; }
    [[nodiscard]] const CString& GetCaption() const { return m_caption; }
    [[nodiscard]] const CString& GetInternalName() const { return m_internalName; }
    [[nodiscard]] int GetWidth() const { return m_width; }
    /// Pixels, taken as they stand, even below 0: what was stored comes back.
    void SetWidth(int width);
    /// The width that is shown and hit: at least `cnMinShownWidth`, so that no column gets out of reach.
    [[nodiscard]] int GetShownWidth() const { return m_width < cnMinShownWidth ? cnMinShownWidth : m_width; }
    [[nodiscard]] bool IsVisible() const { return m_visible; }
    void SetVisible(bool visible);
    [[nodiscard]] bool IsSortable() const { return m_sortable; }
    [[nodiscard]] bool IsAutoSize() const { return m_autoSize; }
    [[nodiscard]] int GetIconID() const { return m_icon; }
    /// Direction of the last sort by this column; true at first.
    [[nodiscard]] bool IsSortedIncreasing() const { return m_increasing; }
    /// The report that owns the column, or null before it was added.
    [[nodiscard]] CXTPReportControl* GetControl() const { return m_control; }

private:
    friend class CXTPReportColumns;
    friend class CXTPReportColumnOrder;

    void TellHeader(TColumnsChange change);

    CString m_caption;
    CString m_internalName;
    CXTPReportControl* m_control = nullptr;
    int m_itemIndex;
    int m_width;
    int m_icon;
    bool m_autoSize;
    bool m_sortable;
    bool m_visible;
    bool m_increasing = true;
};
