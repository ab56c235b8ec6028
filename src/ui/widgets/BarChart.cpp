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

std::pair<double, double> BarChart::axisFor(double largest) const
{
    if (largest <= 0)
        return m_wholeNumbers ? std::pair{1.0, 1.0} : std::pair{1.0, 0.25};
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
    return {std::ceil(largest / step) * step, step};
}

void BarChart::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QFontMetrics metrics = fontMetrics();
    double largest = 0;
    for (const Bar& bar : m_bars)
        largest = std::max(largest, bar.value);
    const auto [top, step] = axisFor(largest);

    if (largest <= 0 && !m_emptyText.isEmpty()) {
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, m_emptyText);
        return;
    }
    const auto tickText = [this](double value) {
        return QString::number(value, 'f', m_wholeNumbers ? 0 : 1) +
               (m_unit.isEmpty() ? QString() : u' ' + m_unit);
    };
    const int axisWidth = metrics.horizontalAdvance(tickText(top)) + 8;
    const QRect plot =
        rect().adjusted(axisWidth, metrics.height() / 2, -4, -(metrics.height() + 6));
    if (plot.width() <= 0 || plot.height() <= 0)
        return;

    const QColor grid = palette().color(QPalette::Mid);
    painter.setPen(palette().color(QPalette::WindowText));
    for (double value = 0; value <= top + step / 2; value += step) {
        const int y = plot.bottom() - int(std::lround(value / top * plot.height()));
        painter.setPen(grid);
        painter.drawLine(plot.left(), y, plot.right(), y);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(QRect(0, y - metrics.height() / 2, axisWidth - 6, metrics.height()),
                         Qt::AlignRight | Qt::AlignVCenter, tickText(value));
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
        const double height = top > 0 ? bar.value / top * plot.height() : 0;
        const QRectF shape(left + slot * 0.2, plot.bottom() - height, slot * 0.6, height);
        painter.fillRect(shape, m_color);
        if (i % std::size_t(every) == 0)
            painter.drawText(QRectF(left - slot * (every - 1) / 2.0, plot.bottom() + 4,
                                    slot * every, metrics.height()),
                             Qt::AlignHCenter | Qt::AlignTop, bar.label);
    }
}

} // namespace lullet
