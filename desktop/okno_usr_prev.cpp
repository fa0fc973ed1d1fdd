#include "desktop/okno_usr_prev.h"

#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPdfPageNavigator>
#include <QPdfView>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QShortcut>
#include <QStandardPaths>
#include <algorithm>

#include "desktop/text_qt.h"
#include "desktop/tisk_pdf.h"
#include "report/pdf.h"

namespace desktop {

namespace {

constexpr double k_krok_zvetseni = 1.25;
constexpr double k_nejmensi_zvetseni = 0.25;
constexpr double k_nejvetsi_zvetseni = 5;
constexpr int k_bodu_tisku = 300;  ///< per inch: sharp letters without giant pictures

QPushButton* male_tlacitko(const QString& popisek, const char* jmeno, const QString& napoveda) {
    auto* tlacitko = new QPushButton(popisek);
    tlacitko->setObjectName(jmeno);
    tlacitko->setToolTip(napoveda);
    tlacitko->setAutoDefault(false);
    return tlacitko;
}

}  // namespace

OknoUsrPrev::OknoUsrPrev(report::TFUsrPrev& form, const shell::Session&, QWidget* rodic)
    : Okno(form, rodic),
      form_(form),
      data_(QByteArray::fromStdString(report::jako_pdf(form.dokument))),
      zdroj_(&data_),
      pdf_(nullptr),
      pohled_(new QPdfView(this)),
      strana_(new QLabel) {
    setWindowTitle("Náhled - " + do_qt(form.dokument.nazev));
    const bool na_vysku = form.dokument.papir.vyska_mm > form.dokument.papir.sirka_mm;
    resize(na_vysku ? 860 : 1160, 680);
    zdroj_.open(QIODevice::ReadOnly);
    pdf_.load(&zdroj_);

    pohled_->setObjectName("nahled");
    pohled_->setAccessibleName("náhled sestavy");
    pohled_->setDocument(&pdf_);
    pohled_->setPageMode(QPdfView::PageMode::MultiPage);
    strana_->setObjectName("strana");
    connect(pohled_->pageNavigator(), &QPdfPageNavigator::currentPageChanged, this,
            [this] { ukaz_stranu(); });
    pridej_zvetsovani();
    obsah().addWidget(pohled_, 1);
    na_sirku();
    ukaz_stranu();

    tlacitko(
        "&Tisk...", "acTisk", [this] { tiskni(); }, QKeySequence::Print);
    tlacitko(
        "&Uložit PDF...", "acUlozitPdf", [this] { uloz_pdf(); }, QKeySequence::Save);
    tlacitko("Uložit te&xt...", "acUlozitText", [this] { uloz_text(); });
    tlacitko("&Zpět", "acZpet", [&form] { form.acZpetExecute(); });
    odchod(form.zavreno, [&form] { form.acZpetExecute(); });
    pohled_->setFocus();
}

OknoUsrPrev::~OknoUsrPrev() {
    // The view is destroyed later than the members it shows.
    delete pohled_;
}

void OknoUsrPrev::pridej_zvetsovani() {
    auto* zmensit = male_tlacitko("−", "acZmensit", "Zmenšit (Ctrl+-)");
    auto* zvetsit = male_tlacitko("+", "acZvetsit", "Zvětšit (Ctrl++)");
    auto* sirka = male_tlacitko("Na &šířku", "acNaSirku", "Na šířku okna (Ctrl+0)");
    zmensit->setAccessibleName("zmenšit");
    zvetsit->setAccessibleName("zvětšit");
    vazba().tlacitko(
        *zmensit, [this] { zvetsi(1 / k_krok_zvetseni); }, QKeySequence("Ctrl+-"));
    vazba().tlacitko(
        *zvetsit, [this] { zvetsi(k_krok_zvetseni); }, QKeySequence("Ctrl++"));
    vazba().tlacitko(
        *sirka, [this] { na_sirku(); }, QKeySequence("Ctrl+0"));
    // On many keyboards the plus needs Shift, the equals sign does not.
    connect(new QShortcut(QKeySequence("Ctrl+="), this), &QShortcut::activated, this,
            [this] { zvetsi(k_krok_zvetseni); });
    auto* lista = new QHBoxLayout;
    lista->addWidget(strana_);
    lista->addStretch(1);
    lista->addWidget(zmensit);
    lista->addWidget(zvetsit);
    lista->addWidget(sirka);
    obsah().addLayout(lista);
}

void OknoUsrPrev::zvetsi(double kolikrat) {
    if (pohled_->zoomMode() == QPdfView::ZoomMode::FitToWidth) {
        const double sirka_strany = pdf_.pagePointSize(0).width() * pohled_->logicalDpiX() / 72;
        if (sirka_strany <= 0) return;
        pohled_->setZoomFactor(pohled_->viewport()->width() / sirka_strany);
        pohled_->setZoomMode(QPdfView::ZoomMode::Custom);
    }
    pohled_->setZoomFactor(
        std::clamp(pohled_->zoomFactor() * kolikrat, k_nejmensi_zvetseni, k_nejvetsi_zvetseni));
}

void OknoUsrPrev::na_sirku() {
    pohled_->setZoomMode(QPdfView::ZoomMode::FitToWidth);
}

void OknoUsrPrev::ukaz_stranu() {
    strana_->setText(QString("Strana %1 z %2")
                         .arg(pohled_->pageNavigator()->currentPage() + 1)
                         .arg(pdf_.pageCount()));
}

void OknoUsrPrev::tiskni() {
    const report::Papir& papir = form_.dokument.papir;
    QPrinter tiskarna(QPrinter::HighResolution);
    tiskarna.setResolution(k_bodu_tisku);
    tiskarna.setDocName(do_qt(form_.dokument.nazev));
    tiskarna.setPageSize(QPageSize(QPageSize::A4));
    tiskarna.setPageOrientation(papir.sirka_mm > papir.vyska_mm ? QPageLayout::Landscape
                                                                : QPageLayout::Portrait);
    QPrintDialog dialog(&tiskarna, this);
    dialog.setMinMax(1, pdf_.pageCount());
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    if (dialog.exec() != QDialog::Accepted) return;
    const bool vse = tiskarna.fromPage() == 0;
    vytiskni(pdf_, tiskarna, vse ? 1 : tiskarna.fromPage(),
             vse ? pdf_.pageCount() : std::min(tiskarna.toPage(), pdf_.pageCount()));
}

void OknoUsrPrev::uloz_pdf() {
    const QString soubor = vyber_soubor("Uložit PDF", "pdf");
    if (!soubor.isEmpty()) form_.uloz_pdf(z_qt(soubor));
}

void OknoUsrPrev::uloz_text() {
    const QString soubor = vyber_soubor("Uložit text", "txt");
    if (!soubor.isEmpty()) form_.uloz_text(z_qt(soubor));
}

QString OknoUsrPrev::vyber_soubor(const QString& nadpis, const QString& pripona) {
    QString jmeno = do_qt(form_.dokument.nazev);
    jmeno.replace('/', '-');
    const QDir slozka(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    QFileDialog dialog(this, nadpis, slozka.path());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(pripona);
    dialog.setNameFilter(QString("*.%1").arg(pripona));
    dialog.selectFile(jmeno + "." + pripona);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

}  // namespace desktop
