#include "ui/preferences/ScheduleTab.h"

#include "core/app/Services.h"
#include "core/dates/Date.h"
#include "core/scheduling/ScheduleTableModel.h"
#include "ui/widgets/TimeField.h"

#include <QHeaderView>
#include <QLabel>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QVBoxLayout>

namespace lullet {

namespace {

// Times by hours and minutes, as the schedule keeps them, in the user's short format.
class TimeDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& value, const QLocale& locale) const override
    {
        if (value.typeId() != QMetaType::QTime)
            return QStyledItemDelegate::displayText(value, locale);
        // As every other time in the program: ICU's short style.
        const QTime time = value.toTime();
        return Date::dateFromComponents(2000, 1, 1, time.hour(), time.minute())
            .toString(DateStyle::None, DateStyle::Short);
    }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override
    {
        if (index.data(Qt::EditRole).typeId() != QMetaType::QTime)
            return QStyledItemDelegate::createEditor(parent, option, index);
        auto* field = new TimeField(parent);
        field->setFrame(false);
        return field;
    }
};

} // namespace

ScheduleTab::ScheduleTab(const Services& services, QWidget* parent)
    : QWidget(parent)
    , m_table(new QTableView(this))
{
    auto* model =
        new ScheduleTableModel(services.clock, services.schedule, services.catalogue, this);
    m_table->setObjectName(QStringLiteral("schedule"));
    m_table->setAccessibleName(tr("Working hours"));
    m_table->setModel(model);
    m_table->setItemDelegate(new TimeDelegate(m_table));
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_table->setSelectionMode(QAbstractItemView::NoSelection);
    // A time opens for editing at the first click or key, as a time field would.
    m_table->setEditTriggers(QAbstractItemView::AllEditTriggers);
    auto* note = new QLabel(tr("Lullet asks what you have been doing only on working days, "
                               "between these times."),
                            this);
    note->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 16, 24, 16);
    layout->addWidget(note);
    layout->addWidget(m_table, 1);
}

} // namespace lullet
