#include "ui/widgets/BarChart.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace lullet {

BarChart::BarChart(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent, false);
}

void BarChart::setBars(std::vector<Bar> bars)
{
    m_bars = std::move(bars);
    update();
}

void BarChart::setColor(const QColor& color)
{
    m_color = color;
    update();
}

void BarChart::setUnit(const QString& unit)
{
    m_unit = unit;
    update();
}

void BarChart::setWholeNumbers(bool whole)
{
    m_wholeNumbers = whole;
    update();
}

void BarChart::setEmptyText(const QString& text)
{
    m_emptyText = text;
    update();
}

BarChart::Axis BarChart::axis() const
{
    double largest = 0;
    for (const Bar& bar : m_bars)
        largest = std::max(largest, bar.value);
    if (largest <= 0)
        return m_wholeNumbers ? Axis{1.0, 1.0, 0} : Axis{1.0, 0.25, 2};
    // A step of 1, 2 or 5 times a power of ten that gives at most four steps.
    const double rough = largest / 4;
    const double power = std::pow(10.0, std::floor(std::log10(rough)));
    double step = power;
    for (const double factor : {1.0, 2.0, 5.0, 10.0}) {
        step = factor * power;
        if (step >= rough)
            break;
    }
    if (m_wholeNumbers)
        step = std::max(step, 1.0);
    // As many decimals as the step has: 0.05 h steps read 0.05, 0.10, 0.15, never 0.1 twice.
    const int decimals = std::max(0, -int(std::floor(std::log10(power) + 1e-9)));
    return {std::ceil(largest / step) * step, step, m_wholeNumbers ? 0 : decimals};
}

QString BarChart::label(const Axis& axis, double value) const
{
    return QString::number(value, 'f', axis.decimals) +
           (m_unit.isEmpty() ? QString() : u' ' + m_unit);
}

QStringList BarChart::axisLabels() const
{
    const Axis axis = this->axis();
    QStringList labels;
    for (int tick = 0; tick * axis.step <= axis.top + axis.step / 2; ++tick)
        labels << label(axis, tick * axis.step);
    return labels;
}

void BarChart::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QFontMetrics metrics = fontMetrics();
    const Axis axis = this->axis();
    const bool empty =
        std::none_of(m_bars.begin(), m_bars.end(), [](const Bar& bar) { return bar.value > 0; });
    if (empty && !m_emptyText.isEmpty()) {
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, m_emptyText);
        return;
    }
    const QStringList labels = axisLabels();
    const int axisWidth = metrics.horizontalAdvance(labels.last()) + 8;
    const QRect plot =
        rect().adjusted(axisWidth, metrics.height() / 2, -4, -(metrics.height() + 6));
    if (plot.width() <= 0 || plot.height() <= 0)
        return;

    const QColor grid = palette().color(QPalette::Mid);
    painter.setPen(palette().color(QPalette::WindowText));
    for (int tick = 0; tick < labels.size(); ++tick) {
        const double value = tick * axis.step;
        const int y = plot.bottom() - int(std::lround(value / axis.top * plot.height()));
        painter.setPen(grid);
        painter.drawLine(plot.left(), y, plot.right(), y);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(QRect(0, y - metrics.height() / 2, axisWidth - 6, metrics.height()),
                         Qt::AlignRight | Qt::AlignVCenter, labels[tick]);
    }
    if (m_bars.empty())
        return;

    const double slot = double(plot.width()) / double(m_bars.size());
    // Labels that would run into each other are thinned out, every n-th one kept.
    int widest = 0;
    for (const Bar& bar : m_bars)
        widest = std::max(widest, metrics.horizontalAdvance(bar.label));
    const int every = std::max(1, int(std::ceil((widest + 8) / slot)));
    for (std::size_t i = 0; i < m_bars.size(); ++i) {
        const Bar& bar = m_bars[i];
        const double left = plot.left() + slot * double(i);
        const double height = axis.top > 0 ? bar.value / axis.top * plot.height() : 0;
        const QRectF shape(left + slot * 0.2, plot.bottom() - height, slot * 0.6, height);
        painter.fillRect(shape, m_color);
        if (i % std::size_t(every) == 0)
            painter.drawText(QRectF(left - slot * (every - 1) / 2.0, plot.bottom() + 4,
                                    slot * every, metrics.height()),
                             Qt::AlignHCenter | Qt::AlignTop, bar.label);
    }
}

} // namespace lullet
