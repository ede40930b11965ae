#include "toolkit/qt/QtDragMime.h"

#include <gtest/gtest.h>

#include <string>

#include "vapp/toolkit/qt/QtDraggedData.h"

namespace {

using vapp_qt::QtDragMime;

class QtDragMimeTest : public testing::Test {
protected:
    void SetUp() override {
        m_source = std::make_unique<COleDataSource>();
        m_source->CacheData("OwnFormat1A", std::string("typed"));
        m_source->SetText(CStringU(u"l\u00e4b inv sym"));
    }
    std::unique_ptr<COleDataSource> m_source;
};

TEST_F(QtDragMimeTest, AReceiverInThisProcessReadsTheTypedData) {
    const QtDragMime mime(*m_source);
    EXPECT_TRUE(mime.hasFormat("OwnFormat1A"));
    const std::any data = gDraggedData(mime, "OwnFormat1A");
    ASSERT_NE(std::any_cast<std::string>(&data), nullptr);
    EXPECT_EQ(std::any_cast<std::string>(data), "typed");
    EXPECT_FALSE(gDraggedData(mime, "OwnFormat1B").has_value());
    EXPECT_FALSE(gDraggedData(mime, "text/plain").has_value());
}

TEST_F(QtDragMimeTest, OthersGetTheTextAndNoBytesOfTheFormat) {
    const QtDragMime mime(*m_source);
    EXPECT_EQ(mime.text(), QStringLiteral("l\u00E4b inv sym"));
    EXPECT_TRUE(mime.data("OwnFormat1A").isEmpty());
    m_source->SetText({});
    EXPECT_FALSE(QtDragMime(*m_source).hasText());
}

TEST_F(QtDragMimeTest, TheTextOutlivesTheSourceAndTheDataDoesNot) {
    const QtDragMime mime(*m_source);
    m_source.reset();
    EXPECT_FALSE(gDraggedData(mime, "OwnFormat1A").has_value());
    EXPECT_EQ(mime.text(), QStringLiteral("l\u00E4b inv sym"));
}

TEST_F(QtDragMimeTest, ADragOfOtherMakersHasNoTypedData) {
    QMimeData foreign;
    foreign.setData("OwnFormat1A", "bytes");
    EXPECT_FALSE(gDraggedData(foreign, "OwnFormat1A").has_value());
}

}  // namespace
