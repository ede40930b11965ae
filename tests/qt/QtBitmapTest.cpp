/// @file
/// Handles of pictures: whose they are, how long they are good.
#include "vapp/toolkit/qt/QtBitmap.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

namespace {

QImage Filled(const QColor& color) {
    QImage image(4, 3, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

}  // namespace

static_assert(!std::is_copy_constructible_v<QtBitmap>, "a handle has one owner");
static_assert(std::is_nothrow_move_constructible_v<QtBitmap>);

TEST(QtBitmap, HandleLeadsToTheImage) {
    const QtBitmap bitmap(Filled(Qt::red));
    ASSERT_NE(bitmap.Get(), nullptr);
    EXPECT_EQ(QtBitmap::ImageOf(bitmap.Get()), Filled(Qt::red));
}

TEST(QtBitmap, NoImageHasNoHandle) {
    EXPECT_EQ(QtBitmap().Get(), nullptr);
    EXPECT_EQ(QtBitmap(QImage()).Get(), nullptr);
    EXPECT_TRUE(QtBitmap::ImageOf(nullptr).isNull());
}

TEST(QtBitmap, HandleMovesWithItsOwner) {
    QtBitmap first(Filled(Qt::red));
    const HBITMAP handle = first.Get();
    QtBitmap second(std::move(first));
    EXPECT_EQ(second.Get(), handle);
    QtBitmap third(Filled(Qt::blue));
    const HBITMAP replaced = third.Get();
    third = std::move(second);
    EXPECT_EQ(third.Get(), handle);
    EXPECT_EQ(QtBitmap::ImageOf(handle), Filled(Qt::red));
    EXPECT_TRUE(QtBitmap::ImageOf(replaced).isNull());
}

TEST(QtBitmap, HandlesOfOthersAndOfTheDeadShowNothing) {
    int other = 0;
    EXPECT_TRUE(QtBitmap::ImageOf(reinterpret_cast<HBITMAP>(&other)).isNull());
    HBITMAP dead = nullptr;
    {
        const QtBitmap bitmap(Filled(Qt::red));
        dead = bitmap.Get();
    }
    EXPECT_TRUE(QtBitmap::ImageOf(dead).isNull());
}
