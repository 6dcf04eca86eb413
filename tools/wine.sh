# The project's private Wine: a prefix that is made once, clones of it, and one way to run a program in either. Sourced by ./dev.

wine_home="$root/build/wine-home"
wine_template="$root/build/wine-template"
wine_shared="$root/build/wine"

# Every Wine command goes through here, so that nothing of the caller's desktop, home or temporary folder reaches the prefix.
# wine_in <prefix> <command...>
wine_in() {
    local prefix="$1"; shift
    env -u TMPDIR -u WINESERVER HOME="$wine_home" WINEPREFIX="$prefix" WINEARCH=win64 WINEDEBUG="${WINEDEBUG:--all}" \
        WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe=' "$@"
}

wine_available() {
    command -v wine >/dev/null && command -v wineserver >/dev/null
}

# Keys that let tests run without a display (null driver), keep hiding a window fast without a window manager, turn a crash into an exit
# code instead of a debugger, and give the window's TrueType face, which only Windows has, one of the same width. Its other face, MS Sans
# Serif, Wine has as bitmaps; they are drawn as wide as they are measured, which Tahoma is not at this size.
wine_registry_text() {
    printf '%s\r\n' 'REGEDIT4' '' \
        '[HKEY_CURRENT_USER\Software\Wine\Drivers]' '"Graphics"="null"' '' \
        '[HKEY_CURRENT_USER\Software\Wine\X11 Driver]' '"Managed"="N"' '' \
        '[HKEY_LOCAL_MACHINE\Software\Microsoft\Windows NT\CurrentVersion\AeDebug]' '"Debugger"=""' '' \
        '[HKEY_CURRENT_USER\Software\Wine\Fonts\Replacements]' '"Microsoft Sans Serif"="Tahoma"' ''
}

# Makes the template and the shared prefix unless they are there. Callers that come at the same time wait for the first one.
# Nothing ever runs in the template, so that it can be cloned at any time.
wine_make_prefix() {
    local ready="$wine_shared/.ready-$(wine_registry_text | cksum | cut -d' ' -f1)"
    [ -e "$ready" ] && return
    mkdir -p "$wine_home"
    (
        flock 9
        [ -e "$ready" ] && exit 0
        echo "making the Wine prefix (about 20 s, once)" >&2
        rm -rf "$wine_template" "$wine_shared" "$root/build/wine-run"
        mkdir -p "$wine_template"
        wine_in "$wine_template" env -u DISPLAY wineboot -i </dev/null >/dev/null 2>&1 9>&-
        wine_in "$wine_template" wineserver -w </dev/null >/dev/null 2>&1 9>&-
        wine_registry_text >"$wine_template/drive_c/velmora.reg"
        wine_in "$wine_template" env -u DISPLAY wine regedit /S 'C:\velmora.reg' </dev/null >/dev/null 2>&1 9>&-
        # The registry is in its files only when the server has ended.
        wine_in "$wine_template" wineserver -w </dev/null >/dev/null 2>&1 9>&-
        rm "$wine_template/drive_c/velmora.reg"
        grep -qs '"Graphics"="null"' "$wine_template/user.reg" || { echo "the Wine prefix could not be made" >&2; exit 1; }
        cp /usr/share/wine/fonts/*.ttf /usr/share/wine/fonts/sserif*.fon "$wine_template/drive_c/windows/Fonts/" 2>/dev/null || true
        wine_clone "$wine_shared"
        touch "$ready"
    ) 9>"$root/build/wine.lock"
}

# A copy of the template that shares the system's files. Everything that Wine rewrites in place is really copied.
# wine_clone <target>
wine_clone() {
    local target="$1"
    rm -rf "$target"
    mkdir -p "$target/drive_c"
    (
        cd "$wine_template"
        cp -a system.reg user.reg userdef.reg .update-timestamp dosdevices "$target/"
        cp -al drive_c/windows "$target/drive_c/"
        find drive_c -mindepth 1 -maxdepth 1 ! -name windows -exec cp -a {} "$target/drive_c/" \;
    )
}

# The screen's dots per inch, from the next session on. Nothing may run in the prefix.
# wine_set_resolution <prefix> <dots>
wine_set_resolution() {
    printf '\n[Control Panel\\\\Desktop]\n"LogPixels"=dword:%08x\n' "$2" >>"$1/user.reg"
}

# Starts the session with its streams closed, so that no caller waits for the pipes of a server that outlives the program.
# It ends by itself <seconds> after the last program.
# wine_start_session <prefix> <seconds>
wine_start_session() {
    wine_in "$1" wineserver "-p$2" </dev/null >/dev/null 2>&1 || true
    wine_in "$1" wine cmd /c exit </dev/null >/dev/null 2>&1
}

# Ends the session of this prefix, and of no other.
wine_end_session() {
    wine_in "$1" wineserver -k </dev/null >/dev/null 2>&1 || true
    wine_in "$1" wineserver -w </dev/null >/dev/null 2>&1 || true
}

# Runs one program without a display. In the shared prefix runs may overlap, and the session ends by itself; with VELMORA_OWN_PREFIX=1
# the program gets a clone of its own, which is removed with everything that still runs in it, and with VELMORA_DPI that clone's screen has
# so many dots per inch.
# wine_run <exe> [args...]
wine_run() {
    wine_available || { echo "Wine is not installed: ./dev setup" >&2; return 1; }
    wine_make_prefix || return 1
    unset DISPLAY
    local result=0
    if [ -n "${VELMORA_OWN_PREFIX:-}" ]; then
        wine_own="$root/build/wine-clones/$BASHPID"
        mkdir -p "$root/build/wine-clones"
        wine_clone "$wine_own"
        [ -z "${VELMORA_DPI:-}" ] || wine_set_resolution "$wine_own" "$VELMORA_DPI"
        trap 'wine_end_session "$wine_own"; rm -rf "$wine_own"' EXIT
        wine_start_session "$wine_own" 5
        wine_in "$wine_own" wine "$@" || result=$?
    else
        wine_start_session "$wine_shared" 20
        wine_in "$wine_shared" wine "$@" || result=$?
    fi
    return "$result"
}
