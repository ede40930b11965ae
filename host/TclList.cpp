/// The interpreter's own making and splitting of lists.

#include "host/TclList.h"

#include <tcl.h>

namespace navigator {

std::string gListOfWords(const std::vector<std::string>& words) {
    std::vector<const char*> pointers;
    pointers.reserve(words.size());
    for (const std::string& word : words)
        pointers.push_back(word.c_str());
    char* const merged = Tcl_Merge(static_cast<int>(pointers.size()), pointers.data());
    std::string list(merged);
    Tcl_Free(merged);
    return list;
}

std::vector<std::string> gWordsOfList(const std::string& list) {
    int count = 0;
    const char** words = nullptr;
    if (Tcl_SplitList(nullptr, list.c_str(), &count, &words) != TCL_OK) return {};
    std::vector<std::string> texts(words, words + count);
    Tcl_Free(reinterpret_cast<char*>(words));
    return texts;
}

}  // namespace navigator
