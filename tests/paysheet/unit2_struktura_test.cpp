// The first structure of the pay sheet: checks of the eighteen fields and what saving makes.
#include "paysheet/unit2_struktura.h"

#include <gtest/gtest.h>

#include "shell/nova_firma.h"
#include "store/query.h"
#include "support/prazdna_relace.h"

namespace {

/// A company without a structure yet.
struct NovaFirma : zkouska::PrazdnaRelace {
    paysheet::TForm2 form{session};

    NovaFirma() {
        EXPECT_EQ(shell::zaloz_slozku_firmy(koren.cesta(), "FIRMA22", {"Zkušební", "1"}), "");
        session.firma = "FIRMA22";
        shell::cti_konfiguracni_soubor(session);
        session.ridici_zorv = shell::vychozi_ridici_zorv(session.slozka_programu);
        paysheet::Vypln_formular_2(form);
    }
};

using Zmeny = std::vector<std::pair<std::size_t, const char*>>;

struct Kontrola {
    const char* pripad;
    Zmeny zmeny;  ///< fields (from 0, in record order) that differ from the presets
    std::vector<std::string> chyby;
};

const Kontrola k_kontroly[] = {
    {"předvolby", {}, {}},
    {"číslování nemusí začínat jedničkou", {{0, "2"}}, {}},
    {"bez modulu 3 modul 4 nenavazuje", {{3, ""}, {4, ""}}, {"Nenavazuje modul 4."}},
    {"bez nepovinných modulů a bez mezer v číslování",
     {{3, "0"},
      {4, ""},
      {5, ""},
      {6, ""},
      {7, ""},
      {8, "4"},
      {9, "5"},
      {10, "6"},
      {11, "7"},
      {12, ""},
      {13, ""},
      {14, ""},
      {15, "8"},
      {16, ""},
      {17, "9"}},
     {}},
    {"modul 1 celý prázdný: jen povinnost, ne interval",
     {{0, ""}, {1, ""}},
     {"Modul 1 musí být zadaný povinně.", "Nenavazuje modul 2."}},
    {"modul 1 s jednou mezí", {{0, ""}}, {"Modul 1 má chybný interval."}},
    {"obrácený interval",
     {{12, "14"}, {13, "13"}},
     {"Modul 10 má chybný interval.", "Nenavazuje modul 10.", "Nenavazuje modul 11."}},
    {"interval bez konce", {{7, ""}}, {"Modul 5 má chybný interval.", "Nenavazuje modul 6."}},
    {"chybí povinné moduly",
     {{2, ""}, {17, "0"}},
     {"Modul 2 musí být zadaný povinně.", "Modul 14 musí být zadaný povinně.",
      "Nenavazuje modul 2.", "Nenavazuje modul 3.", "Nenavazuje modul 14."}},
    {"dva moduly v jednom sloupci", {{9, "9"}}, {"Nenavazuje modul 7.", "Nenavazuje modul 8."}},
    {"text místo čísla se bere jako prázdný",
     {{2, "ab"}},
     {"Modul 2 musí být zadaný povinně.", "Nenavazuje modul 2.", "Nenavazuje modul 3."}},
};

TEST(PrvniStruktura, KontrolaVypiseVsechnyChybyAJenBezNichUlozi) {
    for (const Kontrola& k : k_kontroly) {
        SCOPED_TRACE(k.pripad);
        NovaFirma firma;
        for (const auto& [poradi, text] : k.zmeny)
            firma.form.pole[poradi] = text;
        firma.form.opusteni_pole();
        EXPECT_EQ(firma.form.scChyby, k.chyby);
        firma.form.btOKClick();
        EXPECT_EQ(firma.form.ulozeno, k.chyby.empty());
        EXPECT_EQ(firma.form.zavreno, k.chyby.empty());
        EXPECT_EQ(std::filesystem::exists(firma.session.soubor_ridici_zorv()), k.chyby.empty());
        EXPECT_EQ(firma.session.data().table_exists("Ridici"), k.chyby.empty());
    }
}

TEST(PrvniStruktura, OpravenaChybaZeSeznamuZmizi) {
    NovaFirma firma;
    firma.form.pole[2] = "9";
    firma.form.opusteni_pole();
    EXPECT_FALSE(firma.form.scChyby.empty());
    firma.form.pole[2] = "3";
    firma.form.opusteni_pole();
    EXPECT_TRUE(firma.form.scChyby.empty());
}

TEST(PrvniStruktura, UlozeniZaloziZaznamASloupceKazdehoModulu) {
    NovaFirma firma;
    for (std::size_t i : {14U, 16U})
        firma.form.pole[i] = "";  // modules 11 and 13 are absent
    firma.form.pole[15] = "15";
    firma.form.pole[17] = "16";
    firma.form.btOKClick();
    EXPECT_EQ(firma.obsluha.hlasky,
              std::vector<std::string>{
                  "Parametry pro projekt mezd podle Vašich požadavků byly založeny."});
    const auto zaznam = shell::cti_ridici_zorv(firma.session.soubor_ridici_zorv());
    EXPECT_EQ(zaznam.modul1_do, 2);
    EXPECT_EQ(zaznam.modul10_od, 13);
    EXPECT_EQ(zaznam.modul11, 0);
    EXPECT_EQ(zaznam.modul14, 16);
    EXPECT_EQ(zaznam.text_os_oh[0], "nezadáno 1");

    std::string radky;
    store::Query q(firma.session.data(), "SELECT Modul, Sloupec, text, nadpis_1 FROM Ridici");
    for (q.open(); !q.eof(); q.next()) {
        radky += q.text(0) + " " + q.text(1) + " " + q.text(2) + q.text(3) + "\n";
    }
    EXPECT_EQ(radky,
              "1 1 hrubé mzdy - sloupec 1\n1 2 hrubé mzdy - sloupec 2\n2 3 hrubé mzdy celkem\n"
              "3 4 naturální mzda - sloupec 4\n3 5 naturální mzda - sloupec 5\n"
              "4 6 sociální dávky\n5 7 dávky sloupec - 7\n5 8 dávky sloupec - 8\n"
              "6 9 příjem celkem\n7 10 sociální pojištění\n8 11 zdravotní pojištění\n"
              "9 12 daň z příjmu\n10 13 ostatní srážky - sloupec 13\n"
              "10 14 ostatní srážky - sloupec 14\n12 15 srážky celkem\n14 16 k výplatě\n");
}

TEST(PrvniStruktura, NezapsanySouborNenechaAniTabulku) {
    NovaFirma firma;
    // A folder of the file's name stands in the way.
    std::filesystem::create_directories(firma.session.soubor_ridici_zorv() / "x");
    EXPECT_THROW(firma.form.btOKClick(), base::ChybaDat);
    EXPECT_FALSE(firma.session.data().table_exists("Ridici"));
    EXPECT_FALSE(firma.form.ulozeno);
    EXPECT_TRUE(firma.obsluha.hlasky.empty());
}

}  // namespace
