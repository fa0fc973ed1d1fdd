#include "desktop/okno.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/posuvny_obsah.h"
#include "desktop/text_qt.h"

namespace desktop {

Okno::Okno(base::Obrazovka& obrazovka, QWidget* rodic)
    : QDialog(rodic), obrazovka_(obrazovka), obsah_(new QVBoxLayout), tlacitka_(new QHBoxLayout) {
    setObjectName(do_qt(obrazovka.jmeno()));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    obsah_->setContentsMargins(0, 0, 0, 0);
    auto* cele = new QVBoxLayout(this);
    cele->addWidget(new PosuvnyObsah(*obsah_, [this] { return misto_tlacitek(); }), 1);
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
    zalom_tlacitka();
    layout()->activate();
    resize(size().boundedTo(nejvetsi_okno(*this)));
    QDialog::showEvent(udalost);
}

/// The content above the rows of buttons.
QBoxLayout& Okno::rozlozeni() const {
    return static_cast<QBoxLayout&>(*layout());
}

QSize Okno::misto_tlacitek() const {
    const QMargins okraje = rozlozeni().contentsMargins();
    QSize misto(okraje.left() + okraje.right(), okraje.top() + okraje.bottom());
    for (int i = 1; i < rozlozeni().count(); ++i)
        misto.rheight() += rozlozeni().spacing() + rozlozeni().itemAt(i)->sizeHint().height();
    return misto;
}

// Buttons that large letters make too wide for one row begin in a row above it.
void Okno::zalom_tlacitka() {
    const int misto = nejvetsi_okno(*this).width() - misto_tlacitek().width();
    if (tlacitka_->minimumSize().width() <= misto) return;
    auto* horni = new QHBoxLayout;
    horni->addStretch(1);
    constexpr int k_prvni = 1;  // behind the stretch
    while (tlacitka_->minimumSize().width() > misto)
        horni->addItem(tlacitka_->takeAt(k_prvni));
    rozlozeni().insertLayout(k_prvni, horni);
    rozlozeni().itemAt(0)->widget()->updateGeometry();  // the content has a row less
}

}  // namespace desktop
