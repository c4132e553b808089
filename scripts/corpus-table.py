#!/usr/bin/env python3
"""corpus-table.py TARVO CORPUS [DOCUMENT]: reads every script that CORPUS/MANIFEST.tsv names with the program TARVO
and prints what each gave, by kind, as a table; with DOCUMENT it takes the place of the table there."""
import csv
import json
import pathlib
import re
import subprocess
import sys
import time

KINDS = ("menus", "toolbars", "dialogs", "strings", "bitmaps", "pngs", "icons", "cursors")
STRANGE = ("Strange dialog line: ", "Unkown line in menu section: ", "Unkown toolbar line: ")
START, END = "<!-- table -->\n", "<!-- end of table -->\n"


def page_of(encoding):
    names = {"utf-8": "65001", "gbk": "936", "gb2312": "936", "big5": "950", "shift_jis": "932", "euc-kr": "949"}
    found = re.search(r"(?:cp|windows-)(\d+)", encoding)
    return found[1] if found else names.get(encoding, "1252")


def row_of(tarvo, path, name, encoding):
    command = [tarvo, "rc", "show", "--format", "json", "--ansi", page_of(encoding), path]
    started = time.perf_counter()
    done = subprocess.run(command, capture_output=True, check=True)
    took = time.perf_counter() - started
    script = json.loads(done.stdout.decode("utf-8", "surrogatepass"))
    log = script["log"].split("\r\n")
    controls = sum(len(dialog["controls"]) for dialog in script["dialogs"])
    strange = sum(line.startswith(STRANGE) for line in log)
    counts = [len(script[kind]) for kind in KINDS]
    return [name, encoding, str(path.stat().st_size), *map(str, counts[:3]), str(controls), *map(str, counts[3:]),
            str(strange), f"{took * 1000:.0f}"]


def main():
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    tarvo, corpus = sys.argv[1], pathlib.Path(sys.argv[2])
    with open(corpus / "MANIFEST.tsv", encoding="utf-8", newline="") as file:
        files = [row for row in csv.DictReader(file, delimiter="\t", quoting=csv.QUOTE_NONE)
                 if row["path"].endswith((".rc", ".rc2"))]
    head = ["script", "encoding", "bytes", "menus", "toolbars", "dialogs", "controls", "strings", "bitmaps", "PNGs",
            "icons", "cursors", "strange lines", "ms"]
    lines = ["| " + " | ".join(head) + " |", "|" + "---|" * 2 + "---:|" * (len(head) - 2)]
    for row in files:
        lines.append("| " + " | ".join(row_of(tarvo, corpus / row["path"], row["path"], row["encoding"])) + " |")
    table = "\n".join(lines) + "\n"
    if len(sys.argv) == 3:
        print(table, end="")
        return
    document = pathlib.Path(sys.argv[3])
    text = document.read_text(encoding="utf-8")
    before, rest = text.split(START)
    document.write_text(before + START + "\n" + table + "\n" + END + rest.split(END)[1], encoding="utf-8")


main()
