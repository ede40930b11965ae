# Fetches and unpacks source packages of Debian: sourced by tools, run by nobody. The caller has sourced common.sh and
# has set `work` to a folder that it removes itself.

# A run of one step, quiet unless it fails.
step() {
    local log=$work/step.log
    "$@" >"$log" 2>&1 || { tail -n 60 "$log"; complain "failed: $*"; exit 1; }
}

# The machine's own package sources, asked for sources in place of programs. The lists live in the
# work folder: neither root nor a change of the machine is needed.
source_lists() {
    local file
    mkdir -p "$work"/apt/{sources,lists/partial,cache/archives/partial}
    for file in /etc/apt/sources.list.d/*.sources; do
        [ ! -f "$file" ] || sed -E 's/^Types:.*/Types: deb-src/' "$file" >"$work/apt/sources/${file##*/}"
    done
    for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
        [ ! -f "$file" ] || sed -nE 's/^deb(-src)?([[:space:]])/deb-src\2/p' "$file" >>"$work/apt/sources/lines.list"
    done
    apt=(apt-get -qq -o Dir::Etc::sourcelist=/dev/null -o Dir::Etc::sourceparts="$work/apt/sources"
        -o Dir::State::lists="$work/apt/lists" -o Dir::Cache="$work/apt/cache" -o APT::Sandbox::User="$(id -un)")
    step "${apt[@]}" update
}

# fetch_source NAME VERSION: unpacked in $work/NAME. The version that is installed, or, once the archive has a newer
# one only, that.
#
# apt proves each file that it gets by the checksums of its signed lists, and stops at one that the archive has lost: the
# maker's signature of an old version. Unpacking tells whether anything is missing that is needed.
fetch_source() {
    local name=$1 version=$2
    source_lists
    (cd "$work" && { "${apt[@]}" source --download-only "$name=$version" ||
        [ -e "$name"_*.dsc ] || "${apt[@]}" source --download-only "$name"; }) >"$work/fetch.log" 2>&1 || true
    dpkg-source --no-check -x "$work/$name"_*.dsc "$work/$name" >"$work/unpack.log" 2>&1 || {
        cat "$work/fetch.log" "$work/unpack.log"
        complain "the source package $name could not be fetched"
        exit 1
    }
}
