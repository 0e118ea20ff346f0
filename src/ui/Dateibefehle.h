// The commands that first ask for a file.
#pragma once

namespace jorv {

class frmHauptform;

void m_datei_importieren(frmHauptform& form);
void m_datei_basis_liste(frmHauptform& form);
/// Starts in the folder of the file edited last, at first in the project's.
void m_protkoll_editieren(frmHauptform& form);

}  // namespace jorv
