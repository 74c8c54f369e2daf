"""The one-token changes that can be made in a C++ file laid out by clang-format."""

import collections
import re

# `start` and `end`: what `new` replaces, in the text as it is.
Change = collections.namedtuple("Change", "file kind start end new")

# What is no code: comments, texts, characters, lines of the preprocessor.
NO_CODE = re.compile(r"""//[^\n]*|/\*.*?\*/|R"(\w*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|'(?:\\.|[^'\\\n])'|"""
                     r"""^[ \t]*\#[^\n]*""", re.DOTALL | re.MULTILINE)

# Spaces are around an operator of two sides, and none around a template's or a reference's sign.
TOKENS = {
    "relation": {" < ": " <= ", " <= ": " < ", " > ": " >= ", " >= ": " > ", " == ": " != ", " != ": " == "},
    "logic": {" && ": " || ", " || ": " && "},
    "arithmetic": {" + ": " - ", " - ": " + ", " * ": " + ", " / ": " * ", " % ": " / ", " += ": " -= ",
                   " -= ": " += ", "++": "--", "--": "++"},
    "truth": {"true": "false", "false": "true"},
}
NUMBER = re.compile(r"(?<![\w.'])\d+(?![\w.'])")
CONDITION = re.compile(r"\b(?:if|while) \(")
SWAPPED = re.compile(r"(?<=\()(\w[\w.]*), (\w[\w.]*)(?=\))")
# A call, an assignment or a step that fills its line. A declaration has two words before its sign.
STATEMENT = re.compile(r"(?<=[;{}]\n)[ ]+[\w:.>()\[\]-]+(?:\(.*\)| [+*/-]?= .*|\+\+|--);(?=\n)")


def code_of(text):
    """The text with spaces for what is no code, so that all keeps its place."""
    return NO_CODE.sub(lambda match: re.sub(r"[^\n]", " ", match[0]), text)


def behind_bracket(code, start):
    """Where the bracket ends that is open before `start`."""
    depth = 1
    while depth > 0:
        depth += {"(": 1, ")": -1}.get(code[start], 0)
        start += 1
    return start - 1


def found_in(code):
    """Each change as (kind, start, end, new)."""
    for kind, tokens in TOKENS.items():
        signs = "|".join(re.escape(token) for token in tokens)
        pattern = rf"\b(?:{signs})\b" if kind == "truth" else rf"(?:{signs})"
        for match in re.finditer(pattern, code):
            yield kind, *match.span(), tokens[match[0]]
    for match in NUMBER.finditer(code):
        yield "constant", *match.span(), str(int(match[0]) + 1)
        if int(match[0]) > 0:
            yield "constant", *match.span(), str(int(match[0]) - 1)
    for match in CONDITION.finditer(code):
        end = behind_bracket(code, match.end())
        # What a condition declares stays outside.
        start = max(match.end(), code.rfind("; ", match.end(), end) + 2)
        yield "condition", start, end, None
    for match in SWAPPED.finditer(code):
        if match[1] != match[2]:
            yield "arguments", *match.span(), f"{match[2]}, {match[1]}"
    for match in STATEMENT.finditer(code):
        if not match[0].split()[0].startswith(("return", "using")):
            yield "statement", *match.span(), ""


def changes_of(file, text):
    """All changes that can be made in this text."""
    made = []
    for kind, start, end, new in found_in(code_of(text)):
        if kind == "condition":
            new = f"!({text[start:end]})"
        made.append(Change(file, kind, start, end, new))
    return made


def changed(text, change):
    return text[:change.start] + change.new + text[change.end:]
