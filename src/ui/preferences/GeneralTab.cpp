#include "ui/preferences/GeneralTab.h"

#include "core/activity/RunningItem.h"
#include "core/settings/Settings.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>

#include <algorithm>

namespace lullet {

namespace {

constexpr int periods[] = {1, 2, 5, 10, 15, 20, 30, 45, 60};

// "1 min", "2 mins" … "60 mins".
QString periodTitle(int minutes)
{
    return QString::number(minutes) +
           (minutes > 1 ? QStringLiteral(" mins") : QStringLiteral(" min"));
}

} // namespace

GeneralTab::GeneralTab(Settings& settings, RunningItem& running, QWidget* parent)
    : QWidget(parent)
    , m_settings(settings)
    , m_running(running)
    , m_period(new QComboBox(this))
{
    m_period->setObjectName(QStringLiteral("promptDuration"));
    for (int minutes : periods)
        m_period->addItem(periodTitle(minutes), minutes);
    // A stored period that is none of the choices leaves the first one showing, and stays
    // stored until the user picks another.
    const int stored = m_settings.promptDuration();
    m_period->setCurrentIndex(stored > 0 ? std::max(0, m_period->findData(stored)) : 0);
    auto* layout = new QFormLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->addRow(tr("Ask what I'm doing after"), m_period);
    auto* explanation =
        new QLabel(tr("During your working hours, when nothing has run for this long, Lullet "
                      "asks what you have been doing."),
                   this);
    explanation->setWordWrap(true);
    layout->addRow(explanation);
    connect(m_period, &QComboBox::activated, this, &GeneralTab::onPeriodChosen);
}

void GeneralTab::onPeriodChosen(int index)
{
    const int minutes = m_period->itemData(index).toInt();
    m_settings.setValue(SettingsKeys::promptDuration, minutes);
    m_settings.sync();
    // The monitor counts in the new period from now on, without a relaunch.
    m_running.setPromptPeriod(minutes);
}

} // namespace lullet
