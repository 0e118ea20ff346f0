#!/usr/bin/env bash
# Our times beside those of others, in one run on one machine, as ratios with the command lines behind them:
#   bench/vergleich.sh [BUILD FOLDER]
# Wants an idle machine. The window's rows need xvfb-run and are left out without it.
set -euo pipefail
wurzel=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
bau=${1:-$wurzel/bau/release}
messer=$bau/bench/bench_vergleich
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT
cd "$ordner"

wert() { awk -v n="$1" '$1 == n { print $2 }'; }
beste() { # COMMAND... -> best of five, milliseconds
  local i beginn ende bestes=
  for i in 1 2 3 4 5; do
    beginn=$(date +%s%N)
    "$@" >/dev/null 2>&1
    ende=$(date +%s%N)
    bestes=$(awk -v a="${bestes:-1e12}" -v b="$beginn" -v c="$ende" 'BEGIN { t = (c - b) / 1e6; print t < a ? t : a }')
  done
  printf '%s' "$bestes"
}
zeile() { # WHAT OURS THEIRS TARGET(<= or >=) COMMANDS
  awk -v was="$1" -v wir="$2" -v andere="$3" -v ziel="$4" -v befehle="$5" 'BEGIN {
    v = wir / andere; mehr = substr(ziel, 1, 2) == ">="; grenze = substr(ziel, 3) + 0
    gut = mehr ? 1 / v >= grenze : v <= grenze
    printf "%-44s %9.2f ms %9.2f ms  %s %6.2f  (%s)%s\n    %s\n", was, wir, andere, (mehr ? "faster" : "ratio "), (mehr ? 1 / v : v), ziel, (gut ? "" : "  NOT MET"), befehle }'
}
fest() { # WHAT OURS LIMIT COMMAND
  awk -v was="$1" -v wir="$2" -v ziel="$3" -v befehl="$4" \
    'BEGIN { printf "%-44s %9.2f ms   limit %9.2f ms%s\n    %s\n", was, wir, ziel, (wir + 0 <= ziel + 0 ? "" : "  NOT MET"), befehl }'
}

printf 'machine: %s, %s cores, load %s, %s\n' "$(awk -F': ' '/model name/ { print $2; exit }' /proc/cpuinfo)" "$(nproc)" \
  "$(cut -d' ' -f1 /proc/loadavg)" "$(date +%F)"
printf '%-44s %12s %12s\n' operation ours theirs
"$messer" datei tag.26o 86400
mv tag.26o 55010010.26o
printf 'observation file: %s MB, 86400 epochs\n' "$(($(stat -c %s 55010010.26o) / 1000000))"
wc -l 55010010.26o >/dev/null
wc_ms=$(beste wc -l 55010010.26o)
zeile "satellite inventory, against wc -l" "$("$messer" satelliten 55010010.26o | wert satelliten)" "$wc_ms" "<=2" \
  "bench_vergleich satelliten FILE | wc -l FILE"
loeser_ms=$(beste rnx2rtkp -p 0 -ts 2027/01/03 0:0:0 -te 2027/01/03 0:0:1 -o aus.pos 55010010.26o)
werte=$("$messer" werte 55010010.26o)
zeile "all values, against the solver's reading" "$(wert werte <<<"$werte")" "$loeser_ms" ">=12" \
  "bench_vergleich werte FILE ($(wert anzahl <<<"$werte") values) | rnx2rtkp -p 0 -ts (outside) -te (outside) -o aus.pos FILE"
mb=$(stat -c %s 55010010.26o)
awk -v b="$mb" -v ms="$(wert werte <<<"$werte")" \
  'BEGIN { printf "%-44s %9.0f MB/s  limit 500 MB/s%s\n", "all values, speed", b / ms / 1000, (b / ms / 1000 >= 500 ? "" : "  NOT MET") }'
"$messer" datei 55020010.26o 3600
"$messer" datei 55030010.26o 3600 ende
fest "header of an hour's file" "$("$messer" kopf 55030010.26o | wert kopf)" 0.1 "bench_vergleich kopf FILE (warm)"
fest "the same looking for the end time in its data" "$("$messer" kopf 55020010.26o | wert kopf)" 10 "bench_vergleich kopf FILE"
fest "satellite inventory of an hour at 1 Hz" "$("$messer" satelliten 55020010.26o | wert satelliten)" 10 "bench_vergleich satelliten FILE"
sichern=$("$messer" sichern 1000)
zeile "saving 1000 rovers, against the bare safe write" "$(wert sichern <<<"$sichern")" "$(wert roh <<<"$sichern")" "<=3" \
  "bench_vergleich sichern 1000 ($(wert bytes <<<"$sichern") bytes, fsync both)"
fest "loading 1000 rovers" "$(wert laden <<<"$sichern")" 20 "bench_vergleich sichern 1000"
zuordnen=$("$bau/bench/bench_automatik" --benchmark_format=csv 2>/dev/null | awk -F, '/1000\/50\/300/ { print $3 / ($5 == "us" ? 1000 : $5 == "ns" ? 1e6 : 1); exit }')
[[ -z $zuordnen ]] || fest "assignment, 1000 rovers, 50 figures, 300 files" "$zuordnen" 10 "bench_automatik"

echo 'intake of 200 hour files, 1.5 GB'
mkdir rover stationen
for i in $(seq 0001 0200); do
  cp 55020010.26o "rover/$((i + 5000))0010.26o"
  cp 55030010.26o "stationen/$(printf %04d "$((10#$i))")0010.26o"
done
kopieren() { rm -rf k; cp -r rover k; sync k/*; }
kopie=$(beste kopieren)
rover=$("$messer" aufnahme "$PWD/rover")
zeile "copying them, against cp and sync" "$(wert kopieren <<<"$rover")" "$kopie" "<=1.5" \
  "bench_vergleich aufnahme FOLDER | cp -r FOLDER k; sync k/*"
fest "stations with an end time, copying aside" "$("$messer" aufnahme "$PWD/stationen" | wert aufnahme)" 100 "bench_vergleich aufnahme FOLDER"
fest "rovers without one, with their satellites" "$(wert aufnahme <<<"$rover")" 2000 "bench_vergleich aufnahme FOLDER (200 inventories of 10 ms)"

echo "a rover's own cost and several at once"
"$wurzel/bench/lauf.sh" "$bau" | tail -1
"$wurzel/bench/gleichzeitig.sh" "$bau" | tail -4
if command -v xvfb-run >/dev/null && [[ -x $bau/bench/bench_fensterstart ]]; then
  echo 'start to the first painted window, against a bare one'
  xvfb-run -a -s '-screen 0 1600x1000x24' "$bau/bench/bench_fensterstart" 2>/dev/null | tail -4
  echo 'redraw of the map'
  xvfb-run -a -s '-screen 0 1600x1000x24' "$bau/bench/bench_karte_fenster" --benchmark_format=console 2>/dev/null | tail -8
fi
