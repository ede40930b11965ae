#include "vapp/browser/StateWords.h"

#include <gtest/gtest.h>

using namespace vapp_library_browser;

TEST(StateWords, SayWhatHostsAndListsHaveAgreedUpon) {
    const std::pair<const CStringU*, const char*> words[] = {
        {&csLocked, "Locked"},     {&csEmpty, ""},
        {&csStdVia, "StdVia"},     {&csCustomVia, "CustomVia"},
        {&csVCell, "V-Cell"},      {&csOutOfDate, "OutOfDate"},
        {&csAutoGen, "AutoGen"},   {&csMemory, "Memory"},
        {&csNormal, "Normal"},     {&csNew, "New"},
        {&csDeleted, "Deleted"},   {&csUnresolved, "Unresolved"},
        {&csDelay, "Delay"},       {&csCycle, "Cycle"},
        {&csReading, "Reading"},   {&csModified, "Modified"},
        {&csReserved, "Reserved"}, {&csSkipped, "Skipped"},
        {&csError, "Error"},       {&csSuccess, "Success"},
    };
    for (const auto& [word, text] : words)
        EXPECT_EQ(word->Stored(), CString(text));
}
