#!/usr/bin/env bash
# Makes the Debian package of the build (cpack -G DEB) and checks its files
# and its dependencies on Debian's Qt 6 packages.
#   pacote.sh PASTA_DE_BUILD
set -euo pipefail
build=$(readlink -f "$1")
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
falhas=0
falha() { echo "FALHA: $*"; falhas=$((falhas + 1)); }

(cd "$tmp" && cpack -G DEB --config "$build/CPackConfig.cmake" -B "$tmp/saida" >/dev/null)
deb=$(ls "$tmp"/saida/sorvelo_*.deb)
[ -n "$deb" ] || { echo "FALHA: nenhum pacote"; exit 1; }

depende=$(dpkg-deb -f "$deb" Depends)
for pacote in libqt6core6 libqt6gui6 libqt6widgets6 libqt6printsupport6 qt6-qpa-plugins; do
  grep -q "$pacote" <<<"$depende" || falha "o pacote não depende de $pacote"
done
[ "$(dpkg-deb -f "$deb" Package)" = "sorvelo" ] || falha "nome do pacote"
[ "$(dpkg-deb -f "$deb" Version)" = "1.8" ] || falha "versão $(dpkg-deb -f "$deb" Version)"

dpkg-deb -c "$deb" | awk '{print $6}' >"$tmp/arquivos.txt"
for arquivo in ./usr/bin/sorvelo ./usr/lib/sorvelo/sorvelo ./usr/lib/sorvelo/Sorvelo.doc \
               ./usr/share/applications/sorvelo.desktop ./usr/share/mime/packages/sorvelo-apostas.xml \
               ./usr/share/icons/hicolor/scalable/apps/sorvelo.svg ./usr/share/icons/hicolor/48x48/apps/sorvelo.png; do
  grep -qx -- "$arquivo" "$tmp/arquivos.txt" || falha "o pacote não tem $arquivo"
done
grep -q 'roteiro' "$tmp/arquivos.txt" && falha "o pacote leva a ferramenta de testes"

[ $falhas -eq 0 ] && echo "pacote $(basename "$deb") completo"
exit $((falhas > 0))
