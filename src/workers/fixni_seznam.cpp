#include "workers/fixni_seznam.h"

#include <fmt/format.h>
#include <unordered_map>

#include "base/text.h"
#include "paysheet/sloupce.h"
#include "store/query.h"
#include "workers/fixni.h"

namespace workers {

namespace {

/// One range of a restriction.
struct Rozsah {
    const char* pole;
    const char* popis;
    std::string OmezeniFixnich::*od;
    std::string OmezeniFixnich::*do_;
    const char* nejvyssi;  ///< what an open upper end means
};
constexpr Rozsah k_rozsahy[] = {
    {"Cislo_pracovnika", "pracovníci ", &OmezeniFixnich::pracovnik_od,
     &OmezeniFixnich::pracovnik_do, "999999"},
    {"Sloupec", " sloupce ", &OmezeniFixnich::sloupec_od, &OmezeniFixnich::sloupec_do, "99"},
};

bool omezuje(const OmezeniFixnich& omezeni, const Rozsah& rozsah) {
    return base::neprazdny(omezeni.*rozsah.od) || base::neprazdny(omezeni.*rozsah.do_);
}

std::string mez(const std::string& text, const char* prazdna) {
    return base::neprazdny(text) ? base::orez(text) : prazdna;
}

/// The query `vyber` + condition + `konec` with its ends bound.
store::Query dotaz_s_omezenim(shell::Session& session, const OmezeniFixnich& omezeni,
                              const std::string& vyber, const std::string& konec) {
    std::string podminka;
    for (const Rozsah& r : k_rozsahy) {
        if (!omezuje(omezeni, r)) continue;
        podminka += fmt::format("{0} ({1} >= :{1}_od AND {1} <= :{1}_do)",
                                podminka.empty() ? " WHERE" : " AND", r.pole);
    }
    store::Query dotaz(session.data(), vyber + podminka + konec);
    for (const Rozsah& r : k_rozsahy) {
        if (!omezuje(omezeni, r)) continue;
        const std::string pole = r.pole;
        dotaz.set(pole + "_od", base::je_cele_cislo(mez(omezeni.*r.od, "0")));
        dotaz.set(pole + "_do", base::je_cele_cislo(mez(omezeni.*r.do_, r.nejvyssi)));
    }
    return dotaz;
}

std::unordered_map<std::int64_t, std::string> jmena_pracovniku(shell::Session& session) {
    std::unordered_map<std::int64_t, std::string> jmena;
    store::Query dotaz(session.data(), "SELECT Cislo, Prijmeni, Jmeno FROM Os_karty");
    for (dotaz.open(); !dotaz.eof(); dotaz.next())
        jmena.try_emplace(dotaz.integer(0), dotaz.text(1) + " " + dotaz.text(2));
    return jmena;
}

}  // namespace

std::string jake_omezeni(const OmezeniFixnich& omezeni) {
    std::string text;
    for (const Rozsah& r : k_rozsahy) {
        if (!omezuje(omezeni, r)) continue;
        text += fmt::format("{}{}{} až {}", text.empty() ? "" : ",  ", r.popis,
                            mez(omezeni.*r.od, "1"), mez(omezeni.*r.do_, r.nejvyssi));
    }
    return text.empty() ? "BEZ  OMEZENÍ" : "OMEZENÍ: " + text;
}

std::vector<RadekFixnich> nacti_fixni(shell::Session& session, const OmezeniFixnich& omezeni,
                                      TrideniFixnich trideni) {
    const auto jmena = jmena_pracovniku(session);
    store::Query d = dotaz_s_omezenim(
        session, omezeni,
        "SELECT Pocitadlo, Cislo_pracovnika, Sloupec, Kcs, Ucet, Kod_banky, Variabilni, Konstantni,"
        " Specificky FROM Fixni",
        trideni == TrideniFixnich::sloupec_pracovnik
            ? " ORDER BY Sloupec, Cislo_pracovnika, Pocitadlo"
            : " ORDER BY Cislo_pracovnika, Sloupec, Pocitadlo");
    std::vector<RadekFixnich> radky;
    for (d.open(); !d.eof(); d.next()) {
        const auto jmeno = jmena.find(d.integer(1));
        const int sloupec = static_cast<int>(d.integer(2));
        radky.push_back({d.integer(0),
                         d.integer(1),
                         jmeno == jmena.end() ? k_pracovnik_neni : jmeno->second,
                         sloupec,
                         paysheet::sloupec_slovy(session, sloupec),
                         d.value(3),
                         {d.text(4), kod_s_nulami(d.value(5)), d.text(6), kod_s_nulami(d.value(7)),
                          d.text(8)}});
    }
    return radky;
}

std::vector<SoucetSloupce> soucty_fixnich(shell::Session& session, const OmezeniFixnich& omezeni) {
    store::Query d = dotaz_s_omezenim(
        session, omezeni, "SELECT Sloupec, COUNT(*) AS Polozek, SUM(Kcs) AS SQL_Kcs FROM Fixni",
        " GROUP BY Sloupec ORDER BY Sloupec");
    std::vector<SoucetSloupce> soucty;
    for (d.open(); !d.eof(); d.next()) {
        const int sloupec = static_cast<int>(d.integer(0));
        soucty.push_back({sloupec, paysheet::sloupec_slovy(session, sloupec), d.integer(1),
                          static_cast<base::Castka>(d.integer(2))});
    }
    return soucty;
}

}  // namespace workers
