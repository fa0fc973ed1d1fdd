#include "payrun/unit50_blokace.h"

#include <algorithm>

#include "base/cekani.h"
#include "base/datum.h"
#include "base/text.h"
#include "store/catalogue.h"

namespace payrun {

TForm50::TForm50(shell::Session& session) : session_(session) {}

void TForm50::FormShow() {
    nadpis = "Blokované hodnoty - " + base::mesic_slovy(session_.zpracovavany_mesic, session_.rok);
    blok_.set_connection(session_.data());
    blok_.set_table_name(store::month_table("Blok", session_.zpracovavany_mesic));
    blok_.open();
    obnov(0);
}

std::int64_t TForm50::pocitadlo_radku() const {
    if (radek < 0) return 0;
    const auto sloupec = static_cast<std::size_t>(vety.column("Pocitadlo"));
    return vety.rows[static_cast<std::size_t>(radek)][sloupec].as_integer();
}

/// Positions the edited table on the row under the cursor. A change that a failing store has left
/// behind is dropped.
bool TForm50::najdi_vetu() {
    if (blok_.is_editing()) blok_.cancel();
    return radek >= 0 && blok_.locate("Pocitadlo", pocitadlo_radku());
}

/// Runs the query again and returns the cursor to a row; when it is gone, the cursor stays at its
/// place in the grid.
void TForm50::obnov(std::int64_t pocitadlo) {
    const int misto = std::max(radek, 0);
    store::Query dotaz(session_.data(), "select * from Blok" +
                                            base::cislo_s_nulami(session_.zpracovavany_mesic, 2) +
                                            " order by cislo_pracovnika");
    vety = store::read_all(dotaz);
    const int posledni = static_cast<int>(vety.rows.size()) - 1;
    radek = posledni;
    while (radek >= 0 && pocitadlo_radku() != pocitadlo)
        --radek;
    vyber_radek(radek >= 0 ? radek : std::min(misto, posledni));
}

void TForm50::vyber_radek(int novy) {
    radek = novy >= 0 && novy < static_cast<int>(vety.rows.size()) ? novy : -1;
    for (std::size_t i = 0; i < hodnoty.size(); ++i) {
        const auto hodnota = [&](const char* druh) -> std::string {
            if (radek < 0) return "";
            const int sloupec = vety.column(k_druhy_blokace[i].pole + std::string(druh));
            return vety.rows[static_cast<std::size_t>(radek)][static_cast<std::size_t>(sloupec)]
                .as_text();
        };
        hodnoty[i] = {hodnota("_abs"), hodnota("_dif")};
    }
    oznam_zmenu();
}

/// Shows the record form on the row being edited; without its acceptance the table returns to the
/// remembered row.
void TForm50::ukaz_vetu(const char* nadpis_vety, store::Table::Bookmark puvodni) {
    TForm51 veta(session_, blok_, nadpis_vety);
    session_.obsluha().ukaz_modalne(veta);
    if (!veta.vysledek_ok) {
        blok_.cancel();
        blok_.go_to(puvodni);
    }
    obnov(blok_.integer("Pocitadlo"));
    fokus = "mrizka";
    oznam_zmenu();
}

void TForm50::najdi_pracovnika(int cislo) {
    const auto sloupec = static_cast<std::size_t>(vety.column("Cislo_pracovnika"));
    const auto it = std::find_if(vety.rows.begin(), vety.rows.end(), [&](const store::Row& veta) {
        return veta[sloupec].as_integer() == cislo;
    });
    if (it != vety.rows.end()) vyber_radek(static_cast<int>(it - vety.rows.begin()));
}

void TForm50::Button2Click() {
    if (ceka_na_obsluhu_) return;
    const base::Cekani cekani(ceka_na_obsluhu_);
    const store::Table::Bookmark puvodni = najdi_vetu() ? blok_.bookmark() : 0;
    blok_.append();
    ukaz_vetu("NOVÁ  HODNOTA  PRO  BLOKACI", puvodni);
}

void TForm50::Button3Click() {
    if (ceka_na_obsluhu_ || !najdi_vetu()) return;
    const base::Cekani cekani(ceka_na_obsluhu_);
    const store::Table::Bookmark puvodni = blok_.bookmark();
    blok_.edit();
    ukaz_vetu("OPRAVUJEME  BLOKOVANOU  HODNOTU", puvodni);
}

void TForm50::Button4Click() {
    if (ceka_na_obsluhu_ || !najdi_vetu()) return;
    const base::Cekani cekani(ceka_na_obsluhu_);
    const std::string otazka = "Opravdu chcete vypustit označenou větu?";
    if (session_.obsluha().otazka_ano_ne(otazka, nadpis)) {
        store::Transaction transakce(session_.data());
        blok_.remove();
        transakce.commit();
    }
    obnov(pocitadlo_radku());
    fokus = "mrizka";
    oznam_zmenu();
}

void TForm50::Button1Click() {
    blok_.close();
    zavreno = true;
    oznam_zmenu();
}

void zaloz_soubor_pro_blokovani(shell::Session& session) {
    const std::string tabulka = store::month_table("Blok", session.zpracovavany_mesic);
    if (session.data().table_exists(tabulka)) return;
    store::Transaction transakce(session.data());
    session.data().create_table(store::definition_of(tabulka));
    transakce.commit();
}

}  // namespace payrun
