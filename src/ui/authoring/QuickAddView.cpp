#include "ui/authoring/QuickAddView.h"

#include "core/app/Services.h"
#include "core/library/Library.h"
#include "ui/authoring/DateChooser.h"
#include "ui/widgets/Balloon.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace lullet {

QuickAddView::QuickAddView(const Services& services, QWidget* parent)
    : QWidget(parent)
    , m_services(services)
    , m_form(services.clock, services.library)
    , m_choices(services.library, tr("No Project"))
    , m_name(new QLineEdit(this))
    , m_projects(new QComboBox(this))
    , m_duration(new QComboBox(this))
    , m_dateButton(new QPushButton(this))
    , m_dateLabel(new QLabel(this))
    , m_timeLabel(new QLabel(this))
{
    setWindowTitle(tr("Quick add"));
    auto* layout = new QVBoxLayout(this);
    m_name->setObjectName(QStringLiteral("nameField"));
    m_name->setPlaceholderText(tr("Task name"));
    m_name->setAccessibleName(tr("Task name"));
    m_name->setMinimumWidth(360);
    layout->addWidget(m_name);
    buildOptions(layout);
    auto* actions = new QHBoxLayout;
    actions->addStretch();
    auto* addButton = new QPushButton(tr("Add"), this);
    addButton->setObjectName(QStringLiteral("add"));
    addButton->setDefault(true);
    actions->addWidget(addButton);
    layout->addLayout(actions);

    connect(addButton, &QPushButton::clicked, this, &QuickAddView::add);
    connect(m_name, &QLineEdit::returnPressed, this, &QuickAddView::add);
    connect(&services.library, &Library::projectsChanged, this,
            [this] { fillProjects(m_choices.projectAt(m_projects->currentIndex())); });
    fillProjects(nullptr);
    showDate();
}

void QuickAddView::buildOptions(QVBoxLayout* layout)
{
    auto* options = new QHBoxLayout;
    m_projects->setObjectName(QStringLiteral("projects"));
    m_duration->setObjectName(QStringLiteral("duration"));
    m_duration->addItems(QuickAddForm::durationChoices());
    m_dateButton->setObjectName(QStringLiteral("chooseDate"));
    // The button shows the date in labels of its own, which a screen reader doesn't read.
    m_dateButton->setAccessibleName(tr("Due date"));
    m_dateButton->setFlat(true);
    auto* dateLayout = new QHBoxLayout(m_dateButton);
    dateLayout->setContentsMargins(6, 0, 6, 0);
    dateLayout->addWidget(m_dateLabel);
    dateLayout->addWidget(m_timeLabel);
    m_dateButton->setMinimumWidth(170);
    options->addWidget(m_projects, 1);
    options->addWidget(m_duration);
    options->addWidget(m_dateButton);
    layout->addLayout(options);
    connect(m_dateButton, &QPushButton::clicked, this, &QuickAddView::chooseDate);
}

void QuickAddView::reset(const Project* selected)
{
    m_form.reset();
    fillProjects(selected);
    showDate();
}

void QuickAddView::fillProjects(const Project* selected)
{
    m_choices = ProjectChoices(m_services.library, tr("No Project"));
    m_projects->clear();
    m_projects->addItems(m_choices.titles());
    m_projects->setCurrentIndex(m_choices.indexOf(selected));
}

void QuickAddView::showDate()
{
    m_dateLabel->setText(m_form.dateLabel());
    m_timeLabel->setText(m_form.timeLabel());
    m_dateButton->setAccessibleDescription(
        (m_form.dateLabel() + u' ' + m_form.timeLabel()).trimmed());
}

void QuickAddView::chooseDate()
{
    auto* chooser = new DateChooser(m_form.chooserStart(), std::nullopt, this);
    connect(chooser, &DateChooser::chosen, this, [this](Date date) {
        m_form.setDate(date);
        showDate();
    });
    connect(chooser, &DateChooser::unset, this, [this] {
        m_form.setDate(std::nullopt);
        showDate();
    });
    chooser->popUpBelow(m_dateButton);
}

void QuickAddView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        Balloon::dismiss(m_name);
        Q_EMIT dismissed();
        return;
    }
    QWidget::keyPressEvent(event);
}

void QuickAddView::add()
{
    Item* item = m_form.add(m_name->text(), m_choices.projectAt(m_projects->currentIndex()),
                            m_duration->currentIndex());
    if (!item) {
        Balloon::show(QuickAddForm::blankMessage(), m_name);
        return;
    }
    Balloon::dismiss(m_name);
    m_name->clear();
    Q_EMIT added(item);
}

} // namespace lullet
