#include "desktop/obsluha_qt.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>
#include <stdexcept>

#include "desktop/okna.h"
#include "desktop/poloha_okna.h"
#include "desktop/text_qt.h"

namespace desktop {

namespace {

std::optional<std::string> vybrane(const QString& cesta) {
    if (cesta.isEmpty()) return std::nullopt;
    return z_qt(cesta);
}

/// "Obrázky|*.jpg" as Qt wants it: "Obrázky (*.jpg)".
QString filtr_qt(const std::string& filtr) {
    const QStringList casti = do_qt(filtr).split('|');
    return casti.size() < 2 ? do_qt(filtr)
                            : QString("%1 (%2)").arg(casti[0], casti[1]).replace(';', ' ');
}

}  // namespace

void ObsluhaQt::hlaska(const std::string& text) {
    QMessageBox okno(QMessageBox::Information, QApplication::applicationDisplayName(), radky(text),
                     QMessageBox::Ok, QApplication::activeWindow());
    okno.setTextFormat(Qt::PlainText);
    okno.exec();
}

bool ObsluhaQt::otazka_ano_ne(const std::string& text, const std::string& nadpis) {
    QMessageBox okno(QMessageBox::Question, do_qt(nadpis), radky(text), QMessageBox::NoButton,
                     QApplication::activeWindow());
    okno.setTextFormat(Qt::PlainText);
    QPushButton* ano = okno.addButton("&Ano", QMessageBox::YesRole);
    QPushButton* ne = okno.addButton("&Ne", QMessageBox::NoRole);
    okno.setDefaultButton(ne);
    okno.setEscapeButton(ne);
    okno.exec();
    return okno.clickedButton() == ano;
}

void ObsluhaQt::ukaz_hlasku(const std::string& text, int sekund) {
    if (!oznameni_) oznameni_ = std::make_unique<TFHlaska>();
    oznameni_->ukaz(radky(text), sekund);
    pust_udalosti();
}

void ObsluhaQt::skryj_hlasku() {
    if (oznameni_) oznameni_->hide();
}

std::optional<std::string> ObsluhaQt::vyber_slozku(const std::string& vyzva,
                                                   const std::string& vychozi) {
    return vybrane(QFileDialog::getExistingDirectory(QApplication::activeWindow(), radky(vyzva),
                                                     do_qt(vychozi)));
}

std::optional<std::string> ObsluhaQt::vyber_soubor(const std::string& nadpis,
                                                   const std::string& slozka,
                                                   const std::string& filtr) {
    return vybrane(QFileDialog::getOpenFileName(QApplication::activeWindow(), radky(nadpis),
                                                do_qt(slozka), filtr_qt(filtr)));
}

void ObsluhaQt::otevri_soubor(const std::string& cesta) {
    const QUrl adresa = QUrl::fromUserInput(do_qt(cesta), QString(), QUrl::AssumeLocalFile);
    if (!QDesktopServices::openUrl(adresa)) hlaska("Soubor \"" + cesta + "\" nelze otevřít.");
}

void ObsluhaQt::pust_udalosti() {
    QApplication::processEvents();
}

void ObsluhaQt::ukaz_modalne(base::Obrazovka& obrazovka) {
    if (!session_) throw std::logic_error("obsluha nemá session");
    const auto okno = vyrob_okno(obrazovka, *session_, QApplication::activeWindow());
    if (!okno) {
        hlaska("Obrazovka " + std::string(obrazovka.jmeno()) + " v tomto vydání programu není.");
        return;
    }
    const PametOken pamet(*session_);
    pamet.obnov(*okno);
    base::log_akce(session_->velmar.logovat, base::slozka_uzivatele(), session_->hodiny(),
                   base::k_program, obrazovka.jmeno(), base::k_log_otevreni);
    okno->exec();
    pamet.uloz(*okno);
}

void ObsluhaQt::pipni() {
    QApplication::beep();
}

}  // namespace desktop
