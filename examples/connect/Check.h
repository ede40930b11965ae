/// @file
/// The steps of a remote connection, one by one.
#pragma once

#include "examples/connect/Options.h"

/// Tells of each step on standard output whether it is in order, up to the first that isn't. True where all
/// are.
[[nodiscard]] bool CheckSteps(const TOptions& options);
