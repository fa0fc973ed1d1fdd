// The program `zorv`: options, the start sequence, the message loop, the restart.
#include <QCommandLineParser>
#include <QMessageBox>

#include "base/hodiny.h"
#include "base/slozky.h"
#include "desktop/aplikace.h"
#include "desktop/obsluha_qt.h"
#include "desktop/okno_form1.h"
#include "desktop/restart.h"
#include "desktop/text_qt.h"
#include "desktop/vzhled.h"
#include "menu/unit1_hlavni.h"
#include "store/collation_test.h"

namespace {

struct Volby {
    std::string root, firma;
};

/// The options behind the argument "menu"; a wrong one ends the program with a text.
Volby precti_volby(const QStringList& argumenty) {
    QCommandLineParser parser;
    parser.setApplicationDescription("Mzdy a personalistika.");
    parser.addHelpOption();
    parser.addPositionalArgument("menu", "první argument, předává jej nabídka programů");
    parser.addOptions({{"root", "Kořen dat místo toho z Velmar.ini.", "složka"},
                       {"firma", "Firma, která se otevře.", "název"}});
    parser.process(argumenty);
    return {desktop::z_qt(parser.value("root")), desktop::z_qt(parser.value("firma"))};
}

/// The session with its services and the main form.
struct Program {
    desktop::ObsluhaQt obsluha;
    base::SystemoveHodiny hodiny;
    base::SystemovaNahoda nahoda;
    shell::Session session;
    menu::TForm1 form;

    explicit Program(const std::filesystem::path& slozka_programu)
        : session({obsluha, hodiny, nahoda}, slozka_programu), form(session) {
        obsluha.pripoj(session);
    }
};

/// Everything before the main window: looks, the start notice, the test of Czech order.
void priprav(desktop::Aplikace& aplikace, Program& program, const Volby& volby) {
    shell::Session& session = program.session;
    program.form.FormCreate();
    if (!volby.root.empty()) session.koren_dat = volby.root;
    if (!volby.firma.empty()) session.firma = volby.firma;
    desktop::nastav_vzhled(aplikace, session.velmar.vzhled_id, session.velmar.font_size);
    program.obsluha.ukaz_hlasku("Spouštím Zorv...", 0);
    const auto slozky = shell::slozky_programu(session.slozka_programu);
    store::test_ceskeho_trideni(shell::slozka_pro_zapis(slozky), program.obsluha, true);
}

struct Konec {
    int stav = 1;
    std::string spustit;  ///< the program to be started when nothing of this one is open
};

Konec spust(desktop::Aplikace& aplikace, const std::filesystem::path& slozka_programu,
            const Volby& volby) {
    Program program(slozka_programu);
    aplikace.ohlas_chybu = [&](const std::string& text) {
        program.obsluha.skryj_hlasku();
        program.obsluha.hlaska(text);
    };
    aplikace.zapis_chybu = [&](const base::ZaznamChyby& chyba) {
        const auto slozka = shell::slozka_pro_zapis(shell::slozky_programu(slozka_programu));
        base::zapis_chybu(slozka / "Chyby.txt", program.hodiny, chyba);
    };
    aplikace.proved([&] { priprav(aplikace, program, volby); });
    if (aplikace.ukoncena()) return {};
    desktop::OknoForm1 okno(program.form, program.session);
    aplikace.proved([&] { okno.otevri(); });
    if (aplikace.ukoncena()) return {};
    const int stav = QApplication::exec();
    program.form.FormDestroy();
    return {stav, program.form.spustit_po_zavreni};
}

}  // namespace

int main(int pocet, char** argumenty) {
    desktop::Aplikace aplikace(pocet, argumenty);
    const std::string odmitnuti = menu::odmitnuti_startu(pocet > 1 ? argumenty[1] : "");
    if (!odmitnuti.empty()) {
        QMessageBox::warning(nullptr, menu::k_nadpis_odmitnuti, desktop::radky(odmitnuti));
        return 1;
    }
    const QStringList vse = QApplication::arguments();
    const Konec konec = spust(aplikace, base::slozka_programu(argumenty[0]), precti_volby(vse));
    if (!konec.spustit.empty()) desktop::spust_po_zavreni(konec.spustit, vse.mid(1));
    return konec.stav;
}
