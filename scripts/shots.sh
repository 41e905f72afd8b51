# SPDX-FileCopyrightText: 2026 The Hintreels authors
# SPDX-License-Identifier: MIT
# shellcheck shell=bash
#
# Takes pictures of Sketchpad's hints, for scripts/demo.

# shellcheck source-path=SCRIPTDIR source=lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

scale=1 # pixels of a picture for one of the application
menus=0 # popups that are open and no hint
window_x=0 # where the window stands that the pointer is in, in pixels of the application
window_y=0

# The hints that the page shows, by the object names of their widgets.
tools=(toolSelect toolPen toolLine toolRectangle toolEllipse toolText toolEraser toolFill toolZoom)
tool_bar=(fileNew fileExport editUndo editRedo editDelete alignLeft alignCenter alignRight alignTop
    alignMiddle alignBottom viewZoomIn viewZoomOut viewZoomFit viewDarkTheme)
widgets=(strokeColor fillColor strokeWidth canvas statusPosition statusZoom)

# Starts Sketchpad with the given options, and waits until it says where its widgets are.
start_sketchpad() {
    step "start Sketchpad $*"
    geometry=$temporary_directory/geometry
    log=$temporary_directory/sketchpad.log
    rm -f "$geometry"
    : >"$log"
    become_application "$log" "$sketchpad" --geometry-file "$geometry" "$@" &
    started_processes+=($!)
    wait_until 20 test -s "$geometry" || fail "Sketchpad showed no window: $(cat "$log")"
}

stop_sketchpad() {
    local pid=${started_processes[-1]}
    unset 'started_processes[-1]'
    kill "$pid"
    wait "$pid" 2>/dev/null || true
    if grep -F '.qml:' "$log"; then
        fail "the QML of a hint has errors"
    fi
}

# area_of NAME: what the application takes for left, top, width and height of a widget.
area_of() {
    awk -v name="$1" '$1 == name { print $2, $3, $4, $5 }' "$geometry"
}

# center_of NAME: sets x and y.
center_of() {
    local left top width height
    read -r left top width height < <(area_of "$1") || fail "Sketchpad shows no $1"
    x=$((scale * (window_x + left + width / 2)))
    y=$((scale * (window_y + top + height / 2)))
}

# enter_dialog NAME: from here on the pointer rests in this dialog.
enter_dialog() {
    local width height
    read -r _ _ width height < <(area_of "$1")
    read -r window_x window_y < <(dialog_corner "$width" "$height")
}

popup_is_gone() { [[ -z $(open_popups "$log") ]]; }

# A press beside the popup hides it; the status bar left of its labels has no hint of its own.
hide_popup() {
    local beside=$((popup_x > 340 * scale ? 300 * scale : 1000 * scale))
    center_of statusZoom
    xdotool mousemove "$beside" "$y" click 1
    wait_until 5 popup_is_gone || fail "the popup did not go after a press beside it"
}

# A dialog lets nobody press beside it, and Escape is its popup's first. Then the press brings the
# keyboard back, which not every window manager does.
close_dialog() {
    xdotool key Escape
    wait_until 5 popup_is_gone || fail "the popup did not go with Escape"
    xdotool key Escape
    wait_until 5 dialog_is_gone || fail "the dialog did not go with Escape"
    window_x=0 window_y=0
    hide_popup
}

dialog_is_gone() { [[ -z $(area_of newDrawing) ]]; }

# The pointer arrives in two moves, as a hand's would.
rest_on() {
    center_of "$1"
    xdotool mousemove $((x - 4)) $((y - 3)) sleep 0.05 mousemove "$x" "$y"
}

take_screen() {
    import -window "$(window_of_pictures)" "$temporary_directory/screen.png"
}

# A blank popup is a plain area with a frame; a painted one has the shades of smooth letters.
popup_is_painted() {
    local colors
    take_screen
    colors=$(convert "$temporary_directory/screen.png" -crop "$popup_area" +repage \
        -format %k info:)
    ((colors >= 24))
}

# Takes a picture of the screen, and succeeds when it is the same as the one before.
screen_is_still() {
    mv -f "$temporary_directory/screen.png" "$temporary_directory/before.png"
    take_screen
    cmp -s "$temporary_directory/screen.png" "$temporary_directory/before.png"
}

# cut_from LEFT RIGHT LENGTH END: sets from and length to a part of 0 to END that shows LEFT to RIGHT
# with a margin, in which a menu has room, at least LENGTH long; the latter two in pixels of the
# application.
cut_from() {
    local margin=$(((menus > 0 ? 120 : 30) * scale)) left=$1 right=$2 least=$(($3 * scale)) end=$(($4 * scale))
    length=$((right - left + 2 * margin))
    length=$((length < least ? least : length))
    length=$((length > end ? end : length))
    from=$((left > margin ? left - margin : 0))
    from=$((from + length > end ? end - length : from))
}

# picture_of FILE: cuts the popup with its surroundings and the spot x, y out of the screen.
picture_of() {
    local from length width left right top bottom
    right=$((popup_x + popup_width))
    bottom=$((popup_y + popup_height))
    cut_from $((x < popup_x ? x : popup_x)) $((x > right ? x : right)) 640 1280
    left=$from width=$length
    cut_from $((y < popup_y ? y : popup_y)) $((y > bottom ? y : bottom)) 480 800
    top=$from
    convert "$temporary_directory/screen.png" -crop "${width}x$length+$left+$top" +repage "$1"
}

# picture_with_pointer FILE
picture_with_pointer() {
    draw_pointer "$temporary_directory/screen.png" "$x" "$y"
    picture_of "$1"
}

# Measures the popup. Where there is no hint, Qt shows a tooltip of one line, which does not count;
# nor does a window that goes before it is measured, as a popup's first one does.
measure_popup() {
    read -r popup_x popup_y popup_width popup_height < <(
        open_popups "$log" | tail -n "+$((menus + 1))" | tail -1 |
            awk -v scale="$scale" -v x="$window_x" -v y="$window_y" \
                '{ print scale * (x + $1), scale * (y + $2), scale * $3, scale * $4 }'
    ) && ((popup_height > 60 * scale))
}

# find_popup WHAT: waits for the hint's popup, and sets popup_x and so on to where it is.
find_popup() {
    wait_until 10 measure_popup ||
        fail "no hint came for $1: $(cat "$log")"
    popup_area=${popup_width}x$popup_height+$popup_x+$popup_y
}

# show_hint WIDGET: rests the pointer on a widget until its hint is painted.
show_hint() {
    rest_on "$1"
    find_popup "$1"
    wait_until 8 popup_is_painted || fail "the popup for $1 stayed blank"
    # Pictures come in a little later; a clip never stands still, and shows something by then.
    wait_until 3 screen_is_still || true
    find_popup "$1"
}

# shoot WIDGET FILE CAPTION: takes a picture of a widget's hint.
shoot() {
    show_hint "$1"
    picture_with_pointer "$shots/$2.png"
    add_figure "$2" "$3"
    hide_popup
}

# The pin in the popup's upper right corner makes a window of the hint, which stays beside the next.
shoot_detached() {
    step "Detached hint"
    begin_section "A hint that was pinned, beside the next one"
    show_hint toolPen
    xdotool mousemove $((popup_x + popup_width - 24 * scale)) $((popup_y + 25 * scale)) \
        sleep 0.2 click 1
    wait_until 5 hint_is_pinned Pen || fail "a click on the pin made no window of the hint"
    move_pinned_window Pen
    show_hint toolEllipse
    cp "$temporary_directory/screen.png" "$shots/detached.png"
    add_figure detached "toolPen, pinned, and toolEllipse"
    end_section
    hide_popup
}

hint_is_pinned() { popup_is_gone && is_pinned "$log" "$1"; }

# shoot_keys FILE CAPTION KEY...: has the keyboard show the hint of what has the focus, enters it,
# presses the keys and takes a picture.
shoot_keys() {
    local file=$1 caption=$2
    shift 2
    xdotool key shift+F1
    find_popup "the focus"
    wait_until 8 popup_is_painted || fail "the popup for the focus stayed blank"
    xdotool key --delay 100 shift+F1 "$@"
    wait_until 3 screen_is_still || true
    find_popup "the focus"
    x=$popup_x y=$((popup_y + popup_height))
    picture_of "$shots/$file.png"
    add_figure "$file" "$caption"
    xdotool key --delay 100 Escape Escape Escape # out of the hint; the hint; a menu
    wait_until 5 popup_is_gone || fail "the popup did not go with Escape"
}

# The pointer rests on the status bar meanwhile.
shoot_keyboard() {
    center_of statusZoom
    xdotool mousemove $((300 * scale)) "$y" click 1
    shoot_keys "$1keys-canvas" "$2the canvas has the focus, and the keyboard is in its hint"
    xdotool key --delay 200 alt+f Down
    shoot_keys "$1keys-menu" "$2the pin in the hint of a menu's entry" Tab
}

# The same hint at first, and in full; the settings of the reader are Sketchpad's.
shoot_small() {
    step "Small style"
    begin_section "A hint that starts small, and in full"
    mkdir -p "$XDG_CONFIG_HOME/Hintreels"
    printf '[Hintreels]\nstartsSmall=1\n' >"$XDG_CONFIG_HOME/Hintreels/Sketchpad.conf"
    start_sketchpad
    rest_on toolPen
    find_popup toolPen
    wait_until 8 popup_is_painted || fail "the popup for toolPen stayed blank"
    picture_with_pointer "$shots/small-toolPen.png"
    add_figure small-toolPen "toolPen, small at first"
    wait_until 10 popup_is_higher_than "$popup_height" || fail "the rest of the hint did not come"
    show_hint toolPen
    picture_with_pointer "$shots/full-toolPen.png"
    add_figure full-toolPen "toolPen in full, after a rest"
    stop_sketchpad
    rm "$XDG_CONFIG_HOME/Hintreels/Sketchpad.conf"
    end_section
}

popup_is_higher_than() { measure_popup && ((popup_height > $1)); }

# shoot_settings LOCALE: the settings of the reader, on the whole screen.
shoot_settings() {
    start_sketchpad --locale "$1"
    xdotool key alt+h
    wait_until 5 area_is_known menu/helpHints || fail "no menu opened"
    center_of menu/helpHints
    xdotool mousemove "$x" "$y" click 1
    wait_until 5 area_is_known hintSettings || fail "no settings opened"
    take_screen
    wait_until 3 screen_is_still || true
    cp "$temporary_directory/screen.png" "$shots/settings-$1.png"
    add_figure "settings-$1" "The settings of the reader, $1"
    stop_sketchpad
}

shoot_menu() {
    step "Menu"
    xdotool key alt+t
    wait_until 5 area_is_known menu/toolPen || fail "no menu opened"
    menus=1
    shoot menu/toolPen menu "toolPen, in a menu"
    menus=0
}

# A line that is drawn is what a new drawing asks about.
shoot_dialog() {
    step "Dialog"
    center_of canvas
    xdotool key p mousemove "$x" "$y" mousedown 1 mousemove_relative 60 40 mouseup 1 key ctrl+n
    wait_until 5 area_is_known startAnew || fail "no dialog opened"
    enter_dialog newDrawing
    show_hint startAnew
    picture_with_pointer "$shots/dialog.png"
    add_figure dialog "startAnew, in a dialog"
    close_dialog
}

area_is_known() { [[ -n $(area_of "$1") ]]; }

shoot_all() {
    local name
    step "$1"
    begin_section "$1"
    shift
    for name in "$@"; do
        shoot "$name" "$name" "$name"
    done
    end_section
}

begin_section() {
    printf '<h2>%s</h2><div class="grid">\n' "$1" >>"$page"
}

end_section() {
    printf '</div>\n' >>"$page"
}

add_figure() {
    printf '<figure><img src="%s.png" alt="The hint of %s"><figcaption>%s</figcaption></figure>\n' \
        "$1" "$2" "$2" >>"$page"
}

# begin_page DISPLAY
begin_page() {
    cat >"$page" <<HTML
<!DOCTYPE html>
<html lang="en">
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>Sketchpad's hints</title>
<style>
  body { margin: 0 auto; max-width: 1500px; padding: 2rem; background: #eef0f3; color: #1f2733;
         font: 16px/1.5 system-ui, sans-serif; }
  h1, h2 { font-weight: 600; }
  .grid { columns: 420px; column-gap: 1.5rem; }
  figure { break-inside: avoid; margin: 0 0 1.5rem; background: #fff; border-radius: 10px;
           overflow: hidden; box-shadow: 0 1px 4px #0002; }
  img { display: block; width: 100%; }
  figcaption { padding: .6rem 1rem; color: #5b6472; font-size: .9rem; }
</style>
<h1>Sketchpad's hints</h1>
<p>The pointer rested on each of these; the pictures are of a real screen ($1).</p>
HTML
}

# take_shots SKETCHPAD DIR DISPLAY: takes all pictures of a Sketchpad that is built.
# DISPLAY is x11 or wayland.
take_shots() {
    sketchpad=$1
    mkdir -p "$2"
    shots=$(cd "$2" && pwd)
    page=$shots/index.html
    begin_page "$3"
    # shellcheck source-path=SCRIPTDIR source=shots-wayland.sh
    source "$root/scripts/shots-$3.sh"
    start_shots_display "$scale"
    export XDG_CONFIG_HOME=$temporary_directory/config # a reader who has decided nothing yet
    shoot_everything
    stop_started
    if [[ $3 == wayland ]]; then
        scale=2
        start_shots_display "$scale"
        shoot_scaled
    fi
    printf '</html>\n' >>"$page"
    printf 'The pictures are in %s\nSee them all in %s\n' "$shots" "$page"
}

shoot_everything() {
    local locale theme
    start_sketchpad
    shoot_all "Tools" "${tools[@]}"
    shoot_all "Tool bar" "${tool_bar[@]}"
    shoot_all "Other widgets" "${widgets[@]}"
    begin_section "Menu and dialog"
    shoot_menu
    shoot_dialog
    end_section
    shoot_detached
    step "Keyboard"
    begin_section "Without a pointer"
    shoot_keyboard "" ""
    end_section
    stop_sketchpad

    shoot_small
    begin_section "What the reader decides"
    for locale in en_US de_DE ar_EG; do
        shoot_settings "$locale"
    done
    end_section

    begin_section "High contrast"
    for theme in contrast dark-contrast; do
        start_sketchpad --theme "$theme"
        shoot toolPen "$theme-toolPen" "toolPen, theme $theme"
        shoot viewZoomFit "$theme-viewZoomFit" "viewZoomFit, theme $theme"
        shoot_keyboard "$theme-" "Theme $theme: "
        stop_sketchpad
    done
    end_section

    begin_section "Dark theme and German"
    start_sketchpad --theme dark
    shoot toolPen dark-toolPen "toolPen, dark theme"
    shoot toolEllipse dark-toolEllipse "toolEllipse, dark theme"
    shoot_keyboard dark- "Dark theme: "
    stop_sketchpad
    start_sketchpad --locale de_DE
    shoot toolPen german-toolPen "toolPen in German"
    shoot viewZoomFit german-viewZoomFit "viewZoomFit, with German as the language of the hints"
    stop_sketchpad
    end_section
}

shoot_scaled() {
    begin_section "Twice as fine"
    start_sketchpad
    shoot toolPen scaled-toolPen "toolPen, two pixels of the screen for each"
    shoot canvas scaled-canvas "canvas, two pixels of the screen for each"
    stop_sketchpad
    end_section
}
