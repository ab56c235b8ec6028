#pragma once

#include "core/monitor/PromptOutcome.h"

#include <QCoreApplication>
#include <QString>

namespace lullet {

class Item;
class ItemActions;

// A lullet or to-do's moment has come: confirm it, which finishes it and makes the next
// occurrence, or dismiss it, which changes nothing.
class TodoPrompt {
    Q_DECLARE_TR_FUNCTIONS(TodoPrompt)

public:
    TodoPrompt(ItemActions& actions, Item* item);

    Item* item() const { return m_item; }

    // "Time for : <title>. Done ?"
    QString text() const;
    PromptOutcome done();
    static PromptOutcome dismiss() { return PromptOutcome::Close; }

private:
    ItemActions& m_actions;
    Item* m_item;
};

} // namespace lullet
