#include "ui/Satellitenwahl.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QRadioButton>

#include "ui/Dialogbau.h"
#include "ui/qtext.h"

namespace jorv {

namespace {

constexpr int spalten = 10;
constexpr std::array frequenzen = {u"iono.-frei L&0", u"L&1", u"a&utomatisch"};

}  // namespace

Satellitenwahl::Satellitenwahl(Satellitenkaesten& satelliten, QWidget* eltern)
    : QGroupBox(QStringLiteral("Satelliten"), eltern)
{
    setObjectName(QStringLiteral("fra_satelliten"));
    auto* raster = new QGridLayout(this);
    raster->setHorizontalSpacing(abstand_gruppen);
    raster->setVerticalSpacing(2);
    for (std::size_t i = 0; i < satelliten.size(); ++i) {
        Satellitenkasten& satz = satelliten[i];
        const int nummer = static_cast<int>(i);
        auto* kasten = benannt(new QCheckBox(anzeige_ohne_taste(satz.Text), this),
                               verkettet("chk_satelliten", nummer + 1).c_str());
        kasten->setToolTip(QStringLiteral("Teilnahme an den Berechnungen"));
        kasten->setEnabled(satz.aktiv);
        kasten->setChecked(satz.Haken);
        connect(kasten, &QCheckBox::toggled, this, [this, &satz](bool an) {
            satz.Haken = an;
            if (bei_aenderung) bei_aenderung();
        });
        raster->addWidget(kasten, nummer / spalten, nummer % spalten);
    }
}

QGroupBox* frequenzwahl(std::int32_t& index, std::function<void()> bei_aenderung, QWidget* eltern)
{
    auto* rahmen = benannt(new QGroupBox(QStringLiteral("Koordinatenergebnis"), eltern), "fra_frequenz");
    auto* spalte = new QVBoxLayout(rahmen);
    for (int i = 0; i < static_cast<int>(frequenzen.size()); ++i) {
        auto* knopf = benannt(new QRadioButton(QString::fromUtf16(frequenzen[static_cast<std::size_t>(i)]), rahmen),
                              verkettet("opt_frequenz", i).c_str());
        knopf->setChecked(index == i);
        QObject::connect(knopf, &QRadioButton::toggled, rahmen, [=, &index](bool an) {
            if (!an) return;
            index = i;
            if (bei_aenderung) bei_aenderung();
        });
        spalte->addWidget(knopf);
    }
    return rahmen;
}

}  // namespace jorv
