# SPDX-FileCopyrightText: 2026 The Hintreels authors
# SPDX-License-Identifier: MIT
# shellcheck shell=bash
#
# What shots.sh asks of a display: Weston on an X server of our own, with the shell that lets each
# window fill its output, and without frames. So what the application takes for global coordinates
# is the output's.

# shellcheck source-path=SCRIPTDIR source=lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

# start_shots_display SCALE
start_shots_display() {
    start_weston 1280 800 "$1" --shell=kiosk-shell.so
    export QT_WAYLAND_DISABLE_WINDOWDECORATION=1
    # Windows open on the output with the pointer.
    xdotool mousemove 300 100
}

# become_application LOG COMMAND...: nobody but the application knows where its popups are, so it
# writes down what it hears of them.
become_application() {
    exec env WAYLAND_DEBUG=client "${@:2}" \
        2> >(exec grep --line-buffered -E '^[^[]|xdg_popup@|set_title' >"$1")
}

# The X server's window that a picture is taken of.
window_of_pictures() { weston_output 0; }

# The compositor draws the pointer itself.
draw_pointer() { :; }

# open_popups LOG: a line with left, top, width and height for each, the last opened one last, in
# pixels of the application. A popup stands beside the surface of its parent, which may be one, too.
open_popups() {
    sed -nE '
        s/.* -> xdg_surface@([0-9]+)\.get_popup\(new id xdg_popup@([0-9]+), xdg_surface@([0-9]+),.*/opens \2 \1 \3/p
        s/.*\] xdg_popup@([0-9]+)\.configure\((-?[0-9]+), (-?[0-9]+), ([0-9]+), ([0-9]+)\)/stands \1 \2 \3 \4 \5/p
        s/.* -> xdg_popup@([0-9]+)\.destroy\(\)/goes \1/p' "$1" |
        awk '
            $1 == "opens" { popup[$2] = ++count; surface[$2] = $3; parent[$2] = $4 }
            $1 == "stands" {
                left[surface[$2]] = left[parent[$2]] + $3
                top[surface[$2]] = top[parent[$2]] + $4
                area[popup[$2]] = left[surface[$2]] " " top[surface[$2]] " " $5 " " $6
            }
            $1 == "goes" {
                delete area[popup[$2]]
                delete left[surface[$2]]
                delete top[surface[$2]]
            }
            END { for (i = 1; i <= count; ++i) if (i in area) print area[i] }'
}

# dialog_corner WIDTH HEIGHT: the shell puts it into the middle, and tells nobody.
dialog_corner() { echo $(((1280 - $1) / 2)) $(((800 - $2) / 2)); }

# is_pinned LOG TITLE
is_pinned() {
    grep -q "set_title(\"$2\")" "$1"
}

# It stands where the shell puts it.
move_pinned_window() { :; }
