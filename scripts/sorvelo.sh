#!/usr/bin/env bash
# Installs what is missing, builds Sorvelo and starts it.
set -euo pipefail
raiz="$(cd "$(dirname "$0")/.." && pwd)"
bash "$raiz/scripts/instala-dependencias.sh"
cmake -S "$raiz" -B "$raiz/build-release" -DCMAKE_BUILD_TYPE=Release -DSORVELO_TESTES=OFF -DSORVELO_BENCHMARKS=OFF
cmake --build "$raiz/build-release" --target sorvelo -j "$(nproc)"
exec "$raiz/build-release/sorvelo" "$@"
