#pragma once
/// The windows of the help menu: the lines of the Tcl protocol, and what the program and the machine are.

#include <QDialog>
#include <string>

namespace navigator {

/// Two pages: the commands that scripts and the console may send, from the tables by which they are
/// dispatched, and the lines that the navigator itself sends, from the document.
class HelpWindow : public QDialog {
public:
    explicit HelpWindow(QWidget* parent = nullptr);
};

/// A text with lines of facts, which can be copied as a whole.
class AboutWindow : public QDialog {
public:
    explicit AboutWindow(const std::string& facts, QWidget* parent = nullptr);
};

/// What the program is, as lines "name: value".
[[nodiscard]] std::string gProgramFacts();

}  // namespace navigator
