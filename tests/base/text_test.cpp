#include "base/text.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace {

using Kusy = std::vector<std::string>;

TEST(Text, CislaZTextu) {
    const struct {
        const char* text;
        int cele;
        double desetinne;
    } pripady[] = {{"42", 42, 42},      {" -7 ", -7, -7}, {"+5", 5, 5},
                   {"", 0, 0},          {"12a", 0, 0},    {"1,5", 0, 1.5},
                   {"-0.25", 0, -0.25}, {"1.2.3", 0, 0},  {"99999999999", 0, 99999999999},
                   {"inf", 0, 0},       {"--1", 0, 0},    {"-", 0, 0},
                   {"1e3", 0, 0},       {"+-1", 0, 0},    {",5", 0, 0.5}};
    for (const auto& p : pripady) {
        EXPECT_EQ(base::je_cele_cislo(p.text), p.cele) << p.text;
        EXPECT_EQ(base::je_desetinne_cislo(p.text), static_cast<base::Castka>(p.desetinne))
            << p.text;
    }
}

TEST(Text, PlneniMezerAOrezavani) {
    EXPECT_FALSE(base::neprazdny(" \t\r\n"));
    EXPECT_TRUE(base::neprazdny(" x "));
    EXPECT_EQ(base::orez("  Jan Novák \r\n"), "Jan Novák");
    EXPECT_EQ(base::cislo_s_nulami(7, 3), "007");
    EXPECT_EQ(base::cislo_s_nulami(1234, 3), "1234");
    EXPECT_EQ(base::mezery(-1), "");
    EXPECT_EQ(base::odstran_mezery(1, "  a b "), "a b ");
    EXPECT_EQ(base::odstran_mezery(2, "  a b "), "  a b");
    EXPECT_EQ(base::odstran_mezery(1, "   "), "");
    EXPECT_EQ(base::odstran_mezery(2, "   "), "");
}

TEST(Text, RozdelTextVynechaJenPrazdnyKonec) {
    EXPECT_EQ(base::rozdel_text(" a ;b; ", ';'), (Kusy{"a", "b"}));
    EXPECT_EQ(base::rozdel_text("a;;b", ';'), (Kusy{"a", "", "b"}));
    EXPECT_EQ(base::rozdel_text(";", ';'), (Kusy{""}));
    EXPECT_EQ(base::rozdel_text("", ';'), Kusy{});
}

TEST(Text, AdresaAJmeno) {
    EXPECT_EQ(base::psc_z_adresy("530 02  Pardubice 19"), "53002");
    EXPECT_EQ(base::obec_z_adresy("530 02  Pardubice 19"), "Pardubice 19");
    EXPECT_EQ(base::psc_z_adresy("Brno 60200"), "");
    EXPECT_EQ(base::psc_z_adresy("6020012"), "60200");
    EXPECT_EQ(base::obec_z_adresy("60200"), "");
    EXPECT_EQ(base::prijmeni_jmeno("Nová Malá Eva"),
              std::pair(std::string("Nová Malá"), std::string("Eva")));
    EXPECT_EQ(base::prijmeni_jmeno("Nováková").first, "Nováková");
}

TEST(Text, PoleSePocitajiVeZnacich) {
    EXPECT_EQ(base::pocet_znaku("žluťoučký"), 9U);
    EXPECT_EQ(base::znaky("žluťoučký", 2, 3), "luť");
    EXPECT_EQ(base::znaky("kůň", 3, 9), "ň");
    EXPECT_EQ(base::znaky("kůň", 4, 1), "");
    EXPECT_EQ(base::na_sirku("kůň", 5), "kůň  ");
    EXPECT_EQ(base::na_sirku("koníček", 4), "koní");
    EXPECT_EQ(base::nejvyse("ěšč", 2), "ěš");
}

RC_GTEST_PROP(Text, PoleNaSirkuMaVzdySvouSirku, (const std::string& text)) {
    const auto sirka = *rc::gen::inRange<std::size_t>(0, 20);
    RC_ASSERT(base::pocet_znaku(base::na_sirku(text, sirka)) == sirka);
}

TEST(Text, VelikostPismenCestiny) {
    EXPECT_EQ(base::velkymi("Příliš žluťoučký kůň 1a"), "PŘÍLIŠ ŽLUŤOUČKÝ KŮŇ 1A");
    EXPECT_EQ(base::malymi("ĎÁBELSKÉ ÓDY"), "ďábelské ódy");
    EXPECT_TRUE(base::stejne_bez_velikosti("Číslo", "ČÍSLO"));
    EXPECT_TRUE(base::stejne_bez_velikosti("By_Tr1", "by_tr1"));
    EXPECT_FALSE(base::stejne_bez_velikosti("Číslo", "Cislo"));
    EXPECT_FALSE(base::stejne_bez_velikosti("a", "ab"));
}

TEST(Text, JeUtf8OdmitneRozbiteBajty) {
    EXPECT_TRUE(base::je_utf8("kůň €"));
    for (const char* rozbity : {"k\xF9\xF2", "\xC5", "\xC0\x80", "\xED\xA0\x80"})
        EXPECT_FALSE(base::je_utf8(rozbity)) << rozbity;
}

TEST(Text, CeskePoradi) {
    const Kusy v_poradi{"0", "9", "a", "A", "á", "Á", "c", "C", "h", "H", "ch", "Ch", "ž", "Ž"};
    Kusy texty(v_poradi.rbegin(), v_poradi.rend());
    std::sort(texty.begin(), texty.end(),
              [](const auto& a, const auto& b) { return base::porovnej_cesky(a, b) < 0; });
    EXPECT_EQ(texty, v_poradi);

    EXPECT_LT(base::porovnej_cesky("Hynek", "Chalupa"), 0);
    EXPECT_LT(base::porovnej_cesky("Chalupa", "Ilona"), 0);
    EXPECT_LT(base::porovnej_cesky("Cibulka", "Čermák"), 0);
    EXPECT_LT(base::porovnej_cesky("Novák", "Nováková"), 0);
    EXPECT_LT(base::porovnej_cesky("Řezáč", "Sova"), 0);
    EXPECT_EQ(base::porovnej_cesky("kůň", "kůň"), 0);
}

TEST(Text, CeskePoradiBezVelikostiRozlisiJenDiakritiku) {
    EXPECT_EQ(base::porovnej_cesky_bez_velikosti("CHALUPA", "chalupa"), 0);
    EXPECT_EQ(base::porovnej_cesky_bez_velikosti("ŽÁK", "žák"), 0);
    EXPECT_LT(base::porovnej_cesky_bez_velikosti("Zak", "žák"), 0);
    EXPECT_LT(base::porovnej_cesky_bez_velikosti("a", "Á"), 0);
}

}  // namespace
