"""Puts the sources of each folder into one unit for clang-tidy.

What a folder's sources include, the standard library above all, is then analysed once
and not once for each. Names in unnamed namespaces have to be unique in a folder for
that; the sources of a folder where they are not stay apart.

usage: tidy_units.py COMPILE_COMMANDS OUTPUT FOLDER...

Writes units for the sources below the folders, with their compile_commands.json, into
OUTPUT and prints their paths.
"""

import json
import shlex
import subprocess
import sys
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


def units_of(folder, entries, output):
    name = "_".join(folder.parts)
    unit = unit_of(entries, output / f"{name}.cpp")
    if compiles(unit["command"]):
        return [unit]
    print(f"{folder}: names clash, so its sources are analysed one by one", file=sys.stderr)
    return [unit_of([entry], output / f"{name}_{Path(entry['file']).name}") for entry in entries]


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
    units = []
    for name, group in groupby(sorted(entries.values(), key=lambda e: e["file"]), folder):
        units += units_of(name, list(group), output)
    (output / "compile_commands.json").write_text(json.dumps(units))
    print("\n".join(unit["file"] for unit in units))


main()
