/// The menus of the window, by their actions.

#include "host/MainMenu.h"

#include <gmock/gmock.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QMainWindow>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>

#include "host/NavigatorApp.h"
#include "host/QtShell.h"
#include "tests/host/TempFolder.h"
#include "tests/qt/ModalAnswer.h"
#include "vapp/text/ActiveCodePage.h"
#include "vapp/toolkit/Peer.h"
#include "vapp/toolkit/qt/QtPeerFactory.h"

namespace navigator_test {
namespace {

using navigator::Navigator;
using navigator::NavigatorApp;
using navigator::QtShell;
using testing::HasSubstr;

class MainMenuTest : public testing::Test {
protected:
    struct Program {
        explicit Program(const std::filesystem::path& folder) {
            EXPECT_FALSE(navigator.OpenFolder(folder));
            navigator.CreateWindow(800, 700, false);
            navigator.LoadSetup();
            shell.Equip(&app);
            shell.Show();
            QApplication::processEvents();
        }
        NavigatorApp app;
        Navigator navigator{app};
        QtShell shell{navigator};
    };

    void SetUp() override {
        gSetActiveCodePage(cnUtf8CodePage);
        m_folder.Write("first/lib/a.sym", "v {}\n");
        m_folder.Write("a & b/lib/c.sym", "v {}\n");
        m_program.emplace(m_folder.Path() / "first");
    }
    void TearDown() override {
        m_program.reset();
        PeerFactory::Install(nullptr);
        gSetActiveCodePage(0);
    }

    [[nodiscard]] QMainWindow* Window() {
        return qobject_cast<QMainWindow*>(gWidgetOf(m_program->navigator.Frame()));
    }
    [[nodiscard]] QMenu* Menu(const char* name) { return Window()->findChild<QMenu*>(QLatin1String(name)); }
    [[nodiscard]] QStringList Recent() {
        QStringList texts;
        for (const QAction* action : Menu("recentMenu")->actions())
            texts << action->text();
        return texts;
    }
    [[nodiscard]] std::string Design() {
        return m_program->navigator.Browser().GetSelectedDesign().Payload();
    }

    TempFolder m_folder;
    std::optional<Program> m_program;
};

TEST_F(MainMenuTest, OpeningAFolderShowsItAndRemembersIt) {
    m_program->shell.Menu().Open(m_folder.Path() / "a & b");
    EXPECT_EQ("a & b", Design());
    ASSERT_EQ(1, Recent().size());
    EXPECT_TRUE(Recent()[0].startsWith(QStringLiteral("&1  "))) << Recent()[0].toStdString();
    EXPECT_TRUE(Recent()[0].endsWith(QStringLiteral("/a && b"))) << Recent()[0].toStdString();
}

TEST_F(MainMenuTest, AFolderThatIsOpenAlreadyIsOnlyChosen) {
    m_program->shell.Menu().Open(m_folder.Path() / "a & b");
    m_program->shell.Menu().Open(m_folder.Path() / "first" / ".");
    EXPECT_EQ("first", Design());
    EXPECT_EQ(2u, m_program->navigator.Store().Designs().size());
    EXPECT_EQ(2, Recent().size());
}

TEST_F(MainMenuTest, ARecentFolderThatIsGoneIsToldAndTakenOut) {
    m_program->shell.Menu().Open(m_folder.Path() / "a & b");
    m_program->shell.Menu().Remember(m_folder.Path() / "gone");
    ASSERT_EQ(2, Recent().size());
    std::string told;
    {
        const ModalAnswer answer([&told](QMessageBox& box) { told = box.text().toStdString(); });
        Menu("recentMenu")->actions()[0]->trigger();
        QTRY_VERIFY_WITH_TIMEOUT(!told.empty(), 10'000);
    }
    EXPECT_THAT(told, HasSubstr("gone"));
    EXPECT_EQ(1, Recent().size());
    navigator::RecentFolders kept;
    kept.Load(m_program->app);
    EXPECT_EQ(1u, kept.Paths().size());
    Menu("recentMenu")->actions()[0]->trigger();
    QTRY_VERIFY_WITH_TIMEOUT(Design() == "a & b", 10'000);
}

TEST_F(MainMenuTest, FoldersThatAnotherInstanceOpenedAreInTheMenu) {
    navigator::RecentFolders other;
    other.Add("/libs/other");
    other.Store(m_program->app);
    emit Menu("fileMenu")->aboutToShow();
    EXPECT_EQ(QStringList{QStringLiteral("&1  /libs/other")}, Recent());
}

TEST_F(MainMenuTest, EveryActionHasAKeyOfItsOwnInItsMenu) {
    for (const char* name : {"fileMenu", "viewMenu", "helpMenu"}) {
        QStringList keys;
        for (const QAction* action : Menu(name)->actions()) {
            if (action->isSeparator()) continue;
            const qsizetype at = action->text().indexOf(QLatin1Char('&'));
            ASSERT_GE(at, 0) << action->text().toStdString();
            const QString key = action->text().mid(at + 1, 1).toLower();
            EXPECT_FALSE(keys.contains(key)) << action->text().toStdString();
            keys << key;
        }
        EXPECT_FALSE(keys.isEmpty()) << name;
    }
}

TEST_F(MainMenuTest, HelpShowsTheProtocolAndAboutTheMachine) {
    Menu("helpMenu")->actions().front()->trigger();
    QPointer<QDialog> help = Window()->findChild<QDialog*>(QStringLiteral("helpWindow"));
    ASSERT_TRUE(help);
    EXPECT_TRUE(help->isVisible());
    QTest::keyClick(help, Qt::Key_Escape);
    QTRY_VERIFY_WITH_TIMEOUT(!help, 10'000);
    Menu("helpMenu")->actions().back()->trigger();
    QPointer<QDialog> about = Window()->findChild<QDialog*>(QStringLiteral("aboutWindow"));
    ASSERT_TRUE(about);
    const std::string facts =
        about->findChild<QPlainTextEdit*>(QStringLiteral("aboutFacts"))->toPlainText().toStdString();
    EXPECT_THAT(facts, HasSubstr(std::string("\nprocessor: ") + m_program->app.GetCpuName().Payload()));
    about->close();
    QTRY_VERIFY_WITH_TIMEOUT(!about, 10'000);
}

TEST_F(MainMenuTest, QuitClosesTheWindow) {
    Menu("fileMenu")->actions().back()->trigger();
    EXPECT_FALSE(Window()->isVisible());
}

}  // namespace
}  // namespace navigator_test
