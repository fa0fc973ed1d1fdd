#include "desktop/okno_form90.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <fmt/format.h>

#include "desktop/prvky.h"
#include "desktop/text_qt.h"
#include "desktop/vzhled.h"

namespace desktop {

namespace {

constexpr int k_cislic_kc = 6;

}  // namespace

OknoForm90::OknoForm90(wages::TForm90& form, const shell::Session&, QWidget* rodic)
    : Okno(form, rodic) {
    setWindowTitle(do_qt(form.nadpis));
    auto* mrizka = new QGridLayout;
    int sloupec = 0;
    for (const char* nadpis : {"Pásmo", "Dnů", "Kč na den", "Kč"}) {
        const Qt::Alignment vpravo = sloupec > 0 ? Qt::AlignRight : Qt::AlignLeft;
        mrizka->addWidget(new QLabel(nadpis), 0, sloupec++, vpravo);
    }
    for (std::size_t i = 0; i < form.pasma.size(); ++i) {
        wages::TForm90::Pasmo& p = form.pasma[i];
        const int radek = static_cast<int>(i) + 1;
        auto* pole = ciselne_pole(fmt::format("scKcDenne{}", radek),
                                  fmt::format("Kč na den v {}. pásmu", radek), k_cislic_kc);
        vazba().pole(*pole, p.kc_denne, klavesy_cele(k_cislic_kc), [&form] { form.poleExit(); });
        auto* kc = udaj(vazba(), fmt::format("kc{}", radek), p.kc);
        kc->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        kc->setMinimumWidth(kc->fontMetrics().horizontalAdvance("000 000 000,00"));
        mrizka->addWidget(udaj(vazba(), fmt::format("popisek{}", radek), p.popisek), radek, 0);
        mrizka->addWidget(udaj(vazba(), fmt::format("dnu{}", radek), p.dnu), radek, 1,
                          Qt::AlignRight | Qt::AlignVCenter);
        mrizka->addWidget(pole, radek, 2);
        mrizka->addWidget(kc, radek, 3);
    }
    mrizka->setColumnMinimumWidth(0, fontMetrics().horizontalAdvance("31-60    "));
    mrizka->setColumnStretch(4, 1);
    obsah().addLayout(mrizka);
    auto* celkem = udaj(vazba(), "lbCelkem", form.lbCelkem);
    jako_dulezity(*celkem);
    obsah().addWidget(celkem);
    obsah().addStretch(1);
    tlacitko(
        "&Uložit", "acUlozit", [&form] { form.acUlozitExecute(); }, Qt::Key_F2);
    tlacitko("&Zpět", "acZpet", [&form] { form.acZpetExecute(); });
    odchod(form.zavreno, [&form] { form.acZpetExecute(); });
    vazba().fokus(*this, form.fokus);
}

}  // namespace desktop
