#pragma once

#include "core/presentation/ChartBar.h"

#include <QColor>
#include <QString>
#include <QWidget>

#include <vector>

namespace lullet {

// Bars over categories, with a value axis on the left: painted in a few lines, so the program
// need not carry a charting library (and OpenGL with it) for its few charts.
class BarChart final : public QWidget {
    Q_OBJECT
public:
    using Bar = ChartBar;

    explicit BarChart(QWidget* parent = nullptr);

    void setBars(std::vector<Bar> bars);
    const std::vector<Bar>& bars() const { return m_bars; }
    void setColor(const QColor& color);
    // The value axis' labels: `unit` follows each tick's value ("h" gives "1.5 h").
    void setUnit(const QString& unit);
    // Counts: the value axis steps by whole numbers and shows no decimals.
    void setWholeNumbers(bool whole);
    // Said in place of the bars while every value is 0.
    void setEmptyText(const QString& text);

    QSize sizeHint() const override { return {400, 180}; }
    // The value axis' labels, from 0 up: no two alike, each as precise as its step needs.
    QStringList axisLabels() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    // The top of the value axis, its step (round numbers, four steps or so), and the decimals
    // its labels need.
    struct Axis {
        double top = 1;
        double step = 1;
        int decimals = 0;
    };
    Axis axis() const;
    QString label(const Axis& axis, double value) const;

    std::vector<Bar> m_bars;
    QColor m_color = QColor(0xFC, 0x72, 0x74);
    QString m_unit;
    QString m_emptyText;
    bool m_wholeNumbers = false;
};

} // namespace lullet
