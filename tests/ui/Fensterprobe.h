// The real windows over a temporary folder, and a script of what the user does in the modal windows that come up.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <deque>
#include <functional>

#include "daten/katalog.h"
#include "hilfen/Projekt.h"
#include "ui/Fensterschirm.h"
#include "ui/frmHauptform.h"
#include "ui/qtext.h"

namespace jorv::hilfen {

/// A child of a window by its name; fails the test when it isn't there.
template <typename T = QWidget>
T& teil(const QWidget& fenster, const char* name)
{
    T* fund = fenster.findChild<T*>(QLatin1String(name));
    if (!fund) throw std::runtime_error(std::string("no control ") + name);
    return *fund;
}

inline void klick(const QWidget& fenster, const char* name)
{
    QTest::mouseClick(&teil(fenster, name), Qt::LeftButton);
}

/// Where a key goes. Behind a message box the window below gets the keyboard back a little later.
inline QWidget& ziel()
{
    for (int i = 0; i < 200 && !QApplication::focusWidget(); ++i) {
        // Without a window manager nobody else does it.
        if (QWidget* modal = QApplication::activeModalWidget()) modal->activateWindow();
        QTest::qWait(2);
    }
    QWidget* fokus = QApplication::focusWidget() ? QApplication::focusWidget() : QApplication::activeWindow();
    if (!fokus) throw std::runtime_error("no window has the keyboard");
    return *fokus;
}

inline void taste(Qt::Key taste, Qt::KeyboardModifiers dazu = {})
{
    QTest::keyClick(&ziel(), taste, dazu);
    if (dazu & Qt::AltModifier) QTest::qWait(150);  // a button that is reached so stays down for a moment
}

inline void tippen(const char* utf8)
{
    // Each as a key of its own; the toolkit's helper knows no umlauts.
    for (const QChar zeichen : QString::fromUtf8(utf8)) {
        QKeyEvent druck(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(zeichen));
        QApplication::sendEvent(&ziel(), &druck);
    }
}

inline std::string fokus()
{
    return ziel().objectName().toStdString();
}

/// What happens in the modal windows that a call opens, in their order. Every step must have had its window.
class Drehbuch {
public:
    using Szene = std::function<void(QWidget&)>;
    Drehbuch() { weiter(); }
    Drehbuch(const Drehbuch&) = delete;
    Drehbuch& operator=(const Drehbuch&) = delete;
    ~Drehbuch()
    {
        m_waechter.reset();
        for (const auto& s : m_szenen) ADD_FAILURE() << "no window came for " << s.fenster;
    }
    Drehbuch& im(const char* fenster, Szene szene)
    {
        m_szenen.push_back({fenster, std::move(szene)});
        return *this;
    }
    /// A message box or question comes; it is left by Enter (its default) or by another key.
    Drehbuch& meldung(Qt::Key antwort = Qt::Key_Return)
    {
        return im("meldung", [this, antwort](QWidget& box) {
            auto& m = static_cast<QMessageBox&>(box);
            meldungen.push_back(m.text().toUtf8().toStdString());
            symbole.push_back(m.icon());
            QTest::keyClick(&box, antwort);
        });
    }
    std::vector<std::string> meldungen;  ///< UTF-8
    std::vector<QMessageBox::Icon> symbole;

private:
    struct Eintrag {
        std::string fenster;
        Szene szene;
    };
    // A shot of its own each time, since a timer doesn't fire inside its own call.
    void weiter()
    {
        QTimer::singleShot(2, m_waechter.get(), [this] {
            weiter();
            pruefen();
        });
    }
    void pruefen()
    {
        QWidget* fenster = QApplication::activeModalWidget();
        if (!fenster) return;
        if (!m_szenen.empty() && fenster->isActiveWindow() &&
            fenster->objectName().toStdString() == m_szenen.front().fenster) {
            const auto eintrag = m_szenen.front();
            m_szenen.pop_front();
            m_ruhig.restart();
            try {
                eintrag.szene(*fenster);
            } catch (const std::exception& e) {
                ADD_FAILURE() << eintrag.fenster << ": " << e.what();
            }
            m_ruhig.restart();
        } else if (m_ruhig.elapsed() > 4000) {
            ADD_FAILURE() << "stuck in " << fenster->objectName().toStdString() << " before "
                          << (m_szenen.empty() ? "the end" : m_szenen.front().fenster);
            m_szenen.clear();
            m_ruhig.restart();
            fenster->close();
        }
    }

    std::unique_ptr<QObject> m_waechter = std::make_unique<QObject>();
    std::deque<Eintrag> m_szenen;
    QElapsedTimer m_ruhig = [] {
        QElapsedTimer uhr;
        uhr.start();
        return uhr;
    }();
};

/// Station catalogue and logos in the folder of the programs, so that a start finds them.
inline void katalog_anlegen(Global& g)
{
    QImage logo(160, 60, QImage::Format_RGB32);
    logo.fill(Qt::yellow);
    for (const char* farbe : {"", "_gelb", "_blau", "_grau", "_tinte"})
        logo.save(QString::fromStdString(
            (g.dateien.host(g.EXE_Verzeichnis) / (std::string("torel_kor") + farbe + ".bmp")).string()));
    EXPECT_FALSE(ist_fehler(torel_grund_neu(g, "0001", 3783000, 901600, 5038200, 572000, 5712000, "Ort")));
    g.TOREL_Punkt.leeren();
    g.Grenzen = "0";
}

/// A program state in a temporary folder with the real screen. The project "Muster" of Pruefstand is in the list; it
/// isn't open. The settings file lies beside it.
struct Fensterprobe : Pruefstand {
    explicit Fensterprobe(std::string_view modus = "1")
        : Pruefstand(modus), form((g.oberflaeche = &fenster, g), fenster)
    {
        g.EXE_Verzeichnis = Laufwerke().dos(ordner.wurzel() / "einstellungen").value();
        katalog_anlegen(g);
        g.Hinweis1 = "0";
        g.Datei_Verzeichnis = ordner.dos();
        g.Form_width = 1000;
        g.Form_height = 700;
    }
    /// No project is open.
    void ohne_verfahren()
    {
        g.Verfahrensname.clear();
        g.Verfahrensnummer.clear();
        g.Verfahrensmodus.clear();
        g.vollstaendig_gelesen = false;
    }
    void zeigen()
    {
        form.show();
        form.erste_aktivierung();
    }
    void befehl(const char* name)
    {
        form.menue_erneuern();
        QAction* aktion = form.eintrag(QLatin1String(name));
        ASSERT_TRUE(aktion && aktion->isEnabled()) << name;
        aktion->trigger();
    }

    Fensterschirm fenster;
    frmHauptform form;
};

}  // namespace jorv::hilfen
