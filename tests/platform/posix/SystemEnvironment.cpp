#include "tests/platform/SystemEnvironment.h"

#include <cstdlib>

#include "platform/posix/NativePath.h"

namespace path_test {

const bool cnNamesIgnoreCase = false;

void SetVariable(std::u16string_view name, const std::optional<std::u16string>& value) {
    const std::string native = vapp_platform::ToNativePath(CStringU(name));
    if (value) {
        setenv(native.c_str(), vapp_platform::ToNativePath(CStringU(std::u16string_view(*value))).c_str(), 1);
    } else {
        unsetenv(native.c_str());
    }
}

}  // namespace path_test
