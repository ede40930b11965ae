/// @file
/// The picture that a program shows while it starts.
#pragma once

#include <optional>

#include "vapp/text/CStringU.h"
#include "vapp/toolkit/CWnd.h"

/// A window without a frame, as large as its picture, with the program's version on it and sometimes a word
/// that the start takes its time. It goes by itself when its time is over: its peer runs the clock, as
/// without one there is nobody who would look. It isn't the main window and never has the keyboard.
class VAPP_EXPORT TSplashScreen : public CWnd {
public:
    TSplashScreen();
    ~TSplashScreen() override;

    /// The version's text, and where on the picture its top left corner stands, in pixels of the logic, and
    /// its colour. At first no text, at 0, 0, in black.
    void SetVersionString(const CStringU& version);
    [[nodiscard]] const CStringU& GetVersionString() const { return m_version; }
    void SetVersionXLocation(UINT x);
    [[nodiscard]] UINT GetVersionXLocation() const { return m_x; }
    void SetVersionYLocation(UINT y);
    [[nodiscard]] UINT GetVersionYLocation() const { return m_y; }
    void SetVersionColor(COLORREF color);
    [[nodiscard]] COLORREF GetVersionColor() const { return m_color; }

    /// Takes the picture with this number of the current module (vapp/toolkit/Resources.h); false if there is
    /// none. Pixels of the colour key are left transparent; with cnNoColor, all ones, no colour is one.
    bool LoadPicture(UINT id, COLORREF colorKey);
    [[nodiscard]] HBITMAP GetPicture() const { return m_picture; }
    [[nodiscard]] COLORREF GetColorKey() const { return m_colorKey; }

    /// Shows it, at once and for `timeOut` milliseconds, 0 or less for as long as nobody hides it; with its
    /// corner at a place on the screen, or in the middle of it. False without a picture: there is nothing to
    /// show. What waits may be handled while it is painted, and may end it before this returns: IsShown
    /// tells.
    bool Show(int timeOut, const std::optional<CPoint>& position = std::nullopt);
    [[nodiscard]] int GetTimeOut() const { return m_timeOut; }
    [[nodiscard]] const std::optional<CPoint>& GetPosition() const { return m_position; }
    /// Ends it.
    /// @param effect  how it goes; 0, at once, is the only way so far, and all others mean the same.
    void Hide(int effect = 0);
    [[nodiscard]] bool IsShown() const { return IsWindow() && IsWindowVisible(); }
    /// Its time is over, as the peer reports it.
    void TimedOutByPeer();
    /// The desktop has closed it, as it can any window.
    void ClosedByPeer();

    /// Shows a line that asks for patience, at once, and takes it away.
    void ShowStartupWaitMessage();
    void HideStartupWaitMessage();
    /// That line; empty while there is none.
    [[nodiscard]] const CStringU& GetStartupWaitMessage() const { return m_waitMessage; }

protected:
    std::unique_ptr<Peer> CreatePeer(PeerFactory& factory) override;

private:
    CStringU m_version;
    CStringU m_waitMessage;
    std::optional<CPoint> m_position;
    HBITMAP m_picture = nullptr;
    COLORREF m_colorKey = cnNoColor;
    COLORREF m_color = 0;
    UINT m_x = 0;
    UINT m_y = 0;
    int m_timeOut = 0;
};
