/// @file
/// The Unix side of a process that lives in two worlds: names of files and environment variables there.
///
/// Windows has no such side, and a Wine may lack any of these services: an operation then gives nullopt, and
/// its caller the plain answer of Windows. Native Linux has all of them, and nothing to translate.
///
/// The surprise: a name over there is bytes, and bytes need not be text. Wine does with them what its locale
/// and the active code page make of them; native Linux reads and writes them as all names of files there, so
/// that each opens, whatever is in it.
#pragma once

#include <optional>

#include "vapp/text/CString.h"
#include "vapp/text/CStringU.h"

namespace vapp_platform {

class TUnixSide {
public:
    /// The Windows name of a Unix path that is told in the side's own bytes; empty where there is none.
    [[nodiscard]] virtual std::optional<CStringU> DosFileName(const char* unixPath) const = 0;
    /// The Unix name of a Windows path, in the side's own bytes; empty where there is none.
    [[nodiscard]] virtual std::optional<CString> UnixFileName(const CStringU& dosPath) const = 0;

    /// A path in narrow text that no service has to translate, as text.
    [[nodiscard]] virtual CStringU TextOfPlainPath(const char* path) const { return {path}; }
    /// A Unix name as text, and a text as a Unix name; UTF-8, unless the side knows better.
    [[nodiscard]] virtual CStringU TextOfUnixName(const CString& name) const {
        return {name, TextEncoding::Utf8Auto};
    }
    [[nodiscard]] virtual CString UnixNameOfText(const CStringU& text) const { return text.StripMarker(); }

    /// The value of a variable; empty where it is unset.
    [[nodiscard]] virtual std::optional<CString> GetVariable(const char* name) const = 0;
    /// The side's own answers: 0 for done.
    [[nodiscard]] virtual std::optional<int> SetVariable(const char* name, const char* value,
                                                         int overwrite) const = 0;
    [[nodiscard]] virtual std::optional<int> UnsetVariable(const char* name) const = 0;
    [[nodiscard]] virtual std::optional<int> PutVariable(const char* assignment) const = 0;

protected:
    TUnixSide() = default;
    TUnixSide(const TUnixSide&) = default;
    TUnixSide& operator=(const TUnixSide&) = default;
    // Nobody deletes one, and nothing runs for the process's own at its end, when a host may still ask.
    ~TUnixSide() = default;
};

/// This process's. Implemented once for each system.
[[nodiscard]] const TUnixSide& SystemUnixSide() noexcept;

}  // namespace vapp_platform
