#!/usr/bin/env bash
# The run's own cost per rover against the solver's time, on the shipped example, one rover after the other:
#   bench/lauf.sh [BUILD FOLDER]
# Prints for each run the solver's time and, against it, what the suite's programs take beside the solver and what the run
# itself takes (jorv and the interpreter). The clocks' own start (programmuhr.cpp) is taken off: a run without measuring
# doesn't have it.
set -euo pipefail
wurzel=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
bau=${1:-$wurzel/bau/release}
jorv=$bau/programme/jorv
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT
mkdir "$ordner/bin" "$ordner/echt"
for programm in rnx2rtkp wav2 wa2; do ln -s "$bau/bench/programmuhr" "$ordner/bin/$programm"; done
ln -s "$(command -v rnx2rtkp)" "$bau"/programme/{wav2,wa2} "$ordner/echt"
export JORV_UHR_ORDNER=$ordner/echt JORV_UHR_ZEITEN=$ordner/zeiten
printf '[GRUNDEINSTELLUNGEN]\r\nGleichzeitig=1\r\n' >"$ordner/JorvPlus.INI"
"$bau/programme/jorv-simulator" beispiel "$ordner/netz" >/dev/null
befehl() { "$jorv" --einstellungen "$ordner/JorvPlus.INI" --ja "$@" 2>>"$ordner/meldungen"; }
nummer=$(befehl neu Messung --modus E --verzeichnis "$ordner/verfahren")
befehl antennen "$nummer" "$ordner"/netz/antennen/* >/dev/null
befehl rinex "$nummer" "$ordner/netz/rinex" >/dev/null
while read -r figur; do befehl figur "$nummer" $figur >/dev/null; done <"$ordner/netz/figuren.txt"
cp -r "$ordner/verfahren" "$ordner/vorher"
for lauf in 1 2 3; do
  rm -rf "$ordner/verfahren" "$JORV_UHR_ZEITEN"
  cp -r "$ordner/vorher" "$ordner/verfahren"
  beginn=$(date +%s%N)
  PATH=$ordner/bin:$PATH befehl auswerten "$nummer" >/dev/null
  ende=$(date +%s%N)
  awk -v ganz=$(((ende - beginn) / 1000)) -v rover="$(ls "$ordner/verfahren/jorv_out/dat_rov" | wc -l)" -v lauf=$lauf '
    { zeit[$1] += $2; uhr[$1] += $3; aufrufe[$1]++ }
    END {
      loeser = zeit["rnx2rtkp"]
      suite = zeit["wav2"] + zeit["wa2"] - loeser - uhr["rnx2rtkp"]
      eigen = ganz - zeit["wav2"] - zeit["wa2"] - uhr["wav2"] - uhr["wa2"]
      printf "run %d: %d rovers, wall %.1f ms, solver %.1f ms a rover in %d calls, suite %.1f ms a rover = %.1f %%, run itself %.1f ms a rover = %.1f %% of the solver\n",
             lauf, rover, ganz / 1000, loeser / 1000 / rover, aufrufe["rnx2rtkp"], suite / 1000 / rover, 100 * suite / loeser, eigen / 1000 / rover, 100 * eigen / loeser
    }' "$JORV_UHR_ZEITEN"
done
