"""Exported symbols: the shared libraries show what their exported headers declare, and nothing else.

What shows is what hosts come to lean on, and what can clash with a host's own copy of the same code. Every symbol must
belong to a class, function or constant that an exported header names, and nothing from an internal namespace shows.
Template instantiations of the standard library would show by its own headers' wish; cmake/exports.map keeps them in.
"""
import re
import subprocess

from check_tree.tree import Finding, is_below

INTERNAL = ("vapp_text",)
FRONTS = re.compile(r"^(vtable|typeinfo|typeinfo name|VTT|guard variable|non-virtual thunk|virtual thunk|"
                    r"construction vtable|covariant return thunk|TLS init function|TLS wrapper function) (for|to) ")
# The loader's own marks, and the runtime that a sanitizer puts into what it instruments.
LINKER = re.compile(r"^(_init|_fini|_edata|_end|__bss_start|__(asan|ubsan|tsan|odr_asan|sanitizer)\w*.*)$")
MEND = ("take VAPP_EXPORT off, or declare the name in a header of include/vapp; code of a static library is kept in by "
        "the link options of the target vapp")


def check(tree, build):
    library = next((path for path in (build / "libvapp.so", build / "bin/libvapp.dll") if path.exists()), None)
    if library is None:
        return [Finding(str(build / "libvapp.so"), 0, "not there: its symbols can't be checked", f"ninja -C {build} vapp")]
    declared = words_of_exported_headers(tree)
    adapter = build / "toolkit/qt/libvapp_qt.so"
    return check_library(library, declared) + (check_library(adapter, declared) if adapter.exists() else [])


def check_library(library, declared):
    findings = []
    for name in shown_by_dll(library) if library.suffix == ".dll" else shown_by_so(library):
        owner = owner_of(name, declared["namespaces"])
        if name.startswith(INTERNAL) or owner not in declared["names"]:
            findings.append(Finding(library.name, 0, f"shows {name}", MEND))
    return findings


def shown_by_so(library):
    for line in answer_of("nm", "-D", "--defined-only", "-C", str(library)).splitlines():
        kind, _, name = line.lstrip("0123456789abcdef").strip().partition(" ")
        if kind not in "tdbrA" and not LINKER.match(name):
            yield name


def shown_by_dll(library):
    """The names of a DLL's export table, which stand there as the compiler made them."""
    table = answer_of("objdump", "-p", str(library)).partition("[Ordinal/Name Pointer] Table")[2]
    names = re.findall(r"^\s*\[ *\d+\](?: \+base\[ *\d+\])?\s+(?:[0-9a-f]{4,8}\s+)?(\S+)$", table, re.MULTILINE)
    return answer_of("c++filt", text="\n".join(names)).splitlines()


def answer_of(*command, text=None):
    return subprocess.run(command, check=True, capture_output=True, text=True, input=text).stdout


def words_of_exported_headers(tree):
    names, namespaces = set(), set()
    for path, text in tree.cpp_files():
        if not is_below(path, "include"):
            continue
        bare = re.sub(r"//[^\n]*|/\*.*?\*/", "", text, flags=re.DOTALL)
        names |= set(re.findall(r"\w+", bare))
        for namespace in re.findall(r"^namespace\s+([\w:]+)", bare, re.MULTILINE):
            namespaces |= set(namespace.split("::"))
    return {"names": names - namespaces, "namespaces": namespaces}


def owner_of(name, namespaces):
    """The outermost class, function or constant of a demangled name, its namespaces taken off."""
    name = FRONTS.sub("", name)
    bare, depth = "", 0
    for sign in name:
        depth -= sign == ">"
        if depth == 0 and sign != ">":
            if sign == "<":
                depth += 1
                continue
            bare += sign
        elif sign == "<":
            depth += 1
    # A template function shows its result type in front of its name.
    head = bare.split("(", 1)[0].rsplit(" ", 1)[-1] if "operator" not in bare else bare
    pieces = [re.sub(r"\[.*", "", piece) for piece in head.split("::")]
    while len(pieces) > 1 and pieces[0] in namespaces:
        pieces.pop(0)
    return re.match(r"\w*", pieces[0]).group(0)
