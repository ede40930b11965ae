/// @file
/// The way to the host's interpreter and back: how a line is evaluated without disturbing the host, how an
/// answer is read, how names are made safe, how a user's command is wrapped for the host's log.
///
/// The navigator holds no design data; all that it shows is asked here, one line at a time, synchronously, on
/// the window thread. What the lines say is the business of their senders (docs/tcl-protocol.md lists them).
///
/// Failures never show: a reader takes a failed line for an empty or false answer. Host script that runs
/// inside a line may come back into the navigator, so a sender must not hold anything across a line that the
/// exported operations can change.
///
/// The surprise: without a hook, names go into a line bare. A name with a blank then is two words to Tcl, and
/// one with brackets is a command. Hosts whose names are not plain words install a hook.
#pragma once

#include <optional>
#include <string_view>

#include "vapp/Export.h"
#include "vapp/browser/TLibCellView.h"
#include "vapp/browser/TLineBuilder.h"
#include "vapp/browser/TTclList.h"
#include "vapp/browser/TTclObject.h"
#include "vapp/text/CStringU.h"

struct Tcl_Interp;
struct Tcl_Obj;

namespace vapp {

/// Installs the hook that turns every name on its way into a line into one Tcl word (by braces, by escapes,
/// as the host likes); null removes it. Process-wide; it outlives all navigators and is never reset by the
/// library. To be installed before the first population.
VAPP_EXPORT void gSetTclSanitizeInputUPointer(CStringU (*hook)(const CStringU&));

}  // namespace vapp

namespace vapp_library_browser {

/// The hook's result for the name, or the name itself without a hook.
[[nodiscard]] VAPP_EXPORT CStringU SanitizeTclInput(const CStringU& name);

/// Makes the interpreter usable, once in the process, by binding the library to the Tcl that the host brings.
/// False for null and for a Tcl that does not fit (another major version). The first call of the process
/// resets the interpreter's result, as Tcl's own binding does; so it is made when a view receives its
/// interpreter, not in the middle of a line.
[[nodiscard]] VAPP_EXPORT bool EnsureTclBound(Tcl_Interp* interp);

/// The most lines that may run inside one another. A line beyond fails at once: host script that comes back
/// without end reaches its end here, and not at the end of the stack.
inline constexpr int cnMaxNestedLines = 64;

/// Evaluates one line in the current call frame, puts the interpreter's result back as it stood, and gives
/// the completion code. The line is copied, so that its script may change the caller's text.
///
/// TCL_ERROR, with nothing evaluated and no answer: without a usable interpreter, inside of cnMaxNestedLines
/// other lines, and for a line that may open more brackets than Tcl's parser can follow (200 at a time).
///
/// The very first line of the process, if no view has received an interpreter before (see EnsureTclBound),
/// loses the host's result: the binding to Tcl resets it before it can be saved.
/// @param result  may be null. Otherwise receives the answer with a reference that the caller must drop, for
///                TCL_OK and also for TCL_ERROR; null for every other code.
VAPP_EXPORT int EvaluateTcl(Tcl_Interp* interp, const CStringU& line, Tcl_Obj** result);
/// The same for a line without marker, which must stay as it is until the end; the answer being held by an
/// object; null where it isn't wanted.
VAPP_EXPORT int EvaluateTcl(Tcl_Interp* interp, const char* line, TTclObject* result);

/// Evaluates a line and gives its answer; nothing unless the code is TCL_OK.
[[nodiscard]] VAPP_EXPORT TTclObject AskTcl(Tcl_Interp* interp, const char* line);
/// Evaluates a flag query. `onFailure` is the answer of a line that failed; an answer that is no integer is
/// false in any case.
[[nodiscard]] VAPP_EXPORT bool AskTclFlag(Tcl_Interp* interp, const char* line, bool onFailure = false);
/// Evaluates a text query; empty if the line failed.
[[nodiscard]] VAPP_EXPORT CStringU AskTclText(Tcl_Interp* interp, const char* line);

/// The integer of an answer, or nothing (also where ReadBytes is empty); leaves no error text anywhere.
[[nodiscard]] VAPP_EXPORT std::optional<int> ReadInteger(Tcl_Obj* answer) noexcept;
/// True for an integer that is not 0.
[[nodiscard]] VAPP_EXPORT bool ReadFlag(Tcl_Obj* answer) noexcept;
/// The bytes of an answer, valid while the object lives unchanged. Empty for null, and for lists that are
/// nested more than 1000 deep or beyond 4 MiB: Tcl could not make their text and live.
[[nodiscard]] VAPP_EXPORT std::string_view ReadBytes(Tcl_Obj* answer) noexcept;
/// The text of an answer, with its marker where it is due. Bytes that are no UTF-8 stay as they are.
[[nodiscard]] VAPP_EXPORT CStringU MakeText(Tcl_Obj* answer);

/// "library cell view", each sanitised by itself.
[[nodiscard]] VAPP_EXPORT CStringU JoinTriple(const TLibCellView& cell);

/// What is really sent for a command of the user: "logaction " and the whole line as one sanitised word, so
/// that the host can log it. A line that begins with "librarynavigator" (in this case) is the navigator's own
/// traffic and goes as it stands.
[[nodiscard]] VAPP_EXPORT CStringU WrapForActionLog(const CStringU& line);

}  // namespace vapp_library_browser
