// Start of the main form, choice of the company and of the data root, the background picture.
#include <gtest/gtest.h>
#include <stdlib.h>

#include "base/ini.h"
#include "base/soubory.h"
#include "menu/unit1_hlavni.h"
#include "paysheet/unit2_struktura.h"
#include "shell/nova_firma.h"
#include "support/docasna_slozka.h"
#include "support/skriptovana_obsluha.h"

namespace {

namespace fs = std::filesystem;

/// An operator who also picks folders and files.
struct VybirajiciObsluha final : zkouska::SkriptovanaObsluha {
    std::optional<std::string> vybere;
    std::string vyzva, slozka, filtr;
    int skryto = 0;

    std::optional<std::string> vyber_slozku(const std::string& text,
                                            const std::string& vychozi) override {
        vyzva = text;
        slozka = vychozi;
        return vybere;
    }
    std::optional<std::string> vyber_soubor(const std::string& nadpis, const std::string& kde,
                                            const std::string& jake) override {
        vyzva = nadpis;
        slozka = kde;
        filtr = jake;
        return vybere;
    }
    void skryj_hlasku() override { ++skryto; }
};

/// A data root with the companies ALFA22 and BETA21 (no payroll yet) and a folder of the user.
struct DvaRoky {
    zkouska::DocasnaSlozka slozka;
    fs::path koren = slozka / "data", program = slozka / "program";
    VybirajiciObsluha obsluha;
    base::PevneHodiny hodiny{{{2022, 1, 15}, 8, 0, 0}};
    base::SystemovaNahoda nahoda;
    shell::Session session{{obsluha, hodiny, nahoda}, program};
    menu::TForm1 form{session};

    DvaRoky() {
        setenv("XDG_DATA_HOME", (slozka / "uzivatel").c_str(), 1);
        fs::create_directories(program);
        fs::create_directories(koren);
        for (const char* nazev : {"ALFA22", "BETA21"})
            EXPECT_EQ(shell::zaloz_slozku_firmy(koren, nazev, {nazev, "1"}), "");
        fs::create_directories(koren / "prazdna22");
        base::zapis_soubor(ini(), "[Data]\nroot=" + koren.string() + "\n[Firma]\nmz=ALFA22\n");
        obsluha.pri_obrazovce = [](base::Obrazovka& obrazovka) {
            dynamic_cast<paysheet::TForm2&>(obrazovka).btOKClick();
        };
    }
    ~DvaRoky() { unsetenv("XDG_DATA_HOME"); }
    fs::path ini() const { return program / "Velmar.ini"; }
    void spust() {
        form.FormCreate();
        form.FormShow();
        obsluha.hlasky.clear();
    }
};

TEST(Start, BezArgumentuMenuSeOdmitne) {
    EXPECT_EQ(menu::odmitnuti_startu("menu"), "");
    for (const char* argument : {"", "Menu", "menu ", "x"}) {
        EXPECT_EQ(menu::odmitnuti_startu(argument),
                  "Aplikace může být spuštěna pouze z hlavní nabídky Velmar.\rKlepněte na ploše na "
                  "ikonu pejska s popisem Velmar.\rOstatní ikony vztahující se k Velmaru můžete z "
                  "plochy smazat.");
    }
}

TEST(Start, OtevrePosledniFirmuADaFokusNaMesic) {
    DvaRoky d;
    d.spust();
    EXPECT_EQ(d.form.lbFirma, "ALFA22  |  2022  |  ALFA22");
    EXPECT_EQ(d.form.titulek, "Velmar 282");
    EXPECT_TRUE(d.form.fokus_na_mesici);
    EXPECT_EQ(d.obsluha.skryto, 1);
    EXPECT_TRUE(fs::exists(d.slozka / "uzivatel/Velmar/Logy/2022"));
}

TEST(Start, ZmizelaFirmaNechaFormularBezFirmy) {
    DvaRoky d;
    base::zapis_ini_text(d.ini(), "Firma", "mz", "PRYC22");
    d.spust();
    EXPECT_EQ(d.session.firma, "");
    EXPECT_EQ(d.session.rok, 2000);
    EXPECT_EQ(d.form.lbFirma, "Vyber firmu --->");
}

TEST(Start, MistoOknaSePamatujeJenKdyzMa) {
    for (const bool pamatovat : {true, false}) {
        DvaRoky d;
        base::zapis_ini_logicke(d.ini(), "Vzhled", "pamatovat_okna", pamatovat);
        d.form.FormCreate();
        EXPECT_FALSE(d.form.poloha_okna);
        d.form.poloha_okna = {false, 10, 20, 640, 480};
        d.form.FormDestroy();
        menu::TForm1 podruhe(d.session);
        podruhe.FormCreate();
        EXPECT_EQ(podruhe.poloha_okna.value_or(base::PolohaOkna{}).sirka, pamatovat ? 640 : 1024);
    }
}

TEST(ZmenaFirmy, SeznamCekaNaVyberAFirmaMezitimNeni) {
    DvaRoky d;
    d.spust();
    bool behem_hledani = false;
    d.obsluha.pri_udalostech = [&] {
        behem_hledani = !d.form.zmenit_viditelne && d.form.seznam_firem.empty();
    };
    d.form.acZmenitFirmuExecute();
    EXPECT_TRUE(behem_hledani);
    EXPECT_EQ(d.form.seznam_firem, (std::vector<std::string>{"ALFA22", "BETA21"}));
    EXPECT_EQ(d.form.vybrana_firma, "ALFA22");
    EXPECT_EQ(d.form.lbRoot, d.koren.string() + "/");
    EXPECT_TRUE(d.form.seznam_viditelny);
    EXPECT_EQ(d.session.firma, "");
    EXPECT_FALSE(d.form.proved_akci("acPracovnici"));
    EXPECT_EQ(d.obsluha.hlasky, std::vector<std::string>{"Nejdříve vyberte firmu."});

    d.form.ComboBox1Change("BETA21");
    EXPECT_FALSE(d.form.seznam_viditelny);
    EXPECT_TRUE(d.form.zmenit_viditelne);
    EXPECT_EQ(d.form.lbFirma, "BETA21  |  2021  |  BETA21");
    EXPECT_EQ(d.session.rok, 2021);
    EXPECT_EQ(base::cti_ini_text(d.ini(), "Firma", "mz", ""), "BETA21");
}

TEST(ZmenaFirmy, VeSlozceBezZapisuSiFirmuPamatujeUzivatel) {
    DvaRoky d;
    setenv("XDG_CONFIG_HOME", (d.slozka / "konfigurace").c_str(), 1);
    d.session.slozka_programu = d.slozka / "neni";
    d.spust();
    EXPECT_EQ(d.form.lbFirma, "Vyber firmu --->");
    d.session.koren_dat = d.koren;
    d.form.ComboBox1Change("BETA21");
    menu::TForm1 podruhe(d.session);
    podruhe.FormCreate();
    EXPECT_EQ(d.session.firma, "BETA21");
    EXPECT_TRUE(fs::exists(d.slozka / "konfigurace/zorv/Velmar.ini"));
    unsetenv("XDG_CONFIG_HOME");
}

TEST(ZmenaFirmy, UdalostiBeziMeziSlozkamiKorene) {
    DvaRoky d;
    d.spust();
    int beh = 0;
    d.obsluha.pri_udalostech = [&] { ++beh; };
    d.form.acZmenitFirmuExecute();
    EXPECT_EQ(beh, 3) << "po složkách ALFA22, BETA21 a prazdna22";
}

TEST(ZmenaFirmy, OdchodZeSeznamuVratiFirmuKteraBylaOtevrena) {
    DvaRoky d;
    d.spust();
    d.form.acZmenitFirmuExecute();
    d.form.acZmenitFirmuExecute();
    EXPECT_EQ(d.form.vybrana_firma, "ALFA22") << "i když se seznam otevírá podruhé";
    d.form.opustVyberFirmy();
    EXPECT_FALSE(d.form.seznam_viditelny);
    EXPECT_TRUE(d.form.zmenit_viditelne);
    EXPECT_EQ(d.session.firma, "ALFA22");
    EXPECT_TRUE(d.session.data().table_exists("Os_karty"));

    d.form.acZmenitFirmuExecute();
    d.session.koren_dat = d.slozka / "jinde";
    d.form.opustVyberFirmy();
    EXPECT_EQ(d.session.firma, "");
    EXPECT_EQ(d.form.lbFirma, "Vyber firmu --->");
}

TEST(DruheSpusteni, TataFirmaSeOhlasiAPracujeDal) {
    DvaRoky d;
    d.spust();
    shell::Session druha({d.obsluha, d.hodiny, d.nahoda}, d.program);
    menu::TForm1 podruhe(druha);
    podruhe.FormCreate();
    podruhe.FormShow();
    ASSERT_EQ(d.obsluha.hlasky.size(), 1U);
    EXPECT_NE(d.obsluha.hlasky[0].find("Firma ALFA22 je právě otevřena i v jiném"),
              std::string::npos);
    EXPECT_EQ(druha.firma, "ALFA22") << "oznámení nic nezakazuje";
    podruhe.ComboBox1Change("BETA21");
    d.form.acZmenitFirmuExecute();
    d.obsluha.hlasky.clear();
    podruhe.ComboBox1Change("ALFA22");
    EXPECT_TRUE(d.obsluha.hlasky.empty()) << "kdo firmu opustil, nepřekáží";
}

// While another program writes, opening and every change are refused in words; then they succeed.
TEST(DruheSpusteni, KdyzJinyProgramZapisujeKrokSeOdmitneANicNezmeni) {
    DvaRoky d;
    d.spust();
    const auto zapis = [](shell::Session& s) { shell::uloz_hodnotu_firmy(s, "pozadi", "x.jpg"); };
    store::Connection jiny(d.session.cesta_ucet);
    {
        store::Transaction drzi(jiny);
        try {
            zapis(d.session);
            ADD_FAILURE() << "zapsalo se přes cizí zámek";
        } catch (const store::StoreBusy& obsazeno) {
            const std::string text = obsazeno.what();
            EXPECT_NE(text.find("právě používá jiný program. Nic se nezměnilo"), std::string::npos);
            EXPECT_EQ(text.find("locked"), std::string::npos);
        }
        EXPECT_EQ(shell::hodnota_firmy(d.session, "pozadi", "-"), "-");
    }
    zapis(d.session);
    EXPECT_EQ(shell::hodnota_firmy(d.session, "pozadi", "-"), "x.jpg");
}

TEST(ZmenaFirmy, VadnaFirmaNechaFormularBezFirmy) {
    DvaRoky d;
    d.spust();
    d.form.acZmenitFirmuExecute();
    EXPECT_THROW(d.form.ComboBox1Change("PRAZDNA22"), base::ChybaDat);
    EXPECT_EQ(d.session.firma, "");
    EXPECT_EQ(d.form.lbFirma, "Vyber firmu --->");
    EXPECT_FALSE(d.form.seznam_viditelny);
    EXPECT_TRUE(d.form.zmenit_viditelne) << "lze vybrat jinou";
}

TEST(ZmenaFirmy, NezapamatovanaVolbaPraciNezastavi) {
    DvaRoky d;
    d.spust();
    fs::remove(d.ini());
    fs::create_directories(d.ini() / "v ceste stoji slozka");
    d.form.ComboBox1Change("ALFA22");
    EXPECT_EQ(d.obsluha.hlasky.size(), 1U);
    EXPECT_EQ(d.form.lbFirma, "ALFA22  |  2022  |  ALFA22");
}

TEST(KorenDat, NovyKorenSeZapamatujeBezOddelovaceANabidneSveFirmy) {
    DvaRoky d;
    d.spust();
    d.form.acZmenitFirmuExecute();
    const auto jiny = d.slozka / "jiny";
    fs::create_directories(jiny);
    ASSERT_EQ(shell::zaloz_slozku_firmy(jiny, "GAMA22", {"Gama", "1"}), "");

    d.form.lbRootClick();
    EXPECT_EQ(d.session.koren_dat, d.koren) << "obsluha si to rozmyslela";
    EXPECT_EQ(d.obsluha.vyzva,
              "Změna kořenové složky dat, tzv. Rootu.\r\rVětšinou C:\\ nebo C:\\VelmarData nebo "
              "D:\\ apod.");

    d.obsluha.vybere = jiny.string() + "/";
    d.form.lbRootClick();
    EXPECT_EQ(d.obsluha.slozka, d.koren.string());
    EXPECT_EQ(d.session.koren_dat, jiny);
    EXPECT_EQ(base::cti_ini_text(d.ini(), "Data", "root", ""), jiny.string());
    EXPECT_EQ(d.form.seznam_firem, std::vector<std::string>{"GAMA22"});
    EXPECT_EQ(d.form.lbRoot, jiny.string() + "/");

    d.obsluha.vybere = "/";
    d.form.lbRootClick();
    EXPECT_EQ(d.session.koren_dat, "/");
}

TEST(Pozadi, VybranyObrazekPatriFirmeAVychoziSeLisi) {
    DvaRoky d;
    d.spust();
    const auto sablony = d.program / "Sablony";
    EXPECT_EQ(d.form.pozadi, (sablony / "pozadi9.jpg").string());
    d.form.Image1DblClick();
    EXPECT_EQ(d.form.pozadi, (sablony / "pozadi0.jpg").string());
    EXPECT_EQ(d.obsluha.vyzva, "Vyberte pozadí pro firmu ALFA22 (optimální velikost 800x500).");
    EXPECT_EQ(fs::path(d.obsluha.slozka), sablony / "");
    EXPECT_EQ(d.obsluha.filtr, "Obrázky pozadí|*.jpg");

    d.obsluha.vybere = "/obrazky/les.jpg";
    d.form.Image1DblClick();
    EXPECT_EQ(d.form.pozadi, "/obrazky/les.jpg");
    EXPECT_EQ(shell::hodnota_firmy(d.session, "pozadi", ""), "/obrazky/les.jpg");

    d.session.firma.clear();
    d.form.Image1DblClick();
    EXPECT_EQ(d.obsluha.hlasky, std::vector<std::string>{"Nejdříve vyberte firmu."});
}

}  // namespace
