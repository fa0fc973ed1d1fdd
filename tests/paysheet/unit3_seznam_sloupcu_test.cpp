// The list of pay-sheet columns and the form of one column.
#include "paysheet/unit3_seznam_sloupcu.h"

#include <functional>
#include <gtest/gtest.h>

#include "base/klavesy.h"
#include "paysheet/sloupce.h"
#include "paysheet/unit4_sloupec.h"
#include "report/nahled.h"
#include "report/text.h"
#include "support/zkusebni_firma.h"

namespace {

using paysheet::TForm3;
using paysheet::TForm4;

class SeznamSloupcu : public testing::Test {
  protected:
    zkouska::ZkusebniFirma firma;
    TForm3 form{firma.session};

    /// Changes rows of the columns, outside the screens.
    void uprav(const char* prikaz) {
        store::Transaction transakce(firma.data());
        ASSERT_GT(firma.data().execute(prikaz), 0);
        transakce.commit();
    }
    /// Works the form of column `sloupec` as the operator does.
    void oprav(int sloupec, const std::function<void(TForm4&)>& prace) {
        firma.obsluha.pri_obrazovce = [prace](base::Obrazovka& obrazovka) {
            prace(dynamic_cast<TForm4&>(obrazovka));
        };
        form.vyber_radek(sloupec - 1);
        form.btOpravitClick();
    }
};

TEST_F(SeznamSloupcu, PrehledModuluUkazujeRozsahyAChybejiciModuly) {
    shell::RidiciZorv zaznam = firma.session.ridici_zorv;
    zaznam.modul5_od = zaznam.modul5_do = zaznam.modul11 = 0;
    paysheet::Vypln_formular_3(form, zaznam);
    EXPECT_EQ(form.moduly,
              (std::array<std::string, 14>{"1 až 2", "3", "4 až 5", "6", "není", "9", "10", "11",
                                           "12", "13 až 14", "není", "16", "17", "18"}));
}

TEST_F(SeznamSloupcu, PanelyJsouJenUSvychModulu) {
    uprav(
        "UPDATE Ridici SET nadpis_1 = 'hodin', predrazeno_1 = 2, Min_1 = 1, Max_1 = 200, "
        "Konstanta_1 = 1.5, var_vyp = 8, Jake_dny = 1, Jake_hodiny = 3, Stroj = TRUE "
        "WHERE Sloupec = 1");
    form.FormShow();
    ASSERT_EQ(form.sloupce.size(), 18U);
    EXPECT_EQ(form.sloupce[12].calModulSlovy, "srážky");
    for (int i = 0; i < 18; ++i) {
        form.vyber_radek(i);
        const int modul = form.sloupce[static_cast<std::size_t>(i)].modul;
        EXPECT_EQ(form.panel_viditelny, modul == 1 || modul == 3) << modul;
        EXPECT_EQ(form.panel_znacek_viditelny, modul == 10) << modul;
        EXPECT_EQ(form.datum.empty(), !form.panel_viditelny) << modul;
    }
    form.vyber_radek(0);
    EXPECT_EQ(form.hodnoty[0].nadpis, "hodin");
    EXPECT_EQ(form.hodnoty[0].predradit, "2");
    EXPECT_EQ(form.hodnoty[0].max, "200");
    EXPECT_EQ(form.hodnoty[0].standardne, "1,5");
    EXPECT_EQ(form.hodnoty[1].predradit, "...");
    EXPECT_EQ(form.hodnoty[3].standardne, "...");
    EXPECT_EQ(form.vypocet, "1 x 2 + 3 x 4");
    EXPECT_EQ(form.dny, "Dny jsou odpracované.");
    EXPECT_EQ(form.hodiny, "Hodiny vedlejší pracovní poměr.");
    EXPECT_EQ(form.stroj, "ANO");
    EXPECT_EQ(form.datum, "ne");
    form.vyber_radek(1);
    EXPECT_EQ(form.vypocet, "???");
    EXPECT_EQ(form.dny, "Dny se nezadávají.");
}

TEST_F(SeznamSloupcu, PrazdnaTabulkaNeniCoOpravovat) {
    uprav("DELETE FROM Ridici");
    form.FormShow();
    EXPECT_FALSE(form.opravit_povoleno);
    EXPECT_EQ(form.radek, -1);
    form.btOpravitClick();
}

TEST_F(SeznamSloupcu, TlacitkaBezObrazovkyToReknouJednouVetou) {
    form.FormShow();
    form.btPridatClick();
    form.btSmazatClick();
    EXPECT_EQ(firma.obsluha.hlasky.size(), 2U);
    EXPECT_EQ(firma.vypis("SELECT COUNT(*) FROM Ridici"), "18\n");
}

TEST_F(SeznamSloupcu, TiskUkazeVsechnySloupceVNahledu) {
    uprav("UPDATE Ridici SET var_vyp = 5 WHERE Sloupec = 2");
    form.FormShow();
    std::string nazev, text;
    firma.obsluha.pri_obrazovce = [&](base::Obrazovka& obrazovka) {
        const auto& nahled = dynamic_cast<report::TFUsrPrev&>(obrazovka);
        nazev = nahled.dokument.nazev;
        text = report::jako_text(nahled.dokument);
    };
    form.btTiskClick();
    EXPECT_EQ(nazev, "Parametry výplatní listiny - " + firma.session.radek_firmy);
    for (const auto& sloupec : form.sloupce)
        EXPECT_NE(text.find(sloupec.text), std::string::npos) << sloupec.text;
    EXPECT_NE(text.find("1 x 2"), std::string::npos);
    EXPECT_EQ(form.radek, 0) << "kurzor zůstal";
}

TEST_F(SeznamSloupcu, OpravaUloziVsechnyUdajeARadekZustaneOznaceny) {
    form.FormShow();
    oprav(2, [](TForm4& f) {
        EXPECT_EQ(f.modul, "1");
        EXPECT_EQ(f.sloupec, "2");
        EXPECT_TRUE(f.text_povolen);
        EXPECT_TRUE(f.detail_viditelny);
        EXPECT_EQ(f.scVypocet, -1);
        EXPECT_FALSE(f.hodnoty[0].povoleno);
        f.text = "úkolová mzda ---";
        f.hodnoty[0].nadpis = "kusů";
        f.opusteni_nadpisu(0);
        EXPECT_TRUE(f.hodnoty[0].povoleno);
        f.hodnoty[0].predrazeno = "12";
        f.hodnoty[0].min = "-5";
        f.hodnoty[0].max = "9999999";
        f.hodnoty[0].konstanta = "2,25";
        f.scDny = 2;
        f.scHodiny = 1;
        f.scVypocet = 7;
        f.scVykon = true;
        f.Button2Click();
        EXPECT_TRUE(f.ulozeno);
    });
    EXPECT_EQ(form.radek, 1);
    EXPECT_EQ(form.sloupce[1].text, "úkolová mzda ---");
    EXPECT_EQ(form.vypocet, "1 x 2 + 3 x 4");
    EXPECT_EQ(firma.vypis("SELECT text, Jake_dny, Jake_hodiny, Vykon, nadpis_1, predrazeno_1, "
                          "Min_1, Max_1, Konstanta_1, predrazeno_2, var_vyp FROM Ridici "
                          "WHERE Sloupec = 2"),
              "úkolová mzda ---|2|1|true|kusů|12|-5|9999999|2.25||8\n");
    oprav(2, [](TForm4& f) {
        EXPECT_EQ(f.hodnoty[0].konstanta, "2,25");
        EXPECT_EQ(f.scVypocet, 7);
        // An emptied caption takes the fields of its value with it.
        f.hodnoty[0].nadpis = " ";
        f.opusteni_nadpisu(0);
        EXPECT_FALSE(f.hodnoty[0].povoleno);
        EXPECT_EQ(
            f.hodnoty[0].predrazeno + f.hodnoty[0].min + f.hodnoty[0].max + f.hodnoty[0].konstanta,
            "");
        f.Button1Click();
    });
    EXPECT_EQ(form.hodnoty[0].predradit, "12");
}

struct Odmitnuti {
    std::function<void(TForm4&)> uprava;
    const char* hlaska;  ///< nullptr: the screen just stays
    const char* fokus;
};

const Odmitnuti k_odmitnuti[] = {
    {[](TForm4& f) { f.hodnoty[0].predrazeno = f.hodnoty[1].predrazeno = "13"; },
     "Údaj \"předřadit\" u \"první hodnoty\" neodpovídá.", "predrazeno_1"},
    {[](TForm4& f) { f.hodnoty[1].predrazeno = "99"; },
     "Údaj \"předřadit\" u \"druhé hodnoty\" neodpovídá.", "predrazeno_2"},
    {[](TForm4& f) { f.hodnoty[2].predrazeno = "x"; },
     "Údaj \"předřadit\" u \"třetí hodnoty\" neodpovídá.", "predrazeno_3"},
    {[](TForm4& f) { f.hodnoty[3].predrazeno = "13", f.scVypocet = -1; },
     "Údaj \"předřadit\" u \"čtvrté hodnoty\" neodpovídá.", "predrazeno_4"},
    {[](TForm4& f) { f.scVypocet = -1; }, nullptr, ""},
    {[](TForm4& f) { f.hodnoty[1].max = "12345678"; },
     "Údaj \"12345678\" musí být celé číslo, nejvýše 7 číslic.", "Max_2"},
    {[](TForm4& f) { f.hodnoty[2].konstanta = "1,,5"; }, "Údaj \"1,,5\" musí být číslo.",
     "Konstanta_3"},
    {[](TForm4& f) { f.text = "třicet jedna znaků je o jeden víc"; },
     "Text \"třicet jedna znaků je o jeden víc\" smí mít nejvýše 30 znaků.", "text"},
    {[](TForm4& f) { f.hodnoty[3].nadpis = "漢"; },
     "Text \"漢\" obsahuje znak, který nelze uložit.", "nadpis_4"},
};

TEST_F(SeznamSloupcu, ChybnyUdajSeNeulozi) {
    form.FormShow();
    const std::string puvodni = firma.vypis("SELECT * FROM Ridici");
    for (const Odmitnuti& o : k_odmitnuti) {
        SCOPED_TRACE(o.hlaska ? o.hlaska : "bez výpočtu");
        firma.obsluha.hlasky.clear();
        oprav(1, [&](TForm4& f) {
            f.scVypocet = 0;
            for (TForm4::Hodnota& h : f.hodnoty)
                h.nadpis = "hodnota";
            o.uprava(f);
            f.Button2Click();
            EXPECT_FALSE(f.zavreno);
            EXPECT_EQ(f.fokus, o.fokus);
        });
        EXPECT_EQ(firma.obsluha.hlasky,
                  o.hlaska ? std::vector<std::string>{o.hlaska} : std::vector<std::string>{});
    }
    EXPECT_EQ(firma.vypis("SELECT * FROM Ridici"), puvodni);
}

TEST_F(SeznamSloupcu, OstatniModulyMajiJenTextASocialniDavkyAniTen) {
    form.FormShow();
    oprav(13, [](TForm4& f) {
        EXPECT_FALSE(f.detail_viditelny);
        f.text = "penze *PF*";
        f.Button2Click();
        EXPECT_TRUE(f.zavreno);
    });
    EXPECT_EQ(form.sloupce[12].text, "penze *PF*");
    oprav(6, [](TForm4& f) {
        EXPECT_FALSE(f.text_povolen);
        f.text = "jiný";
        f.Button2Click();
    });
    EXPECT_EQ(form.sloupce[5].text, "sociální dávky");
}

TEST_F(SeznamSloupcu, KlavesyPodleDruhuPole) {
    form.FormShow();
    using Pole = TForm4::Pole;
    struct Klavesa {
        Pole pole;
        char znak;
        const char* dosud;
        bool pusti;
    };
    const Klavesa k_klavesy[] = {
        {Pole::predrazeno, '1', "1", true}, {Pole::predrazeno, '1', "11", false},
        {Pole::predrazeno, '-', "", false}, {Pole::min, '-', "", true},
        {Pole::max, '1', "1234567", false}, {Pole::min, ',', "1", false},
        {Pole::konstanta, ',', "1", true},  {Pole::konstanta, ',', "1,", false},
        {Pole::konstanta, '-', "", true},   {Pole::max, base::k_enter, "1234567", true},
    };
    oprav(1, [&](TForm4& f) {
        for (const Klavesa& k : k_klavesy)
            EXPECT_EQ(f.povol_klavesu(k.pole, k.znak, k.dosud), k.pusti) << k.znak << k.dosud;
    });
    EXPECT_EQ(firma.obsluha.pipnuti, 5);
}

TEST_F(SeznamSloupcu, PoOdchoduSeJmenaSloupcuNactouZnovu) {
    firma.obsluha.pri_obrazovce = [&](base::Obrazovka& obrazovka) {
        auto& seznam = dynamic_cast<TForm3&>(obrazovka);
        EXPECT_EQ(seznam.moduly[0], "1 až 2");
        EXPECT_EQ(seznam.radek, 0);
        uprav("UPDATE Ridici SET text = 'základní mzda' WHERE Sloupec = 1");
        EXPECT_EQ(paysheet::sloupec_slovy(firma.session, 1), "hrubé mzdy - sloupec 1");
        seznam.btZpetClick();
    };
    paysheet::acNastaveniVLExecute(firma.session);
    EXPECT_EQ(paysheet::sloupec_slovy(firma.session, 1), "základní mzda");
}

TEST(VariantyVypoctu, NeznamaJeOtaznik) {
    EXPECT_EQ(TForm3::varianta_vypoctu(0), "???");
    EXPECT_EQ(TForm3::varianta_vypoctu(1), "dosadit hodnotu 1");
    EXPECT_EQ(TForm3::varianta_vypoctu(9), "1 x 2 x ( 3 + 100 ) / 100");
    EXPECT_EQ(TForm3::varianta_vypoctu(12), "1 x 2 / 100 x 3 / 100");
    EXPECT_EQ(TForm3::varianta_vypoctu(13), "???");
    EXPECT_STREQ(TForm4::k_vypocty[7], "1 x 2 x 3 x 4");
}

}  // namespace
