#include "ui/main/MainView.h"

#include "core/activity/ProjectActions.h"
#include "core/app/Services.h"
#include "core/dates/Clock.h"
#include "core/library/Library.h"
#include "ui/authoring/QuickAddView.h"
#include "ui/main/AddTaskView.h"
#include "ui/main/DashboardView.h"
#include "ui/main/ItemListView.h"
#include "ui/main/RepeatListView.h"
#include "ui/main/SidebarView.h"
#include "ui/main/ViewSwitcher.h"
#include "ui/widgets/Dialogs.h"

#include <QLineEdit>
#include <QListWidget>
#include <QSplitter>
#include <QVBoxLayout>

#include <utility>

namespace lullet {

namespace {

constexpr int sidebarWidth = 180;

} // namespace

MainView::MainView(const Services& services, QWidget* parent)
    : QWidget(parent)
    , m_services(services)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_splitter = new QSplitter(this);
    m_sidebar = new SidebarView(services, m_splitter);
    m_splitter->addWidget(m_sidebar);
    m_splitter->addWidget(buildRightSide(m_splitter));
    // The sidebar keeps its width as the views change; the list takes what the window adds.
    m_splitter->setStretchFactor(0, 0);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setChildrenCollapsible(false);
    // Given, not worked out from the views' wishes, which differ from view to view.
    m_splitter->setSizes({sidebarWidth, 4 * sidebarWidth});
    layout->addWidget(m_splitter);
    registerViews();
    connectSidebar();
    connect(&services.library, &Library::projectRemoved, this, [this](Project* project) {
        if (project == m_project)
            m_project = nullptr;
    });
    showSegment(m_segment);
}

void MainView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    // The window opens on the sidebar, not in the search field, the first in the tab order: no
    // cursor blinks, all day, in a field the user has not chosen. Done at the first showing,
    // once the view is in its window, since moving into a window forgets the focus.
    if (!std::exchange(m_focusPlaced, true))
        m_sidebar->list()->setFocus();
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
    connect(m_quickAdd, &QuickAddView::added, m_quickAdd, &QWidget::hide);
    connect(m_quickAdd, &QuickAddView::dismissed, m_quickAdd, &QWidget::hide);
    return right;
}

void MainView::connectSidebar()
{
    connect(m_sidebar, &SidebarView::segmentChosen, this, &MainView::showSegment);
    connect(m_sidebar, &SidebarView::projectChosen, this, &MainView::showProject);
    connect(m_sidebar, &SidebarView::projectAdded, this, &MainView::showProject);
    connect(m_sidebar, &SidebarView::resultChosen, this, [this](Item* item) {
        m_sidebar->clearSearch();
        showItem(item);
    });
    connect(m_sidebar, &SidebarView::quickAddRequested, this, &MainView::showQuickAddBar);
    connect(m_sidebar, &SidebarView::deleteRequested, this,
            [this](Project* project) { deleteProject(project); });
    connect(m_sidebar, &SidebarView::duplicateRequested, this, &MainView::duplicateProject);
}

QWidget* MainView::makeList(Segment segment, Project* project)
{
    auto* list = new ItemListView(m_services, {segment, project, false}, true);
    connect(list, &ItemListView::segmentRequested, this, [this](Segment asked) {
        // Not while the list that asks is still at work.
        QMetaObject::invokeMethod(
            this, [this, asked] { showSegment(asked); }, Qt::QueuedConnection);
    });
    connect(list, &ItemListView::projectDeletionRequested, this, [this](Project* p) {
        QMetaObject::invokeMethod(
            this, [this, p] { deleteProject(p, false); }, Qt::QueuedConnection);
    });
    connect(list, &ItemListView::projectDuplicated, this, [this](Project* copy) {
        m_sidebar->reload();
        showProject(copy);
    });
    connect(list, &ItemListView::addTasksRequested, this, [this, list] {
        // The panel opens on the task chosen in the list.
        m_toSelect = list->selectedItem();
        showLater(View::AddTaskList);
    });
    list->select(std::exchange(m_toSelect, nullptr));
    return list;
}

QWidget* MainView::makeAddTaskPanel()
{
    auto* tasks = new AddTaskView(m_services, m_project);
    tasks->select(std::exchange(m_toSelect, nullptr));
    connect(tasks, &AddTaskView::doneRequested, this, [this](const Item* lastTouched) {
        m_toSelect = lastTouched;
        showLater(View::ProjectList);
    });
    return tasks;
}

void MainView::registerViews()
{
    m_switcher->registerView(View::LulletList, [this] { return makeList(m_segment, nullptr); });
    m_switcher->registerView(View::CustomList, [this] { return makeList(m_segment, nullptr); });
    m_switcher->registerView(View::ProjectList,
                             [this] { return makeList(Segment::Project, m_project); });
    m_switcher->registerView(View::Chart, [this] { return new DashboardView(m_services); });
    m_switcher->registerView(View::RepeatList, [this] { return new RepeatListView(m_services); });
    m_switcher->registerView(View::AddTaskList, [this] { return makeAddTaskPanel(); });
}

void MainView::switchTo(View view)
{
    // A new view must not move the sidebar: the splitter would otherwise hand back to it room
    // that the last view had taken.
    const QList<int> sizes = m_splitter->sizes();
    m_switcher->showView(view);
    // Before the window is laid out the splitter holds the sizes it was given.
    if (m_splitter->isVisible())
        m_splitter->setSizes(sizes);
    // Meant for the view just made.
    m_toSelect = nullptr;
}

void MainView::showLater(View view)
{
    // Not from inside the view that is about to be replaced.
    QMetaObject::invokeMethod(
        this, [this, view] { switchTo(view); }, Qt::QueuedConnection);
}

void MainView::showShown()
{
    m_sidebar->highlight(m_segment, m_project);
    switchTo(Segments::view(m_segment));
}

void MainView::showSegment(Segment segment)
{
    if (segment == Segment::Project)
        return;
    m_project = nullptr;
    m_segment = segment;
    showShown();
}

void MainView::showProject(Project* project)
{
    if (!project || !project->hasContext()) {
        showSegment(Segment::Today);
        return;
    }
    m_project = project;
    m_segment = Segment::Project;
    showShown();
}

void MainView::showProjectNamed(const QString& name)
{
    if (Project* project = m_services.library.projectNamed(name))
        showProject(project);
}

void MainView::showItem(Item* item)
{
    if (!item || !item->hasContext())
        return;
    const Segment segment = Sidebar::segmentFor(*item, m_services.clock.now());
    m_toSelect = item;
    if (segment == Segment::Project)
        showProject(item->toProject());
    else
        showSegment(segment);
}

void MainView::showAfterReload(const QString& shownProject)
{
    // Every record the view held may belong to a store that went: nothing of it is kept.
    m_project = nullptr;
    m_toSelect = nullptr;
    m_sidebar->clearSearch();
    m_sidebar->reload();
    if (m_segment == Segment::Project)
        m_segment = Segment::Today;
    if (Project* project = m_services.library.projectNamed(shownProject))
        showProject(project);
    else
        showSegment(m_segment);
}

void MainView::deleteProject(Project* project, bool ask)
{
    if (!project || !project->hasContext())
        return;
    if (ask && ProjectActions::deleteAsks(*project) &&
        !Dialogs::confirm(this, ProjectActions::deleteTitle(), ProjectActions::deleteQuestion()))
        return;
    // The row next to it takes the selection.
    const std::vector<SidebarRow>& rows = m_sidebar->rows();
    int index = -1;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].project == project)
            index = int(i);
    }
    m_services.projectActions.deleteProject(*project);
    m_sidebar->reload();
    const std::vector<SidebarRow>& left = m_sidebar->rows();
    const int next = std::min(index, int(left.size()) - 1);
    const SidebarRow* row = next >= 0 ? &left[std::size_t(next)] : nullptr;
    if (row && row->project)
        showProject(row->project);
    else if (row && row->type == SidebarRow::SegmentRow)
        showSegment(row->segment);
    else
        showSegment(Segment::Today);
}

void MainView::duplicateProject(Project* project)
{
    Project* copy = m_services.projectActions.duplicateAsNew(*project);
    m_sidebar->reload();
    showProject(copy);
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

} // namespace lullet
