# SPDX-FileCopyrightText: 2026 The planner authors
# SPDX-License-Identifier: MIT
import ctypes, subprocess, sys

planner, folder = sys.argv[1:3]
library = ctypes.CDLL(sys.argv[3] if len(sys.argv) > 3 else "libTavTermIPC.so")
transit = folder + "/transito.dat"
process, answer = None, ""
while not answer.endswith("E"):
    with open(transit, "wb") as file:
        file.write(b"%8sA2006010120061231%63s20060315%25s" % (b"", b"", b""))
    if process:
        library.TvIpcSetEvento(b"mio-evento")
    else:
        process = subprocess.Popen([planner, transit, "1", "mio-evento"])
    if not library.TvIpcWaitEvento(b"mio-evento"):
        sys.exit("the planner has died")
    with open(transit, "rb") as file:
        answer = file.read()[88:99].decode("cp1252")
    print(answer, flush=True)
