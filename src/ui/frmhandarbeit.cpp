#include "ui/frmhandarbeit.h"

#include <QCheckBox>
#include <QSplitter>

#include "ui/Bilder.h"
#include "ui/Dialogbau.h"
#include "ui/Einzelansicht.h"
#include "ui/Zeichnung.h"
#include "ui/Zeitbalken.h"
#include "ui/qtext.h"

namespace jorv {

namespace {

QColor farbe(const Handzeile& z)
{
    return qfarbe(zeilenfarbe(z.farbe));
}

// The light that the row's colour stands for.
QIcon licht(const Handzeile& z)
{
    return baumbild(z.farbe == Zeilenfarbe::gruen ? 1 : z.farbe == Zeilenfarbe::gelb ? 2 : 3);
}

}  // namespace

frmhandarbeit::frmhandarbeit(Global& g, Handarbeit h, const Datendichten& dichten, QWidget* eltern)
    : QDialog(eltern),
      m_g(g),
      m_h(std::move(h)),
      pic_zeiten(new Zeitbalken(this)),
      pic_einzel(new Einzelansicht(g, m_h, this)),
      lbl_zeile(benannt(new QLabel(this), "lbl_zeile")),
      chk_schutz(benannt(new QCheckBox(QStringLiteral("Einstellungen &schützen"), this), "chk_schutz"))
{
    setObjectName(QStringLiteral("frmhandarbeit"));
    setWindowTitle(anzeige(m_h.Titel));
    auto* titel = beschriftung(QStringLiteral("&Beobachtungszeiten:"), pic_zeiten);
    titel->setAlignment(Qt::AlignLeft);
    pic_zeiten->setAccessibleName(QStringLiteral("Beobachtungszeiten"));
    auto* teiler = new QSplitter(Qt::Horizontal, this);
    teiler->addWidget(pic_zeiten);
    teiler->addWidget(pic_einzel);
    teiler->setChildrenCollapsible(false);
    teiler->setStretchFactor(0, 2);
    teiler->setStretchFactor(1, 1);
    teiler->setSizes({600, 400});
    lbl_zeile->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    chk_schutz->setChecked(m_h.Schutz);
    auto* knoepfe = knopfzeile(*this);
    auto* unten = new QHBoxLayout;
    unten->addWidget(chk_schutz);
    unten->addStretch();
    unten->addWidget(knoepfe);
    auto* alles = new QVBoxLayout(this);
    alles->setSpacing(abstand_gruppe);
    alles->addWidget(titel);
    alles->addWidget(teiler, 1);
    alles->addWidget(lbl_zeile);
    alles->addWidget(zeitbalken_legende(this));
    alles->addSpacing(abstand_gruppe);
    alles->addLayout(unten);
    // In place before the rows are set, since the first one becomes current at once.
    pic_zeiten->bei_wechsel = [this](int zeile) {
        lbl_zeile->setText(pic_zeiten->bild().zeilen()[static_cast<std::size_t>(zeile)].hinweis.trimmed());
    };
    pic_zeiten->bei_klick = [this](int zeile) {
        handarbeit_klick(m_g, m_h, zeile);
        farben_zeigen();
    };
    if (m_h.pos_s.anzahl() > 0)
        zeilen_setzen(dichten);
    else
        findChild<QPushButton*>(QStringLiteral("cmd_ok"))->setEnabled(false);
    an_eltern_ausrichten(*this);
    pic_zeiten->setFocus();
}

void frmhandarbeit::zeilen_setzen(const Datendichten& dichten)
{
    std::vector<Balkenzeile> zeilen;
    const auto hinzu = [&](const Handzeile& z, const QIcon& bild, std::optional<bool> haken) {
        zeilen.push_back({anzeige(z.Dateiname), anzeige(z.Hinweis), z.Beginn, z.Ende, farbe(z), bild, haken,
                          dichten.von(z.Dateiname)});
    };
    hinzu(m_h.ROVER, licht(m_h.ROVER), std::nullopt);
    for (const auto& z : m_h.Detail) hinzu(z, {}, false);
    pic_zeiten->setzen(m_h.achse, std::move(zeilen), 1);
    pic_zeiten->leitzeile_setzen(0);
    farben_zeigen();
}

void frmhandarbeit::farben_zeigen()
{
    if (m_h.pos_s.anzahl() == 0) return;
    pic_zeiten->zeile_zeigen(0, farbe(m_h.ROVER), licht(m_h.ROVER), std::nullopt);
    for (int i = 1; i <= m_h.Detail.anzahl(); ++i)
        pic_zeiten->zeile_zeigen(i, farbe(m_h.Detail[i]), {}, m_h.Detail[i].farbe == Zeilenfarbe::gelb);
    pic_einzel->update();
}

void frmhandarbeit::accept()
{
    m_h.Schutz = chk_schutz->isChecked();
    handarbeit_ok(m_g, m_h);
    QDialog::accept();
}

void frmhandarbeit::zeigen(Global& g, Datendichten& dichten, const std::string& rover, QWidget* eltern)
{
    Handarbeit h;
    if (ist_fehler(handarbeit_oeffnen(g, rover, h)) && h.Titel.empty()) return;
    std::vector<std::string> namen = {h.ROVER.Dateiname};
    for (const auto& z : h.Detail) namen.push_back(z.Dateiname);
    dichten.lesen(g, namen);
    frmhandarbeit(g, std::move(h), dichten, eltern).exec();
}

}  // namespace jorv
