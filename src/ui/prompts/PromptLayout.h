#pragma once

#include <QString>

class QBoxLayout;
class QLabel;
class QPushButton;
class QWidget;

namespace lullet {

// The common look of the prompts: a small heading, the message, a row of buttons.
class PromptLayout {
public:
    static QLabel* heading(const QString& text, QWidget* parent);
    static QLabel* message(QWidget* parent);
    // Shows the text in a message, wrapped so that its last line is never a lone "?" or a lone
    // time: the last two places where a line could break are closed, with no-break spaces and
    // word joiners, so the last line holds at least three words. What shows is the text as given.
    static void setMessage(QLabel* label, const QString& text);
    static QPushButton* button(const QString& text, QWidget* parent, bool primary = false);
};

} // namespace lullet
