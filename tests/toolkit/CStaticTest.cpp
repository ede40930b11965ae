/// @file
/// The static control.
#include "vapp/toolkit/CStatic.h"

#include <gtest/gtest.h>

#include "tests/toolkit/RecordingPeers.h"

TEST(CStatic, PictureIsToldEvenWhenTheHandleIsTheSame) {
    RecordingPeers peers;
    CStatic picture(CStatic::TKind::Picture);
    EXPECT_EQ(picture.GetKind(), CStatic::TKind::Picture);
    ASSERT_TRUE(picture.Create(nullptr, 1));
    peers.ForgetAll();
    int content = 0;
    const auto handle = reinterpret_cast<HBITMAP>(&content);
    picture.SetImage(handle);
    picture.SetImage(handle);
    EXPECT_EQ(picture.GetImage(), handle);
    EXPECT_EQ(peers.Of(picture).Count(cnChangeLook), 2) << "its owner may have drawn it anew";
    picture.SetImage(nullptr);
    EXPECT_EQ(picture.GetImage(), nullptr);
}
