#include "tests/platform/SystemEnvironment.h"

#include <cstdlib>

namespace path_test {

const bool cnNamesIgnoreCase = true;
const bool cnValuesMayBeEmpty = false;

void SetVariable(std::u16string_view name, const std::optional<std::u16string>& value) {
    // An assignment of nothing removes the variable.
    std::wstring assignment(name.begin(), name.end());
    assignment += L'=';
    if (value) assignment.append(value->begin(), value->end());
    _wputenv(assignment.c_str());
}

}  // namespace path_test
