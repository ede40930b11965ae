/// @file
/// Names and text for everybody, data for those who ask by the right name in this process.
#include "toolkit/qt/QtDragMime.h"

#include "toolkit/qt/QtText.h"
#include "vapp/toolkit/qt/QtDraggedData.h"

namespace vapp_qt {

QtDragMime::QtDragMime(const COleDataSource& source) : m_typed(source.WatchData()) {
    if (const auto typed = m_typed.lock()) {
        for (const auto& entry : *typed)
            setData(gToQString(entry.first), {});
    }
    if (!source.GetText().IsEmpty()) setText(gToQString(source.GetText()));
}

std::any QtDragMime::Typed(const CString& format) const {
    const auto typed = m_typed.lock();
    if (!typed) return {};
    const auto found = typed->find(format);
    return found != typed->end() ? found->second : std::any();
}

}  // namespace vapp_qt

std::any gDraggedData(const QMimeData& data, const CString& format) {
    const auto* own = qobject_cast<const vapp_qt::QtDragMime*>(&data);
    return own != nullptr ? own->Typed(format) : std::any();
}
