"""Looks at sources one by one, and remembers those in which nothing was found.

What is remembered is the hash of all that the finding hangs on, in the user's cache folder, so that a
second run, also in another copy of the project, is quick.
"""

import concurrent.futures
import hashlib
import os
import pathlib
import time

from checks.progress import Progress

KEEP_SECONDS = 30 * 24 * 3600


def _cache_folder(name):
    base = os.environ.get("XDG_CACHE_HOME") or pathlib.Path.home() / ".cache"
    folder = pathlib.Path(base) / name
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


def _key(project, name, facts):
    parts = [fact.replace(str(project.root), "") for fact in facts]
    for file in _all_included(project, name):
        parts += [file, project.text(file)]
    return hashlib.sha256("\0".join(parts).encode()).hexdigest()


def problems(project, what, names, facts_of, findings_of):
    """What `findings_of` a name finds in all sources. `facts_of` a name are texts that the finding hangs on besides
    the source and what it includes."""
    cache = _cache_folder(f"awizo-{what}")
    keys = {name: _key(project, name, facts_of(name)) for name in names}
    waiting = [name for name in names if not (cache / keys[name]).exists()]
    for name in set(names) - set(waiting):
        (cache / keys[name]).touch()

    found = set()
    progress = Progress(what, len(waiting))
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for name, lines in zip(waiting, pool.map(findings_of, waiting)):
            progress.step()
            found.update(lines)
            if not lines:
                (cache / keys[name]).touch()
    return sorted(found)
