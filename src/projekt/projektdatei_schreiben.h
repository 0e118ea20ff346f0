// Writing a project file: every section in its order into the image of the old file, which is then replaced whole.
#pragma once

#include "modell/Global.h"
#include "plattform/fehler.h"
#include "plattform/profil.h"

namespace jorv {

/// Saves the open project. Rows that vanished keep their keys with an empty value; unknown sections, keys and comment
/// lines survive; sections in g.ungelesene_Sektionen are left alone. A project that was not read to its end is not
/// saved (that failure has been shown when it was opened). On a failure the old file is as it was.
Fehler Verfahren_sichern(Global& g);

/// Takes the open project into the image of its file.
void Verfahren_eintragen(const Global& g, Profil& profil);

}  // namespace jorv
