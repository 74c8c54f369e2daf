"""The compiler for pages takes every source of what runs in a page, as it stands, warnings as errors.

Its C++ library isn't the machine's, and its numbers are of 32 bits. What it needs is made where it isn't
there, once, so that nobody learns of it later than of any other error.
"""

import json
import pathlib
import re
import shlex
import subprocess

import last_word
from checks import clean

BUILD = "build/wasm-checks"


def _configure(project):
    """How each source is compiled by itself for a page: file to command. Also the folder of the libraries."""
    root = project.root
    last_word.part(root / "tools/wasm", "--libraries")
    libraries = subprocess.run(
        ["bash", "-c", "source tools/wasm-libraries.sh && wasm_libraries_folder"],
        cwd=root, check=True, capture_output=True, text=True).stdout.strip()
    subprocess.run(
        ["env", f"AWIZO_WASM_LIBRARIES={libraries}", "cmake", "--preset", "wasm", "-B", BUILD, "-D", "AWIZO_JOIN=OFF"],
        cwd=root, check=True, capture_output=True, text=True)
    commands = {}
    for entry in json.loads((root / BUILD / "compile_commands.json").read_text()):
        path = pathlib.Path(entry["file"])
        if path.is_relative_to(root) and not path.is_relative_to(root / "build"):
            commands[str(path.relative_to(root))] = shlex.split(entry["command"])
    return commands, libraries


def _options(command):
    """Without what is written, and without a launcher before the compiler."""
    start = next(at for at, word in enumerate(command) if "clang++" in word)
    words, kept = iter(command[start:]), []
    for word in words:
        if word in ("-o", "-MT", "-MF"):
            next(words)
        elif word not in ("-c", "-MD"):
            kept.append(word)
    return kept


def _findings(project, command):
    done = subprocess.run([*_options(command), "-fsyntax-only"], cwd=project.root / BUILD, capture_output=True, text=True)
    lines = [line for line in done.stderr.splitlines() if re.search(r": (fatal )?error: ", line)]
    if done.returncode != 0 and not lines:
        lines = [done.stderr.strip()]
    return [re.sub(r"^(\.\./)+", "", line.replace(f"{project.root}/", "")) for line in lines]


def check(project):
    commands, libraries = _configure(project)
    return clean.problems(
        project, "pages", sorted(commands),
        lambda name: [pathlib.Path(libraries).name, " ".join(_options(commands[name]))],
        lambda name: _findings(project, commands[name]))
