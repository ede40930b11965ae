/// @file
/// Sets a variable of the real environment for one test; implemented once for each system.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/Environment.h"

namespace path_test {

/// Whether the system matches names of variables without regard to case.
extern const bool cnNamesIgnoreCase;

/// Whether a variable can be set to nothing, or is then removed.
extern const bool cnValuesMayBeEmpty;

/// Sets a variable, or with nothing removes it.
void SetVariable(std::u16string_view name, const std::optional<std::u16string>& value);

/// A variable for one test; what was there before comes back.
class VariableGuard {
public:
    VariableGuard(std::u16string name, const std::u16string& value)
        : m_name(std::move(name)), m_before(vapp_platform::GetEnvironmentValue(m_name)) {
        SetVariable(m_name, value);
    }
    ~VariableGuard() { SetVariable(m_name, m_before); }
    VariableGuard(const VariableGuard&) = delete;
    VariableGuard& operator=(const VariableGuard&) = delete;

private:
    std::u16string m_name;
    std::optional<std::u16string> m_before;
};

}  // namespace path_test
