/// @file
/// Another instance of an application: a process that says how its start went and stays until it is told to
/// end, or is killed; and one that says what its application object was told.
#pragma once

#include <optional>
#include <string>

#include "tests/platform/ChildRoles.h"

namespace app_test {

/// Adds the roles of these processes. To be called before PlayChildRole.
void AddInstanceRoles();

class OtherInstance {
public:
    /// Starts it, and waits until it has said its answer. Without a name it is known by its program.
    OtherInstance(const std::string& name, int limit);

    /// What CheckMaxAllowedInstances answered there.
    [[nodiscard]] std::string Answer() const { return m_answer; }
    /// Lets it end by itself.
    void End();
    /// Ends it as a crash would: nothing of it runs any more.
    void Kill();

private:
    platform_test::PipedChild m_process;
    std::string m_answer;
};

}  // namespace app_test
