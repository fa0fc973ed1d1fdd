// The form of a child: what it starts with, its tests in their order, what it writes.
#include "workers/unit9_dite.h"

#include <gtest/gtest.h>

#include "base/chyba.h"
#include "support/zkusebni_firma.h"

namespace {

using workers::TForm9;

class Dite : public testing::Test {
  protected:
    zkouska::ZkusebniFirma firma;

    TForm9 ukaz(std::int64_t pocitadlo) {
        TForm9 form(firma.session, pocitadlo, 7);
        form.FormShow();
        return form;
    }
    static void vypln(TForm9& form) {
        form.Jmeno = "Eva";
        form.Prijmeni = "Nováková";
        form.Rodne_cislo = "15-51-02/1234";
        form.Rodne_cisloExit();
    }
    std::string vypis() {
        return firma.vypis(
            "SELECT Cislo_pracovnika, Prijmeni, Jmeno, Bydliste, Rodne_cislo, Datum_narozeni,"
            " Poradi, Odpocitatelna_dan FROM Deti");
    }
};

TEST_F(Dite, NoveZacinaPrvnimPoradimAZakonnouCastkouMesice) {
    firma.session.mesic_v_poli = 5;
    TForm9 form = ukaz(0);
    EXPECT_EQ(form.Cislo_pracovnika, "7");
    EXPECT_EQ(form.Jmeno + form.Prijmeni + form.Rodne_cislo + form.Datum_narozeni, "");
    EXPECT_EQ(form.Poradi, 1);
    EXPECT_EQ(form.Odpocitatelna_dan, "1267");
    form.Poradi = 2;
    form.PoradiZmena();
    EXPECT_EQ(form.zakonna_castka, "podle zákona 1860 Kč");
    EXPECT_EQ(form.Odpocitatelna_dan, "1267") << "částku mění jen obsluha";
}

TEST_F(Dite, RokBezZakonneCastkyNabidneNuluKterouFormularOdmitne) {
    firma.session.rok = 2023;
    TForm9 form = ukaz(0);
    EXPECT_EQ(form.Odpocitatelna_dan, "0");
    vypln(form);
    form.acOkExecute();
    EXPECT_EQ(firma.obsluha.hlasky,
              std::vector<std::string>{"Nezadali jste Kč daňového zvýhodnění na toto dítě."});
    EXPECT_EQ(form.fokus, "Odpocitatelna_dan");
    EXPECT_EQ(vypis(), "");
}

// Everything is wrong at first; each step mends what the last message asked for.
TEST_F(Dite, TestyJdouVPoradiAZastaviSeNaPrvnim) {
    TForm9 form = ukaz(0);
    form.Cislo_pracovnika = "0";
    form.Odpocitatelna_dan = " ";
    form.Datum_narozeni = "31.2.2015";
    const struct {
        const char* zprava;
        const char* pole;
        std::string TForm9::*oprav;
        const char* cim;
    } kroky[] = {
        {"Nezadali jste číslo pracovníka.", "Cislo_pracovnika", &TForm9::Cislo_pracovnika, " "},
        {"Nezadali jste číslo pracovníka.", "Cislo_pracovnika", &TForm9::Cislo_pracovnika, "7"},
        {"Nezadali jste jméno dítěte.", "Jmeno", &TForm9::Jmeno, "Eva"},
        {"Nezadali jste příjmení dítěte.", "Prijmeni", &TForm9::Prijmeni, "Nováková"},
        {"Nezadali jste rodné číslo dítěte.", "Rodne_cislo", &TForm9::Rodne_cislo, "1551021234"},
        {"Chybná struktura rodného čísla.", "Rodne_cislo", &TForm9::Rodne_cislo, "15-51-02/123"},
        {"Nezadali jste Kč daňového zvýhodnění na toto dítě.", "Odpocitatelna_dan",
         &TForm9::Odpocitatelna_dan, "0"},
        {"Nezadali jste Kč daňového zvýhodnění na toto dítě.", "Odpocitatelna_dan",
         &TForm9::Odpocitatelna_dan, "12x"},
        {"Datum narození nemá správnou strukturu.", "Datum_narozeni", &TForm9::Datum_narozeni,
         "30.12.1899"},
        {"Daňové zvýhodnění musí být celé číslo od 1 do 9999.", "Odpocitatelna_dan",
         &TForm9::Odpocitatelna_dan, "1267"},
    };
    for (const auto& krok : kroky) {
        SCOPED_TRACE(krok.zprava);
        firma.obsluha.hlasky.clear();
        form.acOkExecute();
        EXPECT_EQ(firma.obsluha.hlasky, std::vector<std::string>{krok.zprava});
        EXPECT_EQ(form.fokus, krok.pole);
        EXPECT_FALSE(form.zavreno);
        form.*krok.oprav = krok.cim;
    }
    EXPECT_EQ(vypis(), "");
    form.acOkExecute();
    EXPECT_TRUE(form.zavreno && form.ulozeno);
    EXPECT_EQ(vypis(), "7|Nováková|Eva||15-51-02/123||1|1267\n") << "30.12.1899 znamená bez data";
}

TEST_F(Dite, DatumSeDoplniZRodnehoCislaJenKdyzChybi) {
    const struct {
        const char *rodne_cislo, *datum, *po_opusteni;
    } pripady[] = {
        {"15-51-02/1234", "", "2.1.2015"},
        {"15-51-02/1234", "30.12.1899", "2.1.2015"},
        {"15-51-02/1234", "3.3.2014", "3.3.2014"},
        {"", "30.12.1899", "30.12.1899"},
        {"15-13-02/1234", "", ""},
    };
    for (const auto& p : pripady) {
        TForm9 form = ukaz(0);
        form.Rodne_cislo = p.rodne_cislo;
        form.Datum_narozeni = p.datum;
        form.Rodne_cisloExit();
        EXPECT_EQ(form.Datum_narozeni, p.po_opusteni) << p.rodne_cislo << " " << p.datum;
    }
}

TEST_F(Dite, OpravaMeniJenSvuRadekAOdchodNic) {
    TForm9 prvni = ukaz(0);
    vypln(prvni);
    prvni.acOkExecute();
    TForm9 druhe = ukaz(0);
    vypln(druhe);
    druhe.Jmeno = "Adam";
    druhe.Poradi = 2;
    druhe.acOkExecute();
    ASSERT_NE(prvni.Pocitadlo, druhe.Pocitadlo);

    TForm9 odchod = ukaz(prvni.Pocitadlo);
    odchod.Jmeno = "Jana";
    odchod.acZpetExecute();
    EXPECT_TRUE(odchod.zavreno && !odchod.ulozeno);

    TForm9 oprava = ukaz(druhe.Pocitadlo);
    EXPECT_EQ(oprava.Datum_narozeni, "2.1.2015");
    EXPECT_EQ(oprava.Poradi, 2);
    oprava.Bydliste = "Žďár";
    oprava.Odpocitatelna_dan = "1860";
    oprava.acOkExecute();
    EXPECT_EQ(oprava.Pocitadlo, druhe.Pocitadlo);
    EXPECT_EQ(vypis(),
              "7|Nováková|Eva||15-51-02/1234|2015-01-02|1|1267\n"
              "7|Nováková|Adam|Žďár|15-51-02/1234|2015-01-02|2|1860\n");
}

TEST_F(Dite, CoSeDoTabulkyNevejdeNeboRadekKteryZmizelNicNezmeni) {
    TForm9 form = ukaz(0);
    vypln(form);
    form.Bydliste = std::string(31, 'x');
    form.acOkExecute();
    EXPECT_EQ(firma.obsluha.hlasky, std::vector<std::string>{"Bydliště smí mít nejvýše 30 znaků."});
    form.Bydliste = "東京";
    form.acOkExecute();
    EXPECT_EQ(firma.obsluha.hlasky.back(), "Bydliště obsahuje znak, který nelze uložit.");
    EXPECT_THROW(ukaz(99), base::ChybaDat);
    EXPECT_EQ(vypis(), "");
    EXPECT_FALSE(form.povol_klavesu_castky('5', "1234"));
    EXPECT_FALSE(form.povol_klavesu_castky('-', ""));
    EXPECT_FALSE(form.povol_klavesu_textu("Rodne_cislo", '1', "15-51-02/1234"));
    EXPECT_TRUE(form.povol_klavesu_textu("Jmeno", 'x', "15-51-02/1234"));
    EXPECT_EQ(firma.obsluha.pipnuti, 3);
}

}  // namespace
