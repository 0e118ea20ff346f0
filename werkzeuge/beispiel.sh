#!/usr/bin/env bash
# Legt aus den Dateien des Beispielnetzes ein Verfahren an, wertet es aus und vergleicht mit der Wahrheit.
#   beispiel.sh PROGRAMME NETZ ORDNER
# Installiert heißt es jorv-beispiel und nimmt nur den Ordner, ohne Angabe ~/jorv-beispiel.
# Mit JORV_UNTER=wine sind es die Programme für Windows.
set -euo pipefail

if (($# == 3)); then
    programme=$(cd "$1" && pwd -P) netz=$(cd "$2" && pwd -P) beispiel=$3
else
    programme=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
    netz=$programme/../../share/jorvplus/beispiel
    beispiel=${1:-$HOME/jorv-beispiel}
fi

unter=${JORV_UNTER:-}
programm() { $unter "$programme/$1${unter:+.exe}" "${@:2}"; }

schritt() { printf '\n== %s\n' "$*"; }

# Dieselbe Angabe, wie die Verfahren sie tragen: Laufwerk Z: ist die Wurzel, Windows-1252.
dos_pfad() { printf 'Z:%s' "${1//\//\\}"; }

# Das Beispiel hat seine eigenen Einstellungen und seinen eigenen Ordner für Katalog und Grenzen, damit es nichts
# berührt, was dem Benutzer gehört.
anlegen() {
    if [[ -e $beispiel && ! -e $beispiel/.jorv-beispiel ]]; then
        printf 'STOP %s gibt es schon, und es ist kein Beispiel von hier.\n' "$beispiel" >&2
        exit 1
    fi
    rm -rf "$beispiel"
    mkdir -p "$beispiel/programme"
    touch "$beispiel/.jorv-beispiel"
    beispiel=$(cd "$beispiel" && pwd -P)
    cp -r "$netz/." "$beispiel/"
    local datei
    for datei in "$programme"/*; do # kein Katalog: er würde durch den Verweis überschrieben
        [[ -d $datei || $datei == *.[Cc][Ii][Ff] || $datei == *.[Dd][Aa][Tt] ]] || ln -s "$datei" "$beispiel/programme/"
    done
    printf '[GRUNDEINSTELLUNGEN]\r\nEXE-Verzeichnis=%s\r\n' "$(dos_pfad "$beispiel/programme")" |
        iconv -f UTF-8 -t WINDOWS-1252 >"$beispiel/JorvPlus.INI"
}

rechnen() {
    local jorv=(programm jorv --einstellungen "$beispiel/JorvPlus.INI") nummer figur
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
    programm jorv-wahrheit "$beispiel/wahrheit.txt" "$beispiel/verfahren"
    printf '\nDas Verfahren liegt in %s. Ansehen:\n  %q --einstellungen %q zeigen %s\n' \
        "$beispiel/verfahren" "$programme/jorv" "$beispiel/JorvPlus.INI" "$nummer"
}

schritt "Beispiel in $beispiel"
anlegen
rechnen
