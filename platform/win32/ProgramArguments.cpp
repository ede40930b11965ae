/// @file
/// The system keeps one line of UTF-16, which is split by the rules of its programs.
#include "platform/ProgramArguments.h"

#include <windows.h>

#include <string>

#include "platform/CommandLine.h"

namespace vapp_platform {

std::vector<CStringU> ProgramArguments() {
    const CStringU line(GetCommandLineW());
    const std::vector<std::string> all = SplitCommandLine(line.PayloadView());
    std::vector<CStringU> words;
    for (std::size_t i = 1; i < all.size(); ++i)
        words.emplace_back(all[i].c_str(), TextEncoding::Utf8Auto);
    return words;
}

}  // namespace vapp_platform
