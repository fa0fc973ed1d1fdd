#include "payrun/vypocet_mesice.h"

#include "paysheet/listina.h"
#include "store/catalogue.h"
#include "store/query.h"

namespace zkouska {

void priprav_mesic(ZkusebniFirma& firma, int mesic) {
    firma.session.zpracovavany_mesic = mesic;
    const std::string hrube = store::month_table("Hrube", mesic);
    if (!firma.data().table_exists(hrube)) firma.data().create_table(store::definition_of(hrube));
    const bool je = firma.data().table_exists(store::month_table("Listin", mesic));
    paysheet::zaloz_vyplatni_listinu(firma.session, je ? 2 : 1);
}

void zpracuj(payrun::TForm21& obrazovka) {
    obrazovka.FormShow();
    obrazovka.Button2Click();
}

std::vector<std::string> spocti_mesic(ZkusebniFirma& firma, int mesic) {
    priprav_mesic(firma, mesic);
    payrun::TForm21 obrazovka(firma.session);
    zpracuj(obrazovka);
    return obrazovka.scChyby;
}

std::string listina(ZkusebniFirma& firma, const std::string& tabulka) {
    return firma.vypis("SELECT Cislo_pracovnika, Modul, Sloupec, Hodnota, Poznamka FROM " +
                       tabulka + " ORDER BY Pocitadlo");
}

namespace {

std::string pole_vety(ZkusebniFirma& firma, int cislo, int modul, const std::string& tabulka,
                      const char* pole) {
    store::Query q(firma.data(), "SELECT * FROM " + tabulka +
                                     " WHERE Cislo_pracovnika = :cislo AND Modul = :modul"
                                     " ORDER BY Pocitadlo");
    q.set("cislo", cislo).set("modul", modul);
    q.open();
    return q.eof() ? "-" : q.text(pole);
}

}  // namespace

std::string hodnota(ZkusebniFirma& firma, int cislo, int modul, const std::string& tabulka) {
    return pole_vety(firma, cislo, modul, tabulka, "Hodnota");
}

std::string poznamka(ZkusebniFirma& firma, int cislo, int modul) {
    return pole_vety(firma, cislo, modul, "Listin01", "Poznamka");
}

}  // namespace zkouska
