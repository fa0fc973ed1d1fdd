#include "workers/registr_v_pameti.h"

#include <unordered_set>

#include "base/text.h"

namespace workers {

namespace {

constexpr const char* k_dotaz =
    "SELECT Pocitadlo, Cislo, Prijmeni, Jmeno, Titul, Rodne_cislo, Dat_nar_text, Stredisko, "
    "Zam_od, Zam_do, Rocni_zuctovani, Id_rpd, Volit_1, Volit_2, Volit_3, Volit_4, Volit_5, "
    "Volit_6, Volit_7, Volit_8, Volit_9, Volit_10 FROM Os_karty";

using CislaPracovniku = std::unordered_set<std::int64_t>;

/// Numbers of the workers who have a row in the table.
CislaPracovniku maji_vetu(store::Connection& data, const std::string& tabulka) {
    store::Query dotaz(data, "SELECT Cislo_pracovnika FROM " + tabulka +
                                 " WHERE Cislo_pracovnika IS NOT NULL GROUP BY Cislo_pracovnika");
    CislaPracovniku cisla;
    for (dotaz.open(); !dotaz.eof(); dotaz.next())
        cisla.insert(dotaz.integer(0));
    return cisla;
}

/// The number that a text of digits alone is; nothing for any other expression.
std::optional<std::int64_t> cislice(std::string_view text) {
    constexpr std::size_t k_nejvyse_cislic = 18;
    const std::string orezany = base::orez(text);
    if (orezany.empty() || orezany.size() > k_nejvyse_cislic ||
        base::jen_cislice(orezany) != orezany) {
        return std::nullopt;
    }
    return std::stoll(orezany);
}

/// Position behind the character that begins there.
std::size_t za_znakem(std::string_view text, std::size_t kde) {
    constexpr unsigned k_maska = 0xC0, k_pokracovani = 0x80;
    do
        ++kde;
    while (kde < text.size() && (static_cast<unsigned char>(text[kde]) & k_maska) == k_pokracovani);
    return kde;
}

/// As LIKE: "%" stands for any characters, "_" for one. An empty field is like nothing.
bool odpovida_vzoru(std::string_view text, std::string_view vzor) {
    constexpr std::size_t k_zadne = std::string_view::npos;
    std::size_t t = 0, v = 0, za_procentem = k_zadne, navrat = 0;
    while (t < text.size()) {
        const char znak = v < vzor.size() ? vzor[v] : '\0';
        if (znak == '%') {
            za_procentem = ++v;
            navrat = t;
        } else if (znak == '_') {
            t = za_znakem(text, t);
            ++v;
        } else if (znak == text[t]) {
            ++t;
            ++v;
        } else if (za_procentem != k_zadne) {
            v = za_procentem;
            t = navrat = za_znakem(text, navrat);
        } else {
            return false;
        }
    }
    return !text.empty() && vzor.find_first_not_of('%', v) == k_zadne;
}

/// As TRIM: blanks alone count as nothing.
bool vyplnene(std::string_view text) {
    return text.find_first_not_of(' ') != std::string_view::npos;
}

}  // namespace

/// The row of k_dotaz that the query stands on.
RegistrVPameti::Osoba RegistrVPameti::osoba(const store::Query& dotaz) {
    const auto cislo = [&dotaz](int sloupec) {
        return dotaz.is_empty(sloupec) ? Cislo() : dotaz.integer(sloupec);
    };
    Osoba o;
    int sloupec = 0;
    o.radek.Pocitadlo = dotaz.integer(sloupec++);
    o.cislo = cislo(sloupec++);
    o.radek.Cislo = o.cislo.value_or(0);
    for (std::string* text :
         {&o.radek.Prijmeni, &o.radek.Jmeno, &o.radek.Titul, &o.radek.Rodne_cislo,
          &o.radek.Dat_nar_text, &o.radek.Stredisko, &o.radek.Zam_od, &o.radek.Zam_do}) {
        *text = dotaz.text_view(sloupec++);
    }
    o.radek.byvaly = vyplnene(o.radek.Zam_do);
    o.rocni_zuctovani = dotaz.boolean(sloupec++);
    o.id_rpd = cislo(sloupec++);
    for (Cislo& volit : o.volit)
        volit = cislo(sloupec++);
    o.prijmeni_velkymi = base::velkymi(o.radek.Prijmeni);
    o.jmeno_velkymi = base::velkymi(o.radek.Jmeno);
    return o;
}

void RegistrVPameti::nacti(shell::Session& session) {
    osoby_.clear();
    podle_pocitadla_.clear();
    poradi_ = {};
    // A failing store leaves the list empty, never a part of it.
    std::vector<Osoba> nove;
    store::Query dotaz(session.data(), k_dotaz);
    for (dotaz.open(); !dotaz.eof(); dotaz.next())
        nove.push_back(osoba(dotaz));
    osoby_ = std::move(nove);
    for (std::size_t i = 0; i < osoby_.size(); ++i)
        podle_pocitadla_.emplace(osoby_[i].radek.Pocitadlo, i);
    nacti_vazby(session);
}

void RegistrVPameti::nacti_vazby(shell::Session& session) {
    const CislaPracovniku s_detmi = maji_vetu(session.data(), "Deti");
    const CislaPracovniku s_epodanim = maji_vetu(session.data(), "epodani");
    for (Osoba& o : osoby_) {
        o.ma_deti = o.cislo && s_detmi.contains(*o.cislo);
        o.ma_epodani = o.cislo && s_epodanim.contains(*o.cislo);
    }
}

/// Nothing when the query has to decide.
std::optional<RegistrVPameti::PrectenyFiltr> RegistrVPameti::precti(const FiltrRegistru& filtr) {
    PrectenyFiltr precteny{filtr, {}, {}, {}};
    if (base::neprazdny(filtr.cislo)) {
        precteny.cislo = cislice(filtr.cislo);
        if (!precteny.cislo) return std::nullopt;
    }
    for (std::size_t i = 0; i < filtr.volitelne.size(); ++i) {
        const VolitelneHledisko& v = filtr.volitelne[i];
        if (v.hledisko == 0 || !base::neprazdny(v.hodnota)) continue;
        precteny.volitelne[i] = cislice(v.hodnota);
        if (!precteny.volitelne[i]) return std::nullopt;
    }
    if (base::neprazdny(filtr.jmeno)) precteny.vzor_jmena = vzor_jmena(filtr);
    return precteny;
}

bool RegistrVPameti::vyhovuje(const Osoba& osoba, const PrectenyFiltr& p) {
    const FiltrRegistru& f = p.filtr;
    if (f.maji_deti && !osoba.ma_deti) return false;
    if (f.maji_epodani && !osoba.ma_epodani) return false;
    if (f.rocni_zuctovani && !osoba.rocni_zuctovani) return false;
    if (f.aktivni && osoba.radek.byvaly) return false;
    if (f.nema_kalendar && osoba.id_rpd != 0) return false;
    if (p.cislo && osoba.cislo != p.cislo) return false;
    for (std::size_t i = 0; i < p.volitelne.size(); ++i) {
        if (!p.volitelne[i]) continue;
        const auto hledisko = static_cast<std::size_t>(f.volitelne[i].hledisko) - 1;
        if (osoba.volit.at(hledisko) != p.volitelne[i]) return false;
    }
    return p.vzor_jmena.empty() || odpovida_vzoru(osoba.prijmeni_velkymi, p.vzor_jmena) ||
           odpovida_vzoru(osoba.jmeno_velkymi, p.vzor_jmena);
}

const std::vector<std::size_t>& RegistrVPameti::poradi(shell::Session& session,
                                                       PoradiRegistru ktere) {
    std::vector<std::size_t>& vysledek = poradi_.at(static_cast<std::size_t>(ktere));
    if (vysledek.empty()) {
        FiltrRegistru vsichni;
        vsichni.poradi = ktere;
        vysledek = radky_dotazu(session, vsichni);
    }
    return vysledek;
}

/// Positions in `osoby_` of the rows that the query gives. A card that came since the list was read
/// is left out.
std::vector<std::size_t> RegistrVPameti::radky_dotazu(const shell::Session& session,
                                                      const FiltrRegistru& filtr) const {
    std::vector<std::size_t> vysledek;
    for (const store::Row& veta : pracovnici_registru(session, filtr, "Pocitadlo").rows) {
        const auto kde = podle_pocitadla_.find(veta[0].as_integer());
        if (kde != podle_pocitadla_.end()) vysledek.push_back(kde->second);
    }
    return vysledek;
}

std::vector<const RadekRegistru*> RegistrVPameti::vyber(shell::Session& session,
                                                        const FiltrRegistru& filtr) {
    std::vector<const RadekRegistru*> vysledek;
    const std::optional<PrectenyFiltr> precteny = precti(filtr);
    if (!precteny) {
        for (const std::size_t i : radky_dotazu(session, filtr))
            vysledek.push_back(&osoby_[i].radek);
        return vysledek;
    }
    for (const std::size_t i : poradi(session, filtr.poradi)) {
        if (vyhovuje(osoby_[i], *precteny)) vysledek.push_back(&osoby_[i].radek);
    }
    return vysledek;
}

}  // namespace workers
