#!/bin/bash
# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT
#
# Runs a command on a desktop of its own: an X server without a screen, a window manager
# and a compositor. The command starts when all three are up. All of them end with the
# command, however it ends, and also if this script is killed.
#
#     with-desktop.sh COMMAND [ARGUMENT...]
#
# The command finds DISPLAY set, a home of its own (HOME and the XDG folders) and runs Qt
# on X11. This script exits with the command's status, or with 125 if the desktop did not
# come up.
#
# DESKTOP_SCREEN        size and depth of the screen (default: 1600x1000x24)
# DESKTOP_SERVER        the X server: xvfb (default) or tigervnc
# DESKTOP_MONITORS      places and sizes of monitors, such as "900x1000+0+0 700x800+900+150"; the
#                       server is tigervnc then (default: one monitor)
# DESKTOP_WM            the window manager: openbox (default), kwin, xfwm4, marco, mutter,
#                       icewm, i3, awesome, fluxbox or none; or a Wayland session with
#                       XWayland: kwin_wayland, mutter_wayland or sway
# DESKTOP_COMPOSITOR=0  no compositor
set -u

if [ $# -eq 0 ]; then
    echo "usage: $0 COMMAND [ARGUMENT...]" >&2
    exit 2
fi

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
source "$here/window-managers.sh"
source "$here/wayland-sessions.sh"
base=$(mktemp -d "${TMPDIR:-/tmp}/desktop.XXXXXX") || exit 125
pids=()
command_pid=

tear_down() {
    trap - EXIT INT TERM HUP
    if [ -n "$command_pid" ]; then
        kill "$command_pid" 2>/dev/null
    fi
    # The server goes last, so that the others can still disconnect from it.
    local i tries
    for ((i = ${#pids[@]} - 1; i >= 0; i--)); do
        kill "${pids[i]}" 2>/dev/null
        # Fluxbox may lock itself up in its signal handler.
        for ((tries = 0; tries < 40; tries++)); do
            kill -0 "${pids[i]}" 2>/dev/null || break
            sleep 0.05
        done
        kill -KILL "${pids[i]}" 2>/dev/null
        wait "${pids[i]}" 2>/dev/null
    done
    rm -rf "$base"
}
trap tear_down EXIT
trap 'exit 129' HUP
trap 'exit 130' INT
trap 'exit 143' TERM

fail() {
    echo "with-desktop: $1" >&2
    cat "$base"/*.log >&2 2>/dev/null
    exit 125
}

# Starts a part of the desktop that also ends if this script is killed.
start() {
    local log=$1
    shift
    setpriv --pdeathsig KILL "$@" >"$base/$log.log" 2>&1 &
    pids+=($!)
}

# Waits until the condition holds. Fails after about 20 s, or if the part that was started
# last has ended.
await() {
    local what=$1 tries=0
    shift
    until "$@"; do
        kill -0 "${pids[-1]}" 2>/dev/null || fail "$what ended"
        ((++tries <= 400)) || fail "$what did not come up"
        sleep 0.05
    done
}

home=$base/home
mkdir -p "$home/.config" "$home/.local/share" "$home/.cache" "$base/runtime"
chmod 700 "$base/runtime"
export HOME=$home XDG_CONFIG_HOME=$home/.config XDG_DATA_HOME=$home/.local/share
export XDG_CACHE_HOME=$home/.cache XDG_RUNTIME_DIR=$base/runtime
export QT_QPA_PLATFORM=xcb QT_QPA_PLATFORMTHEME= LANG=${LANG:-C.UTF-8} LANGUAGE=${LANGUAGE-}
unset WAYLAND_DISPLAY XAUTHORITY DISPLAY

# The server chooses a free display and writes its number once it takes connections.
start_x_server() { # SIZExDEPTH
    local server monitors
    read -ra monitors <<<"${DESKTOP_MONITORS-}"
    [ ${#monitors[@]} -eq 0 ] || DESKTOP_SERVER=tigervnc
    case ${DESKTOP_SERVER:-xvfb} in
        xvfb) server=(Xvfb -screen 0 "$1") ;;
        tigervnc) server=(Xtigervnc -geometry "${1%x*}" -depth "${1##*x}" -SecurityTypes None
            -rfbport -1 -rfbunixpath "$base/vnc") ;;
        *) fail "unknown X server $DESKTOP_SERVER" ;;
    esac
    setpriv --pdeathsig KILL "${server[@]}" -nolisten tcp -noreset -displayfd 3 \
        3>"$base/display" >"$base/server.log" 2>&1 &
    pids+=($!)
    await "the X server" test -s "$base/display"
    DISPLAY=:$(tr -d '[:space:]' <"$base/display")
    export DISPLAY
    [ ${#monitors[@]} -ne 0 ] || return 0
    export DESKTOP_VNC=$base/vnc
    python3 -B "$here/monitors.py" "$DESKTOP_VNC" "${monitors[@]}" || fail "the monitors did not come up"
}

# A window manager is up if the window that it names on the root names itself.
manager_is_up() {
    local window
    window=$(xprop -root -notype _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -o '0x[0-9a-f]*') || return 1
    xprop -id "$window" -notype _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q "$window"
}
# A compositor is up if somebody owns its selection.
compositor_is_up() {
    python3 - <<'PYTHON'
import ctypes, sys
x11 = ctypes.CDLL("libX11.so.6")
x11.XOpenDisplay.restype = ctypes.c_void_p
x11.XInternAtom.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int]
x11.XInternAtom.restype = ctypes.c_ulong
x11.XGetSelectionOwner.argtypes = [ctypes.c_void_p, ctypes.c_ulong]
x11.XGetSelectionOwner.restype = ctypes.c_ulong
display = x11.XOpenDisplay(None)
sys.exit(not (display and x11.XGetSelectionOwner(display, x11.XInternAtom(display, b"_NET_WM_CM_S0", 0))))
PYTHON
}
screen=${DESKTOP_SCREEN:-1600x1000x24}
manager=${DESKTOP_WM:-openbox}
compositor=${DESKTOP_COMPOSITOR:-1}
if is_wayland_session "$manager"; then
    start_wayland_session "$manager" "${screen%x*}"
else
    start_x_server "$screen"
    if [ "$manager" != none ]; then
        start_window_manager "$manager" "$compositor"
        await "the window manager" manager_is_up
    fi
    if [ "$compositor" != 0 ]; then
        composites_itself "$manager" || start picom picom --backend xrender --config /dev/null
        await "the compositor" compositor_is_up
    fi
fi

# Runs in the background, so that a signal to this script is handled at once.
"$@" <&0 &
command_pid=$!
wait "$command_pid"
status=$?
command_pid=
exit "$status"
