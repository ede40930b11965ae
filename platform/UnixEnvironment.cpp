/// @file
/// Passes on to the Unix side, if this world has one.
#include "platform/UnixEnvironment.h"

namespace vapp_platform {

namespace {

constexpr int cnNoUnixSide = -1;

}  // namespace

CStringU GetUnixEnv(const char* name, World world, const TUnixSide& unixSide) {
    if (world != World::Wine || name == nullptr) return {};
    const std::optional<CString> value = unixSide.GetVariable(name);
    // NATIVE: a value comes in the active code page.
    return value ? CStringU(*value) : CStringU();
}

int SetUnixEnv(const char* name, const char* value, int overwrite, World world, const TUnixSide& unixSide) {
    if (world != World::Wine || name == nullptr || value == nullptr) return cnNoUnixSide;
    return unixSide.SetVariable(name, value, overwrite).value_or(cnNoUnixSide);
}

int UnsetUnixEnv(const char* name, World world, const TUnixSide& unixSide) {
    if (world != World::Wine || name == nullptr) return cnNoUnixSide;
    return unixSide.UnsetVariable(name).value_or(cnNoUnixSide);
}

int PutUnixEnv(const char* assignment, World world, const TUnixSide& unixSide) {
    if (world != World::Wine || assignment == nullptr) return cnNoUnixSide;
    return unixSide.PutVariable(assignment).value_or(cnNoUnixSide);
}

}  // namespace vapp_platform

using vapp_platform::CurrentWorld;
using vapp_platform::SystemUnixSide;

CStringU gGetUnixEnv(const char* name) {
    return vapp_platform::GetUnixEnv(name, CurrentWorld(), SystemUnixSide());
}

int gSetUnixEnv(const char* name, const char* value, int overwrite) {
    return vapp_platform::SetUnixEnv(name, value, overwrite, CurrentWorld(), SystemUnixSide());
}

int gUnsetUnixEnv(const char* name) {
    return vapp_platform::UnsetUnixEnv(name, CurrentWorld(), SystemUnixSide());
}

int gPutUnixEnv(const char* assignment) {
    return vapp_platform::PutUnixEnv(assignment, CurrentWorld(), SystemUnixSide());
}
