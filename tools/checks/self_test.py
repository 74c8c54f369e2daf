"""Shows that every check can fail: plants one breach at a time in a copy of the project.

Each breach must turn its own check from OK to FAIL, and no other of the quick ones.
"""

import pathlib
import shutil
import subprocess
import sys
import tempfile

from checks import CHECKS

SLOW = {"formatting", "warnings", "pages", "clang-tidy"}
QUICK = [name for name in CHECKS if name not in SLOW]


def append(name, text):
    """A breach: this text after the file's own; a missing file is made."""
    def plant(root):
        path = root / name
        old = path.read_text(encoding="utf-8") if path.exists() else ""
        path.write_text(old + text, encoding="utf-8")
    return name, plant


def replace(name, old, new):
    """A breach: the first `old` in the file becomes `new`."""
    def plant(root):
        path = root / name
        text = path.read_text(encoding="utf-8")
        if old not in text:
            raise SystemExit(f"the self-test finds no {old!r} in {name} to replace")
        path.write_text(text.replace(old, new, 1), encoding="utf-8")
    return name, plant


# (check, what is planted, how). The words are put together here, so that this file passes itself.
BREACHES = [
    ("levels", "a lower module includes an upper one's header",
     append("src/foundation/planted.h", '#pragma once\n\n#include "session/set_up.h"\n')),
    ("levels", "a module links one that is not below it in the table",
     replace("src/README.md", "| `awizo_tables` | `tables` | `awizo_record` |",
             "| `awizo_tables` | `tables` | `awizo_record` `awizo_formats` |")),
    ("levels", "a module links more than the table says",
     replace("src/bulkfill/CMakeLists.txt", "LINKS awizo_editing", "LINKS awizo_editing awizo_tables")),
    ("levels", "a module is built in another place than the table says",
     replace("src/CMakeLists.txt", "add_subdirectory(service)\nadd_subdirectory(formats)",
             "add_subdirectory(formats)\nadd_subdirectory(service)")),
    ("levels", "an arrow is missing in the picture",
     replace("src/README.md", "  awizo_tables --> awizo_record\n", "")),
    ("levels", "a source stands outside every module", append("src/planted/planted.h", "#pragma once\n")),
    ("levels", "an adapter includes a module above the platform",
     append("adapters/icu/planted.h", '#pragma once\n\n#include "foundation/conversions.h"\n')),
    ("links", "a module of src/ links a library from outside",
     append("src/tables/CMakeLists.txt", "target_link_libraries(awizo_tables PUBLIC LibXml2::LibXml2)\n")),
    ("links", "a module of src/ adds compiler options of its own",
     append("src/tables/CMakeLists.txt", "add_compile_options(-w)\n")),
    ("standard-only", "src/ includes a library from outside",
     append("src/tables/planted.h", "#pragma once\n\n#include <libxml/tree.h>\n")),
    ("standard-only", "src/ includes files of the standard library's own",
     append("src/tables/planted.h", "#pragma once\n\n#include <fstream>\n")),
    ("standard-only", "src/ includes threads", append("src/tables/planted.h", "#pragma once\n\n#include <thread>\n")),
    ("standard-only", "src/ includes an adapter",
     append("src/tables/planted.h", '#pragma once\n\n#include "../adapters/icu/collation.h"\n')),
    ("standard-only", "src/ reads the environment",
     append("src/tables/planted.h", '#pragma once\n\ninline const char* planted() { return std::getenv("A"); }\n')),
    ("standard-only", "src/ reads a clock by itself",
     append("src/tables/planted.h", "#pragma once\n\ninline auto planted() { return std::chrono::system_clock::now(); }\n")),
    ("portable", "a floating number is read as pages can't",
     append("src/tables/planted.h", "#pragma once\n\ninline double planted(const char* a, const char* z) {\n"
            "  double value = 0;\n  std::from_chars(a, z, value);\n  return value;\n}\n")),
    ("portable", "a floating number of a stated form is read as pages can't",
     append("src/tables/planted.h", "#pragma once\n\ninline void planted(const char* a, const char* z, auto& value) {\n"
            "  std::from_chars(a, z, value, std::chars_format::fixed);\n}\n")),
    ("portable", "a time zone is asked for",
     append("src/tables/planted.h", "#pragma once\n\ninline auto planted() { return std::chrono::current_zone(); }\n")),
    ("portable", "what pages are built on too uses threads",
     append("hosts/protocol/planted.h", "#pragma once\n\n#include <thread>\n")),
    ("portable", "what pages are built on too uses the disk",
     append("adapters/libxml2/planted.h", "#pragma once\n\n#include <filesystem>\n")),
    ("include-circle", "a header includes itself by way of another",
     [append("src/tables/planted.h", '#pragma once\n\n#include "tables/planted_too.h"\n'),
      append("src/tables/planted_too.h", '#pragma once\n\n#include "tables/planted.h"\n')]),
    ("words", "a comment says where a rule is written down",
     append("src/tables/planted.h", "#pragma once\n\n// See Par" "t 5.1.\n")),
    ("words", "a comment names the paper instead of the rule",
     append("src/tables/planted.h", "#pragma once\n\n// As the spe" "c says.\n")),
    ("words", "a comment says when a rule was asked for",
     append("src/tables/planted.h", "#pragma once\n\n// For iss" "ue 5.\n")),
    ("words", "a comment names a folder of one machine",
     append("src/tables/planted.h", "#pragma once\n\n// See /ho" "me/bob/notes.\n")),
    ("comments", "a declaration is documented as code is explained",
     append("src/tables/planted.h", "#pragma once\n\n// The only one of its kind.\nint planted();\n")),
    ("comments", "code is explained as a declaration is documented",
     append("src/tables/planted.h", "#pragma once\n\ninline int planted() {\n  /// Nothing yet.\n  return 0;\n}\n")),
    ("comments", "a member is documented on its line as code is explained",
     append("src/tables/planted.h", "#pragma once\n\nstruct Planted {\n  int width;  // twips\n};\n")),
    ("documents", "a document for engineers names a file that isn't there",
     append("docs/architecture.md", "\nSee `session/planted`.\n")),
    ("lockfiles", "a lockfile says where a package is fetched from",
     replace("hosts/web/package-lock.json", '"integrity":', '"resolved": "somewhere",\n      "integrity":')),
    ("lockfiles", "npm may write addresses into a lockfile",
     replace("hosts/web/.npmrc", "omit-lockfile-registry-resolved=true\n", "")),
    ("scripts", "a script can't be started", append("tools/planted", "#!/usr/bin/env bash\n")),
    ("scripts", "a script of the shell doesn't parse", append("tools/build", "if true; then\n")),
    ("scripts", "a script of the shell splits what it should not", append("tools/build", "rm $1\n")),
    ("scripts", "a script in Python doesn't parse", append("tools/planted.py", "def\n")),
    ("formatting", "a file is laid out in another way",
     append("src/tables/planted.h", "#pragma once\n\ninline  int planted( ) {return 1 ;}\n")),
    ("warnings", "a target compiles without the project's warnings",
     [append("demo/planted/planted.cpp", "int planted() { return 1; }\n"),
      append("demo/CMakeLists.txt", "\nadd_library(planted STATIC planted/planted.cpp)\n")]),
    ("warnings", "a source silences a warning",
     append("src/tables/planted.h", '#pragma once\n#pragma GCC diagnostic ignored "-Wshadow"\n')),
    ("warnings", "a source that no target compiles",
     append("demo/planted/planted.cpp", "int planted() { return 1; }\n")),
    ("pages", "a count is taken for one of 64 bits",
     append("src/tables/planted.cpp", "#include <cstddef>\n#include <cstdint>\n\nnamespace awizo {\n"
            "std::size_t planted(std::uint64_t count) { return count; }\n}  // namespace awizo\n")),
    ("clang-tidy", "a global that can change",
     append("src/tables/planted.cpp", "namespace awizo {\nint planted = 1;\n}  // namespace awizo\n")),
    ("clang-tidy", "a text is copied for nothing",
     append("src/tables/planted.cpp", "#include <string>\n\nnamespace awizo {\n"
            "std::size_t planted(const std::string text) { return text.size(); }\n}  // namespace awizo\n")),
]


def _copy(project, root):
    for name in project.files():
        (root / name).parent.mkdir(parents=True, exist_ok=True)
        shutil.copy2(project.root / name, root / name)
    subprocess.run(["git", "init", "-q"], cwd=root, check=True)


def _failing(root, names):
    """Names of the checks that fail, as tools/check prints them."""
    done = subprocess.run([sys.executable, "tools/check", "--only", *names],
                          cwd=root, capture_output=True, text=True)
    lines = done.stdout.splitlines()
    failing = [line[5:] for line in lines if line.startswith("FAIL ")]
    passed = [line[5:] for line in lines if line.startswith("OK   ")]
    if set(failing + passed) != set(names) or (done.returncode != 0) != bool(failing):
        return ["(no proper answer)", done.stdout + done.stderr]
    return failing


def run(project):
    wrong = 0
    with tempfile.TemporaryDirectory(prefix="awizo-check-") as folder:
        root = pathlib.Path(folder)
        _copy(project, root)
        failing = _failing(root, list(CHECKS))
        if failing:
            print("FAIL before anything is planted:", *failing)
            return 1
        print("OK   nothing planted, nothing found")
        for check, what, plants in BREACHES:
            plants = plants if isinstance(plants, list) else [plants]
            found = _found_with(root, QUICK if check in QUICK else [*QUICK, check], plants)
            good = found == [check]
            wrong += not good
            print(f"{'OK  ' if good else 'FAIL'} {check}: {what}" + ("" if good else f": found {found}"))
            sys.stdout.flush()
    return 1 if wrong else 0


def _found_with(root, names, plants):
    """Plants, checks, and puts everything back."""
    paths = [root / name for name, _ in plants]
    kept = [path.read_bytes() if path.exists() else None for path in paths]
    try:
        for path, (_, plant) in zip(paths, plants):
            path.parent.mkdir(parents=True, exist_ok=True)
            plant(root)
        return _failing(root, names)
    finally:
        for path, content in zip(paths, kept):
            if content is None:
                path.unlink(missing_ok=True)
            else:
                path.write_bytes(content)
