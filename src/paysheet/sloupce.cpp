#include "paysheet/sloupce.h"

#include <array>

#include "base/text.h"
#include "store/table.h"

namespace paysheet {

std::string modul_slovy(int modul) {
    static constexpr std::array<const char*, 14> k_nazvy{"hrubé mzdy",
                                                         "hrubé mzdy celkem",
                                                         "naturální mzda",
                                                         "sociální dávky",
                                                         "jiné dávky a náhrady",
                                                         "příjem celkem",
                                                         "sociální pojištění",
                                                         "zdravotní pojištění",
                                                         "daň",
                                                         "srážky",
                                                         "příspěvek OS",
                                                         "srážky celkem",
                                                         "záloha",
                                                         "k výplatě"};
    if (modul < 1 || modul > static_cast<int>(k_nazvy.size())) return "neznámý modul";
    return k_nazvy[static_cast<std::size_t>(modul - 1)];
}

void Nacti_sloupce_slovy(shell::Session& session) {
    session.sloupce_slovy.clear();
    // A company whose tables are just being made has no columns yet.
    if (!session.data().table_exists("Ridici")) return;
    store::Table ridici;
    ridici.set_connection(session.data());
    ridici.set_table_name("Ridici");
    ridici.set_index_name("By_tr1");
    for (ridici.open(); !ridici.eof(); ridici.next()) {
        session.sloupce_slovy.push_back(base::cislo_s_nulami(ridici.integer("Sloupec"), 2) +
                                        ridici.text("text"));
    }
}

std::string sloupec_slovy(const shell::Session& session, int sloupec) {
    const std::string hledane = base::cislo_s_nulami(sloupec, 2);
    for (const std::string& radek : session.sloupce_slovy) {
        if (radek.compare(0, 2, hledane) == 0) return radek.substr(2);
    }
    return "neznámý sloupec";
}

}  // namespace paysheet
