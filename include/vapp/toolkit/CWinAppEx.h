/// @file
/// The application object: its name, its main window, its settings.
#pragma once

#include <memory>
#include <vector>

#include "vapp/Export.h"
#include "vapp/text/CString.h"
#include "vapp/text/CStringU.h"
#include "vapp/toolkit/BasicTypes.h"
#include "vapp/toolkit/CObject.h"
#include "vapp/toolkit/MemoryProfileStore.h"
#include "vapp/toolkit/ProfileStore.h"

class CCommandLineInfo;
class CWnd;

/// One per process; the first one constructed is the current one until it is destroyed.
class VAPP_EXPORT CWinAppEx : public CObject {
public:
    /// Settings live in memory until `SetProfileStore`.
    explicit CWinAppEx(const CString& appName = "");
    ~CWinAppEx() override;

    /// The current application object, or null.
    [[nodiscard]] static CWinAppEx* GetApp();

    [[nodiscard]] const CString& GetAppName() const { return m_appName; }
    void SetAppName(const CString& name) { m_appName = name; }
    [[nodiscard]] CWnd* GetMainWnd() const { return m_mainWnd; }
    /// Not owned; it need not be made yet. A window that ends or is destroyed is the main window no more.
    void SetMainWnd(CWnd* window) { m_mainWnd = window; }

    /// Starts the application, before its windows are made; 0 ends it. The base starts the current
    /// application object alone.
    virtual int InitInstance();

    /// The words of the command line behind the program's name.
    /// @param slashIsSwitch  whether `/word` is a switch, as on Windows, and not a path.
    void SetArguments(std::vector<CStringU> words, bool slashIsSwitch = false);
    [[nodiscard]] const std::vector<CStringU>& GetArguments() const { return m_arguments; }
    /// Tells the words to the command-line object. One that begins with `-` or `--`, or with `/` where that
    /// counts, is a switch and is told without these signs; the signs alone are a plain word.
    void ParseCommandLine(CCommandLineInfo& info) const;

    /// The store that the four profile operations use.
    [[nodiscard]] ProfileStore& GetProfileStore() const { return *m_store; }
    void SetProfileStore(std::unique_ptr<ProfileStore> store);

    [[nodiscard]] CString GetProfileString(const CString& section, const CString& key,
                                           const CString& defaultValue = "") const;
    void WriteProfileString(const CString& section, const CString& key, const CString& value);
    [[nodiscard]] int GetProfileInt(const CString& section, const CString& key, int defaultValue) const;
    void WriteProfileInt(const CString& section, const CString& key, int value);

private:
    CString m_appName;
    CWnd* m_mainWnd = nullptr;
    std::unique_ptr<ProfileStore> m_store;
    std::vector<CStringU> m_arguments;
    bool m_slashIsSwitch = false;
};

/// Main window of the current application, or null without an application or window.
[[nodiscard]] VAPP_EXPORT CWnd* gGetMainWnd();
