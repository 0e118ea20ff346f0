// Start and end: the windows in front of the main window, and what a restart finds again.
#include <QCheckBox>
#include <QPlainTextEdit>

#include "app/start.h"
#include "ui/Fensterprobe.h"
#include "ui/Fensterpruefung.h"
#include "ui/frmErstStart.h"
#include "ui/frmLogo.h"
#include "ui/frmhinweis.h"

namespace jorv {

using namespace hilfen;
using namespace std::chrono_literals;

TEST(Logofenster, WartetNachWunschAufDenBenutzer)
{
    Fensterprobe p;
    Drehbuch b;
    b.im("frmLogo", [](QWidget& logo) {
        fenster_pruefen(logo);
        EXPECT_FALSE(teil<QCheckBox>(logo, "chk_start").isChecked());
        QTest::qWait(60);  // longer than the window waits by itself
        EXPECT_TRUE(logo.isVisible());
        klick(logo, "chk_start");
        EXPECT_TRUE(teil(logo, "cmd_start").isVisible());
        klick(logo, "cmd_start");
    });
    frmLogo(p.g).zeigen(20ms);
    EXPECT_EQ(p.g.Bestaetigung, "N");

    // Without confirmation it goes by itself, unless the user changes his mind.
    frmLogo(p.g).zeigen(20ms);
    b.im("frmLogo", [](QWidget& logo) {
        EXPECT_TRUE(teil(logo, "cmd_start").isHidden());
        EXPECT_TRUE(teil<QCheckBox>(logo, "chk_start").isChecked());
        klick(logo, "chk_start");
        QTest::qWait(60);
        EXPECT_TRUE(logo.isVisible());
        klick(logo, "cmd_start");
    });
    frmLogo(p.g).zeigen(40ms);
    EXPECT_EQ(p.g.Bestaetigung, "J");
}

TEST(Logofenster, PasstMitVersionUndBild)
{
    Fensterprobe p;
    Drehbuch b;
    b.im("frmLogo", [](QWidget& logo) {
        elemente_pruefen(logo, {{"lbl_version", "Version 1.0.0  für Windows XP/Win7 vom 01.12.2016"},
                                {"chk_start", "künftig &ohne Bestätigung starten"},
                                {"cmd_start", "&Start"},
                                {"img_logo", nullptr}});
        fenster_pruefen(logo);
        taste(Qt::Key_Return);
    });
    frmLogo(p.g).zeigen(20ms);
}

TEST(Neuerungen, KommenBeimErstenZeigenUndMerkenSichDenWunsch)
{
    Fensterprobe p;
    p.g.Hinweis1 = "1";
    const fs::path datei = p.ordner.wurzel() / "einstellungen" / "Jorv-Neuerungen.txt";
    schreiben(datei, "gr\xFC\xDF dich\r\n");
    Drehbuch b;
    b.im("frmErstStart", [](QWidget& fenster) {
        elemente_pruefen(fenster, {{"lbl_titel", "Aktuelle Jorv-Version 1.0 vom 01.12.2016"},
                                   {"chk_hinweis", "beim nächsten Start &wieder anzeigen"},
                                   {"txt_neuerungen", nullptr},
                                   {"cmd_ok", "OK"}});
        EXPECT_EQ(teil<QPlainTextEdit>(fenster, "txt_neuerungen").toPlainText().toStdString(), "grüß dich\n");
        EXPECT_EQ(fokus(), "cmd_ok");
        klick(fenster, "chk_hinweis");
        taste(Qt::Key_Return);
    });
    p.zeigen();
    EXPECT_EQ(p.g.Hinweis1, "0");
    EXPECT_EQ(p.g.ErstStart, "1.0");

    // The menu shows them at any time; Escape changes nothing; a missing file is told in the box.
    fs::remove(datei);
    b.im("frmErstStart", [](QWidget& fenster) {
        const auto& text = teil<QPlainTextEdit>(fenster, "txt_neuerungen");
        EXPECT_TRUE(text.toPlainText().contains(QStringLiteral("    nicht gefunden!")));
        EXPECT_NE(text.palette().color(QPalette::Base), fenster.palette().color(QPalette::Base));
        klick(fenster, "chk_hinweis");
        taste(Qt::Key_Escape);
    });
    p.befehl("m_hilfe_neuerungen");
    EXPECT_EQ(p.g.Hinweis1, "0");
}

TEST(Hinweisfenster, PasstUndKommtNurSolangeErGewuenschtIst)
{
    Fensterprobe p;
    Drehbuch b;
    b.im("frmhinweis", [](QWidget& fenster) {
        elemente_pruefen(fenster, {{"lbl_hinweis", nullptr},
                                   {"lbl_handbuch", nullptr},
                                   {"chk_hinweis", "diesen Hinweis &wieder anzeigen"},
                                   {"cmd_ok", "OK"}});
        fenster_pruefen(fenster);
        taste(Qt::Key_W, Qt::AltModifier);
        taste(Qt::Key_Return);
    });
    frmhinweis::zeigen(p.g, nullptr);
    EXPECT_EQ(p.g.Hinweis, "0");
    frmhinweis::zeigen(p.g, nullptr);
}

TEST(Hauptfenster, KommtNachEinemNeustartWiederWoEsWar)
{
    Arbeitsordner ordner;
    const std::string datei = ordner.dos() + "\\JorvPlus.INI";
    Festuhr uhr({2016, 12, 1, 12, 0, 0});
    const auto lauf = [&](const std::function<void(Global&, frmHauptform&)>& szene) {
        Fensterschirm schirm;
        Global g(schirm, uhr, Dateisystem());
        ASSERT_FALSE(ist_fehler(start(g, {datei, ordner.dos()})));
        katalog_anlegen(g);
        g.Hinweis1 = "0";
        frmHauptform form(g, schirm);
        form.show();
        form.erste_aktivierung();
        szene(g, form);
        EXPECT_TRUE(form.close());
    };
    QRect gemerkt;
    lauf([&](Global&, frmHauptform& form) {
        form.resize(700, 520);
        form.move(31, 47);
        gemerkt = QRect(form.pos(), form.size());
    });
    lauf([&](Global& g, frmHauptform& form) {
        EXPECT_EQ(QRect(form.pos(), form.size()), gemerkt);
        EXPECT_EQ(g.Form_zustand, "0");
        // Closed from the task bar it comes back maximized, and keeps the place of its normal state.
        form.showMinimized();
    });
    lauf([&](Global& g, frmHauptform& form) {
        EXPECT_TRUE(form.isMaximized());
        EXPECT_EQ(QRect(g.Form_left, g.Form_top, g.Form_width, g.Form_height), gemerkt);
    });
}

TEST(Hauptfenster, SchliesstDieAnderenFensterUndSichertDasVerfahren)
{
    Fensterprobe p;
    p.zeigen();
    std::string reihenfolge;
    struct Nebenfenster : QWidget {
        Nebenfenster(std::string& ziel, char name) : m_ziel(ziel), m_name(name) { show(); }
        void closeEvent(QCloseEvent* ereignis) override
        {
            m_ziel += m_name;
            QWidget::closeEvent(ereignis);
        }
        std::string& m_ziel;
        char m_name;
    };
    Nebenfenster a(reihenfolge, 'a'), b(reihenfolge, 'b');
    EXPECT_TRUE(p.form.close());
    EXPECT_EQ(reihenfolge.size(), 2u);
    EXPECT_TRUE(fs::exists(p.pfad("001.INI")));
    EXPECT_NE(lesen(p.ordner.wurzel() / "einstellungen" / "JorvPlus.INI").find("[START]"), std::string::npos);
}

}  // namespace jorv
