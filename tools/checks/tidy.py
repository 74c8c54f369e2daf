"""clang-tidy with the checks of .clang-tidy finds nothing."""

import re
import shlex
import subprocess

from checks import clean

FOLDERS = ("src", "adapters", "hosts", "demo")


def _options(project, name):
    """The compiler's options for the file, without those that only GCC knows."""
    words = shlex.split(project.compile_commands()[name][0])
    kept = [word for word in words if word.startswith(("-I", "-D", "-std="))]
    for option in ("-isystem", "-include"):
        for at, word in enumerate(words):
            if word == option and not words[at + 1].endswith("cmake_pch.hxx"):
                kept += [option, words[at + 1]]
    return kept


def _findings(project, name):
    root = re.escape(str(project.root))
    done = subprocess.run(
        ["clang-tidy", "--quiet", "--warnings-as-errors=*",
         f"--header-filter={root}/({'|'.join(FOLDERS)})/", name, "--", *_options(project, name)],
        cwd=project.root, capture_output=True, text=True)
    lines = [line.replace(str(project.root) + "/", "") for line in done.stdout.splitlines()
             if re.search(r": (error|warning): ", line)]
    if done.returncode != 0 and not lines:
        lines = [f"{name}: " + done.stderr.strip()]
    return lines


def check(project):
    version = subprocess.run(["clang-tidy", "--version"], capture_output=True, text=True).stdout
    names = [name for name in project.sources(*FOLDERS) if name in project.compile_commands()]
    return clean.problems(
        project, "clang-tidy", names,
        lambda name: [version, project.text(".clang-tidy"), " ".join(_options(project, name))],
        lambda name: _findings(project, name))
