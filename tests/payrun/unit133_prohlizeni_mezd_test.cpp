// The pay-sheet browser: workers and their order, rows, explanations, and what leaves it.
#include "payrun/unit133_prohlizeni_mezd.h"

#include <gtest/gtest.h>
#include <set>

#include "base/soubory.h"
#include "payrun/unit50_blokace.h"
#include "payrun/vypocet_mesice.h"
#include "report/nahled.h"
#include "report/text.h"
#include "store/csv.h"

namespace zkouska {
namespace {

using payrun::OblastMezd;
using payrun::TForm133;

/// The operator who picks a folder.
struct VybiraSlozku final : SkriptovanaObsluha {
    std::string slozka;
    std::optional<std::string> vyber_slozku(const std::string&, const std::string&) override {
        return slozka.empty() ? std::nullopt : std::optional(slozka);
    }
};

class ProhlizeniMezd : public testing::Test {
  protected:
    ZkusebniFirma firma;
    void SetUp() override {
        firma.vloz("Os_karty",
                   "Cislo,Prijmeni,Jmeno,Titul,Dat_nar_cislo,Jake_socialni,Jake_zdravotni,Jaka_dan,"
                   "tpd,Staly_plat,Odp_poplatnik,Clenstvi_OS,Zam_do\n"
                   "10,Chalupa,Ivan,,19800501,1,1,1,40,20000,2570,true,\n"
                   "2,Čáp,Jan,Ing.,19900101,1,1,1,40,,2570,,31.1.2022\n"
                   "3,Cibulka,Žofie,,19700101,1,1,1,40,,,,\n"
                   "40,Hora,Jana,,19850101,1,1,1,40,,,,\n");
        firma.vloz("Hrube01",
                   "Cislo_pracovnika,Modul,Sloupec,Dny_od,Hod_od,Dny_neod,Hod_neod,Kc_cel,Text\n"
                   "10,1,1,2,16,,,3000,\n10,1,1,1,8,,,1500.4,\n10,3,4,,,,,700,\n"
                   "10,4,5,,,3,24,900,první\n10,4,5,,,1,8,100,druhá\n"
                   "2,1,1,21,168,,,30000,\n3,1,1,,,,,25000,\n40,1,1,,,,,26000,\n");
        firma.vloz("Fixni", "Cislo_pracovnika,Sloupec,Kcs\n10,13,300\n10,17,1000\n");
        firma.session.ridici_zorv.sloupec_staly_plat = 2;
        const std::vector<std::string> chyby = spocti_mesic(firma);
        ASSERT_TRUE(chyby.empty()) << chyby.front();
    }
    std::string cisla(const TForm133& form) {
        std::string text;
        for (const auto& p : form.pracovnici)
            text += std::to_string(p.cislo) + " ";
        return text;
    }
    void na_radek(TForm133& form, int modul) {
        for (std::size_t i = 0; i < form.radky.size(); ++i) {
            if (form.radky[i].modul == modul) {
                form.vyber_radek(static_cast<int>(i));
                form.vysvetli();
                return;
            }
        }
        FAIL() << "chybí řádek modulu " << modul;
    }
    void zmen(const char* sql) {
        store::Transaction t(firma.data());
        firma.data().execute(sql);
        t.commit();
    }
};

TEST_F(ProhlizeniMezd, FiltrATrideniJakoVMrizcePracovniku) {
    TForm133 form(firma.session, 1);
    form.FormShow();
    EXPECT_EQ(form.nadpis, "Prohlížení mezd - leden  2022");
    struct {
        const char* filtr;
        int trideni;
        const char* cisla;
    } const k_pripady[] = {
        {"", 0, "2 3 10 40 "}, {"", 1, "3 2 40 10 "}, {"", 2, "10 2 40 3 "}, {"", 3, "3 10 40 2 "},
        {" 10 ", 0, "10 "},    {"1", 0, ""},          {"čÁP", 0, "2 "},      {"jan", 1, "2 40 "},
        {"ch", 0, "10 "},      {"10x", 0, ""},        {"ŽOF", 0, "3 "},
    };
    for (const auto& p : k_pripady) {
        SCOPED_TRACE(std::string(p.filtr) + "/" + std::to_string(p.trideni));
        form.filtr = p.filtr;
        form.trideni = p.trideni;
        form.Filtruj_adresy();
        EXPECT_EQ(cisla(form), p.cisla);
        EXPECT_EQ(form.pracovnik, form.pracovnici.empty() ? -1 : 0) << "kurzor";
        EXPECT_EQ(form.radky.empty(), form.pracovnici.empty());
        form.vyber_pracovnika(-1);
    }
    form.btXClick();
    EXPECT_EQ(form.filtr, "");
    EXPECT_EQ(form.pracovnici.size(), 4U);
}

TEST_F(ProhlizeniMezd, KurzorZustavaNaPracovnikoviANaStejnePolozce) {
    TForm133 form(firma.session, 1);
    form.FormShow();
    form.vyber_pracovnika(2);
    EXPECT_EQ(pracovnik_slovy(form), "10  Chalupa Ivan");
    EXPECT_EQ(form.radky[static_cast<std::size_t>(form.radek)].modul, 14);
    na_radek(form, 7);
    const auto zmen_radku = form.zmeny.radky;
    form.trideni = 1;
    form.Filtruj_adresy();
    EXPECT_EQ(form.pracovnik, 3);
    EXPECT_EQ(form.zmeny.radky, zmen_radku) << "řádky téhož pracovníka se znovu nečtou";
    EXPECT_FALSE(form.ceka_na_vysvetleni);
    form.vyber_pracovnika(0);
    EXPECT_EQ(form.radky[static_cast<std::size_t>(form.radek)].modul, 7);
    form.filtr = "Hora";
    form.Filtruj_adresy();
    EXPECT_EQ(pracovnik_slovy(form), "40  Hora Jana");
}

TEST_F(ProhlizeniMezd, SoucetPracovnikaAVsechZobrazenych) {
    TForm133 form(firma.session, 1);
    form.FormShow();
    // 30000: social 24.8 % 7440, health 9 % 2700 by the employer.
    const auto& cap = form.pracovnici[0];
    EXPECT_EQ(cap.jmeno, "Jan, Ing.");
    EXPECT_TRUE(cap.odesel);
    EXPECT_EQ(cap.soucet.hruba, 30000);
    EXPECT_EQ(cap.soucet.k_vyplate, base::Castka(std::stoi(hodnota(firma, 2, 14))));
    EXPECT_EQ(cap.soucet.srazky + cap.soucet.k_vyplate, 30000);
    EXPECT_EQ(cap.soucet.naklad(form.sazby), 40140);
    base::Castka vyplaceno = 0;
    for (const auto& p : form.pracovnici)
        vyplaceno += p.soucet.k_vyplate;
    EXPECT_EQ(form.soucet_vsech.k_vyplate, vyplaceno);
    form.filtr = "2";
    form.Filtruj_adresy();
    EXPECT_EQ(form.soucet_vsech.hruba, 30000);
}

TEST_F(ProhlizeniMezd, DnyAHodinyPolozekICasovychRadku) {
    TForm133 form(firma.session, 1);
    form.FormShow();
    form.vyber_pracovnika(2);
    form.jdi_na(OblastMezd::radky);
    const std::string vypis = form.kopie();
    for (const char* radek :
         {"1\t1\thrubé mzdy - sloupec 1\t3\t24\t4501\t\n",
          "1\t2\tstálý plat\t17\t136\t16190\tST PLAT: ",
          "4\t5\tkaranténa příspěvek\t3\t24\t900\tprvní\n",
          "4\t5\tkaranténa příspěvek\t1\t8\t100\tdruhá\n", "52\t\tdny neodpracované\t4\t\t\t\n",
          "54\t\thodiny neodpracované\t\t32\t\t\n"}) {
        EXPECT_NE(vypis.find(radek), std::string::npos) << radek << "\n" << vypis;
    }
}

TEST_F(ProhlizeniMezd, StromCastkyKVyplateObsahujeVsechnyRadkyKtereJiTvori) {
    TForm133 form(firma.session, 1);
    form.FormShow();
    form.vyber_pracovnika(2);
    EXPECT_TRUE(form.ceka_na_vysvetleni);
    EXPECT_TRUE(form.strom.uzly().empty());
    na_radek(form, 14);
    EXPECT_EQ(form.rozdil, "");
    EXPECT_TRUE(form.scChyby.empty());
    std::set<int> kroky;
    std::size_t prvnich = 0;
    for (const auto& uzel : form.strom.uzly()) {
        if (uzel.krok < 0) continue;
        kroky.insert(uzel.krok);
        prvnich += uzel.znovu ? 0U : 1U;
        EXPECT_TRUE(!uzel.znovu || uzel.vetve.empty());
    }
    EXPECT_EQ(prvnich, kroky.size()) << "každý krok je rozepsaný právě jednou";
    const payrun::Vysvetleni v = payrun::vysvetli_pracovnika(firma.session, 1, 10);
    int nalezeno = 0;
    for (const auto& r : v.radky) {
        static const std::set<int> tvori{1, 4, 7, 8, 9, 10, 11, 13};
        if (!tvori.contains(r.modul)) continue;
        // A stored amount that was rounded has a step of its own above the one that counts.
        bool je = kroky.contains(r.krok);
        for (const auto& vstup : v.stopa.kroky().at(static_cast<std::size_t>(r.krok)).vstupy)
            je = je || kroky.contains(vstup.krok);
        EXPECT_TRUE(je) << "modul " << r.modul << " " << r.co_je_to;
        ++nalezeno;
    }
    EXPECT_GE(nalezeno, 8);
}

TEST_F(ProhlizeniMezd, ZmenaPoVypoctuSeRekne) {
    zmen("UPDATE Hrube01 SET Kc_cel = 31000 WHERE Cislo_pracovnika = 2");
    zmen("UPDATE Fixni SET Sloupec = 14 WHERE Sloupec = 13");
    zmen("DELETE FROM Os_karty WHERE Cislo = 40");
    TForm133 form(firma.session, 1);
    form.FormShow();
    na_radek(form, 2);
    EXPECT_EQ(form.rozdil,
              "Karta nebo zadání se od výpočtu změnily: v listině je 30000, nyní "
              "vychází 31000.");
    EXPECT_TRUE(form.lisi_se(form.radek));
    form.vyber_pracovnika(2);
    na_radek(form, 10);
    EXPECT_EQ(form.rozdil,
              "Karta nebo zadání se od výpočtu změnily: v listině je 300, výpočet "
              "takový řádek už nedává.");
    ASSERT_EQ(form.scChyby.size(), 1U);
    EXPECT_NE(form.scChyby[0].find("modul 10, sloupec 14) 300, v listině není."),
              std::string::npos);
    form.vyber_pracovnika(3);
    form.vysvetli();
    ASSERT_FALSE(form.scChyby.empty());
    EXPECT_EQ(form.scChyby[0], "Pracovník 40 v kartotéce už není, jeho částky nelze vysvětlit.");
    EXPECT_FALSE(form.radky.empty()) << "listina se čte dál";
}

TEST_F(ProhlizeniMezd, ListinaBezHrubychMezdSeProhliziBezVysvetleni) {
    {
        store::Transaction t(firma.data());
        firma.data().delete_table("Hrube01");
        t.commit();
    }
    TForm133 form(firma.session, 1);
    form.FormShow();
    form.vysvetli();
    EXPECT_FALSE(form.radky.empty());
    EXPECT_TRUE(form.strom.uzly().empty());
    EXPECT_EQ(form.scChyby.at(0), "Hrubé mzdy za  leden  2022 nejsou, částky nelze vysvětlit.");
}

TEST_F(ProhlizeniMezd, MesicSeMeniPracovnikZustavaAMesicBezListinySeNeda) {
    firma.vloz("Hrube03", "Cislo_pracovnika,Modul,Sloupec,Kc_cel\n40,1,1,26000\n10,1,1,1\n");
    ASSERT_TRUE(spocti_mesic(firma, 3).empty());
    priprav_mesic(firma, 4);  // a sheet without rows
    TForm133 form(firma.session, 1);
    form.FormShow();
    EXPECT_EQ(form.mesice, (std::vector<int>{1, 3}));
    form.vyber_pracovnika(3);
    form.vyber_mesic(1);
    EXPECT_EQ(form.nadpis, "Prohlížení mezd - březen  2022");
    EXPECT_EQ(pracovnik_slovy(form), "40  Hora Jana");
    for (const int mesic : {2, 4}) {
        TForm133 bez(firma.session, mesic);
        bez.FormShow();
        EXPECT_NE(bez.hlaska.find(" neexistuje, nejprve zpracujte výplaty."), std::string::npos);
        bez.acBlokExecute();
        bez.acTiskExecute();
        bez.acExportExecute();
        EXPECT_TRUE(bez.pracovnici.empty());
    }
}

TEST_F(ProhlizeniMezd, VyvezenyCsvJeCelaListinaZobrazenych) {
    VybiraSlozku obsluha;
    shell::Session session{{obsluha, firma.hodiny, firma.nahoda}, firma.slozka / "program"};
    session.koren_dat = firma.session.koren_dat;
    session.firma = firma.session.firma;
    session.ridici_zorv = firma.session.ridici_zorv;
    firma.session.zavri_spojeni();
    shell::cti_konfiguracni_soubor(session);
    TForm133 form(session, 1);
    form.FormShow();
    form.acExportExecute();
    EXPECT_TRUE(obsluha.hlasky.empty()) << "bez složky se nic neděje";
    obsluha.slozka = firma.slozka.cesta().string();
    form.acExportExecute();
    const auto soubor = firma.slozka / "Listin01.csv";
    const auto radky = store::parse_csv(base::precti_soubor(soubor, 1'000'000), "Listin01.csv");
    std::multiset<std::string> z_csv, z_listiny;
    for (std::size_t i = 1; i < radky.size(); ++i) {
        const auto& f = radky[i].fields;
        // Days and hours of a time row are its value.
        const std::string cas = f[6].empty() ? f[7] : f[6];
        const bool casovy = (f[3] >= "51" && f[3] <= "55") || f[3] == "71" || f[3] == "72";
        z_csv.insert(f[0] + "|" + f[1] + "|" + f[2] + "|" + f[3] + "|" + f[4] + "|" + f[5] + "|" +
                     (casovy ? cas : f[8]) + "|" + f[9] + "\n");
    }
    std::string vypis = firma.vypis(
        "SELECT Cislo_pracovnika, Prijmeni, Jmeno, Modul, Sloupec, Co_je_to, Hodnota, Poznamka"
        " FROM Listin01");
    for (std::size_t konec; (konec = vypis.find('\n')) != std::string::npos;) {
        z_listiny.insert(vypis.substr(0, konec + 1));
        vypis.erase(0, konec + 1);
    }
    EXPECT_EQ(z_csv, z_listiny);
    // The second time the file is there; with a filter only the worker shown goes into it.
    form.filtr = "40";
    form.Filtruj_adresy();
    for (const bool ano : {false, true}) {
        obsluha.odpovez("už existuje. Přepsat jej?", ano);
        form.acExportExecute();
        const std::string text = base::precti_soubor(soubor, 1'000'000);
        EXPECT_EQ(text.find("Chalupa") == std::string::npos, ano);
        EXPECT_NE(text.find("Hora"), std::string::npos);
    }
}

TEST_F(ProhlizeniMezd, KopirujeATiskneCoJeVidet) {
    TForm133 form(firma.session, 1);
    form.FormShow();
    form.vyber_pracovnika(2);
    form.vysvetli();
    EXPECT_EQ(form.kopie().substr(0, form.kopie().find('\n')), "Číslo\tPříjmení\tJméno\tK výplatě");
    std::string tisk;
    firma.obsluha.pri_obrazovce = [&](base::Obrazovka& obrazovka) {
        tisk = report::jako_text(dynamic_cast<report::TFUsrPrev&>(obrazovka).dokument);
        form.acTiskExecute();  // refused while the preview waits
    };
    form.filtr = "c";
    form.Filtruj_adresy();
    form.acTiskExecute();
    for (const char* cast : {"Výplatní listina - leden  2022", "Filtr: c", "Cibulka Žofie",
                             "Celkem pracovníků: 2", "25 000,00"}) {
        EXPECT_NE(tisk.find(cast), std::string::npos) << cast << "\n" << tisk;
    }
    EXPECT_EQ(tisk.find("Hora"), std::string::npos);
    form.jdi_na(OblastMezd::vysvetleni);
    EXPECT_NE(form.kopie().find("k výplatě = "), std::string::npos);
    form.acTiskExecute();
    for (const char* cast : {"Pracovník 10  Chalupa Ivan", "stálý plat", "k výplatě"})
        EXPECT_NE(tisk.find(cast), std::string::npos) << cast << "\n" << tisk;
}

TEST_F(ProhlizeniMezd, BlokZaloziTabulkuMesiceASjejiZmenouSeVysvetleniPrepocte) {
    firma.session.zpracovavany_mesic = 7;
    TForm133 form(firma.session, 1);
    form.FormShow();
    na_radek(form, 7);
    EXPECT_FALSE(firma.data().table_exists("Blok01"));
    firma.obsluha.pri_obrazovce = [&](base::Obrazovka& obrazovka) {
        auto& blokace = dynamic_cast<payrun::TForm50&>(obrazovka);
        EXPECT_EQ(blokace.nadpis, "Blokované hodnoty - leden  2022");
        if (blokace.vety.rows.empty()) {
            firma.vloz("Blok01", "Cislo_pracovnika,socialni_abs\n3,55\n2,1234\n");
        } else {
            EXPECT_EQ(blokace.hodnoty[1].abs, "1234") << "kurzor na řádku pracovníka";
        }
    };
    form.acBlokExecute();
    EXPECT_EQ(firma.session.zpracovavany_mesic, 7);
    EXPECT_TRUE(form.ceka_na_vysvetleni);
    form.vysvetli();
    EXPECT_NE(form.rozdil.find("nyní vychází 1234."), std::string::npos) << form.rozdil;
    form.acBlokExecute();
}

TEST_F(ProhlizeniMezd, ZVysledkuVypoctuSeOtevreListinaTehozMesice) {
    std::string nadpis;
    firma.obsluha.pri_obrazovce = [&](base::Obrazovka& obrazovka) {
        nadpis = dynamic_cast<TForm133&>(obrazovka).nadpis;
    };
    priprav_mesic(firma, 1);
    payrun::TForm21 vypocet(firma.session);
    vypocet.FormShow();
    vypocet.acProhlizeniMezdExecute();
    EXPECT_EQ(nadpis, "") << "před výpočtem není co prohlížet";
    vypocet.Button2Click();
    vypocet.acProhlizeniMezdExecute();
    EXPECT_EQ(nadpis, "Prohlížení mezd - leden  2022");
}

}  // namespace
}  // namespace zkouska
