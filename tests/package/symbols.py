"""The shipped files hold no symbols, and the files beside them tell the lines of addresses.

symbols.py TOOL-PREFIX SOURCE_DIR FILE...    (TOOL-PREFIX: of objdump and addr2line, such as x86_64-w64-mingw32-)
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile

TOOLS, SOURCES, MODULES = sys.argv[1], sys.argv[2], sys.argv[3:]
# An exported function of each DLL, in the form of its symbol, and what its definition starts with.
KNOWN = {
    "VantCore.dll": ("_ZN4Vant4InitEv", "Vant::Init()"),
    "VantAfx.dll": ("_ZN6CImage4LoadEPKw", "CImage::Load("),
}


def run(tool, *arguments):
    return subprocess.run([TOOLS + tool, *arguments], capture_output=True, text=True, check=True).stdout


def address(dll, symbol):
    """Where the function is when the DLL is at the place that it was linked for, as a debugger reports it."""
    dump = run("objdump", "-p", dll)
    ordinal = re.search(rf"^\s*\[ *(\d+)\].* {symbol}$", dump.partition("[Ordinal/Name Pointer] Table")[2], re.M)[1]
    offset = re.search(rf"^\s*\[ *{ordinal}\] \+base\[ *\d+\] +(?:[0-9a-f]+ +)?([0-9a-f]+) Export RVA", dump, re.M)[1]
    return int(re.search(r"^ImageBase\s+([0-9a-f]+)", dump, re.M)[1], 16) + int(offset, 16)


def main():
    for module in MODULES:
        sections = run("objdump", "-h", "-t", module)
        assert ".debug_" not in sections and "no symbols" in sections, f"{module} carries symbols"
        assert ".debug_line" in run("objdump", "-h", module + ".debug"), f"{module}.debug has no lines"
        if os.path.basename(module) not in KNOWN:
            continue
        symbol, start = KNOWN[os.path.basename(module)]
        where = hex(address(module, symbol))
        with tempfile.TemporaryDirectory() as folder:  # as an engineer unpacks both archives into one place
            shutil.copy(module, folder)
            shutil.copy(module + ".debug", folder)
            copy = os.path.join(folder, os.path.basename(module))
            for file in (copy + ".debug", copy):
                name, line = run("addr2line", "-f", "-C", "-e", file, where).splitlines()
                path, _, number = line.split(" (")[0].rpartition(":")
                assert name.startswith(start), f"{file}: {where} is in {name}, not in {start}"
                assert not os.path.isabs(path), f"{file}: {path} is a path of the machine that built it"
                with open(os.path.join(SOURCES, path), encoding="utf-8") as source:
                    lines = source.read().splitlines()
                opening = lines[int(number) - 2:int(number)]  # its brace may be a line further down
                assert start in " ".join(opening), f"{file}: {path}:{number} is not {start}"
                print(f"{os.path.basename(file)}: {where} is {name} at {path}:{number}")


main()
