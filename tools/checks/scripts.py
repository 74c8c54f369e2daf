"""Scripts parse, and shellcheck finds nothing in those of the shell."""

import ast
import subprocess


def check(project):
    problems = []
    shell = []
    for name in project.files():
        text = project.text(name)
        first = text.partition("\n")[0]
        if first.startswith("#!") and not (project.root / name).stat().st_mode & 0o100:
            problems.append(f"{name}: has a #! line but may not be executed")
        if name.endswith(".py") or first.startswith("#!") and "python" in first:
            try:
                ast.parse(text, name)
            except SyntaxError as error:
                problems.append(f"{name}:{error.lineno}: {error.msg}")
        elif name.endswith(".sh") or first.startswith("#!") and "sh" in first:
            done = subprocess.run(["bash", "-n", name], cwd=project.root, capture_output=True, text=True)
            if done.returncode != 0:
                problems += done.stderr.splitlines()
            else:
                shell.append(name)
    if shell:
        done = subprocess.run(["shellcheck", "--format=gcc", *shell],
                              cwd=project.root, capture_output=True, text=True)
        if done.returncode != 0:
            problems += (done.stdout + done.stderr).splitlines()
    return problems
