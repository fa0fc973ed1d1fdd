#include "desktop/okno_form51.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "desktop/prvky.h"
#include "desktop/rozlozeni_blokace.h"
#include "desktop/text_qt.h"
#include "desktop/vzhled.h"

namespace desktop {

namespace {

constexpr int k_znaku = 10;

}  // namespace

OknoForm51::OknoForm51(payrun::TForm51& form, const shell::Session&, QWidget* rodic)
    : Okno(form, rodic) {
    setWindowTitle(do_qt(form.nadpis));
    auto* nadpis = new QLabel(do_qt(form.nadpis));
    jako_nadpis(*nadpis);
    obsah().addWidget(nadpis);
    auto* pracovnik = new QFormLayout;
    pracovnik->addRow("Čí&slo pracovníka:",
                      pole(form, "Cislo_pracovnika", "číslo pracovníka", form.cislo_pracovnika));
    obsah().addLayout(pracovnik);
    obsah().addWidget(
        rozlozeni_blokace([this, &form](const std::string& jmeno, const std::string& popis,
                                        std::size_t druh, bool rozdil) {
            auto& [abs, dif] = form.hodnoty[druh];
            return pole(form, jmeno, popis, rozdil ? dif : abs);
        }));
    obsah().addStretch(1);
    tlacitko(
        "&Uložit", "Button2", [&form] { form.Button2Click(); }, Qt::Key_F2);
    tlacitko("&Zpět", "Button1", [&form] { form.Button1Click(); });
    odchod(form.zavreno, [&form] { form.Button1Click(); });
    vazba().fokus(*this, form.fokus);
}

QLineEdit* OknoForm51::pole(payrun::TForm51& form, const std::string& jmeno,
                            const std::string& pristupny_nazev, std::string& hodnota) {
    QLineEdit* pole = ciselne_pole(jmeno, pristupny_nazev, k_znaku);
    vazba().pole(*pole, hodnota, [&form](char znak, std::string_view text) {
        return form.povol_klavesu(znak, text);
    });
    return pole;
}

}  // namespace desktop
