#include "completion/typed_line.h"

#include <algorithm>

#include "completion/candidates.h"

namespace velor::app {

namespace {

constexpr std::string_view kBlanks = " \t\n";
constexpr std::string_view kKeptAtBreak = "@$";  // a break, but part of what is replaced

bool contains(std::string_view characters, char c) { return characters.find(c) != std::string_view::npos; }

bool isPlain(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x80 || (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
           contains("_-.,+:/=@%", c);
}

std::string quoted(std::string_view text, char quote) {
    std::string result;
    for (const char c : text) {
        if (quote == '\'' && c == '\'') {
            result += "'\\''";
            continue;
        }
        const bool isEscaped = quote == 0 ? !isPlain(c) : quote == '"' && contains("\"\\$`", c);
        if (isEscaped) result += '\\';
        result += c;
    }
    return result;
}

}  // namespace

TypedLine::TypedLine(std::string_view line, std::string_view wordBreaks) : line_(line) {
    read(wordBreaks);
    current_.origins.push_back(line_.size());
    current_.quotes.push_back(quote_);
}

void TypedLine::add(char c, std::size_t position) {
    isInWord_ = true;
    current_.text += c;
    current_.origins.push_back(position);
    current_.quotes.push_back(quote_);
}

void TypedLine::finishWord() {
    if (isInWord_) before_.push_back(std::move(current_));
    current_ = {};
    isInWord_ = false;
}

void TypedLine::read(std::string_view wordBreaks) {
    std::size_t afterBreak = 0, afterQuote = 0;
    for (std::size_t i = 0; i < line_.size(); ++i) {
        const char c = line_[i];
        const char next = i + 1 < line_.size() ? line_[i + 1] : '\0';
        if (quote_ != 0 && c == quote_) {
            quote_ = 0;
        } else if (c == '\\' && (quote_ == 0 || (quote_ == '"' && contains("\"\\$`", next)))) {
            if (i + 1 == line_.size()) continue;
            add(next, i);  // whatever replaces it replaces its backslash, too
            ++i;
        } else if (quote_ != 0) {
            add(c, i);
        } else if (c == '\'' || c == '"') {
            isInWord_ = true;
            quote_ = c;
            afterQuote = i + 1;
        } else if (contains(kBlanks, c)) {
            finishWord();
            afterBreak = i + 1;
        } else if (c == '<' || c == '>') {
            finishWord();
            before_.push_back({std::string(1, c), {i, i + 1}, {0, 0}, true});
            afterBreak = i + 1;
        } else {
            add(c, i);
            if (contains(wordBreaks, c)) afterBreak = contains(kKeptAtBreak, c) ? i : i + 1;
        }
    }
    replacedFrom_ = quote_ != 0 ? afterQuote : afterBreak;
}

std::optional<std::string> TypedLine::insertion(std::size_t from, std::string_view item) const {
    const std::size_t origin = current_.origins[from];
    if (origin >= replacedFrom_) {
        const char quote = current_.quotes[from];
        std::string text = line_.substr(replacedFrom_, origin - replacedFrom_) + quoted(item, quote);
        if (quote != 0 && quote_ == 0) text += quote;
        return text;
    }
    const auto end = std::ranges::lower_bound(current_.origins, replacedFrom_) - current_.origins.begin();
    const std::string stays = current_.text.substr(from, static_cast<std::size_t>(end) - from);
    const auto rest = behindStart(item, stays);
    if (!rest) return std::nullopt;
    return quoted(*rest, quote_);
}

std::vector<std::string> shellWords(std::string_view line) {
    const TypedLine typed(std::string(line) + " ", "");
    std::vector<std::string> words;
    for (const TypedWord& word : typed.before()) words.push_back(word.text);
    return words;
}

}  // namespace velor::app
