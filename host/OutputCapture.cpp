/// A transformation upon the channel, as Tcl's `chan push` takes it: a command that gets what is written and
/// answers what goes on below, which is nothing.

#include "host/OutputCapture.h"

#include <algorithm>
#include <utility>

namespace navigator {

namespace {

/// A name that no other capture has: one may begin inside of another.
std::string CommandName() {
    static unsigned count = 0;
    return "::navigator_output" + std::to_string(++count);
}

/// Runs a line and keeps the interpreter's own result out of it. True if it ended well.
bool RunQuietly(Tcl_Interp* interp, const std::string& line) {
    Tcl_InterpState state = Tcl_SaveInterpState(interp, TCL_OK);
    const bool isDone = Tcl_EvalEx(interp, line.c_str(), -1, TCL_EVAL_GLOBAL) == TCL_OK;
    Tcl_RestoreInterpState(interp, state);
    return isDone;
}

std::string EncodingOf(Tcl_Interp* interp, Tcl_Channel channel) {
    Tcl_DString encoding;
    Tcl_DStringInit(&encoding);
    const bool isKnown = Tcl_GetChannelOption(interp, channel, "-encoding", &encoding) == TCL_OK;
    std::string text(isKnown ? Tcl_DStringValue(&encoding) : "");
    Tcl_DStringFree(&encoding);
    return text;
}

}  // namespace

OutputCapture::OutputCapture(Tcl_Interp* interp)
    : m_interp(interp),
      m_name(CommandName()),
      m_command(interp, m_name.c_str(),
                [this](Tcl_Interp* caller, TclWords words) { return Answer(caller, words); }) {
    Begin(m_out);
    Begin(m_errors);
}

OutputCapture::~OutputCapture() {
    (void)Take();
}

std::string OutputCapture::Take() {
    End(m_errors);
    End(m_out);
    return std::exchange(m_text, {});
}

void OutputCapture::Begin(Channel& channel) {
    Tcl_Channel found = Tcl_GetChannel(m_interp, channel.name, nullptr);
    if (found == nullptr) {
        Tcl_ResetResult(m_interp);
        return;
    }
    const std::string encoding = EncodingOf(m_interp, found);
    // Whatever the locale can't write would be lost on the way to the console.
    if (encoding.empty() || Tcl_SetChannelOption(m_interp, found, "-encoding", "utf-8") != TCL_OK) return;
    if (RunQuietly(m_interp, std::string("chan push ") + channel.name + " " + m_name)) {
        channel.encoding = encoding;
    } else {
        Tcl_SetChannelOption(m_interp, found, "-encoding", encoding.c_str());
    }
}

void OutputCapture::End(Channel& channel) {
    const std::string encoding = std::exchange(channel.encoding, {});
    if (encoding.empty() || Tcl_InterpDeleted(m_interp) != 0) return;
    RunQuietly(m_interp, std::string("chan pop ") + channel.name);
    Tcl_Channel found = Tcl_GetChannel(m_interp, channel.name, nullptr);
    if (found != nullptr) Tcl_SetChannelOption(m_interp, found, "-encoding", encoding.c_str());
}

int OutputCapture::Answer(Tcl_Interp* interp, TclWords words) {
    const std::string_view what = words.size() > 1 ? gTextOf(words[1]) : std::string_view();
    if (what == "initialize") {
        Tcl_SetObjResult(interp, gTclText("initialize finalize write flush"));
    } else if (what == "write" && words.size() > 3) {
        int length = 0;
        const auto* const bytes = reinterpret_cast<const char*>(Tcl_GetByteArrayFromObj(words[3], &length));
        const auto count = static_cast<std::size_t>(length);
        const std::size_t kept = std::min(count, cnMostKept - m_text.size());
        m_text.append(bytes, kept);
        m_dropped += count - kept;
        Tcl_ResetResult(interp);
    } else {
        Tcl_ResetResult(interp);
    }
    return TCL_OK;
}

}  // namespace navigator
