"""What a check found in some files, kept by their contents: what has not changed is not looked at again."""

import hashlib
import os

from . import source_tree

FOLDER = os.path.join(source_tree.ROOT, "build", "check")


def key(names, *circumstances):
    """A key that changes with the contents of these files, of all that they include, and with the circumstances:
    versions of tools, flags, settings."""
    digest = hashlib.sha256(repr(circumstances).encode())
    for name in source_tree.closure(names):
        digest.update(name.encode() + b"\0" + source_tree.read(name).encode() + b"\0")
    return digest.hexdigest()


def load(kind, name):
    """The lines kept under a key, or None."""
    try:
        with open(os.path.join(FOLDER, kind, name), encoding="utf-8") as file:
            return file.read().splitlines()
    except FileNotFoundError:
        return None


def keep(kind, name, lines):
    folder = os.path.join(FOLDER, kind)
    os.makedirs(folder, exist_ok=True)
    # Beside and then in place: a run that is cut off leaves nothing half written.
    beside = os.path.join(folder, f".{name}.{os.getpid()}")
    with open(beside, "w", encoding="utf-8") as file:
        file.write("\n".join(lines))
    os.replace(beside, os.path.join(folder, name))
