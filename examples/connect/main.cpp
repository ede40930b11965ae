/// @file
/// connect: a host on the command line. It starts a worker, here or on a remote machine, and passes standard
/// input and output through; or it goes through the steps of a remote connection and says which one fails.
#include <cstdio>

#include "examples/connect/Check.h"
#include "examples/connect/Options.h"
#include "examples/connect/Session.h"

int main(int count, char** arguments) {
    const TOptions options = ReadOptions(count - 1, arguments + 1);
    if (!options.m_complaint.empty()) {
        std::fprintf(stderr, "connect: %s; see connect --help\n", options.m_complaint.c_str());
        return 2;
    }
    if (options.m_help) {
        std::fputs(csHelp, stdout);
        return 0;
    }
    return (options.m_check ? CheckSteps(options) : RunSession(options)) ? 0 : 1;
}
