#include "authoring/QuickAddViewController.h"

#include "authoring/DatePickerViewController.h"
#include "core/app/AppDelegate.h"
#include "core/notify/NotificationCenter.h"
#include "core/notify/Notifications.h"
#include "shell/ErrorBalloon.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace lullet {

QuickAddViewController::QuickAddViewController(AppDelegate& app, QWidget* parent)
    : QWidget(parent)
    , txtTaskQuickAdd(new QLineEdit(this))
    , popupBtnProjects(new QComboBox(this))
    , m_app(app)
    , m_model(app)
    , popupBtnDuration(new QComboBox(this))
    , lblQuickAddDate(new QLabel(this))
    , lblQuickAddTime(new QLabel(this))
{
    setWindowTitle(tr("Quick add"));
    auto* layout = new QVBoxLayout(this);
    txtTaskQuickAdd->setObjectName(QStringLiteral("txtTaskQuickAdd"));
    txtTaskQuickAdd->setPlaceholderText(tr("Task name"));
    txtTaskQuickAdd->setMinimumWidth(360);
    layout->addWidget(txtTaskQuickAdd);

    auto* options = new QHBoxLayout;
    popupBtnProjects->setObjectName(QStringLiteral("popupBtnProjects"));
    popupBtnDuration->addItems(QuickAdd::durationChoices());
    auto* dateButton = new QPushButton(this);
    dateButton->setObjectName(QStringLiteral("onSelectReminderDate"));
    dateButton->setFlat(true);
    auto* dateLayout = new QHBoxLayout(dateButton);
    dateLayout->setContentsMargins(6, 0, 6, 0);
    dateLayout->addWidget(lblQuickAddDate);
    dateLayout->addWidget(lblQuickAddTime);
    dateButton->setMinimumWidth(170);
    m_dateButton = dateButton;
    options->addWidget(popupBtnProjects, 1);
    options->addWidget(popupBtnDuration);
    options->addWidget(dateButton);
    layout->addLayout(options);

    auto* actions = new QHBoxLayout;
    actions->addStretch();
    auto* add = new QPushButton(tr("Add"), this);
    add->setObjectName(QStringLiteral("onDoAdd"));
    add->setDefault(true);
    actions->addWidget(add);
    layout->addLayout(actions);

    connect(add, &QPushButton::clicked, this, &QuickAddViewController::onDoAdd);
    connect(txtTaskQuickAdd, &QLineEdit::returnPressed, this, &QuickAddViewController::onDoAdd);
    connect(dateButton, &QPushButton::clicked, this, &QuickAddViewController::onSelectReminderDate);

    setProjectsChoice();
    showDate();
    NotificationCenter& center = m_app.notifCenter();
    center.addObserver(this, notification::doSelectDate, [this](const QVariant& object) {
        const QVariantList values = object.toList();
        // Only an answer to this window's own field counts.
        if (values.size() != 2 || values[0].toString() != txtTaskQuickAdd->objectName())
            return;
        m_model.doSelectDate(values[1].value<Date>());
        showDate();
    });
    center.addObserver(this, notification::doUnsetDate, [this](const QVariant&) {
        m_model.doUnsetDate();
        showDate();
    });
    for (const QLatin1String name :
         {notification::onProjectAddedOrRemoved, notification::onRestoreDatabaseDone,
          notification::onSynciCloud})
        center.addObserver(this, name, [this](const QVariant&) { setProjectsChoice(); });
}

void QuickAddViewController::setProjectsChoice()
{
    popupBtnProjects->clear();
    popupBtnProjects->addItems(m_model.projectChoices());
    popupBtnProjects->setCurrentIndex(m_model.selectedProjectIndex());
}

void QuickAddViewController::showDate()
{
    lblQuickAddDate->setText(m_model.dateLabel());
    lblQuickAddTime->setText(m_model.timeLabel());
}

void QuickAddViewController::onSelectReminderDate()
{
    auto* picker = new DatePickerViewController(m_app, txtTaskQuickAdd->objectName(),
                                                m_model.pickerStart(), std::nullopt, this);
    picker->popUpBelow(m_dateButton);
}

void QuickAddViewController::onDoAdd()
{
    if (!m_model.onDoAdd(txtTaskQuickAdd->text(), popupBtnProjects->currentText())) {
        ErrorBalloon::showErrorMessage(QuickAdd::blankMessage(), txtTaskQuickAdd);
        return;
    }
    Q_EMIT added();
}

} // namespace lullet
