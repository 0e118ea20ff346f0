#!/usr/bin/env bash
# Richtet ein, baut und zeigt das Verfahren an einem Beispiel. Aufruf: ./jorv.sh hilfe
set -euo pipefail

wurzel=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)
bau=$wurzel/bau/release
programme=$bau/programme
beispiel=${JORV_BEISPIEL:-$wurzel/bau/beispiel}
pakete=(g++ cmake ninja-build ccache libgeographiclib-dev libgtest-dev libgmock-dev libbenchmark-dev
    nlohmann-json3-dev rtklib qt6-base-dev qt6-translations-l10n)
pakete_lang=(clang-14 libclang-rt-14-dev)
kerne=$(nproc)

hilfe() {
    cat <<TEXT
./jorv.sh beispiel        richtet ein, baut, erzeugt ein Beispielnetz, wertet es aus und vergleicht mit der Wahrheit
./jorv.sh start [beispiel]
                          richtet ein, baut und öffnet das Fenster; mit "beispiel" ist das erzeugte Beispiel der Eintrag 1
                          im Menü Datei
./jorv.sh test [--lang]   richtet ein, baut und prüft alles; --lang nimmt die langen Prüfungen dazu und füttert
                          danach jeden Leser 60 Sekunden lang mit zufälligen Bytes (fuzz/)
./jorv.sh paket           richtet ein, baut und packt das Debian-Paket, nennt seinen Pfad
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

fuettern() {
    schritt "Leser mit zufälligen Bytes füttern"
    cd "$wurzel"
    [[ -f bau/fuzz/build.ninja ]] || cmake --preset fuzz
    cmake --build bau/fuzz -j "$kerne" --target fuzz_ziele
    fuzz/lauf.sh "${JORV_FUZZ_SEKUNDEN:-60}"
}

# Die langen Prüfungen sichern hunderttausendmal: im Speicher, wo der reicht, warten sie auf keine Platte.
im_speicher_arbeiten() {
    local frei
    frei=$(df --output=avail /dev/shm 2>/dev/null | tail -1) || return 0
    ((${frei:-0} < 4000000)) || export TMPDIR=/dev/shm
}

pruefen() {
    [[ ${1:-} != --lang ]] || pakete+=("${pakete_lang[@]}")
    einrichten
    bauen
    schritt "Prüfen"
    local ohne='lang|schluss'
    [[ ${1:-} == --lang ]] && ohne=schluss
    # Was die Prüfungen zeigen, sammelt dieser Ordner; die Schlussprüfung sucht darin jeden Meldungstext der Quellen.
    export JORV_MELDUNGEN=$bau/meldungen
    rm -rf "$JORV_MELDUNGEN"
    mkdir -p "$JORV_MELDUNGEN"
    [[ ${1:-} != --lang ]] || im_speicher_arbeiten
    ctest --test-dir "$bau" -j "$kerne" --output-on-failure --no-tests=error -LE "$ohne"
    ctest --test-dir "$bau" --output-on-failure --no-tests=error -L schluss
    [[ ${1:-} != --lang ]] || fuettern
}

vorfuehren() {
    einrichten
    bauen jorv jorv-dos WATIME wav2 wa2 jorv-wahrheit beispielnetz
    "$wurzel/werkzeuge/beispiel.sh" "$programme" "$bau/beispielnetz" "$beispiel"
}

# Mit "beispiel" gelten die Einstellungen des Beispiels, und sein Ordner bekommt, was neben den Programmen liegt.
fenster_oeffnen() {
    einrichten
    bauen jorvplus beilagen jorv jorv-dos WATIME wav2 wa2 wasoft waprt washmod
    [[ ${1:-} == beispiel ]] || exec "$programme/jorvplus"
    [[ -e $beispiel/.jorv-beispiel ]] || abbrechen "Das Beispiel fehlt noch: ./jorv.sh beispiel"
    local datei
    for datei in "$programme"/{jorvplus,wasoft,waprt,washmod,*.bmp,Jorv.ICO,Jorv-Neuerungen.txt,JorvPlus-Handbuch.*}; do
        ln -sf "$datei" "$beispiel/programme/"
    done
    JORV_EINSTELLUNGEN=$beispiel/JorvPlus.INI exec "$programme/jorvplus"
}

packen() {
    pakete+=(dpkg-dev file)
    einrichten
    bauen jorvplus beilagen beispielnetz jorv jorv-dos jorv-wahrheit WATIME wav2 wa2 wasoft waprt washmod
    schritt "Packen"
    (cd "$bau" && rm -f jorvplus_*.deb && cpack -G DEB >/dev/null && printf '%s\n' "$bau"/jorvplus_*.deb)
}

case ${1:-hilfe} in
beispiel)
    [[ $# -eq 1 ]] || { hilfe >&2; exit 2; }
    vorfuehren
    ;;
start)
    [[ $# -eq 1 || ($# -eq 2 && $2 == beispiel) ]] || { hilfe >&2; exit 2; }
    fenster_oeffnen "${2:-}"
    ;;
test)
    [[ $# -eq 1 || ($# -eq 2 && $2 == --lang) ]] || { hilfe >&2; exit 2; }
    pruefen "${2:-}"
    ;;
paket)
    [[ $# -eq 1 ]] || { hilfe >&2; exit 2; }
    packen
    ;;
pfad) printf '%s\n' "$programme" ;;
hilfe | --help | -h) hilfe ;;
*)
    hilfe >&2
    exit 2
    ;;
esac
