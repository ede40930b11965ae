/// @file
/// A navigator whose library pane is refreshed by the test.
#pragma once

#include <string>
#include <vector>

#include "tests/browser/NavigatorFixture.h"

/// Shared by the tests of the refresh.
class LibraryRefreshFixture : public NavigatorFixture {
protected:
    using Names = std::vector<std::string>;

    [[nodiscard]] std::size_t Queries() const { return m_host.LinesStarting("database all_libs").size(); }
    void UpdateSelectedMaster() {
        Libraries().OnUpdate(nullptr, vapp_library_browser::cnHintSelectedMaster, nullptr);
    }
};
