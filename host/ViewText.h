#pragma once
/// What the columns of this host say about a view: words of its state, when its file was written, how large
/// it is. Texts for people; flags and the word that colours a row are asked of the store itself.
///
/// Dates and sizes are worded so that the natural order of the texts is their order in time and size: the
/// list sorts a host's column by what it shows.

#include <optional>
#include <string>
#include <string_view>

#include "host/DesignStore.h"

namespace navigator {

enum class ViewTextKey { Bytes, Changed, Path, State, Type };

/// The key with that name ("bytes", "changed", "path", "state", "type"); nothing for any other.
std::optional<ViewTextKey> gFindViewTextKey(std::string_view name);

/// A text about a view, empty where there is nothing to tell; UTF-8.
///
/// | key     | text |
/// |---------|-----------------------------------------------------------------------------------------|
/// | Bytes   | size of the view's file |
/// | Changed | local time at which it was written, "2019-02-28 17:05" |
/// | Path    | the file, or the folder, as the list of libraries would show it |
/// | State   | the words that apply, with ", " between them: Unresolved or Cycle, Modified, Reserved, Locked,
/// StdVia, CustomVia, V-Cell; or what a script has put in place of the first | | Type    | property `type` of
/// the cell's symbol |
std::string gViewText(DesignStore& store, const CellViewRef& view, ViewTextKey key);

}  // namespace navigator
