/// @file
/// What an application was asked to do by its command line.
#pragma once

#include "vapp/Export.h"
#include "vapp/text/CStringU.h"

/// The result of CWinAppEx::ParseCommandLine. A host derives from it to understand words of its own.
class VAPP_EXPORT CCommandLineInfo {
public:
    /// The command that a start comes with. The numbers are fixed; those between have no meaning here, and a
    /// host may use them.
    enum TShellCommand {
        /// Start and open nothing.
        FileNothing = -1,
        /// Start with something new: what a start without words means.
        FileNew = 0,
        /// Start and open the named file.
        FileOpen = 1,
        /// Start, undo the registration with the system, and end. The undoing is the host's.
        AppUnregister = 6,
    };

    CCommandLineInfo() = default;
    CCommandLineInfo(const CCommandLineInfo&) = default;
    CCommandLineInfo& operator=(const CCommandLineInfo&) = default;
    virtual ~CCommandLineInfo();

    /// Told each word in turn, a switch without the signs in front of it; `isLast` with the last one. The
    /// base knows the switch "unregister", in any case of letters, and takes the first word that is no switch
    /// for the file; with the last word, a file makes FileOpen of FileNew. All other words it passes over. An
    /// override calls it for what it doesn't know itself.
    virtual void ParseParam(const CStringU& word, bool isSwitch, bool isLast);

    /// Whether a splash may be shown.
    bool m_bShowSplash = true;
    /// One of TShellCommand, or a number of the host's.
    int m_nShellCommand = FileNew;
    /// The file to open, as it was given; empty without one.
    CStringU m_strFileName;
};
