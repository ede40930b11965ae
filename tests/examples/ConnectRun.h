/// @file
/// The example programs `connect` and `worker` as their users run them.
#pragma once

#include <string>
#include <vector>

namespace example_test {

struct TRun {
    int m_result = -1;
    /// Output and errors, as they came; line ends are bare line feeds.
    std::string m_said;

    [[nodiscard]] bool Has(const std::string& part) const { return m_said.find(part) != std::string::npos; }
};

/// Runs `connect` with this on its input to its end.
[[nodiscard]] TRun Connect(const std::vector<std::string>& arguments, const std::string& input = {});

/// Where `worker` lies.
[[nodiscard]] std::string WorkerProgram();

}  // namespace example_test
