#!/usr/bin/env python3
"""lint-files.py ROOT FILE...: says which build's eyes see which source.

Writes build/lint/linux.txt, linux-tests.txt and mingw.txt: the sources among FILE, and those whose folder
holds a header among FILE, as far as the build compiles them. A source of both builds stands in the native list.
"""
import json
import os
import sys

root, named = sys.argv[1], set(sys.argv[2:])
folders_of_headers = {os.path.dirname(path) for path in named if path.endswith(".h")}


def compiled(preset):
    with open(os.path.join(root, "build", preset, "compile_commands.json"), encoding="utf-8") as file:
        paths = {os.path.relpath(entry["file"], root) for entry in json.load(file) if entry["file"].endswith(".cpp")}
    return {path for path in paths if path in named or
            (os.path.dirname(path) in folders_of_headers and not path.startswith(("build", "..")))}


def write(name, paths):
    with open(os.path.join(root, "build/lint", name), "w", encoding="utf-8") as file:
        file.writelines(path + "\n" for path in sorted(paths))


native = compiled("linux")
tests = {path for path in native if path.startswith(("tests/", "bench/", "fuzz/"))}
write("linux.txt", native - tests)
write("linux-tests.txt", tests)
write("mingw.txt", compiled("mingw") - native)
