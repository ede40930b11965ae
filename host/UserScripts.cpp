/// Finding and sourcing.

#include "host/UserScripts.h"

#include <QStandardPaths>
#include <algorithm>
#include <optional>
#include <string>

#include "host/DisplayName.h"

namespace navigator {

namespace fs = std::filesystem;

std::vector<fs::path> gScriptsIn(const fs::path& folder) {
    std::vector<fs::path> scripts;
    std::error_code error;
    for (fs::directory_iterator entries(folder, error); !error && entries != fs::directory_iterator();
         entries.increment(error)) {
        std::error_code ignored;
        if (entries->path().extension() == ".tcl" && entries->is_regular_file(ignored))
            scripts.push_back(entries->path());
    }
    std::sort(scripts.begin(), scripts.end());
    return scripts;
}

int gSourceScripts(Navigator& navigator, const fs::path& folder) {
    int failures = 0;
    for (const fs::path& script : gScriptsIn(folder)) {
        const auto failure = navigator.SourceScript(gDisplayName(script.native()));
        if (!failure) continue;
        ++failures;
        navigator.Commands().Log().Add(ActionLog::TKind::Failure, *failure);
    }
    return failures;
}

fs::path gUserScriptFolder() {
    const QString settings = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    const std::string folder = (settings + QStringLiteral("/Vornex_EDA/navigator-scripts")).toStdString();
    return {std::u8string(folder.begin(), folder.end())};
}

}  // namespace navigator
