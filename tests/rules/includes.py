"""Who may include whom: the table of docs/architecture.md, held against every #include."""
import os
import re

import report
import tree

# Of each folder the folders that it may include; its own is always allowed. The longest prefix counts.
TABLE = {
    "platform": [],
    "standin/afx": ["platform"],
    "standin/toolkit": ["standin/afx"],
    "standin/qlx": ["standin/afx", "platform"],
    "tarvo": [],
    "tarvo/text": [],
    "tarvo/settings": [],
    "tarvo/msg": ["tarvo/text", "tarvo/settings", "standin/qlx"],
    "tarvo/lang": ["tarvo/text", "tarvo/settings", "standin/qlx"],
    "tarvo/intl": ["tarvo/lang", "tarvo/settings", "tarvo/msg", "standin/qlx", "standin/toolkit"],
    "tarvo/dlg": ["tarvo/intl", "tarvo/settings", "tarvo/text"],
    "tarvo/grid": ["tarvo/intl", "tarvo/settings", "tarvo/text"],
    "tarvo/restools": ["tarvo", "standin/qlx", "standin/toolkit"],
    "cli": ["tarvo"],
    "demo": ["tarvo", "standin"],
}
# The ground under every folder of the library and the programs.
GROUND = {folder: ["standin/afx", "platform"] for folder in TABLE if folder.split("/")[0] in ("tarvo", "cli", "demo")}
# What every folder of the library needs to mark its exports.
SHARED = {"tarvo/export.h"}

# The framework's headers that need no windows.
PORTABLE_AFX = {"afx.h", "afxstr.h", "afxcoll.h", "afxtempl.h"}
# What the vendor's framework has under the same names; its stand-in's own parts are nobody else's business.
DOCUMENTED_AFX = PORTABLE_AFX | {"afxwin.h", "afxext.h", "afxcmn.h", "afxdlgs.h", "afxpriv.h", "afxrich.h",
                                  "afxres.h"}
# Packages that a program may use beside the standard library.
PACKAGES = {"cli": ("CLI/", "nlohmann/")}

PRODUCT = ("platform", "standin", "tarvo", "cli", "demo")
PLATFORM_FILE = re.compile(r"_(windows|posix)\.(cpp|h)$")
# Headers of the compiler for its vector instructions: neither the system's nor anybody's package.
COMPILER_HEADERS = re.compile(r"^[a-z]+mmintrin\.h$")


def folder_of(path):
    """The table's folder that holds a path."""
    found = [folder for folder in TABLE if path.startswith(folder + "/")]
    return max(found, key=len, default=None)


def target_of(path, name):
    """The repository path of an included name, or None for a header of the system or the standard library."""
    base = name.split("/")[-1]
    if name.startswith("afx") and name.endswith(".h"):
        return "standin/afx/" + name
    if name.startswith("qlx/"):
        return "standin/" + name
    if name.lower().startswith("bcg"):
        return "standin/toolkit/" + name
    if name.split("/")[0] in (*PRODUCT, "tests", "bench", "fuzz"):
        return name
    if base == name and path.startswith(("standin/", "demo/")):
        return os.path.dirname(path) + "/" + name  # a stand-in's own headers, a module's resource header
    return None


def problems(root):
    found = []
    for path in tree.code(root, *PRODUCT):
        folder = folder_of(path)
        if folder is None:
            continue
        for line, mark, name in tree.includes(root, path):
            reason = problem(path, folder, mark, name)
            if reason:
                found.append(f"{path}:{line}: {mark}{name}: {reason}")
    return found


def problem(path, folder, mark, name):
    target = target_of(path, name)
    if target is None:
        return outside_problem(path, folder, mark, name)
    if target in SHARED and folder.startswith("tarvo") or folder_of(target) == folder:
        return None
    if target.startswith("standin/afx/") and (mark == '"' or name not in DOCUMENTED_AFX):
        return "not one of the framework's documented headers, by <> name"
    if target.split("/")[0] in ("tests", "bench", "fuzz"):
        return f"{folder} is no test"
    allowed = TABLE[folder] + GROUND.get(folder, [])
    if not target.startswith(tuple(a + "/" for a in allowed)):
        return f"{folder} may not include {folder_of(target) or target.split('/')[0]}"
    return None


def outside_problem(path, folder, mark, name):
    """Headers from outside: the standard library for all, the system's for platform files and windows only."""
    if mark == '"':
        return "included by its path from the root, or with <> when it is not ours"
    if "." not in name.split("/")[-1] and "/" not in name:
        return None  # the standard library's headers have no ending
    if name.startswith(PACKAGES.get(folder, ("\0",))) or COMPILER_HEADERS.match(name):
        return None
    if PLATFORM_FILE.search(path) or path == "platform/handles.h" or folder == "demo":
        return None
    if folder.startswith("standin/") and path.split("/")[-1] not in PORTABLE_AFX:
        return None
    return "a system header outside the _windows and _posix files"


if __name__ == "__main__":
    report.main(problems)
