// The program `zorv_snimky`: pictures of every window, for the documentation. It recomputes a month
// and adds rows, so it is for a made-up company only and is not installed.
#include <exception>
#include <iostream>

#include "base/hodiny.h"
#include "desktop/aplikace.h"
#include "desktop/okno_form1.h"
#include "desktop/snimky.h"
#include "desktop/text_qt.h"
#include "desktop/vzhled.h"
#include "menu/unit1_hlavni.h"

int main(int pocet, char** argumenty) {
    desktop::Aplikace aplikace(pocet, argumenty);
    if (pocet != 4) {
        std::cerr << "Použití: zorv_snimky KOREN FIRMA SLOZKA\n";
        return 2;
    }
    try {
        desktop::TichaObsluha obsluha;
        base::SystemoveHodiny hodiny;
        base::SystemovaNahoda nahoda;
        shell::Session session({obsluha, hodiny, nahoda},
                               desktop::z_qt(QApplication::applicationDirPath()));
        obsluha.pripoj(session);
        menu::TForm1 form(session);
        form.FormCreate();
        session.koren_dat = argumenty[1];
        session.firma = argumenty[2];
        desktop::nastav_vzhled(aplikace, session.velmar.vzhled_id, session.velmar.font_size);
        desktop::OknoForm1 okno(form, session);
        okno.otevri();
        desktop::uloz_snimky(okno, session, argumenty[3]);
    } catch (const std::exception& chyba) {
        std::cerr << chyba.what() << "\n";
        return 1;
    }
    return 0;
}
