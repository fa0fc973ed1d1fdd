#include "desktop/okno_form110.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "desktop/prvky.h"
#include "desktop/text_qt.h"
#include "desktop/vzhled.h"

namespace desktop {

OknoForm110::OknoForm110(wages::TForm110& form, const shell::Session&, QWidget* rodic)
    : Okno(form, rodic) {
    setWindowTitle(do_qt(form.nadpis));
    auto* pracovnik = udaj(vazba(), "lbPracovnik", form.lbPracovnik);
    jako_nadpis(*pracovnik);
    obsah().addWidget(pracovnik);
    obsah().addWidget(udaj(vazba(), "lbPolozka", form.lbPolozka));
    obsah().addWidget(udaj(vazba(), "lbZapsano", form.lbZapsano));
    auto* koruny = ciselne_pole("scKoruny", "koruny", 11);
    vazba().pole(*koruny, form.scKoruny, wages::TForm110::povol_klavesu);
    auto* pole = new QFormLayout;
    pole->addRow("&Koruny:", koruny);
    obsah().addLayout(pole);
    obsah().addStretch(1);
    tlacitko(
        "&Uložit", "acUlozit", [&form] { form.acUlozitExecute(); }, Qt::Key_F2);
    tlacitko("&Zpět", "acZpet", [&form] { form.acZpetExecute(); });
    odchod(form.zavreno, [&form] { form.acZpetExecute(); });
    vazba().fokus(*this, form.fokus);
}

}  // namespace desktop
