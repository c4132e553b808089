"""The repository's files, as the house rules see them."""
import os
import re
import subprocess

CODE = (".h", ".cpp")
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*([<"])([^>"]+)[>"]', re.M)


def files(root):
    """Paths relative to root, with slashes, of all files that are or could become part of the repository."""
    try:
        listed = subprocess.run(
            ["git", "-C", root, "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
            capture_output=True, check=True).stdout.decode().split("\0")
    except (OSError, subprocess.CalledProcessError):
        listed = []  # an unpacked archive, or a machine without git
        for folder, folders, names in os.walk(root):
            folders[:] = [name for name in folders if not name.startswith((".git", "build", "out"))]
            listed += [os.path.relpath(os.path.join(folder, name), root) for name in names]
    return sorted(path for path in set(listed) if path and os.path.isfile(os.path.join(root, path)))


def read(root, path):
    with open(os.path.join(root, path), encoding="utf-8", errors="replace") as file:
        return file.read()


def code(root, *folders):
    """The C++ files below the named folders, or all."""
    return [path for path in files(root)
            if path.endswith(CODE) and (not folders or path.startswith(tuple(f + "/" for f in folders)))]


def includes(root, path):
    """(line number, '<' or '"', name) of each #include."""
    text = read(root, path)
    return [(text.count("\n", 0, match.start()) + 1, match[1], match[2]) for match in INCLUDE.finditer(text)]
