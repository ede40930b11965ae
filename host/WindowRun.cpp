/// The order of a run: Qt, the peers, the settings, then the application's own start, which counts instances
/// and shows the splash, and only then anything that takes time.

#include "host/WindowRun.h"

#include <QApplication>
#include <QScreen>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <vector>

#include "host/DisplayName.h"
#include "host/NavigatorApp.h"
#include "host/QtShell.h"
#include "host/SampleFolder.h"
#include "host/SplashPicture.h"
#include "host/UserScripts.h"
#include "vapp/toolkit/Resources.h"
#include "vapp/toolkit/TMessageBox.h"
#include "vapp/toolkit/qt/QtBitmap.h"
#include "vapp/toolkit/qt/QtPeerFactory.h"
#include "vapp/toolkit/qt/QtProfileStore.h"
#include "vapp/toolkit/qt/QtTheme.h"

namespace navigator {

namespace {

/// The splash's picture in the table of pictures, as long as this lives.
class SplashResource {
public:
    SplashResource() : m_picture(gPaintSplash(qApp->devicePixelRatio())) {
        gSetBitmapResource(NavigatorApp::cnSplashBitmap, m_picture.Get());
    }
    ~SplashResource() { gSetBitmapResource(NavigatorApp::cnSplashBitmap, nullptr); }
    SplashResource(const SplashResource&) = delete;
    SplashResource& operator=(const SplashResource&) = delete;

private:
    QtBitmap m_picture;
};

/// The user's settings. Trouble with them is printed, and noted for the window.
std::unique_ptr<ProfileStore> OpenSettings(std::vector<CString>& troubles) {
    return QtProfileStore::ForUser("Vornex_EDA", "navigator", [&troubles](const CString& sentence) {
        std::cerr << "navigator: " << sentence.GetString() << '\n';
        troubles.push_back(sentence);
    });
}

/// Off screen there is no desktop that a window could tell its sizes, and Qt says so for each of them.
void TellAllButSizeHints(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (text.contains(QLatin1String("propagateSizeHints"))) return;
    std::cerr << qFormatLogMessage(type, context, text).toStdString() << '\n';
    if (type == QtFatalMsg) std::abort();
}

/// A script may be one that nobody watches: then the terminal alone is told.
int Refuse(const Options& options) {
    const std::string limit = std::to_string(options.instances);
    const std::string sentence = options.instances == 1
                                     ? "The navigator is running already. --instances 0 starts one more."
                                     : "As many navigators are running as may: " + limit + ".";
    gFail(sentence, cnBusyStatus);
    if (!options.script)
        TMessageBox(nullptr, "Library Navigator", sentence.c_str(), MB_ICONINFORMATION).DoModal();
    return cnBusyStatus;
}

void FitIntoScreen(Options& options) {
    const QScreen* const screen = QGuiApplication::primaryScreen();
    if (options.isSizeGiven || screen == nullptr) return;
    const QSize room = screen->availableSize();
    const WindowSize size = gDefaultWindowSize({room.width(), room.height()});
    options.width = size.width;
    options.height = size.height;
}

int RunStarted(NavigatorApp& app, const Options& options, const std::vector<CString>& troubles) {
    app.ShowStartupWaitMessage();
    Navigator navigator(app);
    if (const int status = gOpenFolders(navigator, options, app)) return status;
    QtShell shell(navigator);
    if (const int status = gPrepareWindow(navigator, options)) return status;
    shell.Equip(&app);
    for (const std::string& folder : options.folders)
        shell.Menu().Remember(folder);
    // A size that the user asks for counts more than that of the last run.
    if (!options.isSizeGiven) shell.RestorePlace();
    shell.Show();
    app.HideStartupWaitMessage();
    for (const CString& trouble : troubles)
        shell.Tell(trouble);
    return shell.Run();
}

}  // namespace

int gFail(const std::string& sentence, int status) {
    std::cerr << "navigator: " << sentence << '\n';
    return status;
}

int gOpenFolders(Navigator& navigator, const Options& options, const TApp& app) {
    if (options.folders.empty()) {
        const std::filesystem::path sample = gSampleFolder(app.GetProgramDirectory().Payload());
        if (const auto failure = navigator.OpenFolder(sample)) return gFail(*failure, cnUsageStatus);
    }
    for (const std::string& folder : options.folders)
        if (const auto failure = navigator.OpenFolder(folder)) return gFail(*failure, cnUsageStatus);
    for (const std::string& trouble : navigator.Store().Troubles())
        gFail(trouble, cnUsageStatus);
    return EXIT_SUCCESS;
}

int gPrepareWindow(Navigator& navigator, const Options& options) {
    navigator.CreateWindow(options.width, options.height, options.isDark);
    if (!options.isDump) navigator.AddColumns();
    if (options.scripts) {
        const std::u8string folder(options.scripts->begin(), options.scripts->end());
        if (!std::filesystem::is_directory(folder))
            return gFail("There is no folder \"" + *options.scripts + "\".", cnUsageStatus);
        gSourceScripts(navigator, folder);
    }
    for (const ActionLog::TEntry& entry : navigator.Commands().Log().Entries())
        gFail(entry.text, cnFailureStatus);
    if (options.script) {
        if (const auto failure = navigator.SourceScript(*options.script))
            return gFail(*failure, cnFailureStatus);
    }
    navigator.LoadSetup();
    return EXIT_SUCCESS;
}

int gRunWindow(Options options, int argc, char** argv) {
    const bool hasDisplay = std::getenv("DISPLAY") != nullptr || std::getenv("WAYLAND_DISPLAY") != nullptr;
    if (!hasDisplay && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        return gFail("There is no display. Use --screenshot FILE for a picture, or --dump for the list.",
                     cnFailureStatus);
    }
    const QApplication application(argc, argv);
    QtPeerFactory::Install();
    // Boxes of the start have the look of the window.
    gApplyTheme(options.isDark);
    FitIntoScreen(options);
    const std::filesystem::path own = gUserScriptFolder();
    if (!options.scripts && std::filesystem::is_directory(own)) options.scripts = gDisplayName(own.native());
    std::vector<CString> troubles;
    const SplashResource splash;
    NavigatorApp app(options);
    app.SetProfileStore(OpenSettings(troubles));
    if (app.InitInstance() == 0) return Refuse(options);
    return RunStarted(app, options, troubles);
}

int gTakePicture(const Options& options, int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(&TellAllButSizeHints);
    qputenv("QT_SCALE_FACTOR", QByteArray::number(options.scale));
    const QApplication application(argc, argv);
    NavigatorApp app(options);
    Navigator navigator(app);
    if (const int status = gOpenFolders(navigator, options, app)) return status;
    QtShell shell(navigator);
    if (const int status = gPrepareWindow(navigator, options)) return status;
    shell.Equip(&app);
    const auto failure = shell.Screenshot(*options.screenshot);
    return failure ? gFail(*failure, cnFailureStatus) : EXIT_SUCCESS;
}

}  // namespace navigator
