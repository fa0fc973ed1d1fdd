// CSV as RFC 4180: UTF-8, comma, quotes doubled inside quoted fields, CRLF or LF. Reading trusts
// nothing; writing ends lines by CRLF-free "\n".
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace store {

struct CsvRow {
    std::size_t line = 0;  ///< line of the file on which the row begins, from 1
    std::vector<std::string> fields;
};

/// Rows of a CSV text; a leading UTF-8 byte-order mark is passed over, empty lines are skipped (so
/// a row of one empty field, too). Throws base::ChybaDat naming the line for a quote out of place,
/// an unended quoted field, a carriage return alone or bytes that are not UTF-8; `file` is what the
/// message calls the text.
std::vector<CsvRow> parse_csv(std::string_view text, std::string_view file);

/// One line without its end; a field with comma, quote or line end is quoted.
std::string csv_line(const std::vector<std::string>& fields);

}  // namespace store
