#!/usr/bin/env bash
# The MIME type of the roteiros, as the system's own tool takes it over: UPDATE_MIME_DATABASE INSTALACAO PASTA
set -euo pipefail
atualizar=$1 instalacao=$2 pasta=$3

rm -rf "$pasta"
mkdir -p "$pasta/packages"
cp "$instalacao/varenta.xml" "$pasta/packages"
queixas=$(XDG_DATA_HOME=$(dirname "$pasta") "$atualizar" "$pasta" 2>&1)
[ -z "$queixas" ] || { echo "$queixas"; exit 1; }
grep -qxF 'text/x-varenta-roteiro:*.roteiro' "$pasta/globs"
grep -qxF 'text/x-varenta-roteiro text/plain' "$pasta/subclasses"
grep -qF 'Roteiro do Varenta' "$pasta/text/x-varenta-roteiro.xml"
grep -qxF 'MimeType=text/x-varenta-roteiro;' "$instalacao/varenta.desktop"
