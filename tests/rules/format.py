"""Every C++ file is as clang-format leaves it. Versions format differently, so only the one we use counts;
without it the rule is skipped (exit status 77)."""
import re
import subprocess
import sys

import report
import tree

VERSION = 14
SKIPPED = 77


def installed():
    try:
        said = subprocess.run(["clang-format", "--version"], capture_output=True, text=True, check=True).stdout
    except (OSError, subprocess.CalledProcessError):
        return None
    return int(re.search(r"version (\d+)", said)[1])


def problems(root):
    paths = tree.code(root)
    if not paths:
        return []
    done = subprocess.run(["clang-format", "--dry-run", "--style=file", *paths], cwd=root, capture_output=True,
                          text=True, check=False)
    return sorted(set(re.findall(r"^(\S.*?):\d+:\d+: ", done.stderr, re.M)))


if __name__ == "__main__":
    if installed() != VERSION:
        print(f"clang-format {VERSION} is not here; scripts/setup.sh lint installs it")
        sys.exit(SKIPPED)
    report.main(problems)
