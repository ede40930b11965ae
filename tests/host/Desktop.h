#pragma once
/// A desktop of its own for a test: an X server without a screen, real mouse and keys, and programs on it.
/// Nothing waits for a time: each wait is for a condition, with a limit that no sane machine reaches.

#include <QPoint>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace navigator_test {

/// The server; gone with this object.
class Desktop {
public:
    Desktop();
    ~Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    /// Why there is no desktop; empty if there is one.
    [[nodiscard]] const std::string& WhyNot() const { return m_whyNot; }
    /// ":7" or the like.
    [[nodiscard]] const QString& Name() const { return m_name; }
    /// Runs xdotool with these words; its output, or nothing if it failed.
    std::optional<QString> Do(const QStringList& words) const;

private:
    QProcess m_server;
    QString m_name;
    std::string m_whyNot;
};

/// A program on a desktop, the navigator or an example, with settings and run-time files in a folder of its
/// own.
class DesktopProgram {
public:
    DesktopProgram(const Desktop& desktop, const std::filesystem::path& home);
    ~DesktopProgram();

    /// A variable of the environment in which it is going to be started.
    void Set(const QString& variable, const QString& value);
    /// Starts the program that DESKTOP_PROGRAM names at the build of the test.
    void Start(const QStringList& words);
    void StartProgram(const QString& program, const QStringList& words);
    /// Waits for a line of the standard output that begins with the word and is what is wanted; gives what
    /// follows the word. Lines that have gone by count if none came after them.
    std::optional<QString> WaitFor(const QString& word, const std::function<bool(const QString&)>& isWanted);
    /// Writes a line to the program's standard input.
    void Say(const QString& line);
    /// Waits for the end; the exit status, -1 for a violent end or none.
    int WaitForEnd();
    void Kill();
    /// Gives the program's main window the keyboard, as a click on its title would: there is no window
    /// manager.
    bool Focus();
    [[nodiscard]] std::string Errors();
    [[nodiscard]] qint64 Pid() const { return m_process.processId(); }

private:
    const Desktop& m_desktop;
    QProcess m_process;
    QString m_unread;
    QString m_lastLine;
};

/// Starts the program that takes any text (TEXT_TARGET at the build of the test); the middle of its field.
std::optional<QPoint> gStartTextTarget(DesktopProgram& program);
/// Waits for the text that is dropped there next; nothing if the program ends before.
std::optional<QString> gNextDroppedText(DesktopProgram& textTarget);
/// Waits until what is dragged may be dropped there.
bool gAwaitDropTaken(DesktopProgram& textTarget);

}  // namespace navigator_test
