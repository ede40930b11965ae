"""Programs shown in a document: the one in README.md is the one that is built, letter for letter."""
import re

from check_tree.tree import Finding

DOCUMENT = "README.md"
PROGRAM = "examples/minimal.cpp"
BLOCK = re.compile(r"^```cpp\n(.*?)^```$", re.MULTILINE | re.DOTALL)


def check(tree):
    if PROGRAM not in tree.paths or DOCUMENT not in tree.paths:
        return []
    text = tree.text(DOCUMENT)
    block = BLOCK.search(text)
    if block and block.group(1) == tree.text(PROGRAM):
        return []
    line = text.count("\n", 0, block.start()) + 1 if block else 0
    return [Finding(DOCUMENT, line, f"the program shown is not {PROGRAM}", f"paste {PROGRAM} into its cpp block")]
