#pragma once
/// What a script writes to the standard channels while this lives, kept instead of written. Without it a
/// `puts` in the console would go to a terminal that the user may not have.
///
/// A script that closes a channel, or pushes something upon it, gets what it asked for; the rest still works.

#include <tcl.h>

#include <cstddef>
#include <string>

#include "host/TclCommand.h"

namespace navigator {

class OutputCapture {
public:
    /// More than this is counted and not kept: an endless loop of `puts` must not take all memory.
    static constexpr std::size_t cnMostKept = std::size_t{1} << 20;

    explicit OutputCapture(Tcl_Interp* interp);
    ~OutputCapture();
    OutputCapture(const OutputCapture&) = delete;
    OutputCapture& operator=(const OutputCapture&) = delete;

    /// Ends the capture; what was written, in UTF-8, both channels in the order of their writing.
    [[nodiscard]] std::string Take();
    /// Bytes that were not kept.
    [[nodiscard]] std::size_t Dropped() const { return m_dropped; }

private:
    struct Channel {
        const char* name;
        std::string encoding;  ///< As it was before; empty while it isn't captured.
    };

    void Begin(Channel& channel);
    void End(Channel& channel);
    int Answer(Tcl_Interp* interp, TclWords words);

    Tcl_Interp* m_interp;
    std::string m_name;
    Channel m_out{"stdout", {}};
    Channel m_errors{"stderr", {}};
    std::string m_text;
    std::size_t m_dropped = 0;
    TclCommand m_command;
};

}  // namespace navigator
