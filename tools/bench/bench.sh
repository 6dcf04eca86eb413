#!/usr/bin/env bash
# the toolkit's enumerations beside Windows' own, on 1,000 and 10,000 windows; the button's faces beside the theme's ("faces": only these); "start": the utility beside a bare window and one with the same windows
setup_packages
if [ "${1:-}" = start ]; then
    can_build_windows && wine_available || { echo "Wine or the compiler for Windows is not here" >&2; exit 1; }
    step "build windows" build_preset windows bench_start
    mkdir -p build/bench && cp "build/windows/app/resources/$exe_name" build/windows/tools/agent/Velmora.exe build/bench/
    VELMORA_BARE="$PWD/build/windows/tools/bench/bench_bare.exe" VELMORA_UTILITY="$PWD/build/bench/$exe_name" VELMORA_OWN_PREFIX=1 \
        wine_run build/windows/tools/bench/bench_start.exe
    exit
fi
bench_done=0
if can_build_native; then
    step "build native" build_preset native bench
    echo "on the stand-in PC:"
    build/native/tools/bench/bench "$@"
    bench_done=1
fi
if can_build_windows && wine_available; then
    step "build windows" build_preset windows bench
    echo "under Wine:"
    VELMORA_OWN_PREFIX=1 wine_run build/windows/tools/bench/bench.exe "$@"
    bench_done=1
fi
[ $bench_done = 1 ] || { echo "neither the native compiler nor Wine with its compiler is here" >&2; exit 1; }
