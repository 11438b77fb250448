# SPDX-FileCopyrightText: 2026 The planner authors
# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034

# Sourced by scripts/demo: a virtual display with a window manager, and windows photographed on it.

# start_display WxH
start_display() {
    local number
    exec {display_fd}<> <(:)
    Xvfb -displayfd "$display_fd" -screen 0 "${1}x24" -nolisten tcp >/dev/null 2>&1 &
    local server=$!
    read -r -t 20 -u "$display_fd" number || { echo "Xvfb does not start" >&2; return 1; }
    export DISPLAY=":$number"
    openbox >/dev/null 2>&1 &
    local manager=$!
    # shellcheck disable=SC2064
    trap "kill $manager $server 2>/dev/null || true" EXIT
    local tries=100
    until xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; do
        tries=$((tries - 1))
        [ $tries -gt 0 ] || { echo "openbox does not start" >&2; return 1; }
        sleep 0.1
    done
}

# photograph_window TITLE FILE PID: waits for the window and until its picture no longer changes; gives up when
# process PID has ended.
photograph_window() {
    local title=$1 file=$2 pid=$3 before="" after tries=150
    until timeout 20 xdotool search --onlyvisible --name "^$title\$" >/dev/null 2>&1; do
        kill -0 "$pid" 2>/dev/null || { echo "no window \"$title\"" >&2; return 1; }
        sleep 0.1
    done
    while [ $tries -gt 0 ]; do
        after=$(import -window root rgb:- | md5sum)
        [ "$after" = "$before" ] && import -window root "$file" && return 0
        before=$after
        tries=$((tries - 1))
        sleep 0.3
    done
    echo "the window \"$title\" never comes to rest" >&2
    return 1
}

# press_key TITLE KEY
press_key() {
    local window
    window=$(timeout 20 xdotool search --sync --onlyvisible --name "^$1\$" | head -n 1)
    timeout 20 xdotool windowactivate --sync "$window" key "$2"
}
