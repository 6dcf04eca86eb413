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

# What an exe may bind at its start: Windows takes these from its own folder only (they are "known DLLs"), so that a file beside the exe cannot
# stand in for them. A compiler's runtime is not among them.
known_dlls=' advapi32.dll gdi32.dll kernel32.dll msvcrt.dll ole32.dll oleaut32.dll shell32.dll shlwapi.dll user32.dll '

# It is to start at once, from a slow disk or over a network too. The tables of 32-bit programs for exceptions are larger.
largest_x64=$((480 * 1024)) largest_x86=$((540 * 1024))

# The version, from the one place that it stands in: project_version <CMakeLists.txt>
project_version() { sed -n 's/^project(.* VERSION \([0-9.]*\) .*/\1/p' "$1"; }

# check_version <exe>: its properties and its manifest tell the project's version.
check_version() {
    local version wanted wrong=0 resources
    version="$(project_version CMakeLists.txt)"
    resources="$(x86_64-w64-mingw32-windres --input-format=coff --output-format=rc "$1")"
    for wanted in "FILEVERSION ${version//./, }, 0" "PRODUCTVERSION ${version//./, }, 0" \
        "\"FileVersion\", \"$version.0\"" "\"ProductVersion\", \"$version\"" "name=\"\"Velmora.SetupUtility\"\" version=\"\"$version.0\"\""; do
        grep -qF -e "$wanted" <<<"$resources" || { echo "$1 does not say $wanted"; wrong=1; }
    done
    return $wrong
}

# check_exe <exe>: what it binds at its start, the guards that Windows lends to those who ask in their header, and its version.
check_exe() {
    local dll flag wrong=0 header largest
    check_version "$1" || wrong=1
    for dll in $(imported_dlls "$1"); do
        [[ "$known_dlls" == *" $dll "* ]] || { echo "$1 binds $dll at its start"; wrong=1; }
    done
    header="$(x86_64-w64-mingw32-objdump -p "$1")"
    largest=$([[ "$header" == *pei-x86-64* ]] && echo $largest_x64 || echo $largest_x86)
    [ "$(stat -c %s "$1")" -le "$largest" ] || { echo "$1 is larger than $largest bytes"; wrong=1; }
    for flag in DYNAMIC_BASE NX_COMPAT TERMINAL_SERVICE_AWARE $([[ "$header" == *pei-x86-64* ]] && echo HIGH_ENTROPY_VA); do
        [[ "$header" == *"$flag"* ]] || { echo "$1 has no $flag"; wrong=1; }
    done
    return $wrong
}

# dist_folder <preset> <folder>
dist_folder() {
    local built="build/$1" folder="dist/$2"
    mkdir -p "$folder" && cp "$built/app/resources/$exe_name" "$built/tools/agent/Velmora.exe" "$folder/" &&
        check_exe "$folder/$exe_name"
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
