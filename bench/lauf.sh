#!/usr/bin/env bash
# The run's own cost per rover against the solver's time, on the shipped example, one rover after the other:
#   bench/lauf.sh [BUILD FOLDER]
# Prints the run's wall time, the solver's share of it, what the start of the solver's clock costs (loeseruhr.cpp; a run
# without measuring doesn't have it), and the rest as a ratio.
set -euo pipefail
wurzel=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
bau=${1:-$wurzel/bau/release}
jorv=$bau/programme/jorv
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT
mkdir "$ordner/bin"
ln -s "$bau/bench/loeseruhr" "$ordner/bin/rnx2rtkp"
export JORV_LOESER JORV_LOESERZEIT=$ordner/zeiten
JORV_LOESER=$(command -v rnx2rtkp)
printf '[GRUNDEINSTELLUNGEN]\r\nGleichzeitig=1\r\n' >"$ordner/JorvPlus.INI"
"$bau/programme/jorv-simulator" beispiel "$ordner/netz" >/dev/null
befehl() { "$jorv" --einstellungen "$ordner/JorvPlus.INI" --ja "$@" 2>>"$ordner/meldungen"; }
nummer=$(befehl neu Messung --modus E --verzeichnis "$ordner/verfahren")
befehl antennen "$nummer" "$ordner"/netz/antennen/* >/dev/null
befehl rinex "$nummer" "$ordner/netz/rinex" >/dev/null
while read -r figur; do befehl figur "$nummer" $figur >/dev/null; done <"$ordner/netz/figuren.txt"
cp -r "$ordner/verfahren" "$ordner/vorher"
for lauf in 1 2 3; do
  rm -rf "$ordner/verfahren" "$JORV_LOESERZEIT"
  cp -r "$ordner/vorher" "$ordner/verfahren"
  beginn=$(date +%s%N)
  PATH=$ordner/bin:$PATH befehl auswerten "$nummer" >/dev/null
  ende=$(date +%s%N)
  awk -v ganz=$(((ende - beginn) / 1000)) -v rover="$(ls "$ordner/verfahren/jorv_out/dat_rov" | wc -l)" -v lauf=$lauf '
    { loeser += $1; uhr += $2; aufrufe++ }
    END {
      eigen = ganz - loeser - uhr
      printf "run %d: %d rovers, %d solver calls, wall %.1f ms, solver %.1f ms, clock %.1f ms, own %.1f ms = %.1f ms a rover, %.1f %% of the solver\n",
             lauf, rover, aufrufe, ganz / 1000, loeser / 1000, uhr / 1000, eigen / 1000, eigen / 1000 / rover, 100 * eigen / loeser
    }' "$JORV_LOESERZEIT"
done
