#pragma once

#include <QWidget>

class QTableView;

namespace lullet {

struct Services;

// The working week: a day a row, whether it is a working day, and from when to when. A change
// counts at once, for the idle questions and the suggestions' next dates.
class ScheduleTab final : public QWidget {
    Q_OBJECT
public:
    explicit ScheduleTab(const Services& services, QWidget* parent = nullptr);

    QTableView* table() const { return m_table; }

private:
    QTableView* m_table;
};

} // namespace lullet
