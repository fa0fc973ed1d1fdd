#include "wages/unit90_davky.h"

#include <fmt/format.h>

#include "base/castky_text.h"
#include "base/text.h"
#include "wages/unit17_nemoc.h"

namespace wages {
namespace {

/// Where a band stands in the text, in characters from 1.
struct MistoPasma {
    std::size_t dnu, kc;
};
constexpr std::array<MistoPasma, 4> k_mista{{{23, 29}, {26, 35}, {41, 44}, {50, 53}}};
constexpr std::size_t k_cislic_dnu = 3, k_cislic_kc = 6;
constexpr std::size_t k_delka_textu = 58;
constexpr int k_nejvic_kc = 999999;

bool nese_pasma(std::string_view text) {
    const std::string druh = base::znaky(text, 1, 1);
    return (druh == "N" || druh == "O") && base::pocet_znaku(text) >= k_delka_textu;
}

}  // namespace

Castka PasmaDavky::celkem() const {
    Castka soucet = 0;
    for (std::size_t i = 0; i < dnu.size(); ++i)
        soucet += static_cast<Castka>(dnu[i]) * kc_denne[i];
    return soucet;
}

std::optional<PasmaDavky> pasma_z_textu(std::string_view text) {
    if (!nese_pasma(text)) return std::nullopt;
    PasmaDavky pasma;
    for (std::size_t i = 0; i < k_mista.size(); ++i) {
        pasma.dnu[i] = base::je_cele_cislo(base::znaky(text, k_mista[i].dnu, k_cislic_dnu));
        pasma.kc_denne[i] = base::je_desetinne_cislo(base::znaky(text, k_mista[i].kc, k_cislic_kc));
    }
    return pasma;
}

std::string text_s_korunami(std::string_view text, const std::array<Castka, 4>& kc_denne) {
    std::string novy(text);
    for (std::size_t i = 0; i < k_mista.size(); ++i) {
        const std::size_t za = k_mista[i].kc + k_cislic_kc;
        novy = base::znaky(novy, 1, k_mista[i].kc - 1) +
               base::castka_s_carkou(static_cast<int>(k_cislic_kc), 0, kc_denne[i]) +
               base::znaky(novy, za, base::pocet_znaku(novy));
    }
    return novy;
}

TForm90::TForm90(shell::Session& session, std::string text_vety)
    : text(std::move(text_vety)), session_(session) {}

void TForm90::FormShow() {
    const PasmaDavky ulozena = pasma_z_textu(text).value_or(PasmaDavky{});
    const auto popisky =
        popisky_pasem(base::znaky(text, 1, 1) == "O" ? DruhDavky::ocr : DruhDavky::nemoc);
    for (std::size_t i = 0; i < pasma.size(); ++i) {
        pasma[i].popisek = popisky[i];
        pasma[i].dnu = std::to_string(ulozena.dnu[i]);
        pasma[i].kc_denne = base::castka_prosta(ulozena.kc_denne[i]);
    }
    fokus = "scKcDenne1";
    poleExit();
}

PasmaDavky TForm90::zadana() const {
    PasmaDavky zadana = pasma_z_textu(text).value_or(PasmaDavky{});
    for (std::size_t i = 0; i < pasma.size(); ++i)
        zadana.kc_denne[i] = static_cast<Castka>(base::je_cele_cislo(pasma[i].kc_denne));
    return zadana;
}

void TForm90::poleExit() {
    const PasmaDavky p = zadana();
    celkem = p.celkem();
    for (std::size_t i = 0; i < pasma.size(); ++i) {
        pasma[i].kc = base::castka_s_oddelovaci(static_cast<Castka>(p.dnu[i]) * p.kc_denne[i]);
    }
    lbCelkem = "Celkem  " + base::castka_s_carkou(0, 2, celkem) + " Kč";
    oznam_zmenu();
}

void TForm90::acUlozitExecute() {
    for (std::size_t i = 0; i < pasma.size(); ++i) {
        const auto kc = base::cele_cislo_z_textu(pasma[i].kc_denne);
        if (kc && *kc >= 0 && *kc <= k_nejvic_kc) continue;
        session_.obsluha().hlaska(fmt::format(
            "Částka na den v {}. pásmu musí být celé číslo od 0 do {}.", i + 1, k_nejvic_kc));
        fokus = fmt::format("scKcDenne{}", i + 1);
        oznam_zmenu();
        return;
    }
    poleExit();
    text = text_s_korunami(text, zadana().kc_denne);
    ulozeno = zavreno = true;
    oznam_zmenu();
}

void TForm90::acZpetExecute() {
    zavreno = true;
    oznam_zmenu();
}

}  // namespace wages
