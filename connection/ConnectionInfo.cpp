/// @file
/// A text is copied by sharing it, so that a move has nothing to gain, and a host may go on using what it has
/// moved.
#include "vapp/connection/ConnectionInfo.h"

// A value that nobody should count on, but one that may be copied.
ConnectionInfo::ConnectionInfo() : runLocally(false) {}

ConnectionInfo::ConnectionInfo(const ConnectionInfo& other) = default;

ConnectionInfo::ConnectionInfo(ConnectionInfo&& other) noexcept
    : ConnectionInfo(static_cast<const ConnectionInfo&>(other)) {}

ConnectionInfo::~ConnectionInfo() = default;

ConnectionInfo& ConnectionInfo::operator=(const ConnectionInfo& other) = default;

ConnectionInfo& ConnectionInfo::operator=(ConnectionInfo&& other) noexcept {
    return *this = static_cast<const ConnectionInfo&>(other);
}
