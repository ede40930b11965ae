/// Answers to the start, and the words that it gets to read.

#include "host/NavigatorApp.h"

#include <vector>

#include "host/SplashPicture.h"
#include "vapp/Version.h"

namespace navigator {

NavigatorApp::NavigatorApp(const Options& options) : TApp("navigator"), m_limit(options.instances) {
    std::vector<CStringU> folders;
    folders.reserve(options.folders.size());
    // A folder that looks like a switch is one no more.
    for (const std::string& folder : options.folders) {
        const std::string word = folder.starts_with('-') ? "./" + folder : folder;
        folders.emplace_back(word.c_str(), TextEncoding::Utf8Auto);
    }
    SetArguments(std::move(folders));
    GetCmdInfo()->m_bShowSplash = !options.isWithoutSplash;
}

unsigned NavigatorApp::GetSplashScreenVersionXLocation() {
    return cnSplashVersionX;
}

unsigned NavigatorApp::GetSplashScreenVersionYLocation() {
    return cnSplashVersionY;
}

unsigned long NavigatorApp::GetSplashScreenVersionColor() {
    return cnSplashVersionColor;
}

const char* NavigatorApp::GetVersionString() {
    static constexpr char csVersionText[] = "Version ";
    static const std::string text = std::string(csVersionText) + csVappVersion;
    return text.c_str();
}

const char* NavigatorApp::GetApplicationName() {
    return "navigator";
}

}  // namespace navigator
