#pragma once

#include "core/presentation/RuleForm.h"

#include <QDialog>

#include <memory>

class QCheckBox;
class QComboBox;
class QDateEdit;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QSpinBox;
class QWidget;

namespace lullet {

class Item;
class Project;
class Rule;
class TaskForm;
class TimeField;
struct CatalogueRow;
struct Services;

// The form of a repeating lullet: every field of a rule, opened on a suggestion's defaults, on a
// stored rule, or blank for a new custom rule. Done stores the rule and closes; a blank name or
// a repeat count of 0 is refused in a balloon at its field. In its task mode the same form makes
// or edits a plain task of a project, without the repeat.
class RuleFormView final : public QDialog {
    Q_OBJECT
public:
    // For a catalogue row (a suggestion or a stored rule); without a row, a new custom rule.
    RuleFormView(const Services& services, const CatalogueRow* row, QWidget* parent = nullptr);
    // The task mode: a new task of `project`, or `task` edited.
    RuleFormView(const Services& services, Project* project, Item* task, QWidget* parent = nullptr);
    ~RuleFormView() override;

    RuleForm::Fields fields() const;
    void setFields(const RuleForm::Fields& fields);
    // What Done did; on Saved the form has been accepted.
    RuleForm::Outcome submit();
    // In the task mode, the task Done saved.
    Item* savedTask() const { return m_savedTask; }

private:
    void buildNameAndMode(QFormLayout* form);
    void buildDuration(QFormLayout* form);
    void buildSchedule(QFormLayout* form);
    void buildNotesAndButtons(QFormLayout* form);
    void build();
    void useTaskMode();
    void showModeRows();

    const Services& m_services;
    RuleForm m_form;
    Rule* m_editing = nullptr;
    bool m_fromSuggestion = false;
    std::unique_ptr<TaskForm> m_task;
    Project* m_project = nullptr;
    Item* m_editingTask = nullptr;
    Item* m_savedTask = nullptr;
    QFormLayout* m_layout = nullptr;
    QWidget* m_firstRow = nullptr;
    QWidget* m_repeatRow = nullptr;
    QWidget* m_endRow = nullptr;
    QComboBox* m_name = nullptr;
    QComboBox* m_mode = nullptr;
    QComboBox* m_remindBefore = nullptr;
    QWidget* m_duration = nullptr;
    QSpinBox* m_hours = nullptr;
    QSpinBox* m_minutes = nullptr;
    QLabel* m_notApplicable = nullptr;
    QCheckBox* m_remind = nullptr;
    QDateEdit* m_firstDate = nullptr;
    TimeField* m_time = nullptr;
    QLineEdit* m_repeatCount = nullptr;
    QComboBox* m_unit = nullptr;
    QComboBox* m_end = nullptr;
    QDateEdit* m_upTo = nullptr;
    QPlainTextEdit* m_notes = nullptr;
    QCheckBox* m_active = nullptr;
};

} // namespace lullet
