#include "desktop/ukazky_hrubych.h"

#include <fmt/format.h>

#include "base/soubory.h"
#include "wages/hromadne_obrazovka.h"
#include "wages/unit17_zadani.h"

namespace desktop {

namespace {

std::shared_ptr<wages::TForm17> zadani(shell::Session& session) {
    auto form = std::make_shared<wages::TForm17>(session, wages::VazbyZadani{});
    form->FormShow();
    return form;
}

void zvol_sloupec(wages::TForm17& form, int cislo) {
    for (std::size_t i = 0; i < form.sloupce.size(); ++i) {
        if (form.sloupce[i].sloupec.sloupec == cislo) form.vyber_sloupec(static_cast<int>(i));
    }
}

/// Without a calendar the calculation would ask for attention by a message.
bool ma_kalendar(shell::Session& session, const wages::TForm17& form) {
    if (form.pracovnik < 0) return false;
    const auto& pracovnik = form.pracovnici[static_cast<std::size_t>(form.pracovnik)];
    const int id = wages::nacti_kartu_zadani(session, pracovnik.karta->Pocitadlo).id_rpd;
    return wages::nacti_kalendar(session, id, session.rok).has_value();
}

}  // namespace

std::shared_ptr<base::Obrazovka> zadani_hrubych(shell::Session& session) {
    auto form = zadani(session);
    zvol_sloupec(*form, 2);
    form->zadani.dny = "40";
    form->DnyExit();
    form->HodnotaEnter(0);
    form->HodnotaEnter(1);
    return form;
}

std::shared_ptr<base::Obrazovka> zadani_nahrady(shell::Session& session) {
    auto form = zadani(session);
    zvol_sloupec(*form, session.nastaveni.NahradaNemocSloupec);
    const int mesic = session.zpracovavany_mesic;
    form->nahrady.scCisloDokladu = "A 1234567";
    form->nahrady.scTrvaniOd = fmt::format("7.{}.{}", mesic, session.rok);
    form->nahrady.scTrvaniDo = fmt::format("23.{}.{}", mesic, session.rok);
    if (ma_kalendar(session, *form)) {
        form->nahrady.zmena();
        form->nahradyExit(wages::PoleNahrad::trvani_do);
    }
    return form;
}

std::shared_ptr<base::Obrazovka> hrube_ze_souboru(shell::Session& session) {
    auto form = std::make_shared<wages::TFHromadneZadani>(session);
    form->FormShow();
    const auto soubor = session.cesta_dat / "dochazka.csv";
    base::zapis_soubor(soubor,
                       "Cislo_pracovnika,Sloupec,Dny,Hodiny,Stredisko,Hodnota_2\n"
                       "1,2,20,160,1,185\n2,2,21,168,1,190\n3,2,35,,1,180\n999,2,20,,1,\n");
    form->nacti(soubor.string());
    return form;
}

}  // namespace desktop
