"""Counts test cases. The last line reads "N passed, N failed, N skipped"; exits with 1 when one failed.

usage: count_tests.py STEPS BUILD...

STEPS holds a file NAME.step for each check that is one test case, with "pass" or "fail". Each BUILD holds
test-results/ctest.xml and, for each name in test-programs.txt, test-results/NAME.xml with its cases.
"""
import pathlib
import sys
import xml.etree.ElementTree as ElementTree


class Counts:
    def __init__(self):
        self.passed = self.failed = self.skipped = 0

    def add(self, other):
        self.passed += other.passed
        self.failed += other.failed
        self.skipped += other.skipped

    def __str__(self):
        skipped = f", {self.skipped} skipped" if self.skipped else ""
        return f"{self.passed} passed, {self.failed} failed{skipped}"


def count_cases(path):
    """The cases of one GoogleTest program."""
    counts = Counts()
    for case in ElementTree.parse(path).getroot().iter("testcase"):
        if case.get("status") != "run" or case.find("skipped") is not None:
            counts.skipped += 1
        elif case.find("failure") is not None:
            counts.failed += 1
        else:
            counts.passed += 1
    return counts


def count_test(results, program, has_cases):
    """The cases of one CTest test. One that failed as a whole, or left no report, has one failure at least."""
    counts = Counts()
    if program.get("status") == "disabled":
        counts.skipped = 1
        return counts
    skipped = program.find("skipped")
    if skipped is not None and skipped.get("message", "").startswith("SKIP_RETURN_CODE"):
        # It has itself found that this machine cannot do it, and said why.
        print(f"{program.get('name')}: {program.findtext('system-out', '').strip()}")
        counts.skipped = 1
        return counts
    succeeded = program.get("status") == "run"
    if has_cases:
        try:
            counts = count_cases(results / f"{program.get('name')}.xml")
        except (OSError, ElementTree.ParseError):
            succeeded = False
    else:
        counts.passed = int(succeeded)
    if not succeeded and counts.failed == 0:
        counts.failed = 1
    return counts


def count_build(build):
    results = build / "test-results"
    counts = Counts()
    try:
        programs = ElementTree.parse(results / "ctest.xml").getroot().iter("testcase")
    except OSError:
        return counts  # not built, which the step of its build says
    with_cases = (build / "test-programs.txt").read_text().split()
    for program in programs:
        counts.add(count_test(results, program, program.get("name") in with_cases))
    print(f"{build.name}: {counts}")
    return counts


def main(steps, *builds):
    total = Counts()
    for step in sorted(pathlib.Path(steps).glob("*.step")):
        if step.read_text().strip() == "pass":
            total.passed += 1
        else:
            total.failed += 1
            print(f"failed: {step.stem}")
    for build in builds:
        total.add(count_build(pathlib.Path(build)))
    print(total)
    return 1 if total.failed or not total.passed else 0


sys.exit(main(*sys.argv[1:]))
