#include "workers/unit7_ciselniky.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>

#include "base/castky_text.h"

namespace workers {
namespace {

using Polozky = std::vector<PolozkaCiselniku>;

/// Items stored by the number of their place, from `prvni` on.
Polozky cislovane(int prvni, const std::vector<std::string>& texty) {
    Polozky polozky;
    for (const std::string& text : texty)
        polozky.push_back({std::to_string(prvni++), text});
    return polozky;
}

/// Items stored by the first character of their text.
Polozky podle_znaku(const std::vector<std::string>& texty) {
    Polozky polozky;
    for (const std::string& text : texty)
        polozky.push_back({text.substr(0, 1), text});
    return polozky;
}

Polozky socialni(const shell::Session& session) {
    return cislovane(1, {fmt::format("platí {} % dle zadání",
                                     base::castka_prosta(session.ridici_zorv.proc_soc_pracovnik)),
                         "neplatí při výdělku < 3500", "neplatí při výdělku < 10001 Kč (dohody)",
                         "neplatí nikdy", "2. pilíř penzijní reformy"});
}

Polozky zdravotni(const shell::Session& session) {
    const base::Castka pracovnik = session.ridici_zorv.proc_zdr_pracovnik;
    const base::Castka oba = pracovnik + session.ridici_zorv.proc_zdr_zamestnavatel;
    const base::Castka nejmene =
        base::na_koruny_k_sude(base::procenta(session.nastaveni.MinimalniMzda, oba));
    const std::string sazba = base::castka_prosta(pracovnik);
    return cislovane(1, {fmt::format("platí {} % dle zadání", sazba),
                         fmt::format("platí {} %, min. {} Kč", sazba, base::castka_prosta(nejmene)),
                         "neplatí při výdělku < 3500", "neplatí při výdělku < 10001 Kč (dohody)",
                         "neplatí nikdy"});
}

Polozky dan(const shell::Session& session) {
    return cislovane(
        1, {"platí zálohu měsíční sazbou dle zadání", "15 % do 10.000 Kč srážková, jinak zálohová",
            "autoři - 15 % do 7.000 Kč srážková, jinak nic",
            fmt::format("15% do {} Kč srážková, jinak zálohová (statutární orgán)",
                        session.nastaveni.limit_vydelku_srazkova),
            "neplatí nikdy"});
}

/// Ordinals in both genders of Czech.
constexpr std::array k_muzske{"první", "druhý", "třetí", "čtvrtý", "pátý", "šestý"};
constexpr std::array k_zenske{"první", "druhá", "třetí", "čtvrtá", "pátá",
                              "šestá", "sedmá", "osmá",  "devátá", "desátá"};

constexpr const char* k_u_tehoz = "u téhož zaměstnavatele";

Polozky druh_cinnosti() {
    std::vector<std::string> texty{"1 první pracovní poměr"};
    for (std::size_t i = 1; i < k_muzske.size(); ++i)
        texty.push_back(fmt::format("{} {} pracovní poměr {}", i + 1, k_muzske[i], k_u_tehoz));
    texty.push_back("A dohoda o pracovní činnosti");
    for (std::size_t i = 1; i < k_zenske.size(); ++i) {
        texty.push_back(fmt::format("{} {} dohoda o pracovní činnosti {}",
                                    static_cast<char>('A' + static_cast<int>(i)), k_zenske[i],
                                    k_u_tehoz));
    }
    texty.insert(texty.end(),
                 {"K dobrovolný pracovník pečovatelské služby", "L domácký zaměstnanec",
                  "M pěstouni ve zvláštních případech", "N smluvní zaměstnanec",
                  "O člen družstva - (§5 písm. a) b. 4 ZNP)", "P prokuristé",
                  "Q členové kolektivních orgánů právnických osob", "R likvidátoři",
                  "S společník, jednatel, komandista, ředitel obecně prospěšné společnosti"});
    constexpr std::size_t k_dohod_o_provedeni = 7;
    for (std::size_t i = 0; i < k_dohod_o_provedeni; ++i) {
        texty.push_back(fmt::format("{} {} dohoda o provedení práce {}",
                                    static_cast<char>('T' + static_cast<int>(i)), k_zenske[i],
                                    k_u_tehoz));
    }
    return podle_znaku(texty);
}

}  // namespace

std::vector<PolozkaCiselniku> ciselnik_karty(CiselnikKarty ciselnik,
                                             const shell::Session& session) {
    switch (ciselnik) {
        case CiselnikKarty::zadny:
            return {};
        case CiselnikKarty::socialni:
            return socialni(session);
        case CiselnikKarty::zdravotni:
            return zdravotni(session);
        case CiselnikKarty::dan:
            return dan(session);
        case CiselnikKarty::invalidita:
            return cislovane(0, {"Žádná", "Částečná (1. a 2. st.)", "Plná (3. st.)", "ZTP/P",
                                 "Plná+ZTP/P (3. st.)"});
        case CiselnikKarty::pohlavi:
            return {{"M", "Muž"}, {"Ž", "Žena"}, {"0", "Nezjištěno"}};
        case CiselnikKarty::rodinny_stav:
            return {{"", "Nezjištěn"},
                    {"1", "Svobodný / -á"},
                    {"2", "Ženatý / Vdaná"},
                    {"4", "Rozvedený / -á"},
                    {"5", "Ovdovělý / -á"}};
        case CiselnikKarty::duchod:
            return podle_znaku({"0 žádný, nepobírá", "1 starobní", "2 invalidní plný",
                                "3 invalidní částečný", "4 vdovský/vdovecký", "5 sirotčí",
                                "A cizí charakteru starobního", "B cizí charakteru inv. plného",
                                "C cizí charakteru část. inv."});
        case CiselnikKarty::nositel_pojisteni:
            return {{"", "--- neurčeno ---"}, {"P", "Poslední"}, {"S", "Současný"}, {"N", "Není"}};
        case CiselnikKarty::druh_cinnosti:
            return druh_cinnosti();
    }
    return {};
}

int index_v_ciselniku(const std::vector<PolozkaCiselniku>& polozky, std::string_view hodnota) {
    const auto kde = std::find_if(polozky.begin(), polozky.end(),
                                  [&](const auto& polozka) { return polozka.hodnota == hodnota; });
    return kde == polozky.end() ? -1 : static_cast<int>(kde - polozky.begin());
}

int sleva_na_invaliditu(int index, const shell::Nastaveni& nastaveni) {
    const std::array slevy{
        0, nastaveni.SlevaNaDani_Mesicni_CastecneInvalidni,
        nastaveni.SlevaNaDani_Mesicni_PlneInvalidni, nastaveni.SlevaNaDani_Mesicni_ZTPP,
        nastaveni.SlevaNaDani_Mesicni_PlneInvalidni + nastaveni.SlevaNaDani_Mesicni_ZTPP};
    return index >= 0 && index < static_cast<int>(slevy.size())
               ? slevy[static_cast<std::size_t>(index)]
               : 0;
}

}  // namespace workers
