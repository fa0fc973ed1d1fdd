#include "desktop/okna.h"

#include "desktop/okno_form14.h"
#include "desktop/okno_form2.h"
#include "desktop/okno_form21.h"
#include "desktop/okno_form3.h"
#include "desktop/okno_form4.h"
#include "desktop/okno_form50.h"
#include "desktop/okno_form51.h"
#include "desktop/okno_form66.h"
#include "desktop/okno_stav_projektu.h"

namespace desktop {

namespace {

template <class OknoObrazovky, class Obrazovka>
std::unique_ptr<Okno> vyrob(base::Obrazovka& obrazovka, const shell::Session& session,
                            QWidget* rodic) {
    return std::make_unique<OknoObrazovky>(dynamic_cast<Obrazovka&>(obrazovka), session, rodic);
}

}  // namespace

const std::vector<DruhOkna>& vsechna_okna() {
    static const std::vector<DruhOkna> okna{
        {"TForm14", vyrob<OknoForm14, paysheet::TForm14>},
        {"TForm2", vyrob<OknoForm2, paysheet::TForm2>},
        {"TForm3", vyrob<OknoForm3, paysheet::TForm3>},
        {"TForm4", vyrob<OknoForm4, paysheet::TForm4>},
        {"TForm21", vyrob<OknoForm21, payrun::TForm21>},
        {"TForm50", vyrob<OknoForm50, payrun::TForm50>},
        {"TForm51", vyrob<OknoForm51, payrun::TForm51>},
        {"TForm66", vyrob<OknoForm66, payrun::TForm66>},
        {"TFStavProjektu", vyrob<OknoStavProjektu, annual::TFStavProjektu>},
    };
    return okna;
}

std::unique_ptr<Okno> vyrob_okno(base::Obrazovka& obrazovka, const shell::Session& session,
                                 QWidget* rodic) {
    for (const DruhOkna& druh : vsechna_okna()) {
        if (druh.obrazovka == obrazovka.jmeno()) return druh.vyrob(obrazovka, session, rodic);
    }
    return nullptr;
}

}  // namespace desktop
