"""The state of each file by itself: length, line ends, tabs, leftovers of a merge."""
import pathlib
import re

from check_tree.tree import CPP_ENDINGS, Finding

MOST_LINES = 500
COUNTED = CPP_ENDINGS | {".py", ".sh", ".cmake", ".tcl"}
# Marked at the left margin; the middle row of equal signs is also a heading in Markdown and doesn't decide.
MERGE = re.compile(r"^(<{7}|>{7}|\|{7})( |$)")
# Data is kept as it came: a missing line end can be the very thing that a test needs.
DATA = ("tests/data/", "fuzz/corpus/", "examples/sample/")


def check(tree):
    findings = []
    for path, text in tree.text_files():
        if any(path.startswith(folder) for folder in DATA) or "/golden/" in path:
            continue
        findings += check_file(path, text)
    return findings


def check_file(path, text):
    findings = []
    ending = pathlib.PurePosixPath(path).suffix
    lines = text.splitlines()
    if text and not text.endswith("\n"):
        findings.append(Finding(path, len(lines), "no line end at the end", "end the file with a newline"))
    if "\r" in text:
        findings.append(Finding(path, 0, "carriage returns", "write line feeds alone"))
    if ending in COUNTED and len(lines) > MOST_LINES:
        findings.append(Finding(path, 0, f"{len(lines)} lines, more than {MOST_LINES}",
                                "it holds more than one idea: split it"))
    for number, line in enumerate(lines, 1):
        if MERGE.match(line):
            findings.append(Finding(path, number, "a leftover of a merge", "finish the merge"))
        if ending in CPP_ENDINGS and "\t" in line:
            findings.append(Finding(path, number, "a tab", "indent by spaces; in a literal write \\t"))
    return findings
