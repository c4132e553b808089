"""Words and paths that have no place in the repository. The patterns are written so that none matches itself."""
import re

import report
import tree

WORDS = [
    (r"\bPart[ ]\d+(\.\d+)?\b", "a reference that readers cannot follow"),
    (r"\bspecifi[c]ation\b", "a reference that readers cannot follow"),
    (r"\bthe[ ]spec\b", "a reference that readers cannot follow"),
    (r"\bissue[ ]#?\d+\b", "a reference that readers cannot follow"),
    (r"(?<![\w.$}~-])/(work|root)(?=/|\b(?!\w))", "a path of one machine"),
    (r"\bwork[t]ree\b", "a word about how the work was organised"),
    (r"\b(A[I]|LL[M]|age[n]ts?)\b", "a word about tools"),
]
# In code only: marks of work that is not finished.
MARKS = [(r"\b(TO[D]O|FIX[M]E|XX[X]|HA[C]K|WI[P])\b", "an unfinished mark")]

TEXT = (".h", ".cpp", ".rc", ".cmake", ".txt", ".md", ".sh", ".py", ".json", ".in", ".1")
BYTES = ("tests/data/", "fuzz/seeds/")


def problems(root):
    found = []
    for path in tree.files(root):
        name = path.split("/")[-1]
        if path.startswith(BYTES) or not (name.endswith(TEXT) or "." not in name.lstrip(".")):
            continue
        text = tree.read(root, path)
        rules = [(pattern, why, re.I if why.endswith("follow") else 0) for pattern, why in WORDS]
        if not path.endswith(".md"):
            rules += [(pattern, why, 0) for pattern, why in MARKS]
        for pattern, why, flags in rules:
            for match in re.finditer(pattern, text, flags):
                line = text.count("\n", 0, match.start()) + 1
                found.append(f"{path}:{line}: {match[0]!r}: {why}")
    return found


if __name__ == "__main__":
    report.main(problems)
