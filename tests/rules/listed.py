"""Every source file is named in the CMakeLists.txt of its folder or of one above it: a file that no target
lists is not compiled, and a test in it never runs."""
import os
import re

import report
import tree


def problems(root):
    lists = {}
    for path in tree.files(root):
        if os.path.basename(path) == "CMakeLists.txt" or path.endswith(".cmake"):
            text = re.sub(r"#.*", "", tree.read(root, path))
            # A function of cmake/ names files from the root.
            folder = os.path.dirname(path) if path.endswith(".txt") else ""
            lists.setdefault(folder, set()).update(re.split(r'[\s()"]+', text))
    return [f"{path}: in no CMakeLists.txt" for path in tree.code(root)
            if path.endswith(".cpp") and not is_listed(path, lists)]


def is_listed(path, lists):
    folder, name = os.path.split(path)
    while True:
        if name in lists.get(folder, ()) or "${PROJECT_SOURCE_DIR}/" + path in lists.get(folder, ()):
            return True
        if not folder:
            return False
        folder, upper = os.path.split(folder)
        name = upper + "/" + name


if __name__ == "__main__":
    report.main(problems)
