// `Nastaveni.ini`: the legislative values of a year and a few choices of the company.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/zaokrouhleni.h"

namespace shell {

/// Values of the year. Percentages as 24.8 for 24.8 %, amounts in whole crowns a month unless said.
/// Member names are the keys of the file.
struct Nastaveni {
    base::Castka proc_soc2 = 24.8L;
    int MinimalniMzda = 16200;
    base::Castka DruhyPilirPrac = 3.5L, DruhyPilirPF = 5.0L;
    base::Castka SazbaNemocenskeho_1az3 = 0, SazbaNemocenskeho_4az30 = 60,
                 SazbaNemocenskeho_31az60 = 66, SazbaNemocenskeho_61vice = 72, SazbaOCR = 60;
    int SazbaPPM = 69;
    int SlevaNaDani_Mesicni_Zakladni = 2570, SlevaNaDani_Mesicni_Manzelka = 2070,
        SlevaNaDani_Mesicni_CastecneInvalidni = 210, SlevaNaDani_Mesicni_PlneInvalidni = 420,
        SlevaNaDani_Mesicni_ZTPP = 1345, SlevaNaDani_Mesicni_Student = 335;
    int BonusMaximalni_Mesicni = 5025;
    int RedukcniHranice1 = 550, RedukcniHranice2 = 790;
    int max_vz_soc = 1867728, max_vz_zdr = 99999999;  ///< a year
    int limit_prijmu_manzela_rocni = 68000;
    int NahradaNemocSloupec = 0, NahradaKarantenaSloupec = 0, NahradaOCRSloupec = 0,
        NahradaPPMSloupec = 0;
    int KodSazbyPojistneho = 1;
    int limit_vydelku_srazkova = 3500;
    /// Rows social, health, tax: columns of gross wages that do not enter that base; 0 is unused.
    std::array<std::array<std::int16_t, 8>, 3> nejde_do_pojisteni{};
    bool preneseno_z_vr = false;
    int tydnu_dovolene = 5;
    bool VstupDoUzavrenychMesicu = false;
    std::string cssz_okres, cssz_vs, EmailNotifikace = "@";
};

/// One key for listing: its place, present value, default and what it means.
struct KlicNastaveni {
    std::string sekce, klic, hodnota, vychozi, vyznam;
};

/// Reads the file; a missing file or key keeps the default. `proc_soc2` defaults to 24.8 from `rok`
/// 2019 on, before it to `proc_soc_zamestnavatel`. Throws base::ChybaDat naming file, section, key
/// and what was expected for a value that is no number where one belongs.
Nastaveni cti_nastaveni(const std::filesystem::path& soubor, int rok,
                        double proc_soc_zamestnavatel);

/// Puts every key back; unknown sections, keys and comments stay.
void zapis_nastaveni(const std::filesystem::path& soubor, const Nastaveni& nastaveni);

/// All keys, in the order in which the file is written.
std::vector<KlicNastaveni> vypis_nastaveni(const Nastaveni& nastaveni);
/// Sets one value from text by "SEKCE/KLIC"; returns "" or a Czech message saying what was
/// expected.
std::string nastav_klic(Nastaveni& nastaveni, std::string_view sekce, std::string_view klic,
                        std::string_view hodnota);

/// 1 for the amount of the partial disability relief, 2 full, 3 ZTP/P, 4 the sum of the last two, 0
/// for 0, 255 for any other amount.
int stupen_invalidity_z_slevy(const Nastaveni& nastaveni, base::Castka castka);

}  // namespace shell
