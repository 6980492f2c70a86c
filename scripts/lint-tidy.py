#!/usr/bin/env python3
"""Runs clang-tidy over src/, several files at a time, and only over what changed since it was last clean.

A file counts as unchanged while the bytes of everything it is made of are: the file, every header of this project
that it includes (as the compiler told ninja), its compile command, the configuration and the checker's version.

Usage: lint-tidy.py BUILD_FOLDER
"""

import concurrent.futures
import hashlib
import json
import os
import pathlib
import shlex
import subprocess
import sys

CHECKER = "clang-tidy-19"


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


def object_of(entry):
    words = shlex.split(entry["command"])
    return words[words.index("-o") + 1]


def fingerprint(entry, headers, root, common):
    digest = hashlib.sha256(common)
    digest.update(entry["command"].encode())
    for name in sorted({entry["file"], *headers}):
        path = pathlib.Path(entry["directory"], name)
        if path.is_file() and path.resolve().is_relative_to(root):
            digest.update(str(path).encode() + path.read_bytes())
    return digest.hexdigest()


def check(entry, build):
    return subprocess.run(
        [CHECKER, "--quiet", "-p", build, entry["file"]], stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True
    )


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    root = pathlib.Path(__file__).resolve().parent.parent
    version = subprocess.run([CHECKER, "--version"], capture_output=True, check=True).stdout
    common = version + (root / ".clang-tidy").read_bytes()
    deps = dependencies(build)
    stamps = build / "tidy"
    stamps.mkdir(exist_ok=True)

    todo = []
    for entry in json.loads((build / "compile_commands.json").read_text()):
        source = pathlib.Path(entry["file"])
        if not source.is_relative_to(root / "src"):
            continue
        stamp = stamps / (str(source.relative_to(root / "src")).replace(os.sep, "-") + ".clean")
        mark = fingerprint(entry, deps.get(object_of(entry), []), root, common)
        if not stamp.exists() or stamp.read_text() != mark:
            todo.append((entry, stamp, mark))

    failed = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for (entry, stamp, mark), result in zip(todo, pool.map(lambda job: check(job[0], build), todo)):
            if result.returncode == 0:
                stamp.write_text(mark)
            else:
                failed += 1
                print(result.stdout or result.stderr)
    print(f"{len(todo)} files checked, {failed} with findings")
    return 1 if failed else 0


sys.exit(main())
