// Blocked values of a month: the list, its record form, and what the operator may type.
#include "payrun/unit50_blokace.h"

#include <functional>
#include <gtest/gtest.h>

#include "base/klavesy.h"
#include "store/catalogue.h"
#include "support/zkusebni_firma.h"

namespace {

using payrun::TForm50;
using payrun::TForm51;

/// A company with blocked values of March: workers 20 and 10 in the order of entry.
class BlokovaneHodnoty : public testing::Test {
  protected:
    zkouska::ZkusebniFirma firma;
    TForm50 form{firma.session};

    void SetUp() override {
        firma.session.zpracovavany_mesic = 3;
        store::Transaction transakce(firma.data());
        firma.data().create_table(store::definition_of("Blok03"));
        transakce.commit();
        firma.vloz("Blok03",
                   "Cislo_pracovnika,socialni_abs,dan_dif\n"
                   "20,1000,-50\n"
                   "10,,7\n");
    }
    /// What the operator does on the record form.
    void veta(const std::function<void(TForm51&)>& prace) {
        firma.obsluha.pri_obrazovce = [prace](base::Obrazovka& obrazovka) {
            prace(dynamic_cast<TForm51&>(obrazovka));
        };
    }
    std::string vypis() {
        return firma.vypis(
            "SELECT Cislo_pracovnika, socialni_abs, dan_dif, dan_zaklad_abs FROM Blok03");
    }
    std::string pracovnik() const {
        return form.radek < 0
                   ? ""
                   : form.vety
                         .rows[static_cast<std::size_t>(form.radek)]
                              [static_cast<std::size_t>(form.vety.column("Cislo_pracovnika"))]
                         .as_text();
    }
};

TEST_F(BlokovaneHodnoty, SeznamJdePodlePracovnikaAUkazujeHodnotyRadku) {
    form.FormShow();
    EXPECT_EQ(form.nadpis, "Blokované hodnoty - březen  2022");
    EXPECT_EQ(pracovnik(), "10");
    EXPECT_EQ(form.hodnoty[1].abs, "");
    EXPECT_EQ(form.hodnoty[5].dif, "7");
    form.vyber_radek(1);
    EXPECT_EQ(pracovnik(), "20");
    EXPECT_EQ(form.hodnoty[1].abs, "1000");
    EXPECT_EQ(form.hodnoty[5].dif, "-50");
    form.Button1Click();
    EXPECT_TRUE(form.zavreno);
}

TEST_F(BlokovaneHodnoty, NovaVetaSeUloziAKurzorJeNaNi) {
    form.FormShow();
    veta([&](TForm51& f) {
        EXPECT_EQ(f.nadpis, "NOVÁ  HODNOTA  PRO  BLOKACI");
        EXPECT_EQ(f.cislo_pracovnika, "");
        // While the record form waits, the list takes no other action.
        form.Button2Click();
        form.Button4Click();
        f.cislo_pracovnika = "15";
        f.hodnoty[4].abs = "-9999999";
        f.Button2Click();
        EXPECT_TRUE(f.zavreno);
    });
    form.Button2Click();
    EXPECT_EQ(vypis(), "20|1000|-50|\n10||7|\n15|||-9999999\n");
    EXPECT_EQ(pracovnik(), "15");
    EXPECT_EQ(form.radek, 1);
    EXPECT_EQ(form.fokus, "mrizka");
}

TEST_F(BlokovaneHodnoty, OpravaMeniOznacenyRadekAPrazdnePoleHoMaze) {
    form.FormShow();
    form.vyber_radek(1);
    veta([](TForm51& f) {
        EXPECT_EQ(f.nadpis, "OPRAVUJEME  BLOKOVANOU  HODNOTU");
        EXPECT_EQ(f.cislo_pracovnika, "20");
        f.cislo_pracovnika = "5";
        f.hodnoty[1].abs = "";
        f.Button2Click();
    });
    form.Button3Click();
    EXPECT_EQ(vypis(), "5||-50|\n10||7|\n");
    EXPECT_EQ(pracovnik(), "5");
    EXPECT_EQ(form.radek, 0);
}

TEST_F(BlokovaneHodnoty, BezUlozeniZustaneVseAKurzorStojiNaPuvodnimRadku) {
    const std::string puvodni = vypis();
    form.FormShow();
    form.vyber_radek(1);
    const std::function<void(TForm51&)> odchody[] = {
        [](TForm51& f) {
            f.hodnoty[0].abs = "1";
            f.Button1Click();
        },
        [](TForm51& f) { f.hodnoty[0].abs = "1"; },  // the window closed by its frame
    };
    for (const auto& odchod : odchody) {
        veta(odchod);
        form.Button2Click();
        EXPECT_EQ(pracovnik(), "20");
        form.Button3Click();
        EXPECT_EQ(pracovnik(), "20");
    }
    EXPECT_EQ(vypis(), puvodni);
}

TEST_F(BlokovaneHodnoty, VypusteniSeZepta) {
    form.FormShow();
    firma.obsluha.odpovez("Opravdu chcete vypustit označenou větu?", false);
    form.Button4Click();
    EXPECT_EQ(vypis(), "20|1000|-50|\n10||7|\n");
    firma.obsluha.odpovez("Opravdu chcete vypustit označenou větu?", true);
    form.Button4Click();
    EXPECT_EQ(vypis(), "20|1000|-50|\n");
    EXPECT_EQ(pracovnik(), "20");
    firma.obsluha.odpovez("Opravdu", true);
    form.Button4Click();
    EXPECT_EQ(form.radek, -1);
    EXPECT_EQ(form.hodnoty[1].abs, "");
    // Nothing is left to correct or to delete.
    form.Button3Click();
    form.Button4Click();
    EXPECT_EQ(firma.obsluha.otazky.size(), 3U);
}

TEST_F(BlokovaneHodnoty, NeprijatelnyTextSeNezapise) {
    form.FormShow();
    for (const char* text : {"1,5", "12345678", "--1", "x"}) {
        SCOPED_TRACE(text);
        firma.obsluha.hlasky.clear();
        veta([&](TForm51& f) {
            f.hodnoty[2].dif = text;
            f.Button2Click();
            EXPECT_FALSE(f.zavreno);
            EXPECT_EQ(f.fokus, "zdravotni_zaklad_dif");
        });
        form.Button3Click();
        EXPECT_EQ(firma.obsluha.hlasky.size(), 1U);
    }
    EXPECT_EQ(vypis(), "20|1000|-50|\n10||7|\n");
}

TEST_F(BlokovaneHodnoty, KlavesyPustiJenZnamenkoASedmCislic) {
    form.FormShow();
    struct Klavesa {
        char znak;
        const char* dosud;
        bool pusti;
    };
    const Klavesa k_klavesy[] = {
        {'-', "", true},         {'-', "1", false}, {'7', "-123456", true},
        {'8', "1234567", false}, {',', "1", false}, {base::k_backspace, "1234567", true},
    };
    veta([&](TForm51& f) {
        for (const Klavesa& k : k_klavesy)
            EXPECT_EQ(f.povol_klavesu(k.znak, k.dosud), k.pusti) << k.znak << k.dosud;
        f.Button1Click();
    });
    form.Button3Click();
    EXPECT_EQ(firma.obsluha.pipnuti, 3);
}

}  // namespace
