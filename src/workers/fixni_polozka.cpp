#include "workers/fixni_polozka.h"

#include <fmt/format.h>

#include "base/cekani.h"
#include "base/klavesy.h"
#include "base/kodova_stranka.h"
#include "base/text.h"
#include "paysheet/sloupce.h"
#include "shell/hodnota_text.h"
#include "store/table.h"
#include "workers/fixni.h"

namespace workers {

namespace {

/// A bank field of the form and of `Fixni`. Codes are numbers in the table, shown with leading
/// zeros.
struct PoleSpojeni {
    const char* pole;
    const char* nazev;
    std::string BankovniSpojeni::*clen;
    int delka;
    bool kod;
};
constexpr PoleSpojeni k_spojeni[] = {
    {"Ucet", "Účet", &BankovniSpojeni::Ucet, k_delka_uctu, false},
    {"Kod_banky", "Kód banky", &BankovniSpojeni::Kod_banky, k_delka_kodu_banky, true},
    {"Variabilni", "Variabilní symbol", &BankovniSpojeni::Variabilni, k_delka_symbolu, false},
    {"Konstantni", "Konstantní symbol", &BankovniSpojeni::Konstantni, k_delka_konstantniho, true},
    {"Specificky", "Specifický symbol", &BankovniSpojeni::Specificky, k_delka_symbolu, false},
};

void otevri_fixni(store::Table& fixni, shell::Session& session) {
    fixni.set_connection(session.data());
    fixni.set_table_name("Fixni");
    fixni.open();
}

[[noreturn]] void veta_chybi(std::int64_t pocitadlo) {
    throw store::StoreError(fmt::format("V tabulce Fixni není věta s Pocitadlo = {}.", pocitadlo));
}

/// The largest number of so many digits.
long long nejvyssi(int cislic) {
    long long mez = 1;
    for (int i = 0; i < cislic; ++i)
        mez *= 10;
    return mez - 1;
}

}  // namespace

PolozkaFixnich::PolozkaFixnich(shell::Session& session, std::int64_t pocitadlo,
                               int cislo_pracovnika)
    : Pocitadlo(pocitadlo), session_(session), novemu_pracovnikovi_(cislo_pracovnika) {}

void PolozkaFixnich::FormShow() {
    legenda = Napln_listbox_na_form12(session_.ridici_zorv);
    if (Pocitadlo != 0) {
        nacti_vetu();
    } else if (novemu_pracovnikovi_ != 0) {
        Cislo_pracovnika = std::to_string(novemu_pracovnikovi_);
    }
    Cislo_pracovnikaExit();
    SloupecExit();
    fokus = cislo_povoleno ? "Cislo_pracovnika" : "Sloupec";
    oznam_zmenu();
}

void PolozkaFixnich::nacti_vetu() {
    store::Table fixni;
    otevri_fixni(fixni, session_);
    if (!fixni.locate("Pocitadlo", Pocitadlo)) veta_chybi(Pocitadlo);
    Cislo_pracovnika = fixni.text("Cislo_pracovnika");
    Sloupec = fixni.text("Sloupec");
    Kcs = fixni.text("Kcs");
    for (const PoleSpojeni& p : k_spojeni)
        spojeni.*p.clen = p.kod ? kod_s_nulami(fixni.value(p.pole)) : fixni.text(p.pole);
}

void PolozkaFixnich::Cislo_pracovnikaExit() {
    jmeno_pracovnika =
        base::neprazdny(Cislo_pracovnika)
            ? workers::jmeno_pracovnika(session_, base::je_cele_cislo(Cislo_pracovnika))
            : "";
    oznam_zmenu();
}

void PolozkaFixnich::SloupecExit() {
    const int sloupec = base::je_cele_cislo(Sloupec);
    text_sloupce = base::neprazdny(Sloupec) ? paysheet::sloupec_slovy(session_, sloupec) : "";
    banka_povolena = sloupec_srazek(session_.ridici_zorv, sloupec);
    if (!banka_povolena) spojeni = {};
    oznam_zmenu();
}

bool PolozkaFixnich::povol_klavesu(Pole pole, char znak, std::string_view dosud) const {
    const auto cislo = [&](int cislic) {
        return base::hlidej_cele_cislo_klavesy(znak, dosud, base::ZnamenkoRezim::bez_minus, cislic);
    };
    const auto delka = [&](int nejvyse) {
        return base::hlidej_delku_klavesy(znak, dosud, nejvyse);
    };
    const bool pusti = [&] {
        switch (pole) {
            case Pole::Cislo_pracovnika:
                return cislo(k_cislic_pracovnika);
            case Pole::Sloupec:
                return cislo(k_cislic_sloupce);
            case Pole::Kcs:
                return klavesa_korun(session_, base::je_cele_cislo(Sloupec), znak, dosud);
            case Pole::Ucet:
                return delka(k_delka_uctu);
            case Pole::Kod_banky:
                return cislo(k_delka_kodu_banky);
            case Pole::Konstantni:
                return cislo(k_delka_konstantniho);
            case Pole::Symbol:
                break;
        }
        return delka(k_delka_symbolu);
    }();
    if (!pusti) session_.obsluha().pipni();
    return pusti;
}

/// Shows the message and goes to the field.
bool PolozkaFixnich::odmitni(const char* pole, const std::string& zprava) {
    session_.obsluha().hlaska(zprava);
    fokus = pole;
    oznam_zmenu();
    return false;
}

bool PolozkaFixnich::Interval_souhlasi() {
    if (workers::Interval_souhlasi(session_, base::je_cele_cislo(Sloupec))) return true;
    fokus = "Sloupec";
    oznam_zmenu();
    return false;
}

bool PolozkaFixnich::zkontroluj_zadani() {
    if (!base::neprazdny(Cislo_pracovnika)) {
        return odmitni("Cislo_pracovnika", "Nezadali jste číslo pracovníka.");
    }
    if (!base::neprazdny(Sloupec)) return odmitni("Sloupec", "Nezadali jste sloupec.");
    if (!Interval_souhlasi()) return false;
    if (!base::neprazdny(Kcs)) return odmitni("Kcs", k_nezadane_koruny);
    if (!Kombinace_uctu_dobra(spojeni)) {
        return odmitni("Ucet", "Chybně zadané bankovní spojení.");
    }
    return true;
}

/// What the key filters would not have let in (a pasted text) and the table could not hold.
bool PolozkaFixnich::zkontroluj_ulozitelnost() {
    const auto cele = [this](const char* pole, const std::string& text, int cislic,
                             bool zaporne = false) {
        const long long mez = nejvyssi(cislic);
        const bool dlouhe = base::jen_cislice(text).size() > static_cast<std::size_t>(cislic);
        if (!dlouhe && shell::presne_cele(text, zaporne ? -mez : 0, mez)) return true;
        return odmitni(
            pole, fmt::format("Údaj \"{}\" musí být celé číslo, nejvýše {} číslic.", text, cislic));
    };
    if (!cele("Cislo_pracovnika", Cislo_pracovnika, k_cislic_pracovnika)) return false;
    if (!cele("Kcs", Kcs, k_cislic_korun, true)) return false;
    for (const PoleSpojeni& p : k_spojeni) {
        const std::string& text = spojeni.*p.clen;
        if (p.kod) {
            if (base::neprazdny(text) && !cele(p.pole, text, p.delka)) return false;
        } else if (base::pocet_znaku(text) > static_cast<std::size_t>(p.delka)) {
            return odmitni(p.pole, fmt::format("{} smí mít nejvýše {} znaků.", p.nazev, p.delka));
        } else if (!base::je_v_1250(text)) {
            return odmitni(p.pole, fmt::format("{} obsahuje znak, který nelze uložit.", p.nazev));
        }
    }
    return true;
}

/// The bank's check of the account is a warning that the operator may pass.
bool PolozkaFixnich::ucet_v_poradku() {
    if (!base::neprazdny(spojeni.Ucet) || ucet_mimo_prikaz(spojeni.Ucet) ||
        ucet_modulo_11(spojeni.Ucet)) {
        return true;
    }
    const base::Cekani cekani(ceka_na_obsluhu_);
    const bool pres_to = session_.obsluha().otazka_ano_ne(
        fmt::format("Číslo účtu \"{}\" neodpovídá bankovní kontrole čísla účtu (modulo 11)."
                    "\r\n\r\nUložit položku i s tímto účtem?",
                    spojeni.Ucet),
        nadpis);
    if (pres_to) return true;
    fokus = "Ucet";
    oznam_zmenu();
    return false;
}

void PolozkaFixnich::zapis() {
    store::Transaction transakce(session_.data());
    store::Table fixni;
    otevri_fixni(fixni, session_);
    if (Pocitadlo == 0) {
        fixni.append();
    } else if (fixni.locate("Pocitadlo", Pocitadlo)) {
        fixni.edit();
    } else {
        veta_chybi(Pocitadlo);
    }
    fixni.set("Cislo_pracovnika", base::je_cele_cislo(Cislo_pracovnika));
    fixni.set("Sloupec", base::je_cele_cislo(Sloupec));
    fixni.set("Kcs", base::je_cele_cislo(Kcs));
    for (const PoleSpojeni& p : k_spojeni) {
        const std::string text = base::orez(spojeni.*p.clen);
        fixni.set(p.pole, p.kod && !text.empty() ? store::Value(base::je_cele_cislo(text))
                          : text.empty()         ? store::Value()
                                                 : store::Value(text));
    }
    fixni.post();
    const std::int64_t zapsana = fixni.integer("Pocitadlo");
    transakce.commit();
    Pocitadlo = zapsana;
}

void PolozkaFixnich::acUlozitExecute() {
    if (ceka_na_obsluhu_) return;
    // Enter or a click may come before the column was left.
    SloupecExit();
    if (!zkontroluj_zadani() || !zkontroluj_ulozitelnost() || !ucet_v_poradku()) return;
    zapis();
    ulozeno = true;
    zavreno = true;
    oznam_zmenu();
}

void PolozkaFixnich::acZpetExecute() {
    if (ceka_na_obsluhu_) return;
    zavreno = true;
    oznam_zmenu();
}

}  // namespace workers
