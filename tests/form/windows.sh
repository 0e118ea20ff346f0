#!/usr/bin/env bash
# Compiles the core, the console, the suite and the Windows twins for Windows (no linking: the geodesy library has no package there).
set -u
kompilierer=$(command -v x86_64-w64-mingw32-g++-posix || command -v x86_64-w64-mingw32-g++) || { echo 'mingw-w64 is missing'; exit 77; }
cd "$1" || exit 1
kopf="$2/windows_kopf"
mkdir -p "$kopf"
for bibliothek in GeographicLib nlohmann; do ln -sfn "/usr/include/$bibliothek" "$kopf/$bibliothek"; done
schlecht=0
for datei in src/{plattform,modell,geo,karte,planung,projekt,daten,auswertung,app,konsole,suite}/*.cpp; do
  case $datei in *_linux.cpp | *'*.cpp') continue ;; esac
  "$kompilierer" -std=c++20 -fsyntax-only -Wall -Wextra -Isrc -isystem "$kopf" "$datei" || { echo "does not compile: $datei"; schlecht=1; }
done
exit $schlecht
