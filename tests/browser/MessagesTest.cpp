#include "vapp/browser/Messages.h"

#include <gtest/gtest.h>

#include "vapp/toolkit/CFrameWnd.h"
#include "vapp/toolkit/CWinAppEx.h"

using namespace vapp_library_browser;

namespace {

class AnsweringFrame : public CFrameWnd {
public:
    ~AnsweringFrame() override { DestroyWindow(); }
    LRESULT answer = 0;
    UINT asked = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/) override {
        asked = message;
        return answer;
    }
};

}  // namespace

TEST(Messages, WithoutAnApplicationOrAMainWindowTheThemeIsLight) {
    EXPECT_FALSE(gIsDarkTheme());
    const CWinAppEx app("tool");
    EXPECT_FALSE(gIsDarkTheme());
}

TEST(Messages, AnyAnswerOfTheMainWindowOtherThanZeroIsTheDarkTheme) {
    CWinAppEx app("tool");
    AnsweringFrame frame;
    frame.CreateFrame("frame", {0, 0, 100, 100});
    app.SetMainWnd(&frame);
    for (const LRESULT answer : {0, 1, 256, -1}) {
        frame.answer = answer;
        EXPECT_EQ(gIsDarkTheme(), answer != 0) << answer;
    }
    EXPECT_EQ(frame.asked, 0x8219u);
    frame.DestroyWindow();
    EXPECT_FALSE(gIsDarkTheme()) << "the answer went with the window";
}

TEST(Messages, AWindowThatDoesNotAnswerHasTheLightTheme) {
    CWinAppEx app("tool");
    CFrameWnd frame;
    frame.CreateFrame("frame", {0, 0, 100, 100});
    app.SetMainWnd(&frame);
    EXPECT_FALSE(gIsDarkTheme());
}
