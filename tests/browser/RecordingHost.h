/// @file
/// A host for tests: a real interpreter with the commands `database`, `librarynavigator` and `logaction`,
/// which keeps every line that it receives, byte for byte, and answers from a table.
///
/// Its commands are C++, its table is keyed by whole lines or by their beginnings, and an answer may be a
/// function, which can call back into the navigator or change the interpreter. A line without an entry fails.
///
/// The surprise: at the top level Tcl turns the codes of `return`, `break` and `continue` into errors before
/// the caller sees them. They reach a sender only while some script runs; `Inside` makes that so.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "vapp/text/CStringU.h"

struct Tcl_Interp;
struct Tcl_Obj;

class RecordingHost {
public:
    /// Gives the completion code, and may set the interpreter's result.
    using THandler = std::function<int(Tcl_Interp*)>;

    RecordingHost();
    RecordingHost(const RecordingHost&) = delete;
    RecordingHost& operator=(const RecordingHost&) = delete;
    ~RecordingHost();

    [[nodiscard]] Tcl_Interp* GetInterp() const { return m_interp; }
    /// Makes a further command of the host, recorded and answered like the three.
    void AddCommand(const std::string& name);

    /// Answers of one line, or of all lines that begin so; a whole line goes before a beginning, a longer
    /// beginning before a shorter one. A later answer replaces an earlier one.
    void Answer(const std::string& line, const std::string& answer);
    void AnswerStart(const std::string& start, const std::string& answer);
    /// Ends with a completion code of Tcl and a result.
    void AnswerCode(const std::string& line, int code, const std::string& result = "");
    void Handle(const std::string& line, THandler handler);
    void HandleStart(const std::string& start, THandler handler);

    /// What was received so far.
    [[nodiscard]] const std::vector<std::string>& Lines() const { return m_lines; }
    /// The lines that begin so.
    [[nodiscard]] std::vector<std::string> LinesStarting(std::string_view start) const;
    void ClearLines() { m_lines.clear(); }

    /// Evaluates a script as the host does, and gives its result.
    std::string Eval(const std::string& script);
    /// The interpreter's present result, and a way to set it.
    [[nodiscard]] std::string GetResult() const;
    void SetResult(const std::string& result);
    /// Runs the function while a script of the host is running.
    void Inside(const std::function<void()>& function);

    /// One Tcl word of a name: the usual sanitise hook of a host.
    [[nodiscard]] static CStringU Brace(const CStringU& name);
    /// A Tcl list of texts.
    [[nodiscard]] static std::string List(const std::vector<std::string>& elements);

private:
    struct Access;

    int Received(Tcl_Interp* interp);

    Tcl_Interp* m_interp;
    std::map<std::string, THandler> m_whole;
    std::map<std::string, THandler> m_starts;
    std::vector<std::string> m_commands;
    std::vector<std::string> m_lines;
    std::function<void()> m_inside;
};

/// Installs a sanitise hook for the length of a block.
class HookGuard {
public:
    explicit HookGuard(CStringU (*hook)(const CStringU&) = &RecordingHost::Brace);
    HookGuard(const HookGuard&) = delete;
    HookGuard& operator=(const HookGuard&) = delete;
    ~HookGuard();
};

/// Compares lines with a golden file: its first line says what it is for, and every further line ends in `$`,
/// so that a trailing blank can be seen. Line feeds within a line stand as `\n`.
void ExpectGolden(const std::string& file, const std::vector<std::string>& lines);
