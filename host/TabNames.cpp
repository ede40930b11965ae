/// One entry of the settings for each tab.

#include "host/TabNames.h"

#include "vapp/toolkit/CWinAppEx.h"

namespace navigator {

namespace {

constexpr char csTabNamesSection[] = "TabNames";

CString KeyOf(int tab) {
    return ("Tab" + std::to_string(tab + 1)).c_str();
}

const char* OwnName(int tab) {
    return tab >= 0 && tab < cnTabs ? csTabNames[static_cast<std::size_t>(tab)] : "";
}

}  // namespace

std::string gTabName(const CWinAppEx& app, int tab) {
    const CString kept = app.GetProfileString(csTabNamesSection, KeyOf(tab));
    return kept.IsEmpty() ? OwnName(tab) : kept.GetString();
}

void gSetTabName(CWinAppEx& app, int tab, const std::string& name) {
    const std::size_t first = name.find_first_not_of(' ');
    std::string kept = first == std::string::npos
                           ? std::string()
                           : name.substr(first, name.find_last_not_of(' ') - first + 1);
    if (kept == OwnName(tab)) kept.clear();
    app.WriteProfileString(csTabNamesSection, KeyOf(tab), kept.c_str());
}

}  // namespace navigator
