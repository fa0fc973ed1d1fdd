#include "paysheet/unit2_struktura.h"

#include <fmt/format.h>
#include <functional>
#include <set>
#include <system_error>
#include <utility>

#include "base/text.h"
#include "store/catalogue.h"
#include "store/query.h"
#include "store/table.h"

namespace paysheet {

namespace {

using Bajt = std::uint8_t shell::RidiciZorv::*;

/// A module's bounds in the control record and the captions of its first columns. A module of one
/// column has the same member for both bounds.
struct Modul {
    int cislo;
    Bajt od, do_;
    bool povinny;
    const char* text;  ///< of a range the beginning, the column number follows

    bool je_rozsah() const { return od != do_; }
    int prvni(const shell::RidiciZorv& r) const { return r.*od; }
    int posledni(const shell::RidiciZorv& r) const { return r.*do_; }
    bool chybi(const shell::RidiciZorv& r) const { return prvni(r) == 0 && posledni(r) == 0; }
};

using R = shell::RidiciZorv;
constexpr std::array<Modul, 14> k_moduly{{
    {1, &R::modul1_od, &R::modul1_do, true, "hrubé mzdy - sloupec "},
    {2, &R::modul2, &R::modul2, true, "hrubé mzdy celkem"},
    {3, &R::modul3_od, &R::modul3_do, false, "naturální mzda - sloupec "},
    {4, &R::modul4, &R::modul4, false, "sociální dávky"},
    {5, &R::modul5_od, &R::modul5_do, false, "dávky sloupec - "},
    {6, &R::modul6, &R::modul6, true, "příjem celkem"},
    {7, &R::modul7, &R::modul7, true, "sociální pojištění"},
    {8, &R::modul8, &R::modul8, true, "zdravotní pojištění"},
    {9, &R::modul9, &R::modul9, true, "daň z příjmu"},
    {10, &R::modul10_od, &R::modul10_do, false, "ostatní srážky - sloupec "},
    {11, &R::modul11, &R::modul11, false, "příspěvek OS"},
    {12, &R::modul12, &R::modul12, true, "srážky celkem"},
    {13, &R::modul13, &R::modul13, false, "záloha"},
    {14, &R::modul14, &R::modul14, true, "k výplatě"},
}};

/// A field as typed; its key filter lets at most two digits in.
std::uint8_t cislo_pole(const std::string& text) {
    const int cislo = base::je_cele_cislo(text);
    return cislo < 0 || cislo > 99 ? std::uint8_t{0} : static_cast<std::uint8_t>(cislo);
}

void Zapis_vetu(store::Table& ridici, int modul, int sloupec, const std::string& text) {
    ridici.append();
    ridici.set("Modul", modul);
    ridici.set("Sloupec", sloupec);
    ridici.set("text", text);
    ridici.post();
}

/// Calls `s` with each column of each module present, in module order.
void projdi_sloupce(const shell::RidiciZorv& zaznam,
                    const std::function<void(const Modul& modul, int sloupec)>& s) {
    for (const Modul& m : k_moduly) {
        if (m.chybi(zaznam)) continue;
        for (int sloupec = m.prvni(zaznam); sloupec <= m.posledni(zaznam); ++sloupec)
            s(m, sloupec);
    }
}

void Nacti_hodnoty_databaze(store::Table& ridici, const shell::RidiciZorv& zaznam) {
    projdi_sloupce(zaznam, [&](const Modul& m, int sloupec) {
        const std::string cislo = m.je_rozsah() ? std::to_string(sloupec) : "";
        Zapis_vetu(ridici, m.cislo, sloupec, m.text + cislo);
    });
}

/// A column and the module that it belongs to.
using SloupecModulu = std::pair<std::int64_t, std::int64_t>;

/// "5 (modul 1), 6 (modul 2)": the columns of `jedny` that the others do not have.
std::string jen_v_prvnich(const std::set<SloupecModulu>& jedny,
                          const std::set<SloupecModulu>& druhe) {
    std::string vypis;
    for (const auto& sloupec : jedny) {
        if (druhe.contains(sloupec)) continue;
        vypis += fmt::format("{}{} (modul {})", vypis.empty() ? "" : ", ", sloupec.first,
                             sloupec.second);
    }
    return vypis;
}

void zaloz_ridici_databazi(store::Connection& data, const shell::RidiciZorv& zaznam) {
    data.create_table(store::definition_of("Ridici"));
    store::Table ridici;
    ridici.set_connection(data);
    ridici.set_table_name("Ridici");
    ridici.open();
    Nacti_hodnoty_databaze(ridici, zaznam);
}

/// The table and the file stand both or neither.
void zaloz_strukturu(shell::Session& session) {
    store::Transaction transakce(session.data());
    zaloz_ridici_databazi(session.data(), session.ridici_zorv);
    shell::zapis_zaznam(session.soubor_ridici_zorv(), shell::bajty(session.ridici_zorv));
    try {
        transakce.commit();
    } catch (...) {
        std::error_code nevadi;
        std::filesystem::remove(session.soubor_ridici_zorv(), nevadi);
        throw;
    }
}

}  // namespace

TForm2::TForm2(shell::Session& session) : session_(session) {}

void TForm2::dosad_hodnoty_do_parametru() {
    std::size_t i = 0;
    for (const Modul& m : k_moduly) {
        session_.ridici_zorv.*m.od = cislo_pole(pole[i++]);
        if (m.je_rozsah()) session_.ridici_zorv.*m.do_ = cislo_pole(pole[i++]);
    }
}

void TForm2::proved_uplnou_kontrolu() {
    const shell::RidiciZorv& zaznam = session_.ridici_zorv;
    scChyby.clear();
    for (const Modul& m : k_moduly) {
        if (m.povinny && m.chybi(zaznam)) {
            scChyby.push_back(fmt::format("Modul {} musí být zadaný povinně.", m.cislo));
        }
    }
    for (const Modul& m : k_moduly) {
        if (m.je_rozsah() && Interval_chybny(m.prvni(zaznam), m.posledni(zaznam))) {
            scChyby.push_back(fmt::format("Modul {} má chybný interval.", m.cislo));
        }
    }
    proved_kontrolu_navaznosti();
}

void TForm2::proved_kontrolu_navaznosti() {
    const shell::RidiciZorv& zaznam = session_.ridici_zorv;
    int posledni = zaznam.modul1_do;
    for (const Modul& m : k_moduly) {
        if (m.cislo == 1 || (!m.povinny && m.chybi(zaznam))) continue;
        kontrola(m.cislo, m.prvni(zaznam), posledni);
        posledni = m.posledni(zaznam);
    }
}

void TForm2::kontrola(int modul, int prvni, int posledni_predchozi) {
    if (prvni - posledni_predchozi != 1) {
        scChyby.push_back(fmt::format("Nenavazuje modul {}.", modul));
    }
}

bool TForm2::Interval_chybny(int od, int do_) {
    return (od == 0) != (do_ == 0) || do_ < od;
}

void TForm2::opusteni_pole() {
    dosad_hodnoty_do_parametru();
    proved_uplnou_kontrolu();
    oznam_zmenu();
}

void TForm2::btOKClick() {
    opusteni_pole();
    if (!scChyby.empty()) return;
    zaloz_strukturu(session_);
    ulozeno = true;
    session_.obsluha().hlaska("Parametry pro projekt mezd podle Vašich požadavků byly založeny.");
    zavreno = true;
    oznam_zmenu();
}

void TForm2::btZpetClick() {
    zavreno = true;
    oznam_zmenu();
}

std::string nesoulad_sloupcu(store::Connection& data, const shell::RidiciZorv& zaznam) {
    std::set<SloupecModulu> v_zaznamu, v_tabulce;
    projdi_sloupce(zaznam,
                   [&](const Modul& m, int sloupec) { v_zaznamu.emplace(sloupec, m.cislo); });
    store::Query ridici(data, "SELECT Sloupec, Modul FROM Ridici");
    for (ridici.open(); !ridici.eof(); ridici.next())
        v_tabulce.emplace(ridici.integer(0), ridici.integer(1));
    const std::string chybi = jen_v_prvnich(v_zaznamu, v_tabulce);
    const std::string navic = jen_v_prvnich(v_tabulce, v_zaznamu);
    if (chybi.empty() && navic.empty()) return "";
    return "Řídicí záznam a tabulka Ridici mají jiné sloupce." +
           (chybi.empty() ? "" : " V tabulce chybí: " + chybi + ".") +
           (navic.empty() ? "" : " V tabulce navíc: " + navic + ".");
}

void Vypln_formular_2(TForm2& form) {
    for (std::size_t i = 0; i < form.pole.size(); ++i)
        form.pole[i] = std::to_string(i + 1);
}

}  // namespace paysheet
