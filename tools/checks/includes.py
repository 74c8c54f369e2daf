"""What src/ may name of the standard library, and that no files include each other in a circle."""

import re

# Headers that only compute. Those that reach files, streams, threads, processes or the process's
# own locale are left out: src/ does all of that through the interfaces of src/platform.
STANDARD = set("""
    algorithm any array bit bitset cctype cerrno cfloat charconv chrono cinttypes climits cmath
    compare concepts cstddef cstdint cstdlib cstring cwchar deque exception format forward_list
    functional initializer_list iterator limits list map memory memory_resource new numbers numeric
    optional queue ranges ratio set source_location span stack stdexcept string string_view
    system_error tuple type_traits typeindex typeinfo unordered_map unordered_set utility variant
    vector version
""".split())

# Calls of the C library that reach past the platform's interfaces, written with std:: or without.
CALLS = re.compile(
    r"(?<![\w.>:])(?:std::|::)?(getenv|setenv|system|popen|fork|exec[lv]\w*|exit|abort|quick_exit"
    r"|fopen|freopen|printf|fprintf|puts|setlocale|localtime\w*|gmtime\w*|strftime|signal|atexit|rand"
    r"|srand)\s*\(|\bstd::time\s*\(|\b(?:system|steady|high_resolution|utc)_clock::now\b")
COMMENT_OR_TEXT = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"', re.DOTALL)


def blank(match):
    return "\n" * match[0].count("\n")


def check_standard_only(project):
    problems = []
    files = set(project.files())
    for name in project.sources("src"):
        for include in project.includes(name):
            place = f"{name}:{include.line}"
            if include.quoted and "src/" + include.name not in files:
                problems.append(f'{place}: "{include.name}" is no file of src/ named from there')
            if not include.quoted and include.name not in STANDARD:
                problems.append(f"{place}: <{include.name}> is not for src/")
        code = COMMENT_OR_TEXT.sub(blank, project.text(name))
        for match in CALLS.finditer(code):
            line = code.count("\n", 0, match.start()) + 1
            problems.append(f"{name}:{line}: {match[0].strip()} goes past the platform's interfaces")
    return problems


def check_no_circle(project):
    """Walks the include graph depth first; a file met again on the way down closes a circle."""
    graph = {name: project.included_files(name) for name in project.sources()}
    problems = []
    done = set()

    def walk(name, way):
        if name in way:
            problems.append("circle: " + " -> ".join(way[way.index(name):] + [name]))
            return
        if name in done:
            return
        for included in graph.get(name, []):
            walk(included, way + [name])
        done.add(name)

    for name in graph:
        walk(name, [])
    return problems
