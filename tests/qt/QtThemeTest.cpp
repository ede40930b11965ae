/// @file
/// Both looks are complete: texts stand out from their backgrounds, in every group that is not greyed.
#include "vapp/toolkit/qt/QtTheme.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPalette>
#include <QProxyStyle>
#include <utility>

namespace {

class QtTheme : public testing::TestWithParam<bool> {
protected:
    void SetUp() override { gApplyTheme(GetParam()); }
    void TearDown() override { gApplyTheme(false); }
};

}  // namespace

TEST_P(QtTheme, BackgroundsAreAsDarkAsAsked) {
    const QPalette palette = QApplication::palette();
    for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Base, QPalette::Button}) {
        EXPECT_EQ(palette.color(role).lightness() < 128, GetParam()) << role;
    }
    const auto* style = dynamic_cast<QProxyStyle*>(QApplication::style());
    ASSERT_NE(style, nullptr);
    EXPECT_EQ(style->baseStyle()->name(), QStringLiteral("fusion"));
}

TEST_P(QtTheme, TextsStandOutFromTheirBackgrounds) {
    constexpr std::pair<QPalette::ColorRole, QPalette::ColorRole> cnPairs[] = {
        {QPalette::WindowText, QPalette::Window},         {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},        {QPalette::ButtonText, QPalette::Button},
        {QPalette::HighlightedText, QPalette::Highlight}, {QPalette::ToolTipText, QPalette::ToolTipBase},
    };
    const QPalette palette = QApplication::palette();
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        for (const auto& [text, background] : cnPairs) {
            const int distance = std::abs(qGray(palette.color(group, text).rgb()) -
                                          qGray(palette.color(group, background).rgb()));
            EXPECT_GT(distance, 100) << "group " << group << ", role " << text;
        }
    }
}

TEST_P(QtTheme, MayBeChangedAtAnyTime) {
    gApplyTheme(!GetParam());
    EXPECT_EQ(QApplication::palette().color(QPalette::Window).lightness() < 128, !GetParam());
}

INSTANTIATE_TEST_SUITE_P(LightAndDark, QtTheme, testing::Bool());
