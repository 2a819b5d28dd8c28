// A user interface that shows nothing: it keeps what it was asked and answers from queues.
#include <utility>

#include "runtime/checked.h"
#include "velor/component_forms.h"
#include "velor/forms.h"
#include "velor/user_interface.h"

namespace velor {

namespace {

template <class Value>
Value takeFirst(std::deque<Value>& queue) {
    Value first = std::move(queue.front());
    queue.pop_front();
    return first;
}

// The actions end with the form closed, so that the modal display ends.
template <class Form>
void act(Form& form, std::deque<std::function<void(Form&)>>& actions) {
    if (!actions.empty()) takeFirst(actions)(form);
    if (form.visible) form.close();
}

}  // namespace

void RecordingUserInterface::showForm(F_Sezn& form) { act(form, nextListActions); }
void RecordingUserInterface::showForm(F_Seznam& form) { act(form, nextComponentActions); }
void RecordingUserInterface::showForm(F_Sloz& form) { act(form, nextCompositionActions); }
void RecordingUserInterface::showForm(frmLatka& form) { act(form, nextDisplayActions); }
void RecordingUserInterface::showForm(F_Zmenaz& form) { act(form, nextChangeActions); }
void RecordingUserInterface::showForm(frmOprav& form) { act(form, nextCorrectionActions); }

Answer RecordingUserInterface::showMessage(const Message& message) {
    messages.push_back(message);
    if (message.buttons == Buttons::Ok) return Answer::Ok;
    return nextAnswers.empty() ? Answer::No : takeFirst(nextAnswers);
}

std::string RecordingUserInterface::askText(const InputRequest& request) {
    requests.push_back(request);
    if (nextTexts.empty()) checked::raise(RunTimeError::kInputPastEnd);
    return takeFirst(nextTexts);
}

}  // namespace velor
