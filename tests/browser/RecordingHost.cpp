#include "tests/browser/RecordingHost.h"

#include <gtest/gtest.h>
#include <tcl.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <utility>

#include "tests/browser/TclInterpreter.h"
#include "vapp/browser/TclBridge.h"

namespace {

Tcl_Obj* NewText(std::string_view text) {
    return Tcl_NewStringObj(text.data(), static_cast<int>(text.size()));
}

std::string TextOf(Tcl_Obj* object) {
    int length = 0;
    const char* bytes = Tcl_GetStringFromObj(object, &length);
    return {bytes, static_cast<std::size_t>(length)};
}

std::string Visible(const std::string& line) {
    std::string shown;
    for (const char c : line) {
        if (c == '\n') {
            shown += "\\n";
        } else {
            shown += c;
        }
    }
    return shown + "$";
}

}  // namespace

/// The faces that Tcl calls.
struct RecordingHost::Access {
    // The line as it was sent, before Tcl took it apart.
    static int Trace(void* data, Tcl_Interp* /*interp*/, int /*level*/, const char* line,
                     Tcl_Command /*token*/, int /*count*/, Tcl_Obj* const words[]) {
        auto& host = *static_cast<RecordingHost*>(data);
        const std::string command = TextOf(words[0]);
        if (std::find(host.m_commands.begin(), host.m_commands.end(), command) != host.m_commands.end()) {
            host.m_lines.emplace_back(line);
        }
        return TCL_OK;
    }

    static int Command(void* data, Tcl_Interp* interp, int /*count*/, Tcl_Obj* const /*words*/[]) {
        return static_cast<RecordingHost*>(data)->Received(interp);
    }

    static int Inside(void* data, Tcl_Interp* /*interp*/, int /*count*/, Tcl_Obj* const /*words*/[]) {
        static_cast<RecordingHost*>(data)->m_inside();
        return TCL_OK;
    }
};

RecordingHost::RecordingHost() : m_interp(MakeTclInterpreter()) {
    EXPECT_TRUE(vapp_library_browser::EnsureTclBound(m_interp));
    Tcl_CreateObjTrace(m_interp, 0, 0, &Access::Trace, this, nullptr);
    Tcl_CreateObjCommand(m_interp, "inside", &Access::Inside, this, nullptr);
    for (const char* name : {"database", "librarynavigator", "logaction"})
        AddCommand(name);
}

RecordingHost::~RecordingHost() {
    EndTclInterpreter(m_interp);
}

void RecordingHost::AddCommand(const std::string& name) {
    m_commands.push_back(name);
    Tcl_CreateObjCommand(m_interp, name.c_str(), &Access::Command, this, nullptr);
}

void RecordingHost::Answer(const std::string& line, const std::string& answer) {
    AnswerCode(line, TCL_OK, answer);
}

void RecordingHost::AnswerStart(const std::string& start, const std::string& answer) {
    HandleStart(start, [answer](Tcl_Interp* interp) {
        Tcl_SetObjResult(interp, NewText(answer));
        return TCL_OK;
    });
}

void RecordingHost::AnswerCode(const std::string& line, int code, const std::string& result) {
    Handle(line, [code, result](Tcl_Interp* interp) {
        Tcl_SetObjResult(interp, NewText(result));
        return code;
    });
}

void RecordingHost::Handle(const std::string& line, THandler handler) {
    m_whole[line] = std::move(handler);
}

void RecordingHost::HandleStart(const std::string& start, THandler handler) {
    m_starts[start] = std::move(handler);
}

int RecordingHost::Received(Tcl_Interp* interp) {
    const std::string line = m_lines.empty() ? std::string() : m_lines.back();
    THandler handler;
    if (const auto whole = m_whole.find(line); whole != m_whole.end()) handler = whole->second;
    std::size_t longest = 0;
    for (const auto& [start, candidate] : m_starts) {
        if (m_whole.contains(line) || !line.starts_with(start) || start.size() < longest) continue;
        longest = start.size();
        handler = candidate;
    }
    if (handler) return handler(interp);
    Tcl_SetObjResult(interp, NewText("no answer to: " + line));
    return TCL_ERROR;
}

std::vector<std::string> RecordingHost::LinesStarting(std::string_view start) const {
    std::vector<std::string> found;
    std::copy_if(m_lines.begin(), m_lines.end(), std::back_inserter(found),
                 [start](const std::string& line) { return line.starts_with(start); });
    return found;
}

std::string RecordingHost::Eval(const std::string& script) {
    Tcl_EvalEx(m_interp, script.c_str(), static_cast<int>(script.size()), 0);
    return GetResult();
}

std::string RecordingHost::GetResult() const {
    return TextOf(Tcl_GetObjResult(m_interp));
}

void RecordingHost::SetResult(const std::string& result) {
    Tcl_SetObjResult(m_interp, NewText(result));
}

void RecordingHost::Inside(const std::function<void()>& function) {
    const std::function<void()> before = std::exchange(m_inside, function);
    Eval("inside");
    m_inside = before;
}

CStringU RecordingHost::Brace(const CStringU& name) {
    Tcl_Obj* text = Tcl_NewStringObj(name.Payload(), name.GetByteLength());
    Tcl_Obj* list = Tcl_NewListObj(1, &text);
    Tcl_IncrRefCount(list);
    CStringU word = vapp_library_browser::MakeText(list);
    Tcl_DecrRefCount(list);
    return word;
}

std::string RecordingHost::List(const std::vector<std::string>& elements) {
    Tcl_Obj* list = Tcl_NewListObj(0, nullptr);
    Tcl_IncrRefCount(list);
    for (const std::string& element : elements)
        Tcl_ListObjAppendElement(nullptr, list, NewText(element));
    std::string text = TextOf(list);
    Tcl_DecrRefCount(list);
    return text;
}

HookGuard::HookGuard(CStringU (*hook)(const CStringU&)) {
    vapp::gSetTclSanitizeInputUPointer(hook);
}

HookGuard::~HookGuard() {
    vapp::gSetTclSanitizeInputUPointer(nullptr);
}

void ExpectGolden(const std::string& file, const std::vector<std::string>& lines) {
    std::ifstream in(std::string(VAPP_GOLDEN_FOLDER) + "/" + file);
    ASSERT_TRUE(in) << "no golden file " << file;
    std::string purpose;
    std::getline(in, purpose);
    EXPECT_TRUE(purpose.starts_with("# ")) << file << " must say in its first line what it is for";
    std::ostringstream wanted;
    wanted << in.rdbuf();
    std::string got;
    for (const std::string& line : lines)
        got += Visible(line) + "\n";
    EXPECT_EQ(wanted.str(), got) << "lines differ from " << file;
}
