#include "ui/Ausgabefenster.h"

#include <QCloseEvent>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>

#include "plattform/codepage_850.h"
#include "ui/qtext.h"

namespace jorv {

namespace {

constexpr int takt_ms = 100, meiste_zeilen = 100'000, spalten = 90, zeilen = 25;

// The interpreter of batch files prints in code page 850; a program of the host may print UTF-8.
QString ausgabetext(const QByteArray& bytes)
{
    const std::string text = bytes.toStdString();
    return text_aus_utf8(text) ? QString::fromUtf8(bytes) : anzeige(aus_850(text));
}

}  // namespace

std::error_code Ausgabefenster::starten(const Fensterstart& start)
{
    const std::string name = start.argumente.empty() ? start.programm.filename().string() : start.argumente.front();
    auto* fenster = new Ausgabefenster(QString::fromStdString(name).section(QLatin1Char('\\'), -1));
    if (fenster->m_datei.open())
        fenster->m_kind = fenster_starten(start, Fensterausgabe::datei, fenster->m_datei.fileName().toStdString());
    else
        fenster->m_kind.fehler = std::make_error_code(std::errc::no_space_on_device);
    // Both hold it open by now: without a name it goes with the last of them, however the program ends.
    std::error_code egal;
    std::filesystem::remove(fenster->m_datei.fileName().toStdString(), egal);
    const std::error_code fehler = fenster->m_kind.fehler;
    if (fehler || !fenster->m_kind.status)  // else the system shows a window of its own
        delete fenster;
    else
        fenster->m_takt.start(takt_ms);
    return fehler;
}

Ausgabefenster::Ausgabefenster(const QString& name) : m_name(name)
{
    setObjectName(QStringLiteral("Ausgabefenster"));
    setWindowTitle(QStringLiteral("%1 – Jorv+").arg(m_name));
    anlegen();
    m_uhr.start();
    connect(&m_takt, &QTimer::timeout, this, [this] { lesen(); });
}

void Ausgabefenster::anlegen()
{
    auto* anordnung = new QVBoxLayout(this);
    anordnung->setContentsMargins(6, 6, 6, 6);
    txt_ausgabe = new QPlainTextEdit(this);
    txt_ausgabe->setObjectName(QStringLiteral("txt_ausgabe"));
    txt_ausgabe->setReadOnly(true);
    txt_ausgabe->setUndoRedoEnabled(false);
    txt_ausgabe->setMaximumBlockCount(meiste_zeilen);
    txt_ausgabe->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    anordnung->addWidget(txt_ausgabe);
    auto* fuss = new QHBoxLayout;
    m_zustand = new QLabel(QStringLiteral("läuft"), this);
    cmd_beenden = new QPushButton(QStringLiteral("&Beenden"), this);
    cmd_beenden->setObjectName(QStringLiteral("cmd_beenden"));
    cmd_beenden->setToolTip(QStringLiteral("Beendet das laufende Programm"));
    auto* cmd_schliessen = new QPushButton(QStringLiteral("&Schließen"), this);
    cmd_schliessen->setToolTip(QStringLiteral("Schließt das Fenster; ein laufendes Programm läuft weiter"));
    cmd_schliessen->setDefault(true);
    fuss->addWidget(m_zustand, 1);
    fuss->addWidget(cmd_beenden);
    fuss->addWidget(cmd_schliessen);
    anordnung->addLayout(fuss);
    connect(cmd_beenden, &QPushButton::clicked, this, [this] { m_kind.beenden(); });
    connect(cmd_schliessen, &QPushButton::clicked, this, [this] { close(); });
    connect(new QShortcut(QKeySequence(Qt::Key_Escape), this), &QShortcut::activated, this, [this] { close(); });
    const QFontMetrics masse(txt_ausgabe->font());
    resize(masse.averageCharWidth() * spalten, masse.lineSpacing() * zeilen);
}

// The status first: what was printed before the end is in the file then.
void Ausgabefenster::lesen()
{
    const auto status = m_kind.status();
    if (const QByteArray bytes = m_datei.readAll(); !bytes.isEmpty()) {
        anhaengen(ausgabetext(bytes));
        if (!isVisible()) show();
    }
    const QString dauer = QStringLiteral("%1 s").arg(m_uhr.elapsed() / 1000);
    if (!status) return m_zustand->setText(QStringLiteral("läuft seit %1").arg(dauer));
    m_takt.stop();
    cmd_beenden->setEnabled(false);
    const QString ende = QStringLiteral("beendet nach %1, Status %2").arg(dauer).arg(*status);
    m_zustand->setText(ende);
    anhaengen(QStringLiteral("%1--- %2 ---").arg(m_zeilenanfang ? QString() : QStringLiteral("\n"), ende));
    if (*status != 0) show();
    if (!isVisible()) deleteLater();
}

// Line ends may be CR LF, and cut in two between them. The end stays in sight unless the user has scrolled back.
void Ausgabefenster::anhaengen(const QString& text)
{
    QString neu = text;
    if (m_wagenruecklauf && neu.startsWith(QLatin1Char('\n'))) neu.remove(0, 1);
    m_wagenruecklauf = neu.endsWith(QLatin1Char('\r'));
    neu.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    if (neu.isEmpty()) return;
    m_zeilenanfang = neu.endsWith(QLatin1Char('\n'));
    QScrollBar& rolle = *txt_ausgabe->verticalScrollBar();
    const bool am_ende = rolle.value() == rolle.maximum();
    QTextCursor schreibstelle(txt_ausgabe->document());
    schreibstelle.movePosition(QTextCursor::End);
    schreibstelle.insertText(neu);
    if (am_ende) rolle.setValue(rolle.maximum());
}

void Ausgabefenster::closeEvent(QCloseEvent* ereignis)
{
    m_takt.stop();
    ereignis->accept();
    deleteLater();
}

}  // namespace jorv
