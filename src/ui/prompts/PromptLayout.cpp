#include "ui/prompts/PromptLayout.h"

#include <QLabel>
#include <QPushButton>

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

QPushButton* PromptLayout::button(const QString& text, QWidget* parent, bool primary)
{
    auto* b = new QPushButton(text, parent);
    b->setDefault(primary);
    b->setAutoDefault(primary);
    return b;
}

} // namespace lullet
