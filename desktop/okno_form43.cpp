#include "desktop/okno_form43.h"

#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include "desktop/klavesy_tabulky.h"
#include "desktop/model_seznamu.h"
#include "desktop/text_qt.h"

namespace desktop {

namespace {

constexpr QSize k_velikost{480, 420};

}  // namespace

OknoForm43::OknoForm43(wages::TForm43& form, const shell::Session&, QWidget* rodic)
    : Okno(form, rodic) {
    setWindowTitle(do_qt(form.nadpis));
    setSizeGripEnabled(true);
    resize(k_velikost);
    auto* tabulka = new QTableView;
    tabulka->setObjectName("mrizka");
    tabulka->setAccessibleName("výkony");
    auto* model = new ModelSeznamu(
        {{"Výkon", 7, true, [&form](std::size_t i) { return do_qt(form.radky.at(i).vykon); }},
         {"Povolená střediska", 0, false,
          [&form](std::size_t i) { return do_qt(form.radky.at(i).strediska); }}},
        [&form] { return form.radky.size(); }, [](std::size_t, int, int) { return QVariant(); },
        tabulka);
    nasad_model(*tabulka, *model);
    vazba().radek(*tabulka, form.radek, [&form](int novy) { form.vyber_radek(novy); });
    connect(tabulka, &QTableView::doubleClicked, this, [&form] { form.acVybratExecute(); });
    (new KlavesyPrvku(*tabulka))
        ->na(Qt::Key_Return, [&form] { form.acVybratExecute(); })
        .na(Qt::Key_Enter, [&form] { form.acVybratExecute(); });
    obsah().addWidget(tabulka, 1);
    vazba().povolene(tlacitko(
                         "&Vybrat", "acVybrat", [&form] { form.acVybratExecute(); }, Qt::Key_F2),
                     [&form] { return form.je_radek(); });
    tlacitko("&Zpět", "acZpet", [&form] { form.acZpetExecute(); });
    odchod(form.zavreno, [&form] { form.acZpetExecute(); });
    vazba().fokus(*this, form.fokus);
}

}  // namespace desktop
