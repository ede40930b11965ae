# What the tools share: sourced by them, run by nobody. Sets `top` to the root of the tree and goes there.

set -euo pipefail
top=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)
cd -- "$top"

say() { printf '== %s\n' "$*"; }
complain() { printf '%s: %s\n' "$(basename -- "$0")" "$*" >&2; }

# The same launcher in every tool: a build folder configured by one is not built anew by the other.
launcher=()
if command -v ccache >/dev/null; then
    launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi

# One job a processor.
jobs() { nproc 2>/dev/null || echo 2; }

# The C++ files that are ours, NUL-separated.
cpp_files() {
    if [ -e .git ]; then
        git ls-files -z -co --exclude-standard -- '*.cpp' '*.h' | while IFS= read -r -d '' file; do
            [ ! -f "$file" ] || printf '%s\0' "$file"
        done
    else
        find . -path './build*' -prune -o \( -name '*.cpp' -o -name '*.h' \) -type f -print0
    fi
}
