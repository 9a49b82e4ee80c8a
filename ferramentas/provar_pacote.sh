#!/usr/bin/env bash
# Tries the Debian package, as root: installs it with its dependencies in a bare Debian 12, runs every installed example
# and one more through the windows.
#   ferramentas/provar_pacote.sh PACOTE.deb PASTA     PASTA must not exist; it holds the bare system afterwards
set -euo pipefail
pacote=$(realpath -- "$1")
pasta=$2
. "$(dirname "$0")/preparar.sh"

instalar debootstrap
[ ! -e "$pasta" ] || { echo "$pasta já existe" >&2; exit 1; }
debootstrap --variant=minbase bookworm "$pasta"
# As this machine reaches the packages, so does the folder.
cp -r /etc/apt/apt.conf.d/. "$pasta/etc/apt/apt.conf.d/"
cp "$pacote" "$pasta/srv/varenta.deb"
dentro() { chroot "$pasta" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/srv DEBIAN_FRONTEND=noninteractive "$@"; }
dentro apt-get update -q
dentro apt-get install -y -q --no-install-recommends /srv/varenta.deb

dentro bash -euc '
    cp -r /usr/share/doc/varenta/exemplos /srv
    cd /srv/exemplos
    for roteiro in *.roteiro; do
        varenta-roteiro "$roteiro" | cmp - "${roteiro%.roteiro}.esperado"
    done
    export QT_QPA_PLATFORM=offscreen
    varenta --roteiro primeira_simulacao.roteiro --imagens /srv/imagens | cmp - primeira_simulacao.esperado
    ls /srv/imagens/01-form1.png /srv/imagens/02-Form7.png'
echo "O pacote instala e funciona em: $pasta"
