#include "desktop/prvky.h"

#include <QLabel>
#include <QLineEdit>

#include "desktop/text_qt.h"

namespace desktop {

QLineEdit* ciselne_pole(const std::string& jmeno, const std::string& pristupny_nazev, int znaku) {
    auto* pole = new QLineEdit;
    pole->setObjectName(do_qt(jmeno));
    pole->setAccessibleName(do_qt(pristupny_nazev));
    pole->setAlignment(Qt::AlignRight);
    const int okraje = 2;
    pole->setFixedWidth(pole->fontMetrics().horizontalAdvance(QString(znaku + okraje, '0')));
    return pole;
}

QLabel* udaj(Vazba& vazba, const std::string& jmeno, const std::string& hodnota) {
    auto* popisek = new QLabel;
    popisek->setObjectName(do_qt(jmeno));
    popisek->setTextFormat(Qt::PlainText);
    vazba.text(*popisek, [&hodnota] { return hodnota; });
    return popisek;
}

}  // namespace desktop
