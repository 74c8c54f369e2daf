#!/usr/bin/env python3
"""Writes the words that the hosts show beside the models as TypeScript: one source for all hosts.

usage: write_words.py HEADER FILE.ts
"""

import pathlib
import re
import sys

CONSTANT = re.compile(r'inline constexpr std::string_view (\w+) =\s*((?:"(?:\\.|[^"\\])*"\s*)+);')
LITERAL = re.compile(r'"((?:\\.|[^"\\])*)"')


def main(header, target):
    text = pathlib.Path(header).read_text(encoding="utf-8")
    lines = [f'export const {name} = "{"".join(LITERAL.findall(literals))}";\n'
             for name, literals in CONSTANT.findall(text)]
    if len(lines) != text.count("inline constexpr"):
        sys.exit(f"{sys.argv[0]}: {header} holds a constant that is no plain text; mend this script.")
    pathlib.Path(target).write_text("".join(lines), encoding="utf-8")


if __name__ == "__main__":
    main(*sys.argv[1:])
