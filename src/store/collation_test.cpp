// The test of Czech order: fourteen letters stored in reverse and read back in order.
#include "store/collation_test.h"

#include <array>
#include <string>
#include <string_view>

#include "store/connection.h"
#include "store/query.h"

namespace store {

namespace {

constexpr std::array<std::string_view, 14> right_order{"0", "9", "a", "A",  "á",  "Á", "c",
                                                       "C", "h", "H", "ch", "Ch", "ž", "Ž"};

void make_table(Connection& connection) {
    if (connection.table_exists("Cestina")) connection.delete_table("Cestina");
    connection.execute("CREATE TABLE Cestina (Znak Char(2))");
    Transaction transaction(connection);
    for (auto letter = right_order.rbegin(); letter != right_order.rend(); ++letter) {
        connection.execute("INSERT INTO Cestina (Znak) VALUES ('" + std::string(*letter) + "')");
    }
    transaction.commit();
}

bool reads_in_right_order(Connection& connection) {
    Query query(connection, "SELECT * FROM Cestina ORDER BY znak");
    query.open();
    for (const std::string_view letter : right_order) {
        if (query.eof() || query.text("Znak") != letter) return false;
        query.next();
    }
    return query.eof();
}

constexpr const char* wrong_order_question =
    "\r\nChybné nastavení českého třídění databázových tabulek.\r\n"
    "\r\nPOZOR! Progam může poskytovat chybné výsledky.\r\n"
    "\r\nMůžete pokračovat v činnosti, ale důrazně doporučujeme\r\n"
    "program ukončit, kontaktovat výrobce a společně provést\r\n"
    "nastavení správných parametrů databázového stroje.\r\n"
    "\r\nPokračovat v činnosti?\r\n";

}  // namespace

bool test_ceskeho_trideni(const std::filesystem::path& slozka_programu, base::Obsluha& obsluha,
                          bool dotaz) {
    Connection connection(slozka_programu);
    make_table(connection);
    const bool right = reads_in_right_order(connection);
    if (!right && dotaz && !obsluha.otazka_ano_ne(wrong_order_question, "Upozornění")) {
        throw base::UkonceniProgramu();
    }
    return right;
}

}  // namespace store
