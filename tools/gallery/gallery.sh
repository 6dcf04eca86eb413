# The controls to play with, and the pictures in docs/.
# the controls live, with their properties; without a display renews the pictures in docs/; --screens, --draw, --sheet: see tools/gallery
. tools/run.sh

# import_window <file> <geometry>: the window and what stands over it.
import_window() { import -window root -crop "$2" +repage "$1"; }

# open_window <command...>: a Windows program that runs until close_window.
open_window() {
    wine_in "$run_prefix" wine "$@" </dev/null >/dev/null 2>&1 &
    run_started+=($!)
    sleep 4
}

# pose <what...>: what gallery.exe can do with the open window.
pose() { wine_in "$run_prefix" wine gallery.exe "$@" </dev/null 2>/dev/null | tr -d '\r'; }

close_window() { pose close && wait "${run_started[-1]}"; }

prepare() {
    wine_make_prefix
    step "build windows" build_preset windows utility agent gallery
    run_folder="$root/build/gallery-run"
    mkdir -p "$run_folder"
    cp "build/windows/app/resources/$exe_name" build/windows/tools/agent/Velmora.exe build/windows/tools/gallery/gallery.exe "$run_folder/"
    run_prefix="$root/build/wine-gallery"
    wine_clone "$run_prefix"
    run_started=()
    trap run_end EXIT
}

live() {
    prepare
    use_display Y
    cd "$run_folder"
    wine_in "$run_prefix" wine gallery.exe </dev/null
}

pictures() {
    prepare
    display_size=1024x768
    virtual_display
    cd "$run_folder"

    local place
    open_window "$exe_name"
    place=$(pose hover 300 530)
    sleep 1
    import_window "$root/docs/frames-classic.png" "$place"
    pose hover 95 48 >/dev/null
    sleep 2
    import_window "$root/docs/tip.png" "${place%%x*}x180${place#"${place%%+*}"}"
    close_window
    open_window gallery.exe themed
    place=$(pose hover 300 530)
    sleep 1
    import_window "$root/docs/frames-themed.png" "$place"
    close_window
    pose --sheet 0 18 113x33 caption=Install cut=0xF0F0F0 buttons.png
    convert buttons.png -strip "$root/docs/buttons.png"
    open_window gallery.exe
    import -window "The controls" "$root/docs/gallery.png"
    convert "$root/docs/gallery.png" -crop 702x24+4+691 -strip +repage "$root/docs/checkboxes.png"
    convert "$root/docs/gallery.png" -crop 702x44+4+712 -strip +repage "$root/docs/textboxes.png"
    ls -l "$root"/docs/*.png
}

# screen_picture <dots an inch> <display size> <file> [pose...]: the utility's window on such a screen, in a session of its own.
screen_picture() {
    local dots="$1" display_size="$2" file="$3"
    shift 3
    (
        run_prefix="$run_prefix-$dots"
        wine_clone "$run_prefix"
        wine_set_resolution "$run_prefix" "$dots"
        run_started=()
        trap 'run_end; rm -rf "$run_prefix"' EXIT
        virtual_display
        cd "$run_folder"
        open_window "$exe_name"
        [ $# -eq 0 ] || pose "$@"
        sleep 2
        import -window root -trim +repage -strip "$root/docs/images/$file"
        close_window
    )
}

# The window in every resolution that Windows offers, and where the screen is too low for it.
screens() {
    prepare
    mkdir -p "$root/docs/images"
    local dots
    for dots in 96 120 144 192; do screen_picture "$dots" 1000x1300 "window-$dots.png"; done
    screen_picture 192 1366x768 window-192-scrolled.png scroll
    ls -l "$root"/docs/images/*.png
}

# A picture of one face or of a sheet of them, with the words that tools/gallery/Gallery.h lists. draw <native or windows> <words...>
draw() {
    local preset="$1" words file
    shift
    words=("${@:1:$#-1}")
    file="${*: -1}"
    [[ "$file" == /* ]] || file="$OLDPWD/$file"
    step "build $preset" build_preset "$preset" gallery
    if [ "$preset" = native ]; then
        build/native/tools/gallery/gallery "${words[@]}" "$file"
    else
        wine_run build/windows/tools/gallery/gallery.exe "${words[@]}" "$file"
    fi
}

case "${1:-}" in
--native) shift && draw native "$@" ;;
--screens) screens ;;
--draw | --sheet) draw windows "$@" ;;
*) if [ -n "${DISPLAY:-}" ]; then live; else pictures; fi ;;
esac
