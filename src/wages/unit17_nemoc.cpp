#include "wages/unit17_nemoc.h"

#include <fmt/format.h>

#include "base/castky_text.h"
#include "base/text.h"
#include "store/catalogue.h"

namespace wages {
namespace {

constexpr int k_pracovnich_dnu_tydne = 5;

const char* druh_slovy(DruhDavky druh) {
    switch (druh) {
        case DruhDavky::nemoc:
            return "nemoc";
        case DruhDavky::ocr:
            return "O Č R";
        default:
            return "peněžitá pomoc";
    }
}

SazbyDavek sazby(const shell::Nastaveni& n) {
    return {{n.SazbaNemocenskeho_1az3, n.SazbaNemocenskeho_4az30, n.SazbaNemocenskeho_31az60,
             n.SazbaNemocenskeho_61vice},
            n.SazbaOCR,
            static_cast<Castka>(n.RedukcniHranice1),
            static_cast<Castka>(n.RedukcniHranice2)};
}

/// Average of a month from the card of the previous year's data; nothing when the worker is not
/// there, or is there twice.
std::optional<Castka> prumer_minuleho_roku(const shell::Session& session, int cislo, int mesic) {
    if (!shell::tabulka_existuje(session.cesta_minuly_rok, "Os_karty")) return std::nullopt;
    store::Connection minula(session.cesta_minuly_rok, store::Access::read_only);
    store::Query q(minula, fmt::format("SELECT Prum_nemoc_{} AS Prumer FROM Os_karty "
                                       "WHERE Cislo = :cislo",
                                       mesic));
    q.set("cislo", cislo);
    const store::Rows vety = store::read_all(q);
    if (vety.rows.size() != 1) return std::nullopt;
    return static_cast<Castka>(vety.rows[0][0].as_number());
}

}  // namespace

std::array<const char*, 4> popisky_pasem(DruhDavky druh) {
    if (druh == DruhDavky::ocr) return {"vše", "", "", ""};
    return {"1-3:", "4-30:", "31-60", "více"};
}

StrankaNemoci::StrankaNemoci(shell::Session& session) : session_(session) {}

void StrankaNemoci::vymaz() {
    castky_povolene = session_.ridici_zorv.proplaci_davky;
    for (std::string* text : {&scDoklad, &scOd, &scDo, &scDnyKalendarni, &scDnyPracovni, &lbPrumer})
        text->clear();
    scPrumer = scKVyplate = castky_povolene ? "" : "0";
    vysledky_viditelne = false;
    davka_ = {};
}

void StrankaNemoci::scOdExit(const KartaZadani& karta) {
    const DohledanyPrumer nalezeny = Dohledany_prumer(karta);
    scPrumer = nalezeny.prumer;
    lbPrumer = nalezeny.poznamka;
}

DohledanyPrumer StrankaNemoci::Dohledany_prumer(const KartaZadani& karta) const {
    const DohledanyPrumer zadny{"", "???"};
    const auto rok_minuly = session_.rok - 1;
    if (!session_.ridici_zorv.proplaci_davky) return {"0", "nepropl."};
    const auto den = den_mesic(base::orez(scOd), session_.rok);
    if (!den) return zadny;
    const auto m = static_cast<std::size_t>(den->mesic);
    if (den->mesic <= session_.zpracovavany_mesic)
        return {base::castka_prosta(karta.prum_nemoc[m]), fmt::format("({}/{})", m, session_.rok)};
    if (den->mesic == 12)
        return {base::castka_prosta(karta.prum_nemoc[0]), fmt::format("(12/{})", rok_minuly)};
    const auto prumer = prumer_minuleho_roku(session_, karta.cislo_min_rok, den->mesic);
    if (!prumer) return zadny;
    return {base::castka_prosta(*prumer), fmt::format("({}/{})", m, rok_minuly)};
}

std::vector<std::string> StrankaNemoci::Udelej_kontrolu_soc_davek(const KartaZadani& karta) {
    std::vector<std::string> chyby;
    const auto povinne = [&](const std::string& text, const char* chyba) {
        if (!base::neprazdny(text)) chyby.emplace_back(chyba);
    };
    const auto datum = [&](const std::string& text, const char* chybi, const char* chybne) {
        if (!base::neprazdny(text)) {
            chyby.emplace_back(chybi);
        } else if (!den_mesic(base::orez(text), session_.rok)) {
            chyby.emplace_back(chybne);
        }
    };
    povinne(scDoklad, "Není zadané číslo dokladu.");
    if (druh == DruhDavky::ppm) {
        povinne(scDnyKalendarni, "Nejsou zadané kalendářní dny.");
        povinne(scDnyPracovni, "Nejsou zadané pracovní dny.");
        if (base::je_cele_cislo(scDnyKalendarni) < base::je_cele_cislo(scDnyPracovni))
            chyby.emplace_back("Pracovních dní je více jak kalendářních.");
        povinne(scKVyplate, "Není zadaná částka k výplatě.");
    } else {
        povinne(scPrumer, "Není zadaný průměr na nemoc.");
        datum(scOd, "Není zadané datum počátku nemoci.", "Chybné datum začátku nemoci.");
        datum(scDo, "Není zadané datum ukončení nemoci.", "Chybné datum ukončení nemoci.");
    }
    vysledky_viditelne = chyby.empty() && druh != DruhDavky::ppm;
    if (vysledky_viditelne) Proved_vypocet_nemocenskych_davek(karta);
    return chyby;
}

void StrankaNemoci::Proved_vypocet_nemocenskych_davek(const KartaZadani& karta) {
    const auto od = den_mesic(base::orez(scOd), session_.rok);
    const auto do_ = den_mesic(base::orez(scDo), session_.rok);
    if (!od || !do_) return;
    davka_ = vypocti_davku({druh, *od, *do_, jen_mesic, session_.zpracovavany_mesic, session_.rok,
                            base::je_desetinne_cislo(scPrumer), karta.osamela_osoba},
                           sazby(session_.nastaveni));
    const auto popisky = popisky_pasem(druh);
    for (std::size_t i = 0; i < pasma.size(); ++i) {
        const auto cele = [](Castka castka) {
            return base::je_nula(castka) ? "... " : base::castka_s_carkou(0, 0, castka);
        };
        pasma[i] = {popisky[i], base::nula_jako_tecky(davka_.dnu[i]), cele(davka_.kc_denne[i]),
                    cele(davka_.kc[i])};
    }
    scDnyKalendarni = std::to_string(davka_.kalendarnich);
    scDnyPracovni = std::to_string(davka_.pracovnich);
    scKVyplate = base::castka_s_carkou(0, 0, davka_.celkem);
}

VetaHrube StrankaNemoci::veta(const SloupecHrube& sloupec, const KartaZadani& karta) const {
    VetaHrube v;
    v.modul = sloupec.modul;
    v.sloupec = sloupec.sloupec;
    v.sloupec_slovy = druh_slovy(druh);
    const Castka pracovnich = base::je_desetinne_cislo(scDnyPracovni);
    v.dny_neod = pracovnich;
    v.hod_neod = pracovnich * karta.tpd / k_pracovnich_dnu_tydne;
    v.kc_cel = base::je_desetinne_cislo(scKVyplate);
    v.text = text_davky({druh, base::je_cele_cislo(scDoklad), base::na_sirku(scOd, 4),
                         base::na_sirku(scDo, 4), base::je_desetinne_cislo(scPrumer), davka_.dnu,
                         davka_.kc_denne, base::je_cele_cislo(scDnyKalendarni)});
    return v;
}

int kalendarni_dny_nemoci_2008(shell::Session& session, int cislo) {
    int dnu = 0;
    for (int mesic = 1; mesic <= 12; ++mesic) {
        const std::string hrube = store::month_table("Hrube", mesic);
        if (!session.data().table_exists(hrube)) continue;
        store::Query q(session.data(), "SELECT Text, Mesic FROM " + hrube +
                                           " WHERE ((cislo_pracovnika=:cislo) AND (modul=4))");
        q.set("cislo", cislo);
        for (q.open(); !q.eof(); q.next())
            dnu += kalendarni_dny_radku(q.text(0), static_cast<int>(q.integer(1)), session.rok);
    }
    return dnu;
}

int kalendarni_dny_nemoci(shell::Session& session, int cislo) {
    store::Query q(session.data(),
                   "SELECT SUM(Dnu_kalendarnich) AS Soucet FROM Nahrady "
                   "WHERE Cislo_pracovnika = :cislo");
    q.set("cislo", cislo);
    q.open();
    return static_cast<int>(q.number("Soucet"));
}

}  // namespace wages
