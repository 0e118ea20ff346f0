// The small routines that every command calls: look-ups by name, paths for labels, the date stamp, code page 850.
#pragma once

#include <string>
#include <string_view>

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// Empties every array of the open project (BASISLINIE apart). Failure shows its message.
Fehler all_ini(Global& g);

/// A path shortened for a label of `breite` characters: head, "...\" and as much of the tail as fits. `fuell` is put
/// behind a shorter path until the width is reached; "" leaves it as it is.
std::string pfad_kuerzen(std::string_view pfad, int breite, std::string_view fuell = {});

int zeichen_zaehlen(std::string_view text, char zeichen);

/// The letters that a console of code page 850 must see, recoded from Windows-1252; other bytes stay.
std::string dos_text(std::string_view text);

/// First three-digit number that no project has; "000" if all are taken.
std::string naechste_Nummer(const Global& g);
/// Number of a project name ("000" if unknown) and name of a number ("" if unknown).
std::string Nummer_zu_Name(const Global& g, std::string_view name);
std::string Name_zu_Nummer(const Global& g, std::string_view nummer);

/// Index of the first record of that name, 0 if unknown.
int Index_zu_Name(const Global& g, std::string_view name);
int Index_Settings(const Global& g, std::string_view rover_dateiname);
int Index_OBS_R(const Global& g, std::string_view dateiname);
int Index_OBS_S(const Global& g, std::string_view dateiname);
int Index_OBS_V(const Global& g, std::string_view dateiname);
int Index_ROVER_TOREL(const Global& g, std::string_view rover_dateiname);
int Index_ROVER_VIRT(const Global& g, std::string_view rover_dateiname);

/// The list entry of the open project, or nullptr.
Verfahren_Satz* aktuelles_Verfahren(Global& g);
const Verfahren_Satz* aktuelles_Verfahren(const Global& g);

/// The antenna format of the open project: "?", "APC" or "ATX" ("AXT" of imported projects counts as "ATX").
std::string Antennenformat(const Global& g);

/// With a project open, LetztDatum of its list entry becomes the present date and time.
void Datum_setzen(Global& g);

/// Files and subfolders of a folder, counted one by one.
int Anzahl_Dateien(Global& g, std::string_view ordner);
int Anzahl_Ordner(Global& g, std::string_view ordner);

/// A file in the project's work directory.
std::string im_Verfahren(const Global& g, std::string_view name);
/// Work directory, "\", number, extension ("001.KRZ").
std::string Verfahrens_Datei(const Global& g, std::string_view endung);

/// Mode letter E, S, F, B of "1" to "4"; "?" for anything else.
std::string_view Modus_Buchstabe(std::string_view modus);
/// The digit of a letter; empty for anything else.
std::string_view Modus_Ziffer(std::string_view buchstabe);

/// Modes E and S work with stations of the project.
inline bool ist_E_oder_S(const Global& g)
{
    return g.Verfahrensmodus == "1" || g.Verfahrensmodus == "2";
}
inline bool ist_F(const Global& g)
{
    return g.Verfahrensmodus == "3";
}
inline bool ist_B(const Global& g)
{
    return g.Verfahrensmodus == "4";
}

/// Whether rover i takes part in a run: switched on, green in modes E and S, linked in mode F.
bool rover_zaehlt(const Global& g, int i);

}  // namespace jorv
