/// @file
/// How many processes of one name this user runs on this machine: each takes a place, and counts those that
/// are taken.
///
/// A place belongs to the process and not to a record of it: the kernel takes it back when the process ends,
/// in whatever way, so that a crash leaves nothing behind that would have to be recognised as stale. Places
/// of other users are other places.
///
/// The surprise: where places can't be kept (no folder that is this user's own, all places taken) the answer
/// is NotKept and not Full: a machine that can't count must not keep its user from working.
#pragma once

#include <cstdint>
#include <string>

#include "platform/OwnedHandle.h"

namespace vapp_platform {

/// Processes of one name beyond this number are not counted.
inline constexpr std::uint32_t cnMostPlaces = 256;

enum class PlaceAnswer {
    /// The hold keeps the place.
    Taken,
    /// As many others run as the limit allows processes in all.
    Full,
    /// Nobody counts.
    NotKept,
};

struct TPlaceResult {
    PlaceAnswer answer = PlaceAnswer::NotKept;
    /// The place is free again once this is closed.
    OwnedHandle hold;
};

/// Takes a place unless `limit` others are taken; 0 is no limit. The key is one of InstanceKey's. Waits at
/// most about two seconds for another process that is taking a place of this name at this moment, and then
/// goes on without waiting for its turn.
[[nodiscard]] TPlaceResult TakeInstancePlace(const std::string& key, std::uint32_t limit);

/// All places of one name. While it lives, other processes wait with theirs. Implemented once for each
/// system.
class InstanceBoard {
public:
    enum class TPlace {
        Free,
        Taken,
        /// It is kept from this user.
        Foreign,
    };

    /// Waits for its turn. Not open where places can't be kept.
    explicit InstanceBoard(const std::string& key);
    InstanceBoard(const InstanceBoard&) = delete;
    InstanceBoard& operator=(const InstanceBoard&) = delete;
    ~InstanceBoard();

    [[nodiscard]] bool IsOpen() const noexcept;
    /// How it stands with a place, which is below cnMostPlaces.
    [[nodiscard]] TPlace Look(std::uint32_t place) const;
    /// Takes a free place, once; closed where that fails.
    [[nodiscard]] OwnedHandle Take(std::uint32_t place);

private:
    std::string m_name;
    OwnedHandle m_handle;
    bool m_isMyTurn = false;
};

}  // namespace vapp_platform
