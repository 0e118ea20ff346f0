#!/usr/bin/env bash
# Bilder aller Fenster mit dem Beispiel, in einfacher und doppelter Größe. Aufruf: werkzeuge/bildschirmfotos.sh ORDNER
set -euo pipefail
wurzel=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
ordner=${1:?Aufruf: werkzeuge/bildschirmfotos.sh ORDNER}
bau=$wurzel/bau/release
beispiel=${JORV_BEISPIEL:-$bau/bilder-beispiel}
command -v xvfb-run >/dev/null || { echo "STOP xvfb-run fehlt (Paket xvfb)" >&2; exit 1; }
[[ -f $beispiel/JorvPlus.INI ]] || JORV_BEISPIEL=$beispiel "$wurzel/jorv.sh" beispiel
cmake --build "$bau" --target jorv-bilder jorvplus
for mass in 1 2; do
    groesse=$((1920 * mass))x$((1080 * mass))
    QT_SCALE_FACTOR=$mass xvfb-run -a -s "-screen 0 ${groesse}x24" \
        "$bau/programme/jorv-bilder" "$beispiel/JorvPlus.INI" "$ordner/$((100 * mass))"
done
