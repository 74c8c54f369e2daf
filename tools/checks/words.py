"""Words that nothing in the project may say: it explains its rules itself, in its own words."""

import re

FORBIDDEN = [
    (re.compile(r"\bspec(ification)?s?\b", re.IGNORECASE), "give the rule itself"),
    (re.compile(r"\bParts? [0-9]+\.[0-9]+"), "give the rule itself"),
    (re.compile(r"\bissues? #?[0-9]+", re.IGNORECASE), "give the reason itself"),
    # The folders of /home/anna are anybody's.
    (re.compile(r"(?<![\w/])/(home/(?!anna\b)|mnt/|srv/|[w]ork/)\w"), "a path of one machine"),
]


def check(project):
    problems = []
    for name in project.files():
        for pattern, advice in FORBIDDEN:
            if pattern.search(name):
                problems.append(f"{name}: the file's name; {advice}")
        for number, line in enumerate(project.text(name).splitlines(), 1):
            for pattern, advice in FORBIDDEN:
                match = pattern.search(line)
                if match:
                    problems.append(f'{name}:{number}: "{match[0]}"; {advice}')
    return problems
