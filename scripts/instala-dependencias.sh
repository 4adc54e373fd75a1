#!/usr/bin/env bash
# Installs, from Debian's packages, what Sorvelo needs to build, run and test
# and is missing from this machine. Uses sudo when not run as root.
set -euo pipefail

pacotes=(cmake make g++ pkg-config qt6-base-dev qt6-translations-l10n shared-mime-info libgtest-dev
         fonts-liberation2 poppler-utils desktop-file-utils xdg-utils "$@")

faltam=()
for p in "${pacotes[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
    faltam+=("$p")
  fi
done
[ ${#faltam[@]} -eq 0 ] && exit 0

echo "Instalando: ${faltam[*]}"
como_root=()
if [ "$(id -u)" -ne 0 ]; then como_root=(sudo); fi
export DEBIAN_FRONTEND=noninteractive
"${como_root[@]}" apt-get update -qq
"${como_root[@]}" apt-get install -y -qq --no-install-recommends "${faltam[@]}"
