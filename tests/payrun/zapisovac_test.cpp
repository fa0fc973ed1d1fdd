#include "payrun/zapisovac.h"

#include <gtest/gtest.h>

#include "base/text.h"

namespace payrun {
namespace {

/// Remembers whether the amount of the last row was filled.
class ZaznamCile final : public CilVet {
  public:
    void pridej(const Veta& veta) override {
        ++vet;
        hodnota = veta.hodnota;
        co_je_to = veta.co_je_to;
        poznamka = veta.poznamka;
    }
    int vet = 0;
    std::optional<double> hodnota;
    std::string co_je_to, poznamka;
};

class Zapis : public testing::Test {
  protected:
    std::vector<std::string> chyby;
    Karta karta;
    ZaznamCile cil;
    Zapisovac zapisovac{chyby};
    void SetUp() override {
        karta.cislo = 7;
        zapisovac.zacni_pracovnika(karta, cil, nullptr);
    }
    bool zapis(int modul, Castka hodnota, int sloupec = 1) {
        return zapisovac.zapis_vetu_do_vyplatni_listiny({modul, sloupec, "x", hodnota}).has_value();
    }
};

TEST_F(Zapis, PrazdneVetyZustavajiJenVNekterychModulech) {
    for (int modul = 1; modul <= 94; ++modul) {
        const bool zustava = modul == 4 || modul == 9 || modul == 14 || modul >= 87;
        for (const Castka hodnota : {Castka{0}, Castka{0.005L}, Castka{0.01L}, Castka{-0.01L}}) {
            EXPECT_EQ(zapis(modul, hodnota), zustava) << modul;
            if (zustava) {
                EXPECT_FALSE(cil.hodnota) << modul;
            }
        }
        EXPECT_TRUE(zapis(modul, 0.011L)) << modul;
    }
    EXPECT_TRUE(chyby.empty());
}

TEST_F(Zapis, CastkaSeUkladaNaKorunyACasNaSetiny) {
    struct Pripad {
        int modul;
        Castka hodnota;
        double ulozeno;
    };
    const Pripad pripady[] = {
        {3, 100.5L, 100},
        {3, 101.5L, 102},
        {3, 100.51L, 101},
        {14, -100.5L, -100},
        {14, 0.3L, 0},
        {51, 12.345L, 12.34},
        {55, 12.355L, 12.36},
        {71, 0.5L, 0.5},
        {73, 0.126L, 0.13},
        {61, 99.5L, 100},
        {3, Castka{1001.3} + 0.2, 1002},
    };
    for (const Pripad& p : pripady) {
        ASSERT_TRUE(zapis(p.modul, p.hodnota));
        ASSERT_TRUE(cil.hodnota);
        EXPECT_EQ(*cil.hodnota, p.ulozeno) << p.modul << ": " << static_cast<double>(p.hodnota);
    }
}

TEST_F(Zapis, SloupecMusiBytZadanVModulech1Az14) {
    EXPECT_FALSE(zapis(1, 0, 0));
    EXPECT_TRUE(chyby.empty());
    EXPECT_FALSE(zapis(14, 100, 0));
    EXPECT_FALSE(zapis(9, 0, 0));
    EXPECT_TRUE(zapis(61, 100, 0));
    const std::vector<std::string> ceka{
        "Pracovník 7 : v parametrech není zadán", "     sloupec pro modul 14.",
        "Pracovník 7 : v parametrech není zadán", "     sloupec pro modul 9."};
    EXPECT_EQ(chyby, ceka);
}

TEST_F(Zapis, NecoZapsanoASouctyJenZeZapsanych) {
    EXPECT_FALSE(zapis(1, 0));
    EXPECT_FALSE(zapis(1, 5, 0));
    EXPECT_FALSE(zapisovac.neco_zapsano());
    EXPECT_TRUE(zapis(9, 0));
    EXPECT_TRUE(zapisovac.neco_zapsano());
    zapisovac.zacni_pracovnika(karta, cil, nullptr);
    EXPECT_FALSE(zapisovac.neco_zapsano());
    for (int i = 0; i < 2; ++i) {
        for (const int modul : {2, 3, 4, 61, 62, 5})
            zapis(modul, modul + 0.4L);
    }
    const SoucetMesice& s = zapisovac.soucet_mesice();
    EXPECT_EQ(s.hrube_mzdy, 4);
    EXPECT_EQ(s.naturalni_mzda, 6);
    EXPECT_EQ(s.socialni_davky, 8);
    EXPECT_EQ(s.zaklad_socialniho, 122);
    EXPECT_EQ(s.zaklad_zdravotniho, 124);
}

TEST_F(Zapis, DlouheTextySeUseknouNaZnaky) {
    std::string dlouhy;
    for (int i = 0; i < 120; ++i)
        dlouhy += "ž";
    zapisovac.zapis_vetu_do_vyplatni_listiny({61, 0, dlouhy, 100, dlouhy});
    EXPECT_EQ(base::pocet_znaku(cil.co_je_to), 30U);
    EXPECT_EQ(base::pocet_znaku(cil.poznamka), 100U);
}

}  // namespace
}  // namespace payrun
