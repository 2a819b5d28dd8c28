#include "baze/csv.h"

#include <algorithm>
#include <utility>

#include "velor/text.h"

namespace velor::baze {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr char32_t kReplacement = 0xFFFD;

bool isUtf8(std::string_view text) {
    while (!text.empty()) {
        const std::size_t before = text.size();
        // The replacement character itself is three bytes long; standing for a bad byte it takes one.
        if (takeCodePoint(text) == kReplacement && before - text.size() == 1) return false;
    }
    return true;
}

class CsvReader {
  public:
    CsvReader(std::string_view text, LineFaults& faults, int firstLine)
        : rest_(text), faults_(faults), line_(firstLine) {
        if (rest_.starts_with(kByteOrderMark)) rest_.remove_prefix(kByteOrderMark.size());
    }

    std::vector<CsvRow> rows() {
        std::vector<CsvRow> rows;
        while (!rest_.empty()) {
            CsvRow row = takeRow();
            if (!rowIsBad_) rows.push_back(std::move(row));
        }
        return rows;
    }

  private:
    CsvRow takeRow() {
        rowIsBad_ = false;
        CsvRow row{line_, {}};
        do row.cells.push_back(takeCell());
        while (takeComma());
        takeLineEnd();
        if (row.cells.size() == 1 && row.cells.front().empty()) fault(row.line, "prázdný řádek");
        if (!std::all_of(row.cells.begin(), row.cells.end(), isUtf8)) fault(row.line, "text není v kódování UTF-8");
        return row;
    }

    std::string takeCell() { return rest_.starts_with('"') ? takeQuoted() : takePlain(); }

    std::string takePlain() {
        std::string cell(rest_.substr(0, cellEnd()));
        rest_.remove_prefix(cell.size());
        if (cell.find('"') != std::string::npos) fault(line_, "uvozovky uvnitř pole, které jimi nezačíná");
        return cell;
    }

    std::string takeQuoted() {
        const int firstLine = line_;
        std::string cell;
        do {
            rest_.remove_prefix(1);  // the opening quote, or the second of a doubled one
            const std::size_t end = rest_.find('"');
            if (end == std::string_view::npos) {
                fault(firstLine, "pole v uvozovkách není ukončeno");
                rest_ = {};
                return cell;
            }
            cell += rest_.substr(0, end + 1);
            rest_.remove_prefix(end + 1);
        } while (rest_.starts_with('"'));
        cell.pop_back();
        line_ += static_cast<int>(std::count(cell.begin(), cell.end(), '\n'));
        if (const std::size_t surplus = cellEnd(); surplus > 0) {
            fault(line_, "za koncovými uvozovkami pole ještě něco je");
            rest_.remove_prefix(surplus);
        }
        return cell;
    }

    // Bytes up to the next comma or line end.
    std::size_t cellEnd() const {
        const std::size_t end = std::min(rest_.find_first_of(",\n"), rest_.size());
        const bool windowsEnd = end > 0 && end < rest_.size() && rest_[end] == '\n' && rest_[end - 1] == '\r';
        return windowsEnd ? end - 1 : end;
    }

    bool takeComma() {
        if (!rest_.starts_with(',')) return false;
        rest_.remove_prefix(1);
        return true;
    }

    void takeLineEnd() {
        if (rest_.starts_with('\r')) rest_.remove_prefix(1);
        if (rest_.empty()) return;
        rest_.remove_prefix(1);
        ++line_;
    }

    void fault(int line, std::string reason) {
        faults_.push_back({line, std::move(reason)});
        rowIsBad_ = true;
    }

    std::string_view rest_;
    LineFaults& faults_;
    int line_;
    bool rowIsBad_ = false;
};

bool needsQuotes(std::string_view cell) { return cell.find_first_of(",\"\r\n") != std::string_view::npos; }

void appendQuoted(std::string& text, std::string_view cell) {
    text += '"';
    for (const char c : cell) {
        if (c == '"') text += '"';
        text += c;
    }
    text += '"';
}

}  // namespace

std::vector<CsvRow> readCsv(std::string_view text, LineFaults& faults, int firstLine) {
    return CsvReader(text, faults, firstLine).rows();
}

void appendCsvRow(std::string& text, std::span<const std::string> cells) {
    const char* separator = "";
    for (const std::string& cell : cells) {
        text += std::exchange(separator, ",");
        if (needsQuotes(cell)) {
            appendQuoted(text, cell);
        } else {
            text += cell;
        }
    }
    text += '\n';
}

}  // namespace velor::baze
