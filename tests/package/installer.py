"""Builds the installer, runs it without questions, looks at what came of it, and has it removed again.

installer.py WORK_DIR CPACK CPACK_CONFIG EMULATOR...
"""

import glob
import os
import shutil
import subprocess
import sys
import time

WORK, CPACK, CONFIG, EMULATOR = sys.argv[1], sys.argv[2], sys.argv[3], sys.argv[4:]
TARGET = os.path.join(WORK, "VantCore there")
UNINSTALL = r"HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall\VantCore"
CMAKE = r"HKLM\Software\Kitware\CMake\Packages\VantCore"
START_MENU = r"C:\ProgramData\Microsoft\Windows\Start Menu\Programs\VantCore"


def run(*command):
    return subprocess.run([*EMULATOR, *command], capture_output=True, text=True, timeout=240)


def windows(path):
    return "Z:" + path.replace("/", "\\")


def registry(key):
    query = run("reg", "query", key)
    values = [line.split(None, 2) for line in query.stdout.splitlines() if line.startswith("    ")]
    return {value[0]: value[2].strip() for value in values if len(value) == 3} if query.returncode == 0 else None


def start_menu():
    listing = run("cmd", "/c", "dir", "/b", START_MENU)
    return sorted(listing.stdout.split("\n")) if listing.returncode == 0 else []


def tree(folder):
    return sorted(os.path.relpath(os.path.join(d, f), folder) for d, _, fs in os.walk(folder) for f in fs)


def build():
    shutil.rmtree(WORK, ignore_errors=True)
    cpack = subprocess.run([CPACK, "--config", CONFIG, "-G", "NSIS", "-B", WORK], capture_output=True, text=True)
    assert cpack.returncode == 0, f"the installer cannot be built: {cpack.stdout}{cpack.stderr}"
    return glob.glob(os.path.join(WORK, "VantCore-*-setup.exe"))[0]


def install(setup):
    # The folder comes last and unquoted, blanks and all.
    setup = run(windows(setup), "/S", *f"/D={windows(TARGET)}".split(" "))
    assert setup.returncode == 0, f"the installer ended with {setup.returncode}: {setup.stdout}{setup.stderr}"


def uninstall():
    run(windows(os.path.join(TARGET, "Uninstall.exe")), "/S")
    # It goes on from a copy of itself, as it could not remove its own file otherwise.
    for _ in range(300):
        if not os.path.exists(os.path.join(TARGET, "Uninstall.exe")) and registry(UNINSTALL) is None:
            return
        time.sleep(0.1)
    raise AssertionError("the uninstaller does not end")


def main():
    setup = build()
    assert registry(UNINSTALL) is None and not os.path.exists(TARGET), "something is installed already"
    install(setup)
    files = tree(TARGET)
    for expected in ("bin/VantCore.dll", "bin/VantDemo.exe", "bin/data/survey.nmea", "include/VantCore/VantCore.h",
                     "lib/cmake/VantCore/VantCoreConfig.cmake", "share/VantCore/clt/depths.clt", "Uninstall.exe",
                     "examples/hello/CMakeLists.txt", "docs/windows.md", "README.md"):
        assert expected in files, f"{expected} was not installed"
    entry = registry(UNINSTALL)
    print(entry)
    assert entry["DisplayName"].startswith("VantCore 2."), entry
    assert entry["InstallLocation"] == windows(TARGET), entry
    size = sum(os.path.getsize(os.path.join(TARGET, f)) for f in files) / 1024
    assert abs(int(entry["EstimatedSize"], 16) - size) < 0.05 * size, f"{entry['EstimatedSize']} is not {size} KiB"
    assert registry(CMAKE) == {"installed": windows(TARGET) + r"\lib\cmake\VantCore"}, registry(CMAKE)
    assert "VantDemo.lnk" in start_menu(), start_menu()

    # Again over itself: what is no longer part of it goes, what is the user's stays.
    own = os.path.join(TARGET, "examples", "own.cpp")
    open(own, "w").close()
    install(setup)
    assert tree(TARGET) == sorted([*files, "examples/own.cpp"]), "installing twice is not the same as once"

    uninstall()
    assert tree(TARGET) == ["examples/own.cpp"], f"files were left, or too many removed: {tree(TARGET)}"
    os.remove(own)
    install(setup)
    uninstall()
    assert not os.path.exists(TARGET), f"the folder was left: {os.listdir(TARGET)}"
    assert registry(CMAKE) is None and not start_menu(), "the registry or the start menu still know it"


try:
    main()
except AssertionError as fault:
    sys.exit(str(fault))
