/// @file
/// FilterHistory: the sub-strings that the user has filtered by, the newest first.
///
/// It hears of every change of the edit, so of every letter, and yet keeps words: a text that is one
/// character longer or shorter than the newest entry, and the same otherwise, takes that entry's place. It
/// knows neither the edit nor the settings.
///
/// The surprise: a word that is changed by more than one character at a time (a paste, a selection typed
/// over) leaves the former one behind, also where the user thinks of it as one edit.
#pragma once

#include <cstddef>
#include <vector>

#include "vapp/text/CStringU.h"

namespace vapp_library_browser {

class FilterHistory {
public:
    static constexpr std::size_t cnMaxEntries = 20;

    /// The newest first.
    [[nodiscard]] const std::vector<CStringU>& GetEntries() const { return m_entries; }
    /// The edit has this text now. An empty one is no entry.
    void Note(const CStringU& text);

    /// All entries, each followed by a line feed.
    [[nodiscard]] CStringU ToText() const;
    /// Takes the entries of such a text, up to the first empty one and no more than fit. An entry that held a
    /// line feed comes back as several.
    void Read(const CStringU& text);

private:
    std::vector<CStringU> m_entries;
};

}  // namespace vapp_library_browser
