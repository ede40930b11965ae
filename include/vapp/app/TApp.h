/// @file
/// The base class of a host tool's application object: a fixed start, and what the start asks of the host.
///
/// Main thread only. Not here: the frame and what is in it, which the host makes when InitInstance has
/// answered 1, and the settings, which CWinAppEx keeps.
///
/// The surprise: a processor without SSE gets a warning, and the start goes on.
#pragma once

#include <memory>

#include "vapp/Export.h"
#include "vapp/platform/TOsInfo.h"
#include "vapp/text/CStringU.h"
#include "vapp/toolkit/BasicTypes.h"
#include "vapp/toolkit/CCommandLineInfo.h"
#include "vapp/toolkit/CWinAppEx.h"
#include "vapp/toolkit/TSplashScreen.h"

class COXInstanceManager;

/// An application. A host derives from it, overrides what differs, makes one object of it and calls
/// InitInstance.
class VAPP_EXPORT TApp : public CWinAppEx, public TOsInfo {
public:
    /// Takes the words of this process's command line; SetArguments replaces them. A host whose toolkit has
    /// options of its own, as Qt has, tells what the toolkit left of them (QCoreApplication::arguments())
    /// before InitInstance: their values would be taken for files.
    explicit TApp(const CString& appName = "");
    ~TApp() override;

    /// The start: reads the command line, counts this process, shows the splash, checks the processor. 0 if
    /// another application object is the current one, or as many instances run as are allowed: the process is
    /// to end then. While a splash is shown, events and timers that wait are handled.
    int InitInstance() override;

    // What the start asks of the host, with the base's answers.

    /// The number of the splash's picture in the table of resources; 0, the base's answer, for no splash.
    virtual unsigned GetSplashScreenBitmapID();
    /// The module whose number that is; null, the base's answer, for the one that resources are taken from.
    virtual HINSTANCE GetSplashScreenModule();
    /// How long the splash stays, in milliseconds: 1000. 0 or less is until HideSplashScreen.
    virtual int GetSplashScreenTimeOut();
    /// Where on the splash the version stands, and its colour: what the splash has.
    virtual unsigned GetSplashScreenVersionXLocation();
    virtual unsigned GetSplashScreenVersionYLocation();
    virtual unsigned long GetSplashScreenVersionColor();
    /// The version's text, "2019.2", in UTF-8.
    virtual const char* GetVersionString();
    /// What processes count as instances of the same application; null, the base's answer, for those of the
    /// same program file.
    virtual const char* GetApplicationName();
    /// How many processes of one user may run at a time: 1. 0 is no limit.
    virtual unsigned long GetInstanceLimit();
    /// Where the command line is read into: an object of the application's own. A host with switches of its
    /// own gives another, which it keeps; null is as good as
    /// the base's.
    virtual CCommandLineInfo* GetCmdInfo();

    /// Shows on the splash that the start takes its time, and takes that away.
    void ShowStartupWaitMessage();
    void HideStartupWaitMessage();
    /// Ends the splash before its time.
    void HideSplashScreen();
    [[nodiscard]] bool IsSplashScreenVisible() const;
    /// The folder of the program file.
    [[nodiscard]] CStringU GetProgramDirectory() const;

private:
    void ReadCommandLine(CCommandLineInfo& info) const;
    [[nodiscard]] bool CountInstance(const CCommandLineInfo& info);
    void ShowSplash(const CCommandLineInfo& info);
    static void CheckProcessor();

    std::unique_ptr<TSplashScreen> m_splash;
    std::unique_ptr<CCommandLineInfo> m_cmdInfo;
    std::unique_ptr<COXInstanceManager> m_instanceManager;
};
