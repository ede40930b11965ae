/// @file
/// Texts come through both ways, whatever is in them.
#include "toolkit/qt/QtText.h"

#include <gtest/gtest.h>

#include "vapp/text/ActiveCodePage.h"

using namespace vapp_qt;

namespace {

class CodePage {
public:
    explicit CodePage(unsigned number) { gSetActiveCodePage(number); }
    ~CodePage() { gSetActiveCodePage(0); }
    CodePage(const CodePage&) = delete;
    CodePage& operator=(const CodePage&) = delete;
};

}  // namespace

TEST(QtText, TextsOfTheSystemComeThroughBothWays) {
    for (const char16_t* text :
         {u"", u"inv", u"Verst\u00E4rker", u"\u00C4ther", u"\U0001F600 chip", u"a&b"}) {
        const QString qt = QString::fromUtf16(text);
        const CStringU system(text);
        EXPECT_EQ(gToQString(system), qt);
        EXPECT_EQ(gToText(qt).Stored(), system.Stored()) << qPrintable(qt);
    }
}

TEST(QtText, CaptionsAreInTheActiveCodePage) {
    const CodePage latin(1252);
    EXPECT_EQ(gToQString(CString("Verst\xE4rker")), QStringLiteral("Verst\u00E4rker"));
    EXPECT_EQ(gToControlText(QStringLiteral("Verst\u00E4rker")), "Verst\xE4rker");
}

TEST(QtText, CharactersOutsideTheCodePageAreReplacedNotDropped) {
    const CodePage latin(1252);
    const CString text = gToControlText(QStringLiteral("a\u4E2Db"));
    EXPECT_EQ(text.GetLength(), 3);
    EXPECT_EQ(text.GetAt(0), 'a');
    EXPECT_EQ(text.GetAt(2), 'b');
}

TEST(QtText, Utf8CodePageKeepsEveryCharacter) {
    const CodePage utf8(cnUtf8CodePage);
    const QString all = QStringLiteral("\u4E2D \u00E4 \U0001F600 x");
    EXPECT_EQ(gToQString(gToControlText(all)), all);
}

TEST(QtText, TextEndsAtTheFirstNul) {
    EXPECT_EQ(gToText(QString(QChar(u'a')) + QChar(u'\0') + QChar(u'b')).PayloadView(), "a");
}

TEST(QtText, AmpersandIsShownWhereItWouldMarkAKey) {
    EXPECT_EQ(gWithoutMnemonics(QStringLiteral("a & b && c")), QStringLiteral("a && b &&&& c"));
}
