/// @file
/// The start, step by step. The order is a promise to hosts: their overrides are called in it, and a start
/// that is refused for the limit of instances has shown nothing yet.
#include "vapp/app/TApp.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>

#include "app/COXInstanceManager.h"
#include "platform/FaultPoint.h"
#include "platform/KnownFolders.h"
#include "platform/MessageBox.h"
#include "platform/ProgramArguments.h"
#include "platform/SystemFacts.h"
#include "platform/World.h"
#include "vapp/toolkit/Resources.h"
#include "vapp/toolkit/TMessageBox.h"
#include "vapp/toolkit/WindowPlacement.h"

namespace {

constexpr char csNoSse[] =
    "Vornex EDA Tools can only work on CPUs that are compatible with Pentium III or better and on Windows "
    "2000 "
    "or Windows XP or newer.(We detected that SSE SIMD instruction set is not present on your "
    "system.)\n\nSome "
    "elements of this program could still work, but it will be unstable.";

// Half the size of the suite's splash pictures.
constexpr int cnHalfWidth = 259;
constexpr int cnHalfHeight = 151;

/// Resources come from another module while this lives.
class ResourceModule {
public:
    explicit ResourceModule(HINSTANCE module) : m_former(gGetResourceHandle()) {
        if (module != nullptr) gSetResourceHandle(module);
    }
    ~ResourceModule() { gSetResourceHandle(m_former); }
    ResourceModule(const ResourceModule&) = delete;
    ResourceModule& operator=(const ResourceModule&) = delete;

private:
    HINSTANCE m_former;
};

// The splash stands where the user last had the window.
std::optional<CPoint> SplashPosition() {
    TWindowPlacement placement;
    if (!gReadWindowPlacement(&placement, "WindowPos")) return std::nullopt;
    const CRect& window = placement.normal;
    const int x = window.left + window.Width() / 2;
    const int y = window.top + window.Height() / 2;
    CRect rect(x - cnHalfWidth, y - cnHalfHeight, x + cnHalfWidth, y + cnHalfHeight);
    ClipOrCenterRectToMonitor(&rect, cnMonitorCenter);
    return rect.TopLeft();
}

bool HasSse() {
    using namespace vapp_platform;
    return FaultOf(SystemCall::AskProcessor) == 0 && HasProcessorFeature(ProcessorFeature::Sse);
}

}  // namespace

TApp::TApp(const CString& appName)
    : CWinAppEx(appName),
      m_splash(std::make_unique<TSplashScreen>()),
      m_cmdInfo(std::make_unique<CCommandLineInfo>()) {
    // Where paths may begin with a slash, no switch does.
    SetArguments(vapp_platform::ProgramArguments(), !gIsWine());
}

// Another instance may start as soon as this one is about to go, before its windows are down.
TApp::~TApp() {
    m_instanceManager.reset();
    m_splash.reset();
    m_cmdInfo.reset();
}

int TApp::InitInstance() {
    if (CWinAppEx::InitInstance() == 0) return 0;
    CCommandLineInfo* const hosts = GetCmdInfo();
    CCommandLineInfo& info = hosts != nullptr ? *hosts : *m_cmdInfo;
    ReadCommandLine(info);
    if (!CountInstance(info)) return 0;
    ShowSplash(info);
    CheckProcessor();
    return 1;
}

void TApp::ReadCommandLine(CCommandLineInfo& info) const {
    ParseCommandLine(info);
    if (info.m_nShellCommand == CCommandLineInfo::AppUnregister) {
        info.m_bShowSplash = false;
    } else if (info.m_nShellCommand == CCommandLineInfo::FileNothing && !info.m_strFileName.IsEmpty()) {
        info.m_nShellCommand = CCommandLineInfo::FileOpen;
    }
}

bool TApp::CountInstance(const CCommandLineInfo& info) {
    if (m_instanceManager == nullptr) {
        m_instanceManager = std::make_unique<COXInstanceManager>(GetApplicationName());
        // A registration is undone by a process that is alone.
        const bool isAlone = info.m_nShellCommand == CCommandLineInfo::AppUnregister;
        const unsigned long limit = isAlone ? 1 : GetInstanceLimit();
        constexpr unsigned long cnMost = std::numeric_limits<std::uint32_t>::max();
        m_instanceManager->SetMaxAllowedInstances(static_cast<std::uint32_t>(std::min(limit, cnMost)));
    }
    return m_instanceManager->CheckMaxAllowedInstances() == 0;
}

void TApp::ShowSplash(const CCommandLineInfo& info) {
    const unsigned id = GetSplashScreenBitmapID();
    if (id == 0 || !info.m_bShowSplash) return;
    m_splash->SetVersionString(CStringU(GetVersionString(), TextEncoding::Utf8Auto));
    m_splash->SetVersionXLocation(GetSplashScreenVersionXLocation());
    m_splash->SetVersionYLocation(GetSplashScreenVersionYLocation());
    m_splash->SetVersionColor(static_cast<COLORREF>(GetSplashScreenVersionColor()));
    {
        const ResourceModule module(GetSplashScreenModule());
        m_splash->LoadPicture(id, cnNoColor);
    }
    const std::optional<CPoint> position = SplashPosition();
    m_splash->Show(GetSplashScreenTimeOut(), position);
}

void TApp::CheckProcessor() {
    if (HasSse()) return;
    const TMessageBox box(nullptr, "Error", csNoSse, MB_ICONERROR);
    // Without a toolkit that shows boxes the system's own says it.
    if (!box.Ask()) vapp_platform::ShowMessageBox(csNoSse, "Error", vapp_platform::BoxStyle::Error);
}

unsigned TApp::GetSplashScreenBitmapID() {
    return 0;
}

HINSTANCE TApp::GetSplashScreenModule() {
    return nullptr;
}

int TApp::GetSplashScreenTimeOut() {
    constexpr int cnTimeOut = 1000;
    return cnTimeOut;
}

unsigned TApp::GetSplashScreenVersionXLocation() {
    return m_splash ? m_splash->GetVersionXLocation() : 0;
}

unsigned TApp::GetSplashScreenVersionYLocation() {
    return m_splash ? m_splash->GetVersionYLocation() : 0;
}

unsigned long TApp::GetSplashScreenVersionColor() {
    return m_splash ? m_splash->GetVersionColor() : 0;
}

const char* TApp::GetVersionString() {
    return "2019.2";
}

const char* TApp::GetApplicationName() {
    return nullptr;
}

unsigned long TApp::GetInstanceLimit() {
    return 1;
}

CCommandLineInfo* TApp::GetCmdInfo() {
    return m_cmdInfo.get();
}

void TApp::ShowStartupWaitMessage() {
    if (m_splash) m_splash->ShowStartupWaitMessage();
}

void TApp::HideStartupWaitMessage() {
    if (m_splash) m_splash->HideStartupWaitMessage();
}

void TApp::HideSplashScreen() {
    if (m_splash) m_splash->Hide(0);
}

bool TApp::IsSplashScreenVisible() const {
    return m_splash && m_splash->IsShown();
}

CStringU TApp::GetProgramDirectory() const {
    return gGetExeFolder();
}
