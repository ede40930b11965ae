/// Opening, finding and answering. A view's facts hang on the view itself: no look-up by path while painting.
/// They are checked against the disk in Rescan only, and move over to the fresh scan where the file is the
/// same.

#include "host/DesignStore.h"

#include <algorithm>
#include <initializer_list>
#include <tuple>

#include "host/LinkCheck.h"

namespace navigator {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t cnLoadedFilesKept = 512;

/// The words of property `type`, in the order of the keys.
constexpr std::array<std::pair<CellKey, std::string_view>, 5> csTypeWords{{
    {CellKey::IsFab, "fab"},
    {CellKey::IsStdViaDef, "stdvia"},
    {CellKey::IsCustomViaDef, "customvia"},
    {CellKey::IsGuardRing, "guardring"},
    {CellKey::IsVCell, "vcell"},
}};

std::string FolderName(const fs::path& folder) {
    std::error_code error;
    fs::path whole = fs::weakly_canonical(folder, error);
    if (error) whole = folder;
    if (!whole.has_filename()) whole = whole.parent_path();
    const std::string name = gDisplayName(whole.filename().native());
    return name.empty() ? "root" : name;
}

Library TakeOwnFiles(const Design& design) {
    std::string name = gMakeUnique(FolderName(design.folder), [&](const std::string& candidate) {
        return std::any_of(design.libraries.begin(), design.libraries.end(),
                           [&](const Library& library) { return library.name == candidate; });
    });
    return gScanLibrary(std::move(name), design.folder, FolderCells::No);
}

bool ByName(const Library& left, const Library& right) {
    return left.name < right.name;
}

/// Fills the design's libraries; the error that the folder gives, if any.
std::error_code ScanDesign(Design& design) {
    std::error_code error;
    fs::directory_iterator entries(design.folder, error);
    if (error) return error;
    std::vector<fs::path> folders;
    for (; entries != fs::directory_iterator(); entries.increment(error)) {
        if (error) return error;
        std::error_code ignored;
        const bool isHidden = gDisplayName(entries->path().filename().native()).starts_with('.');
        if (!isHidden && entries->is_directory(ignored)) folders.push_back(entries->path());
    }
    std::sort(folders.begin(), folders.end());
    for (const fs::path& folder : folders) {
        std::string name =
            gMakeUnique(gDisplayName(folder.filename().native()), [&](const std::string& candidate) {
                return std::any_of(design.libraries.begin(), design.libraries.end(),
                                   [&](const Library& library) { return library.name == candidate; });
            });
        design.libraries.push_back(gScanLibrary(std::move(name), folder, FolderCells::Yes));
    }
    Library own = TakeOwnFiles(design);
    if (!own.files.empty()) design.libraries.push_back(std::move(own));
    std::sort(design.libraries.begin(), design.libraries.end(), ByName);
    return error;
}

/// In a view folder: the drawing named like the cell, or else the first one.
fs::path FindDrawing(const fs::path& folder, const std::string& cell) {
    fs::path best;
    std::error_code error;
    for (fs::directory_iterator entries(folder, error); !error && entries != fs::directory_iterator();
         entries.increment(error)) {
        const fs::path& file = entries->path();
        if (file.extension() != ".sym" && file.extension() != ".sch") continue;
        if (gDisplayName(file.stem().native()) == cell) return file;
        if (best.empty() || file < best) best = file;
    }
    return best;
}

fs::path FileOf(const Library& library, const ViewFile& file) {
    fs::path path = library.folder / fs::path(file.file);
    return file.isFolder ? FindDrawing(path, file.cell) : path;
}

auto KeyOf(const ViewFile& file) {
    return std::tie(file.cell, file.view);
}

/// Moves what is still true from the old scan to the new one; true if the two differ.
bool CarryOver(const Library& before, Library& after) {
    bool isChanged = before.isReadable != after.isReadable || before.files.size() != after.files.size();
    auto old = before.files.begin();
    for (ViewFile& file : after.files) {
        while (old != before.files.end() && KeyOf(*old) < KeyOf(file))
            ++old;
        if (old == before.files.end() || KeyOf(*old) != KeyOf(file) || old->file != file.file) {
            isChanged = true;
        } else if (old->facts != nullptr) {
            const bool isSame = gStampOf(FileOf(after, file)) == old->facts->stamp;
            if (isSame) file.facts = std::move(old->facts);
            isChanged = isChanged || !isSame;
        }
    }
    return isChanged;
}

bool CarryOver(const Design& before, Design& after) {
    bool isChanged = before.libraries.size() != after.libraries.size();
    for (Library& library : after.libraries) {
        const Library* const old = before.FindLibrary(library.name);
        isChanged = old == nullptr || CarryOver(*old, library) || isChanged;
    }
    return isChanged;
}

std::string MarkKey(std::initializer_list<std::string_view> names) {
    std::string key;
    for (const std::string_view name : names) {
        key += name;
        key += '\0';
    }
    return key;
}

bool IsTrueMark(const std::string& mark) {
    return mark != "0";
}

const ViewFile* FindFormat(std::span<const ViewFile> views, ViewFormat format) {
    const auto found = std::find_if(views.begin(), views.end(),
                                    [format](const ViewFile& file) { return file.format == format; });
    return found == views.end() ? nullptr : &*found;
}

/// An instance's reference, taken apart.
struct Reference {
    std::string_view library;  ///< Empty if it names none.
    std::string_view cell;
    ViewFormat format = ViewFormat::Symbol;
};

Reference SplitReference(std::string_view text) {
    Reference reference;
    const std::size_t slash = text.rfind('/');
    reference.cell = slash == std::string_view::npos ? text : text.substr(slash + 1);
    if (slash != std::string_view::npos) {
        const std::string_view folders = text.substr(0, slash);
        const std::size_t before = folders.rfind('/');
        reference.library = before == std::string_view::npos ? folders : folders.substr(before + 1);
        if (reference.library == "." || reference.library == "..") reference.library = {};
    }
    if (reference.cell.ends_with(".sch")) reference.format = ViewFormat::Schematic;
    if (reference.cell.ends_with(".sym") || reference.cell.ends_with(".sch")) reference.cell.remove_suffix(4);
    return reference;
}

}  // namespace

const Library* Design::FindLibrary(std::string_view wanted) const {
    const auto found = std::lower_bound(
        libraries.begin(), libraries.end(), wanted,
        [](const Library& library, std::string_view text) { return std::string_view(library.name) < text; });
    return found != libraries.end() && found->name == wanted ? &*found : nullptr;
}

std::optional<std::string> DesignStore::OpenFolder(const fs::path& folder) {
    Design design;
    design.folder = folder;
    const std::error_code error = ScanDesign(design);
    if (error)
        return "Cannot open the folder \"" + gDisplayName(folder.native()) + "\": " + error.message() + ".";
    design.name = gMakeUnique(FolderName(folder),
                              [this](const std::string& name) { return FindDesign(name) != nullptr; });
    m_designs.push_back(std::move(design));
    Changed();
    return std::nullopt;
}

bool DesignStore::Rescan() {
    // A drawing may stand inside of another one's picture though nobody has asked about itself.
    bool isChanged = std::erase_if(m_loaded, [](const auto& loaded) {
                         return !(gStampOf(fs::path(loaded.first)) == loaded.second.stamp);
                     }) > 0;
    for (Design& design : m_designs) {
        Design fresh;
        fresh.name = design.name;
        fresh.folder = design.folder;
        // A folder that is gone leaves a design without libraries: the list shows it so, and it may come
        // back.
        if (ScanDesign(fresh)) fresh.libraries.clear();
        isChanged = CarryOver(design, fresh) || isChanged;
        design = std::move(fresh);
    }
    if (isChanged) Changed();
    return isChanged;
}

std::vector<std::string> DesignStore::Troubles() const {
    std::vector<std::string> sentences;
    for (const Design& design : m_designs) {
        for (const Library& library : design.libraries) {
            for (const fs::path& folder : library.unreadable)
                sentences.push_back("Cannot read the folder \"" + gDisplayName(folder.native()) +
                                    "\" of the library \"" + library.name + "\".");
        }
    }
    return sentences;
}

void DesignStore::Changed() {
    ++m_linkGeneration;
    ++m_membershipChanges;
}

const Design* DesignStore::FindDesign(std::string_view name) const {
    const auto found = std::find_if(m_designs.begin(), m_designs.end(),
                                    [name](const Design& design) { return design.name == name; });
    return found == m_designs.end() ? nullptr : &*found;
}

CellViewRef DesignStore::Find(std::string_view design, std::string_view library, std::string_view cell,
                              std::string_view view) const {
    CellViewRef found;
    found.design = FindDesign(design);
    if (found.design != nullptr) found.library = found.design->FindLibrary(library);
    if (found.library != nullptr) found.file = found.library->Find(cell, view);
    return found.file == nullptr ? CellViewRef() : found;
}

std::vector<fs::path> DesignStore::Paths(const CellViewRef& view) const {
    if (!view) return {};
    std::vector<fs::path> paths{view.library->folder / fs::path(view.file->file)};
    for (const ViewFile& file : view.library->shadowed) {
        if (KeyOf(file) == KeyOf(*view.file)) paths.push_back(view.library->folder / fs::path(file.file));
    }
    return paths;
}

std::string DesignStore::TopLibrary(const Design& design) {
    for (const std::string& name : {design.name, std::string("top")}) {
        if (design.FindLibrary(name) != nullptr) return name;
    }
    return "";
}

CellViewRef DesignStore::Resolve(const Design& design, const Library& library, std::string_view text) const {
    const Reference reference = SplitReference(text);
    if (reference.cell.empty()) return {};
    const auto look = [&](const Library* candidate) -> CellViewRef {
        if (candidate == nullptr) return {};
        const ViewFile* const file = FindFormat(candidate->Cell(reference.cell), reference.format);
        return file == nullptr ? CellViewRef() : CellViewRef{&design, candidate, file};
    };
    if (!reference.library.empty()) return look(design.FindLibrary(reference.library));
    CellViewRef found = look(&library);
    for (auto next = design.libraries.begin(); !found && next != design.libraries.end(); ++next)
        found = look(&*next);
    return found;
}

std::shared_ptr<const Symbol> DesignStore::Load(const CellViewRef& view) {
    if (!view || view.file->format == ViewFormat::Text) return nullptr;
    const fs::path path = FileOf(*view.library, *view.file);
    const FileStamp stamp = gStampOf(path);
    const auto known = m_loaded.find(path.native());
    if (known != m_loaded.end() && known->second.stamp == stamp) return known->second.symbol;
    std::shared_ptr<const Symbol> symbol;
    if (stamp.exists && stamp.size <= cnLargestFile) {
        if (const std::optional<std::string> bytes = gReadFile(path, cnLargestFile))
            symbol = std::make_shared<const Symbol>(gParseSymbol(*bytes));
    }
    if (m_loaded.size() >= cnLoadedFilesKept) m_loaded.clear();
    m_loaded[path.native()] = {stamp, symbol};
    return symbol;
}

FileFacts& DesignStore::FactsOf(const Library& library, const ViewFile& file) const {
    if (file.facts == nullptr) {
        file.facts = std::make_unique<FileFacts>();
        file.facts->stamp = gStampOf(FileOf(library, file));
    }
    return *file.facts;
}

bool DesignStore::IsLocked(const Library& library, const ViewFile& file) const {
    FileFacts& facts = FactsOf(library, file);
    if (!facts.isLocked) facts.isLocked = gIsLocked(FileOf(library, file), facts.stamp);
    return *facts.isLocked;
}

/// The facts of the file that speaks for the whole cell.
const FileFacts& DesignStore::HeadOf(const CellViewRef& view) const {
    const ViewFile* speaker = view.file;
    if (speaker->format != ViewFormat::Symbol) {
        const ViewFile* const symbol = FindFormat(view.library->Cell(view.file->cell), ViewFormat::Symbol);
        if (symbol != nullptr) speaker = symbol;
    }
    FileFacts& facts = FactsOf(*view.library, *speaker);
    if (!facts.isHeadRead) {
        // A netlist or a program text has no property blocks.
        if (speaker->format == ViewFormat::Text) {
            facts.isHeadRead = true;
        } else {
            gReadHead(FileOf(*view.library, *speaker), facts);
        }
    }
    return facts;
}

const std::string* DesignStore::FindMark(const CellViewRef& view, CellKey key) const {
    if (m_marks.empty()) return nullptr;
    for (const std::string_view design : {std::string_view(view.design->name), std::string_view()}) {
        const auto found =
            m_marks.find(MarkKey({design, view.library->name, view.file->cell, view.file->view}));
        if (found == m_marks.end()) continue;
        const std::string& mark = found->second[static_cast<std::size_t>(key)];
        if (!mark.empty()) return &mark;
    }
    return nullptr;
}

bool DesignStore::Flag(const CellViewRef& view, CellKey key) const {
    if (!view) return false;
    if (const std::string* mark = FindMark(view, key)) return IsTrueMark(*mark);
    if (key == CellKey::IsLockedByUser) return IsLocked(*view.library, *view.file);
    if (key == CellKey::IsModified || key == CellKey::IsReserved || key == CellKey::Cache) return false;
    const FileFacts& head = HeadOf(view);
    if (key == CellKey::IsHiddenInLists) return head.isHidden;
    return std::any_of(csTypeWords.begin(), csTypeWords.end(),
                       [&](const auto& row) { return row.first == key && row.second == head.type; });
}

std::string DesignStore::TypeOf(const CellViewRef& view) const {
    return view ? HeadOf(view).type : std::string();
}

FileStamp DesignStore::Stamp(const CellViewRef& view) const {
    return view ? FactsOf(*view.library, *view.file).stamp : FileStamp();
}

std::string DesignStore::CacheWord(const CellViewRef& view) {
    if (!view) return "Unresolved";
    if (const std::string* mark = FindMark(view, CellKey::Cache)) return *mark;
    SettleLinks(view);
    switch (FactsOf(*view.library, *view.file).links) {
        case LinkState::Cycle:
            return "Cycle";
        case LinkState::Unresolved:
            return "Unresolved";
        case LinkState::Normal:
            break;
    }
    return "Normal";
}

void DesignStore::SettleLinks(const CellViewRef& start) {
    // The walk stays within one design, and a view's library is found again by the place of the view in it.
    std::unordered_map<const ViewFile*, const Library*> libraryOf{{start.file, start.library}};
    LinkGraph graph;
    graph.isSettled = [&](const ViewFile* file) {
        return file->facts != nullptr && file->facts->linkGeneration == m_linkGeneration;
    };
    graph.settle = [&](const ViewFile* file, LinkState state) {
        FileFacts& facts = FactsOf(*libraryOf.at(file), *file);
        facts.links = state;
        facts.linkGeneration = m_linkGeneration;
    };
    graph.expand = [&](const ViewFile* file) {
        const Library& library = *libraryOf.at(file);
        LinkTargets links;
        FileFacts& facts = FactsOf(library, *file);
        if (file->format == ViewFormat::Text || file->format == ViewFormat::Unknown) {
            links.hasUnresolved = !file->isFolder && !facts.stamp.exists;
            return links;
        }
        if (!facts.isLinksRead) gTakeLinks(Load({start.design, &library, file}).get(), facts);
        links.hasUnresolved = facts.isUnreadable;
        for (const std::string& reference : facts.references) {
            const CellViewRef target = Resolve(*start.design, library, reference);
            if (!target) {
                links.hasUnresolved = true;
                continue;
            }
            const ViewFile* const inside =
                FindFormat(target.library->Cell(target.file->cell), ViewFormat::Schematic);
            // Below a schematic stand the schematics of its instances; a symbol is drawn from symbols alone.
            for (const ViewFile* next :
                 {target.file, file->format == ViewFormat::Schematic ? inside : nullptr}) {
                if (next == nullptr) continue;
                libraryOf.emplace(next, target.library);
                links.targets.push_back(next);
            }
        }
        return links;
    };
    gSettleLinks(start.file, graph);
}

void DesignStore::SetMark(const CellViewName& name, CellKey key, const std::string& value) {
    m_marks[MarkKey({name.design, name.library, name.cell, name.view})][static_cast<std::size_t>(key)] =
        value;
    const bool isMembership =
        key == CellKey::IsHiddenInLists || key == CellKey::IsStdViaDef || key == CellKey::IsCustomViaDef;
    ++(isMembership ? m_membershipChanges : m_stateChanges);
}

}  // namespace navigator
