#include "ui/main/ListHeader.h"

#include "core/activity/ProjectActions.h"
#include "core/activity/RunningItem.h"
#include "core/app/Services.h"
#include "core/monitor/Monitor.h"
#include "core/presentation/RunningStatus.h"
#include "core/presentation/TaskStats.h"
#include "core/reports/Report.h"
#include "core/settings/Settings.h"
#include "ui/reports/ReportCommands.h"
#include "ui/widgets/CircularProgress.h"
#include "ui/widgets/Dialogs.h"
#include "ui/widgets/ElidedLabel.h"
#include "ui/widgets/HexColor.h"
#include "ui/widgets/StyledButton.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>

namespace lullet {

namespace {

const QString ongoingColor = QStringLiteral("FC7274");
const QString completedColor = QStringLiteral("A0CFAB");

QLabel* countLabel(const QString& name, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

} // namespace

ListHeader::ListHeader(const Services& services, const ListBuilder::Scope& scope,
                       const std::function<Report()>& report, QWidget* parent)
    : QWidget(parent)
    , m_services(services)
    , m_scope(scope)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* header = new QHBoxLayout;
    auto* texts = new QVBoxLayout;
    buildName(texts);
    buildCounts(texts);
    QHBoxLayout* row = buildSwitchRow(texts);
    buildExportButton(row, report);
    if (scope.project)
        buildProjectButton(row);
    header->addLayout(texts, 1);
    buildBadgeAndRing(header);
    layout->addLayout(header);
    if (scope.isCustomListing()) {
        m_chart = new BarChart(this);
        m_chart->setObjectName(QStringLiteral("chart"));
        m_chart->setColor(*HexColor::fromHex(ongoingColor));
        m_chart->setUnit(tr("h"));
        m_chart->setMinimumHeight(160);
        m_chart->setMaximumHeight(200);
        layout->addWidget(m_chart);
    }
}

// A long project name gives way, whole in its tooltip; the badge and the circle keep their size.
void ListHeader::buildName(QVBoxLayout* texts)
{
    m_name = new ElidedLabel(m_scope.title(), this);
    m_name->setObjectName(QStringLiteral("listName"));
    QFont big = m_name->font();
    big.setPointSizeF(big.pointSizeF() * 1.6);
    big.setBold(true);
    m_name->setFont(big);
    texts->addWidget(m_name);
}

// Two counts a line, so that all four read in a narrow window.
void ListHeader::buildCounts(QVBoxLayout* texts)
{
    auto* counts = new QGridLayout;
    counts->setHorizontalSpacing(16);
    counts->setVerticalSpacing(0);
    m_taskCount = countLabel(QStringLiteral("taskCount"), this);
    m_completedCount = countLabel(QStringLiteral("completedCount"), this);
    m_dueCount = countLabel(QStringLiteral("dueCount"), this);
    m_todayCount = countLabel(QStringLiteral("todayCount"), this);
    counts->addWidget(m_taskCount, 0, 0);
    counts->addWidget(m_completedCount, 0, 1);
    counts->addWidget(m_dueCount, 1, 0);
    counts->addWidget(m_todayCount, 1, 1);
    counts->setColumnStretch(2, 1);
    texts->addLayout(counts);
    // The times each on a line of their own: side by side, the longer would be cut in a narrow
    // window.
    m_timeUsed = countLabel(QStringLiteral("timeUsed"), this);
    m_todayTime = countLabel(QStringLiteral("todayTime"), this);
    texts->addWidget(m_timeUsed);
    texts->addWidget(m_todayTime);
    // The running item's own clock, the same text as the tray's panel shows.
    m_runningClock = new ElidedLabel(QString(), this);
    m_runningClock->setObjectName(QStringLiteral("runningClock"));
    texts->addWidget(m_runningClock);
}

// The idle question's switch and the started-only filter, one above the other, so that they and
// the buttons beside them fit the narrowest window.
QHBoxLayout* ListHeader::buildSwitchRow(QVBoxLayout* texts)
{
    auto* row = new QHBoxLayout;
    auto* switches = new QVBoxLayout;
    switches->setSpacing(2);
    Settings& settings = m_services.settings;
    auto* ask = new QCheckBox(tr("Ask when idle"), this);
    ask->setObjectName(QStringLiteral("askWhenIdle"));
    ask->setToolTip(tr("When nothing runs in working hours, ask what you have been doing"));
    ask->setChecked(!settings.idleQuestionsOff());
    connect(ask, &QCheckBox::toggled, this, [this, &settings](bool on) {
        settings.setIdleQuestionsOff(!on);
        // Switched on, the question comes at once rather than a prompt period later.
        if (on && !m_services.running.item())
            m_services.monitor.askWhatNow();
    });
    switches->addWidget(ask);
    if (!m_scope.isCustomListing()) {
        auto* runningOnly = new QCheckBox(tr("Started only"), this);
        runningOnly->setObjectName(QStringLiteral("showRunningOnly"));
        runningOnly->setToolTip(tr("List only the items that have been started"));
        connect(runningOnly, &QCheckBox::toggled, this, &ListHeader::showRunningOnlyToggled);
        switches->addWidget(runningOnly);
    }
    row->addLayout(switches);
    row->addStretch();
    texts->addLayout(row);
    return row;
}

void ListHeader::buildBadgeAndRing(QHBoxLayout* header)
{
    m_status = new StyledButton(QString(), this);
    m_status->setObjectName(QStringLiteral("status"));
    m_status->setHoverEnabled(false);
    m_status->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    header->addWidget(m_status, 0, Qt::AlignVCenter);
    m_progress = new CircularProgress(this);
    m_progress->setAccessibleName(tr("Completed"));
    m_progress->setColor(*HexColor::fromHex(ongoingColor));
    QColor track = *HexColor::fromHex(ongoingColor);
    track.setAlphaF(0.1f);
    m_progress->setTrackColor(track);
    m_progress->setLineWidth(8);
    m_progress->setFixedSize(72, 72);
    header->addWidget(m_progress);
}

// Print, PDF and mail of the list as it shows.
void ListHeader::buildExportButton(QHBoxLayout* row, const std::function<Report()>& report)
{
    auto* button = new QToolButton(this);
    button->setObjectName(QStringLiteral("export"));
    button->setText(tr("Export"));
    button->setPopupMode(QToolButton::InstantPopup);
    auto* menu = new QMenu(button);
    const ReportCommands commands(m_services.clock, m_services.library);
    commands.addActions(menu, this, report,
                        m_scope.project ? ReportCommands::emptyProjectText()
                                        : ReportCommands::emptyListText());
    button->setMenu(menu);
    row->addWidget(button);
}

// A project's own actions, in one small menu so that the header fits a narrow window.
void ListHeader::buildProjectButton(QHBoxLayout* row)
{
    Project* project = m_scope.project;
    auto* button = new QToolButton(this);
    button->setObjectName(QStringLiteral("projectActions"));
    button->setText(tr("Project"));
    button->setPopupMode(QToolButton::InstantPopup);
    auto* menu = new QMenu(button);
    QAction* addTasks = menu->addAction(tr("Add Tasks…"));
    addTasks->setObjectName(QStringLiteral("addTasks"));
    connect(addTasks, &QAction::triggered, this,
            [this, project] { Q_EMIT addTasksRequested(project); });
    QAction* duplicate = menu->addAction(tr("Duplicate"));
    duplicate->setObjectName(QStringLiteral("duplicateProject"));
    connect(duplicate, &QAction::triggered, this, [this, project] {
        Q_EMIT projectDuplicated(m_services.projectActions.duplicateAsNew(*project));
    });
    QAction* remove = menu->addAction(tr("Delete"));
    remove->setObjectName(QStringLiteral("deleteProject"));
    connect(remove, &QAction::triggered, this, [this, project] {
        if (ProjectActions::deleteAsks(*project) &&
            !Dialogs::confirm(this, ProjectActions::deleteTitle(),
                              ProjectActions::deleteQuestion()))
            return;
        Q_EMIT projectDeletionRequested(project);
    });
    button->setMenu(menu);
    row->addWidget(button);
}

void ListHeader::showStats(const TaskStats& s, const Item* running)
{
    // One computation for the list's head and its report's.
    const QStringList counts = Report::headCounts(s);
    m_taskCount->setText(counts.value(0));
    m_completedCount->setText(counts.value(1));
    m_dueCount->setText(counts.value(2));
    m_todayCount->setText(counts.value(3));
    m_timeUsed->setText(tr("Time used %1").arg(Report::headTimes(s)));
    m_todayTime->setText(Report::todayTime(s));
    m_progress->setProgress(s.totalTimeAllotted > 0
                                ? double(s.timeCompletedRunning) / double(s.totalTimeAllotted)
                                : 0.0);
    // The status: no rows, all done, or still going.
    QString status = tr("No Lullet");
    QString color = ongoingColor;
    if (s.totalCount > 0) {
        const bool allDone = s.completedCount == s.totalCount;
        status = allDone ? tr("Completed") : tr("Ongoing");
        color = allDone ? completedColor : ongoingColor;
    }
    m_status->setText(status);
    m_status->setColor(*HexColor::fromHex(color));
    m_runningClock->setText(running ? tr("Running: %1").arg(RunningStatus::clockText(*running))
                                    : QString());
    m_runningClock->setVisible(running != nullptr);
}

void ListHeader::showHours(std::vector<BarChart::Bar> hours)
{
    if (!m_chart)
        return;
    // No bars, no empty box above "Nothing here".
    m_chart->setVisible(!hours.empty());
    m_chart->setBars(std::move(hours));
}

std::vector<BarChart::Bar> ListHeader::hours() const
{
    return m_chart ? m_chart->bars() : std::vector<BarChart::Bar>();
}

} // namespace lullet
