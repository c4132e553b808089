"""The frame of a rule's program: `python3 RULE.py ROOT` prints each problem on a line, exit status 1 if any."""
import sys


def main(problems):
    if len(sys.argv) != 2:
        sys.exit(f"usage: {sys.argv[0]} REPOSITORY")
    found = problems(sys.argv[1])
    for problem in found:
        print(problem)
    sys.exit(1 if found else 0)
