#include "ui/Fortschrittsfeld.h"

#include <QEvent>
#include <QProgressBar>
#include <algorithm>

namespace jorv {

namespace {

constexpr int feinheit = 100;  // steps of the bar per per cent

QString restzeit(qint64 sekunden)
{
    if (sekunden < 60) return QStringLiteral("noch etwa %1 s").arg(sekunden);
    return QStringLiteral("noch etwa %1 min").arg((sekunden + 30) / 60);
}

bool ist_eingabe(QEvent::Type art)
{
    switch (art) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::ContextMenu:
        case QEvent::Shortcut:
        case QEvent::ShortcutOverride:
        case QEvent::Close:
            return true;
        default:
            return false;
    }
}

}  // namespace

Fortschrittsfeld::Fortschrittsfeld(QWidget* hauptform) : QFrame(hauptform)
{
    setObjectName(QStringLiteral("pic_fortschritt"));
    setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    setAutoFillBackground(true);
    lbl_fortschritt = new QLabel(this);
    lbl_fortschritt->setObjectName(QStringLiteral("lbl_fortschritt"));
    m_restzeit = new QLabel(this);
    m_restzeit->setForegroundRole(QPalette::PlaceholderText);
    prg_fortschritt = new QProgressBar(this);
    prg_fortschritt->setObjectName(QStringLiteral("prg_fortschritt"));
    prg_fortschritt->setRange(0, 100 * feinheit);
    prg_fortschritt->setTextVisible(false);
    cmd_abbrechen = new QPushButton(this);
    cmd_abbrechen->setObjectName(QStringLiteral("cmd_abbrechen"));
    auto* zeilen = new QVBoxLayout(this);
    zeilen->setContentsMargins(18, 14, 18, 14);
    zeilen->setSpacing(10);
    zeilen->addWidget(lbl_fortschritt);
    zeilen->addWidget(prg_fortschritt);
    auto* unten = new QHBoxLayout;
    unten->addWidget(m_restzeit, 1);
    unten->addWidget(cmd_abbrechen);
    zeilen->addLayout(unten);
    connect(cmd_abbrechen, &QPushButton::clicked, this, [this] {
        m_abbruch = true;
        cmd_abbrechen->setText(QStringLiteral("Abbruch gestartet!"));
    });
    hide();
}

Fortschrittsfeld::~Fortschrittsfeld() = default;

void Fortschrittsfeld::zeigen(const QString& text)
{
    lbl_fortschritt->setText(text.trimmed());
    if (isVisible()) return;
    m_abbruch = false;
    cmd_abbrechen->setText(QStringLiteral("Abbrechen"));
    m_restzeit->clear();
    prg_fortschritt->setValue(0);
    m_uhr.start();
    qApp->installEventFilter(this);
    ausrichten();
    show();
    raise();
    cmd_abbrechen->setFocus();
}

void Fortschrittsfeld::setzen(double prozent)
{
    prozent = std::clamp(prozent, 0.0, 100.0);
    prg_fortschritt->setValue(static_cast<int>(prozent * feinheit));
    const qint64 vergangen = m_uhr.elapsed();
    // A guess from less than two seconds or a twentieth of the work would only jump about.
    if (vergangen < 2000 || prozent < 5)
        m_restzeit->clear();
    else
        m_restzeit->setText(
            restzeit(static_cast<qint64>(static_cast<double>(vergangen) / 1000.0 * (100.0 - prozent) / prozent)));
}

void Fortschrittsfeld::verbergen()
{
    qApp->removeEventFilter(this);
    hide();
}

void Fortschrittsfeld::ausrichten()
{
    const QSize flaeche = parentWidget()->size();
    const int breite = std::clamp(flaeche.width() / 2, 320, 460);
    resize(breite, sizeHint().height());
    move(std::max(0, flaeche.width() / 2 - width() / 2), std::max(0, flaeche.height() / 2 - height() / 2));
}

// Messages that come up during a run stay usable: they are modal windows of their own.
bool Fortschrittsfeld::eventFilter(QObject* objekt, QEvent* ereignis)
{
    if (!ist_eingabe(ereignis->type())) return false;
    auto* widget = qobject_cast<QWidget*>(objekt);
    if (!widget) return ereignis->type() == QEvent::Shortcut;
    if (widget == this || isAncestorOf(widget)) return false;
    const QWidget* modal = QApplication::activeModalWidget();
    if (modal && (widget == modal || modal->isAncestorOf(widget))) return false;
    if (ereignis->type() == QEvent::Close) ereignis->ignore();
    return true;
}

}  // namespace jorv
