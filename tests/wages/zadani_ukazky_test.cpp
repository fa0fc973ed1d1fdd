// The months of the sample company, and of the golden months with incapacity, entered again item by
// item on the entry screen: what it writes must be what their files hold. So the files cannot drift
// from the program.
#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

#include "base/castky_text.h"
#include "base/soubory.h"
#include "base/text.h"
#include "store/catalogue.h"
#include "store/csv.h"
#include "store/query.h"
#include "store/table.h"
#include "store/transfer.h"
#include "support/zkusebni_firma.h"
#include "wages/dochazka.h"
#include "wages/unit17_zadani.h"

namespace {

namespace fs = std::filesystem;
using wages::PoleNahrad;
using wages::TForm17;

constexpr std::size_t k_nejvetsi_soubor = 1'000'000;
constexpr int k_mesicu = 3;

/// Folders of the sources whose months are entered again.
const std::vector<std::string>& slozky() {
    static const std::vector<std::string> vse{
        "examples/ukazka22", "tests/cases/nemoc_pres_ctrnacty_den", "tests/cases/osetrovani_nula",
        "tests/cases/karantena_2019"};
    return vse;
}

/// The company of a folder; with `mesice` also its months and compensations.
struct FirmaZeSlozky {
    fs::path slozka;
    zkouska::ZkusebniFirma firma;

    FirmaZeSlozky(const fs::path& odkud, bool mesice)
        : slozka(odkud), firma("FIRMA" + rok_slozky(odkud)) {
        for (const char* tabulka : {"Ridici", "Rpd", "Os_karty", "Zdr_poj"})
            vloz(tabulka);
        if (fs::exists(slozka / "vykony.csv")) {
            store::import_csv(firma.session.ucet(), "vykony", obsah("vykony"), "vykony", false);
        }
        for (const auto& radek : store::parse_csv(obsah("nastaveni"), "nastaveni")) {
            const std::string& klic = radek.fields.at(0);
            const std::size_t lomitko = klic.find('/');
            if (lomitko == std::string::npos) continue;  // heading
            EXPECT_EQ(shell::nastav_klic(firma.session.nastaveni, klic.substr(0, lomitko),
                                         klic.substr(lomitko + 1), radek.fields.at(1)),
                      "");
        }
        if (!mesice) return;
        vloz("Nahrady");
        for (int m = 1; m <= k_mesicu; ++m)
            vloz(store::month_table("Hrube", m));
    }

    static std::string rok_slozky(const fs::path& odkud) {
        const fs::path soubor = odkud / "rok.txt";
        return fs::exists(soubor) ? base::orez(base::precti_soubor(soubor, k_nejvetsi_soubor))
                                  : "22";
    }
    std::string obsah(const std::string& jmeno) {
        return base::precti_soubor(slozka / (jmeno + ".csv"), k_nejvetsi_soubor);
    }
    void vloz(const std::string& tabulka) {
        if (!fs::exists(slozka / (tabulka + ".csv"))) return;
        const auto vysledek =
            store::import_csv(firma.data(), tabulka, obsah(tabulka), tabulka, tabulka == "Ridici");
        for (const std::string& chyba : vysledek.errors)
            ADD_FAILURE() << chyba;
    }
};

/// A number as a clerk types it.
std::string napsano(const store::Query& veta, const char* pole) {
    std::string text = veta.text(pole);
    std::replace(text.begin(), text.end(), '.', ',');
    return text;
}

class ZadaniUkazky : public testing::TestWithParam<std::string> {
  protected:
    FirmaZeSlozky vzor{fs::path(ZORV_SOURCE_DIR) / GetParam(), true};
    FirmaZeSlozky psana{fs::path(ZORV_SOURCE_DIR) / GetParam(), false};

    static void zvol(TForm17& form, int pracovnik, int sloupec) {
        for (std::size_t i = 0; i < form.pracovnici.size(); ++i) {
            if (form.pracovnici[i].karta->Cislo == pracovnik)
                form.vyber_pracovnika(static_cast<int>(i));
        }
        for (std::size_t i = 0; i < form.sloupce.size(); ++i) {
            if (form.sloupce[i].sloupec.sloupec == sloupec) form.vyber_sloupec(static_cast<int>(i));
        }
        ASSERT_EQ(form.pracovnici.at(static_cast<std::size_t>(form.pracovnik)).karta->Cislo,
                  pracovnik);
        ASSERT_EQ(form.zvoleny()->sloupec, sloupec);
    }

    static void zadej_polozku(TForm17& form, const store::Query& veta) {
        const wages::SloupecHrube& sloupec = *form.zvoleny();
        wages::ZadaniPolozky& z = form.zadani;
        z = {};
        z.dny = napsano(veta, sloupec.jake_dny == 1 ? "Dny_od" : "Dny_neod");
        const char* hodiny[] = {"Hod_od", "Hod_od", "Hod_neod", "Hod_vedl"};
        z.hodiny = napsano(veta, hodiny[sloupec.jake_hodiny]);
        z.datum = base::jen_cislice(veta.text("Datum"));
        z.stredisko = veta.text("Stredisko");
        z.vykon = veta.text("Vykon");
        z.stroj = veta.text("Stroj");
        const char* hodnoty[] = {"Kc1", "Kc2", "Kc3", "Kc4"};
        for (std::size_t i = 0; i < z.hodnoty.size(); ++i)
            z.hodnoty[i] = napsano(veta, hodnoty[i]);
        z.text = veta.text("Text");
        form.poleExit();
        EXPECT_TRUE(form.zapsat_povoleno) << form.scChyby.front();
        form.Button2Click();
    }

    static void zadej_karantenu(TForm17& form, const store::Query& veta) {
        form.karantena_kc = veta.text("Kc_cel");
        form.karantenaKeyUp();
        EXPECT_TRUE(form.zapsat_povoleno);
        form.Button2Click();
    }

    /// Only the certificate and the dates are typed, the rest is computed.
    void zadej_nahradu(TForm17& form, int mesic, const store::Query& veta) {
        store::Query nahrada(vzor.firma.data(),
                             "SELECT * FROM Nahrady WHERE Mesic = :mesic AND Id_hrube = :id");
        nahrada.set("mesic", mesic);
        nahrada.set("id", veta.integer("Pocitadlo"));
        nahrada.open();
        ASSERT_FALSE(nahrada.eof()) << "náhrada bez podrobností";
        form.nahrady.scCisloDokladu = nahrada.text("Cislo_dokladu");
        form.nahrady.scTrvaniOd = base::datum_textem(nahrada.date("Trvani_od"));
        form.nahrady.scTrvaniDo = base::datum_textem(nahrada.date("Trvani_do"));
        form.nahrady.zmena();
        form.nahradyExit(PoleNahrad::trvani_do);
        form.acZapsatNahrady();
    }

    void zadej_mesic(int mesic) {
        shell::Session& session = psana.firma.session;
        session.zpracovavany_mesic = mesic;
        const std::string hrube = store::month_table("Hrube", mesic);
        {
            store::Transaction transakce(session.data());
            session.data().create_table(store::definition_of(hrube));
            transakce.commit();
        }
        TForm17 form(session, {});
        ASSERT_TRUE(form.FormShow());
        store::Query veta(vzor.firma.data(), "SELECT * FROM " + hrube + " ORDER BY Pocitadlo");
        for (veta.open(); !veta.eof(); veta.next()) {
            SCOPED_TRACE("položka " + veta.text("Pocitadlo"));
            ASSERT_NO_FATAL_FAILURE(zvol(form, static_cast<int>(veta.integer("Cislo_pracovnika")),
                                         static_cast<int>(veta.integer("Sloupec"))));
            switch (veta.integer("Modul")) {
                case 4:
                    zadej_karantenu(form, veta);
                    break;
                case 5:
                    zadej_nahradu(form, mesic, veta);
                    break;
                default:
                    zadej_polozku(form, veta);
            }
        }
        porovnej("SELECT * FROM " + hrube + " ORDER BY Pocitadlo");
    }

    /// The rows of a SELECT, one by one.
    void porovnej(const std::string& dotaz) {
        const auto psane = base::rozdel_text(psana.firma.vypis(dotaz), '\n');
        const auto vzorove = base::rozdel_text(vzor.firma.vypis(dotaz), '\n');
        ASSERT_EQ(psane.size(), vzorove.size());
        ASSERT_FALSE(psane.empty());
        for (std::size_t i = 0; i < psane.size(); ++i)
            EXPECT_EQ(psane[i], vzorove[i]);
    }
};

TEST_P(ZadaniUkazky, ZapiseVetyZeSouboru) {
    for (int mesic = 1; mesic <= k_mesicu; ++mesic) {
        SCOPED_TRACE("měsíc " + std::to_string(mesic));
        if (vzor.firma.data().table_exists(store::month_table("Hrube", mesic))) zadej_mesic(mesic);
    }
    EXPECT_EQ(psana.firma.obsluha.hlasky, std::vector<std::string>{});
    porovnej(
        "SELECT Cislo_pracovnika, Id_hrube, Mesic, Typ_nahrady, Typ_obdobi, Cislo_dokladu, "
        "Trvani_od, Trvani_do, Dnu_kalendarnich, Dnu_pracovnich, Prum_hod_vydelek, "
        "Red_hod_vydelek, Fond_A, Fond_B, Fond_C, Hod_nahrada_A, Hod_nahrada_B, Nahrada_A, "
        "Nahrada_B, Celkova_nahrada, Vyloucene_dny FROM Nahrady ORDER BY Mesic, Id_hrube");
}

TEST(DochazkaUkazky, SouctyListuSouhlasi) {
    FirmaZeSlozky ukazka(fs::path(ZORV_SOURCE_DIR) / slozky().front(), false);
    ukazka.vloz("Dochazka");
    int listu = 0;
    for (int mesic = 1; mesic <= k_mesicu; ++mesic) {
        const auto vety = wages::dochazka_mesice(ukazka.firma.session, mesic, "", "");
        for (std::size_t i = 0; i < vety.rows.size(); ++i) {
            const wages::ListDochazky ulozeny = wages::list_dochazky(vety, i);
            if (ulozeny.suma_hod == 0) continue;
            SCOPED_TRACE(testing::Message() << "měsíc " << mesic << ", řádek " << i);
            wages::ListDochazky secteny = ulozeny;
            wages::secti(secteny, base::dni_v_mesici(mesic, ukazka.firma.session.rok));
            EXPECT_EQ(secteny.suma_hod, ulozeny.suma_hod);
            EXPECT_EQ(secteny.suma_odprac, ulozeny.suma_odprac);
            EXPECT_EQ(secteny.suma_neodprac, ulozeny.suma_neodprac);
            ++listu;
        }
    }
    EXPECT_EQ(listu, 9);
}

INSTANTIATE_TEST_SUITE_P(Slozky, ZadaniUkazky, testing::ValuesIn(slozky()), [](const auto& slozka) {
    return fs::path(slozka.param).filename().string();
});

}  // namespace
