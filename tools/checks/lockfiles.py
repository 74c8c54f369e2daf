"""Lockfiles of npm say what is used, not where one machine has it from."""

import json


def _addresses(value, place):
    """Where the lockfile's packages are said to lie."""
    if isinstance(value, dict):
        for name, held in value.items():
            if name == "resolved":
                yield place
            yield from _addresses(held, name)


def check(project):
    problems = []
    for name in project.files():
        folder, _, file = name.rpartition("/")
        if file == "package-lock.json":
            problems += [f"{name}: says where {place} is fetched from"
                         for place in _addresses(json.loads(project.text(name)), name)]
            settings = project.text(f"{folder}/.npmrc").splitlines()
            if "omit-lockfile-registry-resolved=true" not in settings:
                problems.append(f"{folder}/.npmrc: lets npm write addresses into the lockfile")
    return problems
