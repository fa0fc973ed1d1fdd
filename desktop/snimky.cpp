#include "desktop/snimky.h"

#include <QApplication>
#include <QEventLoop>
#include <QPdfView>
#include <QPixmap>
#include <QTimer>
#include <QWidget>
#include <chrono>
#include <optional>

#include "annual/stav_projektu.h"
#include "base/chyba.h"
#include "desktop/okna.h"
#include "desktop/text_qt.h"
#include "desktop/ukazky_evidence.h"
#include "desktop/ukazky_fixnich.h"
#include "desktop/ukazky_hrubych.h"
#include "desktop/ukazky_karty.h"
#include "desktop/ukazky_nahrad.h"
#include "desktop/ukazky_oprav.h"
#include "desktop/ukazky_registru.h"
#include "menu/unit1_hlavni.h"
#include "payrun/unit133_prohlizeni_mezd.h"
#include "payrun/unit21_vypocet_vyplat.h"
#include "payrun/unit50_blokace.h"
#include "payrun/unit66_prohlizeni.h"
#include "paysheet/listina.h"
#include "paysheet/unit14_nastaveni.h"
#include "paysheet/unit2_struktura.h"
#include "paysheet/unit3_seznam_sloupcu.h"
#include "paysheet/unit4_sloupec.h"
#include "report/nahled.h"
#include "report/tabulkova.h"
#include "store/catalogue.h"
#include "store/query.h"

namespace desktop {

namespace {

using paysheet::Stranka;
using Obrazovka = std::shared_ptr<base::Obrazovka>;

Obrazovka struktura_s_chybou(shell::Session& session) {
    auto form = std::make_shared<paysheet::TForm2>(session);
    paysheet::Vypln_formular_2(*form);
    form->pole[2] = "4";
    const shell::RidiciZorv puvodni = session.ridici_zorv;
    form->opusteni_pole();
    session.ridici_zorv = puvodni;
    return form;
}

Obrazovka spoctene_vyplaty(shell::Session& session) {
    const std::string listina = store::month_table("Listin", session.zpracovavany_mesic);
    const bool je = session.data().table_exists(listina);
    paysheet::zaloz_vyplatni_listinu(session, je ? 2 : 1);
    auto form = std::make_shared<payrun::TForm21>(session);
    form->FormShow();
    form->Button2Click();
    return form;
}

Obrazovka seznam_sloupcu(shell::Session& session) {
    auto form = std::make_shared<paysheet::TForm3>(session);
    paysheet::Vypln_formular_3(*form, session.ridici_zorv);
    form->FormShow();
    return form;
}

/// A column with its table, which the screen needs as long as it lives.
struct OpravaSloupce {
    explicit OpravaSloupce(shell::Session& session) {
        ridici.set_connection(session.data());
        ridici.set_table_name("Ridici");
        ridici.set_index_name("By_tr1");
        ridici.open();
        form.emplace(session, ridici);
    }
    store::Table ridici;
    std::optional<paysheet::TForm4> form;
};

Obrazovka oprava_sloupce(shell::Session& session) {
    const auto oprava = std::make_shared<OpravaSloupce>(session);
    return {oprava, &*oprava->form};
}

/// A blocked value of the month, with its table as above.
struct BlokovanaHodnota {
    explicit BlokovanaHodnota(shell::Session& session) {
        const std::string tabulka = store::month_table("Blok", session.zpracovavany_mesic);
        payrun::zaloz_soubor_pro_blokovani(session);
        blok.set_connection(session.data());
        blok.set_table_name(tabulka);
        blok.open();
        store::Transaction transakce(session.data());
        blok.append();
        blok.set("Cislo_pracovnika", 1);
        blok.set("socialni_zaklad_abs", 25000);
        blok.set("dan_dif", -150);
        blok.post();
        transakce.commit();
        blok.edit();
        form.emplace(session, blok, "OPRAVUJEME  BLOKOVANOU  HODNOTU");
    }
    store::Table blok;
    std::optional<payrun::TForm51> form;
};

Obrazovka blokovana_hodnota(shell::Session& session) {
    const auto hodnota = std::make_shared<BlokovanaHodnota>(session);
    return {hodnota, &*hodnota->form};
}

Obrazovka blokovane_hodnoty(shell::Session& session) {
    const BlokovanaHodnota aspon_jedna(session);
    auto form = std::make_shared<payrun::TForm50>(session);
    form->FormShow();
    return form;
}

Obrazovka uzaverky(shell::Session& session) {
    auto form = std::make_shared<annual::TFStavProjektu>(session);
    form->FormShow();
    return form;
}

/// A preview of the workers' names over several pages.
Obrazovka nahled_sestavy(shell::Session& session) {
    report::TabulkovaSestava sestava;
    sestava.nazev = "Pracovníci - " + session.firma;
    sestava.zahlavi = {session.radek_firmy};
    sestava.sloupce = {{"Číslo", 20, report::Zarovnani::vpravo}, {"Příjmení", 50}, {"Jméno", 40}};
    store::Query q(session.data(), "SELECT Cislo, Prijmeni, Jmeno FROM Os_karty ORDER BY Prijmeni");
    for (int opakovani = 0; opakovani < 30; ++opakovani) {
        for (q.open(); !q.eof(); q.next())
            sestava.radky.push_back({q.text(0), q.text(1), q.text(2)});
    }
    return std::make_shared<report::TFUsrPrev>(report::sestav_tabulku(sestava));
}

Obrazovka vety_listiny(shell::Session& session) {
    return std::make_shared<payrun::TForm66>(
        session, "PROHLÍŽÍME  ZÁPORNÉ  VÝPLATY",
        "select * from " + store::month_table("Listin", session.zpracovavany_mesic) +
            " order by cislo_pracovnika,modul,sloupec,Pocitadlo");
}

/// The sheet of the month, with the amount payable of its first worker explained.
Obrazovka prohlizeni_mezd(shell::Session& session) {
    spoctene_vyplaty(session);
    auto form = std::make_shared<payrun::TForm133>(session, session.zpracovavany_mesic);
    form->FormShow();
    form->vysvetli();
    return form;
}

/// The same after the cards were changed behind the sheet's back.
Obrazovka prohlizeni_zmenenych_mezd(shell::Session& session) {
    spoctene_vyplaty(session);
    auto form = std::make_shared<payrun::TForm133>(session, session.zpracovavany_mesic);
    form->FormShow();
    {
        store::Transaction na_zkousku(session.data());
        session.data().execute("UPDATE Os_karty SET Staly_plat = Staly_plat + 1000, tpd = 40");
        form->vysvetli();
    }
    return form;
}

template <Stranka stranka>
Obrazovka nastaveni(shell::Session& session) {
    auto form = std::make_shared<paysheet::TForm14>(session);
    form->vypln_z_nastaveni(session.nastaveni);
    form->FormShow();
    form->stranka = stranka;
    return form;
}

/// The preview of a report draws its pages in the background.
void dokresli(const QWidget& okno) {
    QApplication::processEvents();
    if (!okno.findChild<QPdfView*>()) return;
    QEventLoop cekani;
    QTimer::singleShot(std::chrono::milliseconds(500), &cekani, &QEventLoop::quit);
    cekani.exec();
}

void uloz(QWidget& okno, const std::filesystem::path& soubor) {
    dokresli(okno);
    if (!okno.grab().save(do_qt(soubor.string()))) {
        throw base::ChybaDat("Obrázek \"" + soubor.string() + "\" nelze zapsat.");
    }
}

}  // namespace

const std::vector<Ukazka>& ukazky() {
    static const std::vector<Ukazka> vsechny{
        {"TForm14", nastaveni<Stranka::legislativa>, "-legislativa"},
        {"TForm14", nastaveni<Stranka::pojisteni_dane_uctovani>, "-pojisteni"},
        {"TForm14", nastaveni<Stranka::cssz>, "-cssz"},
        {"TForm14", nastaveni<Stranka::zakladni_parametry>, "-parametry"},
        {"TForm2", struktura_s_chybou},
        {"TForm3", seznam_sloupcu},
        {"TForm4", oprava_sloupce},
        {"TForm21", spoctene_vyplaty},
        {"TForm133", prohlizeni_mezd},
        {"TForm133", prohlizeni_zmenenych_mezd, "-zmena"},
        {"TForm6", registr_fixni, "-fixni"},
        {"TForm6", registr_deti, "-deti"},
        {"TForm6", registr_info, "-info"},
        {"TForm17", zadani_hrubych},
        {"TForm17", zadani_nahrady, "-nahrady"},
        {"TFNahrady", prehled_nahrad},
        {"TForm123", tisk_nahrad},
        {"TFHromadneZadani", hrube_ze_souboru},
        {"TForm18", prohlizeni_hrubych},
        {"TForm19", oprava_nahrady, "-nahrada"},
        {"TForm19", oprava_hrube},
        {"TForm20", sumarizace_hrubych},
        {"TForm43", vykony},
        {"TForm90", oprava_davky},
        {"TForm110", rucni_oprava},
        {"TForm50", blokovane_hodnoty},
        {"TForm51", blokovana_hodnota},
        {"TForm66", vety_listiny},
        {"TForm7", karta_s_chybami, "-dane"},
        {"TForm7", karta_cssz, "-cssz"},
        {"TForm7", karta_prumery, "-prumery"},
        {"TForm7", karta_hlediska, "-hlediska"},
        {"TForm7", karta_texty, "-texty"},
        {"TForm7", karta_cizozemci, "-cizozemci"},
        {"TForm7", karta_osobni},
        {"TFVyberPracovnika", vyber_pracovnika},
        {"TForm9", nove_dite},
        {"TForm11", fixni_polozky},
        {"TForm12", fixni_polozka_s_archivem},
        {"TForm13", fixni_polozka_pracovnika},
        {"TForm75", oprava_korun},
        {"TFStavProjektu", uzaverky},
        {"TFUsrPrev", nahled_sestavy},
        {"TFRpd", kalendare},
        {"TFRpdDet", kalendar_dubna},
        {"TForm26", pojistovny},
        {"Tfmz003", pojistovna},
        {"TForm15", stroje},
        {"TForm16", stroj},
        {"TForm74", externi_vstup},
        {"TForm132", externi_prace},
        {"TForm162", dochazka},
        {"TForm163", zadani_dochazky},
    };
    return vsechny;
}

void uloz_snimky(QWidget& hlavni_okno, shell::Session& session,
                 const std::filesystem::path& slozka) {
    std::filesystem::create_directories(slozka);
    uloz(hlavni_okno, slozka / "TForm1.png");
    const shell::RidiciZorv zaznam = session.ridici_zorv;
    for (const Ukazka& ukazka : ukazky()) {
        // A field left on the first structure has changed the record of the session.
        session.ridici_zorv = zaznam;
        const auto obrazovka = ukazka.priprav(session);
        const auto okno = vyrob_okno(*obrazovka, session, nullptr);
        okno->show();
        uloz(*okno, slozka / (std::string(ukazka.obrazovka) + ukazka.dodatek + ".png"));
    }
}

}  // namespace desktop
