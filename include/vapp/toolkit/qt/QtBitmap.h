/// @file
/// A picture that controls can show: what stands behind an HBITMAP when the windows are Qt's.
#pragma once

#include <QImage>
#include <memory>

#include "vapp/toolkit/BasicTypes.h"
#include "vapp/toolkit/qt/QtExport.h"

/// Owns a picture and the handle to it. The image's device pixel ratio counts: an image of 400 pixels and
/// ratio 2 is shown 200 pixels of the logic wide, and sharp on a screen of that ratio.
///
/// Handles of other makers, and of bitmaps that are gone, are known as such and show nothing. Window thread
/// only.
class VAPP_QT_EXPORT QtBitmap {
public:
    /// No picture; the handle is null.
    QtBitmap() noexcept;
    /// A null image gives a null handle.
    explicit QtBitmap(QImage image);
    ~QtBitmap();
    QtBitmap(QtBitmap&& other) noexcept;
    QtBitmap& operator=(QtBitmap&& other) noexcept;

    /// The handle; good as long as this object, and whatever it is moved into, lives.
    [[nodiscard]] HBITMAP Get() const noexcept;
    /// The image behind a handle; a null image if it isn't one of a living QtBitmap.
    [[nodiscard]] static QImage ImageOf(HBITMAP bitmap);

private:
    void Release() noexcept;

    std::unique_ptr<QImage> m_image;
};
