// jorvplus: the workbench in its window.
#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include "app/start.h"
#include "modell/Global.h"
#include "ui/Bilder.h"
#include "ui/Fensterschirm.h"
#include "ui/frmHauptform.h"

int main(int anzahl, char** werte)
{
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication app(anzahl, werte);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setApplicationName(QStringLiteral("jorvplus"));
    QApplication::setDesktopFileName(QStringLiteral("jorvplus"));
    QApplication::setWindowIcon(jorv::programmbild());
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    // The texts of the toolkit's own dialogs.
    QTranslator deutsch;
    if (deutsch.load(QStringLiteral("qtbase_de"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&deutsch);

    jorv::Fensterschirm schirm;
    const jorv::Systemuhr uhr;
    jorv::Global g(schirm, uhr, jorv::Dateisystem());
    jorv::Startwahl wahl;
    // For a try-out beside the user's own settings.
    if (const QByteArray datei = qgetenv("JORV_EINSTELLUNGEN"); !datei.isEmpty())
        wahl.einstellungen = g.dateien.laufwerke().dos(datei.toStdString()).value_or("");
    if (ist_fehler(jorv::start(g, wahl))) return 1;
    jorv::frmHauptform form(g, schirm);
    form.show();
    form.erste_aktivierung();
    return QApplication::exec();
}
