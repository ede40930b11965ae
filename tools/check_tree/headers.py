"""Exported headers: one class a header, and the header named after it, so that a name is found without a search.

Small things may stand beside the class: constants, functions, enumerations, and structs and classes that are not
exported. A header of such things alone may carry any name.
"""
import pathlib
import re

from check_tree.tree import Finding, is_below

# The first names the system's small types; the second is one border, read as a whole: a peer and the maker of peers.
MANY_CLASSES = {"include/vapp/toolkit/BasicTypes.h", "include/vapp/toolkit/Peer.h"}
COMMENTS = re.compile(r"//[^\n]*|/\*.*?\*/", re.DOTALL)
# Namespaces are not indented here: a definition at the left margin is one at namespace level.
CLASS = re.compile(r"^(?:template\s*<[^;{]*?>\s*)?(?:class|struct)\s+VAPP_EXPORT\s+"
                   r"(?P<name>\w+)[^;{(]*\{", re.MULTILINE)
ALIAS = re.compile(r"^(?:template\s*<[^;{]*?>\s*)?using\s+(\w+)\s*=", re.MULTILINE)


def check(tree):
    findings = []
    for path, text in tree.cpp_files():
        if not is_below(path, "include"):
            continue
        if not re.search(r"^#pragma once$", text, re.MULTILINE):
            findings.append(Finding(path, 0, "no #pragma once", "add it below the file's opening paragraph"))
        if path not in MANY_CLASSES:
            findings += check_classes(path, text)
    return findings


def check_classes(path, text):
    bare = COMMENTS.sub("", text)
    name = pathlib.PurePosixPath(path).stem
    classes = [match.group("name") for match in CLASS.finditer(bare)]
    if not classes:
        return []
    findings = []
    if name not in classes and name not in ALIAS.findall(bare):
        findings.append(Finding(path, 0, f"has {', '.join(classes)} and not {name}", "name the header after its class"))
    for other in classes:
        if other != name:
            findings.append(Finding(path, 0, f"a second exported class, {other}", f"give {other} a header of its own"))
    return findings
