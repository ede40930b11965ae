/// @file
/// The state of the splash. What changes while a program starts is painted at once: nobody runs the event
/// loop then.
#include "vapp/toolkit/TSplashScreen.h"

#include "vapp/text/Translate.h"
#include "vapp/toolkit/Resources.h"

TSplashScreen::TSplashScreen() {
    ShowWindow(false);
}

TSplashScreen::~TSplashScreen() {
    DestroyWindow();
}

void TSplashScreen::SetVersionString(const CStringU& version) {
    m_version = version;
    TellPeer(cnChangeLook);
}

void TSplashScreen::SetVersionXLocation(UINT x) {
    m_x = x;
    TellPeer(cnChangeLook);
}

void TSplashScreen::SetVersionYLocation(UINT y) {
    m_y = y;
    TellPeer(cnChangeLook);
}

void TSplashScreen::SetVersionColor(COLORREF color) {
    m_color = color;
    TellPeer(cnChangeLook);
}

bool TSplashScreen::LoadPicture(UINT id, COLORREF colorKey) {
    m_picture = gLoadBitmapResource(id);
    m_colorKey = colorKey;
    TellPeer(cnChangeLook);
    return m_picture != nullptr;
}

bool TSplashScreen::Show(int timeOut, const std::optional<CPoint>& position) {
    if (m_picture == nullptr) return false;
    DestroyWindow();
    m_timeOut = timeOut;
    m_position = position;
    const CPoint corner = position.value_or(CPoint());
    Create(nullptr, 0, {corner.x, corner.y, corner.x, corner.y});
    ShowWindow(true);
    UpdateWindow();
    return true;
}

void TSplashScreen::Hide(int /*effect*/) {
    ShowWindow(false);
    DestroyWindow();
}

void TSplashScreen::TimedOutByPeer() {
    Hide(0);
}

void TSplashScreen::ClosedByPeer() {
    Hide(0);
}

void TSplashScreen::ShowStartupWaitMessage() {
    m_waitMessage = CStringU(vlang::gTranslate("__$$Translatable$$_The program is starting. Please wait."),
                             TextEncoding::Utf8Auto);
    TellPeer(cnChangeLook);
    UpdateWindow();
}

void TSplashScreen::HideStartupWaitMessage() {
    m_waitMessage.Empty();
    TellPeer(cnChangeLook);
    UpdateWindow();
}

std::unique_ptr<Peer> TSplashScreen::CreatePeer(PeerFactory& factory) {
    return factory.CreateSplash(*this);
}
