"""clang-format leaves every file as it is."""

import re
import subprocess


def check(project):
    done = subprocess.run(["clang-format", "--dry-run", "-Werror", *project.sources()],
                          cwd=project.root, capture_output=True, text=True)
    files = sorted(set(re.findall(r"^(\S+?):\d+:\d+: error", done.stderr, re.MULTILINE)))
    if done.returncode != 0 and not files:
        return done.stderr.splitlines()
    return [f"{name}: clang-format -i would change it" for name in files]
