# Opens the utility with the stand-in agent beside it: on the person's display, or else on one of its own for a picture. Sourced by ./dev.

run_folder="$root/build/run"
window_title='Velmora Setup Utility'

run_main() {
    setup_packages
    if ! can_build_windows || ! wine_available; then
        run_on_stand_in
        return
    fi
    wine_make_prefix
    step "build windows" build_preset windows utility agent
    # Every run begins as on a PC that has never seen the utility: no service, no auto-start value, no settings.
    rm -rf "$run_folder"
    mkdir -p "$run_folder"
    cp "build/windows/app/resources/$exe_name" build/windows/tools/agent/Velmora.exe "$run_folder/"
    run_prefix="$root/build/wine-run"
    wine_end_session "$run_prefix"
    wine_clone "$run_prefix"
    run_started=()
    trap run_end EXIT
    if [ -n "${DISPLAY:-}" ]; then
        run_for_person
    else
        run_for_picture
    fi
}

# Ends what run_main started, and nothing else.
run_end() {
    local process
    wine_end_session "$run_prefix"
    for process in "${run_started[@]}"; do
        kill "$process" 2>/dev/null && wait "$process" 2>/dev/null
    done
    return 0
}

# use_display <Managed: Y where a window manager frames the window, N where Wine draws the frame itself>
use_display() {
    wine_in "$run_prefix" wineserver -p20 </dev/null >/dev/null 2>&1 || true
    wine_in "$run_prefix" wine reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d x11 /f </dev/null >/dev/null 2>&1
    wine_in "$run_prefix" wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d "$1" /f </dev/null >/dev/null 2>&1
    # The driver is chosen when a session starts.
    wine_end_session "$run_prefix"
    wine_start_session "$run_prefix" 20
}

run_for_person() {
    echo "the real exe under Wine, on display $DISPLAY; its files are in build/run until the next run"
    use_display Y
    cd "$run_folder"
    wine_in "$run_prefix" wine "$exe_name" </dev/null
}

# Starts a display of its own for this run's prefix, of `display_size`; run_end ends it.
virtual_display() {
    command -v Xvfb >/dev/null && command -v import >/dev/null || { echo "no display, and no Xvfb and ImageMagick to make a picture with" >&2; return 1; }
    local number=471
    while [ -e "/tmp/.X11-unix/X$number" ] || [ -e "/tmp/.X$number-lock" ]; do number=$((number + 1)); done
    Xvfb ":$number" -screen 0 "${display_size:-800x700}x24" -nolisten tcp </dev/null >/dev/null 2>&1 &
    run_started+=($!)
    export DISPLAY=":$number"
    local tries
    for tries in {1..50}; do [ -e "/tmp/.X11-unix/X$number" ] && break; sleep 0.1; done
    use_display N
}

run_for_picture() {
    virtual_display || return 1
    echo "no display: the real exe under Wine on a virtual one, for a picture"

    # Something to see: a password, and the agent running as a service.
    cd "$run_folder"
    printf '[Settings]\r\nPwd=AYWJj\r\n' >Velmora.ini
    local agent
    agent="\"$(wine_in "$run_prefix" winepath -w "$run_folder/Velmora.exe" </dev/null 2>/dev/null | tr -d '\r')\""
    wine_in "$run_prefix" wine sc create Velmora 'binPath=' "$agent" </dev/null >/dev/null 2>&1
    wine_in "$run_prefix" wine sc start Velmora </dev/null >/dev/null 2>&1
    wine_in "$run_prefix" wine "$exe_name" </dev/null >/dev/null 2>&1 &
    run_started+=($!)
    # Four seconds are three looks at the service, which takes half of that to start.
    sleep 4
    import -window "$window_title" window.png
    echo "the window: build/run/window.png"
}

run_on_stand_in() {
    can_build_native || { echo "neither Wine with its compiler nor the native compiler is here" >&2; return 1; }
    echo "Wine can't be had here: this is the utility on the stand-in PC, not the real exe"
    step "build native" build_preset native desk
    mkdir -p "$run_folder"
    if [ -t 0 ]; then
        echo "type what a user would do; tools/desk/tour.txt is an example, Ctrl+D ends"
        build/native/tools/desk/desk
    else
        build/native/tools/desk/desk <tools/desk/tour.txt
        echo "the window: build/run/window.png"
    fi
}
