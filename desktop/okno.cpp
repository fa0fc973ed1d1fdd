#include "desktop/okno.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/text_qt.h"

namespace desktop {

Okno::Okno(base::Obrazovka& obrazovka, QWidget* rodic)
    : QDialog(rodic), obrazovka_(obrazovka), obsah_(new QVBoxLayout), tlacitka_(new QHBoxLayout) {
    setObjectName(do_qt(obrazovka.jmeno()));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    auto* cele = new QVBoxLayout(this);
    cele->addLayout(obsah_, 1);
    cele->addLayout(tlacitka_);
    tlacitka_->addStretch(1);
    obrazovka_.zmeneno = [this] { obnov(); };
}

Okno::~Okno() {
    obrazovka_.zmeneno = nullptr;
}

void Okno::obnov() {
    vazba_.obnov();
    if (zavreno_ && *zavreno_) done(QDialog::Accepted);
}

void Okno::reject() {
    if (odejdi_) odejdi_();
}

void Okno::odchod(const bool& zavreno, Vazba::Metoda odejdi) {
    zavreno_ = &zavreno;
    odejdi_ = std::move(odejdi);
}

QPushButton& Okno::tlacitko(const QString& popisek, const char* jmeno, Vazba::Metoda metoda,
                            const QKeySequence& zkratka) {
    auto* nove = new QPushButton(popisek);
    nove->setObjectName(jmeno);
    nove->setAutoDefault(false);
    if (!zkratka.isEmpty()) nove->setToolTip(zkratka.toString(QKeySequence::NativeText));
    vazba_.tlacitko(*nove, std::move(metoda), zkratka);
    tlacitka_->addWidget(nove);
    return *nove;
}

void Okno::keyPressEvent(QKeyEvent* klavesa) {
    const bool enter = klavesa->key() == Qt::Key_Return || klavesa->key() == Qt::Key_Enter;
    if (!enter) {
        QDialog::keyPressEvent(klavesa);
        return;
    }
    if (auto* stisknute = qobject_cast<QAbstractButton*>(focusWidget())) {
        stisknute->click();
    } else {
        focusNextChild();
    }
}

void Okno::showEvent(QShowEvent* udalost) {
    obnov();
    QDialog::showEvent(udalost);
}

}  // namespace desktop
