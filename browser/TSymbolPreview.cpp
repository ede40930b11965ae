/// @file
/// The preview pane: its layout, and the line that asks for a picture.
#include "vapp/browser/TSymbolPreview.h"

#include <algorithm>
#include <array>

#include "text/PlatformScreen.h"
#include "toolkit/DialogItems.h"
#include "toolkit/FlagGuard.h"
#include "vapp/browser/TLibraryView.h"
#include "vapp/browser/TclBridge.h"
#include "vapp/celllist/TCellListView.h"

namespace vapp_library_browser {

namespace {

// Left and top of the picture are the margins of every layout.
constexpr std::array<DialogItem, 2> cnPreviewItems = {{
    {TSymbolPreview::cnPictureId, {4, 4, 236, 172}},
    {TSymbolPreview::cnCaptionId, {4, 176, 236, 196}},
}};
constexpr DialogTemplate cnPreviewTemplate = {TSymbolPreview::cnDialog, {240, 200}, cnPreviewItems};

}  // namespace

TSymbolPreview::TSymbolPreview() : CFormView(cnPreviewTemplate) {}

TSymbolPreview::~TSymbolPreview() {
    DestroyWindow();
}

void TSymbolPreview::OnCreate() {
    CFormView::OnCreate();
    CreateItem(m_picture, cnPictureId);
    CreateItem(m_caption, cnCaptionId);
    m_picture.SetAccessibleName(gTranslateWindowText("__$$Translatable$$_Preview"));
}

void TSymbolPreview::OnSize(UINT type, int cx, int cy) {
    CFormView::OnSize(type, cx, cy);
    if (type == cnSizeMinimized || !m_picture.IsWindow()) return;
    if (cx == 0) {
        const CRect client = GetClientRect();
        Layout(client.Width(), client.Height());
    } else {
        Layout(cx, cy);
        DisplayNewPreview();
    }
}

// Wine copies the pixels of a moved pane from its old place, where a neighbour may have painted already: what
// was in the way stays in the picture. Elsewhere nothing need be painted.
void TSymbolPreview::OnMove(int x, int y) {
    CFormView::OnMove(x, y);
    if (!vapp_platform::MovedWindowsKeepOldPixels()) return;
    Invalidate(true);
    m_picture.Invalidate(true);
    m_caption.Invalidate(true);
    UpdateWindow();
}

// The caption keeps its height and stands at the bottom; the picture takes what is left.
void TSymbolPreview::Layout(int cx, int cy) {
    const CRect picture = m_picture.GetRect();
    const int left = picture.left;
    const int top = picture.top;
    const int captionHeight = m_caption.GetRect().Height();
    const int width = std::max(cx - 2 * left, left);
    const int pictureHeight = std::max(cy - 3 * top - captionHeight, 0);
    const int captionTop = pictureHeight + 2 * top;
    m_picture.MoveWindow({left, top, left + width, top + pictureHeight});
    m_caption.MoveWindow({left, captionTop, left + width, captionTop + captionHeight});
}

void TSymbolPreview::DisplayNewPreview() {
    if (m_asking) {
        m_askedMeanwhile = true;
        return;
    }
    const FlagGuard asking(m_asking);
    m_askedMeanwhile = false;
    ShowFocusedCell();
    // Once more if the line moved the focus or the size, and no more than once: a host that refreshes the
    // navigator in every answer would go on without end.
    if (m_askedMeanwhile && IsWindow()) ShowFocusedCell();
}

void TSymbolPreview::ShowFocusedCell() {
    OnSize(0, 0, 0);
    if (m_libraryView == nullptr || m_libraryView->GetCellListView() == nullptr) return;
    const TLibCellView cell = m_libraryView->GetCellListView()->GetFocusedCell();
    if (cell.cell.IsEmpty()) {
        SetPreview(true, CStringU(), nullptr);
    } else {
        SendPreviewLine(cell);
    }
}

void TSymbolPreview::SendPreviewLine(const TLibCellView& cell) {
    TLineBuilder line("librarynavigator preview set");
    if (!m_libraryView->GetQEdit()) line.Literal(" -primary ").Name(m_libraryView->GetSelectedDesign());
    line.Literal(" -library ").Name(cell.library);
    line.Literal(" -cell ").Name(cell.cell);
    line.Literal(" -view ").Name(cell.view);
    const CRect picture = m_picture.GetClientRect();
    line.Literal(" -bmwidth ").Number(picture.Width());
    line.Literal(" -bmheight ").Number(picture.Height());
    EvaluateTcl(m_libraryView->GetTclInterp(), line.GetString(), nullptr);
}

void TSymbolPreview::SetPreview(bool clear, const CStringU& caption, HBITMAP bitmap) {
    m_picture.SetImage(bitmap);
    m_caption.SetWindowText(clear ? CString() : caption.ToAnsi());
    m_picture.Invalidate(false);
}

}  // namespace vapp_library_browser
