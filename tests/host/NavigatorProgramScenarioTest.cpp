/// The program as a user starts it: its words, its outputs, its exit status.

#include <gmock/gmock.h>

#include <QImage>
#include <QProcess>
#include <QProcessEnvironment>
#include <filesystem>

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

/// Runs the program to its end. `locale` is its LC_ALL.
Ended RunProgram(const QStringList& words, const QString& locale = QStringLiteral("C.UTF-8")) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), locale);
    environment.remove(QStringLiteral("DISPLAY"));
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(NAVIGATOR_PROGRAM), words);
    constexpr int cnMilliseconds = 120000;
    if (!process.waitForFinished(cnMilliseconds)) {
        process.kill();
        return {};
    }
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput().toStdString(), process.readAllStandardError().toStdString()};
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
    EXPECT_THAT(ended.errors, AllOf(StartsWith("navigator: "), HasSubstr("missing")));
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

TEST(NavigatorProgram, DumpsTheInstalledSchematicLibraries) {
    const std::filesystem::path libraries = "/usr/share/xschem/xschem_library";
    if (!std::filesystem::is_directory(libraries)) GTEST_SKIP() << "no schematic libraries on this machine";
    const Ended ended = RunProgram({QStringLiteral("--dump"), PathOf(libraries)});
    EXPECT_EQ(0, ended.status) << ended.errors;
    EXPECT_THAT(ended.output,
                AllOf(HasSubstr("\nnmos4,symbol,devices\n"), HasSubstr(",pcb\n"), HasSubstr(",examples\n")));
}

}  // namespace
}  // namespace navigator_test
