#!/usr/bin/env bash
# The man pages against the programs: no warnings, the same options, the exit statuses that the programs end with.
#   manuais_teste.sh PASTA_DOS_MANUAIS VARENTA-ROTEIRO VARENTA
set -euo pipefail
pasta=$1 roteiro=$2 janelas=$3
falhas=0
acusar() {
    echo "$*"
    falhas=1
}

opcoes() { grep -oE -- '--[a-z]+' | sort -u; }

conferir() {
    local programa=$1 nome
    nome=$(basename "$programa")
    local manual=$pasta/$nome.1
    if command -v groff >/dev/null; then
        local queixas
        queixas=$(groff -k -t -man -ww -Tutf8 "$manual" 2>&1 >/dev/null)
        [ -z "$queixas" ] || acusar "$nome.1: $queixas"
    fi
    # A page writes a hyphen that is typed as \-.
    diff <("$programa" --help | opcoes) <(sed 's/\\-/-/g' "$manual" | opcoes) || acusar "$nome.1: outras opções"
    grep -qF " $("$programa" --version | tr ' ' '\n' | tail -1)\"" "$manual" || acusar "$nome.1: outra versão"
}

# The status that a program ends with stands in its page.
termina() {
    local esperado=$1 programa=$2 estado=0
    shift 2
    "$programa" "$@" >/dev/null 2>&1 || estado=$?
    [ "$estado" = "$esperado" ] || acusar "$(basename "$programa") $*: $estado em vez de $esperado"
    sed -n '/^\.SH "ESTADO DE SAÍDA"/,/^\.SH [^"]/p' "$pasta/$(basename "$programa").1" |
        grep -qx "\.B $esperado" || acusar "$(basename "$programa").1: falta o estado $esperado"
}

for programa in "$roteiro" "$janelas"; do
    conferir "$programa"
    termina 0 "$programa" --help
    termina 2 "$programa" --desconhecida
done
termina 0 "$roteiro" - < <(echo telas)
termina 1 "$roteiro" ausente.roteiro
termina 2 "$roteiro" - < <(echo desconhecido)
termina 0 "$janelas" --roteiro - < <(echo telas)
termina 1 "$janelas" --roteiro ausente.roteiro
termina 2 "$janelas" --roteiro - < <(echo desconhecido)
exit $falhas
