// One open database file of the engine: opening, settings, errors in words.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "store/connection.h"

struct sqlite3;

namespace store {

class Database {
  public:
    /// Opens the file, with read_write makes it when missing, readable by its owner alone; a
    /// transaction that a kill left half done is taken back first, and indexes sorted under another
    /// version of the Czech order are made anew. Throws StoreError naming the
    /// file when it cannot be opened or is no database.
    Database(std::filesystem::path file, Access access);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    sqlite3* handle() const { return handle_; }
    const std::filesystem::path& file() const { return file_; }
    Access access() const { return access_; }

    /// Runs statements without parameters and results.
    void run(const char* sql, std::string_view subject = {});

    /// True while the engine itself holds a transaction; a failing disk can end it on its own.
    bool in_transaction() const;

    /// Throws StoreError for the engine's last error; `subject` says what was worked on
    /// ("tabulka Deti").
    [[noreturn]] void fail(std::string_view subject) const;
    /// Throws StoreError with the file in front: for wrong uses that the engine was not asked
    /// about.
    [[noreturn]] void refuse(std::string_view what) const;

  private:
    void open();
    void close() noexcept;
    void set_up();
    void recover_for_reading();
    /// The version of the Czech order that the indexes stand in, kept in the file; 0 in a new one.
    std::int32_t sorted_by();
    void sort_anew();

    std::filesystem::path file_;
    Access access_;
    sqlite3* handle_ = nullptr;
};

}  // namespace store
