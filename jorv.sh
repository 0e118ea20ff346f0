#!/usr/bin/env bash
# Richtet ein, baut und zeigt das Verfahren an einem Beispiel. Aufruf: ./jorv.sh hilfe
set -euo pipefail

wurzel=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)
bau=$wurzel/bau/release
programme=$bau/programme
beispiel=${JORV_BEISPIEL:-$wurzel/bau/beispiel}
pakete=(g++ cmake ninja-build ccache libgeographiclib-dev libgtest-dev libgmock-dev libbenchmark-dev
    nlohmann-json3-dev rtklib)
kerne=$(nproc)

hilfe() {
    cat <<TEXT
./jorv.sh beispiel        richtet ein, baut, erzeugt ein Beispielnetz, wertet es aus und vergleicht mit der Wahrheit
./jorv.sh test [--lang]   richtet ein, baut und prüft alles; --lang nimmt die langen Prüfungen dazu
./jorv.sh pfad            nennt den Ordner der gebauten Programme
TEXT
}

schritt() { printf '\n== %s\n' "$*"; }

abbrechen() {
    printf 'STOP %s\n' "$*" >&2
    exit 1
}

als_verwalter() {
    if ((EUID == 0)); then
        env DEBIAN_FRONTEND=noninteractive "$@"
    elif command -v sudo >/dev/null; then
        sudo env DEBIAN_FRONTEND=noninteractive "$@"
    else
        abbrechen "Zum Einrichten fehlen Rechte: als root aufrufen oder sudo einrichten. Nötig sind: ${pakete[*]}"
    fi
}

einrichten() {
    command -v dpkg-query >/dev/null || abbrechen "Dies ist kein Debian. Nötig sind: ${pakete[*]}"
    local vorhanden fehlend=() paket
    vorhanden=$(dpkg-query -W -f='${db:Status-Status} ${Package}\n' "${pakete[@]}" 2>/dev/null || true)
    for paket in "${pakete[@]}"; do
        grep -qxF "installed $paket" <<<"$vorhanden" || fehlend+=("$paket")
    done
    ((${#fehlend[@]})) || return 0
    schritt "Fehlende Debian-Pakete werden eingerichtet: ${fehlend[*]}"
    als_verwalter apt-get update
    als_verwalter apt-get install -y --no-install-recommends "${fehlend[@]}"
}

# Ohne Angabe wird alles gebaut.
bauen() {
    schritt "Bauen in $bau"
    cd "$wurzel"
    [[ -f $bau/build.ninja ]] || cmake --preset release
    cmake --build "$bau" -j "$kerne" ${1:+--target "$@"}
}

pruefen() {
    einrichten
    bauen
    schritt "Prüfen"
    local auswahl=(-LE lang)
    [[ ${1:-} == --lang ]] && auswahl=()
    ctest --test-dir "$bau" -j "$kerne" --output-on-failure --no-tests=error "${auswahl[@]}"
}

case ${1:-hilfe} in
test)
    [[ $# -eq 1 || ($# -eq 2 && $2 == --lang) ]] || { hilfe >&2; exit 2; }
    pruefen "${2:-}"
    ;;
pfad) printf '%s\n' "$programme" ;;
hilfe | --help | -h) hilfe ;;
*)
    hilfe >&2
    exit 2
    ;;
esac
