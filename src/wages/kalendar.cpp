#include "wages/kalendar.h"

#include <algorithm>
#include <fmt/format.h>
#include <numeric>
#include <span>
#include <vector>

#include "base/text.h"
#include "store/query.h"
#include "store/table.h"

namespace wages {
namespace {

constexpr int k_minut_za_den = 24 * 60;
constexpr int k_minut_za_hodinu = 60;
constexpr std::size_t k_bunek = std::tuple_size_v<MesicKalendare>;
/// Daily working times of the basic calendars.
constexpr std::array k_zakladni_fondy{"8:00", "7:30"};

std::string pole_fondu(int mesic) {
    return fmt::format("Fond{}", mesic);
}

std::string bunka(int minut) {
    return fmt::format("{}:{:02}", minut / k_minut_za_hodinu, minut % k_minut_za_hodinu);
}

/// True for "h:mm" or "hh:mm" up to 24:00. What is no time reads as 0, so the cell is written back
/// and compared.
bool je_bunka(const std::string& text) {
    const int minut = base::cas_na_minuty(text);
    const std::string zpet = bunka(minut);
    return minut <= k_minut_za_den && (text == zpet || text == "0" + zpet);
}

void pridej_kalendar(store::Table& rpd, int rok, const std::string& fond,
                     const base::DatumCas& ted) {
    const RokKalendare kalendar = zakladni_kalendar(rok, base::cas_na_minuty(fond));
    rpd.append();
    rpd.set("Vytvoreno", ted);
    rpd.set("Zmeneno", ted);
    rpd.set("Rok", rok);
    rpd.set("Typ", 0);
    rpd.set("Nazev", "Základní " + fond + " hodin");
    for (std::size_t m = 0; m < kalendar.size(); ++m)
        rpd.set(pole_fondu(static_cast<int>(m) + 1), mesic_na_text(kalendar[m]));
    rpd.post();
}

/// Minutes of the days between the two dates.
std::span<const int> dny_fondu(const RokKalendare& kalendar, int rok, int mesic,
                               const base::Datum& od, const base::Datum& do_) {
    if (mesic < 1 || mesic > 12) return {};
    const auto [prvni, posledni] = dny_v_mesici_mezi(rok, mesic, od, do_);
    if (prvni > posledni) return {};
    return std::span(kalendar[static_cast<std::size_t>(mesic - 1)])
        .subspan(static_cast<std::size_t>(prvni - 1),
                 static_cast<std::size_t>(posledni - prvni + 1));
}

}  // namespace

MesicKalendare mesic_z_textu(std::string_view text) {
    MesicKalendare mesic{};
    const std::vector<std::string> bunky = base::rozdel_text(text, ';');
    std::transform(bunky.begin(),
                   bunky.begin() + static_cast<std::ptrdiff_t>(std::min(bunky.size(), k_bunek)),
                   mesic.begin(), base::cas_na_minuty);
    return mesic;
}

std::string mesic_na_text(const MesicKalendare& mesic) {
    std::string text;
    for (const int minut : mesic)
        text += (text.empty() ? "" : ";") + bunka(minut);
    return text;
}

std::string kontrola_textu_mesice(std::string_view text) {
    const std::vector<std::string> bunky = base::rozdel_text(text, ';');
    if (bunky.size() != k_bunek)
        return fmt::format("Fond měsíce má {} dnů, očekává se {} časů oddělených středníkem.",
                           bunky.size(), k_bunek);
    for (std::size_t i = 0; i < bunky.size(); ++i)
        if (!je_bunka(bunky[i]))
            return fmt::format("Fond dne {} je \"{}\", očekává se čas h:mm od 0:00 do 24:00.",
                               i + 1, bunky[i]);
    return "";
}

std::optional<RokKalendare> nacti_kalendar(shell::Session& session, int id_rpd, int rok) {
    store::Query dotaz(session.data(),
                       "SELECT * FROM Rpd WHERE Pocitadlo = :pocitadlo AND Rok = :rok");
    dotaz.set("pocitadlo", id_rpd).set("rok", rok).open();
    if (dotaz.eof()) return std::nullopt;
    RokKalendare kalendar;
    for (std::size_t m = 0; m < kalendar.size(); ++m)
        kalendar[m] = mesic_z_textu(dotaz.text(pole_fondu(static_cast<int>(m) + 1)));
    return kalendar;
}

RokKalendare zakladni_kalendar(int rok, int minut_denne) {
    RokKalendare kalendar{};
    for (int mesic = 1; mesic <= 12; ++mesic) {
        auto& dny = kalendar[static_cast<std::size_t>(mesic - 1)];
        for (int den = 1; den <= base::dni_v_mesici(mesic, rok); ++den) {
            const base::Datum datum{rok, mesic, den};
            if (base::den_v_tydnu(datum) <= 5 && !base::je_svatek(datum))
                dny[static_cast<std::size_t>(den - 1)] = minut_denne;
        }
    }
    return kalendar;
}

void acPridatZakladniExecute(shell::Session& session) {
    store::Transaction transakce(session.data());
    store::Table rpd;
    rpd.set_connection(session.data());
    rpd.set_table_name("Rpd");
    rpd.open();
    const base::DatumCas ted = session.hodiny().nyni();
    for (const char* fond : k_zakladni_fondy)
        pridej_kalendar(rpd, session.rok, fond, ted);
    transakce.commit();
}

RozsahDnu dny_v_mesici_mezi(int rok, int mesic, const base::Datum& od, const base::Datum& do_) {
    const auto v_mesici = [&](const base::Datum& d) { return d.rok == rok && d.mesic == mesic; };
    const int dnu = base::dni_v_mesici(mesic, rok);
    // A day that no month has (31 February read from a card) must not lead past the month.
    return {v_mesici(od) ? std::max(od.den, 1) : 1, v_mesici(do_) ? std::min(do_.den, dnu) : dnu};
}

base::Castka fond_hodin_rpd(const RokKalendare& kalendar, int rok, int mesic, const base::Datum& od,
                            const base::Datum& do_) {
    const auto dny = dny_fondu(kalendar, rok, mesic, od, do_);
    return static_cast<base::Castka>(std::accumulate(dny.begin(), dny.end(), 0)) /
           k_minut_za_hodinu;
}

int fond_dni_rpd(const RokKalendare& kalendar, int rok, int mesic, const base::Datum& od,
                 const base::Datum& do_) {
    const auto dny = dny_fondu(kalendar, rok, mesic, od, do_);
    return static_cast<int>(std::count_if(dny.begin(), dny.end(), [](int m) { return m > 0; }));
}

}  // namespace wages
