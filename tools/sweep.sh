# The fault scenarios of tests/faults with every Windows call of theirs failing, one run for each. Sourced by ./dev.

sweep_main() {
    can_build_native || { echo "the native compiler, cmake or libgtest-dev is not here" >&2; return 1; }
    step "build native" build_preset native test_faults || return 1
    local parts part result=0 running=()
    parts=$(nproc)
    for ((part = 0; part < parts; part++)); do
        VELMORA_FULL_SWEEP=1 GTEST_TOTAL_SHARDS=$parts GTEST_SHARD_INDEX=$part build/native/tests/test_faults >"build/log/sweep-$part.log" 2>&1 &
        running+=($!)
    done
    for part in "${running[@]}"; do wait "$part" || result=1; done
    cat build/log/sweep-*.log | sed -n 's/^\[ RUN *\] //p; s/^ *\([0-9]* of [0-9]* calls struck\)/    \1/p; /Failure/,/struck/p; /FAILED/p'
    return $result
}
