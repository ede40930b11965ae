"""Every check of tools/check-tree can fail, and a tree in order makes it say nothing.

Each test writes a small tree in order, spoils one thing, and expects the finding. Words that the checker looks for are
put together from pieces, so that this file passes it.
"""
import pathlib
import subprocess
import sys
import tempfile
import unittest
import unittest.mock

TOOLS = pathlib.Path(__file__).resolve().parent.parent.parent / "tools"
sys.path.insert(0, str(TOOLS))

from check_tree import symbols  # noqa: E402
from check_tree.tree import Tree  # noqa: E402

GOOD = {
    "CMakeLists.txt": "project(small)\n",
    "text/README.md": "Text.\n",
    "text/CMakeLists.txt": "target_sources(objects PRIVATE Fold.cpp)\n",
    "text/Fold.h": "#pragma once\nint gFold();\n",
    "text/Fold.cpp": '#include "text/Fold.h"\n\n#include <vector>\n',
    "include/README.md": "What hosts see.\n",
    "include/vapp/Export.h": "#pragma once\n#if defined(_WIN32)\n#define VAPP_EXPORT\n#endif\n",
    "include/vapp/text/CText.h": '#pragma once\n#include "vapp/Export.h"\nclass VAPP_EXPORT CText {\n};\n',
    "platform/README.md": "Machine.\n",
    "platform/CMakeLists.txt": "target_sources(objects PRIVATE ${VAPP_TWIN}/Clock.cpp)\n",
    "platform/posix/Clock.cpp": "#include <unistd.h>\n#include <unicode/uchar.h>\n#if defined(__linux__)\n#endif\n",
    "tests/README.md": "Tests.\n",
    "tests/text/CMakeLists.txt": "vapp_test(test_text FoldTest.cpp)\n",
    "tests/text/FoldTest.cpp": '#include <gtest/gtest.h>\n\n#include "text/Fold.h"\n',
}


class CheckTreeTest(unittest.TestCase):
    def run_on(self, changes):
        """Runs the tool on the good tree with files replaced, added, or (None) left out."""
        with tempfile.TemporaryDirectory() as folder:
            for path, text in {**GOOD, **changes}.items():
                if text is not None:
                    place = pathlib.Path(folder, path)
                    place.parent.mkdir(parents=True, exist_ok=True)
                    place.write_bytes(text if isinstance(text, bytes) else text.encode())
            return subprocess.run([sys.executable, "-B", str(TOOLS / "check-tree"), "--root", folder],
                                  capture_output=True, text=True)

    def expect(self, finding, changes):
        answer = self.run_on(changes)
        self.assertEqual(answer.returncode, 1, answer.stdout + answer.stderr)
        self.assertIn(finding, answer.stdout)
        self.assertEqual(answer.stdout.count("mend:"), 1, answer.stdout)

    def expect_silence(self, changes):
        answer = self.run_on(changes)
        self.assertEqual((answer.stdout, answer.stderr, answer.returncode), ("", "", 0))

    def room(self, room, name, text):
        """A header in a room that is in order but for the header's own text."""
        top = room.split("/")[0]
        return {f"{top}/README.md": "A room.\n", f"{room}/{name}": "#pragma once\n" + text}

    def test_is_silent_on_a_tree_in_order(self):
        self.expect_silence({})

    def test_finds_an_include_that_goes_upward(self):
        self.expect("text includes toolkit: against the direction",
                    {"text/Fold.h": '#pragma once\n#include "vapp/toolkit/CWnd.h"\n'})

    def test_every_forbidden_direction_is_found_and_every_allowed_one_is_silent(self):
        rows = {"platform": "text", "connection": "text platform", "toolkit": "text", "app": "text toolkit platform",
                "browser": "text toolkit", "celllist": "text toolkit", "toolkit/qt": "text toolkit",
                "host": "toolkit/qt", "text": ""}
        for room, allowed in rows.items():
            for target in rows:
                with self.subTest(room=room, target=target):
                    changes = self.room(room, "Probe.h", f'#include "{target}/Thing.h"\n')
                    if target == room or target in allowed.split():
                        self.expect_silence(changes)
                    else:
                        self.expect("mend:", changes)

    def test_the_two_panes_see_each_other_through_exported_headers_only(self):
        self.expect_silence(self.room("browser", "A.h", '#include "vapp/celllist/TCellListView.h"\n'))
        self.expect_silence(self.room("celllist", "A.h", '#include "vapp/browser/TLibraryView.h"\n'))
        self.expect("browser includes an internal header of celllist",
                    self.room("browser", "A.h", '#include "celllist/RowSet.h"\n'))

    def test_the_host_sees_exported_headers_only(self):
        self.expect_silence(self.room("host", "A.h", '#include "vapp/text/CText.h"\n'))
        self.expect("host includes an internal header of text", self.room("host", "A.h", '#include "text/Fold.h"\n'))

    def test_finds_an_exported_header_that_includes_an_internal_one(self):
        self.expect('exported header includes the internal "text/Fold.h"',
                    {"include/vapp/text/CText.h": '#pragma once\n#include "text/Fold.h"\nclass CText {\n};\n'})

    def test_finds_an_include_without_its_room(self):
        self.expect('"Fold.h" does not say its room', {"text/Fold.cpp": '#include "Fold.h"\n'})

    def test_finds_outside_libraries_away_from_home(self):
        for header, library in {"QWidget": "Qt", "QtCore/QObject": "Qt", "unicode/uchar.h": "ICU", "glib.h": "GLib",
                                "tcl.h": "Tcl", "windows.h": "the operating system", "gtest/gtest.h": "GoogleTest",
                                "sys/stat.h": "the operating system", "benchmark/benchmark.h": "Benchmark"}.items():
            with self.subTest(header=header):
                self.expect(f"{library} into this folder", {"text/Fold.cpp": f"#include <{header}>\n"})

    def test_outside_libraries_are_silent_at_home(self):
        for room, header in {"toolkit/qt": "QWidget", "host": "QImage", "browser": "tcl.h",
                             "platform/posix": "unicode/ucnv.h", "bench": "glib.h"}.items():
            with self.subTest(room=room):
                self.expect_silence(self.room(room, "A.h", f"#include <{header}>\n"))

    def test_finds_a_system_if_outside_the_twins(self):
        for line in ("#ifdef _WIN32", "#if defined(__linux__)", "#ifndef __MINGW32__", "#if 0\n#elif WIN32",
                     "# if A && \\\n    defined(_WIN64)", "#ifdef Q_OS_WIN"):
            with self.subTest(line=line):
                self.expect("system #if on", {"text/Fold.h": f"#pragma once\n{line}\n#endif\n"})

    def test_a_condition_that_is_no_system_is_silent(self):
        self.expect_silence({"text/Fold.h": "#pragma once\n#if defined(VAPP_WIN32_LIKE)\n#endif // _WIN32\n"})

    def test_finds_words_that_point_outside_the_tree(self):
        sheet = "sp" + "ec"
        for words in (f"see the {sheet}", f"{sheet}ification", "P" + "art 1.2", f"{sheet}.md", "/ro" + "ot/x",
                      "a sub" + "agent", "(iss" + "ue 2)", " /t" + "mp/x"):
            with self.subTest(words=words):
                self.expect("explains nothing", {"text/Fold.h": f"#pragma once\n// {words}\n"})

    def test_finds_a_shown_program_that_is_not_the_built_one(self):
        program = {"examples/README.md": "Programs.\n", "examples/minimal.cpp": "int main() {}\n",
                   "examples/CMakeLists.txt": "add_executable(minimal minimal.cpp)\n"}
        self.expect_silence({**program, "README.md": "Text.\n```cpp\nint main() {}\n```\n"})
        self.expect("is not examples/minimal.cpp", {**program, "README.md": "Text.\n```cpp\nint main();\n```\n"})
        self.expect("is not examples/minimal.cpp", {**program, "README.md": "Text.\n"})

    def test_passages_shown_in_the_guide(self):
        folder = "examples/embedding/step"
        program = {"examples/README.md": "Programs.\n", f"{folder}/main.cpp": "int g;\nint main() {\n}\n",
                   f"{folder}/CMakeLists.txt": "add_executable(step main.cpp)\n", "docs/README.md": "Texts.\n"}
        def guide(block):
            return {**program, "docs/embedding.md": f"Text.\n\n{block}\n"}
        mark = f"<!-- {folder}/main.cpp -->\n"
        self.expect_silence(guide(mark + "```cpp\nint main() {\n}\n```"))
        self.expect_silence(guide(mark + "```cpp\nint g;\n```\n\n```sh\nstep\n```"))
        self.expect("is not in", guide(mark + "```cpp\nint main() { }\n```"))
        self.expect("is not in", guide(mark + "```cpp\nmain() {\n```"))
        self.expect("code without the name", guide(mark + "```cpp\nint g;\n```\n\n```cpp\nint h;\n```"))
        self.expect("does not show it", guide("Nothing."))

    def test_finds_a_file_name_that_points_outside_the_tree(self):
        self.expect("the name points outside", {"text/p" + "art1_2.txt": "x\n"})

    def test_finds_a_header_that_is_not_named_after_its_class(self):
        answer = self.run_on({"include/vapp/text/CText.h": "#pragma once\nclass VAPP_EXPORT CWord {\n};\n"})
        self.assertEqual(answer.returncode, 1)
        self.assertIn("has CWord and not CText", answer.stdout)

    def test_finds_a_second_class_in_an_exported_header(self):
        self.expect("a second exported class, CMore", {"include/vapp/text/CText.h":
                    "#pragma once\nclass CLater;\nclass VAPP_EXPORT CText {\n};\nclass VAPP_EXPORT CMore : public CText {\n};\n"})

    def test_nested_classes_and_helpers_without_code_stand_beside_the_class(self):
        self.expect_silence({"include/vapp/text/CText.h":
                             "#pragma once\nstruct TPlace {\n};\nclass TLess {\n};\nclass VAPP_EXPORT CText {\n    class TNested {\n    };\n};\n"})

    def test_finds_a_header_without_guard(self):
        self.expect("no #pragma once", {"include/vapp/text/CText.h": "class CText {\n};\n"})

    def test_finds_a_source_that_no_list_names(self):
        self.expect("no CMakeLists.txt names it", {"text/Lost.cpp": "int g;\n"})
        self.expect("no CMakeLists.txt names it",
                    {"platform/CMakeLists.txt": "target_sources(objects PRIVATE ${VAPP_TWIN}/Other.cpp)\n"})

    def test_a_list_may_name_a_source_of_another_folder_from_the_root(self):
        other = {"fuzz/README.md": "Fuzzers.\n", "fuzz/Replay.cpp": "int g;\n"}
        self.expect("no CMakeLists.txt names it", other)
        self.expect_silence({**other, "tests/text/CMakeLists.txt":
                             "vapp_test(t FoldTest.cpp ${PROJECT_SOURCE_DIR}/fuzz/Replay.cpp)\n"})

    def test_finds_a_test_without_source(self):
        self.expect("tests no source", {"tests/text/CMakeLists.txt": "vapp_test(t FoldTest.cpp GoneTest.cpp)\n",
                                        "tests/text/GoneTest.cpp": "\n"})

    def test_the_tests_of_a_source_may_be_split(self):
        self.expect_silence({"tests/text/CMakeLists.txt": "vapp_test(t FoldTest.cpp FoldModelTest.cpp)\n",
                             "tests/text/FoldModelTest.cpp": "\n"})

    def test_a_scenario_over_several_sources_is_a_test_too(self):
        self.expect_silence({"tests/text/CMakeLists.txt": "vapp_test(t FoldTest.cpp HostileScenarioTest.cpp)\n",
                             "tests/text/HostileScenarioTest.cpp": "\n"})

    def test_finds_a_folder_without_readme(self):
        self.expect("text: no README.md", {"text/README.md": None})

    def test_finds_a_file_that_grew_too_long(self):
        self.expect("501 lines, more than 500", {"text/Fold.h": "#pragma once\n" + "//\n" * 500})
        self.expect_silence({"text/Fold.h": "#pragma once\n" + "//\n" * 499})

    def test_finds_a_missing_line_end(self):
        self.expect("no line end at the end", {"text/Fold.h": "#pragma once"})

    def test_finds_carriage_returns(self):
        self.expect("carriage returns", {"text/Fold.h": "#pragma once\r\n"})

    def test_finds_a_tab(self):
        self.expect("a tab", {"text/Fold.h": "#pragma once\n\tint g;\n"})

    def test_finds_a_leftover_of_a_merge(self):
        self.expect("a leftover of a merge", {"text/README.md": "<" * 7 + " ours\n"})

    def test_binary_files_are_not_read_as_text(self):
        self.expect_silence({"text/picture.png": b"\0\r\n\t no line end"})


class ExportedSymbolsTest(unittest.TestCase):
    NAMESPACES = {"vapp_library_browser"}

    def test_the_owner_of_a_symbol_is_its_outermost_class_or_function(self):
        for name, owner in {
            "CText::Left(int) const": "CText",
            "CText::operator<(CText const&) const": "CText",
            "vtable for CWnd": "CWnd",
            "typeinfo name for vapp_library_browser::TLibraryView": "TLibraryView",
            "non-virtual thunk to CFormView::~CFormView()": "CFormView",
            "vapp_library_browser::csLocked": "csLocked",
            "vapp_library_browser::TView::TRow::Text[abi:cxx11]() const": "TView",
            "gFold(char16_t)": "gFold",
            "std::vector<CText, std::allocator<CText> >::push_back(CText&&)": "std",
            "int gPick<CText>(CText)": "gPick",
            "operator<<(std::ostream&, CText const&)": "operator",
        }.items():
            with self.subTest(name=name):
                self.assertEqual(symbols.owner_of(name, self.NAMESPACES), owner)

    def test_finds_symbols_that_no_exported_header_names(self):
        source = ("struct __attribute__((visibility(\"default\"))) CText { int Left(); };\n"
                  "int CText::Left() { return 1; }\n"
                  "__attribute__((visibility(\"default\"))) int gStray() { return 2; }\n"
                  "namespace vapp_text { __attribute__((visibility(\"default\"))) int CText() { return 3; } }\n")
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            (root / "include/vapp/text").mkdir(parents=True)
            (root / "include/vapp/text/CText.h").write_text("class CText {};\n")
            (root / "a.cpp").write_text(source)
            subprocess.run(["c++", "-shared", "-fPIC", "-o", str(root / "libvapp.so"), str(root / "a.cpp")], check=True)
            (root / "toolkit/qt").mkdir(parents=True)
            (root / "toolkit/qt/libvapp_qt.so").write_bytes((root / "libvapp.so").read_bytes())
            findings = symbols.check(Tree(root), root)
            shown = sorted(finding.what for finding in findings if finding.path == "libvapp.so")
        self.assertEqual(shown, ["shows gStray()", "shows vapp_text::CText()"])
        self.assertEqual(len([finding for finding in findings if finding.path == "libvapp_qt.so"]), 2)

    def test_reads_the_export_table_of_a_dll(self):
        listing = ("Export Address Table -- Ordinal Base 1\n\t[   0] +base[   1] 1320 Export RVA\n\n"
                   "[Ordinal/Name Pointer] Table\n\t[   0] _ZN5CText4LeftEv\n\t[   1] _Z6gStrayv\n\nThe Function Table\n")
        with unittest.mock.patch.object(symbols, "answer_of", side_effect=[listing, "CText::Left()\ngStray()\n"]) as asked:
            self.assertEqual(list(symbols.shown_by_dll(pathlib.Path("libvapp.dll"))), ["CText::Left()", "gStray()"])
        self.assertEqual(asked.call_args.kwargs, {"text": "_ZN5CText4LeftEv\n_Z6gStrayv"})

    def test_a_build_without_library_is_a_finding(self):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            self.assertEqual(len(symbols.check(Tree(root), root)), 1)


if __name__ == "__main__":
    unittest.main()
