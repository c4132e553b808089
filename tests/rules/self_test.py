"""Sees every house rule pass over a small tree that keeps it, and fail over one that breaks it."""
import os
import shutil
import subprocess
import sys
import tempfile
import unittest

import format as format_rule
import headers
import includes
import listed
import sizes
import words


class Rule(unittest.TestCase):
    def setUp(self):
        self.root = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, self.root)

    def write(self, path, text):
        full = os.path.join(self.root, path)
        os.makedirs(os.path.dirname(full), exist_ok=True)
        with open(full, "w", encoding="utf-8") as file:
            file.write(text)

    def assert_includes(self, path, line, reason):
        """The rule says reason (None: nothing) about one file with one #include."""
        self.write(path, f"#pragma once\n{line}\n")
        found = includes.problems(self.root)
        os.remove(os.path.join(self.root, path))
        if reason is None:
            self.assertEqual(found, [])
        else:
            self.assertEqual(len(found), 1, found)
            self.assertIn(reason, found[0])
            self.assertTrue(found[0].startswith(path + ":2: "), found[0])

    def test_includes_follow_the_table(self):
        self.assert_includes("tarvo/lang/A.h", '#include "tarvo/settings/Registry.h"', None)
        self.assert_includes("tarvo/lang/A.h", '#include "tarvo/lang/B.h"', None)
        self.assert_includes("tarvo/lang/A.h", '#include "platform/file.h"', None)
        self.assert_includes("tarvo/lang/A.h", "#include <afxwin.h>", None)
        self.assert_includes("tarvo/lang/A.h", '#include "tarvo/export.h"', None)
        self.assert_includes("tarvo/lang/A.h", '#include "qlx/qlx_lib.h"', None)
        self.assert_includes("tarvo/lang/A.h", '#include "tarvo/intl/B.h"', "tarvo/lang may not include tarvo/intl")
        self.assert_includes("tarvo/settings/A.h", '#include "tarvo/lang/B.h"', "may not include tarvo/lang")
        self.assert_includes("tarvo/settings/A.h", '#include "qlx/qlx_lib.h"', "may not include standin/qlx")
        self.assert_includes("tarvo/intl/A.h", '#include "tarvo/dlg/B.h"', "may not include tarvo/dlg")
        self.assert_includes("tarvo/dlg/A.h", '#include "tarvo/grid/B.h"', "may not include tarvo/grid")
        self.assert_includes("platform/a.h", "#include <afxstr.h>", "platform may not include standin/afx")
        self.assert_includes("platform/a.h", '#include "tarvo/export.h"', "platform may not include tarvo")
        self.assert_includes("standin/afx/afxstr.h", '#include "tarvo/lang/A.h"', "may not include tarvo/lang")
        self.assert_includes("standin/qlx/qlx_lib.h", "#include <afxstr.h>", None)
        self.assert_includes("cli/a.h", '#include "demo/b.h"', "may not include demo")
        self.assert_includes("cli/a.h", "#include <CLI/CLI.hpp>", None)
        self.assert_includes("tarvo/restools/A.h", '#include "tarvo/grid/B.h"', None)
        self.assert_includes("tarvo/lang/A.h", '#include "tests/support/print.h"', "is no test")

    def test_only_documented_framework_headers_are_included(self):
        self.assert_includes("tarvo/lang/A.h", "#include <afxroute.h>", "documented headers")
        self.assert_includes("tarvo/lang/A.h", '#include "standin/afx/afxstr.h"', "documented headers")
        self.assert_includes("standin/afx/afxwin.h", '#include "afxroute.h"', None)

    def test_only_platform_files_include_the_system(self):
        self.assert_includes("platform/a_windows.cpp", "#include <windows.h>", None)
        self.assert_includes("platform/a_posix.cpp", "#include <sys/stat.h>", None)
        self.assert_includes("platform/a.cpp", "#include <sys/stat.h>", "a system header")
        self.assert_includes("tarvo/lang/A.cpp", "#include <windows.h>", "a system header")
        self.assert_includes("tarvo/lang/A.cpp", "#include <nlohmann/json.hpp>", "a system header")
        self.assert_includes("tarvo/lang/A.cpp", "#include <vector>", None)
        self.assert_includes("tarvo/lang/A.cpp", '#include "A.h"', "by its path from the root")

    def test_every_source_is_listed(self):
        self.write("tests/a/CMakeLists.txt", "tarvo_test(a PORTABLE ATest.cpp)\n# BTest.cpp comes later\n")
        self.write("tests/a/ATest.cpp", "")
        self.assertEqual(listed.problems(self.root), [])
        self.write("tests/a/BTest.cpp", "")
        self.assertEqual(listed.problems(self.root), ["tests/a/BTest.cpp: in no CMakeLists.txt"])
        self.write("tests/CMakeLists.txt", "add_executable(b a/BTest.cpp)")
        self.assertEqual(listed.problems(self.root), [])

    def test_words(self):
        self.write("a.md", "The parts of a dialog; see /usr/share and docs/work/notes; an XXXL list.\n")
        self.assertEqual(words.problems(self.root), [])
        for text in ("see Part" + " 1.3", "the speci" + "fication says", "as the" + " spec has it", "fixes issue" + " 12",
                     "in /wo" + "rk/main", "in /ro" + "ot", "my work" + "tree", "an age" + "nt wrote it"):
            self.write("a.md", "first\n" + text + "\n")
            self.assertEqual(len(words.problems(self.root)), 1, text)
            self.assertTrue(words.problems(self.root)[0].startswith("a.md:2: "), text)
        self.write("a.md", "TO" + "DO lists are for documents\n")
        self.assertEqual(words.problems(self.root), [])
        self.write("b.cpp", "// TO" + "DO\n")
        self.assertEqual(len(words.problems(self.root)), 1)

    def test_sizes(self):
        self.write("tarvo/a.cpp", "\n" * sizes.LIMIT)
        self.assertEqual(sizes.problems(self.root), [])
        self.write("tarvo/a.cpp", "\n" * (sizes.LIMIT + 1))
        self.assertEqual(len(sizes.problems(self.root)), 1)
        self.write(sizes.LIST, "tarvo/a.cpp:\n")
        self.assertEqual(len(sizes.problems(self.root)), 1, "an entry without a reason")
        self.write(sizes.LIST, "tarvo/a.cpp: one table\n")
        self.assertEqual(sizes.problems(self.root), [])
        self.write("tarvo/a.cpp", "\n")
        self.assertEqual(len(sizes.problems(self.root)), 1, "an entry that is not needed")
        os.remove(os.path.join(self.root, "tarvo/a.cpp"))
        self.assertEqual(len(sizes.problems(self.root)), 1, "an entry of a file that is gone")

    @unittest.skipUnless(format_rule.installed(), "clang-format is not here")
    def test_format(self):
        self.write(".clang-format", "BasedOnStyle: LLVM\n")
        self.write("a.cpp", "int a;\n")
        self.assertEqual(format_rule.problems(self.root), [])
        self.write("a.cpp", "int   a;\n")
        self.assertEqual(format_rule.problems(self.root), ["a.cpp"])

    def test_headers_compile_alone(self):
        self.write("tarvo/good.h", "#pragma once\n#include <string>\nstd::string a();\n")
        self.write("tarvo/bare.h", "#pragma once\nstd::string b();\n")
        self.write("tarvo/twice.h", "struct C {};\n")
        self.write("tarvo/window.h", "#pragma once\n#include <windows.h>\n")
        self.write("tarvo/user.h", '#pragma once\n#include "tarvo/window.h"\n')
        self.write("platform/x_posix.h", "#pragma once\n")
        self.write("tests/child.h", "#pragma once\n#include <sys/wait.h>\n")
        self.assertEqual(headers.headers_for(self.root, "native"),
                         ["platform/x_posix.h", "tarvo/bare.h", "tarvo/good.h", "tarvo/twice.h", "tests/child.h"])
        self.assertEqual(headers.headers_for(self.root, "windows"),
                         ["tarvo/bare.h", "tarvo/good.h", "tarvo/twice.h", "tarvo/user.h", "tarvo/window.h"])
        compiles = {}
        for source in headers.write_sources(self.root, os.path.join(self.root, "build"), "native"):
            done = subprocess.run(["c++", "-std=c++20", "-fsyntax-only", "-I", self.root, source],
                                  capture_output=True, check=False)
            compiles[os.path.basename(source)] = done.returncode == 0
        self.assertEqual(compiles, {"platform_x_posix.h.cpp": True, "tests_child.h.cpp": True,
                                    "tarvo_good.h.cpp": True, "tarvo_bare.h.cpp": False, "tarvo_twice.h.cpp": False})

    def test_a_rule_is_a_program_that_says_where_and_ends_with_one(self):
        self.write("tarvo/lang/A.cpp", "#include <windows.h>\n")
        done = subprocess.run([sys.executable, includes.__file__, self.root], capture_output=True, text=True,
                              check=False)
        self.assertEqual(done.returncode, 1)
        self.assertIn("tarvo/lang/A.cpp:1: ", done.stdout)


if __name__ == "__main__":
    unittest.main()
