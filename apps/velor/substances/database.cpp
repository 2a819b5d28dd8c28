#include <filesystem>
#include <system_error>
#include <vector>

#include "people/people.h"
#include "shared/files.h"
#include "substances/substances.h"

namespace velor::app {

namespace {

constexpr const char* kAdvice = " Databázi lze zadat přepínačem --baze SOUBOR.";

// Nobody is asked: the library would offer to delete the file that leads nowhere.
std::string configuredPath() {
    RecordingUserInterface silence;
    Smes smes(silence);
    const std::string configuration = smes.CFGPath() + smes.CFGName();
    std::error_code unknown;
    if (!std::filesystem::is_regular_file(systemPath(configuration), unknown)) {
        throw Failure(ExitCode::NoDatabase, "Databázi látek " + smes.DataFileName() +
                                                " nelze najít: soubor s její cestou " + configuration + " neexistuje." +
                                                kAdvice);
    }
    const std::string path = smes.AdrVELOR();
    if (path.empty()) {
        throw Failure(ExitCode::NoDatabase,
                      "Soubor " + configuration +
                          " nevede k použitelné databázi látek. Opravte cestu na jeho druhém řádku." + kAdvice);
    }
    return path;
}

SubstanceList substancesOf(const std::string& path) {
    try {
        return readSubstances(path);
    } catch (const RunTimeError& error) {
        throw Failure(ExitCode::NoDatabase, "Databázi látek „" + path + "“ nelze otevřít: " + describe(error) + ".");
    }
}

// The library looks for the file's name in its path and complains of a path that is hardly more than the name.
std::string absolutePath(const std::string& path) { return utf8Path(std::filesystem::absolute(systemPath(path))); }

std::string fileNameOf(const std::string& path) { return utf8Path(systemPath(path).filename()); }

bool isRefusedAccess(const RunTimeError& error) {
    return error.number() == RunTimeError::kPermissionDenied || error.number() == RunTimeError::kPathFileAccess;
}

}  // namespace

Database openDatabase(const std::optional<std::string>& chosenPath) {
    Database database;
    database.path = chosenPath ? *chosenPath : configuredPath();
    database.substances = substancesOf(database.path);
    if (database.substances.empty())
        throw Failure(ExitCode::NoDatabase, "Soubor „" + database.path + "“ není databáze látek.");
    return database;
}

void buildList(Smes& smes, const Database& database) {
    smes.AdrVELOR(absolutePath(database.path));
    smes.DataFileName(fileNameOf(database.path));
    try {
        smes.AkSeznam();
    } catch (const RunTimeError& error) {
        if (isRefusedAccess(error) && smes.PocLatek() > 0) return;
        throw Failure(ExitCode::NothingComputed, "Seznam látek nelze sestavit: " + describe(error) + ".");
    }
}

void loadInto(Smes& smes, const Database& database, std::span<const Substance> substances) {
    std::vector<int> numbers;
    for (const Substance& substance : substances) numbers.push_back(substance.number);
    smes.AdrVELOR(database.path);
    smes.DefSlozky(List(std::span<const int>(numbers)));
    if (smes.Inivlr().toInt16() != static_cast<int>(numbers.size()))
        throw Failure(ExitCode::NoDatabase, "Z databáze „" + database.path + "“ nelze načíst všechny látky.");
    smes.MaxErrHlas(0);      // the command words failures itself ...
    smes.ChyboveHlasky(-1);  // ... and learns of them by the raised error
}

}  // namespace velor::app
