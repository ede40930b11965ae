/// @file
/// The start of an application as a list of calls: what it asks of the host, of the settings and of the
/// toolkit, in the order in which it does.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tests/toolkit/RecordingPeers.h"
#include "vapp/app/TApp.h"

namespace app_test {

using StartLog = std::vector<std::string>;

/// Settings that write down what is read.
class LoggingStore : public ProfileStore {
public:
    explicit LoggingStore(StartLog& log) : m_log(log) {}

    [[nodiscard]] std::optional<CString> ReadText(const CString& section, const CString& key) const override {
        m_log.push_back(std::string("read ") + section.GetString() + '/' + key.GetString());
        return m_store.ReadText(section, key);
    }
    void WriteText(const CString& section, const CString& key, const CString& value) override {
        m_store.WriteText(section, key, value);
    }
    [[nodiscard]] std::optional<std::int32_t> ReadInteger(const CString& section,
                                                          const CString& key) const override {
        m_log.push_back(std::string("read ") + section.GetString() + '/' + key.GetString());
        return m_store.ReadInteger(section, key);
    }
    void WriteInteger(const CString& section, const CString& key, std::int32_t value) override {
        m_store.WriteInteger(section, key, value);
    }

private:
    StartLog& m_log;
    MemoryProfileStore m_store;
};

/// A toolkit that writes down what it is to show.
class LoggingPeers : public RecordingPeers {
public:
    explicit LoggingPeers(StartLog& log) : m_log(log) {}

    const TSplashScreen* splash = nullptr;  ///< the last one that came

    std::unique_ptr<Peer> CreateSplash(TSplashScreen& splash) override {
        const CPoint corner = splash.GetPosition().value_or(CPoint{-1, -1});
        m_log.push_back(
            "splash '" + std::string(splash.GetVersionString().Payload()) + "' at " +
            std::to_string(splash.GetVersionXLocation()) + ' ' +
            std::to_string(splash.GetVersionYLocation()) + " in " + std::to_string(splash.GetVersionColor()) +
            ", key " + std::to_string(splash.GetColorKey()) + ", for " + std::to_string(splash.GetTimeOut()) +
            " ms, corner " + std::to_string(corner.x) + ' ' + std::to_string(corner.y));
        this->splash = &splash;
        return RecordingPeers::CreateSplash(splash);
    }
    std::optional<int> ShowMessageBox(const TMessageBox& box) override {
        m_log.push_back("box " + std::string(box.GetTitle().Payload()));
        return RecordingPeers::ShowMessageBox(box);
    }
    [[nodiscard]] std::vector<CRect> MonitorAreas() const override {
        m_log.emplace_back("monitors");
        return RecordingPeers::MonitorAreas();
    }

private:
    StartLog& m_log;
};

/// A host's application that writes down what it is asked, and answers as the test wants.
class LoggingApp : public TApp {
public:
    LoggingApp(StartLog& log, const std::string& applicationName) : name(applicationName), m_log(log) {
        SetArguments({});
        SetProfileStore(std::make_unique<LoggingStore>(log));
    }

    unsigned GetSplashScreenBitmapID() override { return Logged("bitmap", bitmap); }
    HINSTANCE GetSplashScreenModule() override { return Logged("module", module); }
    int GetSplashScreenTimeOut() override { return Logged("time-out", TApp::GetSplashScreenTimeOut()); }
    unsigned GetSplashScreenVersionXLocation() override { return Logged("x", 11u); }
    unsigned GetSplashScreenVersionYLocation() override { return Logged("y", 22u); }
    unsigned long GetSplashScreenVersionColor() override { return Logged("colour", 33ul); }
    const char* GetVersionString() override { return Logged("version", TApp::GetVersionString()); }
    const char* GetApplicationName() override { return Logged("name", name.c_str()); }
    unsigned long GetInstanceLimit() override { return Logged("limit", limit); }
    CCommandLineInfo* GetCmdInfo() override { return Logged("command line", info); }

    std::string name;
    unsigned bitmap = 0;
    HINSTANCE module = nullptr;
    unsigned long limit = 1;
    CCommandLineInfo* info = TApp::GetCmdInfo();

private:
    template <typename Answer>
    Answer Logged(const char* what, Answer answer) {
        m_log.emplace_back(what);
        return answer;
    }

    StartLog& m_log;
};

}  // namespace app_test
