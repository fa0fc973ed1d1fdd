#include "desktop/okno_form21.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/text_qt.h"
#include "desktop/vzhled.h"

namespace desktop {

OknoForm21::OknoForm21(payrun::TForm21& form, const shell::Session&, QWidget* rodic)
    : Okno(form, rodic) {
    resize(620, 520);
    hlavicka(form);
    prubeh(form);
    chyby(form);
    vysledky(form);
    obsah().addStretch(1);
    tlacitka(form);
    odchod(form.zavreno, [&form] { form.Button1Click(); });
}

void OknoForm21::hlavicka(payrun::TForm21& form) {
    vazba().pri_obnove([this, &form] { setWindowTitle(do_qt(form.nadpis)); });
    auto* mesic = new QLabel;
    mesic->setObjectName("scMesic");
    jako_nadpis(*mesic);
    vazba().text(*mesic, [&form] { return form.scMesic; });
    obsah().addWidget(mesic);

    auto* dny = new QLabel;
    dny->setObjectName("pracovni_dny_mesice");
    vazba().text(*dny, [&form] {
        return "Počet pracovních dní včetně svátků: " + std::to_string(form.pracovni_dny_mesice);
    });
    obsah().addWidget(dny);

    auto* zaporne = new QLabel("Povolují se záporné výplaty");
    jako_upozorneni(*zaporne);
    vazba().viditelne(*zaporne, [&form] { return form.zapornych_povoleno; });
    obsah().addWidget(zaporne);
}

void OknoForm21::prubeh(payrun::TForm21& form) {
    auto* kdo = new QLabel;
    kdo->setObjectName("prubeh");
    vazba().text(*kdo, [&form] { return form.prubeh; });
    obsah().addWidget(kdo);
    auto* lista = new QProgressBar;
    lista->setObjectName("ProgressBar1");
    lista->setAccessibleName("průběh výpočtu");
    lista->setTextVisible(false);
    vazba().pri_obnove([lista, &form] {
        lista->setRange(0, form.prubeh_max);
        lista->setValue(form.prubeh_pozice);
        lista->setVisible(form.prubeh_max > 0);
    });
    obsah().addWidget(lista);
}

void OknoForm21::chyby(payrun::TForm21& form) {
    auto* skupina = new QGroupBox("chyby");
    auto* seznam = new QListWidget;
    seznam->setObjectName("scChyby");
    seznam->setAccessibleName("chyby výpočtu");
    (new QVBoxLayout(skupina))->addWidget(seznam);
    vazba().seznam(*seznam, form.scChyby);
    vazba().viditelne(*skupina, [&form] { return !form.scChyby.empty(); });
    obsah().addWidget(skupina, 5);

    auto* nelze = new QLabel("Nelze pokračovat");
    nelze->setObjectName("nelze_pokracovat");
    jako_upozorneni(*nelze);
    vazba().viditelne(*nelze, [&form] { return form.nelze_pokracovat; });
    obsah().addWidget(nelze);
}

// What the employer pays besides the wages stays hidden until the operator wants to see it.
void OknoForm21::vysledky(payrun::TForm21& form) {
    auto* panel = new QGroupBox("ZÁKLADNÍ  MZDOVÉ  HODNOTY");
    panel->setObjectName("vysledky");
    auto* svisle = new QVBoxLayout(panel);
    auto* nadpis = new QLabel;
    vazba().text(*nadpis, [&form] { return form.nadpis_vysledku; });
    svisle->addWidget(nadpis);
    auto* mzdy = new QFormLayout;
    vazba().dvojice(*mzdy, form.vysledky);
    svisle->addLayout(mzdy);

    auto* ukazat = new QCheckBox("&ORGANIZACE BUDE PLATIT:");
    ukazat->setObjectName("organizace_viditelna");
    ukazat->setAccessibleName("ORGANIZACE BUDE PLATIT:");
    svisle->addWidget(ukazat);
    auto* organizace = new QWidget;
    auto* odvody = new QFormLayout(organizace);
    vazba().dvojice(*odvody, form.vysledky_organizace);
    organizace->hide();
    connect(ukazat, &QCheckBox::toggled, organizace, &QWidget::setVisible);
    svisle->addWidget(organizace);

    auto* prohlizet = new QPushButton("Prohl&ížení mezd");
    prohlizet->setObjectName("acProhlizeniMezd");
    prohlizet->setAutoDefault(false);
    prohlizet->setToolTip("Ctrl+P");
    vazba().tlacitko(
        *prohlizet, [&form] { form.acProhlizeniMezdExecute(); },
        QKeySequence(Qt::CTRL | Qt::Key_P));
    svisle->addWidget(prohlizet, 0, Qt::AlignLeft);

    vazba().viditelne(*panel, [&form] { return form.vysledky_viditelne; });
    obsah().addWidget(panel);
}

void OknoForm21::tlacitka(payrun::TForm21& form) {
    QPushButton& zaporne =
        tlacitko("P&rohlížet záporné výplaty", "BitBtn1", [&form] { form.BitBtn1Click(); });
    vazba().viditelne(zaporne, [&form] { return form.prohlizet_zaporne_viditelne; });
    QPushButton& zpracuj = tlacitko(
        "&Zpracuj výplaty", "Button2", [&form] { form.Button2Click(); }, Qt::Key_F2);
    vazba().povolene(zpracuj, [&form] { return form.zpracuj_povoleno; });
    QPushButton& prerusit = tlacitko("&Přerušit", "Button3", [&form] { form.Button3Click(); });
    vazba().viditelne(prerusit, [&form] { return form.prerusit_viditelne; });
    QPushButton& zpet = tlacitko("Zpě&t", "Button1", [&form] { form.Button1Click(); });
    vazba().povolene(zpet, [&form] { return form.zpet_povoleno; });
}

}  // namespace desktop
