#!/usr/bin/env bash
# The whole suite by both compilers, in the languages of the machine that matter for numbers (without a home folder
# and a time zone, too): ./ferramentas/ambientes.sh [g++|clang++ ...]. Status 1 if anything fails anywhere.
set -euo pipefail
. "$(dirname "$0")/preparar.sh"

instalar "${pacotes_de_construcao[@]}" "${pacotes_de_teste[@]}" "${pacotes_longos[@]}"
compiladores=("$@")
[ "$#" -gt 0 ] || compiladores=(g++ clang++)

falhou=0
for compilador in "${compiladores[@]}"; do
    # Without precompiled headers, so that a file which forgets to include something is found.
    pasta=build/ambiente-$compilador
    cmake -S . -B "$pasta" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_COMPILER="$compilador" \
        -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON -DVARENTA_BANCADA=ON >/dev/null
    cmake --build "$pasta"
    # The locales that the build makes for the tests of the windows.
    locais=$PWD/$pasta/testes/janelas/locales
    for local in C.UTF-8 pt_BR.UTF-8 en_US.UTF-8; do
        echo "== $compilador, $local"
        ambiente=(env -u HOME -u TZ LOCPATH="$locais" LC_ALL="$local")
        # A locale that isn't there would be that of C, with no more than a complaint.
        if [ -n "$("${ambiente[@]}" locale 2>&1 >/dev/null)" ]; then
            echo "Não há o local $local em $locais" >&2
            exit 1
        fi
        # The windows' own repetitions in other locales and at other scales don't depend on this one: once is enough.
        quais=()
        [ "$local" = C.UTF-8 ] || quais=(--exclude-regex '^janelas_')
        "${ambiente[@]}" ctest --test-dir "$pasta" --output-on-failure --parallel 2 --quiet "${quais[@]}" || falhou=1
    done
done
exit "$falhou"
