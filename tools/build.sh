# Configuring and building the presets, and the folder that is given away. Sourced by ./dev.

# Runs one step with its output in a log, and says how long it took. A failing step shows the end of its log.
# step <title> <command...>
step() {
    local title="$1" log start result=0
    shift
    mkdir -p build/log
    log="build/log/$(echo "$title" | tr ' /' '--').log"
    start=$(date +%s)
    [ -t 1 ] && printf '%-38s ...' "$title"
    "$@" </dev/null >"$log" 2>&1 || result=$?
    [ -t 1 ] && printf '\r'
    printf '%-38s %4d s  %s\n' "$title" $(($(date +%s) - start)) "$([ $result = 0 ] && echo done || echo "FAILED, see $log")"
    [ $result = 0 ] || tail -60 "$log"
    return $result
}

# build_preset <preset> [target...]
build_preset() {
    local preset="$1" generator=()
    shift
    # Where Ninja can't be had, make does.
    command -v ninja >/dev/null || generator=(-G "Unix Makefiles")
    cmake --preset "$preset" "${generator[@]}" && cmake --build "build/$preset" --parallel "$(nproc)" ${1:+--target "$@"}
}

exe_name='Velmora Setup Utility.exe'

# The names of all DLLs that an exe imports, in lower case.
imported_dlls() { x86_64-w64-mingw32-objdump -p "$1" | sed -n 's/.*DLL Name: //p' | tr 'A-Z' 'a-z' | sort -u; }

# Every Windows has these. Anything else (a compiler's runtime above all) would have to be given away beside the exe.
windows_dlls=' advapi32.dll comctl32.dll comdlg32.dll crypt32.dll gdi32.dll kernel32.dll msimg32.dll msvcrt.dll netapi32.dll ntdll.dll ole32.dll oleacc.dll oleaut32.dll psapi.dll shell32.dll shlwapi.dll user32.dll uxtheme.dll winspool.drv '

check_imports() {
    local dll foreign=0
    for dll in $(imported_dlls "$1"); do
        [[ "$windows_dlls" == *" $dll "* ]] || { echo "$1 needs $dll, which is no part of Windows"; foreign=1; }
    done
    return $foreign
}

# dist_folder <preset> <folder>
dist_folder() {
    local built="build/$1" folder="dist/$2"
    mkdir -p "$folder" && cp "$built/app/resources/$exe_name" "$built/tools/agent/Velmora.exe" "$folder/" &&
        check_imports "$folder/$exe_name" && check_imports "$folder/Velmora.exe"
}

build_dist() {
    can_build_windows || { echo "the Windows compiler (g++-mingw-w64-x86-64) is not here" >&2; return 1; }
    step "build windows" build_preset windows utility agent
    step "dist x64" dist_folder windows x64
    if can_build_x86; then
        step "build windows-x86" build_preset windows-x86 utility agent
        step "dist x86" dist_folder windows-x86 x86
    else
        echo "left out: dist/x86 (g++-mingw-w64-i686 is not here)"
    fi
    ls -l dist/*/*.exe
}
