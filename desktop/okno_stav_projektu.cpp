#include "desktop/okno_stav_projektu.h"

#include <QHeaderView>
#include <QTableView>
#include <QVBoxLayout>

#include "desktop/text_qt.h"

namespace desktop {

OknoStavProjektu::OknoStavProjektu(annual::TFStavProjektu& form, const shell::Session&,
                                   QWidget* rodic)
    : Okno(form, rodic), vety_{{form.k_sloupec_obdobi, form.k_sloupec_datum}, {}} {
    resize(380, 400);
    vazba().pri_obnove([this, &form] {
        setWindowTitle(do_qt(form.nadpis));
        vety_.rows.clear();
        for (const std::string& radek : form.radky) {
            const QString text = do_qt(radek);
            vety_.rows.push_back({z_qt(text.left(form.k_sirka_obdobi).trimmed()),
                                  z_qt(text.mid(form.k_sirka_obdobi).trimmed())});
        }
    });
    auto* tabulka = new QTableView;
    tabulka->setObjectName("mesice");
    tabulka->setAccessibleName("uzávěrky měsíců");
    tabulka->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    vazba().tabulka(*tabulka, vety_);
    vazba().pri_obnove(
        [tabulka] { tabulka->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch); });
    obsah().addWidget(tabulka, 1);

    tlacitko("&Zpět", "acZpet", [&form] { form.acZpet(); });
    odchod(form.zavreno, [&form] { form.acZpet(); });
}

}  // namespace desktop
