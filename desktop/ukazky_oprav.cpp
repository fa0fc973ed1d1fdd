#include "desktop/ukazky_oprav.h"

#include "store/catalogue.h"
#include "store/query.h"
#include "store/table.h"
#include "wages/unit110_castka.h"
#include "wages/unit18_prohlizeni.h"
#include "wages/unit19_oprava.h"
#include "wages/unit20_sumarizace.h"
#include "wages/unit43_vykony.h"
#include "wages/unit90_davky.h"

namespace desktop {

namespace {

/// The month's row of the module with the most days.
std::int64_t polozka_s_dny(shell::Session& session, int modul) {
    store::Query q(session.data(), "SELECT Pocitadlo FROM " +
                                       store::month_table("Hrube", session.zpracovavany_mesic) +
                                       " WHERE Modul = :modul ORDER BY Dny_od DESC, Pocitadlo");
    q.set("modul", modul);
    q.open();
    return q.integer("Pocitadlo");
}

/// A sickness of the worker 1 with its detail, 7 to 13 of the month.
std::int64_t pridej_nahradu(shell::Session& session) {
    const int mesic = session.zpracovavany_mesic;
    const base::Datum od{session.rok, mesic, 7}, do_{session.rok, mesic, 13};
    wages::KartaZadani karta;
    karta.cislo = 1;
    karta.prijmeni = "Vzorný";
    karta.jmeno = "Petr";
    wages::VetaHrube veta;
    veta.modul = 5;
    veta.sloupec = session.nastaveni.NahradaNemocSloupec;
    veta.sloupec_slovy = "náhrada za nemoc";
    veta.dny_neod = 5;
    veta.hod_neod = 40;
    veta.kc_cel = 4906.8L;
    store::Transaction transakce(session.data());
    const auto id = wages::zapis_vetu_hrubych_mezd(session, mesic, karta, veta);
    store::Inserter detail(
        session.data(), "Nahrady",
        {"Id_hrube", "Cislo_pracovnika", "Mesic", "Cislo_dokladu", "Trvani_od", "Trvani_do",
         "Dnu_kalendarnich", "Dnu_pracovnich", "Fond_A", "Fond_B", "Fond_C", "Prum_hod_vydelek",
         "Red_hod_vydelek", "Hod_nahrada_B", "Nahrada_B", "Celkova_nahrada"});
    const store::Row hodnoty{id,     1,       mesic,  "A 1234567", od,     do_,    7,      5,
                             "0:00", "40:00", "0:00", 227.15,      204.44, 122.67, 4906.8, 4906.8};
    for (std::size_t i = 0; i < hodnoty.size(); ++i)
        detail.set(i, hodnoty[i]);
    detail.insert();
    transakce.commit();
    return id;
}

std::shared_ptr<wages::TForm19> oprava(shell::Session& session, std::int64_t pocitadlo) {
    auto form = std::make_shared<wages::TForm19>(session, pocitadlo);
    form->FormShow();
    return form;
}

}  // namespace

std::shared_ptr<base::Obrazovka> prohlizeni_hrubych(shell::Session& session) {
    auto form =
        std::make_shared<wages::TForm18>(session, wages::FiltrHrubych{"1:12", "", "", "", ""});
    form->FormShow();
    return form;
}

std::shared_ptr<base::Obrazovka> oprava_hrube(shell::Session& session) {
    auto form = oprava(session, polozka_s_dny(session, 1));
    form->zadani.dny = "40";
    form->DnyExit();
    return form;
}

std::shared_ptr<base::Obrazovka> oprava_nahrady(shell::Session& session) {
    return oprava(session, pridej_nahradu(session));
}

std::shared_ptr<base::Obrazovka> sumarizace_hrubych(shell::Session& session) {
    auto form = std::make_shared<wages::TForm20>(session);
    form->FormShow();
    return form;
}

std::shared_ptr<base::Obrazovka> vykony(shell::Session& session) {
    auto form = std::make_shared<wages::TForm43>(
        session,
        std::vector<std::string>{"10101020305............5060", "10204......................",
                                 "210....................1019"});
    form->FormShow("102");
    return form;
}

std::shared_ptr<base::Obrazovka> oprava_davky(shell::Session& session) {
    auto form =
        std::make_shared<wages::TForm90>(session, wages::text_davky({wages::DruhDavky::nemoc,
                                                                     4711,
                                                                     "0203",
                                                                     "2803",
                                                                     850.5L,
                                                                     {3, 24, 0, 0},
                                                                     {0, 410, 451, 492},
                                                                     0}));
    form->FormShow();
    return form;
}

std::shared_ptr<base::Obrazovka> rucni_oprava(shell::Session& session) {
    const int mesic = session.zpracovavany_mesic;
    auto form = std::make_shared<wages::TForm110>(
        session, wages::nacti_vetu_hrubych_mezd(session, mesic, polozka_s_dny(session, 1)));
    form->FormShow();
    return form;
}

}  // namespace desktop
