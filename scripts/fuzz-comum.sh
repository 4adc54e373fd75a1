# Sourced by the fuzz scripts of the readers that come after the bet file's
# (scripts/fuzz-arquivo.sh installs clang and libFuzzer when missing):
#   compila_alvo ALVO   configures build-fuzz/ (or $SORVELO_FUZZ_DIR) with
#                       clang and builds that fuzz target.
# Sets raiz and saida.
raiz=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
saida=${SORVELO_FUZZ_DIR:-$raiz/build-fuzz}

compila_alvo() {
    local cxx
    cxx=$(command -v clang++ || ls /usr/bin/clang++-[0-9]* 2>/dev/null | sort -V | tail -n 1)
    if [ -z "$cxx" ]; then
        echo "clang++ ausente: rode scripts/fuzz-arquivo.sh 1 para instalá-lo" >&2
        exit 1
    fi
    echo "== compilando com $cxx em $saida"
    cmake -S "$raiz/tests/fuzz" -B "$saida" -DCMAKE_CXX_COMPILER="$cxx" >/dev/null
    cmake --build "$saida" -j "${SORVELO_FUZZ_JOBS:-2}" --target "$1"
}
