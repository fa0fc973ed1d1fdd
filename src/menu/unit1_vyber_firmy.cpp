// TForm1: start and end of the form, the choice of a company and of the data root, the background
// picture.
#include <fmt/format.h>

#include "base/text.h"
#include "menu/unit1_hlavni.h"

namespace menu {

namespace {

constexpr const char* k_titulek = "Velmar 282";
constexpr const char* k_otevrena_jinde =
    "Firma {} je právě otevřena i v jiném spuštěném programu Zorv.\r\n\r\n"
    "Pracovat můžete: dokud jeden program zapisuje, druhý počká.\r\n"
    "Tytéž údaje ale neopravujte v obou zároveň.";

/// "/data/" gives "/data"; the root of all folders stays.
std::string bez_koncoveho_oddelovace(std::string cesta) {
    if (cesta.size() > 1 && (cesta.back() == '/' || cesta.back() == '\\')) cesta.pop_back();
    return cesta;
}

/// The year by the last two characters of a company's name; 2000 without a company.
int rok_podle_firmy(const std::string& firma) {
    const std::size_t delka = base::pocet_znaku(firma);
    return base::je_cele_cislo("0" + base::znaky(firma, delka < 2 ? 1 : delka - 1, 2)) + 2000;
}

}  // namespace

std::string odmitnuti_startu(std::string_view prvni_argument) {
    if (prvni_argument == "menu") return "";
    return "Aplikace může být spuštěna pouze z hlavní nabídky Velmar.\r"
           "Klepněte na ploše na ikonu pejska s popisem Velmar.\r"
           "Ostatní ikony vztahující se k Velmaru můžete z plochy smazat.";
}

void TForm1::FormCreate() {
    shell::Session& s = session_;
    s.velmar = shell::cti_velmar_ini(shell::slozky_programu(s.slozka_programu));
    s.koren_dat = bez_koncoveho_oddelovace(s.velmar.root);
    s.firma = s.velmar.firma_mz;
    if (s.velmar.pamatovat_okna) {
        poloha_okna = base::nacti_okno(base::slozka_uzivatele(), base::k_program, jmeno());
    }
}

void TForm1::FormShow() {
    shell::Session& s = session_;
    base::log_akce(s.velmar.logovat, base::slozka_uzivatele(), s.hodiny(), base::k_program, jmeno(),
                   base::k_log_otevreni);
    titulek = k_titulek;
    fokus_na_mesici = true;
    if (!std::filesystem::is_directory(shell::slozka_firmy(s.koren_dat, s.firma))) s.firma.clear();
    s.rok = rok_podle_firmy(s.firma);
    if (s.firma.empty()) {
        ukaz_bez_firmy();
    } else {
        otevri_firmu();
    }
    s.obsluha().skryj_hlasku();
}

void TForm1::FormDestroy() {
    if (session_.velmar.pamatovat_okna && poloha_okna) {
        base::uloz_okno(base::slozka_uzivatele(), base::k_program, jmeno(), *poloha_okna);
    }
}

/// Opens the session's company; one that cannot be read leaves the form without a company.
void TForm1::otevri_firmu() {
    try {
        const bool pripravena = zaloz_soubory();
        if (pripravena && !otevrena_firma_.obsad(session_.cesta_dat)) {
            session_.obsluha().skryj_hlasku();
            session_.obsluha().hlaska(fmt::format(k_otevrena_jinde, session_.firma));
        }
    } catch (...) {
        otevrena_firma_.uvolni();
        session_.zavri_spojeni();
        session_.firma.clear();
        ukaz_bez_firmy();
        throw;
    }
}

void TForm1::acZmenitFirmuExecute() {
    shell::Session& s = session_;
    lbRoot = (s.koren_dat / "").string();
    seznam_firem.clear();
    seznam_viditelny = zmenit_viditelne = false;
    oznam_zmenu();
    seznam_firem = shell::seznam_firem(s.koren_dat, [&s] { s.obsluha().pust_udalosti(); });
    if (!s.firma.empty()) firma_pred_vyberem_ = s.firma;
    vybrana_firma = firma_pred_vyberem_;
    s.firma.clear();
    otevrena_firma_.uvolni();
    ukaz_seznam_firem(true);
}

void TForm1::ukaz_seznam_firem(bool ukaz) {
    seznam_viditelny = ukaz;
    zmenit_viditelne = !ukaz;
    oznam_zmenu();
}

void TForm1::opustVyberFirmy() {
    if (!seznam_viditelny) return;
    ukaz_seznam_firem(false);
    const auto slozka = shell::slozka_firmy(session_.koren_dat, firma_pred_vyberem_);
    if (firma_pred_vyberem_.empty() || !std::filesystem::is_directory(slozka)) {
        ukaz_bez_firmy();
        return;
    }
    session_.firma = firma_pred_vyberem_;
    otevri_firmu();
}

void TForm1::ComboBox1Change(const std::string& firma) {
    ukaz_seznam_firem(false);
    session_.firma = firma;
    zapamatuj("Firma", "mz", firma);
    session_.velmar.firma_mz = firma;
    otevri_firmu();
}

void TForm1::lbRootClick() {
    const auto slozka = session_.obsluha().vyber_slozku(
        "Změna kořenové složky dat, tzv. Rootu.\r\r"
        "Většinou C:\\ nebo C:\\VelmarData nebo D:\\ apod.",
        session_.koren_dat.string());
    if (!slozka) return;
    const std::string koren = bez_koncoveho_oddelovace(*slozka);
    session_.koren_dat = koren;
    session_.velmar.root = koren;
    zapamatuj("Data", "root", koren);
    acZmenitFirmuExecute();
}

void TForm1::Image1DblClick() {
    shell::Session& s = session_;
    if (s.firma.empty()) {
        s.obsluha().hlaska(k_bez_vybrane_firmy);
        return;
    }
    const auto obrazek = s.obsluha().vyber_soubor(
        "Vyberte pozadí pro firmu " + s.firma + " (optimální velikost 800x500).",
        sablona("").string(), "Obrázky pozadí|*.jpg");
    if (obrazek) shell::uloz_hodnotu_firmy(s, "pozadi", *obrazek);
    pozadi = shell::hodnota_firmy(s, "pozadi", sablona("pozadi0.jpg").string());
    oznam_zmenu();
}

/// A choice kept for the next start. That it cannot be kept is said, and the work goes on.
void TForm1::zapamatuj(const char* sekce, const char* klic, const std::string& hodnota) {
    try {
        shell::zapis_velmar_ini(shell::slozky_programu(session_.slozka_programu), sekce, klic,
                                hodnota);
    } catch (const base::ChybaDat& chyba) {
        session_.obsluha().hlaska(chyba.what());
    }
}

}  // namespace menu
