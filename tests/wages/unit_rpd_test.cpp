// The list of work calendars, its editor, and what Enter does in a day's cell.
#include "wages/unit_rpd.h"

#include <gtest/gtest.h>

#include "base/soubory.h"
#include "report/nahled.h"
#include "report/text.h"
#include "support/zkusebni_firma.h"
#include "wages/kalendar.h"
#include "wages/unit_rpd_det.h"

namespace {

using wages::TFRpd;
using wages::TFRpdDet;

TEST(BunkyKalendare, ZapsanyCas) {
    const std::pair<const char*, const char*> pripady[] = {
        {"8", "8:00"},      {"08:30", "8:30"},  {"7,30", "7:30"}, {"7.05", "7:05"},
        {"730", "7:30"},    {"0800", "8:00"},   {"", "0:00"},     {" ", "0:00"},
        {"0", "0:00"},      {"000", "0:00"},    {"24", "24:00"},  {"24:01", nullptr},
        {"7:5", nullptr},   {"7:60", nullptr},  {"25", nullptr},  {":30", nullptr},
        {"8::00", nullptr}, {"12345", nullptr}, {":00", nullptr}};
    for (const auto& [text, cas] : pripady) {
        const auto prijato = wages::bunka_z_textu(text);
        EXPECT_EQ(prijato.value_or("-"), cas ? cas : "-") << text;
    }
}

TEST(BunkyKalendare, MesicDoTextuAZpetSeNemeni) {
    const std::string text = wages::mesic_na_text(wages::zakladni_kalendar(2022, 450)[1]);
    EXPECT_EQ(wages::text_z_bunek(wages::bunky_z_textu(text)), text);
    const auto kratky = wages::bunky_z_textu("8:00;;x");
    EXPECT_EQ(kratky[0] + "|" + kratky[1] + "|" + kratky[2] + "|" + kratky[3] + "|" + kratky[30],
              "8:00||x|0:00|0:00");
}

TEST(BunkyKalendare, EnterPodleVoleb) {
    const struct {
        bool vkladat, svatky, vyplnene, volno;
        const char* hodnota;
        bool vlozi;
    } pripady[] = {
        {true, false, false, false, "0:00", true}, {true, false, false, false, "7:30", false},
        {true, false, true, false, "7:30", true},  {true, false, false, true, "0:00", false},
        {true, true, false, true, "0:00", true},   {true, true, false, true, "7:30", false},
        {true, false, true, true, "7:30", false},  {true, true, true, true, "7:30", true},
        {false, true, true, false, "0:00", false}, {false, true, true, true, "7:30", false},
    };
    for (const auto& p : pripady) {
        EXPECT_EQ(
            wages::vlozi_se_do_nasledujiciho({p.vkladat, p.svatky, p.vyplnene}, p.volno, p.hodnota),
            p.vlozi)
            << p.vkladat << p.svatky << p.vyplnene << p.volno << p.hodnota;
    }
}

/// A company with two calendars of 2022, opened in the list.
struct Kalendare : testing::Test {
    zkouska::ZkusebniFirma firma;
    TFRpd seznam{firma.session};

    Kalendare() {
        wages::acPridatZakladniExecute(firma.session);
        seznam.FormShow();
    }
    /// The next modal screen is the editor.
    void v_editoru(std::function<void(TFRpdDet&)> prace) {
        firma.obsluha.pri_obrazovce = [prace = std::move(prace)](base::Obrazovka& obrazovka) {
            prace(dynamic_cast<TFRpdDet&>(obrazovka));
        };
    }
    std::string vypis() {
        return firma.vypis("SELECT Rok, Typ, Nazev, Fond1 FROM Rpd ORDER BY Pocitadlo");
    }
    std::string nazvy() {
        std::string vse;
        for (const auto& veta : seznam.vety.rows)
            vse += veta[1].as_text() + " " + veta[3].as_text() + " " + veta[4].as_text() + "\n";
        return vse;
    }
};

// 2022: 365 days, 105 on weekends. Of the 13 days of the holiday table 8 fall on Monday to Friday
// (15.4., 18.4., 5.7., 6.7., 28.9., 28.10., 17.11., 26.12.), which leaves 252 working days.
TEST_F(Kalendare, ZakladniFondyRoku2022) {
    EXPECT_EQ(nazvy(), "2022 Základní 7:30 hodin 1890:00\n2022 Základní 8:00 hodin 2016:00\n");
    const int dnu_v_mesicich[] = {21, 20, 23, 19, 22, 22, 19, 23, 21, 20, 21, 21};
    const auto kalendar = wages::zakladni_kalendar(2022, 480);
    for (int mesic = 1; mesic <= 12; ++mesic)
        EXPECT_EQ(wages::fond_dni_rpd(kalendar, 2022, mesic, {}, {}), dnu_v_mesicich[mesic - 1])
            << mesic;
}

TEST_F(Kalendare, NovyJePrazdnyAktualnihoRokuAStoji_NaNem) {
    v_editoru([](TFRpdDet& editor) {
        EXPECT_EQ(editor.nadpis, "Nový záznam");
        EXPECT_EQ(editor.Rok, 2022);
        EXPECT_EQ(editor.mesic, 0) << "měsíc hodin počítače";
        EXPECT_EQ(editor.soucet_roku + " " + editor.soucet_mesice, "0:00 0:00");
        editor.Nazev = " Noční ";
        editor.bunky[2] = "7,30";
        editor.acOKExecute();
    });
    seznam.acPridatExecute();
    EXPECT_EQ(seznam.hodnota_radku("Nazev").as_text(), "Noční");
    EXPECT_EQ(seznam.hodnota_radku("Fond").as_text(), "7:30");
    EXPECT_EQ(firma.vypis("SELECT Vytvoreno, Zmeneno FROM Rpd WHERE Nazev = 'Noční'"),
              "2022-01-15T08:00:00|2022-01-15T08:00:00\n");
}

TEST_F(Kalendare, OpravaMeniTutezVetuKopiePridaDalsiOdchodNic) {
    const std::string puvodni = vypis();
    v_editoru([](TFRpdDet& editor) {
        editor.Nazev = "zahozený";
        editor.acZpetExecute();
    });
    seznam.acOpravitExecute();
    seznam.acKopirovatExecute();
    seznam.acPridatExecute();
    EXPECT_EQ(vypis(), puvodni);

    v_editoru([](TFRpdDet& editor) {
        EXPECT_EQ(editor.nadpis, "Kopie záznamu");
        editor.Nazev = "A kopie";
        editor.Typ = 1;
        editor.acOKExecute();
    });
    seznam.acKopirovatExecute();
    EXPECT_EQ(seznam.vety.rows.size(), 3U);
    EXPECT_EQ(seznam.hodnota_radku("Typ").as_text(), "Skupinový");
    EXPECT_EQ(seznam.hodnota_radku("Fond").as_text(), "1890:00");

    v_editoru([](TFRpdDet& editor) {
        EXPECT_EQ(editor.nadpis, "Oprava záznamu");
        EXPECT_EQ(editor.Nazev, "A kopie");
        editor.bunky[2] = "0";
        editor.acOKExecute();
    });
    seznam.acOpravitExecute();
    EXPECT_EQ(seznam.vety.rows.size(), 3U);
    EXPECT_EQ(seznam.hodnota_radku("Fond").as_text(), "1882:30");
}

TEST_F(Kalendare, BezNazvuSeNeulozi) {
    v_editoru([this](TFRpdDet& editor) {
        editor.Nazev = "  ";
        editor.acOKExecute();
        EXPECT_EQ(firma.obsluha.hlasky,
                  std::vector<std::string>{"Údaj <Název> musí být vyplněn.\r\n\r\n"
                                           "Opravte chyby a zkuste údaje uložit znovu."});
        EXPECT_EQ(editor.fokus, "Nazev");
        EXPECT_FALSE(editor.zavreno);
        editor.acZpetExecute();
    });
    seznam.acPridatExecute();
    EXPECT_EQ(seznam.vety.rows.size(), 2U);
}

// January 2022: the 1st is a Saturday and a holiday, 8th and 9th are a weekend.
TEST_F(Kalendare, EnterNeseNaposledyUpravenouHodnotuPresVikend) {
    v_editoru([](TFRpdDet& editor) {
        editor.bunky[5] = "6";
        editor.enter_v_bunce(6);
        EXPECT_EQ(editor.fokus, "den_7");
        for (int den = 7; den <= 10; ++den)
            editor.enter_v_bunce(den);
        EXPECT_EQ(editor.bunky[6] + editor.bunky[7] + editor.bunky[8] + editor.bunky[9] +
                      editor.bunky[10],
                  "6:000:000:006:006:00");
        EXPECT_EQ(editor.soucet_mesice, "24:00");
        editor.bunky[30] = "5";
        editor.enter_v_bunce(31);
        EXPECT_EQ(editor.fokus, "acOK");
        EXPECT_EQ(editor.soucet_mesice + " " + editor.soucet_roku, "29:00 29:00");
        editor.zmena_mesice(1);
        EXPECT_EQ(editor.bunky[0], "0:00");
        EXPECT_EQ(editor.soucet_mesice + " " + editor.soucet_roku, "0:00 29:00");
        editor.acZpetExecute();
    });
    seznam.acPridatExecute();
}

TEST_F(Kalendare, DnyMesiceAChybnyCasVBunce) {
    v_editoru([this](TFRpdDet& editor) {
        using enum TFRpdDet::DruhDne;
        EXPECT_EQ(editor.den(1).nazev, "Sobota");
        EXPECT_EQ(editor.den(1).druh, svatek);
        EXPECT_EQ(editor.den(2).druh, vikend);
        EXPECT_EQ(editor.den(3).druh, pracovni);
        EXPECT_TRUE(editor.den(2).bez_prace);
        EXPECT_FALSE(editor.den(3).bez_prace);
        editor.bunky[2] = "8:99";
        editor.opusteni_bunky(3);
        EXPECT_EQ(editor.bunky[2], "7:30");
        EXPECT_EQ(firma.obsluha.pipnuti, 1);
        // A day of a leap year goes with the year.
        editor.Rok = 2024;
        editor.zmena_mesice(1);
        editor.bunky[28] = "9";
        editor.opusteni_bunky(29);
        EXPECT_EQ(editor.soucet_mesice, "159:00");
        editor.Rok = 2022;
        editor.zmena_roku();
        EXPECT_EQ(editor.den(29).druh, neni);
        EXPECT_EQ(editor.soucet_mesice, "150:00");
        editor.acOKExecute();
    });
    seznam.acOpravitExecute();
    EXPECT_EQ(seznam.hodnota_radku("Fond").as_text(), "1890:00");
}

TEST_F(Kalendare, StareZmiziLonskyALetosniZustanou) {
    firma.vloz("Rpd", "Rok,Typ,Nazev\n2019,0,a\n2020,1,b\n2021,0,c\n");
    firma.obsluha.odpovez("Smazat kalendáře předminulého roku a starší?", false);
    seznam.acSmazatStareKalendareExecute();
    EXPECT_EQ(seznam.vety.rows.size(), 2U);
    firma.obsluha.odpovez("Smazat kalendáře předminulého roku a starší?", true);
    seznam.acSmazatStareKalendareExecute();
    EXPECT_EQ(firma.vypis("SELECT Rok FROM Rpd ORDER BY Rok"), "2021\n2022\n2022\n");
}

TEST_F(Kalendare, SmazaniSePtaAPrazdnySeznamNemaCoMenit) {
    firma.obsluha.odpovez("Smazat vybraný záznam?", false);
    seznam.acSmazatExecute();
    EXPECT_EQ(seznam.vety.rows.size(), 2U);
    for (int zbyva = 1; zbyva >= 0; --zbyva) {
        firma.obsluha.odpovez("Smazat vybraný záznam?", true);
        seznam.acSmazatExecute();
        EXPECT_EQ(seznam.vety.rows.size(), static_cast<std::size_t>(zbyva));
    }
    EXPECT_FALSE(seznam.je_veta());
    seznam.acSmazatExecute();
    seznam.acOpravitExecute();
    seznam.acKopirovatExecute();
    seznam.acPridatZakladniExecute();
    seznam.acPridatZakladniExecute();
    EXPECT_EQ(seznam.vety.rows.size(), 4U);
}

TEST_F(Kalendare, VybiraSeJenVeVyberu) {
    firma.vloz("Rpd", "Rok,Typ,Nazev\n2021,0,loni\n");
    seznam.acVybratExecute();
    EXPECT_FALSE(seznam.zavreno);
    firma.obsluha.pri_obrazovce = [](base::Obrazovka& obrazovka) {
        auto& vyber = dynamic_cast<TFRpd&>(obrazovka);
        EXPECT_EQ(vyber.hodnota_radku("Rok").as_integer(), 2022) << "stojí na letošním";
        vyber.vyber_radek(0);
        vyber.dvojklik();
        EXPECT_TRUE(vyber.zavreno);
    };
    const auto zvoleny = wages::vyber_kalendar(firma.session);
    ASSERT_TRUE(zvoleny);
    EXPECT_EQ(zvoleny->rok, 2021);
    EXPECT_EQ(zvoleny->nazev, "loni");
    EXPECT_EQ(firma.vypis("SELECT Nazev FROM Rpd WHERE Pocitadlo = " +
                          std::to_string(zvoleny->pocitadlo)),
              "loni\n");
    firma.obsluha.pri_obrazovce = [](base::Obrazovka& obrazovka) {
        dynamic_cast<TFRpd&>(obrazovka).acZpetExecute();
    };
    EXPECT_FALSE(wages::vyber_kalendar(firma.session));
}

TEST_F(Kalendare, TiskVsechNeboJenVybraneho) {
    seznam.acTiskExecute();
    EXPECT_EQ(firma.obsluha.hlasky.back(), "Soubor se sestavou \"mz_rpd.fr3\" neexistuje.");
    const auto sablony = firma.session.slozka_programu / "Sablony";
    std::filesystem::create_directories(sablony);
    std::filesystem::copy_file(std::filesystem::path(ZORV_SOURCE_DIR) / "Sablony" / "mz_rpd.fr3",
                               sablony / "mz_rpd.fr3");
    std::vector<std::string> texty;
    firma.obsluha.pri_obrazovce = [&](base::Obrazovka& obrazovka) {
        texty.push_back(report::jako_text(dynamic_cast<report::TFUsrPrev&>(obrazovka).dokument));
    };
    seznam.acTiskExecute();
    seznam.jen_vybrany = true;
    seznam.acTiskExecute();
    ASSERT_EQ(texty.size(), 2U);
    const auto ma = [&](std::size_t i, const char* co) {
        return texty[i].find(co) != std::string::npos;
    };
    EXPECT_TRUE(ma(0, "Základní 7:30 hodin") && ma(0, "Základní 8:00 hodin") && ma(0, "2016:00"));
    EXPECT_TRUE(ma(1, "Základní 7:30 hodin") && !ma(1, "Základní 8:00 hodin"));
}

}  // namespace
