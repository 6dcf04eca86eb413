# The whole test run: what this machine can do is done, what it can't is said. Of each fault scenario about forty Windows calls fail, one at a
# time; ./dev sweep lets all of them fail. Sourced by ./dev.

# run_tests <preset> [ctest options...]
run_tests() {
    local preset="$1"
    shift
    ctest --test-dir "build/$preset" --output-on-failure --parallel "$(nproc)" --no-tests=error "$@"
}

test_main() {
    local failed=() left_out=() start
    start=$(date +%s)
    setup_packages

    # part <title> <command...>: a step whose failure is remembered, so that the other parts still run.
    part() { step "$@" || { failed+=("$1"); return 1; }; }

    if can_build_native; then
        part "build native" build_preset native && part "test native" run_tests native || true
        part "build native-asan" build_preset native-asan && part "test native-asan" run_tests native-asan || true
    else
        left_out+=("native suite: g++, cmake or libgtest-dev is not here")
    fi
    if can_build_native_32; then
        part "build native-32" build_preset native-32 && part "test native-32" run_tests native-32 || true
    else
        left_out+=("native suite with 32 bits: g++-multilib is not here")
    fi
    if can_build_windows; then
        if part "build windows" build_preset windows && part "dist x64" dist_folder windows x64; then
            if wine_available && wine_make_prefix; then
                # Every program gets a desktop of its own, so that two can run at the same time.
                export VELMORA_OWN_PREFIX=1
                part "test windows" run_tests windows --label-exclude e2e || true
                # The end-to-end tests wait for the exe most of the time, one after the other: the other core builds the next part meanwhile.
                if can_build_x86; then
                    (renice -n 10 $BASHPID >/dev/null && step "build windows-x86 meanwhile" build_preset windows-x86 utility agent) &
                fi
                part "test e2e" run_tests windows --label-regex e2e || true
                wait
            else
                left_out+=("Windows suite and end-to-end suite: Wine is not here, they were only built")
            fi
        fi
    else
        left_out+=("Windows suite and end-to-end suite: g++-mingw-w64-x86-64 is not here")
    fi
    if can_build_x86; then
        part "build windows-x86" build_preset windows-x86 utility agent && part "dist x86" dist_folder windows-x86 x86 || true
    else
        left_out+=("dist/x86: g++-mingw-w64-i686 is not here")
    fi

    echo
    local suite log
    for suite in native native-asan native-32 windows e2e; do
        log="build/log/test-$suite.log"
        [ "$log" -nt build/log/.start ] && sed -n "s/^.*tests passed.*/$suite: &/p; s/^Total Test time/$suite: &/p" "$log"
    done
    printf 'left out: %s\n' "${left_out[@]}" | sed '/^left out: $/d'
    # A person may lack a compiler; where the tests decide what is kept, nothing may be missing.
    [ "${CI:-}" = true ] && failed+=("${left_out[@]}")
    printf 'FAILED: %s\n' "${failed[@]}" | sed '/^FAILED: $/d'
    echo "$(($(date +%s) - start)) s in all"
    [ ${#failed[@]} = 0 ]
}
mkdir -p build/log && touch build/log/.start
