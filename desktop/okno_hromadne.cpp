#include "desktop/okno_hromadne.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include "base/castky_text.h"
#include "desktop/model_seznamu.h"
#include "desktop/prvky.h"
#include "desktop/text_qt.h"
#include "desktop/vzhled.h"

namespace desktop {

namespace {

constexpr QSize k_velikost{1180, 620};

}  // namespace

OknoHromadne::OknoHromadne(wages::TFHromadneZadani& form, const shell::Session&, QWidget* rodic)
    : Okno(form, rodic) {
    setWindowTitle(do_qt(form.nadpis));
    setSizeGripEnabled(true);
    resize(k_velikost);
    auto* soubor = udaj(vazba(), "soubor", form.soubor);
    jako_dulezity(*soubor);
    obsah().addWidget(soubor);
    obsah().addWidget(radky(form), 3);
    auto* chyby = new QListWidget;
    chyby->setObjectName("scChyby");
    chyby->setAccessibleName("chyby souboru");
    vazba().seznam(*chyby, form.davka.chyby);
    vazba().viditelne(*chyby, [&form] { return !form.davka.chyby.empty(); });
    obsah().addWidget(chyby, 1);
    obsah().addWidget(udaj(vazba(), "lbSouhrn", form.lbSouhrn));
    tlacitko("&Vybrat soubor...", "acVybrat", [&form] { form.acVybratExecute(); });
    auto& zapsat = tlacitko(
        "&Zapsat", "acZapsat", [&form] { form.acZapsatExecute(); }, Qt::Key_F2);
    vazba().povolene(zapsat, [&form] { return form.zapsat_povoleno; });
    tlacitko("Z&pět", "acZpet", [&form] { form.acZpetExecute(); });
    odchod(form.zavreno, [&form] { form.acZpetExecute(); });
    vazba().fokus(*this, form.fokus);
}

QTableView* OknoHromadne::radky(wages::TFHromadneZadani& form) {
    auto* tabulka = new QTableView;
    tabulka->setObjectName("radky");
    tabulka->setAccessibleName("položky souboru");
    const auto r = [&form](std::size_t i) -> const wages::RadekDavky& {
        return form.davka.radky.at(i);
    };
    const auto nenulove = [](int cislo) { return cislo ? QString::number(cislo) : QString(); };
    auto* model = new ModelSeznamu(
        {{"Řádek", 6, true, [r](std::size_t i) { return QString::number(r(i).radek); }},
         {"Číslo", 7, true, [r, nenulove](std::size_t i) { return nenulove(r(i).cislo); }},
         {"Pracovník", 20, false, [r](std::size_t i) { return do_qt(r(i).jmeno); }},
         {"Sl.", 4, true, [r, nenulove](std::size_t i) { return nenulove(r(i).sloupec); }},
         {"Text sloupce", 22, false, [r](std::size_t i) { return do_qt(r(i).sloupec_slovy); }},
         {"Dny", 6, true, [r](std::size_t i) { return do_qt(r(i).zadani.dny); }},
         {"Hodiny", 7, true, [r](std::size_t i) { return do_qt(r(i).zadani.hodiny); }},
         {"Koruny", 11, true,
          [r](std::size_t i) {
              return r(i).chyby.empty() ? do_qt(base::castka_s_oddelovaci(r(i).celkem)) : QString();
          }},
         {"Co je chybně", 0, false, [r](std::size_t i) { return do_qt(r(i).chyby); }}},
        [&form] { return form.davka.radky.size(); },
        [tabulka, r](std::size_t i, int, int role) {
            return role == Qt::ForegroundRole && !r(i).chyby.empty()
                       ? QVariant(barva_upozorneni(tabulka->palette()))
                       : QVariant();
        },
        tabulka);
    nasad_model(*tabulka, *model);
    vazba().pri_obnove([&form, model, ukazano = 0U]() mutable {
        if (ukazano == form.vydani) return;
        ukazano = form.vydani;
        model->obnov();
    });
    return tabulka;
}

}  // namespace desktop
