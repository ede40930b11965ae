/// `navigator`: reads the command line, opens what it names, and then dumps, takes a picture or runs the
/// window.

#include <QApplication>
#include <QCoreApplication>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>
#include <vector>

#include "host/CommandHelp.h"
#include "host/Navigator.h"
#include "host/Options.h"
#include "host/QtShell.h"
#include "vapp/Version.h"
#include "vapp/text/ActiveCodePage.h"
#include "vapp/toolkit/qt/QtProfileStore.h"

namespace {

using namespace navigator;

/// Failure of anything but the command line and the folders.
constexpr int cnFailureStatus = 1;

int Fail(const std::string& sentence, int status) {
    std::cerr << "navigator: " << sentence << '\n';
    return status;
}

/// Without folders the sample design is shown: the one beside the sources, or the one that was installed.
std::filesystem::path SampleFolder() {
    std::error_code error;
    const std::filesystem::path installed = std::filesystem::path(NAVIGATOR_SAMPLE_INSTALLED);
    return std::filesystem::is_directory(installed, error) ? installed
                                                           : std::filesystem::path(NAVIGATOR_SAMPLE_SOURCE);
}

/// Opens all folders. Gives the exit status.
int OpenFolders(Navigator& navigator, const Options& options) {
    if (options.folders.empty()) {
        if (const auto failure = navigator.OpenFolder(SampleFolder())) return Fail(*failure, cnUsageStatus);
    }
    for (const std::string& folder : options.folders)
        if (const auto failure = navigator.OpenFolder(folder)) return Fail(*failure, cnUsageStatus);
    return EXIT_SUCCESS;
}

/// Makes the window and runs the script. Gives the exit status.
int Start(Navigator& navigator, const Options& options) {
    navigator.CreateWindow(options.width, options.height, options.isDark);
    if (options.script) {
        if (const auto failure = navigator.SourceScript(*options.script))
            return Fail(*failure, cnFailureStatus);
    }
    navigator.LoadSetup();
    return EXIT_SUCCESS;
}

int Dump(const Options& options) {
    Navigator navigator;
    if (const int status = OpenFolders(navigator, options)) return status;
    if (const int status = Start(navigator, options)) return status;
    const std::string text = navigator.Dump();
    std::cout << text << std::flush;
    return std::cout.good() ? EXIT_SUCCESS : Fail("The list can't be written.", cnFailureStatus);
}

/// The user's settings. Trouble with them is printed, and noted for the window.
std::unique_ptr<ProfileStore> OpenSettings(std::vector<CString>& troubles) {
    return QtProfileStore::ForUser("Vornex_EDA", "navigator", [&troubles](const CString& sentence) {
        std::cerr << "navigator: " << sentence.GetString() << '\n';
        troubles.push_back(sentence);
    });
}

int RunWindow(const Options& options, int argc, char** argv) {
    const bool hasDisplay = std::getenv("DISPLAY") != nullptr || std::getenv("WAYLAND_DISPLAY") != nullptr;
    if (options.screenshot) {
        // A picture must not depend on the desktop that happens to be there.
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("QT_SCALE_FACTOR", QByteArray::number(options.scale));
    } else if (!hasDisplay && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        return Fail("There is no display. Use --screenshot FILE for a picture, or --dump for the list.",
                    cnFailureStatus);
    }
    const QApplication application(argc, argv);
    std::vector<CString> troubles;
    Navigator navigator;
    // A picture must not depend on the settings of whoever takes it either.
    if (!options.screenshot) navigator.KeepSettingsIn(OpenSettings(troubles));
    if (const int status = OpenFolders(navigator, options)) return status;
    QtShell shell(navigator);
    if (const int status = Start(navigator, options)) return status;
    if (options.screenshot) {
        const auto failure = shell.Screenshot(*options.screenshot);
        return failure ? Fail(*failure, cnFailureStatus) : EXIT_SUCCESS;
    }
    // A size that the user asks for counts more than that of the last run.
    if (!options.isSizeGiven) shell.RestorePlace();
    shell.Show();
    for (const CString& trouble : troubles)
        shell.Tell(trouble);
    return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
    Options options;
    const std::vector<std::string> words(argv + (argc > 0 ? 1 : 0), argv + argc);
    if (const auto failure = gParseOptions(words, options)) return Fail(*failure, cnUsageStatus);
    if (options.isHelp) {
        std::cout << gUsageText() << "\nCommands for scripts:\n"
                  << gDescribeAllCommands() << gDescribe(NavigatorCommand::Help());
        return EXIT_SUCCESS;
    }
    if (options.isVersion) {
        std::cout << "navigator " << csVappVersion << '\n';
        return EXIT_SUCCESS;
    }
    // The controls speak the active code page; here that is always UTF-8, whatever the locale says, so that
    // no name of a file is lost.
    gSetActiveCodePage(cnUtf8CodePage);
    return options.isDump ? Dump(options) : RunWindow(options, argc, argv);
}
