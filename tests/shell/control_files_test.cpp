// Control records byte by byte: the layout is a contract with files that exist already.
#include "shell/control_files.h"

#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>

#include "base/kodova_stranka.h"
#include "base/soubory.h"
#include "support/docasna_slozka.h"

namespace {

using Bajty = std::vector<std::byte>;

Bajty z_textu(const std::string& text) {
    Bajty bajty(text.size());
    std::memcpy(bajty.data(), text.data(), text.size());
    return bajty;
}

std::string vyrez(const Bajty& bajty, std::size_t posun, std::size_t kolik) {
    return {reinterpret_cast<const char*>(bajty.data()) + posun, kolik};
}

std::string hodnota(const shell::RidiciZorv& zaznam, const std::string& pole) {
    for (const auto& p : shell::vypis_pole(zaznam)) {
        if (p.nazev == pole) return p.hodnota;
    }
    return "(pole není)";
}

bool obsahuje(const std::string& text, const std::string& cast) {
    return text.find(cast) != std::string::npos;
}

/// Text of the error that `akce` ends with.
template <class Akce>
std::string chyba(Akce akce) {
    try {
        akce();
    } catch (const base::ChybaDat& e) {
        return e.what();
    }
    return "(bez chyby)";
}

struct BajtyPole {
    const char* pole;
    const char* text;
    std::size_t posun;
    std::string bajty;
};

const BajtyPole k_bajty_poli[] = {
    {"modul1_do", "2", 1, "\x02"},
    {"modul14", "255", 17, "\xFF"},
    {"sloupec_os_oh.5", "7", 23, "\x07"},
    {"text_os_oh.2", "Příš", 45, "\x04P\xF8\xED\x9A"},
    {"duchodce_hranice", "12345", 136, std::string("\x39\x30\0\0", 4)},
    {"poradi_hodin_nocni", "-2", 152, "\xFE\xFF"},
    {"proc_soc_zamestnavatel", "24.8", 164, "\xCD\xCC\xCC\xCC\xCC\xCC\x38\x40"},
    {"os_interval1_do", "999999", 192, std::string("\x3F\x42\x0F\0", 4)},
    {"os_sazba2", "-0.5", 212, std::string("\0\0\0\0\0\0\xE0\xBF", 8)},
    {"proplaci_davky", "ne", 220, std::string("\0", 1)},
    {"invalidita_castky.3", "1345", 260, "\x41\x05"},
    {"nejdou_stare.1.5", "3", 270, std::string("\x03\0", 2)},
    {"nejdou_stare.2.1", "4", 272, std::string("\x04\0", 2)},
    {"volitelna_hlediska.10", "Žluť", 481, "\x04\x8Elu\x9D"},
    {"rozvahove_strediska", "ano", 503, "\x01"},
    {"ucet_soc_pracovnik.1", "336", 506, "\x50\x01"},
    {"ucet_zdr_podnik.4", "-32768", 536, std::string("\0\x80", 2)},
    {"uzaverka.12", "15.1.2023", 663,
     "\x09"
     "15.1.2023"},
    {"disk_uctu", "D", 674,
     "\x01"
     "D"},
};

TEST(RidiciZorvBajty, PoleLeziNaSvemMisteVObouSmerech) {
    for (const BajtyPole& p : k_bajty_poli) {
        SCOPED_TRACE(p.pole);
        shell::RidiciZorv zapisovany;
        ASSERT_EQ(shell::nastav_pole(zapisovany, p.pole, p.text), "");
        EXPECT_EQ(vyrez(shell::bajty(zapisovany), p.posun, p.bajty.size()), p.bajty);

        Bajty obraz(shell::k_velikost_ridici_zorv);
        const Bajty vlozene = z_textu(p.bajty);
        std::copy(vlozene.begin(), vlozene.end(),
                  obraz.begin() + static_cast<std::ptrdiff_t>(p.posun));
        EXPECT_EQ(hodnota(shell::ridici_zorv_z_bajtu(obraz, "rid_zorv.idx"), p.pole), p.text);
    }
}

TEST(RidiciZorvBajty, NovaFirmaMaVychoziHodnoty) {
    const shell::RidiciZorv zaznam;
    for (const auto& [pole, text] : std::initializer_list<std::pair<const char*, const char*>>{
             {"modul1_od", "1"},
             {"modul1_do", "0"},
             {"text_os_oh.5", "nezadáno 5"},
             {"proc_soc_pracovnik", "6.5"},
             {"proc_soc_zamestnavatel", "25"},
             {"proc_zdr_pracovnik", "4.5"},
             {"proc_zdr_zamestnavatel", "9"},
             {"os_interval1_od", "1"},
             {"os_interval1_do", "999999"},
             {"os_interval2_do", "0"},
             {"proplaci_davky", "ano"},
             {"volitelna_hlediska.1", "nezadáno"},
             {"nakladove_strediska", "ano"},
             {"rozvahove_strediska", "ne"},
             {"au_podle_pojistovny", "ano"},
             {"srazkova_oddelene", "ano"},
             {"uzaverka.1", ""}}) {
        EXPECT_EQ(hodnota(zaznam, pole), text) << pole;
    }
}

TEST(OstatniZaznamyBajty, PoleLeziNaSvemMiste) {
    shell::PomocnyRidici pomocny;
    pomocny.hrube_fokus = 3;
    pomocny.bankovky_5000_od = "20000";
    pomocny.hlediska_na_pasce[2] = "10";
    const Bajty p = shell::bajty(pomocny);
    EXPECT_EQ(vyrez(p, 4, 11), std::string("\x03\x01\x02\x02\x05"
                                           "20000\0",
                                           11));
    EXPECT_EQ(vyrez(p, 24, 3),
              "\x02"
              "10");

    shell::BankovniRidici banka;
    banka.zaklad_variabilni[3] = "1234567890";
    banka.csob_klient = "A123";
    banka.disketa_sazba_ostatni = "3,50";
    banka.aktivni_banka = 21;
    const Bajty b = shell::bajty(banka);
    EXPECT_EQ(vyrez(b, 137, 11),
              "\x0A"
              "1234567890");
    EXPECT_EQ(vyrez(b, 416, 5),
              "\x04"
              "A123");
    EXPECT_EQ(vyrez(b, 881, 7), std::string("\x04"
                                            "3,50\0\x15",
                                            7));

    Bajty u(shell::k_velikost_ucetni, std::byte{0x5A});
    u[10] = std::byte{0x41}, u[11] = std::byte{0x01};
    u[48] = std::byte{0xFF}, u[49] = std::byte{0xFF};
    u[119] = std::byte{0}, u[130] = std::byte{1};
    const shell::UcetniRidici ucetni = shell::ucetni_ridici_z_bajtu(u, "rid_ucet.idx");
    EXPECT_EQ(ucetni.faktury_md[0], 321);
    EXPECT_EQ(ucetni.faktury_dal[9], -1);
    EXPECT_EQ(ucetni.uzavreno[0], 0);
    EXPECT_EQ(ucetni.uzavreno[11], 1);
    EXPECT_EQ(shell::bajty(ucetni), u) << "neznámé bajty účetnictví zůstávají";
}

// --- properties -----------------------------------------------------------------------------

struct Texty {
    std::size_t posun, znaku, pocet;
};

/// A record of random bytes with admissible length bytes of its texts.
Bajty nahodny_obraz(std::size_t velikost, const std::vector<Texty>& texty) {
    const auto cisla = *rc::gen::container<std::vector<std::uint8_t>>(
        velikost, rc::gen::arbitrary<std::uint8_t>());
    Bajty obraz(velikost);
    std::transform(cisla.begin(), cisla.end(), obraz.begin(),
                   [](std::uint8_t c) { return std::byte{c}; });
    for (const Texty& t : texty) {
        for (std::size_t i = 0; i < t.pocet; ++i) {
            std::byte& delka = obraz[t.posun + i * (t.znaku + 1)];
            delka = static_cast<std::byte>(std::to_integer<std::size_t>(delka) % (t.znaku + 1));
        }
    }
    return obraz;
}

void normalizuj_logicke(Bajty& obraz, std::initializer_list<std::size_t> posuny) {
    for (std::size_t posun : posuny)
        obraz[posun] &= std::byte{1};
}

RC_GTEST_PROP(ZaznamyVlastnosti, RidiciZorvSePrecteAZapiseBezZmenyBajtu, ()) {
    Bajty obraz = nahodny_obraz(shell::k_velikost_ridici_zorv,
                                {{24, 20, 5}, {292, 20, 10}, {542, 10, 12}, {674, 1, 1}});
    normalizuj_logicke(obraz, {220, 502, 503, 504, 505});
    for (std::size_t posun : {156U, 164U, 172U, 180U, 204U, 212U}) {
        obraz[posun + 7] &= std::byte{0x3F};  // keeps the exponent finite
    }
    RC_ASSERT(shell::bajty(shell::ridici_zorv_z_bajtu(obraz, "x")) == obraz);
}

RC_GTEST_PROP(ZaznamyVlastnosti, PomocnySePrecteAZapiseBezZmenyBajtu, ()) {
    Bajty obraz = nahodny_obraz(shell::k_velikost_pomocny, {{8, 5, 1}, {15, 2, 1}, {18, 2, 3}});
    normalizuj_logicke(obraz, {0, 1, 2, 3, 14});
    RC_ASSERT(shell::bajty(shell::pomocny_ridici_z_bajtu(obraz, "x")) == obraz);
}

RC_GTEST_PROP(ZaznamyVlastnosti, BankovniSePrecteAZapiseBezZmenyBajtu, ()) {
    const Bajty obraz = nahodny_obraz(
        shell::k_velikost_bankovni,
        {{0, 20, 4},   {84, 4, 4},   {104, 10, 4}, {148, 4, 4},  {168, 10, 4}, {212, 20, 1},
         {233, 4, 1},  {238, 30, 2}, {300, 20, 2}, {342, 3, 1},  {346, 6, 1},  {353, 10, 1},
         {364, 30, 1}, {395, 20, 1}, {416, 4, 1},  {421, 10, 1}, {432, 3, 3},  {444, 6, 2},
         {458, 30, 1}, {489, 20, 1}, {510, 30, 1}, {541, 20, 1}, {562, 30, 1}, {593, 20, 1},
         {614, 30, 1}, {645, 20, 1}, {666, 30, 1}, {697, 20, 2}, {739, 3, 2},  {747, 6, 2},
         {761, 30, 2}, {823, 20, 1}, {844, 5, 1},  {850, 3, 1},  {854, 20, 1}, {875, 5, 2}});
    RC_ASSERT(shell::bajty(shell::bankovni_ridici_z_bajtu(obraz, "x")) == obraz);
}

RC_GTEST_PROP(ZaznamyVlastnosti, ZapsanyZaznamSePrecteSeStejnymiPoli, ()) {
    shell::RidiciZorv zaznam;
    const auto pismeno = rc::gen::elementOf(std::string("abc \x8A\x9E\xF8\xE1\xCD"));
    const auto text = [&](std::size_t nejvyse) {
        std::string s = *rc::gen::container<std::string>(pismeno);
        return base::z_1250(s.substr(0, nejvyse));
    };
    zaznam.modul2 = *rc::gen::arbitrary<std::uint8_t>();
    zaznam.duchodce_hranice = *rc::gen::arbitrary<std::int32_t>();
    zaznam.os_sazba1 = *rc::gen::arbitrary<double>();
    zaznam.proplaci_davky = *rc::gen::arbitrary<bool>();
    for (auto& radek : zaznam.nejdou_stare) {
        for (auto& sloupec : radek)
            sloupec = *rc::gen::arbitrary<std::int16_t>();
    }
    for (auto& mark : zaznam.uzaverka)
        mark = text(10);
    for (auto& nazev : zaznam.volitelna_hlediska)
        nazev = text(20);
    const shell::RidiciZorv zpet = shell::ridici_zorv_z_bajtu(shell::bajty(zaznam), "x");
    const auto pred = shell::vypis_pole(zaznam), po = shell::vypis_pole(zpet);
    RC_ASSERT(pred.size() == po.size());
    for (std::size_t i = 0; i < pred.size(); ++i)
        RC_ASSERT(pred[i].hodnota == po[i].hodnota);
}

// --- files ----------------------------------------------------------------------------------

TEST(RidiciSoubory, ZapsanySouborMaPresnouVelikostAPrecteSe) {
    const zkouska::DocasnaSlozka slozka;
    shell::BankovniRidici banka;
    banka.jmeno_organizace = "Družstvo Štěkeň";
    shell::zapis_zaznam(slozka / "rid_bank.idx", shell::bajty(banka));
    EXPECT_EQ(std::filesystem::file_size(slozka / "rid_bank.idx"), 888U);
    EXPECT_EQ(shell::cti_bankovni_ridici(slozka / "rid_bank.idx").jmeno_organizace,
              "Družstvo Štěkeň");
}

TEST(RidiciSoubory, JinaVelikostSeOdmitneSeJmenemSouboruAVelikosti) {
    const zkouska::DocasnaSlozka slozka;
    const auto soubor = slozka / "rid_zorv.idx";
    const auto cti = [&] { shell::cti_ridici_zorv(soubor); };
    EXPECT_TRUE(obsahuje(chyba(cti), "rid_zorv.idx")) << "chybějící soubor";
    for (std::size_t velikost : {0U, 27U, 675U, 677U, 1352U}) {
        base::zapis_soubor(soubor, std::string(velikost, '\0'));
        const std::string text = chyba(cti);
        EXPECT_TRUE(obsahuje(text, "rid_zorv.idx") && obsahuje(text, "676")) << text;
    }
}

TEST(RidiciSoubory, VadneObsahyPoliSeOdmitnouSeJmenemAMistem) {
    Bajty dlouhy(shell::k_velikost_ridici_zorv);
    dlouhy[45] = std::byte{21};
    const std::string text =
        chyba([&] { shell::ridici_zorv_z_bajtu(dlouhy, "stary/rid_zorv.idx"); });
    for (const char* cast : {"stary/rid_zorv.idx", "text_os_oh.2", "45", "21", "20"}) {
        EXPECT_TRUE(obsahuje(text, cast)) << text;
    }
    shell::RidiciZorv nan;
    nan.os_sazba1 = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(
        obsahuje(chyba([&] { shell::ridici_zorv_z_bajtu(shell::bajty(nan), "x"); }), "os_sazba1"));
}

TEST(RidiciSoubory, TextKteryDoPoleNepatriSeNezapise) {
    shell::PomocnyRidici dlouhy;
    dlouhy.bankovky_5000_od = "123456";
    EXPECT_TRUE(obsahuje(chyba([&] { shell::bajty(dlouhy); }), "bankovky_5000_od"));
    shell::RidiciZorv cizi;
    cizi.text_os_oh[0] = "漢字";
    EXPECT_TRUE(obsahuje(chyba([&] { shell::bajty(cizi); }), "text_os_oh.1"));
}

TEST(NastaveniPole, NevhodnaHodnotaSeOdmitneAZaznamZustane) {
    shell::RidiciZorv zaznam;
    const auto pred = shell::bajty(zaznam);
    struct Radek {
        const char *pole, *text, *zprava;
    };
    for (const Radek& r : {Radek{"modul2", "256", "celé číslo 0 až 255"},
                           {"modul2", "-1", "modul2"},
                           {"modul2", "3x", "\"3x\""},
                           {"sloupec_nocni", "32768", "32767"},
                           {"proc_soc_pracovnik", "1,2.3", "číslo"},
                           {"proc_soc_pracovnik", "inf", "číslo"},
                           {"proplaci_davky", "možná", "ano nebo ne"},
                           {"text_os_oh.1", "123456789012345678901", "nejvýše 20"},
                           {"disk_uctu", "漢", "1250"},
                           {"text_os_oh.6", "x", "text_os_oh.6"},
                           {"text_os_oh", "x", "text_os_oh"}}) {
        const std::string zprava = shell::nastav_pole(zaznam, r.pole, r.text);
        EXPECT_TRUE(obsahuje(zprava, r.zprava)) << r.pole << ": " << zprava;
    }
    EXPECT_EQ(shell::bajty(zaznam), pred);
    EXPECT_EQ(shell::nastav_pole(zaznam, "PROC_SOC_PRACOVNIK", " 7,1 "), "");
    EXPECT_EQ(zaznam.proc_soc_pracovnik, 7.1);
}

TEST(Uzaverka, PosledniNeprazdnaZnackaUrcujeAktivniMesic) {
    struct Radek {
        std::vector<std::pair<int, const char*>> znacky;
        int aktivni;
    };
    for (const Radek& r : {Radek{{}, 1},
                           {{{1, "3.2.2022"}}, 2},
                           {{{1, "3.2.2022"}, {4, "2.5.2022"}}, 5},
                           {{{1, "3.2.2022"}, {2, "   "}}, 2},
                           {{{12, "9.1.2023"}}, 13}}) {
        shell::RidiciZorv zaznam;
        for (const auto& [mesic, text] : r.znacky) {
            zaznam.uzaverka[static_cast<std::size_t>(mesic - 1)] = text;
        }
        EXPECT_EQ(shell::prvni_neuzavreny_mesic(zaznam), r.aktivni);
    }
}

}  // namespace
