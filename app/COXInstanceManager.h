/// @file
/// The limit of an application's instances: how many processes of one name this user may run on this machine.
///
/// Main thread only. The surprise: a process is one instance, however many managers of a name it has, and it
/// stays one until the last of them ends. Where instances can't be counted there is no limit.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/OwnedHandle.h"

class COXInstanceManager {
public:
    /// @param applicationName  what counts as the same application, byte for byte; null for all processes of
    ///                         this very program file.
    explicit COXInstanceManager(const char* applicationName);

    /// How many processes may run; 0 is no limit, and there is none at first.
    void SetMaxAllowedInstances(std::uint32_t limit) noexcept { m_limit = limit; }
    /// 0: this process counts as an instance from now on, until this object ends. 1: as many others run
    /// already as are allowed in all. A process that counts already gets 0, whatever the limit.
    [[nodiscard]] int CheckMaxAllowedInstances();

private:
    std::string m_key;
    std::uint32_t m_limit = 0;
    std::shared_ptr<vapp_platform::OwnedHandle> m_hold;
};
