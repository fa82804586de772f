"""Puts the sources of each folder into as few units for clang-tidy as possible.

What a folder's sources include, the standard library above all, is then analysed once
and not once for each. Sources whose names in unnamed namespaces clash are in different
units.

usage: tidy_units.py COMPILE_COMMANDS OUTPUT FOLDER...

Writes units for the sources below the folders, with their compile_commands.json, into
OUTPUT and prints their paths.
"""

import json
import os
import shlex
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from itertools import groupby
from pathlib import Path


def compiles(command):
    words = [*shlex.split(command), "-fsyntax-only", "-w"]
    return subprocess.run(words, stderr=subprocess.DEVNULL, check=False).returncode == 0


def unit_of(entries, path):
    """The entry of a new source that includes those of `entries`."""
    lines = [f'#include "{entry["file"]}"  // NOLINT: made to be suspicious\n' for entry in entries]
    path.write_text("".join(lines))
    command = entries[0]["command"].replace(entries[0]["file"], str(path))
    return {"directory": entries[0]["directory"], "command": command, "file": str(path)}


def units_of(name, entries, output):
    unit = unit_of(entries, output / f"{name}.cpp")
    if len(entries) == 1 or compiles(unit["command"]):
        return [unit]
    # Sources that are neighbours by name have the most in common.
    return units_of(f"{name}_a", entries[::2], output) + units_of(f"{name}_b", entries[1::2], output)


def main():
    commands, output = Path(sys.argv[1]), Path(sys.argv[2]).resolve()
    root = Path.cwd()
    output.mkdir(parents=True, exist_ok=True)

    def folder(entry):
        return Path(entry["file"]).relative_to(root).parent

    entries = {
        entry["file"]: entry
        for entry in json.loads(commands.read_text())
        if Path(entry["file"]).is_relative_to(root) and folder(entry).parts[0] in sys.argv[3:]
    }
    # A folder's files stay together, whatever folders sort between their names.
    by_folder = groupby(sorted(entries.values(), key=lambda e: (folder(e), e["file"])), folder)
    groups = [("_".join(name.parts), list(group)) for name, group in by_folder]
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        units = sum(pool.map(lambda group: units_of(*group, output), groups), [])
    (output / "compile_commands.json").write_text(json.dumps(units))
    print("\n".join(unit["file"] for unit in units))


main()
