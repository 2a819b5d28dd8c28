#include "velor/supplement.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "platform/file_system.h"
#include "records/supplement_text.h"
#include "velor/run_time_error.h"
#include "velor/text.h"

namespace velor {

namespace {

// Detects what a disk or an editor did, not what somebody meant.
std::uint32_t checkSum(std::string_view text) {
    constexpr std::uint32_t kBasis = 2166136261U, kPrime = 16777619U;  // FNV-1a
    std::uint32_t sum = kBasis;
    for (const char c : text) sum = (sum ^ static_cast<unsigned char>(c)) * kPrime;
    return sum;
}

// Not known where the text is no number of this world.
std::optional<double> deviationOf(std::string_view text) {
    try {
        return parseWholeNumber(text);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

Supplement::State stateOf(std::string_view text) {
    constexpr std::string_view kAnyVersion = "VELOR.DOP ";
    if (!text.starts_with(kAnyVersion)) return Supplement::State::Damaged;
    if (!text.starts_with(kSupplementVersion)) return Supplement::State::OtherVersion;
    const std::size_t end = text.rfind(kSupplementEnd);
    if (end == std::string_view::npos || text.substr(end) != supplementEnd(text.substr(0, end)))
        return Supplement::State::Damaged;
    return Supplement::State::Read;
}

}  // namespace

struct Supplement::Content {
    explicit Content(std::string whole) : text(std::move(whole)) {
        std::string_view lines = text;
        takeLine(lines);
        while (!lines.empty()) {
            const std::string_view cas = supplementFields(lines.substr(0, lines.find('\n')))[0];
            const std::string_view from = lines;
            while (lines.starts_with(cas) && lines.substr(cas.size()).starts_with('\t')) takeLine(lines);
            if (lines.size() == from.size()) takeLine(lines);  // a line without a tabulator
            linesOf.emplace(cas, from.substr(0, from.size() - lines.size()));
        }
    }
    Content(const Content&) = delete;
    Content& operator=(const Content&) = delete;

    std::string text;
    std::unordered_map<std::string_view, std::string_view> linesOf;  // of each substance, by its CAS number
};

SupplementFields supplementFields(std::string_view line) {
    SupplementFields fields;
    for (std::string_view& field : fields) {
        const std::size_t end = std::min(line.find('\t'), line.size());
        field = line.substr(0, end);
        line.remove_prefix(std::min(end + 1, line.size()));
    }
    return fields;
}

std::string supplementEnd(std::string_view text) {
    return std::string(kSupplementEnd) + std::to_string(checkSum(text)) + "\n";
}

std::string_view takeLine(std::string_view& text) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return line;
}

Supplement::Supplement(std::string text) : state_(stateOf(text)) {
    if (state_ == State::Read) content_ = std::make_shared<const Content>(std::move(text));
}

std::string_view Supplement::text() const { return content_ ? std::string_view(content_->text) : ""; }

std::string_view Supplement::linesOf(std::string_view cas) const {
    if (!content_) return {};
    const auto found = content_->linesOf.find(cas);
    return found == content_->linesOf.end() ? std::string_view() : found->second;
}

Supplement Supplement::of(const std::string& databasePath) {
    if (databasePath.empty()) return {};
    constexpr std::size_t kMostBytes = 64U << 20U;  // far more than all substances that there are numbers for
    try {
        return Supplement(platform::readText(pathFor(databasePath), kMostBytes));
    } catch (const RunTimeError&) {
        return {};
    }
}

std::string Supplement::pathFor(const std::string& databasePath) {
    const std::size_t dot = databasePath.rfind('.');
    const std::size_t folder = databasePath.find_last_of("/\\");
    const bool hasEnd = dot != std::string::npos && (folder == std::string::npos || dot > folder);
    return databasePath.substr(0, hasEnd ? dot : databasePath.size()) + ".DOP";
}

std::string_view Supplement::note() const {
    switch (state_) {
        case State::Read:
            return "";
        case State::Missing:
            return "Doplněk báze VELOR.DOP chybí.";
        case State::OtherVersion:
            return "Doplněk báze VELOR.DOP má jinou verzi.";
        case State::Damaged:
            break;
    }
    return "Doplněk báze VELOR.DOP je poškozen.";
}

std::optional<Provenance> Supplement::provenance(std::string_view cas, int k) const {
    const auto properties = pureProperties();
    if (k < 1 || static_cast<std::size_t>(k) > properties.size()) return std::nullopt;
    const std::string_view code = properties[static_cast<std::size_t>(k - 1)].code;
    for (std::string_view lines = linesOf(cas); !lines.empty();) {
        const auto [own, what, source, deviation, estimate] = supplementFields(takeLine(lines));
        if (what == code) return Provenance{std::string(source), deviationOf(deviation), estimate == kEstimate};
    }
    return std::nullopt;
}

EstimatedProperties Supplement::estimates(std::string_view cas) const {
    EstimatedProperties estimated;
    for (std::string_view lines = linesOf(cas); !lines.empty();) {
        const SupplementFields fields = supplementFields(takeLine(lines));
        const PureProperty* property = fields[4] == kEstimate ? findPureProperty(fields[1]) : nullptr;
        if (property) estimated.set(static_cast<std::size_t>(property->number));
    }
    return estimated;
}

std::string Supplement::groups(std::string_view cas) const {
    for (std::string_view lines = linesOf(cas); !lines.empty();)
        if (const SupplementFields fields = supplementFields(takeLine(lines)); fields[1] == kGroupsLine)
            return std::string(fields[2]);
    return {};
}

void Supplement::forEachName(const std::function<void(std::string_view, std::string_view)>& take) const {
    for (std::string_view lines = text(); !lines.empty();) {
        const SupplementFields fields = supplementFields(takeLine(lines));
        if (fields[1] == kNameLine) take(fields[0], fields[3]);
        if (fields[1] == kSharedNameLine) take(fields[0], fields[2]);
    }
}

}  // namespace velor
