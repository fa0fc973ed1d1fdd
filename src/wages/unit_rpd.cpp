#include "wages/unit_rpd.h"

#include <algorithm>
#include <fmt/format.h>

#include "wages/kalendar.h"
#include "wages/kalendar_tisk.h"
#include "wages/tisk_sablony.h"
#include "wages/unit_rpd_det.h"

namespace wages {
namespace {

/// Calendars older than last year's go.
void smaz_stare(shell::Session& session) {
    store::Transaction transakce(session.data());
    session.data().execute(fmt::format("DELETE FROM RPD WHERE ROK<{}", session.rok - 1));
    transakce.commit();
}

}  // namespace

store::Rows seznam_kalendaru(shell::Session& session) {
    store::Query dotaz(session.data(), "SELECT * FROM Rpd ORDER BY Rok, Typ, Nazev, Pocitadlo");
    store::Rows vety{{"Pocitadlo", "Rok", "Typ", "Nazev", "Fond"}, {}};
    for (dotaz.open(); !dotaz.eof(); dotaz.next()) {
        vety.rows.push_back({dotaz.value("Pocitadlo"), dotaz.value("Rok"),
                             typ_kalendare_slovy(static_cast<int>(dotaz.integer("Typ"))),
                             dotaz.text("Nazev"), cas_textem(minut_roku(bunky_roku(dotaz)))});
    }
    return vety;
}

TFRpd::TFRpd(shell::Session& session, bool vyber) : SeznamVet(session), vyber_(vyber) {}

void TFRpd::FormShow() {
    nadpis = (vyber_ ? "Výběr pracovního kalendáře - " : "Pracovní kalendáře - ") + session_.firma;
    obnov(0);
    const auto rok = static_cast<std::size_t>(vety.column("Rok"));
    const auto prvni = std::find_if(
        vety.rows.begin(), vety.rows.end(),
        [&](const store::Row& veta) { return veta[rok].as_integer() == session_.rok; });
    if (prvni != vety.rows.end()) vyber_radek(static_cast<int>(prvni - vety.rows.begin()));
}

void TFRpd::acPridatExecute() {
    uprav(Rezim::novy);
}

void TFRpd::acOpravitExecute() {
    if (je_veta()) uprav(Rezim::oprava);
}

void TFRpd::acKopirovatExecute() {
    if (je_veta()) uprav(Rezim::kopie);
}

void TFRpd::acSmazatExecute() {
    if (!je_veta()) return;
    nerusene([this] {
        if (session_.obsluha().otazka_ano_ne("Smazat vybraný záznam?", "Smazání adresy.")) {
            store::Table rpd;
            rpd.set_connection(session_.data());
            rpd.set_table_name("Rpd");
            rpd.open();
            store::Transaction transakce(session_.data());
            if (rpd.locate("Pocitadlo", pocitadlo_radku())) rpd.remove();
            transakce.commit();
        }
        fokus = "mrizka";
        obnov(pocitadlo_radku());
    });
}

void TFRpd::acVybratExecute() {
    if (!lze_vybrat()) return;
    zvoleny = {pocitadlo_radku(), static_cast<int>(hodnota_radku("Rok").as_integer()),
               hodnota_radku("Nazev").as_text()};
    acZpetExecute();
}

void TFRpd::dvojklik() {
    if (vyber_) {
        acVybratExecute();
    } else {
        acOpravitExecute();
    }
}

void TFRpd::acTiskExecute() {
    nerusene([this] {
        tiskni_sablonu(session_, "mz_rpd.fr3",
                       vety_kalendaru(session_, jen_vybrany ? pocitadlo_radku() : 0));
    });
}

void TFRpd::acSmazatStareKalendareExecute() {
    nerusene([this] {
        if (!session_.obsluha().otazka_ano_ne("Smazat kalendáře předminulého roku a starší?",
                                              "Smazat staré kalendáře")) {
            return;
        }
        smaz_stare(session_);
        obnov(pocitadlo_radku());
    });
}

void TFRpd::acPridatZakladniExecute() {
    wages::acPridatZakladniExecute(session_);
    obnov(pocitadlo_radku());
}

/// The editor on a new row, a copy of the row at hand or the row itself.
void TFRpd::uprav(Rezim rezim) {
    nerusene([this, rezim] {
        store::Table rpd;
        rpd.set_connection(session_.data());
        rpd.set_table_name("Rpd");
        rpd.open();
        ZaznamKalendare zaznam;
        zaznam.rok = session_.rok;
        if (rezim != Rezim::novy) {
            if (!rpd.locate("Pocitadlo", pocitadlo_radku())) return obnov(0);
            zaznam = zaznam_kalendare(rpd);
        }
        rezim == Rezim::oprava ? rpd.edit() : rpd.append();
        const char* const titul = rezim == Rezim::novy     ? "Nový záznam"
                                  : rezim == Rezim::oprava ? "Oprava záznamu"
                                                           : "Kopie záznamu";
        TFRpdDet detail(session_, rpd, titul, std::move(zaznam));
        detail.FormShow();
        session_.obsluha().ukaz_modalne(detail);
        if (!detail.vysledek_ok && rpd.is_editing()) rpd.cancel();
        fokus = "mrizka";
        obnov(detail.vysledek_ok ? rpd.integer("Pocitadlo") : pocitadlo_radku());
    });
}

void TFRpd::obnov(std::int64_t pocitadlo) {
    prijmi(seznam_kalendaru(session_), pocitadlo);
}

std::optional<workers::ZvolenyKalendar> vyber_kalendar(shell::Session& session) {
    TFRpd seznam(session, true);
    seznam.FormShow();
    session.obsluha().ukaz_modalne(seznam);
    return seznam.zvoleny;
}

}  // namespace wages
