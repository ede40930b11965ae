"""Include directions: who may include whom, and which room knows which outside library.

The tables below are the one place where the directions stand; docs/architecture.svg draws them. Directions are read
from the #include lines alone, so that no build is needed. A room's exported headers (include/vapp/ROOM) belong to
the room.
"""
import re

from check_tree.tree import Finding, is_below

# Each room with the rooms whose headers it may include, internal and exported ones.
MAY_INCLUDE = {
    "text": {"text"},
    "platform": {"platform", "text"},
    "platform/posix": {"platform/posix", "platform", "text"},
    "platform/win32": {"platform/win32", "platform", "text"},
    "connection": {"connection", "platform", "text"},
    "toolkit": {"toolkit", "text"},
    "app": {"app", "toolkit", "platform", "text"},
    "browser": {"browser", "toolkit", "text"},
    "celllist": {"celllist", "toolkit", "text"},
    "toolkit/qt": {"toolkit/qt", "toolkit", "text"},
    "host": {"host", "toolkit/qt"},
    "host/posix": {"host/posix", "host"},
    "host/win32": {"host/win32", "host"},
    "examples": {"examples", "toolkit/qt"},
}
LIBRARY_ROOMS = {"text", "platform", "connection", "toolkit", "app", "browser", "celllist"}
# Rooms that are included through their exported headers only. The two panes' rooms are one window tree with pointers
# both ways; the host and the examples stand outside the library, as every other host does.
MAY_INCLUDE_EXPORTED = {
    "browser": {"celllist"},
    "celllist": {"browser"},
    "host": LIBRARY_ROOMS,
    "examples": LIBRARY_ROOMS,
}
# These look into every room: it is their work.
OPEN_ROOMS = {"tests", "bench", "fuzz"}

# Outside libraries: name, headers, the folders that may know them.
LIBRARIES = [
    ("Qt", r"Q[A-Z]\w*$|Qt[A-Z]\w*/", {"toolkit/qt", "host", "examples", "tests/qt", "tests/host", "tests/embedding/qt",
                                       "tests/examples/drop-target", "bench"}),
    ("ICU", r"unicode/", {"platform/posix", "bench"}),
    ("GLib", r"glib(\.h$|/)", {"bench"}),
    ("Google Benchmark", r"benchmark/", {"bench"}),
    ("GoogleTest", r"(gtest|gmock)/", {"tests"}),
    ("Tcl", r"tcl\w*\.h$", {"browser", "celllist", "host", "examples", "tests", "bench", "fuzz"}),
    ("the operating system",
     r"(windows|win\w+|ws2\w+|shl\w+|unistd|dlfcn|fcntl|poll|spawn|pthread|signal|dirent|pwd|termios|langinfo)\.h$"
     r"|sys/|linux/|netinet/|arpa/",
     {"platform/posix", "platform/win32", "host/posix", "host/win32", "examples/connect/posix", "examples/connect/win32", "examples/worker/posix",
      "examples/worker/win32", "tests", "bench", "fuzz"}),
]
# The basic types are the real ones of the system's own header where there is one.
KNOWS_THE_SYSTEM = "include/vapp/toolkit/BasicTypes.h"

INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(["<])([^">\n]+)[">]', re.MULTILINE)
ROOMS = sorted(set(MAY_INCLUDE) | OPEN_ROOMS, key=len, reverse=True)


def room_of(path):
    """The room of a file or of an included name: (room, exported); room is None outside every room."""
    exported = False
    for front in ("include/vapp/", "vapp/"):
        if path.startswith(front):
            path, exported = path[len(front):], True
            break
    for room in ROOMS:
        if is_below(path, room):
            return room, exported
    return None, exported


def home_of(path):
    """The folder that stands for a file in the library table: exported headers count to their room."""
    return path[len("include/vapp/"):] if path.startswith("include/vapp/") else path


def check(tree):
    findings = []
    for path, text in tree.cpp_files():
        room, exported = room_of(path)
        for match in INCLUDE.finditer(text):
            line = text.count("\n", 0, match.start()) + 1
            quoted, name = match.group(1) == '"', match.group(2)
            findings += check_library(path, line, name)
            findings += check_direction(path, line, room, exported, quoted, name)
    return findings


def check_library(path, line, name):
    for library, headers, homes in LIBRARIES:
        if not re.match(headers, name) or path == KNOWS_THE_SYSTEM:
            continue
        if not any(is_below(home_of(path), home) for home in homes):
            return [Finding(path, line, f"<{name}> brings {library} into this folder",
                            f"only {', '.join(sorted(homes))} may include {library}; ask for the service through an "
                            "interface that one of them implements")]
    return []


def check_direction(path, line, room, exported, quoted, name):
    target, target_exported = room_of(name)
    ours = target is not None or target_exported
    if not ours:
        if quoted and "/" not in name and not name.endswith(".moc"):
            return [Finding(path, line, f'"{name}" does not say its room',
                            'include our headers from the root: "room/Name.h" or "vapp/room/Name.h"')]
        return []
    if exported and not target_exported:
        return [Finding(path, line, f'exported header includes the internal "{name}"',
                        "hosts have only include/vapp: forward declare, or move the member behind a pointer")]
    if target is None or room is None or room in OPEN_ROOMS or target in MAY_INCLUDE.get(room, ()):
        return []
    if target in MAY_INCLUDE_EXPORTED.get(room, ()):
        if target_exported:
            return []
        return [Finding(path, line, f"{room} includes an internal header of {target}",
                        f'{room} sees {target} through its exported headers, "vapp/{target}/Name.h", only')]
    allowed = sorted(MAY_INCLUDE[room] | MAY_INCLUDE_EXPORTED.get(room, set()))
    return [Finding(path, line, f"{room} includes {target}: against the direction",
                    f"{room} may include {', '.join(allowed)}; hand the thing in as a value or a callback, or move "
                    "it down")]
