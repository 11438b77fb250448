#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The planner authors
# SPDX-License-Identifier: MIT
"""Reads the #includes of src and tools and names each that docs/architecture.md, "Arrows", does not allow."""
import re
import sys

from project import ROOT, files, table

INCLUDE = re.compile(r'^\s*#\s*include\s+([<"])([^>"]+)[>"]', re.M)
ROOTS = [ROOT / "src/core", ROOT / "src", ROOT / "tools", ROOT / "src/platform/ipc"]
SYSTEM = re.compile(r"(?:sys/\w+|unistd|fcntl|poll|pthread|signal|spawn|windows)\.h")
TOOLKIT = re.compile(r"\bQt?[A-Z]\w*|\bQt\b|\bQ_[A-Z]+\b")


def allowed():
    """Per folder, all folders that it may use: those of its row, and what these may use."""
    direct = {row[0][0]: row[1] for row in table("Arrows")}
    reach = {}
    for folder, targets in direct.items():  # a row names rows above it only: no circle can be written
        unknown = [target for target in targets if target not in reach]
        if unknown:
            raise SystemExit(f"docs/architecture.md, Arrows: {folder} stands above {', '.join(unknown)}")
        reach[folder] = {folder}.union(*(reach[target] for target in targets))
    return reach


def folder_of(path, folders):
    """The row for a file: the longest that its path begins with."""
    name = str(path.relative_to(ROOT)).removeprefix("src/")
    fitting = [folder for folder in folders if name.startswith(folder + "/")]
    return max(fitting, key=len, default=None)


def find(name, file):
    return next((root / name for root in [file.parent, *ROOTS] if (root / name).is_file()), None)


def include_fault(file, bracket, name, reach):
    here = folder_of(file, reach)
    if here is None:
        return "stands in no folder of the table"
    if bracket == "<" and SYSTEM.fullmatch(name) and not here.startswith("platform/"):
        return f"<{name}> is a system's: platform/system asks for it"
    if bracket == "<":
        # What the standard library calls its own has no extension and no capital letter.
        return f"<{name}> is not the standard library's" if here.startswith("core") and not re.fullmatch("[a-z_]+", name) else None
    target = find(name, file)
    if target is None:
        return f'"{name}" is not there'
    there = folder_of(target, reach)
    return None if there in reach[here] else f'{here} may not use {there} ("{name}")'


def file_faults(file, reach):
    text = file.read_text()
    faults = [include_fault(file, bracket, name, reach) for bracket, name in INCLUDE.findall(text)]
    if ROOT / "src/core" in file.parents:
        faults += [f"names the toolkit: {word}" for word in TOOLKIT.findall(text)]
    return [f"{file.relative_to(ROOT)}: {fault}" for fault in faults if fault]


def main():
    reach = allowed()
    found = [fault for file in files("src/*.cpp", "src/*.h", "src/*.c", "tools/*.cpp", "tools/*.h")
             for fault in file_faults(file, reach)]
    print("\n".join(found), end="\n" if found else "")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
