/// The evaluation of what is typed, and the limits of what is shown of it.

#include "host/TclConsole.h"

#include <algorithm>
#include <string_view>

#include "host/OutputCapture.h"
#include "host/TclCommand.h"
#include "host/Utf8.h"

namespace navigator {

namespace {

/// A window lays a line out as a whole, and again whenever its width changes.
constexpr std::size_t cnLongestLine = 4'000;

/// The first place at or before `at` where a character begins; a text that is no UTF-8 is cut anywhere.
std::size_t CharacterBegin(std::string_view text, std::size_t at) {
    constexpr std::size_t cnLongestCharacter = 4;
    std::size_t begin = at;
    while (begin > 0 && at - begin < cnLongestCharacter && begin < text.size() &&
           gIsContinuation(text[begin]))
        --begin;
    return begin < text.size() && gIsContinuation(text[begin]) ? at : begin;
}

/// Tcl keeps a NUL and characters beyond the first plane in forms of its own.
std::string FromTcl(Tcl_Obj* object) {
    int length = 0;
    const char* const text = Tcl_GetStringFromObj(object, &length);
    Tcl_Encoding utf8 = Tcl_GetEncoding(nullptr, "utf-8");
    Tcl_DString external;
    Tcl_UtfToExternalDString(utf8, text, length, &external);
    std::string bytes(Tcl_DStringValue(&external), static_cast<std::size_t>(Tcl_DStringLength(&external)));
    Tcl_DStringFree(&external);
    Tcl_FreeEncoding(utf8);
    return bytes;
}

Tcl_Obj* ToTcl(const std::string& text) {
    Tcl_Encoding utf8 = Tcl_GetEncoding(nullptr, "utf-8");
    Tcl_DString internal;
    Tcl_ExternalToUtfDString(utf8, text.data(), static_cast<int>(text.size()), &internal);
    Tcl_Obj* const object = Tcl_NewStringObj(Tcl_DStringValue(&internal), Tcl_DStringLength(&internal));
    Tcl_DStringFree(&internal);
    Tcl_FreeEncoding(utf8);
    return object;
}

}  // namespace

/// Tcl's limit of time, which is over again and again: each time the handler is asked, and puts it off. Only
/// the outermost line has one, as there is one limit for the interpreter.
class TclConsole::TimeLimit {
public:
    TimeLimit(Tcl_Interp* interp, const std::function<bool()>& busy) : m_interp(interp), m_busy(busy) {
        if (!m_busy || Tcl_LimitTypeEnabled(m_interp, TCL_LIMIT_TIME) != 0) return;
        m_isSet = true;
        Tcl_LimitAddHandler(m_interp, TCL_LIMIT_TIME, &TimeLimit::IsOver, this, nullptr);
        Tcl_LimitSetGranularity(m_interp, TCL_LIMIT_TIME, cnCommandsBetweenLooks);
        PutOff();
        Tcl_LimitTypeSet(m_interp, TCL_LIMIT_TIME);
    }
    ~TimeLimit() {
        if (!m_isSet) return;
        Tcl_LimitTypeReset(m_interp, TCL_LIMIT_TIME);
        Tcl_LimitRemoveHandler(m_interp, TCL_LIMIT_TIME, &TimeLimit::IsOver, this);
    }
    TimeLimit(const TimeLimit&) = delete;
    TimeLimit& operator=(const TimeLimit&) = delete;

    [[nodiscard]] bool HasEnded() const { return m_hasEnded; }

private:
    static constexpr int cnCommandsBetweenLooks = 50;
    static constexpr long cnMicroseconds = 150'000;

    static void IsOver(ClientData data, Tcl_Interp*) {
        auto* const self = static_cast<TimeLimit*>(data);
        if (self->m_hasEnded) return;
        // First of all, as lines that run inside of the handler must not find themselves out of time.
        self->PutOff();
        if (!self->m_busy()) return;
        self->m_hasEnded = true;
        Tcl_Time past{0, 0};
        Tcl_LimitSetTime(self->m_interp, &past);
    }

    void PutOff() {
        constexpr long cnSecond = 1'000'000;
        Tcl_Time next{};
        Tcl_GetTime(&next);
        next.usec += cnMicroseconds;
        next.sec += next.usec / cnSecond;
        next.usec %= cnSecond;
        Tcl_LimitSetTime(m_interp, &next);
    }

    Tcl_Interp* m_interp;
    const std::function<bool()>& m_busy;
    bool m_isSet = false;
    bool m_hasEnded = false;
};

bool TclConsole::IsComplete(const std::string& text) {
    return Tcl_CommandComplete((text + "\n").c_str()) != 0;
}

ConsoleAnswer TclConsole::Run(const std::string& text) {
    m_history.Add(text);
    ConsoleAnswer answer;
    Tcl_Interp* const interp = m_interp;
    Tcl_Preserve(interp);
    {
        OutputCapture capture(interp);
        Tcl_Obj* const line = ToTcl(text);
        Tcl_IncrRefCount(line);
        bool hasEnded = false;
        {
            const TimeLimit limit(interp, m_busy);
            answer.isError = Tcl_EvalObjEx(interp, line, TCL_EVAL_GLOBAL | TCL_EVAL_DIRECT) != TCL_OK;
            hasEnded = answer.isError && limit.HasEnded();
        }
        Tcl_DecrRefCount(line);
        if (hasEnded) Tcl_SetObjResult(interp, gTclText("stopped"));
        answer.result = gShortenedForConsole(FromTcl(Tcl_GetObjResult(interp)));
        answer.output = gShortenedForConsole(capture.Take());
        if (capture.Dropped() > 0)
            answer.output += "... and " + std::to_string(capture.Dropped()) + " bytes that were not kept\n";
    }
    Tcl_ResetResult(interp);
    Tcl_Release(interp);
    return answer;
}

std::string gShortenedForConsole(const std::string& text) {
    const std::string_view whole(text);
    std::string shown;
    std::size_t at = 0;
    for (std::size_t lines = 0; at < whole.size() && lines < cnMostShownLines && at < cnMostShownBytes;
         ++lines) {
        const std::size_t newline = std::min(whole.find('\n', at), whole.size());
        std::size_t end = std::min(newline, cnMostShownBytes);
        end = std::min(end, at + cnLongestLine);
        const bool isWholeLine = end == newline;
        if (!isWholeLine) end = std::max(CharacterBegin(whole, end), at + 1);
        shown.append(whole.substr(at, end - at));
        if (!isWholeLine || newline < whole.size()) shown += '\n';
        at = isWholeLine ? newline + 1 : end;
    }
    if (at < whole.size()) shown += "... " + std::to_string(whole.size() - at) + " bytes more\n";
    return shown;
}

}  // namespace navigator
