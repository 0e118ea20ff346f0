// Linking one rover with station files by hand, as plain data: the candidates as rows of bars on one time axis, clicks
// on rows, and what OK stores.
#pragma once

#include <string>
#include <string_view>

#include "modell/Feld.h"
#include "modell/Global.h"
#include "planung/zeitachse.h"
#include "plattform/fehler.h"

namespace jorv {

struct Handzeile {
    std::string Dateiname, Punktkennzeichen, Tag;
    double Rechtswert = 0, Hochwert = 0;  ///< metres
    Zeitpunkt Beginn, Ende;               ///< first and last epoch
    std::string Hinweis;                  ///< tool tip
    Zeilenfarbe farbe = Zeilenfarbe::grau;
    Balken balken;
};

struct Handarbeit {
    std::string Titel;
    Handzeile ROVER;           ///< row 0
    Feld<Handzeile> Detail;    ///< rows from 1 on
    Feld<std::int32_t> pos_s;  ///< place of row i (element i + 1) from the top, in rows
    Zeitachse achse;
    bool Schutz = false;
    std::string Knoten;  ///< the label of the clicked tree node, as the window has to keep it
};

/// Extent of the rover and the candidates, metres.
struct Handausschnitt {
    double Rechtswert_min = 0, Rechtswert_max = 0, Hochwert_min = 0, Hochwert_max = 0;
};

/// What frmhinweis shows in front of the dialog, two paragraphs, and what its OK stores.
inline constexpr std::string_view handarbeit_hinweis =
    "Die Zuordnung der TOREL-Dateien zu den ROVER-Punkten kann auch automatisch erfolgen, wenn sinnvolle Drei- "
    "und/oder Vierecke per Mausklick auf die Punktsignaturen der TOREL-Punkte in der Grafik gebildet werden.\n"
    "Weitere Hinweise zu dieser Automatik finden Sie im Handbuch!";
void handarbeit_hinweis_ok(Global& g, bool weiter_zeigen);

/// Station files whose epochs truly overlap the rover's, with the present assignment marked. An unknown rover or an
/// array that can't grow fails; in the second case the message has been shown and there are no rows.
Fehler handarbeit_oeffnen(Global& g, std::string_view rover, Handarbeit& h);

/// A click on a row: chooses or drops a station file, at most four, all of one day and session. Row 0 does nothing.
void handarbeit_klick(Global& g, Handarbeit& h, int zeile);

/// OK: the chosen files replace the assignment, with light and reason from the rover's row and the protection as
/// ticked, the rover's node in the tree the image of that light. The project is stamped; nothing is saved.
void handarbeit_ok(Global& g, Handarbeit& h);

Handausschnitt handarbeit_ausschnitt(const Handarbeit& h);

}  // namespace jorv
