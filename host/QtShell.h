#pragma once
/// Shows a Navigator on a screen by Qt, or off screen: pictures for the preview pane, refreshing when idle,
/// watching the folders, screenshots. The only part of the host that knows widgets.

#include <QImage>
#include <memory>
#include <optional>
#include <string>

#include "host/FolderWatcher.h"
#include "host/Navigator.h"
#include "vapp/toolkit/qt/QtBitmap.h"

namespace navigator {

class QtShell {
public:
    /// Installs the peers and connects them to the navigator, whose window must not exist yet. A QApplication
    /// must exist, and the navigator must outlive this object.
    explicit QtShell(Navigator& navigator);
    ~QtShell();
    QtShell(const QtShell&) = delete;
    QtShell& operator=(const QtShell&) = delete;

    /// Puts the window where the last run left it, as far as the monitors of today have that place. Call
    /// before Show.
    void RestorePlace();
    /// Shows the window, and follows the folders from then on. Its place is kept at the end.
    void Show();
    /// A sentence for the user in the window's status line, without a question that stops the work. The
    /// window must exist.
    void Tell(const CString& sentence);
    /// Refreshes and paints until nothing is left to do, then writes the window as a picture in the format of
    /// the file's ending. Gives nothing on success, or else a sentence.
    [[nodiscard]] std::optional<std::string> Screenshot(const std::string& file);

private:
    void KeepPlace();
    void ShowPreview(const PreviewRequest& request);

    Navigator& m_navigator;
    FolderWatcher m_watcher;
    QtBitmap m_picture;
    QMetaObject::Connection m_idle;
    bool m_wasShown = false;
};

}  // namespace navigator
