#include "wages/kalendar.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "support/zkusebni_firma.h"

namespace {

using base::Datum;
using wages::MesicKalendare;
using wages::RokKalendare;

/// A calendar whose month has 8:00 on every weekday, holidays too, and 4:30 on the 8th.
RokKalendare kalendar_brezna() {
    RokKalendare kalendar{};
    for (int den = 1; den <= 31; ++den)
        if (base::den_v_tydnu({2022, 3, den}) <= 5)
            kalendar[2][static_cast<std::size_t>(den - 1)] = den == 8 ? 270 : 480;
    return kalendar;
}

RC_GTEST_PROP(Kalendar, TextMesiceSeVratiStejny, ()) {
    MesicKalendare mesic{};
    for (int& minut : mesic)
        minut = *rc::gen::inRange(0, 24 * 60 + 1);
    const std::string text = wages::mesic_na_text(mesic);
    RC_ASSERT(text.size() <= 186U);
    RC_ASSERT(wages::kontrola_textu_mesice(text).empty());
    RC_ASSERT(wages::mesic_z_textu(text) == mesic);
}

RC_GTEST_PROP(Kalendar, LibovolnyTextNikdyNevadi, (const std::string& text)) {
    for (const int minut : wages::mesic_z_textu(text))
        RC_ASSERT(minut >= 0);
    wages::kontrola_textu_mesice(text);
}

TEST(Kalendar, NecitelnaBunkaJeNula) {
    const MesicKalendare mesic = wages::mesic_z_textu("8:00;x;7:30; 0:15 ;8");
    EXPECT_EQ((std::vector(mesic.begin(), mesic.begin() + 6)),
              (std::vector{480, 0, 450, 15, 0, 0}));
}

TEST(Kalendar, KontrolaRekneCoJeSpatne) {
    const std::string dobry = wages::mesic_na_text(kalendar_brezna()[2]);
    EXPECT_EQ(wages::kontrola_textu_mesice(dobry), "");
    const std::vector<std::pair<std::string, const char*>> pripady{
        {"8:00;8:00", "má 2 dnů"},
        {dobry + ";8:00", "má 32 dnů"},
        {"24:01" + dobry.substr(4), "dne 1 je \"24:01\""},
        {"8:7" + dobry.substr(4), "dne 1 je \"8:7\""},
        {"osm" + dobry.substr(4), "dne 1 je \"osm\""}};
    for (const auto& [text, hlaseni] : pripady)
        EXPECT_NE(wages::kontrola_textu_mesice(text).find(hlaseni), std::string::npos) << text;
}

TEST(Kalendar, FondMeziNastupemAOdchodem) {
    // March 2022 has 23 weekdays, the 1st is a Tuesday, the 14th a Monday.
    const auto kalendar = kalendar_brezna();
    const struct {
        Datum od, do_;
        int dnu;
        double hodin;
    } pripady[] = {
        {{}, {}, 23, 22 * 8 + 4.5},
        {{2022, 3, 14}, {}, 14, 112},
        {{2022, 3, 12}, {2022, 3, 15}, 2, 16},
        {{2022, 3, 5}, {2022, 3, 6}, 0, 0},
        {{2022, 3, 8}, {2022, 3, 8}, 1, 4.5},
        {{2021, 3, 14}, {2022, 4, 2}, 23, 22 * 8 + 4.5},
        {{2022, 4, 10}, {}, 23, 22 * 8 + 4.5},  // a bound of another month is the month's own
        {{2022, 3, 20}, {2022, 3, 10}, 0, 0},
        {{2022, 3, 99}, {2022, 3, 99}, 0, 0}};
    for (const auto& p : pripady) {
        EXPECT_EQ(wages::fond_dni_rpd(kalendar, 2022, 3, p.od, p.do_), p.dnu);
        EXPECT_EQ(wages::fond_hodin_rpd(kalendar, 2022, 3, p.od, p.do_), p.hodin);
    }
    EXPECT_EQ(wages::fond_hodin_rpd(kalendar, 2022, 13, {}, {}), 0);
}

TEST(Kalendar, ZakladniVynechaVikendySvatkyADnyKtereNejsou) {
    const auto kalendar = wages::zakladni_kalendar(2022, 450);
    const auto den = [&](std::size_t m, std::size_t d) { return kalendar[m - 1][d - 1]; };
    EXPECT_EQ(den(4, 14), 450);
    EXPECT_EQ(den(4, 15), 0);  // Good Friday
    EXPECT_EQ(den(4, 16), 0);  // Saturday
    EXPECT_EQ(den(4, 18), 0);  // Easter Monday
    EXPECT_EQ(den(2, 28), 450);
    EXPECT_EQ(den(2, 29), 0);
    EXPECT_EQ(wages::fond_dni_rpd(kalendar, 2022, 4, {}, {}), 19);
}

TEST(Kalendar, ZakladniKalendareSePridajiPokazde) {
    zkouska::ZkusebniFirma firma;
    const char* const dotaz =
        "SELECT Rok, Typ, Nazev, Vytvoreno, Zmeneno FROM Rpd ORDER BY Pocitadlo";
    const std::string puvodni = firma.vypis(dotaz);
    wages::acPridatZakladniExecute(firma.session);
    wages::acPridatZakladniExecute(firma.session);
    const std::string ted = "|2022-01-15T08:00:00|2022-01-15T08:00:00\n";
    const std::string dvojice =
        "2022|0|Základní 8:00 hodin" + ted + "2022|0|Základní 7:30 hodin" + ted;
    EXPECT_EQ(firma.vypis(dotaz), puvodni + dvojice + dvojice);
}

TEST(Kalendar, NacteSeJenSvehoRoku) {
    zkouska::ZkusebniFirma firma;
    wages::acPridatZakladniExecute(firma.session);
    const int id = std::stoi(firma.vypis("SELECT MAX(Pocitadlo) AS M FROM Rpd"));
    EXPECT_EQ(wages::nacti_kalendar(firma.session, id, firma.session.rok),
              wages::zakladni_kalendar(firma.session.rok, 450));
    EXPECT_FALSE(wages::nacti_kalendar(firma.session, id, firma.session.rok - 1));
    EXPECT_FALSE(wages::nacti_kalendar(firma.session, id + 1, firma.session.rok));
}

}  // namespace
