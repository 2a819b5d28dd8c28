// A shell command line that is just being typed: its words up to the cursor, and how a completion is put into it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velor::app {

struct TypedWord {
    std::string text;  // without quotes and escapes
    std::vector<std::size_t>
        origins;                 // where each byte of the text begins in the line, with its backslash, and the end
    std::vector<char> quotes;    // the quote around each of these places, 0 for none
    bool isRedirection = false;  // "<", ">", ">>"
};

class TypedLine {
  public:
    // The line up to the cursor; wordBreaks are the characters at which the shell begins anew to replace, beside
    // blanks.
    TypedLine(std::string_view line, std::string_view wordBreaks);

    const std::vector<TypedWord>& before() const { return before_; }  // the words before the one at the cursor
    const TypedWord& current() const { return current_; }             // empty where a new word begins

    // What the shell is to put in place of the part that it replaces, so that the word's text from the position `from`
    // on becomes the item. None where the item cannot follow what stays in the line.
    std::optional<std::string> insertion(std::size_t from, std::string_view item) const;

  private:
    void read(std::string_view wordBreaks);
    void add(char c, std::size_t position);
    void finishWord();

    std::string line_;
    std::vector<TypedWord> before_;
    TypedWord current_;
    bool isInWord_ = false;
    char quote_ = 0;                // open at the cursor
    std::size_t replacedFrom_ = 0;  // position in the line
};

// The words of the rest of a line, without quotes.
std::vector<std::string> shellWords(std::string_view line);

}  // namespace velor::app
