#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The planner authors
# SPDX-License-Identifier: MIT
"""A whole host in Python, event mode: asks for a year, prints what the user answered, and asks again until
the user closes the planner.

    host.py PLANNER FOLDER [LIBRARY]        (the folder with the four archive files)
"""
import ctypes
import os
import queue
import subprocess
import sys
import threading

RECORD, VALRET = 121, slice(88, 99)


def request():
    """The kind at 8, the period at 9 and 17, the staff code at 86, the day to show at 88."""
    record = bytearray(b" " * RECORD)
    record[8:25] = b"A2006010120061231"
    record[88:96] = b"20060315"
    return record


def wait_in_thread(library, event):
    """The library's wait blocks; in a thread of its own it leaves room to look after the planner."""
    outcome = queue.Queue()

    def wait():
        done = library.TvIpcWaitEvento(event)
        outcome.put((done, os.strerror(ctypes.get_errno())))

    threading.Thread(target=wait, daemon=True).start()
    return outcome


def answer(library, event, transit, planner):
    """The answer's eleven characters, or nothing when the planner has ended without one."""
    outcome = wait_in_thread(library, event)
    while True:
        try:
            done, reason = outcome.get(timeout=0.5)
        except queue.Empty:
            if planner.poll() is None:
                continue
            done, reason = 0, f"it ended with exit code {planner.returncode}"
        if not done:
            print(f"host: the planner has died: {reason}", file=sys.stderr)
            return None
        with open(transit, "rb") as file:
            return file.read(RECORD)[VALRET].decode("cp1252")


def main():
    planner_file, folder = sys.argv[1:3]
    name = sys.argv[3] if len(sys.argv) > 3 else "libTavTermIPC.so"
    library = ctypes.CDLL(name, use_errno=True)
    event = f"host-{os.getpid()}"  # a name that nobody else uses
    transit = os.path.join(folder, "transito.dat")
    planner = None
    while True:
        with open(transit, "wb") as file:
            file.write(request())
        if planner is None:
            planner = subprocess.Popen([planner_file, transit, "1", event])
        elif not library.TvIpcSetEvento(event.encode()):
            print("host: the planner is gone", file=sys.stderr)
            return 1
        valret = answer(library, event.encode(), transit, planner)
        if valret is None:
            return 1
        print(valret, flush=True)
        if valret.endswith("E"):
            return planner.wait()


if __name__ == "__main__":
    sys.exit(main())
