#include "views/terminal/boxes.h"

#include <algorithm>

#include "velor/run_time_error.h"
#include "velor/text.h"
#include "views/terminal/dialog.h"
#include "views/terminal/wrapped_lines.h"

namespace velor::terminal {

namespace {

constexpr int kFrame = 4;  // columns of the border and the blanks beside it

int textWidth(const std::string& text, int screenColumns) {
    int width = 0;
    for (const std::string& line : wrappedLines(text, std::max(1, screenColumns - kFrame)))
        width = std::max(width, columnsOf(line));
    return width;
}

// A box as wide as its text and at least as wide as given, with some rows below the text.
Size boxSize(const std::string& text, int leastWidth, int rowsBelow, Size screen) {
    const int width =
        std::clamp(std::max(leastWidth, textWidth(text, screen.columns)), 1, std::max(1, screen.columns - kFrame));
    return {static_cast<int>(wrappedLines(text, width).size()) + rowsBelow + 2, width + kFrame};
}

std::string iconText(Icon icon) {
    switch (icon) {
        case Icon::Critical:
            return "✖ ";
        case Icon::Exclamation:
            return "! ";
        case Icon::Information:
            return "i ";
        case Icon::None:
            break;
    }
    return "";
}

}  // namespace

Answer showBox(Screen& screen, const Message& message) {
    Dialog dialog(screen, [&] { return iconText(message.icon) + message.title; });
    if (message.icon == Icon::Critical) dialog.titleStyle = Style::Error;
    bool isOpen = true;
    Answer answer = message.buttons == Buttons::Ok ? Answer::Ok : Answer::No;
    const auto close = [&](Answer with) {
        answer = with;
        isOpen = false;
    };
    // A question that ends a long text stays in sight with the buttons.
    const std::size_t end = message.text.find_last_of("\r\n");
    const std::string body = end == std::string::npos ? std::string() : message.text.substr(0, end);
    const std::string last = end == std::string::npos ? message.text : message.text.substr(end + 1);
    Label& text = dialog.add<Label>([&] { return body; });
    Label& question = dialog.add<Label>([&] { return last; });
    question.isPinned = true;
    std::vector<Button*> buttons;
    const auto addButton = [&](const std::string& caption, Answer with) {
        buttons.push_back(&dialog.add<Button>([caption] { return caption; }, [&close, with] { close(with); }));
        buttons.back()->isPinned = true;
    };
    if (message.buttons == Buttons::Ok) {
        addButton("&OK", Answer::Ok);
    } else {
        addButton("&Ano", Answer::Yes);
        addButton("&Ne", Answer::No);
    }
    dialog.boxSize = [&](Size size) { return boxSize(message.text, columnsOf(message.title) + kFrame, 2, size); };
    dialog.layout = [&](Size page) {
        text.area = {0, 0, body.empty() ? 0 : text.rowsIn(page.columns), page.columns};
        question.area = {0, 0, question.rowsIn(page.columns), page.columns};
        dialog.pinnedRows = question.area.rows + 1 + placeInRows(buttons, question.area.rows + 1, page.columns);
    };
    dialog.escape = [&] { isOpen = false; };
    dialog.before = [&](const Event& event) {
        if (event.is(Key::Up) || event.is(Key::Down)) {
            dialog.scroll(event.key == Key::Up ? -1 : 1);
            return true;
        }
        // The letter alone answers, as no text is typed here.
        if (event.kind != Event::Kind::Character || event.character == U' ') return false;
        for (Button* button : buttons) button->accelerate(event.character);
        return true;
    };
    dialog.run(isOpen);
    return answer;
}

std::string askBox(Screen& screen, const InputRequest& request) {
    Dialog dialog(screen, [&] { return request.title; });
    bool isOpen = true;
    std::string answer = request.defaultAnswer;
    Label& prompt = dialog.add<Label>([&] { return request.prompt; });
    TextField& field =
        dialog.add<TextField>([&] { return answer; }, [&](std::string text) { answer = std::move(text); });
    const auto cancel = [&] {
        answer.clear();
        isOpen = false;
    };
    std::vector<Button*> buttons{&dialog.add<Button>([] { return std::string("&OK"); }, [&] { isOpen = false; }),
                                 &dialog.add<Button>([] { return std::string("&Storno"); }, cancel)};
    field.isPinned = buttons[0]->isPinned = buttons[1]->isPinned = true;
    field.before = [&](const Event& event) {
        if (event.is(Key::Enter)) isOpen = false;
        return !isOpen;
    };
    constexpr int kFieldWidth = 40, kRowsBelow = 4;
    dialog.pinnedRows = kRowsBelow;
    dialog.boxSize = [&](Size size) { return boxSize(request.prompt, kFieldWidth, kRowsBelow, size); };
    dialog.layout = [&](Size page) {
        prompt.area = {0, 0, prompt.rowsIn(page.columns), page.columns};
        field.area = {1, 0, 1, page.columns};
        placeInRows(buttons, 3, page.columns);
    };
    dialog.escape = cancel;
    dialog.focus(field);
    dialog.run(isOpen);
    if (dialog.isDeserted()) throw RunTimeError(RunTimeError::kInputPastEnd);
    return answer;
}

}  // namespace velor::terminal
