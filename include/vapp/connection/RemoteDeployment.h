/// @file
/// Putting the worker's programs on a remote machine, and asking what is there: by SFTP, with PuTTY's `psftp`
/// as a child process that reads a script.
///
/// The client is `putty\bin\psftp.exe` below the folder of this library; it works in the folder `LinuxUtils`
/// beside `putty`, which must exist, and where `put` finds its files. On Linux both lie at the same places,
/// the client as a link to the system's `psftp`.
///
/// The surprise: nothing here knows whether a script worked. A wrong host, a refused login, a missing folder
/// are complaints in the client's text, and no failures: read the text, or ask gRemoteFileExists afterwards.
#pragma once

#include <functional>

#include "vapp/Export.h"
#include "vapp/text/CStringU.h"

/// Runs a script of `psftp` commands, each ended by a line feed, on `target`, which stands on the command
/// line as it is, neither quoted nor split: switches of the client may stand in front of the name.
///
/// `output` hears the command line with a line feed, then all that the client says, errors too, on the
/// calling thread and as it comes: in pieces of up to 8 bytes, which split lines, and characters of several
/// bytes. Without an `output` the client may say nothing: its first word throws std::bad_function_call.
///
/// Blocks until the client has closed its output, without a limit of time; asks nobody for a password.
/// `verbose` makes the client log what it does. True, or std::runtime_error where the client could not be
/// started or given its script; what() names the step: "StdOutRd CreatePipe", "StdOutRd
/// SetHandleInformation", "StdInRd CreatePipe", "StdInRd SetHandleInformation", "CreateProcess failed",
/// "StdOutWr CloseHandle", "StdInRd CloseHandle", "WriteFile failed". What `output` throws comes out as it
/// is.
VAPP_EXPORT bool runFtp(const CStringU& target, const CStringU& script,
                        std::function<void(const CStringU&)> output, bool verbose);

/// Puts the five files of the worker into the remote folder .vornex/v2019_2_0_b13862 below the login folder,
/// one folder for each build; makes the folders, and three of the files programs for their owner alone. Ends
/// with a listing, from which the reader of `output` sees what has arrived. The rest is as with runFtp.
VAPP_EXPORT bool uploadWorkerScripts(const CStringU& target, std::function<void(const CStringU&)> output,
                                     bool verbose);

/// Whether the client's listing of the path's folder holds the path's name: a blank, the name, the end of a
/// line; by bytes, so that case counts. So a name is also found at the end of a longer one that has a blank
/// there, and of a complaint. The folder is not quoted: one with a blank in its path is not listed. False
/// also where nobody could be asked. Failures to start the client as with runFtp.
VAPP_EXPORT bool gRemoteFileExists(const CStringU& target, const CStringU& remotePath);
