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
    static QPushButton* button(const QString& text, QWidget* parent, bool primary = false);
};

} // namespace lullet
