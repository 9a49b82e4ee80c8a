#!/usr/bin/env bash
# Installs what is missing, builds Varenta and makes the Debian package of it in build/pacote.
set -euo pipefail
. "$(dirname "$0")/preparar.sh"

# dpkg-dev finds the libraries' packages, file tells binaries from other files.
instalar "${pacotes_de_construcao[@]}" dpkg-dev file
cmake -S . -B build/pacote -G Ninja -DCMAKE_BUILD_TYPE=Release -DVARENTA_TESTES=OFF -DCMAKE_INSTALL_PREFIX=/usr >/dev/null
cmake --build build/pacote
cd build/pacote
cpack -G DEB
