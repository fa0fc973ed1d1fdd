#include "desktop/okno_form7.h"

#include <QCheckBox>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/text_qt.h"
#include "desktop/vzhled.h"

namespace desktop {

namespace {

using workers::StrankaKarty;
using workers::TForm7;

constexpr int k_radku_zprav = 7;

/// Captions of the tabs with their keys.
constexpr const char* k_zalozky[workers::k_stranek_karty] = {
    "&Osobní data", "&Daňové údaje", "&Průměry",       "&Volitelná hlediska",
    "&Texty",       "ČSS&Z",         "ČSSZ &cizozemci"};

}  // namespace

OknoForm7::OknoForm7(TForm7& form, const shell::Session&, QWidget* rodic)
    : Okno(form, rodic), form_(form) {
    setSizeGripEnabled(true);
    vazba().pri_obnove([this] { setWindowTitle(do_qt(form_.nadpis)); });
    auto* stranky = new QTabWidget;
    stranky->setObjectName("stranky");
    for (int i = 0; i < workers::k_stranek_karty; ++i)
        stranky->addTab(stranka(static_cast<StrankaKarty>(i)), k_zalozky[i]);
    obsah().addWidget(stranky, 1);
    zpravy();
    prubeh();

    QPushButton& ulozit = tlacitko("&Uložit", "acUlozit", [this] { form_.acUlozitExecute(); });
    ulozit.setToolTip("F2");
    vazba().povolene(ulozit, [this] { return form_.ulozit_povoleno; });
    // Not the button's own key: the field under the cursor may just have been mended, which the
    // screen learns by leaving it.
    connect(new QShortcut(Qt::Key_F2, this), &QShortcut::activated, this,
            [this] { form_.acUlozitExecute(); });
    connect(new QShortcut(Qt::Key_F6, this), &QShortcut::activated, this,
            [this] { form_.dalsi_chyba(); });
    tlacitko("Zpě&t", "acZpet", [this] { form_.acZpetExecute(); });
    odchod(form_.zavreno, [this] { form_.acZpetExecute(); });

    // The page first: a field of a hidden page would not take the focus.
    vazba().stranka(
        *stranky, [this] { return static_cast<int>(form_.stranka); },
        [this](int ktera) { form_.stranka = static_cast<StrankaKarty>(ktera); });
    vazba().fokus(*this, form_.fokus);
    vazba().pri_obnove([this] {
        const QString jmeno = do_qt(std::exchange(form_.vybrat_text, {}));
        if (jmeno.isEmpty()) return;
        if (auto* pole = findChild<QLineEdit*>(jmeno)) pole->selectAll();
    });
}

void OknoForm7::zpravy() {
    auto* seznam = new QListWidget;
    seznam->setObjectName("chyby");
    seznam->setAccessibleName("chyby a upozornění");
    seznam->setToolTip("Enter nebo klepnutí přejde na údaj, F6 odkudkoliv na další");
    seznam->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    seznam->installEventFilter(this);
    connect(seznam, &QListWidget::itemClicked, this,
            [this, seznam] { form_.vyber_chybu(seznam->currentRow()); });
    vazba().pri_obnove([this, seznam] {
        vypln_zpravy(*seznam);
        const int radku = std::min(seznam->count(), k_radku_zprav);
        seznam->setFixedHeight((seznam->fontMetrics().height() + 1) * radku +
                               2 * seznam->frameWidth());
        seznam->setVisible(radku > 0);
    });
    obsah().addWidget(seznam);
}

void OknoForm7::vypln_zpravy(QListWidget& seznam) const {
    QStringList nove, stare;
    for (const auto* zdroj : {&form_.chyby, &form_.napovedy}) {
        for (const workers::ChybaKarty& chyba : *zdroj)
            nove += do_qt(chyba.text);
    }
    for (int i = 0; i < seznam.count(); ++i)
        stare += seznam.item(i)->text();
    const int chyb = static_cast<int>(form_.chyby.size());
    if (nove == stare && seznam.property("chyb").toInt() == chyb) return;
    seznam.setProperty("chyb", chyb);
    seznam.clear();
    seznam.addItems(nove);
    for (int i = 0; i < seznam.count(); ++i)
        seznam.item(i)->setForeground(i < chyb ? barva_upozorneni(palette())
                                               : barva_napovedy(palette()));
}

void OknoForm7::prubeh() {
    auto* text = new QLabel;
    text->setObjectName("postup_text");
    vazba().text(*text, [this] { return form_.postup_text; });
    auto* lista = new QProgressBar;
    lista->setObjectName("postup");
    lista->setAccessibleName("průběh oprav v ostatních souborech");
    vazba().pri_obnove([this, lista] { lista->setValue(form_.postup); });
    for (QWidget* prvek : {static_cast<QWidget*>(text), static_cast<QWidget*>(lista)}) {
        vazba().viditelne(*prvek, [this] { return form_.postup_viditelny; });
        obsah().addWidget(prvek);
    }
}

void OknoForm7::zvol_kalendar(const QObject* prvek) {
    const QString ktery = prvek->property(k_kalendar).toString();
    if (ktery == "Id_rpd") form_.acRpdExecute();
    if (ktery == "Id_rpd_min") form_.acRpdMinExecute();
}

/// Entering and leaving a field, a click or Insert on a calendar, Enter on a message.
bool OknoForm7::eventFilter(QObject* prvek, QEvent* udalost) {
    const std::string jmeno = z_qt(prvek->objectName());
    switch (udalost->type()) {
        case QEvent::FocusIn:
            if (prvek->property(k_pole_karty).toBool()) form_.vstup_do_pole(jmeno);
            break;
        case QEvent::FocusOut:
            if (prvek->property(k_pole_karty).toBool() &&
                static_cast<QFocusEvent*>(udalost)->reason() != Qt::PopupFocusReason) {
                form_.opusteni_pole(jmeno);
            }
            break;
        case QEvent::MouseButtonRelease:
            zvol_kalendar(prvek);
            break;
        case QEvent::KeyPress: {
            const int klavesa = static_cast<QKeyEvent*>(udalost)->key();
            if (klavesa == Qt::Key_Insert) zvol_kalendar(prvek);
            const bool enter = klavesa == Qt::Key_Return || klavesa == Qt::Key_Enter;
            // A box is ticked by the space bar; Enter goes on, as from any field.
            if (enter && qobject_cast<QCheckBox*>(prvek)) {
                focusNextChild();
                return true;
            }
            if (auto* seznam = qobject_cast<QListWidget*>(prvek); seznam && enter) {
                form_.vyber_chybu(seznam->currentRow());
                return true;
            }
            break;
        }
        default:
            break;
    }
    return Okno::eventFilter(prvek, udalost);
}

}  // namespace desktop
