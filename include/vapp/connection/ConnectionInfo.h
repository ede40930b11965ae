/// @file
/// ConnectionInfo: what a connection starts, and what it expects to hear first.
#pragma once

#include "vapp/Export.h"
#include "vapp/text/CStringU.h"

/// Where and how to start a worker. A plain value; a connection keeps a copy of its own. Moving copies: the
/// texts are shared, and the source stays intact.
struct VAPP_EXPORT ConnectionInfo {
    /// Empty texts. Set runLocally before the structure is used.
    ConnectionInfo();
    ConnectionInfo(const ConnectionInfo& other);
    ConnectionInfo(ConnectionInfo&& other) noexcept;
    ~ConnectionInfo();
    ConnectionInfo& operator=(const ConnectionInfo& other);
    ConnectionInfo& operator=(ConnectionInfo&& other) noexcept;

    /// The argument that names the remote side to `plink`. It stands on the command line as it is, neither
    /// quoted nor split.
    CStringU sshTarget;
    /// What to run: on the remote side, the last argument of `plink`; locally, the whole command line. On
    /// Linux too it is split by the quoting rules of Windows: there is no shell, a single quote is a letter,
    /// and a `\` in the program's name counts as `/`.
    CStringU command;
    /// The value of the environment variable VORNEX_HOST_NAME for a worker that connects by TCP.
    CStringU hostName;
    /// True: `command` is started on this machine, without `plink`.
    bool runLocally;
    /// What the worker must send first. Up to 4096 bytes can match, byte by byte as the text holds them: a
    /// character beyond U+FFFF that came in as UTF-16 is six bytes here, and four from every other program,
    /// so keep to those below.
    CStringU keyword;
};
