"""Headers compile on their own.

A header that some source includes as its first is proved by the build of that source, and a header beside a source of
its name has to be that source's first. What is left, a quarter of them, is compiled here.
"""

import concurrent.futures
import os
import subprocess
import tempfile

from . import results, source_tree

FLAGS = ["-std=c++20", "-fsyntax-only", "-x", "c++", "-Wall", "-Wextra", "-Wpedantic", "-Wshadow", "-Wconversion",
         "-Werror"]


def check(headers, sources, report):
    names = set(headers)
    proved = set()
    for source in sources:
        first = source_tree.included(source)[:1]
        header = source[:-len(".cpp")] + ".h"
        if header in names and first != [header]:
            report(source, 0, f"does not include {header} first, which would prove that it compiles on its own")
        proved.update(first)
    compiler = source_tree.cross_compiler()
    version = subprocess.run([compiler, "--version"], capture_output=True, text=True).stdout

    def compile_one(name):
        flags = FLAGS + [f"-D{d}" for d in source_tree.defines_of(name)] + source_tree.include_flags()
        key = results.key([name], version, flags)
        lines = results.load("headers", key)
        if lines is None:
            with tempfile.NamedTemporaryFile("w", suffix=".cpp") as unit:
                unit.write(f'#include "{os.path.join(source_tree.ROOT, name)}"\n')
                unit.flush()
                run = subprocess.run([compiler, *flags, unit.name], capture_output=True, text=True)
            lines = run.stderr.splitlines()[:6] if run.returncode else []
            results.keep("headers", key, lines)
        return name, lines

    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for name, lines in pool.map(compile_one, [n for n in headers if n not in proved]):
            if lines:
                report(name, 0, "does not compile on its own:\n    " + "\n    ".join(lines))
