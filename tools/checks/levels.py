"""The modules of src/ are in the order that src/README.md shows, and use only what is below."""

import re

ROW = re.compile(r"^\| `(\w+)` \| `([\w/]+)` \|([^|]*)\|", re.MULTILINE)
ARROW = re.compile(r"^ *(\w+) --> (\w+)$", re.MULTILINE)
COMMAND = re.compile(r"^\s*(\w+)\s*\(([^)]*)\)", re.MULTILINE)


class Module:
    def __init__(self, name, folder, links):
        self.name = name
        self.folder = folder
        self.links = links


def shown_modules(project):
    """The modules as the table of src/README.md lists them, bottom first."""
    return [Module(name, "src/" + folder, re.findall(r"`(\w+)`", links))
            for name, folder, links in ROW.findall(project.text("src/README.md"))]


def commands(project, name):
    text = re.sub(r"#[^\n]*", "", project.text(name))
    return [(match[1], match[2].split()) for match in COMMAND.finditer(text)]


def built_modules(project, folder="src"):
    """The modules as CMake builds them, in the order in which it meets them."""
    found = []
    for command, words in commands(project, folder + "/CMakeLists.txt"):
        if command == "awizo_module":
            found.append(Module(words[0], folder, words[2:]))
        elif command == "add_subdirectory":
            found += built_modules(project, f"{folder}/{words[0]}")
    return found


def check_levels(project):
    shown, built = shown_modules(project), built_modules(project)
    problems = []
    if [(m.name, m.folder) for m in shown] != [(m.name, m.folder) for m in built]:
        problems.append("src/README.md and the CMakeLists.txt files differ in modules or their order: "
                        f"{' '.join(m.name for m in shown)} / {' '.join(m.name for m in built)}")
    links = {module.name: module.links for module in built}
    below = set()
    for module in shown:
        if sorted(module.links) != sorted(links.get(module.name, [])):
            problems.append(f"{module.name}: src/README.md lets it use {module.links}, "
                            f"it links {links.get(module.name)}")
        for link in module.links:
            if link not in below:
                problems.append(f"{module.name}: {link} is not below it")
        below.add(module.name)
    arrows = set(ARROW.findall(project.text("src/README.md")))
    for one, other in sorted(arrows ^ {(m.name, link) for m in shown for link in m.links}):
        problems.append(f"src/README.md: the table and the picture differ about {one} --> {other}")
    return problems + _include_problems(project, shown) + _outer_problems(project)


def _usable(module, by_name):
    """The module, what it links, and what these may use."""
    found, waiting = set(), [module.name]
    while waiting:
        name = waiting.pop()
        if name not in found and name in by_name:
            found.add(name)
            waiting += by_name[name].links
    return found


def _include_problems(project, modules):
    by_name = {module.name: module for module in modules}
    by_folder = {module.folder: module for module in modules}
    problems = []
    for name in project.sources("src"):
        module = by_folder.get(name.rpartition("/")[0])
        if module is None:
            problems.append(f"{name}: stands in the folder of no module")
            continue
        usable = _usable(module, by_name)
        for included in project.included_files(name):
            other = by_folder.get(included.rpartition("/")[0])
            if other is None or other.name not in usable:
                problems.append(f"{name}: {module.name} may not include {included}")
    return problems


def _outer_problems(project):
    """An adapter knows src/platform and itself, nothing else of the project."""
    problems = []
    for name in project.sources("adapters"):
        own = "/".join(name.split("/")[:2]) + "/"
        for included in project.included_files(name):
            if not included.startswith(("src/platform/", own)):
                problems.append(f"{name}: an adapter may not include {included}")
    return problems


def check_links(project):
    """src/ builds its modules with awizo_module alone, and these link modules of src/ alone."""
    names = {module.name for module in built_modules(project)}
    problems = []
    for name in project.files():
        if not name.startswith("src/") or not name.endswith(("CMakeLists.txt", ".cmake")):
            continue
        for command, words in commands(project, name):
            if command not in ("awizo_module", "add_subdirectory"):
                problems.append(f"{name}: {command}() has no place in src/")
            elif command == "awizo_module":
                if words[1:2] not in ([], ["LINKS"]):
                    problems.append(f"{name}: awizo_module takes a name and LINKS")
                problems += [f"{name}: {words[0]} links {link}, which is no module of src/"
                             for link in words[2:] if link not in names]
    return problems
