#pragma once

#include <QWidget>

class QPushButton;
class QTreeWidget;

namespace lullet {

class Item;
class Project;
class RuleFormView;
struct Services;

// A project's waiting tasks (neither started nor finished), to add to, edit and delete, each in
// the form's task mode. The list follows every change to the items, and Done goes back to the
// project's list.
class AddTaskView final : public QWidget {
    Q_OBJECT
public:
    AddTaskView(const Services& services, Project* project, QWidget* parent = nullptr);

    QTreeWidget* list() const { return m_list; }
    // Selects the task's row, if it is listed.
    void select(const Item* item);
    Item* selectedTask() const;
    // The form, in its task mode: for a new task, or for the task given.
    RuleFormView* openForm(Item* task);
    void deleteTask(Item* task);

Q_SIGNALS:
    // Back to the project's list, with the task last added or edited here to select there.
    void doneRequested(lullet::Item* lastTouched);

private:
    QWidget* makeHeader();
    void listenToChanges();
    void reload();
    void showButtons();

    const Services& m_services;
    Project* m_project;
    QTreeWidget* m_list;
    QPushButton* m_edit = nullptr;
    QPushButton* m_delete = nullptr;
    Item* m_lastTouched = nullptr;
};

} // namespace lullet
