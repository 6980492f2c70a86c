#!/usr/bin/env python3
"""Checks that the files of every target can be compiled as one unit.

The build joins files into units. Which ones stand together depends on their number and on the version of CMake, so two
names that clash may go unseen here and break the build elsewhere.

Usage: lint-units.py BUILD_FOLDER
"""

import concurrent.futures
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys

GENERATED = "/.rcc/"  # QML compiled ahead of time, each file in a namespace of its own


def output_of(command):
    return command[command.index("-o") + 1]


def targets(build):
    """The compile command and the included lines of each target that was built in more than one unit."""
    found = {}
    for entry in json.loads((build / "compile_commands.json").read_text()):
        unit = re.fullmatch(r".*/([^/]+)\.dir/Unity/unity_\d+_cxx\.cxx", entry["file"])
        if unit and (build / output_of(shlex.split(entry["command"]))).exists():
            found.setdefault(unit[1], []).append(entry)
    for name, entries in sorted(found.items()):
        if len(entries) > 1:
            lines = [line for entry in entries for line in pathlib.Path(entry["file"]).read_text().splitlines()]
            yield name, entries[0], [line for line in lines if line.startswith("#include") and GENERATED not in line]


def errors(build, name, entry, lines):
    unit = build / "units" / f"{name}.cpp"
    unit.parent.mkdir(exist_ok=True)
    unit.write_text("\n".join(lines) + "\n")
    command = shlex.split(entry["command"])
    command.remove(output_of(command))
    command.remove("-o")
    command[command.index(entry["file"])] = str(unit)
    # The macros of one file may hide a name of another: only errors count.
    command += ["-fsyntax-only", "-w", "-Wno-error"]
    run = subprocess.run(command, cwd=entry["directory"], capture_output=True, text=True)
    return [line for line in run.stderr.splitlines() if "error:" in line] if run.returncode else []


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    checked = list(targets(build))
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = list(pool.map(lambda target: errors(build, *target), checked))
    for (name, _, _), found in zip(checked, results):
        if found:
            print(f"{name}: these files do not stand in one unit", *found, sep="\n  ")
    sys.exit(any(results))


main()
