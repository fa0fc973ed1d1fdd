// A failing disk and a kill at every single write: the data are all old or all new.
#include <filesystem>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

#include "store/engine_fixture.h"
#include "store/fault_vfs.h"

namespace zkouska {
namespace {

using store::Connection;
using store::Transaction;

constexpr const char* file_name = "tabulky.sqlite";

/// Tables with enough rows to fill several pages.
void make_old(Connection& data) {
    for (const char* name : {"Lide", "Deti", "Mala", "Prace"}) {
        store::TableDef table = people;
        table.name = name;
        data.create_table(table);
        Transaction transaction(data);
        store::Inserter rows(data, name, {"Cislo", "Prijmeni"});
        for (int i = 0; i < 200; ++i) {
            rows.set(0, i);
            rows.set(1, "Příjmení" + std::to_string(i));
            rows.insert();
        }
        transaction.commit();
    }
}

/// Changes rows and layouts of several tables in one transaction, part of it nested.
void change(Connection& data) {
    Transaction transaction(data);
    data.execute("UPDATE Lide SET Cislo = 1000 WHERE Cislo > 20");
    data.execute("DELETE FROM Deti WHERE Cislo > 50");
    {
        Transaction nested(data);
        store::Inserter rows(data, "Mala", {"Prijmeni"});
        for (int i = 0; i < 100; ++i) {
            rows.set(0, "Nové");
            rows.insert();
        }
        nested.commit();
    }
    data.rename_table("Prace", "Zaporna");
    data.create_table({"Nova", {{"A", store::FieldType::int16}}, {}});
    data.delete_table("Deti");
    transaction.commit();
}

std::string content(Connection& data) {
    std::string out;
    for (const std::string& name : data.tables()) {
        store::Query query(data, "SELECT * FROM " + name);
        out += name + "\n";
        for (const store::Row& row : store::read_all(query).rows) {
            for (const store::Value& value : row)
                out += value.as_text() + "|";
            out += "\n";
        }
    }
    return out;
}

class EngineFault : public ::testing::Test {
  protected:
    EngineFault() {
        const FaultyDisk watch(Fault::none, 0);
        Connection data(folder.cesta());
        make_old(data);
        old_content = content(data);
        std::filesystem::copy_file(folder / file_name, folder / "puvodni");
    }

    void restore() {
        std::filesystem::remove(folder / (std::string(file_name) + "-journal"));
        std::filesystem::copy_file(folder / "puvodni", folder / file_name,
                                   std::filesystem::copy_options::overwrite_existing);
    }

    /// What a healthy program finds afterwards: sound data, and which of the two states.
    bool is_new(store::Access access) {
        Connection data(folder.cesta(), access);
        EXPECT_EQ(data.integrity_check(), "ok");
        const std::string found = content(data);
        if (found == old_content) return false;
        if (new_content.empty()) new_content = found;
        EXPECT_EQ(found, new_content);
        return true;
    }

    /// Drives the change through a failure at the first, second, ... operation until none strikes.
    void drive(Fault fault) {
        long n = 0;
        for (bool struck = true; struck && n < 2000;) {
            SCOPED_TRACE(++n);
            restore();
            std::string error;
            {
                const FaultyDisk disk(fault, n);
                error = error_of([&] {
                    Connection data(folder.cesta());
                    change(data);
                });
                struck = disk.struck();
            }
            // A failure that the engine could pass over (a sync of the folder) is no error either.
            EXPECT_EQ(is_new(store::Access::read_write), error.empty()) << error;
            if (!error.empty()) expect_error(error, {file_name});
        }
        EXPECT_GT(n, 20);
    }

    DocasnaSlozka folder;
    std::string old_content, new_content;
};

TEST_F(EngineFault, OneFailingWrite) {
    drive(Fault::error_once);
}
TEST_F(EngineFault, BrokenDisk) {
    drive(Fault::error_from);
}
TEST_F(EngineFault, FullDisk) {
    drive(Fault::full_from);
}

TEST_F(EngineFault, SessionGoesOnAfterAFailure) {
    const long n = 12;
    Connection data(folder.cesta());
    {
        const FaultyDisk disk(Fault::error_once, n);
        EXPECT_NE(error_of([&] { change(data); }), "");
    }
    EXPECT_EQ(content(data), old_content);
    change(data);
    EXPECT_TRUE(is_new(store::Access::read_write));
}

TEST_F(EngineFault, FailureInsideATransactionEndsItForGood) {
    Connection data(folder.cesta());
    Transaction outer(data);
    data.execute("UPDATE Lide SET Cislo = 0");
    {
        const FaultyDisk disk(Fault::full_from, 1);
        Transaction inner(data);
        EXPECT_NE(error_of([&] {
                      inner.commit();
                      outer.commit();
                  }),
                  "");
    }
    expect_error(error_of([&] { data.execute("UPDATE Lide SET Cislo = 0"); }), {"transakc"});
    EXPECT_EQ(content(data), old_content);
}

TEST_F(EngineFault, KillAtEveryWrite) {
    bool killed = true;
    long n = 0;
    std::set<bool> states;
    while (killed && n < 2000) {
        SCOPED_TRACE(++n);
        restore();
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            const FaultyDisk disk(Fault::kill, n);
            Connection data(folder.cesta());
            change(data);
            _exit(0);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFEXITED(status));
        killed = WEXITSTATUS(status) == killed_status;
        ASSERT_TRUE(killed || WEXITSTATUS(status) == 0);
        // The first to come after the kill may be a mere reader.
        const auto access = n % 2 == 0 ? store::Access::read_only : store::Access::read_write;
        states.insert(is_new(access));
        EXPECT_TRUE(killed || is_new(access));
    }
    EXPECT_GT(n, 20);
    EXPECT_EQ(states.size(), 2u);
}

}  // namespace
}  // namespace zkouska
