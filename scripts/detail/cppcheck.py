"""cppcheck over the library, the demonstration, the examples, the benchmarks and the fuzzers.

It keeps its own results by content below build/check/cppcheck. What it is wrong about, or what is deliberate, stands
with its reason in scripts/cppcheck.txt.
"""

import os
import re
import shutil
import subprocess

from . import results, source_tree


def check(sources, report):
    tool = shutil.which("cppcheck")
    if not tool:
        report("scripts/check", 0, "cppcheck is missing: scripts/setup check")
        return
    folder = os.path.join(results.FOLDER, "cppcheck")
    os.makedirs(folder, exist_ok=True)
    names = os.path.join(results.FOLDER, "cppcheck.files")
    with open(names, "w", encoding="utf-8") as file:
        file.write("\n".join(sources))
    options = ["--quiet", f"-j{os.cpu_count()}", "--std=c++20", "--language=c++", "--platform=win64",
               "--enable=warning,performance,portability", "--library=windows", "--library=mfc", "--library=opengl",
               f"--cppcheck-build-dir={folder}", "--suppressions-list=scripts/cppcheck.txt", f"--file-list={names}",
               "--template={file}:{line}: {message} [{id}]"]
    defines = [f"-D{d}" for d in source_tree.DEFINES + ["_WIN32", "_WIN64"]]
    paths = ["-I.", "-Iafx/include", "-Iafx/src"]
    run = subprocess.run([tool, *options, *defines, *paths], cwd=source_tree.ROOT, capture_output=True, text=True)
    lines = [line for line in run.stderr.splitlines() if re.match(r"\S+:\d+: ", line)]
    for line in sorted(set(lines)):
        report(line, 0, "")
    if run.returncode or (run.stderr.strip() and not lines):
        report("scripts/check", 0, f"cppcheck failed: {(run.stderr or run.stdout).strip()[-300:]}")
