#include "workers/unit75_oprava_korun.h"

#include <fmt/format.h>

#include "base/text.h"
#include "shell/hodnota_text.h"
#include "store/table.h"
#include "workers/fixni.h"

namespace workers {

namespace {

constexpr long long k_nejvice_korun = 9999999;  // k_cislic_korun digits

}  // namespace

TForm75::TForm75(shell::Session& session, OmezeniFixnich omezeni, TrideniFixnich trideni)
    : session_(session), omezeni_(std::move(omezeni)), trideni_(trideni) {}

void TForm75::FormShow() {
    vety = nacti_fixni(session_, omezeni_, trideni_);
    lbOmezeni = jake_omezeni(omezeni_);
    vyber_radek(0);
}

void TForm75::vyber_radek(int novy) {
    radek = novy >= 0 && novy < static_cast<int>(vety.size()) ? novy : -1;
    oznam_zmenu();
}

bool TForm75::zapis_koruny(int ktery, const std::string& text) {
    RadekFixnich& veta = vety.at(static_cast<std::size_t>(ktery));
    const auto kcs = shell::presne_cele(text, -k_nejvice_korun, k_nejvice_korun);
    if (!kcs) {
        session_.obsluha().hlaska(
            base::neprazdny(text)
                ? fmt::format("Údaj \"{}\" musí být celé číslo, nejvýše {} číslic.", text,
                              k_cislic_korun)
                : std::string(k_nezadane_koruny));
        oznam_zmenu();
        return false;
    }
    store::Transaction transakce(session_.data());
    store::Table fixni;
    fixni.set_connection(session_.data());
    fixni.set_table_name("Fixni");
    fixni.open();
    if (!fixni.locate("Pocitadlo", veta.pocitadlo)) {
        throw store::StoreError(
            fmt::format("V tabulce Fixni už není věta s Pocitadlo = {}.", veta.pocitadlo));
    }
    fixni.edit();
    fixni.set("Kcs", std::int64_t{*kcs});
    fixni.post();
    transakce.commit();
    veta.kcs = std::int64_t{*kcs};
    oznam_zmenu();
    return true;
}

bool TForm75::povol_klavesu(int ktery, char znak, std::string_view dosud) const {
    const int sloupec = vety.at(static_cast<std::size_t>(ktery)).sloupec;
    const bool pusti = klavesa_korun(session_, sloupec, znak, dosud);
    if (!pusti) session_.obsluha().pipni();
    return pusti;
}

void TForm75::acZpetExecute() {
    zavreno = true;
    oznam_zmenu();
}

}  // namespace workers
