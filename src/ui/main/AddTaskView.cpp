#include "ui/main/AddTaskView.h"

#include "core/activity/ItemActions.h"
#include "core/activity/RunningItem.h"
#include "core/app/Services.h"
#include "core/library/Library.h"
#include "core/model/Item.h"
#include "core/model/Project.h"
#include "core/scheduling/ScheduleTexts.h"
#include "ui/authoring/RuleFormView.h"
#include "ui/widgets/Dialogs.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace lullet {

namespace {

constexpr int itemRole = Qt::UserRole;

Item* itemOf(const QTreeWidgetItem* row)
{
    return row ? static_cast<Item*>(row->data(0, itemRole).value<void*>()) : nullptr;
}

// By the date the task comes due, its postponed one where it was put off; tasks with no date
// come last.
bool comesBefore(const Item* a, const Item* b)
{
    const auto due = [](const Item* item) {
        return item->dtReminderPostponed() ? item->dtReminderPostponed() : item->dtReminder();
    };
    const std::optional<Date> first = due(a);
    const std::optional<Date> second = due(b);
    if (first.has_value() != second.has_value())
        return first.has_value();
    return first < second;
}

} // namespace

AddTaskView::AddTaskView(const Services& services, Project* project, QWidget* parent)
    : QWidget(parent)
    , m_services(services)
    , m_project(project)
    , m_list(new QTreeWidget(this))
{
    setObjectName(QStringLiteral("addTaskList"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(makeHeader());
    m_list->setObjectName(QStringLiteral("tasks"));
    m_list->setColumnCount(2);
    m_list->setHeaderLabels({tr("Task"), tr("When")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_list->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    layout->addWidget(m_list, 1);
    connect(m_list, &QTreeWidget::currentItemChanged, this, &AddTaskView::showButtons);
    connect(m_list, &QTreeWidget::itemActivated, this,
            [this](QTreeWidgetItem* row) { openForm(itemOf(row)); });
    listenToChanges();
    reload();
}

QWidget* AddTaskView::makeHeader()
{
    auto* header = new QWidget(this);
    auto* row = new QHBoxLayout(header);
    row->setContentsMargins(0, 0, 0, 0);
    auto* name = new QLabel(m_project ? m_project->name().value_or(QString()) : QString(), header);
    QFont bold = name->font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * 1.2);
    name->setFont(bold);
    row->addWidget(name, 1);
    auto* add = new QPushButton(tr("Add Task…"), header);
    add->setObjectName(QStringLiteral("addTask"));
    m_edit = new QPushButton(tr("Edit…"), header);
    m_edit->setObjectName(QStringLiteral("editTask"));
    m_delete = new QPushButton(tr("Delete"), header);
    m_delete->setObjectName(QStringLiteral("deleteTask"));
    auto* done = new QPushButton(tr("Done"), header);
    done->setObjectName(QStringLiteral("done"));
    for (QPushButton* button : {add, m_edit, m_delete, done})
        row->addWidget(button);
    connect(add, &QPushButton::clicked, this, [this] { openForm(nullptr); });
    connect(m_edit, &QPushButton::clicked, this, [this] { openForm(selectedTask()); });
    connect(m_delete, &QPushButton::clicked, this, [this] { deleteTask(selectedTask()); });
    connect(done, &QPushButton::clicked, this, [this] { Q_EMIT doneRequested(m_lastTouched); });
    return header;
}

void AddTaskView::listenToChanges()
{
    const Library& library = m_services.library;
    connect(&library, &Library::itemsChanged, this, [this](Item* item) {
        reload();
        select(item);
    });
    connect(&library, &Library::itemPostponed, this, [this](Item* item) {
        reload();
        select(item);
    });
    connect(&library, &Library::itemRemoved, this, [this](Item* item) {
        if (item == m_lastTouched)
            m_lastTouched = nullptr;
        reload();
    });
    connect(&library, &Library::projectContentChanged, this, &AddTaskView::reload);
    const RunningItem& running = m_services.running;
    connect(&running, &RunningItem::started, this, &AddTaskView::reload);
    connect(&running, &RunningItem::finished, this, &AddTaskView::reload);
    connect(&running, &RunningItem::extended, this, &AddTaskView::reload);
    connect(&library, &Library::projectRemoved, this, [this](Project* project) {
        if (project == m_project)
            m_project = nullptr;
        reload();
    });
}

void AddTaskView::reload()
{
    const Item* selected = selectedTask();
    m_list->clear();
    if (!m_project)
        return;
    std::vector<Item*> waiting;
    for (Item* item : m_project->toReminders()) {
        if (item->hasContext() && !item->isStarted() && !item->isFinished())
            waiting.push_back(item);
    }
    std::stable_sort(waiting.begin(), waiting.end(), comesBefore);
    for (Item* item : waiting) {
        auto* row = new QTreeWidgetItem(m_list);
        row->setText(0, item->title().value_or(QString()));
        row->setText(1, m_services.texts.itemText(*item));
        row->setData(0, itemRole, QVariant::fromValue(static_cast<void*>(item)));
    }
    select(selected);
    showButtons();
}

void AddTaskView::select(const Item* item)
{
    for (int i = 0; item && i < m_list->topLevelItemCount(); ++i) {
        if (itemOf(m_list->topLevelItem(i)) == item) {
            m_list->setCurrentItem(m_list->topLevelItem(i));
            m_list->scrollToItem(m_list->topLevelItem(i));
            return;
        }
    }
}

Item* AddTaskView::selectedTask() const
{
    return itemOf(m_list->currentItem());
}

void AddTaskView::showButtons()
{
    const bool any = selectedTask() != nullptr;
    m_edit->setEnabled(any);
    m_delete->setEnabled(any);
}

RuleFormView* AddTaskView::openForm(Item* task)
{
    auto* form = new RuleFormView(m_services, m_project, task, this);
    form->setAttribute(Qt::WA_DeleteOnClose);
    form->setWindowModality(Qt::WindowModal);
    connect(form, &QDialog::accepted, this, [this, form] { m_lastTouched = form->savedTask(); });
    form->show();
    return form;
}

void AddTaskView::deleteTask(Item* task)
{
    if (!task)
        return;
    if (!Dialogs::confirm(this, tr("Are you sure to delete ?"),
                          tr("This Reminder will be deleted."), tr("Yes"), tr("No")))
        return;
    m_services.itemActions.deleteItem(*task);
}

} // namespace lullet
