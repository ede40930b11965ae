/// @file
/// Both formats on the desktop's clipboard, read back by Qt's own means, and texts that other programs put
/// there.
#include "toolkit/qt/QtClipboard.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "text/PlatformClipboard.h"
#include "vapp/text/ActiveCodePage.h"
#include "vapp/toolkit/Clipboard.h"
#include "vapp/toolkit/Peer.h"

using vapp_qt::QtClipboard;

TEST(QtClipboard, OffersUnicodeAndTheNarrowForm) {
    QtClipboard clipboard;
    ASSERT_TRUE(clipboard.SetText(u"a\u00e9\u4e2d\U0001F600", "a\xE9??"));
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    ASSERT_NE(data, nullptr);
    EXPECT_EQ(data->data("text/plain;charset=utf-8"), QStringLiteral("a\u00e9\u4e2d\U0001F600").toUtf8());
    EXPECT_EQ(data->data("text/plain"), data->data("text/plain;charset=utf-8"))
        << "Qt takes it for UTF-8 when other programs ask";
    int others = 0;
    for (const QString& type : data->formats()) {
        if (!type.startsWith("text/plain;charset=") || type.endsWith("utf-8")) continue;
        EXPECT_EQ(data->data(type), QByteArray("a\xE9??")) << type.toStdString();
        ++others;
    }
    EXPECT_EQ(others, gGetSystemCodePage() == cnUtf8CodePage ? 0 : 1);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("a\u00e9\u4e2d\U0001F600"))
        << "a reader of texts gets the Unicode one";
    EXPECT_EQ(clipboard.GetText(), u"a\u00e9\u4e2d\U0001F600");
}

TEST(QtClipboard, NamesTheCharactersOfACodePageAsOtherProgramsDo) {
    struct TRow {
        unsigned codePage;
        const char* name;
    };
    const TRow rows[] = {
        {65001, "utf-8"},       {28591, "iso-8859-1"},  {28605, "iso-8859-15"}, {28606, "iso-8859-16"},
        {1252, "windows-1252"}, {1254, "windows-1254"}, {20866, "koi8-r"},      {21866, "koi8-u"},
        {51932, "euc-jp"},      {51949, "euc-kr"},      {54936, "gb18030"},     {936, "gbk"},
        {950, "big5"},          {932, "shift_jis"},     {874, "tis-620"},       {437, "cp437"},
        {28590, "cp28590"},     {28607, "cp28607"},
    };
    for (const TRow& row : rows)
        EXPECT_EQ(vapp_qt::gCharacterSetOf(row.codePage).toStdString(), row.name);
}

TEST(QtClipboard, ReadsWhatOtherProgramsPutThere) {
    const QtClipboard clipboard;
    QGuiApplication::clipboard()->setText(QStringLiteral("fr\u00e4mmande"));
    EXPECT_EQ(clipboard.GetText(), u"fr\u00e4mmande");
    QGuiApplication::clipboard()->clear();
    EXPECT_EQ(clipboard.GetText(), u"");
}

TEST(QtClipboard, HalfASurrogatePairIsReplacedNotDropped) {
    QtClipboard clipboard;
    ASSERT_TRUE(
        clipboard.SetText(u"a\xd83d"
                          u"b",
                          "a?b"));
    EXPECT_EQ(clipboard.GetText(), u"a?b");
}

TEST(QtClipboard, TheFactoryOffersIt) {
    PeerFactory* const factory = PeerFactory::Installed();
    ASSERT_NE(factory, nullptr);
    EXPECT_NE(dynamic_cast<QtClipboard*>(factory->GetClipboard()), nullptr);
}

TEST(QtClipboard, TextsOfTheSystemGoThroughIt) {
    if (vapp_platform::HasSystemClipboard()) GTEST_SKIP() << "the system has a clipboard of its own";
    gSetActiveCodePage(1252);
    EXPECT_TRUE(SetClipboardText(CStringU(u"Verst\u00e4rker")));
    gSetActiveCodePage(0);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("Verst\u00e4rker"));
    EXPECT_EQ(QGuiApplication::clipboard()->mimeData()->data("text/plain"), QByteArray("Verst\xC3\xA4rker"))
        << "the code page of the host is its own affair";
    EXPECT_EQ(GetClipboardText(), CStringU(u"Verst\u00e4rker"));
}
