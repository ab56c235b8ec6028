#include "ui/prompts/PromptLayout.h"

#include <QLabel>
#include <QPushButton>
#include <QTextBoundaryFinder>

#include <vector>

namespace lullet {

QLabel* PromptLayout::heading(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    QFont font = label->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 0.9);
    label->setFont(font);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

QLabel* PromptLayout::message(QWidget* parent)
{
    auto* label = new QLabel(parent);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * 1.15);
    label->setFont(font);
    label->setWordWrap(true);
    label->setMinimumWidth(300);
    label->setMaximumWidth(380);
    return label;
}

void PromptLayout::setMessage(QLabel* label, const QString& text)
{
    // The places where a line may break, from the last back; the tail from the second last on
    // must stay on one line.
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
    finder.toEnd();
    std::vector<qsizetype> tail;
    while (tail.size() < 2 && finder.toPreviousBoundary() > 0)
        tail.push_back(finder.position());
    QString shown = text;
    if (!tail.empty()) {
        // A label breaks a line at any ordinary blank, even where the text's own rules would not
        // (before "?"), and elsewhere where they allow it (after ":"). Joiners go in from the end
        // back, so that what is inserted moves no place still to come.
        for (qsizetype at = shown.size() - 1; at >= tail.back() - 1; --at) {
            if (shown[at] == u' ')
                shown[at] = QChar::Nbsp;
        }
        for (const qsizetype at : tail) {
            if (text[at - 1] != u' ')
                shown.insert(at, QChar(0x2060)); // WORD JOINER
        }
    }
    label->setText(shown);
    // Read aloud as the program words it.
    label->setAccessibleName(text);
}

QPushButton* PromptLayout::button(const QString& text, QWidget* parent, bool primary)
{
    auto* b = new QPushButton(text, parent);
    b->setDefault(primary);
    b->setAutoDefault(primary);
    return b;
}

} // namespace lullet
