#include "desktop/poloha_okna.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>

#include "desktop/text_qt.h"

namespace desktop {

base::PolohaOkna poloha_okna(const QWidget& okno) {
    const QRect misto = okno.isMaximized() ? okno.normalGeometry() : okno.geometry();
    return {okno.isMaximized(), misto.top(), misto.left(), misto.width(), misto.height()};
}

void umisti_okno(QWidget& okno, const base::PolohaOkna& poloha) {
    const QRect plocha = QGuiApplication::primaryScreen()->availableVirtualGeometry();
    const int sirka = std::min(poloha.sirka, plocha.width());
    const int vyska = std::min(poloha.vyska, plocha.height());
    const int vlevo = std::clamp(poloha.vlevo, plocha.left(), plocha.right() + 1 - sirka);
    const int nahore = std::clamp(poloha.nahore, plocha.top(), plocha.bottom() + 1 - vyska);
    okno.setGeometry(vlevo, nahore, sirka, vyska);
    if (poloha.maximalizovano) okno.setWindowState(okno.windowState() | Qt::WindowMaximized);
}

PametOken::PametOken(const shell::Session& session) : zapnuta_(session.velmar.pamatovat_okna) {}

void PametOken::obnov(QWidget& okno) const {
    if (!zapnuta_) return;
    const auto poloha =
        base::nacti_okno(base::slozka_uzivatele(), base::k_program, z_qt(okno.objectName()));
    if (poloha) umisti_okno(okno, *poloha);
}

void PametOken::uloz(const QWidget& okno) const {
    if (!zapnuta_) return;
    base::uloz_okno(base::slozka_uzivatele(), base::k_program, z_qt(okno.objectName()),
                    poloha_okna(okno));
}

}  // namespace desktop
