#!/usr/bin/env bash
# Runs the fuzz targets one after the other, as many at once as there are processors:
#   fuzz/lauf.sh SECONDS [TARGET...]
# Prints a line for each: executions, executions a second, inputs found. New inputs stay in bau/fuzz/lauf/<target>/neu.
# Exit status 1 when a property broke; the input then lies in bau/fuzz/lauf/<target>, and the line to replay it is shown.
set -euo pipefail
wurzel=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
bau=$wurzel/bau/fuzz
[[ ${1:-} =~ ^[0-9]+$ ]] || { sed -n '2,5s/^# \?//p' "${BASH_SOURCE[0]}" >&2; exit 2; }
export dauer=$1 wurzel bau
shift
(($#)) || set -- $(cd "$wurzel/fuzz/korpus" && ls)

woerter() {
  case $1 in
    rinex_* | beobachtung | navigation) echo rinex ;;
    profil | projekt | einstellungen) echo ini ;;
    antex) echo antex ;;
    stapel | batchzeile) echo batch ;;
  esac
}

# Bytes of an input: as many as the shortest text needs that reaches all of a reader. Longer ones only slow it down.
laenge() {
  case $1 in
    beobachtung | navigation) echo 1536 ;;
    rinex_* | antennen_igs | antex) echo 1200 ;;
    projekt | loeserausgabe | stapel) echo 1024 ;;
    *) echo 512 ;;
  esac
}

ein_ziel() {
  set -o pipefail
  local ziel=$1 ordner=$bau/lauf/$1 liste
  rm -rf "$ordner"
  mkdir -p "$ordner/neu"
  cd "$ordner"
  export TMPDIR=$ordner # what a killed interpreter leaves behind stays here
  liste=$(woerter "$ziel")
  local befehl=("$bau/fuzz/fuzz_$ziel" -max_len="$(laenge "$ziel")" -timeout=30 -rss_limit_mb=1024 -print_funcs=0 -print_final_stats=1
    ${liste:+-dict="$wurzel/fuzz/woerter/$liste.dict"})
  if "${befehl[@]}" -max_total_time="$dauer" neu "$wurzel/fuzz/korpus/$ziel" 2>&1 | tail -n 300 >protokoll; then
    awk -v ziel="$ziel" '/number_of_executed_units/ { n = $2 } /average_exec_per_sec/ { s = $2 } /new_units_added/ { k = $2 }
      END { printf "%-16s %12d executions %9d a second %6d new inputs\n", ziel, n, s, k }' protokoll
    return 0
  fi
  grep -E 'property broken|ERROR|runtime error|SUMMARY' protokoll | sed "s/^/$ziel: /" | head -5
  echo "$ziel: replay with: $bau/fuzz/fuzz_$ziel $(find "$ordner" -maxdepth 1 -type f ! -name protokoll | head -1)"
  return 1
}
export -f ein_ziel woerter laenge
export UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1
# Where memory came from is told at the replay, which has these left out; here it costs a third of the time.
export ASAN_OPTIONS=malloc_context_size=0:max_malloc_fill_size=0:quarantine_size_mb=1:thread_local_quarantine_size_kb=64
printf '%s\n' "$@" | xargs -P "${JORV_FUZZ_ZUGLEICH:-$(nproc)}" -I{} bash -c 'ein_ziel {}' || exit 1
