#include "tests/platform/SystemEnvironment.h"

#include <cstdlib>

#include "platform/posix/NativeText.h"

namespace path_test {

const bool cnNamesIgnoreCase = false;
const bool cnValuesMayBeEmpty = true;

void SetVariable(std::u16string_view name, const std::optional<std::u16string>& value) {
    const std::string native = vapp_platform::NativeFromUtf16(name);
    if (value) {
        setenv(native.c_str(), vapp_platform::NativeFromUtf16(*value).c_str(), 1);
    } else {
        unsetenv(native.c_str());
    }
}

}  // namespace path_test
