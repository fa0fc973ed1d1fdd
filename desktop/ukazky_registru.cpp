#include "desktop/ukazky_registru.h"

#include "workers/unit6_registr.h"

namespace desktop {

namespace {

using workers::TForm6;

std::shared_ptr<TForm6> otevreny_registr(shell::Session& session) {
    auto form = std::make_shared<TForm6>(session, nullptr);
    form->FormShow();
    return form;
}

}  // namespace

std::shared_ptr<base::Obrazovka> registr_fixni(shell::Session& session) {
    auto form = otevreny_registr(session);
    form->filtr.aktivni = true;
    form->zmena_filtru();
    const int radku = static_cast<int>(form->radky.size());
    for (int i = 0; i < radku && form->fixni.vety.rows.empty(); ++i)
        form->vyber_radek(i);
    return form;
}

std::shared_ptr<base::Obrazovka> registr_deti(shell::Session& session) {
    auto form = otevreny_registr(session);
    form->filtr.maji_deti = true;
    form->scMajiDetiClick();
    return form;
}

std::shared_ptr<base::Obrazovka> registr_info(shell::Session& session) {
    auto form = otevreny_registr(session);
    form->vyber_stranku(TForm6::Stranka::info);
    form->filtr.volitelne[0].hledisko = 1;
    form->filtr.cislo = "12a";
    form->zmena_filtru();
    return form;
}

}  // namespace desktop
