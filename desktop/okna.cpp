#include "desktop/okna.h"

#include "desktop/okno_ciselniku.h"
#include "desktop/okno_form11.h"
#include "desktop/okno_form110.h"
#include "desktop/okno_form12.h"
#include "desktop/okno_form123.h"
#include "desktop/okno_form13.h"
#include "desktop/okno_form133.h"
#include "desktop/okno_form14.h"
#include "desktop/okno_form162.h"
#include "desktop/okno_form163.h"
#include "desktop/okno_form17.h"
#include "desktop/okno_form18.h"
#include "desktop/okno_form19.h"
#include "desktop/okno_form2.h"
#include "desktop/okno_form20.h"
#include "desktop/okno_form21.h"
#include "desktop/okno_form3.h"
#include "desktop/okno_form4.h"
#include "desktop/okno_form43.h"
#include "desktop/okno_form50.h"
#include "desktop/okno_form51.h"
#include "desktop/okno_form6.h"
#include "desktop/okno_form66.h"
#include "desktop/okno_form7.h"
#include "desktop/okno_form75.h"
#include "desktop/okno_form9.h"
#include "desktop/okno_form90.h"
#include "desktop/okno_hromadne.h"
#include "desktop/okno_nahrady_prehled.h"
#include "desktop/okno_rpd.h"
#include "desktop/okno_rpd_det.h"
#include "desktop/okno_stav_projektu.h"
#include "desktop/okno_usr_prev.h"
#include "desktop/okno_vyber_pracovnika.h"

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
        {"TForm133", vyrob<OknoForm133, payrun::TForm133>},
        {"TForm50", vyrob<OknoForm50, payrun::TForm50>},
        {"TForm6", vyrob<OknoForm6, workers::TForm6>},
        {"TForm51", vyrob<OknoForm51, payrun::TForm51>},
        {"TForm66", vyrob<OknoForm66, payrun::TForm66>},
        {"TForm7", vyrob<OknoForm7, workers::TForm7>},
        {"TFVyberPracovnika", vyrob<OknoVyberPracovnika, workers::TFVyberPracovnika>},
        {"TForm9", vyrob<OknoForm9, workers::TForm9>},
        {"TForm11", vyrob<OknoForm11, workers::TForm11>},
        {"TForm110", vyrob<OknoForm110, wages::TForm110>},
        {"TForm12", vyrob<OknoForm12, workers::TForm12>},
        {"TFHromadneZadani", vyrob<OknoHromadne, wages::TFHromadneZadani>},
        {"TForm17", vyrob<OknoForm17, wages::TForm17>},
        {"TForm18", vyrob<OknoForm18, wages::TForm18>},
        {"TForm19", vyrob<OknoForm19, wages::TForm19>},
        {"TForm20", vyrob<OknoForm20, wages::TForm20>},
        {"TForm43", vyrob<OknoForm43, wages::TForm43>},
        {"TForm90", vyrob<OknoForm90, wages::TForm90>},
        {"TForm13", vyrob<OknoForm13, workers::TForm13>},
        {"TForm75", vyrob<OknoForm75, workers::TForm75>},
        {"TFStavProjektu", vyrob<OknoStavProjektu, annual::TFStavProjektu>},
        {"TFUsrPrev", vyrob<OknoUsrPrev, report::TFUsrPrev>},
        {"TFNahrady", vyrob<OknoNahrady, wages::TFNahrady>},
        {"TForm123", vyrob<OknoForm123, wages::TForm123>},
        {"TFRpd", vyrob<OknoRpd, wages::TFRpd>},
        {"TFRpdDet", vyrob<OknoRpdDet, wages::TFRpdDet>},
        {"TForm26", vyrob<OknoCiselniku, workers::Ciselnik>},
        {"Tfmz003", vyrob<OknoVetyCiselniku, workers::VetaCiselniku>},
        {"TForm15", vyrob<OknoCiselniku, workers::Ciselnik>},
        {"TForm16", vyrob<OknoVetyCiselniku, workers::VetaCiselniku>},
        {"TForm74", vyrob<OknoCiselniku, workers::Ciselnik>},
        {"TForm132", vyrob<OknoVetyCiselniku, workers::VetaCiselniku>},
        {"TForm162", vyrob<OknoForm162, wages::TForm162>},
        {"TForm163", vyrob<OknoForm163, wages::TForm163>},
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
