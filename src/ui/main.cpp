// jorvplus: the workbench in its window.
#include <QApplication>

#include "app/start.h"
#include "modell/Global.h"
#include "ui/Anwendung.h"
#include "ui/Fensterschirm.h"
#include "ui/frmHauptform.h"
#include "ui/frmLogo.h"

int main(int anzahl, char** werte)
{
    jorv::anwendung_vorbereiten();
    QApplication app(anzahl, werte);
    jorv::anwendung_einrichten();
    jorv::Fensterschirm schirm;
    const jorv::Systemuhr uhr;
    jorv::Global g(schirm, uhr, jorv::Dateisystem());
    jorv::Startwahl wahl;
    // For a try-out beside the user's own settings.
    if (const QByteArray datei = qgetenv("JORV_EINSTELLUNGEN"); !datei.isEmpty())
        wahl.einstellungen = g.dateien.laufwerke().dos(datei.toStdString()).value_or("");
    if (ist_fehler(jorv::start(g, wahl))) return 1;
    jorv::frmLogo(g).zeigen();
    jorv::frmHauptform form(g, schirm);
    form.show();
    form.erste_aktivierung();
    return QApplication::exec();
}
