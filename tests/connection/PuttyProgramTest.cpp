#include "connection/PuttyProgram.h"

#include <gtest/gtest.h>

#include "platform/KnownFolders.h"

namespace {

TEST(PuttyProgramTest, IsBelowTheModulesFolderInQuotesAndWithBackslashesOnEverySystem) {
    EXPECT_EQ(vapp_connection::QuotedPuttyProgram("psftp.exe"),
              CStringU("\"") + gGetModuleFolder() + "\\putty\\bin\\psftp.exe\"");
}

}  // namespace
