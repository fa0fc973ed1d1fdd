// TForm1: the common guard of the actions, and which action is carried out by what.
#include <algorithm>
#include <fmt/format.h>
#include <stdexcept>

#include "annual/stav_projektu.h"
#include "base/text.h"
#include "menu/akce_evidence.h"
#include "menu/nepostavene_akce.h"
#include "menu/unit1_hlavni.h"
#include "menu/vstup_do_mesice.h"
#include "payrun/unit21_vypocet_vyplat.h"
#include "paysheet/listina.h"
#include "paysheet/unit14_nastaveni.h"
#include "paysheet/unit3_seznam_sloupcu.h"
#include "store/catalogue.h"

namespace menu {

namespace {

struct Provedeni {
    std::string_view nazev;
    bool (*proved)(TForm1&);  ///< false when the action did not run
};

/// Makes an action of a method that always runs.
template <void (TForm1::*metoda)()>
bool vzdy(TForm1& form) {
    (form.*metoda)();
    return true;
}

/// Makes an action of a routine that needs only the session, which takes the month box along.
template <bool (*akce)(shell::Session&)>
bool se_session(TForm1& form) {
    form.session().mesic_v_poli = form.mesic;
    return akce(form.session());
}

/// The same for a monthly action: refused, it puts the focus on the month box.
template <bool (*akce)(shell::Session&)>
bool mesicni(TForm1& form) {
    if (se_session<akce>(form)) return true;
    form.fokus_na_mesici = true;
    return false;
}

constexpr Provedeni k_provedeni[] = {
    {"acVypocetVyplat", [](TForm1& form) { return form.acVypocetVyplatExecute(); }},
    {"acHrubeZorvNahrady", mesicni<acHrubeZorvNahradyExecute>},
    {"acProhlizetZakladniSoubory", se_session<acProhlizetZakladniSouboryExecute>},
    {"acPracovniKalendar", se_session<acPracovniKalendarExecute>},
    {"acFixniPolozky", se_session<acFixniPolozkyExecute>},
    {"acPojistovnyFondy", se_session<acPojistovnyFondyExecute>},
    {"acExterniVstup", se_session<acExterniVstupExecute>},
    {"acStroje", se_session<acStrojeExecute>},
    {"acEvidenceDochazky", se_session<acEvidenceDochazkyExecute>},
    {"acPracovnici", se_session<acPracovniciExecute>},
    {"acUzaverky", vzdy<&TForm1::acUzaverkyExecute>},
    {"acNastaveniVL", vzdy<&TForm1::acNastaveniVLExecute>},
    {"acNastaveniParametru", vzdy<&TForm1::acNastaveniParametruExecute>},
    {"acEditaceSestav", vzdy<&TForm1::acEditaceSestavExecute>},
    {"acZmenitFirmu", vzdy<&TForm1::acZmenitFirmuExecute>},
    {"acRestart", vzdy<&TForm1::acRestartExecute>},
    {"acKonec", vzdy<&TForm1::acKonecExecute>},
};

bool je_postavena(std::string_view nazev) {
    return std::find(std::begin(k_nepostavene_akce), std::end(k_nepostavene_akce), nazev) ==
           std::end(k_nepostavene_akce);
}

const Provedeni& provedeni_akce(std::string_view nazev) {
    for (const Provedeni& provedeni : k_provedeni) {
        if (provedeni.nazev == nazev) return provedeni;
    }
    throw std::logic_error("akce bez provedení: " + std::string(nazev));
}

/// True for the life of one action.
class BeziAkce {
  public:
    explicit BeziAkce(bool& bezi) : bezi_(bezi) { bezi_ = true; }
    ~BeziAkce() { bezi_ = false; }
    BeziAkce(const BeziAkce&) = delete;
    BeziAkce& operator=(const BeziAkce&) = delete;

  private:
    bool& bezi_;
};

/// Makes the table of the processed month when it is missing.
void zaloz_mesicni_tabulku(shell::Session& session, const char* nazev) {
    const std::string tabulka = store::month_table(nazev, session.zpracovavany_mesic);
    store::Transaction transakce(session.data());
    if (!session.data().table_exists(tabulka)) {
        session.data().create_table(store::definition_of(tabulka));
    }
    transakce.commit();
}

}  // namespace

void TForm1::ActionList1Execute(const Akce& akce, bool& handled) {
    if (akce.tag != 1 || !session_.firma.empty()) return;
    session_.obsluha().hlaska(k_bez_vybrane_firmy);
    handled = true;
}

bool TForm1::proved_akci(std::string_view nazev) {
    const Akce* akce = najdi_akci(nazev);
    if (!akce) throw std::logic_error("neznámá akce: " + std::string(nazev));
    if (akce_bezi_) return false;
    const BeziAkce bezi(akce_bezi_);
    bool vyrizeno = false;
    ActionList1Execute(*akce, vyrizeno);
    if (vyrizeno) return false;
    if (je_postavena(nazev)) {
        const bool probehla = provedeni_akce(nazev).proved(*this);
        oznam_zmenu();
        return probehla;
    }
    session_.obsluha().hlaska(
        fmt::format("Obrazovka „{}“ zatím není součástí této verze.", akce->popisek));
    return false;
}

void TForm1::acUzaverkyExecute() {
    annual::TFStavProjektu stav(session_);
    stav.FormShow();
    session_.obsluha().ukaz_modalne(stav);
}

void TForm1::acNastaveniVLExecute() {
    paysheet::acNastaveniVLExecute(session_);
}

void TForm1::acNastaveniParametruExecute() {
    paysheet::acNastaveniParametruExecute(session_);
}

void TForm1::acEditaceSestavExecute() {
    editace_sestav = !editace_sestav;
    oznam_zmenu();
}

void TForm1::acRestartExecute() {
    const auto spoustec = session_.slozka_programu / "RestartZorv.exe";
    if (!std::filesystem::exists(spoustec)) {
        session_.obsluha().hlaska(k_spustte_znovu);
        return;
    }
    spustit_po_zavreni = spoustec.string();
    acKonecExecute();
}

void TForm1::acKonecExecute() {
    zavreno = true;
    oznam_zmenu();
}

bool TForm1::acVypocetVyplatExecute() {
    if (!vstup_do_vypoctu()) {
        fokus_na_mesici = true;
        oznam_zmenu();
        return false;
    }
    payrun::TForm21 vypocet(session_);
    vypocet.FormShow();
    session_.obsluha().ukaz_modalne(vypocet);
    return true;
}

/// The guards of the pay run; behind them the month's sheet stands empty.
bool TForm1::vstup_do_vypoctu() {
    VstupDoMesice vstup(session_, mesic);
    if (!shell::test_aktivniho_mesice_predani(session_)) return false;
    if (!session_.data().table_exists(store::month_table("Hrube", mesic))) {
        session_.obsluha().hlaska("Soubor \"HRUBE" + base::cislo_s_nulami(mesic, 2) +
                                  ".DB\" v adresáři \"" +
                                  base::velkymi(session_.cesta_dat.string()) +
                                  "nebyl nalezen.\r\n\r\nNelze zpracovat výplaty.");
        return false;
    }
    if (!zaloz_listinu_pro_vypocet()) return false;
    vstup.vpust();
    session_.mesic_v_poli = mesic;
    return true;
}

/// The re-run question and the empty sheet; false when the operator keeps the old one.
bool TForm1::zaloz_listinu_pro_vypocet() {
    const int m = session_.zpracovavany_mesic;
    if (!session_.data().table_exists(store::month_table("Listin", m))) {
        paysheet::zaloz_vyplatni_listinu(session_, 1);
        return true;
    }
    const std::string otazka = fmt::format(
        "V měsíci {} byly výplaty již zpracovány.\r\n"
        "Zrušit původní výplaty a provést nový výpočet?",
        m);
    if (!session_.obsluha().otazka_ano_ne(otazka, "Opakovaný výpočet výplat")) return false;
    paysheet::zaloz_vyplatni_listinu(session_, 2);
    return true;
}

void zaloz_hrube_zorv(shell::Session& session) {
    zaloz_mesicni_tabulku(session, "Hrube");
}

}  // namespace menu
