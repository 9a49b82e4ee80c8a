# Read by ./executar and ./testar: installs the Debian packages that are missing, without questions.

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit 1
# The files are UTF-8, whatever the machine's language.
export LC_ALL=C.UTF-8

faltam() {
    local pacote
    for pacote in "$@"; do
        dpkg-query -W -f='${Status}' "$pacote" 2>/dev/null | grep -q 'install ok installed' || echo "$pacote"
    done
}

instalar() {
    local pacotes como=()
    mapfile -t pacotes < <(faltam "$@")
    [ "${#pacotes[@]}" -gt 0 ] || return 0
    if [ "$(id -u)" -ne 0 ]; then
        como=(sudo -n)
        if ! sudo -n true 2>/dev/null; then
            echo "Faltam pacotes, e instalá-los pede a senha de administrador. Execute antes:" >&2
            echo "  sudo apt-get install --no-install-recommends ${pacotes[*]}" >&2
            exit 1
        fi
    fi
    echo "Instalando: ${pacotes[*]}"
    "${como[@]}" apt-get update -q
    "${como[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -q --no-install-recommends "${pacotes[@]}"
}

pacotes_de_construcao=(g++ cmake ninja-build qt6-base-dev qt6-svg-dev libgl-dev qt6-translations-l10n
    fonts-dejavu-core)
pacotes_de_teste=(libgtest-dev clang-format locales groff-base desktop-file-utils appstream
    shared-mime-info clang libclang-rt-14-dev)
# What the long form of ./testar and the scripts that it calls ask for besides.
pacotes_longos=(gcovr clang-tidy cppcheck libbenchmark-dev)

# build/verificadores: everything under the sanitizers, with the fuzzers, which clang alone makes.
configurar_verificadores() {
    cmake -S . -B build/verificadores -G Ninja -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=Debug \
        -DCMAKE_CXX_FLAGS_DEBUG=-O1 -DVARENTA_SANITIZAR=ON >/dev/null
}
