/// @file
/// The worker's files on the remote side.
#pragma once

#include <string>

/// Where an upload puts the files, below the login folder.
inline constexpr const char* csRemoteFolder = ".vornex/v2019_2_0_b13862";
/// The worker among them.
inline constexpr const char* csRemoteWorker = ".vornex/v2019_2_0_b13862/evi_worker";

/// Puts them there and looks whether they have arrived; tells what goes on, and why it failed.
[[nodiscard]] bool Deploy(const std::string& target);
