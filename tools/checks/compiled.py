"""Every source is compiled, and with warnings as errors."""

import re
import shlex

REQUIRED = {"-Wall", "-Wextra", "-Wpedantic", "-Wshadow", "-Wconversion", "-Werror", "-std=c++20"}
# What GCC 12 says wrongly of its own std::string when it optimises.
ALLOWED = {"-Wno-restrict", "-Wno-stringop-overflow"}
SILENCED = re.compile(r"#\s*pragma\s+\w+\s+diagnostic\s+ignored|#\s*pragma\s+GCC\s+system_header")


def check(project):
    commands = project.compile_commands()
    problems = []
    for name in project.sources():
        match = SILENCED.search(project.text(name))
        if match:
            problems.append(f"{name}: silences a warning ({match[0]})")
        if not name.endswith(".cpp"):
            continue
        if name not in commands:
            problems.append(f"{name}: no target compiles it")
        for command in commands.get(name, []):
            options = set(shlex.split(command))
            missing = REQUIRED - options
            if missing:
                problems.append(f"{name}: compiled without {' '.join(sorted(missing))}")
            weakened = {option for option in options if option.startswith(("-w", "-Wno-"))} - ALLOWED
            if weakened:
                problems.append(f"{name}: compiled with {' '.join(sorted(weakened))}")
    return problems
