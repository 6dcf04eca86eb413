# What is given away: one zip for each kind of Windows and their checksums, built twice in two folders that must agree to the last byte.
# Sourced by ./dev.

release_folder="$root/build/release"

# What lies in every zip beside the exe, as <name in the zip>=<file>.
release_pages=(README.md=docs/using.md security.md=docs/security.md CHANGELOG.md=CHANGELOG.md)

# release_copy <folder>: the last commit as a folder of its own, with nothing else that lies around here.
release_copy() { mkdir -p "$1" && git archive HEAD | tar -x -C "$1"; }

# release_build <folder> <preset> <x64 or x86>: the exe and the zip of one copy.
release_build() (
    cd "$1" && built="build/$2/app/resources/$exe_name" && build_preset "$2" utility && check_exe "$built" &&
        python3 tools/pack.py "velmora-setup-$release_version-$3.zip" "$release_time" "$exe_name=$built" "${release_pages[@]}"
)

# What a release must have before minutes are spent on it.
release_can_begin() {
    local wrong=0 page
    can_build_windows || { echo "no release: the Windows compiler (g++-mingw-w64-x86-64) is not here"; wrong=1; }
    can_build_x86 || { echo "no release: the compiler for 32-bit Windows (g++-mingw-w64-i686) is not here, and a release is whole"; wrong=1; }
    if [ "$1" != --committed ] && [ -n "$(git status --porcelain)" ]; then
        echo "no release: the folder holds what is not committed (--committed releases the last commit all the same):"
        git status --short | head
        wrong=1
    fi
    for page in "${release_pages[@]}"; do
        git cat-file -e "HEAD:${page#*=}" 2>/dev/null || { echo "no release: the last commit has no ${page#*=}"; wrong=1; }
    done
    [[ "$(git show HEAD:CHANGELOG.md 2>/dev/null)" == *"## [$release_version]"* ]] ||
        { echo "no release: CHANGELOG.md says nothing of version $release_version"; wrong=1; }
    return $wrong
}

release_main() {
    local start kind zip copies=("$release_folder/one" "$release_folder/another/deeper") copy
    start=$(date +%s)
    setup_packages
    release_version="$(project_version <(git show HEAD:CMakeLists.txt))"
    # Everything in a zip carries the time of the commit that it was made from.
    release_time=$(git log -1 --format=%ct)
    release_can_begin "${1:-}" >&2 || return 1
    rm -rf "$release_folder" dist/velmora-setup-*
    for copy in "${copies[@]}"; do
        release_copy "$copy"
        for kind in x64:windows x86:windows-x86; do
            step "release ${kind%:*} in $(basename "$copy")" release_build "$copy" "${kind#*:}" "${kind%:*}" || return 1
        done
    done
    for kind in x64 x86; do
        zip="velmora-setup-$release_version-$kind.zip"
        step "compare $kind" cmp "${copies[0]}/$zip" "${copies[1]}/$zip" || return 1
    done
    mkdir -p dist && cp "${copies[0]}"/velmora-setup-*.zip dist/
    (cd dist && sha256sum "velmora-setup-$release_version"-*.zip >"velmora-setup-$release_version.sha256" && cat "velmora-setup-$release_version.sha256")
    stat -c '%s bytes  %n' "dist/velmora-setup-$release_version"-*.zip
    echo "$(($(date +%s) - start)) s in all"
}
