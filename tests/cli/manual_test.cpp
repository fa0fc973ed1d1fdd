// The manual page describes the program that is here: every verb with its options, none that is
// gone, all exit statuses.
#include <algorithm>
#include <map>
#include <regex>
#include <set>

#include "base/soubory.h"
#include "base/text.h"
#include "tests/cli/prikaz.h"

namespace zkouska {

namespace {

using Sloveso = std::vector<std::string>;

std::set<std::string> dlouhe_volby(const std::string& text) {
    static const std::regex volba("--[a-z][a-z-]*");
    std::set<std::string> volby;
    for (std::sregex_iterator it(text.begin(), text.end(), volba), konec; it != konec; ++it)
        volby.insert(it->str());
    return volby;
}

std::set<std::string> bez(std::set<std::string> volby, const std::set<std::string>& ktere) {
    for (const auto& volba : ktere)
        volby.erase(volba);
    return volby;
}

/// Sections of the page by their headings; those of verbs ("firma zaloz") have no argument names.
std::map<std::string, std::string> oddily() {
    const std::string stranka = base::precti_soubor(
        std::filesystem::path(ZORV_SOURCE_DIR) / "packaging/zorvctl.1", 1 << 20);
    std::map<std::string, std::string> oddily;
    std::string nadpis;
    for (std::string radek : base::rozdel_text(stranka, '\n')) {
        radek = std::regex_replace(radek, std::regex(R"(\\-)"), "-");
        if (radek.starts_with(".S")) {
            nadpis = std::regex_replace(radek, std::regex(R"( *\\f.*|")"), "");
            EXPECT_TRUE(oddily.emplace(nadpis, "").second) << nadpis;
        } else {
            oddily[nadpis] += radek + "\n";
        }
    }
    return oddily;
}

class Manual : public Prikaz {
  protected:
    /// Verbs that the help of a program or of a group of verbs lists.
    std::vector<Sloveso> slovesa(const Sloveso& skupina) {
        Sloveso slova = skupina;
        slova.emplace_back("--help");
        const std::string napoveda = projde(slova);
        const auto zacatek = napoveda.find("\nSlovesa:\n");
        if (zacatek == std::string::npos) return {skupina};
        std::vector<Sloveso> nalezena;
        static const std::regex nazev("\n  ([a-z][a-z-]*)(?= )");
        for (std::sregex_iterator
                 it(napoveda.begin() + static_cast<long>(zacatek), napoveda.end(), nazev),
             konec;
             it != konec; ++it) {
            Sloveso sloveso = skupina;
            sloveso.push_back((*it)[1]);
            const auto pod_nim = slovesa(sloveso);
            nalezena.insert(nalezena.end(), pod_nim.begin(), pod_nim.end());
        }
        return nalezena;
    }
};

TEST_F(Manual, PopisujePraveSlovesaAVolbyProgramu) {
    const auto stranka = oddily();
    std::set<std::string> nadpisy;
    for (const auto& sloveso : slovesa({})) {
        std::string nadpis = ".SS";
        for (const auto& slovo : sloveso)
            nadpis += " " + slovo;
        nadpisy.insert(nadpis);
        if (!stranka.contains(nadpis)) {
            ADD_FAILURE() << "v packaging/zorvctl.1 chybí " << nadpis;
            continue;
        }
        Sloveso slova = sloveso;
        slova.emplace_back("--help");
        // The last line of a verb's help names the options of the program.
        const auto volby = bez(dlouhe_volby(projde(slova)), {"--help"});
        EXPECT_EQ(dlouhe_volby(stranka.at(nadpis)), volby) << nadpis;
    }
    EXPECT_GE(nadpisy.size(), 13U);
    for (const auto& [nadpis, text] : stranka) {
        EXPECT_TRUE(!nadpis.starts_with(".SS") || nadpisy.contains(nadpis))
            << "program nezná " << nadpis;
    }
    EXPECT_EQ(dlouhe_volby(stranka.at(".SH SPOLEČNÉ VOLBY")), dlouhe_volby(projde({"--help"})));
    for (const char* stav : {"0", "1", "2", "3", "4"})
        EXPECT_NE(stranka.at(".SH NÁVRATOVÝ STAV").find("\n.B " + std::string(stav) + "\n"),
                  std::string::npos)
            << stav;
}

}  // namespace

}  // namespace zkouska
