#pragma once
/// A window with the file of a view as text, which can be read, searched and copied, and not changed.

#include <QDialog>
#include <filesystem>

#include "host/DesignStore.h"

class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace navigator {

class TextViewer : public QDialog {
public:
    /// Shows the file in a window of its own that ends with the parent, or raises the one that shows it
    /// already, with the file read again.
    static TextViewer& Show(const CellViewName& name, const std::filesystem::path& file, QWidget& parent);

private:
    TextViewer(const CellViewName& name, const std::filesystem::path& file, QWidget& parent);

    void Read();
    void FindNext(bool isBackward);

    std::filesystem::path m_file;
    QPlainTextEdit* m_text;
    QLineEdit* m_wanted;
    QLabel* m_note;
};

}  // namespace navigator
