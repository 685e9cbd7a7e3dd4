# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

# Completion of mouse-gestures for bash.
_mouse_gestures() {
    local current=${COMP_WORDS[COMP_CWORD]} option=${COMP_WORDS[1]-}
    local directions="up up-left left down-left down down-right right up-right"
    local triggers="middle right back forward ctrl+right shift+right alt+right meta+right default"
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        if [[ $current == -* ]]; then
            mapfile -t COMPREPLY < <(compgen -W "--bindings --list-commands --bind --ring --trigger --reset --switch-on --export \
                --import --print --doctor --explain --enable --disable --always --help --version" -- "$current")
        else
            mapfile -t COMPREPLY < <(compgen -c -- "$current")
        fi
        return
    fi
    case $option in
        --explain | --always)
            if ((COMP_CWORD == 2)); then
                mapfile -t COMPREPLY < <(compgen -c -- "$current")
            else
                mapfile -t COMPREPLY < <(compgen -f -- "$current")
            fi
            ;;
        -*)
            if ((COMP_CWORD == 2)); then
                mapfile -t COMPREPLY < <(compgen -c -- "$current")
            elif ((COMP_CWORD == 3)); then
                case $option in
                    --bindings | --list-commands) mapfile -t COMPREPLY < <(compgen -W "--json" -- "$current") ;;
                    --bind) mapfile -t COMPREPLY < <(compgen -W "$directions" -- "$current") ;;
                    --trigger) mapfile -t COMPREPLY < <(compgen -W "$triggers" -- "$current") ;;
                    --export | --import | --print) mapfile -t COMPREPLY < <(compgen -f -- "$current") ;;
                esac
            elif ((COMP_CWORD == 4)) && [[ $option == --ring ]]; then
                mapfile -t COMPREPLY < <(compgen -W "own shared" -- "$current")
            elif ((COMP_CWORD == 4)) && [[ $option == --bind ]]; then
                # Identifiers of plain letters only: compgen expands all others.
                mapfile -t COMPREPLY < <(compgen -W "none $(mouse-gestures --list-commands \
                    "${COMP_WORDS[2]}" 2>/dev/null | sed -n 's/^  \([[:alnum:]_.:-]*\)\(  .*\)*$/\1/p')" -- "$current")
            fi
            ;;
        *) mapfile -t COMPREPLY < <(compgen -f -- "$current") ;;
    esac
}
complete -o filenames -F _mouse_gestures mouse-gestures
