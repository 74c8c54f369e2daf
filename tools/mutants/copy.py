"""A copy of the project, built without optimisation, with its test programs."""

import os
import pathlib
import re
import resource
import subprocess

import last_word

LIBRARY = re.compile(r"^(src/\S+)/libawizo_\w+\.a$", re.MULTILINE)


class Copy:
    """Lies under build/mutate, and is brought up to date from the project each time."""

    def __init__(self, project, tests):
        self.root = project.root / "build/mutate/project"
        self.build = project.root / "build/mutate/build"
        self._log = project.root / "build/mutate/log.txt"
        self._update(project)
        self._run(["cmake", "-S", self.root, "-B", self.build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug",
                   "-DCMAKE_CXX_FLAGS=-w", "-DCMAKE_CXX_FLAGS_DEBUG=-O0",
                   "-DAWIZO_JOIN=OFF", "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=gold"],
                  "the copy could not be configured")
        self._libraries = self._libraries_of_tests(tests)

    def _update(self, project):
        names = set(project.files())
        for path in self.root.rglob("*"):
            if path.is_file() and str(path.relative_to(self.root)) not in names:
                path.unlink()
        for name in names:
            source, target = project.root / name, self.root / name
            # What is the same keeps its time, so that it needn't be built again.
            if not target.is_file() or target.read_bytes() != source.read_bytes():
                target.parent.mkdir(parents=True, exist_ok=True)
                target.write_bytes(source.read_bytes())
                target.chmod(source.stat().st_mode)

    def _run(self, command, failure=None, seconds=resource.RLIM_INFINITY, environment=()):
        """Whether the command ended well; each of its processes may use so many seconds of the
        processor. If `failure` is given, all ends with it where it didn't."""
        def limited():
            resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds))

        with self._log.open("w") as log:
            done = subprocess.run(command, stdin=subprocess.DEVNULL, stdout=log, stderr=log,
                                  preexec_fn=limited, env=os.environ | dict(environment))
        if failure and done.returncode != 0:
            last_word.fail(f"{failure}; {self._log} says why. Mend it, then call again.")
        return done.returncode == 0

    def _libraries_of_tests(self, tests):
        """The test programs, and for each the folders of src/ whose libraries it links."""
        listed = subprocess.run(["ninja", "-C", self.build, "-t", "targets", "all"], check=True,
                                capture_output=True, text=True).stdout
        libraries = {}
        for target in re.findall(r"^(tests/\S+_tests): ", listed, re.MULTILINE):
            if re.search(tests, target):
                inputs = subprocess.run(["ninja", "-C", self.build, "-t", "inputs", target], check=True,
                                        capture_output=True, text=True).stdout
                libraries[target] = set(LIBRARY.findall(inputs))
        return libraries

    def programs_for(self, file):
        """The test programs that link the file's module, the nearest first: those that link least."""
        folder = str(pathlib.PurePosixPath(file).parent)
        found = [program for program, folders in self._libraries.items() if folder in folders]
        mirrors = folder.rpartition("/")[2]
        return sorted(found, key=lambda program: (program.split("/")[1] != mirrors,
                                                  len(self._libraries[program]), program))

    def builds(self, programs, with_cache=False):
        environment = {} if with_cache else {"CCACHE_DISABLE": "1"}
        return self._run(["cmake", "--build", self.build, "--target", *programs],
                         environment=environment)

    def passes(self, program, seconds):
        """Whether the test program passes. One that doesn't end fails: by the time of the processor,
        which other work on the machine doesn't use up, or where it only waits, by the clock."""
        name = re.escape(pathlib.PurePosixPath(program).name)
        return self._run(["ctest", "--test-dir", self.build, "-R", f"^{name}$", "--fixture-exclude-any", ".",
                          "--no-tests=error", "--timeout", str(10 * seconds)], seconds=seconds)
