"""clang-tidy with the checks of .clang-tidy finds nothing.

A file that was found clean is remembered by the hash of all that the finding hangs on, in the
user's cache folder, so that a second run, also in another copy of the project, is quick.
"""

import concurrent.futures
import hashlib
import os
import pathlib
import re
import shlex
import subprocess
import time

from checks.progress import Progress

FOLDERS = ("src", "adapters", "hosts", "demo")
KEEP_SECONDS = 30 * 24 * 3600


def _cache_folder():
    base = os.environ.get("XDG_CACHE_HOME") or pathlib.Path.home() / ".cache"
    folder = pathlib.Path(base) / "awizo-clang-tidy"
    folder.mkdir(parents=True, exist_ok=True)
    for entry in folder.iterdir():
        if time.time() - entry.stat().st_mtime > KEEP_SECONDS:
            entry.unlink(missing_ok=True)
    return folder


def _all_included(project, name):
    found, waiting = set(), [name]
    while waiting:
        file = waiting.pop()
        if file not in found:
            found.add(file)
            waiting += project.included_files(file)
    return sorted(found)


def _key(project, name, version):
    options = " ".join(_options(project, name)).replace(str(project.root), "")
    parts = [version, project.text(".clang-tidy"), options]
    for file in _all_included(project, name):
        parts += [file, project.text(file)]
    return hashlib.sha256("\0".join(parts).encode()).hexdigest()


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
    cache = _cache_folder()
    names = [name for name in project.sources(*FOLDERS) if name in project.compile_commands()]
    keys = {name: _key(project, name, version) for name in names}
    waiting = [name for name in names if not (cache / keys[name]).exists()]
    for name in set(names) - set(waiting):
        (cache / keys[name]).touch()

    problems = set()
    progress = Progress("clang-tidy", len(waiting))
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for name, found in zip(waiting, pool.map(lambda n: _findings(project, n), waiting)):
            progress.step()
            problems.update(found)
            if not found:
                (cache / keys[name]).touch()
    return sorted(problems)
