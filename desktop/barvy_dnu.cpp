#include "desktop/barvy_dnu.h"

#include <QPalette>

namespace desktop {

namespace {

/// The background of fields with a share of another colour, 0 to 1.
QColor prolni(const QPalette& paleta, const QColor& barva, float podil) {
    const QColor podklad = paleta.color(QPalette::Base);
    const auto slozka = [podil](float a, float b) { return a * (1 - podil) + b * podil; };
    return QColor::fromRgbF(slozka(podklad.redF(), barva.redF()),
                            slozka(podklad.greenF(), barva.greenF()),
                            slozka(podklad.blueF(), barva.blueF()));
}

}  // namespace

QColor barva_vikendu(const QPalette& paleta) {
    return prolni(paleta, QColor("#f2d64b"), 0.35F);
}

QColor barva_svatku(const QPalette& paleta) {
    return prolni(paleta, QColor("#e8925a"), 0.40F);
}

QColor barva_bez_prace(const QPalette& paleta) {
    const bool tmava = paleta.color(QPalette::Base).lightnessF() < 0.5F;
    return QColor(tmava ? "#ff9c8f" : "#b3261e");
}

}  // namespace desktop
