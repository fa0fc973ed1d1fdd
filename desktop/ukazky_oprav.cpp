#include "desktop/ukazky_oprav.h"

#include "desktop/ukazky_hrubych.h"
#include "store/catalogue.h"
#include "store/query.h"
#include "wages/unit17_zadani.h"
#include "wages/unit18_prohlizeni.h"
#include "wages/unit19_oprava.h"
#include "wages/unit20_sumarizace.h"
#include "wages/unit43_vykony.h"
#include "wages/unit90_davky.h"

namespace desktop {

namespace {

/// The correction of the month's row whose column number is the highest of its module.
std::shared_ptr<wages::TForm19> oprava(shell::Session& session, int modul) {
    store::Query q(session.data(), "SELECT Pocitadlo FROM " +
                                       store::month_table("Hrube", session.zpracovavany_mesic) +
                                       " WHERE Modul = :modul ORDER BY Sloupec DESC, Pocitadlo");
    q.set("modul", modul);
    q.open();
    auto form = std::make_shared<wages::TForm19>(session, q.integer("Pocitadlo"));
    form->FormShow();
    return form;
}

}  // namespace

std::shared_ptr<base::Obrazovka> prohlizeni_hrubych(shell::Session& session) {
    auto form =
        std::make_shared<wages::TForm18>(session, wages::FiltrHrubych{"1:12", "", "", "", ""});
    form->FormShow();
    return form;
}

std::shared_ptr<base::Obrazovka> oprava_hrube(shell::Session& session) {
    auto form = oprava(session, 1);
    form->zadani.dny = "40";
    form->DnyExit();
    return form;
}

std::shared_ptr<base::Obrazovka> oprava_nahrady(shell::Session& session) {
    dynamic_cast<wages::TForm17&>(*zadani_nahrady(session)).acZapsatNahrady();
    return oprava(session, 5);
}

std::shared_ptr<base::Obrazovka> sumarizace_hrubych(shell::Session& session) {
    auto form = std::make_shared<wages::TForm20>(session);
    form->FormShow();
    return form;
}

std::shared_ptr<base::Obrazovka> vykony(shell::Session& session) {
    auto form = std::make_shared<wages::TForm43>(
        session,
        std::vector<std::string>{"10101020305..............5060", "10204....................",
                                 "210....................1019"});
    form->FormShow("102");
    return form;
}

std::shared_ptr<base::Obrazovka> oprava_davky(shell::Session& session) {
    auto form =
        std::make_shared<wages::TForm90>(session, wages::text_davky({wages::DruhDavky::nemoc,
                                                                     4711,
                                                                     "0203",
                                                                     "2803",
                                                                     850.5L,
                                                                     {3, 24, 0, 0},
                                                                     {0, 410, 451, 492},
                                                                     0}));
    form->FormShow();
    return form;
}

}  // namespace desktop
