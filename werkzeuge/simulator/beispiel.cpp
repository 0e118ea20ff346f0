#include "simulator/beispiel.h"

#include <cmath>

#include "simulator/datei.h"
#include "simulator/szenario_text.h"
#include "simulator/text.h"

namespace jorv::simulator {

std::string_view beispiel_text()
{
    return R"(# Beispielnetz: sechs Stationen, acht Rover, ein Tag. Alles erdacht.
[Allgemein]
Tag           = 15.06.2016
Saat          = 20160615
Konstellation = 1
Satelliten    = 30
Maske         = 5
Signalstaerke = nein

[Wirkungen]
Empfaengeruhr     = 1.2e-4 3e-9
Satellitenuhren   = ja
Ionosphaere       = 9 -0.008 0.004
Ionosphaerenwelle = 0.05 220 25 150
Troposphaere      = 0.10 0.05 -0.03
Mehrdeutigkeiten  = ja
Phasenspruenge    = 0.05
Coderauschen      = 0.25
Phasenrauschen    = 1.2
Mehrweg           = 0.12
Bahnfehler        = 1.0
Antennenzentrum   = ja

[Antenne 4100210083]
Typ  = JORREF2         JORD
L1   = 0.61 -0.42 89.14
L2   = -0.28 0.57 118.02
Gang = -6.5 -4.1
[Antenne 4100210090]
Typ  = JORREF2         JORD
L1   = 0.84 -0.15 88.67
L2   = -0.11 0.32 117.45
Gang = -6.8 -4.4
[Antenne 4100210091]
Typ  = JORREF2         JORD
L1   = 0.37 -0.66 89.52
L2   = -0.49 0.21 118.33
Gang = -6.3 -3.9
[Antenne 4100210093]
Typ  = JORREF2         JORD
L1   = 0.72 -0.38 88.91
L2   = -0.22 0.44 117.86
Gang = -6.6 -4.0
[Antenne 4100210096]
Typ  = JORREF2         JORD
L1   = 0.55 -0.51 89.08
L2   = -0.34 0.63 118.11
Gang = -6.4 -4.3
[Antenne 4100210098]
Typ  = JORREF2         JORD
L1   = 0.93 -0.27 88.74
L2   = -0.07 0.38 117.59
Gang = -6.7 -4.2
[Antenne R7-00412]
Typ  = JORFELD7        NONE
L1   = 1.18 0.74 61.83
L2   = 0.46 -0.92 58.47
Gang = -4.2 -2.7
[Antenne R7-00437]
Typ  = JORFELD7        NONE
L1   = 1.42 0.53 62.35
L2   = 0.71 -0.68 58.91
Gang = -4.0 -2.9
[Antenne R7-00951]
Typ  = JORFELD7        NONE
L1   = 0.97 0.88 61.52
L2   = 0.33 -1.05 58.16
Gang = -4.4 -2.6

[Punkt 0583]
Name    = Larsund
BLh     = 52.3056214 9.6951377 132.417
Antenne = 4100210083
Von     = 07:00:00
Bis     = 13:59:30
[Punkt 0590]
Name    = Ahlbeek
BLh     = 52.0004187 9.2002936 148.236
Antenne = 4100210090
Von     = 07:00:00
Bis     = 13:59:30
[Punkt 0591]
Name    = Tornhagen
BLh     = 52.0539462 9.6077815 121.873
Antenne = 4100210091
Von     = 07:00:00
Bis     = 13:59:30
[Punkt 0593]
Name    = Wesenried
BLh     = 52.2426538 9.3747091 167.045
Antenne = 4100210093
Von     = 07:00:00
Bis     = 13:59:30
[Punkt 0596]
Name    = Brunnstedt
BLh     = 52.1258743 8.8506120 184.592
Antenne = 4100210096
Von     = 07:00:00
Bis     = 13:59:30
[Punkt 0598]
Name    = Kaltenmark
BLh     = 52.3595276 8.9962483 112.368
Antenne = 4100210098
Von     = 07:00:00
Bis     = 13:59:30

# Drei Stunden im ersten Dreieck
[Punkt 5501]
Name          = Muehlberg
BLh           = 52.0899315 9.3747426 139.514
Naeherung     = 4.1 -2.7 3.3
Antenne       = R7-00412
Antennenhoehe = 1.543
Von           = 09:00:00
Bis           = 12:00:00
Takt          = 15
[Punkt 5502]
Name          = Kirchhof Ost
BLh           = 52.2067884 9.5640952 124.087
Naeherung     = -3.2 1.9 -2.4
Antenne       = R7-00437
Antennenhoehe = 1.672
Von           = 09:10:00
Bis           = 10:20:00
Takt          = 30
[Punkt 5503]
Name          = Torfmoor
BLh           = 52.1797629 9.0835187 153.661
Naeherung     = 2.5 3.8 -1.6
Antenne       = R7-00951
Antennenhoehe = 1.418
Von           = 10:05:00
Bis           = 10:50:00
Takt          = 15
Endzeit       = nein
# Nur zwanzig Minuten
[Punkt 5504]
Name          = Sandgrube
BLh           = 52.1438046 9.4330218 131.902
Naeherung     = -1.4 -4.6 2.9
Antenne       = R7-00412
Antennenhoehe = 1.607
Von           = 12:40:00
Bis           = 13:00:00
Takt          = 15
[Punkt 5505]
Name          = Hohe Heide
BLh           = 52.2426871 8.9961034 146.738
Naeherung     = 3.7 0.8 4.4
Antenne       = R7-00951
Antennenhoehe = 1.555
Von           = 08:30:00
Bis           = 09:45:00
Takt          = 30
Luecke        = 09:02:00 09:04:30
# Ausserhalb aller Figuren
[Punkt 5506]
Name          = Ostkamp
BLh           = 52.1078395 9.8990162 117.225
Naeherung     = -2.8 2.2 1.7
Antenne       = R7-00437
Antennenhoehe = 1.496
Von           = 11:00:00
Bis           = 12:00:00
Takt          = 30
[Punkt 5507]
Name          = Westerfeld
BLh           = 52.0180427 8.6467851 158.349
Naeherung     = 1.1 -3.5 -4.2
Antenne       = R7-00951
Antennenhoehe = 1.631
Von           = 11:20:00
Bis           = 12:50:00
Takt          = 30
Endzeit       = nein
[Punkt 5508]
Name          = Schleuse
BLh           = 52.2426109 9.5931740 109.476
Naeherung     = -4.5 -1.3 2.1
Antenne       = R7-00437
Antennenhoehe = 1.584
Von           = 12:30:00
Bis           = 13:10:00
Takt          = 15
)";
}

namespace {

/// Points with a number up to this one are reference stations, all others rovers.
constexpr std::string_view letzte_station = "3999";

bool ist_station(const Punkt& punkt)
{
    return punkt.pkz <= letzte_station;
}

void punktzeile(std::string& aus, const Punkt& punkt)
{
    aus += punkt.pkz;
    for (const double wert : {punkt.ort.x, punkt.ort.y, punkt.ort.z}) fest(aus, wert, 15, 4);
    aus += "   ";
    for (const char c : punkt.name) aus += c == ' ' ? '_' : c;
    aus += '\n';
}

std::string punktliste(const Szenario& szenario, bool mit_rovern)
{
    std::string aus;
    for (const Punkt& punkt : szenario.punkte) {
        if (mit_rovern || ist_station(punkt)) punktzeile(aus, punkt);
    }
    return aus;
}

void grenzpunkt(std::string& aus, int typ, double rechts, double hoch)
{
    ganz(aus, typ, 1);
    fest(aus, rechts, 12, 1);
    fest(aus, hoch, 13, 1);
    aus += '\n';
}

/// A closed ragged line round the network and an open one across it, zone 32 metres.
std::string grenzen()
{
    constexpr double mitte_rechts = 518000, mitte_hoch = 5782000;
    constexpr int ecken = 72;
    std::string aus;
    for (int i = 0; i < ecken; ++i) {
        const double w = 2 * pi * i / ecken;
        const double radius =
            62000 + 7000 * std::sin(3 * w + 0.4) + 3500 * std::sin(7 * w) + 1800 * std::sin(17 * w + 1);
        grenzpunkt(aus, i == 0 ? 0 : 1, mitte_rechts + radius * std::sin(w), mitte_hoch + 0.85 * radius * std::cos(w));
    }
    constexpr int stuecke = 30;
    for (int i = 0; i <= stuecke; ++i) {
        const double x = -50000 + 100000.0 * i / stuecke;
        grenzpunkt(aus, i == 0 ? 2 : 1, mitte_rechts + x, mitte_hoch - 4000 + 6000 * std::sin(x / 14000) + 0.12 * x);
    }
    return aus;
}

constexpr std::string_view figuren = "0590 0591 0593\n0591 0583 0593\n0590 0593 0598 0596\n";

}  // namespace

bool beispiel_schreiben(const std::filesystem::path& ordner, std::string& meldung)
{
    Szenario szenario;
    return szenario_lesen(beispiel_text(), szenario, meldung) && schreiben(szenario, ordner / "rinex", meldung) &&
           ordner_anlegen(ordner / "antennen", meldung) &&
           antex_schreiben(szenario, ordner / "antennen" / "antennen.atx", meldung) &&
           datei_schreiben(ordner / "katalog.txt", {punktliste(szenario, false)}, meldung) &&
           datei_schreiben(ordner / "wahrheit.txt", {punktliste(szenario, true)}, meldung) &&
           datei_schreiben(ordner / "grenzen.txt", {grenzen()}, meldung) &&
           datei_schreiben(ordner / "figuren.txt", {figuren}, meldung) &&
           datei_schreiben(ordner / "szenario.txt", {beispiel_text()}, meldung);
}

Szenario grosses_szenario()
{
    Szenario s;
    s.saat = 24;
    s.satelliten = 32;
    s.maske = 3;
    s.signalstaerke = true;
    s.wirkungen.satellitenuhren = s.wirkungen.mehrdeutigkeiten = true;
    s.wirkungen.uhr_versatz = 1e-4;
    s.wirkungen.ionosphaere.vtec = 9;
    s.wirkungen.troposphaere.an = true;
    s.wirkungen.coderauschen = 0.25;
    s.wirkungen.phasenrauschen = 0.0012;
    s.antennen.push_back(antenne_machen("R7-00412", "JORFELD7        NONE", {0, 0, 0.062}, {0, 0, 0.058}, 0, 0));
    Punkt p;
    p.pkz = "5599";
    p.name = "Dauerlauf";
    p.ort = {3876543.2101, 628765.4321, 5009876.5432};
    p.antenne = "R7-00412";
    p.bis = 86399;
    p.takt = 1;
    p.endzeit_im_kopf = false;
    s.punkte.push_back(p);
    return s;
}

}  // namespace jorv::simulator
