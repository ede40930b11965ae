/// Reading and answering `database cells`. An answer may have a million triples: libraries, cells and views
/// share one object for each name, and a name's lower-case form is made once for each name.

#include "host/CellsQuery.h"

#include <QString>
#include <algorithm>
#include <array>
#include <unordered_map>
#include <vector>

namespace navigator {

namespace {

constexpr std::array<FilterType, 10> csFilterTypes{{
    {"All", FilterKind::All, false},
    {"Symbols", FilterKind::Symbols, false},
    {"Schematics", FilterKind::Schematics, false},
    {"Layouts", FilterKind::Layouts, false},
    {"HDL", FilterKind::Hdl, false},
    {"Netlists", FilterKind::Netlists, false},
    {"Modified", FilterKind::Modified, true},
    {"Reserved", FilterKind::Reserved, true},
    {"Locked", FilterKind::Locked, true},
    {"Unresolved", FilterKind::Unresolved, true},
}};

/// By name, and not by what is in the file: a folder may hold such a view too.
constexpr std::array<std::string_view, 4> csHdlViews{"systemverilog", "verilog", "veriloga", "vhdl"};
constexpr std::array<std::string_view, 3> csNetlistViews{"cdl", "circuit", "spice"};

enum Option {
    LcvOption,
    LibraryOption,
    CountOption,
    FilterOption,
    HiddenOption,
    ViasOption,
    LibrariesOption,
    ViewsOption,
    TabOption,
    ExcludedOption
};
constexpr std::array<const char*, 11> csQueryOptions{
    "-lcv",   "-library", "-count",        "-filter", "-showhiddencells", "-showvias", "-libraries",
    "-views", "-tab",     "-showexcluded", nullptr};

std::string_view WithoutBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string LowerCase(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).toLower().toStdString();
}

std::optional<Option> FindOption(Tcl_Obj* word) {
    const std::string_view text = gTextOf(word);
    for (std::size_t option = 0; csQueryOptions[option] != nullptr; ++option) {
        if (text == csQueryOptions[option]) return static_cast<Option>(option);
    }
    return std::nullopt;
}

/// The options of one call, read from left to right.
class QueryParser {
public:
    QueryParser(Tcl_Interp* interp, TclWords words, CellsQuery& query)
        : m_interp(interp), m_words(words), m_query(query) {}

    int Parse() {
        while (m_next < m_words.size()) {
            const std::optional<Option> option = FindOption(m_words[m_next]);
            if (!option) {
                return gTclFailure(m_interp, "unknown option \"" + std::string(gTextOf(m_words[m_next])) +
                                                 "\" of database cells");
            }
            ++m_next;
            const int code = Take(*option);
            if (code != TCL_OK) return code;
        }
        if (!m_hasDesign) return gTclFailure(m_interp, "database cells needs -library and a design");
        return TCL_OK;
    }

private:
    int Take(Option option) {
        switch (option) {
            case LcvOption:
                return TCL_OK;
            case CountOption:
                m_query.isCount = true;
                return TCL_OK;
            case HiddenOption:
                m_query.showHiddenCells = true;
                return TCL_OK;
            case ViasOption:
                m_query.showVias = true;
                return TCL_OK;
            case ExcludedOption:
                m_query.showExcludedViews = true;
                return TCL_OK;
            case FilterOption:
                TakeFilter();
                return TCL_OK;
            default:
                break;
        }
        if (m_next == m_words.size())
            return gTclFailure(m_interp, std::string("option ") + csQueryOptions[option] + " needs a value");
        Tcl_Obj* const value = m_words[m_next++];
        switch (option) {
            case LibrariesOption:
                return TakeNames(value, m_query.libraries);
            case ViewsOption:
                return TakeNames(value, m_query.views);
            case TabOption:
                return Tcl_GetIntFromObj(m_interp, value, &m_query.tab);
            default:
                break;
        }
        m_query.design = gTextOf(value);
        m_hasDesign = true;
        return TCL_OK;
    }

    void TakeFilter() {
        m_query.filter.clear();
        for (; m_next < m_words.size() && !FindOption(m_words[m_next]); ++m_next) {
            if (!m_query.filter.empty()) m_query.filter += ' ';
            m_query.filter += gTextOf(m_words[m_next]);
        }
    }

    int TakeNames(Tcl_Obj* list, std::optional<std::unordered_set<std::string>>& names) {
        int count = 0;
        Tcl_Obj** elements = nullptr;
        const int code = Tcl_ListObjGetElements(m_interp, list, &count, &elements);
        if (code != TCL_OK) return code;
        names.emplace();
        // The settings put a blank in front of names that they had divided at commas.
        for (int element = 0; element < count; ++element)
            names->insert(LowerCase(WithoutBlanks(gTextOf(elements[element]))));
        return TCL_OK;
    }

    Tcl_Interp* m_interp;
    TclWords m_words;
    CellsQuery& m_query;
    std::size_t m_next = 0;
    bool m_hasDesign = false;
};

/// Objects that are made here and given away as a list.
class ObjectHold {
public:
    ObjectHold() = default;
    ~ObjectHold() { Set(nullptr); }
    ObjectHold(const ObjectHold&) = delete;
    ObjectHold& operator=(const ObjectHold&) = delete;

    void Set(Tcl_Obj* object) {
        if (object != nullptr) Tcl_IncrRefCount(object);
        if (m_object != nullptr) Tcl_DecrRefCount(m_object);
        m_object = object;
    }
    [[nodiscard]] Tcl_Obj* Get() const { return m_object; }

private:
    Tcl_Obj* m_object = nullptr;
};

struct ViewName {
    bool isWanted = false;
    bool isOfType = false;  ///< as far as the filter type asks for names
    ObjectHold object;
};

/// One walk over a design's views.
class CellsAnswer {
public:
    CellsAnswer(DesignStore& store, const CellsQuery& query)
        : m_store(store), m_query(query), m_filter(gFindFilterType(query.filter).kind) {}

    void Walk(const Design& design) {
        for (const Library& library : design.libraries) {
            if (m_query.libraries && !m_query.libraries->contains(LowerCase(library.name))) continue;
            m_libraryName.Set(gTclText(library.name));
            WalkLibrary(design, library);
        }
    }

    std::size_t Count() const { return m_count; }
    Tcl_Obj* TakeList() { return Tcl_NewListObj(static_cast<int>(m_triples.size()), m_triples.data()); }

private:
    void WalkLibrary(const Design& design, const Library& library) {
        const std::string* cell = nullptr;
        for (const ViewFile& file : library.files) {
            ViewName& view = ViewOf(file.view);
            if (!view.isWanted || !IsListed({&design, &library, &file}, view)) continue;
            ++m_count;
            if (m_query.isCount) continue;
            if (cell == nullptr || *cell != file.cell) {
                cell = &file.cell;
                m_cellName.Set(gTclText(file.cell));
            }
            Tcl_Obj* const triple[3] = {m_libraryName.Get(), m_cellName.Get(), view.object.Get()};
            m_triples.push_back(Tcl_NewListObj(3, triple));
        }
    }

    ViewName& ViewOf(const std::string& name) {
        const auto [found, isNew] = m_views.try_emplace(std::string_view(name));
        if (isNew) {
            const std::string lower = LowerCase(name);
            const bool isExcluded = !m_query.showExcludedViews && m_query.excludedViews.contains(lower);
            found->second.isWanted = !isExcluded && (!m_query.views || m_query.views->contains(lower));
            found->second.isOfType = IsNameOfType(lower);
            found->second.object.Set(gTclText(name));
        }
        return found->second;
    }

    [[nodiscard]] bool IsNameOfType(const std::string& view) const {
        const auto isOneOf = [&view](const auto& names) {
            return std::find(names.begin(), names.end(), view) != names.end();
        };
        if (m_filter == FilterKind::Layouts) return view.starts_with("layout");
        if (m_filter == FilterKind::Hdl) return isOneOf(csHdlViews);
        return m_filter == FilterKind::Netlists && isOneOf(csNetlistViews);
    }

    bool IsListed(const CellViewRef& view, const ViewName& name) {
        if (!m_query.showHiddenCells && m_store.Flag(view, CellKey::IsHiddenInLists)) return false;
        if (!m_query.showVias &&
            (m_store.Flag(view, CellKey::IsStdViaDef) || m_store.Flag(view, CellKey::IsCustomViaDef)))
            return false;
        return m_query.isCount || PassesFilter(view, name);
    }

    bool PassesFilter(const CellViewRef& view, const ViewName& name) {
        switch (m_filter) {
            case FilterKind::All:
                return true;
            case FilterKind::Symbols:
                return view.file->format == ViewFormat::Symbol;
            case FilterKind::Schematics:
                return view.file->format == ViewFormat::Schematic;
            case FilterKind::Layouts:
            case FilterKind::Hdl:
            case FilterKind::Netlists:
                return name.isOfType;
            case FilterKind::Modified:
                return m_store.Flag(view, CellKey::IsModified);
            case FilterKind::Reserved:
                return m_store.Flag(view, CellKey::IsReserved);
            case FilterKind::Locked:
                return m_store.Flag(view, CellKey::IsLockedByUser);
            case FilterKind::Unresolved:
                return m_store.CacheWord(view) != "Normal";
        }
        return true;
    }

    DesignStore& m_store;
    const CellsQuery& m_query;
    FilterKind m_filter;
    ObjectHold m_libraryName;
    ObjectHold m_cellName;
    std::unordered_map<std::string_view, ViewName> m_views;
    std::vector<Tcl_Obj*> m_triples;
    std::size_t m_count = 0;
};

}  // namespace

std::span<const FilterType> gFilterTypes() {
    return csFilterTypes;
}

const FilterType& gFindFilterType(std::string_view text) {
    const auto* const found = std::find_if(csFilterTypes.begin(), csFilterTypes.end(),
                                           [text](const FilterType& type) { return type.text == text; });
    return found == csFilterTypes.end() ? csFilterTypes.front() : *found;
}

std::unordered_set<std::string> gReadExcludedViews(std::string_view text) {
    static constexpr std::string_view csDividers = "; \t\r\n";
    std::unordered_set<std::string> names;
    while (true) {
        const std::size_t first = text.find_first_not_of(csDividers);
        if (first == std::string_view::npos) return names;
        text.remove_prefix(first);
        const std::size_t length = std::min(text.find_first_of(csDividers), text.size());
        names.insert(LowerCase(text.substr(0, length)));
        text.remove_prefix(length);
    }
}

int gParseCellsQuery(Tcl_Interp* interp, TclWords words, CellsQuery& query) {
    return QueryParser(interp, words, query).Parse();
}

int gAnswerCellsQuery(Tcl_Interp* interp, DesignStore& store, const CellsQuery& query) {
    const Design* const design = store.FindDesign(query.design);
    if (design == nullptr) return gTclFailure(interp, "no design \"" + query.design + "\" is open");
    CellsAnswer answer(store, query);
    answer.Walk(*design);
    if (query.isCount) {
        Tcl_SetObjResult(interp, Tcl_NewWideIntObj(static_cast<Tcl_WideInt>(answer.Count())));
    } else {
        Tcl_SetObjResult(interp, answer.TakeList());
    }
    return TCL_OK;
}

}  // namespace navigator
