"""tools/sum-tests counts what happened, also when a program of tests dies before it can tell."""
import json
import pathlib
import subprocess
import sys
import tempfile
import unittest

TOOL = pathlib.Path(__file__).resolve().parent.parent.parent / "tools" / "sum-tests"


def report(*tests):
    return json.dumps({"testsuites": [{"testsuite": list(tests)}]})


PASSED = {"status": "RUN", "result": "COMPLETED"}
FAILED = {"status": "RUN", "result": "COMPLETED", "failures": [{"failure": "no"}]}
SKIPPED = {"status": "RUN", "result": "SKIPPED"}
NOT_CHOSEN = {"status": "NOTRUN", "result": "SUPPRESSED"}


class SumTestsTest(unittest.TestCase):
    def sums(self, entries, reports=None):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            (root / "tests.xml").write_text(f"<testsuite>{entries}</testsuite>", encoding="utf-8")
            (root / "reports").mkdir()
            for name, text in (reports or {}).items():
                (root / "reports" / f"{name}.json").write_text(text, encoding="utf-8")
            answer = subprocess.run([sys.executable, "-B", str(TOOL), folder], check=True, capture_output=True, text=True)
            return tuple(int(number) for number in answer.stdout.split())

    def test_an_entry_without_a_report_is_one_test(self):
        self.assertEqual(self.sums('<testcase name="a" status="run"/><testcase name="b" status="fail"/>'), (1, 1, 0))

    def test_a_test_that_could_not_start_failed_and_one_that_says_so_is_skipped(self):
        self.assertEqual(self.sums('<testcase name="a" status="notrun"><skipped message=""/></testcase>'
                                   '<testcase name="b" status="notrun">'
                                   '<skipped message="SKIP_REGULAR_EXPRESSION_MATCHED"/></testcase>'), (0, 1, 1))

    def test_a_report_tells_each_test_of_a_program(self):
        self.assertEqual(self.sums('<testcase name="p" status="fail"/>',
                                   {"p": report(PASSED, PASSED, FAILED, SKIPPED, NOT_CHOSEN)}), (2, 1, 1))

    def test_a_program_that_fails_behind_its_last_test_is_one_failure_more(self):
        self.assertEqual(self.sums('<testcase name="p" status="fail"/>', {"p": report(PASSED)}), (1, 1, 0))

    def test_half_a_report_is_none(self):
        self.assertEqual(self.sums('<testcase name="p" status="fail"/>', {"p": report(PASSED)[:20]}), (0, 1, 0))

    def test_fixtures_count_only_when_they_fail(self):
        self.assertEqual(self.sums('<testcase name="fixture.x" status="run"/>'), (0, 0, 0))
        self.assertEqual(self.sums('<testcase name="fixture.x" status="fail"/>'), (0, 1, 0))

    def test_a_run_that_left_nothing_is_an_error(self):
        with tempfile.TemporaryDirectory() as folder:
            answer = subprocess.run([sys.executable, "-B", str(TOOL), folder], check=False, capture_output=True, text=True)
            self.assertEqual((answer.returncode, answer.stdout), (1, ""))


if __name__ == "__main__":
    unittest.main()
