/// `navigator`: reads the command line, opens what it names, and then dumps, takes a picture or runs the
/// window.

#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include "host/CommandHelp.h"
#include "host/Navigator.h"
#include "host/NavigatorApp.h"
#include "host/Options.h"
#include "host/WindowRun.h"
#include "vapp/Version.h"
#include "vapp/text/ActiveCodePage.h"

namespace {

using namespace navigator;

int Dump(const Options& options) {
    NavigatorApp app(options);
    Navigator navigator(app);
    if (const int status = gOpenFolders(navigator, options, app)) return status;
    if (const int status = gPrepareWindow(navigator, options)) return status;
    const std::string text = navigator.Dump();
    std::cout << text << std::flush;
    if (!std::cout.good()) return gFail("The list can't be written.", cnFailureStatus);
    // Said already. A list that lacks something is not what was asked for.
    return navigator.Store().Troubles().empty() ? EXIT_SUCCESS : cnUsageStatus;
}

}  // namespace

int main(int argc, char** argv) {
    Options options;
    const std::vector<std::string> words(argv + (argc > 0 ? 1 : 0), argv + argc);
    if (const auto failure = gParseOptions(words, options)) return gFail(*failure, cnUsageStatus);
    if (options.isHelp) {
        std::cout << gUsageText() << "\nCommands for scripts:\n"
                  << gDescribeAllCommands() << gDescribe(CellCommand::Help())
                  << gDescribe(NavigatorCommand::Help()) << gDescribe(UserCommand::Help())
                  << gDescribe(UserMenuCommand::Help());
        return EXIT_SUCCESS;
    }
    if (options.isVersion) {
        std::cout << "navigator " << csVappVersion << '\n';
        return EXIT_SUCCESS;
    }
    // The controls speak the active code page; here that is always UTF-8, whatever the locale says, so that
    // no name of a file is lost.
    gSetActiveCodePage(cnUtf8CodePage);
    if (options.isDump) return Dump(options);
    return options.screenshot ? gTakePicture(options, argc, argv) : gRunWindow(options, argc, argv);
}
