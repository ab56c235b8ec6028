#include "core/monitor/TimeOverPrompt.h"

#include "core/activity/RunningItem.h"
#include "core/model/Item.h"
#include "core/scheduling/CatalogueEntries.h"

namespace lullet {

TimeOverPrompt::TimeOverPrompt(RunningItem& running, Item* item)
    : m_running(running)
    , m_item(item)
{
}

QString TimeOverPrompt::question(const Item* item)
{
    if (!item)
        return {};
    return tr("Have you finished : %1 ?")
        .arg(CatalogueEntries::shown(item->title().value_or(QString())));
}

PromptOutcome TimeOverPrompt::finish()
{
    if (!m_item)
        return PromptOutcome::Close;
    m_running.finish(*m_item, RunningItem::Finish::FileNow);
    return PromptOutcome::CloseAndAsk;
}

PromptOutcome TimeOverPrompt::moreTime(int minutes)
{
    if (m_item)
        m_running.extend(*m_item, minutes);
    m_running.stampPromptNow();
    return PromptOutcome::Close;
}

} // namespace lullet
