#include "ui/main/SidebarView.h"

#include "core/activity/ProjectActions.h"
#include "core/activity/RunningItem.h"
#include "core/app/Services.h"
#include "core/library/Library.h"
#include "core/monitor/Monitor.h"
#include "ui/widgets/Balloon.h"

#include <QAbstractItemDelegate>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

namespace lullet {

namespace {

constexpr int narrowest = 150;
constexpr int widest = 280;

// Sets a flag for the length of a scope.
class Raised {
public:
    explicit Raised(bool& flag)
        : m_flag(flag)
        , m_was(std::exchange(flag, true))
    {
    }
    ~Raised() { m_flag = m_was; }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;

private:
    bool& m_flag;
    bool m_was;
};

} // namespace

SidebarView::SidebarView(const Services& services, QWidget* parent)
    : QWidget(parent)
    , m_services(services)
    , m_sidebar(services.clock, services.library, services.catalogue, services.running,
                services.history)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 0, 8);
    layout->addWidget(buildSearch());
    buildList();
    layout->addWidget(m_list, 1);
    layout->addWidget(buildNewProject());
    setMinimumWidth(narrowest);
    setMaximumWidth(widest);
    listenToChanges();
    reload();
}

QWidget* SidebarView::buildSearch()
{
    auto* top = new QWidget(this);
    auto* row = new QHBoxLayout(top);
    row->setContentsMargins(0, 0, 0, 0);
    m_searchField = new QLineEdit(top);
    m_searchField->setObjectName(QStringLiteral("searchField"));
    m_searchField->setPlaceholderText(tr("Search"));
    m_searchField->setAccessibleName(tr("Search"));
    m_searchField->setClearButtonEnabled(true);
    // Escape clears it.
    m_searchField->installEventFilter(this);
    connect(m_searchField, &QLineEdit::textChanged, this, &SidebarView::search);
    row->addWidget(m_searchField, 1);
    auto* add = new QToolButton(top);
    add->setObjectName(QStringLiteral("addTask"));
    add->setText(QStringLiteral("+"));
    add->setToolTip(tr("Quick Add (%1)")
                        .arg(QKeySequence(QKeySequence::New).toString(QKeySequence::NativeText)));
    add->setAccessibleName(tr("Quick Add"));
    connect(add, &QToolButton::clicked, this, &SidebarView::quickAddRequested);
    row->addWidget(add);
    return top;
}

void SidebarView::buildList()
{
    m_list = new QListWidget(this);
    m_list->setObjectName(QStringLiteral("sidebar"));
    m_list->setAccessibleName(tr("Lists and projects"));
    m_list->setFrameShape(QFrame::NoFrame);
    // A long project name gives way in its middle, keeping its count and percentage.
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_list, &QWidget::customContextMenuRequested, this, &SidebarView::showProjectMenu);
    connect(m_list, &QListWidget::currentRowChanged, this, [this](int row) {
        if (!m_quiet)
            choose(row);
    });
    connect(m_list, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
        if (!m_quiet && m_renaming)
            commitRename(item);
    });
    // Return commits before the editor closes; Escape only closes it. Either way the rename is
    // over, once the view is done with the editor.
    connect(m_list->itemDelegate(), &QAbstractItemDelegate::closeEditor, this, [this] {
        QMetaObject::invokeMethod(this, &SidebarView::endRename, Qt::QueuedConnection);
    });
}

QWidget* SidebarView::buildNewProject()
{
    m_newProject = new QLineEdit(this);
    m_newProject->setObjectName(QStringLiteral("newProject"));
    m_newProject->setPlaceholderText(tr("New project"));
    m_newProject->setAccessibleName(tr("New project"));
    connect(m_newProject, &QLineEdit::returnPressed, this, &SidebarView::addProject);
    return m_newProject;
}

void SidebarView::listenToChanges()
{
    const Library& library = m_services.library;
    const RunningItem& running = m_services.running;
    // Counts follow the running item each second, the clock each minute (an item crosses now or
    // midnight while nothing runs), and every change of the items.
    connect(&m_services.monitor, &Monitor::ticked, this, [this] {
        if (m_services.running.item())
            updateCounts();
    });
    connect(&m_services.monitor, &Monitor::minutePassed, this, &SidebarView::updateCounts);
    connect(&library, &Library::itemsChanged, this, &SidebarView::updateCounts);
    connect(&library, &Library::itemRemoved, this, &SidebarView::updateCounts);
    connect(&library, &Library::itemPostponed, this, &SidebarView::updateCounts);
    connect(&library, &Library::projectContentChanged, this, &SidebarView::updateCounts);
    connect(&library, &Library::rulesChanged, this, &SidebarView::updateCounts);
    connect(&running, &RunningItem::started, this, &SidebarView::updateCounts);
    connect(&running, &RunningItem::finished, this, &SidebarView::updateCounts);
    connect(&running, &RunningItem::extended, this, &SidebarView::updateCounts);
    connect(&library, &Library::projectsChanged, this, &SidebarView::reload);
}

bool SidebarView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_searchField && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape &&
        !m_searchField->text().isEmpty()) {
        m_searchField->clear();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void SidebarView::showProjectMenu(const QPoint& pos)
{
    const int row = m_list->row(m_list->itemAt(pos));
    // Only a project row has a menu.
    if (row < 0 || row >= int(m_rows.size()) || !m_rows[std::size_t(row)].project)
        return;
    Project* project = m_rows[std::size_t(row)].project;
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction(tr("Rename")), &QAction::triggered, this,
            [this, project] { renameProject(project); });
    connect(menu->addAction(tr("Duplicate as new")), &QAction::triggered, this,
            [this, project] { Q_EMIT duplicateRequested(project); });
    connect(menu->addAction(tr("Delete")), &QAction::triggered, this,
            [this, project] { Q_EMIT deleteRequested(project); });
    menu->popup(m_list->viewport()->mapToGlobal(pos));
}

QString SidebarView::rowText(const SidebarRow& row) const
{
    if (row.type == SidebarRow::Separator)
        return {};
    if (row.item || row.rowId)
        return tr("• %1").arg(row.name);
    // The name, its count, its progress in per cent.
    QString text = row.count ? tr("%1   %2").arg(row.name, QString::number(*row.count)) : row.name;
    if (row.progress && *row.progress > 0)
        return tr("%1   %2%").arg(text).arg(qRound(*row.progress * 100));
    return text;
}

void SidebarView::reload()
{
    if (m_showingResults)
        return;
    m_renaming = nullptr;
    m_rows = m_sidebar.rows();
    fill(false);
}

void SidebarView::fill(bool asResults)
{
    const Raised quiet(m_quiet);
    m_list->clear();
    for (const SidebarRow& row : m_rows) {
        auto* item = new QListWidgetItem(rowText(row), m_list);
        // The percentage is of time, not of tasks: one with no planned length weighs only what
        // it has run, so a project can read 100% with a task still open.
        if (row.project && !asResults)
            item->setToolTip(tr("%1\nProgress: time used of time planned. A task with no "
                                "planned length counts only the time it has run.")
                                 .arg(row.name));
        if (row.type == SidebarRow::Separator) {
            item->setFlags(Qt::NoItemFlags);
            item->setSizeHint(QSize(0, 10));
        }
    }
    if (!asResults)
        highlight(m_shownSegment, m_shownProject);
}

void SidebarView::highlight(Segment segment, const Project* project)
{
    m_shownSegment = segment;
    m_shownProject = project;
    if (m_showingResults)
        return;
    const Raised quiet(m_quiet);
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        const SidebarRow& row = m_rows[i];
        const bool same = project ? row.project == project
                                  : row.type == SidebarRow::SegmentRow && row.segment == segment;
        if (same) {
            m_list->setCurrentRow(int(i));
            return;
        }
    }
}

void SidebarView::updateCounts()
{
    if (m_showingResults)
        return;
    const Raised quiet(m_quiet);
    const Sidebar::Counts counts = m_sidebar.counts();
    const Item* running = m_services.running.item();
    for (std::size_t i = 0; i < m_rows.size() && i < std::size_t(m_list->count()); ++i) {
        SidebarRow& row = m_rows[i];
        // The name being edited is the user's, not a count's.
        if (row.project && row.project == m_renaming)
            continue;
        row.count = m_sidebar.countFor(row, counts);
        // Each second only the running item's project moves on.
        if (row.project && (!running || running->toProject() == row.project))
            row.progress = m_sidebar.projectProgress(*row.project);
        m_list->item(int(i))->setText(rowText(row));
    }
}

void SidebarView::choose(int index)
{
    if (index < 0 || index >= int(m_rows.size()))
        return;
    const SidebarRow& row = m_rows[std::size_t(index)];
    if (row.type == SidebarRow::Separator)
        return;
    if (row.item || row.rowId) {
        // A search result: its list, with the search ended; one of the history on disk comes
        // into memory to be shown. After the click is done with the results, which ending the
        // search replaces.
        Item* item = row.item ? row.item : m_services.library.bringIn(row.rowId);
        if (item)
            QMetaObject::invokeMethod(
                this, [this, item] { Q_EMIT resultChosen(item); }, Qt::QueuedConnection);
        return;
    }
    if (row.project)
        Q_EMIT projectChosen(row.project);
    else
        Q_EMIT segmentChosen(row.segment);
}

void SidebarView::renameProject(Project* project)
{
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        if (m_rows[i].project != project)
            continue;
        QListWidgetItem* item = m_list->item(int(i));
        {
            const Raised quiet(m_quiet);
            item->setFlags(item->flags() | Qt::ItemIsEditable);
            item->setText(project->name().value_or(QString()));
        }
        m_renaming = project;
        m_list->editItem(item);
        return;
    }
}

void SidebarView::commitRename(QListWidgetItem* item)
{
    Project* project = std::exchange(m_renaming, nullptr);
    m_services.projectActions.renameProject(*project, item->text());
    // The row shows the name the project has now, with its count, in its new place.
    QMetaObject::invokeMethod(this, &SidebarView::reload, Qt::QueuedConnection);
}

void SidebarView::endRename()
{
    // Left with Escape: the row reads as before.
    if (std::exchange(m_renaming, nullptr))
        reload();
}

void SidebarView::addProject()
{
    const ProjectActions::Added added = m_services.projectActions.addProject(m_newProject->text());
    if (!added.project) {
        Balloon::show(added.refusal, m_newProject);
        return;
    }
    m_newProject->clear();
    reload();
    Q_EMIT projectAdded(added.project);
}

void SidebarView::clearSearch()
{
    if (!m_searchField->text().isEmpty())
        m_searchField->clear();
}

void SidebarView::search(const QString& text)
{
    if (text.trimmed().isEmpty()) {
        m_showingResults = false;
        m_sidebar.endSearch();
        reload();
        return;
    }
    const std::vector<SidebarRow> all = m_sidebar.rows();
    m_showingResults = true;
    m_rows = m_sidebar.search(text, all);
    fill(true);
}

} // namespace lullet
