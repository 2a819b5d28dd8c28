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
void adoptOtherFileName(State& state) {
    std::string name = fileNamePart(state.place.AdresaBaze);
    if (!name.ends_with('#') || equalIgnoringCase(name, state.place.DataFileName)) return;
    name.pop_back();
    state.place.AdresaBaze.pop_back();
    state.place.DataFileName = name;
}

void offerToDeleteConfiguration(State& state) {
    const std::string text = "Soubor " + state.place.CFGName + " nejspíše v adresáři " + state.place.CFGPath +
                             kLineBreak + " obsahuje odkaz na neexistující soubor " + state.place.DataFileName + "!!!" +
                             kLineBreak + "Smažte soubor " + state.place.CFGName + " a znovu spusťte program." +
                             kLineBreak + "Mám ho smazat sám? (Y/N)";
    if (show(state.messages, text, Icon::Exclamation, "VELOR", Buttons::YesNo) == Answer::Yes)
        platform::deleteFile(state.place.CFGPath + state.place.CFGName);
}

void offerToDeleteDatabase(State& state, const std::string& path, std::int64_t size) {
    // No blank stands between the path and "má", as built.
    const std::string text = "Soubor " + path + "má příliš malou délku (" + std::to_string(size) + ") nebo je nulový." +
                             kLineBreak + "Smazat ho ? (Y/N)";
    if (show(state.messages, text, Icon::None, "VELOR", Buttons::YesNo) == Answer::Yes) platform::deleteFile(path);
}

void checkDatabase(State& state) {
    const std::string entry = platform::fileName(state.place.AdresaBaze);
    if (entry.empty() || !equalIgnoringCase(entry, state.place.DataFileName)) {
        state.place.AdresaBaze.clear();
        offerToDeleteConfiguration(state);
        return;
    }
    const std::int64_t size = platform::ReadOnlyFile(state.place.AdresaBaze).size();
    if (size < kLeastDatabaseSize) offerToDeleteDatabase(state, std::exchange(state.place.AdresaBaze, {}), size);
}

std::string searchVolumes(const State& state) {
    const std::vector<std::string> volumes = state.place.volumes ? *state.place.volumes : platform::volumes();
    for (const char* subfolder : {"VELOR", ""}) {
        for (const std::string& volume : volumes) {
            const auto hits = findFiles(volume + subfolder, "*", state.place.DataFileName);
            if (!hits.empty()) return hits.front();
        }
    }
    return {};
}

void searchAndConfigure(State& state) {
    show(state.messages,
         "Budu nyní hledat datový soubor " + state.place.DataFileName + " na všech pevných discích" + kLineBreak +
             "Může to trvat i několik minut! Stiskněte OK a vyčkejte.",
         Icon::Information, "Instalace VELOR");
    const std::string found = searchVolumes(state);
    if (found.empty()) {
        show(state.messages,
             std::string("Lituji, ale nemáte nikde na dostupných discích") + kLineBreak +
                 "nainstalován datový soubor báze " + state.place.DataFileName + kLineBreak +
                 "Zajistěte jeho nainstalování!" + kLineBreak + "Bez něho je báze nefunkční!",
             Icon::Critical);
        return;
    }
    // Kept before the CFG file is written: where that cannot be done the search was not in vain.
    state.place.AdresaBaze = found;
    writeConfiguredPath(state.place.CFGPath + state.place.CFGName, found);
}

// Whether the CFG file could be read.
bool readConfiguration(State& state) {
    try {
        const std::string path = readConfiguredPath(state.place.CFGPath + state.place.CFGName);
        if (!path.empty()) state.place.AdresaBaze = path;
        return true;
    } catch (const RunTimeError& error) {
        if (error.number() != RunTimeError::kFileNotFound && error.number() != RunTimeError::kPathNotFound) throw;
        return false;
    }
}

}  // namespace

void locateDatabase(State& state) {
    try {
        if (!readConfiguration(state)) {
            searchAndConfigure(state);
            return;
        }
        adoptOtherFileName(state);
        checkDatabase(state);
    } catch (const RunTimeError& error) {
        show(state.messages, "Chyba č. " + std::to_string(error.number()) + " : " + error.description(),
             Icon::Exclamation, "VELOR Adrvlr");
        if (state.messages.ChyboveHlasky == -1)
            raiseToHost("VELOR - Adrvlr", "Chyba při zjišťování umístění datového souboru!");
    }
}

void Smes::Adrvlr() { locateDatabase(*state_); }

}  // namespace velor
