// The control records of a company: four files of one fixed-size little-endian binary record each.
// Their sizes are the whole compatibility contract; texts inside are code page 1250 with a length
// byte.
//
// A record keeps the bytes it was read from, so that filler bytes are written back as they stood.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/chyba.h"

namespace shell {

inline constexpr std::size_t k_velikost_ridici_zorv = 676;
inline constexpr std::size_t k_velikost_pomocny = 27;
inline constexpr std::size_t k_velikost_bankovni = 888;
inline constexpr std::size_t k_velikost_ucetni = 252;

/// `rid_zorv.idx`, the pay-sheet control record. Percentages as 6.5 for 6.5 %, amounts in crowns, a
/// column number 0 means "none". Arrays count from 0 for what the screens call 1.
struct RidiciZorv {
    std::uint8_t modul1_od = 1, modul1_do = 0, modul2 = 0, modul3_od = 0, modul3_do = 0, modul4 = 0,
                 modul5_od = 0, modul5_do = 0, modul6 = 0, modul7 = 0, modul8 = 0, modul9 = 0,
                 modul10_od = 0, modul10_do = 0, modul11 = 0, modul12 = 0, modul13 = 0, modul14 = 0;
    std::uint8_t sloupec_staly_plat = 0;
    std::array<std::uint8_t, 5> sloupec_os_oh{};
    std::array<std::string, 5> text_os_oh{"nezadáno 1", "nezadáno 2", "nezadáno 3", "nezadáno 4",
                                          "nezadáno 5"};
    std::int32_t duchodce_hranice = 0;
    std::int16_t sloupec_dovolena_dny = 0, sloupec_dovolena_hodiny = 0, sloupec_neplacene_volno = 0,
                 sloupec_prescasy = 0, poradi_hodin_prescasy = 0, sloupec_nocni = 0,
                 poradi_hodin_nocni = 0;
    double proc_soc_pracovnik = 6.5;
    double proc_soc_zamestnavatel = 25.0;  ///< the value before 2019
    double proc_zdr_pracovnik = 4.5;
    double proc_zdr_zamestnavatel = 9.0;
    std::int32_t os_interval1_od = 1, os_interval1_do = 999999, os_interval2_od = 0,
                 os_interval2_do = 0;
    double os_sazba1 = 0, os_sazba2 = 0;  ///< 0.01 to 0.99 a share, 1 and more crowns, 0 nothing
    bool proplaci_davky = true;
    /// Relief amounts (offsets 256, 258, 260) that tell the degree of invalidity in a note.
    std::array<std::int16_t, 3> invalidita_castky{};
    std::array<std::array<std::int16_t, 5>, 3> nejdou_stare{};
    std::array<std::string, 10> volitelna_hlediska{"nezadáno", "nezadáno", "nezadáno", "nezadáno",
                                                   "nezadáno", "nezadáno", "nezadáno", "nezadáno",
                                                   "nezadáno", "nezadáno"};
    bool nakladove_strediska = true, rozvahove_strediska = false, au_podle_pojistovny = true,
         srazkova_oddelene = true;
    /// Debit synthetic, debit analytic, credit synthetic, credit analytic.
    std::array<std::int16_t, 4> ucet_soc_pracovnik{}, ucet_soc_podnik{}, ucet_zdr_pracovnik{},
        ucet_zdr_podnik{};
    std::int16_t sloupec_penzijni_davky = 0, sloupec_penzijni_srazky = 0;
    std::array<std::string, 12> uzaverka{};  ///< date d.m.yyyy of posting; blank means open
    std::string disk_uctu;

    std::array<std::byte, k_velikost_ridici_zorv>
        obraz{};  ///< bytes as read; filler comes from here
};

/// `rid_pom.idx`, remembered choices of screens.
struct PomocnyRidici {
    bool hrube_z_karty_1 = false, hrube_po_f2_nech_1 = false, hrube_z_karty_2 = false,
         hrube_po_f2_nech_2 = false;
    std::uint8_t hrube_fokus = 1, pasky_komu_dan = 1, listina_komu = 2, pasky_komu = 2;
    std::string bankovky_5000_od;
    bool bez_bankovek_2000 = false;
    std::string sumarizace_hledisko;
    std::array<std::string, 3> hlediska_na_pasce{};
    std::array<std::byte, k_velikost_pomocny> obraz{};
};

/// `rid_bank.idx`, bank orders. Rows of the `zaklad_` arrays: social insurance, advance tax,
/// withholding tax, union fee.
struct BankovniRidici {
    std::array<std::string, 4> zaklad_ucet{}, zaklad_kod_banky{}, zaklad_variabilni{},
        zaklad_konstantni{}, zaklad_specificky{};
    std::string tisk_ucet, tisk_kod_banky, tisk_banka, tisk_pobocka, jmeno_organizace;
    std::string kb_ucet, kb_pobocka, kb_stanice, kb_klient, kb_soubor;
    std::string csob_ucet, csob_klient, csob_komitent, csob_pobocka, csob_interval_od,
        csob_interval_do, csob_klic_pevny, csob_klic_denni, csob_soubor;
    std::string cs_ucet, cs_soubor, ge_ucet, ge_soubor, volksbank_ucet, volksbank_soubor,
        reifeisen_ucet, reifeisen_soubor;
    std::string waldviertler_ucet, waldviertler_jmeno, waldviertler_interval_od,
        waldviertler_interval_do, waldviertler_kod_pevny, waldviertler_kod_tajny,
        waldviertler_soubor;
    std::string disketa_soubor, disketa_jmeno, disketa_organizace, disketa_okres,
        disketa_sberny_ucet, disketa_sazba_cp, disketa_sazba_ostatni;
    std::uint8_t aktivni_banka = 1;
    std::array<std::byte, k_velikost_bankovni> obraz{};
};

/// `rid_ucet.idx` of the accounting module: three parts are known here, the rest is kept.
struct UcetniRidici {
    std::array<std::int16_t, 10> faktury_md{};   ///< synthetic accounts, debit turnover
    std::array<std::int16_t, 10> faktury_dal{};  ///< synthetic accounts, credit turnover
    std::array<std::uint8_t, 12> uzavreno{};     ///< month closed when non-zero
    std::array<std::byte, k_velikost_ucetni> obraz{};
};

/// One element of a record, for listing and for setting by name ("sloupec_os_oh.1", from 1).
struct PoleZaznamu {
    std::string nazev;
    std::string hodnota;
    std::string
        typ;  ///< "celé 0-255", "celé 16 bitů", "celé 32 bitů", "číslo", "ano/ne", "text 20"
};

/// Reads a record. Throws base::ChybaDat naming the file for one that is missing, unreadable, or of
/// any other size than the record's; and for a text whose length byte exceeds its field.
RidiciZorv cti_ridici_zorv(const std::filesystem::path& soubor);
PomocnyRidici cti_pomocny_ridici(const std::filesystem::path& soubor);
BankovniRidici cti_bankovni_ridici(const std::filesystem::path& soubor);
UcetniRidici cti_ucetni_ridici(const std::filesystem::path& soubor);

/// The record's bytes, exactly its size. Throws base::ChybaDat naming the field for a text too long
/// or outside code page 1250.
std::vector<std::byte> bajty(const RidiciZorv& zaznam);
std::vector<std::byte> bajty(const PomocnyRidici& zaznam);
std::vector<std::byte> bajty(const BankovniRidici& zaznam);
std::vector<std::byte> bajty(const UcetniRidici& zaznam);

/// The record from bytes; `soubor` is what an error message calls them.
RidiciZorv ridici_zorv_z_bajtu(const std::vector<std::byte>& data, std::string_view soubor);
PomocnyRidici pomocny_ridici_z_bajtu(const std::vector<std::byte>& data, std::string_view soubor);
BankovniRidici bankovni_ridici_z_bajtu(const std::vector<std::byte>& data, std::string_view soubor);
UcetniRidici ucetni_ridici_z_bajtu(const std::vector<std::byte>& data, std::string_view soubor);

/// Writes the whole record; the file is either the old or the new one, never half.
void zapis_zaznam(const std::filesystem::path& soubor, const std::vector<std::byte>& data);

/// Fields of `rid_zorv.idx` by name and as text, in record order.
std::vector<PoleZaznamu> vypis_pole(const RidiciZorv& zaznam);
/// Sets one field from text; returns "" or a Czech message saying what was expected.
std::string nastav_pole(RidiciZorv& zaznam, std::string_view nazev, std::string_view hodnota);

/// Number of the last month whose closing mark is not blank, plus 1: 1 to 13.
int prvni_neuzavreny_mesic(const RidiciZorv& zaznam);

}  // namespace shell
