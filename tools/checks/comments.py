"""`///` documents one declaration; `//` explains code or heads a group of declarations."""

import re

LITERAL_OR_COMMENT = re.compile(
    r'//[^\n]*|\bR"(?P<end>[^(\s]*)\(.*?\)(?P=end)"|"(?:\\.|[^"\\\n])*"|(?<!\w)\'(?:\\.|[^\'\\\n])+\'', re.DOTALL)
DIRECTIVE = re.compile(r"^[ \t]*#(?:\\\n|.)*", re.MULTILINE)
TEMPLATE = re.compile(r"\btemplate <(?:[^<>]|<[^<>]*>)*>")
DECLARING = re.compile(r'(extern ""|(inline )?namespace\b|(class|struct|union|enum)\b[^(=]*$)')
# Lines of a class that end without a semicolon.
COMPLETE = re.compile(r"((public|private|protected)( slots)?|signals):|Q_\w+(\(.*\))?")
# What speaks to other tools, or says which scope ends.
MARK = re.compile(r"//(.*NOLINT|\s*(clang-format|namespace\b|extern\b|$))")


class Line:
    """A line's code and comment, how deep it is in brackets, and whether a declaration can begin on it."""

    def __init__(self, text, depth, declares):
        self.code, slashes, comment = text.partition("//")
        self.comment = slashes + comment
        self.depth = depth
        self.declares = declares


def _without_texts(text):
    """The same lines, their texts emptied, their directives gone."""
    def emptied(found):
        return found[0] if found[0].startswith("//") else '""' + "\n" * found[0].count("\n")
    def gone(found):
        return "\n" * found[0].count("\n")
    return DIRECTIVE.sub(gone, LITERAL_OR_COMMENT.sub(emptied, text))


def lines_of(text):
    scopes, statement, lines = ["declarations"], "", []
    for piece in _without_texts(text).split("\n"):
        line = Line(piece, len(scopes), scopes[-1] != "code" and not statement.strip())
        lines.append(line)
        for sign in line.code + " ":
            if sign in "{([":
                declares = sign == "{" and DECLARING.match(TEMPLATE.sub("", statement).strip())
                inside = "enum" if "enum " in statement else "declarations"
                scopes.append(inside if declares else "code")
            elif sign in "})]":
                scopes.pop()
            if sign in ";{}" or sign == "," and scopes[-1] == "enum":
                statement = ""
            else:
                statement += sign
        if COMPLETE.fullmatch(statement.strip()):
            statement = ""
    return lines


def _heads_group(lines, first):
    """Whether a second declaration follows the one on line `first` at once."""
    last = next((place for place in range(first + 1, len(lines))
                 if lines[place].depth <= lines[first].depth and lines[place].declares), None)
    return last is not None and bool(lines[last].code.strip()) and "}" not in lines[last].code.split("{")[0]


def problems_in(text):
    """(line, what is wrong with its comment), from 1."""
    lines = lines_of(text)
    for place, line in enumerate(lines):
        if not line.comment or MARK.match(line.comment):
            continue
        documents = line.comment.startswith("///")
        if line.code.strip():
            if line.comment.startswith("///<") != line.declares:
                yield place + 1, "`///<` documents what is declared on its line, `//` explains code"
            continue
        below = next(number for number in range(place + 1, len(lines))
                     if lines[number].code.strip() or not lines[number].comment
                     or lines[number].comment.startswith("///") != documents)
        declared = (line.declares and bool(lines[below].code.strip() or lines[below].comment)
                    and not lines[below].code.strip().startswith("}"))
        if documents and not declared:
            yield place + 1, "nothing is declared here: write `//`"
        if not documents and declared and not _heads_group(lines, below):
            yield place + 1, "write `///` for the one thing declared here"


def check(project):
    return [f"{name}:{number}: {problem}"
            for name in project.sources() for number, problem in problems_in(project.text(name))]
