#include "desktop/okno_form3.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>
#include <fmt/format.h>

#include "desktop/prvky.h"
#include "desktop/text_qt.h"
#include "paysheet/sloupce.h"

namespace desktop {

namespace {

constexpr int k_radku_prehledu = 7;

store::Rows vety_sloupcu(const std::vector<paysheet::TForm3::Sloupec>& sloupce) {
    store::Rows vety{{"modul", "název modulu", "sloupec", "text"}, {}};
    for (const auto& s : sloupce)
        vety.rows.push_back({s.modul, s.calModulSlovy, s.sloupec, s.text});
    return vety;
}

QLabel* nadpis_sloupce(const QString& text) {
    auto* nadpis = new QLabel(text);
    nadpis->setForegroundRole(QPalette::PlaceholderText);
    return nadpis;
}

}  // namespace

OknoForm3::OknoForm3(paysheet::TForm3& form, const shell::Session&, QWidget* rodic)
    : Okno(form, rodic) {
    setWindowTitle(do_qt(form.nadpis));
    setSizeGripEnabled(true);
    resize(1160, 620);

    auto* vpravo = new QVBoxLayout;
    vpravo->addWidget(panel_hodnot(form));
    vpravo->addWidget(panel_znacek(form));
    vpravo->addStretch(1);
    vpravo->addWidget(prehled_modulu(form));
    auto* vedle_sebe = new QHBoxLayout;
    vedle_sebe->addWidget(mrizka(form), 1);
    vedle_sebe->addLayout(vpravo);
    obsah().addLayout(vedle_sebe, 1);

    tlacitka(form);
    odchod(form.zavreno, [&form] { form.btZpetClick(); });
}

QWidget* OknoForm3::mrizka(paysheet::TForm3& form) {
    auto* tabulka = new QTableView;
    tabulka->setObjectName("mrizka");
    tabulka->setAccessibleName("sloupce výplatní listiny");
    tabulka->verticalHeader()->hide();
    tabulka->horizontalHeader()->setStretchLastSection(true);
    vazba().pri_obnove([this, &form] { vety_ = vety_sloupcu(form.sloupce); });
    vazba().tabulka(*tabulka, vety_);
    vazba().radek(*tabulka, form.radek, [&form](int novy) { form.vyber_radek(novy); });
    connect(tabulka, &QTableView::doubleClicked, this, [&form] { form.btOpravitClick(); });
    return tabulka;
}

QWidget* OknoForm3::panel_hodnot(paysheet::TForm3& form) {
    auto* panel = new QGroupBox("zadávané hodnoty");
    panel->setObjectName("panel_hodnot");
    auto* svisle = new QVBoxLayout(panel);
    auto* mrizka = new QGridLayout;
    mrizka->setHorizontalSpacing(14);
    int sloupec = 1;
    for (const char* nadpis : {"nadpis", "předřadit", "min", "max", "standardně"})
        mrizka->addWidget(nadpis_sloupce(nadpis), 0, sloupec++);
    for (std::size_t i = 0; i < form.hodnoty.size(); ++i) {
        const auto& h = form.hodnoty[i];
        const int radek = static_cast<int>(i) + 1;
        mrizka->addWidget(nadpis_sloupce(QString::number(radek)), radek, 0);
        sloupec = 1;
        for (const auto& [jmeno, text] :
             {std::pair{"nadpis", &h.nadpis}, std::pair{"predradit", &h.predradit},
              std::pair{"min", &h.min}, std::pair{"max", &h.max},
              std::pair{"standardne", &h.standardne}}) {
            mrizka->addWidget(udaj(vazba(), fmt::format("{}_{}", jmeno, radek), *text), radek,
                              sloupec++);
        }
    }
    mrizka->setColumnStretch(1, 1);
    svisle->addLayout(mrizka);

    auto* dalsi = new QFormLayout;
    dalsi->addRow("výpočet:", udaj(vazba(), "vypocet", form.vypocet));
    dalsi->addRow(udaj(vazba(), "dny", form.dny));
    dalsi->addRow(udaj(vazba(), "hodiny", form.hodiny));
    dalsi->addRow("datum:", udaj(vazba(), "datum", form.datum));
    dalsi->addRow("středisko:", udaj(vazba(), "stredisko", form.stredisko));
    dalsi->addRow("výkon:", udaj(vazba(), "vykon", form.vykon));
    dalsi->addRow("stroj:", udaj(vazba(), "stroj", form.stroj));
    svisle->addLayout(dalsi);
    vazba().viditelne(*panel, [&form] { return form.panel_viditelny; });
    return panel;
}

QWidget* OknoForm3::panel_znacek(const paysheet::TForm3& form) {
    auto* panel = new QGroupBox(paysheet::TForm3::k_nadpis_znacek);
    panel->setObjectName("panel_znacek");
    auto* svisle = new QVBoxLayout(panel);
    for (const char* znacka : paysheet::TForm3::k_znacky)
        svisle->addWidget(new QLabel(znacka));
    vazba().viditelne(*panel, [&form] { return form.panel_znacek_viditelny; });
    return panel;
}

QWidget* OknoForm3::prehled_modulu(const paysheet::TForm3& form) {
    auto* panel = new QGroupBox("sloupce modulů");
    auto* mrizka = new QGridLayout(panel);
    mrizka->setHorizontalSpacing(10);
    for (std::size_t i = 0; i < form.moduly.size(); ++i) {
        const int modul = static_cast<int>(i) + 1;
        const int radek = (modul - 1) % k_radku_prehledu;
        const int vlevo = (modul - 1) / k_radku_prehledu * 4;
        auto* cislo = nadpis_sloupce(QString::number(modul));
        cislo->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        mrizka->addWidget(cislo, radek, vlevo);
        mrizka->addWidget(new QLabel(do_qt(paysheet::modul_slovy(modul))), radek, vlevo + 1);
        mrizka->addWidget(udaj(vazba(), fmt::format("modul_{}", modul), form.moduly[i]), radek,
                          vlevo + 2);
    }
    mrizka->setColumnMinimumWidth(3, 20);
    mrizka->setColumnStretch(7, 1);
    return panel;
}

void OknoForm3::tlacitka(paysheet::TForm3& form) {
    QPushButton& opravit = tlacitko(
        "&Opravit", "btOpravit", [&form] { form.btOpravitClick(); }, Qt::Key_F2);
    vazba().povolene(opravit, [&form] { return form.opravit_povoleno; });
    tlacitko("&Přidat", "btPridat", [&form] { form.btPridatClick(); });
    tlacitko("&Smazat", "btSmazat", [&form] { form.btSmazatClick(); });
    tlacitko("&Tisk", "btTisk", [&form] { form.btTiskClick(); });
    tlacitko("&Zpět", "btZpet", [&form] { form.btZpetClick(); });
}

}  // namespace desktop
