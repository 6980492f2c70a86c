#!/usr/bin/env python3
"""Runs clang-tidy over src/, several files at a time, and only over what changed since it was last clean.

Most of its time goes into the headers that a file includes, so files with the same compile command are first checked
together, as one unit that includes them all. A unit with findings, or whose files clash, is halved until its files
stand alone; only what is then said about a file counts.

A file counts as unchanged while the bytes of everything it is made of are: the file, every header of this project
that it includes (as the compiler told ninja), its compile command, the configuration and the checker's version.

Usage: lint-tidy.py BUILD_FOLDER
"""

import collections
import concurrent.futures
import dataclasses
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys

CHECKER = "clang-tidy-19"
FILES_IN_A_UNIT = 24
ROOT = pathlib.Path(__file__).resolve().parent.parent


@dataclasses.dataclass
class Job:
    source: pathlib.Path
    flags: tuple
    stamp: pathlib.Path
    mark: str


def dependencies(build):
    """Every object file of the build with the headers that went into it."""
    listing = subprocess.run(["ninja", "-C", build, "-t", "deps"], capture_output=True, text=True, check=True).stdout
    found, current = {}, None
    for line in listing.splitlines():
        if line.startswith("    "):
            found[current].append(line.strip())
        elif ": #deps" in line:
            current = line.split(": #deps")[0]
            found[current] = []
    return found


def fingerprint(entry, headers, common):
    digest = hashlib.sha256(common)
    digest.update(entry["command"].encode())
    for name in sorted({entry["file"], *headers}):
        path = pathlib.Path(entry["directory"], name)
        if path.is_file() and path.resolve().is_relative_to(ROOT):
            digest.update(str(path).encode() + path.read_bytes())
    return digest.hexdigest()


def flags_and_object(command):
    """What the compiler was told beside its input, its output and its precompiled headers; and its output."""
    words = shlex.split(command)
    first = next(index for index, word in enumerate(words) if word.startswith("-"))
    output = words.index("-o")
    last = words.index("-Winvalid-pch") if "-Winvalid-pch" in words else output
    return tuple(words[first:last]), words[output + 1]


def sources_of(entry):
    """The files of src/ that a compile command is for: one, or those that a unit of the build includes."""
    file = pathlib.Path(entry["file"])
    found = [file]
    if file.parent.name == "Unity":
        found = map(pathlib.Path, re.findall(r'#include "(.*\.cpp)"', file.read_text()))
    return [source for source in found if source.is_relative_to(ROOT / "src")]


def changed_files(build, stamps):
    version = subprocess.run([CHECKER, "--version"], capture_output=True, check=True).stdout
    common = version + (ROOT / ".clang-tidy").read_bytes()
    deps = dependencies(build)
    seen = set()
    for entry in json.loads((build / "compile_commands.json").read_text()):
        flags, object_file = flags_and_object(entry["command"])
        mark = fingerprint(entry, deps.get(object_file, []), common)
        for source in sources_of(entry):
            if source in seen:
                continue
            seen.add(source)
            stamp = stamps / (str(source.relative_to(ROOT / "src")).replace(os.sep, "-") + ".clean")
            if not stamp.exists() or stamp.read_text() != mark:
                yield Job(source, flags, stamp, mark)


def units(jobs):
    by_flags = collections.defaultdict(list)
    for job in jobs:
        by_flags[job.flags].append(job)
    for group in by_flags.values():
        yield from (group[first : first + FILES_IN_A_UNIT] for first in range(0, len(group), FILES_IN_A_UNIT))


def tidy(source, flags, *options):
    command = [CHECKER, "--quiet", *options, str(source), "--", *flags]
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)


def is_clean(unit, stamps):
    """Whether nothing is found in the files of a unit while they are checked together."""
    together = stamps / f"{unit[0].stamp.stem}-unit.cpp"
    together.write_text("".join(f'#include "{job.source}" // NOLINT(bugprone-suspicious-include)\n' for job in unit))
    return tidy(together, unit[0].flags, r"--header-filter=/src/.*\.(h|cpp)$").returncode == 0


def findings(unit, stamps):
    """What is found in each file of a unit; nothing where it is clean."""
    if len(unit) == 1:
        result = tidy(unit[0].source, unit[0].flags)
        return [(unit[0], result.returncode and (result.stdout or result.stderr))]
    if is_clean(unit, stamps):
        return [(job, "") for job in unit]
    half = len(unit) // 2
    return findings(unit[:half], stamps) + findings(unit[half:], stamps)


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    stamps = build / "tidy"
    stamps.mkdir(exist_ok=True)
    checked = failed = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for unit in pool.map(lambda unit: findings(unit, stamps), list(units(changed_files(build, stamps)))):
            for job, found in unit:
                checked += 1
                if found:
                    failed += 1
                    print(found)
                else:
                    job.stamp.write_text(job.mark)
    print(f"{checked} files checked, {failed} with findings")
    return 1 if failed else 0


sys.exit(main())
