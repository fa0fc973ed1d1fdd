#include "payrun/pojisteni.h"

#include <gtest/gtest.h>

namespace payrun {
namespace {

TEST(SocialniPojisteni, ZakladAPojistneNaHranicichKodu) {
    struct Pripad {
        Socialni kod;
        Castka do_zakladu, hruba, zaklad, pojistne;
    };
    const Pripad pripady[] = {
        {Socialni::plati, 10000, 10000, 10000, 650},
        {Socialni::plati, 10001, 10001, 10001, 651},  // 650,065 nahoru
        {Socialni::plati, -1000, -1000, -1000, -65},
        {Socialni::maly_rozsah, 3499, 3499, 0, 0},
        {Socialni::maly_rozsah, 3500, 3500, 3500, 228},  // 227,5 nahoru
        {Socialni::dohoda, 10000, 10000, 0, 0},
        {Socialni::dohoda, 10001, 10001, 10001, 651},
        {Socialni::neplati, 50000, 50000, 0, 0},
        {Socialni::druhy_pilir, 100, 100, 100, 7},     // bez hranice
        {Socialni::plati, 19999, 20000, 19999, 1300},  // koruna vyňatá ze základu
        {Socialni::plati, 19999.002L, 20000, 20000, 1300},
    };
    for (const Pripad& p : pripady) {
        SCOPED_TRACE(testing::Message() << "kód " << static_cast<int>(p.kod) << ", "
                                        << static_cast<double>(p.do_zakladu));
        const Castka zaklad = zaklad_socialniho_pojisteni(p.kod, p.do_zakladu, p.hruba, nullptr);
        EXPECT_EQ(zaklad, p.zaklad);
        EXPECT_EQ(socialni_pojisteni_Kc(p.kod, zaklad, 6.5L, nullptr), p.pojistne);
    }
}

TEST(SocialniPojisteni, HraniceSeZkousiIPoZmeneZakladu) {
    EXPECT_EQ(socialni_pojisteni_Kc(Socialni::maly_rozsah, 3499, 6.5L, nullptr), 0);
    EXPECT_EQ(socialni_pojisteni_Kc(Socialni::dohoda, 10000, 6.5L, nullptr), 0);
    EXPECT_EQ(socialni_pojisteni_Kc(Socialni::neplati, 20000, 6.5L, nullptr), 0);
}

TEST(SocialniPojisteni, PilireSeZaokrouhlujiZvlast) {
    EXPECT_EQ(socialni_pojisteni_Kc(Socialni::druhy_pilir, 20010, 3.5L, nullptr), 701);  // 700,35
    EXPECT_EQ(druhy_pilir_Kc(20010, 5, nullptr), 1001);                                  // 1000,5
}

TEST(ZdravotniPojisteni, ZakladAPojistnePodleKodu) {
    struct Pripad {
        Zdravotni kod;
        bool duchodce, student;
        Castka hruba, zaklad, pojistne;
    };
    const Pripad pripady[] = {
        {Zdravotni::plati, false, false, 10000, 10000, 450},
        {Zdravotni::plati, false, false, 10002, 10002, 451},  // 450,09 nahoru
        {Zdravotni::plati, true, false, 20000, 12697, 572},   // důchodce: bez 7303
        {Zdravotni::plati, false, true, 20000, 12697, 572},   // student stejně
        {Zdravotni::plati, true, false, 7000, 0, 0},          // hranice nad hrubou
        {Zdravotni::minimum, true, false, 8000, 16200, 729},
        {Zdravotni::minimum, false, false, 16200, 16200, 729},
        {Zdravotni::minimum, false, false, 17000, 17000, 765},
        {Zdravotni::maly_rozsah, false, false, 3499, 0, 0},
        {Zdravotni::maly_rozsah, false, false, 3500, 3500, 158},  // 157,5
        {Zdravotni::maly_rozsah, true, false, 10000, 2697, 0},  // po snížení znovu pod hranicí
        {Zdravotni::dohoda, false, true, 10000, 0, 0},
        {Zdravotni::dohoda, false, true, 10001, 10001, 451},  // bez snížení
        {Zdravotni::neplati, false, false, 30000, 0, 0},
        {static_cast<Zdravotni>(0), true, false, 10000, 10000, 450},
    };
    for (const Pripad& p : pripady) {
        SCOPED_TRACE(testing::Message() << "kód " << static_cast<int>(p.kod) << ", hrubá "
                                        << static_cast<double>(p.hruba));
        const ZdravotniPodminky podminky{p.kod, p.duchodce, p.student, 7303, 16200};
        const Castka zaklad = zaklad_zdravotniho_pojisteni(podminky, p.hruba, p.hruba, nullptr);
        EXPECT_EQ(zaklad, p.zaklad);
        EXPECT_EQ(zdravotni_pojisteni_Kc(p.kod, zaklad, 4.5L, nullptr), p.pojistne);
    }
}

TEST(RocniMaximum, ZakladSeKratiNaZbytek) {
    struct Pripad {
        Castka zaklad, predchozi, vysledek;
    };
    const Pripad pripady[] = {
        {50000, 0, 50000},
        {50000, 1817728, 50000},  // přesně na maximum
        {50000, 1817729, 49999},
        {50000, 1867727, 1},
        {50000, 1867728, 0},
        {50000, 1900000, 0},
        {0, 0, 0},
        {-500, 1000000, -500},
    };
    for (const Pripad& p : pripady) {
        EXPECT_EQ(strop(p.zaklad, p.predchozi, 1867728), p.vysledek)
            << static_cast<double>(p.predchozi);
    }
}

TEST(VyloucenySloupec, PlatiJenProSvujRadekANulaNicNevylucuje) {
    shell::Nastaveni nastaveni;
    nastaveni.nejde_do_pojisteni[0][7] = 3;
    nastaveni.nejde_do_pojisteni[1][0] = 4;
    nastaveni.nejde_do_pojisteni[2][4] = 5;
    for (int sloupec = 0; sloupec <= 6; ++sloupec) {
        EXPECT_EQ(Jde_do_socialniho_pojisteni(nastaveni, sloupec), sloupec != 3) << sloupec;
        EXPECT_EQ(Jde_do_zdravotniho_pojisteni(nastaveni, sloupec), sloupec != 4) << sloupec;
        EXPECT_EQ(Jde_do_dane(nastaveni, sloupec), sloupec != 5) << sloupec;
    }
}

}  // namespace
}  // namespace payrun
