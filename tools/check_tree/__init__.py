"""The checks behind tools/check-tree: one kind of order a file, each with `check(tree) -> findings`."""
