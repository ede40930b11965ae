/// @file
/// TProfileSection: store-or-load access to one section of the application's settings.
///
/// One walk over the settings serves both ways: the same list of exchanges writes them all or reads them all.
/// The storage itself is the application's (CWinAppEx). Without an application nothing is written and
/// defaults are read.
#pragma once

#include <set>

#include "vapp/Export.h"
#include "vapp/text/CStringIU.h"
#include "vapp/text/CStringU.h"

namespace vapp_library_browser {

/// The section that holds all settings of the navigator.
inline constexpr char csNavigatorSection[] = "LibraryNavigator";

/// Which way, and which section.
struct VAPP_EXPORT TProfileSection {
    /// "LibraryNavigator", and behind a backslash the subsection if there is one.
    explicit TProfileSection(bool storeValues, const CString& subsection = "");

    /// Written as "true" or "false". What reads as the opposite of the default is told by name ("true", "yes"
    /// or "false", "no" in any case; exactly "1", "Y", "y" or "0", "N", "n"); all else is the default.
    void ExchangeBool(const char* key, bool& value, bool defaultValue) const;
    /// Written as it stands, in UTF-8.
    void ExchangeText(const char* key, CStringU& value, const CStringU& defaultValue) const;
    void ExchangeInteger(const char* key, int& value, int defaultValue) const;
    /// Written as the names joined with ", ", read by dividing at "," alone. No blanks are removed, so the
    /// second and later names come back with a blank in front: hosts to whom the names go take it away, and
    /// stored settings stay as they are. Reading replaces the set.
    void ExchangeSet(const char* key, std::set<CStringIU>& value) const;

    bool store;       ///< true writes, false reads
    CString section;  ///< full name of the section
};

}  // namespace vapp_library_browser
