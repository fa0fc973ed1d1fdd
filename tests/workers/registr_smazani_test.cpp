// Removal of a worker: what refuses it, what it warns of, what it takes along.
#include <gtest/gtest.h>

#include "store/table.h"
#include "support/zkusebni_firma.h"
#include "workers/unit6_registr.h"
#include "workers/unit6_smazani.h"

namespace {

using workers::TForm6;

constexpr const char* k_otazka = "Opravdu chcete vypustit označeného pracovníka?";

/// Workers 1 to 3; the rows that stand in the way are the case's.
struct Smazani {
    zkouska::ZkusebniFirma firma;
    TForm6 form{firma.session, nullptr};

    Smazani() {
        firma.vloz("Os_karty", "Cislo,Prijmeni,Jmeno\n1,Adamová,Jana\n2,Beneš,Petr\n3,Černý,Ivo\n");
    }
    void smaz(int radek, bool souhlas = true) {
        form.FormShow();
        form.vyber_radek(radek);
        firma.obsluha.odpovez(k_otazka, souhlas);
        form.acSmazatExecute();
    }
    std::string karty() { return firma.vypis("SELECT Cislo FROM Os_karty ORDER BY Cislo"); }
    std::int64_t kurzor() const { return form.pracovnik() ? form.pracovnik()->Cislo : 0; }
};

TEST(SmazaniPracovnika, BezSouhlasuSeNicNestane) {
    Smazani s;
    s.firma.vloz("Deti", "Cislo_pracovnika,Jmeno\n2,Ota\n");
    s.smaz(1, false);
    EXPECT_EQ(s.karty(), "1\n2\n3\n");
    EXPECT_TRUE(s.firma.obsluha.hlasky.empty());
    EXPECT_EQ(s.kurzor(), 2);
}

TEST(SmazaniPracovnika, MzdaVRoceJeZakazeSVyctemMesicu) {
    Smazani s;
    s.firma.vloz("Hrube02", "Cislo_pracovnika,Kc_cel\n2,100\n2,200\n3,1\n");
    s.firma.vloz("Hrube12", "Cislo_pracovnika,Kc_cel\n2,100\n");
    s.firma.vloz("Listin01", "Cislo_pracovnika,Hodnota\n2,100\n");
    s.firma.vloz("Listin02", "Cislo_pracovnika,Hodnota\n3,100\n");
    s.firma.vloz("Deti", "Cislo_pracovnika,Jmeno\n2,Ota\n");
    s.smaz(1);
    EXPECT_EQ(s.firma.obsluha.hlasky,
              (std::vector<std::string>{"Pracovníka číslo 2 nelze vypustit, protože:\r\n"
                                        "- má hodnoty v hrubých mzdách 02\r\n"
                                        "- má hodnoty v hrubých mzdách 12\r\n"
                                        "- má hodnoty ve výplatní listině 01"}));
    EXPECT_EQ(s.karty(), "1\n2\n3\n");
    EXPECT_EQ(s.firma.vypis("SELECT COUNT(*) AS P FROM Deti"), "1\n");
}

TEST(SmazaniPracovnika, DetiAFixniPolozkyOdejdouSVarovanim) {
    const struct {
        const char* deti;
        const char* fixni;
        const char* hlaska;
    } pripady[] = {
        {"", "", ""},
        {"2,Ota\n", "",
         "POZOR:  \r\n- pracovník Beneš Petr má údaje v souboru \"DETI.DB\"\r\n\r\n"
         "Tyto hodnoty budou nyní vymazané."},
        {"", "2,13\n",
         "POZOR:  \r\n- pracovník Beneš Petr má údaje ve fixních položkách\r\n\r\n"
         "Tyto hodnoty budou nyní vymazané."},
        {"2,Ota\n2,Iva\n", "2,13\n2,14\n",
         "POZOR:  \r\n- pracovník Beneš Petr má údaje v souboru \"DETI.DB\"\r\n"
         "- pracovník Beneš Petr má údaje ve fixních položkách\r\n\r\n"
         "Tyto hodnoty budou nyní vymazané."},
    };
    for (const auto& p : pripady) {
        SCOPED_TRACE(p.hlaska);
        Smazani s;
        s.firma.vloz("Deti", std::string("Cislo_pracovnika,Jmeno\n1,Eva\n") + p.deti + "3,Jan\n");
        s.firma.vloz("Fixni", std::string("Cislo_pracovnika,Sloupec\n3,13\n") + p.fixni);
        s.smaz(1);
        EXPECT_EQ(s.firma.obsluha.hlasky,
                  *p.hlaska ? std::vector<std::string>{p.hlaska} : std::vector<std::string>{});
        EXPECT_EQ(s.karty(), "1\n3\n");
        EXPECT_EQ(s.firma.vypis("SELECT Cislo_pracovnika FROM Deti"), "1\n3\n");
        EXPECT_EQ(s.firma.vypis("SELECT Cislo_pracovnika FROM Fixni"), "3\n");
    }
}

TEST(SmazaniPracovnika, KurzorPrejdeNaSouseda) {
    Smazani s;
    s.smaz(1);
    EXPECT_EQ(s.kurzor(), 3) << "na dalšího";
    s.smaz(1);
    EXPECT_EQ(s.kurzor(), 1) << "za posledním není nikdo, na předchozího";
    s.smaz(0);
    EXPECT_EQ(s.kurzor(), 0);
    EXPECT_EQ(s.karty(), "");
}

// A card that cannot be deleted keeps its children: all or nothing.
TEST(SmazaniPracovnika, NedokonceneSmazaniNicNevymaze) {
    Smazani s;
    s.firma.vloz("Deti", "Cislo_pracovnika,Jmeno\n2,Ota\n");
    {
        store::Transaction transakce(s.firma.data());
        workers::Vymaz_udaje_o_pracovnikovi(s.firma.session, 2);
        EXPECT_EQ(s.firma.vypis("SELECT COUNT(*) AS P FROM Deti"), "0\n");
    }
    EXPECT_EQ(s.firma.vypis("SELECT COUNT(*) AS P FROM Deti"), "1\n");
    EXPECT_THROW(workers::Vymaz_udaje_o_pracovnikovi(s.firma.session, 2), store::StoreError)
        << "mimo transakci";
}

// Rows without a worker's number belong to nobody.
TEST(SmazaniPracovnika, KartaBezCislaNevezmeCiziVety) {
    Smazani s;
    s.firma.vloz("Os_karty", "Cislo,Prijmeni\n,Bez čísla\n");
    s.firma.vloz("Deti", "Cislo_pracovnika,Jmeno\n,Ničí\n");
    s.smaz(0);
    EXPECT_EQ(s.karty(), "1\n2\n3\n");
    EXPECT_EQ(s.firma.vypis("SELECT COUNT(*) AS P FROM Deti"), "1\n");
}

}  // namespace
