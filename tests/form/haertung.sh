#!/usr/bin/env bash
# The delivered programs are built hardened: haertung.sh FOLDER
set -u
cd "$1" || exit 1
schlecht=0
verlangt() { # PROGRAM WHAT PATTERN TEXT
  grep -qE "$3" <<<"$4" || { echo "$1: no $2"; schlecht=1; }
}
for programm in jorv jorvplus jorv-dos WATIME wav2 wa2 wasoft waprt washmod; do
  [[ -f $programm ]] || continue
  kopf=$(readelf -W -h -l -d "$programm" 2>/dev/null)
  zeichen=$(readelf -W -s "$programm" 2>/dev/null)
  verlangt "$programm" "stack protector" __stack_chk_fail "$zeichen"
  verlangt "$programm" "read-only relocations" GNU_RELRO "$kopf"
  grep -qE 'GNU_STACK.* RWE' <<<"$kopf" && { echo "$programm: executable stack"; schlecht=1; }
  # The small ones are linked without shared libraries for a quick start: nothing is bound late, their place is fixed.
  grep -q INTERP <<<"$kopf" || continue
  verlangt "$programm" "free place in memory" 'Type:.*DYN' "$kopf"
  verlangt "$programm" "binding at the start" 'BIND_NOW|Flags:.* NOW' "$kopf"
done
exit $schlecht
