#include "vapp/toolkit/qt/QtIdle.h"

#include <QComboBox>
#include <memory>

#include "tests/qt/PopupAnswer.h"
#include "tests/qt/QtTestFrame.h"
#include "tests/qt/UntilIdle.h"
#include "vapp/toolkit/CMenu.h"

namespace {

class QtIdleTest : public testing::Test {
protected:
    ShownFrame shown;
    int ran = 0;
};

}  // namespace

TEST_F(QtIdleTest, WorksWheneverTheLoopComesToRestUntilTheContextEnds) {
    auto context = std::make_unique<QObject>();
    gRunWhenIdle(*context, [this] { ++ran; });
    gRunUntilIdle();
    EXPECT_GE(ran, 1);
    const int before = ran;
    gRunUntilIdle();
    EXPECT_GT(ran, before);
    const int last = ran;
    context.reset();
    gRunUntilIdle();
    EXPECT_EQ(ran, last);
}

TEST_F(QtIdleTest, EndsWithItsConnection) {
    const QObject context;
    const QMetaObject::Connection idle = gRunWhenIdle(context, [this] { ++ran; });
    EXPECT_TRUE(QObject::disconnect(idle));
    gRunUntilIdle();
    EXPECT_EQ(ran, 0);
}

TEST_F(QtIdleTest, AnOpenMenuIsNoIdleMoment) {
    CMenu menu;
    menu.Append(1, "first");
    menu.AppendPopup("More").Append(2, "second");
    const QObject context;
    gRunWhenIdle(context, [this] { ++ran; });
    {
        const PopupAnswer answer([this](QMenu& popup) {
            const int before = ran;
            gRunUntilIdle();
            EXPECT_EQ(ran, before);
            popup.setActiveAction(popup.actions()[1]);
            gRunUntilIdle();
            EXPECT_EQ(ran, before) << "nor is one that is open below it";
            popup.actions()[0]->trigger();
            popup.close();
            EXPECT_EQ(ran, before) << "what was picked is done first";
        });
        EXPECT_EQ(menu.Track(shown.form, shown.form.ClientToScreen({50, 60})), 1u);
    }
    const int closed = ran;
    gRunUntilIdle();
    EXPECT_GT(ran, closed) << "what was put off is done afterwards";
}

TEST_F(QtIdleTest, NorIsAnOpenDropDownList) {
    QComboBox combo(gWidgetOf(shown.frame));
    combo.addItems({"one", "two"});
    combo.show();
    const QObject context;
    gRunWhenIdle(context, [this] { ++ran; });
    combo.showPopup();
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    gRunUntilIdle();
    EXPECT_EQ(ran, 0);
    combo.hidePopup();
    gRunUntilIdle();
    EXPECT_GE(ran, 1);
}
