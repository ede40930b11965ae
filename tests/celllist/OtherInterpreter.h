/// @file
/// A second interpreter for tests that end one: the recording host's own has to live as long as the host.
#pragma once

#include <tcl.h>

#include <functional>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "tests/browser/TclInterpreter.h"

/// Its commands hand their words to one function, which gives the answer and may end the interpreter.
class OtherInterpreter {
public:
    using TAnswer = std::function<std::string(const std::string& words)>;

    explicit OtherInterpreter(TAnswer answer) : m_answer(std::move(answer)), m_interp(MakeTclInterpreter()) {
        for (const char* name : {"database", "librarynavigator", "state"})
            Tcl_CreateObjCommand(m_interp, name, &Command, this, nullptr);
    }
    OtherInterpreter(const OtherInterpreter&) = delete;
    OtherInterpreter& operator=(const OtherInterpreter&) = delete;
    ~OtherInterpreter() { End(); }

    [[nodiscard]] Tcl_Interp* Get() const { return m_interp; }
    void End() {
        if (m_interp != nullptr) EndTclInterpreter(std::exchange(m_interp, nullptr));
    }
    /// The words of each command, with blanks between.
    [[nodiscard]] const std::vector<std::string>& Lines() const { return m_lines; }

private:
    static int Command(void* data, Tcl_Interp* interp, int count, Tcl_Obj* const words[]) {
        auto& self = *static_cast<OtherInterpreter*>(data);
        std::string line;
        for (int word = 0; word < count; ++word)
            line.append(line.empty() ? "" : " ").append(Tcl_GetString(words[word]));
        self.m_lines.push_back(line);
        Tcl_SetObjResult(interp, Tcl_NewStringObj(self.m_answer(line).c_str(), -1));
        return TCL_OK;
    }

    TAnswer m_answer;
    Tcl_Interp* m_interp;
    std::vector<std::string> m_lines;
};
