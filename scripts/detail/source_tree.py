"""The files of the tree, what they include, and the flags with which they compile for Windows."""

import functools
import os
import re
import shutil
import subprocess

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))

# The library's folders. What each may include stands in its README.md, in the line that starts "Includes:".
LIBRARY = ["core", "platform", "values", "settings", "controls", "windows", "display", "colour", "geo", "time", "media",
           "resources"]
DEFINES = ["_WIN32_WINNT=0x0A00", "NTDDI_VERSION=0x0A000000", "NOMINMAX", "UNICODE", "_UNICODE", "_AFXDLL",
           "__USE_MINGW_ANSI_STDIO=0", "VANT_BUILDING_DLL"]
INCLUDE_PATH = ["", "afx/include", "afx/src", "tests"]
INCLUDE = re.compile(r'^\s*#\s*include\s+["<]([^">]+)[">]', re.M)


def tracked():
    """The names of all files that belong to the tree, sorted."""
    git = subprocess.run(["git", "-c", f"safe.directory={ROOT}", "ls-files", "-z", "--cached", "--others",
                          "--exclude-standard"], cwd=ROOT, capture_output=True)
    if git.returncode == 0:
        names = [n for n in git.stdout.decode().split("\0") if n]
    else:  # an unpacked archive
        names = [os.path.relpath(os.path.join(d, f), ROOT) for d, _, fs in os.walk(ROOT) for f in fs
                 if "/build" not in d and "/.git" not in d and "/out" not in d]
    return sorted(n for n in names if os.path.isfile(os.path.join(ROOT, n)))


@functools.cache
def read(name):
    with open(os.path.join(ROOT, name), encoding="utf-8", errors="replace") as file:
        return file.read()


@functools.cache
def included(name):
    """The files of the tree that a file includes itself, in its order."""
    found = []
    for written in INCLUDE.findall(read(name)):
        for folder in [os.path.dirname(name), *INCLUDE_PATH]:
            path = os.path.normpath(os.path.join(folder, written))
            if os.path.isfile(os.path.join(ROOT, path)):
                found.append(path)
                break
    return found


def closure(names):
    """These files and every file of the tree that they include, directly or not, sorted."""
    seen = set()
    waiting = list(names)
    while waiting:
        name = waiting.pop()
        if name not in seen:
            seen.add(name)
            waiting += included(name)
    return sorted(seen)


@functools.cache
def cross_compiler():
    return shutil.which("x86_64-w64-mingw32-g++-posix") or shutil.which("g++")


@functools.cache
def system_includes():
    """Where the cross-compiler looks for C++ and Windows headers; its own built-in ones, which another compiler
    replaces by its own, are left out."""
    run = subprocess.run([cross_compiler(), "-v", "-x", "c++", "-E", os.devnull], capture_output=True, text=True)
    listed = run.stderr.split("#include <...> search starts here:")[1].split("End of search list")[0].split()
    return [os.path.normpath(path) for path in listed if "c++" in path or "/lib/gcc/" not in os.path.normpath(path)]


def defines_of(name):
    ours = ["VANTAFX_BUILDING_DLL"] if name.startswith("afx/") else []
    if name.startswith("platform/"):
        ours.append('VANT_VERSION_TEXT=L""')  # the build puts the version there
    return DEFINES + ours


def include_flags():
    return [f"-I{os.path.join(ROOT, folder)}" for folder in INCLUDE_PATH]
