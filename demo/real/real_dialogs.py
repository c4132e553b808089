#!/usr/bin/env python3
"""Shows the dialogs of a real program in the languages of its translations.

    real_dialogs.py --out FOLDER --windres PROGRAM --compiler PROGRAM --bin FOLDER
                    [--launcher PROGRAM] [--pictures FOLDER]

The corpus ($TARVO_CORPUS, else shared/corpus beside the project) has an English resource script with its resource header and the same script in four languages. The
dialogs of the English one are compiled into OUT/RealDialogs.dll, with its resource header in it, as a host's
module has it; `tarvo rc export-ini` makes the language files OUT/Language/NAME.ini from the translations, whose
scripts are copied beside them as OUT/NAME.rc. Then RealDialogs.exe opens every dialog in every language and holds
its texts against the script. Exit status 1 when they differ, 77 when the corpus is not at hand.
"""
import argparse
import os
import pathlib
import re
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
PROJECT = "RealDialogs"
SCRIPT = "mpc-hc/2012-utf16/src/apps/mplayerc/mplayerc.rc"
HEADER = "mpc-hc/2012-utf16/src/apps/mplayerc/resource.h"
TRANSLATED = "mpc-hc/2012-utf16/src/apps/mplayerc/mpcresources/mplayerc.%s.rc"
LANGUAGES = {"Korean": "kr", "Japanese": "ja", "Chinese": "sc", "Russian": "ru"}
NOT_AT_HAND = 77

MODULE = """#pragma code_page(65001)
#include <windows.h>
#include <commctrl.h>
#include "resource.h"
#ifndef IDC_STATIC
#define IDC_STATIC -1
#endif
#define IDR_RESOURCE_HEADER 60001
65533 Binary
BEGIN
    L"{project}"
END
#include "resource_header.rc"
LANGUAGE 9, 1
{dialogs}
"""


def text_of(path):
    data = path.read_bytes()
    return data.decode("utf-16" if data[:2] in (b"\xff\xfe", b"\xfe\xff") else "cp1252").replace("\r\n", "\n")


def dialogs_of(script):
    """The dialog statements alone: icons, bitmaps and strings stand in files that are not at hand."""
    return "\n".join(re.findall(r"^\w+ DIALOG(?:EX)? .*?^END$", script, re.MULTILINE | re.DOTALL))


def run(words, folder):
    done = subprocess.run(words, cwd=folder, capture_output=True, text=True, errors="replace")
    if done.returncode != 0:
        sys.exit(f"{' '.join(map(str, words))}: exit status {done.returncode}\n{done.stdout}{done.stderr}")


def make_dll(corpus, out, windres, compiler):
    (out / "resource.h").write_text(text_of(corpus / HEADER), encoding="utf-8")
    dialogs = dialogs_of(text_of(corpus / SCRIPT))
    (out / "module.rc").write_text(MODULE.format(project=PROJECT, dialogs=dialogs), encoding="utf-8")
    run(["cmake", "-DHEADER=resource.h", "-DOUT=resource_header.rc", "-P", ROOT / "demo/resource_header.cmake"], out)
    run([windres, "-c", "65001", "-I.", "module.rc", "module.o"], out)
    run([compiler, "-shared", "-static", "module.o", "-o", f"{PROJECT}.dll"], out)


def make_language_files(corpus, out, tarvo):
    (out / "Language").mkdir(exist_ok=True)
    shutil.copyfile(corpus / SCRIPT, out / "English.rc")
    for name, suffix in LANGUAGES.items():
        shutil.copyfile(corpus / (TRANSLATED % suffix), out / f"{name}.rc")
        run([*tarvo, "rc", "export-ini", "English.rc", f"{name}.rc", "--project", PROJECT,
             "--output", f"Language/{name}.ini"], out)


def main():
    parser = argparse.ArgumentParser()
    for name in ("out", "bin"):
        parser.add_argument(f"--{name}", type=pathlib.Path, required=True)
    for name in ("windres", "compiler"):
        parser.add_argument(f"--{name}", required=True)
    parser.add_argument("--launcher")
    parser.add_argument("--pictures", type=pathlib.Path)
    given = parser.parse_args()
    corpus = pathlib.Path(os.environ.get("TARVO_CORPUS") or ROOT.parent / "shared/corpus").resolve()
    out = given.out.resolve()
    if not (corpus / SCRIPT).is_file():
        print("the corpus is not at hand (TARVO_CORPUS names its folder)")
        sys.exit(NOT_AT_HAND)
    out.mkdir(parents=True, exist_ok=True)
    launcher = [given.launcher] if given.launcher else []
    programs = given.bin.resolve()
    make_dll(corpus, out, given.windres, given.compiler)
    make_language_files(corpus, out, [*launcher, programs / "tarvo.exe"])
    # Names relative to the working folder need no translation into the launcher's world.
    pictures = [os.path.relpath(given.pictures.resolve(), out)] if given.pictures else []
    sys.exit(subprocess.run([*launcher, programs / "RealDialogs.exe", ".", *pictures], cwd=out).returncode)


main()
