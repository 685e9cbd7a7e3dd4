# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

# Starts each window manager for a test. Sourced by with-desktop.sh.
#
# Each one runs with the settings of its installation, except where they would grab the pointer or
# the keyboard, as its own menus do.

# True for a window manager with its own compositor. Mutter always composites.
composites_itself() { # NAME
  case $1 in
    kwin | xfwm4 | marco | mutter) return 0 ;;
    *) return 1 ;;
  esac
}

start_window_manager() { # NAME COMPOSITOR(0 or 1)
  local on=$2
  case $1 in
    openbox)
      start openbox openbox --sm-disable --config-file "$here/openbox-rc.xml"
      ;;
    kwin)
      start_bus
      # O2 is OpenGL, which the X server draws in software; N is none.
      KWIN_COMPOSE=$([ "$on" = 1 ] && echo O2 || echo N) start kwin kwin_x11
      ;;
    xfwm4)
      start_bus
      start xfwm4 xfwm4 --compositor="$([ "$on" = 1 ] && echo on || echo off)"
      ;;
    marco)
      start_bus
      GSETTINGS_BACKEND=memory start marco marco \
        "$([ "$on" = 1 ] && echo --composite || echo --no-composite)"
      ;;
    mutter)
      start_bus
      GSETTINGS_BACKEND=memory start mutter mutter --x11 --sm-disable
      ;;
    icewm)
      start icewm icewm
      ;;
    i3)
      printf 'font monospace 10\nworkspace 1 output primary\n' >"$base/i3"
      start i3 i3 -c "$base/i3"
      ;;
    awesome)
      start_bus
      start awesome awesome
      ;;
    fluxbox)
      mkdir -p "$HOME/.fluxbox"
      # Otherwise it starts a program that complains about the missing background.
      echo 'background: none' >"$HOME/.fluxbox/overlay"
      start fluxbox fluxbox
      ;;
    *)
      fail "unknown window manager $1"
      ;;
  esac
}

# A session bus, for those that need one.
start_bus() { # [COMMAND that runs it as another user...]
  start bus "$@" dbus-daemon --session --nofork --nopidfile \
    --address="unix:path=$XDG_RUNTIME_DIR/bus"
  await "the session bus" test -S "$XDG_RUNTIME_DIR/bus"
  export DBUS_SESSION_BUS_ADDRESS=unix:path=$XDG_RUNTIME_DIR/bus
}
