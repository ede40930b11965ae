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

TEST(Translate, ATableIsLoadedWholeOrNotAtAll) {
    EXPECT_EQ(vlang::gLoadTranslations("# German\n\nReserve\tReservieren\n&No\t&Nein\n"), 0);
    EXPECT_EQ(vlang::gTranslate("__$$Translatable$$_Reserve"), "Reservieren");
    EXPECT_EQ(vlang::gTranslate("__$$Translatable$$_&No"), "&Nein");
    EXPECT_EQ(vlang::gTranslate("Reserve"), "Reserve") << "no key";
    EXPECT_EQ(vlang::gLoadTranslations("Reserve\tx\nbroken\n"), 2);
    EXPECT_EQ(vlang::gTranslate("__$$Translatable$$_Reserve"), "Reservieren");
    EXPECT_EQ(vlang::gLoadTranslations("Reserve\tBelegen"), 0) << "a later table wins";
    EXPECT_EQ(vlang::gTranslate("__$$Translatable$$_Reserve"), "Belegen");
    EXPECT_EQ(vlang::gTranslate("__$$Translatable$$_&No"), "&Nein");
    vlang::gClearTranslations();
}
