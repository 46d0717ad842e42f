#!/usr/bin/env bash
# Builds and runs the whole suite twice: a normal tree, then an AddressSanitizer +
# UndefinedBehaviorSanitizer tree. Between them, builds the tree and runs the tests that need no
# display server in a Debian 13 root, against its newer Qt and GCC (scripts/newer-qt-tests.sh).
# Then runs each fuzz target briefly when clang is present.
set -euo pipefail
cd "$(dirname "$0")/.."
# Relative paths in ccache keys, so that a fresh clone reuses what an earlier one compiled.
export CCACHE_BASEDIR="$PWD" CCACHE_NOHASHDIR=1
jobs=$(nproc)
fuzz_seconds=${TOVRA_FUZZ_SECONDS:-20}

section() { printf '\n==== %s ====\n' "$*"; }

# The Debian 13 root for the newer-Qt stage is made beside the normal build: it mostly waits on
# the network. Its output is shown in that stage.
newer_qt_log=$(mktemp)
scripts/newer-qt-tests.sh prepare >"$newer_qt_log" 2>&1 &
newer_qt_prepare=$!

section "normal build"
start=$SECONDS
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTOVRA_WERROR=ON >/dev/null
cmake --build build --parallel "$jobs"
echo "build took $((SECONDS - start)) s"

section "tests"
start=$SECONDS
ctest --test-dir build --output-on-failure --parallel "$jobs"
echo "tests took $((SECONDS - start)) s"

section "Debian package"
start=$SECONDS
scripts/package-check.sh build
echo "package check took $((SECONDS - start)) s"

section "Debian 13: build with -Werror and tests against its newer Qt"
start=$SECONDS
wait "$newer_qt_prepare" || true
cat "$newer_qt_log"
if ! grep -q "skipped" "$newer_qt_log"; then
    scripts/newer-qt-tests.sh
fi
rm -f "$newer_qt_log"
echo "Debian 13 stage took $((SECONDS - start)) s"

section "sanitizer build (ASan + UBSan)"
start=$SECONDS
cmake -S . -B build-asan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DTOVRA_WERROR=ON -DTOVRA_SANITIZE=ON \
    -DTOVRA_BUILD_BENCH=OFF >/dev/null
cmake --build build-asan --parallel "$jobs"
echo "sanitizer build took $((SECONDS - start)) s"

section "tests under sanitizers"
start=$SECONDS
# No strict_string_checks: libxkbcommon-x11 hands strndup() X atom names that are not
# NUL-terminated, which that check reports as an overflow in a system library.
export ASAN_OPTIONS="detect_leaks=1:halt_on_error=1:abort_on_error=1"
export LSAN_OPTIONS="suppressions=$PWD/tests/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS="halt_on_error=1:print_stacktrace=1"
ctest --test-dir build-asan --output-on-failure --parallel "$jobs"
echo "sanitizer tests took $((SECONDS - start)) s"
unset ASAN_OPTIONS LSAN_OPTIONS UBSAN_OPTIONS

if command -v clang++ >/dev/null 2>&1; then
    section "fuzzing (${fuzz_seconds} s per target)"
    CXX=clang++ cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTOVRA_FUZZ=ON \
        -DTOVRA_BUILD_TESTS=OFF -DTOVRA_BUILD_BENCH=OFF -DTOVRA_BUILD_DEMO=OFF \
        -DTOVRA_SUBSYSTEMS=control >/dev/null
    cmake --build build-fuzz --parallel "$jobs" --target tovra_fuzz_targets
    for target in build-fuzz/fuzz/fuzz_*; do
        [[ -f $target && -x $target ]] || continue # not the *_autogen folders beside them
        name=$(basename "$target")
        corpus=$(mktemp -d)
        cp fuzz/corpus/"${name#fuzz_}"/* "$corpus"/ 2>/dev/null || true
        "$target" -max_total_time="$fuzz_seconds" -print_final_stats=1 "$corpus" 2>"build-fuzz/$name.log" \
            || { tail -n 40 "build-fuzz/$name.log"; exit 1; }
        runs=$(grep -E '^stat::number_of_executed_units' "build-fuzz/$name.log" | awk '{print $2}')
        echo "$name: ${runs:-?} executions, no crash"
        rm -rf "$corpus"
    done
else
    echo "clang++ not found: fuzz targets skipped"
fi
