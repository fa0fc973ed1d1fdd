#include "workers/unit12_fixni_polozka.h"

#include "base/text.h"
#include "workers/fixni_archiv.h"

namespace workers {

TForm12::TForm12(shell::Session& session, std::int64_t pocitadlo)
    : PolozkaFixnich(session, pocitadlo, 0) {}

void TForm12::FormShow() {
    archiv = nacti_archiv_spojeni(session());
    PolozkaFixnich::FormShow();
}

void TForm12::vyber_radek_archivu(int novy) {
    radek_archivu = novy >= 0 && novy < static_cast<int>(archiv.size()) ? novy : -1;
    oznam_zmenu();
}

void TForm12::acArchivujExecute() {
    if (!base::neprazdny(spojeni.Ucet)) {
        session().obsluha().pipni();
        return;
    }
    archiv.push_back(workers::radek_archivu(spojeni));
    radek_archivu = static_cast<int>(archiv.size()) - 1;
    uloz_archiv();
}

void TForm12::acDosadExecute() {
    if (radek_archivu < 0) {
        session().obsluha().hlaska("Neoznačili jste v archivu žádnou položku.");
        return;
    }
    spojeni = spojeni_z_archivu(archiv[static_cast<std::size_t>(radek_archivu)]);
    fokus = "Ucet";
    oznam_zmenu();
}

void TForm12::acSmazatVseExecute() {
    archiv.clear();
    radek_archivu = -1;
    uloz_archiv();
}

void TForm12::uloz_archiv() {
    uloz_archiv_spojeni(session(), archiv);
    oznam_zmenu();
}

}  // namespace workers
