#pragma once
/// The console without its pixels: lines of Tcl go in, and what they wrote and gave comes out. All runs in
/// the host's own interpreter at global level, in the call: a line that runs long keeps the window waiting.

#include <tcl.h>

#include <cstddef>
#include <string>

#include "host/InputHistory.h"

namespace navigator {

/// What a line left behind, in UTF-8.
struct ConsoleAnswer {
    std::string output;  ///< What it wrote to the standard channels.
    std::string result;  ///< Its result, or the sentence of its error.
    bool isError = false;
};

class TclConsole {
public:
    /// The interpreter must outlive this object.
    explicit TclConsole(Tcl_Interp* interp) : m_interp(interp) {}

    /// Whether all braces, brackets and quotes that the text opens are closed.
    [[nodiscard]] static bool IsComplete(const std::string& text);
    /// Runs the text and takes it into the history. Output and result are shortened to what a window can
    /// show.
    ConsoleAnswer Run(const std::string& text);
    [[nodiscard]] InputHistory& History() { return m_history; }

private:
    Tcl_Interp* m_interp;
    InputHistory m_history;
};

/// Longest text, in bytes, and most lines of it that the console shows of one answer.
inline constexpr std::size_t cnMostShownBytes = 200'000;
inline constexpr std::size_t cnMostShownLines = 2'000;

/// The text, or its beginning and a line that says how much is left out. It is cut between characters. Long
/// lines are divided, as a window is slow with them.
[[nodiscard]] std::string gShortenedForConsole(const std::string& text);

}  // namespace navigator
