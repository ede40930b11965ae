/// The program as a user starts it: its words, its outputs, its exit status.

#include <gmock/gmock.h>

#include <unistd.h>
#include <QImage>
#include <QProcess>
#include <QProcessEnvironment>
#include <filesystem>
#include <optional>

#include "tests/host/TempFolder.h"

namespace navigator_test {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

struct Ended {
    int status = -1;
    std::string output;
    std::string errors;
};

/// The environment of a program without a desktop.
QProcessEnvironment BareEnvironment() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QLatin1String(name));
    return environment;
}

/// Runs any program to its end.
Ended RunToItsEnd(const QProcessEnvironment& environment, const QString& program, const QStringList& words) {
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, words);
    constexpr int cnMilliseconds = 120000;
    if (!process.waitForFinished(cnMilliseconds)) {
        process.kill();
        return {};
    }
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput().toStdString(), process.readAllStandardError().toStdString()};
}

Ended RunProgramIn(const QProcessEnvironment& environment, const QStringList& words) {
    return RunToItsEnd(environment, QStringLiteral(NAVIGATOR_PROGRAM), words);
}

/// Runs it as somebody who may not read everything. Who may is another user for the length of it; nothing if
/// that can't be had here.
std::optional<Ended> RunAsAnybody(const QStringList& words) {
    if (geteuid() != 0) return RunProgramIn(BareEnvironment(), words);
    const QStringList asNobody{QStringLiteral("--reuid=65534"), QStringLiteral("--regid=65534"),
                               QStringLiteral("--clear-groups"), QStringLiteral(NAVIGATOR_PROGRAM)};
    const Ended known =
        RunToItsEnd(BareEnvironment(), QStringLiteral("setpriv"), asNobody + QStringList{"--version"});
    if (known.status != 0) return std::nullopt;
    return RunToItsEnd(BareEnvironment(), QStringLiteral("setpriv"), asNobody + words);
}

/// Takes all permissions of a folder away, and gives them back for the end.
class ClosedFolder {
public:
    explicit ClosedFolder(std::filesystem::path folder) : m_folder(std::move(folder)) {
        std::filesystem::permissions(m_folder, std::filesystem::perms::none);
    }
    ~ClosedFolder() {
        std::error_code ignored;
        std::filesystem::permissions(m_folder, std::filesystem::perms::owner_all, ignored);
    }
    ClosedFolder(const ClosedFolder&) = delete;
    ClosedFolder& operator=(const ClosedFolder&) = delete;

private:
    std::filesystem::path m_folder;
};

/// `locale` is its LC_ALL.
Ended RunProgram(const QStringList& words, const QString& locale = QStringLiteral("C.UTF-8")) {
    QProcessEnvironment environment = BareEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), locale);
    return RunProgramIn(environment, words);
}

QString PathOf(const std::filesystem::path& path) {
    return QString::fromStdString(path.string());
}

TEST(NavigatorProgram, DumpsTheSampleWithoutADisplay) {
    const Ended ended = RunProgram({QStringLiteral("--dump")});
    EXPECT_EQ(0, ended.status) << ended.errors;
    EXPECT_THAT(ended.output,
                AllOf(StartsWith("Cell,View,Library\n"), HasSubstr("\nbank2,symbol,top\nbank10,symbol,top\n"),
                      HasSubstr("\ninv,schematic,logic\n")));
    EXPECT_THAT(ended.errors, IsEmpty());
}

TEST(NavigatorProgram, NamesSurviveEveryLocale) {
    for (const char* locale : {"C", "POSIX", "C.UTF-8", "tr_TR.UTF-8", "no_such_locale"}) {
        EXPECT_THAT(RunProgram({QStringLiteral("--dump")}, QString::fromLatin1(locale)).output,
                    HasSubstr("verst\xC3\xA4rker,symbol,analog\n"))
            << locale;
    }
}

TEST(NavigatorProgram, FolderThatCannotBeReadGivesASentenceAndStatusTwo) {
    const TempFolder folder;
    const Ended ended = RunProgram({QStringLiteral("--dump"), PathOf(folder.Path() / "missing")});
    EXPECT_EQ(2, ended.status);
    EXPECT_THAT(ended.output, IsEmpty());
    EXPECT_THAT(ended.errors, AllOf(StartsWith("navigator: Cannot open the folder \""), HasSubstr("missing"),
                                    HasSubstr("No such file or directory")));
}

TEST(NavigatorProgram, DesignWithoutPermissionGivesItsReasonAndStatusTwo) {
    const TempFolder folder;
    folder.Write("closed/lib/inv.sym", "v {}\n");
    const ClosedFolder closed(folder.Path() / "closed");
    const auto ended = RunAsAnybody({QStringLiteral("--dump"), PathOf(folder.Path() / "closed")});
    if (!ended) GTEST_SKIP() << "nobody else can run the program here";
    EXPECT_EQ(2, ended->status);
    EXPECT_THAT(ended->output, IsEmpty());
    EXPECT_THAT(ended->errors, AllOf(StartsWith("navigator: Cannot open the folder \""), HasSubstr("closed"),
                                     HasSubstr("Permission denied")));
}

// What can be read is told all the same; who goes by the status knows that it is not all.
TEST(NavigatorProgram, LibraryWithoutPermissionGivesASentenceTheOthersAndStatusTwo) {
    const TempFolder folder;
    folder.Write("design/open/inv.sym", "v {}\n");
    folder.Write("design/open/folded/symbol/folded.sym", "v {}\n");
    folder.Write("design/shut/buf.sym", "v {}\n");
    const ClosedFolder library(folder.Path() / "design/shut");
    const ClosedFolder cell(folder.Path() / "design/open/folded");
    const auto ended = RunAsAnybody({QStringLiteral("--dump"), PathOf(folder.Path() / "design")});
    if (!ended) GTEST_SKIP() << "nobody else can run the program here";
    EXPECT_EQ(2, ended->status);
    EXPECT_EQ("Cell,View,Library\ninv,symbol,open\n", ended->output);
    EXPECT_THAT(ended->errors, AllOf(HasSubstr("navigator: Cannot read the folder \""),
                                     HasSubstr("shut\" of the library \"shut\".\n"),
                                     HasSubstr("folded\" of the library \"open\".\n")));
}

TEST(NavigatorProgram, UnknownOptionGivesASentenceAndStatusTwo) {
    const Ended ended = RunProgram({QStringLiteral("--nonsense")});
    EXPECT_EQ(2, ended.status);
    EXPECT_THAT(ended.errors, HasSubstr("--nonsense"));
}

TEST(NavigatorProgram, TellsVersionAndHelp) {
    EXPECT_EQ("navigator 2019.2.0\n", RunProgram({QStringLiteral("--version")}).output);
    EXPECT_THAT(RunProgram({QStringLiteral("--help")}).output,
                AllOf(HasSubstr("--dump"), HasSubstr("--screenshot"), HasSubstr("--script"),
                      HasSubstr("\ndatabase all_libs\n"), HasSubstr("\nnavigator sortby ")));
}

TEST(NavigatorProgram, SaysThatThereIsNoDisplay) {
    const Ended ended = RunProgram({});
    EXPECT_EQ(1, ended.status);
    EXPECT_THAT(ended.errors, HasSubstr("no display"));
}

TEST(NavigatorProgram, ScriptErrorGivesItsTextAndStatusOne) {
    const TempFolder folder;
    const auto script = folder.Write("bad.tcl", "nosuchcommand\n");
    const Ended ended = RunProgram({QStringLiteral("--dump"), QStringLiteral("--script"), PathOf(script)});
    EXPECT_EQ(1, ended.status);
    EXPECT_THAT(ended.errors, HasSubstr("nosuchcommand"));
}

TEST(NavigatorProgram, ScreenshotHasTheSizeTimesTheScale) {
    const TempFolder folder;
    const auto script = folder.Write("select.tcl", "database select logic inv symbol\n");
    const QString file = PathOf(folder.Path() / "window.png");
    const Ended ended = RunProgram({QStringLiteral("--screenshot"), file, QStringLiteral("--size"),
                                    QStringLiteral("400x700"), QStringLiteral("--scale"), QStringLiteral("2"),
                                    QStringLiteral("--script"), PathOf(script)});
    EXPECT_EQ(0, ended.status) << ended.errors;
    const QImage picture(file);
    EXPECT_EQ(QSize(800, 1400), picture.size());
}

// A user's whole visit, and the next one: the script chooses, sorts and resizes by the operations that mouse
// and keys reach, in the real program with its window off screen.
TEST(NavigatorProgram, AScriptDrivesAWholeVisitAndFindsAllAsItWas) {
    const TempFolder home;
    std::filesystem::create_directories(home.Path() / "run");
    std::filesystem::permissions(home.Path() / "run", std::filesystem::perms::owner_all);
    QProcessEnvironment environment = BareEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    for (const char* name : {"HOME", "XDG_CONFIG_HOME"})
        environment.insert(QLatin1String(name), PathOf(home.Path()));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), PathOf(home.Path() / "run"));
    const auto visit = home.Write("visit.tcl",
                                  "navigator onidle {\n"
                                  "  navigator onidle {}\n"
                                  "  user click library logic\n"
                                  "  user settle\n"
                                  "  user click header View\n"
                                  "  user click header View\n"
                                  "  user resize 390 720\n"
                                  "  user drag bar 0 -60\n"
                                  "  user drag bar 1 -40\n"
                                  "  user settle\n"
                                  "  puts [user state]\n"
                                  "  exit\n"
                                  "}\n");
    const auto look = home.Write("look.tcl", "navigator onidle { puts [user state]; exit }\n");
    const Ended first = RunProgramIn(environment, {QStringLiteral("--script"), PathOf(visit)});
    ASSERT_EQ(0, first.status) << first.errors;
    EXPECT_THAT(first.output, AllOf(HasSubstr("design sample libraries logic order {View decreasing}"),
                                    HasSubstr(" heights {"), HasSubstr(" 390 720}")));
    const Ended second = RunProgramIn(environment, {QStringLiteral("--script"), PathOf(look)});
    ASSERT_EQ(0, second.status) << second.errors;
    // The cell that had the focus is the user's affair: it is chosen anew.
    const auto withoutCell = [](std::string text) {
        const std::size_t from = text.find(" cell ");
        return from == std::string::npos ? text : text.erase(from, text.find(" heights ") - from);
    };
    EXPECT_EQ(withoutCell(first.output), withoutCell(second.output));
}

TEST(NavigatorProgram, DumpsTheInstalledSchematicLibraries) {
    const std::filesystem::path libraries = "/usr/share/xschem/xschem_library";
    if (!std::filesystem::is_directory(libraries)) GTEST_SKIP() << "no schematic libraries on this machine";
    const Ended ended = RunProgram({QStringLiteral("--dump"), PathOf(libraries)});
    EXPECT_EQ(0, ended.status) << ended.errors;
    EXPECT_THAT(ended.output,
                AllOf(HasSubstr("\nnmos4,symbol,devices\n"), HasSubstr(",pcb\n"), HasSubstr(",examples\n")));
}

TEST(NavigatorProgram, ReadsAFolderOfScriptsAndGoesOnAfterOneThatFails) {
    const TempFolder scripts;
    scripts.Write("a.tcl", "nosuch\n");
    scripts.Write("b.tcl", "navigator addcolumn Mine {list mine}\n");
    const QString sample = QStringLiteral(SAMPLE_DESIGN);
    const Ended ended =
        RunProgram({QStringLiteral("--dump"), QStringLiteral("--scripts"), PathOf(scripts.Path()), sample});
    EXPECT_EQ(0, ended.status) << ended.errors;
    EXPECT_THAT(ended.output, StartsWith("Cell,View,Library,Mine\n"));
    EXPECT_THAT(ended.errors,
                AllOf(HasSubstr("invalid command name \"nosuch\""), HasSubstr("a.tcl\" line 1")));
    const Ended refused = RunProgram(
        {QStringLiteral("--dump"), QStringLiteral("--scripts"), PathOf(scripts.Path() / "none"), sample});
    EXPECT_EQ(2, refused.status);
    EXPECT_THAT(refused.errors, HasSubstr("There is no folder"));
}

}  // namespace
}  // namespace navigator_test
