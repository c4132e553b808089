"""What the tests of the machine-readable reports share: a pair of scripts, and the program that compares them."""
import pathlib
import subprocess
import sys

NOT_AT_HAND = 77

ENGLISH = """LANGUAGE LANG_ENGLISH, SUBLANG_ENGLISH_US
IDD_FIRST DIALOGEX 0, 0, 100, 100
CAPTION "First <one>"
BEGIN
    LTEXT "%d of %d & more", IDC_COUNT, 1, 2, 3, 4
    PUSHBUTTON "Close", IDCANCEL, 1, 2, 3, 4
END
IDD_SECOND DIALOGEX 0, 0, 100, 100
CAPTION "Second"
BEGIN
    LTEXT "Same", IDC_SAME, 1, 2, 3, 4
END
STRINGTABLE
BEGIN
    IDS_READY "Ready"
    IDS_FILES "%s files"
END
"""
KOREAN = (ENGLISH.replace("LANG_ENGLISH, SUBLANG_ENGLISH_US", "LANG_KOREAN, SUBLANG_DEFAULT")
          .replace("%d of %d & more", "전체 %d 중").replace('"Close"', '"닫기"').replace('"Ready"', '"준비"')
          .replace('    IDS_FILES "%s files"\n', ""))


def skip(reason):
    print(reason)
    sys.exit(NOT_AT_HAND)


def compare(tarvo, folder, form):
    """The report on the pair, which has differences."""
    folder = pathlib.Path(folder)
    for name, text in (("a b.rc", ENGLISH), ("한.rc", KOREAN)):
        (folder / name).write_text("\ufeff" + text, encoding="utf-8")
    done = subprocess.run([tarvo, "rc", "compare", "a b.rc", "한.rc", "--format", form], cwd=folder,
                          capture_output=True, check=False)
    if done.returncode != 1:
        sys.exit(f"tarvo rc compare: exit status {done.returncode}\n{done.stderr.decode(errors='replace')}")
    return done.stdout.decode("utf-8")
