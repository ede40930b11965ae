#include "celllist/CountFormat.h"

#include <gtest/gtest.h>

#include "vapp/text/Translate.h"

namespace {

using vapp_library_browser::CountFormat;

constexpr char csKey[] = "__$$Translatable$$_%Iu of %Iu cells";

class CountFormatTest : public testing::Test {
protected:
    ~CountFormatTest() override { vlang::gClearTranslations(); }
};

TEST_F(CountFormatTest, IsTheKeysOwnTextWithoutATranslation) {
    EXPECT_EQ(CountFormat(csKey), "%Iu of %Iu cells");
    EXPECT_EQ(CountFormat("no prefix %Iu"), "no prefix %Iu");
}

TEST_F(CountFormatTest, TakesATranslationWithTheSameConversions) {
    for (const char* text :
         {"%Iu von %Iu Zellen", "%Iu/%Iu", "100%% of %Iu and %Iu", "%%s%Iu%%n %Iu", "%Iu sur %Iu \xC3\xA9"}) {
        SCOPED_TRACE(text);
        vlang::gSetTranslation(csKey, text);
        EXPECT_EQ(CountFormat(csKey), CStringU(text, TextEncoding::Utf8Auto));
    }
}

TEST_F(CountFormatTest, RefusesATranslationWithOtherConversions) {
    for (const char* text :
         {"", "cells", "%Iu cells", "%Iu %Iu %Iu", "%Iu %s", "%s %Iu", "%n %Iu %Iu", "%d of %d", "%u %u",
          "%2$Iu %1$Iu", "%Iu %*Iu", "%Iu of %Iu %", "%Iu %% %Iu % s", "%Iu %", "%I64u %Iu", "% Iu %Iu"}) {
        SCOPED_TRACE(text);
        vlang::gSetTranslation(csKey, text);
        EXPECT_EQ(CountFormat(csKey), "%Iu of %Iu cells");
    }
}

}  // namespace
