#include "payrun/unit66_prohlizeni.h"

namespace payrun {

TForm66::TForm66(shell::Session& session, std::string nadpis_, std::string_view dotaz)
    : nadpis(std::move(nadpis_)) {
    store::Query vety_dotazu(session.data(), dotaz);
    vety = store::read_all(vety_dotazu);
}

void TForm66::Button1Click() {
    zavreno = true;
    oznam_zmenu();
}

}  // namespace payrun
