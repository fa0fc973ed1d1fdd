// The sample company computed in the windows, by keyboard alone, to the amounts that were worked
// out independently of this program.
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <filesystem>
#include <fmt/format.h>
#include <gtest/gtest.h>
#include <sstream>

#include "cli/hlavni.h"

#include "base/soubory.h"
#include "base/text.h"
#include "desktop/obsluha_qt.h"
#include "desktop/okno_form1.h"
#include "prostredi_qt.h"
#include "store/query.h"
#include "support/docasna_slozka.h"

namespace {

using namespace zkouska;
namespace fs = std::filesystem;

const fs::path k_ukazka = fs::path(ZORV_PRIKLADY) / "ukazka22";

/// Lines of a sample file below its heading.
std::vector<std::string> radky_souboru(const char* soubor) {
    constexpr std::size_t k_nejvyse = 1000000;
    std::istringstream text(base::precti_soubor(k_ukazka / soubor, k_nejvyse));
    std::vector<std::string> radky;
    for (std::string radek; std::getline(text, radek);) {
        if (!radek.empty() && radek.back() == '\r') radek.pop_back();
        if (!radek.empty()) radky.push_back(radek);
    }
    radky.erase(radky.begin());
    return radky;
}

/// Agrees to everything that the run asks, as the sample's amounts suppose; months run ahead of the
/// open one, which brings a message.
struct SouhlasiciObsluha final : desktop::ObsluhaQt {
    void hlaska(const std::string&) override {}
    bool otazka_ano_ne(const std::string&, const std::string&) override { return true; }
};

/// The sample company before its first pay run.
class Ukazka : public testing::Test {
  protected:
    Ukazka() {
        const std::string struktura = base::precti_soubor(k_ukazka / "struktura.txt", 1000);
        prikaz({"firma", "zaloz", "UKAZKA22", "--struktura",
                struktura.substr(0, struktura.find_last_not_of("\r\n") + 1)});
        nastav("nastaveni", "nastaveni.csv");
        nastav("ridici", "ridici.csv");
        prikaz({"import", "Ridici", (k_ukazka / "Ridici.csv").string(), "--nahradit"});
        for (const char* tabulka : {"Zdr_poj", "Rpd", "Os_karty", "Deti", "Fixni", "Hrube01",
                                    "Hrube02", "Hrube03", "Blok02"}) {
            prikaz({"import", tabulka, (k_ukazka / fmt::format("{}.csv", tabulka)).string()});
        }
        session.koren_dat = koren.cesta();
        session.firma = "UKAZKA22";
        session.velmar.pamatovat_okna = session.velmar.logovat = false;
        obsluha.pripoj(session);
    }

    void prikaz(std::vector<std::string> slova) {
        slova.insert(slova.begin(), {(koren / "program/zorvctl").string(), "--root",
                                     koren.cesta().string(), "--firma", "UKAZKA22"});
        std::istringstream in;
        std::ostringstream out, err;
        ASSERT_EQ(cli::hlavni(slova, in, out, err), 0) << err.str();
    }

    void nastav(const char* sloveso, const char* soubor) {
        for (const std::string& radek : radky_souboru(soubor)) {
            const std::size_t carka = radek.find(',');
            prikaz({sloveso, radek.substr(0, carka), radek.substr(carka + 1)});
        }
    }

    /// "worker,month,amount" of the month's sheet.
    std::vector<std::string> k_vyplate(int mesic) {
        std::vector<std::string> castky;
        store::Query q(session.data(), "SELECT Cislo_pracovnika, Hodnota FROM Listin0" +
                                           std::to_string(mesic) + " WHERE Modul = 14");
        for (q.open(); !q.eof(); q.next()) {
            castky.push_back(q.text(0) + "," + std::to_string(mesic) + "," +
                             std::to_string(static_cast<long long>(q.number(1))));
        }
        return castky;
    }

    DocasnaSlozka koren;
    SouhlasiciObsluha obsluha;
    base::PevneHodiny hodiny{{{2022, 4, 1}, 8, 0, 0}};
    base::SystemovaNahoda nahoda;
    shell::Session session{{obsluha, hodiny, nahoda}, koren / "program"};
    menu::TForm1 form{session};
};

/// Opens the pay run of a month from the main window's menu and works in it.
void vypocet(desktop::OknoForm1& okno, int mesic, std::function<void(QWidget&)> prace) {
    auto& pole = prvek<QSpinBox>(okno, "mesic");
    pole.setFocus();
    QTest::keyClick(&pole, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&pole, QString::number(mesic));
    v_okne(std::move(prace));
    auto& tlacitko = prvek<QPushButton>(okno, "acVypocetVyplat");
    tlacitko.setFocus();
    QTest::keyClick(&tlacitko, Qt::Key_Space);
}

TEST_F(Ukazka, PreruseniAPakVsechnyMesiceDajiOcekavaneCastky) {
    desktop::OknoForm1 okno(form, session);
    okno.otevri();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&okno));
    EXPECT_EQ(prvek<QLabel>(okno, "dalsi_krok").text(),
              "Leden: zadány hrubé mzdy, vypočtěte výplaty");

    vypocet(okno, 1, [](QWidget& vyplaty) {
        QTimer::singleShot(0, &vyplaty, [&vyplaty] {
            auto& prerusit = prvek<QPushButton>(vyplaty, "Button3");
            EXPECT_TRUE(prerusit.isVisible());
            prerusit.setFocus();
            QTest::keyClick(&prerusit, Qt::Key_Space);
        });
        auto& zpracuj = prvek<QPushButton>(vyplaty, "Button2");
        zpracuj.setFocus();
        QTest::keyClick(&zpracuj, Qt::Key_Space);
        EXPECT_FALSE(vyplaty.isVisible()) << "přerušený výpočet okno zavře";
    });
    EXPECT_FALSE(session.data().table_exists("Listin01"));

    std::vector<std::string> spocteno;
    for (const int mesic : {1, 2, 3}) {
        vypocet(okno, mesic, [](QWidget& vyplaty) {
            zkratka(vyplaty, Qt::Key_F2);
            EXPECT_TRUE(prvek<QWidget>(vyplaty, "vysledky").isVisible());
            QTest::keyClick(&vyplaty, Qt::Key_Escape);
        });
        const auto castky = k_vyplate(mesic);
        spocteno.insert(spocteno.end(), castky.begin(), castky.end());
    }
    auto cekano = radky_souboru("ocekavane_k_vyplate.csv");
    std::sort(cekano.begin(), cekano.end());
    std::sort(spocteno.begin(), spocteno.end());
    EXPECT_EQ(spocteno, cekano);
}

}  // namespace
