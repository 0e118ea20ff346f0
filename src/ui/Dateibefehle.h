// The commands that first ask for a file.
#pragma once

#include <string>

class QWidget;

namespace jorv {

struct Global;

void m_datei_importieren(Global& g, QWidget* eltern);
void m_datei_basis_liste(Global& g, QWidget* eltern);
void m_grund_editor(Global& g, QWidget* eltern);
/// Starts in the folder of the file edited last, at first in the project's, and takes note of the new one.
void m_protkoll_editieren(Global& g, std::string& editierte_datei, QWidget* eltern);

}  // namespace jorv
