/// @file
/// One of the system's handles (a descriptor on Linux), owned by one object.
///
/// Not for handles that another thread may be using while they are closed: pipes and sockets count their
/// users themselves.
#pragma once

#include <cstdint>
#include <utility>

namespace vapp_platform {

/// A HANDLE or a SOCKET on Windows, a descriptor on Linux.
using NativeHandle = std::intptr_t;

/// All bits set: no handle.
inline constexpr NativeHandle cnNoHandle = -1;

/// Owns a handle and closes it in the end. Move-only.
class OwnedHandle {
public:
    OwnedHandle() noexcept = default;
    explicit OwnedHandle(NativeHandle handle) noexcept : m_handle(handle) {}
    OwnedHandle(OwnedHandle&& other) noexcept : m_handle(std::exchange(other.m_handle, cnNoHandle)) {}
    OwnedHandle& operator=(OwnedHandle&& other) noexcept {
        if (this != &other) {
            Drop();
            m_handle = std::exchange(other.m_handle, cnNoHandle);
        }
        return *this;
    }
    OwnedHandle(const OwnedHandle&) = delete;
    OwnedHandle& operator=(const OwnedHandle&) = delete;
    ~OwnedHandle() { Drop(); }

    [[nodiscard]] bool IsOpen() const noexcept { return m_handle != cnNoHandle; }
    [[nodiscard]] NativeHandle Get() const noexcept { return m_handle; }
    /// Gives the handle away.
    [[nodiscard]] NativeHandle Release() noexcept { return std::exchange(m_handle, cnNoHandle); }

    /// Closes the handle, if there is one: 0, or the system's code. The object is empty then in every case,
    /// but for a fault that a test asked for.
    int Close();
    /// Closes the handle without a word about it.
    void Drop() noexcept;

private:
    NativeHandle m_handle = cnNoHandle;
};

}  // namespace vapp_platform
