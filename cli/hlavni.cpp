#include "cli/hlavni.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <ostream>

#include "cli/konec.h"
#include "cli/kontext.h"
#include "cli/napoveda.h"
#include "cli/slovesa.h"
#include "cli/texty.h"

#include "base/chyba.h"
#include "base/datum.h"

namespace cli {

namespace {

void pridej_spolecne_volby(CLI::App& program, Volby& volby) {
    program.option_defaults()->group("Volby");
    program.set_help_flag("-h,--help", "vypíše tuto nápovědu a skončí");
    program.add_option("--root", volby.root, "kořen dat (jinak Velmar.ini, Data/root)")
        ->type_name("SLOZKA")
        ->take_last();
    program.add_option("--firma", volby.firma, "složka firmy (jinak Velmar.ini, Firma/mz)")
        ->type_name("NAZEV")
        ->take_last();
    const auto nacti_datum = [&volby](const std::string& text) {
        const auto datum = base::datum_z_iso(text);
        if (!datum) {
            throw CLI::ValidationError("--datum",
                                       "čekám den jako RRRR-MM-DD, zadáno \"" + text + "\"");
        }
        volby.datum = *datum;
    };
    program.add_option_function<std::string>("--datum", nacti_datum, "který den je dnes")
        ->type_name("RRRR-MM-DD")
        ->take_last();
    program.add_option("--pdf", volby.pdf, "sestavu uloží jako PDF místo výpisu")
        ->type_name("SOUBOR")
        ->take_last();
    program.add_flag("--ano", volby.ano, "na každou otázku odpoví ano");
    program.add_flag("--ne", volby.ne, "na každou otázku odpoví ne");
}

/// Czech headings of the groups, in the program and in all its verbs.
void usporadej_napovedu(CLI::App& uzel) {
    uzel.get_help_ptr()->group("Volby");
    for (auto* podrizeny : uzel.get_subcommands({})) {
        podrizeny->group("Slovesa");
        usporadej_napovedu(*podrizeny);
    }
}

struct Program {
    Volby volby;
    std::vector<std::unique_ptr<Sloveso>> slovesa = vsechna_slovesa();
    std::vector<CLI::App*> uzly;
    CLI::App koren{"Mzdy z příkazového řádku.", "zorvctl"};

    Program() {
        koren.formatter(std::make_shared<CeskaNapoveda>());
        koren.fallthrough();
        koren.require_subcommand(1);
        pridej_spolecne_volby(koren, volby);
        koren.footer("Společné volby vypíše zorvctl --help.");
        for (const auto& sloveso : slovesa)
            uzly.push_back(sloveso->pridej(koren));
        usporadej_napovedu(koren);
        koren.footer(
            "Návratový stav: 0 hotovo, 1 odmítnuto pravidly mezd, 2 špatné použití,\n"
            "3 otázka bez odpovědi, 4 vadná data nebo úložiště.");
    }

    /// Throws CLI::ParseError.
    Sloveso& vyber(const std::vector<std::string>& argumenty) {
        // The parser takes its arguments from the end.
        koren.parse(std::vector<std::string>(argumenty.rbegin(), argumenty.rend() - 1));
        if (volby.ano && volby.ne) {
            throw CLI::ValidationError("--ano", "nelze zadat zároveň s --ne");
        }
        const auto uzel = std::find_if(uzly.begin(), uzly.end(),
                                       [](const CLI::App* app) { return app->parsed(); });
        return *slovesa[static_cast<std::size_t>(uzel - uzly.begin())];
    }
};

int ohlas(std::ostream& err, Stav stav, const std::string& text) {
    if (!text.empty()) err << radky_terminalu(text) << std::endl;
    return stav;
}

}  // namespace

int hlavni(const std::vector<std::string>& argumenty, std::istream& in, std::ostream& out,
           std::ostream& err, Terminaly terminaly) {
    Program program;
    try {
        Sloveso& sloveso = program.vyber(argumenty);
        const auto slozka = std::filesystem::path(argumenty.front()).parent_path();
        Kontext kontext(slozka, program.volby, in, out, err, terminaly);
        const int stav = sloveso.proved(kontext);
        if (stav != hotovo || !kontext.tisk.chybi_pdf()) return stav;
        return ohlas(err, spatne_pouziti,
                     "Sloveso žádnou sestavu netiskne, soubor volby --pdf nevznikl.");
    } catch (const CLI::CallForHelp&) {
        out << program.koren.help();
        return hotovo;
    } catch (const CLI::ParseError& chyba) {
        return ohlas(err, spatne_pouziti,
                     chyba_argumentu(program.koren, chyba) + "\nNápovědu vypíše --help.");
    } catch (const Konec& konec) {
        return ohlas(err, konec.stav, konec.what());
    } catch (const base::UkonceniProgramu&) {
        return odmitnuto;
    } catch (const std::exception& chyba) {
        return ohlas(err, chyba_dat, chyba.what());
    }
}

}  // namespace cli
