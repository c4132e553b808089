#!/usr/bin/env python3
"""gen.py FOLDER: writes the inputs of the benchmarks, the same bytes on every machine.

lang.utf16.ini lang.utf8.ini lang.cp949.ini   one language file: 60,000 keys in 1,500 sections
wide.utf16.ini                                60,000 keys in 15,000 sections, for the growth of look-ups
lang.keys.tsv wide.keys.tsv                   their section and key names, shuffled, for random look-ups
resource.h                                    66,000 defines, as one module's resource header
messages/                                     60,000 messages in 17 files, 10 % of them once more in a later one, and
                                              the same compiled for gettext, Qt and ICU; messages.keys, shuffled
text.cpN, text.cpN.utf16                      5 MiB of text for each of the code pages 949 932 936 1251

A folder that is already complete is left alone; --force writes it again.
"""
import codecs
import os
import random
import subprocess
import sys
from xml.sax.saxutils import escape

SEED = 42
TEXT_BYTES = 5 * 1024 * 1024
STAMP = "complete-3"  # change it with the contents

WORDS = ("file open save close window view edit insert format tools help print page row column table cell "
         "text font size color style border chart image link name path folder value list item select delete "
         "copy paste undo redo node element load beam plate section material").split()


def double_byte(codec, leads, trails):
    """The characters of a code page whose two bytes lie in the given ranges."""
    found = []
    for lead in leads:
        for trail in trails:
            try:
                found.append(bytes((lead, trail)).decode(codec))
            except UnicodeDecodeError:
                pass
    return found


def korean_character(rng, common, extended):
    return rng.choice(common) if rng.random() < 0.98 else rng.choice(extended)


def phrase(rng, words, length):
    """Korean words with now and then a term, a placeholder or an access key, as language files have them."""
    text = rng.choice(words)
    while len(text) < length:
        kind = rng.random()
        if kind < 0.12:
            text += " " + rng.choice(WORDS).capitalize()
        elif kind < 0.20:
            text += " " + rng.choice(("%s", "%d", "(&F)", "..."))
        else:
            text += " " + rng.choice(words)
    return text[:length].rstrip(" \\") or "x"


def language_file(rng, words, sections, keys_per_section, mean_length):
    """The lines of a language file, and its (section, key) pairs."""
    lines = ["# language file", ""]
    names = []
    for number in range(sections):
        section = f"IDD_DLG_{number:05d}"
        lines.append(f"[{section}]")
        for key_number in range(keys_per_section):
            key = f"IDC_{rng.choice(('STATIC', 'EDIT', 'BTN', 'CHECK', 'COMBO'))}_{1000 + key_number}"
            names.append((section, key))
            lines.append(f"{key}={phrase(rng, words, max(2, int(rng.gauss(mean_length, 9))))}")
        lines.append("")
    return "\r\n".join(lines) + "\r\n", names


def resource_header(rng):
    """66,000 lines: dialogs, controls, commands and strings, a comment and a blank line here and there."""
    lines = ["//{{NO_DEPENDENCIES}}", "// Generated resource header, used by the module.", "#pragma once", ""]
    number = 100
    while len(lines) < 66000:
        if len(lines) % 400 == 0:
            lines += ["", f"// {rng.choice(WORDS)}"]
            continue
        kind = rng.choice(("IDD_", "IDC_", "IDC_", "IDS_", "IDS_", "ID_", "IDR_"))
        name = f"{kind}{rng.choice(WORDS).upper()}_{rng.choice(WORDS).upper()}_{number}"
        lines.append(f"#define {name:<39} {number}")
        number += 1
    return "\r\n".join(lines[:66000]) + "\r\n"


def script_dialog(number, rng, text, symbol):
    lines = [f"{symbol('IDD_DIALOG', number)} DIALOGEX 0, 0, {rng.randint(100, 400)}, {rng.randint(100, 300)}",
             "STYLE DS_SETFONT | DS_MODALFRAME | WS_POPUP | WS_CAPTION", f'CAPTION "{text()}"',
             'FONT 8, "MS Shell Dlg", 400, 0, 0x1', "BEGIN"]
    for control in range(30):
        identifier = symbol("IDC_CONTROL", 1000 + control)
        place = ",".join(str(rng.randint(8, 300)) for _ in range(4))
        kind = rng.randrange(4)
        if kind == 0:
            lines.append(f'    LTEXT           "{text()}",IDC_STATIC,{place}')
        elif kind == 1:
            lines.append(f"    EDITTEXT        {identifier},{place},ES_AUTOHSCROLL | WS_GROUP")
        elif kind == 2:
            lines.append(f'    PUSHBUTTON      "{text()}",{identifier},{place}')
        else:
            lines += [f'    CONTROL         "{text()}",{identifier},"Button",BS_AUTOCHECKBOX |',
                      f"                    WS_TABSTOP,{place}"]
    return lines + ["END", ""]


def script_menu(number, text, symbol):
    lines = [f"{symbol('IDR_MENU', number)} MENU", "BEGIN"]
    for popup in range(4):
        lines += [f'    POPUP "{text()}"', "    BEGIN"]
        lines += [f'        MENUITEM "{text()}", {symbol("ID_COMMAND", 10 * popup + item)}' for item in range(6)]
        lines += ["        MENUITEM SEPARATOR", "    END"]
    return lines + ["END", ""]


def resource_script(scale, text, numbers=False):
    """A script of 10 * scale dialogs, scale menus and 300 * scale strings. With numbers alone for its symbols it is
    one that a compiler reads without headers."""
    rng = random.Random(SEED + 2)
    bases = {"IDD_DIALOG": 100, "IDC_CONTROL": 0, "IDR_MENU": 30000, "ID_COMMAND": 40000, "IDS_TEXT": 0}

    def symbol(kind, number):
        return str(bases[kind] + number) if numbers else f"{kind}_{number:05d}"

    lines = ["LANGUAGE 18, 1", ""]
    for number in range(10 * scale):
        lines += script_dialog(number, rng, text, symbol)
    for number in range(scale):
        lines += script_menu(number, text, symbol)
    lines += ["STRINGTABLE", "BEGIN"]
    lines += [f'    {symbol("IDS_TEXT", number):<24} "{text()}"' for number in range(300 * scale)]
    script = "\r\n".join([*lines, "END", ""])
    if numbers:
        for name in ("IDC_STATIC", "DS_SETFONT", "DS_MODALFRAME", "WS_POPUP", "WS_CAPTION", "ES_AUTOHSCROLL",
                     "WS_GROUP", "BS_AUTOCHECKBOX", "WS_TABSTOP"):
            script = script.replace(name, "1")
    return script


def script_files(words, write):
    """A big script in three encodings, half of it, its translation, an edited copy, and a small one."""
    def english():
        rng = random.Random(SEED + 3)
        return lambda: " ".join(rng.choice(WORDS) for _ in range(rng.randint(1, 4))).capitalize()

    def korean():
        rng = random.Random(SEED + 4)
        return lambda: phrase(rng, words, rng.randint(3, 20)).replace('"', "")

    big = resource_script(200, korean())
    write("script.utf8.rc", codecs.BOM_UTF8 + big.encode())
    write("script.utf16.rc", codecs.BOM_UTF16_LE + big.encode("utf-16-le"))
    write("script.cp949.rc", big.encode("cp949"))
    write("script.half.rc", codecs.BOM_UTF8 + resource_script(100, korean()).encode())
    edited = big.split("\r\n")
    for at in range(50, len(edited), 100):
        edited[at] = edited[at].replace('"', '"edited ', 1)
    write("script.edited.rc", codecs.BOM_UTF8 + "\r\n".join(edited).encode())
    write("script.numbers.rc", resource_script(200, english(), True).encode())
    write("script.small.rc", codecs.BOM_UTF8 + resource_script(5, english()).encode())
    write("script.small.numbers.rc", resource_script(5, english(), True).encode())


def plain_text(rng, character, codec):
    """At least TEXT_BYTES bytes of key=value lines in one code page."""
    words = ["".join(character() for _ in range(rng.randint(1, 5))) for _ in range(4000)]
    lines, size = [], 0
    while size < TEXT_BYTES:
        parts = (rng.choice(WORDS) if rng.random() < 0.15 else rng.choice(words) for _ in range(rng.randint(2, 8)))
        line = f"IDC_{rng.randint(0, 9999)}=" + " ".join(parts) + "\r\n"
        lines.append(line)
        size += len(line.encode(codec))
    return "".join(lines)


def quoted(text):
    """A text as the sources of gettext and ICU write it."""
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def gettext_source(messages):
    head = 'msgid ""\nmsgstr ""\n"Content-Type: text/plain; charset=UTF-8\\n"\n\n'
    return head + "".join(f"msgid {quoted(key)}\nmsgstr {quoted(text)}\n\n" for key, text in messages)


def qt_source(messages):
    lines = (f"<message><source>{escape(key)}</source><translation>{escape(text)}</translation></message>\n"
             for key, text in messages)
    return ('<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n<TS version="2.1" language="ko_KR">\n'
            "<context><name>c</name>\n" + "".join(lines) + "</context></TS>\n")


def icu_source(messages):
    return "ko {\n" + "".join(f"{key} {{ {quoted(text)} }}\n" for key, text in messages) + "}\n"


def message_files(rng, words, folder):
    """The message files of 17 modules, the same for gettext, Qt and ICU, and the keys in random order."""
    messages = []
    for number in range(60000):
        key = f"MSG_{rng.choice(WORDS).upper()}_{rng.choice(WORDS).upper()}_{number:05d}"
        messages.append((key, phrase(rng, words, max(3, int(rng.gauss(25, 10))))))
    catalogues = os.path.join(folder, "ko", "LC_MESSAGES")
    os.makedirs(catalogues, exist_ok=True)

    def write(name, data):
        with open(os.path.join(folder, name), "wb") as file:
            file.write(data)

    def compile_for_peers(name, part):
        write(name + ".po", gettext_source(part).encode())
        write(name + ".ts", qt_source(part).encode())
        for command in (["msgfmt", name + ".po", "-o", f"ko/LC_MESSAGES/{name}.mo"],
                        ["/usr/lib/qt6/bin/lrelease", "-silent", name + ".ts", "-qm", name + ".qm"]):
            subprocess.run(command, cwd=folder, check=True)

    compile_for_peers("all", messages)
    write("ko.txt", icu_source(messages).encode())
    subprocess.run(["genrb", "-q", "-s", ".", "-d", ".", "ko.txt"], cwd=folder, check=True)
    for module in range(17):
        part = messages[module::17]
        own = {key for key, _ in part}
        if module:
            part += [message for message in rng.sample(messages, len(part) // 10) if message[0] not in own]
        text = "; messages\r\n" + "".join(f'{key} = "{text}"\r\n' for key, text in part)
        write(f"Module{module:02d}_kr.ini", codecs.BOM_UTF16_LE + text.encode("utf-16-le"))
        write(f"Module{module:02d}_kr.cp949.ini", text.encode("cp949"))
        compile_for_peers(f"Module{module:02d}", part)
    keys = [key for key, _ in messages]
    rng.shuffle(keys)
    return keys


def generate(folder):
    rng = random.Random(SEED)

    def write(name, data):
        with open(os.path.join(folder, name), "wb") as file:
            file.write(data)

    def utf16(text):
        return codecs.BOM_UTF16_LE + text.encode("utf-16-le")

    common = double_byte("cp949", range(0xB0, 0xC9), range(0xA1, 0xFF))
    trails = [*range(0x41, 0x5B), *range(0x61, 0x7B), *range(0x81, 0xFF)]
    extended = double_byte("cp949", range(0x81, 0xA1), trails)
    words = ["".join(korean_character(rng, common, extended) for _ in range(rng.randint(1, 4))) for _ in range(3000)]

    text, names = language_file(rng, words, 1500, 40, 26.9)
    assert len(utf16(text)) <= 5 * 1024 * 1024, "larger than the library reads"
    write("lang.utf16.ini", utf16(text))
    write("lang.utf8.ini", text.encode("utf-8"))
    write("lang.cp949.ini", text.encode("cp949"))
    rng.shuffle(names)
    write("lang.keys.tsv", "".join(f"{section}\t{key}\n" for section, key in names).encode())
    wide, names = language_file(rng, words, 15000, 4, 16)
    assert len(utf16(wide)) <= 5 * 1024 * 1024, "larger than the library reads"
    write("wide.utf16.ini", utf16(wide))
    rng.shuffle(names)
    write("wide.keys.tsv", "".join(f"{section}\t{key}\n" for section, key in names).encode())

    write("resource.h", resource_header(rng).encode())
    script_files(words, write)

    keys = message_files(random.Random(SEED + 1), words, os.path.join(folder, "messages"))
    write("messages.keys", "".join(key + "\n" for key in keys).encode())

    kana = [chr(code) for code in (*range(0x3041, 0x3094), *range(0x30A1, 0x30F5))]
    kanji = double_byte("cp932", range(0x88, 0xA0), [*range(0x40, 0x7F), *range(0x80, 0xFD)])
    hanzi = double_byte("gbk", range(0xB0, 0xD7), range(0xA1, 0xFA))
    cyrillic = [chr(code) for code in range(0x430, 0x450)]
    pages = {
        "cp949": lambda: korean_character(rng, common, extended),
        "cp932": lambda: rng.choice(kana) if rng.random() < 0.6 else rng.choice(kanji),
        "cp936": lambda: rng.choice(hanzi),
        "cp1251": lambda: rng.choice(cyrillic),
    }
    for page, character in pages.items():
        codec = "gbk" if page == "cp936" else page
        text = plain_text(rng, character, codec)
        write(f"text.{page}", text.encode(codec))
        write(f"text.{page}.utf16", text.encode("utf-16-le"))
    write(STAMP, b"")


def main():
    arguments = [a for a in sys.argv[1:] if a != "--force"]
    if len(arguments) != 1:
        sys.exit(__doc__)
    folder = arguments[0]
    os.makedirs(folder, exist_ok=True)
    if "--force" in sys.argv or not os.path.exists(os.path.join(folder, STAMP)):
        generate(folder)


main()
