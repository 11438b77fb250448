# SPDX-FileCopyrightText: 2026 The planner authors
# SPDX-License-Identifier: MIT
"""What the checks of this folder share: the project's files, and the tables of docs/architecture.md."""
import re
import subprocess
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
ARCHITECTURE = ROOT / "docs/architecture.md"


def files(*patterns):
    """The project's own files that match one of git's patterns, those not yet added included."""
    command = ["git", "-C", str(ROOT), "ls-files", "-co", "--exclude-standard", "--", *patterns]
    names = subprocess.run(command, check=True, capture_output=True, text=True).stdout.split("\n")
    return sorted({ROOT / name for name in names if name and (ROOT / name).is_file()})


def section(title):
    """The text below one heading of docs/architecture.md, up to the next of its level."""
    match = re.search(rf"^## {re.escape(title)}$(.*?)(?=^## |\Z)", ARCHITECTURE.read_text(), re.M | re.S)
    if not match:
        raise SystemExit(f"docs/architecture.md has no section \"{title}\"")
    return match.group(1)


def table(title):
    """The rows of a section's tables: per row, the names in backticks of each column."""
    rows = [line.strip().strip("|").split("|") for line in section(title).splitlines() if line.startswith("| `")]
    return [[re.findall(r"`([^`]+)`", cell) for cell in row] for row in rows]


def glossary():
    """The given names."""
    return {name for row in table("Glossary") for name in row[0]}
