/// Starting and stopping of the server and the programs.

#include "tests/host/Desktop.h"

#include <QElapsedTimer>
#include <QProcessEnvironment>
#include <QStandardPaths>

namespace navigator_test {

namespace {

constexpr int cnLimit = 60'000;

}  // namespace

Desktop::Desktop() {
    for (const char* program : {"Xvfb", "xdotool"}) {
        if (QStandardPaths::findExecutable(QLatin1String(program)).isEmpty()) {
            m_whyNot = std::string(program) + " is not installed";
            return;
        }
    }
    // The server finds a free number itself, and tells it when it is ready.
    m_server.start(
        QStringLiteral("Xvfb"),
        {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
         QStringLiteral("1400x1100x24"), QStringLiteral("-nolisten"), QStringLiteral("tcp")});
    QElapsedTimer clock;
    clock.start();
    QByteArray number;
    while (!number.contains('\n') && clock.elapsed() < cnLimit && m_server.state() != QProcess::NotRunning) {
        m_server.waitForReadyRead(cnLimit / 10);
        number += m_server.readAllStandardOutput();
    }
    if (number.contains('\n')) {
        m_name = QLatin1Char(':') + QString::fromLatin1(number.trimmed());
    } else {
        m_whyNot = "Xvfb did not start: " + m_server.readAllStandardError().toStdString();
    }
}

Desktop::~Desktop() {
    m_server.terminate();
    if (m_server.state() != QProcess::NotRunning && !m_server.waitForFinished(cnLimit)) m_server.kill();
}

std::optional<QString> Desktop::Do(const QStringList& words) const {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), m_name);
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral("xdotool"), words);
    if (!process.waitForFinished(cnLimit) || process.exitCode() != 0) return std::nullopt;
    return QString::fromUtf8(process.readAllStandardOutput());
}

DesktopProgram::DesktopProgram(const Desktop& desktop, const std::filesystem::path& home)
    : m_desktop(desktop) {
    std::filesystem::create_directories(home / "run");
    std::filesystem::permissions(home / "run", std::filesystem::perms::owner_all);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QString place = QString::fromStdString(home.string());
    environment.insert(QStringLiteral("DISPLAY"), desktop.Name());
    environment.insert(QStringLiteral("HOME"), place);
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), place + QStringLiteral("/config"));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), place + QStringLiteral("/run"));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("LSAN_OPTIONS"),
                       QStringLiteral("suppressions=" DESKTOP_LEAKS ":print_suppressions=0"));
    // The keyboard's library copies names out of the X server's answers, which have lengths and no NUL.
    environment.insert(QStringLiteral("ASAN_OPTIONS"), environment.value(QStringLiteral("ASAN_OPTIONS")) +
                                                           QStringLiteral(":strict_string_checks=0"));
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    m_process.setProcessEnvironment(environment);
}

DesktopProgram::~DesktopProgram() {
    Kill();
}

void DesktopProgram::Set(const QString& variable, const QString& value) {
    QProcessEnvironment environment = m_process.processEnvironment();
    environment.insert(variable, value);
    m_process.setProcessEnvironment(environment);
}

void DesktopProgram::Start(const QStringList& words) {
    StartProgram(QStringLiteral(DESKTOP_PROGRAM), words);
}

void DesktopProgram::StartProgram(const QString& program, const QStringList& words) {
    m_process.start(program, words);
}

std::optional<QString> DesktopProgram::WaitFor(const QString& word,
                                               const std::function<bool(const QString&)>& isWanted) {
    QElapsedTimer clock;
    clock.start();
    const auto isFound = [&] {
        return m_lastLine.startsWith(word + QLatin1Char(' ')) && isWanted(m_lastLine.mid(word.size() + 1));
    };
    while (!isFound()) {
        const qsizetype end = m_unread.indexOf(QLatin1Char('\n'));
        if (end >= 0) {
            m_lastLine = m_unread.left(end);
            m_unread.remove(0, end + 1);
            continue;
        }
        const bool isOver = m_process.state() == QProcess::NotRunning || clock.elapsed() > cnLimit;
        if (!isOver) m_process.waitForReadyRead(static_cast<int>(cnLimit - clock.elapsed()));
        const QByteArray more = m_process.readAllStandardOutput();
        if (isOver && more.isEmpty()) return std::nullopt;
        m_unread += QString::fromUtf8(more);
    }
    return m_lastLine.mid(word.size() + 1);
}

void DesktopProgram::Say(const QString& line) {
    m_process.write((line + QLatin1Char('\n')).toUtf8());
    m_process.waitForBytesWritten(cnLimit);
}

int DesktopProgram::WaitForEnd() {
    if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(cnLimit)) return -1;
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

void DesktopProgram::Kill() {
    if (m_process.state() == QProcess::NotRunning) return;
    m_process.kill();
    m_process.waitForFinished(cnLimit);
}

bool DesktopProgram::Focus() {
    return m_desktop
        .Do({QStringLiteral("search"), QStringLiteral("--sync"), QStringLiteral("--onlyvisible"),
             QStringLiteral("--all"), QStringLiteral("--pid"), QString::number(Pid()),
             QStringLiteral("--name"), QStringLiteral("^Library Navigator"), QStringLiteral("windowfocus")})
        .has_value();
}

std::string DesktopProgram::Errors() {
    return m_process.readAllStandardError().toStdString();
}

std::optional<QPoint> gStartTextTarget(DesktopProgram& program) {
    program.StartProgram(QStringLiteral(TEXT_TARGET), {});
    const auto place = program.WaitFor(QStringLiteral("places"), [](const QString&) { return true; });
    if (!place) return std::nullopt;
    const QStringList numbers = place->split(QLatin1Char(' '));
    return numbers.size() == 2 ? std::optional(QPoint(numbers[0].toInt(), numbers[1].toInt())) : std::nullopt;
}

std::optional<QString> gNextDroppedText(DesktopProgram& textTarget) {
    return textTarget.WaitFor(QStringLiteral("text"), [](const QString&) { return true; });
}

bool gAwaitDropTaken(DesktopProgram& textTarget) {
    return textTarget
        .WaitFor(QStringLiteral("ready"),
                 [](const QString& answer) { return answer == QLatin1String("yes"); })
        .has_value();
}

}  // namespace navigator_test
