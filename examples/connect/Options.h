/// @file
/// What the user wants, read from the arguments.
#pragma once

#include <string>

#include "vapp/text/CStringU.h"

/// Help, complaints and all other talk is UTF-8 here; this makes it the library's text.
[[nodiscard]] inline CStringU AsText(const std::string& utf8) {
    return {utf8.c_str(), TextEncoding::Utf8Auto};
}
/// The inverse.
[[nodiscard]] inline std::string AsBytes(const CStringU& text) {
    return std::string(text.PayloadView());
}

struct TOptions {
    bool m_help = false;
    bool m_tcp = false;
    bool m_deploy = false;
    /// Go through the steps instead of working.
    bool m_check = false;
    /// What names the remote side to PuTTY's programs; empty for this machine.
    std::string m_target;
    std::string m_keyword = "WORKER_READY";
    /// The command line, or for the remote side what its shell gets.
    std::string m_command;
    /// About the first argument that means nothing; empty where all do.
    std::string m_complaint;
};

extern const char csHelp[];

/// Reads the arguments behind the program's name.
[[nodiscard]] TOptions ReadOptions(int count, const char* const* arguments);
