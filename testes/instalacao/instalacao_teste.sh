#!/usr/bin/env bash
# Installs a build into a folder and looks at what is there: instalacao_teste.sh CMAKE BUILD PASTA
set -euo pipefail
cmake=$1 construcao=$2 raiz=$3
fonte=$(cd "$(dirname "$0")/../.." && pwd)
acusar() {
    echo "$*"
    exit 1
}

rm -rf "$raiz"
"$cmake" --install "$construcao" --prefix "$raiz" >/dev/null
documentos=$raiz/share/doc/varenta

# The files, and no others. Examples and documents are those of the sources.
diff <(cd "$raiz" && find . -type f | sed 's#^\./##' | sort) <(
    {
        cat <<'FIM'
bin/varenta
bin/varenta-roteiro
share/applications/varenta.desktop
share/doc/varenta/CHANGELOG.md
share/doc/varenta/LEIAME.md
share/doc/varenta/LICENSE
share/doc/varenta/README.md
share/icons/hicolor/128x128/apps/varenta.png
share/icons/hicolor/48x48/apps/varenta.png
share/icons/hicolor/scalable/apps/varenta.svg
share/man/man1/varenta-roteiro.1.gz
share/man/man1/varenta.1.gz
share/metainfo/br.varenta.varenta.metainfo.xml
share/mime/packages/varenta.xml
FIM
        cd "$fonte"
        find docs exemplos -type f ! -name '*-200.png' ! -name '*.TXT' | sed 's#^#share/doc/varenta/#'
    } | sort
) || acusar "outros arquivos"

# Both programs run from there, an example beside what it prints.
exemplo=$documentos/exemplos/primeira_simulacao
"$raiz/bin/varenta-roteiro" "$exemplo.roteiro" | cmp - "$exemplo.esperado"
"$raiz/bin/varenta" --roteiro "$exemplo.roteiro" --imagens "$raiz/imagens" | cmp - "$exemplo.esperado"
[ -n "$(ls "$raiz/imagens")" ] || acusar "nenhuma imagem"

# What the desktop entry names is there.
item=$raiz/share/applications/varenta.desktop
[ -x "$raiz/bin/$(sed -n 's/^Exec=\([^ ]*\).*/\1/p' "$item")" ] || acusar "Exec não existe"
[ -f "$raiz/share/icons/hicolor/scalable/apps/$(sed -n 's/^Icon=//p' "$item").svg" ] || acusar "Icon não existe"

# No link or picture of the documents leads nowhere.
for documento in README.md LEIAME.md exemplos/LEIAME.md; do
    while read -r destino; do
        [ -e "$(dirname "$documentos/$documento")/$destino" ] || acusar "$documento: não há $destino"
    done < <(grep -oP '\]\(\K[^)#]+' "$documentos/$documento" | grep -v '://' || true)
done

# Both languages show the same pictures and commands.
for padrao in '\]\(\Kdocs/telas/[^)]+' '^    \K[^#]*(?=#|$)'; do
    diff <(grep -oP "$padrao" "$fonte/README.md") <(grep -oP "$padrao" "$fonte/LEIAME.md") ||
        acusar "README.md e LEIAME.md diferem"
done

# The script in both is what they say that it prints.
for documento in README.md LEIAME.md; do
    diff <(grep -E '^    (clicar|escolher|rolar|digitar|mostrar) ' "$fonte/$documento" | "$raiz/bin/varenta-roteiro" -) \
        <(sed -n 's/^    \(Form[^ ]* = \)/\1/p' "$fonte/$documento") || acusar "$documento: outro resultado"
done
