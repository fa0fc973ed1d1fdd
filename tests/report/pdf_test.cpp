// PDF files, read back by another program, and the preview that stores them.
#include "report/pdf.h"

#include <cstdio>
#include <gtest/gtest.h>

#include "base/soubory.h"
#include "report/nahled.h"
#include "report/tabulkova.h"
#include "support/docasna_slozka.h"

namespace {

using namespace report;

/// What the program writes; a program that is missing or fails is a failure of the test.
std::string vystup(const std::string& prikaz) {
    FILE* roura = popen((prikaz + " 2>&1").c_str(), "r");
    if (!roura) throw std::runtime_error("popen");
    std::string text;
    for (int znak = std::fgetc(roura); znak != EOF; znak = std::fgetc(roura))
        text += static_cast<char>(znak);
    EXPECT_EQ(pclose(roura), 0) << prikaz << " (balíček poppler-utils?)\n" << text;
    return text;
}

bool obsahuje(const std::string& text, const std::string& cast) {
    return text.find(cast) != std::string::npos;
}

TabulkovaSestava pracovnici(std::size_t vet) {
    TabulkovaSestava sestava{"Pracovníci - ŽĎÁR22",
                             {},
                             {{"Příjmení", 30}, {"Kč", 20, Zarovnani::vpravo, true}},
                             {},
                             {},
                             false};
    for (std::size_t i = 0; i < vet; ++i)
        sestava.radky.push_back({"Říhová Ťuňďa", "1 234,50"});
    return sestava;
}

class Pdf : public testing::Test {
  protected:
    zkouska::DocasnaSlozka slozka;
    const std::string soubor = (slozka / "sestava.pdf").string();

    void uloz(const Document& document) { TFUsrPrev(document).uloz_pdf(soubor); }
    std::string text() { return vystup("pdftotext -layout " + soubor + " -"); }
};

TEST_F(Pdf, JeVNemCeskyTextStranyNazevAVlozenePismo) {
    uloz(sestav_tabulku(pracovnici(100)));
    const auto obsah = text();
    for (const char* cast : {"Pracovníci - ŽĎÁR22", "Příjmení", "Říhová Ťuňďa", "1 234,50",
                             "123 450,00", "strana 2 z 2"}) {
        EXPECT_TRUE(obsahuje(obsah, cast)) << cast << "\n" << obsah;
    }
    const auto udaje = vystup("pdfinfo " + soubor);
    for (const char* cast : {"Title:           Pracovníci - ŽĎÁR22", "Pages:           2", "(A4)"})
        EXPECT_TRUE(obsahuje(udaje, cast)) << cast << "\n" << udaje;
    EXPECT_FALSE(obsahuje(udaje, "CreationDate"));
    const auto pisma = vystup("pdffonts " + soubor);
    EXPECT_TRUE(obsahuje(pisma, "+DejaVuSans ")) << pisma;
    EXPECT_FALSE(obsahuje(pisma, " no ")) << pisma;  // not embedded, no subset or no letters
}

TEST_F(Pdf, StejnaSestavaJeStejnySoubor) {
    const auto document = sestav_tabulku(pracovnici(3));
    EXPECT_EQ(jako_pdf(document), jako_pdf(document));
}

TEST_F(Pdf, NaSirkuJeStranaLezata) {
    auto sestava = pracovnici(1);
    sestava.na_sirku = true;
    uloz(sestav_tabulku(sestava));
    EXPECT_TRUE(obsahuje(vystup("pdfinfo " + soubor), "841.89 x 595.276 pts (A4)"));
}

/// The right edge, in points, of the word in which the text stands.
double pravy_okraj(const std::string& slova, const std::string& text) {
    const auto kde = slova.find(text);
    if (kde == std::string::npos) throw std::runtime_error(text + " v PDF není:\n" + slova);
    const std::string k_atribut = "xMax=\"";
    return std::stod(slova.substr(slova.rfind(k_atribut, kde) + k_atribut.size()));
}

TEST_F(Pdf, DlouhyTextSeVejdeDoSloupceACisloJeCele) {
    auto sestava = pracovnici(0);
    sestava.radky = {{"Nejdelší příjmení ve firmě vůbec", "1 234 567 890,50"}};
    uloz(sestav_tabulku(sestava));
    // The end of the name stands under an ellipsis: not seen, yet found and copied.
    constexpr double k_bodu_na_mm = 72 / 25.4;
    const auto slova = vystup("pdftotext -bbox " + soubor + " -");
    EXPECT_LE(pravy_okraj(slova, "vůbec"), (10 + 30) * k_bodu_na_mm);
    EXPECT_LE(pravy_okraj(slova, "890,50"), (10 + 50) * k_bodu_na_mm);
    EXPECT_TRUE(obsahuje(text(), "1 234 567 890,50"));
}

TEST_F(Pdf, NahledUkladaCelySouborNeboNic) {
    const TFUsrPrev nahled(sestav_tabulku(pracovnici(1)));
    nahled.uloz_text(slozka / "sestava.txt");
    EXPECT_TRUE(obsahuje(base::precti_soubor(slozka / "sestava.txt", 10000), "Říhová Ťuňďa"));
    EXPECT_THROW(nahled.uloz_pdf(slozka / "neni" / "sestava.pdf"), base::ChybaDat);
}

TEST(Nahled, ZpetZavreAOznamiZmenu) {
    TFUsrPrev nahled{Document{}};
    int zmen = 0;
    nahled.zmeneno = [&] { ++zmen; };
    nahled.acZpetExecute();
    EXPECT_TRUE(nahled.zavreno);
    EXPECT_EQ(zmen, 1);
}

}  // namespace
