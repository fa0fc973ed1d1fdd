#include "desktop/okno_rpd.h"

#include <QCheckBox>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/mrizka_seznamu.h"
#include "desktop/text_qt.h"

namespace desktop {

OknoRpd::OknoRpd(wages::TFRpd& form, const shell::Session&, QWidget* rodic) : Okno(form, rodic) {
    setWindowTitle(do_qt(form.nadpis));
    setSizeGripEnabled(true);
    resize(720, 440);
    auto* mrizka = new MrizkaSeznamu(
        vazba(), form,
        {{"Rok", "rok"}, {"Typ", "typ"}, {"Nazev", "název"}, {"Fond", "roční fond hodin"}},
        "pracovní kalendáře", [&form] { form.dvojklik(); });
    mrizka->roztahni(2);
    obsah().addWidget(mrizka, 1);
    auto* jen_vybrany = new QCheckBox("Tisknout jen vybraný &kalendář");
    jen_vybrany->setObjectName("jen_vybrany");
    jen_vybrany->setAccessibleName("tisknout jen vybraný kalendář");
    vazba().zaskrtavatko(*jen_vybrany, form.jen_vybrany);
    obsah().addWidget(jen_vybrany);
    tlacitka(form);
    odchod(form.zavreno, [&form] { form.acZpetExecute(); });
    vazba().fokus(*this, form.fokus);
}

void OknoRpd::tlacitka(wages::TFRpd& form) {
    const auto je_veta = [&form] { return form.je_veta(); };
    tlacitko(
        "&Přidat", "acPridat", [&form] { form.acPridatExecute(); }, Qt::Key_Insert);
    vazba().povolene(tlacitko(
                         "&Opravit", "acOpravit", [&form] { form.acOpravitExecute(); }, Qt::Key_F2),
                     je_veta);
    vazba().povolene(
        tlacitko(
            "&Smazat", "acSmazat", [&form] { form.acSmazatExecute(); }, Qt::Key_Delete),
        je_veta);
    dalsi_akce(form);
    tlacitko("&Tisk", "acTisk", [&form] { form.acTiskExecute(); });
    vazba().povolene(tlacitko("&Vybrat", "acVybrat", [&form] { form.acVybratExecute(); }),
                     [&form] { return form.lze_vybrat(); });
    tlacitko("&Zpět", "acZpet", [&form] { form.acZpetExecute(); });
}

void OknoRpd::dalsi_akce(wages::TFRpd& form) {
    QPushButton& dalsi = tlacitko("&Další akce...", "dalsi_akce", [] {});
    auto* nabidka = new QMenu(this);
    nabidka->addAction("Smazat &staré kalendáře", this,
                       [&form] { form.acSmazatStareKalendareExecute(); });
    nabidka->addAction("Přidat &základní kalendáře", this,
                       [&form] { form.acPridatZakladniExecute(); });
    QAction* kopirovat =
        nabidka->addAction("&Kopírovat", this, [&form] { form.acKopirovatExecute(); });
    vazba().pri_obnove([kopirovat, &form] { kopirovat->setEnabled(form.je_veta()); });
    dalsi.setMenu(nabidka);
}

}  // namespace desktop
