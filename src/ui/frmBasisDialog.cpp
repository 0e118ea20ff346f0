#include "ui/frmBasisDialog.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

#include "ui/Dialogbau.h"
#include "ui/qtext.h"

namespace jorv {

// Two points and what is between them: a line for a baseline, a gap for a free pair, a cross for one point twice.
class Basiszeichenbild final : public QWidget {
public:
    explicit Basiszeichenbild(QWidget* eltern) : QWidget(eltern) { setFixedSize(120, 48); }
    void setzen(Basiszeichen zeichen)
    {
        m_zeichen = zeichen;
        update();
    }

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    Basiszeichen m_zeichen = Basiszeichen::keines;
};

void Basiszeichenbild::paintEvent(QPaintEvent*)
{
    if (m_zeichen == Basiszeichen::keines) return;
    const QColor blau(0, 0, 255), rot(255, 0, 0), grau(128, 128, 128);
    const QPointF von(20, 24), nach(100, 24), mitte(60, 24);
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    switch (m_zeichen) {
        case Basiszeichen::gleich:
            maler.setPen(QPen(rot, 3));
            maler.drawLine(mitte + QPointF(-14, -14), mitte + QPointF(14, 14));
            maler.drawLine(mitte + QPointF(-14, 14), mitte + QPointF(14, -14));
            return;
        case Basiszeichen::verbunden:
            maler.setPen(QPen(blau, 3));
            maler.drawLine(von, nach);
            break;
        case Basiszeichen::unverbunden:
            maler.setPen(QPen(grau, 2, Qt::DotLine));
            maler.drawLine(von, nach);
            break;
        case Basiszeichen::keines:
            return;
    }
    maler.setPen(QPen(palette().color(QPalette::WindowText), 1));
    maler.setBrush(m_zeichen == Basiszeichen::verbunden ? blau : palette().color(QPalette::Base));
    maler.drawEllipse(von, 6, 6);
    maler.drawEllipse(nach, 6, 6);
}

namespace {

QString zeichentext(Basiszeichen zeichen)
{
    switch (zeichen) {
        case Basiszeichen::gleich:
            return QStringLiteral("zweimal derselbe Punkt");
        case Basiszeichen::verbunden:
            return QStringLiteral("bereits definiert");
        case Basiszeichen::unverbunden:
            return QStringLiteral("noch nicht definiert");
        case Basiszeichen::keines:
            break;
    }
    return {};
}

QString mit_taste(std::string_view text)
{
    return QLatin1Char('&') + anzeige(text);
}

}  // namespace

frmBasisDialog::frmBasisDialog(Global& g, QWidget* eltern)
    : QDialog(eltern),
      m_g(g),
      m_basis(basisdialog_oeffnen(g)),
      cbo_von(liste("cbo_von")),
      cbo_nach(liste("cbo_nach")),
      m_zeichen(benannt(new Basiszeichenbild(this), "zeichen")),
      lbl_zeichen(benannt(new QLabel(this), "lbl_zeichen")),
      cmd_definieren(benannt(new QPushButton(mit_taste(basisdialog_definieren), this), "cmd_definieren"))
{
    setObjectName(QStringLiteral("frmBasisDialog"));
    setWindowTitle(anzeige(basisdialog_titel));
    auto* rahmen = benannt(new QGroupBox(anzeige(basisdialog_kopf), this), "fra_basis");
    auto* raster = new QGridLayout(rahmen);
    raster->setVerticalSpacing(abstand_gruppe);
    raster->addWidget(beschriftung(mit_taste(basisdialog_von), cbo_von), 0, 0);
    raster->addWidget(cbo_von, 0, 1);
    raster->addWidget(beschriftung(mit_taste(basisdialog_nach), cbo_nach), 1, 0);
    raster->addWidget(cbo_nach, 1, 1);
    raster->setColumnMinimumWidth(2, abstand_gruppen);
    raster->addWidget(m_zeichen, 0, 3, 2, 1, Qt::AlignCenter);
    raster->addWidget(lbl_zeichen, 2, 3, Qt::AlignHCenter);
    auto* ende = benannt(new QPushButton(mit_taste(basisdialog_ende), this), "Ende");
    auto* unten = new QHBoxLayout;
    unten->addStretch();
    unten->addWidget(cmd_definieren);
    unten->addWidget(ende);
    auto* spalte = new QVBoxLayout(this);
    spalte->setSpacing(abstand_gruppen);
    spalte->addWidget(rahmen);
    spalte->addLayout(unten);
    cmd_definieren->setDefault(true);
    lbl_zeichen->setMinimumWidth(fontMetrics().horizontalAdvance(zeichentext(Basiszeichen::gleich)) + abstand_gruppen);
    lbl_zeichen->setAlignment(Qt::AlignHCenter);
    connect(cmd_definieren, &QPushButton::clicked, this, [this] {
        static_cast<void>(jorv::cmd_definieren(m_g, m_basis));
        zeigen();
    });
    connect(ende, &QPushButton::clicked, this, &QDialog::accept);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    zeigen();
    cbo_von->setFocus();
}

frmBasisDialog::~frmBasisDialog() = default;

QComboBox* frmBasisDialog::liste(const char* name)
{
    auto* punkte = benannt(new QComboBox(this), name);
    for (const auto& punkt : m_basis.Punkte) punkte->addItem(anzeige(punkt));
    punkte->setMinimumContentsLength(8);
    connect(punkte, &QComboBox::currentIndexChanged, this, [this] {
        basisdialog_waehlen(m_g, m_basis, cbo_von->currentIndex(), cbo_nach->currentIndex());
        zeigen();
    });
    return punkte;
}

void frmBasisDialog::zeigen()
{
    m_zeichen->setzen(m_basis.zeichen);
    lbl_zeichen->setText(zeichentext(m_basis.zeichen));
    cmd_definieren->setEnabled(m_basis.cmd_definieren_frei);
}

}  // namespace jorv
