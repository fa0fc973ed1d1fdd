#include "workers/ciselnik_popis.h"

#include <fmt/format.h>

#include "base/castky_text.h"
#include "base/klavesy.h"
#include "base/kodova_stranka.h"
#include "base/text.h"
#include "shell/hodnota_text.h"

namespace workers {
namespace {

bool same_cislice(const std::string& text) {
    return base::jen_cislice(text).size() == text.size();
}

bool je_soud(const PoleCiselniku& pole, const std::string& text) {
    switch (pole.druh) {
        case DruhPole::text:
            return base::je_v_1250(text);
        case DruhPole::desetinne:
            return shell::presne_desetinne(text).has_value();
        default:
            return same_cislice(text);
    }
}

const char* co_se_ceka(DruhPole druh) {
    switch (druh) {
        case DruhPole::text:
            return "text bez zvláštních znaků";
        case DruhPole::desetinne:
            return "číslo";
        default:
            return "jen číslice";
    }
}

}  // namespace

std::string text_pole(const PoleCiselniku& pole, const store::Value& hodnota) {
    switch (pole.druh) {
        case DruhPole::desetinne:
            return hodnota.is_empty() ? "" : base::castka_prosta(hodnota.as_number());
        case DruhPole::kod:
            return hodnota.as_integer() == 0
                       ? ""
                       : base::cislo_s_nulami(hodnota.as_integer(), pole.znaku);
        default:
            return hodnota.as_text();
    }
}

store::Value hodnota_pole(const PoleCiselniku& pole, const std::string& text) {
    const std::string orezany = base::orez(text);
    if (orezany.empty()) return {};
    switch (pole.druh) {
        case DruhPole::cele:
        case DruhPole::kod:
            return base::je_cele_cislo(orezany);
        case DruhPole::desetinne:
            return base::je_desetinne_cislo(orezany);
        default:
            return orezany;
    }
}

std::string chyba_pole(const PoleCiselniku& pole, const std::string& text) {
    const std::string orezany = base::orez(text);
    if (orezany.empty()) return "";
    if (!je_soud(pole, orezany))
        return fmt::format("Údaj <{}> je \"{}\", očekává se {}.", pole.nadpis, orezany,
                           co_se_ceka(pole.druh));
    const std::string cela_cast = orezany.substr(0, orezany.find_first_of(",."));
    const auto znaku = base::pocet_znaku(pole.druh == DruhPole::desetinne ? cela_cast : orezany);
    if (static_cast<int>(znaku) > pole.znaku)
        return fmt::format("Údaj <{}> smí mít nejvýše {} znaků.", pole.nadpis, pole.znaku);
    return "";
}

bool povoleny_znak(const PoleCiselniku& pole, char znak, std::string_view dosud) {
    using enum base::ZnamenkoRezim;
    switch (pole.druh) {
        case DruhPole::text:
            return base::hlidej_delku_klavesy(znak, dosud, pole.znaku);
        case DruhPole::desetinne:
            return base::hlidej_desetinne_cislo_klavesy(znak, dosud, bez_minus, pole.znaku,
                                                        k_desetinnych_mist);
        default:
            return base::hlidej_cele_cislo_klavesy(znak, dosud, bez_minus, pole.znaku);
    }
}

}  // namespace workers
