#!/usr/bin/env bash
# Bilder aller Fenster mit dem Beispiel, in einfacher und doppelter Größe. Aufruf: werkzeuge/bildschirmfotos.sh ORDNER
set -euo pipefail
wurzel=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
ordner=${1:?Aufruf: werkzeuge/bildschirmfotos.sh ORDNER}
bau=$wurzel/bau/release
beispiel=${JORV_BEISPIEL:-$bau/bilder-beispiel}
command -v xvfb-run >/dev/null || { echo "STOP xvfb-run fehlt (Paket xvfb)" >&2; exit 1; }
[[ -f $beispiel/JorvPlus.INI ]] || JORV_BEISPIEL=$beispiel "$wurzel/jorv.sh" beispiel
cmake --build "$bau" --target jorv-bilder jorvplus beilagen
for datei in "$bau"/programme/{*.bmp,Jorv.ICO,Jorv-Neuerungen.txt,JorvPlus-Handbuch.*}; do
    ln -sf "$datei" "$beispiel/programme/"
done
for mass in 1 2; do
    for breite in 1280 1920; do
        hoehe=$((breite == 1280 ? 800 : 1080))
        QT_SCALE_FACTOR=$mass xvfb-run -a -s "-screen 0 $((breite * mass))x$((hoehe * mass))x24" \
            "$bau/programme/jorv-bilder" "$beispiel/JorvPlus.INI" "$ordner/$breite-$((100 * mass))" 001 $breite $hoehe
    done
done
