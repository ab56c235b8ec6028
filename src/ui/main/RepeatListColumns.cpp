#include "ui/main/RepeatListColumns.h"

#include "ui/main/RepeatListDelegate.h"
#include "ui/main/RepeatListModel.h"

#include <QFontMetricsF>
#include <QHeaderView>
#include <QTableView>

#include <algorithm>
#include <cmath>

namespace lullet {

namespace {

// The widths that columns need to show their texts whole, on one line or on two.
struct Needs {
    int nextOnOneLine = 0;
    int nextOnTwoLines = 0;
    int lulletsOnOneLine = 0;
    int lulletsOnTwoLines = 0;
};

// The width of a text on at most two lines, broken at the blank that leaves the longer line
// shortest.
qreal twoLineWidth(const QFontMetricsF& metrics, const QString& text)
{
    qreal best = metrics.horizontalAdvance(text);
    for (qsizetype blank = text.indexOf(u' '); blank >= 0; blank = text.indexOf(u' ', blank + 1))
        best = std::min(best, std::max(metrics.horizontalAdvance(text.left(blank)),
                                       metrics.horizontalAdvance(text.mid(blank + 1))));
    return best;
}

Needs needs(const QTableView& table, const RepeatListModel& model)
{
    const QFontMetricsF metrics(table.font());
    // The width of a column that shows a text of this width, with a gutter that keeps it apart
    // from the column on its right.
    constexpr int gutter = 12;
    const int margins = RepeatListDelegate::textMargins(&table) + gutter;
    const auto column = [margins](qreal text) { return int(std::ceil(text)) + margins; };
    const QHeaderView* header = table.horizontalHeader();
    Needs needs;
    needs.nextOnOneLine = header->sectionSizeHint(RepeatListModel::NextColumn);
    needs.nextOnTwoLines = needs.nextOnOneLine;
    needs.lulletsOnOneLine = header->sectionSizeHint(RepeatListModel::LulletColumn);
    needs.lulletsOnTwoLines = needs.lulletsOnOneLine;
    for (int row = 0; row < model.rowCount(); ++row) {
        const CatalogueRow* shown = model.rowAt(row);
        if (shown->type != CatalogueRow::ItemRow)
            continue;
        const QString next = model.index(row, RepeatListModel::NextColumn).data().toString();
        needs.nextOnOneLine =
            std::max(needs.nextOnOneLine, column(metrics.horizontalAdvance(next)));
        needs.nextOnTwoLines = std::max(needs.nextOnTwoLines, column(twoLineWidth(metrics, next)));
        // A title ends in "…" sooner than a schedule wraps.
        needs.lulletsOnOneLine =
            std::max({needs.lulletsOnOneLine, column(metrics.horizontalAdvance(shown->title)),
                      column(metrics.horizontalAdvance(shown->notes2))});
        needs.lulletsOnTwoLines =
            std::max(needs.lulletsOnTwoLines, column(twoLineWidth(metrics, shown->notes2)));
    }
    return needs;
}

// The width of "Next" in `room`: the first of the ways, from the fewest lines to the most, in
// which both columns show their texts whole; where none does, half the room at most.
int nextWidth(const Needs& needs, int room)
{
    const std::pair<int, int> ways[] = {
        {needs.lulletsOnOneLine, needs.nextOnOneLine},
        {needs.lulletsOnOneLine, needs.nextOnTwoLines},
        {needs.lulletsOnTwoLines, needs.nextOnOneLine},
        {needs.lulletsOnTwoLines, needs.nextOnTwoLines},
    };
    for (const auto& [lullets, next] : ways) {
        if (lullets + next <= room)
            return next;
    }
    return std::min(needs.nextOnTwoLines, room / 2);
}

} // namespace

void RepeatListColumns::fit(QTableView& table, const RepeatListModel& model)
{
    const QHeaderView* header = table.horizontalHeader();
    const int switchWidth = std::max(48, header->sectionSizeHint(RepeatListModel::SwitchColumn));
    const int room = table.viewport()->width() - switchWidth;
    const int next = nextWidth(needs(table, model), room);
    table.setColumnWidth(RepeatListModel::SwitchColumn, switchWidth);
    table.setColumnWidth(RepeatListModel::NextColumn, next);
    table.setColumnWidth(RepeatListModel::LulletColumn, std::max(0, room - next));
    // Two lines a row at least, the lullet and its schedule, more where a text wraps, with a
    // little room between rows so that one row's schedule doesn't run into the next title.
    constexpr int spacing = 10;
    const int twoLines = 2 * table.fontMetrics().height() + spacing;
    table.resizeRowsToContents();
    for (int row = 0; row < model.rowCount(); ++row)
        table.setRowHeight(row, std::max(twoLines, table.rowHeight(row) + spacing));
}

} // namespace lullet
