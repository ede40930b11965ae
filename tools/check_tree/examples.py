"""Programs shown in documents are the ones that are built, letter for letter.

The README shows one whole program. The guide shows passages: each block of code stands below the name of its file in a
comment, `<!-- PATH -->`, and is a run of that file's lines; and no file of the guide's programs is left unshown.
"""
import re

from check_tree.tree import Finding, is_below

DOCUMENT = "README.md"
PROGRAM = "examples/minimal.cpp"
BLOCK = re.compile(r"^```cpp\n(.*?)^```$", re.MULTILINE | re.DOTALL)

GUIDE = "docs/embedding.md"
GUIDED = "examples/embedding"
PASSAGE = re.compile(r"^(?:<!-- (\S+) -->\n)?```(\w+)\n(.*?)^```$", re.MULTILINE | re.DOTALL)
# What a reader types is nobody's file.
FREE = {"sh"}


def check(tree):
    return check_readme(tree) + check_guide(tree)


def check_readme(tree):
    if PROGRAM not in tree.paths or DOCUMENT not in tree.paths:
        return []
    text = tree.text(DOCUMENT)
    block = BLOCK.search(text)
    if block and block.group(1) == tree.text(PROGRAM):
        return []
    line = text.count("\n", 0, block.start()) + 1 if block else 0
    return [Finding(DOCUMENT, line, f"the program shown is not {PROGRAM}", f"paste {PROGRAM} into its cpp block")]


def check_guide(tree):
    if GUIDE not in tree.paths:
        return []
    text = tree.text(GUIDE)
    findings, shown = [], set()
    for match in PASSAGE.finditer(text):
        path, language, code = match.groups()
        line = text.count("\n", 0, match.start()) + 1
        shown.add(path)
        if path is None:
            if language not in FREE:
                findings.append(Finding(GUIDE, line, "code without the name of its file",
                                        "put <!-- PATH --> into the line above the block"))
        elif path not in tree.paths or "\n" + code not in "\n" + tree.text(path):
            findings.append(Finding(GUIDE, line, f"is not in {path}", "paste the passage from the file, whole lines"))
    for path in tree.paths:
        if is_below(path, GUIDED) and path.endswith("main.cpp") and path not in shown:
            findings.append(Finding(path, 0, f"{GUIDE} does not show it", "show at least the passage that matters"))
    return findings
