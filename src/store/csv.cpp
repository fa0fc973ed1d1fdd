#include "store/csv.h"

#include <algorithm>
#include <fmt/format.h>

#include "base/chyba.h"
#include "base/text.h"

namespace store {

namespace {

constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";

class CsvReader {
  public:
    CsvReader(std::string_view text, std::string_view file) : text_(text), file_(file) {
        if (text_.starts_with(byte_order_mark)) text_.remove_prefix(byte_order_mark.size());
    }

    std::vector<CsvRow> rows() {
        check_utf8();
        std::vector<CsvRow> rows;
        while (at_ < text_.size()) {
            CsvRow row = next_row();
            const bool blank = row.fields.size() == 1 && row.fields[0].empty();
            if (!blank) rows.push_back(std::move(row));
        }
        return rows;
    }

  private:
    [[noreturn]] void fail(std::size_t line, std::string_view what) const {
        throw base::ChybaDat(fmt::format("Soubor \"{}\", řádek {}: {}.", file_, line, what));
    }

    void check_utf8() const {
        if (base::je_utf8(text_)) return;
        std::size_t line = 1;
        for (auto rest = text_; !rest.empty(); ++line) {
            const auto end = std::min(rest.find('\n'), rest.size() - 1) + 1;
            if (!base::je_utf8(rest.substr(0, end))) break;
            rest.remove_prefix(end);
        }
        fail(line, "text není v kódování UTF-8");
    }

    CsvRow next_row() {
        CsvRow row;
        row.line = line_;
        do {
            const bool quoted = at_ < text_.size() && text_[at_] == '"';
            row.fields.push_back(quoted ? quoted_field() : plain_field());
        } while (take(','));
        if (take('\r') && (at_ == text_.size() || text_[at_] != '\n')) {
            fail(line_, "znak CR bez znaku LF");
        }
        if (at_ < text_.size() && !take('\n')) fail(line_, "text za koncovou uvozovkou");
        ++line_;
        return row;
    }

    bool take(char c) {
        if (at_ == text_.size() || text_[at_] != c) return false;
        ++at_;
        return true;
    }

    std::string plain_field() {
        const auto end = std::min(text_.find_first_of(",\r\n\"", at_), text_.size());
        if (end < text_.size() && text_[end] == '"') fail(line_, "uvozovka uvnitř pole");
        std::string field(text_.substr(at_, end - at_));
        at_ = end;
        return field;
    }

    std::string quoted_field() {
        const auto begin_line = line_;
        std::string field;
        ++at_;
        for (;;) {
            const auto quote = text_.find('"', at_);
            if (quote == std::string_view::npos) fail(begin_line, "pole v uvozovkách nekončí");
            for (auto i = at_; i < quote; ++i)
                line_ += text_[i] == '\n';
            field += text_.substr(at_, quote - at_);
            at_ = quote + 1;
            if (!take('"')) return field;
            field += '"';
        }
    }

    std::string_view text_;
    std::string_view file_;
    std::size_t at_ = 0;
    std::size_t line_ = 1;
};

bool needs_quotes(std::string_view field) {
    return field.find_first_of(",\"\r\n") != std::string_view::npos ||
           field.starts_with(byte_order_mark);
}

}  // namespace

std::vector<CsvRow> parse_csv(std::string_view text, std::string_view file) {
    return CsvReader(text, file).rows();
}

std::string csv_line(const std::vector<std::string>& fields) {
    std::string line;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (i > 0) line += ',';
        if (!needs_quotes(fields[i])) {
            line += fields[i];
            continue;
        }
        line += '"';
        for (const char c : fields[i]) {
            if (c == '"') line += '"';
            line += c;
        }
        line += '"';
    }
    return line;
}

}  // namespace store
