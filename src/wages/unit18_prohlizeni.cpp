#include "wages/unit18_prohlizeni.h"

#include <algorithm>
#include <fmt/format.h>
#include <optional>

#include "base/castky_text.h"
#include "base/cekani.h"
#include "base/datum.h"
#include "base/text.h"
#include "shell/prace_v_mesici.h"
#include "shell/ulozeni_csv.h"
#include "wages/unit110_castka.h"
#include "wages/unit18_vystup.h"
#include "wages/unit19_oprava.h"

namespace wages {

TForm18::TForm18(shell::Session& session, FiltrHrubych filtr_)
    : filtr(std::move(filtr_)), session_(session), mesic_zadani_(session.zpracovavany_mesic) {}

void TForm18::FormShow() {
    nadpis = "Prohlížení hrubých mezd - " + session_.firma;
    if (!base::neprazdny(filtr.mesice)) filtr.mesice = std::to_string(mesic_zadani_);
    najdi();
    vyber_radek(0);
    fokus = "mrizka";
}

/// Reads the rows of the filter anew; without a sensible month there are none.
void TForm18::najdi() {
    nalezeny_ = filtr;
    const auto mesice =
        mesice_filtru(base::neprazdny(filtr.mesice) ? filtr.mesice : std::to_string(mesic_zadani_));
    lbHlaska =
        mesice ? "" : "Měsíce zadejte jako 3, 1:3 nebo * (od prvního k poslednímu, 1 až 12).";
    vety = mesice ? najdi_vety(session_, *mesice, filtr) : std::vector<UlozenaVeta>{};
    lbSoucty = soucet_slovy(secti_vety(vety));
    ++vydani;
}

/// The cursor goes back to the same row; when it is gone, it stays at its place in the list.
void TForm18::obnov(const UlozenaVeta& kurzor) {
    const int misto = radek;
    najdi();
    const auto tatez = std::find_if(vety.begin(), vety.end(), [&](const UlozenaVeta& v) {
        return v.mesic == kurzor.mesic && v.pocitadlo == kurzor.pocitadlo;
    });
    const int posledni = static_cast<int>(vety.size()) - 1;
    fokus = "mrizka";
    vyber_radek(tatez != vety.end() ? static_cast<int>(tatez - vety.begin())
                                    : std::min(misto, posledni));
}

void TForm18::filtrExit() {
    if (filtr == nalezeny_) return;
    najdi();
    vyber_radek(0);
}

void TForm18::acVse() {
    filtr = {filtr.mesice, "", "", "", ""};
    filtrExit();
}

void TForm18::vyber_radek(int novy) {
    radek = novy >= 0 && novy < static_cast<int>(vety.size()) ? novy : -1;
    oznam_zmenu();
}

/// The month at hand has been let in; any other asks as its entry would.
bool TForm18::smi_se_menit(int mesic) {
    const shell::PraceVMesici mesic_vety(session_, mesic);
    return mesic == mesic_zadani_ || shell::test_aktivniho_mesice_hrube(session_);
}

void TForm18::oznac_zmenu(int mesic) {
    zmeneno = true;
    zmenene_mesice.insert(mesic);
}

/// Shows the correcting screen of the row at hand in the row's month.
template <class Oprava, class Vyrob>
void TForm18::oprav(Vyrob vyrob) {
    if (ceka_na_obsluhu_) return;
    const base::Cekani ceka(ceka_na_obsluhu_);
    filtrExit();
    if (!je_veta()) return;
    const UlozenaVeta veta = vybrana();
    if (!smi_se_menit(veta.mesic)) return;
    {
        const shell::PraceVMesici mesic_vety(session_, veta.mesic);
        std::optional<Oprava> oprava = vyrob(veta);
        if (!oprava) return;
        oprava->FormShow();
        session_.obsluha().ukaz_modalne(*oprava);
        if (oprava->zmeneno) oznac_zmenu(veta.mesic);
    }
    obnov(veta);
}

void TForm18::acOpravitExecute() {
    oprav<TForm19>([this](const UlozenaVeta& veta) {
        return std::optional<TForm19>(std::in_place, session_, veta.pocitadlo);
    });
}

void TForm18::acOpravitRucneExecute() {
    oprav<TForm110>([this](const UlozenaVeta& veta) -> std::optional<TForm110> {
        if (detail_nahrady(session_, veta)) {
            session_.obsluha().hlaska(
                "Položka nese náhradu, opravte ji tlačítkem Opravit, aby s ní souhlasila.");
            return std::nullopt;
        }
        return std::optional<TForm110>(std::in_place, session_, veta);
    });
}

void TForm18::acSmazatExecute() {
    if (ceka_na_obsluhu_) return;
    const base::Cekani ceka(ceka_na_obsluhu_);
    filtrExit();
    if (!je_veta()) return;
    const UlozenaVeta veta = vybrana();
    if (!smi_se_menit(veta.mesic)) return;
    const bool s_nahradou = detail_nahrady(session_, veta).has_value();
    const std::string otazka =
        fmt::format("Opravdu chcete smazat označenou položku{}?\r\n{} {} {}, {}, {} Kč",
                    s_nahradou ? " i s její náhradou" : "", veta.cislo, veta.prijmeni, veta.jmeno,
                    veta.veta.sloupec_slovy, base::castka_s_oddelovaci(veta.veta.kc_cel));
    if (!session_.obsluha().otazka_ano_ne(otazka, nadpis)) return;
    store::Transaction transakce(session_.data());
    smaz_vetu_hrubych_mezd(session_, veta);
    transakce.commit();
    oznac_zmenu(veta.mesic);
    obnov(veta);
}

void TForm18::acTiskExecute() {
    if (ceka_na_obsluhu_) return;
    const base::Cekani ceka(ceka_na_obsluhu_);
    filtrExit();
    if (vety.empty()) return;
    ukaz_sestavu(session_, sestava_vet(vety, nalezeny_));
}

void TForm18::acExportExecute() {
    if (ceka_na_obsluhu_) return;
    const base::Cekani ceka(ceka_na_obsluhu_);
    filtrExit();
    if (vety.empty()) return;
    const int od = vety.front().mesic, do_ = vety.back().mesic;
    const std::string soubor = od == do_ ? fmt::format("Hrube{:02}.csv", od)
                                         : fmt::format("Hrube{:02}-{:02}.csv", od, do_);
    shell::uloz_csv(session_, soubor, csv_vet(vety),
                    {"Složka pro hrubé mzdy", nadpis, "Hrubé mzdy jsou v souboru"});
}

void TForm18::acZpetExecute() {
    if (ceka_na_obsluhu_) return;
    zavreno = true;
    oznam_zmenu();
}

}  // namespace wages
