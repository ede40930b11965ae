#pragma once
/// The console without its pixels: lines of Tcl go in, and what they wrote and gave comes out. All runs in
/// the host's own interpreter at global level, in the call. While a line runs long, whoever shows the console
/// is asked now and then whether it is to go on.

#include <tcl.h>

#include <cstddef>
#include <functional>
#include <string>
#include <utility>

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
    /// Called several times a second while a line runs, inside of it: to let the window paint, and to say
    /// true if the line is to end. It ends with an error then that no `catch` holds up. A command that waits
    /// for something by itself, like `exec`, is not asked before it comes back.
    void SetBusyHandler(std::function<bool()> handler) { m_busy = std::move(handler); }
    /// Runs the text and takes it into the history. Output and result are shortened to what a window can
    /// show.
    ConsoleAnswer Run(const std::string& text);
    [[nodiscard]] InputHistory& History() { return m_history; }

private:
    class TimeLimit;

    Tcl_Interp* m_interp;
    InputHistory m_history;
    std::function<bool()> m_busy;
};

/// Longest text, in bytes, and most lines of it that the console shows of one answer.
inline constexpr std::size_t cnMostShownBytes = 200'000;
inline constexpr std::size_t cnMostShownLines = 2'000;

/// The text, or its beginning and a line that says how much is left out. It is cut between characters. Long
/// lines are divided, as a window is slow with them.
[[nodiscard]] std::string gShortenedForConsole(const std::string& text);

}  // namespace navigator
