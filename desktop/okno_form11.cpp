#include "desktop/okno_form11.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include "desktop/klavesy_tabulky.h"
#include "desktop/model_seznamu.h"
#include "desktop/prvky.h"
#include "desktop/text_qt.h"
#include "workers/fixni.h"

namespace desktop {

namespace {

using workers::TForm11;

store::Rows vety_souctu(const std::vector<workers::SoucetSloupce>& soucty) {
    store::Rows vety{{"sloupec", "název", "položek", "Kč"}, {}};
    for (const workers::SoucetSloupce& s : soucty)
        vety.rows.push_back(
            {s.sloupec, s.text_sloupce, s.polozek, static_cast<std::int64_t>(s.kcs)});
    return vety;
}

std::vector<SloupecSeznamu> sloupce(const TForm11& form) {
    using Radek = workers::RadekFixnich;
    const auto sloupec = [&form](const char* nadpis, int znaku, bool vpravo, auto text) {
        return SloupecSeznamu{nadpis, znaku, vpravo,
                              [&form, text](std::size_t i) { return do_qt(text(form.vety[i])); }};
    };
    return {
        sloupec("sloupec", 7, true, [](const Radek& r) { return std::to_string(r.sloupec); }),
        sloupec("název", 0, false, [](const Radek& r) { return r.text_sloupce; }),
        sloupec("číslo", 7, true,
                [](const Radek& r) { return std::to_string(r.cislo_pracovnika); }),
        sloupec("pracovník", 0, false, [](const Radek& r) { return r.pracovnik; }),
        sloupec("Kč", 8, true, [](const Radek& r) { return r.kcs.as_text(); }),
        sloupec("účet", 17, false, [](const Radek& r) { return r.spojeni.Ucet; }),
        sloupec("banka", 5, true, [](const Radek& r) { return r.spojeni.Kod_banky; }),
        sloupec("variabilní", 10, false, [](const Radek& r) { return r.spojeni.Variabilni; }),
        sloupec("konst.", 6, false, [](const Radek& r) { return r.spojeni.Konstantni; }),
        sloupec("specifický", 10, false, [](const Radek& r) { return r.spojeni.Specificky; }),
    };
}

}  // namespace

OknoForm11::OknoForm11(TForm11& form, const shell::Session&, QWidget* rodic) : Okno(form, rodic) {
    setWindowTitle(do_qt(form.nadpis));
    setSizeGripEnabled(true);
    resize(1340, 640);
    obsah().addLayout(trideni_a_omezeni(form));
    auto* vedle_sebe = new QHBoxLayout;
    vedle_sebe->addWidget(mrizka(form), 1);
    auto* vpravo = new QVBoxLayout;
    vpravo->addWidget(sumarizace(form), 1);
    vpravo->addWidget(kam_penize(form));
    vpravo->addStretch(0);
    vedle_sebe->addLayout(vpravo);
    obsah().addLayout(vedle_sebe, 1);
    obsah().addWidget(hromadne(form));
    tlacitka(form);
    odchod(form.zavreno, [&form] { form.acZpetExecute(); });
    vazba().fokus(*this, form.fokus);
}

QLineEdit* OknoForm11::cislo(TForm11& form, Cislo druh, const char* jmeno,
                             const char* pristupny_nazev, std::string& hodnota) {
    const bool pracovnik = druh == Cislo::pracovnik;
    auto* pole = ciselne_pole(jmeno, pristupny_nazev,
                              pracovnik ? workers::k_cislic_pracovnika : workers::k_cislic_sloupce);
    vazba().pole(*pole, hodnota, [&form, pracovnik](char znak, std::string_view text) {
        return pracovnik ? form.povol_klavesu_pracovnika(znak, text)
                         : form.povol_klavesu_sloupce(znak, text);
    });
    return pole;
}

QLayout* OknoForm11::trideni_a_omezeni(TForm11& form) {
    auto* radek = new QHBoxLayout;
    auto* trideni = new QComboBox;
    trideni->setObjectName("trideni");
    trideni->setAccessibleName("třídění");
    for (const char* jedno : workers::k_trideni_fixnich)
        trideni->addItem(jedno);
    vazba().vyber(*trideni, form.trideni, [&form] { form.TrideniZmena(); });
    auto* popisek = new QLabel("&Třídění:");
    popisek->setBuddy(trideni);
    radek->addWidget(popisek);
    radek->addWidget(trideni);
    radek->addSpacing(20);

    const auto meze = [&](const char* nazev, Cislo druh, const char* jmeno_od, const char* popis_od,
                          std::string& od, const char* jmeno_do, const char* popis_do,
                          std::string& do_) {
        auto* dolni = cislo(form, druh, jmeno_od, popis_od, od);
        auto* horni = cislo(form, druh, jmeno_do, popis_do, do_);
        for (QLineEdit* pole : {dolni, horni})
            connect(pole, &QLineEdit::textEdited, pole, [&form] { form.OmezeniZmena(); });
        auto* nazev_mezi = new QLabel(nazev);
        nazev_mezi->setBuddy(dolni);
        radek->addWidget(nazev_mezi);
        radek->addWidget(dolni);
        radek->addWidget(new QLabel("až"));
        radek->addWidget(horni);
        radek->addSpacing(12);
    };
    workers::OmezeniFixnich& o = form.omezeni;
    meze("&Pracovníci:", Cislo::pracovnik, "pracovnik_od", "pracovníci od", o.pracovnik_od,
         "pracovnik_do", "pracovníci do", o.pracovnik_do);
    meze("Sloup&ce:", Cislo::sloupec, "sloupec_od", "sloupce od", o.sloupec_od, "sloupec_do",
         "sloupce do", o.sloupec_do);
    auto* vse = new QPushButton("&Vše");
    vse->setObjectName("acVse");
    vse->setAutoDefault(false);
    vazba().tlacitko(*vse, [&form] { form.acVseExecute(); });
    radek->addWidget(vse);
    radek->addStretch(1);
    radek->addWidget(udaj(vazba(), "lbOmezeni", form.lbOmezeni));
    return radek;
}

QTableView* OknoForm11::mrizka(TForm11& form) {
    auto* tabulka = new QTableView;
    tabulka->setObjectName("mrizka");
    tabulka->setAccessibleName("fixní položky");
    auto* model = new ModelSeznamu(
        sloupce(form), [&form] { return form.vety.size(); },
        [](std::size_t, int, int) { return QVariant(); }, tabulka);
    nasad_model(*tabulka, *model);
    vazba().pri_obnove([model, &form, ukazane = -1]() mutable {
        if (std::exchange(ukazane, form.vydani) != form.vydani) model->obnov();
    });
    vazba().radek(*tabulka, form.radek, [&form](int novy) { form.vyber_radek(novy); });
    connect(tabulka, &QTableView::doubleClicked, this, [&form] { form.acOpravitExecute(); });
    klavesy_seznamu(
        *tabulka, [&form] { form.acPridatExecute(); }, [&form] { form.acOpravitExecute(); },
        [&form] { form.acSmazatExecute(); });
    return tabulka;
}

QWidget* OknoForm11::sumarizace(const TForm11& form) {
    auto* panel = new QGroupBox("součty podle sloupců");
    panel->setObjectName("panel_sumarizace");
    auto* tabulka = new QTableView;
    tabulka->setObjectName("soucty");
    tabulka->setAccessibleName("součty podle sloupců");
    tabulka->verticalHeader()->hide();
    tabulka->setMinimumWidth(tabulka->fontMetrics().averageCharWidth() * 52);
    vazba().pri_obnove([this, &form] { soucty_ = vety_souctu(form.soucty); });
    vazba().tabulka(*tabulka, soucty_);
    (new QVBoxLayout(panel))->addWidget(tabulka);
    vazba().viditelne(*panel, [&form] { return form.sumarizace_viditelna; });
    return panel;
}

QWidget* OknoForm11::kam_penize(const TForm11& form) {
    auto* panel = new QGroupBox("kam odeslat peníze");
    panel->setObjectName("panel_penize");
    auto* udaje = new QFormLayout(panel);
    udaje->addRow("účet:", udaj(vazba(), "penize_ucet", form.penize.Ucet));
    udaje->addRow("kód banky:", udaj(vazba(), "penize_banka", form.penize.Kod_banky));
    udaje->addRow("variabilní symbol:", udaj(vazba(), "penize_variabilni", form.penize.Variabilni));
    udaje->addRow("konstantní symbol:", udaj(vazba(), "penize_konstantni", form.penize.Konstantni));
    udaje->addRow("specifický symbol:", udaj(vazba(), "penize_specificky", form.penize.Specificky));
    udaje->addRow(udaj(vazba(), "penize_slovy", form.penize_slovy));
    vazba().viditelne(*panel, [&form] { return form.penize_viditelne; });
    return panel;
}

QWidget* OknoForm11::hromadne(TForm11& form) {
    auto* panel = new QGroupBox("hromadné operace");
    auto* radek = new QHBoxLayout(panel);
    const auto pole = [&](const char* popisek, Cislo druh, const char* jmeno, const char* nazev,
                          std::string& hodnota) {
        auto* vstup = cislo(form, druh, jmeno, nazev, hodnota);
        auto* text = new QLabel(popisek);
        text->setBuddy(vstup);
        radek->addWidget(text);
        radek->addWidget(vstup);
    };
    const auto akce = [&](const char* popisek, const char* jmeno, Vazba::Metoda metoda) {
        auto* nove = new QPushButton(popisek);
        nove->setObjectName(jmeno);
        nove->setAutoDefault(false);
        vazba().tlacitko(*nove, std::move(metoda));
        radek->addWidget(nove);
    };
    pole("&Hromadně pracovníkům od", Cislo::pracovnik, "pridej_od", "přidat pracovníkům od",
         form.pridej_od);
    pole("do", Cislo::pracovnik, "pridej_do", "přidat pracovníkům do", form.pridej_do);
    pole("přidej sloupec", Cislo::sloupec, "pridej_sloupec", "přidat sloupec", form.pridej_sloupec);
    akce("Přide&j", "btPridej", [&form] { form.btPridejClick(); });
    radek->addSpacing(40);
    pole("Pro s&loupec", Cislo::sloupec, "pro_sloupec", "pro sloupec", form.pro_sloupec);
    akce("Vy&nuluj koruny", "btVynuluj", [&form] { form.btVynulujClick(); });
    akce("Smaž z&áznam", "btSmazZaznam", [&form] { form.btSmazZaznamClick(); });
    radek->addStretch(1);
    return panel;
}

void OknoForm11::tlacitka(TForm11& form) {
    const auto je_veta = [&form] { return form.radek >= 0; };
    tlacitko("P&řidat", "acPridat", [&form] { form.acPridatExecute(); });
    QPushButton& opravit = tlacitko("&Opravit", "acOpravit", [&form] { form.acOpravitExecute(); });
    vazba().povolene(opravit, je_veta);
    QPushButton& smazat = tlacitko("&Smazat", "acSmazat", [&form] { form.acSmazatExecute(); });
    vazba().povolene(smazat, je_veta);
    tlacitko("Su&marizace", "acSumarizace", [&form] { form.acSumarizaceExecute(); });
    tlacitko("&Kam odeslat peníze", "acKamPenize", [&form] { form.acKamPenizeExecute(); });
    tlacitko("Hroma&dná oprava korun", "acHromadnaOprava",
             [&form] { form.acHromadnaOpravaExecute(); });
    tlacitko("T&isk", "acTisk", [&form] { form.acTiskExecute(); });
    tlacitko("&Zpět", "acZpet", [&form] { form.acZpetExecute(); });
}

}  // namespace desktop
