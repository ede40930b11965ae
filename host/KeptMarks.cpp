/// The marks as one Tcl list in the settings: names may hold anything.

#include "host/KeptMarks.h"

#include <tcl.h>

#include <array>
#include <map>
#include <optional>
#include <string>

#include "host/TclList.h"
#include "vapp/toolkit/CWinAppEx.h"

namespace navigator {

namespace {

constexpr char csMarksSection[] = "Marks";
constexpr char csList[] = "Views";

/// Folder of the design, word of the key, library, cell, view; and what the mark says.
using TMarks = std::map<std::array<std::string, 5>, std::string>;

constexpr std::array<std::pair<CellKey, std::string_view>, 2> csKeys{
    {{CellKey::IsHiddenInLists, "hidden"}, {CellKey::IsReserved, "reserved"}}};

std::string WordOf(CellKey key) {
    for (const auto& [known, word] : csKeys)
        if (known == key) return std::string(word);
    return {};
}

std::optional<CellKey> KeyOf(const std::string& word) {
    for (const auto& [key, known] : csKeys)
        if (known == word) return key;
    return std::nullopt;
}

/// The design as settings know it: its name may be another one in each run.
std::string FolderOf(const Design& design) {
    std::error_code error;
    const std::filesystem::path whole = std::filesystem::weakly_canonical(design.folder, error);
    return gDisplayName((error ? design.folder : whole).native());
}

TMarks Read(const CWinAppEx& app) {
    TMarks marks;
    for (const std::string& line : gWordsOfList(app.GetProfileString(csMarksSection, csList).GetString())) {
        const std::vector<std::string> words = gWordsOfList(line);
        if (words.size() == 6) marks[{words[0], words[1], words[2], words[3], words[4]}] = words[5];
    }
    return marks;
}

bool Write(CWinAppEx& app, const TMarks& marks) {
    std::vector<std::string> lines;
    for (const auto& [name, value] : marks) {
        if (lines.size() == KeptMarks::cnMostKept) break;
        lines.push_back(gListOfWords({name[0], name[1], name[2], name[3], name[4], value}));
    }
    app.WriteProfileString(csMarksSection, csList, gListOfWords(lines).c_str());
    return marks.size() <= KeptMarks::cnMostKept;
}

}  // namespace

bool KeptMarks::Set(const std::vector<CellViewName>& views, CellKey key, bool isWanted) {
    TMarks marks = Read(m_app);
    for (const CellViewName& view : views) {
        const Design* const design = m_store.FindDesign(view.design);
        if (design == nullptr) continue;
        m_store.SetMark(view, key, "");
        std::string value;
        if (m_store.Flag(m_store.Find(view.design, view.library, view.cell, view.view), key) != isWanted)
            value = isWanted ? "1" : "0";
        if (!value.empty()) m_store.SetMark(view, key, value);
        const std::array<std::string, 5> name{FolderOf(*design), WordOf(key), view.library, view.cell,
                                              view.view};
        if (value.empty()) {
            marks.erase(name);
        } else {
            marks[name] = value;
        }
    }
    return Write(m_app, marks);
}

void KeptMarks::Restore(const Design& design) {
    const std::string folder = FolderOf(design);
    for (const auto& [name, value] : Read(m_app)) {
        const std::optional<CellKey> key = KeyOf(name[1]);
        if (name[0] == folder && key)
            m_store.SetMark({design.name, name[2], name[3], name[4]}, *key, value == "0" ? "0" : "1");
    }
}

std::vector<CellViewName> KeptMarks::Marked(const Design& design, CellKey key) const {
    const std::string folder = FolderOf(design);
    std::vector<CellViewName> views;
    for (const auto& [name, value] : Read(m_app))
        if (name[0] == folder && KeyOf(name[1]) == key && value != "0")
            views.push_back({design.name, name[2], name[3], name[4]});
    return views;
}

}  // namespace navigator
