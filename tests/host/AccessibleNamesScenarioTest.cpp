/// What assistive technology is told of the whole window: each control that can be used has a name, and those
/// of the library's own are in the user's language.

#include <gmock/gmock.h>

#include <QAccessible>
#include <QApplication>
#include <QMainWindow>
#include <QPointer>
#include <functional>
#include <set>
#include <string>

#include "host/HelpWindow.h"
#include "host/Navigator.h"
#include "host/NavigatorApp.h"
#include "host/QtShell.h"
#include "host/TextViewer.h"
#include "tests/host/TempFolder.h"
#include "vapp/browser/CExcludeDlg.h"
#include "vapp/text/ActiveCodePage.h"
#include "vapp/text/Translate.h"
#include "vapp/toolkit/MemoryProfileStore.h"
#include "vapp/toolkit/qt/QtPeerFactory.h"

namespace navigator_test {
namespace {

using testing::Contains;
using testing::IsSupersetOf;

bool IsReachedByTab(const QObject* object) {
    const auto* const widget = qobject_cast<const QWidget*>(object);
    return widget != nullptr && (widget->focusPolicy() & Qt::TabFocus) != 0;
}

/// What a user does something with, by a mouse or by keys. Bars to scroll are parts of a control, and have
/// its name; so have the places where a control keeps others.
bool IsUsed(const QAccessibleInterface& face) {
    switch (face.role()) {
        case QAccessible::Client:
        case QAccessible::Window:
        case QAccessible::ScrollBar:
        case QAccessible::Grouping:
            return IsReachedByTab(face.object());
        case QAccessible::Button:
        case QAccessible::CheckBox:
        case QAccessible::ComboBox:
        case QAccessible::EditableText:
        case QAccessible::Grip:
        case QAccessible::Link:
        case QAccessible::List:
        case QAccessible::MenuItem:
        case QAccessible::PageTab:
        case QAccessible::PageTabList:
        case QAccessible::RadioButton:
        case QAccessible::Slider:
        case QAccessible::SpinBox:
        case QAccessible::Splitter:
        case QAccessible::Table:
        case QAccessible::Tree:
            return true;
        default:
            return face.state().focusable;
    }
}

std::string DescribeFace(QAccessibleInterface& face) {
    const QObject* const object = face.object();
    return "role " + std::to_string(face.role()) + " " +
           (object != nullptr
                ? std::string(object->metaObject()->className()) + " " + object->objectName().toStdString()
                : std::string("without an object"));
}

/// Names of all controls that are used, below this one; a failure for each that has none.
void CollectNames(QAccessibleInterface* face, std::multiset<std::string>& names) {
    if (face == nullptr || !face->isValid() || face->state().invisible) return;
    const std::string name = face->text(QAccessible::Name).toStdString();
    if (IsUsed(*face)) {
        EXPECT_NE(name, "") << DescribeFace(*face);
        names.insert(name);
    }
    // What rows say is data; a closed list of a combo box has no face of its own.
    const bool isOfData = face->role() == QAccessible::Table || face->role() == QAccessible::List ||
                          face->role() == QAccessible::ComboBox;
    for (int child = 0; !isOfData && child < face->childCount(); ++child)
        CollectNames(face->child(child), names);
}

std::multiset<std::string> NamesIn(QWidget& window) {
    std::multiset<std::string> names;
    CollectNames(QAccessible::queryAccessibleInterface(&window), names);
    return names;
}

class AccessibleNamesTest : public testing::Test {
protected:
    void SetUp() override {
        gSetActiveCodePage(cnUtf8CodePage);
        m_folder.Write("lib/inv.sym", "v {}\n");
        m_app.SetProfileStore(std::make_unique<MemoryProfileStore>());
    }
    void TearDown() override {
        m_shell.reset();
        m_navigator.reset();
        vlang::gClearTranslations();
        PeerFactory::Install(nullptr);
        gSetActiveCodePage(0);
    }
    /// The whole window, with console and log.
    QMainWindow& Open() {
        m_navigator = std::make_unique<navigator::Navigator>(m_app);
        m_shell = std::make_unique<navigator::QtShell>(*m_navigator);
        EXPECT_FALSE(m_navigator->OpenFolder(m_folder.Path()));
        m_navigator->CreateWindow(1400, 1000, false);
        m_navigator->LoadSetup();
        m_shell->Equip(&m_app);
        m_shell->Show();
        QApplication::processEvents();
        return dynamic_cast<QMainWindow&>(*gWidgetOf(m_navigator->Frame()));
    }

    TempFolder m_folder;
    navigator::NavigatorApp m_app;
    std::unique_ptr<navigator::Navigator> m_navigator;
    std::unique_ptr<navigator::QtShell> m_shell;
};

TEST_F(AccessibleNamesTest, EveryControlOfTheWindowHasOne) {
    EXPECT_THAT(NamesIn(Open()),
                IsSupersetOf({"Designs", "Libraries", "Filter type", "Filter cells", "Recent filters",
                              "Cells", "Tcl command", "Log of actions", "Height of pane 1"}));
}

TEST_F(AccessibleNamesTest, EveryControlOfTheOtherWindowsHasOne) {
    QMainWindow& window = Open();
    const auto file = m_folder.Path() / "lib/inv.sym";
    auto& viewer = navigator::TextViewer::Show({"d", "lib", "inv", "symbol"}, file, window);
    EXPECT_THAT(NamesIn(viewer), IsSupersetOf({"Text of the view", "Find in the text"}));
    navigator::HelpWindow help(&window);
    help.show();
    EXPECT_FALSE(NamesIn(help).empty());
    vapp_library_browser::CExcludeDlg dialog(&m_navigator->Frame());
    ASSERT_TRUE(dialog.Open());
    dialog.ShowWindow(true);
    EXPECT_GE(NamesIn(*gWidgetOf(dialog)).size(), 3u);
    dialog.DestroyWindow();
    navigator::AboutWindow about("facts", &window);
    about.show();
    EXPECT_FALSE(NamesIn(about).empty());
}

TEST_F(AccessibleNamesTest, ThoseOfTheLibrarySpeakTheUsersLanguage) {
    // A strip of tabs is called as the tab that is shown; so Qt has it.
    const char* const keys[] = {"Designs",      "Libraries",      "Filter type",
                                "Filter cells", "Recent filters", "Cells"};
    for (const std::string key : keys)
        vlang::gSetTranslation((vlang::csKeyPrefix + key).c_str(), ("~" + key).c_str());
    const std::multiset<std::string> names = NamesIn(Open());
    for (const std::string key : keys)
        EXPECT_THAT(names, Contains("~" + key));
}

}  // namespace
}  // namespace navigator_test
