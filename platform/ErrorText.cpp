/// @file
/// The fixed texts stand for codes whose system text would leave the user guessing which module was meant.
#include "platform/ErrorText.h"

#include "platform/SystemError.h"

namespace {

constexpr std::uint32_t cnModuleNotFound = 126;
constexpr std::uint32_t cnBadProgramFormat = 193;

}  // namespace

CStringU gGetErrorText(std::uint32_t code) {
    if (code == cnModuleNotFound) {
        return "The specified module or one of its sub-modules could not be found.";
    }
    if (code == cnBadProgramFormat) return "It is not valid Win64 application.";
    return vapp_platform::SystemErrorText(code);
}

CStringU gGetLastErrorText(const CStringU& prefix, std::uint32_t* code) {
    // Asked before anything else here can fail and change it.
    const std::uint32_t last = vapp_platform::LastErrorCode();
    if (code != nullptr) *code = last;
    const CStringU text = gGetErrorText(last);
    if (prefix.IsEmpty() || text.IsEmpty()) return prefix + text;
    return prefix + '\n' + text;
}
