#!/usr/bin/env bash
# Builds the fuzz target of the super-reduction tables' reader (libFuzzer
# with clang, AddressSanitizer and UndefinedBehaviorSanitizer) and runs it
# for a number of seconds, from a few small tables written here.
#
#   scripts/fuzz-super.sh [segundos]     (600 when not given)
#
# clang and libFuzzer are installed by scripts/fuzz-arquivo.sh when missing
# (run it once with 1 second). The build and the growing corpus stay in
# build-fuzz/ (or in $SORVELO_FUZZ_DIR); a crash leaves its input there as
# crash-*.
set -euo pipefail

segundos=${1:-600}
# shellcheck source=scripts/fuzz-comum.sh
source "$(dirname "${BASH_SOURCE[0]}")/fuzz-comum.sh"
compila_alvo super_fuzz

corpus="$saida/corpus-super"
mkdir -p "$corpus"
# The first byte chooses how many marked numbers are kept: "M" keeps 6, "G" 8.
printf 'GMSC08A04G04\r\n01 02 03 04 05 08\r\n01 02 03 04 06 07 ##' >"$corpus/dois.txt"
printf 'GMSC08A04G04\r\n01 02 03 04 05 08\r\n##' >"$corpus/linha-propria.txt"
printf 'GMSC08A04G04\r\n01 02 09 10 82 ##' >"$corpus/alem.txt"
printf 'GMSC08A04G04\r\n01 02 03\r\n' >"$corpus/sem-fim.txt"
: >"$corpus/vazio.txt"

echo "== rodando por $segundos s"
cd "$saida"
exec ./super_fuzz "$corpus" \
    -dict="$raiz/tests/fuzz/super.dict" \
    -max_total_time="$segundos" \
    -timeout=10 \
    -rss_limit_mb=2048 \
    -max_len=65536 \
    -artifact_prefix="$saida/super-" \
    -print_final_stats=1
