#include "object/locate.h"

#include <utility>

#include "object/configuration_file.h"
#include "object/messages.h"
#include "platform/file_system.h"
#include "platform/system.h"
#include "runtime/text.h"
#include "velor/smes.h"

namespace velor {

namespace {

constexpr std::int64_t kLeastDatabaseSize = 4000;  // a shorter file is broken

// From the first "." back to the separator before it: a dot in a folder's name makes the "name" begin there, as built.
std::string fileNamePart(const std::string& path) {
    const std::size_t dot = path.find('.');
    if (dot == std::string::npos) return path;
    const std::size_t separator = path.rfind(platform::kPathSeparator, dot);
    return separator == std::string::npos ? path : path.substr(separator + 1);
}

// A path that ends in "#" names a database whose file name differs from the usual one.
void adoptOtherFileName(DatabasePlace& place) {
    std::string name = fileNamePart(place.AdresaBaze);
    if (!name.ends_with('#') || equalIgnoringCase(name, place.DataFileName)) return;
    name.pop_back();
    place.AdresaBaze.pop_back();
    place.DataFileName = name;
}

void offerToDeleteConfiguration(const DatabasePlace& place, const Messages& messages) {
    const std::string text = "Soubor " + place.CFGName + " nejspíše v adresáři " + place.CFGPath + kLineBreak +
                             " obsahuje odkaz na neexistující soubor " + place.DataFileName + "!!!" + kLineBreak +
                             "Smažte soubor " + place.CFGName + " a znovu spusťte program." + kLineBreak +
                             "Mám ho smazat sám? (Y/N)";
    if (show(messages, text, Icon::Exclamation, "VELOR", Buttons::YesNo) == Answer::Yes)
        platform::deleteFile(place.CFGPath + place.CFGName);
}

std::string tooSmallText(const std::string& path, std::int64_t size) {
    // No blank stands between the path and "má", as built.
    return "Soubor " + path + "má příliš malou délku (" + std::to_string(size) + ") nebo je nulový.";
}

void offerToDeleteDatabase(const Messages& messages, const std::string& path, std::int64_t size) {
    const std::string text = tooSmallText(path, size) + kLineBreak + "Smazat ho ? (Y/N)";
    if (show(messages, text, Icon::None, "VELOR", Buttons::YesNo) == Answer::Yes) platform::deleteFile(path);
}

void checkDatabase(DatabasePlace& place, const Messages& messages) {
    const std::string entry = platform::fileName(place.AdresaBaze);
    if (entry.empty() || !equalIgnoringCase(entry, place.DataFileName)) {
        place.AdresaBaze.clear();
        offerToDeleteConfiguration(place, messages);
        return;
    }
    const std::int64_t size = platform::ReadOnlyFile(place.AdresaBaze).size();
    if (size >= kLeastDatabaseSize) return;
    const std::string refused = std::exchange(place.AdresaBaze, {});
    // A CFG file can give any file the database's name; it must not make the user delete one that is no database.
    if (equalIgnoringCase(place.DataFileName, place.usualFileName)) {
        offerToDeleteDatabase(messages, refused, size);
    } else {
        show(messages, tooSmallText(refused, size), Icon::None, "VELOR");
    }
}

std::string searchVolumes(const DatabasePlace& place) {
    const std::vector<std::string> volumes = place.volumes ? *place.volumes : platform::volumes();
    for (const char* subfolder : {"VELOR", ""}) {
        for (const std::string& volume : volumes) {
            const auto hits = findFiles(volume + subfolder, "*", place.DataFileName);
            if (!hits.empty()) return hits.front();
        }
    }
    return {};
}

// Minutes without a word are for nobody: where nobody is told nothing is searched.
std::string announcedSearch(const DatabasePlace& place, const Messages& messages) {
    if (messages.Tichy != 0) return {};
    show(messages,
         "Budu nyní hledat datový soubor " + place.DataFileName + " na všech pevných discích" + kLineBreak +
             "Může to trvat i několik minut! Stiskněte OK a vyčkejte.",
         Icon::Information, "Instalace VELOR");
    return searchVolumes(place);
}

void searchAndConfigure(DatabasePlace& place, const Messages& messages) {
    const std::string found = announcedSearch(place, messages);
    if (found.empty()) {
        place.AdresaBaze.clear();
        show(messages,
             std::string("Lituji, ale nemáte nikde na dostupných discích") + kLineBreak +
                 "nainstalován datový soubor báze " + place.DataFileName + kLineBreak +
                 "Zajistěte jeho nainstalování!" + kLineBreak + "Bez něho je báze nefunkční!",
             Icon::Critical);
        return;
    }
    // Kept before the CFG file is written: where that cannot be done the search was not in vain.
    place.AdresaBaze = found;
    writeConfiguredPath(place.CFGPath + place.CFGName, found);
}

// Whether the CFG file could be read.
bool readConfiguration(DatabasePlace& place) {
    try {
        const std::string path = readConfiguredPath(place.CFGPath + place.CFGName);
        if (!path.empty()) place.AdresaBaze = path;
        return true;
    } catch (const RunTimeError& error) {
        if (error.number() != RunTimeError::kFileNotFound && error.number() != RunTimeError::kPathNotFound) throw;
        return false;
    }
}

}  // namespace

void locateDatabase(DatabasePlace& place, const Messages& messages) {
    try {
        if (!readConfiguration(place)) {
            searchAndConfigure(place, messages);
            return;
        }
        adoptOtherFileName(place);
        checkDatabase(place, messages);
    } catch (const RunTimeError& error) {
        show(messages, "Chyba č. " + std::to_string(error.number()) + " : " + error.description(), Icon::Exclamation,
             "VELOR Adrvlr");
        if (messages.ChyboveHlasky == -1)
            raiseToHost("VELOR - Adrvlr", "Chyba při zjišťování umístění datového souboru!");
    }
}

void Smes::Adrvlr() {
    const PublicCall call(*state_);
    locateDatabase(state_->place, state_->messages);
}

}  // namespace velor
