"""A file is one idea: product code stays below LIMIT lines, or stands in long_files.txt with a reason."""
import os

import report
import tree

LIMIT = 400
LIST = "tests/rules/long_files.txt"
PRODUCT = ("platform", "standin", "tarvo", "cli", "demo")


def problems(root):
    reasons, found = {}, []
    if os.path.exists(os.path.join(root, LIST)):
        for line in tree.read(root, LIST).splitlines():
            path, _, reason = line.partition(":")
            if line.strip() and not line.startswith("#"):
                reasons[path.strip()] = reason.strip()
    for path in tree.code(root, *PRODUCT):
        lines = tree.read(root, path).count("\n")
        reason = reasons.pop(path, None)
        if lines > LIMIT and not reason:
            found.append(f"{path}: {lines} lines; split it, or give a reason in {LIST}")
        elif lines <= LIMIT and reason is not None:
            found.append(f"{path}: only {lines} lines; needs no entry in {LIST}")
    return found + [f"{path}: in {LIST}, but not in the tree" for path in reasons]


if __name__ == "__main__":
    report.main(problems)
