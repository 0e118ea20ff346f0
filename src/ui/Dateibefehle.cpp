#include "ui/Dateibefehle.h"

#include <QFileDialog>

#include "app/neuerungen.h"
#include "auswertung/protokolle.h"
#include "daten/beziehungsliste.h"
#include "daten/dateiauswahl.h"
#include "plattform/pfad.h"
#include "projekt/import_felder.h"
#include "ui/frmImport.h"
#include "ui/qtext.h"

namespace jorv {

namespace {

constexpr std::string_view editieren_titel = "beliebige Datei editieren", editor_titel = u8"Editor auswählen"_w,
                           editor_filter = "Programme (*.exe)|*.exe|Alle Dateien (*.*)|*.*";

// The patterns of "Name (*.ini)|*.ini| Name (*.*)|*.*" by their names; every file is meant by "*.*", also one without a
// point.
QStringList namensfilter(std::string_view filter)
{
    QStringList namen;
    const QStringList teile = anzeige(filter).split(QLatin1Char('|'));
    for (qsizetype i = 0; i + 1 < teile.size(); i += 2) {
        const QString name = teile[i].section(QLatin1Char('('), 0, 0).trimmed();
        const QString muster = teile[i + 1] == QLatin1String("*.*") ? QStringLiteral("*") : teile[i + 1];
        namen << QStringLiteral("%1 (%2)").arg(name, muster);
    }
    return namen;
}

// An existing file; nothing when the dialog was cancelled.
std::optional<std::u16string> datei_zeigen(Global& g, QWidget* eltern, const char* name, std::string_view titel,
                                           std::string_view filter, std::string_view verzeichnis)
{
    QFileDialog wahl(eltern, anzeige(titel));
    wahl.setObjectName(QLatin1String(name));
    wahl.setFileMode(QFileDialog::ExistingFile);
    wahl.setNameFilters(namensfilter(filter));
    if (!verzeichnis.empty()) wahl.setDirectory(QString::fromStdU16String(g.dateien.host(verzeichnis).u16string()));
    if (wahl.exec() != QDialog::Accepted || wahl.selectedFiles().isEmpty()) return std::nullopt;
    return wahl.selectedFiles().constFirst().toStdU16String();
}

// The same as a DOS path; nothing also when its name can't be used.
std::optional<std::string> datei_waehlen(Global& g, QWidget* eltern, const char* name, std::string_view titel,
                                         std::string_view filter, std::string_view verzeichnis)
{
    const auto datei = datei_zeigen(g, eltern, name, titel, filter, verzeichnis);
    return datei ? gewaehlte_datei(g, *datei) : std::nullopt;
}

}  // namespace

void m_datei_importieren(Global& g, QWidget* eltern)
{
    const auto datei =
        datei_waehlen(g, eltern, "importdatei", import_auswahl_titel, import_auswahl_filter, g.Datei_Verzeichnis);
    if (!datei) return;
    if (auto import = m_datei_importieren(g, *datei)) frmImport(g, std::move(*import), eltern).exec();
}

void m_datei_basis_liste(Global& g, QWidget* eltern)
{
    const auto datei = datei_waehlen(g, eltern, "basisliste", basisliste_auswahl_titel, basisliste_auswahl_filter,
                                     g.Datei_Verzeichnis);
    if (datei) static_cast<void>(m_datei_basis_liste(g, *datei));
}

void m_grund_editor(Global& g, QWidget* eltern)
{
    if (const auto programm = datei_zeigen(g, eltern, "editor", editor_titel, editor_filter, {}))
        static_cast<void>(Editor_setzen(g, *programm));
}

void m_protkoll_editieren(Global& g, std::string& editierte_datei, QWidget* eltern)
{
    const auto verzeichnis = editierte_datei.empty() ? g.Arbeitsverzeichnis : std::string(pfad_ordner(editierte_datei));
    const auto datei = datei_waehlen(g, eltern, "editieren", editieren_titel, basisliste_auswahl_filter, verzeichnis);
    if (!datei) return;
    editierte_datei = *datei;
    static_cast<void>(datei_editieren(g, *datei));
}

}  // namespace jorv
