// The whole road of a clerk through the screens of the main form: a new company with its first
// structure, columns, settings, calendar and insurers, three workers, a month of items with one
// incapacity, the pay run and the pay sheet explained. Past the screens come only the performances,
// which are the accounting module's.
#include <deque>
#include <functional>
#include <gtest/gtest.h>

#include "menu/unit1_hlavni.h"
#include "payrun/unit133_prohlizeni_mezd.h"
#include "payrun/unit21_vypocet_vyplat.h"
#include "paysheet/unit14_nastaveni.h"
#include "paysheet/unit2_struktura.h"
#include "paysheet/unit3_seznam_sloupcu.h"
#include "paysheet/unit4_sloupec.h"
#include "shell/nova_firma.h"
#include "support/prazdna_relace.h"
#include "wages/unit17_zadani.h"
#include "wages/unit_rpd.h"
#include "workers/unit13_fixni_pracovnika.h"
#include "workers/unit26_pojistovny.h"
#include "workers/unit6_registr.h"
#include "workers/unit7_karta.h"
#include "workers/unit9_dite.h"

namespace {

using paysheet::TForm4;
using wages::TForm17;
using workers::TForm7;

/// The clerk: knows which screen comes next and what to do on it.
class CelaCesta : public testing::Test, protected zkouska::PrazdnaRelace {
  protected:
    menu::TForm1 hlavni{session};

    CelaCesta() {
        EXPECT_EQ(shell::zaloz_slozku_firmy(koren.cesta(), "DILNA22", {"Dílna", "12345679"}), "");
        session.firma = "DILNA22";
        session.velmar.logovat = false;
        obsluha.pri_obrazovce = [this](base::Obrazovka& obrazovka) {
            ASSERT_FALSE(prace_.empty()) << "nečekaná obrazovka " << obrazovka.jmeno();
            const auto prace = std::move(prace_.front());
            prace_.pop_front();
            prace(obrazovka);
        };
    }
    void TearDown() override {
        EXPECT_TRUE(prace_.empty()) << "některá obrazovka se neukázala";
        EXPECT_TRUE(obsluha.odpovedi.empty());
    }

    /// Work on the screen that is shown next; screens shown inside it are announced by it.
    template <class Form>
    void na_obrazovce(std::function<void(Form&)> prace) {
        prace_.push_back([prace = std::move(prace)](base::Obrazovka& obrazovka) {
            auto* form = dynamic_cast<Form*>(&obrazovka);
            ASSERT_NE(form, nullptr) << "jiná obrazovka: " << obrazovka.jmeno();
            prace(*form);
        });
    }
    void akce(const char* nazev) { EXPECT_TRUE(hlavni.proved_akci(nazev)) << nazev; }

    // --- The company --------------------------------------------------------------------------

    void zaloz_firmu() {
        na_obrazovce<paysheet::TForm2>([](auto& struktura) { struktura.btOKClick(); });
        ASSERT_TRUE(hlavni.zaloz_soubory());
    }

    void uprav_sloupec(paysheet::TForm3& seznam, int sloupec, std::function<void(TForm4&)> prace) {
        for (std::size_t i = 0; i < seznam.sloupce.size(); ++i)
            if (seznam.sloupce[i].sloupec == sloupec) seznam.vyber_radek(static_cast<int>(i));
        na_obrazovce<TForm4>([&](TForm4& form) {
            prace(form);
            form.Button2Click();
            EXPECT_TRUE(form.ulozeno) << form.fokus;
        });
        seznam.btOpravitClick();
    }

    void nastav_sloupce() {
        na_obrazovce<paysheet::TForm3>([this](auto& seznam) {
            uprav_sloupec(seznam, 1, [](TForm4& form) {
                form.text = "základní plat";
                form.scVypocet = 0;  // value 1
            });
            uprav_sloupec(seznam, 2, [](TForm4& form) {
                form.text = "mzda hodinová";
                form.scDny = form.scHodiny = 1;
                form.scVypocet = 4;  // 1 x 2
                form.hodnoty[0] = {"hodin", "2", "-300", "300", "", true};
                form.hodnoty[1] = {"sazba Kč", "5", "0", "999", "", true};
            });
            uprav_sloupec(seznam, 4, [](TForm4& form) {
                form.text = "auto";
                form.scVypocet = 5;  // 1 x 2 / 100
                form.hodnoty[0] = {"cena vozu", "0", "0", "999999", "", true};
                form.hodnoty[1] = {"procent", "7", "0", "1", "1", true};
            });
            uprav_sloupec(seznam, 7, [](TForm4& form) { form.text = "náhrada mzdy - nemoc"; });
            seznam.btZpetClick();
        });
        akce("acNastaveniVL");
    }

    void nastav_parametry() {
        na_obrazovce<paysheet::TForm14>([](auto& nastaveni) {
            nastaveni.Edit1 = "1";
            nastaveni.scNahradaNemocSloupec = "7";
            nastaveni.acUlozitExecute();
            EXPECT_TRUE(nastaveni.ulozeno) << nastaveni.fokus;
        });
        akce("acNastaveniParametru");
    }

    void zaloz_ciselniky() {
        na_obrazovce<wages::TFRpd>([](auto& kalendare) {
            kalendare.acPridatZakladniExecute();
            EXPECT_EQ(kalendare.vety.rows.size(), 2U);
            kalendare.acZpetExecute();
        });
        akce("acPracovniKalendar");
        obsluha.odpovez("Doplnit zdravotní pojišťovny České republiky?", true);
        na_obrazovce<workers::TForm26>([](auto& pojistovny) { pojistovny.acZpetExecute(); });
        akce("acPojistovnyFondy");
    }

    // --- The workers --------------------------------------------------------------------------

    using Pole = std::vector<std::pair<const char*, const char*>>;

    static void napis(TForm7& karta, const Pole& pole) {
        for (const auto& [ovladac, text] : pole) {
            karta.vstup_do_pole(ovladac);
            karta.psani(ovladac, text);
            karta.opusteni_pole(ovladac);
        }
    }

    /// A new card with the calendar of 8:00, taxed with the declaration signed.
    void pridej_pracovnika(workers::TForm6& registr, const Pole& pole, bool kratit) {
        na_obrazovce<TForm7>([&](TForm7& karta) {
            napis(karta, pole);
            napis(karta, {{"Cislo_zdrav_poj", "1"}, {"PROHLASENI_MESICE", "1-12"}});
            karta.hodnoty["Podepsal_prohlaseni"].ano = true;
            karta.hodnoty["KratitPlat"].ano = kratit;
            for (const char* volba : {"Podepsal_prohlaseni", "KratitPlat"})
                karta.zmena_volby(volba);
            na_obrazovce<wages::TFRpd>([](auto& kalendare) {
                kalendare.vyber_radek(1);
                kalendare.acVybratExecute();
            });
            karta.acRpdExecute();
            karta.acUlozitExecute();
            ASSERT_TRUE(karta.ulozeno) << karta.fokus;
        });
        registr.acPridatExecute();
    }

    void pridej_fixni(workers::TForm6& registr, const char* sloupec, const char* koruny) {
        na_obrazovce<workers::TForm13>([=](auto& polozka) {
            polozka.Sloupec = sloupec;
            polozka.SloupecExit();
            polozka.Kcs = koruny;
            polozka.acUlozitExecute();
            EXPECT_TRUE(polozka.ulozeno) << polozka.fokus;
        });
        registr.acFixniPridatExecute();
    }

    void zaloz_pracovniky() {
        na_obrazovce<workers::TForm6>([this](workers::TForm6& registr) {
            pridej_pracovnika(registr,
                              {{"Cislo", "1"},
                               {"Jmeno", "Jan"},
                               {"Prijmeni", "Novák"},
                               {"Rodne_cislo", "71-05-14/1010"},
                               {"Dat_nar_text", "14.5.1971"},
                               {"Staly_plat", "33600"},
                               {"PdovH4min", "200,00"}},
                              true);
            registr.vyber_stranku(workers::TForm6::Stranka::deti);
            na_obrazovce<workers::TForm9>([](auto& dite) {
                dite.Jmeno = "Eva";
                dite.Prijmeni = "Nováková";
                dite.Bydliste = "Brno";
                dite.Rodne_cislo = "15-51-02/1234";
                dite.Rodne_cisloExit();
                dite.Odpocitatelna_dan = "1267";
                dite.acOkExecute();
                EXPECT_TRUE(dite.ulozeno) << dite.fokus;
            });
            registr.acDetiPridatExecute();
            EXPECT_EQ(registr.deti.vety.rows.size(), 1U);
            registr.vyber_stranku(workers::TForm6::Stranka::fixni);
            pridej_fixni(registr, "13", "500");
            pridej_fixni(registr, "14", "880");
            EXPECT_EQ(registr.fixni.vety.rows.size(), 2U);

            pridej_pracovnika(registr,
                              {{"Cislo", "2"},
                               {"Jmeno", "Eva"},
                               {"Prijmeni", "Malá"},
                               {"Dat_nar_text", "9.2.1988"},
                               {"Sazba_OT", "180"}},
                              false);
            pridej_pracovnika(registr,
                              {{"Cislo", "3"},
                               {"Jmeno", "Karel"},
                               {"Prijmeni", "Starý"},
                               {"Dat_nar_text", "30.8.1984"},
                               {"Staly_plat", "25000"}},
                              false);
            EXPECT_EQ(registr.radky.size(), 3U);
            registr.acZpetExecute();
        });
        akce("acPracovnici");
    }

    // --- The month ----------------------------------------------------------------------------

    static void zvol(TForm17& form, int pracovnik, int sloupec) {
        form.vyber_pracovnika(pracovnik - 1);
        for (std::size_t i = 0; i < form.sloupce.size(); ++i)
            if (form.sloupce[i].sloupec.sloupec == sloupec) form.vyber_sloupec(static_cast<int>(i));
        ASSERT_EQ(form.zvoleny()->sloupec, sloupec);
    }

    static void zadej_nemoc(TForm17& form) {
        zvol(form, 1, 7);
        form.nahrady.scCisloDokladu = "N100122";
        form.nahrady.scTrvaniOd = "10.1.2022";
        form.nahrady.scTrvaniDo = "23.1.2022";
        form.nahrady.zmena();
        form.nahradyExit(wages::PoleNahrad::trvani_do);
        EXPECT_EQ(form.nahrady.scCelkovaNahrada, "8640,00");
        form.acKlavesaF2();
    }

    /// Days are typed, hours and both values are offered.
    static void zadej_hodinovou_mzdu(TForm17& form, const char* dny, const char* celkem) {
        zvol(form, 2, 2);
        form.zadani.dny = dny;
        form.DnyExit();
        for (const std::size_t hodnota : {0U, 1U}) {
            form.HodnotaEnter(hodnota);
            form.HodnotaExit(hodnota);
        }
        EXPECT_EQ(form.lbCelkem, celkem);
        form.acKlavesaF2();
    }

    void zadej_mesic() {
        na_obrazovce<TForm17>([](TForm17& form) {
            zadej_nemoc(form);
            zadej_hodinovou_mzdu(form, "21", "Celkem  30240,00 Kč");
            zadej_hodinovou_mzdu(form, "-1", "Celkem  -1440,00 Kč");
            zvol(form, 3, 4);
            form.zadani.hodnoty[0] = "500000";
            form.HodnotaExit(0);
            form.HodnotaEnter(1);
            form.HodnotaExit(1);
            form.acKlavesaF2();
            EXPECT_EQ(form.pracovnici[2].koruny, 5000);
            form.acZpet();
        });
        akce("acHrubeZorvNahrady");
    }

    void spocti_vyplaty() {
        na_obrazovce<payrun::TForm21>([](auto& vypocet) {
            vypocet.Button2Click();
            EXPECT_TRUE(vypocet.scChyby.empty()) << vypocet.scChyby.front();
            EXPECT_TRUE(vypocet.vysledky_viditelne);
            vypocet.Button1Click();
        });
        akce("acVypocetVyplat");
    }

    struct Ocekavano {
        const char *pracovnik, *k_vyplate;
    };

    /// The payable amounts as the browser shows and explains them.
    void over_listinu(const std::vector<Ocekavano>& ocekavano) {
        na_obrazovce<payrun::TForm133>([&](payrun::TForm133& mzdy) {
            ASSERT_EQ(mzdy.pracovnici.size(), ocekavano.size());
            for (std::size_t i = 0; i < ocekavano.size(); ++i) {
                SCOPED_TRACE(ocekavano[i].pracovnik);
                mzdy.vyber_pracovnika(static_cast<int>(i));
                EXPECT_EQ(mzdy.pracovnici[i].prijmeni, ocekavano[i].pracovnik);
                for (std::size_t r = 0; r < mzdy.radky.size(); ++r)
                    if (mzdy.radky[r].modul == 14) mzdy.vyber_radek(static_cast<int>(r));
                ASSERT_EQ(mzdy.radky.at(static_cast<std::size_t>(mzdy.radek)).modul, 14);
                mzdy.vysvetli();
                EXPECT_EQ(mzdy.rozdil, "");
                EXPECT_TRUE(mzdy.scChyby.empty());
                ASSERT_FALSE(mzdy.strom.uzly().empty());
                EXPECT_EQ(mzdy.strom.uzel(0).hodnota, ocekavano[i].k_vyplate);
            }
            mzdy.acZpetExecute();
        });
        akce("acProhlizetZakladniSoubory");
    }

  private:
    std::deque<std::function<void(base::Obrazovka&)>> prace_;
};

// January 2022 has 21 working days, 168 hours.
//
// | | Novák | Malá | Starý |
// |---|---|---|---|
// | wage | 33600 / 168 x (168 - 80) = 17600 | (168 - 8) x 180 = 28800 | 25000 |
// | in kind | | | 500000 x 1 % = 5000 |
// | compensation | 200 x 90 % x 60 % = 108; x 80 hours = 8640 | | |
// | base of insurance and tax | 17600 | 28800 | 30000 |
// | social 6.5 % | 1144 | 1872 | 1950 |
// | health 4.5 % | 792 | 1296 | 1350 |
// | tax 15 % less 2570 | 2640: 70 | 4320: 1750 | 4500: 1930 |
// | child 1267 | -1197 | | |
// | fixed deductions | 500 + 880 | | |
// | payable | 26240 - 1144 - 792 + 1197 - 1380 = 24121 | 23882 | 25000 - 5230 = 19770 |
TEST_F(CelaCesta, OdNoveFirmyPoVysvetlenouVyplatu) {
    zaloz_firmu();
    nastav_sloupce();
    nastav_parametry();
    zaloz_ciselniky();
    zaloz_pracovniky();
    hlavni.mesic = 1;
    zadej_mesic();
    spocti_vyplaty();
    const auto hlasky = obsluha.hlasky;
    over_listinu({{"Novák", "24121"}, {"Malá", "23882"}, {"Starý", "19770"}});
    EXPECT_EQ(obsluha.hlasky, hlasky);

    // A compensation alone leaves the sheet, an ordinary item deletes it.
    na_obrazovce<TForm17>([](TForm17& form) { zadej_nemoc(form); });
    akce("acHrubeZorvNahrady");
    EXPECT_TRUE(session.data().table_exists("Listin01"));
    na_obrazovce<TForm17>(
        [](TForm17& form) { zadej_hodinovou_mzdu(form, "1", "Celkem  1440,00 Kč"); });
    akce("acHrubeZorvNahrady");
    EXPECT_FALSE(session.data().table_exists("Listin01"));
    EXPECT_NE(obsluha.hlasky.back().find("byla vymazaná výplatní listina za  leden  2022."),
              std::string::npos);
}

}  // namespace
