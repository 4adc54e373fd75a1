#!/usr/bin/env bash
# Builds the fuzz target of the reader of imported bets (libFuzzer with
# clang, AddressSanitizer and UndefinedBehaviorSanitizer) and runs it for a
# number of seconds from a small corpus of text and CSV bets.
#
#   scripts/fuzz-importar.sh [segundos]     (600 when not given)
#
# clang and libFuzzer come from Debian's packages and are installed when
# missing. The build and the growing corpus stay in build-fuzz/ (or in
# $SORVELO_FUZZ_DIR); a crash leaves its input there as importar-crash-*.
set -euo pipefail

segundos=${1:-600}
# shellcheck source=scripts/fuzz-comum.sh
source "$(dirname "${BASH_SOURCE[0]}")/fuzz-comum.sh"
compila_alvo importar_fuzz

corpus="$saida/corpus-importar"
mkdir -p "$corpus"
# The first byte chooses the game (its value modulo 5) and the size of the pieces.
printf 'A00001)   01 02 03 04 05 06 \r\n00002)   07 08 09 10 11 12 \r\n' >"$corpus/texto.txt"
printf 'A\xEF\xBB\xBFAposta;D1;D2;D3\r\n1;01;02;03\r\n2;04;05;06\r\n' >"$corpus/planilha.csv"
printf 'D00 99 50,49;48-47\t46\n1 1\n100\nxx 1\n' >"$corpus/lotomania.txt"
: >"$corpus/vazio.txt"

echo "== rodando por $segundos s"
cd "$saida"
exec ./importar_fuzz "$corpus" \
    -dict="$raiz/tests/fuzz/importar.dict" \
    -max_total_time="$segundos" \
    -timeout=10 \
    -rss_limit_mb=2048 \
    -max_len=65536 \
    -artifact_prefix="$saida/importar-" \
    -print_final_stats=1
