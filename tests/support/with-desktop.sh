#!/bin/bash
# Runs a command on a desktop of its own: an X server without a screen, a window manager
# with a pinned configuration and a compositor. The command starts once all three are up;
# whatever way it ends, and also when this script is killed, nothing of them stays behind.
#
#     with-desktop.sh COMMAND [ARGUMENT...]
#
# The command finds DISPLAY set, a home of its own (HOME and the XDG folders) and runs Qt
# on X11. Its exit status is handed on; 125 says that the desktop did not come up.
#
# DESKTOP_SCREEN    size and depth of the screen, 1600x1000x24 when not set
# DESKTOP_WM        the window manager: openbox when not set, kwin_x11, xfwm4, or 0 for none
# DESKTOP_COMPOSITOR=0    no compositor
set -u

if [ $# -eq 0 ]; then
    echo "usage: $0 COMMAND [ARGUMENT...]" >&2
    exit 2
fi

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
base=$(mktemp -d "${TMPDIR:-/tmp}/desktop.XXXXXX") || exit 125
pids=()
command_pid=

tear_down() {
    trap - EXIT INT TERM HUP
    if [ -n "$command_pid" ]; then
        kill "$command_pid" 2>/dev/null
    fi
    # The server goes last, so that the others still can say goodbye to it.
    local i
    for ((i = ${#pids[@]} - 1; i >= 0; i--)); do
        kill "${pids[i]}" 2>/dev/null
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

# Starts a part of the desktop that also dies when this script is killed outright.
start() {
    local log=$1
    shift
    setpriv --pdeathsig KILL "$@" >"$base/$log.log" 2>&1 &
    pids+=($!)
}

# Asks again until the condition holds; gives up after about 20 s or when the part that
# was started last has ended.
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
export QT_QPA_PLATFORM=xcb QT_QPA_PLATFORMTHEME= LANG=${LANG:-C.UTF-8}
unset WAYLAND_DISPLAY XAUTHORITY DISPLAY

# The server chooses a free display and writes its number once it takes connections.
setpriv --pdeathsig KILL Xvfb -displayfd 3 -screen 0 "${DESKTOP_SCREEN:-1600x1000x24}" \
    -nolisten tcp -noreset 3>"$base/display" >"$base/xvfb.log" 2>&1 &
pids+=($!)
await "the X server" test -s "$base/display"
DISPLAY=:$(tr -d '[:space:]' <"$base/display")
export DISPLAY

# A window manager is there when the window it names on the root names itself.
manager_is_up() {
    local window
    window=$(xprop -root -notype _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -o '0x[0-9a-f]*') || return 1
    xprop -id "$window" -notype _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q "$window"
}
case "${DESKTOP_WM:-openbox}" in
0) ;;
openbox) start wm openbox --sm-disable --config-file "$here/openbox-rc.xml" ;;
# These two need a session bus. Neither composes, so that the compositor is always the same.
kwin_x11) KWIN_COMPOSE=N start wm dbus-run-session -- kwin_x11 ;;
xfwm4) start wm dbus-run-session -- xfwm4 --compositor=off ;;
*) fail "no window manager is called $DESKTOP_WM" ;;
esac
if [ "${DESKTOP_WM:-openbox}" != 0 ]; then
    await "the window manager" manager_is_up
fi

# A compositor is there when somebody owns its selection.
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
if [ "${DESKTOP_COMPOSITOR:-1}" != 0 ]; then
    start picom picom --backend xrender --config /dev/null
    await "the compositor" compositor_is_up
fi

# In the background and waited for, so that a signal to this script is heard at once.
"$@" <&0 &
command_pid=$!
wait "$command_pid"
status=$?
command_pid=
exit "$status"
