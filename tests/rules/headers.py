"""headers.py REPOSITORY FOLDER native|windows: writes one source into FOLDER for each header that can be compiled
there, which includes the header alone, and then again. Prints the sources, one a line."""
import os
import sys

import includes
import tree

FOLDERS = ("platform", "standin", "tarvo", "cli", "tests")
# Opaque handles where there are no windows: portable, whatever it includes.
NEUTRAL = "platform/handles.h"
SYSTEM = {
    "windows": lambda name: name in ("windows.h", "commctrl.h", "commdlg.h", "prsht.h"),
    "posix": lambda name: name.startswith("sys/") or name in ("unistd.h", "fcntl.h"),
}


def bound_to(root, headers, system):
    """The headers that one system alone can compile: by their name, by what they include, or through one another."""
    edges, found = {}, set()
    for path in headers:
        names = [name for _, _, name in tree.includes(root, path)]
        edges[path] = {includes.target_of(path, name) for name in names}
        if path.endswith(f"_{system}.h") or (path != NEUTRAL and any(map(SYSTEM[system], names))):
            found.add(path)
    while True:
        more = {path for path in headers if path not in found and edges[path] & found}
        if not more:
            return found
        found |= more


def headers_for(root, where):
    headers = [path for path in tree.code(root, *FOLDERS) if path.endswith(".h")]
    return sorted(set(headers) - bound_to(root, headers, "posix" if where == "windows" else "windows"))


def write_sources(root, folder, where):
    os.makedirs(folder, exist_ok=True)
    sources = []
    for header in headers_for(root, where):
        source = os.path.join(folder, header.replace("/", "_") + ".cpp")
        text = f'#include "{header}"\n#include "{header}" // and once more: it guards itself\n'
        if not os.path.exists(source) or tree.read(folder, os.path.basename(source)) != text:
            with open(source, "w", encoding="utf-8") as file:
                file.write(text)
        sources.append(source)
    return sources


if __name__ == "__main__":
    if len(sys.argv) != 4 or sys.argv[3] not in ("native", "windows"):
        sys.exit(__doc__)
    print(*write_sources(*sys.argv[1:]), sep="\n")
