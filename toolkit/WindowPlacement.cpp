/// @file
/// The entry is a text that a user can read: a word and four numbers, "normal 100 100 1000 800".
#include "vapp/toolkit/WindowPlacement.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "vapp/toolkit/CWinAppEx.h"
#include "vapp/toolkit/Peer.h"

namespace {

constexpr std::string_view csNormal = "normal";
constexpr std::string_view csMaximized = "maximized";

// Far beyond every desktop, and near enough for sums of a few of them.
constexpr int cnFarthest = 1 << 20;

bool IsSensible(const CRect& rect) {
    const auto isNear = [](int value) { return value >= -cnFarthest && value <= cnFarthest; };
    return isNear(rect.left) && isNear(rect.top) && isNear(rect.right) && isNear(rect.bottom) &&
           rect.left < rect.right && rect.top < rect.bottom;
}

std::string_view TakeWord(std::string_view& text) {
    const std::size_t blank = text.find(' ');
    const std::string_view word = text.substr(0, blank);
    text.remove_prefix(blank == std::string_view::npos ? text.size() : blank + 1);
    return word;
}

std::optional<int> ReadNumber(std::string_view word) {
    int value = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    return error == std::errc() && end == word.data() + word.size() ? std::optional(value) : std::nullopt;
}

std::optional<TWindowPlacement> ReadEntry(std::string_view text) {
    const std::string_view state = TakeWord(text);
    if (state != csNormal && state != csMaximized) return std::nullopt;
    TWindowPlacement placement{.normal = {}, .isMaximized = state == csMaximized};
    for (int* edge : std::array{&placement.normal.left, &placement.normal.top, &placement.normal.right,
                                &placement.normal.bottom}) {
        const std::optional<int> value = ReadNumber(TakeWord(text));
        if (!value) return std::nullopt;
        *edge = *value;
    }
    return text.empty() && IsSensible(placement.normal) ? std::optional(placement) : std::nullopt;
}

std::int64_t Overlap(const CRect& one, const CRect& other) {
    const std::int64_t width =
        std::int64_t{std::min(one.right, other.right)} - std::max(one.left, other.left);
    const std::int64_t height =
        std::int64_t{std::min(one.bottom, other.bottom)} - std::max(one.top, other.top);
    return width > 0 && height > 0 ? width * height : 0;
}

std::int64_t Gap(int low, int high, int otherLow, int otherHigh) {
    return std::max<std::int64_t>({0, std::int64_t{otherLow} - high, std::int64_t{low} - otherHigh});
}

std::int64_t Distance(const CRect& one, const CRect& other) {
    return Gap(one.left, one.right, other.left, other.right) +
           Gap(one.top, one.bottom, other.top, other.bottom);
}

const CRect& NearestOf(const std::vector<CRect>& monitors, const CRect& rect) {
    return *std::min_element(monitors.begin(), monitors.end(), [&](const CRect& left, const CRect& right) {
        const std::int64_t leftOverlap = Overlap(left, rect);
        const std::int64_t rightOverlap = Overlap(right, rect);
        if (leftOverlap != rightOverlap) return leftOverlap > rightOverlap;
        return Distance(left, rect) < Distance(right, rect);
    });
}

// Where a stretch of this size begins between two edges.
int Begin(int wanted, int size, int low, int high, UINT mode) {
    const int room = high - low;
    if (size >= room) return low;
    return (mode & cnMonitorCenter) != 0 ? low + (room - size) / 2 : std::clamp(wanted, low, high - size);
}

}  // namespace

bool gReadWindowPlacement(TWindowPlacement* placement, const CString& name) {
    const CWinAppEx* app = CWinAppEx::GetApp();
    if (app == nullptr || placement == nullptr) return false;
    const CString entry = app->GetProfileString(csPlacementSection, name);
    const std::optional<TWindowPlacement> read = ReadEntry(entry.View());
    if (read) *placement = *read;
    return read.has_value();
}

bool gWriteWindowPlacement(const TWindowPlacement& placement, const CString& name) {
    CWinAppEx* app = CWinAppEx::GetApp();
    if (app == nullptr || !IsSensible(placement.normal)) return false;
    std::string entry(placement.isMaximized ? csMaximized : csNormal);
    const CRect& rect = placement.normal;
    for (const int edge : {rect.left, rect.top, rect.right, rect.bottom})
        entry += ' ' + std::to_string(edge);
    app->WriteProfileString(csPlacementSection, name, entry.c_str());
    return true;
}

void ClipOrCenterRectToMonitor(CRect* rect, UINT mode) {
    const PeerFactory* factory = PeerFactory::Installed();
    if (rect == nullptr || factory == nullptr) return;
    const std::vector<CRect> monitors = factory->MonitorAreas();
    if (monitors.empty()) return;
    const CRect& monitor = NearestOf(monitors, *rect);
    const CSize size = rect->Size();
    const int left = Begin(rect->left, size.cx, monitor.left, monitor.right, mode);
    const int top = Begin(rect->top, size.cy, monitor.top, monitor.bottom, mode);
    *rect = {left, top, left + size.cx, top + size.cy};
}
