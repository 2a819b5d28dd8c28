#include "substance_browser.h"

#include "forwarding_user_interface.h"

namespace velor::app {

namespace {

constexpr std::size_t kMostShownLines = 800;  // of the library's form

// The order is known from the command line, so that the library's question about it is answered at once.
class KnownOrder : public ForwardingUserInterface {
  public:
    KnownOrder(UserInterface& user, bool byNumber) : ForwardingUserInterface(user), byNumber_(byNumber) {}

    std::string askText(const InputRequest&) override { return byNumber_ ? "1" : "0"; }

  private:
    bool byNumber_;
};

}  // namespace

bool canBrowse(const Database& database) { return database.substances.size() <= kMostShownLines; }

void browse(const SubstanceListRequest& request, const Database& database, UserInterface& user) {
    KnownOrder dialogs(user, request.byNumber);
    Smes smes(dialogs);
    buildList(smes, database);
    smes.SeznamShow();
}

}  // namespace velor::app
