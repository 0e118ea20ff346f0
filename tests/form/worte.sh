#!/usr/bin/env bash
# Words that must not stand in the core, each with the better one.
set -u
cd "$1" || exit 1
schlecht=0
suche() {
  if grep -rnE --include='*.cpp' --include='*.h' "$1" src | grep -vE "${3:-^$}"; then
    echo "  -> $2"
    schlecht=1
  fi
}
suche '\bstd::sto[dil]\b|\batof\(|\batoi\(|\bsscanf\(|\bstrtod\(|\bsetlocale\(|std::locale' 'numbers go through plattform/zahl.h'
suche 'printf *\(' 'text goes through verkettet, numbers through plattform/zahl.h'
suche '#include <(iostream|sstream|fstream)>' 'files go through plattform/datei.h' '^src/(konsole|plattform/umgebung_linux|suite/loeser)'
grep -rn 'using namespace' --include='*.h' src && { echo '  -> no using namespace in headers'; schlecht=1; }
suche '\bsystem\(|\bpopen\(' 'programs start through plattform/prozess.h'
# The solver's private folder lives no longer than the call: nothing in it needs to survive.
suche 'std::ofstream|fopen\(' 'files are written whole by plattform/datei.h' '^src/suite/loeser'
exit $schlecht
