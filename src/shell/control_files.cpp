#include "shell/control_files.h"

#include <algorithm>
#include <fmt/format.h>

#include "base/soubory.h"
#include "base/text.h"
#include "shell/zaznam.h"

namespace shell {

namespace {

constexpr std::array k_pole_zorv{
    pole<&RidiciZorv::modul1_od>("modul1_od", 0),
    pole<&RidiciZorv::modul1_do>("modul1_do", 1),
    pole<&RidiciZorv::modul2>("modul2", 2),
    pole<&RidiciZorv::modul3_od>("modul3_od", 3),
    pole<&RidiciZorv::modul3_do>("modul3_do", 4),
    pole<&RidiciZorv::modul4>("modul4", 5),
    pole<&RidiciZorv::modul5_od>("modul5_od", 6),
    pole<&RidiciZorv::modul5_do>("modul5_do", 7),
    pole<&RidiciZorv::modul6>("modul6", 8),
    pole<&RidiciZorv::modul7>("modul7", 9),
    pole<&RidiciZorv::modul8>("modul8", 10),
    pole<&RidiciZorv::modul9>("modul9", 11),
    pole<&RidiciZorv::modul10_od>("modul10_od", 12),
    pole<&RidiciZorv::modul10_do>("modul10_do", 13),
    pole<&RidiciZorv::modul11>("modul11", 14),
    pole<&RidiciZorv::modul12>("modul12", 15),
    pole<&RidiciZorv::modul13>("modul13", 16),
    pole<&RidiciZorv::modul14>("modul14", 17),
    pole<&RidiciZorv::sloupec_staly_plat>("sloupec_staly_plat", 18),
    pole<&RidiciZorv::sloupec_os_oh>("sloupec_os_oh", 19),
    pole<&RidiciZorv::text_os_oh>("text_os_oh", 24, 20),
    pole<&RidiciZorv::duchodce_hranice>("duchodce_hranice", 136),
    pole<&RidiciZorv::sloupec_dovolena_dny>("sloupec_dovolena_dny", 140),
    pole<&RidiciZorv::sloupec_dovolena_hodiny>("sloupec_dovolena_hodiny", 142),
    pole<&RidiciZorv::sloupec_neplacene_volno>("sloupec_neplacene_volno", 144),
    pole<&RidiciZorv::sloupec_prescasy>("sloupec_prescasy", 146),
    pole<&RidiciZorv::poradi_hodin_prescasy>("poradi_hodin_prescasy", 148),
    pole<&RidiciZorv::sloupec_nocni>("sloupec_nocni", 150),
    pole<&RidiciZorv::poradi_hodin_nocni>("poradi_hodin_nocni", 152),
    pole<&RidiciZorv::proc_soc_pracovnik>("proc_soc_pracovnik", 156),
    pole<&RidiciZorv::proc_soc_zamestnavatel>("proc_soc_zamestnavatel", 164),
    pole<&RidiciZorv::proc_zdr_pracovnik>("proc_zdr_pracovnik", 172),
    pole<&RidiciZorv::proc_zdr_zamestnavatel>("proc_zdr_zamestnavatel", 180),
    pole<&RidiciZorv::os_interval1_od>("os_interval1_od", 188),
    pole<&RidiciZorv::os_interval1_do>("os_interval1_do", 192),
    pole<&RidiciZorv::os_interval2_od>("os_interval2_od", 196),
    pole<&RidiciZorv::os_interval2_do>("os_interval2_do", 200),
    pole<&RidiciZorv::os_sazba1>("os_sazba1", 204),
    pole<&RidiciZorv::os_sazba2>("os_sazba2", 212),
    pole<&RidiciZorv::proplaci_davky>("proplaci_davky", 220),
    pole<&RidiciZorv::invalidita_castky>("invalidita_castky", 256),
    pole<&RidiciZorv::nejdou_stare>("nejdou_stare", 262),
    pole<&RidiciZorv::volitelna_hlediska>("volitelna_hlediska", 292, 20),
    pole<&RidiciZorv::nakladove_strediska>("nakladove_strediska", 502),
    pole<&RidiciZorv::rozvahove_strediska>("rozvahove_strediska", 503),
    pole<&RidiciZorv::au_podle_pojistovny>("au_podle_pojistovny", 504),
    pole<&RidiciZorv::srazkova_oddelene>("srazkova_oddelene", 505),
    pole<&RidiciZorv::ucet_soc_pracovnik>("ucet_soc_pracovnik", 506),
    pole<&RidiciZorv::ucet_soc_podnik>("ucet_soc_podnik", 514),
    pole<&RidiciZorv::ucet_zdr_pracovnik>("ucet_zdr_pracovnik", 522),
    pole<&RidiciZorv::ucet_zdr_podnik>("ucet_zdr_podnik", 530),
    pole<&RidiciZorv::sloupec_penzijni_davky>("sloupec_penzijni_davky", 538),
    pole<&RidiciZorv::sloupec_penzijni_srazky>("sloupec_penzijni_srazky", 540),
    pole<&RidiciZorv::uzaverka>("uzaverka", 542, 10),
    pole<&RidiciZorv::disk_uctu>("disk_uctu", 674, 1),
};
static_assert(konec_poli(k_pole_zorv) == k_velikost_ridici_zorv);

constexpr std::array k_pole_pomocny{
    pole<&PomocnyRidici::hrube_z_karty_1>("hrube_z_karty_1", 0),
    pole<&PomocnyRidici::hrube_po_f2_nech_1>("hrube_po_f2_nech_1", 1),
    pole<&PomocnyRidici::hrube_z_karty_2>("hrube_z_karty_2", 2),
    pole<&PomocnyRidici::hrube_po_f2_nech_2>("hrube_po_f2_nech_2", 3),
    pole<&PomocnyRidici::hrube_fokus>("hrube_fokus", 4),
    pole<&PomocnyRidici::pasky_komu_dan>("pasky_komu_dan", 5),
    pole<&PomocnyRidici::listina_komu>("listina_komu", 6),
    pole<&PomocnyRidici::pasky_komu>("pasky_komu", 7),
    pole<&PomocnyRidici::bankovky_5000_od>("bankovky_5000_od", 8, 5),
    pole<&PomocnyRidici::bez_bankovek_2000>("bez_bankovek_2000", 14),
    pole<&PomocnyRidici::sumarizace_hledisko>("sumarizace_hledisko", 15, 2),
    pole<&PomocnyRidici::hlediska_na_pasce>("hlediska_na_pasce", 18, 2),
};
static_assert(konec_poli(k_pole_pomocny) == k_velikost_pomocny);

constexpr std::array k_pole_banka{
    pole<&BankovniRidici::zaklad_ucet>("zaklad_ucet", 0, 20),
    pole<&BankovniRidici::zaklad_kod_banky>("zaklad_kod_banky", 84, 4),
    pole<&BankovniRidici::zaklad_variabilni>("zaklad_variabilni", 104, 10),
    pole<&BankovniRidici::zaklad_konstantni>("zaklad_konstantni", 148, 4),
    pole<&BankovniRidici::zaklad_specificky>("zaklad_specificky", 168, 10),
    pole<&BankovniRidici::tisk_ucet>("tisk_ucet", 212, 20),
    pole<&BankovniRidici::tisk_kod_banky>("tisk_kod_banky", 233, 4),
    pole<&BankovniRidici::tisk_banka>("tisk_banka", 238, 30),
    pole<&BankovniRidici::tisk_pobocka>("tisk_pobocka", 269, 30),
    pole<&BankovniRidici::jmeno_organizace>("jmeno_organizace", 300, 20),
    pole<&BankovniRidici::kb_ucet>("kb_ucet", 321, 20),
    pole<&BankovniRidici::kb_pobocka>("kb_pobocka", 342, 3),
    pole<&BankovniRidici::kb_stanice>("kb_stanice", 346, 6),
    pole<&BankovniRidici::kb_klient>("kb_klient", 353, 10),
    pole<&BankovniRidici::kb_soubor>("kb_soubor", 364, 30),
    pole<&BankovniRidici::csob_ucet>("csob_ucet", 395, 20),
    pole<&BankovniRidici::csob_klient>("csob_klient", 416, 4),
    pole<&BankovniRidici::csob_komitent>("csob_komitent", 421, 10),
    pole<&BankovniRidici::csob_pobocka>("csob_pobocka", 432, 3),
    pole<&BankovniRidici::csob_interval_od>("csob_interval_od", 436, 3),
    pole<&BankovniRidici::csob_interval_do>("csob_interval_do", 440, 3),
    pole<&BankovniRidici::csob_klic_pevny>("csob_klic_pevny", 444, 6),
    pole<&BankovniRidici::csob_klic_denni>("csob_klic_denni", 451, 6),
    pole<&BankovniRidici::csob_soubor>("csob_soubor", 458, 30),
    pole<&BankovniRidici::cs_ucet>("cs_ucet", 489, 20),
    pole<&BankovniRidici::cs_soubor>("cs_soubor", 510, 30),
    pole<&BankovniRidici::ge_ucet>("ge_ucet", 541, 20),
    pole<&BankovniRidici::ge_soubor>("ge_soubor", 562, 30),
    pole<&BankovniRidici::volksbank_ucet>("volksbank_ucet", 593, 20),
    pole<&BankovniRidici::volksbank_soubor>("volksbank_soubor", 614, 30),
    pole<&BankovniRidici::reifeisen_ucet>("reifeisen_ucet", 645, 20),
    pole<&BankovniRidici::reifeisen_soubor>("reifeisen_soubor", 666, 30),
    pole<&BankovniRidici::waldviertler_ucet>("waldviertler_ucet", 697, 20),
    pole<&BankovniRidici::waldviertler_jmeno>("waldviertler_jmeno", 718, 20),
    pole<&BankovniRidici::waldviertler_interval_od>("waldviertler_interval_od", 739, 3),
    pole<&BankovniRidici::waldviertler_interval_do>("waldviertler_interval_do", 743, 3),
    pole<&BankovniRidici::waldviertler_kod_pevny>("waldviertler_kod_pevny", 747, 6),
    pole<&BankovniRidici::waldviertler_kod_tajny>("waldviertler_kod_tajny", 754, 6),
    pole<&BankovniRidici::waldviertler_soubor>("waldviertler_soubor", 761, 30),
    pole<&BankovniRidici::disketa_soubor>("disketa_soubor", 792, 30),
    pole<&BankovniRidici::disketa_jmeno>("disketa_jmeno", 823, 20),
    pole<&BankovniRidici::disketa_organizace>("disketa_organizace", 844, 5),
    pole<&BankovniRidici::disketa_okres>("disketa_okres", 850, 3),
    pole<&BankovniRidici::disketa_sberny_ucet>("disketa_sberny_ucet", 854, 20),
    pole<&BankovniRidici::disketa_sazba_cp>("disketa_sazba_cp", 875, 5),
    pole<&BankovniRidici::disketa_sazba_ostatni>("disketa_sazba_ostatni", 881, 5),
    pole<&BankovniRidici::aktivni_banka>("aktivni_banka", 887),
};
static_assert(konec_poli(k_pole_banka) == k_velikost_bankovni);

constexpr std::array k_pole_ucetni{
    pole<&UcetniRidici::faktury_md>("faktury_md", 10),
    pole<&UcetniRidici::faktury_dal>("faktury_dal", 30),
    pole<&UcetniRidici::uzavreno>("uzavreno", 119),
};
static_assert(konec_poli(k_pole_ucetni) <= k_velikost_ucetni);

/// Well above every record: a longer file is certainly none.
constexpr std::size_t k_nejvyse_cteno = 4096;

template <class Zaznam, std::size_t N>
Zaznam z_bajtu(const std::array<Pole<Zaznam>, N>& tabulka, const std::vector<std::byte>& data,
               std::string_view soubor) {
    Zaznam zaznam;
    if (data.size() != zaznam.obraz.size()) {
        throw base::ChybaDat(fmt::format("Soubor \"{}\" má {} bajtů, očekává se přesně {}.", soubor,
                                         data.size(), zaznam.obraz.size()));
    }
    std::copy(data.begin(), data.end(), zaznam.obraz.begin());
    kazdy_prvek(tabulka, zaznam, [&](const Prvek& prvek) { precti_prvek(prvek, data, soubor); });
    return zaznam;
}

template <class Zaznam, std::size_t N>
std::vector<std::byte> na_bajty(const std::array<Pole<Zaznam>, N>& tabulka, Zaznam zaznam) {
    std::vector<std::byte> data(zaznam.obraz.begin(), zaznam.obraz.end());
    kazdy_prvek(tabulka, zaznam, [&](const Prvek& prvek) { zapis_prvek(prvek, data); });
    return data;
}

std::vector<std::byte> bajty_souboru(const std::filesystem::path& soubor) {
    const std::string obsah = base::precti_soubor(soubor, k_nejvyse_cteno);
    std::vector<std::byte> data(obsah.size());
    std::transform(obsah.begin(), obsah.end(), data.begin(),
                   [](char znak) { return static_cast<std::byte>(znak); });
    return data;
}

}  // namespace

RidiciZorv ridici_zorv_z_bajtu(const std::vector<std::byte>& data, std::string_view soubor) {
    return z_bajtu(k_pole_zorv, data, soubor);
}
PomocnyRidici pomocny_ridici_z_bajtu(const std::vector<std::byte>& data, std::string_view soubor) {
    return z_bajtu(k_pole_pomocny, data, soubor);
}
BankovniRidici bankovni_ridici_z_bajtu(const std::vector<std::byte>& data,
                                       std::string_view soubor) {
    return z_bajtu(k_pole_banka, data, soubor);
}
UcetniRidici ucetni_ridici_z_bajtu(const std::vector<std::byte>& data, std::string_view soubor) {
    return z_bajtu(k_pole_ucetni, data, soubor);
}

RidiciZorv cti_ridici_zorv(const std::filesystem::path& soubor) {
    return ridici_zorv_z_bajtu(bajty_souboru(soubor), soubor.string());
}
PomocnyRidici cti_pomocny_ridici(const std::filesystem::path& soubor) {
    return pomocny_ridici_z_bajtu(bajty_souboru(soubor), soubor.string());
}
BankovniRidici cti_bankovni_ridici(const std::filesystem::path& soubor) {
    return bankovni_ridici_z_bajtu(bajty_souboru(soubor), soubor.string());
}
UcetniRidici cti_ucetni_ridici(const std::filesystem::path& soubor) {
    return ucetni_ridici_z_bajtu(bajty_souboru(soubor), soubor.string());
}

std::vector<std::byte> bajty(const RidiciZorv& zaznam) {
    return na_bajty(k_pole_zorv, zaznam);
}
std::vector<std::byte> bajty(const PomocnyRidici& zaznam) {
    return na_bajty(k_pole_pomocny, zaznam);
}
std::vector<std::byte> bajty(const BankovniRidici& zaznam) {
    return na_bajty(k_pole_banka, zaznam);
}
std::vector<std::byte> bajty(const UcetniRidici& zaznam) {
    return na_bajty(k_pole_ucetni, zaznam);
}

void zapis_zaznam(const std::filesystem::path& soubor, const std::vector<std::byte>& data) {
    std::string obsah(data.size(), '\0');
    std::transform(data.begin(), data.end(), obsah.begin(),
                   [](std::byte bajt) { return static_cast<char>(bajt); });
    base::zapis_soubor(soubor, obsah);
}

std::vector<PoleZaznamu> vypis_pole(const RidiciZorv& zaznam) {
    std::vector<PoleZaznamu> vypis;
    RidiciZorv kopie = zaznam;
    kazdy_prvek(k_pole_zorv, kopie, [&](const Prvek& prvek) {
        vypis.push_back({prvek.nazev, hodnota_prvku(prvek), typ_prvku(prvek)});
    });
    return vypis;
}

std::string nastav_pole(RidiciZorv& zaznam, std::string_view nazev, std::string_view hodnota) {
    std::string zprava =
        fmt::format("Pole \"{}\" řídicí záznam nemá; názvy polí jsou v jeho výpisu.", nazev);
    kazdy_prvek(k_pole_zorv, zaznam, [&](const Prvek& prvek) {
        if (base::stejne_bez_velikosti(prvek.nazev, nazev)) zprava = nastav_prvek(prvek, hodnota);
    });
    return zprava;
}

int prvni_neuzavreny_mesic(const RidiciZorv& zaznam) {
    int aktivni = 1;
    for (int mesic = 1; mesic <= 12; ++mesic) {
        if (base::neprazdny(zaznam.uzaverka[static_cast<std::size_t>(mesic - 1)])) {
            aktivni = mesic + 1;
        }
    }
    return aktivni;
}

}  // namespace shell
