/// @file
/// Data by format, and the one way to the installed adapter.
#include "vapp/toolkit/COleDataSource.h"

#include <utility>

namespace {

COleDataSource::TDragRunner& DragRunner() {
    static COleDataSource::TDragRunner runner;
    return runner;
}

}  // namespace

COleDataSource::COleDataSource() : m_data(std::make_shared<TData>()) {}

COleDataSource::~COleDataSource() = default;

void COleDataSource::CacheData(const CString& format, std::any data) {
    (*m_data)[format] = std::move(data);
}

const std::any* COleDataSource::GetData(const CString& format) const {
    const auto found = m_data->find(format);
    return found != m_data->end() ? &found->second : nullptr;
}

UINT COleDataSource::DoDragDrop(UINT effects, const CRect& start) {
    // A copy: what runs inside of the drag may install another one.
    const TDragRunner runner = DragRunner();
    return runner ? runner(*this, effects, start) & effects : cnDropNone;
}

void COleDataSource::InstallDragRunner(TDragRunner runner) {
    DragRunner() = std::move(runner);
}

const COleDataSource::TDragRunner& COleDataSource::GetDragRunner() {
    return DragRunner();
}
