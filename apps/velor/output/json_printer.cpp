#include <charconv>
#include <nlohmann/json.hpp>

#include "output/output.h"
#include "velor/text.h"

namespace velor::app {

namespace {

using Json = nlohmann::ordered_json;

// The double nearest to the shortest decimal text of a single: 0.046 for 0.046F, not 0.04600000008940697.
double decimalValue(float value) {
    const std::string digits = exactText(value);
    double decimal = value;
    std::from_chars(digits.data(), digits.data() + digits.size(), decimal);
    return decimal;
}

struct JsonOf {
    Json operator()(std::monostate) const { return nullptr; }
    Json operator()(int number) const { return number; }
    Json operator()(float number) const { return decimalValue(number); }
    Json operator()(double number) const { return number; }
    Json operator()(const std::string& text) const { return text; }
};

Json asJson(const Entries& entries) {
    Json object = Json::object();
    for (const Entry& entry : entries) {
        Json value = std::visit(JsonOf{}, entry.value);
        if (entry.unit) value = {{"hodnota", value}, {"jednotka", *entry.unit}};
        object[entry.key] = std::move(value);
    }
    return object;
}

Json asJson(const Table& table) {
    Json rows = Json::array();
    for (const auto& row : table.rows) {
        Json object = Json::object();
        for (std::size_t i = 0; i < row.size(); ++i) object[table.columns[i].key] = std::visit(JsonOf{}, row[i].value);
        rows.push_back(std::move(object));
    }
    return rows;
}

}  // namespace

std::string asJson(const Report& report) {
    Json document = Json::object();
    for (const Section& section : report.sections)
        document[section.key] = std::visit([](const auto& content) { return asJson(content); }, section.content);
    // A file's name need not be UTF-8.
    return document.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace velor::app
