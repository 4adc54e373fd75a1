#!/usr/bin/env bash
# Installs what is missing, builds everything with AddressSanitizer and
# UndefinedBehaviorSanitizer, warnings as errors, and runs every test.
set -euo pipefail
raiz="$(cd "$(dirname "$0")/.." && pwd)"
bash "$raiz/scripts/instala-dependencias.sh"
build="$raiz/build-testes"
# Line tables only (-g1): the sanitizers still name file and line, and the
# build takes far less time. The benchmarks are left out of this build.
cmake -S "$raiz" -B "$build" -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-g1 -DSORVELO_SANITIZERS=ON -DSORVELO_WERROR=ON \
      -DSORVELO_BENCHMARKS=OFF
cmake --build "$build" -j "$(nproc)"
export QT_QPA_PLATFORM=offscreen
export ASAN_OPTIONS="detect_leaks=1:abort_on_error=0:strict_string_checks=1"
export LSAN_OPTIONS="suppressions=$raiz/tests/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
cd "$build"
ctest --output-on-failure -j "$(nproc)" --timeout 600
