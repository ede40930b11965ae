/// @file
/// A data source of the toolkit, as Qt wants it.
#pragma once

#include <QMimeData>
#include <any>
#include <memory>

#include "vapp/toolkit/COleDataSource.h"

namespace vapp_qt {

/// The names of the formats, without any bytes, and the text. The data itself stays with its source and is
/// read there. Of all this only the text outlives the source: another program fetches it after the drop.
class QtDragMime : public QMimeData {
    Q_OBJECT
public:
    explicit QtDragMime(const COleDataSource& source);

    /// The data of a format; empty if there is none or the source is gone.
    [[nodiscard]] std::any Typed(const CString& format) const;

private:
    std::weak_ptr<const COleDataSource::TData> m_typed;
};

}  // namespace vapp_qt
