/// The wording of what the host's columns show.

#include "host/ViewText.h"

#include <QDateTime>
#include <QString>
#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

namespace navigator {

namespace {

constexpr std::array<std::pair<std::string_view, ViewTextKey>, 5> cnKeys{{
    {"bytes", ViewTextKey::Bytes},
    {"changed", ViewTextKey::Changed},
    {"path", ViewTextKey::Path},
    {"state", ViewTextKey::State},
    {"type", ViewTextKey::Type},
}};

/// The words in which hosts speak of states, in the order in which they matter to somebody who draws.
constexpr std::array<std::pair<CellKey, std::string_view>, 6> csFlagWords{{
    {CellKey::IsModified, "Modified"},
    {CellKey::IsReserved, "Reserved"},
    {CellKey::IsLockedByUser, "Locked"},
    {CellKey::IsStdViaDef, "StdVia"},
    {CellKey::IsCustomViaDef, "CustomVia"},
    {CellKey::IsVCell, "V-Cell"},
}};

std::string StateText(DesignStore& store, const CellViewRef& view) {
    std::string text = store.CacheWord(view);
    // What is as it should be needs no word.
    if (text == "Normal") text.clear();
    for (const auto& [key, word] : csFlagWords) {
        if (!store.Flag(view, key)) continue;
        if (!text.empty()) text += ", ";
        text += word;
    }
    return text;
}

std::string DateText(std::filesystem::file_time_type time) {
    using namespace std::chrono;
    const auto moment = time_point_cast<milliseconds>(file_clock::to_sys(time));
    return QDateTime::fromMSecsSinceEpoch(moment.time_since_epoch().count())
        .toString(QStringLiteral("yyyy-MM-dd HH:mm"))
        .toStdString();
}

}  // namespace

std::optional<ViewTextKey> gFindViewTextKey(std::string_view name) {
    const auto* const found =
        std::find_if(cnKeys.begin(), cnKeys.end(), [name](const auto& row) { return row.first == name; });
    return found == cnKeys.end() ? std::nullopt : std::optional(found->second);
}

std::string gViewText(DesignStore& store, const CellViewRef& view, ViewTextKey key) {
    if (!view) return {};
    switch (key) {
        case ViewTextKey::Bytes: {
            const FileStamp stamp = store.Stamp(view);
            return stamp.exists ? std::to_string(stamp.size) : std::string();
        }
        case ViewTextKey::Changed: {
            const FileStamp stamp = store.Stamp(view);
            return stamp.exists ? DateText(stamp.modified) : std::string();
        }
        case ViewTextKey::Path:
            return gDisplayName(store.Paths(view).front().native());
        case ViewTextKey::State:
            return StateText(store, view);
        case ViewTextKey::Type:
            return store.TypeOf(view);
    }
    return {};
}

}  // namespace navigator
