/// @file
/// The answer is one sign on standard output; the end of standard input is the word to go.
#include "tests/app/InstanceRoles.h"

#include <gtest/gtest.h>

#include <cstdio>

#include "app/COXInstanceManager.h"
#include "vapp/app/TApp.h"

namespace app_test {

namespace {

int BeAnInstance(const std::vector<std::string>& arguments) {
    const std::string& name = arguments.at(0);
    COXInstanceManager manager(name.empty() ? nullptr : name.c_str());
    manager.SetMaxAllowedInstances(static_cast<std::uint32_t>(std::stoul(arguments.at(1))));
    std::fputc('0' + manager.CheckMaxAllowedInstances(), stdout);
    std::fflush(stdout);
    while (std::fgetc(stdin) != EOF) {
    }
    return 0;
}

int SayWhatAnApplicationWasTold(const std::vector<std::string>& /*arguments*/) {
    const TApp app;
    std::printf("%zu:", app.GetArguments().size());
    const char* separator = " ";
    for (const CStringU& word : app.GetArguments()) {
        std::printf("%s%s", separator, word.Payload());
        separator = ", ";
    }
    std::fflush(stdout);
    return 0;
}

}  // namespace

void AddInstanceRoles() {
    platform_test::AddRole("application", SayWhatAnApplicationWasTold);
    platform_test::AddRole("instance", BeAnInstance);
}

OtherInstance::OtherInstance(const std::string& name, int limit)
    : m_process(platform_test::StartRole("instance", {name, std::to_string(limit)})) {
    char sign = '?';
    EXPECT_NE(m_process.child, nullptr);
    if (m_process.child == nullptr) return;
    EXPECT_EQ(m_process.output->Read(&sign, 1).count, 1);
    m_answer = sign;
}

void OtherInstance::End() {
    m_process.input.reset();
    EXPECT_TRUE(m_process.child->WaitFor(platform_test::cnLong));
}

void OtherInstance::Kill() {
    EXPECT_TRUE(m_process.child->Terminate());
    EXPECT_TRUE(m_process.child->WaitFor(platform_test::cnLong));
}

}  // namespace app_test
