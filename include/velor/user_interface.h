// What the library asks of the person in front of it. A host gives an implementation when it creates a Smes.
#pragma once

#include <deque>
#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

namespace velor {

class F_Sezn;
class F_Seznam;
class F_Sloz;
class frmLatka;
class F_Zmenaz;
class frmOprav;

enum class Icon { None, Critical, Exclamation, Information };
enum class Buttons { Ok, YesNo };
enum class Answer { Ok, Yes, No };

struct Message {
    std::string text;  // UTF-8, lines separated by CR LF
    Icon icon = Icon::None;
    std::string title = "VELOR";
    Buttons buttons = Buttons::Ok;

    bool operator==(const Message&) const = default;
};

// What a text is asked for, where a host may know the answer; its prompt is for people only.
enum class Question { Other, FlashFeed };

struct InputRequest {
    std::string prompt;
    std::string title = "VELOR";
    std::string defaultAnswer;
    Question question = Question::Other;

    bool operator==(const InputRequest&) const = default;
};

class UserInterface {
  public:
    virtual ~UserInterface() = default;

    // Shows a modal message and returns the button pressed: Ok, or Yes or No for Buttons::YesNo.
    virtual Answer showMessage(const Message& message) = 0;
    // Asks for a text. Raises run-time error 62 where nobody can answer.
    virtual std::string askText(const InputRequest& request) = 0;
    // Shows a form modally: passes the user's actions on to it until its `visible` turns false. Where nobody can act it
    // closes the form.
    virtual void showForm(F_Sezn& form) = 0;
    virtual void showForm(F_Seznam& form) = 0;
    virtual void showForm(F_Sloz& form) = 0;
    virtual void showForm(frmLatka& form) = 0;
    virtual void showForm(F_Zmenaz& form) = 0;
    virtual void showForm(frmOprav& form) = 0;

  protected:
    UserInterface() = default;
    UserInterface(const UserInterface&) = default;
    UserInterface& operator=(const UserInterface&) = default;
};

// Questions and answers on streams. Messages and prompts go to the message stream, answers are read line by line.
// A Yes/No question takes a, ano, y, yes or n, ne, no in either case; at the end of input the answer is No, and
// askText raises error 62. An empty line answers a text request with its default. Control characters of what is shown
// are written as "?", so that no name can command the terminal.
class StreamUserInterface : public UserInterface {
  public:
    StreamUserInterface(std::istream& answers, std::ostream& messages);
    ~StreamUserInterface() override;

    Answer showMessage(const Message& message) override;
    std::string askText(const InputRequest& request) override;
    void showForm(F_Sezn& form) override;
    void showForm(F_Seznam& form) override;
    void showForm(F_Sloz& form) override;
    void showForm(frmLatka& form) override;
    void showForm(F_Zmenaz& form) override;
    void showForm(frmOprav& form) override;

  private:
    bool readLine(std::string& line);  // false at the end of input

    std::istream& answers_;
    std::unique_ptr<std::ostream> safe_;
    std::ostream& messages_;  // the safe one
};

// Shows nothing and keeps everything: for tests and for hosts that report in their own way. Answers are taken from
// the queues; where they are empty a Yes/No question gets No and askText raises error 62.
class RecordingUserInterface : public UserInterface {
  public:
    std::vector<Message> messages;
    std::vector<InputRequest> requests;
    std::deque<Answer> nextAnswers;
    std::deque<std::string> nextTexts;
    // What the user does with the next form shown; where the queue is empty the form is closed.
    std::deque<std::function<void(F_Sezn&)>> nextListActions;
    std::deque<std::function<void(F_Seznam&)>> nextComponentActions;
    std::deque<std::function<void(F_Sloz&)>> nextCompositionActions;
    std::deque<std::function<void(frmLatka&)>> nextDisplayActions;
    std::deque<std::function<void(F_Zmenaz&)>> nextChangeActions;
    std::deque<std::function<void(frmOprav&)>> nextCorrectionActions;

    Answer showMessage(const Message& message) override;
    std::string askText(const InputRequest& request) override;
    void showForm(F_Sezn& form) override;
    void showForm(F_Seznam& form) override;
    void showForm(F_Sloz& form) override;
    void showForm(frmLatka& form) override;
    void showForm(F_Zmenaz& form) override;
    void showForm(frmOprav& form) override;
};

}  // namespace velor
