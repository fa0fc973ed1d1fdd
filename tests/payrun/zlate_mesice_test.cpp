// Whole months worked out by hand: each folder of tests/cases is a company, its months and the rows
// that the pay run has to write.
#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

#include "base/castky_text.h"
#include "base/soubory.h"
#include "base/text.h"
#include "payrun/unit133_prohlizeni_mezd.h"
#include "payrun/vypocet_mesice.h"
#include "payrun/vysvetleni.h"
#include "paysheet/sloupce.h"
#include "store/catalogue.h"
#include "store/csv.h"
#include "store/query.h"
#include "store/transfer.h"

namespace zkouska {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t k_nejvetsi_soubor = 10'000'000;

fs::path slozka_pripadu() {
    return fs::path(ZORV_SOURCE_DIR) / "tests" / "cases";
}

std::vector<std::string> jmena_pripadu() {
    std::vector<std::string> jmena;
    for (const auto& polozka : fs::directory_iterator(slozka_pripadu())) {
        if (polozka.is_directory()) jmena.push_back(polozka.path().filename().string());
    }
    std::sort(jmena.begin(), jmena.end());
    return jmena;
}

std::string obsah(const fs::path& soubor) {
    return base::precti_soubor(soubor, k_nejvetsi_soubor);
}

/// Rows behind the header; no file, no rows.
std::vector<std::vector<std::string>> radky_bez_hlavicky(const fs::path& soubor) {
    std::vector<std::vector<std::string>> radky;
    if (!fs::exists(soubor)) return radky;
    for (auto& radek : store::parse_csv(obsah(soubor), soubor.string())) {
        radky.push_back(std::move(radek.fields));
    }
    radky.erase(radky.begin());
    return radky;
}

/// Amounts are compared as numbers: 21.50 and 21.5 are the same.
std::string ve_tvaru(const std::string& pole, const std::string& text) {
    if (pole != "Hodnota" || text.empty()) return text;
    return store::Value(base::je_desetinne_cislo(text)).as_text();
}

class ZlateMesice : public testing::TestWithParam<std::string> {
  protected:
    fs::path slozka = slozka_pripadu() / GetParam();
    ZkusebniFirma firma{"FIRMA" + rok()};

    std::string rok() const {
        const fs::path soubor = slozka / "rok.txt";
        return fs::exists(soubor) ? base::orez(obsah(soubor)) : "22";
    }

    void SetUp() override {
        for (const auto& radek : radky_bez_hlavicky(slozka / "ridici.csv")) {
            ASSERT_EQ(shell::nastav_pole(firma.session.ridici_zorv, radek.at(0), radek.at(1)), "");
        }
        for (const auto& radek : radky_bez_hlavicky(slozka / "nastaveni.csv")) {
            const std::size_t lomitko = radek.at(0).find('/');
            ASSERT_EQ(shell::nastav_klic(firma.session.nastaveni, radek[0].substr(0, lomitko),
                                         radek[0].substr(lomitko + 1), radek.at(1)),
                      "");
        }
        for (const auto& polozka : fs::directory_iterator(slozka))
            vloz_tabulku(polozka.path());
        paysheet::Nacti_sloupce_slovy(firma.session);
    }

    /// Files of tables begin with a capital letter.
    void vloz_tabulku(const fs::path& soubor) {
        const std::string tabulka = soubor.stem().string();
        if (soubor.extension() != ".csv" || tabulka[0] < 'A' || tabulka[0] > 'Z') return;
        const store::ImportResult vysledek = store::import_csv(
            firma.data(), tabulka, obsah(soubor), soubor.string(), tabulka == "Ridici");
        EXPECT_TRUE(vysledek.errors.empty()) << vysledek.errors.front();
    }

    fs::path soubor_mesice(const std::string& zacatek, const std::string& mm,
                           const char* pripona) const {
        return slozka / (zacatek + mm + pripona);
    }

    void zkontroluj_hlaseni(const std::string& mm, const std::vector<std::string>& hlaseni) {
        std::vector<std::string> ceka;
        const fs::path soubor = soubor_mesice("hlaseni", mm, ".txt");
        if (fs::exists(soubor)) {
            std::string text = obsah(soubor);
            while (!text.empty()) {
                const std::size_t konec = std::min(text.find('\n'), text.size());
                ceka.push_back(text.substr(0, konec));
                text.erase(0, konec + 1);
            }
        }
        EXPECT_EQ(hlaseni, ceka);
    }

    /// Compares the columns that the expectation names.
    void zkontroluj_radky(const fs::path& soubor, const std::string& tabulka) {
        const auto csv = store::parse_csv(obsah(soubor), soubor.string());
        const std::vector<std::string>& pole = csv.at(0).fields;
        store::Query q(firma.data(), "SELECT * FROM " + tabulka + " ORDER BY Pocitadlo");
        std::size_t radek = 1;
        for (q.open(); !q.eof(); q.next(), ++radek) {
            std::string je, ceka;
            for (std::size_t i = 0; i < pole.size(); ++i) {
                je += ve_tvaru(pole[i], q.text(pole[i])) + "|";
                if (radek < csv.size()) ceka += ve_tvaru(pole[i], csv[radek].fields.at(i)) + "|";
            }
            EXPECT_EQ(je, ceka) << tabulka << ", řádek " << radek;
        }
        EXPECT_EQ(radek, csv.size()) << tabulka << ": jiný počet řádků";
    }

    /// Every stored row is computed again to the same amount and has a step behind it.
    void zkontroluj_vysvetleni(int mesic, const std::string& tabulka) {
        store::Query q(firma.data(), "SELECT Cislo_pracovnika, COUNT(*) AS Pocet FROM " + tabulka +
                                         " GROUP BY Cislo_pracovnika ORDER BY Cislo_pracovnika");
        for (q.open(); !q.eof(); q.next()) {
            const auto cislo = static_cast<int>(q.integer(0));
            const payrun::Vysvetleni v = payrun::vysvetli_pracovnika(firma.session, mesic, cislo);
            EXPECT_TRUE(v.pracovnik_nalezen && v.listina_existuje);
            EXPECT_TRUE(v.chyby.empty()) << v.chyby.front();
            EXPECT_EQ(v.radky.size(), static_cast<std::size_t>(q.integer(1)));
            for (const payrun::VysvetlenyRadek& r : v.radky) {
                EXPECT_TRUE(r.souhlasi && r.krok >= 0)
                    << "pracovník " << cislo << ", modul " << r.modul << ", sloupec " << r.sloupec;
            }
        }
    }

    /// The browser shows the same rows by module and column, and explains every one of them.
    void zkontroluj_prohlizeni(int mesic, const std::string& tabulka) {
        payrun::TForm133 form(firma.session, mesic);
        form.FormShow();
        for (std::size_t i = 0; i < form.pracovnici.size(); ++i) {
            form.vyber_pracovnika(static_cast<int>(i));
            const std::string cislo = std::to_string(form.pracovnici[i].cislo);
            SCOPED_TRACE("prohlížení, pracovník " + cislo);
            store::Query q(firma.data(), "SELECT * FROM " + tabulka + " WHERE Cislo_pracovnika = " +
                                             cislo + " ORDER BY Pocitadlo");
            store::Rows listina = store::read_all(q);
            const auto modul = static_cast<std::size_t>(listina.column("Modul"));
            const auto sloupec = static_cast<std::size_t>(listina.column("Sloupec"));
            std::stable_sort(listina.rows.begin(), listina.rows.end(), [&](auto& a, auto& b) {
                return std::pair(a[modul].as_integer(), a[sloupec].as_integer()) <
                       std::pair(b[modul].as_integer(), b[sloupec].as_integer());
            });
            ASSERT_EQ(form.radky.size(), listina.rows.size());
            form.vysvetli();
            EXPECT_TRUE(form.scChyby.empty());
            for (std::size_t r = 0; r < form.radky.size(); ++r) {
                const auto pole = [&](const char* jmeno) {
                    return listina.rows[r][static_cast<std::size_t>(listina.column(jmeno))];
                };
                const payrun::RadekListiny& radek = form.radky[r];
                EXPECT_EQ(radek.modul, pole("Modul").as_integer());
                EXPECT_EQ(radek.co_je_to, pole("Co_je_to").as_text());
                const bool cas = !radek.hodnota && (radek.dny || radek.hodiny);
                const auto castka = cas ? (radek.dny ? radek.dny : radek.hodiny) : radek.hodnota;
                EXPECT_EQ(castka.has_value(), !pole("Hodnota").is_empty());
                EXPECT_EQ(static_cast<double>(castka.value_or(0)), pole("Hodnota").as_number());
                form.vyber_radek(static_cast<int>(r));
                EXPECT_EQ(form.rozdil, "");
                ASSERT_FALSE(form.strom.uzly().empty());
                EXPECT_EQ(form.strom.uzel(0).hodnota, base::castka_prosta(castka.value_or(0)));
            }
        }
    }

    struct Beh {
        int mesic = 0;
        std::string odpovedi;
    };

    /// Runs the month and leaves the screen by "Zpět".
    std::vector<std::string> spust(const Beh& beh) {
        for (const std::string& odpoved : base::rozdel_text(beh.odpovedi, ' ')) {
            firma.obsluha.odpovez("Přiznáme mu tyto slevy na dani?", odpoved == "ano");
        }
        priprav_mesic(firma, beh.mesic);
        payrun::TForm21 obrazovka(firma.session);
        zpracuj(obrazovka);
        obrazovka.Button1Click();
        EXPECT_TRUE(obrazovka.zavreno);
        EXPECT_TRUE(firma.obsluha.odpovedi.empty()) << "nezodpovězená otázka chybí";
        return obrazovka.scChyby;
    }
};

TEST_P(ZlateMesice, OdpovidajiVypoctuZPera) {
    for (const auto& radek : radky_bez_hlavicky(slozka / "beh.csv")) {
        const Beh beh{base::je_cele_cislo(radek.at(0)), radek.size() > 1 ? radek[1] : ""};
        const std::string mm = base::cislo_s_nulami(beh.mesic, 2);
        SCOPED_TRACE("měsíc " + mm);
        const std::string listin = "Listin" + mm;
        zkontroluj_hlaseni(mm, spust(beh));

        const fs::path ocekavano = soubor_mesice("ocekavano", mm, ".csv");
        const fs::path zaporna = soubor_mesice("zaporna", mm, ".csv");
        const std::string vysledek = fs::exists(ocekavano) ? listin
                                     : fs::exists(zaporna) ? "Zaporna"
                                                           : "";
        EXPECT_EQ(firma.data().table_exists(listin), vysledek == listin);
        EXPECT_EQ(firma.data().table_exists("Zaporna"), vysledek == "Zaporna");
        if (vysledek.empty()) continue;
        zkontroluj_radky(vysledek == listin ? ocekavano : zaporna, vysledek);
        if (vysledek == listin) {
            zkontroluj_vysvetleni(beh.mesic, listin);
            zkontroluj_prohlizeni(beh.mesic, listin);
        }

        const std::string poprve = listina(firma, vysledek);
        spust(beh);
        EXPECT_EQ(listina(firma, vysledek), poprve) << "druhý výpočet dal jiné řádky";
    }
}

INSTANTIATE_TEST_SUITE_P(Pripady, ZlateMesice, testing::ValuesIn(jmena_pripadu()),
                         [](const auto& pripad) { return pripad.param; });

}  // namespace
}  // namespace zkouska
