"""The project's files and how they include each other."""

import json
import pathlib
import re
import subprocess
import sys

import last_word

INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(<([^>\n]+)>|"([^"\n]+)")', re.MULTILINE)


class Include:
    """One include line: what it names, in quotes or in angle brackets, and where it is."""

    def __init__(self, match, text):
        self.name = match[2] or match[3]
        self.quoted = match[3] is not None
        self.line = text.count("\n", 0, match.start()) + 1


class Project:
    def __init__(self, root):
        self.root = pathlib.Path(root)
        self._files = None
        self._known = None
        self._texts = {}
        self._commands = None

    def files(self):
        """Paths, from the root, of all files that are or may become part of the history."""
        if self._files is None:
            listed = subprocess.run(
                ["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
                cwd=self.root, check=True, capture_output=True, text=True).stdout
            names = sorted(set(listed.split("\0")) - {""})
            self._files = [name for name in names if (self.root / name).is_file()]
        return self._files

    def sources(self, *folders):
        """The C++ files, of these folders if any are named."""
        starts = tuple(folder + "/" for folder in folders)
        return [name for name in self.files()
                if name.endswith((".cpp", ".h")) and (not starts or name.startswith(starts))]

    def text(self, name):
        """The file's text; empty for one that isn't text."""
        if name not in self._texts:
            try:
                self._texts[name] = (self.root / name).read_text(encoding="utf-8")
            except UnicodeDecodeError:
                self._texts[name] = ""
        return self._texts[name]

    def includes(self, name):
        text = self.text(name)
        return [Include(match, text) for match in INCLUDE.finditer(text)]

    def included_files(self, name):
        """The project's own files that the file includes."""
        if self._known is None:
            self._known = set(self.files())
        folder = str(pathlib.PurePosixPath(name).parent)
        found = []
        for include in self.includes(name):
            for start in ("src/", "", "tests/", folder + "/"):
                if start + include.name in self._known:
                    found.append(start + include.name)
                    break
        return found

    def compile_commands(self):
        """How each of the project's files is compiled by itself: file to commands, one a target."""
        if self._commands is None:
            done = subprocess.run(["cmake", "--preset", "checks"], cwd=self.root,
                                  capture_output=True, text=True)
            if done.returncode != 0:
                print(done.stderr, file=sys.stderr)
                last_word.fail("CMake could not configure the project; the first error above says why.")
            entries = json.loads((self.root / "build/checks/compile_commands.json").read_text())
            self._commands = {}
            for entry in entries:
                path = pathlib.Path(entry["file"])
                if path.is_relative_to(self.root):
                    name = str(path.relative_to(self.root))
                    if not name.startswith("build/"):
                        self._commands.setdefault(name, []).append(entry["command"])
        return self._commands
