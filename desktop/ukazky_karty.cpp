#include "desktop/ukazky_karty.h"

#include "store/query.h"
#include "wages/unit_rpd.h"
#include "workers/unit7_karta.h"
#include "workers/unit7_vyber_pracovnika.h"

namespace desktop {

namespace {

using workers::StrankaKarty;
using workers::TForm7;

/// The card of the first worker, a new one where there is nobody.
std::shared_ptr<TForm7> prvni_karta(shell::Session& session, StrankaKarty stranka) {
    auto form = std::make_shared<TForm7>(session, wages::vyber_kalendar);
    store::Query dotaz(session.data(), "SELECT Pocitadlo FROM Os_karty ORDER BY Cislo, Pocitadlo");
    dotaz.open();
    if (dotaz.eof()) {
        form->acPridatExecute();
    } else {
        form->acOpravitExecute(dotaz.integer(0));
    }
    form->FormShow();
    form->fokus.clear();
    form->stranka = stranka;
    return form;
}

}  // namespace

std::shared_ptr<base::Obrazovka> karta_osobni(shell::Session& session) {
    return prvni_karta(session, StrankaKarty::osobni);
}

std::shared_ptr<base::Obrazovka> karta_s_chybami(shell::Session& session) {
    auto form = prvni_karta(session, StrankaKarty::danove);
    form->hodnoty["Jaka_dan"].index = 1;
    form->hodnoty["Rodne_cislo"].text = "82-13-31/1234";
    form->hodnoty["Zam_do"].text = "1.1.1990";
    form->hodnoty["Cislo_penz_fondu"].text = "7";
    form->zmena_volby("Jaka_dan");
    form->vstup_do_pole("penz_fond_podnik_sazba");
    return form;
}

std::shared_ptr<base::Obrazovka> karta_cssz(shell::Session& session) {
    return prvni_karta(session, StrankaKarty::cssz);
}

std::shared_ptr<base::Obrazovka> karta_cizozemci(shell::Session& session) {
    return prvni_karta(session, StrankaKarty::cizozemci);
}

std::shared_ptr<base::Obrazovka> karta_hlediska(shell::Session& session) {
    return prvni_karta(session, StrankaKarty::hlediska);
}

std::shared_ptr<base::Obrazovka> karta_texty(shell::Session& session) {
    return prvni_karta(session, StrankaKarty::texty);
}

std::shared_ptr<base::Obrazovka> karta_prumery(shell::Session& session) {
    return prvni_karta(session, StrankaKarty::prumery);
}

std::shared_ptr<base::Obrazovka> vyber_pracovnika(shell::Session& session) {
    auto form = std::make_shared<workers::TFVyberPracovnika>(session);
    form->FormShow();
    return form;
}

}  // namespace desktop
