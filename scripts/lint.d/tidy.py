#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The planner authors
# SPDX-License-Identifier: MIT
"""Runs clang-tidy, with the rules of .clang-tidy, over all C++ and C files of src and tools.

A file's time goes to the headers it reads, so files are read together: a generated file per batch includes
them. Those whose own names clash (each has its unnamed namespace) go to a further batch. A name of another
style than .clang-tidy asks for passes when the glossary of docs/architecture.md explains it.
With --analyzer the static analyzer runs too, which takes minutes.
"""
import os
import re
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from project import ROOT, glossary

BATCHES = {"ui": ["src/ui", "src/app"], "core": ["src/core"], "system": ["src/platform", "tools"]}
ELSEWHERE = ROOT / "src/platform/windows"  # compiles for another system alone
C_FOLDER = ROOT / "src/platform/ipc"
C_FLAGS = ["-std=c11", "-D_GNU_SOURCE"]
QT = ["Qt6Widgets", "Qt6PrintSupport", "Qt6Svg"]
STYLE = re.compile(r"invalid case style for .* '(?:m_)?(\w+)'")


def cxx_flags():
    command = ["pkg-config", "--cflags", *QT]
    qt = subprocess.run(command, check=True, capture_output=True, text=True).stdout.split()
    folders = [ROOT / "src", ROOT / "src/core", C_FOLDER, ROOT / "tools"]
    return ["-std=c++20", '-DPLANNER_VERSION="0"', *(f"-I{folder}" for folder in folders),
            *(re.sub("^-I", "-isystem", word) for word in qt)]


def write_batch(path, files):
    path.write_text("".join(f'#include "{file}"\n' for file in files))


def clashing(path, files, flags):
    """Those of the files that do not compile after the others; none where none would be left."""
    command = ["clang++", "-fsyntax-only", "-ferror-limit=0", "-fno-caret-diagnostics", *flags, str(path)]
    errors = subprocess.run(command, capture_output=True, text=True).stderr
    named = set(re.findall(r"^(/[^:]+\.cpp):\d+:\d+: (?:fatal )?error:", errors, re.M))
    apart = [file for file in files if str(file) in named]
    return apart if len(apart) < len(files) else []


def faults(path, checks, flags):
    """What clang-tidy says of a file and what it includes."""
    command = ["clang-tidy", "--quiet", f"--checks={checks}", str(path), "--", *flags]
    run = subprocess.run(command, capture_output=True, text=True)
    found = re.findall(r"^/.*(?:error|warning): .*$", run.stdout, re.M)
    return found or ([run.stderr] if run.returncode else [])


def batch_faults(name, folders, folder, checks, flags):
    files = sorted(file for part in folders for file in (ROOT / part).rglob("*.cpp")
                   if ELSEWHERE not in file.parents)
    found = []
    while files:
        path = folder / f"{name}{len(files)}.cpp"
        write_batch(path, files)
        apart = clashing(path, files, flags)
        write_batch(path, [file for file in files if file not in apart])
        found += faults(path, f"-bugprone-suspicious-include,{checks}", flags)
        files = apart
    return found


def is_given(fault, given):
    style = STYLE.search(fault)
    return bool(style) and style.group(1) in given


def all_faults(checks):
    with tempfile.TemporaryDirectory() as name, ThreadPoolExecutor(os.cpu_count()) as pool:
        folder = Path(name)
        (folder / ".clang-tidy").write_text((ROOT / ".clang-tidy").read_text())
        flags = cxx_flags()
        work = [pool.submit(batch_faults, batch, folders, folder, checks, flags) for batch, folders in BATCHES.items()]
        work += [pool.submit(faults, file, checks, C_FLAGS) for file in sorted(C_FOLDER.glob("*.c"))]
        return sorted({fault for part in work for fault in part.result()})


def main():
    given = glossary()
    checks = "" if "--analyzer" in sys.argv[1:] else "-clang-analyzer-*"
    left = [fault for fault in all_faults(checks) if not is_given(fault, given)]
    for fault in left:
        print(fault.replace(f"{ROOT}/", ""))
    return 1 if left else 0


if __name__ == "__main__":
    sys.exit(main())
