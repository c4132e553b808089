#!/usr/bin/env python3
"""Writes platform/codepage_tables_posix.cpp from the tables of tests/data/codepage.

usage: scripts/gen-codepages.py [--check]

The tables say what Windows' own conversions answer; the generated arrays hold the same answers in the
form that platform/codepage_tables.h describes. --check writes nothing and fails when the file is not
what would be written."""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
DATA = ROOT / "tests" / "data" / "codepage"
TARGET = ROOT / "platform" / "codepage_tables_posix.cpp"
PAGES = [437, 874, 932, 936, 949, 950, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258]
LITERAL, SAME, RISING = 0x0000, 0x4000, 0x8000


def values(text):
    """The values of one line; None for "the two bytes by themselves"."""
    out = []
    for value, sign, count in re.findall(r"([0-9A-F]+|\.)(?:([+*])(\d+))?", text):
        count = int(count or 1)
        first = None if value == "." else int(value, 16)
        out += [first + i for i in range(count)] if sign == "+" else [first] * count
    assert len(out) == 256, text
    return out


def read(page):
    """The units of the 256 bytes, rows of the lead bytes, and the bytes of the 65,536 units."""
    single, rows, units = [], {}, []
    for line in (DATA / f"{page}.txt").read_text().splitlines():
        kind, _, rest = line.partition(":")
        if kind == "byte":
            single = values(rest)
        elif kind.startswith("pair "):
            rows[int(kind[5:], 16)] = values(rest)
        elif kind.startswith("unit "):
            units += values(rest)
    assert len(single) == 256 and len(units) == 0x10000
    assert single[:128] == list(range(128)) and units[:128] == list(range(128))
    for lead, row in rows.items():
        # A lead byte before a NUL stands alone, before any other byte it takes that byte with it.
        assert row[0] is None and None not in row[1:], (page, lead)
        row[0] = single[lead]
    return single, rows, units


def pack(numbers):
    """Runs: a word of kind and count, then the one value of the run or all values of a literal run."""
    out, literal, i = [], [], 0

    def flush():
        for at in range(0, len(literal), 0x3FFF):
            part = literal[at : at + 0x3FFF]
            out.extend([LITERAL | len(part)] + part)
        literal.clear()

    while i < len(numbers):
        same = rising = 1
        while i + same < len(numbers) and same < 0x3FFF and numbers[i + same] == numbers[i]:
            same += 1
        while i + rising < len(numbers) and rising < 0x3FFF and numbers[i + rising] == numbers[i] + rising:
            rising += 1
        count = max(same, rising)
        if count < 3:
            literal.extend(numbers[i : i + count])
        else:
            flush()
            out.extend([(SAME if same > rising else RISING) | count, numbers[i]])
        i += count
    flush()
    return out


def inverse(single, rows, unknown):
    """The encoder that follows from the decoder alone: of several bytes for a unit the first stands."""
    units = [unknown] * 0x10000
    for lead in sorted(rows, reverse=True):
        for trail in range(255, 0, -1):
            units[rows[lead][trail]] = lead << 8 | trail
    for byte in range(255, -1, -1):
        if byte not in rows:
            units[single[byte]] = byte
    return units


def patches(expected, derived):
    """Where the encoder differs from the derived one: first unit, then packed values."""
    out, i = [], 0
    while i < 0x10000:
        if expected[i] == derived[i]:
            i += 1
            continue
        end = i
        while end < 0x10000 and expected[end] != derived[end]:
            end += 1
        run = pack(expected[i:end])
        out += [i, end - i] + run
        i = end
    return out


def array(name, numbers):
    lines, line = [], "   "
    for number in numbers:
        word = f" {number},"
        if len(line) + len(word) > 110:
            lines.append(line)
            line = "   "
        line += word
    return f"constexpr std::uint16_t {name}[] = {{\n" + "\n".join(lines + [line]) + "\n};\n"


def generate():
    arrays, entries = [], []
    for page in PAGES:
        single, rows, units = read(page)
        leads = sorted(rows)
        decode = pack(single + [unit for lead in leads for unit in rows[lead]])
        encode = patches(units, inverse(single, rows, ord("?")))
        ranges = [(a, b) for a, b in zip(leads, leads[1:]) if b != a + 1]
        assert len(ranges) <= 1, "two ranges of lead bytes at most"
        bounds = [leads[0], ranges[0][0], ranges[0][1], leads[-1]] if ranges else [leads[0], leads[-1], 1, 0] if leads else [1, 0, 1, 0]
        arrays.append(array(f"decode_{page}", decode))
        if encode:
            arrays.append(array(f"encode_{page}", encode))
        entries.append(
            f"    {{{page}, {{{{{{{bounds[0]}, {bounds[1]}}}, {{{bounds[2]}, {bounds[3]}}}}}}}, decode_{page}, "
            + (f"encode_{page}}},\n" if encode else "{}},\n")
        )
    return (
        "// Generated by scripts/gen-codepages.py from tests/data/codepage; do not edit.\n"
        '#include "platform/codepage_tables.h"\n\n'
        "// clang-format off\n"
        "namespace platform::codepage\n{\nnamespace\n{\n"
        + "".join(arrays)
        + "\nconstexpr PackedPage pages[] = {\n"
        + "".join(entries)
        + "};\n} // namespace\n\nconst std::span<const PackedPage> packed_pages = pages;\n} // namespace platform::codepage\n"
    )


def main(arguments):
    text = generate()
    if arguments == ["--check"]:
        if not TARGET.exists() or TARGET.read_text() != text:
            print(f"gen-codepages: {TARGET.relative_to(ROOT)} is not what tests/data/codepage gives", file=sys.stderr)
            return 1
        return 0
    if arguments:
        print(__doc__, file=sys.stderr)
        return 2
    TARGET.write_text(text)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
