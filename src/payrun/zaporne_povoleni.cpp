#include "payrun/zaporne_povoleni.h"

#include "store/query.h"

namespace payrun {

bool jsou_povoleny_zaporne(store::Connection& data) {
    store::Query ridici(data, "select * from ridici where modul=14");
    ridici.open();
    return !ridici.eof() && ridici.text("text").find("---") != std::string::npos;
}

}  // namespace payrun
