#!/usr/bin/env bash
# Fuzzes every reader: ./ferramentas/fuzz.sh 60s (so many seconds each) or 100000 (so many executions each, and
# forty times as many of both conversions of text to number, which are that much quicker).
# Two at a time. Prints the executions of each; what fails is kept in build/fuzz/achados/, and the status is 1.
set -euo pipefail
. "$(dirname "$0")/preparar.sh"

instalar "${pacotes_de_construcao[@]}" "${pacotes_de_teste[@]}"

quanto=${1:-60s}
ensaios=(campo roteiro movel malha radial parametros prefixo estrito)

limite() {
    case $quanto in
    *s) echo "-max_total_time=${quanto%s}" ;;
    *)
        case $1 in
        prefixo | estrito) echo "-runs=$((40 * quanto))" ;;
        *) echo "-runs=$quanto" ;;
        esac
        ;;
    esac
}

configurar_verificadores
cmake --build build/verificadores --target "${ensaios[@]/#/fuzz_}"
mkdir -p build/fuzz/achados

fuzzar() {
    local ensaio=$1 registro=build/fuzz/$1.log
    mkdir -p "build/fuzz/novos/$ensaio"
    # The longest sample has some 3 kB. Leaks are looked for where the tests run under the sanitizers.
    ASAN_OPTIONS=malloc_context_size=1 "build/verificadores/testes/fuzz/fuzz_$ensaio" "$(limite "$ensaio")" -max_len=4096 -timeout=20 \
        -rss_limit_mb=2048 -detect_leaks=0 -entropic=0 -verbosity=0 -print_final_stats=1 \
        -artifact_prefix="build/fuzz/achados/$ensaio-" "build/fuzz/novos/$ensaio" "testes/fuzz/corpos/$ensaio" \
        >"$registro" 2>&1 || { echo "$ensaio: falhou" && grep -v '^stat::' "$registro" | head -40 && return 1; }
}

falhou=0
em_curso=0
for ensaio in "${ensaios[@]}"; do
    if [ "$em_curso" -eq 2 ]; then
        wait -n || falhou=1
        em_curso=1
    fi
    fuzzar "$ensaio" &
    em_curso=$((em_curso + 1))
done
while [ "$em_curso" -gt 0 ]; do
    wait -n || falhou=1
    em_curso=$((em_curso - 1))
done

soma=0
for ensaio in "${ensaios[@]}"; do
    execucoes=$(sed -n 's/^stat::number_of_executed_units: *//p' "build/fuzz/$ensaio.log")
    por_segundo=$(sed -n 's/^stat::average_exec_per_sec: *//p' "build/fuzz/$ensaio.log")
    printf '%-11s %12s execuções %8s por segundo\n' "$ensaio" "${execucoes:-0}" "${por_segundo:-0}"
    soma=$((soma + ${execucoes:-0}))
done
printf '%-11s %12s execuções\n' total "$soma"
exit "$falhou"
