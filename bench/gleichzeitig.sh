#!/usr/bin/env bash
# Rovers at once against one after the other, on twenty rovers of the shipped example:
#   bench/gleichzeitig.sh [BUILD FOLDER] [ROVERS AT ONCE]
# Prints the wall time of the run both ways and their ratio, and the same ratio for a solver called alone twenty times:
# more than that the machine's cores don't give.
set -euo pipefail
wurzel=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
bau=${1:-$wurzel/bau/release}
zugleich=${2:-$(nproc)}
jorv=$bau/programme/jorv
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT
ini=$ordner/JorvPlus.INI
einstellen() { sed -i '/^Gleichzeitig=/d; s/^\[GRUNDEINSTELLUNGEN\]\r$/&\nGleichzeitig='"$1"'\r/' "$ini"; }
befehl() { "$jorv" --einstellungen "$ini" --ja "$@" 2>>"$ordner/meldungen"; }

printf '[GRUNDEINSTELLUNGEN]\r\n' >"$ini"
"$bau/programme/jorv-simulator" beispiel "$ordner/netz" >/dev/null
nummer=$(befehl neu Messung --modus E --verzeichnis "$ordner/verfahren")
befehl antennen "$nummer" "$ordner"/netz/antennen/* >/dev/null
# The rovers of one and two hours within the figures, four times each, and two shorter ones.
i=5600
for vorlage in 5501 5501 5501 5501 5502 5502 5502 5502 5503 5503 5503 5503 5504 5504 5504 5504 5505 5505 5508 5508; do
  i=$((i + 1))
  for art in o n; do
    [[ ! -f $ordner/netz/rinex/${vorlage}1670.16$art ]] ||
      cp "$ordner/netz/rinex/${vorlage}1670.16$art" "$ordner/netz/rinex/${i}1670.16$art"
  done
done
rm "$ordner"/netz/rinex/550?1670.16?
befehl rinex "$nummer" "$ordner/netz/rinex" >/dev/null
while read -r figur; do befehl figur "$nummer" $figur >/dev/null; done <"$ordner/netz/figuren.txt"
cp -r "$ordner/verfahren" "$ordner/vorher"

lauf() { # ROVERS AT ONCE -> milliseconds
  rm -rf "$ordner/verfahren"
  cp -r "$ordner/vorher" "$ordner/verfahren"
  einstellen "$1"
  local beginn ende
  beginn=$(date +%s%N)
  befehl auswerten "$nummer" >/dev/null
  ende=$(date +%s%N)
  echo $(((ende - beginn) / 1000000))
}
for n in 1 2 3; do
  einzeln=$(lauf 1)
  rover=$(find "$ordner/verfahren/jorv_out/dat_rov" -type f | wc -l)
  zusammen=$(lauf "$zugleich")
  awk -v a="$einzeln" -v b="$zusammen" -v n="$n" -v z="$zugleich" -v r="$rover" \
    'BEGIN { printf "run %d: %d rovers, one after the other %d ms, %d at once %d ms, ratio %.2f\n", n, r, a, z, b, a / b }'
done
loesen() { # ROVERS AT ONCE -> milliseconds
  local beginn ende
  beginn=$(date +%s%N)
  seq 20 | xargs -P "$1" -I{} rnx2rtkp -p 3 -f 2 -o "$ordner/aus{}.pos" "$ordner/netz/rinex/56011670.16o" \
    "$ordner/netz/rinex/05901670.16o" "$ordner/netz/rinex/05901670.16n" >/dev/null 2>&1
  ende=$(date +%s%N)
  echo $(((ende - beginn) / 1000000))
}
awk -v a="$(loesen 1)" -v b="$(loesen "$zugleich")" -v z="$zugleich" \
  'BEGIN { printf "solver alone: %d ms, %d at once %d ms, ratio %.2f\n", a, z, b, a / b }'
