#include "paysheet/unit14_pole.h"

#include <array>
#include <fmt/format.h>
#include <limits>
#include <optional>
#include <type_traits>

#include "base/castky_text.h"
#include "base/kodova_stranka.h"
#include "base/text.h"
#include "shell/hodnota_text.h"

namespace paysheet {

namespace {

using F = TForm14;
using R = shell::RidiciZorv;
using N = shell::Nastaveni;
using S = Stranka;

/// A place in the control record: a member, or with an index one item of an array member.
template <auto Clen, int... Poradi>
MistoHodnoty zaznam(UlozisteNastaveni u) {
    if constexpr (sizeof...(Poradi) == 0) {
        return &(u.zaznam.*Clen);
    } else {
        return &(u.zaznam.*Clen)[static_cast<std::size_t>((Poradi + ...))];
    }
}

template <auto Clen>
MistoHodnoty ini(UlozisteNastaveni u) {
    return &(u.nastaveni.*Clen);
}

/// A legislative value of the year: a number that must be there.
template <auto Clen>
constexpr PoleNastaveni rok(const char* ovladac, const char* popisek, std::string F::*text) {
    return {S::legislativa,        ovladac,  popisek, text, Prazdne::odmitni, 0,
            Soubor::nastaveni_ini, ini<Clen>};
}

/// A number of the page "Základní parametry" that may be missing.
template <auto Clen, int... Poradi>
constexpr PoleNastaveni cislo(const char* ovladac, const char* popisek, std::string F::*text) {
    return {S::zakladni_parametry,  ovladac, popisek, text, Prazdne::nula, 0, Soubor::ridici_zorv,
            zaznam<Clen, Poradi...>};
}

/// A caption of twenty characters on the same page.
template <auto Clen, int Poradi>
constexpr PoleNastaveni napis(const char* ovladac, const char* popisek, std::string F::*text) {
    return {S::zakladni_parametry, ovladac, popisek, text, Prazdne::nula, 20, Soubor::ridici_zorv,
            zaznam<Clen, Poradi>};
}

template <auto Clen>
constexpr PoleNastaveni nahrada(const char* ovladac, const char* popisek, std::string F::*text) {
    return {S::zakladni_parametry, ovladac,  popisek, text, Prazdne::nula, 0,
            Soubor::nastaveni_ini, ini<Clen>};
}

constexpr PoleNastaveni k_pole[] = {
    rok<&N::MinimalniMzda>("scMinimalniMzda", "Minimální mzda", &F::scMinimalniMzda),
    rok<&N::SazbaOCR>("scSazbaOCR", "Sazba OČR", &F::scSazbaOCR),
    rok<&N::SazbaPPM>("scSazbaPPM", "Sazba PPM", &F::scSazbaPPM),
    rok<&N::BonusMaximalni_Mesicni>("scBonusMaximalni_Mesicni", "Bonus maximální měsíční",
                                    &F::scBonusMaximalni_Mesicni),
    rok<&N::max_vz_soc>("scMaxVzSoc", "Max. VZ roční pro soc. poj.", &F::scMaxVzSoc),
    rok<&N::max_vz_zdr>("scMaxVzZdr", "Max. VZ roční pro zdr. poj.", &F::scMaxVzZdr),
    rok<&N::limit_prijmu_manzela_rocni>("scLimitPrijmuManzelaRocni",
                                        "Limit příjmu manžela/ky roční",
                                        &F::scLimitPrijmuManzelaRocni),
    rok<&N::limit_vydelku_srazkova>("scLimitVydelkuSrazkova", "Limit výdělků pro srážkovou daň",
                                    &F::scLimitVydelkuSrazkova),
    rok<&N::SlevaNaDani_Mesicni_Zakladni>("scSlevaNaDani_Mesicni_Zakladni", "Základní",
                                          &F::scSlevaNaDani_Mesicni_Zakladni),
    rok<&N::SlevaNaDani_Mesicni_Manzelka>("scSlevaNaDani_Mesicni_Manzelka", "Manželka",
                                          &F::scSlevaNaDani_Mesicni_Manzelka),
    rok<&N::SlevaNaDani_Mesicni_CastecneInvalidni>("scSlevaNaDani_Mesicni_CastecneInvalidni",
                                                   "Částečně invalidní",
                                                   &F::scSlevaNaDani_Mesicni_CastecneInvalidni),
    rok<&N::SlevaNaDani_Mesicni_PlneInvalidni>("scSlevaNaDani_Mesicni_PlneInvalidni",
                                               "Plně invalidní",
                                               &F::scSlevaNaDani_Mesicni_PlneInvalidni),
    rok<&N::SlevaNaDani_Mesicni_ZTPP>("scSlevaNaDani_Mesicni_ZTPP", "Držitel ZTP/P",
                                      &F::scSlevaNaDani_Mesicni_ZTPP),
    rok<&N::SlevaNaDani_Mesicni_Student>("scSlevaNaDani_Mesicni_Student", "Student",
                                         &F::scSlevaNaDani_Mesicni_Student),
    {S::legislativa, "Edit13", "Sociální / Pracovník", &F::Edit13, Prazdne::zvlast, 0,
     Soubor::ridici_zorv, zaznam<&R::proc_soc_pracovnik>},
    {S::legislativa, "scProcSoc2", "Sociální / Zaměstnavatel", &F::scProcSoc2, Prazdne::zvlast, 0,
     Soubor::nastaveni_ini, ini<&N::proc_soc2>},
    {S::legislativa, "Edit15", "Zdravotní / Pracovník", &F::Edit15, Prazdne::zvlast, 0,
     Soubor::ridici_zorv, zaznam<&R::proc_zdr_pracovnik>},
    {S::legislativa, "Edit16", "Zdravotní / Zaměstnavatel", &F::Edit16, Prazdne::zvlast, 0,
     Soubor::ridici_zorv, zaznam<&R::proc_zdr_zamestnavatel>},
    {S::legislativa, "Edit18", "Částka, ze které důchodce neplatí zdravotní pojištění", &F::Edit18,
     Prazdne::nula, 9999, Soubor::ridici_zorv, zaznam<&R::duchodce_hranice>},
    rok<&N::DruhyPilirPrac>("scDruhyPilirPrac", "2. pilíř - odvod sociálního pojištění / Pracovník",
                            &F::scDruhyPilirPrac),
    rok<&N::DruhyPilirPF>("scDruhyPilirPF", "2. pilíř - odvod sociálního pojištění / Odvod PF",
                          &F::scDruhyPilirPF),

    cislo<&R::sloupec_staly_plat>("Edit1", "Stálý plat započítat do sloupce", &F::Edit1),
    cislo<&R::sloupec_os_oh, 0>("Edit2", "Osobní ohodnocení 1", &F::Edit2),
    napis<&R::text_os_oh, 0>("Edit3", "Osobní ohodnocení 1 - text", &F::Edit3),
    cislo<&R::sloupec_os_oh, 1>("Edit4", "Osobní ohodnocení 2", &F::Edit4),
    napis<&R::text_os_oh, 1>("Edit5", "Osobní ohodnocení 2 - text", &F::Edit5),
    cislo<&R::sloupec_os_oh, 2>("Edit6", "Osobní ohodnocení 3", &F::Edit6),
    napis<&R::text_os_oh, 2>("Edit7", "Osobní ohodnocení 3 - text", &F::Edit7),
    cislo<&R::sloupec_os_oh, 3>("Edit8", "Osobní ohodnocení 4", &F::Edit8),
    napis<&R::text_os_oh, 3>("Edit9", "Osobní ohodnocení 4 - text", &F::Edit9),
    cislo<&R::sloupec_os_oh, 4>("Edit10", "Osobní ohodnocení 5", &F::Edit10),
    napis<&R::text_os_oh, 4>("Edit11", "Osobní ohodnocení 5 - text", &F::Edit11),
    cislo<&R::sloupec_dovolena_dny>("Edit19", "Dovolená ve dnech", &F::Edit19),
    cislo<&R::sloupec_dovolena_hodiny>("Edit20", "Dovolená v hodinách", &F::Edit20),
    cislo<&R::sloupec_neplacene_volno>("Edit21", "Neplacené volno", &F::Edit21),
    cislo<&R::sloupec_prescasy>("Edit101", "Přesčasy", &F::Edit101),
    cislo<&R::poradi_hodin_prescasy>("Edit102", "Přesčasy - Kolikáté v pořadí jsou hodiny?",
                                     &F::Edit102),
    cislo<&R::sloupec_nocni>("Edit103", "Noční práce", &F::Edit103),
    cislo<&R::poradi_hodin_nocni>("Edit104", "Noční práce - Kolikáté v pořadí jsou hodiny?",
                                  &F::Edit104),
    cislo<&R::os_interval1_od>("Edit41", "Příspěvek odborovému svazu - interval 1 od", &F::Edit41),
    cislo<&R::os_interval1_do>("Edit42", "Příspěvek odborovému svazu - interval 1 do", &F::Edit42),
    cislo<&R::os_sazba1>("Edit43", "Příspěvek odborovému svazu - sazba 1", &F::Edit43),
    cislo<&R::os_interval2_od>("Edit44", "Příspěvek odborovému svazu - interval 2 od", &F::Edit44),
    cislo<&R::os_interval2_do>("Edit45", "Příspěvek odborovému svazu - interval 2 do", &F::Edit45),
    cislo<&R::os_sazba2>("Edit46", "Příspěvek odborovému svazu - sazba 2", &F::Edit46),
    napis<&R::volitelna_hlediska, 0>("Edit51", "Volitelná hlediska 1", &F::Edit51),
    napis<&R::volitelna_hlediska, 1>("Edit52", "Volitelná hlediska 2", &F::Edit52),
    napis<&R::volitelna_hlediska, 2>("Edit53", "Volitelná hlediska 3", &F::Edit53),
    napis<&R::volitelna_hlediska, 3>("Edit54", "Volitelná hlediska 4", &F::Edit54),
    napis<&R::volitelna_hlediska, 4>("Edit55", "Volitelná hlediska 5", &F::Edit55),
    napis<&R::volitelna_hlediska, 5>("Edit56", "Volitelná hlediska 6", &F::Edit56),
    napis<&R::volitelna_hlediska, 6>("Edit57", "Volitelná hlediska 7", &F::Edit57),
    napis<&R::volitelna_hlediska, 7>("Edit58", "Volitelná hlediska 8", &F::Edit58),
    napis<&R::volitelna_hlediska, 8>("Edit59", "Volitelná hlediska 9", &F::Edit59),
    napis<&R::volitelna_hlediska, 9>("Edit60", "Volitelná hlediska 10", &F::Edit60),
    nahrada<&N::NahradaNemocSloupec>("scNahradaNemocSloupec", "Nemoc", &F::scNahradaNemocSloupec),
    nahrada<&N::NahradaKarantenaSloupec>("scNahradaKarantenaSloupec", "Karanténa",
                                         &F::scNahradaKarantenaSloupec),
    nahrada<&N::NahradaOCRSloupec>("scNahradaOCRSloupec", "OČR", &F::scNahradaOCRSloupec),
    nahrada<&N::NahradaPPMSloupec>("scNahradaPPMSloupec", "PPM", &F::scNahradaPPMSloupec),
    {S::zakladni_parametry, "scTydnuDovolene", "Týdnů dovolené", &F::scTydnuDovolene,
     Prazdne::odmitni, 0, Soubor::nastaveni_ini, ini<&N::tydnu_dovolene>},

    {S::pojisteni_dane_uctovani, "scPenzijni32", "sloupec výplatní listiny pro platbu DÁVEK",
     &F::scPenzijni32, Prazdne::nula, 0, Soubor::ridici_zorv, zaznam<&R::sloupec_penzijni_davky>},
    {S::pojisteni_dane_uctovani, "scPenzijni33", "sloupec výplatní listiny pro platbu SRÁŽEK",
     &F::scPenzijni33, Prazdne::nula, 0, Soubor::ridici_zorv, zaznam<&R::sloupec_penzijni_srazky>},

    {S::cssz, "scCsszVs", "Přidělený variabilní symbol (8/10)", &F::scCsszVs, Prazdne::nula, 10,
     Soubor::nastaveni_ini, ini<&N::cssz_vs>},
    {S::cssz, "scEmailNotifikace", "Email pro notifikace", &F::scEmailNotifikace, Prazdne::nula,
     250, Soubor::nastaveni_ini, ini<&N::EmailNotifikace>},
};

std::string chyba_textu(const PoleNastaveni& pole, std::string_view text) {
    if (base::pocet_znaku(text) > static_cast<std::size_t>(pole.nejvyse)) {
        return fmt::format("Údaj \"{}\" smí mít nejvýše {} znaků.", pole.popisek, pole.nejvyse);
    }
    if (!base::je_v_1250(text)) {
        return fmt::format("Údaj \"{}\" obsahuje znak, který nelze uložit.", pole.popisek);
    }
    return "";
}

std::string chyba_celeho(std::string_view popisek, std::string_view text, long long nejvyse) {
    if (shell::presne_cele(text, 0, nejvyse)) return "";
    return fmt::format("Údaj \"{}\" musí být celé číslo od 0 do {}.", popisek, nejvyse);
}

std::string chyba_desetinneho(std::string_view popisek, std::string_view text) {
    const auto hodnota = shell::presne_desetinne(text);
    if (hodnota && *hodnota >= 0) return "";
    return fmt::format("Údaj \"{}\" musí být číslo, nula nebo větší.", popisek);
}

/// The place of a field in stores that are thrown away: only its type is looked at.
template <class Akce>
auto podle_druhu(const PoleNastaveni& pole, Akce akce) {
    shell::RidiciZorv zaznam;
    shell::Nastaveni nastaveni;
    return std::visit(akce, pole.misto({zaznam, nastaveni}));
}

}  // namespace

std::span<const PoleNastaveni> pole_nastaveni() {
    return k_pole;
}

std::string hodnota_do_pole(const PoleNastaveni& pole, UlozisteNastaveni uloziste) {
    return std::visit(
        [&](const auto* misto) -> std::string {
            using T = std::decay_t<decltype(*misto)>;
            if constexpr (std::is_same_v<T, std::string>) {
                return *misto;
            } else {
                if (pole.prazdne == Prazdne::nula && *misto == 0) return "";
                if constexpr (std::is_integral_v<T>) {
                    return std::to_string(*misto);
                } else {
                    return base::castka_prosta(*misto);
                }
            }
        },
        pole.misto(uloziste));
}

void pole_do_hodnoty(const PoleNastaveni& pole, std::string_view text, UlozisteNastaveni uloziste) {
    std::visit(
        [&](auto* misto) {
            using T = std::decay_t<decltype(*misto)>;
            if constexpr (std::is_same_v<T, std::string>) {
                *misto = text;
            } else if constexpr (std::is_integral_v<T>) {
                *misto = static_cast<T>(base::je_cele_cislo(text));
            } else {
                *misto = static_cast<T>(base::je_desetinne_cislo(text));
            }
        },
        pole.misto(uloziste));
}

std::string chyba_pole(const PoleNastaveni& pole, std::string_view text) {
    return podle_druhu(pole, [&](const auto* misto) -> std::string {
        using T = std::decay_t<decltype(*misto)>;
        if constexpr (std::is_same_v<T, std::string>) {
            return chyba_textu(pole, text);
        } else {
            if (!base::neprazdny(text)) {
                if (pole.prazdne != Prazdne::odmitni) return "";
                return fmt::format("Nezadali jste údaj \"{}\".", pole.popisek);
            }
            if constexpr (std::is_integral_v<T>) {
                const int nejvyse = pole.nejvyse > 0 ? pole.nejvyse : std::numeric_limits<T>::max();
                return chyba_celeho(pole.popisek, text, nejvyse);
            } else {
                return chyba_desetinneho(pole.popisek, text);
            }
        }
    });
}

std::string chyba_cisla_sloupce(std::string_view popisek, std::string_view text) {
    if (!base::neprazdny(text)) return "";
    return chyba_celeho(popisek, text, std::numeric_limits<std::int16_t>::max());
}

}  // namespace paysheet
