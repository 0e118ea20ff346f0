#!/usr/bin/env bash
# Richtet ein, baut und zeigt das Verfahren an einem Beispiel. Aufruf: ./jorv.sh hilfe
set -euo pipefail

wurzel=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)
bau=$wurzel/bau/release
programme=$bau/programme
beispiel=${JORV_BEISPIEL:-$wurzel/bau/beispiel}
pakete=(g++ cmake ninja-build ccache libgeographiclib-dev libgtest-dev libgmock-dev libbenchmark-dev
    nlohmann-json3-dev rtklib qt6-base-dev qt6-translations-l10n)
kerne=$(nproc)

hilfe() {
    cat <<TEXT
./jorv.sh beispiel        richtet ein, baut, erzeugt ein Beispielnetz, wertet es aus und vergleicht mit der Wahrheit
./jorv.sh start [beispiel]
                          richtet ein, baut und öffnet das Fenster, mit "beispiel" auf dem erzeugten Beispiel
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
    local ohne='lang|schluss'
    [[ ${1:-} == --lang ]] && ohne=schluss
    # Was die Prüfungen zeigen, sammelt dieser Ordner; die Schlussprüfung sucht darin jeden Meldungstext der Quellen.
    export JORV_MELDUNGEN=$bau/meldungen
    rm -rf "$JORV_MELDUNGEN"
    mkdir -p "$JORV_MELDUNGEN"
    ctest --test-dir "$bau" -j "$kerne" --output-on-failure --no-tests=error -LE "$ohne"
    ctest --test-dir "$bau" --output-on-failure --no-tests=error -L schluss
}

# Dieselbe Angabe, wie die Verfahren sie tragen: Laufwerk Z: ist die Wurzel, Windows-1252.
dos_pfad() { printf 'Z:%s' "${1//\//\\}"; }

# Das Beispiel hat seine eigenen Einstellungen und seinen eigenen Ordner für Katalog und Grenzen, damit es nichts
# berührt, was dem Benutzer gehört.
beispiel_anlegen() {
    [[ ! -e $beispiel || -e $beispiel/.jorv-beispiel ]] ||
        abbrechen "$beispiel gibt es schon, und es ist kein Beispiel von hier."
    rm -rf "$beispiel"
    mkdir -p "$beispiel/programme"
    touch "$beispiel/.jorv-beispiel"
    local datei
    for datei in "$programme"/*; do # nur Programme: durch einen Verweis würde ein Katalog dort überschrieben
        [[ ! -x $datei || -d $datei ]] || ln -s "$datei" "$beispiel/programme/"
    done
    printf '[GRUNDEINSTELLUNGEN]\r\nEXE-Verzeichnis=%s\r\n' "$(dos_pfad "$beispiel/programme")" |
        iconv -f UTF-8 -t WINDOWS-1252 >"$beispiel/JorvPlus.INI"
    "$programme/jorv-simulator" beispiel "$beispiel"
}

beispiel_rechnen() {
    local jorv=("$programme/jorv" --einstellungen "$beispiel/JorvPlus.INI") nummer figur
    "${jorv[@]}" katalog machen "$beispiel/katalog.txt"
    "${jorv[@]}" grenzen machen "$beispiel/grenzen.txt"
    nummer=$("${jorv[@]}" neu Beispiel --modus E --verzeichnis "$beispiel/verfahren")
    "${jorv[@]}" antennen "$nummer" "$beispiel/antennen/antennen.atx"
    "${jorv[@]}" rinex "$nummer" "$beispiel/rinex"
    while read -r -a figur; do
        "${jorv[@]}" figur "$nummer" "${figur[@]}"
    done <"$beispiel/figuren.txt"
    "${jorv[@]}" zeigen "$nummer" rover
    schritt "Auswerten"
    "${jorv[@]}" auswerten "$nummer" >/dev/null
    schritt "Ergebnisse und ihre Abweichung von der Wahrheit (Ost, Nord, Höhe)"
    "$programme/jorv-wahrheit" "$beispiel/wahrheit.txt" "$beispiel/verfahren"
    printf '\nDas Verfahren liegt in %s. Ansehen:\n  %q --einstellungen %q zeigen %s\n' \
        "$beispiel/verfahren" "$programme/jorv" "$beispiel/JorvPlus.INI" "$nummer"
}

vorfuehren() {
    einrichten
    bauen jorv jorv-dos WATIME wav2 wa2 jorv-simulator jorv-wahrheit
    schritt "Beispiel in $beispiel"
    beispiel_anlegen
    beispiel_rechnen
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
pfad) printf '%s\n' "$programme" ;;
hilfe | --help | -h) hilfe ;;
*)
    hilfe >&2
    exit 2
    ;;
esac
