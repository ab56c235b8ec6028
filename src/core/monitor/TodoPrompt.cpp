#include "core/monitor/TodoPrompt.h"

#include "core/activity/ItemActions.h"
#include "core/model/Item.h"
#include "core/scheduling/CatalogueEntries.h"

namespace lullet {

TodoPrompt::TodoPrompt(ItemActions& actions, Item* item)
    : m_actions(actions)
    , m_item(item)
{
}

QString TodoPrompt::text() const
{
    if (!m_item)
        return {};
    return tr("Time for : %1. Done ?")
        .arg(CatalogueEntries::shown(m_item->title().value_or(QString())));
}

PromptOutcome TodoPrompt::done()
{
    if (m_item)
        m_actions.completeToDo(*m_item);
    return PromptOutcome::Close;
}

} // namespace lullet
