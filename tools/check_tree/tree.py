"""The files that the checks look at, and the shape of a finding.

Only what version control holds, or would hold after the next `git add`, is looked at: build folders and caches are
not the tree. Outside a checkout (the self-test's small trees) every file counts.
"""
import pathlib
import subprocess

CPP_ENDINGS = {".cpp", ".h"}


class Finding:
    """One thing out of order: where, what, and how to mend it."""

    def __init__(self, path, line, what, mend):
        self.path, self.line, self.what, self.mend = path, line, what, mend

    def __str__(self):
        place = f"{self.path}:{self.line}" if self.line else str(self.path)
        return f"{place}: {self.what}\n    mend: {self.mend}"


class Tree:
    """A source tree; paths are POSIX strings relative to its root, sorted."""

    def __init__(self, root):
        self.root = pathlib.Path(root).resolve()
        self.paths = sorted(path for path in self._list() if (self.root / path).is_file())
        self._texts = {}

    def _list(self):
        if (self.root / ".git").exists():
            answer = subprocess.run(["git", "-C", str(self.root), "ls-files", "-z", "-co", "--exclude-standard"],
                                    check=True, capture_output=True, text=True).stdout
            return set(filter(None, answer.split("\0")))
        return {str(path.relative_to(self.root).as_posix()) for path in self.root.rglob("*")}

    def text(self, path):
        """The text of a file; None for a binary file. Bytes that are not UTF-8 come as replacement characters."""
        if path not in self._texts:
            data = (self.root / path).read_bytes()
            self._texts[path] = None if b"\0" in data else data.decode("utf-8", errors="replace")
        return self._texts[path]

    def text_files(self):
        """Pairs of path and text for every file that is not binary."""
        for path in self.paths:
            text = self.text(path)
            if text is not None:
                yield path, text

    def cpp_files(self):
        """Pairs of path and text for every C++ source and header."""
        for path, text in self.text_files():
            if pathlib.PurePosixPath(path).suffix in CPP_ENDINGS:
                yield path, text


def is_below(path, folder):
    """True for a file in the folder or in one of its sub-folders."""
    return path.startswith(folder + "/")
