# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

# Starts each Wayland session for a test: a compositor that draws nowhere, with its own X server for
# the program under test. Sourced by with-desktop.sh.

is_wayland_session() { # NAME
  case $1 in
    kwin_wayland | mutter_wayland | sway) return 0 ;;
    *) return 1 ;;
  esac
}

# Sets DISPLAY, and for the harness: DESKTOP_INPUT, the protocol for its input; DESKTOP_WAYLAND, the
# compositor's socket; DESKTOP_USER, the user that it runs as, if that is another one.
start_wayland_session() { # NAME WIDTHxHEIGHT
  local size=$2 as_user=()
  # KWin and sway refuse to run as root. Mutter must be the same user as the test, or the
  # session bus refuses the test.
  if [ "$(id -u)" = 0 ] && [ "$1" != mutter_wayland ]; then
    as_user=(setpriv --reuid=nobody --regid=nogroup --clear-groups)
    export DESKTOP_USER=$(id -u nobody):$(getent group nogroup | cut -d: -f3)
    chmod 711 "$base"
    chown -R nobody:nogroup "$home" "$base/runtime"
  fi
  # Tells where the session is, and lets all local users in.
  cat >"$base/inside.sh" <<'SCRIPT'
#!/bin/sh
xhost +local: >/dev/null
printf '%s\n%s\n' "$DISPLAY" "$WAYLAND_DISPLAY" >"$XDG_RUNTIME_DIR/session.new"
mv "$XDG_RUNTIME_DIR/session.new" "$XDG_RUNTIME_DIR/session"
exec sleep infinity
SCRIPT
  chmod 755 "$base/inside.sh"
  start_bus "${as_user[@]}"
  case $1 in
    kwin_wayland)
      # A copy has no file capabilities, which containers may not grant.
      cp "$(command -v kwin_wayland)" "$base/kwin_wayland"
      export DESKTOP_INPUT=kwin
      KWIN_WAYLAND_NO_PERMISSION_CHECKS=1 QT_QPA_PLATFORM='' start kwin "${as_user[@]}" \
        "$base/kwin_wayland" --virtual --xwayland --no-lockscreen --no-global-shortcuts \
        --no-kactivities --width "${size%x*}" --height "${size#*x}" "$base/inside.sh"
      ;;
    mutter_wayland)
      export DESKTOP_INPUT=mutter
      GSETTINGS_BACKEND=memory start mutter mutter --wayland --headless \
        --virtual-monitor "$size" -- "$base/inside.sh"
      ;;
    sway)
      export DESKTOP_INPUT=sway
      printf 'output HEADLESS-1 resolution %s position 0 0\nxwayland force\nexec %s\n' \
        "$size" "$base/inside.sh" >"$base/sway"
      chmod 644 "$base/sway"
      WLR_BACKENDS=headless WLR_LIBINPUT_NO_DEVICES=1 WLR_RENDERER=pixman start sway \
        "${as_user[@]}" sway --config "$base/sway"
      ;;
  esac
  await "the Wayland session" test -s "$XDG_RUNTIME_DIR/session"
  DISPLAY=$(sed -n 1p "$XDG_RUNTIME_DIR/session")
  export DISPLAY
  export DESKTOP_WAYLAND=$XDG_RUNTIME_DIR/$(sed -n 2p "$XDG_RUNTIME_DIR/session")
  await "its window manager" manager_is_up
}
