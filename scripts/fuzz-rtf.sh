#!/usr/bin/env bash
# Builds the fuzz target of the RTF reader on its own (libFuzzer with clang,
# AddressSanitizer and UndefinedBehaviorSanitizer) and runs it for a number
# of seconds, from a few small documents written here.
#
#   scripts/fuzz-rtf.sh [segundos]     (600 when not given)
#
# clang and libFuzzer are installed by scripts/fuzz-arquivo.sh when missing
# (run it once with 1 second). The build and the growing corpus stay in
# build-fuzz/ (or in $SORVELO_FUZZ_DIR); a crash leaves its input there as
# rtf-crash-*. Inputs go up to 1 MiB, memory is capped at 1 GiB.
set -euo pipefail

segundos=${1:-600}
# shellcheck source=scripts/fuzz-comum.sh
source "$(dirname "${BASH_SOURCE[0]}")/fuzz-comum.sh"
compila_alvo rtf_fuzz

corpus="$saida/corpus-rtf"
mkdir -p "$corpus"
printf '{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}}\r\n{\\colortbl ;\\red0\\green150\\blue0;\\red150\\green0\\blue0;\\red0\\green0\\blue255;}\r\n\\uc1\\pard\\f0\\fs20\\cf1\\b Dezenas escolhidas: 01 02\\par\r\n\\cf2\\b0 00001)\\cf3    01 02 03 04 05 06 \\par\r\n}\r\n' >"$corpus/banco.rtf"
printf '{\\rtf1{\\*\\blob\\bin4 }{\\}b}c\\u233?\\uc2\\u8364 ab\\~\\_\\emdash}' >"$corpus/palavras.rtf"
printf '{\\rtf1{\\colortbl;;\\red1;}\\cf2 {{{\\b x}}}\\plain y' >"$corpus/aberto.rtf"
printf 'linha 1\r\nol\xe1' >"$corpus/simples.txt"
: >"$corpus/vazio.rtf"

echo "== rodando por $segundos s"
cd "$saida"
exec ./rtf_fuzz "$corpus" \
    -dict="$raiz/tests/fuzz/rtf.dict" \
    -max_total_time="$segundos" \
    -timeout=10 \
    -rss_limit_mb=1024 \
    -malloc_limit_mb=256 \
    -max_len=1048576 \
    -artifact_prefix="$saida/rtf-" \
    -print_final_stats=1
