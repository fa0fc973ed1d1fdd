#include "shell/nastaveni.h"

#include <fmt/format.h>
#include <limits>
#include <optional>
#include <type_traits>
#include <variant>

#include "base/ini.h"
#include "base/text.h"
#include "shell/hodnota_text.h"

namespace shell {

namespace {

/// Where the value of a key lives; the type tells how it is read and written.
using Misto = std::variant<base::Castka*, int*, std::int16_t*, bool*, std::string*>;

struct Klic {
    std::string sekce, klic, vyznam;
    Misto (*misto)(Nastaveni&, std::size_t);
    std::size_t poradi = 0;  ///< item of an array, from 0
};

template <auto Clen>
Klic klic(const char* sekce, const char* nazev, const char* vyznam) {
    return {sekce, nazev, vyznam, [](Nastaveni& n, std::size_t) -> Misto { return &(n.*Clen); }};
}

constexpr const char* k_leg = "Legislativa2009";
constexpr const char* k_pilir = "DruhyPilir";
constexpr const char* k_nejde = "Nejde_do_pojisteni";

std::vector<Klic> sazby_a_slevy() {
    using N = Nastaveni;
    return {
        klic<&N::proc_soc2>("Legislativa", "proc_soc2", "sociální pojištění, zaměstnavatel, %"),
        klic<&N::MinimalniMzda>(k_leg, "MinimalniMzda", "minimální mzda"),
        klic<&N::DruhyPilirPrac>(k_pilir, "DruhyPilirPrac", "druhý pilíř, pracovník, %"),
        klic<&N::DruhyPilirPF>(k_pilir, "DruhyPilirPF", "druhý pilíř, platba fondu, %"),
        klic<&N::SazbaNemocenskeho_1az3>(k_leg, "SazbaNemocenskeho_1az3",
                                         "sazba nemocenského, 1. až 3. den, %"),
        klic<&N::SazbaNemocenskeho_4az30>(k_leg, "SazbaNemocenskeho_4az30",
                                          "sazba nemocenského, 4. až 30. den, %"),
        klic<&N::SazbaNemocenskeho_31az60>(k_leg, "SazbaNemocenskeho_31az60",
                                           "sazba nemocenského, 31. až 60. den, %"),
        klic<&N::SazbaNemocenskeho_61vice>(k_leg, "SazbaNemocenskeho_61vice",
                                           "sazba nemocenského, od 61. dne, %"),
        klic<&N::SazbaOCR>(k_leg, "SazbaOCR", "sazba ošetřovného, %"),
        klic<&N::SazbaPPM>(k_leg, "SazbaPPM", "sazba peněžité pomoci v mateřství, %"),
        klic<&N::SlevaNaDani_Mesicni_Zakladni>(k_leg, "SlevaNaDani_Mesicni_Zakladni",
                                               "měsíční sleva na dani, základní"),
        klic<&N::SlevaNaDani_Mesicni_Manzelka>(k_leg, "SlevaNaDani_Mesicni_Manzelka",
                                               "měsíční sleva na dani, manželka"),
        klic<&N::SlevaNaDani_Mesicni_CastecneInvalidni>(
            k_leg, "SlevaNaDani_Mesicni_CastecneInvalidni",
            "měsíční sleva na dani, částečná invalidita"),
        klic<&N::SlevaNaDani_Mesicni_PlneInvalidni>(k_leg, "SlevaNaDani_Mesicni_PlneInvalidni",
                                                    "měsíční sleva na dani, plná invalidita"),
        klic<&N::SlevaNaDani_Mesicni_ZTPP>(k_leg, "SlevaNaDani_Mesicni_ZTPP",
                                           "měsíční sleva na dani, držitel ZTP/P"),
        klic<&N::SlevaNaDani_Mesicni_Student>(k_leg, "SlevaNaDani_Mesicni_Student",
                                              "měsíční sleva na dani, student"),
        klic<&N::BonusMaximalni_Mesicni>(k_leg, "BonusMaximalni_Mesicni",
                                         "nejvyšší měsíční daňový bonus"),
        klic<&N::RedukcniHranice1>(k_leg, "RedukcniHranice1",
                                   "první redukční hranice denního základu"),
        klic<&N::RedukcniHranice2>(k_leg, "RedukcniHranice2",
                                   "druhá redukční hranice denního základu"),
        klic<&N::max_vz_soc>(k_leg, "max_vz_soc", "roční maximum vyměřovacího základu, sociální"),
        klic<&N::max_vz_zdr>(k_leg, "max_vz_zdr", "roční maximum vyměřovacího základu, zdravotní"),
        klic<&N::limit_prijmu_manzela_rocni>(k_leg, "limit_prijmu_manzela_rocni",
                                             "roční limit příjmu manžela"),
        klic<&N::NahradaNemocSloupec>(k_leg, "NahradaNemocSloupec",
                                      "sloupec náhrady za nemoc (modul 5)"),
        klic<&N::NahradaKarantenaSloupec>(k_leg, "NahradaKarantenaSloupec",
                                          "sloupec náhrady za karanténu (modul 5)"),
        klic<&N::NahradaOCRSloupec>(k_leg, "NahradaOCRSloupec", "sloupec ošetřovného (modul 5)"),
        klic<&N::NahradaPPMSloupec>(k_leg, "NahradaPPMSloupec",
                                    "sloupec peněžité pomoci v mateřství (modul 5)"),
        klic<&N::KodSazbyPojistneho>(k_leg, "KodSazbyPojistneho",
                                     "kód sazby pojistného: 1 základní, 2 zvýšená"),
        klic<&N::limit_vydelku_srazkova>(k_leg, "limit_vydelku_srazkova",
                                         "měsíční limit výdělku pro srážkovou daň"),
    };
}

void pridej_nejde_do_pojisteni(std::vector<Klic>& klice) {
    constexpr std::array<const char*, 3> k_cil{"sociálního", "zdravotního", "daně"};
    for (std::size_t r = 0; r < 3; ++r) {
        for (std::size_t c = 0; c < 8; ++c) {
            klice.push_back({k_nejde, fmt::format("hodnota_{}_{}", r + 1, c + 1),
                             fmt::format("sloupec hrubých mezd, který nejde do základu {}, {}. z 8",
                                         k_cil[r], c + 1),
                             [](Nastaveni& n, std::size_t i) -> Misto {
                                 return &n.nejde_do_pojisteni[i / 8][i % 8];
                             },
                             r * 8 + c});
        }
    }
}

/// The whole file as data: reading, writing, listing and setting all walk this list.
const std::vector<Klic>& klice() {
    static const std::vector<Klic> vsechny = [] {
        using N = Nastaveni;
        std::vector<Klic> seznam = sazby_a_slevy();
        pridej_nejde_do_pojisteni(seznam);
        for (Klic& dalsi : std::vector<Klic>{
                 klic<&N::preneseno_z_vr>(k_nejde, "preneseno_z_vr",
                                          "sloupce převzaty z řídicího souboru"),
                 klic<&N::tydnu_dovolene>("dovolena", "tydnu_dovolene", "týdnů dovolené"),
                 klic<&N::VstupDoUzavrenychMesicu>("System", "VstupDoUzavrenychMesicu",
                                                   "povolen vstup do uzavřených měsíců"),
                 klic<&N::cssz_okres>("CSSZ", "cssz_okres", "kód okresu ČSSZ, tři znaky"),
                 klic<&N::cssz_vs>("CSSZ", "cssz_vs", "variabilní symbol přidělený ČSSZ"),
                 klic<&N::EmailNotifikace>("CSSZ", "EmailNotifikace",
                                           "adresa elektronické pošty pro potvrzení")}) {
            seznam.push_back(std::move(dalsi));
        }
        return seznam;
    }();
    return vsechny;
}

std::string textem(const Misto& misto) {
    return std::visit(
        [](auto* clen) -> std::string {
            using T = std::remove_pointer_t<decltype(clen)>;
            if constexpr (std::is_same_v<T, std::string>) {
                return *clen;
            } else if constexpr (std::is_same_v<T, bool>) {
                return *clen ? "1" : "0";
            } else if constexpr (std::is_same_v<T, base::Castka>) {
                return cislo_textem(static_cast<double>(*clen));
            } else {
                return std::to_string(*clen);
            }
        },
        misto);
}

/// Sets a value from text; returns "" or what was expected, and then nothing is changed.
std::string dosad(const Misto& misto, std::string_view text) {
    const auto prijmi = [](auto* clen, const auto& hodnota, std::string ocekavano) -> std::string {
        if (!hodnota) return ocekavano;
        *clen = static_cast<std::remove_pointer_t<decltype(clen)>>(*hodnota);
        return "";
    };
    return std::visit(
        [&](auto* clen) -> std::string {
            using T = std::remove_pointer_t<decltype(clen)>;
            if constexpr (std::is_same_v<T, std::string>) {
                *clen = text;
                return "";
            } else if constexpr (std::is_same_v<T, bool>) {
                return prijmi(clen, presne_logicke(text), "ano nebo ne (1 nebo 0)");
            } else if constexpr (std::is_same_v<T, base::Castka>) {
                return prijmi(clen, presne_desetinne(text), "číslo");
            } else {
                constexpr long long od = std::numeric_limits<T>::min();
                constexpr long long do_ = std::numeric_limits<T>::max();
                return prijmi(clen, presne_cele(text, od, do_),
                              fmt::format("celé číslo {} až {}", od, do_));
            }
        },
        misto);
}

}  // namespace

Nastaveni cti_nastaveni(const std::filesystem::path& soubor, int rok,
                        double proc_soc_zamestnavatel) {
    Nastaveni nastaveni;
    if (rok < 2019) nastaveni.proc_soc2 = proc_soc_zamestnavatel;
    const base::IniSoubor ini(soubor);
    for (const Klic& k : klice()) {
        const auto text = ini.hodnota(k.sekce, k.klic);
        const Misto misto = k.misto(nastaveni, k.poradi);
        const bool je_text = std::holds_alternative<std::string*>(misto);
        if (!text || (!je_text && !base::neprazdny(*text))) continue;
        const std::string ocekavano = dosad(misto, *text);
        if (!ocekavano.empty()) {
            throw base::ChybaDat(
                fmt::format("Soubor \"{}\", sekce {}, klíč {}: očekává se {}, je tam \"{}\".",
                            soubor.string(), k.sekce, k.klic, ocekavano, *text));
        }
    }
    return nastaveni;
}

void zapis_nastaveni(const std::filesystem::path& soubor, const Nastaveni& nastaveni) {
    Nastaveni kopie = nastaveni;
    base::IniSoubor ini(soubor);
    for (const Klic& k : klice()) {
        ini.nastav(k.sekce, k.klic, textem(k.misto(kopie, k.poradi)));
    }
    ini.uloz();
}

std::vector<KlicNastaveni> vypis_nastaveni(const Nastaveni& nastaveni) {
    Nastaveni ted = nastaveni, vychozi;
    std::vector<KlicNastaveni> vypis;
    for (const Klic& k : klice()) {
        vypis.push_back({k.sekce, k.klic, textem(k.misto(ted, k.poradi)),
                         textem(k.misto(vychozi, k.poradi)), k.vyznam});
    }
    return vypis;
}

std::string nastav_klic(Nastaveni& nastaveni, std::string_view sekce, std::string_view klic,
                        std::string_view hodnota) {
    for (const Klic& k : klice()) {
        if (!base::stejne_bez_velikosti(k.sekce, sekce) ||
            !base::stejne_bez_velikosti(k.klic, klic)) {
            continue;
        }
        const std::string ocekavano = dosad(k.misto(nastaveni, k.poradi), hodnota);
        if (ocekavano.empty()) return "";
        return fmt::format("Klíč {}/{}: očekává se {}, zadáno \"{}\".", k.sekce, k.klic, ocekavano,
                           hodnota);
    }
    return fmt::format("Klíč \"{}/{}\" v nastavení není.", sekce, klic);
}

int stupen_invalidity_z_slevy(const Nastaveni& nastaveni, base::Castka castka) {
    const auto je = [castka](base::Castka sleva) { return base::je_nula(castka - sleva); };
    const Nastaveni& n = nastaveni;
    const base::Castka plna = n.SlevaNaDani_Mesicni_PlneInvalidni, ztp = n.SlevaNaDani_Mesicni_ZTPP;
    if (je(0)) return 0;
    if (je(n.SlevaNaDani_Mesicni_CastecneInvalidni)) return 1;
    if (je(plna)) return 2;
    if (je(ztp)) return 3;
    if (je(plna + ztp)) return 4;
    return 255;
}

}  // namespace shell
