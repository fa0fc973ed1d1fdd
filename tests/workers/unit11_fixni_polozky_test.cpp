// Fixed items of the whole company: the list, bulk operations, sums, print, the grid of crowns.
#include "workers/unit11_fixni_polozky.h"

#include <functional>
#include <gtest/gtest.h>

#include "report/nahled.h"
#include "report/text.h"
#include "support/zkusebni_firma.h"
#include "workers/unit12_fixni_polozka.h"
#include "workers/unit75_oprava_korun.h"

namespace {

using namespace workers;
using Radky = std::vector<std::string>;

constexpr const char* k_fixni =
    "Cislo_pracovnika,Sloupec,Kcs,Ucet,Kod_banky,Variabilni,Konstantni\n"
    "20,13,1500,19-2000145399,800,123,558\n"
    "10,13,500,ne,,,\n"
    "20,7,300,,,,\n"
    "99,17,2000,,,,\n"
    "10,14,,,,,\n";

/// Benefits 7 and 8, deductions 13 and 14, advance 17; workers 10, 12 and 20 have cards, 99 has
/// none.
class FixniPolozky : public testing::Test {
  protected:
    zkouska::ZkusebniFirma firma;
    TForm11 form{firma.session};

    FixniPolozky() {
        firma.session.slozka_programu = ZORV_SOURCE_DIR;
        firma.vloz("Os_karty",
                   "Cislo,Prijmeni,Jmeno\n20,Beneš,Petr\n10,Adamová,Jana\n12,Černý,Ivo\n");
        firma.vloz("Fixni", k_fixni);
        form.FormShow();
    }
    template <class Obrazovka>
    void obrazovka(const std::function<void(Obrazovka&)>& prace) {
        firma.obsluha.pri_obrazovce = [prace](base::Obrazovka& obecna) {
            prace(dynamic_cast<Obrazovka&>(obecna));
        };
    }
    std::string vypis() { return firma.vypis("SELECT Cislo_pracovnika, Sloupec, Kcs FROM Fixni"); }
    static std::string poradi(const std::vector<RadekFixnich>& vety) {
        std::string text;
        for (const RadekFixnich& v : vety)
            text += std::to_string(v.sloupec) + "/" + std::to_string(v.cislo_pracovnika) + " ";
        return text;
    }
    std::string soucty() const {
        std::string text;
        for (const SoucetSloupce& s : form.soucty)
            text += std::to_string(s.sloupec) + ":" + std::to_string(s.polozek) + ":" +
                    std::to_string(static_cast<long long>(s.kcs)) + " ";
        return text;
    }
};

constexpr const char* k_vse = "20|13|1500\n10|13|500\n20|7|300\n99|17|2000\n10|14|\n";

TEST_F(FixniPolozky, TrideniOmezeniASoucty) {
    const struct {
        int trideni;
        OmezeniFixnich omezeni;
        const char *poradi, *omezeni_slovy, *soucty;
    } pripady[] = {
        {0,
         {},
         "7/20 13/10 13/20 14/10 17/99 ",
         "BEZ  OMEZENÍ",
         "7:1:300 13:2:2000 14:1:0 17:1:2000 "},
        {1,
         {},
         "13/10 14/10 7/20 13/20 17/99 ",
         "BEZ  OMEZENÍ",
         "7:1:300 13:2:2000 14:1:0 17:1:2000 "},
        {1,
         {"10", "20", "", ""},
         "13/10 14/10 7/20 13/20 ",
         "OMEZENÍ: pracovníci 10 až 20",
         "7:1:300 13:2:2000 14:1:0 "},
        {0,
         {"", "", "13", "14"},
         "13/10 13/20 14/10 ",
         "OMEZENÍ:  sloupce 13 až 14",
         "13:2:2000 14:1:0 "},
        {0,
         {"11", "", "", "13"},
         "7/20 13/20 ",
         "OMEZENÍ: pracovníci 11 až 999999,   sloupce 1 až 13",
         "7:1:300 13:1:1500 "},
    };
    for (const auto& p : pripady) {
        SCOPED_TRACE(p.omezeni_slovy);
        form.trideni = p.trideni;
        form.omezeni = p.omezeni;
        form.OmezeniZmena();
        EXPECT_EQ(poradi(form.vety), p.poradi);
        EXPECT_EQ(form.lbOmezeni, p.omezeni_slovy);
        EXPECT_EQ(soucty(), p.soucty);
    }
    form.acVseExecute();
    EXPECT_EQ(form.vety.size(), 5U);
    EXPECT_EQ(form.vety.back().pracovnik, "  pracovník není v souboru");
    EXPECT_EQ(form.vety.back().text_sloupce, "záloha");
}

TEST_F(FixniPolozky, KurzorZustavaNaRadkuAUkazujeKamOdeslatPenize) {
    form.vyber_radek(2);
    EXPECT_EQ(form.penize, (BankovniSpojeni{"19-2000145399", "0800", "123", "0558", ""}));
    form.trideni = 1;
    form.TrideniZmena();
    EXPECT_EQ(form.radek, 3);
    EXPECT_EQ(form.penize.Ucet, "19-2000145399");
    EXPECT_EQ(form.penize_slovy, "");
    form.vyber_radek(0);
    EXPECT_EQ(form.penize_slovy, "Na bankovní příkaz se neuvádí.");
    form.vyber_radek(1);
    EXPECT_EQ(form.penize_slovy, "Bankovní spojení není zadáno.");
}

TEST_F(FixniPolozky, NovaPolozkaAOpravaPresFormular) {
    obrazovka<TForm12>([&](TForm12& f) {
        EXPECT_EQ(f.legenda, (Radky{"Dávka: 7-8", "Srážka: 13-14"}));
        form.acSmazatExecute();  // refused while the item form waits
        f.Cislo_pracovnika = "12";
        f.Sloupec = "8";
        f.Kcs = "250";
        f.acUlozitExecute();
    });
    form.acPridatExecute();
    EXPECT_EQ(form.vety[static_cast<std::size_t>(form.radek)].pracovnik, "Černý Ivo");
    EXPECT_EQ(form.fokus, "mrizka");
    obrazovka<TForm12>([](TForm12& f) {
        EXPECT_EQ(f.Cislo_pracovnika, "12");
        f.Kcs = "300";
        f.acUlozitExecute();
    });
    form.acOpravitExecute();
    EXPECT_EQ(vypis(), k_vse + std::string("12|8|300\n"));
}

TEST_F(FixniPolozky, SmazaniJednePolozkySePta) {
    for (const bool ano : {false, true}) {
        firma.obsluha.odpovez("Opravdu chcete smazat označenou položku?", ano);
        form.acSmazatExecute();
    }
    EXPECT_EQ(vypis(), "20|13|1500\n10|13|500\n99|17|2000\n10|14|\n");
    EXPECT_EQ(form.radek, 0);
    form.omezeni.sloupec_od = "50";
    form.OmezeniZmena();
    EXPECT_EQ(form.radek, -1);
    form.acSmazatExecute();
    form.acOpravitExecute();
    EXPECT_EQ(firma.obsluha.otazky.size(), 2U) << "v prázdném seznamu není co mazat ani opravit";
}

TEST_F(FixniPolozky, HromadneOperaceMeniJenSvujSloupecAHlasiPocty) {
    form.pridej_od = "1";
    form.pridej_do = "19";
    form.pridej_sloupec = "8";
    form.btPridejClick();
    const std::string s_pridanymi = k_vse + std::string("10|8|\n12|8|\n");
    EXPECT_EQ(vypis(), s_pridanymi) << "pracovník bez karty nic nedostane";
    EXPECT_EQ(form.vety.size(), 7U);

    form.pro_sloupec = "13";
    form.btVynulujClick();
    EXPECT_EQ(vypis(), "20|13|0\n10|13|0\n20|7|300\n99|17|2000\n10|14|\n10|8|\n12|8|\n");

    const char* otazka =
        "Opravdu chcete vypustit všechny položky ze sloupce 13?\r\n\r\n"
        "(Vypuštěním zrušíte všechny hodnoty včetně bankovního spojení).";
    firma.obsluha.odpovez(otazka, false);
    form.btSmazZaznamClick();
    firma.obsluha.odpovez(otazka, true);
    form.btSmazZaznamClick();
    EXPECT_EQ(vypis(), "20|7|300\n99|17|2000\n10|14|\n10|8|\n12|8|\n");
    EXPECT_EQ(soucty(), "7:1:300 8:2:0 14:1:0 17:1:2000 ");
    EXPECT_EQ(
        firma.obsluha.hlasky,
        (Radky{"Fixní položky (bez korun) pro sloupec 8 byly zapsány.\r\n\r\n"
               "Počet zapsaných vět: 2.",
               "Fixní položky ve sloupci 13 byly vynulovány.\r\n\r\nPočet vynulovaných vět: 2.",
               "Fixní položky ve sloupci 13 byly vypuštěny ze souboru.\r\n\r\n"
               "Počet vypuštěných vět: 2."}));
}

TEST_F(FixniPolozky, HromadneOperaceOdmitnouSloupecMimoModuly) {
    firma.session.ridici_zorv.modul10_od = firma.session.ridici_zorv.modul10_do = 0;
    form.pridej_od = "1";
    form.pridej_do = "99";
    for (const char* sloupec : {"13", "6", ""}) {
        firma.obsluha.hlasky.clear();
        form.pridej_sloupec = form.pro_sloupec = sloupec;
        form.btPridejClick();
        form.btVynulujClick();
        form.btSmazZaznamClick();
        const std::string zprava =
            "Sloupec " + std::string(sloupec) + " neodpovídá intervalu dávek ani srážek.";
        EXPECT_EQ(firma.obsluha.hlasky, (Radky{zprava, zprava, zprava}));
    }
    form.pridej_sloupec = "8";
    form.pridej_od = " ";
    form.btPridejClick();
    EXPECT_EQ(form.fokus, "pridej_od");
    EXPECT_EQ(vypis(), k_vse);
}

TEST_F(FixniPolozky, TiskUkazeRadkySeSouctyPodleTrideni) {
    form.omezeni = {"10", "20", "", ""};
    for (const int trideni : {0, 1}) {
        form.trideni = trideni;
        form.OmezeniZmena();
        std::string text;
        obrazovka<report::TFUsrPrev>(
            [&](report::TFUsrPrev& nahled) { text = report::jako_text(nahled.dokument); });
        form.acTiskExecute();
        for (const char* cast : {"OMEZENÍ: pracovníci 10 až 20", "Beneš Petr", "19-2000145399",
                                 "0800", trideni == 0 ? "Sloupec 13" : "Pracovník 20"})
            EXPECT_NE(text.find(cast), std::string::npos) << cast << "\n" << text;
        EXPECT_NE(text.find(trideni == 0 ? "2 000" : "1 800"), std::string::npos) << text;
        EXPECT_EQ(text.find("není v souboru"), std::string::npos) << "omezení platí i pro tisk";
    }
}

TEST_F(FixniPolozky, OpravaKorunUkladaKazdouHodnotuHned) {
    form.trideni = 1;
    form.omezeni = {"", "20", "", ""};
    form.OmezeniZmena();
    firma.session.sloupce_slovy = {"13srážka", "14--- vratka"};
    obrazovka<TForm75>([&](TForm75& f) {
        EXPECT_EQ(poradi(f.vety), "13/10 14/10 7/20 13/20 ");
        EXPECT_TRUE(f.zapis_koruny(1, "-50"));
        EXPECT_EQ(vypis(), "20|13|1500\n10|13|500\n20|7|300\n99|17|2000\n10|14|-50\n");
        for (const char* text : {"", " ", "1,5", "12345678"})
            EXPECT_FALSE(f.zapis_koruny(0, text)) << text;
        EXPECT_EQ(firma.obsluha.hlasky.size(), 4U);
        EXPECT_EQ(firma.obsluha.hlasky.front(), "Nezadali jste koruny.");
        EXPECT_EQ(f.vety[0].kcs.as_integer(), 500);
        EXPECT_TRUE(f.zapis_koruny(3, "0"));
        EXPECT_TRUE(f.povol_klavesu(1, '-', ""));
        EXPECT_FALSE(f.povol_klavesu(0, '-', ""));
        f.acZpetExecute();
        EXPECT_TRUE(f.zavreno);
    });
    form.acHromadnaOpravaExecute();
    EXPECT_EQ(vypis(), "20|13|0\n10|13|500\n20|7|300\n99|17|2000\n10|14|-50\n");
    EXPECT_EQ(soucty(), "7:1:300 13:2:500 14:1:-50 ");
}

}  // namespace
