#include "ui/frmgesamt.h"

#include <QPrintDialog>
#include <QPrinter>

#include "karte/einzelkarte.h"
#include "ui/Dialogbau.h"
#include "ui/Zeichnung.h"
#include "ui/Zeitbalken.h"
#include "ui/qtext.h"

namespace jorv {

frmgesamt::frmgesamt(const Gesamtuebersicht& u, const Datendichten& dichten, QWidget* eltern)
    : QDialog(eltern), pic_zeiten(new Zeitbalken(this)), lbl_zeile(benannt(new QLabel(this), "lbl_zeile"))
{
    setObjectName(QStringLiteral("frmgesamt"));
    setWindowTitle(anzeige(u.Titel));
    auto* titel =
        beschriftung(QStringLiteral("&Beobachtungszeiten (Mausrad oder + und - vergrößern die Zeit):"), pic_zeiten);
    titel->setAlignment(Qt::AlignLeft);
    pic_zeiten->setAccessibleName(QStringLiteral("Beobachtungszeiten"));
    pic_zeiten->zoom_erlauben();
    pic_zeiten->bei_wechsel = [this](int zeile) {
        lbl_zeile->setText(pic_zeiten->bild().zeilen()[static_cast<std::size_t>(zeile)].hinweis.trimmed());
    };
    lbl_zeile->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    const auto knopf = [this](const QString& text, const char* name, auto tun) {
        auto* neu = benannt(new QPushButton(text, this), name);
        neu->setAutoDefault(false);
        connect(neu, &QPushButton::clicked, this, tun);
        return neu;
    };
    // In the order in which Tab goes through them.
    auto* unten = new QHBoxLayout;
    unten->addWidget(knopf(QStringLiteral("&Ganze Zeit"), "cmd_ganz", [this] { pic_zeiten->ausschnitt_zeigen(0, 1); }));
    unten->addWidget(knopf(QStringLiteral("&Drucken..."), "cmd_drucken", [this] { drucken(); }));
    auto* ok = knopf(QStringLiteral("OK"), "cmd_ok", [this] { accept(); });
    ok->setDefault(true);
    unten->addStretch();
    unten->addWidget(ok);
    auto* alles = new QVBoxLayout(this);
    alles->setSpacing(abstand_gruppe);
    alles->addWidget(titel);
    alles->addWidget(pic_zeiten, 1);
    alles->addWidget(lbl_zeile);
    alles->addWidget(zeitbalken_legende(this));
    alles->addSpacing(abstand_gruppe);
    alles->addLayout(unten);
    zeilen_setzen(u, dichten);
    an_eltern_ausrichten(*this);
    pic_zeiten->setFocus();
}

void frmgesamt::zeilen_setzen(const Gesamtuebersicht& u, const Datendichten& dichten)
{
    std::vector<Balkenzeile> zeilen;
    for (const auto* art : {&u.zeit_r, &u.zeit_s, &u.zeit_v})
        for (const auto& z : *art)
            zeilen.push_back({anzeige(z.Dateiname),
                              anzeige(z.Hinweis),
                              z.Beginn,
                              z.Ende,
                              qfarbe(zeilenfarbe(z.farbe)),
                              {},
                              {},
                              dichten.von(z.Dateiname)});
    pic_zeiten->setzen(u.achse, std::move(zeilen), 0);
}

void frmgesamt::drucken()
{
    QPrinter drucker;
    drucker.setDocName(windowTitle());
    drucker.setPageOrientation(QPageLayout::Landscape);
    QPrintDialog dialog(&drucker, this);
    dialog.setWindowTitle(QStringLiteral("Drucken"));
    if (dialog.exec() == QDialog::Accepted) pic_zeiten->drucken(drucker, windowTitle());
}

void frmgesamt::zeigen(Global& g, Datendichten& dichten, int eintrag, QWidget* eltern)
{
    Gesamtuebersicht u;
    if (ist_fehler(m_grafik_zeiten(g, eintrag, u))) return;
    std::vector<std::string> namen;
    for (const auto* art : {&u.zeit_r, &u.zeit_s, &u.zeit_v})
        for (const auto& z : *art) namen.push_back(z.Dateiname);
    dichten.lesen(g, namen);
    frmgesamt(u, dichten, eltern).exec();
}

}  // namespace jorv
