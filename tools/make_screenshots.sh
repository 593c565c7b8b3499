#!/usr/bin/env bash
# make_screenshots.sh [OUT [BUILD]]: takes a picture of every pane, dialog and menu of the window, light and dark, on a
# screen, a network and a folder of its own: nobody sees the windows, and the practice web has its usual port. OUT is
# docs/screenshots, BUILD build/release. LANTERRA_SCREEN (1024x700) and QT_SCALE_FACTOR give other sizes.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

mapfile -t packages < <(grep -v '^#' tools/screenshot_packages.txt)
tools/install_packages.sh "${packages[@]}"
[ -n "${LANTERRA_OWN_NETWORK-}" ] || LANTERRA_OWN_NETWORK=1 exec unshare --map-root-user --net --mount tools/make_screenshots.sh "$@"
ip link set lo up

out=${1-docs/screenshots}
build=${2-build/release}
mkdir -p "$out"
out=$(readlink -f "$out") build=$(readlink -f "$build")

mount -t tmpfs none /srv # the pictures show the folder, so it has one name on every machine
work=/srv/ada
mkdir "$work"
jobs=()
trap 'kill "${jobs[@]}" 2>/dev/null || true; rm -rf "$work"' EXIT
export XDG_CONFIG_HOME=$work/config HOME=$work QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8
unset DBUS_SESSION_BUS_ADDRESS WAYLAND_DISPLAY

pause() { read -rt 0.1 <> <(:) || true; }

# await WHAT COMMAND...: until the command succeeds.
await() {
    for ((i = 0; i < 100; i++)); do
        "${@:2}" >/dev/null 2>&1 && return
        pause
    done
    echo "make_screenshots.sh: waited in vain for $1, see $out/failure.png" >&2
    import -silent -window root "$out/failure.png"
    return 1
}

start_screen() {
    Xvfb -displayfd 3 -screen 0 "${LANTERRA_SCREEN-1024x700}x24" -nolisten tcp 3>"$work/display" 2>/dev/null &
    jobs+=($!)
    await "the screen" grep -q . "$work/display"
    DISPLAY=:$(<"$work/display")
    export DISPLAY
    # The main window fills the screen.
    cat >"$work/openbox.xml" <<-END
	<openbox_config xmlns="http://openbox.org/3.4/rc">
	<theme><name>Clearlooks</name></theme>
	<applications><application title="Zephyrine Lanterra 2*"><maximized>yes</maximized></application></applications>
	</openbox_config>
	END
    openbox --config-file "$work/openbox.xml" 2>/dev/null &
    jobs+=($!)
    await "the window manager" xdotool get_num_desktops
    xdotool mousemove 10000 10000
}

# start_park OPTION...: a practice web in the place of the one before it.
start_park() {
    [ -z "${park-}" ] || { kill "$park" && wait "$park" || true; }
    "$build/bin/lanterra-park" --log "$work/requests" "$@" >"$work/park" &
    park=$!
    jobs+=("$park")
    await "the practice web" grep -q http "$work/park"
}

screen() { import -silent -window root "ppm:$1"; }
still() {
    screen "$work/before.ppm"
    pause
    screen "$work/now.ppm"
    cmp -s "$work/before.ppm" "$work/now.ppm"
}
differs() {
    screen "$work/now.ppm"
    ! cmp -s "$work/last.ppm" "$work/now.ppm"
}

# picture NAME: the screen as it is. shot NAME: as soon as it has changed since the last picture and stands still.
picture() {
    screen "$work/last.ppm"
    convert "$work/last.ppm" +dither -colors 128 "png8:$out/$1-$scheme.png"
}
shot() {
    await "a change before $1" differs
    await "the screen of $1 to stand still" still
    picture "$1"
}

key() { xdotool key --clearmodifiers "$@"; }
# press KEY...: one after the other, each on a window that has done what the one before it asked for.
press() {
    local each
    for each in "$@"; do
        key "$each"
        await "the effect of $each" still
    done
}
titled() { await "the window $1" xdotool search --onlyvisible --name "$1"; }
gone() { await "the end of the window $1" bash -c "! xdotool search --onlyvisible --name '$1'"; }
focus() {
    titled "$1"
    xdotool search --onlyvisible --name "$1" windowactivate --sync
}
# dialog NAME TITLE KEY...: its picture; then it is closed.
dialog() {
    key "${@:3}"
    focus "$2"
    shot "$1"
    key Escape Escape # the first may end the typing into a list
    gone "$2"
    focus "$main_title"
}

main_title='^Zephyrine Lanterra 2 - '
start_program() {
    "$build/bin/lanterra" --home "$home" --colours "$scheme" "$@" 2>"$work/errors" &
    program=$!
    jobs+=("$program")
}
end_program() {
    key ctrl+q
    await "the end of the program" bash -c "! kill -0 $program"
}

# A program folder with the example project and three runs of it.
make_home() {
    home=$work/$scheme/Lanterra
    project=$home/Projects/Example.rts
    mkdir "$work/$scheme"
    cp -r "$build/home" "$home"
    rm -rf "$home/Projects" "$home/config" "$XDG_CONFIG_HOME"
    mkdir "$home/Projects"
    local fields cli=("$build/bin/lanterra-cli" --home "$home")
    mapfile -t fields < <(grep -vE '^[[:space:]]*(#|$)' "$home/example_project.txt")
    start_park
    {
        "${cli[@]}" new "$project" "${fields[@]}" txtLimit=3 Check3=0
        "${cli[@]}" category "$project" --keyword shop
        "${cli[@]}" select "$project" --directories
        "${cli[@]}" submit "$project"
        "${cli[@]}" select "$project" --all
        "${cli[@]}" submit "$project"
    } >"$work/cli" 2>&1
}

first_start() {
    start_program
    focus 'Welcome!'
    shot welcome
    key alt+c
    focus '^Zephyrine Lanterra$'
    shot start
    key alt+c Return
    focus 'Create a new project'
    shot project-name
    key ctrl+a BackSpace Return
    focus '^Error$'
    shot message
    key Return
    gone '^Error$'
    focus 'Create a new project'
    key Return
    focus "$main_title"
    key alt+h
    shot menu-help
    key Down Down Return
    shot pane-about
    end_program
}

panes() {
    local letter name
    while read -r letter name; do
        key "alt+$letter"
        shot "pane-$name"
    done <<-END
	d description
	e other-data
	i sites
	c categories
	t statistics
	a search
	u submission
	END
}

menus() {
    local letter name
    while read -r letter name; do
        key "alt+$letter"
        shot "menu-$name"
        key Escape Escape
    done <<-END
	f file
	v view
	s select-sites
	o options
	END
}

dialogs() {
    dialog settings '^Settings$' alt+o s Return
    dialog web-browser '^Web browser$' alt+o w
    dialog report-screen '^Report$' alt+v r
    dialog top-engines '^Top Search Engines$' alt+o t
    dialog support '^Technical Support$' alt+h t
    press alt+d alt+r # the box in front of the button, which has no letter of its own
    dialog multiple-urls '^Multiple URLs$' Tab space
    dialog help '^Help$' F1
}

requests() { [ "$(wc -l <"$work/requests")" -ge "$1" ]; }
run_ended() { [ "$report" -nt "$work/before" ]; }

run() {
    start_park --latency 300
    report=$home/Projects/Example/report.htm
    touch "$work/before"
    : >"$work/requests"
    press alt+u
    screen "$work/last.ppm"
    press alt+b
    shot popup-submit
    key u
    await "forty requests" requests 40
    picture pane-submission-running
    await "the end of the run" run_ended
    shot pane-submission-after
}

tour() {
    scheme=$1
    make_home
    first_start
    sed -i 's/^LoadLastProject=.*/LoadLastProject="0"/' "$XDG_CONFIG_HOME/Lanterra.ini"
    start_program "$project"
    focus "$main_title"
    panes
    menus
    dialogs
    run
    end_program
}

start_screen
for colours in ${LANTERRA_SCHEMES-light dark}; do
    tour "$colours"
done
