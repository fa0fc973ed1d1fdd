#include "desktop/filtr_pracovniku.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace desktop {

QWidget* filtr_pracovniku(Vazba& vazba, const FiltrPracovniku& popis) {
    auto* radek = new QWidget;
    auto* vodorovne = new QHBoxLayout(radek);
    vodorovne->setContentsMargins(0, 0, 0, 0);
    auto* pole = new QLineEdit;
    pole->setObjectName("filtr");
    pole->setAccessibleName("filtr pracovníků");
    pole->setPlaceholderText("číslo nebo část jména");
    vazba.pole(*pole, popis.filtr);
    QObject::connect(pole, &QLineEdit::textEdited, pole, [filtruj = popis.filtruj] { filtruj(); });
    auto* nazev = new QLabel("&Filtr:");
    nazev->setBuddy(pole);
    auto* zrusit = new QPushButton("&X");
    zrusit->setObjectName("btX");
    zrusit->setAccessibleName("zrušit filtr");
    zrusit->setAutoDefault(false);
    zrusit->setFixedWidth(zrusit->fontMetrics().horizontalAdvance("XXXXX"));
    vazba.tlacitko(*zrusit, popis.zrus);

    auto* trideni = new QComboBox;
    trideni->setObjectName("trideni");
    trideni->setAccessibleName("třídit");
    for (const char* jak : popis.trideni)
        trideni->addItem(QString::fromUtf8(jak));
    vazba.pri_obnove([trideni, ktere = popis.ktere] { trideni->setCurrentIndex(ktere()); });
    QObject::connect(trideni, &QComboBox::activated, trideni, popis.zvol_trideni);
    auto* tridit = new QLabel("T&řídit:");
    tridit->setBuddy(trideni);
    vodorovne->addWidget(nazev);
    vodorovne->addWidget(pole, 1);
    vodorovne->addWidget(zrusit);
    vodorovne->addWidget(tridit);
    vodorovne->addWidget(trideni);
    return radek;
}

}  // namespace desktop
