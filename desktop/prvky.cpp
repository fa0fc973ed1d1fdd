#include "desktop/prvky.h"

#include <QLabel>
#include <QLineEdit>

#include "base/klavesy.h"
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

Vazba::Filtr klavesy_desetinne(int celych) {
    return [celych](char znak, std::string_view text) {
        return base::hlidej_desetinne_cislo_klavesy(
            znak, text, base::ZnamenkoRezim::minus_na_zacatku, celych, 2);
    };
}

Vazba::Filtr klavesy_cele(int cislic) {
    return [cislic](char znak, std::string_view text) {
        return base::hlidej_cele_cislo_klavesy(znak, text, base::ZnamenkoRezim::bez_minus, cislic);
    };
}

QLabel* udaj(Vazba& vazba, const std::string& jmeno, const std::string& hodnota) {
    auto* popisek = new QLabel;
    popisek->setObjectName(do_qt(jmeno));
    popisek->setTextFormat(Qt::PlainText);
    vazba.text(*popisek, [&hodnota] { return hodnota; });
    return popisek;
}

}  // namespace desktop
