#include "desktop/klavesy_tabulky.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace desktop {

KlavesyPrvku::KlavesyPrvku(QWidget& prvek) : QObject(&prvek) {
    prvek.installEventFilter(this);
}

KlavesyPrvku& KlavesyPrvku::na(Qt::Key klavesa, Vazba::Metoda metoda) {
    metody_[klavesa] = std::move(metoda);
    return *this;
}

KlavesyPrvku& KlavesyPrvku::psani(std::function<QLineEdit*(QChar znak)> kam) {
    kam_ = std::move(kam);
    return *this;
}

bool KlavesyPrvku::eventFilter(QObject* prvek, QEvent* udalost) {
    const bool stisk = udalost->type() == QEvent::KeyPress;
    if (!stisk && udalost->type() != QEvent::ShortcutOverride) {
        return QObject::eventFilter(prvek, udalost);
    }
    auto& klavesa = static_cast<QKeyEvent&>(*udalost);
    const bool bez_prepinacu = !(klavesa.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier));
    const auto metoda = metody_.find(klavesa.key());
    if (bez_prepinacu && metoda != metody_.end()) {
        if (stisk) {
            metoda->second();
        } else {
            klavesa.accept();
        }
        return true;
    }
    return stisk && bez_prepinacu && presmeruj(klavesa);
}

bool KlavesyPrvku::presmeruj(QKeyEvent& klavesa) const {
    const QString text = klavesa.text();
    if (!kam_ || text.isEmpty()) return false;
    QLineEdit* pole = kam_(text[0]);
    if (!pole) return false;
    pole->setFocus(Qt::ShortcutFocusReason);
    pole->selectAll();
    QApplication::sendEvent(pole, &klavesa);
    return true;
}

void klavesy_seznamu(QWidget& seznam, const Vazba::Metoda& pridat, const Vazba::Metoda& opravit,
                     const Vazba::Metoda& smazat) {
    auto* klavesy = new KlavesyPrvku(seznam);
    klavesy->na(Qt::Key_Insert, pridat).na(Qt::Key_Delete, smazat);
    for (const Qt::Key klavesa : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_F2})
        klavesy->na(klavesa, opravit);
}

}  // namespace desktop
