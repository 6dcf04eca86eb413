# The controls to play with, and the pictures in docs/.
# the controls live, with their properties; without a display renews the pictures in docs/; --draw, --sheet: see tools/gallery/Gallery.h
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
--draw | --sheet) draw windows "$@" ;;
*) if [ -n "${DISPLAY:-}" ]; then live; else pictures; fi ;;
esac
