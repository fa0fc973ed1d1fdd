// Wage settings: filling, the checks of saving in their order, and what the two files hold then.
#include "paysheet/unit14_nastaveni.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>

#include "base/soubory.h"
#include "base/text.h"
#include "paysheet/okresy_cssz.h"
#include "paysheet/unit14_pole.h"
#include "support/zkusebni_firma.h"

namespace {

using paysheet::Stranka;
using paysheet::TForm14;
using Uprava = std::function<void(TForm14&)>;

/// Opens the screen as its action does and works it by `prace`; true when it was accepted.
bool nastav(zkouska::ZkusebniFirma& firma, const Uprava& prace) {
    firma.obsluha.pri_obrazovce = [&](base::Obrazovka& obrazovka) {
        prace(dynamic_cast<TForm14&>(obrazovka));
    };
    return paysheet::acNastaveniParametruExecute(firma.session);
}

/// Both files as they lie on the disk.
std::string soubory(const zkouska::ZkusebniFirma& firma) {
    std::string obsah = base::precti_soubor(firma.session.soubor_ridici_zorv(), 4096);
    const auto ini = firma.session.soubor_nastaveni();
    if (std::filesystem::exists(ini)) obsah += base::precti_soubor(ini, 1U << 20U);
    return obsah;
}

struct Kontrola {
    Uprava uprava;
    const char* hlaska;
    Stranka stranka;
    const char* fokus;
};

// Modules of the company: 1 has columns 1 to 2, 3 has 4 to 5, 5 has 7 to 8, 10 has 13 to 14.
const Kontrola k_odmitnuto[] = {
    {[](TForm14& f) { f.Edit1 = "3"; }, "Sloupec pro stálý plat neodpovídá modulu č. 1.",
     Stranka::zakladni_parametry, "Edit1"},
    {[](TForm14& f) { f.Edit1 = "257"; }, "Sloupec pro stálý plat neodpovídá modulu č. 1.",
     Stranka::zakladni_parametry, "Edit1"},
    {[](TForm14& f) { f.Edit2 = "0"; }, "Sloupec pro OSOH 1 neodpovídá modulu č. 1.",
     Stranka::zakladni_parametry, "Edit2"},
    {[](TForm14& f) { f.Edit4 = "x"; }, "Sloupec pro OSOH 2 neodpovídá modulu č. 1.",
     Stranka::zakladni_parametry, "Edit4"},
    {[](TForm14& f) { f.Edit6 = f.Edit10 = "9"; }, "Sloupec pro OSOH 3 neodpovídá modulu č. 1.",
     Stranka::zakladni_parametry, "Edit6"},
    {[](TForm14& f) { f.Edit8 = "3"; }, "Sloupec pro OSOH 4 neodpovídá modulu č. 1.",
     Stranka::zakladni_parametry, "Edit8"},
    {[](TForm14& f) { f.Edit10 = "3", f.Edit13 = ""; },
     "Sloupec pro OSOH 5 neodpovídá modulu č. 1.", Stranka::zakladni_parametry, "Edit10"},
    {[](TForm14& f) { f.Edit13 = f.scProcSoc2 = " "; },
     "Nezadali jste procento pro sociální pojištění u pracovníka.", Stranka::legislativa, "Edit13"},
    {[](TForm14& f) { f.Edit15 = f.Edit16 = ""; },
     "Nezadali jste procento pro zdravotní pojištění u pracovníka.", Stranka::legislativa,
     "Edit15"},
    {[](TForm14& f) { f.Edit16 = "", f.scPenzijni32 = "7"; },
     "Nezadali jste procento pro zdravotní pojištění za organizaci.", Stranka::legislativa,
     "Edit16"},
    {[](TForm14& f) { f.scPenzijni32 = "7"; },
     "U platby pro penzijní fond musíte zadat obě hodnoty nebo žádnou.",
     Stranka::pojisteni_dane_uctovani, "scPenzijni33"},
    {[](TForm14& f) { f.scPenzijni33 = "13"; },
     "U platby pro penzijní fond musíte zadat obě hodnoty nebo žádnou.",
     Stranka::pojisteni_dane_uctovani, "scPenzijni32"},
    {[](TForm14& f) { f.scPenzijni32 = f.scPenzijni33 = "13"; },
     "Sloupec v oblasti dávek neodpovídá modulu 5.", Stranka::pojisteni_dane_uctovani,
     "scPenzijni32"},
    {[](TForm14& f) { f.scPenzijni32 = f.scPenzijni33 = "8"; },
     "Sloupec v oblasti srážek neodpovídá modulu 10.", Stranka::pojisteni_dane_uctovani,
     "scPenzijni33"},
    {[](TForm14& f) { f.scNejdou[2][7] = "4", f.scMinimalniMzda = ""; },
     "Sloupec pro naturální mzdu nemůže být vyloučen z daně.", Stranka::pojisteni_dane_uctovani,
     "scNejdou98"},
    // What could not be stored is found before anything is written.
    {[](TForm14& f) { f.scMinimalniMzda = ""; }, "Nezadali jste údaj \"Minimální mzda\".",
     Stranka::legislativa, "scMinimalniMzda"},
    {[](TForm14& f) { f.scDruhyPilirPF = " "; },
     "Nezadali jste údaj \"2. pilíř - odvod sociálního pojištění / Odvod PF\".",
     Stranka::legislativa, "scDruhyPilirPF"},
    {[](TForm14& f) { f.scSazbaPPM = "69,5"; },
     "Údaj \"Sazba PPM\" musí být celé číslo od 0 do 2147483647.", Stranka::legislativa,
     "scSazbaPPM"},
    {[](TForm14& f) { f.Edit18 = "10000"; },
     "Údaj \"Částka, ze které důchodce neplatí zdravotní pojištění\" musí být celé číslo od 0 do "
     "9999.",
     Stranka::legislativa, "Edit18"},
    {[](TForm14& f) { f.Edit43 = "1,2,3"; },
     "Údaj \"Příspěvek odborovému svazu - sazba 1\" musí být číslo, nula nebo větší.",
     Stranka::zakladni_parametry, "Edit43"},
    {[](TForm14& f) { f.Edit3 = "příplatek za řízení vozidla"; },
     "Údaj \"Osobní ohodnocení 1 - text\" smí mít nejvýše 20 znaků.", Stranka::zakladni_parametry,
     "Edit3"},
    {[](TForm14& f) { f.Edit60 = "日本"; },
     "Údaj \"Volitelná hlediska 10\" obsahuje znak, který nelze uložit.",
     Stranka::zakladni_parametry, "Edit60"},
    {[](TForm14& f) { f.scTydnuDovolene = ""; }, "Nezadali jste údaj \"Týdnů dovolené\".",
     Stranka::zakladni_parametry, "scTydnuDovolene"},
    {[](TForm14& f) { f.scNejdou[0][0] = "40000"; },
     "Údaj \"Sloupce hrubých mezd, které NEJDOU do pojištění a daně\" musí být celé číslo od 0 do "
     "32767.",
     Stranka::pojisteni_dane_uctovani, "scNejdou71"},
    {[](TForm14& f) { f.scKodSazbyPojistneho = -1; },
     "Nezadali jste údaj \"Kód sazby pojistného (ČSSZ)\".", Stranka::legislativa,
     "scKodSazbyPojistneho"},
};

TEST(NastaveniMezd, PrvniChybaUkazePoleANicSeNezapise) {
    zkouska::ZkusebniFirma firma;
    const std::string puvodni = soubory(firma);
    for (const Kontrola& k : k_odmitnuto) {
        SCOPED_TRACE(std::string(k.hlaska) + " " + k.fokus);
        firma.obsluha.hlasky.clear();
        EXPECT_FALSE(nastav(firma, [&](TForm14& form) {
            k.uprava(form);
            form.acUlozitExecute();
            EXPECT_EQ(form.stranka, k.stranka);
            EXPECT_EQ(form.fokus, k.fokus);
            EXPECT_FALSE(form.zavreno);
        }));
        EXPECT_EQ(firma.obsluha.hlasky, std::vector<std::string>{k.hlaska});
        EXPECT_EQ(soubory(firma), puvodni);
        EXPECT_EQ(firma.session.nastaveni.MinimalniMzda, 16200);
    }
}

TEST(NastaveniMezd, PrvniStranaUkazujeHodnotyRokuADesetinnouCarku) {
    zkouska::ZkusebniFirma firma;
    firma.session.radek_firmy = "Zkušební 2022";
    nastav(firma, [](TForm14& form) {
        EXPECT_EQ(form.nadpis, "Nastavení mezd - Zkušební 2022");
        EXPECT_EQ(form.stranka, Stranka::legislativa);
        EXPECT_EQ(form.scMinimalniMzda, "16200");
        EXPECT_EQ(form.Edit13, "6,5");
        EXPECT_EQ(form.scProcSoc2, "24,8");
        EXPECT_EQ(form.Edit1, "");
        EXPECT_EQ(form.Edit3, "nezadáno 1");
        EXPECT_EQ(form.Edit42, "999999");
        EXPECT_EQ(form.scKodSazbyPojistneho, 0);
        EXPECT_EQ(form.scEmailNotifikace, "@");
        EXPECT_TRUE(form.scNemocenskeDavky);
        form.scMinimalniMzda = "1";
        form.acZpetExecute();
    });
    EXPECT_EQ(firma.session.nastaveni.MinimalniMzda, 16200);
}

TEST(NastaveniMezd, UlozeneHodnotyPrezijiZnovuotevreni) {
    zkouska::ZkusebniFirma firma;
    firma.session.ridici_zorv.sloupec_os_oh[4] = 2;
    ASSERT_TRUE(nastav(firma, [](TForm14& form) {
        form.scMinimalniMzda = "17300";
        form.scSazbaOCR = "60,5";
        form.Edit13 = "7,1";
        form.Edit1 = "2";
        form.Edit10 = "";
        form.Edit11 = "vedoucí směny";
        form.Edit43 = "0,01";
        form.Edit42 = "";
        form.scPenzijni32 = "8";
        form.scPenzijni33 = "14";
        form.scNejdou[0][7] = "4";  // wage in kind may be left out of insurance
        form.scNejdou[2][0] = "1";
        form.scKodSazbyPojistneho = 1;
        form.scNemocenskeDavky = false;
        form.scVstupDoUzavrenychMesicu = true;
        form.scCsszOkres = "775 Zlín";
        form.scCsszVs = "7751234567";
        form.acUlozitExecute();
    }));
    EXPECT_TRUE(firma.obsluha.hlasky.empty());

    const auto zaznam = shell::cti_ridici_zorv(firma.session.soubor_ridici_zorv());
    EXPECT_EQ(shell::bajty(zaznam), shell::bajty(firma.session.ridici_zorv));
    EXPECT_DOUBLE_EQ(zaznam.proc_soc_pracovnik, 7.1);
    EXPECT_EQ(zaznam.sloupec_staly_plat, 2);
    EXPECT_EQ(zaznam.sloupec_os_oh[4], 0);
    EXPECT_EQ(zaznam.text_os_oh[4], "vedoucí směny");
    EXPECT_DOUBLE_EQ(zaznam.os_sazba1, 0.01);
    EXPECT_EQ(zaznam.os_interval1_do, 0);
    EXPECT_EQ(zaznam.sloupec_penzijni_srazky, 14);
    EXPECT_FALSE(zaznam.proplaci_davky);
    EXPECT_EQ(zaznam.modul14, 18);

    const auto n = shell::cti_nastaveni(firma.session.soubor_nastaveni(), 2022, 25);
    EXPECT_EQ(n.MinimalniMzda, 17300);
    EXPECT_EQ(n.SazbaOCR, 60.5L);
    EXPECT_EQ(n.nejde_do_pojisteni[0][7], 4);
    EXPECT_EQ(n.nejde_do_pojisteni[2][0], 1);
    EXPECT_EQ(n.KodSazbyPojistneho, 2);
    EXPECT_TRUE(n.VstupDoUzavrenychMesicu);
    EXPECT_EQ(n.cssz_okres, "775");
    EXPECT_EQ(n.cssz_vs, "7751234567");
    EXPECT_EQ(n.RedukcniHranice1, 550);
    EXPECT_EQ(firma.session.nastaveni.MinimalniMzda, 17300);

    // Saved once more without a touch, nothing changes.
    const std::string ulozene = soubory(firma);
    ASSERT_TRUE(nastav(firma, [](TForm14& form) {
        EXPECT_EQ(form.scNejdou[0][7], "4");
        EXPECT_EQ(form.scCsszOkres, "775");
        form.acUlozitExecute();
    }));
    EXPECT_EQ(soubory(firma), ulozene);
}

TEST(NastaveniMezd, ChybejiciProcentoZamestnavateleSeJenOhlasi) {
    zkouska::ZkusebniFirma firma;
    EXPECT_FALSE(nastav(firma, [](TForm14& form) {
        form.scProcSoc2 = "";
        form.scPenzijni32 = "7";
        form.acUlozitExecute();
        EXPECT_EQ(form.fokus, "scPenzijni33");
    }));
    EXPECT_EQ(firma.obsluha.hlasky.size(), 2U);
    firma.obsluha.hlasky.clear();
    EXPECT_TRUE(nastav(firma, [](TForm14& form) {
        form.scProcSoc2 = "";
        form.acUlozitExecute();
        EXPECT_EQ(form.fokus, "scProcSoc2");
    }));
    EXPECT_EQ(firma.obsluha.hlasky,
              std::vector<std::string>{"Nezadali jste aktuální procento sociálního pojištění "
                                       "placené zaměstnavatelem."});
    EXPECT_EQ(firma.session.nastaveni.proc_soc2, 0);
}

TEST(NastaveniMezd, BezNaturalniMzdySeZDaneVyloucitSmiCokoliv) {
    zkouska::ZkusebniFirma firma;
    firma.session.ridici_zorv.modul3_od = firma.session.ridici_zorv.modul3_do = 0;
    EXPECT_TRUE(nastav(firma, [](TForm14& form) {
        form.scNejdou[2][0] = "0";
        form.acUlozitExecute();
    }));
}

TEST(NastaveniMezd, NezapsanyIniVratiIRidiciZaznam) {
    zkouska::ZkusebniFirma firma;
    const std::string puvodni = soubory(firma);
    std::filesystem::remove(firma.session.soubor_nastaveni());
    std::filesystem::create_directories(firma.session.soubor_nastaveni() / "x");
    EXPECT_THROW(nastav(firma,
                        [](TForm14& form) {
                            form.Edit1 = "2";
                            form.acUlozitExecute();
                        }),
                 base::ChybaDat);
    EXPECT_EQ(firma.session.ridici_zorv.sloupec_staly_plat, 0);
    EXPECT_EQ(shell::cti_ridici_zorv(firma.session.soubor_ridici_zorv()).sloupec_staly_plat, 0);
}

TEST(NastaveniMezd, VstupDoUzavrenychMesicuVarujeJenPriZaskrtnuti) {
    zkouska::ZkusebniFirma firma;
    TForm14 form(firma.session);
    form.scVstupDoUzavrenychMesicuClick();
    EXPECT_TRUE(firma.obsluha.hlasky.empty());
    form.scVstupDoUzavrenychMesicu = true;
    form.scVstupDoUzavrenychMesicuClick();
    EXPECT_EQ(firma.obsluha.hlasky,
              std::vector<std::string>{"Povolujete vstup do uzavřených měsíců a jste zodpovědní za "
                                       "korektnost prováděných akcí!"});
}

TEST(NastaveniMezd, KazdePoleMaJednoJmenoAJednoMisto) {
    std::vector<std::string> jmena;
    shell::RidiciZorv zaznam;
    shell::Nastaveni nastaveni;
    std::vector<const void*> mista;
    for (const paysheet::PoleNastaveni& pole : paysheet::pole_nastaveni()) {
        jmena.emplace_back(pole.ovladac);
        mista.push_back(
            std::visit([](auto* p) -> const void* { return p; }, pole.misto({zaznam, nastaveni})));
    }
    const auto ruzne = [](auto seznam) {
        std::sort(seznam.begin(), seznam.end());
        return std::adjacent_find(seznam.begin(), seznam.end()) == seznam.end();
    };
    EXPECT_TRUE(ruzne(jmena));
    EXPECT_TRUE(ruzne(mista));
}

TEST(OkresyCssz, SablonaMaKazdyKodJednouAVPoradi) {
    const auto okresy =
        paysheet::cti_okresy_cssz(std::filesystem::path(ZORV_SOURCE_DIR) / "Sablony/C_COKR.txt");
    ASSERT_EQ(okresy.size(), 89U);
    for (std::size_t i = 0; i < okresy.size(); ++i) {
        const std::string kod = paysheet::kod_okresu(okresy[i]);
        EXPECT_TRUE(base::cele_cislo_z_textu(kod)) << okresy[i];
        if (i == 0) continue;
        EXPECT_LT(paysheet::kod_okresu(okresy[i - 1]), kod);
    }
    EXPECT_EQ(paysheet::okres_podle_kodu(okresy, "784"), "784 Žďár nad Sázavou");
    EXPECT_EQ(paysheet::okres_podle_kodu(okresy, "999"), "999");
}

TEST(OkresyCssz, CteStarouKodovouStrankuAPreskociKusyRadku) {
    zkouska::DocasnaSlozka slozka;
    const auto soubor = slozka / "C_COKR.txt";
    EXPECT_TRUE(paysheet::cti_okresy_cssz(soubor).empty());
    base::zapis_soubor(soubor, "223 Kol\xEDn\r\n\r\n22\r\n775\r\n");
    EXPECT_EQ(paysheet::cti_okresy_cssz(soubor), (std::vector<std::string>{"223 Kolín", "775"}));
}

}  // namespace
