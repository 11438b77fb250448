#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The planner authors
# SPDX-License-Identifier: MIT
"""Checks what the documents point at: links to files and headings, and names of code and paths in backticks."""
import re
import sys
from functools import lru_cache

from project import ROOT, files

LINK = re.compile(r"\[[^\]]*\]\(([^)\s]+)\)")
NAME = re.compile(r"[A-Za-z_]\w*(?:(?:::|\.)[A-Za-z_]\w*)*(?:\(\))?")
PATH = re.compile(r"\.?[\w*.-]+(?:/[\w*.-]*)+")
FOLDERS = ["", "src", "src/core", "docs"]  # what paths in documents are relative to
OUTSIDE = {"PKG_CONFIG_PATH", "TavTermIPC.dll", "libTavTermIPC.so"}  # names that the sources need not say
MADE = ("build/", "demo-out/", "lib/pkgconfig")  # made by building and running


def without_code_blocks(text):
    return re.sub(r"^```.*?^```", "", text, flags=re.M | re.S)


@lru_cache(None)
def anchors(path):
    """The anchors of a document's headings, as the web pages of repositories make them."""
    headings = re.findall(r"^#+ (.+)$", without_code_blocks(path.read_text()), re.M)
    return {re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-") for heading in headings}


def link_fault(document, link):
    if re.match(r"[a-z]+:", link):
        return None
    name, _, anchor = link.partition("#")
    target = (document.parent / name).resolve() if name else document
    if not target.exists():
        return f"no file for the link {link}"
    return f"no heading for the link {link}" if anchor and anchor not in anchors(target) else None


@lru_cache(None)
def words():
    """All words of the sources with their parts (`m_Row` has `Row`), and the files' own names."""
    found = set(re.findall(r"\w+", " ".join(file.name for file in files())))
    for file in files(":!*.md", ":!*.png", ":!tests/fuzz/seeds"):
        found.update(re.findall(r"\w+", file.read_text(errors="replace")))
    return found | {part for word in found for part in word.split("_")}


def path_exists(path):
    if path.startswith(MADE):
        return True
    return any(any((ROOT / folder).glob(path.rstrip("/"))) for folder in FOLDERS)


def name_fault(text):
    if PATH.fullmatch(text):
        return None if path_exists(text) else f"no file or folder `{text}`"
    if NAME.fullmatch(text) and text not in OUTSIDE:
        missing = [word for word in re.findall(r"\w+", text) if word not in words()]
        return f"`{text}` occurs nowhere in the sources" if missing else None
    return None


def document_faults(document):
    text = without_code_blocks(document.read_text())
    plain = re.sub(r"`[^`]*`", "", text)
    faults = [link_fault(document, link) for link in LINK.findall(plain)]
    faults += [name_fault(name) for name in sorted(set(re.findall(r"`([^`\n]+)`", text)))]
    return [f"{document.relative_to(ROOT)}: {fault}" for fault in faults if fault]


def main():
    found = [fault for document in files("*.md") for fault in document_faults(document)]
    print("\n".join(found), end="\n" if found else "")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
