#include "ui/frmWarum.h"

#include <QApplication>
#include <QClipboard>
#include <QListWidget>

#include "modell/Baum.h"
#include "modell/Gemeinsam.h"
#include "planung/begruendung.h"
#include "ui/Bilder.h"
#include "ui/Dialogbau.h"
#include "ui/qtext.h"

namespace jorv {

namespace {

constexpr int bild_gut = 1, bild_schlecht = 3, breite_zeichen = 80, mindestens_zeilen = 5;

QLabel* absatz(const std::string& text, const char* name, QWidget* eltern)
{
    auto* label = benannt(new QLabel(anzeige(text), eltern), name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return label;
}

// Files with tick or cross, steps of the decision numbered.
void schritte_fuellen(QListWidget& liste, const std::vector<Begruendungszeile>& zeilen)
{
    int nummer = 0;
    for (const auto& zeile : zeilen) {
        if (zeile.art == Zeilenart::kopf || zeile.art == Zeilenart::weg) continue;
        QString text = anzeige(zeile.text);
        if (zeile.art == Zeilenart::schritt) text = QStringLiteral("%1. %2").arg(++nummer).arg(text);
        auto* eintrag = new QListWidgetItem(text, &liste);
        eintrag->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        if (zeile.art == Zeilenart::genommen) eintrag->setIcon(baumbild(bild_gut));
        if (zeile.art == Zeilenart::nicht_genommen) eintrag->setIcon(baumbild(bild_schlecht));
    }
}

}  // namespace

frmWarum::frmWarum(const Global& g, int rover, QWidget* eltern) : QDialog(eltern)
{
    setObjectName(QStringLiteral("frmWarum"));
    setWindowTitle(QStringLiteral("Warum diese Ampel?"));
    const auto zeilen = begruendung_zeilen(g, rover);
    auto* bild = benannt(new QLabel(this), "img_ampel");
    bild->setPixmap(baumbild(rover_bild(g, rover)).pixmap(24, 24));
    auto* kopf = absatz(zeilen.front().text, "lbl_kopf", this);
    QFont fett = kopf->font();
    fett.setBold(true);
    kopf->setFont(fett);
    auto* liste = benannt(new QListWidget(this), "lst_schritte");
    liste->setWordWrap(true);
    liste->setIconSize(QSize(16, 16));
    liste->setMinimumSize(fontMetrics().averageCharWidth() * breite_zeichen,
                          fontMetrics().height() * mindestens_zeilen);
    schritte_fuellen(*liste, zeilen);
    auto* oben = new QHBoxLayout;
    oben->addWidget(bild, 0, Qt::AlignTop);
    oben->addWidget(kopf, 1);
    auto* titel = beschriftung(QStringLiteral("So hat die &Automatik entschieden:"), liste);
    titel->setAlignment(Qt::AlignLeft);
    auto* alles = new QVBoxLayout(this);
    alles->setSpacing(abstand_gruppe);
    alles->addLayout(oben);
    alles->addSpacing(abstand_gruppe);
    alles->addWidget(titel);
    alles->addWidget(liste, 1);
    if (zeilen.back().art == Zeilenart::weg) alles->addWidget(absatz(zeilen.back().text, "lbl_weg", this));
    auto* kopieren = benannt(new QPushButton(QStringLiteral("&Kopieren"), this), "cmd_kopieren");
    kopieren->setAutoDefault(false);
    connect(kopieren, &QPushButton::clicked, this,
            [text = anzeige(begruendung_text(g, rover))] { QApplication::clipboard()->setText(text); });
    auto* ok = benannt(new QPushButton(QStringLiteral("OK"), this), "cmd_ok");
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    auto* unten = new QHBoxLayout;
    unten->addWidget(kopieren);
    unten->addStretch();
    unten->addWidget(ok);
    alles->addSpacing(abstand_gruppe);
    alles->addLayout(unten);
    liste->setCurrentRow(0);
    liste->setFocus();
}

void frmWarum::zeigen(const Global& g, const std::string& rover, QWidget* eltern)
{
    if (const int i = Index_OBS_R(g, rover); i != 0) frmWarum(g, i, eltern).exec();
}

}  // namespace jorv
