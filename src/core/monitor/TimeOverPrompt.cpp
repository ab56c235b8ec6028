#include "core/monitor/TimeOverPrompt.h"

#include "core/activity/RunningItem.h"
#include "core/dates/Clock.h"
#include "core/library/Library.h"
#include "core/model/Item.h"

namespace lullet {

TimeOverPrompt::TimeOverPrompt(const Clock& clock, Library& library, RunningItem& running,
                               Item* item)
    : m_clock(clock)
    , m_library(library)
    , m_running(running)
    , m_item(item)
{
}

QString TimeOverPrompt::question(const Item* item)
{
    if (!item)
        return {};
    return QStringLiteral("Have you finished : ") + item->title().value_or(QString()) +
           QStringLiteral(" ?");
}

PromptOutcome TimeOverPrompt::finish()
{
    if (!m_item)
        return PromptOutcome::Close;
    m_running.finish(*m_item, RunningItem::Finish::FileNow);
    m_library.announceItemChanged();
    return PromptOutcome::CloseAndAsk;
}

PromptOutcome TimeOverPrompt::moreTime(int minutes)
{
    if (m_item)
        m_running.extend(*m_item, minutes);
    m_running.stampPrompt(m_clock.now());
    return PromptOutcome::Close;
}

} // namespace lullet
