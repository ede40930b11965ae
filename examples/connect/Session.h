/// @file
/// A connection from its start to its end.
#pragma once

#include "examples/connect/Options.h"

/// Starts the worker and passes everything through. False where there was no connection, with the reason
/// told; otherwise this doesn't come back: the process ends with the connection.
[[nodiscard]] bool RunSession(const TOptions& options);
