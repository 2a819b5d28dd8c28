#include <string>
#include <vector>

#include "object/locate.h"
#include "platform/file_system.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "velor/smes.h"

namespace velor {

namespace {

constexpr int kGrowth = 10;  // elements by which the array of hits grows

void searchFolder(const std::string& folder, const std::string& mask, const std::string& upperName,
                  std::vector<std::string>& hits) {
    for (const platform::FolderEntry& entry : platform::listFolder(folder)) {
        const std::string name(beforeNull(entry.name));
        if (entry.isFolder) {
            searchFolder(folder + name + platform::kPathSeparator, mask, upperName, hits);
        } else if (matchesPattern(name, mask) && matchesPattern(upperCase(name), upperName)) {
            hits.push_back(folder + name);
        }
    }
}

Variant emptyTexts(int count) {
    return Variant::array(0, std::vector<Variant>(static_cast<std::size_t>(count), Variant("")));
}

void growTo(Variant& array, int upperBound) {
    Variant larger = emptyTexts(upperBound + 1);
    for (int i = 0; i <= array.upperBound(); ++i) larger.at(i) = std::move(array.at(i));
    array = std::move(larger);
}

}  // namespace

std::vector<std::string> findFiles(const std::string& folder, const std::string& mask, const std::string& name) {
    std::vector<std::string> hits;
    const bool ended = !folder.empty() && folder.back() == platform::kPathSeparator;
    searchFolder(ended ? folder : folder + platform::kPathSeparator, mask, upperCase(name), hits);
    return hits;
}

void Smes::FindFiles(const std::string& Cesta, const std::string& Maska, const std::string& Jmeno,
                     Variant& Nalezy) const {
    if (!Nalezy.isArray() || Nalezy.upperBound() < Nalezy.lowerBound()) Nalezy = emptyTexts(kGrowth + 1);
    int count = roundToInt16(parseLeadingNumber(Nalezy.at(0).toText()));
    for (const std::string& hit : findFiles(Cesta, Maska, Jmeno)) {
        if (count == Nalezy.upperBound()) growTo(Nalezy, count + kGrowth);
        Nalezy.at(++count) = hit;
        Nalezy.at(0) = std::to_string(count);
    }
}

std::string Smes::TrimNulls(const std::string& text) { return std::string(beforeNull(text)); }

}  // namespace velor
