// Entry of gross items: grids, pages, events of fields, writing.
#include "wages/unit17_zadani.h"

#include <gtest/gtest.h>

#include "store/catalogue.h"
#include "store/table.h"
#include "support/zkusebni_firma.h"

namespace {

using wages::PoleNahrad;
using wages::TForm17;

/// March 2022, two workers. Column 1 asks for everything of the ordinary form, 2 for one value from
/// the external input, 3 for nothing, 6 is the quarantine allowance, 7 sickness, 8 care.
class ZadaniHrubych : public testing::Test {
  protected:
    zkouska::ZkusebniFirma firma;
    int otevren_blok = 0;
    TForm17 form{firma.session, {[this](shell::Session&) { ++otevren_blok; }, {}}};

    void SetUp() override {
        firma.session.zpracovavany_mesic = 3;
        firma.session.nastaveni.NahradaNemocSloupec = 7;
        firma.session.nastaveni.NahradaOCRSloupec = 8;
        store::Transaction transakce(firma.data());
        firma.data().execute("DELETE FROM Ridici");
        firma.data().create_table(store::definition_of("Hrube03"));
        transakce.commit();
        firma.vloz(
            "Ridici",
            "Modul,Sloupec,text,Jake_dny,Jake_hodiny,Datum,Stredisko,Vykon,Stroj,nadpis_1,"
            "predrazeno_1,Min_1,Max_1,Konstanta_1,nadpis_2,predrazeno_2,Min_2,Max_2,var_vyp\n"
            "1,1,úkol,1,1,true,true,true,true,sazba,7,0,500,120.5,kusů,2,0,999,5\n"
            "1,2,externí,,,false,false,false,false,práce,8,0,9999,,,,,,1\n"
            "1,3,prázdný,,,false,false,false,false,,,,,,,,,,\n"
            "2,4,celkem,,,false,false,false,false,,,,,,,,,,\n"
            "4,6,karanténa,,,false,false,false,false,,,,,,,,,,\n"
            "5,7,náhrada nemoc,,,false,false,false,false,,,,,,,,,,\n"
            "5,8,OČR,,,false,false,false,false,,,,,,,,,,\n"
            "5,9,odstupné,,,false,false,false,false,,,,,,,,,,\n");
        firma.vloz("Os_karty",
                   "Cislo,Prijmeni,Jmeno,tpd,Stredisko,Vykon,Staly_plat,Os_oh_1,Volit_2,PdovH4min,"
                   "Id_rpd,Zam_do,Dat_nar_cislo,Prum_nemoc_2\n"
                   "20,Černá,Eva,40,12,1,30000,1000,5,227.15,1,,19800101,512.5\n"
                   "10,Dvořák,Jan,37.5,,,,,,,,1.2.2022,19700101,\n");
        firma.vloz("Stroje", "Stroj\n17\n");
        firma.vloz("Vstup_ex", "Cislo_prace,Sazba,Text\n305,88.5,svařování\n");
        std::string fond;
        for (int den = 1; den <= 31; ++den)
            fond += (den == 1 ? "" : ";") +
                    std::string(base::den_v_tydnu({2022, 3, den}) <= 5 ? "8:00" : "0:00");
        firma.vloz("Rpd", "Pocitadlo,Rok,Typ,Nazev,Fond3\n1,2022,0,Základní," + fond + "\n");
        zaloz_vykon();
        ASSERT_TRUE(form.FormShow());
        ASSERT_EQ(form.pracovnici.size(), 2U);
    }

    /// Performance 101, allowed for the centre 12 only.
    void zaloz_vykon() {
        store::Connection& ucet = firma.session.ucet();
        store::Transaction transakce(ucet);
        if (!ucet.table_exists("Vykony")) ucet.create_table(store::definition_of("Vykony"));
        store::Table vykony;
        vykony.set_connection(ucet);
        vykony.set_table_name("Vykony");
        vykony.open();
        vykony.append();
        vykony.set("Vykon", 101);
        for (const char* pole :
             {"st2", "st3", "st4", "st5", "st6", "st7", "st8", "st9", "st10", "stod", "stdo"})
            vykony.set(pole, -1);
        vykony.set("st1", 12);
        vykony.post();
        transakce.commit();
    }
    void sloupec(int cislo) {
        for (std::size_t i = 0; i < form.sloupce.size(); ++i)
            if (form.sloupce[i].sloupec.sloupec == cislo) form.vyber_sloupec(static_cast<int>(i));
        ASSERT_EQ(form.zvoleny()->sloupec, cislo);
    }
    /// Types into column 1 for the worker 20 what passes the check.
    void vypln_ukol() {
        form.vyber_pracovnika(1);
        sloupec(1);
        form.zadani.dny = "5";
        form.DnyExit();
        form.zadani.datum = "7";
        form.DatumExit();
        form.zadani.stredisko = "12";
        form.zadani.vykon = "001";
        form.zadani.stroj = "17";
        form.zadani.text = "pozn.";
        form.HodnotaEnter(0);
        form.HodnotaEnter(1);
        form.HodnotaExit(1);
    }
    std::string hrube() {
        return firma.vypis(
            "SELECT Cislo_pracovnika, Prijmeni, Modul, Sloupec, Sloupec_slovy, Dny_od, Dny_neod, "
            "Hod_od, Hod_neod, Datum, Stredisko, Vykon, Stroj, Kc1, Kc2, Kc3, Kc_cel, Text, "
            "Volit_2 "
            "FROM Hrube03 ORDER BY Pocitadlo");
    }
};

TEST_F(ZadaniHrubych, NabidkaSloupcuAPracovniku) {
    std::string nabidka;
    for (const auto& s : form.sloupce)
        nabidka += std::to_string(s.sloupec.sloupec) + " ";
    EXPECT_EQ(nabidka, "1 2 3 6 7 8 ");
    const auto poradi = [&] {
        std::string cisla;
        for (const auto& p : form.pracovnici)
            cisla += std::to_string(p.karta->Cislo) + " ";
        return cisla;
    };
    struct Pripad {
        const char* filtr;
        workers::PoradiRegistru trideni;
        const char* cisla;
    };
    for (const Pripad& p : {Pripad{"", workers::PoradiRegistru::cislo, "10 20 "},
                            {"", workers::PoradiRegistru::prijmeni, "20 10 "},
                            {"", workers::PoradiRegistru::datum_narozeni, "10 20 "},
                            {" 20", workers::PoradiRegistru::cislo, "20 "},
                            {"vOŘ", workers::PoradiRegistru::cislo, "10 "},
                            {"eva", workers::PoradiRegistru::cislo, "20 "},
                            {"20a", workers::PoradiRegistru::cislo, ""}}) {
        form.filtr = p.filtr;
        form.trideni = p.trideni;
        form.Filtruj_adresy();
        EXPECT_EQ(poradi(), p.cisla) << p.filtr;
    }
    EXPECT_EQ(form.pracovnik, -1);
    form.trideni = workers::PoradiRegistru::cislo;
    form.btXClick();
    form.vyber_pracovnika(1);
    form.trideni = workers::PoradiRegistru::prijmeni;
    form.Filtruj_adresy();
    EXPECT_EQ(form.pracovnik, 0) << "kurzor zůstane na pracovníkovi";
    EXPECT_TRUE(form.pracovnici[1].karta->byvaly);
}

TEST_F(ZadaniHrubych, UkolSeZapiseAPoleSeVymazi) {
    vypln_ukol();
    EXPECT_EQ(form.zadani.hodiny, "40");  // 5 days of 40 hours a week
    EXPECT_EQ(form.zadani.datum, "0703");
    EXPECT_EQ(form.zadani.hodnoty[0], "120,5");
    EXPECT_EQ(form.zadani.hodnoty[1], "40");  // the hours are offered
    EXPECT_EQ(form.scChyby, std::vector<std::string>{"Výkon není povolen."});
    EXPECT_TRUE(form.scChyby_viditelne);
    form.Button2Click();
    EXPECT_EQ(hrube(), "") << "s chybou se nezapisuje";

    form.zadani.vykon = "101";
    form.stredisko_po_f2_nech = true;
    form.poleExit();
    EXPECT_FALSE(form.scChyby_viditelne);
    EXPECT_EQ(form.lbCelkem, "Celkem  4820,00 Kč");
    // What is typed after the last field event goes into the value, not into the total.
    form.zadani.hodnoty[1] = "41";
    form.Button2Click();
    EXPECT_EQ(hrube(), "20|Černá|1|1|úkol|5||40||07.03.|12|101|17|120.5|41||4820|pozn.|5\n");
    EXPECT_EQ(form.zadani.dny + form.zadani.hodiny + form.zadani.vykon + form.zadani.stroj +
                  form.zadani.hodnoty[0] + form.zadani.text,
              "");
    EXPECT_EQ(form.zadani.datum + " " + form.zadani.stredisko, "0703 12");
    EXPECT_EQ(form.scChyby.front(), "Nezadali jste dny.");
}

TEST_F(ZadaniHrubych, ExterniVstupNahradiCisloPraceSazbou) {
    form.vyber_pracovnika(1);
    sloupec(2);
    form.zadani.hodnoty[0] = "305";
    form.HodnotaExit(0);
    EXPECT_EQ(form.zadani.hodnoty[0], "88,5");
    EXPECT_EQ(form.zadani.text, "svařování: 305");
    EXPECT_EQ(form.lbCelkem, "Celkem  88,50 Kč");
    form.Button2Click();
    EXPECT_EQ(hrube(), "20|Černá|1|2|externí|||||||||88.5|||88.5|svařování: 305|5\n");
    EXPECT_EQ(form.pracovnici[1].koruny, 88.5L);
    EXPECT_EQ(form.sloupce[1].koruny, 88.5L);
    EXPECT_EQ(form.zadani.text, "");
    EXPECT_TRUE(form.zmeneno);
    EXPECT_EQ(form.fokus, "pracovnici");

    form.zadani.hodnoty[0] = "306";
    form.HodnotaExit(0);
    EXPECT_EQ(form.zadani.hodnoty[0], "306");
    ASSERT_EQ(firma.obsluha.hlasky.size(), 1U);
    EXPECT_EQ(firma.obsluha.hlasky[0],
              "POZOR !!!   Položka nebyla v souboru \"VSTUP_EX.DB\" nalezena.");
}

TEST_F(ZadaniHrubych, SloupecBezUdajuZapiseNulu) {
    form.vyber_pracovnika(0);
    sloupec(3);
    form.po_zapisu_zvolit = wages::PoZapisu::zadani;
    form.acKlavesaF2();
    EXPECT_EQ(hrube(), "10|Dvořák|1|3|prázdný||||||||||||0||\n");
    EXPECT_EQ(form.fokus, "scText");
    form.zadani.text = "zůstane";
    form.Button3Click();
    EXPECT_EQ(form.zadani.text, "zůstane");
    EXPECT_EQ(firma.obsluha.hlasky, std::vector<std::string>{"Věta byla zapsaná do souboru."});
}

TEST_F(ZadaniHrubych, NabizeneHodnotyPodleKodu) {
    // The basic salary with assessments is 31000 crowns; March has 23 Mondays to Fridays.
    struct Pripad {
        int kod;
        const char* text;
    };
    for (const Pripad& p : {Pripad{0, ""},
                            {1, "3"},
                            {2, "24"},
                            {3, "0"},
                            {4, ""},
                            {5, "0"},
                            {6, "227,15"},
                            {7, "15"},
                            {9, "0"},
                            {10, "1347,83"},
                            {11, "168,48"},
                            {12, "178,16"},
                            {13, ""}}) {
        form.vyber_pracovnika(1);
        sloupec(1);
        auto& s = form.sloupce[static_cast<std::size_t>(form.sloupec)].sloupec;
        s.hodnoty[0] = {"h", p.kod, -99999, 99999, 15};
        form.zadani = {};
        form.zadani.dny = "3";
        form.DnyExit();
        form.HodnotaEnter(0);
        EXPECT_EQ(form.zadani.hodnoty[0], p.text) << p.kod;
    }
}

TEST_F(ZadaniHrubych, StrediskoZKartyJenDoPrazdneho) {
    form.vyber_pracovnika(1);
    sloupec(1);
    form.StrediskoEnter();
    EXPECT_EQ(form.zadani.stredisko, "");
    form.stredisko_z_karty = form.vykon_z_karty = true;
    form.StrediskoEnter();
    form.VykonEnter();
    EXPECT_EQ(form.zadani.stredisko + "," + form.zadani.vykon, "12,1");
    form.zadani.stredisko = "15";
    form.StrediskoEnter();
    EXPECT_EQ(form.zadani.stredisko, "15");
}

TEST_F(ZadaniHrubych, Karantena) {
    form.vyber_pracovnika(1);
    sloupec(6);
    EXPECT_EQ(form.stranka, TForm17::Stranka::karantena);
    EXPECT_EQ(form.scChyby, std::vector<std::string>{"Zadejte hodnotu příspěvku"});
    EXPECT_FALSE(form.zapsat_povoleno);
    form.karantena_kc = "5180";
    form.karantenaKeyUp();
    form.acKlavesaF2();
    EXPECT_EQ(hrube(), "20|Černá|4|6|Karanténa příspěvek||0||0||||||||5180||5\n");
    EXPECT_EQ(form.karantena_kc, "0");

    form.Button3Click();
    EXPECT_EQ(form.stranka, TForm17::Stranka::nemoc_2008);
    EXPECT_EQ(firma.obsluha.hlasky.back(), "Nezadali jste koruny u sociálních dávek.");
    EXPECT_EQ(form.fokus, "scKVyplate");
}

TEST_F(ZadaniHrubych, StaraDavkaSeZapiseJenSeSpravnymiUdaji) {
    firma.session.ridici_zorv.proplaci_davky = true;
    form.vyber_pracovnika(1);
    sloupec(6);
    form.nemoc.vymaz();
    form.karantena_kc = "700";
    form.karantenaKeyUp();
    form.nemoc.druh = wages::DruhDavky::ppm;
    form.nemoc.scKVyplate = "5000";
    form.Button3Click();
    EXPECT_EQ(hrube(), "") << "bez dokladu a dnů";
    EXPECT_EQ(form.stranka, TForm17::Stranka::nemoc_2008);
    EXPECT_EQ(form.fokus, "scDoklad");
    EXPECT_EQ(form.scChyby.front(), "Není zadané číslo dokladu.");

    form.nemoc.scDoklad = "123";
    form.nemoc.scDnyKalendarni = "28";
    form.nemoc.scDnyPracovni = "20";
    form.Button3Click();
    EXPECT_EQ(hrube(), "20|Černá|4|6|peněžitá pomoc||20||160||||||||5000|P 123 28|5\n");
    EXPECT_TRUE(form.zmeneno);
    EXPECT_EQ(firma.obsluha.hlasky.back(), "Věta byla zapsaná do souboru.");

    // "Zapsat" means the allowance from here, too; an empty one is not written.
    form.Button2Click();
    EXPECT_NE(hrube().find("|Karanténa příspěvek||0||0||||||||700||"), std::string::npos);
    form.nemoc.scKVyplate = "1";
    form.Button3Click();
    const std::string pred = hrube();
    form.Button2Click();
    EXPECT_EQ(hrube(), pred);
    EXPECT_EQ(form.stranka, TForm17::Stranka::karantena);
}

TEST_F(ZadaniHrubych, StaraNemocSePocitaZPasem) {
    shell::Nastaveni& n = firma.session.nastaveni;
    firma.session.ridici_zorv.proplaci_davky = true;
    n.SazbaNemocenskeho_4az30 = 60;
    n.RedukcniHranice1 = 550;
    n.RedukcniHranice2 = 790;
    form.vyber_pracovnika(1);
    sloupec(6);
    form.nemoc.scDoklad = "9";
    form.nemoc.scOd = "2802";
    form.nemocOdExit();
    form.nemoc.scDo = "1103";
    form.nemoc.scKVyplate = "1";
    form.Button3Click();
    // 12 days, 3 without pay; 512,50 * 90 % = 461,25 up to 462; of it 60 % is 277,2 up to 278, 66 %
    // and 72 % of the bands that it does not reach are 305 and 333
    EXPECT_EQ(form.nemoc.scKVyplate, "2502");
    EXPECT_EQ(form.nemoc.scDnyKalendarni + "/" + form.nemoc.scDnyPracovni, "12/9");
    EXPECT_EQ(firma.vypis("SELECT Sloupec_slovy, Dny_neod, Hod_neod, Kc_cel, Text FROM Hrube03"),
              "nemoc|9|72|2502|N   928021103   512,50  3  9     0   278  0   305  0   333\n");
    EXPECT_EQ(wages::kalendarni_dny_nemoci_2008(firma.session, 20), 11);
}

TEST_F(ZadaniHrubych, NahradaSeSpocitaZapiseAMesicNeoznaci) {
    form.vyber_pracovnika(1);
    sloupec(7);
    EXPECT_EQ(form.nahrady.titulek, "> náhrada nemoc");
    EXPECT_FALSE(form.zapsat_viditelne);
    form.acKlavesaF2();
    ASSERT_EQ(firma.obsluha.hlasky.size(), 1U);
    EXPECT_EQ(firma.obsluha.hlasky[0],
              "Údaj <Číslo dokladu> musí být vyplněn.\r\nÚdaj <Trvání od> musí být vyplněn.\r\n"
              "Údaj <Trvání do> musí být vyplněn.\r\nÚdaj <Kalendářních dnů> musí být vyplněn.\r\n"
              "\r\nOpravte chyby a zkuste údaje uložit znovu.");

    form.nahrady.scCisloDokladu = "A123";
    form.nahrady.scTrvaniOd = "7.3.2022";
    form.nahrady.scTrvaniDo = "13.3.2022";
    form.nahrady.zmena();
    form.nahradyExit(PoleNahrad::trvani_do);
    EXPECT_EQ(form.nahrady.scFondB, "40:00");
    EXPECT_EQ(form.nahrady.scPrumHodVydelek, "227,15");
    EXPECT_EQ(form.nahrady.scCelkovaNahrada, "4906,80");

    // A correction by hand stays until an earlier field changes.
    form.nahrady.vstup();
    form.nahrady.scHodNahradaB = "100,00";
    form.nahrady.zmena();
    form.nahradyExit(PoleNahrad::hod_nahrada_b);
    EXPECT_EQ(form.nahrady.scCelkovaNahrada, "4000,00");
    form.nahrady.vstup();
    form.nahradyExit(PoleNahrad::prum_hod_vydelek);
    EXPECT_EQ(form.nahrady.scRedHodVydelek, "204,44");
    EXPECT_EQ(form.nahrady.scCelkovaNahrada, "4906,80");

    form.acKlavesaF2();
    EXPECT_EQ(hrube(), "20|Černá|5|7|náhrada nemoc||5||40||||||||4906.8||5\n");
    EXPECT_EQ(firma.vypis("SELECT Cislo_pracovnika, Id_hrube, Mesic, Typ_nahrady, Cislo_dokladu, "
                          "Dnu_kalendarnich, Dnu_pracovnich, Fond_B, Red_hod_vydelek, "
                          "Celkova_nahrada, Vyloucene_dny FROM Nahrady"),
              "20|1|3|0|A123|7|5|40:00|204.44|4906.8|7\n");
    EXPECT_FALSE(form.zmeneno);
    EXPECT_EQ(form.nahrady.scTrvaniOd, "");
    EXPECT_EQ(wages::kalendarni_dny_nemoci(firma.session, 20), 7);
}

TEST_F(ZadaniHrubych, NahradaPatriPracovnikoviKterymuSeSpocitala) {
    form.vyber_pracovnika(1);
    sloupec(7);
    form.nahrady.scTrvaniOd = "7.3.2022";
    form.nahrady.scTrvaniDo = "13.3.2022";
    form.nahrady.zmena();
    form.nahradyExit(PoleNahrad::trvani_do);
    form.Filtruj_adresy();
    EXPECT_EQ(form.nahrady.scCelkovaNahrada, "4906,80") << "stejný pracovník";
    form.vyber_pracovnika(0);
    EXPECT_EQ(form.nahrady.scTrvaniOd + form.nahrady.scCelkovaNahrada, "0,00");
    EXPECT_FALSE(form.nahrady.panel_viditelny);
}

TEST_F(ZadaniHrubych, NahradaBezProplaceniABezKalendare) {
    form.vyber_pracovnika(0);
    sloupec(8);
    EXPECT_FALSE(form.nahrady.castky_povolene);
    form.nahrady.scTrvaniOd = "28.12.2021";
    form.nahrady.scTrvaniDo = "2.3.2022";
    form.nahrady.zmena();
    form.nahradyExit(PoleNahrad::trvani_do);
    EXPECT_EQ(firma.obsluha.hlasky,
              (std::vector<std::string>{"Nenalezen kalendář RPD minulého roku.",
                                        "Nenalezen kalendář RPD aktálního roku."}));
    EXPECT_EQ(form.nahrady.scDnuKalendarnich, "2");
    EXPECT_EQ(form.nahrady.scDnuPracovnich, "0");
    EXPECT_EQ(form.nahrady.scPrumHodVydelek, "0,00");

    form.nahrady.scTrvaniDo = "32.3.2022";
    form.nahrady.zmena();
    form.nahradyExit(PoleNahrad::trvani_do);
    EXPECT_EQ(firma.obsluha.hlasky.back(), "\"32.3.2022\" není platné datum.");
}

TEST_F(ZadaniHrubych, DohledanyPrumerNaNemoc) {
    struct Pripad {
        bool proplaci;
        const char *od, *prumer, *poznamka;
    };
    form.vyber_pracovnika(1);
    sloupec(6);
    const auto karta =
        wages::nacti_kartu_zadani(firma.session, form.pracovnici[1].karta->Pocitadlo);
    for (const Pripad& p : {Pripad{false, "0102", "0", "nepropl."},
                            {true, "0102", "512,5", "(2/2022)"},
                            {true, "3102", "", "???"},
                            {true, "0112", "0", "(12/2021)"},
                            {true, "0104", "", "???"}}) {
        firma.session.ridici_zorv.proplaci_davky = p.proplaci;
        form.nemoc.scOd = p.od;
        form.nemoc.scOdExit(karta);
        EXPECT_EQ(form.nemoc.scPrumer, p.prumer) << p.od;
        EXPECT_EQ(form.nemoc.lbPrumer, p.poznamka);
    }
}

TEST_F(ZadaniHrubych, PredvolbyPrezijiZavreni) {
    form.vykon_po_f2_nech = true;
    form.po_zapisu_zvolit = wages::PoZapisu::panel_sloupcu;
    form.acBlok();
    EXPECT_EQ(otevren_blok, 1);
    form.acZpet();
    EXPECT_TRUE(form.zavreno);
    firma.session.pomocny_ridici =
        shell::cti_pomocny_ridici(firma.session.cesta_dat / "rid_pom.idx");
    TForm17 druhy(firma.session, {});
    ASSERT_TRUE(druhy.FormShow());
    EXPECT_TRUE(druhy.vykon_po_f2_nech);
    EXPECT_FALSE(druhy.stredisko_po_f2_nech);
    EXPECT_EQ(druhy.po_zapisu_zvolit, wages::PoZapisu::panel_sloupcu);
}

TEST_F(ZadaniHrubych, SmazaniZadaniJdeKamRikaTrideni) {
    form.vyber_pracovnika(1);
    sloupec(1);
    form.zadani.dny = "5";
    form.trideni = workers::PoradiRegistru::prijmeni;
    form.smazat_zadani();
    EXPECT_EQ(form.zadani.dny, "");
    EXPECT_EQ(form.fokus, "sloupce");
    form.trideni = workers::PoradiRegistru::jmeno;
    form.smazat_zadani();
    EXPECT_EQ(form.fokus, "scDny");
}

TEST_F(ZadaniHrubych, DatumSmazanePredF2ZapisNeshodi) {
    vypln_ukol();
    form.zadani.vykon = "101";
    form.poleExit();
    ASSERT_FALSE(form.scChyby_viditelne);
    for (const char* datum : {"", "7"}) {
        form.zadani.datum = datum;
        form.zapsat_povoleno = true;
        form.Button2Click();
    }
    EXPECT_EQ(firma.vypis("SELECT Datum FROM Hrube03 ORDER BY Pocitadlo"), "\n7..\n");
}

}  // namespace
