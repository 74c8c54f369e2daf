"""What the documents for engineers name in backticks as a path of the project is there."""

import re

DOCUMENTS = ["README.md", "CONTRIBUTING.md", "src/README.md", "docs/architecture.md", "docs/integration.md"]
PATH = re.compile(r"`([a-z_]+(?:/[\w.-]+)+)/?`")
# From where a path may be meant.
STARTS = ["", "src/"]
MADE = ("build/", "application/")


def check(project):
    known = set()
    for name in project.files():
        parts = name.split("/")
        folders = {"/".join(parts[:depth]) for depth in range(1, len(parts))}
        known |= folders | {name, name.rpartition(".")[0]}
    problems = []
    for document in DOCUMENTS:
        for number, line in enumerate(project.text(document).splitlines(), 1):
            for path in PATH.findall(line):
                if not path.startswith(MADE) and not any(start + path in known for start in STARTS):
                    problems.append(f"{document}:{number}: there is no `{path}`")
    return problems
