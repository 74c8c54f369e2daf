"""What is compiled for a page as well as for the machine names nothing that a page's compiler lacks.

Its C++ library has no threads, no files, no time zones, and reads no floating numbers in <charconv>.
"""

import re

from checks.includes import COMMENT_OR_TEXT, blank

FOLDERS = ("src", "hosts/protocol", "adapters/libxml2", "adapters/memory")
# The one place where floating numbers are read, in two ways.
READS_FLOATING = "src/platform/floating_text.cpp"
HEADERS = set("""
    atomic barrier condition_variable execution filesystem fstream future latch mutex semaphore
    shared_mutex stop_token syncstream thread
""".split())
LACKING = re.compile(
    r"\bstd::(?:async|jthread|thread|filesystem)\b|\bthread_local\b"
    r"|\b(?:zoned_time|current_zone|locate_zone|get_tzdb)\b")
FROM_CHARS = re.compile(r"\bfrom_chars\s*\([^;]*?,[^;,]*,\s*(\w+)\s*([,)][^;]*)")


def _reads_floating(code, match):
    """Whether a call of from_chars reads a floating number: by its form, or as what it reads is declared."""
    if "chars_format" in match[2]:
        return True
    declared = re.findall(rf"\b(\w+)\s+{match[1]}\s*[;={{,]", code[:match.start()])
    return bool(declared) and declared[-1] in ("double", "float")


def check(project):
    problems = []
    for name in project.sources(*FOLDERS):
        code = COMMENT_OR_TEXT.sub(blank, project.text(name))

        def found(match, words):
            problems.append(f"{name}:{code.count(chr(10), 0, match.start()) + 1}: {words}")

        for include in project.includes(name):
            # What src/ may include at all is another check's.
            if not include.quoted and include.name in HEADERS and not name.startswith("src/"):
                problems.append(f"{name}:{include.line}: a page's compiler has no <{include.name}>")
        for match in LACKING.finditer(code):
            found(match, f"a page's compiler has no {match[0]}")
        for match in FROM_CHARS.finditer(code):
            if name != READS_FLOATING and _reads_floating(code, match):
                found(match, "a page's from_chars reads no floating numbers; readFloating does")
    return problems
