#!/usr/bin/env bash
# Instructions of one field of 88 x 88 points and of one fit of a grid test of 14 x 14, at each width that valgrind
# knows, in millions: the difference between 11 runs and one, over 10.
#   bancada/instrucoes.sh PASTA_DA_CONSTRUÇÃO
set -euo pipefail

dados=$(mktemp)
trap 'rm -f "$dados"' EXIT

contar() {
    valgrind --tool=cachegrind --cache-sim=no --cachegrind-out-file="$dados" "$1/bancada/razoes" "$2" "$3" 2>&1 |
        sed -n 's/.*I *refs: *//p' | tr -d ,
}

echo "| Trabalho | escalar | 128 | 256 |"
echo "|---|---|---|---|"
for trabalho in campo ajuste; do
    linha="| $trabalho |"
    for largura in escalar 128 256; do
        export VARENTA_LARGURA=$largura
        uma=$(contar "$1" "$trabalho" 1)
        onze=$(contar "$1" "$trabalho" 11)
        linha+=" $(awk -v a="$uma" -v b="$onze" 'BEGIN { printf "%.2f", (b - a) / 1e7 }') |"
    done
    echo "$linha"
done
