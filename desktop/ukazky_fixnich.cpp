#include "desktop/ukazky_fixnich.h"

#include "workers/fixni_archiv.h"
#include "workers/unit11_fixni_polozky.h"
#include "workers/unit12_fixni_polozka.h"
#include "workers/unit13_fixni_pracovnika.h"
#include "workers/unit75_oprava_korun.h"
#include "workers/unit9_dite.h"

namespace desktop {

std::shared_ptr<base::Obrazovka> nove_dite(shell::Session& session) {
    auto form = std::make_shared<workers::TForm9>(session, 0, 1);
    form->FormShow();
    form->Jmeno = "Anežka";
    form->Prijmeni = "Žižková";
    form->Rodne_cislo = "15-51-02/1234";
    form->Rodne_cisloExit();
    return form;
}

std::shared_ptr<base::Obrazovka> fixni_polozky(shell::Session& session) {
    auto form = std::make_shared<workers::TForm11>(session);
    form->FormShow();
    form->sumarizace_viditelna = true;
    form->penize_viditelne = true;
    const int radku = static_cast<int>(form->vety.size());
    for (int i = 0; i < radku && form->penize.Ucet.empty(); ++i)
        form->vyber_radek(i);
    return form;
}

std::shared_ptr<base::Obrazovka> fixni_polozka_s_archivem(shell::Session& session) {
    auto form = std::make_shared<workers::TForm12>(session, 0);
    form->FormShow();
    form->Cislo_pracovnika = "1";
    form->Cislo_pracovnikaExit();
    form->Sloupec = std::to_string(session.ridici_zorv.modul10_od);
    form->SloupecExit();
    form->Kcs = "500";
    for (const workers::BankovniSpojeni& spojeni :
         {workers::BankovniSpojeni{"19-2000145399", "0800", "1234567890", "0558", ""},
          workers::BankovniSpojeni{"35-35", "0100", "rrrrMM", "0308", "77"}}) {
        form->archiv.push_back(workers::radek_archivu(spojeni));
    }
    form->vyber_radek_archivu(1);
    form->acDosadExecute();
    return form;
}

std::shared_ptr<base::Obrazovka> fixni_polozka_pracovnika(shell::Session& session) {
    auto form = std::make_shared<workers::TForm13>(session, 0, 1);
    form->FormShow();
    form->Sloupec = std::to_string(session.ridici_zorv.modul5_od);
    form->SloupecExit();
    form->Kcs = "300";
    return form;
}

std::shared_ptr<base::Obrazovka> oprava_korun(shell::Session& session) {
    auto form = std::make_shared<workers::TForm75>(session, workers::OmezeniFixnich{},
                                                   workers::TrideniFixnich::pracovnik_sloupec);
    form->FormShow();
    return form;
}

}  // namespace desktop
