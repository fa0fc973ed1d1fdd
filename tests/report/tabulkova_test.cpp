// The plain list: its text, its pages, its totals.
#include "report/tabulkova.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "report/text.h"

namespace {

using namespace report;

TabulkovaSestava pracovnici() {
    return {"Pracovníci - PEKARNA22",
            {"Výběr: středisko 12"},
            {{"Číslo", 14, Zarovnani::vpravo},
             {"Příjmení", 20},
             {"Hrubá\nmzda", 24, Zarovnani::vpravo, true}},
            {{"7", "Žižková", "28 000,50"}, {"12", "Říha", "-1 000"}},
            {},
            false};
}

std::vector<std::string> texty(const Pas& pas) {
    std::vector<std::string> vysledek;
    for (const Bunka& bunka : pas.bunky)
        vysledek.push_back(bunka.text);
    return vysledek;
}

/// How many bands of each page belong to its content.
std::vector<std::size_t> obsah_stran(const Document& document) {
    std::vector<std::size_t> pocty;
    for (const Strana& strana : document.strany) {
        pocty.push_back(static_cast<std::size_t>(std::ranges::count_if(
            strana.pasy, [](const Pas& pas) { return pas.druh == DruhPasu::obsah; })));
    }
    return pocty;
}

TEST(TabulkovaSestava, TextMaNadpisSloupceASoucet) {
    EXPECT_EQ(jako_text(sestav_tabulku(pracovnici())),
              "Pracovníci - PEKARNA22\n"
              "Výběr: středisko 12\n"
              "\n"
              "-------------------------\n"
              "                    Hrubá\n"
              " Číslo Příjmení      mzda\n"
              "-------------------------\n"
              "     7 Žižková  28 000,50\n"
              "    12 Říha        -1 000\n"
              "-------------------------\n"
              "Celkem          27 000,50\n");
}

TEST(TabulkovaSestava, SouctySeBerouJakJsouZadanyNeboSeSpocitaji) {
    const struct {
        const char* co;
        std::vector<std::string> castky;
        std::vector<std::string> zadano;
        std::vector<std::string> cekam;  ///< the last band of content
    } pripady[] = {
        {"celé koruny", {"1 999", "1", ""}, {}, {"Celkem", "", "2 000"}},
        {"haléře", {"0,10", "0.20"}, {}, {"Celkem", "", "0,30"}},
        {"zadané", {"1", "2"}, {"", "úhrnem", "5"}, {"", "úhrnem", "5"}},
        {"žádné věty", {}, {}, {"Číslo", "Příjmení", "mzda"}},
    };
    for (const auto& p : pripady) {
        SCOPED_TRACE(p.co);
        auto sestava = pracovnici();
        sestava.radky.clear();
        for (const auto& castka : p.castky)
            sestava.radky.push_back({"1", "Říha", castka});
        sestava.soucty = p.zadano;
        const auto document = sestav_tabulku(sestava);
        const auto& pasy = document.strany.back().pasy;
        EXPECT_EQ(texty(pasy[pasy.size() - 3]), p.cekam);  // behind it the foot: a gap and a line
    }
}

TEST(TabulkovaSestava, StranyMajiZahlaviAPatuASoucetNezustaneSam) {
    for (const bool na_sirku : {false, true}) {
        auto sestava = pracovnici();
        sestava.na_sirku = na_sirku;
        sestava.radky.resize(1);
        std::size_t vet = 1;
        while (sestav_tabulku(sestava).strany.size() == 1) {
            sestava.radky.push_back({std::to_string(++vet), "Beneš", "1"});
        }
        // The row that did not fit takes the total with it.
        const auto document = sestav_tabulku(sestava);
        ASSERT_EQ(document.strany.size(), 2U);
        EXPECT_EQ(obsah_stran(document)[1], 2U);
        EXPECT_EQ(document.papir.sirka_mm > document.papir.vyska_mm, na_sirku);
        for (std::size_t i = 0; i < 2; ++i) {
            const Strana& strana = document.strany[i];
            const std::string cislo = "strana " + std::to_string(i + 1) + " z 2";
            EXPECT_EQ(texty(strana.pasy.back()), (std::vector{sestava.nazev, cislo}));
            double dosud = 0;
            for (const Pas& pas : strana.pasy) {
                EXPECT_GE(pas.y_mm, dosud - 0.001);
                dosud = pas.y_mm + pas.vyska_mm;
            }
            EXPECT_LE(dosud, document.papir.vyska_sazby() + 0.001);
        }
        EXPECT_EQ(texty(document.strany[1].pasy[1]),
                  (std::vector<std::string>{"Číslo", "Příjmení", "mzda"}));
    }
}

TEST(TabulkovaSestava, PrilisSirokaSeZmensi) {
    auto sestava = pracovnici();
    sestava.sloupce.push_back({"Poznámka", 300});
    const auto document = sestav_tabulku(sestava);
    const Bunka& posledni = document.strany[0].pasy[4].bunky.back();
    EXPECT_NEAR(posledni.x_mm + posledni.sirka_mm, document.papir.sirka_sazby(), 0.001);
    EXPECT_LT(document.velikost_pisma, Document().velikost_pisma);
    EXPECT_GE(document.velikost_pisma, 4.99);
}

TEST(Text, DlouhyTextSeUrizneCisloNikdy) {
    const struct {
        const char* co;
        Bunka bunka;
        const char* cekam;
    } pripady[] = {
        {"vejde se", {"Říha", 0, 20, Zarovnani::vlevo, false, 0, {}}, "Říha |\n"},
        {"text", {"Žižková Anežka", 0, 20, Zarovnani::vlevo, false, 0, {}}, "Žižková An |\n"},
        {"číslo", {"123 456 789,50", 0, 10, Zarovnani::vpravo, false, 0, {}}, "123 456 789,50 |\n"},
        {"na střed", {"č", 0, 20, Zarovnani::na_stred, false, 0, {}}, "č |\n"},
        {"řádky", {"a\nb\tc", 0, 20, Zarovnani::vlevo, false, 0, {}}, "a b c |\n"},
    };
    for (const auto& p : pripady) {
        Document document;
        const Bunka zarazka{"|", p.bunka.sirka_mm, 5, Zarovnani::vlevo, false, 0, {}};
        document.strany.push_back({{{DruhPasu::obsah, 0, 5, {p.bunka, zarazka}, {}}}});
        EXPECT_EQ(jako_text(document), p.cekam) << p.co;
    }
}

}  // namespace
