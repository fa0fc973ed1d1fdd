// A small company whose session speaks to the operator through real windows.
#pragma once

#include <string>

#include "desktop/obsluha_qt.h"
#include "desktop/snimky.h"
#include "menu/unit1_hlavni.h"
#include "prostredi_qt.h"
#include "support/zkusebni_firma.h"

namespace zkouska {

/// Three workers with gross wages in January; the company is open in `form`.
struct FirmaVOknech {
    ZkusebniFirma firma;
    desktop::ObsluhaQt obsluha;
    shell::Session session{{obsluha, firma.hodiny, firma.nahoda}, firma.slozka / "program"};
    menu::TForm1 form{session};

    /// `srazky` are rows of `Fixni`: worker, column, amount.
    explicit FirmaVOknech(const std::string& srazky = "") {
        aplikace();
        firma.vloz("Os_karty",
                   "Cislo,Prijmeni,Jmeno,Jake_socialni,Jake_zdravotni,Jaka_dan\n"
                   "1,Adamová,Jana,1,1,1\n2,Beneš,Petr,1,1,1\n3,Černý,Ivo,1,1,1\n");
        firma.vloz(
            "Hrube01",
            "Cislo_pracovnika,Modul,Sloupec,Kc_cel\n1,1,1,30000\n2,1,1,40000\n3,1,1,50000\n");
        if (!srazky.empty()) firma.vloz("Fixni", "Cislo_pracovnika,Sloupec,Kcs\n" + srazky);
        firma.session.zavri_spojeni();
        session.koren_dat = firma.session.koren_dat;
        session.firma = firma.session.firma;
        session.velmar.pamatovat_okna = session.velmar.logovat = false;
        obsluha.pripoj(session);
        EXPECT_TRUE(form.zaloz_soubory());
    }
    bool je_listina() { return session.data().table_exists("Listin01"); }
};

/// The small company, its operator never waiting for an answer.
struct TichaFirma : FirmaVOknech {
    desktop::TichaObsluha tichy;
    shell::Session relace{{tichy, firma.hodiny, firma.nahoda}, firma.slozka / "program"};
    menu::TForm1 hlavni{relace};

    TichaFirma() {
        session.zavri_spojeni();
        relace.koren_dat = session.koren_dat;
        relace.firma = session.firma;
        relace.velmar.pamatovat_okna = relace.velmar.logovat = false;
        tichy.pripoj(relace);
        EXPECT_TRUE(hlavni.zaloz_soubory());
    }
};

}  // namespace zkouska
