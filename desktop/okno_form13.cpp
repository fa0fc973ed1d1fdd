#include "desktop/okno_form13.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/pole_fixni_polozky.h"
#include "desktop/text_qt.h"

namespace desktop {

OknoForm13::OknoForm13(workers::TForm13& form, const shell::Session&, QWidget* rodic)
    : Okno(form, rodic) {
    setWindowTitle(do_qt(form.nadpis));
    obsah().addWidget(pole_fixni_polozky(vazba(), form));
    obsah().addStretch(1);
    tlacitko(
        "&Uložit", "acUlozit", [&form] { form.acUlozitExecute(); }, Qt::Key_F2);
    tlacitko("&Zpět", "acZpet", [&form] { form.acZpetExecute(); });
    odchod(form.zavreno, [&form] { form.acZpetExecute(); });
    vazba().fokus(*this, form.fokus);
}

}  // namespace desktop
