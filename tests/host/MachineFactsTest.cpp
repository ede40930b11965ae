/// The facts of a support report.

#include "host/MachineFacts.h"

#include <gmock/gmock.h>

#include "vapp/platform/TOsInfo.h"

namespace navigator_test {
namespace {

using testing::ContainsRegex;
using testing::HasSubstr;

TEST(MachineFacts, TellWhatTheMachineIs) {
    const TOsInfo machine;
    const std::string facts = navigator::gMachineFacts(machine);
    EXPECT_THAT(facts, HasSubstr(std::string("system: ") + machine.GetOsName().Payload() + '\n'));
    EXPECT_THAT(facts, HasSubstr(std::string("processor: ") + machine.GetCpuName().Payload() + '\n'));
    EXPECT_THAT(facts, ContainsRegex("processors, cores, packages: [1-9][0-9]*, [1-9][0-9]*, [1-9]"));
    EXPECT_THAT(facts, ContainsRegex("time stamps: [0-9]+ MHz\n"));
    EXPECT_THAT(facts, ContainsRegex("administrator: (yes|no)\n"));
    EXPECT_EQ('\n', facts.back());
}

TEST(MachineFacts, WhatWindowsCallsItselfIsToldWhereThereIsWindows) {
    TOsInfo machine;
    machine.m_versionInfo.dwPlatformId = 0;
    EXPECT_THAT(navigator::gMachineFacts(machine), testing::Not(HasSubstr("Windows programs")));
    machine.m_versionInfo.dwPlatformId = 2;
    const bool isOther = machine.GetOsName() != machine.GetWindowsName();
    EXPECT_EQ(isOther, navigator::gMachineFacts(machine).find("Windows programs") != std::string::npos);
}

}  // namespace
}  // namespace navigator_test
