#!/usr/bin/env bash
# Builds the fuzz target of the bet-file reader (libFuzzer with clang,
# AddressSanitizer and UndefinedBehaviorSanitizer) and runs it for a number
# of seconds, starting from the golden files of tests/dados.
#
#   scripts/fuzz-arquivo.sh [segundos]     (600 when not given)
#
# clang and libFuzzer come from Debian's packages and are installed when
# missing. The build and the growing corpus stay in build-fuzz/ (or in
# $SORVELO_FUZZ_DIR); a crash leaves its input there as crash-*.
set -euo pipefail

segundos=${1:-600}
raiz=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
saida=${SORVELO_FUZZ_DIR:-$raiz/build-fuzz}

sudo_se_preciso() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

compilador() {
    if command -v clang++ >/dev/null 2>&1; then
        echo clang++
        return
    fi
    ls /usr/bin/clang++-[0-9]* 2>/dev/null | sort -V | tail -n 1
}

# Links a trivial fuzz target: true when clang and libFuzzer are usable.
libfuzzer_ok() {
    local cxx
    cxx=$(compilador)
    [ -n "$cxx" ] || return 1
    local tmp
    tmp=$(mktemp -d)
    printf 'extern "C" int LLVMFuzzerTestOneInput(const unsigned char*, unsigned long) { return 0; }\n' >"$tmp/t.cpp"
    "$cxx" -fsanitize=fuzzer,address,undefined "$tmp/t.cpp" -o "$tmp/t" >/dev/null 2>&1
    local rc=$?
    rm -rf "$tmp"
    return $rc
}

if ! libfuzzer_ok; then
    echo "== instalando clang e libFuzzer (pacotes Debian)"
    sudo_se_preciso apt-get update
    if ! command -v clang++ >/dev/null 2>&1; then
        sudo_se_preciso apt-get install -y clang
    fi
    versao=$("$(compilador)" --version | sed -n 's/.*clang version \([0-9]*\).*/\1/p' | head -n 1)
    # The runtime holding libFuzzer is named differently across releases.
    for pacote in "libclang-rt-$versao-dev" "libfuzzer-$versao-dev" libclang-rt-dev; do
        if apt-cache show "$pacote" >/dev/null 2>&1; then
            sudo_se_preciso apt-get install -y "$pacote"
            libfuzzer_ok && break
        fi
    done
    libfuzzer_ok || { echo "libFuzzer indisponível" >&2; exit 1; }
fi

cxx=$(compilador)
echo "== compilando com $cxx em $saida"
cmake -S "$raiz/tests/fuzz" -B "$saida" -DCMAKE_CXX_COMPILER="$cxx" >/dev/null
cmake --build "$saida" -j "${SORVELO_FUZZ_JOBS:-2}"

corpus="$saida/corpus"
mkdir -p "$corpus"
cp "$raiz"/tests/dados/*.Apo "$corpus"/
: >"$corpus/vazio.Apo"

echo "== rodando por $segundos s"
cd "$saida"
exec ./arquivo_fuzz "$corpus" \
    -dict="$raiz/tests/fuzz/arquivo.dict" \
    -max_total_time="$segundos" \
    -timeout=10 \
    -rss_limit_mb=1024 \
    -malloc_limit_mb=256 \
    -max_len=1048576 \
    -artifact_prefix="$saida/" \
    -print_final_stats=1
