#include "report/sablona_hodnota.h"

#include "base/castky_text.h"

namespace report {

namespace {

std::string text_dne(const base::Datum& den) {
    return base::datum_textem(den);
}

std::string text_textu(const std::string& text, Format format) {
    const auto den = format == Format::datum ? base::datum_z_iso(text) : std::nullopt;
    return den ? text_dne(*den) : text;
}

}  // namespace

std::string text_castky(base::Castka castka, const Pole& pole) {
    if (pole.prazdna_nula && base::je_nula(castka)) return "";
    if (pole.format == Format::castka) {
        return base::castka_s_oddelovaci(base::na_halere_k_sude(castka));
    }
    if (pole.format == Format::koruny) {
        const std::string text = base::castka_s_oddelovaci(base::na_koruny_k_sude(castka));
        return text.substr(0, text.find(','));
    }
    return base::castka_prosta(castka);
}

std::string text_hodnoty(const store::Value& hodnota, const Pole& pole) {
    struct Zapis {
        const store::Value& hodnota;
        const Pole& pole;
        std::string operator()(std::monostate) const { return ""; }
        std::string operator()(std::int64_t) const { return cislo(); }
        std::string operator()(double) const { return cislo(); }
        std::string operator()(bool pravda) const { return pravda ? "ano" : "ne"; }
        std::string operator()(const std::string& text) const {
            return text_textu(text, pole.format);
        }
        std::string operator()(const base::Datum& den) const { return text_dne(den); }
        std::string operator()(const base::DatumCas& cas) const { return text_dne(cas.datum); }
        std::string cislo() const { return text_castky(hodnota.as_number(), pole); }
    };
    return std::visit(Zapis{hodnota, pole}, hodnota.variant());
}

}  // namespace report
