#!/usr/bin/env python3
"""test-report.py FILE: reads the results that ctest wrote with --output-junit.

Prints three numbers on standard output: passed, failed, skipped. Failed tests are shown with the end of their
output on standard error. Exit status 1 when the file is missing or unreadable: then nobody knows the results.
"""
import sys
import xml.etree.ElementTree as tree

SHOWN_LINES = 40
SHOWN_TESTS = 10  # with their output; of the others the name


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    try:
        cases = tree.parse(sys.argv[1]).getroot().findall("testcase")
    except (OSError, tree.ParseError) as reason:
        sys.exit(f"no test results: {reason}")
    passed = failed = skipped = 0
    for case in cases:
        status = case.get("status")
        # A test that did not run for want of its program is a failure; one that said why it cannot is skipped.
        reason = case.find("skipped")
        if status == "run":
            passed += 1
        elif status == "disabled" or (status == "notrun" and reason is not None and
                                      reason.get("message", "").startswith("SKIP_")):
            skipped += 1
        else:
            failed += 1
            output = (case.findtext("system-out") or "").rstrip().splitlines()[-SHOWN_LINES:]
            shown = output if failed <= SHOWN_TESTS else []
            print(f"-- failed: {case.get('name')}", *shown, sep="\n", file=sys.stderr)
    print(passed, failed, skipped)


main()
