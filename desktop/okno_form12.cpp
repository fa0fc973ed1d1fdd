#include "desktop/okno_form12.h"

#include <QFontDatabase>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/pole_fixni_polozky.h"
#include "desktop/text_qt.h"

namespace desktop {

namespace {

constexpr int k_znaku_radku_archivu = 62;

QPushButton* tlacitko_archivu(Vazba& vazba, const char* popisek, const char* jmeno,
                              Vazba::Metoda metoda) {
    auto* nove = new QPushButton(popisek);
    nove->setObjectName(jmeno);
    nove->setAutoDefault(false);
    vazba.tlacitko(*nove, std::move(metoda));
    return nove;
}

}  // namespace

OknoForm12::OknoForm12(workers::TForm12& form, const shell::Session&, QWidget* rodic)
    : Okno(form, rodic) {
    setWindowTitle(do_qt(form.nadpis));
    setSizeGripEnabled(true);
    auto* vedle_sebe = new QHBoxLayout;
    vedle_sebe->addWidget(pole_fixni_polozky(vazba(), form), 0, Qt::AlignTop);
    vedle_sebe->addWidget(archiv(form), 1);
    obsah().addLayout(vedle_sebe, 1);
    tlacitko(
        "&Uložit", "acUlozit", [&form] { form.acUlozitExecute(); }, Qt::Key_F2);
    tlacitko("&Zpět", "acZpet", [&form] { form.acZpetExecute(); });
    odchod(form.zavreno, [&form] { form.acZpetExecute(); });
    vazba().fokus(*this, form.fokus);
}

QWidget* OknoForm12::archiv(workers::TForm12& form) {
    auto* skupina = new QGroupBox("archiv bankovních spojení");
    auto* svisle = new QVBoxLayout(skupina);
    auto* seznam = new QListWidget;
    seznam->setObjectName("archiv");
    seznam->setAccessibleName("archiv bankovních spojení");
    seznam->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    seznam->setMinimumWidth(seznam->fontMetrics().horizontalAdvance('0') * k_znaku_radku_archivu);
    vazba().seznam(*seznam, form.archiv);
    vazba().pri_obnove([seznam, &form] { seznam->setCurrentRow(form.radek_archivu); });
    connect(seznam, &QListWidget::currentRowChanged, seznam, [&form](int radek) {
        if (radek != form.radek_archivu) form.vyber_radek_archivu(radek);
    });
    connect(seznam, &QListWidget::itemDoubleClicked, seznam, [&form] { form.acDosadExecute(); });
    svisle->addWidget(seznam, 1);

    auto* tlacitka = new QHBoxLayout;
    auto* archivuj =
        tlacitko_archivu(vazba(), "&Archivuj", "acArchivuj", [&form] { form.acArchivujExecute(); });
    auto* dosad =
        tlacitko_archivu(vazba(), "&Dosaď", "acDosad", [&form] { form.acDosadExecute(); });
    for (QPushButton* jen_u_srazek : {archivuj, dosad})
        vazba().povolene(*jen_u_srazek, [&form] { return form.banka_povolena; });
    auto* smazat = tlacitko_archivu(vazba(), "S&mazat vše", "acSmazatVse",
                                    [&form] { form.acSmazatVseExecute(); });
    vazba().povolene(*smazat, [&form] { return !form.archiv.empty(); });
    for (QPushButton* jedno : {archivuj, dosad, smazat})
        tlacitka->addWidget(jedno);
    tlacitka->addStretch(1);
    svisle->addLayout(tlacitka);
    return skupina;
}

}  // namespace desktop
