// Rules of fixed items: columns, bank connection, account, archive lines, and the two item forms.
#include "workers/fixni.h"

#include <gtest/gtest.h>

#include "base/text.h"
#include "support/zkusebni_firma.h"
#include "workers/fixni_archiv.h"
#include "workers/unit12_fixni_polozka.h"
#include "workers/unit13_fixni_pracovnika.h"

namespace {

using namespace workers;
using Radky = std::vector<std::string>;

// A field is filled ("x") or blank ("-"), in the order bank code, variable, constant, specific.
TEST(KombinaceUctu, PolePodleUctu) {
    const struct {
        const char *ucet, *ostatni;
        bool dobra;
    } pripady[] = {
        {"", "----", true},    {"", "x---", false},   {"", "-x--", false},
        {"", "--x-", false},   {"", "---x", false},   {" ", "----", true},
        {"NE", "----", true},  {"ne", "----", true},  {"Nezasílat", "----", true},
        {"NE", "-x--", false}, {"ne", "xxx-", false}, {"N", "----", false},
        {"N", "xxx-", true},   {"35", "xxx-", true},  {"35", "xxxx", true},
        {"35", "-xx-", false}, {"35", "x-x-", false}, {"35", "xx--", false},
        {"35", "----", false},
    };
    for (const auto& p : pripady) {
        const auto pole = [&p](std::size_t i) { return p.ostatni[i] == 'x' ? "1" : " "; };
        EXPECT_EQ(Kombinace_uctu_dobra({p.ucet, pole(0), pole(1), pole(2), pole(3)}), p.dobra)
            << p.ucet << " " << p.ostatni;
    }
}

TEST(Ucet, KontrolaModulo11) {
    const struct {
        const char* ucet;
        bool dobry;
    } pripady[] = {
        {"19-2000145399", true},   // 1*2+9 = 11; 2*6+1*10+4*5+5*8+3*4+9*2+9 = 121
        {"19-2000145398", false},  // 120
        {"18-2000145399", false},  // 10
        {"35", true},              // 3*2+5 = 11
        {" 35 ", true},
        {"36", false},         // 12
        {"1000000005", true},  // 6+5 = 11
        {"000035-0000000035", true},
        {"100001-35", true},     // 10+1 = 11
        {"0000035-35", false},   // seven digits of prefix
        {"00000000035", false},  // eleven digits
        {"0000000000", false},   // at least two digits other than 0
        {"5", false},
        {"", false},
        {"-35", false},
        {"35-", false},
        {"3 5", false},
        {"19-20001453O9", false},  // a letter
        {"19-19-35", false},
    };
    for (const auto& p : pripady)
        EXPECT_EQ(ucet_modulo_11(p.ucet), p.dobry) << p.ucet;
}

TEST(SloupceFixnich, JenZModulu5A10A13KtereJsou) {
    const struct {
        int modul5_od, modul5_do, modul10_od, modul10_do, modul13;
        std::vector<int> dobre, spatne;
        const char* veta;
        Radky legenda;
        bool lze_zadat, lze_opravit;
    } pripady[] = {
        {7,
         8,
         13,
         14,
         17,
         {7, 8, 13, 14, 17},
         {0, 6, 9, 12, 15, 16, 18},
         "Sloupec musí být v intervalu 7 - 8 nebo 13 - 14 nebo 17.",
         {"Dávka: 7-8", "Srážka: 13-14"},
         true,
         true},
        {0,
         0,
         13,
         13,
         0,
         {13},
         {0, 7, 14, 17},
         "Sloupec musí být v intervalu 13 - 13.",
         {"Srážka: 13-13"},
         true,
         true},
        {7,
         8,
         0,
         0,
         17,
         {7, 17},
         {0, 13},
         "Sloupec musí být v intervalu 7 - 8 nebo 17.",
         {"Dávka: 7-8"},
         true,
         true},
        {0, 0, 0, 0, 17, {17}, {0, 7, 13}, "Sloupec musí být v intervalu 17.", {}, true, false},
        {0, 0, 0, 0, 0, {}, {0, 7, 13, 17}, "Sloupec musí být v intervalu .", {}, false, false},
    };
    for (const auto& p : pripady) {
        SCOPED_TRACE(p.veta);
        shell::RidiciZorv r;
        r.modul5_od = static_cast<std::uint8_t>(p.modul5_od);
        r.modul5_do = static_cast<std::uint8_t>(p.modul5_do);
        r.modul10_od = static_cast<std::uint8_t>(p.modul10_od);
        r.modul10_do = static_cast<std::uint8_t>(p.modul10_do);
        r.modul13 = static_cast<std::uint8_t>(p.modul13);
        for (const int sloupec : p.dobre)
            EXPECT_TRUE(sloupec_fixnich(r, sloupec)) << sloupec;
        for (const int sloupec : p.spatne)
            EXPECT_FALSE(sloupec_fixnich(r, sloupec)) << sloupec;
        EXPECT_EQ(veta_o_intervalu(r), p.veta);
        EXPECT_EQ(Napln_listbox_na_form12(r), p.legenda);
        EXPECT_EQ(je_modul_pro_fixni(r), p.lze_zadat);
        EXPECT_EQ(je_modul_pro_opravu_fixnich(r), p.lze_opravit);
    }
}

TEST(ArchivSpojeni, RadekMaPevneSloupceAVratiCoDoNejBylo) {
    const BankovniSpojeni pripady[] = {
        {"19-2000145399", "0800", "1234567890", "0558", "9876543210"},
        {"123456-1234567890", "2010", "rrrrMM", "0008", ""},
        {"CZ6508000000192000AB", "0100", "IČO", "0308", "mm"},
        {"NE", "", "", "", ""},
    };
    for (const BankovniSpojeni& spojeni : pripady) {
        const std::string radek = radek_archivu(spojeni);
        EXPECT_EQ(base::pocet_znaku(radek), 58U);
        EXPECT_EQ(spojeni_z_archivu(radek), spojeni) << radek;
    }
    EXPECT_EQ(radek_archivu(pripady[0]),
              "19-2000145399         0800  1234567890  0558  9876543210  ");
    EXPECT_EQ(spojeni_z_archivu("35"), (BankovniSpojeni{"35", "", "", "", ""}));
}

/// Columns 7 and 8 are benefits, 13 and 14 deductions, 17 the advance; worker 7 has a card.
class PolozkaFixni : public testing::Test {
  protected:
    zkouska::ZkusebniFirma firma;

    PolozkaFixni() {
        firma.vloz("Os_karty", "Cislo,Prijmeni,Jmeno\n7,Nováková,Jana\n");
        firma.session.slozka_programu = firma.slozka / "program";
    }
    static void vypln(PolozkaFixnich& form) {
        form.Cislo_pracovnika = "7";
        form.Sloupec = "13";
        form.SloupecExit();
        form.Kcs = "500";
        form.spojeni = {"19-2000145399", "0800", "123", "0558", ""};
    }
    std::string vypis() {
        return firma.vypis(
            "SELECT Cislo_pracovnika, Sloupec, Kcs, Ucet, Kod_banky, Variabilni,"
            " Konstantni, Specificky FROM Fixni");
    }
};

TEST_F(PolozkaFixni, TestyPredUlozenimJdouVPoradi) {
    TForm12 form(firma.session, 0);
    form.FormShow();
    const struct {
        const char *zprava, *pole;
        std::string& oprav;
        const char* cim;
    } kroky[] = {
        {"Nezadali jste číslo pracovníka.", "Cislo_pracovnika", form.Cislo_pracovnika, "7"},
        {"Nezadali jste sloupec.", "Sloupec", form.Sloupec, "12"},
        {"Sloupec musí být v intervalu 7 - 8 nebo 13 - 14 nebo 17.", "Sloupec", form.Sloupec, "13"},
        {"Nezadali jste koruny.", "Kcs", form.Kcs, "0"},
        {"Chybně zadané bankovní spojení.", "Ucet", form.spojeni.Konstantni, ""},
    };
    for (const auto& krok : kroky) {
        SCOPED_TRACE(krok.zprava);
        firma.obsluha.hlasky.clear();
        // The bank field survives only on a column of deductions.
        if (krok.pole == std::string("Ucet")) form.spojeni.Konstantni = "1";
        form.acUlozitExecute();
        EXPECT_EQ(firma.obsluha.hlasky, Radky{krok.zprava});
        EXPECT_EQ(form.fokus, krok.pole);
        EXPECT_EQ(vypis(), "");
        krok.oprav = krok.cim;
    }
    form.acUlozitExecute();
    EXPECT_TRUE(form.zavreno && form.ulozeno);
    EXPECT_EQ(vypis(), "7|13|0|||||\n") << "0 je platná hodnota";
}

TEST_F(PolozkaFixni, TextyVedlePoliABankaJenUSrazek) {
    TForm12 form(firma.session, 0);
    form.FormShow();
    const struct {
        const char *cislo, *jmeno, *sloupec, *text;
        bool banka;
    } pripady[] = {
        {"7", "Nováková Jana", "13", "ostatní srážky - sloupec 13", true},
        {"8", "  pracovník není v souboru", "7", "dávky sloupec - 7", false},
        {"", "", "17", "záloha", false},
        {"7", "Nováková Jana", "99", "neznámý sloupec", false},
        {"7", "Nováková Jana", "", "", false},
    };
    for (const auto& p : pripady) {
        SCOPED_TRACE(p.text);
        form.Cislo_pracovnika = p.cislo;
        form.Sloupec = p.sloupec;
        form.spojeni = {"35", "0800", "1", "1", "1"};
        form.Cislo_pracovnikaExit();
        form.SloupecExit();
        EXPECT_EQ(form.jmeno_pracovnika, p.jmeno);
        EXPECT_EQ(form.text_sloupce, p.text);
        EXPECT_EQ(form.banka_povolena, p.banka);
        EXPECT_EQ(form.spojeni.Ucet, p.banka ? "35" : "");
    }
}

TEST_F(PolozkaFixni, NovaPolozkaPracovnikaAJejiOprava) {
    TForm13 nova(firma.session, 0, 7);
    nova.FormShow();
    EXPECT_EQ(nova.Cislo_pracovnika, "7");
    EXPECT_FALSE(nova.cislo_povoleno);
    EXPECT_EQ(nova.fokus, "Sloupec");
    vypln(nova);
    nova.spojeni.Variabilni = "rrrrMM";
    nova.acUlozitExecute();
    EXPECT_TRUE(nova.zavreno);

    TForm13 oprava(firma.session, nova.Pocitadlo, 7);
    oprava.FormShow();
    EXPECT_EQ(oprava.spojeni, (BankovniSpojeni{"19-2000145399", "0800", "rrrrMM", "0558", ""}));
    oprava.spojeni.Specificky = "77";
    oprava.Kcs = "-20";
    oprava.acUlozitExecute();
    EXPECT_EQ(oprava.Pocitadlo, nova.Pocitadlo);

    TForm13 odchod(firma.session, nova.Pocitadlo, 7);
    odchod.FormShow();
    odchod.Sloupec = "7";
    odchod.acZpetExecute();
    EXPECT_TRUE(odchod.zavreno && !odchod.ulozeno);
    EXPECT_EQ(vypis(), "7|13|-20|19-2000145399|800|rrrrMM|558|77\n");
}

TEST_F(PolozkaFixni, UcetKteryNesouhlasiSeUloziJenNaVyslovnePrani) {
    const struct {
        const char* ucet;
        bool pta_se, ano, ulozi;
    } pripady[] = {
        {"19-2000145398", true, false, false},
        {"19-2000145398", true, true, true},
        {"19-2000145399", false, false, true},
        {"ne", false, false, true},
    };
    for (const auto& p : pripady) {
        SCOPED_TRACE(p.ucet);
        firma.obsluha.otazky.clear();
        TForm13 form(firma.session, 0, 7);
        form.FormShow();
        vypln(form);
        form.spojeni.Ucet = p.ucet;
        if (ucet_mimo_prikaz(p.ucet)) form.spojeni = {p.ucet, "", "", "", ""};
        if (p.pta_se) firma.obsluha.odpovez(p.ucet, p.ano);
        form.acUlozitExecute();
        EXPECT_EQ(firma.obsluha.otazky.size(), p.pta_se ? 1U : 0U);
        EXPECT_EQ(form.ulozeno, p.ulozi);
        if (!p.ulozi) {
            EXPECT_EQ(form.fokus, "Ucet");
        }
    }
    EXPECT_EQ(vypis(),
              "7|13|500|19-2000145398|800|123|558|\n"
              "7|13|500|19-2000145399|800|123|558|\n"
              "7|13|500|ne||||\n");
}

TEST_F(PolozkaFixni, KlavesyAVlozenyText) {
    firma.session.sloupce_slovy = {"13srážka", "14--- vratka"};
    using Pole = PolozkaFixnich::Pole;
    TForm13 form(firma.session, 0, 7);
    const struct {
        const char* sloupec;
        Pole pole;
        char znak;
        const char* dosud;
        bool pusti;
    } klavesy[] = {
        {"13", Pole::Kcs, '-', "", false},        {"14", Pole::Kcs, '-', "", true},
        {"14", Pole::Kcs, '-', "5", false},       {"13", Pole::Kcs, '7', "123456", true},
        {"13", Pole::Kcs, '8', "1234567", false}, {"13", Pole::Kod_banky, '8', "0800", false},
        {"13", Pole::Symbol, 'M', "rrrr", true},  {"13", Pole::Symbol, '1', "1234567890", false},
        {"13", Pole::Konstantni, 'x', "", false}, {"13", Pole::Sloupec, '3', "13", false},
    };
    for (const auto& k : klavesy) {
        form.Sloupec = k.sloupec;
        EXPECT_EQ(form.povol_klavesu(k.pole, k.znak, k.dosud), k.pusti) << k.znak << k.dosud;
    }
    EXPECT_EQ(firma.obsluha.pipnuti, 7);

    const struct {
        std::string& pole;
        const char *text, *fokus;
    } vlozene[] = {
        {form.Kcs, "1,5", "Kcs"},
        {form.spojeni.Kod_banky, "08000", "Kod_banky"},
        {form.spojeni.Variabilni, "12345678901", "Variabilni"},
        {form.spojeni.Specificky, "東", "Specificky"},
    };
    for (const auto& v : vlozene) {
        firma.obsluha.hlasky.clear();
        vypln(form);
        v.pole = v.text;
        form.acUlozitExecute();
        EXPECT_EQ(firma.obsluha.hlasky.size(), 1U) << v.text;
        EXPECT_EQ(form.fokus, v.fokus);
    }
    EXPECT_EQ(vypis(), "");
}

TEST_F(PolozkaFixni, ArchivVydrziDoDalsihoOtevreniIDoDalsihoRoku) {
    TForm12 form(firma.session, 0);
    form.FormShow();
    form.acDosadExecute();
    EXPECT_EQ(firma.obsluha.hlasky, Radky{"Neoznačili jste v archivu žádnou položku."});
    form.acArchivujExecute();
    EXPECT_TRUE(form.archiv.empty()) << "prázdné spojení se nearchivuje";
    vypln(form);
    const BankovniSpojeni zadane = form.spojeni;
    form.acArchivujExecute();
    form.spojeni = {"35", "0100", "1", "2", "3"};
    form.acArchivujExecute();

    TForm12 dalsi(firma.session, 0);
    dalsi.FormShow();
    ASSERT_EQ(dalsi.archiv, form.archiv);
    ASSERT_EQ(dalsi.archiv.size(), 2U);
    dalsi.vyber_radek_archivu(0);
    dalsi.acDosadExecute();
    EXPECT_EQ(dalsi.spojeni, zadane);

    const std::filesystem::path letos = firma.session.cesta_dat;
    firma.session.cesta_minuly_rok = letos;
    firma.session.cesta_dat = firma.slozka / "pristi";
    std::filesystem::create_directories(firma.session.cesta_dat);
    TForm12 pristi(firma.session, 0);
    pristi.FormShow();
    EXPECT_EQ(pristi.archiv.size(), 2U);
    pristi.acSmazatVseExecute();
    pristi.FormShow();
    EXPECT_TRUE(pristi.archiv.empty());
    firma.session.cesta_dat = letos;
    dalsi.FormShow();
    EXPECT_EQ(dalsi.archiv.size(), 2U) << "minulý rok zůstává";
}

}  // namespace
