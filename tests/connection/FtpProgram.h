/// @file
/// The test program as the SFTP client: started under the client's name it takes the words where its target
/// would stand, and does what they say.
///
///     arguments    says its switches, each with a blank behind it
///     script       says what came on its input, to the end
///     folder       says the last part of its working folder
///     say:TEXT     says the text
///     bytes:HEX    says bytes, two digits each
///     error:TEXT   says the text on its error stream
///     save:FILE    writes what came on its input into a file
///     deaf:FILE    closes its input, then makes the file
///     mute         closes its output and errors
///     until:FILE   waits for the file, half a minute at least
///     exit:N       ends the process
///
/// Unless it was made deaf, it ends only behind the end of its script, as the real one does: a script that
/// nobody reads is a failure.
#pragma once

#include <string>
#include <vector>

namespace connection_test {

/// True where the program was started under the name of the client; it is to play it then.
[[nodiscard]] bool IsFtpProgram(const char* ownName);

/// Plays the client, with the arguments behind the program's name.
[[nodiscard]] int PlayFtpProgram(const std::vector<std::string>& arguments);

/// Lays the client and the folder of the worker's files below a folder, with `program` as the client.
void LayFtpProgram(const std::string& program, const std::string& folder);

}  // namespace connection_test
