/// The help text has every command.

#include "host/CommandHelp.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/DatabaseCommand.h"
#include "host/HostCommands.h"

namespace navigator {
namespace {

TEST(CommandHelp, HasEveryRowOfEveryTable) {
    const std::string text = gDescribeAllCommands();
    for (const auto& rows : {DatabaseCommand::Help(), HostCommands::Help()}) {
        for (const CommandHelp& row : rows)
            EXPECT_THAT(text, testing::HasSubstr(row.usage));
    }
}

}  // namespace
}  // namespace navigator
