// Gross items from a file: what is offered, what is refused and how it is named.
#include "wages/hromadne_zadani.h"

#include <gtest/gtest.h>

#include "base/soubory.h"
#include "store/catalogue.h"
#include "support/zkusebni_firma.h"
#include "wages/hromadne_obrazovka.h"

namespace {

using Chyby = std::vector<std::string>;

/// March 2022. Column 1 asks for days, hours, a date and a value (the rate of the personal class is
/// offered), 2 for a work of the external input, 5 is the quarantine allowance.
class HromadneZadani : public testing::Test {
  protected:
    zkouska::ZkusebniFirma firma;

    void SetUp() override {
        firma.session.zpracovavany_mesic = 3;
        store::Transaction transakce(firma.data());
        firma.data().execute("DELETE FROM Ridici");
        firma.data().create_table(store::definition_of("Hrube03"));
        transakce.commit();
        firma.vloz(
            "Ridici",
            "Modul,Sloupec,text,Jake_dny,Jake_hodiny,Datum,nadpis_1,predrazeno_1,Min_1,Max_1,"
            "nadpis_2,predrazeno_2,Min_2,Max_2,var_vyp\n"
            "1,1,úkol,1,1,true,hodin,2,-500,500,sazba,5,0,999,5\n"
            "1,2,externí,,,false,práce,8,0,9999,,,,,1\n"
            "4,5,karanténa,,,false,,,,,,,,,\n"
            "5,6,náhrada,,,false,,,,,,,,,\n");
        firma.vloz(
            "Os_karty",
            "Cislo,Prijmeni,Jmeno,tpd,Sazba_OT\n20,Černá,Eva,40,210.5\n10,Dvořák,Jan,37.5,\n");
        firma.vloz("Vstup_ex", "Cislo_prace,Sazba,Text\n305,88.5,svařování\n");
    }
    wages::HromadneZadani precti(const std::string& radky) {
        return wages::precti_hromadne(firma.session, 3, radky, "dochazka.csv");
    }
    std::string hrube() {
        return firma.vypis(
            "SELECT Cislo_pracovnika, Modul, Sloupec, Dny_od, Hod_od, Datum, Kc1, Kc2, Kc_cel, "
            "Text "
            "FROM Hrube03 ORDER BY Pocitadlo");
    }
};

TEST_F(HromadneZadani, DoplniCoByNabidlaObrazovkaAZapise) {
    const auto davka = precti(
        "\xEF\xBB\xBF"
        "cislo_pracovnika,Sloupec,Dny,Hodiny,Datum,Hodnota_1,Hodnota_2,Text\r\n"
        "20,1,5,,7,,,\r\n"
        "10,1,\"2,5\",10,1503,,100,oprava\r\n"
        "20,2,,,,305,,\r\n"
        "10,5,,,,5180,,\r\n");
    EXPECT_EQ(davka.chyby, Chyby{});
    EXPECT_EQ(davka.celkem, 40 * 210.5L + 10 * 100 + 88.5L + 5180);
    store::Transaction transakce(firma.data());
    wages::zapis_hromadne(firma.session, 3, davka);
    transakce.commit();
    EXPECT_EQ(hrube(),
              "20|1|1|5|40|07.03.|40|210.5|8420|\n"
              "10|1|1|2.5|10|15.03.|10|100|1000|oprava\n"
              "20|1|2||||88.5||88.5|svařování: 305\n"
              "10|4|5||||||5180|\n");
}

TEST_F(HromadneZadani, ChybyJmenujiSouborRadekAPole) {
    struct Pripad {
        const char *radek, *chyba;
    };
    const Pripad pripady[] = {
        {"99,1,,,,,,", "pole Cislo_pracovnika: pracovník \"99\" není v souboru."},
        {"x,1,,,,,,", "pole Cislo_pracovnika: pracovník \"x\" není v souboru."},
        {"20,6,,,,,,",
         "pole Sloupec: \"6\" není sloupec hrubých mezd, naturální mzdy ani karantény."},
        {"20,1,5,4O,0703,,,", "pole Hodiny: \"4O\" není číslo."},
        {"20,1,32,,0703,,,", "Chybně zadané dny."},
        {"20,1,5,501,3002,1,1,", "Chybně zadané hodiny. Chybně zadané datum."},
        {"20,1,,,,,,",
         "Nezadali jste dny. Nezadali jste hodiny. Nezadali jste datum. "
         "Nezadali jste první hodnotu."},
        {"20,1,1,8,0703,600,1000,", "Interval u 1: -500 až 500. Interval u 2: 0 až 999."},
        {"20,2,1,,,305,,", "pole Dny: sloupec je nezadává, má být prázdné."},
        {"20,2,,,,306,,", "pole Hodnota_1: práce \"306\" není v externím vstupu."},
        {"20,5,,,,0,,", "pole Hodnota_1: čekám celé koruny příspěvku, ne 0."},
        {"20,1,5", "má 3 polí, záhlaví 8."},
        {"20,1,5,40,0703,,,0123456789012345678901234567890", "pole Text: nejvýše 30 znaků."},
    };
    for (const Pripad& p : pripady) {
        const auto davka = precti(
            std::string("Cislo_pracovnika,Sloupec,Dny,Hodiny,Datum,Hodnota_1,Hodnota_2,Text\n\n") +
            p.radek + "\n20,2,,,,305,,\n");
        EXPECT_EQ(davka.chyby, Chyby{std::string("dochazka.csv, řádek 3: ") + p.chyba});
        EXPECT_EQ(davka.radky.size(), 2U);
        EXPECT_EQ(davka.celkem, 88.5L);
    }
}

TEST_F(HromadneZadani, CiziSouborDaJednuChybu) {
    struct Pripad {
        const char *csv, *chyba;
    };
    for (const Pripad& p :
         {Pripad{"", "dochazka.csv: soubor je prázdný."},
          {"Cislo_pracovnika,Dny\n", "dochazka.csv, řádek 1: chybí pole \"Sloupec\"."},
          {"Cislo_pracovnika,Sloupec,Mzda\n", "dochazka.csv, řádek 1: pole \"Mzda\" neznám."},
          {"Sloupec,Sloupec\n", "dochazka.csv, řádek 1: pole \"Sloupec\" je tu dvakrát."}}) {
        EXPECT_EQ(precti(p.csv).chyby, Chyby{p.chyba});
    }
    EXPECT_EQ(precti("Cislo_pracovnika,Sloupec\n\"20").chyby.size(), 1U);
}

TEST_F(HromadneZadani, ObrazovkaUkazeChybyAZapiseAzSpravnySoubor) {
    const auto soubor = firma.slozka / "dochazka.csv";
    wages::TFHromadneZadani form(firma.session);
    form.FormShow();
    EXPECT_EQ(form.nadpis, "Hrubé mzdy ze souboru - březen  2022");
    form.nacti((firma.slozka / "neni.csv").string());
    EXPECT_EQ(form.davka.chyby.size(), 1U);

    base::zapis_soubor(soubor, "Cislo_pracovnika,Sloupec,Hodnota_1\n20,2,305\n10,2,999\n");
    form.nacti(soubor.string());
    EXPECT_EQ(form.lbSouhrn, "Položek: 2, chyb: 1, celkem 88,50 Kč");
    form.acZapsatExecute();
    EXPECT_EQ(hrube(), "");
    EXPECT_FALSE(form.zavreno);

    base::zapis_soubor(soubor, "Cislo_pracovnika,Sloupec,Hodnota_1\n20,2,305\n10,2,305\n");
    form.nacti(soubor.string());
    form.acZapsatExecute();
    EXPECT_EQ(firma.obsluha.hlasky, Chyby{"Zapsáno položek: 2."});
    EXPECT_TRUE(form.zmeneno && form.zavreno);
    EXPECT_EQ(firma.vypis("SELECT SUM(Kc_cel) FROM Hrube03"), "177\n");
}

}  // namespace
