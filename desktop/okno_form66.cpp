#include "desktop/okno_form66.h"

#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

#include "desktop/text_qt.h"

namespace desktop {

OknoForm66::OknoForm66(payrun::TForm66& form, const shell::Session& session, QWidget* rodic)
    : Okno(form, rodic) {
    setWindowTitle(do_qt(form.nadpis));
    setSizeGripEnabled(true);
    resize(1000, 560);

    auto* tabulka = new QTableView;
    tabulka->setObjectName("vety");
    tabulka->setAccessibleName(do_qt(form.nadpis));
    vazba().tabulka(*tabulka, form.vety);
    obsah().addWidget(tabulka, 1);
    obsah().addWidget(new QLabel(do_qt(session.radek_firmy)));

    tlacitko("&Zpět", "Button1", [&form] { form.Button1Click(); });
    odchod(form.zavreno, [&form] { form.Button1Click(); });
}

}  // namespace desktop
