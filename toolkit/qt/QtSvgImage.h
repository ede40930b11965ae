/// @file
/// Images of the library's own SVG files, in the size, the colour of lines and the state that is wanted.
/// Those that were drawn lately are kept: painting a row again copies pixels and draws no outline anew.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QHashFunctions>
#include <QImage>
#include <QRect>
#include <QSize>
#include <QString>

namespace vapp_qt {

/// What an image shows, and how.
struct QtSvgWish {
    const char* file = "";  ///< name of a file of the folder icons, without its ending; text that stays
    QRect part;             ///< the part of the drawing that fills the image, in units of the file
    QSize pixels;           ///< size of the image, device pixels; at most 1024 are drawn each way
    QRgb ink = 0;           ///< what stands for "currentColor"
    bool isGreyed = false;  ///< of something that can't be used at the moment

    friend bool operator==(const QtSvgWish& a, const QtSvgWish& b) {
        return qstrcmp(a.file, b.file) == 0 && a.part == b.part && a.pixels == b.pixels && a.ink == b.ink &&
               a.isGreyed == b.isGreyed;
    }
    /// The name that Qt's containers look for.
    friend size_t qHash(const QtSvgWish& wish, size_t seed = 0) {
        return qHashMulti(seed, QLatin1String(wish.file), wish.part.x(), wish.part.y(), wish.part.width(),
                          wish.part.height(), wish.pixels.width(), wish.pixels.height(), wish.ink,
                          wish.isGreyed);
    }
};

/// The image, from those kept if it is among them. One that can't be drawn is null, and a warning (qWarning)
/// says why: painting goes on without it. For the thread of the widgets only.
[[nodiscard]] QImage gSvgImage(const QtSvgWish& wish);
/// Draws an image of that text, which is the content of wish.file; null with the reason in `whyNot`.
[[nodiscard]] QImage gDrawSvg(const QByteArray& text, const QtSvgWish& wish, QString& whyNot);

}  // namespace vapp_qt
