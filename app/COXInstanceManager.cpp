/// @file
/// One hold for each name in the process, shared by its managers.
#include "app/COXInstanceManager.h"

#include <map>
#include <utility>

#include "platform/InstanceKey.h"
#include "platform/InstancePlaces.h"
#include "platform/KnownFolders.h"

namespace {

using vapp_platform::OwnedHandle;

std::weak_ptr<OwnedHandle>& HoldOf(const std::string& key) {
    static std::map<std::string, std::weak_ptr<OwnedHandle>> holds;
    return holds[key];
}

}  // namespace

COXInstanceManager::COXInstanceManager(const char* applicationName)
    : m_key(vapp_platform::InstanceKey(applicationName != nullptr
                                           ? std::string_view(applicationName)
                                           : std::string_view(gGetExePath().Payload()))) {}

int COXInstanceManager::CheckMaxAllowedInstances() {
    if (m_hold == nullptr) m_hold = HoldOf(m_key).lock();
    if (m_hold != nullptr) return 0;
    vapp_platform::TPlaceResult result = vapp_platform::TakeInstancePlace(m_key, m_limit);
    if (result.answer == vapp_platform::PlaceAnswer::Full) return 1;
    if (!result.hold.IsOpen()) return 0;
    m_hold = std::make_shared<OwnedHandle>(std::move(result.hold));
    HoldOf(m_key) = m_hold;
    return 0;
}
