#include "workers/unit7_vyber_pracovnika.h"

#include <algorithm>

#include "base/text.h"

namespace workers {

TFVyberPracovnika::TFVyberPracovnika(shell::Session& session, int zvoleny)
    : session_(session), zvoleny_(zvoleny) {}

void TFVyberPracovnika::FormShow() {
    store::Query dotaz(session_.data(),
                       "SELECT Cislo, Prijmeni, Jmeno, Zam_do FROM Os_karty ORDER BY Cislo, "
                       "Pocitadlo");
    store::Rows karty = store::read_all(dotaz);
    vety.columns = std::move(karty.columns);
    for (store::Row& veta : karty.rows) {
        std::string cislo = veta[0].as_text();
        std::string hledane = base::velkymi(veta[1].as_text() + " " + veta[2].as_text());
        vsichni_.push_back({std::move(veta), std::move(cislo), std::move(hledane)});
    }
    filtrChange();
}

int TFVyberPracovnika::cislo_radku() const {
    return radek < 0 ? zvoleny_
                     : static_cast<int>(vety.rows[static_cast<std::size_t>(radek)][0].as_integer());
}

/// The cursor stays on its worker while he passes.
void TFVyberPracovnika::filtrChange() {
    const int stal_na = cislo_radku();
    const std::string hledane = base::velkymi(base::orez(filtr));
    const bool cislice = !hledane.empty() && base::jen_cislice(hledane) == hledane;
    vety.rows.clear();
    radek = -1;
    for (const Pracovnik& pracovnik : vsichni_) {
        const bool projde = cislice ? pracovnik.cislo.starts_with(hledane)
                                    : pracovnik.hledane.find(hledane) != std::string::npos;
        if (!projde) continue;
        if (pracovnik.veta[0].as_integer() == stal_na) radek = static_cast<int>(vety.rows.size());
        vety.rows.push_back(pracovnik.veta);
    }
    vyber_radek(std::max(radek, 0));
}

void TFVyberPracovnika::vyber_radek(int novy) {
    radek = novy >= 0 && novy < static_cast<int>(vety.rows.size()) ? novy : -1;
    oznam_zmenu();
}

void TFVyberPracovnika::acVybratExecute() {
    if (radek < 0) return;
    zvoleno = cislo_radku();
    zavreno = true;
    oznam_zmenu();
}

void TFVyberPracovnika::acZpetExecute() {
    zavreno = true;
    oznam_zmenu();
}

}  // namespace workers
