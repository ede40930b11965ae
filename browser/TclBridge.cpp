/// @file
/// Evaluates lines and reads answers. The one place that calls the interpreter; all senders go through here.
///
/// The order of the steps matters. The host's result is saved before the line and put back after it, so that
/// a paint which comes in the middle of a host's script leaves no trace in that script's result. The answer
/// is taken in between, with a reference of its own, and lives on after the result is back.
#include "vapp/browser/TclBridge.h"

#include <tcl.h>

#include <string_view>

#include "browser/AnswerDepth.h"
#include "browser/LineNesting.h"
#include "vapp/browser/HostCallScope.h"

namespace vapp_library_browser {

namespace {

constexpr std::string_view csOwnCommand = "librarynavigator";

int s_nestedLines = 0;
int s_hostCallScopes = 0;

/// Counts the lines that run inside one another.
class TNestingGuard {
public:
    TNestingGuard() { ++s_nestedLines; }
    TNestingGuard(const TNestingGuard&) = delete;
    TNestingGuard& operator=(const TNestingGuard&) = delete;
    ~TNestingGuard() { --s_nestedLines; }
};

/// Holds the host's result for the time of a line, and the interpreter itself: the line may delete it.
class TSavedState {
public:
    explicit TSavedState(Tcl_Interp* interp) : m_interp(interp) {
        Tcl_Preserve(m_interp);
        Tcl_SaveResult(m_interp, &m_saved);
    }
    TSavedState(const TSavedState&) = delete;
    TSavedState& operator=(const TSavedState&) = delete;
    ~TSavedState() {
        Tcl_RestoreResult(m_interp, &m_saved);
        Tcl_Release(m_interp);
    }

private:
    Tcl_Interp* m_interp;
    Tcl_SavedResult m_saved;
};

}  // namespace

bool IsLineRunning() noexcept {
    return s_nestedLines > 0 || s_hostCallScopes > 0;
}

HostCallScope::HostCallScope() noexcept {
    ++s_hostCallScopes;
}

HostCallScope::~HostCallScope() {
    --s_hostCallScopes;
}

bool EnsureTclBound(Tcl_Interp* interp) {
    static bool s_bound = false;
    if (interp == nullptr) return false;
    if (!s_bound) s_bound = Tcl_InitStubs(interp, "8.6", 0) != nullptr;
    return s_bound;
}

int EvaluateTcl(Tcl_Interp* interp, const char* line, TTclObject* result) {
    if (result != nullptr) *result = TTclObject();
    if (s_nestedLines >= cnMaxNestedLines || MayNestTooDeep(line)) return TCL_ERROR;
    if (!EnsureTclBound(interp)) return TCL_ERROR;
    const TNestingGuard nesting;
    const TSavedState saved(interp);
    // In the current call frame and not at global level: a line that is sent while a procedure of the host
    // runs sees that procedure's variables, and hosts use it.
    const int code = Tcl_EvalEx(interp, line, -1, 0);
    if (result != nullptr && code < TCL_RETURN) *result = TTclObject(Tcl_GetObjResult(interp));
    return code;
}

int EvaluateTcl(Tcl_Interp* interp, const CStringU& line, Tcl_Obj** result) {
    // The line's own script may change the caller's text while Tcl reads it.
    const CStringU held = line;  // NOLINT(performance-unnecessary-copy-initialization)
    TTclObject answer;
    const int code = EvaluateTcl(interp, held.Payload(), result != nullptr ? &answer : nullptr);
    if (result != nullptr) *result = answer.Release();
    return code;
}

TTclObject AskTcl(Tcl_Interp* interp, const char* line) {
    TTclObject answer;
    // The object of a TCL_ERROR is dropped here too, unread: the error text is the host's to report.
    if (EvaluateTcl(interp, line, &answer) != TCL_OK) return {};
    return answer;
}

bool AskTclFlag(Tcl_Interp* interp, const char* line, bool onFailure) {
    const TTclObject answer = AskTcl(interp, line);
    return answer ? ReadFlag(answer.Get()) : onFailure;
}

CStringU AskTclText(Tcl_Interp* interp, const char* line) {
    return MakeText(AskTcl(interp, line).Get());
}

std::optional<int> ReadInteger(Tcl_Obj* answer) noexcept {
    int value = 0;
    // Without an interpreter, which would receive the error text of a bad answer.
    if (!HasReadableText(answer) || Tcl_GetIntFromObj(nullptr, answer, &value) != TCL_OK) return std::nullopt;
    return value;
}

bool ReadFlag(Tcl_Obj* answer) noexcept {
    return ReadInteger(answer).value_or(0) != 0;
}

std::string_view ReadBytes(Tcl_Obj* answer) noexcept {
    if (!HasReadableText(answer)) return {};
    int length = 0;
    const char* bytes = Tcl_GetStringFromObj(answer, &length);
    return {bytes, static_cast<std::size_t>(length)};
}

CStringU MakeText(Tcl_Obj* answer) {
    const std::string_view bytes = ReadBytes(answer);
    return {bytes.data(), TextEncoding::Utf8Auto, static_cast<int>(bytes.size())};
}

CStringU JoinTriple(const TLibCellView& cell) {
    return TLineBuilder().Triple(cell).ToText();
}

CStringU WrapForActionLog(const CStringU& line) {
    if (line.PayloadView().starts_with(csOwnCommand)) return line;
    return TLineBuilder("logaction ").Name(line).ToText();
}

}  // namespace vapp_library_browser
