# shellcheck shell=bash
# Ce que les scripts de la racine partagent : dire une étape, installer ce qui manque, compiler.

# shellcheck disable=SC2034
racine=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# Pour compiler et pour que le programme tourne ; docs/dependances.md dit pourquoi chacun.
paquets=(g++ cmake ninja-build pkg-config ccache libgtest-dev qt6-base-dev qt6-svg-dev
    qt6-translations-l10n libmpv-dev libxxhash-dev fonts-dejavu-core)

dire_etape() { printf '== %s\n' "$*"; }

echouer() {
    printf '%s\n' "$*" >&2
    exit 1
}

en_administrateur() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        echouer "Il faut être root, ou avoir sudo, pour : $*"
    fi
}

# installer POUR_QUOI PAQUET... : n'appelle apt-get que s'il manque un paquet.
installer() {
    local pourquoi=$1 paquet
    local manquants=()
    shift
    for paquet in "$@"; do
        dpkg-query -W -f '${db:Status-Status}' "$paquet" 2>/dev/null | grep -qx installed || manquants+=("$paquet")
    done
    [ ${#manquants[@]} -gt 0 ] || return 0
    dire_etape "Installation pour $pourquoi : ${manquants[*]}"
    en_administrateur apt-get -q update </dev/null
    en_administrateur env DEBIAN_FRONTEND=noninteractive \
        apt-get -q install -y --no-install-recommends "${manquants[@]}" </dev/null
}

# configurer DOSSIER OPTION... : une seule fois ; Ninja rappelle CMake de lui-même quand il le faut.
configurer() {
    local dossier=$1
    shift
    [ ! -e "$dossier/build.ninja" ] || return 0
    dire_etape "Configuration de ${dossier#"$racine"/}"
    cmake -S "$racine" "$@" --log-level=WARNING >/dev/null
}

# compiler DOSSIER CIBLE... : avance pas à pas dans un terminal, se tait ailleurs tant que tout va.
compiler() {
    local dossier=$1
    local discret=()
    shift
    [ -t 1 ] || discret=(--quiet)
    dire_etape "Compilation de ${dossier#"$racine"/}"
    ninja -C "$dossier" "${discret[@]}" "$@"
}

# Le séparateur décimal de la machine. Là où la langue demandée n'est pas installée, elle décide quand même,
# par la même liste que src/textfile/reglages.cpp.
separateur_decimal() {
    local voulue=${LC_ALL:-${LC_NUMERIC:-${LANG:-C}}}
    if locale -a | grep -qixF -e "$voulue" -e "${voulue/UTF-8/utf8}"; then
        locale decimal_point
        return
    fi
    case ${voulue%%[_.@]*} in
    fr | de | es | it | pt | nl | ru | pl | cs | sk | da | sv | nb | nn | no | fi | hu | tr | el | ro | bg | hr | sr | \
        sl | uk | be | lt | lv | et | is | ca | gl | eu | br | oc | co | lb | af | id | vi | ka | kk | mk | sq | bs | wa)
        echo ',' ;;
    *) echo '.' ;;
    esac
}
