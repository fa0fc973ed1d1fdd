// Attendance: the sums of a sheet, its editor, and the list of workers.
#include "wages/dochazka.h"

#include <gtest/gtest.h>

#include "report/nahled.h"
#include "report/text.h"
#include "support/zkusebni_firma.h"
#include "wages/unit162_dochazka.h"
#include "wages/unit163_zadani_dochazky.h"

namespace {

using wages::ListDochazky;
using wages::TForm162;
using wages::TForm163;

TEST(SouctyDochazky, OdpracovanyJeDenSHodinamiNeboSvatkem) {
    const struct {
        int den;
        double hodin;
        const char* kod;
        int dnu;
        double suma;
        int odprac, neodprac;
    } pripady[] = {{1, 0, "", 31, 0, 0, 31},      {1, 8, "", 31, 8, 1, 30},
                   {1, 0, "S", 31, 0, 1, 30},     {1, 0, "D", 31, 0, 0, 31},
                   {1, 4.5, "D", 31, 4.5, 1, 30}, {28, 8, "S", 28, 8, 1, 27},
                   {29, 8, "", 28, 8, 0, 28},  // hours of a day that the month does not have
                   {31, 0, "S", 28, 0, 0, 28}};
    for (const auto& p : pripady) {
        SCOPED_TRACE(std::to_string(p.den) + " " + p.kod + " " + std::to_string(p.hodin));
        ListDochazky list;
        list.hodiny[static_cast<std::size_t>(p.den - 1)] = p.hodin;
        list.kody[static_cast<std::size_t>(p.den - 1)] = p.kod;
        wages::secti(list, p.dnu);
        EXPECT_EQ(list.suma_hod, p.suma);
        EXPECT_EQ(list.suma_odprac, p.odprac);
        EXPECT_EQ(list.suma_neodprac, p.neodprac);
    }
}

struct Dochazka : testing::Test {
    zkouska::ZkusebniFirma firma;

    Dochazka() {
        firma.vloz("Os_karty",
                   "Cislo,Prijmeni,Jmeno\n12,Říha,Štěpán\n7,Žižková,Anežka\n120,Říhová,Eva\n");
        wages::zaloz_dochazku(firma.session);
    }
    TForm163 list(int mesic, const ListDochazky& zadano = {}) {
        return {firma.session, mesic, "Žižková Anežka", 7, zadano};
    }
    void v_zadani(std::function<void(TForm163&)> prace) {
        firma.obsluha.pri_obrazovce = [prace = std::move(prace)](base::Obrazovka& obrazovka) {
            prace(dynamic_cast<TForm163&>(obrazovka));
        };
    }
    std::string vypis() {
        return firma.vypis(
            "SELECT Cislo_pracovnika, Mesic, Hod3, Typ3, Hod4, Typ4, Hod31, Poznamka, Suma_hod, "
            "Suma_odprac, Suma_neodprac FROM Dochazka ORDER BY Cislo_pracovnika, Mesic");
    }
};

TEST_F(Dochazka, PoleKoduPropustiJenKodyVelkymi) {
    TForm163 form = list(1);
    const std::string povolene = " ABCDNOPSTEUVZX";
    for (char znak = ' '; znak < 127; ++znak) {
        form.Typ[4] = "?";
        form.klavesa_kodu(5, znak);
        const char velky = znak >= 'a' && znak <= 'z' ? static_cast<char>(znak - 32) : znak;
        const bool projde = povolene.find(velky) != std::string::npos;
        EXPECT_EQ(form.Typ[4], projde ? std::string(1, velky) : "?") << znak;
    }
    form.klavesa_kodu(5, ' ');
    form.vstup_do_kodu();
    EXPECT_TRUE(form.kody_viditelne);
    form.opusteni_kodu(5);
    EXPECT_FALSE(form.kody_viditelne);
    EXPECT_EQ(form.Typ[4], "");
}

TEST_F(Dochazka, DnyMesiceSipkyASkryteHodiny) {
    ListDochazky zadano;
    zadano.hodiny.fill(8);
    TForm163 form = list(2, zadano);
    EXPECT_EQ(form.nadpis, "Docházka v měsíci únor");
    EXPECT_EQ(form.Hod[27], "8");
    form.acPrepocitejExecute();
    EXPECT_EQ(form.Suma_hod + " " + form.Suma_odprac + " " + form.Suma_neodprac, "224 28 0");
    EXPECT_TRUE(form.den(28).viditelny);
    EXPECT_FALSE(form.den(29).viditelny);
    form.sipka(27, TForm163::Sloupec::kod, 1);
    EXPECT_EQ(form.fokus, "Typ28");
    form.sipka(28, TForm163::Sloupec::hodiny, 1);
    form.sipka(1, TForm163::Sloupec::hodiny, -1);
    EXPECT_EQ(form.fokus, "Typ28") << "za kraj měsíce se nejde";

    TForm163 cervenec = list(7);
    EXPECT_STREQ(cervenec.den(5).zkratka, "Út");
    EXPECT_TRUE(cervenec.den(5).svatek);
    EXPECT_TRUE(cervenec.den(2).vikend && !cervenec.den(2).svatek && !cervenec.den(1).vikend);
}

TEST_F(Dochazka, UlozitChceAsponJedenSoucet) {
    const std::string nuly[] = {"0", "", "0,00"};
    for (const std::string& nula : nuly) {
        TForm163 form = list(1);
        form.Poznamka = "jen poznámka";
        form.Suma_hod = form.Suma_odprac = form.Suma_neodprac = nula;
        form.acUlozitExecute();
        EXPECT_EQ(firma.obsluha.hlasky.back(), "Vyplňte součty.");
        EXPECT_EQ(form.fokus, "Suma_hod");
        EXPECT_FALSE(form.zavreno || form.vysledek_ok);
    }
    TForm163 sama_dovolena = list(1);
    for (std::string& kod : sama_dovolena.Typ)
        kod = "D";
    sama_dovolena.acPrepocitejExecute();
    EXPECT_EQ(sama_dovolena.Suma_neodprac, "31");
    sama_dovolena.acUlozitExecute();
    EXPECT_TRUE(sama_dovolena.zavreno && sama_dovolena.vysledek_ok);
}

TEST_F(Dochazka, PrvniUlozeniPridaDalsiPrepiseAKurzorZustane) {
    firma.session.mesic_v_poli = 3;
    TForm162 evidence(firma.session);
    evidence.FormShow();
    EXPECT_EQ(evidence.nadpis, "Evidence docházky - FIRMA22");
    evidence.vyber_radek(1);
    v_zadani([](TForm163& form) {
        EXPECT_EQ(form.pracovnik, "Říha Štěpán");
        form.Hod[2] = "7,5";
        form.Typ[3] = "N";
        form.Poznamka = "směny";
        form.acPrepocitejExecute();
        form.acUlozitExecute();
    });
    evidence.acOpravitExecute();
    EXPECT_EQ(vypis(), "12|3|7.5||0|N|0|směny|7.5|1|30\n");
    EXPECT_EQ(evidence.hodnota_radku("Cislo").as_integer(), 12);
    EXPECT_EQ(evidence.hodnota_radku("Den3").as_text(), "7,5");
    EXPECT_EQ(evidence.hodnota_radku("Suma_hod").as_number(), 7.5);

    v_zadani([](TForm163& form) {
        EXPECT_EQ(form.Hod[2] + form.Typ[3] + form.Poznamka, "7,5Nsměny");
        form.Hod[2] = "8";
        form.Suma_hod = "8";
        form.acUlozitExecute();
    });
    evidence.acOpravitExecute();
    EXPECT_EQ(vypis(), "12|3|8||0|N|0|směny|8|1|30\n");

    v_zadani([](TForm163& form) {
        form.Hod[2] = "1";
        form.acZpetExecute();
    });
    evidence.acOpravitExecute();
    evidence.mesic = 3;
    evidence.zmena_mesice();
    EXPECT_EQ(evidence.hodnota_radku("Den3").as_text(), "");
    EXPECT_EQ(vypis(), "12|3|8||0|N|0|směny|8|1|30\n");
}

TEST_F(Dochazka, FiltryAPrepinacSloupcu) {
    firma.vloz("Dochazka", "Cislo_pracovnika,Mesic,Hod1,Typ2\n7,1,8,D\n7,2,4,\n");
    TForm162 evidence(firma.session);
    evidence.FormShow();
    const auto cisla = [&] {
        std::string vse;
        for (const auto& veta : evidence.vety.rows)
            vse += veta[1].as_text() + " ";
        return vse;
    };
    EXPECT_EQ(cisla(), "7 12 120 ");
    EXPECT_EQ(evidence.hodnota_radku("Den1").as_text(), "8");
    EXPECT_STREQ(evidence.popisek_prepinace(), "Zobrazit nepřítomnost");
    evidence.acOdpracovanoNepritomnostExecute();
    EXPECT_STREQ(evidence.popisek_prepinace(), "Zobrazit odpracované hodiny");
    EXPECT_EQ(evidence.hodnota_radku("Den1").as_text(), "");
    EXPECT_EQ(evidence.hodnota_radku("Den2").as_text(), "D");

    const struct {
        const char *cislo, *prijmeni, *zbyde;
    } pripady[] = {{"12", "", "12 "}, {"", "říh", "12 120 "}, {"120", "ŘÍHOV", "120 "},
                   {"7", "říha", ""}, {"", "ko", "7 "},       {"99", "", ""}};
    for (const auto& p : pripady) {
        evidence.cislo = p.cislo;
        evidence.prijmeni = p.prijmeni;
        evidence.zmena_filtru();
        EXPECT_EQ(cisla(), p.zbyde) << p.cislo << p.prijmeni;
    }
    evidence.acOpravitExecute();
    evidence.acVseExecute();
    EXPECT_EQ(cisla(), "7 12 120 ");
    EXPECT_EQ(evidence.den(31).nadpis, "31\nPo");
    evidence.mesic = 1;
    evidence.zmena_mesice();
    EXPECT_EQ(evidence.den(29).nadpis, "");
}

TEST_F(Dochazka, TiskPodleSablony) {
    firma.vloz("Dochazka", "Cislo_pracovnika,Mesic,Hod1,Typ2,Suma_hod\n7,1,8.5,D,8.5\n");
    TForm162 evidence(firma.session);
    evidence.FormShow();
    evidence.acTiskExecute();
    EXPECT_EQ(firma.obsluha.hlasky.back(),
              "Soubor se sestavou \"mz_evidence_dochazky.fr3\" neexistuje.");
    const auto sablony = firma.session.slozka_programu / "Sablony";
    std::filesystem::create_directories(sablony);
    const char* const soubor = "mz_evidence_dochazky.fr3";
    std::filesystem::copy_file(std::filesystem::path(ZORV_SOURCE_DIR) / "Sablony" / soubor,
                               sablony / soubor);
    std::string text;
    firma.obsluha.pri_obrazovce = [&](base::Obrazovka& obrazovka) {
        text = report::jako_text(dynamic_cast<report::TFUsrPrev&>(obrazovka).dokument);
    };
    evidence.acTiskExecute();
    for (const char* cast : {"FIRMA22", "leden  2022", "Žižková Anežka", "8,5", "Říhová Eva"})
        EXPECT_NE(text.find(cast), std::string::npos) << cast << "\n" << text;
}

}  // namespace
