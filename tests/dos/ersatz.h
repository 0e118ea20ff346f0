// Stand-ins for the programs that the batches call: they leave the files that the batches go on with, and nothing else.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "dos/probe.h"
#include "plattform/pfad.h"
#include "plattform/text.h"

namespace jorv::dos::test {

/// A file KEINVRS in the work folder makes the virtual station fail.
inline void ersatz_anlegen(const Probe& probe)
{
    constexpr std::string_view virtuelle =
        "t=virt$1; j=05; [ -e KEINVRS ] || { printf O > $t.${j}o; printf N > $t.${j}n; printf G > $t.${j}g; }";
    const struct {
        std::string_view name, skript;
    } skripte[] = {
        {"wav2", "echo \"wav2 $*\"; printf L > wav2log.txt; r=$1; set -- $(echo $r | cut -c5-7); "},
        {"wa2",
         "[ -e \"$1\" ] || exit 1; [ \"$3\" = still ] || echo \"wa2 $*\"; for a in \"$@\"; do case $a in "
         "+FE*) printf ext > ${a#+FE};; +FL*) printf lis > ${a#+FL};; +FS*) printf sol > ${a#+FS};; esac; done; "
         "printf x > wa2ext.txt; printf x > wa2log.txt"},
        {"waprt", "[ -e \"$1\" ] && echo \"waprt $*\" || echo \"$1 fehlt\" >&2"},
        {"washmod", "echo \"$*\" > washmod.log"},
        {"WATIME", "echo \"01.12.2016 12:00:00 336(1)\"; echo \"$*|$(basename \"$PWD\")\""},
    };
    for (const auto& [name, skript] : skripte)
        probe.programm(name, name == "wav2" ? verkettet(skript, virtuelle) : std::string(skript));
    // Called with a day it makes the virtual station and its protocol, with two files it computes.
    probe.programm("wasoft",
                   verkettet("echo \"wasoft $*\"; if [ ${#1} -lt 5 ]; then ", virtuelle,
                             "; [ -e KEINVRS ] && printf F > wav2.err || printf V > virt$1.vrt; else [ -e \"$1\" ] || "
                             "exit 1; printf P > ${2%.*}.prt; fi"));
}

/// The programs' folder as a batch writes it into its path line.
constexpr std::string_view exe_verzeichnis = "D:\\Hilfs programme";

/// A project folder with its batch and call file; runs the call file by the program as the workbench does, and once
/// more in this process in a second world: both must leave the same.
struct Verfahren {
    std::string_view ordner = "D:\\Prüf Verfahren äöü";
    std::vector<std::string> dateien;  ///< what lies in the folder before

    /// `batch` is the text behind the common head.
    std::vector<std::string> ausgefuehrt(std::string_view batch, std::string_view zweites_mal = {}) const
    {
        const auto im_programm = einmal(batch, zweites_mal, [](Probe& probe) { probe.als_programm("Jorv.BAT"); });
        const auto hier = einmal(batch, zweites_mal, [this](Probe& probe) {
            const auto ausgang = probe.lauf(verkettet('"', ordner, "\\Jorv.BAT\""));
            EXPECT_TRUE(ausgang.gelesen);
        });
        EXPECT_EQ(im_programm, hier);
        return im_programm;
    }

    std::string kopf() const
    {
        const auto wurzel = ordner.starts_with("\\\\") ? ordner.find('\\', 2) + 1 : 3;
        return verkettet(
            "REM\nREM JORV 1.0 vom 01.12.2016\nREM WaSoft- Auswertung von: Straße & <Brücke> 100% | (001)\n"
            "REM am: 01.12.2016 um: 12:00:00\nREM\n@echo off\npath %path%;",
            exe_verzeichnis, '\n', ordner.substr(0, wurzel - 1), "\ncd ", ordner.substr(wurzel - 1), '\n');
    }

private:
    std::vector<std::string> einmal(std::string_view batch, std::string_view zweites_mal,
                                    const std::function<void(Probe&)>& starten) const
    {
        Probe probe(ordner);
        ersatz_anlegen(probe);
        probe.umfeld.suchpfad.clear();
        probe.anlegen(dateien);
        probe.batch("001.BAT", kopf() + std::string(batch));
        probe.batch(
            "Jorv.BAT",
            verkettet("@echo off\necho !\necho !             Bitte warten! Auswertung der WaSoft läuft!\necho !\n"
                      "echo !                  (Fenster schließt automatisch!)\necho !\n\"",
                      ordner, "\\001.BAT\"\n"));
        starten(probe);
        if (!zweites_mal.empty()) {
            std::filesystem::remove(probe.ort(zweites_mal));
            starten(probe);
        }
        auto baum = probe.baum();
        std::erase_if(baum, [](const std::string& zeile) { return zeile.find(".BAT=") != std::string::npos; });
        return baum;
    }
};

}  // namespace jorv::dos::test
