/// @file
/// One operation, one function of Wine's: found, called, its memory taken over.
#include "platform/WineEntryPoints.h"

#include <memory>
#include <string>

namespace vapp_platform {

namespace {

struct TReleaser {
    const TEntryPointFinder* finder;
    void operator()(void* memory) const noexcept { finder->Release(memory); }
};
// Wine's wide character has 16 bits on every system.
using TWideMemory = std::unique_ptr<char16_t, TReleaser>;
using TNarrowMemory = std::unique_ptr<char, TReleaser>;

template <typename Function>
Function FindAs(const TEntryPointFinder& finder, const char* name) noexcept {
    return reinterpret_cast<Function>(finder.Find(name));
}

}  // namespace

std::optional<CStringU> TWineEntryPoints::DosFileName(const char* unixPath) const {
    const auto function = FindAs<char16_t* (*)(const char*)>(m_finder, "wine_get_dos_file_name");
    if (function == nullptr) return std::nullopt;
    const TWideMemory name(function(unixPath), TReleaser{&m_finder});
    return CStringU(name.get());
}

std::optional<CString> TWineEntryPoints::UnixFileName(const CStringU& dosPath) const {
    const auto function = FindAs<char* (*)(const char16_t*)>(m_finder, "wine_get_unix_stripped_file_name");
    if (function == nullptr) return std::nullopt;
    const TNarrowMemory name(function(dosPath.ToWide().c_str()), TReleaser{&m_finder});
    return CString(name.get());
}

std::optional<CString> TWineEntryPoints::GetVariable(const char* name) const {
    const auto function = FindAs<char* (*)(const char*)>(m_finder, "wine_get_unix_env");
    if (function == nullptr) return std::nullopt;
    const TNarrowMemory value(function(name), TReleaser{&m_finder});
    return CString(value.get());
}

std::optional<int> TWineEntryPoints::SetVariable(const char* name, const char* value, int overwrite) const {
    const auto function = FindAs<int (*)(const char*, const char*, int)>(m_finder, "wine_set_unix_env");
    if (function == nullptr) return std::nullopt;
    return function(name, value, overwrite);
}

std::optional<int> TWineEntryPoints::UnsetVariable(const char* name) const {
    const auto function = FindAs<int (*)(const char*)>(m_finder, "wine_unset_unix_env");
    if (function == nullptr) return std::nullopt;
    return function(name);
}

std::optional<int> TWineEntryPoints::PutVariable(const char* assignment) const {
    const auto function = FindAs<int (*)(const char*)>(m_finder, "wine_put_unix_env");
    if (function == nullptr) return std::nullopt;
    return function(assignment);
}

}  // namespace vapp_platform
