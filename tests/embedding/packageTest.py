"""The installed package, as a tool developer meets it: installed into a clean folder, moved, and used from outside.

CTest calls it once for each class of tests, `install` first. Programs that link a package of the sanitized build would
need its runtime first of all, so the plain builds alone have these tests.
"""
import argparse
import os
import pathlib
import re
import shutil
import subprocess
import sys
import unittest

OPTIONS = None
PREFIX = None  # where the package stands when it is used; it was installed elsewhere
LIBRARIES = None  # its folder of libraries


def run(*command, folder=None, environment=None, expect=0):
    """The output of a command, both streams in one; fails the test unless its status is the expected one."""
    done = subprocess.run([str(word) for word in command], cwd=folder, env={**os.environ, **(environment or {})},
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, encoding="utf-8", timeout=300)
    if expect is not None and (done.returncode == 0) != (expect == 0):
        raise AssertionError(f"{' '.join(map(str, command))}: status {done.returncode}\n{done.stdout}")
    return done.stdout


def fresh(name):
    folder = OPTIONS.work / name
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    return folder


def configure(source, build, *more, expect=0):
    settings = [f"-DCMAKE_PREFIX_PATH={PREFIX}"]
    if OPTIONS.toolchain:
        settings += [f"-DCMAKE_TOOLCHAIN_FILE={OPTIONS.toolchain}"]
    else:
        settings += [f"-DCMAKE_CXX_COMPILER={OPTIONS.compiler}"]
    if OPTIONS.launcher:
        settings += [f"-DCMAKE_CXX_COMPILER_LAUNCHER={OPTIONS.launcher}"]
    return run(OPTIONS.cmake, "-G", "Ninja", "-S", source, "-B", build, *settings, *more, expect=expect)


def make(source, build):
    configure(source, build)
    run(OPTIONS.cmake, "--build", build)


def output_of(program, *words):
    """What a program of ours prints, in the plain line ends of its expected text."""
    environment = {"QT_QPA_PLATFORM": "offscreen", "QT_LOGGING_RULES": "*=false"}
    command = [program]
    if OPTIONS.windows:
        command = [*OPTIONS.emulator, f"{program}.exe"]
        environment["WINEPATH"] = str(PREFIX / "bin")
    else:
        if PREFIX not in program.parents:
            environment["LD_LIBRARY_PATH"] = str(LIBRARIES)
        # What they keep and lock stays in the build folder.
        home = OPTIONS.work / "home"
        home.mkdir(mode=0o700, exist_ok=True)
        environment.update({name: str(home) for name in ("HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR")})
    done = subprocess.run([str(word) for word in [*command, *words]], env={**os.environ, **environment},
                          stdout=subprocess.PIPE, stderr=subprocess.PIPE, timeout=120)
    if done.returncode != 0:
        raise AssertionError(f"{program}: status {done.returncode}\n{done.stderr.decode(errors='replace')}")
    return done.stdout.decode("utf-8").replace("\r\n", "\n")


def words_of_step(name):
    return ["chip.layout"] if name.startswith("step1") else []


class Install(unittest.TestCase):
    def test_installs_into_a_clean_folder_and_may_be_moved(self):
        first = fresh("first")
        shutil.rmtree(PREFIX, ignore_errors=True)
        run(OPTIONS.cmake, "--install", OPTIONS.build, "--prefix", first)
        first.rename(PREFIX)


class Layout(unittest.TestCase):
    def test_has_every_exported_header_and_no_other(self):
        wanted = {path.relative_to(OPTIONS.source / "include").as_posix()
                  for path in (OPTIONS.source / "include").rglob("*.h")} | {"vapp/Version.h"}
        if not OPTIONS.qt:
            wanted = {path for path in wanted if not path.startswith("vapp/toolkit/qt/")}
        found = {path.relative_to(PREFIX / "include").as_posix() for path in (PREFIX / "include").rglob("*")
                 if path.is_file()}
        self.assertEqual(found, wanted)

    def test_names_no_folder_of_the_machine_that_built_it(self):
        for path in LIBRARIES.rglob("*"):
            if path.suffix in (".cmake", ".pc"):
                text = path.read_text()
                for folder in (OPTIONS.source, OPTIONS.build, OPTIONS.work):
                    self.assertNotIn(str(folder), text, path)

    def test_tells_one_version_everywhere(self):
        version = OPTIONS.version
        self.assertIn(f'"{version}"', (PREFIX / "include/vapp/Version.h").read_text())
        self.assertIn(f"Version: {version}\n", (LIBRARIES / "pkgconfig/vapp.pc").read_text())
        self.assertIn(f'set(PACKAGE_VERSION "{version}")',
                      (LIBRARIES / "cmake/vapp/vapp-config-version.cmake").read_text())

    def test_the_library_carries_year_and_release_in_its_name(self):
        year, release, _ = OPTIONS.version.split(".")
        if OPTIONS.windows:
            facts = run(OPTIONS.objdump, "-p", PREFIX / "bin/libvapp.dll")
            self.assertRegex(facts, rf"MajorImageVersion\s+{year}\n")
            self.assertRegex(facts, rf"MinorImageVersion\s+{release}\n")
            told = (PREFIX / "bin/libvapp.dll").read_bytes()
            self.assertIn("FileVersion\0".encode("utf-16-le") + b"\0\0" + OPTIONS.version.encode("utf-16-le"), told)
            return
        for name in ["libvapp", "libvapp_qt"][:1 + OPTIONS.qt]:
            runtime = f"{name}.so.{year}.{release}"
            self.assertIn(f"Library soname: [{runtime}]", run("readelf", "-d", LIBRARIES / f"{name}.so"))
            self.assertEqual(os.readlink(LIBRARIES / f"{name}.so"), runtime)
            self.assertEqual(os.readlink(LIBRARIES / runtime), f"{name}.so.{OPTIONS.version}")

    def test_libraries_find_one_another_where_they_stand_and_bring_no_tcl(self):
        if OPTIONS.windows:
            ours = {path.name.lower() for path in (PREFIX / "bin").glob("*.dll")}
            needed = re.findall(r"DLL Name: (\S+)", run(OPTIONS.objdump, "-p", PREFIX / "bin/libvapp.dll"))
            self.assertNotIn("tcl86.dll", needed)
            self.assertLessEqual({name.lower() for name in needed if name.startswith("lib")}, ours)
            self.assertLessEqual({"tcl86.dll", "zlib1.dll"}, ours)
            return
        facts = run("readelf", "-d", LIBRARIES / "libvapp.so")
        self.assertNotIn("libtcl", facts)
        self.assertNotIn("RUNPATH", facts)
        if OPTIONS.qt:
            self.assertIn("Library runpath: [$ORIGIN]", run("readelf", "-d", LIBRARIES / "libvapp_qt.so"))
            self.assertIn(f"Library runpath: [$ORIGIN/../{OPTIONS.libraries}]", run("readelf", "-d", PREFIX / "bin/navigator"))

    def test_the_program_runs_from_there(self):
        if not OPTIONS.qt:
            self.skipTest("the program needs Qt")
        navigator = PREFIX / "bin/navigator"
        self.assertIn(OPTIONS.version, output_of(navigator, "--version"))
        sample = PREFIX / "share/vapp/examples/sample"
        self.assertIn("nand2", output_of(navigator, "--dump", sample))
        # Without a folder it shows the sample that stands with it, not the one of the sources.
        library = next(path.parent for path in sample.rglob("nand2.sym"))
        shutil.copy(library / "nand2.sym", library / "moved_along.sym")
        self.assertIn("moved_along", output_of(navigator, "--dump"))


class Steps(unittest.TestCase):
    def test_every_step_of_the_guide_builds_and_says_what_the_guide_says(self):
        folder = fresh("steps")
        shutil.copytree(OPTIONS.source / "examples/embedding", folder / "source")
        make(folder / "source", folder / "build")
        self.assert_no_header_of_the_tree(folder / "build")
        steps = sorted(path.parent.name for path in (folder / "source").glob("*/expected.txt"))
        self.assertGreaterEqual(len(steps), 6)
        for name in steps:
            with self.subTest(name):
                self.assertEqual(output_of(folder / "build" / name / name, *words_of_step(name)),
                                 (folder / "source" / name / "expected.txt").read_text())
        if OPTIONS.qt:
            self.draw_window(folder)

    def assert_no_header_of_the_tree(self, build):
        lines = run("ninja", "-C", build, "-t", "deps").splitlines()
        headers = {os.path.normpath(build / line.strip()) for line in lines if line.endswith(".h") and line[0] == " "}
        self.assertIn(f"{PREFIX}/include/vapp/Export.h", headers)
        for tree in (OPTIONS.source / "include", OPTIONS.build / "include"):
            self.assertEqual([name for name in headers if name.startswith(f"{tree}/")], [])

    def draw_window(self, folder):
        program = folder / "build/step7_window/step7_window"
        words = [f"-settings={folder}/settings.ini", f"-picture={folder}/window.png"]
        output_of(program, *words)
        self.assertGreater((folder / "window.png").stat().st_size, 2000)
        kept = (folder / "settings.ini").read_text()
        self.assertIn("WindowPos=normal", kept)
        self.assertIn("layout_toolLibrariesPaneHeight=200", kept)

    def test_a_step_builds_by_itself(self):
        folder = fresh("alone")
        shutil.copytree(OPTIONS.source / "examples/embedding/step1_application", folder / "source")
        make(folder / "source", folder / "build")
        self.assertEqual(output_of(folder / "build/step1_application", "chip.layout"),
                         (folder / "source/expected.txt").read_text())


class Found(unittest.TestCase):
    """What find_package answers; without a language it is asked in a moment."""

    def ask(self, request, *settings, before="", expect=0):
        folder = fresh("ask")
        (folder / "CMakeLists.txt").write_text(
            f"cmake_minimum_required(VERSION 3.21)\nproject(ask LANGUAGES NONE)\nset(CMAKE_SIZEOF_VOID_P 8)\n{before}"
            f"find_package(vapp {request})\n" 'message("found: ${vapp_FOUND}, Qt: ${vapp_Qt_FOUND}")\n')
        return " ".join(run(OPTIONS.cmake, "-S", folder, "-B", folder / "build", f"-Dvapp_DIR={LIBRARIES}/cmake/vapp",
                            "-Dvapp_TCL_INCLUDE_DIR=/nowhere", "-Dvapp_TCL_LIBRARY=/nowhere",
                            "-Dvapp_BOOST_INCLUDE_DIR=/nowhere", *settings, expect=expect).split())

    def test_releases_of_a_year_are_taken_for_one_another(self):
        year, release, _ = OPTIONS.version.split(".")
        for request in (year, f"{year}.{int(release) - 1}", f"{year}.{release}", OPTIONS.version,
                        f"{year}...<{int(year) + 1}"):
            self.assertIn("found: 1", self.ask(f"{request} REQUIRED"))
        for request in (f"{int(year) - 1}", f"{int(year) + 1}", f"{year}.{int(release) + 1}", f"{year}.{release} EXACT"):
            self.assertIn("considered but not accepted", self.ask(f"{request} REQUIRED", expect=1))

    def test_a_component_that_is_not_there_is_named(self):
        answer = self.ask("REQUIRED COMPONENTS Core Motif", expect=1)
        self.assertIn("There is no component Motif; it has: Core", answer)
        self.assertIn("found: 1", self.ask("REQUIRED OPTIONAL_COMPONENTS Motif"))
        if not OPTIONS.qt:
            self.assertIn("built without its component Qt; it has: Core.",
                          self.ask("REQUIRED COMPONENTS Qt", expect=1))

    def test_a_host_may_bring_its_own_tcl(self):
        own = "add_library(vapp::tcl INTERFACE IMPORTED)\n"
        self.assertIn("found: 1", self.ask("REQUIRED", "-Dvapp_TCL_LIBRARY=vapp_TCL_LIBRARY-NOTFOUND",
                                           "-DCMAKE_FIND_ROOT_PATH=/nowhere",
                                           "-DCMAKE_FIND_ROOT_PATH_MODE_LIBRARY=ONLY", before=own))

    def test_what_is_missing_besides_is_named(self):
        self.assertIn("vapp needs Tcl 8.6", self.ask("REQUIRED", "-Dvapp_TCL_LIBRARY=vapp_TCL_LIBRARY-NOTFOUND",
                                                     "-DCMAKE_FIND_ROOT_PATH=/nowhere",
                                                     "-DCMAKE_FIND_ROOT_PATH_MODE_LIBRARY=ONLY", expect=1))
        self.assertIn("vapp needs the headers of Boost.Logic",
                      self.ask("REQUIRED", "-Dvapp_BOOST_INCLUDE_DIR=vapp_BOOST_INCLUDE_DIR-NOTFOUND",
                               "-DCMAKE_FIND_ROOT_PATH=/nowhere", "-DCMAKE_FIND_ROOT_PATH_MODE_INCLUDE=ONLY", expect=1))
        if OPTIONS.qt:
            answer = self.ask("REQUIRED COMPONENTS Qt", "-DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON", expect=1)
            self.assertIn("needs Qt 6.4 or newer", answer)


class SystemNames(unittest.TestCase):
    """The system's header names hundreds of calls by macros. A member of ours of such a name would be renamed in hosts
    that include the header before ours, and not in the library: it would compile and not link."""

    def test_no_exported_name_is_a_macro_of_the_system(self):
        headers = ("winsock2", "windows", "commctrl", "commdlg", "shlobj")
        source = fresh("names") / "system.cpp"
        source.write_text("".join(f"#include <{name}.h>\n" for name in headers))
        # Those that are dealt with, or are constants which we take from the system.
        known = self.words_of(PREFIX / "include/vapp/toolkit/BasicTypes.h") | {"offsetof"}
        for alphabet in ([], ["-DUNICODE", "-D_UNICODE"]):
            listing = run(OPTIONS.compiler, "-dM", "-E", *alphabet, source)
            macros = set(re.findall(r"^#define (\w+)", listing, re.MULTILINE))
            self.assertIn("GetMessage", macros)
            for header in (PREFIX / "include").rglob("*.h"):
                self.assertEqual((self.words_of(header) & macros) - known, set(), header)

    def words_of(self, header):
        bare = re.sub(r'//[^\n]*|/\*.*?\*/|"[^"\n]*"', "", header.read_text(), flags=re.DOTALL)
        if header.name != "BasicTypes.h":
            bare = re.sub(r"^\s*#.*", "", bare, flags=re.MULTILINE)
        return set(re.findall(r"[A-Za-z_]\w*", bare))


class PkgConfig(unittest.TestCase):
    def flags(self, *packages):
        return run("pkg-config", "--cflags", "--libs", *packages,
                   environment={"PKG_CONFIG_PATH": str(LIBRARIES / "pkgconfig")}).split()

    def tcl(self):
        """The name of Tcl's own file on this system, as the package has it."""
        return re.search(r"^Requires.private: (\S+)", (LIBRARIES / "pkgconfig/vapp.pc").read_text(), re.MULTILINE)[1]

    def build(self, folder, step, *packages):
        examples = OPTIONS.source / "examples/embedding"
        sources = [examples / step / "main.cpp", examples / "step2_database/Database.cpp"]
        run(*OPTIONS.compiler.split(), "-std=c++20", "-fPIC", f"-I{examples}", *sources, "-o", folder / step,
            *self.flags(*packages))

    def test_a_program_needs_one_line_of_the_compiler(self):
        folder = fresh("pkgconfig")
        self.build(folder, "step2_database", "vapp", self.tcl())
        self.assertEqual(output_of(folder / "step2_database"),
                         (OPTIONS.source / "examples/embedding/step2_database/expected.txt").read_text())

    def test_the_adapter_brings_the_library_and_qt(self):
        if not OPTIONS.qt:
            self.skipTest("built without Qt")
        flags = self.flags("vapp-qt")
        for flag in ("-lvapp_qt", "-lvapp", "-lQt6Widgets"):
            self.assertIn(flag, flags)
        self.assertNotIn("-ltcl8.6", flags)
        self.assertIn(f"-I{PREFIX}/include", [os.path.normpath(flag) for flag in flags])


class Readme(unittest.TestCase):
    """The program of the README, from its text, with a witness that says what the window shows and ends it."""

    def test_the_first_embedding_builds_and_shows_its_cells(self):
        folder = fresh("readme")
        text = (OPTIONS.source / "README.md").read_text()
        blocks = dict(re.findall(r"^```(cpp|cmake)\n(.*?)^```$", text, re.MULTILINE | re.DOTALL))
        (folder / "minimal.cpp").write_text(blocks["cpp"])
        shutil.copy(OPTIONS.witness, folder / "Witness.cpp")
        (folder / "CMakeLists.txt").write_text("cmake_minimum_required(VERSION 3.21)\nproject(readme LANGUAGES CXX)\n" +
                                               blocks["cmake"] + "target_sources(minimal PRIVATE Witness.cpp)\n")
        make(folder, folder / "build")
        shown = output_of(folder / "build/minimal").splitlines()
        for wanted in ("logic", "top", "nand2,symbol,logic", "nand10,symbol,logic", "chip,schematic,top"):
            self.assertIn(wanted, shown)


def main():
    global OPTIONS, PREFIX, LIBRARIES
    parser = argparse.ArgumentParser()
    for name in ("source", "build", "work"):
        parser.add_argument(f"--{name}", type=lambda text: pathlib.Path(text).resolve(), required=True)
    for name in ("cmake", "version", "compiler", "libraries"):
        parser.add_argument(f"--{name}", required=True)
    for name in ("launcher", "toolchain", "objdump", "witness"):
        parser.add_argument(f"--{name}", default="")
    parser.add_argument("--emulator", default=[], action="append")
    parser.add_argument("--qt", action="store_true")
    parser.add_argument("--windows", action="store_true")
    parser.add_argument("tests", nargs="+")
    OPTIONS = parser.parse_args()
    PREFIX = OPTIONS.work / "installed"
    LIBRARIES = PREFIX / OPTIONS.libraries
    unittest.main(argv=[sys.argv[0], "-v", *OPTIONS.tests])


if __name__ == "__main__":
    main()
