#pragma once

#include "core/presentation/RuleForm.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QDateEdit;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QSpinBox;
class QTimeEdit;
class QWidget;

namespace lullet {

class Rule;
struct CatalogueRow;
struct Services;

// The form of a repeating lullet: every field of a rule, opened on a suggestion's defaults, on a
// stored rule, or blank for a new custom rule. Done stores the rule and closes; a blank name or
// a repeat count of 0 is refused in a balloon at its field.
class RuleFormView final : public QDialog {
    Q_OBJECT
public:
    // For a catalogue row (a suggestion or a stored rule); without a row, a new custom rule.
    RuleFormView(const Services& services, const CatalogueRow* row, QWidget* parent = nullptr);

    RuleForm::Fields fields() const;
    void setFields(const RuleForm::Fields& fields);
    // What Done did; on Saved the form has been accepted.
    RuleForm::Outcome submit();

private:
    void buildNameAndMode(QFormLayout* form);
    void buildDuration(QFormLayout* form);
    void buildSchedule(QFormLayout* form);
    void buildNotesAndButtons(QFormLayout* form);
    void showModeRows();

    const Services& m_services;
    RuleForm m_form;
    Rule* m_editing = nullptr;
    bool m_fromSuggestion = false;
    QComboBox* m_name = nullptr;
    QComboBox* m_mode = nullptr;
    QComboBox* m_remindBefore = nullptr;
    QWidget* m_duration = nullptr;
    QSpinBox* m_hours = nullptr;
    QSpinBox* m_minutes = nullptr;
    QLabel* m_notApplicable = nullptr;
    QCheckBox* m_remind = nullptr;
    QDateEdit* m_firstDate = nullptr;
    QTimeEdit* m_time = nullptr;
    QLineEdit* m_repeatCount = nullptr;
    QComboBox* m_unit = nullptr;
    QComboBox* m_end = nullptr;
    QDateEdit* m_upTo = nullptr;
    QPlainTextEdit* m_notes = nullptr;
    QCheckBox* m_active = nullptr;
};

} // namespace lullet
