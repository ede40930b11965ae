/// What the log keeps, and what it tells.

#include "host/ActionLog.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace navigator_test {
namespace {

using navigator::ActionLog;

TEST(ActionLogTest, TellsEachEntryAndKeepsTheLast) {
    ActionLog log;
    std::vector<std::string> told;
    log.SetHandler(
        [&](const ActionLog::TEntry* entry) { told.push_back(entry != nullptr ? entry->text : "cleared"); });
    log.Add(ActionLog::TKind::Action, "one");
    log.Add(ActionLog::TKind::Failure, "two");
    log.Clear();
    EXPECT_EQ(told, (std::vector<std::string>{"one", "two", "cleared"}));
    EXPECT_TRUE(log.Entries().empty());
    for (std::size_t line = 0; line < ActionLog::cnMostKept + 3; ++line)
        log.Add(ActionLog::TKind::Action, std::to_string(line));
    EXPECT_EQ(log.Entries().size(), ActionLog::cnMostKept);
    EXPECT_EQ(log.Entries().front().text, "3");
}

TEST(ActionLogTest, ALongLineIsKeptInPartAndCutBetweenCharacters) {
    ActionLog log;
    // Characters of two bytes, so that the limit falls into one of them.
    std::string text = "x";
    for (std::size_t count = 0; count < ActionLog::cnMostBytes; ++count)
        text += "\xC3\xA4";
    log.Add(ActionLog::TKind::Action, text);
    const std::string& kept = log.Entries().back().text;
    const std::size_t cut = ActionLog::cnMostBytes - 1;
    EXPECT_EQ(kept, text.substr(0, cut) + " ... (" + std::to_string(text.size() - cut) + " bytes more)");
}

TEST(ActionLogTest, BytesThatAreNoTextEndTheCutToo) {
    ActionLog log;
    log.Add(ActionLog::TKind::Action, std::string(ActionLog::cnMostBytes + 1, '\x80'));
    EXPECT_EQ(log.Entries().back().text, " ... (4001 bytes more)");
}

TEST(ActionLogTest, WhoIsToldMayClearTheLog) {
    ActionLog log;
    std::string seen;
    log.SetHandler([&](const ActionLog::TEntry* entry) {
        if (entry == nullptr) return;
        log.Clear();
        seen = entry->text;
    });
    log.Add(ActionLog::TKind::Action, "a line that is long enough to be on the heap");
    EXPECT_EQ(seen, "a line that is long enough to be on the heap");
}

}  // namespace
}  // namespace navigator_test
