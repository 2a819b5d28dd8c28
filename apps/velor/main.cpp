// The velor command: arguments -> request -> report -> text.
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <exception>
#include <iostream>
#include <iterator>
#include <memory>
#include <string>
#include <utility>

#include "command_line/command_line.h"
#include "mixtures/mixtures.h"
#include "output/output.h"
#include "people/people.h"
#include "substances/substances.h"
#include "velor/text.h"

namespace velor::app {

namespace {

// A reader that went away has read enough: no text, only the exit code.
void write(const std::string& text) {
    errno = 0;
    std::cout << printable(text) << std::flush;
    if (!std::cout && errno == EPIPE) throw Failure(ExitCode::NothingComputed, "");
    if (!std::cout) throw Failure(ExitCode::NothingComputed, "Výsledek se nepodařilo zapsat na výstup.");
}

// The list of properties is known without a database.
Report reportOn(const PropertyListRequest&, const Request&, PatientUserInterface&) { return propertyList(); }

template <class Question>
Report reportOn(const Question& question, const Request& request, PatientUserInterface& userInterface) {
    return answer(question, openDatabase(request.database), userInterface);
}

// Whoever reads the whole list on a terminal leafs through it.
Report reportOn(const SubstanceListRequest& question, const Request& request, PatientUserInterface& user) {
    const Database database = openDatabase(request.database);
    if (!user.isOnScreen() || !canBrowse(database)) return answer(question, database, user);
    browse(question, database, user);
    return {};
}

// Whether to flash the mixture is decided with its overview before one's eyes: people read it at once, on a terminal in
// the box that asks and once more in the end. A program gets both as one document.
Report reportOn(const MixtureDialogRequest& question, const Request& request, PatientUserInterface& user) {
    const Database database = openDatabase(request.database);
    const Mixture mixture = askMixture(database, user);
    Report report = describeMixture(mixture, question.pressure);
    const bool isRead = request.form == OutputForm::Text;
    const std::string description = isRead ? asText(report) : std::string();
    if (isRead && !user.isOnScreen()) write(description);
    const bool isWanted = isFlashWanted(user, isRead && user.isOnScreen() ? description + "\n" : std::string());
    if (isRead && user.isOnScreen()) write(description);
    if (isRead) report = {};
    if (!isWanted) return report;
    Report flash = askedFlash(mixture, user);
    if (isRead) {
        flash.text.insert(0, "\n");
        return flash;
    }
    std::ranges::move(flash.sections, std::back_inserter(report.sections));
    return report;
}

// The dialog that defines a mixture and the whole list of substances take a terminal's whole screen. The dialog is
// drawn to the error stream, so that the result can be kept in a file.
std::FILE* drawnTo(const Request& request) {
    if (std::holds_alternative<MixtureDialogRequest>(request.question)) return stderr;
    const auto* const list = std::get_if<SubstanceListRequest>(&request.question);
    return list && list->text.empty() && request.form == OutputForm::Text ? stdout : nullptr;
}

std::string answerText(const Request& request) {
    TimeLimit limit(request.timeLimit);
    const Dialogs dialogs = dialogsOn(drawnTo(request));
    PatientUserInterface userInterface(*dialogs.userInterface, dialogs.areOnScreen, std::cin, limit);
    const Report report =
        std::visit([&](const auto& question) { return reportOn(question, request, userInterface); }, request.question);
    return print(report, request.form);
}

std::string run(int argc, const char* const* argv) {
    const auto parsed = parseArguments(argc, argv);
    if (const auto* ready = std::get_if<ReadyAnswer>(&parsed)) return *ready;
    return answerText(std::get<Request>(parsed));
}

int finish(ExitCode code, const std::string& text) {
    if (!text.empty()) tell(text);
    return static_cast<int>(code);
}

}  // namespace

}  // namespace velor::app

int main(int argc, char** argv) {
    using velor::app::ExitCode;
#ifdef SIGPIPE
    // A reader that went away is an output that cannot be written, not a reason to be killed.
    std::signal(SIGPIPE, SIG_IGN);
#endif
    try {
        velor::app::write(velor::app::run(argc, argv));
        return static_cast<int>(ExitCode::Done);
    } catch (const velor::app::Failure& failure) {
        return velor::app::finish(failure.code(), failure.what());
    } catch (const velor::RunTimeError& error) {
        return velor::app::finish(ExitCode::NothingComputed, "Výpočet selhal: " + velor::app::describe(error) + ".");
    } catch (const std::exception& error) {
        return velor::app::finish(ExitCode::NothingComputed, std::string("Neočekávaná chyba: ") + error.what());
    }
}
