#include "ui/frmEinstellungenAlle.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <array>

#include "ui/Dialogbau.h"
#include "ui/Satellitenwahl.h"
#include "ui/Zahlenbox.h"
#include "ui/qtext.h"

namespace jorv {

namespace {

struct Zahlenzeile {
    const char* name;
    const char16_t* text;
    Zahlenfeld EinstellungenAlle::*feld;
    Alleknopf wert;
    const char* knopf;
};
constexpr std::array zahlenzeilen = {
    Zahlenzeile{"firstminutes", u"Anzahl  der zu ignorienden Minuten zu &Beginn der Beobachtungen",
                &EinstellungenAlle::firstminutes, Alleknopf::cmd_start, "cmd_start"},
    Zahlenzeile{"lastminutes", u"Anzahl der zu ignorienden Minuten am &Ende der Beobachtungen",
                &EinstellungenAlle::lastminutes, Alleknopf::cmd_ende, "cmd_ende"},
    Zahlenzeile{"elevation", u"Elevations-&Maske", &EinstellungenAlle::elevation, Alleknopf::cmd_elevation,
                "cmd_elevation"}};

}  // namespace

frmEinstellungenAlle::frmEinstellungenAlle(Global& g, EinstellungenAlle einstellungen, QWidget* eltern)
    : QDialog(eltern), m_g(g), m_e(std::move(einstellungen))
{
    setObjectName(QStringLiteral("frmEinstellungenAlle"));
    setWindowTitle(anzeige(einstellungen_alle_titel));
    auto* raster = new QGridLayout;
    raster->setSpacing(abstand_gruppe);
    felder_anlegen(*raster);
    QPushButton* satellit = knopf(Alleknopf::cmd_satellit, "cmd_satellit", QStringLiteral("Satelliten"));
    auto* satelliten = new Satellitenwahl(m_e.satelliten, this);
    satelliten->bei_aenderung = [=, this] { geaendert(Alleknopf::cmd_satellit, *satellit); };
    auto* emds = benannt(new QCheckBox(QStringLiteral("EM&DS-Ausgabedatei erzeugen"), this), "chk_emds");
    emds->setEnabled(m_e.emds_aktiv);
    emds->setChecked(m_e.emds);
    connect(emds, &QCheckBox::toggled, this, [this](bool an) { emds_setzen(m_g, m_e, an); });
    auto* schliessen = benannt(new QPushButton(QStringLiteral("S&chließen"), this), "cmd_schliessen");
    schliessen->setAutoDefault(false);
    ohne_pruefung(*schliessen);
    connect(schliessen, &QPushButton::clicked, this, &QDialog::accept);
    auto* unten = new QHBoxLayout;
    unten->addStretch();
    unten->addWidget(schliessen);
    auto* spalte = new QVBoxLayout(this);
    spalte->setSpacing(abstand_gruppen);
    spalte->addLayout(raster);
    spalte->addWidget(satelliten);
    spalte->addWidget(satellit, 0, Qt::AlignRight);
    spalte->addWidget(emds);
    spalte->addLayout(unten);
    setTabOrder(satelliten->findChild<QWidget*>(QStringLiteral("chk_satelliten70")), satellit);
    setTabOrder(satellit, emds);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    findChild<Zahlenbox*>(QStringLiteral("txt_firstminutes"))->setFocus();
}

void frmEinstellungenAlle::felder_anlegen(QGridLayout& raster)
{
    int zeile = 0;
    for (const auto& z : zahlenzeilen) {
        auto* box = new Zahlenbox(m_e.*z.feld, *m_g.oberflaeche, z.name, this);
        QLabel* label = beschriftung(QString::fromUtf16(z.text), box);
        QPushButton* taste = knopf(z.wert, z.knopf, label->text().remove(QLatin1Char('&')), box);
        raster.addWidget(label, zeile, 0);
        raster.addWidget(box->mit_pfeilen(), zeile, 1, Qt::AlignLeft);
        raster.addWidget(taste, zeile++, 2);
        connect(box, &QLineEdit::textChanged, taste, [=, this, wert = z.wert] { geaendert(wert, *taste); });
        connect(box, &QLineEdit::returnPressed, taste, &QPushButton::click);
    }
    QPushButton* taste = knopf(Alleknopf::cmd_frequenz, "cmd_frequenz", QStringLiteral("Koordinatenergebnis"));
    raster.setRowMinimumHeight(zeile++, abstand_gruppe);
    auto* frequenz = frequenzwahl(
        m_e.frequenz, [=, this] { geaendert(Alleknopf::cmd_frequenz, *taste); }, this);
    raster.addWidget(frequenz, zeile, 0, 1, 2);
    raster.addWidget(taste, zeile, 2, Qt::AlignBottom);
    setTabOrder(frequenz->findChild<QWidget*>(QStringLiteral("opt_frequenz2")), taste);
    raster.setColumnStretch(0, 1);
}

QPushButton* frmEinstellungenAlle::knopf(Alleknopf wert, const char* name, const QString& was, Zahlenbox* box)
{
    auto* taste = benannt(new QPushButton(QStringLiteral("für alle übernehmen"), this), name);
    taste->setAccessibleName(QStringLiteral("%1 für alle ROVER übernehmen").arg(was));
    taste->setAutoDefault(false);
    taste->setEnabled(m_e.ist_frei(wert));
    connect(taste, &QPushButton::clicked, this, [=, this] {
        if (box && !box->abschliessen()) return;
        static_cast<void>(einstellungen_alle_uebernehmen(m_g, m_e, wert));
    });
    return taste;
}

void frmEinstellungenAlle::geaendert(Alleknopf wert, QPushButton& knopf)
{
    m_e.geaendert(wert);
    knopf.setEnabled(true);
}

void frmEinstellungenAlle::zeigen(Global& g, std::string_view gewaehlter_rover, QWidget* eltern)
{
    EinstellungenAlle einstellungen;
    if (!ist_fehler(einstellungen_alle_oeffnen(g, gewaehlter_rover, einstellungen)))
        frmEinstellungenAlle(g, std::move(einstellungen), eltern).exec();
}

}  // namespace jorv
