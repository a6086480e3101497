"""clang-tidy over the sources as they compile for Windows.

Most of its time goes into the Windows headers, which every source includes. So sources of one folder are looked at
together, as one unit that includes them one after the other, as long as the names that they keep to themselves
differ. Where a unit does not compile all the same, its halves are tried.
"""

import concurrent.futures
import itertools
import os
import re
import shutil
import subprocess
import tempfile

from . import results, source_tree

MOST_SOURCES = 10  # in a unit; more gain little, and cost much when one of them has changed
OWN_HEADERS = f"^{re.escape(source_tree.ROOT)}/(?!build/)"
FINDING = re.compile(r"^(.+?):(\d+):\d+: (?:warning|error): (.*)$")
NOT_COMPILED = "[clang-diagnostic-error]"


def tool():
    return shutil.which("clang-tidy-14") or shutil.which("clang-tidy")


def flags(name):
    found = ["--target=x86_64-w64-windows-gnu", "-std=c++20", "-w", "-nostdinc++"]
    for path in source_tree.system_includes():
        found += ["-isystem", path]
    for part in ("googletest", "googlemock"):
        found += ["-isystem", f"/usr/src/googletest/{part}/include"]
    # Without the last one, clang takes no address of a function of the system for a constant.
    return found + [f"-D{d}" for d in [*source_tree.defines_of(name), "_KERNEL32_"]] + source_tree.include_flags()


def own_names(name):
    """The names that a source declares at its outermost level, roughly: those that cannot stand in a unit twice."""
    found = set()
    for line in source_tree.read(name).splitlines():
        if line.startswith("#define"):
            found.add(re.split(r"\W", line.split()[1])[0])
        elif match := re.match(r"(?:struct|class|enum(?: class)?|using) (\w+)", line):
            found.add(match[1])
        elif re.match(r"[A-Za-z_]", line) and not line.startswith("namespace"):
            match = re.match(r"[^(={;\[]*?\b(\w+) *[\[(={;]", line)
            if match and not re.fullmatch("[A-Z_]+", match[1]) and "::" not in line.split("(")[0]:
                found.add(match[1])
    return found


def units(sources):
    """The sources in groups that compile together."""
    found = []
    for _, folder in itertools.groupby(sorted(sources, key=lambda n: (os.path.dirname(n), n)), os.path.dirname):
        groups = []
        for name in folder:
            names = own_names(name)
            for group, taken in groups:
                if len(group) < MOST_SOURCES and not taken & names:
                    group.append(name)
                    taken |= names
                    break
            else:
                groups.append(([name], names))
        found += [group for group, _ in groups]
    return found


def look_at(group):
    """The findings in a unit, as lines of "file:line: text"."""
    with tempfile.TemporaryDirectory() as folder:
        unit = os.path.join(folder, "unit.cpp")
        with open(unit, "w", encoding="utf-8") as file:
            file.writelines(f'#include "{os.path.join(source_tree.ROOT, name)}"\n' for name in group)
        run = subprocess.run([tool(), "--quiet", f"--header-filter={OWN_HEADERS}",
                              f"--config-file={source_tree.ROOT}/.clang-tidy", unit, "--", *flags(group[0])],
                             capture_output=True, text=True)
    if NOT_COMPILED in run.stdout and len(group) > 1:
        half = len(group) // 2
        return look_at(group[:half]) + look_at(group[half:])
    lines = []
    for line in run.stdout.splitlines():
        if match := FINDING.match(line):
            lines.append(f"{os.path.relpath(match[1], source_tree.ROOT)}:{match[2]}: {match[3]}")
    if run.returncode and not lines:
        lines.append(f"{group[0]}: clang-tidy failed: {(run.stderr or run.stdout).strip()[-300:]}")
    return lines


def check(sources, report):
    if not tool():
        report("scripts/check", 0, "clang-tidy is missing: scripts/setup check")
        return
    version = subprocess.run([tool(), "--version"], capture_output=True, text=True).stdout
    config = source_tree.read(".clang-tidy")

    def findings(group):
        name = results.key(group, version, config, flags(group[0]))
        lines = results.load("tidy", name)
        if lines is None:
            lines = look_at(group)
            results.keep("tidy", name, lines)
        return lines

    # A header's finding comes with every unit that includes it.
    seen = set()
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for lines in pool.map(findings, units(sources)):
            seen.update(lines)
    for line in sorted(seen):
        report(line, 0, "")
