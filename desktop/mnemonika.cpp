#include "desktop/mnemonika.h"

namespace desktop {

namespace {

bool je_pismeno(QChar znak) {
    return znak.toLower() >= QChar('a') && znak.toLower() <= QChar('z');
}

}  // namespace

QString Mnemoniky::pridej(const QString& popisek) {
    for (const bool jen_zacatky : {true, false}) {
        for (qsizetype i = 0; i < popisek.size(); ++i) {
            const bool zacatek = i == 0 || popisek[i - 1].isSpace();
            if ((jen_zacatky && !zacatek) || !je_pismeno(popisek[i]) ||
                obsazene_.contains(popisek[i].toLower())) {
                continue;
            }
            obsazene_ += popisek[i].toLower();
            return popisek.left(i) + '&' + popisek.mid(i);
        }
    }
    return popisek;
}

}  // namespace desktop
