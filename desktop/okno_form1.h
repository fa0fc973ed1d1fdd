// The window of TForm1, the main form: the company, the month, the year at a glance and every
// action of the main menu.
#pragma once

#include <QMainWindow>

#include "desktop/vazba.h"
#include "menu/unit1_hlavni.h"
#include "shell/session.h"

class QComboBox;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QSpinBox;

namespace desktop {

class RokOkno;

class OknoForm1 final : public QMainWindow {
  public:
    OknoForm1(menu::TForm1& form, shell::Session& session);
    ~OknoForm1() override;

    /// Shows the window where the form remembers it and lets the form open its company.
    void otevri();
    void obnov();

  protected:
    void closeEvent(QCloseEvent* udalost) override;
    bool eventFilter(QObject* prvek, QEvent* udalost) override;

  private:
    void proved(const menu::Akce& akce);
    void hlavni_nabidka();
    QWidget* hlavicka();
    QWidget* vyber_firmy();
    QWidget* pole_mesice();
    QWidget* tlacitka_akci();
    QWidget* skupina_akci(menu::Skupina skupina);
    void obnov_seznam_firem();
    bool klavesa_v_seznamu(QEvent& udalost);
    void obnov_pozadi();
    void obnov_rok();

    menu::TForm1& form_;
    shell::Session& session_;
    Vazba vazba_;
    RokOkno* rok_ = nullptr;
    QLabel* krok_ = nullptr;
    QSpinBox* mesic_ = nullptr;
    QComboBox* firmy_ = nullptr;
    QLabel* pozadi_ = nullptr;
    std::string nactene_pozadi_;
};

}  // namespace desktop
