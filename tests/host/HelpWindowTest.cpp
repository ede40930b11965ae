/// The windows of the help menu.

#include "host/HelpWindow.h"

#include <gmock/gmock.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>

#include "host/CellCommand.h"
#include "host/DatabaseCommand.h"
#include "host/HostCommands.h"
#include "host/NavigatorCommand.h"
#include "host/UserCommand.h"
#include "host/UserMenuCommand.h"

namespace navigator_test {
namespace {

using namespace navigator;
using testing::HasSubstr;

TEST(HelpWindowTest, ListsEveryLineThatScriptsMaySend) {
    const HelpWindow window;
    const std::string text =
        window.findChild<QPlainTextEdit*>(QStringLiteral("helpCommands"))->toPlainText().toStdString();
    int listed = 0;
    for (const auto& commands : {CellCommand::Help(), DatabaseCommand::Help(), HostCommands::Help(),
                                 NavigatorCommand::Help(), UserCommand::Help(), UserMenuCommand::Help()}) {
        for (const CommandHelp& command : commands) {
            EXPECT_THAT(text, HasSubstr(command.usage));
            ++listed;
        }
    }
    EXPECT_GT(listed, 15);
}

TEST(HelpWindowTest, ShowsTheProtocolAsAPageAndNotAsMarks) {
    const HelpWindow window;
    auto* const page = window.findChild<QTextBrowser*>(QStringLiteral("helpProtocol"));
    const std::string text = page->toPlainText().toStdString();
    EXPECT_THAT(text, HasSubstr("database cells -lcv -library DESIGN -count"));
    EXPECT_THAT(text, testing::Not(HasSubstr("|---")));
    EXPECT_FALSE(page->openLinks()) << "its links name files that are not there";
}

TEST(HelpWindowTest, TheFactsCanBeCopiedAsAWhole) {
    AboutWindow window("one: 1\ntwo: \xC3\xA4\n");
    auto* const copy = window.findChild<QPushButton*>(QStringLiteral("aboutCopy"));
    ASSERT_NE(nullptr, copy);
    QTest::mouseClick(copy, Qt::LeftButton);
    EXPECT_EQ("one: 1\ntwo: \xC3\xA4\n", QGuiApplication::clipboard()->text().toStdString());
}

TEST(HelpWindowTest, TheProgramTellsItsVersions) {
    EXPECT_THAT(gProgramFacts(), testing::ContainsRegex("^navigator: [0-9.]+\nQt: 6[0-9.]+, offscreen\n"
                                                        "Tcl: 8\\.6[0-9.]*\nscreen: [0-9]+ x [0-9]+"));
}

}  // namespace
}  // namespace navigator_test
