#!/usr/bin/env python3
"""Writes the user guide for pages: guide.html in the folder, and the pictures that it shows.

usage: write_guide.py GUIDE.md FOLDER
"""

import pathlib
import re
import shutil
import struct
import subprocess
import sys

PICTURE = re.compile(r'<img src="([^"]+)"')
PAGE = """<!DOCTYPE html>
<html lang="ru">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>{title}</title>
</head>
<body>
{text}</body>
</html>
"""


def main(guide, folder):
    guide, folder = pathlib.Path(guide), pathlib.Path(folder)

    def copy_sized(match):
        name = match[1]
        source = guide.parent / name
        (folder / name).parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(source, folder / name)
        width, height = struct.unpack(">II", source.read_bytes()[16:24])  # where every PNG has them
        # The browser leaves room for it before it is there.
        return f'{match[0]} width="{width}" height="{height}"'

    text = subprocess.run(["cmark-gfm", "-e", "table", str(guide)], check=True, capture_output=True, text=True).stdout
    title = re.search("<h1>(.*)</h1>", text)[1]
    folder.mkdir(parents=True, exist_ok=True)
    page = PAGE.format(title=title, text=PICTURE.sub(copy_sized, text))
    (folder / "guide.html").write_text(page, encoding="utf-8")


if __name__ == "__main__":
    main(*sys.argv[1:])
