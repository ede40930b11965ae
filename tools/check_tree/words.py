"""Words that do not belong in the tree: it tells its own reasons and knows no machine but the reader's.

Where a comment points at a document that the reader doesn't have, it explains nothing; where a file names a folder
of one machine, it works on that machine only. The patterns are put together from pieces so that this file is clean too.
"""
import re
import subprocess

from check_tree.tree import Finding

_SHEET = "sp" + "ec"
_STEMS = [
    r"\b[Ss]" + "pec" + r"ification\b",
    r"\b(the|per|this) " + _SHEET + r"\b",
    r"\b" + _SHEET + r"\.md\b",
    r"\bP" + r"arts? [1-6]\.[0-9]\b",
    r"\bseed " + "document",
    r"\bsub" + "agent",
    r"\bhelper " + "session",
    r"\b[Ii]ssue #?[0-9]+\b",
    r"(?<![\w.])/(" + "|".join(("wo" + "rk", "ro" + "ot", "t" + "mp")) + ")/",
]
WORDS = re.compile("|".join(_STEMS))
NAMES = re.compile(r"(^|[/_-])" + _SHEET + r"([._-]|$)|p" + r"art[_-]?[1-6][._-][0-9]", re.IGNORECASE)
MEND = "say why the thing is so in this system's own words; take folders from arguments or the environment"


def check(tree):
    findings = []
    for path, text in tree.text_files():
        for number, line in enumerate(text.splitlines(), 1):
            match = WORDS.search(line)
            if match:
                findings.append(Finding(path, number, f'"{match.group(0)}" explains nothing to a reader', MEND))
    for path in tree.paths:
        if NAMES.search(path):
            findings.append(Finding(path, 0, "the name points outside the tree", "name the file after what it holds"))
    return findings + check_messages(tree)


def check_messages(tree):
    """Looks at the messages of commits that are here and not yet on the branch's upstream."""
    log = subprocess.run(["git", "-C", str(tree.root), "log", "--format=%h%x00%B%x01", "@{upstream}..HEAD"],
                         capture_output=True, text=True)
    if log.returncode != 0 or not (tree.root / ".git").exists():
        return []
    findings = []
    for entry in log.stdout.split("\x01"):
        commit, _, message = entry.strip().partition("\0")
        match = WORDS.search(message)
        if match:
            findings.append(Finding(f"commit {commit}", 0, f'its message says "{match.group(0)}"', MEND))
    return findings
