// velor vlastnost --seznam and the documentation are one table.
#include <set>
#include <sstream>

#include "command.h"

namespace velor::test {
namespace {

std::string documentedRow(const nlohmann::json& row) {
    std::string line = "| `" + row["zkratka"].get<std::string>() + "` |";
    for (const char* key : {"popis", "symbol", "jednotka", "zadat", "pravidlo"}) {
        const std::string text = row[key];
        line += text.empty() ? " |" : " " + text + " |";
    }
    return line;
}

TEST(PropertyListTest, theDocumentationSaysTheSame) {
    std::set<std::string> documented, listed;
    std::istringstream page(readFile(VELOR_SOURCES "/docs/properties.md"));
    for (std::string line; std::getline(page, line);)
        if (line.starts_with("| `")) documented.insert(line);
    // It needs no database.
    const auto list = run(words("vlastnost --seznam --json --baze /neni")).json()["vlastnosti"];
    for (const auto& row : list) listed.insert(documentedRow(row));
    EXPECT_EQ(documented, listed);
}

}  // namespace
}  // namespace velor::test
