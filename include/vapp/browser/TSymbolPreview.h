/// @file
/// TSymbolPreview: the bottom pane, a picture of the focused cell with a caption.
///
/// The picture is the host's: the pane asks for it in a line and the host answers, now or later, by
/// SetPreview. The pane neither draws nor owns pictures. If the host doesn't answer, the old one stays.
#pragma once

#include <cstdint>

#include "vapp/Export.h"
#include "vapp/toolkit/CFormView.h"
#include "vapp/toolkit/CStatic.h"

namespace vapp_library_browser {

class TLibraryView;
struct TLibCellView;

/// The preview pane.
class VAPP_EXPORT TSymbolPreview : public CFormView {
public:
    static constexpr UINT cnDialog = 4003;
    static constexpr UINT cnCaptionId = 7706;
    static constexpr UINT cnPictureId = 7707;

    TSymbolPreview();
    ~TSymbolPreview() override;

    /// Asks the host for a picture of the focused cell, of the picture's present size; clears picture and
    /// caption, without a line, if no cell is focused. A call from inside the line is served once when the
    /// line has ended, so that a host whose answer refreshes the navigator comes to an end.
    void DisplayNewPreview();
    /// The host's answer; may come from inside the line. The caption shows in the active code page, and is
    /// emptied with `clear`; the bitmap is taken in both cases, null shows none. The bitmap is not owned:
    /// whoever gives it keeps it alive while it is shown.
    void SetPreview(bool clear, const CStringU& caption, HBITMAP bitmap);

    [[nodiscard]] TLibraryView* GetLibraryView() const { return m_libraryView; }
    void SetLibraryView(TLibraryView* view) { m_libraryView = view; }
    [[nodiscard]] CStatic& GetCaption() { return m_caption; }
    [[nodiscard]] CStatic& GetPicture() { return m_picture; }

protected:
    void OnCreate() override;
    void OnSize(UINT type, int cx, int cy) override;
    /// Repaints all of the pane at once.
    void OnMove(int x, int y) override;

private:
    void Layout(int cx, int cy);
    void ShowFocusedCell();
    void SendPreviewLine(const TLibCellView& cell);

    TLibraryView* m_libraryView = nullptr;
    CStatic m_caption{CStatic::TKind::Text};
    CStatic m_picture{CStatic::TKind::Picture};
    bool m_asking = false;
    bool m_askedMeanwhile = false;
};

}  // namespace vapp_library_browser
