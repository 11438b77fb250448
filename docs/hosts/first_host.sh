# SPDX-FileCopyrightText: 2026 The planner authors
# SPDX-License-Identifier: MIT
planner=$1
cd "$2" || exit 2
until [ "$action" = E ]; do
    printf '%8sA2006010120061231%63s20060315%25s' '' '' '' >transito.dat
    : >LockPl.lck
    [ "$process" ] || { "$planner" transito.dat 1 NOEVENT & process=$!; }
    while [ -e LockPl.lck ]; do
        kill -0 "$process" 2>/dev/null || exit 1 # the planner has died
        sleep 0.1
    done
    answer=$(cut -b 89-99 transito.dat)
    echo "$answer"
    action=${answer#??????????}
done
