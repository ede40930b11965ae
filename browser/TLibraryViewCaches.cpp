/// @file
/// What the library pane remembers of single views for the host: reserved ones and modified ones, by library.
///
/// The surprise is the grouping. A library's name is taken to the byte, so two spellings that differ in case
/// are two groups, whereas the views within a group are told apart without regard to case.
#include "vapp/browser/TLibraryView.h"

namespace vapp_library_browser {

namespace {

using TViewsOfLibrary = std::map<CStringU, std::set<TLibCellView>>;

void SetMember(TViewsOfLibrary& views, const TLibCellView& view, bool member) {
    std::set<TLibCellView>& group = views[view.library];
    if (member) {
        group.insert(view);
    } else {
        group.erase(view);
    }
}

bool HasMembers(const TViewsOfLibrary& views, const CStringU& library) {
    const auto group = views.find(library);
    return group != views.end() && !group->second.empty();
}

}  // namespace

void TLibraryView::SetOaViewReserved(const TLibCellView& view, bool reserved) {
    SetMember(m_oaReservedViews, view, reserved);
}

bool TLibraryView::HasOaReservedViews(const CStringU& library) const {
    return HasMembers(m_oaReservedViews, library);
}

void TLibraryView::SetLcvModified(const TLibCellView& view, bool modified) {
    SetMember(m_modifiedLcvs, view, modified);
    RequestDelayedPopulate();
}

bool TLibraryView::HasModifiedLcvs(const CStringU& library) const {
    return HasMembers(m_modifiedLcvs, library);
}

bool TLibraryView::IsLcvModified(const TLibCellView& view) {
    return m_modifiedLcvs[view.library].contains(view);
}

void TLibraryView::ClearCaches() {
    m_oaReservedViews.clear();
    m_modifiedLcvs.clear();
}

}  // namespace vapp_library_browser
