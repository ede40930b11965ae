/// @file
/// COleDataSource: what is being dragged.
///
/// Data stands under the name of its format and keeps its type: it is for receivers in this process, which
/// take it as it is. Nothing is turned into bytes. Receivers in other processes get the text, if there is
/// one. The drag itself is the business of a toolkit adapter, which installs a function for it; with none,
/// nothing can be dragged anywhere.
#pragma once

#include <any>
#include <functional>
#include <map>
#include <memory>

#include "vapp/Export.h"
#include "vapp/text/CString.h"
#include "vapp/text/CStringU.h"
#include "vapp/toolkit/BasicTypes.h"
#include "vapp/toolkit/CRect.h"

// What a drop does; several may be offered.
inline constexpr UINT cnDropNone = 0;
inline constexpr UINT cnDropCopy = 1;
inline constexpr UINT cnDropMove = 2;
inline constexpr UINT cnDropLink = 4;

/// Typed data under names of formats. Window thread only.
class VAPP_EXPORT COleDataSource {
public:
    /// Shows the drag and waits for its end: the one effect of the drop, or none.
    using TDragRunner = std::function<UINT(COleDataSource& source, UINT effects, const CRect& start)>;

    COleDataSource();
    COleDataSource(const COleDataSource&) = delete;
    COleDataSource& operator=(const COleDataSource&) = delete;
    virtual ~COleDataSource();

    /// Keeps data under a format's name, in place of any that was there.
    void CacheData(const CString& format, std::any data);
    /// The data of a format, or null.
    [[nodiscard]] const std::any* GetData(const CString& format) const;

    /// All data by format.
    using TData = std::map<CString, std::any>;
    /// The data for someone whom the source may not outlive: gone with the source.
    [[nodiscard]] std::weak_ptr<const TData> WatchData() const { return m_data; }

    /// What programs are given that know none of the formats; none if empty.
    void SetText(const CStringU& text) { m_text = text; }
    [[nodiscard]] const CStringU& GetText() const { return m_text; }

    /// Drags, until the user drops or gives up. `start` is where the drag has come from, in the coordinates
    /// of the control that was hit; a peer reports the beginning of a drag once the pointer has left it. The
    /// effect of the drop; none where nobody can show drags, and for an effect that was not offered. The
    /// source may end meanwhile.
    UINT DoDragDrop(UINT effects, const CRect& start);

    /// Installs an adapter's function for all sources, or none by an empty one.
    static void InstallDragRunner(TDragRunner runner);
    /// What is installed, for one who puts a function around it.
    [[nodiscard]] static const TDragRunner& GetDragRunner();

private:
    std::shared_ptr<TData> m_data;
    CStringU m_text;
};
