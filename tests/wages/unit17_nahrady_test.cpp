// The page of compensations: which field computes what, its explanation, the row it writes, and the
// lists of what was written. Amounts worked out by hand.
#include "wages/unit17_nahrady.h"

#include <filesystem>
#include <fmt/format.h>
#include <gtest/gtest.h>
#include <memory>

#include "report/nahled.h"
#include "report/text.h"
#include "store/catalogue.h"
#include "support/zkusebni_firma.h"
#include "wages/unit123_tisk_nahrad.h"
#include "wages/unit17_nemoc.h"
#include "wages/unit_nahrady_prehled.h"
#include "wages/veta_nahrady.h"

namespace {

using wages::PoleNahrad;
using wages::StrankaNahrad;
using wages::TypNahrady;

/// A year with basic calendars of eight hours of it and of the year before; one worker, whose
/// average is the same in all quarters.
struct Neschopnost {
    zkouska::ZkusebniFirma firma;
    wages::KartaZadani karta;
    std::unique_ptr<StrankaNahrad> stranka;

    explicit Neschopnost(int rok = 2022, const char* prumer = "227.15")
        : firma(fmt::format("FIRMA{:02}", rok % 100)) {
        for (const int r : {rok, rok - 1}) {
            std::string nazvy = "Rok,Typ,Nazev", hodnoty = fmt::format("{},0,K", r);
            const wages::RokKalendare kalendar = wages::zakladni_kalendar(r, 480);
            for (std::size_t m = 0; m < 12; ++m) {
                nazvy += fmt::format(",Fond{}", m + 1);
                hodnoty += "," + wages::mesic_na_text(kalendar[m]);
            }
            firma.vloz("Rpd", nazvy + "\n" + hodnoty + "\n");
        }
        firma.vloz("Os_karty",
                   fmt::format("Cislo,Prijmeni,Jmeno,tpd,Id_rpd,Id_rpd_min,PdovH4min,PdovH1akt\n"
                               "20,Černá,Eva,40,1,2,{0},{0}\n",
                               prumer));
        karta = wages::nacti_kartu_zadani(firma.session, 1);
        stranka = std::make_unique<StrankaNahrad>(firma.session);
    }
    StrankaNahrad& neschopnost(TypNahrady typ, int mesic, const char* od, const char* do_) {
        firma.session.zpracovavany_mesic = mesic;
        stranka->zvol_typ(typ);
        stranka->scTrvaniOd = od;
        stranka->scTrvaniDo = do_;
        stranka->zmena();
        stranka->opusteni(PoleNahrad::trvani_do, karta);
        return *stranka;
    }
    void zapis(const char* doklad) {
        store::Transaction transakce(firma.data());
        const std::string hrube = store::month_table("Hrube", firma.session.zpracovavany_mesic);
        if (!firma.data().table_exists(hrube))
            firma.data().create_table(store::definition_of(hrube));
        transakce.commit();
        stranka->scCisloDokladu = doklad;
        ASSERT_EQ(stranka->kontrola(), std::vector<std::string>{});
        stranka->zapis(karta);
    }
};

struct Castka {
    PoleNahrad pole;
    const char* jmeno;
    std::string StrankaNahrad::*text;
};
const Castka k_pole[] = {{PoleNahrad::fond_a, "fondA", &StrankaNahrad::scFondA},
                         {PoleNahrad::fond_b, "fondB", &StrankaNahrad::scFondB},
                         {PoleNahrad::fond_c, "fondC", &StrankaNahrad::scFondC},
                         {PoleNahrad::prum_hod_vydelek, "prum", &StrankaNahrad::scPrumHodVydelek},
                         {PoleNahrad::red_hod_vydelek, "red", &StrankaNahrad::scRedHodVydelek},
                         {PoleNahrad::hod_nahrada_a, "hodA", &StrankaNahrad::scHodNahradaA},
                         {PoleNahrad::hod_nahrada_b, "hodB", &StrankaNahrad::scHodNahradaB},
                         {PoleNahrad::nahrada_a, "A", &StrankaNahrad::scNahradaA},
                         {PoleNahrad::nahrada_b, "B", &StrankaNahrad::scNahradaB},
                         {PoleNahrad::celkova_nahrada, "celkem", &StrankaNahrad::scCelkovaNahrada}};

TEST(StrankaNahrad, OpustenePolePrepocitaJenCoJeZaNim) {
    struct Pripad {
        PoleNahrad pole;
        bool zmeneno;
        const char* prepoctena;
    };
    const char* const od_hodinovych = "hodA hodB A B celkem ";
    const Pripad pripady[] = {
        {PoleNahrad::trvani_od, true, "fondA fondB fondC prum red hodA hodB A B celkem "},
        {PoleNahrad::trvani_do, true, "fondA fondB fondC prum red hodA hodB A B celkem "},
        {PoleNahrad::trvani_do, false, od_hodinovych},
        {PoleNahrad::prum_hod_vydelek, true, "red hodA hodB A B celkem "},
        {PoleNahrad::prum_hod_vydelek, false, od_hodinovych},
        {PoleNahrad::red_hod_vydelek, true, od_hodinovych},
        {PoleNahrad::fond_a, true, od_hodinovych},
        {PoleNahrad::fond_b, false, od_hodinovych},
        {PoleNahrad::fond_c, true, od_hodinovych},
        {PoleNahrad::hod_nahrada_a, true, "A celkem "},
        {PoleNahrad::hod_nahrada_b, true, "B celkem "},
        {PoleNahrad::nahrada_a, true, "celkem "},
        {PoleNahrad::nahrada_b, false, "celkem "},
        {PoleNahrad::celkova_nahrada, true, ""},
    };
    for (const Pripad& p : pripady) {
        Neschopnost n;
        StrankaNahrad& s = n.neschopnost(TypNahrady::karantena, 3, "7.3.2022", "13.3.2022");
        for (const Castka& c : k_pole)  // no step gives these
            s.*c.text = c.jmeno[0] == 'f' ? "1:01" : "77,07";
        s.vstup();
        if (p.zmeneno) s.zmena();
        s.opusteni(p.pole, n.karta);
        std::string prepoctena;
        for (const Castka& c : k_pole)
            if (s.*c.text != "1:01" && s.*c.text != "77,07")
                prepoctena += c.jmeno + std::string(" ");
        EXPECT_EQ(prepoctena, p.prepoctena) << static_cast<int>(p.pole) << p.zmeneno;
    }
}

TEST(StrankaNahrad, FondyACastkyPodleTypuAObdobi) {
    struct Pripad {
        int rok;
        const char* prumer;
        TypNahrady typ;
        int mesic;
        const char *od, *do_, *vysledek;  ///< days, funds, hourly amounts, amounts, total
    };
    const Pripad pripady[] = {
        // 227,15 * 90 % = 204,435 up; * 60 % = 122,664 up; 40 hours
        {2022, "227.15", TypNahrady::nemoc, 2, "7.2.2022", "13.2.2022",
         "7/5 0:00 40:00 0:00 204,44 0,00 122,67 0,00 4906,80 4906,80"},
        {2022, "227.15", TypNahrady::ocr, 2, "7.2.2022", "13.2.2022",
         "7/5 0:00 40:00 0:00 0,00 0,00 0,00 0,00 0,00 0,00"},
        {2022, "227.15", TypNahrady::ppm, 2, "1.2.2022", "28.2.2022",
         "28/20 0:00 80:00 80:00 0,00 0,00 0,00 0,00 0,00 0,00"},
        // 190,75 * 90 % = 171,675 up; * 60 % = 103,008 up; 24 and 16 hours
        {2019, "190.75", TypNahrady::karantena, 6, "3.6.2019", "9.6.2019",
         "7/5 24:00 16:00 0:00 171,68 103,01 103,01 2472,24 1648,16 4120,40"},
        {2019, "190.75", TypNahrady::nemoc, 6, "3.6.2019", "9.6.2019",
         "7/5 24:00 16:00 0:00 171,68 0,00 103,01 0,00 1648,16 1648,16"},
        {2023, "300", TypNahrady::nemoc, 2, "6.2.2023", "12.2.2023",
         "7/5 0:00 40:00 0:00 0,00 0,00 0,00 0,00 0,00 0,00"},
    };
    for (const Pripad& p : pripady) {
        Neschopnost n(p.rok, p.prumer);
        const StrankaNahrad& s = n.neschopnost(p.typ, p.mesic, p.od, p.do_);
        EXPECT_EQ(
            fmt::format("{}/{} {} {} {} {} {} {} {} {} {}", s.scDnuKalendarnich, s.scDnuPracovnich,
                        s.scFondA, s.scFondB, s.scFondC, s.scRedHodVydelek, s.scHodNahradaA,
                        s.scHodNahradaB, s.scNahradaA, s.scNahradaB, s.scCelkovaNahrada),
            p.vysledek)
            << p.od;
        EXPECT_EQ(s.fond_a_viditelny, p.rok == 2019);
        EXPECT_TRUE(n.firma.obsluha.hlasky.empty());
    }
}

/// The lines of the explanation that speak of a variable's origin.
bool vysvetluje(const StrankaNahrad& s, const std::string& cast) {
    return s.vysvetleni(0).find(cast) != std::string::npos;
}

TEST(StrankaNahrad, VysvetleniRozlisiVypocetARucniZadani) {
    Neschopnost n;
    StrankaNahrad& s = n.neschopnost(TypNahrady::nemoc, 3, "7.3.2022", "13.3.2022");
    EXPECT_TRUE(vysvetluje(s, "náhrada celkem = 4906,8"));
    EXPECT_TRUE(vysvetluje(s, "z karty = 227,15  ← Os_karty.PdovH4min"));
    EXPECT_TRUE(
        vysvetluje(s,
                   "v měsíci zadání 40:00, pracovních dnů 5; od počátku dnů kalendářních 7, "
                   "pracovních 5"));
    EXPECT_FALSE(vysvetluje(s, "ručně"));
    ASSERT_FALSE(s.strom.uzly().empty());
    EXPECT_EQ(s.strom.uzel(0).hodnota, "4906,8");

    const auto prepis = [&](PoleNahrad pole, std::string& text, const char* hodnota) {
        const unsigned pred = s.vydani_stromu;
        s.vstup();
        text = hodnota;
        s.zmena();
        s.opusteni(pole, n.karta);
        EXPECT_GT(s.vydani_stromu, pred);
    };
    // What was computed before and not touched stays explained by its step.
    prepis(PoleNahrad::hod_nahrada_b, s.scHodNahradaB, "100");
    EXPECT_TRUE(vysvetluje(s, "náhrada celkem = 4000"));
    EXPECT_TRUE(vysvetluje(s, "náhrada za hodinu = 100: zadáno ručně"));
    EXPECT_TRUE(vysvetluje(s, "fond B, minut = 2400: fond B"));
    prepis(PoleNahrad::fond_b, s.scFondB, "24,30");
    EXPECT_EQ(s.scFondB, "24:30");
    EXPECT_EQ(s.scNahradaB, "3005,42");  // 122,67 an hour again, 24,5 hours
    EXPECT_TRUE(vysvetluje(s, "fond B, minut = 1470: zadáno ručně"));
    EXPECT_FALSE(vysvetluje(s, "náhrada za hodinu = 122,67: zadáno ručně"));
    prepis(PoleNahrad::celkova_nahrada, s.scCelkovaNahrada, "3000");
    EXPECT_EQ(s.vysvetleni(0), "zadáno ručně = 3000\n");
    ASSERT_EQ(s.strom.uzly().size(), 1U);
    EXPECT_EQ(s.strom.uzel(0).druh, base::DruhUzlu::udaj);
    s.vymaz();
    EXPECT_TRUE(s.strom.uzly().empty());
}

TEST(StrankaNahrad, ChybneDatumNeboPrazdnyPocatekVypocetZastavi) {
    struct Pripad {
        const char *od, *do_, *hlaska;
        bool panel;
    };
    for (const Pripad& p : {Pripad{"7.3.2022", "", "", false},
                            {"", "13.3.2022", "\"\" není platné datum.", false},
                            {"30.2.2022", "13.3.2022", "\"30.2.2022\" není platné datum.", false},
                            {"7.3.2022", "3.13.2022", "\"3.13.2022\" není platné datum.", false}}) {
        Neschopnost n;
        const StrankaNahrad& s = n.neschopnost(TypNahrady::nemoc, 3, p.od, p.do_);
        const auto& hlasky = n.firma.obsluha.hlasky;
        EXPECT_EQ(hlasky.empty() ? "" : hlasky.front(), p.hlaska);
        EXPECT_EQ(s.panel_viditelny, p.panel) << p.od;
        // Without the end only the average is known.
        EXPECT_EQ(s.scPrumHodVydelek, *p.do_ ? "0,00" : "227,15");
        EXPECT_EQ(s.scFondB, "0:00");
    }
}

TEST(StrankaNahrad, ZapisSeKontroluje) {
    struct Pripad {
        const char *doklad, *od, *do_, *dnu, *chyba;
    };
    for (const Pripad& p :
         {Pripad{" ", "7.3.2022", "13.3.2022", "7", "Údaj <Číslo dokladu> musí být vyplněn."},
          {"1", "31.12.2008", "13.3.2022", "7", "Údaj <Trvání od> musí být od 1.1.2009 výše."},
          {"1", "7.3.2022", "1.4.2022", "7", "Údaj <Trvání do> musí být do 31.3.2022."},
          {"1", "14.3.2022", "13.3.2022", "7",
           "<Trvání do> musí být větší nebo roven než <Trvání od>."},
          {"1", "7.3.2022", "13.3.2022", "0", "Údaj <Kalendářních dnů> musí být vyplněn."},
          {"1", "1.1.2009", "31.3.2022", "31", ""}}) {
        Neschopnost n;
        n.firma.session.zpracovavany_mesic = 3;
        n.stranka->scCisloDokladu = p.doklad;
        n.stranka->scTrvaniOd = p.od;
        n.stranka->scTrvaniDo = p.do_;
        n.stranka->scDnuKalendarnich = p.dnu;
        const auto chyby = n.stranka->kontrola();
        EXPECT_EQ(chyby, *p.chyba ? std::vector<std::string>{p.chyba} : std::vector<std::string>{});
    }
}

/// A sickness from January to March written month by month, and a care in March.
struct ZapsaneNahrady : Neschopnost {
    ZapsaneNahrady() {
        const std::pair<int, const char*> mesice[] = {
            {1, "31.1.2022"}, {2, "28.2.2022"}, {3, "11.3.2022"}};
        for (const auto& [mesic, do_] : mesice) {
            neschopnost(TypNahrady::nemoc, mesic, "24.1.2022", do_);
            zapis("AB 7");
        }
        neschopnost(TypNahrady::ocr, 3, "14.3.2022", "18.3.2022");
        zapis("8");
    }
};

TEST(ZapsaneNahrady, DlouhaNeschopnostPoMesicich) {
    ZapsaneNahrady z;
    // 48 and 32 hours of 122,67; the hours of fund C from 100 on have no room for their last digit
    EXPECT_EQ(z.firma.vypis("SELECT Mesic, Id_hrube, Trvani_do, Dnu_kalendarnich, Fond_B, Fond_C, "
                            "Celkova_nahrada, Vyloucene_dny FROM Nahrady ORDER BY Pocitadlo"),
              "1|1|2022-01-31|8|48:00|0:00|5888.16|8\n"
              "2|1|2022-02-28|28|32:00|128:0|3925.44|28\n"
              "3|1|2022-03-11|11|0:00|72:00|0|11\n"
              "3|2|2022-03-18|5|40:00|0:00|0|5\n");
    EXPECT_EQ(z.firma.vypis("SELECT Dny_neod, Hod_neod, Kc_cel FROM Hrube02"), "20|160|3925.44\n");
    EXPECT_EQ(wages::kalendarni_dny_nemoci(z.firma.session, 20), 52);
    EXPECT_EQ(wages::kalendarni_dny_nemoci(z.firma.session, 21), 0);
}

TEST(ZapsaneNahrady, PrehledUkazeRadkyANetiskne) {
    ZapsaneNahrady z;
    wages::TFNahrady prehled(z.firma.session);
    prehled.FormShow();
    EXPECT_EQ(prehled.nadpis, "Přehled náhrad za pracovní neschopnost - FIRMA22");
    EXPECT_FALSE(prehled.tisk_povoleny);
    ASSERT_EQ(prehled.vety.rows.size(), 4U);
    prehled.vyber_radek(1);
    EXPECT_EQ(prehled.hodnota_radku("Typ_nahrady").as_text(), "nemoc");
    EXPECT_EQ(prehled.hodnota_radku("Fond_C").as_text(), "128:00");
    prehled.vyber_radek(3);
    EXPECT_EQ(prehled.hodnota_radku("Typ_nahrady").as_text(), "OČR");
    std::string otevreno;
    z.firma.obsluha.pri_obrazovce = [&](base::Obrazovka& o) { otevreno = o.jmeno(); };
    prehled.acSestavaExecute();
    EXPECT_EQ(otevreno, "TForm123");
}

TEST(ZapsaneNahrady, SestavaPodleMesicuAPracovnika) {
    ZapsaneNahrady z;
    std::filesystem::create_directories(z.firma.session.slozka_programu / "Sablony");
    std::filesystem::copy(std::filesystem::path(ZORV_SOURCE_DIR) / "Sablony/mz_003_blank.fr3",
                          z.firma.session.slozka_programu / "Sablony");
    z.firma.vloz("Nahrady",
                 "Cislo_pracovnika,Mesic,Typ_nahrady,Cislo_dokladu,Trvani_od,Trvani_do,"
                 "Dnu_kalendarnich,Nahrada_B,Celkova_nahrada\n"
                 "99,2,1,X1,2022-02-01,2022-02-02,2,100.5,100.5\n");
    std::string text;
    z.firma.obsluha.pri_obrazovce = [&](base::Obrazovka& o) {
        text = report::jako_text(dynamic_cast<report::TFUsrPrev&>(o).dokument);
    };
    const auto sestava = [&](int od, int do_, const char* cislo) {
        wages::TForm123 tisk(z.firma.session);
        tisk.FormShow();
        tisk.mesic_od = od - 1;
        tisk.mesic_do = do_ - 1;
        tisk.vsichni = !*cislo;
        tisk.cislo = cislo;
        tisk.cisloExit();
        text.clear();
        tisk.acTiskExecute();
    };
    const auto je = [&](const char* cast) { return text.find(cast) != std::string::npos; };
    sestava(2, 3, "");
    for (const char* cast : {"únor až březen  2022, všichni pracovníci", "20  Černá Eva",
                             "Celkem pracovník 20, dokladů: 3", "128:00", "3 925,44", "AB 7", "OČR",
                             "karanténa", "Celkem, dokladů: 4", "4 025,94"})
        EXPECT_TRUE(je(cast)) << cast << "\n" << text;
    EXPECT_FALSE(je("5 888,16")) << "leden do rozsahu nepatří";
    sestava(1, 1, "20");
    EXPECT_TRUE(je("leden  2022, pracovník 20 Černá Eva") && je("5 888,16") && !je("karanténa"))
        << text;

    struct Pripad {
        int od, do_;
        const char *cislo, *hlaska;
    };
    for (const Pripad& p : {Pripad{3, 2, "", "Měsíc od je větší než měsíc do."},
                            {1, 12, " ", "Není zadané číslo pracovníka."},
                            {1, 12, "21", "Pracovník 21 není v kartotéce."},
                            {4, 12, "20", "Za zvolené období není zapsaná žádná náhrada."}}) {
        sestava(p.od, p.do_, p.cislo);
        EXPECT_EQ(z.firma.obsluha.hlasky.back(), p.hlaska);
        EXPECT_EQ(text, "");
    }
}

TEST(ZapsaneNahrady, StareDavkySeSectouZeVsechMesicu) {
    Neschopnost n;
    // 1 + 3 days of a sickness over February, 2 of one that began in December; maternity aid and an
    // allowance bear no days.
    n.firma.vloz("Hrube01",
                 "Cislo_pracovnika,Mesic,Modul,Sloupec,Text\n20,1,4,6,O   130120201\n"
                 "20,1,1,6,N  1201010301\n21,1,4,6,N  1201010301\n");
    n.firma.vloz("Hrube02", "Cislo_pracovnika,Mesic,Modul,Sloupec,Text\n20,2,4,6,N 12328020303\n");
    n.firma.vloz("Hrube03",
                 "Cislo_pracovnika,Mesic,Modul,Sloupec,Text\n20,3,4,6,N 12328020303\n"
                 "20,3,4,6,P 123 28\n20,3,4,6,\n");
    EXPECT_EQ(wages::kalendarni_dny_nemoci_2008(n.firma.session, 20), 1 + 3 + 2);
    EXPECT_EQ(wages::kalendarni_dny_nemoci_2008(n.firma.session, 5), 0);
}

TEST(VetaNahrady, FondSeVejdeDoPoleAVratiSe) {
    struct Pripad {
        const char *fond, *pole, *zpet;
    };
    for (const Pripad& p : {Pripad{"0:00", "0:00", "0:00"},
                            {" 37:30 ", "37:30", "37:30"},
                            {"168:00", "168:0", "168:00"},
                            {"142:30", "142:3", "142:30"},
                            {"142:45", "142:4", "142:40"},
                            {"", "", ""}}) {
        EXPECT_EQ(wages::fond_do_vety(p.fond), p.pole);
        EXPECT_EQ(wages::fond_z_vety(p.pole), p.zpet);
    }
}

}  // namespace
