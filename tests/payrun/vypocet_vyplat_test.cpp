// The screen "Výpočet výplat" with a scripted operator.
#include <gtest/gtest.h>

#include "base/chyba.h"
#include "payrun/unit66_prohlizeni.h"
#include "payrun/vypocet_mesice.h"
#include "store/query.h"

namespace zkouska {
namespace {

constexpr const char* k_hlavicka_karet =
    "Cislo,Prijmeni,Jmeno,Jake_socialni,Jake_zdravotni,Jaka_dan,tpd,Kdo_plati_dan,Odp_poplatnik,"
    "Zam_od,Staly_plat\n";

/// Workers 1 to 3: 1 earns 10000; 2 is taxed under 3; 3 earns 20000.
class Vypocet : public testing::Test {
  protected:
    ZkusebniFirma firma;
    std::vector<std::string> udalosti;

    void SetUp() override {
        firma.vloz("Os_karty", std::string(k_hlavicka_karet) +
                                   "1,Bartoš,Adam,1,1,1,40,,,,\n"
                                   "2,Černá,Božena,1,1,1,40,3,,,\n"
                                   "3,Dolejš,Cyril,1,1,1,40,,,,\n");
        firma.vloz("Hrube01",
                   "Cislo_pracovnika,Modul,Sloupec,Kc_cel\n1,1,1,10000\n2,1,1,5000\n3,1,1,20000\n");
        priprav_mesic(firma, 1);
    }
    void fixni(int cislo, int sloupec, int kcs) {
        firma.vloz("Fixni", "Cislo_pracovnika,Sloupec,Kcs\n" + std::to_string(cislo) + "," +
                                std::to_string(sloupec) + "," + std::to_string(kcs) + "\n");
    }
    void predchozi_zaporna() {
        store::Transaction t(firma.data());
        firma.data().rename_table("Listin01", "Zaporna");
        t.commit();
        priprav_mesic(firma, 1);
    }
    bool je(const char* tabulka) { return firma.data().table_exists(tabulka); }
    /// Presses "Přerušit" when the n-th event is let in.
    void prerus_pri(payrun::TForm21& obrazovka, int poradi) {
        firma.obsluha.pri_udalostech = [&obrazovka, poradi, kolikata = 0]() mutable {
            if (++kolikata == poradi) obrazovka.Button3Click();
        };
    }
};

TEST_F(Vypocet, PoOtevreniCekaNaSpusteni) {
    firma.session.radek_firmy = "FIRMA22";
    payrun::TForm21 obrazovka(firma.session);
    obrazovka.FormShow();
    EXPECT_EQ(obrazovka.nadpis, "Výpočet výplat - FIRMA22");
    EXPECT_EQ(obrazovka.scMesic, "leden  2022");
    EXPECT_EQ(obrazovka.nadpis_vysledku, "Základní mzdové hodnoty  -  leden  2022");
    EXPECT_EQ(obrazovka.pracovni_dny_mesice, 21);
    EXPECT_TRUE(obrazovka.zpracuj_povoleno && obrazovka.zpet_povoleno);
    EXPECT_FALSE(obrazovka.prerusit_viditelne || obrazovka.zapornych_povoleno ||
                 obrazovka.nelze_pokracovat || obrazovka.prohlizet_zaporne_viditelne);
    obrazovka.Button3Click();
    EXPECT_FALSE(obrazovka.preruseno);
    obrazovka.Button1Click();
    EXPECT_TRUE(obrazovka.zavreno);
    EXPECT_TRUE(je("Listin01"));
    EXPECT_EQ(listina(firma), "");

    firma.session.zpracovavany_mesic = 2;
    EXPECT_THROW(payrun::TForm21{firma.session}, base::ChybaDat);
}

TEST_F(Vypocet, UspesnyBehUkazeVysledky) {
    payrun::TForm21 obrazovka(firma.session);
    zpracuj(obrazovka);
    using Dvojice = std::vector<std::pair<std::string, std::string>>;
    EXPECT_EQ(obrazovka.vysledky, (Dvojice{{"Hrubé mzdy:", "35000.00"},
                                           {"Sociální dávky:", "0.00"},
                                           {"Naturální mzda:", "0.00"}}));
    EXPECT_EQ(obrazovka.vysledky_organizace,
              (Dvojice{{"Sociální pojištění:", "8680.00"}, {"Zdravotní pojištění:", "3150.00"}}));
    EXPECT_TRUE(obrazovka.vysledky_viditelne && obrazovka.zpet_povoleno &&
                obrazovka.prubeh.empty());
    EXPECT_FALSE(obrazovka.zpracuj_povoleno || obrazovka.prerusit_viditelne);
    const std::string poprve = listina(firma);
    obrazovka.Button2Click();
    EXPECT_EQ(listina(firma), poprve) << "po výpočtu už tlačítko nic nedělá";
    EXPECT_EQ(poznamka(firma, 3, 63), "1  (od pracovníka 000002        5000,00  Kč) ");
    EXPECT_EQ(hodnota(firma, 3, 9), "3750");
    EXPECT_EQ(hodnota(firma, 2, 9), "-");
}

TEST_F(Vypocet, UdalostiSePoustejiPoKazdemPracovnikovi) {
    payrun::TForm21 obrazovka(firma.session);
    firma.obsluha.pri_udalostech = [&] {
        udalosti.push_back(obrazovka.prubeh + " " + std::to_string(obrazovka.prubeh_pozice) + "/" +
                           std::to_string(obrazovka.prubeh_max));
        const std::string uprostred = listina(firma);
        obrazovka.Button2Click();
        obrazovka.Button1Click();
        obrazovka.BitBtn1Click();
        EXPECT_EQ(listina(firma), uprostred);
        EXPECT_FALSE(obrazovka.zavreno);
        EXPECT_TRUE(obrazovka.prerusit_viditelne);
    };
    zpracuj(obrazovka);
    const std::vector<std::string> ceka{"A: Pracovník 1 2/3", "A: Pracovník 2 3/3",
                                        "A: Pracovník 3 3/3", "B: Pracovník 1 2/3",
                                        "B: Pracovník 2 3/3", "B: Pracovník 3 3/3"};
    EXPECT_EQ(udalosti, ceka);
}

TEST_F(Vypocet, NikdoJinyNevidiRozdelanouListinu) {
    payrun::TForm21 obrazovka(firma.session);
    int videno = 0;
    firma.obsluha.pri_udalostech = [&] {
        store::Connection jiny(firma.session.cesta_dat, store::Access::read_only);
        store::Query q(jiny, "SELECT COUNT(*) AS Pocet FROM Listin01");
        q.open();
        videno += static_cast<int>(q.integer(0));
    };
    zpracuj(obrazovka);
    EXPECT_EQ(videno, 0);
    EXPECT_NE(listina(firma), "");
}

TEST_F(Vypocet, PreruseniNenechaListinuAniZapornou) {
    for (const int kdy : {1, 3, 4, 6}) {
        SCOPED_TRACE(kdy);
        if (!je("Listin01")) priprav_mesic(firma, 1);
        predchozi_zaporna();
        payrun::TForm21 obrazovka(firma.session);
        prerus_pri(obrazovka, kdy);
        zpracuj(obrazovka);
        EXPECT_TRUE(obrazovka.preruseno && obrazovka.zavreno);
        EXPECT_FALSE(obrazovka.vysledky_viditelne || je("Listin01") || je("Zaporna"));
    }
}

TEST_F(Vypocet, PreruseniVPasuANespustiPasB) {
    payrun::TForm21 obrazovka(firma.session);
    firma.obsluha.pri_udalostech = [&] {
        udalosti.push_back(obrazovka.prubeh);
        obrazovka.Button3Click();
    };
    zpracuj(obrazovka);
    EXPECT_EQ(udalosti, std::vector<std::string>{"A: Pracovník 1"});
}

TEST_F(Vypocet, ZapornaVyplataNechaJenZaporneRadky) {
    fixni(1, 13, 9000);
    payrun::TForm21 obrazovka(firma.session);
    zpracuj(obrazovka);
    EXPECT_EQ(obrazovka.scChyby, std::vector<std::string>{"Pracovník  č.  1:   -1600  Kč"});
    EXPECT_TRUE(obrazovka.nelze_pokracovat && obrazovka.prohlizet_zaporne_viditelne);
    EXPECT_FALSE(je("Listin01") || obrazovka.vysledky_viditelne);
    EXPECT_EQ(firma.vypis("SELECT Cislo_pracovnika, COUNT(*) FROM Zaporna GROUP BY "
                          "Cislo_pracovnika"),
              "1|19\n");
    EXPECT_EQ(hodnota(firma, 1, 14, "Zaporna"), "-1600");

    std::string prohlizeno;
    firma.obsluha.pri_obrazovce = [&](base::Obrazovka& o) {
        auto& prohlizeni = dynamic_cast<payrun::TForm66&>(o);
        prohlizeno = prohlizeni.nadpis + " " + std::to_string(prohlizeni.vety.rows.size());
        prohlizeni.Button1Click();
        EXPECT_TRUE(prohlizeni.zavreno);
    };
    obrazovka.BitBtn1Click();
    EXPECT_EQ(prohlizeno, "PROHLÍŽÍME  ZÁPORNÉ  VÝPLATY 19");
    obrazovka.Button1Click();
    EXPECT_TRUE(obrazovka.zavreno && je("Zaporna"));

    fixni(1, 13, -9000);
    EXPECT_TRUE(spocti_mesic(firma).empty());
    EXPECT_TRUE(je("Listin01"));
    EXPECT_FALSE(je("Zaporna"));
}

TEST_F(Vypocet, PreruseniPriVyberuZapornychZrusiVse) {
    fixni(1, 13, 9000);
    payrun::TForm21 obrazovka(firma.session);
    prerus_pri(obrazovka, 7);
    zpracuj(obrazovka);
    EXPECT_TRUE(obrazovka.zavreno);
    EXPECT_FALSE(je("Listin01") || je("Zaporna"));
}

TEST_F(Vypocet, SJinouChybouZmiziIZapornaPoZpet) {
    fixni(1, 13, 9000);
    firma.session.ridici_zorv.sloupec_penzijni_srazky = 14;
    fixni(3, 14, 100);
    payrun::TForm21 obrazovka(firma.session);
    zpracuj(obrazovka);
    const std::vector<std::string> ceka{"Pracovník  č.  1:   -1600  Kč",
                                        "Pracovník 3 : fixní, sl. 14 nesmí mít",
                                        "   zadné koruny (jde o PF organizace)."};
    EXPECT_EQ(obrazovka.scChyby, ceka);
    EXPECT_TRUE(je("Zaporna"));
    obrazovka.Button1Click();
    EXPECT_FALSE(je("Zaporna") || je("Listin01") || obrazovka.nelze_pokracovat);
}

TEST_F(Vypocet, BezSloupceZustaneListinaPrazdnaDoZpet) {
    predchozi_zaporna();
    firma.session.ridici_zorv.modul8 = 0;
    payrun::TForm21 obrazovka(firma.session);
    zpracuj(obrazovka);
    ASSERT_EQ(obrazovka.scChyby.size(), 6U);
    EXPECT_EQ(obrazovka.scChyby[0], "Pracovník 2 : v parametrech není zadán");
    EXPECT_EQ(obrazovka.scChyby[1], "     sloupec pro modul 8.");
    EXPECT_TRUE(obrazovka.nelze_pokracovat && je("Listin01"));
    EXPECT_FALSE(je("Zaporna"));
    EXPECT_EQ(listina(firma), "");
    obrazovka.Button1Click();
    EXPECT_FALSE(je("Listin01"));
}

TEST_F(Vypocet, PovolenaZapornaSeZapise) {
    fixni(1, 13, 9000);
    store::Transaction t(firma.data());
    firma.data().execute("UPDATE Ridici SET text = \"k výplatě ---\" WHERE Modul = 14");
    t.commit();
    payrun::TForm21 obrazovka(firma.session);
    EXPECT_TRUE(obrazovka.zapornych_povoleno);
    zpracuj(obrazovka);
    EXPECT_TRUE(obrazovka.scChyby.empty());
    EXPECT_EQ(hodnota(firma, 1, 14), "-1600");
}

TEST_F(Vypocet, VadnaKartaVratiVseDoStavuPredVypoctem) {
    predchozi_zaporna();
    firma.vloz("Os_karty", std::string(k_hlavicka_karet) + "9,Zíma,Ota,1,1,1,,,,,15000\n");
    payrun::TForm21 obrazovka(firma.session);
    obrazovka.FormShow();
    EXPECT_THROW(obrazovka.Button2Click(), base::ChybaDat);
    EXPECT_EQ(listina(firma), "");
    EXPECT_TRUE(je("Zaporna") && obrazovka.zpracuj_povoleno && obrazovka.zpet_povoleno);
    EXPECT_FALSE(obrazovka.prerusit_viditelne);
    EXPECT_TRUE(obrazovka.prubeh.empty());
}

TEST_F(Vypocet, DruhaKartaTehozCislaVidiZakladPrvni) {
    firma.session.nastaveni.max_vz_soc = 25000;
    firma.vloz("Os_karty", std::string(k_hlavicka_karet) + "3,Dolejš,Cyril,1,1,1,40,,,,\n");
    EXPECT_TRUE(spocti_mesic(firma).empty());
    EXPECT_EQ(firma.vypis("SELECT Hodnota FROM Listin01 WHERE Cislo_pracovnika = 3 AND Modul = 61 "
                          "ORDER BY Pocitadlo"),
              "20000\n5000\n");
}

/// Presses the buttons of a screen while its question waits.
class ZvedavaObsluha final : public SkriptovanaObsluha {
  public:
    payrun::TForm21* obrazovka = nullptr;
    bool otazka_ano_ne(const std::string& text, const std::string& nadpis) override {
        obrazovka->Button3Click();
        obrazovka->Button2Click();
        obrazovka->Button1Click();
        EXPECT_FALSE(obrazovka->preruseno || obrazovka->zavreno);
        return SkriptovanaObsluha::otazka_ano_ne(text, nadpis);
    }
};

TEST_F(Vypocet, PriOtazceNaSlevyObrazovkaNicNeprijima) {
    firma.vloz("Os_karty",
               std::string(k_hlavicka_karet) + "4,Erbenová,Dana,1,1,1,40,,2570,10.1.2022,\n");
    firma.vloz("Hrube01", "Cislo_pracovnika,Modul,Sloupec,Kc_cel\n4,1,1,30000\n");
    ZvedavaObsluha obsluha;
    shell::Session session({obsluha, firma.hodiny, firma.nahoda}, firma.session.slozka_programu);
    session.koren_dat = firma.session.koren_dat;
    session.firma = firma.session.firma;
    shell::cti_konfiguracni_soubor(session);
    session.ridici_zorv = firma.session.ridici_zorv;
    firma.session.zavri_spojeni();
    for (const bool ano : {true, false}) {
        priprav_mesic(firma, 1);
        firma.session.zavri_spojeni();
        payrun::TForm21 obrazovka(session);
        obsluha.obrazovka = &obrazovka;
        obsluha.odpovez("Pracovník č. 4 - Erbenová Dana", ano);
        zpracuj(obrazovka);
        EXPECT_TRUE(obrazovka.vysledky_viditelne);
        session.zavri_spojeni();
        EXPECT_EQ(hodnota(firma, 4, 66), ano ? "2570" : "-");
        EXPECT_EQ(hodnota(firma, 4, 9), ano ? "1930" : "4500");
    }
}

}  // namespace
}  // namespace zkouska
