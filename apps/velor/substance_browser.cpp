#include "substance_browser.h"

namespace velor::app {

namespace {

constexpr std::size_t kMostShownLines = 800;  // of the library's form

// The order is known from the command line, so that the library's question about it is answered at once.
class KnownOrder : public UserInterface {
  public:
    KnownOrder(UserInterface& user, bool byNumber) : user_(user), byNumber_(byNumber) {}

    Answer showMessage(const Message& message) override { return user_.showMessage(message); }
    std::string askText(const InputRequest&) override { return byNumber_ ? "1" : "0"; }
    void showForm(F_Sezn& form) override { user_.showForm(form); }
    void showForm(F_Seznam& form) override { user_.showForm(form); }
    void showForm(F_Sloz& form) override { user_.showForm(form); }
    void showForm(frmLatka& form) override { user_.showForm(form); }
    void showForm(F_Zmenaz& form) override { user_.showForm(form); }
    void showForm(frmOprav& form) override { user_.showForm(form); }

  private:
    UserInterface& user_;
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
