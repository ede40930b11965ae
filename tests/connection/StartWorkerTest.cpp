#include "connection/StartWorker.h"

#include "platform/KnownFolders.h"
#include "tests/connection/ConnectionTest.h"
#include "vapp/text/Translate.h"

namespace {

using connection_test::ConnectionTest;
using connection_test::Text;

struct StartWorkerTest : ConnectionTest {};

TEST_F(StartWorkerTest, ALocalWorkersLineIsItsCommandAlone) {
    ConnectionInfo info;
    info.sshTarget = "me@there";
    info.command = "work --fast";
    info.runLocally = true;
    EXPECT_EQ(vapp_connection::WorkerCommandLine(info), "work --fast");
}

TEST_F(StartWorkerTest, ARemoteWorkersLineQuotesTheLoginProgramAndNothingElse) {
    ConnectionInfo info;
    info.sshTarget = "-P 22 me@there";
    info.command = "work \"a b\"";
    info.runLocally = false;
    EXPECT_EQ(Text(vapp_connection::WorkerCommandLine(info)),
              "\"" + Text(gGetModuleFolder()) +
                  "\\putty\\bin\\plink.exe\" -batch -X -T -P 22 me@there work \"a b\"");
}

TEST_F(StartWorkerTest, AStartThatFailsShowsOneBoxWithTheSameTextTwice) {
    vapp_platform::ChildStart start;
    start.commandLine = "vapp-no-such-worker";
    EXPECT_EQ(vapp_connection::StartWorker(start), nullptr);
    EXPECT_EQ(s_boxes, std::vector<std::string>{"Create Process Failed/Create Process Failed"});

    vlang::gSetTranslation("__$$Translatable$$_Create Process Failed", "Kein Prozess");
    EXPECT_EQ(vapp_connection::StartWorker(start), nullptr);
    EXPECT_EQ(s_boxes.back(), "Kein Prozess/Kein Prozess");
    vlang::gClearTranslations();
}

}  // namespace
