#include "desktop/okno_form1.h"

#include <QAbstractItemView>
#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

#include "desktop/mnemonika.h"
#include "desktop/poloha_okna.h"
#include "desktop/posuvny_obsah.h"
#include "desktop/rok_okno.h"
#include "desktop/text_qt.h"
#include "desktop/vzhled.h"
#include "menu/akce.h"
#include "menu/prehled_roku.h"

namespace desktop {

namespace {

using menu::Akce;
using menu::Skupina;

constexpr QSize k_pozadi{128, 80};
constexpr std::string_view k_restart = "acRestart";

/// Columns of the action buttons, each a part of the month's and the year's road.
const std::vector<std::vector<Skupina>> k_sloupce{
    {Skupina::evidence}, {Skupina::hrube_mzdy, Skupina::vypocet},
    {Skupina::vystupy},  {Skupina::uzaverka, Skupina::rok},
    {Skupina::vykazy},   {Skupina::nastaveni, Skupina::program},
};

std::vector<Akce> akce_skupiny(Skupina skupina) {
    std::vector<Akce> akce;
    for (const Akce& jedna : menu::vsechny_akce()) {
        if (jedna.skupina == skupina && *jedna.popisek) akce.push_back(jedna);
    }
    return akce;
}

}  // namespace

OknoForm1::OknoForm1(menu::TForm1& form, shell::Session& session) : form_(form), session_(session) {
    setObjectName("TForm1");
    auto* svisle = new QVBoxLayout;
    svisle->setSpacing(10);
    svisle->addWidget(hlavicka());
    rok_ = new RokOkno;
    rok_->pri_vyberu = [this](int mesic) { mesic_->setValue(mesic); };
    rok_->pri_otevreni = [this](int mesic) {
        mesic_->setValue(mesic);
        proved(*menu::najdi_akci("acProhlizetZakladniSoubory"));
    };
    svisle->addWidget(rok_, 1);
    svisle->addWidget(tlacitka_akci());
    setCentralWidget(
        new PosuvnyObsah(*svisle, [this] { return QSize(0, menuBar()->sizeHint().height()); }));
    hlavni_nabidka();
    vazba_.pri_obnove([this] {
        setWindowTitle(do_qt(form_.titulek));
        rok_->vyber(form_.mesic);
    });
    form_.zmeneno = [this] { obnov(); };
    mesic_->setFocus();
}

OknoForm1::~OknoForm1() {
    form_.zmeneno = nullptr;
}

void OknoForm1::otevri() {
    resize(QSize(1280, 700).boundedTo(nejvetsi_okno(*this)));
    if (form_.poloha_okna) umisti_okno(*this, *form_.poloha_okna);
    obnov();
    show();
    form_.FormShow();
    obnov_rok();
}

QWidget* OknoForm1::hlavicka() {
    auto* hlavicka = new QWidget;
    auto* vodorovne = new QHBoxLayout(hlavicka);
    vodorovne->setContentsMargins(0, 0, 0, 0);
    auto* vlevo = new QVBoxLayout;
    vlevo->addWidget(vyber_firmy());
    krok_ = new QLabel;
    krok_->setObjectName("dalsi_krok");
    jako_dulezity(*krok_);
    vlevo->addWidget(krok_);
    vlevo->addWidget(pole_mesice());
    vodorovne->addLayout(vlevo, 1);

    pozadi_ = new QLabel;
    pozadi_->setObjectName("Image1");
    pozadi_->setFixedSize(k_pozadi);
    pozadi_->setAlignment(Qt::AlignCenter);
    pozadi_->setToolTip("Dvojím klepnutím vyberete obrázek firmy.");
    pozadi_->installEventFilter(this);
    vodorovne->addWidget(pozadi_);
    vazba_.pri_obnove([this] { obnov_pozadi(); });
    return hlavicka;
}

QWidget* OknoForm1::vyber_firmy() {
    auto* radek = new QWidget;
    auto* vodorovne = new QHBoxLayout(radek);
    vodorovne->setContentsMargins(0, 0, 0, 0);
    auto* firma = new QLabel;
    firma->setObjectName("lbFirma");
    jako_nadpis(*firma);
    vazba_.text(*firma, [this] { return form_.lbFirma; });
    vazba_.viditelne(*firma, [this] { return !form_.seznam_viditelny; });
    vodorovne->addWidget(firma);

    firmy_ = new QComboBox;
    firmy_->setObjectName("ComboBox1");
    firmy_->setAccessibleName("firma");
    firmy_->setMinimumContentsLength(20);
    connect(firmy_, &QComboBox::textActivated, this, [this](const QString& text) {
        form_.ComboBox1Change(z_qt(text));
        obnov_rok();
    });
    firmy_->installEventFilter(this);
    firmy_->view()->installEventFilter(this);
    vazba_.pri_obnove([this] { obnov_seznam_firem(); });
    vodorovne->addWidget(firmy_);

    auto* koren = new QPushButton;
    koren->setObjectName("lbRoot");
    koren->setFlat(true);
    koren->setToolTip("Změnit kořenovou složku dat");
    vazba_.pri_obnove([this, koren] { koren->setText(popisek(form_.lbRoot)); });
    vazba_.viditelne(*koren, [this] { return form_.seznam_viditelny; });
    vazba_.tlacitko(*koren, [this] { form_.lbRootClick(); });
    vodorovne->addWidget(koren);

    auto* zmenit = new QPushButton("Z&měnit");
    zmenit->setObjectName("acZmenitFirmu_firma");
    vazba_.tlacitko(*zmenit, [this] { proved(*menu::najdi_akci("acZmenitFirmu")); });
    vazba_.viditelne(*zmenit, [this] { return form_.zmenit_viditelne; });
    vodorovne->addWidget(zmenit);
    vodorovne->addStretch(1);
    return radek;
}

QWidget* OknoForm1::pole_mesice() {
    auto* radek = new QWidget;
    auto* vodorovne = new QHBoxLayout(radek);
    vodorovne->setContentsMargins(0, 0, 0, 0);
    mesic_ = new QSpinBox;
    mesic_->setObjectName("mesic");
    mesic_->setAccessibleName("měsíc");
    mesic_->setRange(1, 12);
    auto* nazev = new QLabel("Mě&síc:");
    nazev->setBuddy(mesic_);
    vodorovne->addWidget(nazev);
    vodorovne->addWidget(mesic_);
    vazba_.cislo(*mesic_, form_.mesic, [this] { rok_->vyber(form_.mesic); });
    vazba_.pri_obnove([this] {
        if (form_.fokus_na_mesici) mesic_->setFocus();
        form_.fokus_na_mesici = false;
    });

    auto* editace = new QLabel("Editace sestava zapnuta");
    editace->setObjectName("editace_sestav");
    jako_upozorneni(*editace);
    vazba_.viditelne(*editace, [this] { return form_.editace_sestav; });
    vodorovne->addWidget(editace);
    vodorovne->addStretch(1);
    return radek;
}

QWidget* OknoForm1::tlacitka_akci() {
    auto* vse = new QWidget;
    auto* vodorovne = new QHBoxLayout(vse);
    vodorovne->setContentsMargins(0, 0, 0, 0);
    for (const auto& skupiny : k_sloupce) {
        auto* sloupec = new QVBoxLayout;
        for (const Skupina skupina : skupiny)
            sloupec->addWidget(skupina_akci(skupina));
        sloupec->addStretch(1);
        vodorovne->addLayout(sloupec, 1);
    }
    return vse;
}

QWidget* OknoForm1::skupina_akci(Skupina skupina) {
    auto* ramec = new QGroupBox(QString::fromUtf8(menu::skupina_slovy(skupina)));
    auto* svisle = new QVBoxLayout(ramec);
    svisle->setSpacing(3);
    for (const Akce& akce : akce_skupiny(skupina)) {
        auto* nove = new QPushButton(popisek(akce.popisek));
        nove->setObjectName(akce.nazev);
        nove->setStyleSheet("text-align: left; padding: 3px 8px;");
        vazba_.tlacitko(*nove, [this, akce] { proved(akce); });
        svisle->addWidget(nove);
    }
    return ramec;
}

// Every action with a caption stands in the menu. Those without have their shortcuts; the restart
// has neither, so the menu names it.
void OknoForm1::hlavni_nabidka() {
    Mnemoniky hlavni("ms");  // the month box and the button "Změnit"
    for (int i = 0; i <= static_cast<int>(Skupina::program); ++i) {
        const auto skupina = static_cast<Skupina>(i);
        QMenu* nabidka = menuBar()->addMenu(hlavni.pridej(popisek(menu::skupina_slovy(skupina))));
        Mnemoniky polozky;
        for (const Akce& akce : menu::vsechny_akce()) {
            if (akce.skupina != skupina) continue;
            auto* polozka = new QAction(polozky.pridej(popisek(akce.popisek)), this);
            polozka->setObjectName(akce.nazev);
            polozka->setShortcut(QKeySequence(QString::fromUtf8(akce.zkratka)));
            connect(polozka, &QAction::triggered, this, [this, akce] { proved(akce); });
            addAction(polozka);
            if (akce.nazev == k_restart) polozka->setText(polozky.pridej("Restart"));
            if (!polozka->text().isEmpty()) nabidka->addAction(polozka);
        }
    }
}

void OknoForm1::proved(const Akce& akce) {
    form_.proved_akci(akce.nazev);
    obnov_rok();
}

void OknoForm1::obnov() {
    vazba_.obnov();
    if (!form_.zavreno) return;
    form_.poloha_okna = poloha_okna(*this);
    hide();
    QCoreApplication::quit();
}

// The list drops down at the moment when it appears.
void OknoForm1::obnov_seznam_firem() {
    const bool nove_videt = form_.seznam_viditelny && firmy_->isHidden();
    firmy_->setVisible(form_.seznam_viditelny);
    // Filled anew under the operator's hands, a list that is down would lose his place in it.
    if (!nove_videt) return;
    const QSignalBlocker ticho(firmy_);
    firmy_->clear();
    for (const std::string& firma : form_.seznam_firem)
        firmy_->addItem(do_qt(firma));
    firmy_->setCurrentText(do_qt(form_.vybrana_firma));
    firmy_->setFocus();
    firmy_->showPopup();
}

void OknoForm1::obnov_pozadi() {
    if (form_.pozadi == nactene_pozadi_) return;
    nactene_pozadi_ = form_.pozadi;
    QPixmap obrazek(do_qt(form_.pozadi));
    if (!obrazek.isNull()) {
        const qreal bodu = devicePixelRatioF();
        obrazek = obrazek.scaled(k_pozadi * bodu, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        obrazek.setDevicePixelRatio(bodu);
    }
    pozadi_->setPixmap(obrazek);
}

void OknoForm1::obnov_rok() {
    std::array<menu::PrehledMesice, 12> rok{};
    for (std::size_t i = 0; i < rok.size(); ++i)
        rok[i].mesic = static_cast<int>(i) + 1;
    QString krok;
    if (!session_.firma.empty()) {
        rok = menu::prehled_roku(session_);
        krok = do_qt(menu::dalsi_krok(rok, session_.aktivni_mesic));
    }
    rok_->ukaz(rok);
    krok_->setText(krok);
}

void OknoForm1::closeEvent(QCloseEvent* udalost) {
    form_.proved_akci("acKonec");
    udalost->setAccepted(form_.zavreno);
}

bool OknoForm1::eventFilter(QObject* prvek, QEvent* udalost) {
    if (prvek == pozadi_ && udalost->type() == QEvent::MouseButtonDblClick) form_.Image1DblClick();
    if (prvek == firmy_ || prvek == firmy_->view()) return klavesa_v_seznamu(*udalost);
    return QMainWindow::eventFilter(prvek, udalost);
}

// Escape in the list of companies leaves the list, not the program, whose shortcut it is otherwise.
bool OknoForm1::klavesa_v_seznamu(QEvent& udalost) {
    const bool stisk = udalost.type() == QEvent::KeyPress;
    if (!stisk && udalost.type() != QEvent::ShortcutOverride) return false;
    if (static_cast<QKeyEvent&>(udalost).key() != Qt::Key_Escape) return false;
    udalost.accept();
    if (!stisk) return true;
    firmy_->hidePopup();
    form_.opustVyberFirmy();
    obnov_rok();
    return true;
}

}  // namespace desktop
