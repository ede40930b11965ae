/// @file
/// The programs' places come from the build.
#include "tests/examples/ConnectRun.h"

#include <string>
#include <thread>

#include "platform/CommandLine.h"
#include "tests/platform/ChildRoles.h"

namespace example_test {

std::string WorkerProgram() {
    return VAPP_TEST_WORKER;
}

TRun Connect(const std::vector<std::string>& arguments, const std::string& input) {
    std::vector<std::string> all = {VAPP_TEST_CONNECT};
    all.insert(all.end(), arguments.begin(), arguments.end());
    vapp_platform::ChildStart start;
    start.commandLine = {vapp_platform::JoinCommandLine(all).c_str(), TextEncoding::Utf8Auto};
    const platform_test::PipedChild connect = platform_test::StartPiped(start);
    TRun run;
    if (connect.child == nullptr) {
        run.m_said = "not started";
        return run;
    }
    {
        // Both ways at once: what comes back can fill its pipe before all has gone out.
        const std::jthread writer([&] {
            platform_test::WriteAll(*connect.input, input);
            connect.input->Close();
        });
        run.m_said = platform_test::ReadAll(*connect.output);
    }
    std::erase(run.m_said, '\r');
    if (connect.child->WaitFor(platform_test::cnLong)) run.m_result = connect.child->GetExitStatus().code;
    return run;
}

}  // namespace example_test
