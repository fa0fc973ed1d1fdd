#include "report/pdf.h"

#include <algorithm>
#include <cairo-pdf.h>
#include <memory>
#include <pango/pangocairo.h>
#include <utility>

#include "base/chyba.h"
#include "report/jeden_radek.h"

namespace report {

namespace {

constexpr double k_bodu_na_mm = 72 / 25.4;
constexpr const char* k_pismo = "DejaVu Sans";
constexpr double k_okraj_bunky_mm = 1.1;
constexpr double k_linka_mm = 0.2;
constexpr double k_seda_linky = 0.35;
constexpr double k_seda_podbarveni = 0.95;
constexpr double k_nejmensi_cislo = 0.3;  ///< how far a number may be made smaller

struct Uklid {
    void operator()(cairo_surface_t* plocha) const { cairo_surface_destroy(plocha); }
    void operator()(cairo_t* kresba) const { cairo_destroy(kresba); }
    void operator()(PangoLayout* sazba) const { g_object_unref(sazba); }
    void operator()(PangoFontDescription* pismo) const { pango_font_description_free(pismo); }
};
template <class T>
using Drzak = std::unique_ptr<T, Uklid>;

cairo_status_t pripis(void* cil, const unsigned char* data, unsigned int delka) {
    static_cast<std::string*>(cil)->append(reinterpret_cast<const char*>(data), delka);
    return CAIRO_STATUS_SUCCESS;
}

/// Draws in millimetres from the upper left corner of the margins.
class KreslicPdf {
  public:
    explicit KreslicPdf(const Document& document)
        : papir_(document.papir),
          velikost_(document.velikost_pisma),
          plocha_(cairo_pdf_surface_create_for_stream(
              pripis, &vystup_, papir_.sirka_mm * k_bodu_na_mm, papir_.vyska_mm * k_bodu_na_mm)),
          kresba_(cairo_create(plocha_.get())),
          sazba_(pango_cairo_create_layout(kresba_.get())),
          pismo_(pango_font_description_from_string(k_pismo)) {
        cairo_pdf_surface_set_metadata(plocha_.get(), CAIRO_PDF_METADATA_TITLE,
                                       jeden_radek(document.nazev).c_str());
        // The time of making is left out: the same report is the same file.
        cairo_pdf_surface_set_metadata(plocha_.get(), CAIRO_PDF_METADATA_CREATE_DATE, "");
        pango_layout_set_single_paragraph_mode(sazba_.get(), TRUE);
        pango_context_set_round_glyph_positions(pango_layout_get_context(sazba_.get()), FALSE);
    }

    void strana(const Strana& strana) {
        cairo_save(kresba_.get());
        cairo_scale(kresba_.get(), k_bodu_na_mm, k_bodu_na_mm);
        cairo_translate(kresba_.get(), papir_.okraj_mm, papir_.okraj_mm);
        for (const Pas& pas : strana.pasy)
            this->pas(pas);
        cairo_restore(kresba_.get());
        cairo_show_page(kresba_.get());
    }

    std::string dokonci() {
        cairo_surface_finish(plocha_.get());
        const cairo_status_t stav = cairo_surface_status(plocha_.get());
        if (stav != CAIRO_STATUS_SUCCESS) {
            throw base::ChybaDat(std::string("Sestavu nelze převést do PDF: ") +
                                 cairo_status_to_string(stav));
        }
        return std::move(vystup_);
    }

  private:
    struct Obdelnik {
        double x, y, sirka, vyska;
    };

    void pas(const Pas& pas) {
        ozdob(pas.ozdoba, {0, pas.y_mm, papir_.sirka_sazby(), pas.vyska_mm});
        for (const Bunka& bunka : pas.bunky)
            ozdob(bunka.ozdoba, {bunka.x_mm, pas.y_mm, bunka.sirka_mm, pas.vyska_mm});
        for (const Bunka& bunka : pas.bunky) {
            if (!bunka.text.empty()) text(bunka, pas);
        }
    }

    void ozdob(const Ozdoba& ozdoba, const Obdelnik& kde) {
        if (ozdoba.podbarveni) {
            seda(k_seda_podbarveni);
            cairo_rectangle(kresba_.get(), kde.x, kde.y, kde.sirka, kde.vyska);
            cairo_fill(kresba_.get());
        }
        if (ozdoba.linka_nad) linka(kde.x, kde.y, kde.sirka);
        if (ozdoba.linka_pod) linka(kde.x, kde.y + kde.vyska, kde.sirka);
    }

    void linka(double x, double y, double sirka) {
        seda(k_seda_linky);
        cairo_set_line_width(kresba_.get(), k_linka_mm);
        cairo_move_to(kresba_.get(), x, y);
        cairo_line_to(kresba_.get(), x + sirka, y);
        cairo_stroke(kresba_.get());
    }

    void seda(double jas) { cairo_set_source_rgb(kresba_.get(), jas, jas, jas); }

    void text(const Bunka& bunka, const Pas& pas) {
        const double okraj = std::min(k_okraj_bunky_mm, bunka.sirka_mm / 10);
        const double sirka = bunka.sirka_mm - 2 * okraj;
        const double velikost = bunka.velikost > 0 ? bunka.velikost : velikost_;
        const std::string radek = jeden_radek(bunka.text);
        PangoLayout* sazba = sazba_.get();

        pango_layout_set_width(sazba, -1);
        pango_layout_set_text(sazba, radek.data(), static_cast<int>(radek.size()));
        nastav_pismo(velikost, bunka.tucne);
        double skutecna = sirka_textu();
        if (skutecna > sirka && bunka.zarovnani == Zarovnani::vpravo) {
            nastav_pismo(velikost * std::max(sirka / skutecna * 0.99, k_nejmensi_cislo),
                         bunka.tucne);
            skutecna = sirka_textu();
        }
        if (skutecna > sirka) {
            pango_layout_set_ellipsize(sazba, PANGO_ELLIPSIZE_END);
            pango_layout_set_width(sazba, na_pango(sirka));
            skutecna = sirka;
        }
        const double volno = sirka - skutecna;
        const double posun = bunka.zarovnani == Zarovnani::vpravo     ? volno
                             : bunka.zarovnani == Zarovnani::na_stred ? volno / 2
                                                                      : 0;
        seda(0);
        cairo_move_to(kresba_.get(), bunka.x_mm + okraj + posun, pas.y_mm + ucari(pas.vyska_mm));
        cairo_save(kresba_.get());
        cairo_scale(kresba_.get(), 1 / k_bodu_na_mm, 1 / k_bodu_na_mm);
        pango_cairo_show_layout_line(kresba_.get(), pango_layout_get_line_readonly(sazba, 0));
        cairo_restore(kresba_.get());
        pango_layout_set_ellipsize(sazba, PANGO_ELLIPSIZE_NONE);
    }

    static int na_pango(double mm) { return pango_units_from_double(mm * k_bodu_na_mm); }
    static double z_pango(int jednotky) { return pango_units_to_double(jednotky) / k_bodu_na_mm; }

    void nastav_pismo(double velikost, bool tucne) {
        pango_font_description_set_absolute_size(pismo_.get(), velikost * PANGO_SCALE);
        pango_font_description_set_weight(pismo_.get(),
                                          tucne ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
        pango_layout_set_font_description(sazba_.get(), pismo_.get());
    }

    double sirka_textu() const {
        int sirka = 0;
        pango_layout_get_size(sazba_.get(), &sirka, nullptr);
        return z_pango(sirka);
    }

    /// Where the baseline lies so that the line stands in the middle of the band.
    double ucari(double vyska_pasu_mm) const {
        int vyska = 0;
        pango_layout_get_size(sazba_.get(), nullptr, &vyska);
        return (vyska_pasu_mm - z_pango(vyska)) / 2 +
               z_pango(pango_layout_get_baseline(sazba_.get()));
    }

    Papir papir_;
    double velikost_;
    std::string vystup_;
    Drzak<cairo_surface_t> plocha_;
    Drzak<cairo_t> kresba_;
    Drzak<PangoLayout> sazba_;
    Drzak<PangoFontDescription> pismo_;
};

}  // namespace

std::string jako_pdf(const Document& document) {
    KreslicPdf kreslic(document);
    for (const Strana& strana : document.strany)
        kreslic.strana(strana);
    return kreslic.dokonci();
}

}  // namespace report
