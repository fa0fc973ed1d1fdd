// Templates: what they put where, how they break pages, and how their faults are told.
#include "report/sablona.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "base/chyba.h"
#include "report/text.h"

namespace {

using namespace report;
using Parametry = std::map<std::string, std::string>;

const store::Rows k_polozky{{"Sloupec", "Pracovnik", "Kcs", "Od"},
                            {{57, "Žižková", 1500, base::Datum{2022, 3, 5}},
                             {57, "Říha", 1000.5, "2022-03-05"},
                             {60, "Říha", store::Value(), store::Value()},
                             {60, "Beneš", 0, "ihned"}}};

Document vypln(const std::string& obsah, const store::Rows& vety = k_polozky,
               const Parametry& parametry = {{"firma", "PEKARNA22"}}) {
    const std::string xml = "<sestava nazev='Zkouška {parametr:firma}'>" + obsah + "</sestava>";
    return vypln_sablonu(sablona_z_textu(xml, "zkouska.fr3"), vety, parametry);
}

std::string pole(const std::string& text, const std::string& atributy = "") {
    return "<radek><pole x='0' sirka='90' " + atributy + ">" + text + "</pole></radek>";
}

/// The message of the fault that the work ends with.
template <class Prace>
std::string chyba(Prace prace) {
    try {
        prace();
    } catch (const base::ChybaDat& vada) {
        return vada.what();
    }
    return "bez chyby";
}

TEST(Sablona, PasyASkupinyMajiSveSouctyAParametry) {
    const std::string sablona =
        "<titul>" + pole("{parametr:firma}: {soucet:Kcs}, {pocet}") + "</titul><zahlavi_strany>" +
        pole("Seznam od {Pracovnik}") + "</zahlavi_strany><skupina podle='sloupec'><zahlavi>" +
        pole("Sloupec {Sloupec}") + "</zahlavi><pata>" +
        pole("= {soucet:Kcs} ({pocet}), končí {Pracovnik}") + "</pata></skupina><detail>" +
        pole("{Pracovnik} {Kcs}") + "</detail><souhrn>" + pole("Vše {soucet:Kcs}") +
        "</souhrn><pata_strany>" + pole("{strana}/{stran}") + "</pata_strany>";
    const auto document = vypln(sablona);
    EXPECT_EQ(document.nazev, "Zkouška PEKARNA22");
    EXPECT_EQ(jako_text(document),
              "PEKARNA22: 2500,5, 4\n"
              "Seznam od Žižková\n"
              "Sloupec 57\n"
              "Žižková 1500\n"
              "Říha 1000,5\n"
              "= 2500,5 (2), končí Říha\n"
              "Sloupec 60\n"
              "Říha\n"
              "Beneš 0\n"
              "= 0 (2), končí Beneš\n"
              "Vše 2500,5\n");
    EXPECT_EQ(document.strany[0].pasy.back().bunky[0].text, "1/1");
    // No rows: the sums are 0, the columns blank, and there is no group.
    EXPECT_EQ(jako_text(vypln(sablona, {k_polozky.columns, {}})),
              "PEKARNA22: 0, 0\nSeznam od\nVše 0\n");
}

TEST(Sablona, SkupinySeVnorujiAZavisiNaParametru) {
    const std::string sablona = "<skupina podle='Sloupec' kdyz='trideni=sloupec'><zahlavi>" +
                                pole("S{Sloupec}") +
                                "</zahlavi></skupina><skupina podle='Pracovnik'><pata>" +
                                pole("P{Pracovnik} {pocet}") + "</pata></skupina>";
    const auto text = [&](const char* trideni) {
        return jako_text(vypln(sablona, k_polozky, {{"firma", ""}, {"trideni", trideni}}));
    };
    EXPECT_EQ(text("sloupec"), "S57\nPŽižková 1\nPŘíha 1\nS60\nPŘíha 1\nPBeneš 1\n");
    EXPECT_EQ(text("pracovnik"), "PŽižková 1\nPŘíha 2\nPBeneš 1\n");
}

TEST(Sablona, FormatyHodnot) {
    const struct {
        const char* atributy;
        const char* text;
        const char* cekam[4];  ///< for the four rows
    } pripady[] = {
        {"", "{Kcs}", {"1500", "1000,5", "", "0"}},
        {"format='castka'", "{Kcs}", {"1 500,00", "1 000,50", "", "0,00"}},
        {"format='koruny'", "{Kcs}", {"1 500", "1 000", "", "0"}},  // a tie to the even crown
        {"format='koruny' nula='prazdna'", "{Kcs}", {"1 500", "1 000", "", ""}},
        {"format='datum'", "{Od}", {"5.3.2022", "5.3.2022", "", "ihned"}},
        {"", "{Od}", {"5.3.2022", "2022-03-05", "", "ihned"}},
    };
    for (const auto& p : pripady) {
        const auto document = vypln("<detail>" + pole(p.text, p.atributy) + "</detail>");
        for (std::size_t i = 0; i < 4; ++i)
            EXPECT_EQ(document.strany[0].pasy[i].bunky[0].text, p.cekam[i]) << p.atributy;
    }
}

TEST(Sablona, OpakovanePoleStojiVedleSebeSCislem) {
    const store::Rows vety{{"Den1", "Den2", "Den3"}, {{"8:00", "7:30", "0:00"}}};
    const auto document = vypln(
        "<detail><radek><pole x='10' sirka='9' opakuj='3'>#={Den#}</pole></radek></detail>", vety);
    const auto& bunky = document.strany[0].pasy[0].bunky;
    ASSERT_EQ(bunky.size(), 3U);
    EXPECT_EQ(bunky[2].text, "3=0:00");
    EXPECT_DOUBLE_EQ(bunky[2].x_mm, 28);
}

/// Rows of one group each `v_jedne` long; a detail is 40 mm high, so that six fit on a page.
std::vector<std::size_t> vet_na_stranach(const std::string& skupina, int vet, int v_jedne) {
    store::Rows vety{{"Sk"}, {}};
    for (int i = 0; i < vet; ++i)
        vety.rows.push_back({i / v_jedne});
    const std::string radek = "<radek vyska='40'><pole x='0' sirka='9'>v</pole></radek>";
    const auto document = vypln(skupina + "<detail>" + radek + "</detail>", vety);
    std::vector<std::size_t> pocty;
    for (const Strana& strana : document.strany) {
        pocty.push_back(
            static_cast<std::size_t>(std::ranges::count_if(strana.pasy, [](const Pas& pas) {
                return !pas.bunky.empty() && pas.bunky[0].text == "v";
            })));
    }
    return pocty;
}

TEST(Sablona, ZlomyStranPodleSkupin) {
    const auto skupina = [](const char* atributy, const std::string& zahlavi = "") {
        return "<skupina podle='Sk' " + std::string(atributy) + ">" + zahlavi + "</skupina>";
    };
    const std::string vysoke = "<zahlavi><radek vyska='37'/></zahlavi>";
    const struct {
        const char* co;
        std::string skupina;
        int vet, v_jedne;
        std::vector<std::size_t> cekam;
    } pripady[] = {
        {"bez skupin", "", 8, 1, {6, 2}},
        {"nová strana", skupina("nova_strana='ano'"), 8, 4, {4, 4}},
        {"pohromadě", skupina("pohromade='ano'"), 8, 4, {4, 4}},
        {"pohromadě se nevejde", skupina("pohromade='ano'"), 8, 8, {6, 2}},
        {"záhlaví nezůstane samo", skupina("", vysoke), 10, 5, {5, 5}},
    };
    for (const auto& p : pripady)
        EXPECT_EQ(vet_na_stranach(p.skupina, p.vet, p.v_jedne), p.cekam) << p.co;
}

TEST(Sablona, VadySablonyRikajiMisto) {
    const struct {
        const char* xml;
        const char* cekam;
    } pripady[] = {
        {"<sestava nazev='x'>\n<detail>\n", "řádek 2: není správné XML"},
        {"", "není správné XML"},
        {"<sestava nazev='\xFF'/>", "není text v UTF-8"},
        {"<zprava/>", "řádek 1, <zprava>: čekám kořen <sestava>"},
        {"<sestava/>", "řádek 1, <sestava>: chybí atribut \"nazev\""},
        {"<sestava nazev='{Kcs}'/>", "smí být z polí jen {parametr:jméno}"},
        {"<sestava nazev='x' okraj='60'/>", "okraj=\"60\": čekám číslo od 0 do 50"},
        {"<sestava nazev='x' pismo='nan'/>", "pismo=\"nan\": čekám číslo od 4 do 40"},
        {"<sestava nazev='x' barva='1'/>", "neznámý atribut \"barva\""},
        {"<sestava nazev='x'>\n\n<hlava/></sestava>", "řádek 3, <hlava>: čekám <titul>"},
        {"<sestava nazev='x'><detail/></sestava>", "<detail>: chybí <radek>"},
        {"<sestava nazev='x'><detail>text</detail></sestava>",
         "<detail>: čekám <radek>, je tu text"},
        {"<sestava nazev='x'><detail><radek/></detail><detail><radek/></detail></sestava>",
         "<detail>: pás je v sestavě podruhé"},
        {"<sestava nazev='x'><skupina/></sestava>", "<skupina>: chybí atribut \"podle\""},
        {"<sestava nazev='x'><skupina podle='a' kdyz='b'/></sestava>",
         "v kdyz čekám parametr=hodnota, je \"b\""},
        {"<sestava nazev='x'><detail><radek vyska='400'/></detail></sestava>",
         "vyska=\"400\": čekám číslo od 0.5 do 277"},
        {"<sestava nazev='x'><detail><radek vyska='150'/><radek vyska='150'/></detail></sestava>",
         "pásy se nevejdou na stranu: mají 300 mm a strana 277 mm"},
    };
    for (const auto& p : pripady) {
        const auto text = chyba([&] { sablona_z_textu(p.xml, "Sablony/x.fr3"); });
        EXPECT_TRUE(text.starts_with("Sestava \"Sablony/x.fr3\"")) << text;
        EXPECT_NE(text.find(p.cekam), std::string::npos) << p.xml << "\n" << text;
    }
}

TEST(Sablona, VadyPoleRikajiCoSeCekalo) {
    const struct {
        std::string radek;
        const char* cekam;
    } pripady[] = {
        {"<radek><pole sirka='9'/></radek>", "<pole>: chybí atribut \"x\""},
        {"<radek><pole x='180' sirka='20'/></radek>", "sirka=\"20\": čekám číslo od 1 do 10"},
        {"<radek><pole x='0' sirka='9' opakuj='31'/></radek>", "od 1 do 6.12"},
        {"<radek><pole x='0' sirka='9'><b/></pole></radek>", "<b>: v <pole> čekám jen text"},
        {pole("", "tucne='1'"), "tucne=\"1\": čekám ne, ano"},
        {pole("", "format='kc'"), "format=\"kc\": čekám bez, castka, koruny, datum"},
        {pole("{Kcs"), "závorky { a } v textu nejsou v páru"},
        {pole("Kcs}"), "závorky { a } v textu nejsou v páru"},
        {pole("{}"), "chybí jméno sloupce"},
        {pole("{soucet:}"), "za \"{soucet:\" chybí jméno"},
        {pole("{suma:Kcs}"), "\"{suma:Kcs}\" není známo; čekám {sloupec}"},
        {pole("{soucet:Kcs}"), "patří jen do titulu, souhrnu"},
        {pole("{strana}"), "{strana} a {stran} patří jen do"},
        {pole("{Mzda}"), "řádek 1: sloupec \"Mzda\" v datech sestavy není; jsou tam: Sloupec, "},
        {pole("{parametr:rok}"), "řádek 1: parametr \"rok\" nebyl sestavě předán"},
    };
    for (const auto& p : pripady) {
        const auto text = chyba([&] { vypln("<detail>" + p.radek + "</detail>"); });
        EXPECT_NE(text.find(p.cekam), std::string::npos) << p.radek << "\n" << text;
    }
    EXPECT_NE(chyba([] { nacti_sablonu("/neni/x.fr3"); }).find("/neni/x.fr3"), std::string::npos);
}

}  // namespace
