#include "desktop/ukazky_evidence.h"

#include "store/table.h"
#include "wages/kalendar.h"
#include "wages/unit162_dochazka.h"
#include "wages/unit163_zadani_dochazky.h"
#include "wages/unit_rpd.h"
#include "wages/unit_rpd_det.h"
#include "workers/ciselnik_veta.h"
#include "workers/pojistovny.h"
#include "workers/unit15_stroje.h"
#include "workers/unit26_pojistovny.h"
#include "workers/unit74_externi_vstup.h"

namespace desktop {

namespace {

/// A record form with its table, which it needs as long as it lives.
template <class Form>
struct SVetou {
    store::Table tabulka;
    std::unique_ptr<Form> form;

    SVetou(shell::Session& session, const char* nazev) {
        tabulka.set_connection(session.data());
        tabulka.set_table_name(nazev);
        tabulka.open();
        tabulka.append();
    }
};

template <class Seznam>
UkazkaObrazovky seznam(shell::Session& session) {
    auto form = std::make_shared<Seznam>(session);
    form->FormShow();
    return form;
}

/// The record form of a code list with the values given.
template <class Seznam>
UkazkaObrazovky veta(shell::Session& session, workers::TextyPoli hodnoty) {
    const auto popis = std::make_shared<workers::PopisCiselniku>(Seznam(session).popis());
    const auto drzak = std::make_shared<
        std::pair<std::shared_ptr<workers::PopisCiselniku>, SVetou<workers::VetaCiselniku>>>(
        std::piecewise_construct, std::forward_as_tuple(popis),
        std::forward_as_tuple(session, popis->tabulka));
    drzak->second.form = std::make_unique<workers::VetaCiselniku>(
        session, *popis, drzak->second.tabulka, "Nový záznam", std::move(hodnoty));
    return {drzak, drzak->second.form.get()};
}

/// Some rows, so that the list is not empty.
void napln(shell::Session& session, const char* tabulka, const std::vector<std::string>& pole,
           const std::vector<store::Row>& vety) {
    store::Transaction transakce(session.data());
    store::Inserter zapis(session.data(), tabulka, pole);
    for (const store::Row& veta : vety) {
        for (std::size_t i = 0; i < veta.size(); ++i)
            zapis.set(i, veta[i]);
        zapis.insert();
    }
    transakce.commit();
}

}  // namespace

UkazkaObrazovky kalendare(shell::Session& session) {
    if (wages::seznam_kalendaru(session).rows.empty()) wages::acPridatZakladniExecute(session);
    return seznam<wages::TFRpd>(session);
}

UkazkaObrazovky kalendar_dubna(shell::Session& session) {
    const auto drzak = std::make_shared<SVetou<wages::TFRpdDet>>(session, "Rpd");
    wages::ZaznamKalendare zaznam{session.rok, 1, "Údržba, krátké pátky", {}};
    for (std::size_t m = 0; m < zaznam.bunky.size(); ++m) {
        zaznam.bunky[m] = wages::bunky_z_textu(
            wages::mesic_na_text(wages::zakladni_kalendar(session.rok, 8 * 60 + 30)[m]));
        for (int den = 1; den <= 31; ++den) {
            const bool patek = base::den_v_tydnu({session.rok, static_cast<int>(m) + 1, den}) == 5;
            std::string& bunka = zaznam.bunky[m][static_cast<std::size_t>(den - 1)];
            if (patek && bunka != wages::k_bez_prace) bunka = "6:00";
        }
    }
    drzak->form = std::make_unique<wages::TFRpdDet>(session, drzak->tabulka, "Oprava záznamu",
                                                    std::move(zaznam));
    drzak->form->zmena_mesice(3);
    return {drzak, drzak->form.get()};
}

UkazkaObrazovky pojistovny(shell::Session& session) {
    // An empty list would ask whether to fill it.
    if (workers::Nacti_pojistovny(session).empty()) workers::dopln_zdravotni_pojistovny(session);
    return seznam<workers::TForm26>(session);
}

UkazkaObrazovky pojistovna(shell::Session& session) {
    return veta<workers::TForm26>(session, {"1", "Všeobecná zdrav. pojišťovna ČR", "1001-1234567",
                                            "0710", "12345678", "3558", "", "111"});
}

UkazkaObrazovky stroje(shell::Session& session) {
    napln(session, "Stroje", {"Stroj", "Su", "Au", "St", "Vykon", "Sazba"},
          {{101, 511, 100, 3, 210, 420.5},
           {102, 511, 110, 3, 210, 385},
           {205, 511, 200, 7, 340, 910}});
    return seznam<workers::TForm15>(session);
}

UkazkaObrazovky stroj(shell::Session& session) {
    return veta<workers::TForm15>(session, {"101", "511", "100", "3", "210", "420,5"});
}

UkazkaObrazovky externi_vstup(shell::Session& session) {
    workers::zaloz_soubor_pro_externi_vstup(session);
    napln(session, "Vstup_ex", {"Cislo_prace", "Sazba", "Text"},
          {{1001, 185.5, "Svařování rámů"},
           {1002, 96, "Balení"},
           {2010, 240.25, "Montáž u zákazníka"}});
    return seznam<workers::TForm74>(session);
}

UkazkaObrazovky externi_prace(shell::Session& session) {
    workers::zaloz_soubor_pro_externi_vstup(session);
    return veta<workers::TForm74>(session, {"1001", "185,5", "Svařování rámů"});
}

UkazkaObrazovky dochazka(shell::Session& session) {
    wages::zaloz_dochazku(session);
    wages::ListDochazky list;
    const int mesic = session.mesic_v_poli;
    for (int den = 1; den <= base::dni_v_mesici(mesic, session.rok); ++den) {
        const auto i = static_cast<std::size_t>(den - 1);
        const bool volno = base::den_v_tydnu({session.rok, mesic, den}) > 5;
        if (den == 7 || den == 8) {
            list.kody[i] = "D";
        } else if (!volno) {
            list.hodiny[i] = den % 9 == 0 ? 10.5L : 7.5L;
        }
    }
    wages::secti(list, base::dni_v_mesici(mesic, session.rok));
    for (const int pracovnik : {1, 2})
        wages::uloz_dochazku(session, pracovnik, mesic, list);
    return seznam<wages::TForm162>(session);
}

UkazkaObrazovky zadani_dochazky(shell::Session& session) {
    dochazka(session);
    const auto vety = wages::dochazka_mesice(session, session.mesic_v_poli, "1", "");
    auto form = std::make_shared<wages::TForm163>(session, session.mesic_v_poli, "Vzorný Petr", 1,
                                                  wages::list_dochazky(vety, 0));
    form->vstup_do_kodu();
    return form;
}

}  // namespace desktop
