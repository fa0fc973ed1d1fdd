// The program `zorv_snimky`: pictures of every window, for the documentation. It recomputes a month
// and adds rows, so it is for a made-up company only and is not installed.
#include <QCommandLineParser>
#include <QPalette>
#include <exception>
#include <iostream>

#include "base/hodiny.h"
#include "desktop/aplikace.h"
#include "desktop/okno_form1.h"
#include "desktop/snimky.h"
#include "desktop/text_qt.h"
#include "desktop/vzhled.h"
#include "menu/unit1_hlavni.h"

namespace {

struct Volby {
    std::string koren, firma, slozka;
    bool tmava = false;
    int pismo = 0;  ///< points; 0 as the program has it
};

/// The options; wrong ones end the program with a text. The scale is Qt's own QT_SCALE_FACTOR.
Volby precti_volby(const QStringList& argumenty) {
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addPositionalArgument("KOREN", "kořen dat");
    parser.addPositionalArgument("FIRMA", "vymyšlená firma");
    parser.addPositionalArgument("SLOZKA", "kam obrázky přijdou");
    parser.addOptions({{"tmava", "Barvy tmavé plochy místo palety programu."},
                       {"pismo", "Velikost písma v bodech.", "body"}});
    parser.process(argumenty);
    const QStringList mista = parser.positionalArguments();
    if (mista.size() != 3) parser.showHelp(2);
    return {desktop::z_qt(mista[0]), desktop::z_qt(mista[1]), desktop::z_qt(mista[2]),
            parser.isSet("tmava"), parser.value("pismo").toInt()};
}

/// The colours of a dark desktop, as its own theme would give them.
QPalette tmava_paleta() {
    QPalette p(QColor("#3b3f45"), QColor("#2b2e33"));
    p.setColor(QPalette::Base, QColor("#1f2226"));
    p.setColor(QPalette::AlternateBase, QColor("#262a2f"));
    p.setColor(QPalette::Highlight, QColor("#3d7fb0"));
    p.setColor(QPalette::ToolTipBase, QColor("#3b3f45"));
    p.setColor(QPalette::ToolTipText, QColor("#f0f0f0"));
    p.setColor(QPalette::PlaceholderText, QColor("#9aa0a6"));
    p.setColor(QPalette::Disabled, QPalette::Base, QColor("#2b2e33"));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        p.setColor(role, QColor("#e8eaed"));
        p.setColor(QPalette::Disabled, role, QColor("#80868b"));
    }
    return p;
}

void vyfot(desktop::Aplikace& aplikace, const Volby& volby) {
    desktop::TichaObsluha obsluha;
    base::SystemoveHodiny hodiny;
    base::SystemovaNahoda nahoda;
    shell::Session session({obsluha, hodiny, nahoda},
                           desktop::z_qt(QApplication::applicationDirPath()));
    obsluha.pripoj(session);
    menu::TForm1 form(session);
    form.FormCreate();
    session.koren_dat = volby.koren;
    session.firma = volby.firma;
    const int pismo = volby.pismo > 0 ? volby.pismo : session.velmar.font_size;
    desktop::nastav_vzhled(aplikace, volby.tmava ? 1 : session.velmar.vzhled_id, pismo);
    if (volby.tmava) desktop::nastav_paletu(aplikace, tmava_paleta());
    desktop::OknoForm1 okno(form, session);
    okno.otevri();
    desktop::uloz_snimky(okno, session, volby.slozka);
}

}  // namespace

int main(int pocet, char** argumenty) {
    desktop::Aplikace aplikace(pocet, argumenty);
    const Volby volby = precti_volby(QApplication::arguments());
    try {
        vyfot(aplikace, volby);
    } catch (const std::exception& chyba) {
        std::cerr << chyba.what() << "\n";
        return 1;
    }
    return 0;
}
