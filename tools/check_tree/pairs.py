"""What must stand beside what: a source in its CMakeLists.txt, a test beside its source, a README in each folder."""
import pathlib
import re

from check_tree.tree import Finding, is_below

# Where the sources of a test folder are; all others are found under the same name.
SOURCES_OF = {"tests/qt": "toolkit/qt"}
SOURCE_ENDINGS = (".cpp", ".h")
# A source's tests may be split: NameAspectTest.cpp tests Name.cpp. A test of several sources at once says so.
ACROSS = "ScenarioTest.cpp"


def check(tree):
    return check_listed(tree) + check_tests(tree) + check_readmes(tree)


def check_listed(tree):
    """A source that no CMakeLists.txt names is never compiled and never warns."""
    lists = {path[:-len("CMakeLists.txt")]: text for path, text in tree.text_files()
             if path == "CMakeLists.txt" or path.endswith("/CMakeLists.txt")}
    findings = []
    for path, _ in tree.cpp_files():
        if path.endswith(".cpp") and not any(is_named(path, folder, text) for folder, text in lists.items()):
            findings.append(Finding(path, 0, "no CMakeLists.txt names it: it is never compiled",
                                    "add it to the list of its folder, or remove it"))
    return findings


def is_named(path, folder, text):
    """A list names a file from its own folder on, or by its whole path behind a variable for the root."""
    if path.startswith(folder) and names(text, path[len(folder):]):
        return True
    return re.search(rf"\$\{{(CMAKE|PROJECT)_SOURCE_DIR\}}/{re.escape(path)}(?![\w.])", text) is not None


def names(text, relative):
    """True where a list names the file, also through variables: ${FOLDER}/Name.cpp, or Name and ${name}.cpp."""
    bare = re.sub(r"#[^\n]*", "", text)
    stem = pathlib.PurePosixPath(relative).stem
    if not re.search(rf"(?<![\w-]){re.escape(stem)}(?![\w-])", bare):
        return False
    for token in re.findall(r"[^\s()\"]+\.cpp", bare):
        pattern = "".join(".*" if piece.startswith("${") else re.escape(piece)
                          for piece in re.split(r"(\$\{\w+\})", token))
        if re.fullmatch(pattern, relative) or re.fullmatch(pattern, "/" + relative):
            return True
    return False


def check_tests(tree):
    findings = []
    known = set(tree.paths)
    for path in tree.paths:
        if not is_below(path, "tests") or not path.endswith("Test.cpp") or path.endswith(ACROSS):
            continue
        folder, _, name = path.rpartition("/")
        room = SOURCES_OF.get(folder, folder[len("tests/"):])
        stem = name[:-len("Test.cpp")]
        if not any(is_source(known, room, front) for front in fronts(stem)):
            findings.append(Finding(path, 0, f"tests no source: there is no {room}/{stem}.cpp and no header of that name",
                                    f"name it after the source that it tests, or NAME{ACROSS} if it tests several sources"))
    return findings


def fronts(stem):
    """The name itself, then what is left of it without its last words: CStringModel, CString."""
    return [stem] + [stem[:match.start()] for match in re.finditer(r"(?<=[a-z0-9])(?=[A-Z])", stem)]


def is_source(known, room, name):
    return any(f"{folder}/{name}{ending}" in known
               for folder in (room, f"include/vapp/{room}") for ending in SOURCE_ENDINGS)


def check_readmes(tree):
    folders = {path.split("/")[0] for path in tree.paths if "/" in path and not path.startswith(".")}
    return [Finding(folder, 0, "no README.md", "tell in a few lines what is in it, what is not, and where to start")
            for folder in sorted(folders) if f"{folder}/README.md" not in tree.paths]
