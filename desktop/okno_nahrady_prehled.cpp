#include "desktop/okno_nahrady_prehled.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/mrizka_seznamu.h"
#include "desktop/text_qt.h"

namespace desktop {

namespace {

constexpr int k_sloupec_dokladu = 4;

const std::vector<SloupecMrizky>& sloupce() {
    static const std::vector<SloupecMrizky> vsechny{{"Cislo_pracovnika", "prac."},
                                                    {"Mesic", "měsíc"},
                                                    {"Id_hrube", "hrubé"},
                                                    {"Typ_nahrady", "druh"},
                                                    {"Cislo_dokladu", "doklad"},
                                                    {"Trvani_od", "od"},
                                                    {"Trvani_do", "do"},
                                                    {"Dnu_kalendarnich", "kal.\ndnů"},
                                                    {"Dnu_pracovnich", "prac.\ndnů"},
                                                    {"Vyloucene_dny", "vylouč.\ndnů"},
                                                    {"Prum_hod_vydelek", "průměr\nza hod."},
                                                    {"Red_hod_vydelek", "reduk."},
                                                    {"Fond_A", "fond A"},
                                                    {"Fond_B", "fond B"},
                                                    {"Fond_C", "fond C"},
                                                    {"Hod_nahrada_A", "za hod.\nA"},
                                                    {"Hod_nahrada_B", "za hod.\nB"},
                                                    {"Nahrada_A", "náhrada\nA"},
                                                    {"Nahrada_B", "náhrada\nB"},
                                                    {"Celkova_nahrada", "celkem"}};
    return vsechny;
}

}  // namespace

OknoNahrady::OknoNahrady(wages::TFNahrady& form, const shell::Session&, QWidget* rodic)
    : Okno(form, rodic) {
    setWindowTitle(do_qt(form.nadpis));
    setSizeGripEnabled(true);
    resize(1320, 520);
    auto* mrizka = new MrizkaSeznamu(vazba(), form, sloupce(), "náhrady", [] {});
    mrizka->roztahni(k_sloupec_dokladu);
    obsah().addWidget(mrizka, 1);
    tlacitko("&Sestava...", "acSestava", [&form] { form.acSestavaExecute(); });
    vazba().povolene(tlacitko("&Tisk", "acTisk", [] {}), [&form] { return form.tisk_povoleny; });
    tlacitko("&Zpět", "acZpet", [&form] { form.acZpetExecute(); });
    odchod(form.zavreno, [&form] { form.acZpetExecute(); });
    vazba().fokus(*this, form.fokus);
}

}  // namespace desktop
