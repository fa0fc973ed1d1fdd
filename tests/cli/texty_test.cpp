// Amounts, near names and aligned tables.
#include "cli/texty.h"

#include <gtest/gtest.h>
#include <sstream>

#include "cli/tabulka.h"

namespace zkouska {

TEST(Texty, CastkySeCtouPoTisicich) {
    const struct {
        base::Castka castka;
        std::string text;
    } pripady[] = {{0, "0"},
                   {999, "999"},
                   {28615, "28 615"},
                   {-1234.5L, "-1 234,5"},
                   {1234567.25L, "1 234 567,25"},
                   {-123, "-123"},
                   {0.5L, "0,5"}};
    for (const auto& p : pripady)
        EXPECT_EQ(cli::citelna_castka(p.castka), p.text);
}

TEST(Texty, KonceRadkuHlasek) {
    EXPECT_EQ(cli::radky_terminalu("a\r\nb\rc\r\n\r\nd\r"), "a\nb\nc\n\nd\n");
}

TEST(Texty, PodobneNazvy) {
    const std::vector<std::string> nazvy{"Os_karty", "Listin01", "Fixni", "Deti"};
    using Nazvy = std::vector<std::string>;
    EXPECT_EQ(cli::podobne("oskarty", nazvy), Nazvy{"Os_karty"});
    EXPECT_EQ(cli::podobne("listin", nazvy), Nazvy{"Listin01"});
    EXPECT_EQ(cli::podobne("úplně jiný název", nazvy), Nazvy{});
}

TEST(Tabulka, ZarovnavaPodleZnakuANepustiRidiciZnaky) {
    cli::Tabulka tabulka({{"jméno"}, {"Kč", cli::Strana::vpravo}});
    tabulka.radek({"Žížala", "5"});
    tabulka.radek({"Bo\x1b[2J\nx", "12 000"});
    tabulka.radek({"bez částky"});
    std::ostringstream out;
    tabulka.vypis(out, 1);
    EXPECT_EQ(out.str(),
              " jméno           Kč\n"
              " ──────────  ──────\n"
              " Žížala           5\n"
              " Bo [2J x    12 000\n"
              " bez částky\n");
}

}  // namespace zkouska
