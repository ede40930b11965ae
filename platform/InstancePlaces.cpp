/// @file
/// Counting first, then taking, in one turn at the board.
#include "platform/InstancePlaces.h"

#include <utility>
#include <vector>

namespace vapp_platform {

TPlaceResult TakeInstancePlace(const std::string& key, std::uint32_t limit) {
    InstanceBoard board(key);
    if (!board.IsOpen()) return {};
    std::uint32_t taken = 0;
    std::vector<std::uint32_t> free;
    for (std::uint32_t place = 0; place < cnMostPlaces; ++place) {
        const InstanceBoard::TPlace state = board.Look(place);
        if (state == InstanceBoard::TPlace::Taken) ++taken;
        if (state == InstanceBoard::TPlace::Free) free.push_back(place);
    }
    if (limit != 0 && taken >= limit) return {.answer = PlaceAnswer::Full, .hold = {}};
    for (const std::uint32_t place : free) {
        OwnedHandle hold = board.Take(place);
        if (hold.IsOpen()) return {.answer = PlaceAnswer::Taken, .hold = std::move(hold)};
    }
    return {};
}

}  // namespace vapp_platform
