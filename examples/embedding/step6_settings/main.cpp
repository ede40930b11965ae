// Step 6: settings. They go into whatever the tool keeps its settings in; here into a table that outlives two
// runs of the tool. The dialog of the views that are left out edits one of them, and the preference whether
// to ask before a cell is reserved is another.
#include <cstdint>
#include <cstdio>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <variant>

#include "step2_database/Database.h"
#include "step3_browser/PrintPanes.h"
#include "vapp/app/TAllowAskReserveGuard.h"
#include "vapp/app/TApp.h"
#include "vapp/app/TPreferenceMgr.h"
#include "vapp/browser/CExcludeDlg.h"
#include "vapp/toolkit/CFrameWnd.h"
#include "vapp/toolkit/ProfileStore.h"

using namespace vapp_library_browser;

namespace {

using Settings = std::map<std::pair<CString, CString>, std::variant<CString, std::int32_t>>;

class ToolStore final : public ProfileStore {
public:
    explicit ToolStore(Settings& settings) : m_settings(settings) {}

    [[nodiscard]] std::optional<CString> ReadText(const CString& section, const CString& key) const override {
        return Read<CString>(section, key);
    }
    void WriteText(const CString& section, const CString& key, const CString& value) override {
        m_settings[{section, key}] = value;
    }
    [[nodiscard]] std::optional<std::int32_t> ReadInteger(const CString& section,
                                                          const CString& key) const override {
        return Read<std::int32_t>(section, key);
    }
    void WriteInteger(const CString& section, const CString& key, std::int32_t value) override {
        m_settings[{section, key}] = value;
    }

private:
    template <typename Kind>
    [[nodiscard]] std::optional<Kind> Read(const CString& section, const CString& key) const {
        const auto found = m_settings.find({section, key});
        const Kind* value = found != m_settings.end() ? std::get_if<Kind>(&found->second) : nullptr;
        return value != nullptr ? std::optional(*value) : std::nullopt;
    }

    Settings& m_settings;
};

/// On a screen this is dialog.DoModal(), which waits for the user; these are the user's steps.
void AskForExcludedViews(CFrameWnd& frame, const char* names) {
    CExcludeDlg dialog(&frame);
    dialog.Open();
    dynamic_cast<CEdit&>(*dialog.GetDlgItem(CExcludeDlg::cnEditId)).EditedByUser(names);
    dynamic_cast<CButton&>(*dialog.GetDlgItem(IDOK)).Click();
}

void AskWhetherToReserve(const CWinAppEx& app) {
    using namespace prefs;
    const CString stored =
        app.GetProfileString("Preferences", "AskReserve", csManagedCellsOnly.StripMarker());
    const TAskReserveOption option = gConvertStringToEnum(stored);
    const TAllowAskReserveGuard guard;  // an edit begins: the question may be asked
    const TAskReserveStatus status = TPreferenceMgr::GetInstance().AskReserve(false, option);
    std::printf(
        "reserve: %s, %s\n", stored.GetString(),
        status == NotAsked ? "not asked" : (status == Agreed ? "yes" : "no; nobody could see the question"));
}

void Run(Settings& settings, bool isFirst, const char* program) {
    TApp app("layout_tool");
    app.SetProfileStore(std::make_unique<ToolStore>(settings));
    const Interpreter interp = MakeInterpreter(program);
    Database database(interp.get());
    CFrameWnd frame;
    frame.CreateFrame("Layout tool", CRect(0, 0, 420, 900));
    app.SetMainWnd(&frame);
    TLibraryBrowser browser;
    browser.Initialize(&frame, interp.get(), nullptr);
    browser.SerializeSetup(false);
    database.ExcludeViews(browser.GetExcludeViewNames().GetString());
    browser.Populate();
    PrintPanes(browser);
    std::printf("heights: %d %d\n", browser.GetRowHeight(0), browser.GetRowHeight(1));
    AskWhetherToReserve(app);
    if (isFirst) {
        browser.SetRowHeight(0, 150);
        AskForExcludedViews(frame, "layout; spectre");
        app.WriteProfileString("Preferences", "AskReserve", prefs::csAlways.StripMarker());
    }
    // The heights are saved by the window's end, all else here.
    browser.SerializeSetup(true);
}

}  // namespace

int main(int, char** argv) {
    Settings settings;
    std::puts("the first run:");
    Run(settings, true, argv[0]);
    std::puts("\nthe second run:");
    Run(settings, false, argv[0]);
    return 0;
}
