// Step 7: the same tool on a screen, by Qt: widgets, settings in a file or in the registry, a menu, pictures.
#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QPainter>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "step2_database/Database.h"
#include "vapp/app/TApp.h"
#include "vapp/browser/CExcludeDlg.h"
#include "vapp/browser/Messages.h"
#include "vapp/browser/TLibraryBrowser.h"
#include "vapp/text/ActiveCodePage.h"
#include "vapp/toolkit/CFrameWnd.h"
#include "vapp/toolkit/WindowPlacement.h"
#include "vapp/toolkit/qt/QtBitmap.h"
#include "vapp/toolkit/qt/QtIdle.h"
#include "vapp/toolkit/qt/QtPeerFactory.h"
#include "vapp/toolkit/qt/QtProfileStore.h"
#include "vapp/toolkit/qt/QtTheme.h"

using namespace vapp_library_browser;

namespace {

// -settings=FILE in place of the user's own settings; -picture=FILE draws the window into a file, and ends.
class ToolWords final : public CCommandLineInfo {
public:
    void ParseParam(const CStringU& word, bool isSwitch, bool isLast) override {
        const std::string text = word.Payload();
        if (isSwitch && text.starts_with("settings=")) {
            settings = text.substr(9);
        } else if (isSwitch && text.starts_with("picture=")) {
            picture = text.substr(8);
        } else {
            CCommandLineInfo::ParseParam(word, isSwitch, isLast);
        }
    }
    std::string settings;
    std::string picture;
};

class LayoutTool final : public TApp {
public:
    LayoutTool() : TApp("layout_tool") {}
    unsigned long GetInstanceLimit() override { return 0; }
    CCommandLineInfo* GetCmdInfo() override { return &words; }
    ToolWords words;
};

class Frame final : public CFrameWnd {
public:
    ~Frame() override { DestroyWindow(); }
    [[nodiscard]] QMainWindow& Widget() const { return dynamic_cast<QMainWindow&>(*gWidgetOf(*this)); }
};

// Draws what the navigator asks for; the picture must live as long as it is shown.
class Preview {
public:
    Preview(Tcl_Interp* interp, TLibraryBrowser& browser) : m_interp(interp), m_browser(browser) {
        Tcl_CreateObjCommand(interp, "librarynavigator", &Preview::Answer, this, nullptr);
    }
    ~Preview() { Tcl_DeleteCommand(m_interp, "librarynavigator"); }
    Preview(const Preview&) = delete;
    Preview& operator=(const Preview&) = delete;

private:
    static int Answer(ClientData self, Tcl_Interp* interp, int count, Tcl_Obj* const words[]) {
        auto& preview = *static_cast<Preview*>(self);
        std::string cell;
        int width = 1;
        int height = 1;
        for (int at = 3; at + 1 < count; at += 2) {
            const std::string option = Tcl_GetString(words[at]);
            if (option == "-cell") cell = Tcl_GetString(words[at + 1]);
            if (option == "-bmwidth") Tcl_GetIntFromObj(interp, words[at + 1], &width);
            if (option == "-bmheight") Tcl_GetIntFromObj(interp, words[at + 1], &height);
        }
        const QRect area(0, 0, width, height);
        QImage image(area.size() * qGuiApp->devicePixelRatio(), QImage::Format_RGB32);
        image.setDevicePixelRatio(qGuiApp->devicePixelRatio());
        image.fill(Qt::white);
        QPainter(&image).drawText(area, Qt::AlignCenter, QString::fromStdString(cell));
        QtBitmap bitmap(image);
        preview.m_browser.SetPreview(false, CStringU(cell.c_str(), TextEncoding::Utf8Auto), bitmap.Get());
        preview.m_bitmap = std::move(bitmap);
        return TCL_OK;
    }

    Tcl_Interp* m_interp;
    TLibraryBrowser& m_browser;
    QtBitmap m_bitmap;
};

// The words of the command line that are not Qt's: the value of an option of Qt would be taken for a file.
std::vector<CStringU> OwnWords() {
    std::vector<CStringU> words;
    const QStringList left = QCoreApplication::arguments();
    for (qsizetype at = 1; at < left.size(); ++at)
        words.emplace_back(left[at].toUtf8().constData(), TextEncoding::Utf8Auto);
    return words;
}

void PrintTrouble(const CString& sentence) {
    std::fprintf(stderr, "%s\n", sentence.GetString());
}

std::unique_ptr<ProfileStore> OpenSettings(const ToolWords& words) {
    return words.settings.empty() ? QtProfileStore::ForUser("Example", "layout_tool", &PrintTrouble)
                                  : QtProfileStore::InFile(words.settings.c_str(), &PrintTrouble);
}

void PutBack(QWidget& window) {
    TWindowPlacement place;
    if (!gReadWindowPlacement(&place, "WindowPos")) return;
    ClipOrCenterRectToMonitor(&place.normal, cnMonitorClip);
    window.move(place.normal.left, place.normal.top);
    window.resize(place.normal.Width(), place.normal.Height());
}

void KeepPlace(const QWidget& window) {
    const QRect place(window.pos(), window.size());
    gWriteWindowPlacement({CRect(place.left(), place.top(), place.right() + 1, place.bottom() + 1)},
                          "WindowPos");
}

int ShowWindow(const ToolWords& words, Frame& frame, TLibraryBrowser& browser, Database& database) {
    gApplyTheme(false);
    QMenu* menu = frame.Widget().menuBar()->addMenu("&View");
    menu->addAction("&Views left out...", [&frame, &browser, &database] {
        if (CExcludeDlg(&frame).DoModal() != IDOK) return;
        database.ExcludeViews(browser.GetExcludeViewNames().GetString());
        browser.RequestCellListViewDelayedPopulate(UpdateAlways);
    });
    menu->addAction("&Refresh", [&browser] {
        browser.RequestLibraryViewDelayedPopulate();
        browser.RequestCellListViewDelayedPopulate(UpdateAlways);
    });
    // Whenever Qt has nothing else to do, what is out of date is refreshed; not under an open menu.
    gRunWhenIdle(frame.Widget(), [&browser] { browser.Populate(); });
    PutBack(frame.Widget());
    frame.ShowWindow(true);
    if (words.picture.empty()) return QApplication::exec();
    browser.Populate();
    browser.SelectInLibraryList("logic");
    browser.Populate();
    browser.HighlightCellInList("logic", "nand2");
    QApplication::processEvents();
    return frame.Widget().grab().save(QString::fromStdString(words.picture)) ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication qt(argc, argv);
    QtPeerFactory::Install();
    gSetActiveCodePage(cnUtf8CodePage);
    LayoutTool app;
    app.SetArguments(OwnWords());
    if (app.InitInstance() == 0) return 1;
    app.SetProfileStore(OpenSettings(app.words));
    const Interpreter interp = MakeInterpreter(argv[0]);
    Database database(interp.get());
    Frame frame;
    frame.CreateFrame("Layout tool", CRect(0, 0, 420, 900));
    app.SetMainWnd(&frame);
    TLibraryBrowser browser;
    const Preview preview(interp.get(), browser);
    browser.Initialize(&frame, interp.get(), nullptr);
    browser.AddCellViewListFilterType("All");
    browser.AddCellViewListFilterType("Layouts");
    browser.SetCellTabsText(0, "Names");
    browser.SetCellTabsText(1, "Details");
    browser.SetCellTabsText(2, "Own");
    browser.SerializeSetup(false);
    database.ExcludeViews(browser.GetExcludeViewNames().GetString());

    const int status = ShowWindow(app.words, frame, browser, database);
    KeepPlace(frame.Widget());
    browser.SerializeSetup(true);
    return status;
}
