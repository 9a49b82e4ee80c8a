#!/usr/bin/env bash
# How much of the program its tests run through: builds it with counters in build/cobertura, runs the tests, and fails
# below the shares that are asked for. The lines that no test reached are listed in build/cobertura/faltam.txt.
set -euo pipefail
. "$(dirname "$0")/preparar.sh"

instalar "${pacotes_de_construcao[@]}" "${pacotes_de_teste[@]}" "${pacotes_longos[@]}"

pasta=build/cobertura
cmake -S . -B "$pasta" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_COMPILER=g++ \
    -DCMAKE_CXX_FLAGS_DEBUG="-O0 --coverage -fprofile-abs-path" >/dev/null
cmake --build "$pasta" --parallel 2
find "$pasta" -name '*.gcda' -delete

# Not the windows in other locales and at other scales, nor the hundreds of fits: the same lines once more. Nor what runs the
# installed programs, which are other ones, or what takes its time too: counting makes it slow.
QT_QPA_PLATFORM=offscreen ctest --test-dir "$pasta" --parallel 2 --output-on-failure --quiet \
    --exclude-regex '^(ajustes|janelas_.*|macaco.*|.*Hostis.*|instalacao|manuais|item_do_menu|metainfo|tipo_de_arquivo)$'

# Only branches that the text of the program has: those to exceptions, and those that the compiler finds no way to, don't count.
contar() {
    gcovr --root . --object-directory "$pasta" --exclude-throw-branches --exclude-unreachable-branches "$@"
}

contar --filter 'src/' --json "$pasta/tudo.json" >/dev/null
resultado=0
exigir() {
    local nome=$1 medida=$2 minimo=$3
    shift 3
    contar --add-tracefile "$pasta/tudo.json" --json-summary "$pasta/resumo.json" "$@" >/dev/null
    python3 - "$pasta/resumo.json" "$nome" "$medida" "$minimo" <<'FIM' || resultado=1
import json, sys
resumo, nome, medida, minimo = json.load(open(sys.argv[1])), sys.argv[2], sys.argv[3], float(sys.argv[4])
feitas, todas = resumo[medida + "_covered"], resumo[medida + "_total"]
parte = 100.0 * feitas / todas
print(f"{nome}: {parte:.2f} % ({feitas} de {todas}), mínimo {minimo:g} %")
sys.exit(parte < minimo)
FIM
}
leitores=(--filter 'src/comum/arquivo' --filter 'src/[^/]*/arquivo_')
exigir "Leitores e gravadores, linhas" line 100 "${leitores[@]}"
exigir "Núcleo, linhas" line 95 --filter 'src/' --exclude 'src/janelas/'
exigir "Núcleo, desvios" branch 90 --filter 'src/' --exclude 'src/janelas/'
exigir "Janelas, linhas" line 80 --filter 'src/janelas/'
contar --add-tracefile "$pasta/tudo.json" --txt "$pasta/faltam.txt"
exit "$resultado"
