#pragma once
/// An interpreter of its own for a test.

#include <tcl.h>

#include <string>
#include <vector>

namespace navigator_test {

class TestInterp {
public:
    TestInterp() {
        [[maybe_unused]] static const bool isReady = (Tcl_FindExecutable(nullptr), true);
        m_interp = Tcl_CreateInterp();
    }
    ~TestInterp() { Delete(); }
    TestInterp(const TestInterp&) = delete;
    TestInterp& operator=(const TestInterp&) = delete;

    Tcl_Interp* Get() const { return m_interp; }

    void Delete() {
        if (m_interp != nullptr) Tcl_DeleteInterp(m_interp);
        m_interp = nullptr;
    }

    /// The completion code; the result is then in Result.
    int Eval(const std::string& line) {
        return Tcl_EvalEx(m_interp, line.c_str(), static_cast<int>(line.size()), 0);
    }

    std::string Result() const { return Tcl_GetStringResult(m_interp); }

    /// The result of a line that must succeed, or else a text that no line gives.
    std::string Answer(const std::string& line) {
        return Eval(line) == TCL_OK ? Result() : "ERROR: " + Result();
    }

    /// The result as the elements of a list.
    std::vector<std::string> List(const std::string& line) {
        std::vector<std::string> texts;
        int count = 0;
        Tcl_Obj** elements = nullptr;
        if (Eval(line) != TCL_OK ||
            Tcl_ListObjGetElements(nullptr, Tcl_GetObjResult(m_interp), &count, &elements) != TCL_OK)
            return {"ERROR: " + Result()};
        for (int element = 0; element < count; ++element)
            texts.emplace_back(Tcl_GetString(elements[element]));
        return texts;
    }

private:
    Tcl_Interp* m_interp = nullptr;
};

/// A name as one word of a line.
inline std::string Word(const std::string& name) {
    int flags = 0;
    std::string word(
        static_cast<std::size_t>(Tcl_ScanCountedElement(name.data(), static_cast<int>(name.size()), &flags)) +
            1,
        '\0');
    word.resize(static_cast<std::size_t>(
        Tcl_ConvertCountedElement(name.data(), static_cast<int>(name.size()), word.data(), flags)));
    return word;
}

}  // namespace navigator_test
