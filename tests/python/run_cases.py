"""Runs the unittest cases of a folder, and leaves a report that scripts/count_tests.py reads.

usage: run_cases.py FOLDER REPORT.XML
"""
import pathlib
import sys
import unittest
import xml.etree.ElementTree as ElementTree


class Report(unittest.TextTestResult):
    """Keeps each case with what became of it."""

    def startTestRun(self):
        super().startTestRun()
        self.cases = {}

    def startTest(self, test):
        super().startTest(test)
        self.cases[test.id()] = None

    def addFailure(self, test, error):
        super().addFailure(test, error)
        self.cases[test.id()] = "failure"

    def addError(self, test, error):
        super().addError(test, error)
        self.cases[test.id()] = "failure"

    def addSubTest(self, test, subtest, error):
        super().addSubTest(test, subtest, error)
        if error:
            self.cases[test.id()] = "failure"

    def addSkip(self, test, reason):
        super().addSkip(test, reason)
        self.cases[test.id()] = "skipped"

    def write(self, path):
        root = ElementTree.Element("testsuites")
        for name, outcome in self.cases.items():
            case = ElementTree.SubElement(root, "testcase", name=name, status="run")
            if outcome:
                ElementTree.SubElement(case, outcome)
        path.parent.mkdir(parents=True, exist_ok=True)
        ElementTree.ElementTree(root).write(path)


def main(folder, report):
    suite = unittest.defaultTestLoader.discover(folder, pattern="*_test.py")
    result = unittest.TextTestRunner(resultclass=Report, verbosity=2).run(suite)
    result.write(pathlib.Path(report))
    return 0 if result.wasSuccessful() and result.testsRun else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
