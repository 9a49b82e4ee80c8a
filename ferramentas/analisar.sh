#!/usr/bin/env bash
# What two analysers find in src/: ./ferramentas/analisar.sh. Only their names, with status 0, where they find nothing.
set -euo pipefail
. "$(dirname "$0")/preparar.sh"

instalar "${pacotes_de_construcao[@]}" "${pacotes_de_teste[@]}" "${pacotes_longos[@]}"
raiz=$PWD
mkdir -p build/analise

echo "== cppcheck"
# It knows no letter with an accent outside of a text: it reads a copy of the sources without them. Lines stay.
fontes=build/analise/fontes
rm -rf "$fontes"
git ls-files -z 'src/*.h' 'src/*.cpp' | while IFS= read -r -d '' arquivo; do
    mkdir -p "$fontes/${arquivo%/*}"
    sed 'y/áàâãéêíóôõúüçÁÀÂÃÉÊÍÓÔÕÚÜÇ/aaaaeeiooouucAAAAEEIOOOUUC/' "$arquivo" >"$fontes/$arquivo"
done
(cd "$fontes" && cppcheck --std=c++20 --language=c++ --library=qt --enable=warning,performance,portability \
    --inline-suppr --suppressions-list="$raiz/ferramentas/cppcheck_fora.txt" --error-exitcode=1 --quiet \
    --template=gcc -Isrc src)

echo "== clang-tidy"
# Only what Qt makes of the layouts has to be there; the sources are read without precompiled headers. How many
# warnings it left out, those of other people's headers, it says on the other stream for each source.
cmake -S . -B build/analise -G Ninja -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON -DVARENTA_TESTES=OFF >/dev/null
cmake --build build/analise --target varenta_janelas_autogen -- --quiet
git ls-files -z 'src/*.cpp' |
    xargs -0 -n 1 -P 2 clang-tidy -p build/analise --quiet --header-filter="^$raiz/src/" \
        2> >(grep -Ev '^[0-9]+ warnings? generated\.$' >&2)
