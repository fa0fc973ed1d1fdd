#include "wages/unit123_tisk_nahrad.h"

#include <fmt/format.h>

#include "base/cekani.h"
#include "base/datum.h"
#include "base/text.h"
#include "store/query.h"
#include "wages/tisk_sablony.h"
#include "wages/unit_nahrady_prehled.h"

namespace wages {
namespace {

constexpr const char* k_sablona = "mz_003_blank.fr3";
constexpr const char* k_neni_v_kartotece = "není v kartotéce";

/// Surname and first name; "" for a number that no card has.
std::string jmeno_pracovnika(shell::Session& session, int cislo) {
    store::Query q(session.data(), "SELECT Prijmeni, Jmeno FROM Os_karty WHERE Cislo = :cislo");
    q.set("cislo", cislo);
    q.open();
    return q.eof() ? "" : q.text("Prijmeni") + " " + q.text("Jmeno");
}

/// Compensations of months `od` to `do_` with the cards of their workers; worker 0 means all.
store::Rows nahrady_obdobi(shell::Session& session, int od, int do_, int cislo) {
    std::string dotaz =
        "SELECT * FROM Nahrady n LEFT OUTER JOIN Os_karty p ON n.Cislo_pracovnika = p.Cislo "
        "WHERE Mesic >= :od AND Mesic <= :do";
    if (cislo != 0) dotaz += " AND Cislo_pracovnika = :cislo";
    store::Query q(session.data(), dotaz + " ORDER BY Cislo_pracovnika, Mesic, Trvani_od");
    q.set("od", od).set("do", do_);
    if (cislo != 0) q.set("cislo", cislo);
    return vety_nahrad(q);
}

std::string obdobi_slovy(int od, int do_, int rok) {
    if (od == do_) return base::mesic_slovy(od, rok);
    return base::mesic_slovy(od, 0) + " až " + base::mesic_slovy(do_, rok);
}

}  // namespace

void TForm123::FormShow() {
    mesic_od = 0;
    mesic_do = session_.zpracovavany_mesic > 0 ? session_.zpracovavany_mesic - 1 : 11;
    fokus = "mesic_od";
    oznam_zmenu();
}

void TForm123::vsichniClick() {
    if (!vsichni) fokus = "cislo";
    cisloExit();
}

void TForm123::cisloExit() {
    kdo.clear();
    if (!vsichni && base::neprazdny(cislo)) {
        kdo = jmeno_pracovnika(session_, base::je_cele_cislo(cislo));
        if (kdo.empty()) kdo = k_neni_v_kartotece;
    }
    oznam_zmenu();
}

/// What the operator has to put right first; "" when nothing.
std::string TForm123::chyba() const {
    if (mesic_od > mesic_do) return "Měsíc od je větší než měsíc do.";
    if (vsichni) return "";
    if (!base::neprazdny(cislo)) return "Není zadané číslo pracovníka.";
    if (kdo == k_neni_v_kartotece) return "Pracovník " + base::orez(cislo) + " není v kartotéce.";
    return "";
}

void TForm123::acTiskExecute() {
    if (ceka_) return;
    const base::Cekani ceka(ceka_);
    cisloExit();
    if (const std::string text = chyba(); !text.empty()) {
        fokus = mesic_od > mesic_do ? "mesic_do" : "cislo";
        session_.obsluha().hlaska(text);
        oznam_zmenu();
        return;
    }
    const store::Rows vety = nahrady_obdobi(session_, mesic_od + 1, mesic_do + 1,
                                            vsichni ? 0 : base::je_cele_cislo(cislo));
    if (vety.rows.empty()) {
        session_.obsluha().hlaska("Za zvolené období není zapsaná žádná náhrada.");
        return;
    }
    tiskni_sablonu(
        session_, k_sablona, vety,
        {{"obdobi", obdobi_slovy(mesic_od + 1, mesic_do + 1, session_.rok)},
         {"pracovnik", vsichni ? "všichni pracovníci" : "pracovník " + cislo + " " + kdo}});
}

void TForm123::acZpetExecute() {
    zavreno = true;
    oznam_zmenu();
}

}  // namespace wages
