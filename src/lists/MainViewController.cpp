#include "lists/MainViewController.h"

#include "authoring/QuickAddViewController.h"
#include "core/app/AppDelegate.h"
#include "core/notify/NotificationCenter.h"
#include "core/notify/Notifications.h"
#include "lists/LulletListViewController.h"
#include "lists/ProjectActions.h"
#include "shell/ErrorBalloon.h"
#include "shell/ViewSwitcher.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QSplitter>
#include <QVBoxLayout>

namespace lullet {

namespace {

// A view that a later part of the program provides.
QWidget* comingView(const QString& what)
{
    auto* label = new QLabel(what);
    label->setAlignment(Qt::AlignCenter);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

} // namespace

MainViewController::MainViewController(AppDelegate& app, QWidget* parent)
    : QWidget(parent)
    , m_app(app)
    , searchField(new QLineEdit(this))
    , m_segments(new QListWidget(this))
    , m_newProject(new QLineEdit(this))
    , m_switcher(new ViewSwitcher(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* splitter = new QSplitter(this);
    auto* sidebar = new QWidget(splitter);
    auto* side = new QVBoxLayout(sidebar);
    side->setContentsMargins(8, 8, 0, 8);
    searchField->setObjectName(QStringLiteral("searchField"));
    searchField->setPlaceholderText(tr("Search"));
    searchField->setClearButtonEnabled(true);
    side->addWidget(searchField);
    m_segments->setObjectName(QStringLiteral("tblSegments"));
    m_segments->setFrameShape(QFrame::NoFrame);
    side->addWidget(m_segments, 1);
    m_newProject->setObjectName(QStringLiteral("newProject"));
    m_newProject->setPlaceholderText(tr("New project"));
    side->addWidget(m_newProject);
    sidebar->setMinimumWidth(170);
    sidebar->setMaximumWidth(280);
    splitter->addWidget(sidebar);
    auto* right = new QWidget(splitter);
    auto* rightLayout = new QVBoxLayout(right);
    rightLayout->setContentsMargins(0, 0, 0, 0);
    m_quickAdd = new QuickAddViewController(m_app, right);
    m_quickAdd->hide();
    rightLayout->addWidget(m_quickAdd);
    rightLayout->addWidget(m_switcher, 1);
    splitter->addWidget(right);
    splitter->setStretchFactor(1, 1);
    layout->addWidget(splitter);

    m_switcher->registerView(QStringLiteral("LulletList"), [this] {
        return new LulletListViewController(m_app, {m_app.strSegmentSelectedNow, nullptr, false},
                                            true);
    });
    m_switcher->registerView(QStringLiteral("ProjectList"), [this] {
        return new LulletListViewController(
            m_app, {QStringLiteral("Project"), m_app.objProjectSelectedNow, false}, true);
    });
    m_switcher->registerView(QStringLiteral("CustomList"), [this] {
        return new LulletListViewController(m_app, {m_app.strSegmentSelectedNow, nullptr, false},
                                            true);
    });
    m_switcher->registerView(QStringLiteral("Chart"), [] {
        return comingView(tr("The dashboard comes with the reports."));
    });
    m_switcher->registerView(QStringLiteral("AddLullet"), [] {
        return comingView(tr("The lullet form comes with the repeat list."));
    });
    m_switcher->registerView(QStringLiteral("RepeatList"),
                             [] { return comingView(tr("The repeat list comes with its form.")); });

    connect(m_segments, &QListWidget::currentRowChanged, this, [this](int row) {
        if (!bDoNotSelectNow)
            dispatchForRowSelection(row);
    });
    connect(m_newProject, &QLineEdit::returnPressed, this, &MainViewController::onAddProject);
    connect(m_quickAdd, &QuickAddViewController::added, this, [this] {
        m_quickAdd->txtTaskQuickAdd->clear();
        m_quickAdd->hide();
        m_app.notifCenter().post(notification::onChangeInData);
    });
    m_segments->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_segments, &QWidget::customContextMenuRequested, this, [this](const QPoint& pos) {
        const int row = m_segments->row(m_segments->itemAt(pos));
        // Only a project row has a menu.
        if (row < 0 || row >= int(mArrSegments.size()) || !mArrSegments[std::size_t(row)].project)
            return;
        Project* project = mArrSegments[std::size_t(row)].project;
        auto* menu = new QMenu(this);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        connect(menu->addAction(tr("Rename")), &QAction::triggered, this,
                [this, project] { onEditProject(project); });
        connect(menu->addAction(tr("Duplicate as new")), &QAction::triggered, this,
                [this, project] { onDuplicateProject(project); });
        connect(menu->addAction(tr("Delete")), &QAction::triggered, this,
                [this, project] { onDeleteProject(project); });
        menu->popup(m_segments->viewport()->mapToGlobal(pos));
    });
    connect(m_segments, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
        Project* project = m_renaming;
        if (!project)
            return;
        m_renaming = nullptr;
        ProjectActions::renameProject(m_app, *project, item->text());
        // The row shows the name the project has now, with its count.
        loadSegments();
    });
    connect(searchField, &QLineEdit::textChanged, this, &MainViewController::onDoSearch);

    NotificationCenter& center = m_app.notifCenter();
    // Counts follow the running item each second, and every change of the items.
    center.addObserver(this, notification::onMonitoringDone, [this](const QVariant&) {
        if (m_app.objReminderRunningNow)
            updateDefaultSegments();
    });
    for (const QLatin1String name :
         {notification::onItemAddedOrEdited, notification::onItemDeleted,
          notification::onReminderStarted, notification::onReminderFinished,
          notification::onReminderPostponed, notification::onProjectContentChanged,
          notification::onRepeatItemAddedOrEdited})
        center.addObserver(this, name, [this](const QVariant&) { updateDefaultSegments(); });
    for (const QLatin1String name :
         {notification::onChangeInProjectList, notification::onProjectAddedOrRemoved,
          notification::onRestoreDatabaseDone, notification::onSynciCloud})
        center.addObserver(this, name, [this](const QVariant&) { loadSegments(); });

    for (const QLatin1String name : {notification::doAskQuickAdd, notification::onCallQuickAdd})
        center.addObserver(this, name, [this](const QVariant&) { onQuickAddTask(); });
    // A list that gives way names the segment to show.
    center.addObserver(this, notification::onExternallyShiftSegment, [this](const QVariant&) {
        QMetaObject::invokeMethod(
            this, [this] { onSelectSegment(m_app.strSegmentSelectedNow); }, Qt::QueuedConnection);
    });
    // The project list's own buttons ask the main view to delete or show a copy.
    center.addObserver(this, notification::onDeleteRequested, [this](const QVariant& object) {
        if (auto* project = object.value<Project*>(); project && project->hasContext())
            QMetaObject::invokeMethod(
                this, [this, project] { onDeleteProject(project, false); }, Qt::QueuedConnection);
    });
    center.addObserver(this, notification::onDuplicationRequested, [this](const QVariant& object) {
        if (auto* copy = object.value<Project*>()) {
            loadSegments();
            onSelectSegment(copy->name().value_or(QString()));
        }
    });

    loadSegments();
    onSelectSegment(m_app.objProjectSelectedNow
                        ? m_app.objProjectSelectedNow->name().value_or(QString())
                        : m_app.strSegmentSelectedNow);
}

QString MainViewController::rowText(const SidebarRow& row) const
{
    if (row.type == SidebarRow::Separator)
        return {};
    QString text =
        row.count ? row.name + QStringLiteral("   ") + QString::number(*row.count) : row.name;
    if (row.progress && *row.progress > 0)
        text += QStringLiteral("   %1%").arg(qRound(*row.progress * 100));
    return text;
}

void MainViewController::loadSegments()
{
    if (m_showingResults)
        return;
    mArrSegments = Segments::prepareSegments(m_app);
    bDoNotSelectNow = true;
    m_segments->clear();
    for (const SidebarRow& row : mArrSegments) {
        auto* item = new QListWidgetItem(rowText(row), m_segments);
        if (row.type == SidebarRow::Separator) {
            item->setFlags(Qt::NoItemFlags);
            item->setSizeHint(QSize(0, 10));
        }
    }
    // The selection stays where it was.
    const QString selected = m_app.objProjectSelectedNow
                                 ? m_app.objProjectSelectedNow->name().value_or(QString())
                                 : m_app.strSegmentSelectedNow;
    for (std::size_t i = 0; i < mArrSegments.size(); ++i) {
        if (mArrSegments[i].name == selected && mArrSegments[i].type != SidebarRow::Separator)
            m_segments->setCurrentRow(int(i));
    }
    bDoNotSelectNow = false;
}

void MainViewController::updateDefaultSegments()
{
    if (m_showingResults)
        return;
    const Segments::Counts counts = Segments::Counts::compute(m_app);
    for (std::size_t i = 0; i < mArrSegments.size() && i < std::size_t(m_segments->count()); ++i) {
        SidebarRow& row = mArrSegments[i];
        row.count = Segments::countFor(row, counts);
        // Each second only the running item's project moves on.
        const ReminderInfo* running = m_app.objReminderRunningNow;
        if (row.project && (!running || running->toProject() == row.project))
            row.progress = Segments::projectProgress(*row.project, m_app);
        m_segments->item(int(i))->setText(rowText(row));
    }
}

void MainViewController::selectRowSilently(int row)
{
    bDoNotSelectNow = true;
    m_segments->setCurrentRow(row);
    bDoNotSelectNow = false;
}

void MainViewController::dispatchForRowSelection(int index)
{
    if (index < 0 || index >= int(mArrSegments.size()))
        return;
    const SidebarRow row = mArrSegments[std::size_t(index)];
    if (row.type == SidebarRow::Separator)
        return;
    if (row.item) {
        // A search result: its list, with the search ended.
        const QString segment = Segments::segmentFor(*row.item, m_app);
        const QString target = segment == QStringLiteral("Project")
                                   ? row.item->toProject()->name().value_or(QString())
                                   : segment;
        searchField->clear();
        onSelectSegment(target);
        return;
    }
    if (row.project) {
        m_app.objProjectSelectedNow = row.project;
        m_app.strSegmentSelectedNow = QStringLiteral("Project");
    } else {
        m_app.objProjectSelectedNow = nullptr;
        m_app.strSegmentSelectedNow = row.name;
    }
    m_switcher->showView(Segments::viewFor(m_app.strSegmentSelectedNow));
}

void MainViewController::onSelectSegment(const QString& name)
{
    for (std::size_t i = 0; i < mArrSegments.size(); ++i) {
        if (mArrSegments[i].name == name && mArrSegments[i].type != SidebarRow::Separator) {
            selectRowSilently(int(i));
            dispatchForRowSelection(int(i));
            return;
        }
    }
    // Nothing of that name: "Today".
    if (name != QStringLiteral("Today"))
        onSelectSegment(QStringLiteral("Today"));
}

void MainViewController::onAddProject()
{
    const ProjectActions::Added added = ProjectActions::addProject(m_app, m_newProject->text());
    if (!added.project) {
        ErrorBalloon::showErrorMessage(added.refusal, m_newProject);
        return;
    }
    m_newProject->clear();
    loadSegments();
    onSelectSegment(added.project->name().value_or(QString()));
}

void MainViewController::onEditProject(Project* project)
{
    for (std::size_t i = 0; i < mArrSegments.size(); ++i) {
        if (mArrSegments[i].project != project)
            continue;
        QListWidgetItem* item = m_segments->item(int(i));
        bDoNotSelectNow = true;
        item->setFlags(item->flags() | Qt::ItemIsEditable);
        item->setText(project->name().value_or(QString()));
        bDoNotSelectNow = false;
        m_renaming = project;
        m_segments->editItem(item);
        return;
    }
}

void MainViewController::onDeleteProject(Project* project, bool ask)
{
    if (ask && ProjectActions::deleteAsks(*project) &&
        QMessageBox::question(this, ProjectActions::deleteTitle(), ProjectActions::deleteQuestion(),
                              QMessageBox::Yes | QMessageBox::No) != QMessageBox::Yes)
        return;
    // The row next to it takes the selection.
    int index = -1;
    for (std::size_t i = 0; i < mArrSegments.size(); ++i) {
        if (mArrSegments[i].project == project)
            index = int(i);
    }
    ProjectActions::deleteProject(m_app, *project);
    loadSegments();
    const int next = std::min(index, int(mArrSegments.size()) - 1);
    if (next >= 0 && mArrSegments[std::size_t(next)].type != SidebarRow::Separator)
        onSelectSegment(mArrSegments[std::size_t(next)].name);
    else
        onSelectSegment(QStringLiteral("Today"));
}

void MainViewController::onDuplicateProject(Project* project)
{
    // The copy is announced, and selected when the announcement arrives.
    ProjectActions::duplicateAsNew(m_app, *project);
}

void MainViewController::onQuickAddTask()
{
    if (m_quickAdd->isVisible() && !m_quickAdd->txtTaskQuickAdd->text().trimmed().isEmpty()) {
        m_quickAdd->onDoAdd();
        return;
    }
    m_quickAdd->show();
    m_quickAdd->txtTaskQuickAdd->setFocus();
}

void MainViewController::onDoSearch(const QString& text)
{
    if (text.trimmed().isEmpty()) {
        m_showingResults = false;
        loadSegments();
        return;
    }
    const std::vector<SidebarRow> all = Segments::prepareSegments(m_app);
    m_showingResults = true;
    mArrSegments = Segments::search(text, all, m_app);
    bDoNotSelectNow = true;
    m_segments->clear();
    for (const SidebarRow& row : mArrSegments)
        new QListWidgetItem(row.item ? QStringLiteral("• ") + row.name : rowText(row), m_segments);
    bDoNotSelectNow = false;
}

} // namespace lullet
