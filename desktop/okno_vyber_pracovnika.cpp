#include "desktop/okno_vyber_pracovnika.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include "desktop/text_qt.h"

namespace desktop {

OknoVyberPracovnika::OknoVyberPracovnika(workers::TFVyberPracovnika& form, const shell::Session&,
                                         QWidget* rodic)
    : Okno(form, rodic), form_(form) {
    setWindowTitle(do_qt(form.nadpis));
    setSizeGripEnabled(true);
    resize(560, 480);
    auto* filtr = new QLineEdit;
    filtr->setObjectName("filtr");
    filtr->setAccessibleName("číslo nebo část jména");
    filtr->setPlaceholderText("číslo nebo část jména");
    filtr->installEventFilter(this);
    vazba().pole(*filtr, form.filtr);
    connect(filtr, &QLineEdit::textEdited, this, [&form] { form.filtrChange(); });
    auto* popisek = new QLabel("&Hledat:");
    popisek->setBuddy(filtr);
    auto* hledani = new QHBoxLayout;
    hledani->addWidget(popisek);
    hledani->addWidget(filtr, 1);
    obsah().addLayout(hledani);

    auto* tabulka = new QTableView;
    tabulka->setObjectName("pracovnici");
    tabulka->setAccessibleName("pracovníci");
    tabulka->verticalHeader()->hide();
    tabulka->horizontalHeader()->setStretchLastSection(true);
    tabulka->installEventFilter(this);
    vazba().pri_obnove([this] {
        vety_ = form_.vety;
        vety_.columns = {"číslo", "příjmení", "jméno", "poměr do"};
    });
    vazba().tabulka(*tabulka, vety_);
    vazba().radek(*tabulka, form.radek, [this](int novy) { form_.vyber_radek(novy); });
    connect(tabulka, &QTableView::doubleClicked, this, [this] { form_.acVybratExecute(); });
    obsah().addWidget(tabulka, 1);

    QPushButton& vybrat = tlacitko(
        "&Vybrat", "acVybrat", [this] { form_.acVybratExecute(); }, Qt::Key_F2);
    vazba().povolene(vybrat, [this] { return form_.radek >= 0; });
    tlacitko("&Zpět", "acZpet", [this] { form_.acZpetExecute(); });
    odchod(form.zavreno, [this] { form_.acZpetExecute(); });
    filtr->setFocus();
}

/// Enter picks; the arrows move in the list while the filter is typed.
bool OknoVyberPracovnika::eventFilter(QObject* prvek, QEvent* udalost) {
    if (udalost->type() != QEvent::KeyPress) return Okno::eventFilter(prvek, udalost);
    switch (static_cast<QKeyEvent*>(udalost)->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            form_.acVybratExecute();
            return true;
        case Qt::Key_Up:
        case Qt::Key_Down: {
            if (!qobject_cast<QLineEdit*>(prvek)) break;
            const bool dolu = static_cast<QKeyEvent*>(udalost)->key() == Qt::Key_Down;
            const int novy = form_.radek + (dolu ? 1 : -1);
            if (novy >= 0 && novy < static_cast<int>(form_.vety.rows.size())) {
                form_.vyber_radek(novy);
            }
            return true;
        }
        default:
            break;
    }
    return Okno::eventFilter(prvek, udalost);
}

}  // namespace desktop
