#!/usr/bin/env bash
# Baut Jorv+ ohne Fenster für Windows (mingw-w64) und prüft es unter Wine. Aufruf: werkzeuge/windows.sh hilfe
set -euo pipefail

wurzel=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
bau=$wurzel/bau/windows
bedarf=$bau/bedarf
einrichtung=$bedarf/einrichtung
kerne=$(nproc)
gast=x86_64-w64-mingw32
pakete=(g++-mingw-w64-x86-64-posix gcc-mingw-w64-x86-64-posix wine wine64 cmake ninja-build dpkg-dev googletest
    nlohmann-json3-dev locales debian-archive-keyring)

hilfe() {
    cat <<TEXT
werkzeuge/windows.sh bedarf     baut die nötigen Bibliotheken und das Rechenprogramm aus Debians Quellpaketen
werkzeuge/windows.sh bauen      dazu alle Programme und Prüfungen
werkzeuge/windows.sh pruefen    baut und lässt die Prüfungen und das Beispielnetz unter Wine laufen
werkzeuge/windows.sh beispiel   baut und rechnet nur das Beispielnetz unter Wine
Nötige Debian-Pakete: ${pakete[*]}
TEXT
}

schritt() { printf '\n== %s\n' "$*"; }

# Eigene Paketlisten: die des Rechners nennen meist keine Quellpakete und bleiben, wie sie sind.
quelle_holen() {
    local name=$1 listen=$bedarf/listen codename
    compgen -G "$bedarf/quellen/$name-*/debian" >/dev/null && return
    schritt "Quellpaket $name holen"
    codename=$(. /etc/os-release && printf '%s' "$VERSION_CODENAME")
    mkdir -p "$listen/partial" "$bedarf/quellen"
    printf 'deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] %s %s main\n' \
        "${JORV_DEBIAN:-http://deb.debian.org/debian}" "$codename" >"$bedarf/quellen.list"
    local apt=(apt-get -q -o "Dir::Etc::sourcelist=$bedarf/quellen.list" -o Dir::Etc::sourceparts=-
        -o "Dir::State::lists=$listen" -o Dir::Cache::pkgcache= -o Dir::Cache::srcpkgcache=)
    "${apt[@]}" update
    (cd "$bedarf/quellen" && "${apt[@]}" source "$name")
}

# bibliothek_bauen NAME QUELLEN "ZIELE" "ORDNER, DIE EINGERICHTET WERDEN" CMAKE-ANGABEN...
bibliothek_bauen() {
    local name=$1 quellen=$2 ziele=$3 ordner=$4 eins ort
    shift 4
    [[ -e $einrichtung/fertig.$name ]] && return
    schritt "$name bauen"
    ort=$bedarf/bau/$name
    cmake -S "$quellen" -B "$ort" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$wurzel/cmake/Windows.cmake" \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$einrichtung" -DBUILD_SHARED_LIBS=OFF "$@" >/dev/null
    # shellcheck disable=SC2086
    cmake --build "$ort" -j "$kerne" --target $ziele
    for eins in $ordner; do cmake --install "$ort/$eins" >/dev/null; done
    touch "$einrichtung/fertig.$name"
}

# Dieselben Quellen und Angaben, mit denen das Debian-Paket gebaut wird. IERS_MODEL ist dort nicht gesetzt.
loeser_bauen() {
    local quellen ort=$bedarf/bau/loeser datei teile=() namen
    [[ -e $einrichtung/bin/rnx2rtkp.exe ]] && return
    schritt "rnx2rtkp bauen"
    quellen=$(echo "$bedarf"/quellen/rtklib-*/)
    namen="rtkcmn rinex rtkpos postpos solution lambda geoid sbas preceph pntpos ephemeris options ppp ppp_ar rtcm rtcm2
        rtcm3 rtcm3e ionex tides"
    mkdir -p "$ort" "$einrichtung/bin"
    for datei in "$quellen"app/consapp/rnx2rtkp/rnx2rtkp.c $(for n in $namen; do echo "${quellen}src/$n.c"; done); do
        teile+=("$ort/$(basename "$datei" .c).o")
        "$gast-gcc-posix" -c -w -O3 -std=gnu99 -I"${quellen}src" -DWIN32 -DTRACE -DENAGLO -DENAQZS -DENAGAL -DENACMP \
            -DENAIRN -DNFREQ=5 "$datei" -o "${teile[-1]}"
    done
    "$gast-gcc-posix" -static -o "$einrichtung/bin/rnx2rtkp.exe" "${teile[@]}" -lwinmm -lws2_32
}

bedarf_bauen() {
    quelle_holen geographiclib
    quelle_holen rtklib
    mkdir -p "$einrichtung/include"
    ln -sfn /usr/include/nlohmann "$einrichtung/include/nlohmann"
    bibliothek_bauen geographiclib "$(echo "$bedarf"/quellen/geographiclib-*/)" GeographicLib_STATIC \
        "src include/GeographicLib cmake" -DBUILD_MANPAGES=OFF -DBINDIR=
    bibliothek_bauen googletest /usr/src/googletest "gtest gtest_main gmock gmock_main" . -DINSTALL_GTEST=ON
    loeser_bauen
}

bauen() {
    bedarf_bauen
    wine_einrichten # der Simulator läuft schon beim Bauen
    schritt "Bauen in $bau"
    cd "$wurzel"
    [[ -f $bau/build.ninja ]] || cmake --preset windows
    cmake --build "$bau" -j "$kerne"
    cp -u "$einrichtung/bin/rnx2rtkp.exe" "$bau/programme/"
}

# Ein Windows mit deutschen Zeichensätzen, das nichts vom Benutzer weiß und kein Fenster öffnet.
wine_einrichten() {
    local sprache=$bedarf/sprache
    if [[ ! -d $sprache/de_DE.UTF-8 ]]; then
        mkdir -p "$sprache"
        localedef -i de_DE -f UTF-8 "$sprache/de_DE.UTF-8"
    fi
    export LOCPATH=$sprache LC_ALL=de_DE.UTF-8
    export WINEPREFIX=$bau/wine WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe=d"
    unset DISPLAY
    if [[ ! -e $WINEPREFIX/system.reg ]]; then
        schritt "Wine einrichten in $WINEPREFIX"
        wineboot -i 2>/dev/null
        wineserver -w
    fi
}

# Rechnet das Beispiel mit den Programmen beider Systeme im selben Ordner und vergleicht, was sie hinterlassen.
beispiel_vergleichen() {
    local ort=$bau/beispiel system
    cd "$wurzel"
    [[ -f bau/release/build.ninja ]] || cmake --preset release >/dev/null
    cmake --build bau/release -j "$kerne" --target jorv jorv-dos WATIME wav2 wa2 jorv-wahrheit beispielnetz
    export JORV_JETZT=2016-12-01T12:00:00
    for system in linux windows; do
        rm -rf "$ort.$system"
        if [[ $system == linux ]]; then
            werkzeuge/beispiel.sh bau/release/programme bau/release/beispielnetz "$ort" >"$ort.$system.txt"
        else
            JORV_UNTER=wine werkzeuge/beispiel.sh "$bau/programme" bau/release/beispielnetz "$ort" >"$ort.$system.txt"
        fi
        mv "$ort" "$ort.$system"
    done
    schritt "Ergebnisse unter Wine"
    sed -n '/Ergebnisse/,$p' "$ort.windows.txt"
    schritt "Vergleich der Ordner $ort.linux und $ort.windows"
    diff -rq "$ort.linux/verfahren" "$ort.windows/verfahren"
}

case ${1:-hilfe} in
bedarf) bedarf_bauen ;;
bauen) bauen ;;
pruefen)
    bauen
    schritt "Prüfen unter Wine"
    ctest --test-dir "$bau" --output-on-failure --no-tests=error -LE lang
    beispiel_vergleichen
    ;;
beispiel)
    bauen
    beispiel_vergleichen
    ;;
hilfe | --help | -h) hilfe ;;
*)
    hilfe >&2
    exit 2
    ;;
esac
