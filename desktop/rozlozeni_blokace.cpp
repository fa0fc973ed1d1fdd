#include "desktop/rozlozeni_blokace.h"

#include <QGridLayout>
#include <QLabel>
#include <fmt/format.h>

namespace desktop {

namespace {

QLabel* nadpis_skupiny(const char* text) {
    auto* nadpis = new QLabel(text);
    QFont pismo = nadpis->font();
    pismo.setBold(true);
    nadpis->setFont(pismo);
    return nadpis;
}

}  // namespace

QWidget* rozlozeni_blokace(const PrvekBlokace& prvek) {
    auto* vse = new QWidget;
    auto* mrizka = new QGridLayout(vse);
    mrizka->setContentsMargins(0, 0, 0, 0);
    mrizka->setHorizontalSpacing(16);
    mrizka->addWidget(new QLabel(payrun::k_blokace_absolutne), 0, 1, Qt::AlignRight);
    mrizka->addWidget(new QLabel(payrun::k_blokace_rozdil), 0, 2, Qt::AlignRight);
    std::string skupina;
    int radek = 1;
    for (std::size_t i = 0; i < payrun::k_druhy_blokace.size(); ++i) {
        const payrun::DruhBlokace& druh = payrun::k_druhy_blokace[i];
        if (skupina != druh.skupina) {
            skupina = druh.skupina;
            mrizka->addWidget(nadpis_skupiny(druh.skupina), radek++, 0, 1, 3);
        }
        const auto jeden = [&](const char* pripona, const char* sloupec, bool rozdil) {
            return prvek(druh.pole + std::string(pripona),
                         fmt::format("{} {} {}", skupina, druh.popisek, sloupec), i, rozdil);
        };
        mrizka->addWidget(new QLabel(druh.popisek), radek, 0);
        mrizka->addWidget(jeden("_abs", payrun::k_blokace_absolutne, false), radek, 1);
        mrizka->addWidget(jeden("_dif", payrun::k_blokace_rozdil, true), radek++, 2);
    }
    mrizka->setRowStretch(radek, 1);
    mrizka->setColumnStretch(0, 1);
    return vse;
}

}  // namespace desktop
