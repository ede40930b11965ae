/// @file
/// A folder for the places of instances, in the place of the user's own while it lives; and names that no
/// other test or run has.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <random>
#include <string>

#include "platform/ChildEnvironment.h"
#include "tests/platform/TemporaryFolder.h"

namespace platform_test {

/// The variable has a value while this lives.
class ScopedVariable {
public:
    ScopedVariable(const char* name, const std::string& value) : m_name(name) {
        if (const char* former = std::getenv(name)) m_former = former;
        vapp_platform::SetEnvironmentValue(m_name, value.c_str());
    }
    ~ScopedVariable() {
        if (m_former) {
            vapp_platform::SetEnvironmentValue(m_name, m_former->c_str());
        } else {
            vapp_platform::UnsetEnvironmentValue(m_name);
        }
    }
    ScopedVariable(const ScopedVariable&) = delete;
    ScopedVariable& operator=(const ScopedVariable&) = delete;

private:
    const char* m_name;
    std::optional<std::string> m_former;
};

/// Places are kept in here; on Windows they need no folder, and the name alone keeps tests apart.
class InstanceFolder {
public:
    InstanceFolder()
        : m_runtime("XDG_RUNTIME_DIR", Private("runtime")), m_data("XDG_DATA_HOME", Private("data")) {}

    const TTemporaryFolder folder;
    const std::string name = "test " + std::to_string(std::random_device()());

private:
    std::string Private(const char* below) const {
        folder.MakeFolder(below);
        const std::filesystem::path path = folder.Native(below);
        std::filesystem::permissions(path, std::filesystem::perms::owner_all);
        return path.string();
    }

    ScopedVariable m_runtime;
    ScopedVariable m_data;
};

}  // namespace platform_test
