#!/usr/bin/env bash
# Installs the build into a temporary prefix and checks what a desktop needs:
# the program in its own folder with its tutorial and tables, the launcher
# in bin, the desktop entry (desktop-file-validate), the icon in SVG and PNG
# sizes and the MIME type of the bet files.
#   instala.sh PASTA_DE_BUILD PASTA_DO_PROJETO
set -euo pipefail
build=$1
fonte=$2
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
prefixo=$tmp/usr
falhas=0
falha() { echo "FALHA: $*"; falhas=$((falhas + 1)); }
existe() { [ -e "$prefixo/$1" ] || falha "falta $1"; }

cmake --install "$build" --prefix "$prefixo" >/dev/null

pasta=lib/sorvelo
existe "$pasta/sorvelo"
[ -x "$prefixo/$pasta/sorvelo" ] || falha "$pasta/sorvelo não é executável"
existe "$pasta/Sorvelo.doc"
for tabela in "$fonte"/dados/*.sv; do
  [ -e "$tabela" ] || continue
  existe "$pasta/$(basename "$tabela")"
done
existe bin/sorvelo
[ -x "$prefixo/bin/sorvelo" ] || falha "bin/sorvelo não é executável"
# Nothing but the launcher in bin (the test tools stay out).
[ "$(ls "$prefixo/bin")" = "sorvelo" ] || falha "bin tem mais que o lançador: $(ls "$prefixo/bin")"

# The launcher leads to the program's folder, wherever the prefix lies.
alvo=$(sed -n 's/^exec "\$(dirname "\$(readlink -f "\$0")")\/\(.*\)" "\$@"$/\1/p' "$prefixo/bin/sorvelo")
[ -n "$alvo" ] || falha "o lançador não tem a linha exec esperada"
[ "$(readlink -f "$prefixo/bin/$alvo")" = "$(readlink -f "$prefixo/$pasta/sorvelo")" ] ||
  falha "o lançador aponta para $alvo"
# The installed program starts from the launcher and waits at its first box.
mv "$tmp/usr" "$tmp/outro"
prefixo=$tmp/outro
set +e
QT_QPA_PLATFORM=offscreen timeout 4 "$prefixo/bin/sorvelo" >"$tmp/saida.txt" 2>&1
rc=$?
set -e
[ $rc -eq 124 ] || { falha "o programa instalado terminou com $rc"; cat "$tmp/saida.txt"; }

entrada=$prefixo/share/applications/sorvelo.desktop
existe share/applications/sorvelo.desktop
desktop-file-validate "$entrada" || falha "desktop-file-validate recusou a entrada"
grep -qx 'Exec=sorvelo %f' "$entrada" || falha "a entrada não passa o arquivo ao programa"
grep -qx 'MimeType=application/x-sorvelo-apostas;' "$entrada" || falha "a entrada não declara o tipo .Apo"
grep -qx 'GenericName=Apostas de loteria' "$entrada" || falha "a entrada não está em português"

existe share/icons/hicolor/scalable/apps/sorvelo.svg
for lado in 16 24 32 48 64 128 256; do
  png=$prefixo/share/icons/hicolor/${lado}x${lado}/apps/sorvelo.png
  [ -e "$png" ] || { falha "falta o ícone de $lado"; continue; }
  # Width and height of the PNG header, big-endian, at bytes 16 and 20.
  medidas=$(od -An -tu1 -j16 -N8 "$png" | awk '{print $1*16777216+$2*65536+$3*256+$4, $5*16777216+$6*65536+$7*256+$8}')
  [ "$medidas" = "$lado $lado" ] || falha "ícone de $lado mede $medidas"
done

existe share/mime/packages/sorvelo-apostas.xml
if command -v update-mime-database >/dev/null; then
  update-mime-database "$prefixo/share/mime" >/dev/null 2>&1 || true
  grep -q 'application/x-sorvelo-apostas:\*\.Apo' "$prefixo/share/mime/globs2" ||
    falha "o tipo MIME não reconhece *.Apo"
fi

[ $falhas -eq 0 ] && echo "instalação completa em $prefixo"
exit $((falhas > 0))
