/// @file
/// A bitmap handle is the address of its image. The living ones are listed, so that a control which still
/// holds the handle of a picture that is gone shows nothing instead of reading freed memory.
#include "vapp/toolkit/qt/QtBitmap.h"

#include <QSet>
#include <utility>

namespace {

QSet<const QImage*>& LivingImages() {
    static QSet<const QImage*> images;
    return images;
}

}  // namespace

QtBitmap::QtBitmap() noexcept = default;

QtBitmap::QtBitmap(QImage image) {
    if (image.isNull()) return;
    m_image = std::make_unique<QImage>(std::move(image));
    LivingImages().insert(m_image.get());
}

QtBitmap::~QtBitmap() {
    Release();
}

QtBitmap::QtBitmap(QtBitmap&& other) noexcept = default;

QtBitmap& QtBitmap::operator=(QtBitmap&& other) noexcept {
    if (this != &other) {
        Release();
        m_image = std::move(other.m_image);
    }
    return *this;
}

HBITMAP QtBitmap::Get() const noexcept {
    return reinterpret_cast<HBITMAP>(m_image.get());
}

QImage QtBitmap::ImageOf(HBITMAP bitmap) {
    const auto* image = reinterpret_cast<const QImage*>(bitmap);
    return LivingImages().contains(image) ? *image : QImage();
}

void QtBitmap::Release() noexcept {
    if (m_image) LivingImages().remove(m_image.get());
    m_image.reset();
}
