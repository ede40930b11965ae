/// The document that is built in.

#include "host/ProtocolText.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace navigator {
namespace {

TEST(ProtocolText, IsTheDocumentLetterForLetter) {
    std::ostringstream document;
    document << std::ifstream(PROTOCOL_DOCUMENT, std::ios::binary).rdbuf();
    ASSERT_GT(document.str().size(), 1000u);
    EXPECT_EQ(document.str(), gProtocolText());
}

}  // namespace
}  // namespace navigator
