"""System #ifs: what differs between the systems is a pair of twin files behind one header, not a conditional."""
import re

from check_tree.tree import Finding, is_below

HOMES = ("platform/posix", "platform/win32")
# One names the export attribute, the other the basic types that a system may own already.
HEADERS = {"include/vapp/Export.h", "include/vapp/toolkit/BasicTypes.h"}

SYSTEMS = (r"_?WIN(32|64)|_?_WIN(32|64)_?_?|__linux(__)?|linux|__unix(__)?|unix|__MINGW(32|64)__|__CYGWIN__|_MSC_VER"
           r"|__APPLE__|__WINE__|Q_OS_\w+")
CONDITION = re.compile(r"^[ \t]*#[ \t]*(if|ifdef|ifndef|elif)\b(?:[^\n]*\\\n)*[^\n]*", re.MULTILINE)
SYSTEM = re.compile(rf"\b({SYSTEMS})\b")


def check(tree):
    findings = []
    for path, text in tree.cpp_files():
        if path in HEADERS or any(is_below(path, home) for home in HOMES):
            continue
        for match in CONDITION.finditer(text):
            system = SYSTEM.search(match.group(0))
            if system:
                line = text.count("\n", 0, match.start()) + 1
                findings.append(Finding(path, line, f"system #if on {system.group(1)}",
                                        "declare the difference in a header of platform/ and write its twins in "
                                        "platform/posix and platform/win32"))
    return findings
