/// @file
/// The Unix side as Wine offers it: functions of its KERNEL32, found by their names.
///
/// Found at each call and never kept, so that a Wine which lacks one gives the plain answer for that one
/// alone. What such a function gives back is memory of the process's heap and is released here.
#pragma once

#include "platform/UnixSide.h"

namespace vapp_platform {

/// Finds functions, and releases the memory that they give.
class TEntryPointFinder {
public:
    using TFunction = void (*)();

    /// Null where there is no function of that name.
    [[nodiscard]] virtual TFunction Find(const char* name) const noexcept = 0;
    /// Takes any memory that a found function gave, also null.
    virtual void Release(void* memory) const noexcept = 0;

protected:
    TEntryPointFinder() = default;
    TEntryPointFinder(const TEntryPointFinder&) = default;
    TEntryPointFinder& operator=(const TEntryPointFinder&) = default;
    // As with TUnixSide.
    ~TEntryPointFinder() = default;
};

class TWineEntryPoints final : public TUnixSide {
public:
    /// The finder must outlive this.
    explicit TWineEntryPoints(const TEntryPointFinder& finder) noexcept : m_finder(finder) {}

    [[nodiscard]] std::optional<CStringU> DosFileName(const char* unixPath) const override;
    [[nodiscard]] std::optional<CString> UnixFileName(const CStringU& dosPath) const override;
    [[nodiscard]] std::optional<CString> GetVariable(const char* name) const override;
    [[nodiscard]] std::optional<int> SetVariable(const char* name, const char* value,
                                                 int overwrite) const override;
    [[nodiscard]] std::optional<int> UnsetVariable(const char* name) const override;
    [[nodiscard]] std::optional<int> PutVariable(const char* assignment) const override;

private:
    const TEntryPointFinder& m_finder;
};

}  // namespace vapp_platform
