/// @file
/// User texts by key.
#include "vapp/text/Translate.h"

#include <gtest/gtest.h>

TEST(Translate, KeyWithoutTranslationLosesItsPrefix) {
    EXPECT_EQ(vlang::gTranslate("__$$Translatable$$_No cells"), "No cells");
    EXPECT_EQ(vlang::gTranslate("__$$Translatable$$_"), "");
}

TEST(Translate, TextWithoutPrefixComesBackAsItIs) {
    EXPECT_EQ(vlang::gTranslate("No cells"), "No cells");
    EXPECT_EQ(vlang::gTranslate("x__$$Translatable$$_y"), "x__$$Translatable$$_y");
    EXPECT_EQ(vlang::gTranslate(""), "");
    EXPECT_EQ(vlang::gTranslate(nullptr), "");
}

TEST(Translate, HostsTextWinsUntilItIsForgotten) {
    vlang::gSetTranslation("__$$Translatable$$_No cells", "Keine Zellen");
    EXPECT_EQ(vlang::gTranslate("__$$Translatable$$_No cells"), "Keine Zellen");
    EXPECT_EQ(vlang::gTranslate("__$$Translatable$$_%Iu cells"), "%Iu cells");
    vlang::gClearTranslations();
    EXPECT_EQ(vlang::gTranslate("__$$Translatable$$_No cells"), "No cells");
}
