#include "cli/kontext.h"

#include "cli/konec.h"
#include "cli/texty.h"

#include "base/chyba.h"
#include "base/text.h"

namespace cli {

namespace {

std::optional<bool> pevna_odpoved(const Volby& volby) {
    if (volby.ano) return true;
    if (volby.ne) return false;
    return {};
}

std::unique_ptr<base::Hodiny> hodiny(const Volby& volby) {
    if (volby.datum.je_prazdne()) return std::make_unique<base::SystemoveHodiny>();
    return std::make_unique<base::PevneHodiny>(base::DatumCas{volby.datum});
}

}  // namespace

Kontext::Kontext(const std::filesystem::path& slozka_programu, Volby volby, std::istream& in_,
                 std::ostream& out_, std::ostream& err_, Terminaly terminaly_)
    : volby_(std::move(volby)),
      hodiny_(hodiny(volby_)),
      in(in_),
      out(out_),
      err(err_),
      terminaly(terminaly_),
      obsluha(in, err, pevna_odpoved(volby_), terminaly.vstup && terminaly.chyby),
      tisk(volby_.pdf, out, err),
      session({obsluha, *hodiny_, nahoda_}, slozka_programu),
      hlavni_okno(session) {
    obsluha.pri_obrazovce<report::TFUsrPrev>(
        [this](report::TFUsrPrev& nahled) { tisk.vytiskni(nahled); });
    session.velmar = shell::cti_velmar_ini(shell::slozky_programu(slozka_programu));
    session.koren_dat = volby_.root.empty() ? session.velmar.root : volby_.root;
}

void Kontext::priprav_koren_dat() const {
    const auto slozky = shell::slozky_programu(session.slozka_programu);
    if (slozky.vlastni.empty() || session.koren_dat != shell::vychozi_koren_dat(slozky)) return;
    std::error_code chyba;
    std::filesystem::create_directory(session.koren_dat, chyba);
}

const std::filesystem::path& Kontext::koren_dat() const {
    std::error_code chyba;
    if (!std::filesystem::is_directory(session.koren_dat, chyba)) {
        throw base::ChybaDat("Kořen dat \"" + session.koren_dat.string() +
                             "\" není složka; zadejte jinou volbou --root.");
    }
    return session.koren_dat;
}

void Kontext::vyber_firmu() {
    const std::string hledana = volby_.firma.empty() ? session.velmar.firma_mz : volby_.firma;
    if (hledana.empty()) {
        throw spatny_argument("Nejdříve vyberte firmu.\nZadejte ji volbou --firma NAZEV.");
    }
    const auto firmy = shell::seznam_firem(koren_dat());
    for (const auto& firma : firmy) {
        if (!base::stejne_bez_velikosti(firma, hledana)) continue;
        session.firma = firma;
        return;
    }
    throw spatny_argument("Firma \"" + hledana + "\" v kořenu dat \"" + koren_dat().string() +
                          "\" není." + veta_o_podobnych(hledana, firmy));
}

void Kontext::otevri_firmu() {
    vyber_firmu();
    if (!hlavni_okno.zaloz_soubory()) throw odmitni();
}

}  // namespace cli
