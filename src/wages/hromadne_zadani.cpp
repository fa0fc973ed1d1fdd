#include "wages/hromadne_zadani.h"

#include <array>
#include <cassert>
#include <fmt/format.h>
#include <map>
#include <optional>
#include <unordered_map>

#include "base/castky_text.h"
#include "base/chyba.h"
#include "base/text.h"
#include "store/catalogue.h"
#include "store/csv.h"
#include "workers/vykony.h"

namespace wages {
namespace {

constexpr int k_modul_karanteny = 4;
constexpr int k_externi_vstup = 8;
constexpr const char* k_karantena = "Karanténa příspěvek";

enum Pole {
    cislo,
    sloupec,
    dny,
    hodiny,
    datum,
    stredisko,
    vykon,
    stroj,
    h1,
    h2,
    h3,
    h4,
    text,
    pocet
};
constexpr std::array<const char*, pocet> k_pole{
    "Cislo_pracovnika", "Sloupec",   "Dny",   "Hodiny",    "Datum",
    "Stredisko",        "Vykon",     "Stroj", "Hodnota_1", "Hodnota_2",
    "Hodnota_3",        "Hodnota_4", "Text"};

/// True for a number with at most one separator; what is no number would read as 0.
bool je_cislo(const std::string& hodnota) {
    std::size_t cislic = 0, oddelovacu = 0;
    for (std::size_t i = 0; i < hodnota.size(); ++i) {
        const char z = hodnota[i];
        if (z >= '0' && z <= '9') {
            ++cislic;
        } else if (z == ',' || z == '.') {
            ++oddelovacu;
        } else if (z != '-' || i != 0) {
            return false;
        }
    }
    return cislic > 0 && oddelovacu <= 1;
}

/// Everything that rows are checked against, read once.
struct Prostredi {
    std::unordered_map<int, KartaZadani> karty;
    std::map<int, SloupecHrube> sloupce;
    CiselnikyPolozky ciselniky;
    std::unordered_map<int, Castka> koruny;  ///< sums of the month by worker
    std::unordered_map<std::int64_t, std::pair<Castka, std::string>> externi;
    int mesic = 0, rok = 0;
};

Prostredi nacti_prostredi(shell::Session& session, int mesic) {
    Prostredi p;
    p.mesic = mesic;
    p.rok = session.rok;
    p.karty = nacti_karty_zadani(session, mesic);
    p.ciselniky = {workers::Nacti_vykony(session), Nacti_stroje(session)};
    store::Query sloupce(session.data(),
                         "SELECT * FROM Ridici WHERE Modul IN (1, 3, 4) ORDER BY Pocitadlo");
    for (sloupce.open(); !sloupce.eof(); sloupce.next()) {
        SloupecHrube s = sloupec_hrube(sloupce);
        p.sloupce.emplace(s.sloupec, std::move(s));
    }
    const std::string hrube = store::month_table("Hrube", mesic);
    if (session.data().table_exists(hrube)) {
        store::Query soucty(session.data(), "SELECT Cislo_pracovnika, SUM(Kc_cel) AS Soucet FROM " +
                                                hrube + " GROUP BY Cislo_pracovnika");
        for (soucty.open(); !soucty.eof(); soucty.next())
            p.koruny[static_cast<int>(soucty.integer(0))] = static_cast<Castka>(soucty.number(1));
    }
    if (session.data().table_exists("Vstup_ex")) {
        store::Query prace(session.data(),
                           "SELECT Cislo_prace, Sazba, Text FROM Vstup_ex ORDER BY Pocitadlo");
        for (prace.open(); !prace.eof(); prace.next())
            p.externi.emplace(prace.integer(0),
                              std::pair{static_cast<Castka>(prace.number(1)), prace.text(2)});
    }
    return p;
}

/// One row on its way from texts to an item.
class Radek {
  public:
    Radek(const Prostredi& prostredi, const std::array<std::string, pocet>& bunky,
          std::size_t radek)
        : p_(prostredi), bunky_(bunky) {
        vysledek_.radek = radek;
    }

    RadekDavky zpracuj() {
        if (najdi_pracovnika() && najdi_sloupec() && cisla_jsou_cisla()) {
            if (s_->modul == k_modul_karanteny) {
                karantena();
            } else {
                bezna_polozka();
            }
        }
        return std::move(vysledek_);
    }

  private:
    void chyba(const std::string& veta) {
        vysledek_.chyby += (vysledek_.chyby.empty() ? "" : " ") + veta;
    }
    void chyba(Pole pole, const std::string& veta) {
        chyba(fmt::format("pole {}: {}", k_pole[pole], veta));
    }

    bool najdi_pracovnika() {
        const auto cele = base::cele_cislo_z_textu(bunky_[cislo]);
        const auto karta = cele ? p_.karty.find(*cele) : p_.karty.end();
        if (karta == p_.karty.end()) {
            chyba(cislo, "pracovník \"" + bunky_[cislo] + "\" není v souboru.");
            return false;
        }
        k_ = &karta->second;
        vysledek_.cislo = *cele;
        vysledek_.jmeno = k_->prijmeni + " " + k_->jmeno;
        return true;
    }

    bool najdi_sloupec() {
        const auto cele = base::cele_cislo_z_textu(bunky_[sloupec]);
        const auto nalezeny = cele ? p_.sloupce.find(*cele) : p_.sloupce.end();
        if (nalezeny == p_.sloupce.end()) {
            chyba(sloupec, "\"" + bunky_[sloupec] +
                               "\" není sloupec hrubých mezd, naturální mzdy ani karantény.");
            return false;
        }
        s_ = &nalezeny->second;
        vysledek_.sloupec = *cele;
        vysledek_.sloupec_slovy = s_->text;
        return true;
    }

    bool cisla_jsou_cisla() {
        for (const Pole pole : {dny, hodiny, stredisko, vykon, stroj, h1, h2, h3, h4}) {
            if (!bunky_[pole].empty() && !je_cislo(bunky_[pole]))
                chyba(pole, "\"" + bunky_[pole] + "\" není číslo.");
        }
        return vysledek_.chyby.empty();
    }

    void karantena() {
        for (const Pole pole : {dny, hodiny, datum, stredisko, vykon, stroj, h2, h3, h4, text})
            nesmi_byt(pole, true);
        const int kc = base::cele_cislo_z_textu(bunky_[h1]).value_or(0);
        if (kc == 0) chyba(h1, "čekám celé koruny příspěvku, ne 0.");
        VetaHrube& v = vysledek_.veta;
        v.modul = s_->modul;
        v.sloupec = s_->sloupec;
        v.sloupec_slovy = k_karantena;
        v.dny_neod = v.hod_neod = 0;
        v.kc_cel = vysledek_.celkem = static_cast<Castka>(kc);
    }

    void bezna_polozka() {
        ZadaniPolozky& z = vysledek_.zadani;
        z = {bunky_[dny],
             bunky_[hodiny],
             bunky_[datum],
             bunky_[stredisko],
             bunky_[vykon],
             bunky_[stroj],
             {bunky_[h1], bunky_[h2], bunky_[h3], bunky_[h4]},
             bunky_[text]};
        nesmi_byt(dny, s_->jake_dny == 0);
        nesmi_byt(hodiny, s_->jake_hodiny == 0);
        nesmi_byt(datum, !s_->datum);
        nesmi_byt(stredisko, !s_->stredisko);
        nesmi_byt(vykon, !s_->vykon);
        nesmi_byt(stroj, !s_->stroj);
        if (base::pocet_znaku(z.text) > k_znaku_textu)
            chyba(text, fmt::format("nejvýše {} znaků.", k_znaku_textu));
        predsad();
        for (const std::string& veta :
             Udelej_kontrolu_bezneho_tiskopisu(*s_, z, p_.ciselniky, p_.rok))
            chyba(veta);
        if (!vysledek_.chyby.empty()) return;
        vysledek_.celkem = proved_vypocet_na_beznem_tiskopisu(*s_, z);
        vysledek_.veta = veta_bezneho_tiskopisu(*s_, z, vysledek_.celkem);
    }

    void nesmi_byt(Pole pole, bool nezadava_se) {
        if (nezadava_se && !bunky_[pole].empty())
            chyba(pole, "sloupec je nezadává, má být prázdné.");
    }

    void predsad() {
        ZadaniPolozky& z = vysledek_.zadani;
        if (!z.dny.empty() && z.hodiny.empty() && s_->jake_hodiny != 0)
            z.hodiny = hodiny_ze_dnu(z.dny, *k_);
        z.datum = uprav_datum(z.datum, p_.mesic);
        if (s_->stredisko && z.stredisko.empty()) z.stredisko = k_->stredisko;
        if (s_->vykon && z.vykon.empty()) z.vykon = k_->vykon;
        for (std::size_t i = 0; i < k_hodnot; ++i)
            predsad_hodnotu(i);
    }

    void predsad_hodnotu(std::size_t i) {
        ZadaniPolozky& z = vysledek_.zadani;
        const auto pole = static_cast<Pole>(h1 + i);
        const HodnotaSloupce& hodnota = s_->hodnoty[i];
        nesmi_byt(pole, !hodnota.zadava_se());
        if (hodnota.zadava_se() && z.hodnoty[i].empty()) {
            const auto koruny = p_.koruny.find(vysledek_.cislo);
            z.hodnoty[i] =
                Co_predsadit(hodnota, *s_, z, *k_, koruny == p_.koruny.end() ? 0 : koruny->second,
                             p_.mesic, p_.rok);
        } else if (hodnota.zadava_se() && hodnota.predrazeno == k_externi_vstup) {
            const auto prace = p_.externi.find(base::je_cele_cislo(z.hodnoty[i]));
            if (prace == p_.externi.end()) {
                chyba(pole, "práce \"" + z.hodnoty[i] + "\" není v externím vstupu.");
                return;
            }
            z.text = base::nejvyse(prace->second.second + ": " + z.hodnoty[i], k_znaku_textu);
            z.hodnoty[i] = base::castka_prosta(prace->second.first);
        }
    }

    const Prostredi& p_;
    const std::array<std::string, pocet>& bunky_;
    const KartaZadani* k_ = nullptr;
    const SloupecHrube* s_ = nullptr;
    RadekDavky vysledek_;
};

/// Places of the known fields in a row of the file. Throws base::ChybaDat for a heading that has an
/// unknown or repeated field, or lacks one of the first two.
std::array<std::optional<std::size_t>, pocet> precti_zahlavi(const store::CsvRow& zahlavi,
                                                             std::string_view soubor) {
    std::array<std::optional<std::size_t>, pocet> mista;
    for (std::size_t i = 0; i < zahlavi.fields.size(); ++i) {
        std::size_t pole = 0;
        while (pole < pocet && !base::stejne_bez_velikosti(zahlavi.fields[i], k_pole[pole]))
            ++pole;
        if (pole == pocet || mista[pole]) {
            throw base::ChybaDat(fmt::format("{}, řádek {}: pole \"{}\" {}.", soubor, zahlavi.line,
                                             zahlavi.fields[i],
                                             pole == pocet ? "neznám" : "je tu dvakrát"));
        }
        mista[pole] = i;
    }
    for (const Pole povinne : {cislo, sloupec}) {
        if (!mista[povinne]) {
            throw base::ChybaDat(fmt::format("{}, řádek {}: chybí pole \"{}\".", soubor,
                                             zahlavi.line, k_pole[povinne]));
        }
    }
    return mista;
}

}  // namespace

HromadneZadani precti_hromadne(shell::Session& session, int mesic, std::string_view csv,
                               std::string_view soubor) {
    HromadneZadani davka;
    try {
        const std::vector<store::CsvRow> vety = store::parse_csv(csv, soubor);
        if (vety.empty()) throw base::ChybaDat(fmt::format("{}: soubor je prázdný.", soubor));
        const auto mista = precti_zahlavi(vety.front(), soubor);
        const Prostredi prostredi = nacti_prostredi(session, mesic);
        for (std::size_t i = 1; i < vety.size(); ++i) {
            std::array<std::string, pocet> bunky;
            for (std::size_t pole = 0; pole < pocet; ++pole) {
                if (mista[pole] && *mista[pole] < vety[i].fields.size())
                    bunky[pole] = base::orez(vety[i].fields[*mista[pole]]);
            }
            RadekDavky radek = Radek(prostredi, bunky, vety[i].line).zpracuj();
            if (vety[i].fields.size() != vety.front().fields.size())
                radek.chyby = fmt::format("má {} polí, záhlaví {}.", vety[i].fields.size(),
                                          vety.front().fields.size());
            if (radek.chyby.empty()) {
                davka.celkem += radek.celkem;
            } else {
                davka.chyby.push_back(
                    fmt::format("{}, řádek {}: {}", soubor, radek.radek, radek.chyby));
            }
            davka.radky.push_back(std::move(radek));
        }
    } catch (const store::StoreError&) {
        throw;
    } catch (const base::ChybaDat& chyba) {
        davka.chyby.emplace_back(chyba.what());
    }
    return davka;
}

void zapis_hromadne(shell::Session& session, int mesic, const HromadneZadani& davka) {
    assert(davka.chyby.empty());
    const auto karty = nacti_karty_zadani(session, mesic);
    ZapisovacHrubych zapisovac(session, mesic);
    for (const RadekDavky& radek : davka.radky)
        zapisovac.zapis(karty.at(radek.cislo), radek.veta);
}

}  // namespace wages
