#include "ui/Zahlenbox.h"

#include <QFocusEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QRegularExpressionValidator>
#include <QTimer>
#include <QToolButton>
#include <utility>

#include "ui/qtext.h"

namespace jorv {

namespace {

constexpr const char* frei = "ohne_pruefung";
// Frame, text margins and cursor.
constexpr int rand = 14;

}  // namespace

void ohne_pruefung(QWidget& knopf)
{
    knopf.setProperty(frei, true);
}

Zahlenbox::Zahlenbox(Zahlenfeld& feld, Oberflaeche& schirm, const char* name, QWidget* eltern)
    : QLineEdit(eltern), m_feld(feld), m_schirm(schirm), m_rahmen(new QWidget(eltern))
{
    setObjectName(QLatin1String("txt_") + QLatin1String(name));
    setText(anzeige(m_feld.text()));
    // Keys are sorted out below; this is for what is dropped or pasted.
    setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), this));
    setContextMenuPolicy(Qt::NoContextMenu);
    setAlignment(Qt::AlignRight);
    const QString breitester = QString(QString::number(m_feld.maximum()).size(), QLatin1Char('0'));
    setFixedWidth(fontMetrics().horizontalAdvance(breitester) + rand);
    setToolTip(QStringLiteral("%1 bis %2").arg(m_feld.minimum()).arg(m_feld.maximum()));
    auto* zeile = new QHBoxLayout(m_rahmen);
    zeile->setContentsMargins(0, 0, 0, 0);
    zeile->setSpacing(1);
    zeile->addWidget(this);
    zeile->addWidget(pfeile(name));
    connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_feld.text_setzen(eingabe(text));
        faerben(true);
    });
}

QWidget* Zahlenbox::pfeile(const char* name)
{
    auto* paar = new QWidget(m_rahmen);
    paar->setObjectName(QLatin1String("upd_") + QLatin1String(name));
    auto* spalte = new QVBoxLayout(paar);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->setSpacing(0);
    for (const int richtung : {1, -1}) {
        auto* knopf = new QToolButton(paar);
        knopf->setArrowType(richtung > 0 ? Qt::UpArrow : Qt::DownArrow);
        knopf->setAccessibleName(richtung > 0 ? QStringLiteral("um 1 erhöhen") : QStringLiteral("um 1 verringern"));
        knopf->setFocusPolicy(Qt::NoFocus);
        knopf->setAutoRepeat(true);
        knopf->setFixedSize(sizeHint().height() * 3 / 4, sizeHint().height() / 2);
        connect(knopf, &QToolButton::clicked, this, [this, richtung] { pfeil(richtung); });
        spalte->addWidget(knopf);
    }
    return paar;
}

void Zahlenbox::pfeil(int richtung)
{
    m_feld.pfeil(m_schirm, richtung);
    zeigen();
}

void Zahlenbox::zeigen()
{
    if (const QString text = anzeige(m_feld.text()); text != this->text()) setText(text);
}

// A bad value stays marked until it is changed.
void Zahlenbox::faerben(bool gut)
{
    QPalette farben;
    if (!gut) {
        farben.setColor(QPalette::Base, QColor(255, 220, 220));
        farben.setColor(QPalette::Text, Qt::black);
    }
    setPalette(farben);
}

bool Zahlenbox::abschliessen()
{
    m_pruefung_steht_aus = false;
    m_feld.verlassen();
    zeigen();
    if (m_feld.pruefen(m_schirm)) return true;
    faerben(false);
    setFocus(Qt::OtherFocusReason);
    selectAll();
    return false;
}

void Zahlenbox::focusInEvent(QFocusEvent* ereignis)
{
    QLineEdit::focusInEvent(ereignis);
    m_durch_klick = ereignis->reason() == Qt::MouseFocusReason;
    selectAll();
}

// Checked when the event that moved the focus is over: a box of messages inside it would swallow the click.
void Zahlenbox::focusOutEvent(QFocusEvent* ereignis)
{
    QLineEdit::focusOutEvent(ereignis);
    if (ereignis->reason() == Qt::ActiveWindowFocusReason || ereignis->reason() == Qt::PopupFocusReason) return;
    m_pruefung_steht_aus = true;
    QTimer::singleShot(0, this, [this] {
        const QWidget* neuer = window()->focusWidget();
        const bool weg = !isVisible() || (neuer && neuer->property(frei).toBool());
        if (m_pruefung_steht_aus && !weg) static_cast<void>(abschliessen());
    });
}

// Only what types a character is sorted out; keys that move, and those of the window, go their way.
void Zahlenbox::keyPressEvent(QKeyEvent* ereignis)
{
    if (ereignis->key() == Qt::Key_Escape) {
        m_feld.taste(taste_escape);
        zeigen();
        return ereignis->accept();
    }
    const QString text = ereignis->text();
    const bool zeichen = text.size() == 1 && (text[0].isPrint() || ereignis->key() == Qt::Key_Backspace);
    const bool fenster = ereignis->key() == Qt::Key_Return || ereignis->key() == Qt::Key_Enter ||
                         (ereignis->modifiers() & Qt::AltModifier);
    const bool steuerung = !text.isEmpty() && !zeichen && !fenster && ereignis->key() != Qt::Key_Delete &&
                           !ereignis->matches(QKeySequence::Copy) && !ereignis->matches(QKeySequence::SelectAll);
    const char latin = zeichen ? text[0].toLatin1() : '\0';
    if (steuerung || (zeichen && !fenster && !m_feld.taste(latin))) return ereignis->accept();
    QLineEdit::keyPressEvent(ereignis);
}

// The click that brings the focus doesn't take the selection away.
void Zahlenbox::mousePressEvent(QMouseEvent* ereignis)
{
    QLineEdit::mousePressEvent(ereignis);
    if (std::exchange(m_durch_klick, false)) selectAll();
}

}  // namespace jorv
