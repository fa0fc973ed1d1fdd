// Rows of gross wages found, corrected, deleted and summed: TForm18, TForm19, TForm20, TForm43 and
// TForm90.
#include <fmt/format.h>
#include <gtest/gtest.h>

#include "base/soubory.h"
#include "report/nahled.h"
#include "report/text.h"
#include "shell/prace_v_mesici.h"
#include "store/catalogue.h"
#include "support/zkusebni_firma.h"
#include "wages/unit110_castka.h"
#include "wages/unit17_zadani.h"
#include "wages/unit18_prohlizeni.h"
#include "wages/unit19_oprava.h"
#include "wages/unit20_sumarizace.h"
#include "wages/unit43_vykony.h"
#include "wages/unit90_davky.h"

namespace {

using wages::FiltrHrubych;
using wages::PodleCeho;
using wages::TForm18;
using wages::TForm19;
using wages::TForm20;
using Stranka = TForm19::Stranka;

const std::string k_text_davky = wages::text_davky(
    {wages::DruhDavky::nemoc, 123, "0203", "0803", 850.5L, {3, 4, 0, 0}, {0, 410, 410, 450}, 0});

/// Work is done in March 2022; January and February are closed. Column 1 is days, hours, date,
/// centre and rate times pieces, 6 the quarantine allowance, 7 sickness.
class OpravyHrubych : public testing::Test {
  protected:
    zkouska::ZkusebniFirma firma;

    void SetUp() override {
        firma.session.zpracovavany_mesic = firma.session.aktivni_mesic = 3;
        firma.session.nastaveni.NahradaNemocSloupec = 7;
        store::Transaction transakce(firma.data());
        firma.data().execute("DELETE FROM Ridici");
        transakce.commit();
        firma.vloz("Ridici",
                   "Modul,Sloupec,text,Jake_dny,Jake_hodiny,Datum,Stredisko,Vykon,Stroj,nadpis_1,"
                   "Min_1,Max_1,nadpis_2,predrazeno_2,Min_2,Max_2,var_vyp\n"
                   "1,1,úkol,1,1,true,true,false,true,sazba,0,500,kusů,8,0,999,5\n"
                   "4,6,karanténa,,,false,false,false,false,,,,,,,,\n"
                   "5,7,náhrada nemoc,,,false,false,false,false,,,,,,,,\n");
        firma.vloz("Os_karty",
                   "Cislo,Prijmeni,Jmeno,tpd,PdovH4min,Id_rpd\n"
                   "20,Černá,Eva,40,227.15,1\n10,Dvořák,Jan,37.5,,\n");
        std::string fond;
        for (int den = 1; den <= 31; ++den)
            fond += (den == 1 ? "" : ";") +
                    std::string(base::den_v_tydnu({2022, 3, den}) <= 5 ? "8:00" : "0:00");
        firma.vloz("Rpd", "Pocitadlo,Rok,Typ,Nazev,Fond3\n1,2022,0,Základní," + fond + "\n");
        vloz_hrube();
    }

    void vloz_hrube() {
        firma.vloz("Hrube01",
                   "Cislo_pracovnika,Prijmeni,Jmeno,Modul,Sloupec,Sloupec_slovy,Kc_cel,Text\n"
                   "10,Dvořák,Jan,1,1,úkol,700,\n20,Černá,Eva,1,1,úkol,800,doplatek 50% prémie\n");
        firma.vloz("Hrube02",
                   "Cislo_pracovnika,Prijmeni,Jmeno,Modul,Sloupec,Sloupec_slovy,Kc_cel\n"
                   "20,Černá,Eva,1,9,zrušený,1000\n");
        firma.vloz("Hrube03",
                   "Cislo_pracovnika,Prijmeni,Jmeno,Modul,Sloupec,Sloupec_slovy,Dny_od,Dny_neod,"
                   "Hod_od,Hod_neod,Datum,Stredisko,Kc1,Kc2,Kc_cel,Text,Volit_2\n"
                   "20,Černá,Eva,1,1,úkol,5,,40,,07.03.,12,120.5,40,4820,pozn.,5\n"
                   "10,Dvořák,Jan,4,6,Karanténa příspěvek,,0,,0,,,,,5180,,\n"
                   "20,Černá,Eva,5,7,náhrada nemoc,,5,,40,,,,,4906.8,,\n"
                   "10,Dvořák,Jan,5,7,náhrada nemoc,,2,,15,,,,,900,,\n"
                   "20,Černá,Eva,4,6,nemoc,,5,,40,,,,,1640,\"" +
                       k_text_davky + "\",\n");
        // The second detail belongs to a row of the same number in another month.
        firma.vloz("Nahrady",
                   "Id_hrube,Cislo_pracovnika,Mesic,Typ_nahrady,Cislo_dokladu,Trvani_od,Trvani_do,"
                   "Dnu_kalendarnich,Dnu_pracovnich,Fond_A,Fond_B,Fond_C,Prum_hod_vydelek,"
                   "Red_hod_vydelek,Hod_nahrada_B,Nahrada_B,Celkova_nahrada,Vyloucene_dny\n"
                   "3,20,3,0,A123,2022-03-07,2022-03-13,7,5,0:00,40:00,0:00,227.15,204.44,122.67,"
                   "4906.8,4906.8,7\n"
                   "3,20,2,0,B5,2022-02-01,2022-02-02,2,2,0:00,16:00,0:00,0,0,0,0,0,2\n");
    }
    /// "month/number" of each row.
    static std::string seznam(const TForm18& form) {
        std::string text;
        for (const auto& v : form.vety)
            text += fmt::format("{}/{} ", v.mesic, v.pocitadlo);
        return text;
    }
    std::string veta(int pocitadlo, const char* tabulka = "Hrube03") {
        return firma.vypis(fmt::format(
            "SELECT Sloupec_slovy, Dny_od, Dny_neod, Hod_od, Hod_neod, Datum, Stredisko, Kc1, Kc2, "
            "Kc_cel, Text, Volit_2 FROM {} WHERE Pocitadlo = {}",
            tabulka, pocitadlo));
    }
    std::string nahrady() {
        return firma.vypis(
            "SELECT Id_hrube, Mesic, Cislo_dokladu, Trvani_do, Dnu_pracovnich, Fond_B, "
            "Hod_nahrada_B, Celkova_nahrada, Vyloucene_dny FROM Nahrady ORDER BY Pocitadlo");
    }
    void najdi(TForm18& form, int mesic, int pocitadlo) {
        for (std::size_t i = 0; i < form.vety.size(); ++i)
            if (form.vety[i].mesic == mesic && form.vety[i].pocitadlo == pocitadlo)
                form.vyber_radek(static_cast<int>(i));
        ASSERT_TRUE(form.je_veta());
        ASSERT_EQ(form.vety[static_cast<std::size_t>(form.radek)].pocitadlo, pocitadlo);
    }
    /// What the operator does on TForm19 when it is shown.
    void pri_oprave(std::function<void(TForm19&)> prace) {
        firma.obsluha.pri_obrazovce = [prace](base::Obrazovka& o) {
            prace(dynamic_cast<TForm19&>(o));
        };
    }
};

TEST_F(OpravyHrubych, FiltryNajdouRadky) {
    struct Pripad {
        FiltrHrubych filtr;
        const char* radky;
    };
    const Pripad pripady[] = {
        {{"", "", "", "", ""}, "3/2 3/4 3/1 3/5 3/3 "},
        {{"1", "", "", "", ""}, "1/1 1/2 "},
        {{"*", "10", "", "", ""}, "1/1 3/2 3/4 "},
        {{"1:2", "5:15,20", "1", "", ""}, "1/1 1/2 "},
        {{"2-12", "čern", "", "", ""}, "2/1 3/1 3/5 3/3 "},
        {{"*", " jan ", "7", "", ""}, "3/4 "},
        {{"*", "*", "6:7", "", ""}, "3/2 3/4 3/5 3/3 "},
        {{"*", "", "náhr", "", ""}, "3/4 3/3 "},
        {{"*", "", "", "12", ""}, "3/1 "},
        {{"3", "", "", "0", ""}, "3/2 3/4 3/5 3/3 "},
        {{"3", "", "", "dílna", ""}, ""},
        {{"*", "", "", "", "PRÉMIE"}, "1/2 "},
        {{"5:12", "", "", "", ""}, ""},
        // Neither breaks the statement.
        {{"*", "' OR 1=1", "", "", ""}, ""},
        {{"*", "5:", "", "", ""}, ""},
        {{"*", "1,,20", "", "", ""}, ""},
    };
    TForm18 form(firma.session, {});
    form.FormShow();
    EXPECT_EQ(form.filtr.mesice, "3");
    for (const Pripad& p : pripady) {
        SCOPED_TRACE(p.filtr.mesice + "|" + p.filtr.pracovnik + "|" + p.filtr.sloupec);
        form.filtr = p.filtr;
        form.filtrExit();
        EXPECT_EQ(seznam(form), p.radky);
        EXPECT_EQ(form.lbHlaska, "");
        EXPECT_EQ(form.radek, form.vety.empty() ? -1 : 0);
    }
    for (const char* spatne : {"0", "13", "3:1", "x", "1:13"}) {
        form.filtr.mesice = spatne;
        form.filtrExit();
        EXPECT_NE(form.lbHlaska, "") << spatne;
        EXPECT_TRUE(form.vety.empty());
    }
    // A shortcut that leaves no field acts on what the filter says.
    form.filtr = {"3", "20", "1", "", ""};
    firma.obsluha.odpovez("Černá Eva, úkol", false);
    form.acSmazatExecute();
    EXPECT_EQ(seznam(form), "3/1 ");
    form.filtr = {"3", "20", "", "", "nic"};
    form.acVse();
    EXPECT_EQ(seznam(form), "3/2 3/4 3/1 3/5 3/3 ");
    EXPECT_EQ(form.lbSoucty, "Položek: 5   Dny: 17   Hodiny: 135   Koruny: 17 446,80");
}

TEST_F(OpravyHrubych, BeznyRadekSeZkontrolujePrepocteAZapise) {
    TForm18 form(firma.session, {});
    form.FormShow();
    najdi(form, 3, 1);
    pri_oprave([](TForm19& f) {
        EXPECT_EQ(f.stranka, Stranka::ostatni);
        EXPECT_EQ(f.lbPracovnik, "20  Černá Eva");
        EXPECT_EQ(f.zadani.datum + " " + f.zadani.stredisko + " " + f.zadani.stroj, "0703 12 0");
        EXPECT_EQ(f.zadani.hodnoty[0] + " " + f.zadani.hodnoty[1], "120,5 40");
        EXPECT_EQ(f.lbCelkem, "Celkem  4820,00 Kč");
        f.zadani.datum = "";
        f.acUlozitExecute();
        EXPECT_FALSE(f.zavreno);
        EXPECT_EQ(f.scChyby, std::vector<std::string>{"Nezadali jste datum."});
        f.zadani.datum = "9";
        f.DatumExit();
        f.zadani.dny = "4";
        f.zadani.hodiny = "";
        f.DnyExit();
        f.zadani.hodnoty[1] = "41";  // the total follows although the field was not left
        f.acUlozitExecute();
        EXPECT_TRUE(f.zavreno && f.zmeneno);
    });
    form.acOpravitExecute();
    EXPECT_EQ(veta(1), "úkol|4||32||09.03.|12|120.5|41|4940.5|pozn.|5\n");
    EXPECT_TRUE(form.zmeneno);
    EXPECT_EQ(form.zmenene_mesice, std::set<int>{3});
    EXPECT_EQ(form.vety[static_cast<std::size_t>(form.radek)].pocitadlo, 1);
    EXPECT_EQ(form.lbSoucty, "Položek: 5   Dny: 16   Hodiny: 127   Koruny: 17 567,30");

    TForm18 druhy(firma.session, {});
    druhy.FormShow();
    najdi(druhy, 3, 1);
    pri_oprave([](TForm19& f) {
        f.zadani.hodnoty[1] = "1";
        f.acZpetExecute();
    });
    druhy.acOpravitExecute();
    EXPECT_FALSE(druhy.zmeneno) << "odchod nic nemění";
}

TEST_F(OpravyHrubych, CastkaAneboDnyHodinyACastka) {
    struct Pripad {
        int mesic, pocitadlo;
        const char *dny, *hodiny, *koruny;  ///< typed; null leaves what is there
        std::vector<std::string> chyby;
        const char* veta;
    };
    const Pripad pripady[] = {
        {3, 2, nullptr, nullptr, "0", {"Zadejte hodnotu příspěvku"}, nullptr},
        {3, 2, nullptr, nullptr, "4144", {}, "Karanténa příspěvek||0||0|||||4144||\n"},
        {3,
         4,
         "32",
         "501",
         "",
         {"Chybně zadané dny.", "Chybně zadané hodiny.", "Není zadaná částka k výplatě."},
         nullptr},
        {3, 4, "3", "22,5", "1350,5", {}, "náhrada nemoc||3||22.5|||||1350.5||\n"},
        {3, 4, "", "", "-10", {}, "náhrada nemoc|||||||||-10||\n"},
        // A column that the pay sheet has no more.
        {2, 1, "1", "", "1100", {}, "zrušený|1||||||||1100||\n"},
    };
    for (const Pripad& p : pripady) {
        SCOPED_TRACE(testing::Message() << p.pocitadlo << " " << p.koruny);
        const shell::PraceVMesici v_mesici(firma.session, p.mesic);
        const std::string tabulka = store::month_table("Hrube", p.mesic);
        const std::string puvodni = veta(p.pocitadlo, tabulka.c_str());
        TForm19 form(firma.session, p.pocitadlo);
        form.FormShow();
        EXPECT_EQ(form.stranka, Stranka::castka);
        if (p.dny) form.scDny = p.dny;
        if (p.hodiny) form.scHodiny = p.hodiny;
        form.scKoruny = p.koruny;
        form.poleExit();
        EXPECT_EQ(form.scChyby, p.chyby);
        form.acUlozitExecute();
        EXPECT_EQ(form.zmeneno, p.chyby.empty());
        EXPECT_EQ(veta(p.pocitadlo, tabulka.c_str()), p.veta ? p.veta : puvodni);
    }
}

TEST_F(OpravyHrubych, NahradaSeOpraviVObouVetach) {
    TForm18 form(firma.session, {});
    form.FormShow();
    najdi(form, 3, 3);
    const char* cizi = "3|2|B5|2022-02-02|2|16:00|0|0|2\n";
    pri_oprave([](TForm19& f) {
        EXPECT_EQ(f.stranka, Stranka::nahrady);
        EXPECT_EQ(f.nahrady.scTrvaniOd + " " + f.nahrady.scFondB + " " + f.nahrady.scHodNahradaB,
                  "7.3.2022 40:00 122,67");
        EXPECT_TRUE(f.nahrady.panel_viditelny);
        f.nahrady.scCisloDokladu = "";
        f.acUlozitExecute();
        EXPECT_FALSE(f.zavreno);
        // A certificate alone changes no amount.
        f.nahrady.scCisloDokladu = "A124";
        f.acUlozitExecute();
    });
    form.acOpravitExecute();
    EXPECT_EQ(
        firma.obsluha.hlasky,
        std::vector<std::string>{"Údaj <Číslo dokladu> musí být vyplněn.\r\n\r\nOpravte chyby "
                                 "a zkuste údaje uložit znovu."});
    EXPECT_EQ(nahrady(), std::string("3|3|A124|2022-03-13|5|40:00|122.67|4906.8|7\n") + cizi);

    pri_oprave([](TForm19& f) {
        f.nahrady.vstup();
        f.nahrady.scTrvaniDo = "9.3.2022";
        f.nahrady.zmena();
        f.nahradyExit(wages::PoleNahrad::trvani_do);
        EXPECT_EQ(f.nahrady.scCelkovaNahrada, "2944,08");
        f.acUlozitExecute();
    });
    form.acOpravitExecute();
    EXPECT_EQ(nahrady(), std::string("3|3|A124|2022-03-09|3|24:00|122.67|2944.08|3\n") + cizi);
    EXPECT_EQ(veta(3), "náhrada nemoc||3||24|||||2944.08||\n");
    EXPECT_TRUE(form.zmeneno);
}

TEST_F(OpravyHrubych, SmazaniSePtaABereNahraduSSebou) {
    TForm18 form(firma.session, {});
    form.FormShow();
    najdi(form, 3, 3);
    firma.obsluha.odpovez("smazat označenou položku i s její náhradou?", false);
    form.acSmazatExecute();
    EXPECT_FALSE(form.zmeneno);
    EXPECT_EQ(form.vety.size(), 5U);

    firma.obsluha.odpovez("Černá Eva, náhrada nemoc, 4 906,80 Kč", true);
    form.acSmazatExecute();
    EXPECT_EQ(seznam(form), "3/2 3/4 3/1 3/5 ");
    EXPECT_EQ(form.radek, 3) << "kurzor zůstane na konci seznamu";
    EXPECT_EQ(nahrady(), "3|2|B5|2022-02-02|2|16:00|0|0|2\n");
    EXPECT_TRUE(form.zmeneno);

    najdi(form, 3, 2);
    firma.obsluha.odpovez("smazat označenou položku?", true);
    form.acSmazatExecute();
    EXPECT_EQ(seznam(form), "3/4 3/1 3/5 ");
}

TEST_F(OpravyHrubych, UzavrenyMesic) {
    struct Pripad {
        int mesic;
        bool pusti;
        const char* hlaska;
    };
    for (const Pripad& p :
         {Pripad{1, false,
                 "Měsíc leden  2022 je již uzavřen - nelze do něho vstoupit bez povolení!"},
          {2, true, "Vstupujete do uzavřeného měsíce!"},
          {3, true, ""}}) {
        SCOPED_TRACE(p.mesic);
        TForm18 form(firma.session, {"*", "", "", "", ""});
        form.FormShow();
        int oprav = 0;
        pri_oprave([&](TForm19& f) {
            ++oprav;
            EXPECT_EQ(firma.session.zpracovavany_mesic, p.mesic);
            f.acUlozitExecute();
        });
        najdi(form, p.mesic, 1);
        firma.obsluha.hlasky.clear();
        form.acOpravitExecute();
        EXPECT_EQ(oprav, p.pusti ? 1 : 0);
        EXPECT_EQ(firma.obsluha.hlasky,
                  *p.hlaska ? std::vector<std::string>{p.hlaska} : std::vector<std::string>{});
        EXPECT_EQ(form.zmenene_mesice, p.pusti ? std::set<int>{p.mesic} : std::set<int>{});
        if (p.pusti) firma.obsluha.odpovez("Opravdu", true);
        form.acSmazatExecute();
        EXPECT_EQ(form.vety.size(), p.pusti ? 7U - static_cast<unsigned>(p.mesic - 2) : 8U);
        EXPECT_EQ(firma.session.zpracovavany_mesic, 3);
    }
}

TEST_F(OpravyHrubych, Sumarizace) {
    TForm20 form(firma.session);
    form.FormShow();
    const auto vypis = [&form] {
        std::string text;
        for (const auto& r : form.radky)
            text +=
                fmt::format("{}|{}|{}|{}|{}|{}\n", r.klic, r.text, r.soucet.pocet,
                            static_cast<double>(r.soucet.dny), static_cast<double>(r.soucet.hodiny),
                            static_cast<double>(r.soucet.koruny));
        return text;
    };
    struct Pripad {
        PodleCeho podle;
        const char *radky, *polozky;
    };
    for (const Pripad& p :
         {Pripad{PodleCeho::sloupce,
                 "1|úkol|1|5|40|4820\n6|nemoc|2|5|40|6820\n7|náhrada nemoc|2|7|55|5806.8\n",
                 "3/4 3/3 "},
          {PodleCeho::pracovnika, "10|Dvořák Jan|2|2|15|6080\n20|Černá Eva|3|15|120|11366.8\n",
           "3/1 3/5 3/3 "},
          {PodleCeho::strediska, "0|bez střediska|4|12|95|12626.8\n12||1|5|40|4820\n", "3/1 "}}) {
        form.zvol(p.podle);
        EXPECT_EQ(vypis(), p.radky);
        EXPECT_EQ(form.lbSoucty, "Položek: 5   Dny: 17   Hodiny: 135   Koruny: 17 446,80");
        form.vyber_radek(static_cast<int>(form.radky.size()) - 1);
        firma.obsluha.pri_obrazovce = [&](base::Obrazovka& o) {
            EXPECT_EQ(seznam(dynamic_cast<TForm18&>(o)), p.polozky);
        };
        form.acPolozkyExecute();
    }
    EXPECT_FALSE(form.zmeneno);
    firma.obsluha.odpovez("Opravdu", true);
    firma.obsluha.pri_obrazovce = [](base::Obrazovka& o) {
        dynamic_cast<TForm18&>(o).acSmazatExecute();
    };
    form.acPolozkyExecute();
    EXPECT_TRUE(form.zmeneno);
    EXPECT_EQ(vypis(), "0|bez střediska|4|12|95|12626.8\n");
}

TEST_F(OpravyHrubych, DavkaSeOpraviRucnePoPasmech) {
    const wages::PasmaDavky pasma = wages::pasma_z_textu(k_text_davky).value();
    EXPECT_EQ(pasma.dnu, (std::array<int, 4>{3, 4, 0, 0}));
    EXPECT_EQ(pasma.kc_denne, (std::array<base::Castka, 4>{0, 410, 410, 450}));
    for (const char* bez_pasem : {"P 123 28", "N 12302030803", "", "Karanténa"})
        EXPECT_FALSE(wages::pasma_z_textu(bez_pasem)) << bez_pasem;
    //                         1234567890123456789012345678901234567890123456789012345678
    EXPECT_EQ(k_text_davky, "N 12302030803   850,50  3  4     0   410  0   410  0   450");
    const char* opraveny = "N 12302030803   850,50  3  4   100   425  0   410  0999999";

    TForm18 form(firma.session, {});
    form.FormShow();
    najdi(form, 3, 5);
    firma.obsluha.pri_obrazovce = [](base::Obrazovka& o) {
        if (auto* davky = dynamic_cast<wages::TForm90*>(&o)) {
            EXPECT_EQ(davky->pasma[1].popisek, "4-30:");
            davky->pasma[0].kc_denne = "100";
            davky->pasma[1].kc_denne = "425";
            davky->pasma[3].kc_denne = "1000000";
            davky->acUlozitExecute();
            EXPECT_FALSE(davky->zavreno);
            EXPECT_EQ(davky->fokus, "scKcDenne4");
            davky->pasma[3].kc_denne = "999999";
            davky->acUlozitExecute();
            EXPECT_EQ(davky->lbCelkem, "Celkem  2000,00 Kč");
            return;
        }
        auto& f = dynamic_cast<TForm19&>(o);
        EXPECT_TRUE(f.davky_povolene);
        EXPECT_FALSE(f.dny_hodiny_viditelne);
        f.acDavkyExecute();
        EXPECT_EQ(f.scKoruny, "2000");
        f.acUlozitExecute();
    };
    form.acOpravitExecute();
    EXPECT_EQ(veta(5), fmt::format("nemoc||5||40|||||2000|{}|\n", opraveny));
    EXPECT_EQ(firma.obsluha.hlasky.size(), 1U);
}

TEST_F(OpravyHrubych, ExportATiskUkazujiNalezeneRadky) {
    struct DoSlozky : zkouska::SkriptovanaObsluha {
        std::string slozka;
        std::optional<std::string> vyber_slozku(const std::string&, const std::string&) override {
            return slozka;
        }
    } obsluha;
    obsluha.slozka = firma.slozka.cesta().string();
    shell::Session session({obsluha, firma.hodiny, firma.nahoda}, firma.slozka / "program");
    session.koren_dat = firma.session.koren_dat;
    session.firma = firma.session.firma;
    firma.session.zavri_spojeni();
    shell::cti_konfiguracni_soubor(session);
    session.zpracovavany_mesic = 3;
    TForm18 form(session, {"2:3", "20", "1,9", "", ""});
    form.FormShow();
    form.acExportExecute();
    EXPECT_EQ(base::precti_soubor(firma.slozka / "Hrube02-03.csv", 100000),
              "Mesic,Cislo_pracovnika,Prijmeni,Jmeno,Modul,Sloupec,Sloupec_slovy,Dny_od,Dny_neod,"
              "Hod_od,Hod_neod,Hod_vedl,Datum,Stredisko,Vykon,Stroj,Kc1,Kc2,Kc3,Kc4,Kc_cel,Text\n"
              "2,20,Černá,Eva,1,9,zrušený,,,,,,,,,,,,,,1000,\n"
              "3,20,Černá,Eva,1,1,úkol,5,,40,,,07.03.,12,,,120.5,40,,,4820,pozn.\n");
    obsluha.odpovez("už existuje. Přepsat jej?", false);
    form.acExportExecute();
    EXPECT_EQ(obsluha.hlasky.size(), 1U);
    std::string tisk;
    obsluha.pri_obrazovce = [&tisk](base::Obrazovka& o) {
        tisk += report::jako_text(dynamic_cast<report::TFUsrPrev&>(o).dokument);
    };
    form.acTiskExecute();
    TForm20 sumarizace(session);
    sumarizace.FormShow();
    sumarizace.acTiskExecute();
    for (const char* cast :
         {"Měsíce: 2:3", "Celkem položek: 2", "5 820,00", "Podle sloupců", "17 446,80"})
        EXPECT_NE(tisk.find(cast), std::string::npos) << cast << "\n" << tisk;
}

TEST_F(OpravyHrubych, VykonyVybranyJdeDoPoleZadani) {
    struct Pripad {
        const char *text, *vykon, *strediska;
    };
    for (const Pripad& p : {Pripad{"10112..................5060", "101", "12, 50 až 60"},
                            {"0020307....................", "002", "03, 07"},
                            {"003........................", "003", "žádné"}}) {
        const wages::RadekVykonu radek = wages::radek_vykonu(p.text);
        EXPECT_EQ(radek.vykon, p.vykon);
        EXPECT_EQ(radek.strediska, p.strediska);
    }
    wages::TForm43 form(firma.session,
                        {"00107......................", "10112..................5060"});
    form.FormShow("101");
    EXPECT_EQ(form.radek, 1);
    form.acZpetExecute();
    EXPECT_FALSE(form.zvoleny);
    form.acVybratExecute();
    EXPECT_EQ(form.zvoleny, "101");
}

TEST_F(OpravyHrubych, ZadaniPrevezmeCoSeOpravilo) {
    wages::TForm17 zadani(firma.session, {});
    ASSERT_TRUE(zadani.FormShow());
    zadani.vyber_pracovnika(1);
    EXPECT_EQ(static_cast<double>(zadani.pracovnici[1].koruny), 11366.8);
    firma.obsluha.odpovez("Opravdu", true);
    firma.obsluha.pri_obrazovce = [this](base::Obrazovka& o) {
        auto& form = dynamic_cast<TForm18&>(o);
        EXPECT_EQ(form.filtr.pracovnik, "20");
        najdi(form, 3, 1);
        form.acSmazatExecute();
    };
    zadani.acProhlizeni();
    EXPECT_TRUE(zadani.zmeneno);
    EXPECT_EQ(static_cast<double>(zadani.pracovnici[1].koruny), 6546.8);
}

TEST_F(OpravyHrubych, KorunySeOpraviRucneJenBezNahrady) {
    vloz_hrube();
    TForm18 form(firma.session, {});
    form.FormShow();
    najdi(form, 3, 1);
    std::string napsano = " ";
    firma.obsluha.pri_obrazovce = [&](base::Obrazovka& o) {
        auto& oprava = dynamic_cast<wages::TForm110&>(o);
        EXPECT_EQ(oprava.lbPracovnik + ", " + oprava.scKoruny, "20  Černá Eva, 4820,00");
        oprava.scKoruny = napsano;
        oprava.acUlozitExecute();
    };
    form.acOpravitRucneExecute();
    EXPECT_EQ(firma.obsluha.hlasky, std::vector<std::string>{"Nezadali jste koruny."});
    EXPECT_FALSE(form.zmeneno);
    napsano = "-4821,505";
    form.acOpravitRucneExecute();
    EXPECT_EQ(veta(1), "úkol|5||40||07.03.|12|120.5|40|-4821.5|pozn.|5\n");
    EXPECT_TRUE(form.zmeneno);

    najdi(form, 3, 3);
    firma.obsluha.pri_obrazovce = {};
    form.acOpravitRucneExecute();
    EXPECT_EQ(firma.obsluha.hlasky.back(),
              "Položka nese náhradu, opravte ji tlačítkem Opravit, aby s ní souhlasila.");
}

}  // namespace
