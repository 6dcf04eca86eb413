#!/usr/bin/env bash
# the toolkit's enumerations beside Windows' own, on 1,000 and 10,000 windows; the button's faces beside the theme's ("faces": only these)
setup_packages
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
