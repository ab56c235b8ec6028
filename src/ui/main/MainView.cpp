#include "ui/main/MainView.h"

#include "core/activity/ProjectActions.h"
#include "core/activity/RunningItem.h"
#include "core/app/Services.h"
#include "core/library/Library.h"
#include "core/monitor/Monitor.h"
#include "core/scheduling/Catalogue.h"
#include "ui/authoring/QuickAddView.h"
#include "ui/main/AddTaskView.h"
#include "ui/main/DashboardView.h"
#include "ui/main/ItemListView.h"
#include "ui/main/RepeatListView.h"
#include "ui/widgets/Balloon.h"
#include "ui/widgets/Dialogs.h"
#include "ui/widgets/ViewSwitcher.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

namespace lullet {

namespace {

constexpr int sidebarWidth = 180;

} // namespace

MainView::MainView(const Services& services, QWidget* parent)
    : QWidget(parent)
    , m_services(services)
    , m_sidebarRows(services.clock, services.library, services.catalogue, services.running)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* splitter = new QSplitter(this);
    m_splitter = splitter;
    splitter->addWidget(buildSidebar(splitter));
    splitter->addWidget(buildRightSide(splitter));
    // The sidebar keeps its width as the views change; the list takes what the window adds.
    splitter->setStretchFactor(0, 0);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    // Given, not worked out from the views' wishes, which differ from view to view.
    splitter->setSizes({sidebarWidth, 4 * sidebarWidth});
    layout->addWidget(splitter);
    registerViews();
    connectSidebar();
    listenToChanges();
    loadSidebar();
    selectSegment(m_segment);
}

void MainView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    // The window opens on the sidebar, not in the search field, the first in the tab order: no
    // cursor blinks, all day, in a field the user has not chosen. Done at the first showing,
    // once the view is in its window, since moving into a window forgets the focus.
    if (!std::exchange(m_focusPlaced, true))
        m_sidebar->setFocus();
}

bool MainView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_searchField && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape &&
        !m_searchField->text().isEmpty()) {
        m_searchField->clear();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

QWidget* MainView::buildSidebar(QSplitter* splitter)
{
    auto* sidebar = new QWidget(splitter);
    auto* side = new QVBoxLayout(sidebar);
    side->setContentsMargins(8, 8, 0, 8);
    m_searchField = new QLineEdit(sidebar);
    m_searchField->setObjectName(QStringLiteral("searchField"));
    m_searchField->setPlaceholderText(tr("Search"));
    m_searchField->setAccessibleName(tr("Search"));
    m_searchField->setClearButtonEnabled(true);
    // Escape clears it.
    m_searchField->installEventFilter(this);
    auto* top = new QHBoxLayout;
    top->addWidget(m_searchField, 1);
    auto* add = new QToolButton(sidebar);
    add->setObjectName(QStringLiteral("addTask"));
    add->setText(QStringLiteral("+"));
    add->setToolTip(tr("Quick Add (%1)")
                        .arg(QKeySequence(QKeySequence::New).toString(QKeySequence::NativeText)));
    add->setAccessibleName(tr("Quick Add"));
    connect(add, &QToolButton::clicked, this, &MainView::showQuickAddBar);
    top->addWidget(add);
    side->addLayout(top);
    m_sidebar = new QListWidget(sidebar);
    m_sidebar->setObjectName(QStringLiteral("sidebar"));
    m_sidebar->setAccessibleName(tr("Lists and projects"));
    m_sidebar->setFrameShape(QFrame::NoFrame);
    // A long project name gives way in its middle, keeping its count and percentage.
    m_sidebar->setTextElideMode(Qt::ElideMiddle);
    m_sidebar->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    side->addWidget(m_sidebar, 1);
    m_newProject = new QLineEdit(sidebar);
    m_newProject->setObjectName(QStringLiteral("newProject"));
    m_newProject->setPlaceholderText(tr("New project"));
    m_newProject->setAccessibleName(tr("New project"));
    side->addWidget(m_newProject);
    sidebar->setMinimumWidth(sidebarWidth - 30);
    sidebar->setMaximumWidth(280);
    return sidebar;
}

QWidget* MainView::buildRightSide(QSplitter* splitter)
{
    auto* right = new QWidget(splitter);
    auto* layout = new QVBoxLayout(right);
    layout->setContentsMargins(0, 0, 0, 0);
    m_quickAdd = new QuickAddView(m_services, right);
    m_quickAdd->hide();
    layout->addWidget(m_quickAdd);
    m_switcher = new ViewSwitcher(right);
    layout->addWidget(m_switcher, 1);
    connect(m_quickAdd, &QuickAddView::added, this, [this] { m_quickAdd->hide(); });
    connect(m_quickAdd, &QuickAddView::dismissed, this, [this] { m_quickAdd->hide(); });
    return right;
}

QWidget* MainView::makeList(const QString& segment, Project* project)
{
    auto* list = new ItemListView(m_services, {segment, project, false}, true);
    connect(list, &ItemListView::segmentRequested, this, [this](const QString& name) {
        // Not while the list that asks is still at work.
        QMetaObject::invokeMethod(
            this, [this, name] { selectSegment(name); }, Qt::QueuedConnection);
    });
    connect(list, &ItemListView::projectDeletionRequested, this, [this](Project* p) {
        QMetaObject::invokeMethod(
            this, [this, p] { deleteProject(p, false); }, Qt::QueuedConnection);
    });
    connect(list, &ItemListView::projectDuplicated, this, [this](Project* copy) {
        loadSidebar();
        selectSegment(copy->name().value_or(QString()));
    });
    connect(list, &ItemListView::addTasksRequested, this, [this, list] {
        // The panel opens on the task chosen in the list.
        m_toSelect = list->selectedItem();
        QMetaObject::invokeMethod(
            this, [this] { m_switcher->showView(QStringLiteral("AddTaskList")); },
            Qt::QueuedConnection);
    });
    list->select(std::exchange(m_toSelect, nullptr));
    return list;
}

void MainView::registerViews()
{
    m_switcher->registerView(QStringLiteral("LulletList"),
                             [this] { return makeList(m_segment, nullptr); });
    m_switcher->registerView(QStringLiteral("CustomList"),
                             [this] { return makeList(m_segment, nullptr); });
    m_switcher->registerView(QStringLiteral("ProjectList"),
                             [this] { return makeList(QStringLiteral("Project"), m_project); });
    m_switcher->registerView(QStringLiteral("Chart"),
                             [this] { return new DashboardView(m_services); });
    m_switcher->registerView(QStringLiteral("RepeatList"),
                             [this] { return new RepeatListView(m_services); });
    m_switcher->registerView(QStringLiteral("AddTaskList"), [this] {
        auto* tasks = new AddTaskView(m_services, m_project);
        tasks->select(std::exchange(m_toSelect, nullptr));
        connect(tasks, &AddTaskView::doneRequested, this, [this](const Item* lastTouched) {
            m_toSelect = lastTouched;
            // Not from inside the view that is about to be replaced.
            QMetaObject::invokeMethod(
                this, [this] { m_switcher->showView(QStringLiteral("ProjectList")); },
                Qt::QueuedConnection);
        });
        return tasks;
    });
}

void MainView::connectSidebar()
{
    connect(m_sidebar, &QListWidget::currentRowChanged, this, [this](int row) {
        if (!m_selectingSilently)
            dispatch(row);
    });
    connect(m_newProject, &QLineEdit::returnPressed, this, &MainView::addProject);
    m_sidebar->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_sidebar, &QWidget::customContextMenuRequested, this, &MainView::showProjectMenu);
    connect(m_sidebar, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
        Project* project = m_renaming;
        if (!project)
            return;
        m_renaming = nullptr;
        m_services.projectActions.renameProject(*project, item->text());
        // The row shows the name the project has now, with its count.
        loadSidebar();
    });
    connect(m_searchField, &QLineEdit::textChanged, this, &MainView::search);
}

void MainView::listenToChanges()
{
    const Library& library = m_services.library;
    // Counts follow the running item each second, the clock each minute (an item crosses now or
    // midnight while nothing runs), and every change of the items.
    connect(&m_services.monitor, &Monitor::ticked, this, [this] {
        if (m_services.running.item())
            updateCounts();
    });
    connect(&m_services.monitor, &Monitor::minutePassed, this, &MainView::updateCounts);
    connect(&library, &Library::itemsChanged, this, &MainView::updateCounts);
    connect(&library, &Library::itemRemoved, this, &MainView::updateCounts);
    connect(&library, &Library::itemPostponed, this, &MainView::updateCounts);
    connect(&library, &Library::projectContentChanged, this, &MainView::updateCounts);
    connect(&library, &Library::rulesChanged, this, &MainView::updateCounts);
    connect(&m_services.running, &RunningItem::started, this, &MainView::updateCounts);
    connect(&m_services.running, &RunningItem::finished, this, &MainView::updateCounts);
    connect(&m_services.running, &RunningItem::extended, this, &MainView::updateCounts);
    connect(&library, &Library::projectsChanged, this, &MainView::loadSidebar);
    connect(&library, &Library::projectRemoved, this, [this](Project* project) {
        if (project == m_project)
            m_project = nullptr;
    });
}

void MainView::showProjectMenu(const QPoint& pos)
{
    const int row = m_sidebar->row(m_sidebar->itemAt(pos));
    // Only a project row has a menu.
    if (row < 0 || row >= int(m_rows.size()) || !m_rows[std::size_t(row)].project)
        return;
    Project* project = m_rows[std::size_t(row)].project;
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction(tr("Rename")), &QAction::triggered, this,
            [this, project] { renameProject(project); });
    connect(menu->addAction(tr("Duplicate as new")), &QAction::triggered, this,
            [this, project] { duplicateProject(project); });
    connect(menu->addAction(tr("Delete")), &QAction::triggered, this,
            [this, project] { deleteProject(project); });
    menu->popup(m_sidebar->viewport()->mapToGlobal(pos));
}

QString MainView::rowText(const SidebarRow& row) const
{
    if (row.type == SidebarRow::Separator)
        return {};
    QString text =
        row.count ? row.name + QStringLiteral("   ") + QString::number(*row.count) : row.name;
    if (row.progress && *row.progress > 0)
        text += QStringLiteral("   %1%").arg(qRound(*row.progress * 100));
    return text;
}

void MainView::loadSidebar()
{
    if (m_showingResults)
        return;
    m_rows = m_sidebarRows.rows();
    m_selectingSilently = true;
    m_sidebar->clear();
    for (const SidebarRow& row : m_rows) {
        auto* item = new QListWidgetItem(rowText(row), m_sidebar);
        // The percentage is of time, not of tasks: one with no planned length weighs only what
        // it has run, so a project can read 100% with a task still open.
        if (row.project)
            item->setToolTip(tr("%1\nProgress: time used of time planned. A task with no "
                                "planned length counts only the time it has run.")
                                 .arg(row.name));
        if (row.type == SidebarRow::Separator) {
            item->setFlags(Qt::NoItemFlags);
            item->setSizeHint(QSize(0, 10));
        }
    }
    // The selection stays where it was.
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        const bool same =
            m_project ? m_rows[i].project == m_project
                      : m_rows[i].type == SidebarRow::Segment && m_rows[i].name == m_segment;
        if (same)
            m_sidebar->setCurrentRow(int(i));
    }
    m_selectingSilently = false;
}

void MainView::updateCounts()
{
    if (m_showingResults)
        return;
    const Sidebar::Counts counts = m_sidebarRows.counts();
    const Item* running = m_services.running.item();
    for (std::size_t i = 0; i < m_rows.size() && i < std::size_t(m_sidebar->count()); ++i) {
        SidebarRow& row = m_rows[i];
        row.count = m_sidebarRows.countFor(row, counts);
        // Each second only the running item's project moves on.
        if (row.project && (!running || running->toProject() == row.project))
            row.progress = m_sidebarRows.projectProgress(*row.project);
        m_sidebar->item(int(i))->setText(rowText(row));
    }
}

void MainView::selectRowSilently(int row)
{
    m_selectingSilently = true;
    m_sidebar->setCurrentRow(row);
    m_selectingSilently = false;
}

void MainView::dispatch(int index)
{
    if (index < 0 || index >= int(m_rows.size()))
        return;
    const SidebarRow row = m_rows[std::size_t(index)];
    if (row.type == SidebarRow::Separator)
        return;
    if (row.item) {
        // A search result: its list, with the search ended.
        const QString segment = m_sidebarRows.segmentFor(*row.item);
        const QString target = segment == QStringLiteral("Project")
                                   ? row.item->toProject()->name().value_or(QString())
                                   : segment;
        m_toSelect = row.item;
        m_searchField->clear();
        selectSegment(target);
        return;
    }
    m_project = row.project;
    m_segment = row.project ? QStringLiteral("Project") : row.name;
    // A new view must not move the sidebar: the splitter would otherwise hand back to it room
    // that the last view had taken.
    const QList<int> sizes = m_splitter->sizes();
    m_switcher->showView(Sidebar::viewFor(m_segment));
    // Before the window is laid out the splitter holds the sizes it was given.
    if (m_splitter->isVisible())
        m_splitter->setSizes(sizes);
    // Meant for the list just made, if it was one.
    m_toSelect = nullptr;
}

void MainView::selectSegment(const QString& name)
{
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        if (m_rows[i].name == name && m_rows[i].type != SidebarRow::Separator) {
            selectRowSilently(int(i));
            dispatch(int(i));
            return;
        }
    }
    // Nothing of that name: "Today".
    if (name != QStringLiteral("Today"))
        selectSegment(QStringLiteral("Today"));
}

void MainView::showAfterRestore(const QString& shownProject)
{
    // Every record the view held belongs to the store that went: nothing of it is kept.
    m_project = nullptr;
    m_renaming = nullptr;
    if (!m_searchField->text().isEmpty())
        m_searchField->clear();
    loadSidebar();
    selectSegment(shownProject.isEmpty() ? m_segment : shownProject);
}

void MainView::addProject()
{
    const ProjectActions::Added added = m_services.projectActions.addProject(m_newProject->text());
    if (!added.project) {
        Balloon::show(added.refusal, m_newProject);
        return;
    }
    m_newProject->clear();
    loadSidebar();
    selectSegment(added.project->name().value_or(QString()));
}

void MainView::renameProject(Project* project)
{
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        if (m_rows[i].project != project)
            continue;
        QListWidgetItem* item = m_sidebar->item(int(i));
        m_selectingSilently = true;
        item->setFlags(item->flags() | Qt::ItemIsEditable);
        item->setText(project->name().value_or(QString()));
        m_selectingSilently = false;
        m_renaming = project;
        m_sidebar->editItem(item);
        return;
    }
}

void MainView::deleteProject(Project* project, bool ask)
{
    if (!project || !project->hasContext())
        return;
    if (ask && ProjectActions::deleteAsks(*project) &&
        !Dialogs::confirm(this, ProjectActions::deleteTitle(), ProjectActions::deleteQuestion()))
        return;
    // The row next to it takes the selection.
    int index = -1;
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        if (m_rows[i].project == project)
            index = int(i);
    }
    m_services.projectActions.deleteProject(*project);
    loadSidebar();
    const int next = std::min(index, int(m_rows.size()) - 1);
    if (next >= 0 && m_rows[std::size_t(next)].type != SidebarRow::Separator)
        selectSegment(m_rows[std::size_t(next)].name);
    else
        selectSegment(QStringLiteral("Today"));
}

void MainView::duplicateProject(Project* project)
{
    Project* copy = m_services.projectActions.duplicateAsNew(*project);
    loadSidebar();
    selectSegment(copy->name().value_or(QString()));
}

void MainView::showQuickAddBar()
{
    if (m_quickAdd->isVisible() && !m_quickAdd->nameField()->text().trimmed().isEmpty()) {
        m_quickAdd->add();
        return;
    }
    if (!m_quickAdd->isVisible())
        m_quickAdd->reset(m_project);
    m_quickAdd->show();
    m_quickAdd->nameField()->setFocus();
}

void MainView::search(const QString& text)
{
    if (text.trimmed().isEmpty()) {
        m_showingResults = false;
        loadSidebar();
        return;
    }
    const std::vector<SidebarRow> all = m_sidebarRows.rows();
    m_showingResults = true;
    m_rows = m_sidebarRows.search(text, all);
    m_selectingSilently = true;
    m_sidebar->clear();
    for (const SidebarRow& row : m_rows)
        new QListWidgetItem(row.item ? QStringLiteral("• ") + row.name : rowText(row), m_sidebar);
    m_selectingSilently = false;
}

} // namespace lullet
