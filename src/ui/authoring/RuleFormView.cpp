#include "ui/authoring/RuleFormView.h"

#include "core/app/Services.h"
#include "core/model/RepeatCodes.h"
#include "core/presentation/QuickAddForm.h"
#include "core/presentation/TaskForm.h"
#include "core/scheduling/Catalogue.h"
#include "core/scheduling/CatalogueEntries.h"
#include "core/scheduling/CatalogueRow.h"
#include "ui/widgets/Balloon.h"
#include "ui/widgets/TimeField.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QSpinBox>

namespace lullet {

namespace {

QDate dayOf(Date date)
{
    return {date.year(), date.month(), date.day()};
}

Date fromDay(QDate day)
{
    return Date::dateFromComponents(day.year(), day.month(), day.day());
}

} // namespace

RuleFormView::RuleFormView(const Services& services, const CatalogueRow* row, QWidget* parent)
    : QDialog(parent)
    , m_services(services)
    , m_form({services.clock, services.library, services.generator, services.catalogue})
{
    setObjectName(QStringLiteral("ruleForm"));
    if (row) {
        m_editing = row->representedObject;
        // A rule that began as a suggestion stays one, whatever is edited.
        m_fromSuggestion = !row->isCustom;
    }
    setWindowTitle(m_editing ? tr("Edit lullet") : tr("New lullet"));
    build();
    setFields(row ? m_form.fieldsFor(*row) : m_form.blankFields());
}

RuleFormView::RuleFormView(const Services& services, Project* project, Item* task, QWidget* parent)
    : QDialog(parent)
    , m_services(services)
    , m_form({services.clock, services.library, services.generator, services.catalogue})
    , m_task(std::make_unique<TaskForm>(services.clock, services.library))
    , m_project(project)
    , m_editingTask(task)
{
    setObjectName(QStringLiteral("taskForm"));
    setWindowTitle(task ? tr("Edit task") : tr("New task"));
    build();
    useTaskMode();
    setFields(task ? m_task->fieldsOf(*task) : m_task->blankFields());
}

RuleFormView::~RuleFormView() = default;

void RuleFormView::build()
{
    m_layout = new QFormLayout(this);
    buildNameAndMode(m_layout);
    buildDuration(m_layout);
    buildSchedule(m_layout);
    buildNotesAndButtons(m_layout);
}

void RuleFormView::useTaskMode()
{
    // A task is timed, happens once and is always there: no kind, repeat, end or switch.
    for (QWidget* row :
         {static_cast<QWidget*>(m_mode), m_repeatRow, m_endRow, static_cast<QWidget*>(m_active)})
        m_layout->setRowVisible(row, false);
    if (auto* label = qobject_cast<QLabel*>(m_layout->labelForField(m_firstRow)))
        label->setText(tr("Due on"));
    // Its name is the user's own: the suggestions are for lullets.
    m_name->clear();
}

void RuleFormView::buildNameAndMode(QFormLayout* form)
{
    m_name = new QComboBox(this);
    m_name->setObjectName(QStringLiteral("name"));
    m_name->setEditable(true);
    m_name->setInsertPolicy(QComboBox::NoInsert);
    for (const QString& group : CatalogueEntries::groups()) {
        for (const CatalogueEntry& entry : CatalogueEntries::entriesOf(group))
            m_name->addItem(entry.name);
    }
    form->addRow(tr("Name"), m_name);

    m_mode = new QComboBox(this);
    m_mode->setObjectName(QStringLiteral("mode"));
    m_mode->addItems(RuleForm::modeChoices());
    connect(m_mode, &QComboBox::currentIndexChanged, this, &RuleFormView::showModeRows);
    form->addRow(tr("Kind"), m_mode);

    m_remindBefore = new QComboBox(this);
    m_remindBefore->setObjectName(QStringLiteral("remindBefore"));
    m_remindBefore->addItems(RemindBefore::labels());
    form->addRow(tr("Notice"), m_remindBefore);
}

void RuleFormView::buildDuration(QFormLayout* form)
{
    m_duration = new QWidget(this);
    auto* row = new QHBoxLayout(m_duration);
    row->setContentsMargins(0, 0, 0, 0);
    m_hours = new QSpinBox(m_duration);
    m_hours->setObjectName(QStringLiteral("hours"));
    // Fields that share a row have no label of their own to be read by.
    m_hours->setAccessibleName(tr("Duration in hours"));
    m_hours->setRange(0, 23);
    m_hours->setSuffix(tr(" hr"));
    m_minutes = new QSpinBox(m_duration);
    m_minutes->setObjectName(QStringLiteral("minutes"));
    m_minutes->setAccessibleName(tr("Duration in minutes"));
    m_minutes->setRange(0, 59);
    m_minutes->setSuffix(tr(" min"));
    row->addWidget(m_hours);
    row->addWidget(m_minutes);
    m_notApplicable = new QLabel(tr("A to-do takes no time: it is confirmed when done."), this);
    auto* holder = new QWidget(this);
    auto* both = new QVBoxLayout(holder);
    both->setContentsMargins(0, 0, 0, 0);
    both->addWidget(m_duration);
    both->addWidget(m_notApplicable);
    form->addRow(tr("Duration"), holder);

    m_remind = new QCheckBox(tr("Remind me when it is due"), this);
    m_remind->setObjectName(QStringLiteral("remind"));
    form->addRow(QString(), m_remind);
}

void RuleFormView::buildSchedule(QFormLayout* form)
{
    auto* first = new QWidget(this);
    auto* firstRow = new QHBoxLayout(first);
    firstRow->setContentsMargins(0, 0, 0, 0);
    m_firstDate = new QDateEdit(first);
    m_firstDate->setObjectName(QStringLiteral("firstDate"));
    m_firstDate->setAccessibleName(tr("Date"));
    m_firstDate->setCalendarPopup(true);
    m_time = new TimeField(first);
    m_time->setObjectName(QStringLiteral("time"));
    m_time->setAccessibleName(tr("Time of day"));
    firstRow->addWidget(m_firstDate);
    firstRow->addWidget(m_time);
    form->addRow(tr("First on"), first);
    m_firstRow = first;

    auto* every = new QWidget(this);
    auto* everyRow = new QHBoxLayout(every);
    everyRow->setContentsMargins(0, 0, 0, 0);
    m_repeatCount = new QLineEdit(every);
    m_repeatCount->setObjectName(QStringLiteral("repeatCount"));
    m_repeatCount->setAccessibleName(tr("Repeat every"));
    // Digits only, as a count is typed.
    m_repeatCount->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral("\\d{0,4}")), m_repeatCount));
    m_repeatCount->setMaximumWidth(80);
    m_unit = new QComboBox(every);
    m_unit->setObjectName(QStringLiteral("unit"));
    m_unit->addItems(RuleForm::unitChoices());
    everyRow->addWidget(m_repeatCount);
    everyRow->addWidget(m_unit, 1);
    form->addRow(tr("Repeat every"), every);
    m_repeatRow = every;

    auto* end = new QWidget(this);
    auto* endRow = new QHBoxLayout(end);
    endRow->setContentsMargins(0, 0, 0, 0);
    m_end = new QComboBox(end);
    m_end->setObjectName(QStringLiteral("end"));
    m_end->addItems(RuleForm::endChoices());
    m_upTo = new QDateEdit(end);
    m_upTo->setObjectName(QStringLiteral("upTo"));
    m_upTo->setCalendarPopup(true);
    endRow->addWidget(m_end);
    endRow->addWidget(m_upTo, 1);
    // The end date shows only when there is one.
    connect(m_end, &QComboBox::currentIndexChanged, this,
            [this](int index) { m_upTo->setVisible(index != 0); });
    form->addRow(tr("Ends"), end);
    m_endRow = end;
}

void RuleFormView::buildNotesAndButtons(QFormLayout* form)
{
    m_notes = new QPlainTextEdit(this);
    m_notes->setObjectName(QStringLiteral("notes"));
    m_notes->setTabChangesFocus(true);
    m_notes->setMaximumHeight(70);
    form->addRow(tr("Notes"), m_notes);
    m_active = new QCheckBox(tr("Switched on"), this);
    m_active->setObjectName(QStringLiteral("active"));
    form->addRow(QString(), m_active);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    QPushButton* doneButton = buttons->addButton(tr("Done"), QDialogButtonBox::AcceptRole);
    doneButton->setObjectName(QStringLiteral("done"));
    doneButton->setDefault(true);
    connect(doneButton, &QPushButton::clicked, this, [this] { submit(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
}

void RuleFormView::showModeRows()
{
    const bool toDo = m_mode->currentIndex() == 0;
    m_duration->setVisible(!toDo);
    m_notApplicable->setVisible(toDo);
}

void RuleFormView::setFields(const RuleForm::Fields& fields)
{
    m_name->setCurrentText(fields.title);
    m_mode->setCurrentIndex(fields.toDo ? 0 : 1);
    m_remindBefore->setCurrentIndex(fields.remindBeforeRow);
    m_hours->setValue(fields.hours);
    m_minutes->setValue(fields.minutes);
    m_remind->setChecked(fields.remind);
    m_firstDate->setDate(dayOf(fields.day));
    m_time->setTime(QTime(fields.time.hour(), fields.time.minute()));
    m_repeatCount->setText(fields.repeatCount);
    m_unit->setCurrentIndex(fields.unit);
    m_end->setCurrentIndex(fields.until ? 1 : 0);
    m_upTo->setDate(dayOf(fields.upTo));
    m_upTo->setVisible(fields.until);
    m_notes->setPlainText(fields.notes);
    m_active->setChecked(fields.active);
    showModeRows();
}

RuleForm::Fields RuleFormView::fields() const
{
    RuleForm::Fields fields;
    fields.title = m_name->currentText();
    fields.toDo = m_mode->currentIndex() == 0;
    fields.remindBeforeRow = m_remindBefore->currentIndex();
    fields.hours = m_hours->value();
    fields.minutes = m_minutes->value();
    fields.remind = m_remind->isChecked();
    fields.day = fromDay(m_firstDate->date());
    fields.time = fields.day.setTimeOfDate(m_time->time().hour(), m_time->time().minute(), 0);
    fields.repeatCount = m_repeatCount->text();
    fields.unit = m_unit->currentIndex();
    fields.until = m_end->currentIndex() != 0;
    fields.upTo = fromDay(m_upTo->date());
    fields.notes = m_notes->toPlainText();
    fields.active = m_active->isChecked();
    return fields;
}

RuleForm::Outcome RuleFormView::submit()
{
    if (m_task) {
        m_savedTask = m_task->done(fields(), m_editingTask, m_project);
        if (!m_savedTask) {
            Balloon::show(QuickAddForm::blankMessage(), m_name);
            return RuleForm::Outcome::BlankName;
        }
        Balloon::dismiss(m_name);
        accept();
        return RuleForm::Outcome::Saved;
    }
    const RuleForm::Outcome outcome = m_form.done(fields(), m_editing, m_fromSuggestion);
    switch (outcome) {
    case RuleForm::Outcome::BlankName:
        Balloon::show(QuickAddForm::blankMessage(), m_name);
        break;
    case RuleForm::Outcome::NoRepeatCount:
        Balloon::show(RuleForm::noRepeatCountMessage(), m_repeatCount);
        break;
    case RuleForm::Outcome::Saved:
        Balloon::dismiss(m_name);
        Balloon::dismiss(m_repeatCount);
        accept();
        break;
    }
    return outcome;
}

} // namespace lullet
