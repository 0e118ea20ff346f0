#include "ui/frmEinstellungen.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <array>

#include "modell/Baum.h"
#include "modell/Gemeinsam.h"
#include "ui/Bilder.h"
#include "ui/Dialogbau.h"
#include "ui/Satellitenwahl.h"
#include "ui/Zahlenbox.h"
#include "ui/frmWarum.h"
#include "ui/qtext.h"

namespace jorv {

namespace {

struct Zahlenzeile {
    const char* name;
    const char16_t* text;
    Zahlenfeld Rovereinstellungen::*feld;
};
constexpr std::array zahlenzeilen = {
    Zahlenzeile{"starttime", u"&Startzeit der RINEX-Daten in GPS-Sekunden", &Rovereinstellungen::starttime},
    Zahlenzeile{"endtime", u"En&dzeit der RINEX-Daten in GPS-Sekunden", &Rovereinstellungen::endtime},
    Zahlenzeile{"epochrate", u"Auswerte&interval in Sekunden", &Rovereinstellungen::epochrate},
    Zahlenzeile{"elevation", u"Elevations-&Maske", &Rovereinstellungen::elevation},
    Zahlenzeile{"firstminutes", u"Anzahl  der zu ignorienden Minuten zu &Beginn der Beobachtungen",
                &Rovereinstellungen::firstminutes},
    Zahlenzeile{"lastminutes", u"Anzahl der zu ignorienden Minuten am &Ende der Beobachtungen",
                &Rovereinstellungen::lastminutes}};

}  // namespace

frmEinstellungen::frmEinstellungen(Global& g, Rovereinstellungen einstellungen, QWidget* eltern)
    : QDialog(eltern), m_g(g), m_e(std::move(einstellungen))
{
    setObjectName(QStringLiteral("frmEinstellungen"));
    setWindowTitle(anzeige(m_e.Titel));
    auto* links = new QGridLayout;
    links->setSpacing(abstand_gruppe);
    felder_anlegen(*links);
    auto* rechts = new QVBoxLayout;
    rechts->setSpacing(abstand_gruppen);
    rechts->addWidget(frequenzwahl(m_e.frequenz, {}, this));
    rechts->addWidget(ampel());
    rechts->addStretch();
    auto* oben = new QHBoxLayout;
    oben->setSpacing(2 * abstand_gruppen);
    oben->addLayout(links);
    oben->addLayout(rechts, 1);
    auto* spalte = new QVBoxLayout(this);
    spalte->setSpacing(abstand_gruppen);
    spalte->addLayout(oben);
    spalte->addWidget(new Satellitenwahl(m_e.satelliten, this));
    auto* knoepfe = knopfzeile(*this);
    ohne_pruefung(*knoepfe->findChild<QPushButton*>(QStringLiteral("cmd_abbrechen")));
    spalte->addWidget(knoepfe);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    m_boxen.front()->setFocus();
}

void frmEinstellungen::felder_anlegen(QGridLayout& raster)
{
    int zeile = 0;
    for (const auto& z : zahlenzeilen) {
        auto* box = new Zahlenbox(m_e.*z.feld, *m_g.oberflaeche, z.name, this);
        raster.addWidget(beschriftung(QString::fromUtf16(z.text), box), zeile, 0);
        raster.addWidget(box->mit_pfeilen(), zeile++, 1, Qt::AlignLeft);
        m_boxen.push_back(box);
    }
    auto* einaus =
        benannt(new QCheckBox(QStringLiteral(" &nimmt an der nächsten Berechnung teil"), this), "chk_einaus");
    einaus->setChecked(m_e.einaus);
    connect(einaus, &QCheckBox::toggled, this, [this](bool an) { m_e.einaus = an; });
    raster.addWidget(einaus, zeile, 0, 1, 2);
    raster.setRowStretch(zeile + 1, 1);
}

QWidget* frmEinstellungen::ampel()
{
    auto* feld = new QWidget(this);
    auto* ueberschrift =
        benannt(new QLabel(QStringLiteral("Bedeutung der aktuellen Ampelschaltung:"), feld), "lbl_ueb_ampelinfo");
    auto* text = benannt(new QLabel(anzeige(m_e.ampelinfo), feld), "lbl_ampelinfo");
    text->setTextFormat(Qt::PlainText);
    auto* bild = benannt(new QLabel(feld), "bild_ampel");
    bild->setPixmap(baumbild(rover_bild(m_g, Index_OBS_R(m_g, m_e.ROVER_Dateiname))).pixmap(16));
    auto* raster = new QGridLayout(feld);
    raster->setContentsMargins(0, 0, 0, 0);
    raster->setSpacing(abstand_gruppe);
    raster->addWidget(ueberschrift, 0, 0, 1, 2);
    raster->addWidget(bild, 1, 0, Qt::AlignTop);
    raster->addWidget(text, 1, 1);
    auto* warum = benannt(new QPushButton(QStringLiteral("&Warum?"), feld), "cmd_warum");
    warum->setAutoDefault(false);
    ohne_pruefung(*warum);
    connect(warum, &QPushButton::clicked, this, [this] { frmWarum::zeigen(m_g, m_e.ROVER_Dateiname, this); });
    raster->addWidget(warum, 2, 1, Qt::AlignLeft);
    raster->setColumnStretch(1, 1);
    for (QWidget* element : std::initializer_list<QWidget*>{ueberschrift, bild, text, warum})
        element->setVisible(m_e.ampelinfo_sichtbar);
    return feld;
}

void frmEinstellungen::accept()
{
    for (Zahlenbox* box : m_boxen)
        if (!box->abschliessen()) return;
    if (!ist_fehler(einstellungen_ok(m_g, m_e))) QDialog::accept();
}

void frmEinstellungen::zeigen(Global& g, std::string_view rover, QWidget* eltern)
{
    if (auto einstellungen = einstellungen_oeffnen(g, rover))
        frmEinstellungen(g, std::move(*einstellungen), eltern).exec();
}

}  // namespace jorv
