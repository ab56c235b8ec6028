#include "support/DesktopTest.h"
#include "support/Shots.h"
#include "ui/authoring/RuleFormView.h"
#include "ui/main/RepeatListModel.h"
#include "ui/main/RepeatListView.h"
#include "ui/widgets/Balloon.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QStyle>
#include <QTableView>

using namespace lullet;
using namespace lullet::test;

// The "Lullets" segment on screen: switching suggestions on, the form, deleting.
class TestRepeatList : public DesktopTest {
    Q_OBJECT
    Date launchedAt() const override { return at(2026, 11, 23, 8, 0); }

    static int rowTitled(RepeatListModel& model, const QString& title)
    {
        for (int row = 0; row < model.rowCount(); ++row) {
            if (model.rowAt(row)->title == title && model.rowAt(row)->type == CatalogueRow::ItemRow)
                return row;
        }
        return -1;
    }

private Q_SLOTS:
    void aSuggestionIsSwitchedOnFromItsRow()
    {
        RepeatListView view(services());
        view.resize(760, 600);
        view.show();
        RepeatListModel& model = view.model();
        const int water = rowTitled(model, QStringLiteral("Water time"));
        QVERIFY(water > 0);
        // Headings are read, not chosen or switched.
        QCOMPARE(model.flags(model.index(0, 0)), Qt::ItemIsEnabled);

        const QModelIndex on = model.index(water, RepeatListModel::SwitchColumn);
        QVERIFY(model.setData(on, Qt::Checked, Qt::CheckStateRole));
        QCoreApplication::processEvents();
        const int row = rowTitled(model, QStringLiteral("Water time"));
        QCOMPARE(model.index(row, 0).data(Qt::CheckStateRole).value<Qt::CheckState>(), Qt::Checked);
        Rule* rule = model.rowAt(row)->representedObject;
        QVERIFY(rule && *rule->isActive());
        QCOMPARE(library().items().size(), std::size_t(1));
        QVERIFY(!model.index(row, RepeatListModel::NextColumn).data().toString().isEmpty());
        saveShot(&view, QStringLiteral("repeat-list"));

        QVERIFY(model.setData(model.index(row, 0), Qt::Unchecked, Qt::CheckStateRole));
        QVERIFY(!*rule->isActive());
        QVERIFY(library().items().empty());
    }

    // The form makes and edits a rule; only a custom rule can be deleted, from its menu.
    void theFormMakesEditsAndDeletesARule()
    {
        RepeatListView view(services());
        view.show();
        RuleFormView* form = view.openForm(nullptr);
        saveShot(form, QStringLiteral("rule-form"));
        QCOMPARE(form->submit(), RuleForm::Outcome::BlankName);
        auto* name = child<QComboBox>(form, "name");
        QVERIFY(Balloon::of(name));
        name->setCurrentText(QStringLiteral("Knee bends"));
        child<QLineEdit>(form, "repeatCount")->setText(QStringLiteral("0"));
        QCOMPARE(form->submit(), RuleForm::Outcome::NoRepeatCount);
        child<QLineEdit>(form, "repeatCount")->setText(QStringLiteral("45"));
        QCOMPARE(form->submit(), RuleForm::Outcome::Saved);
        QCoreApplication::processEvents();

        // The new rule is listed under "Custom breaks", switched on.
        RepeatListModel& model = view.model();
        const int row = rowTitled(model, QStringLiteral("Knee bends"));
        QVERIFY(row > 0);
        QCOMPARE(model.rowAt(row - 1)->title, Catalogue::customHeaderTitle());
        Rule* rule = model.rowAt(row)->representedObject;
        QCOMPARE(*rule->repeatInterval(), 45);

        // Opened on the rule, the form shows it; Done stores the edit on the same rule.
        RuleFormView* edit = view.openForm(model.rowAt(row));
        QCOMPARE(edit->fields().repeatCount, QStringLiteral("45"));
        RuleForm::Fields fields = edit->fields();
        fields.notes = QStringLiteral("stretch the legs");
        edit->setFields(fields);
        QCOMPARE(edit->submit(), RuleForm::Outcome::Saved);
        QCOMPARE(*rule->notes(), QStringLiteral("stretch the legs"));
        QCOMPARE(library().rules().size(), std::size_t(1));

        std::unique_ptr<QMenu> suggestion(
            view.buildMenu(model.rowAt(rowTitled(model, QStringLiteral("Water time")))));
        QCOMPARE(suggestion->actions().size(), 1);
        std::unique_ptr<QMenu> custom(
            view.buildMenu(model.rowAt(rowTitled(model, QStringLiteral("Knee bends")))));
        QCOMPARE(custom->actions().size(), 2);

        // "No" keeps it; "Yes" deletes it, and the "Custom breaks" heading goes with it.
        Dialogs::answerNext(QStringLiteral("No"));
        custom->actions().at(1)->trigger();
        QCOMPARE(library().rules().size(), std::size_t(1));
        QCOMPARE(Dialogs::asked().back().text, QStringLiteral("Are you sure to delete ?"));
        Dialogs::answerNext(QStringLiteral("Yes"));
        custom->actions().at(1)->trigger();
        QCoreApplication::processEvents();
        QVERIFY(library().rules().empty());
        QCOMPARE(rowTitled(model, QStringLiteral("Knee bends")), -1);
        QVERIFY(model.rowAt(model.rowCount() - 1)->title != Catalogue::customHeaderTitle());
    }

    // As wide as in a window at its 600-pixel minimum, in the usual font and at 12 points, the
    // columns share the width: every row shows its whole schedule and its whole next time, the
    // texts wrapping where they must and the rows growing to hold them, and the lullets keep the
    // wider column, where a long title ends in "…".
    void everyRuleShowsItsScheduleInANarrowWindow()
    {
        RepeatListView view(app().services());
        RepeatListModel& model = view.model();
        for (int row = 0; row < model.rowCount(); ++row)
            model.setData(model.index(row, 0), Qt::Checked, Qt::CheckStateRole);
        QCoreApplication::processEvents();
        view.resize(400, 560);
        view.show();
        QTableView* table = view.table();
        for (const qreal points : {view.font().pointSizeF(), 12.0}) {
            QFont font = view.font();
            font.setPointSizeF(points);
            view.setFont(font);
            QCoreApplication::processEvents();
            saveShot(&view, QStringLiteral("repeat-list-narrow-%1pt").arg(points));
            QVERIFY(table->columnWidth(RepeatListModel::LulletColumn) >=
                    table->columnWidth(RepeatListModel::NextColumn));
            const QFontMetrics metrics(font);
            // Whether a text, wrapped to the column within the style's margins, stands whole in
            // the height.
            const int margins =
                2 * (table->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, table) + 1);
            auto fits = [&](const QString& text, int column, int height) {
                const int width = table->columnWidth(column) - margins;
                const QRect needed =
                    metrics.boundingRect(QRect(0, 0, width, 1000), Qt::TextWordWrap, text);
                return needed.width() <= width && needed.height() <= height;
            };
            for (int row = 0; row < model.rowCount(); ++row) {
                const CatalogueRow* shown = model.rowAt(row);
                if (shown->type != CatalogueRow::ItemRow)
                    continue;
                const int height = table->rowHeight(row);
                const QString next =
                    model.index(row, RepeatListModel::NextColumn).data().toString();
                QVERIFY2(!next.isEmpty(), qPrintable(shown->title));
                QVERIFY2(fits(next, RepeatListModel::NextColumn, height), qPrintable(next));
                QVERIFY2(fits(shown->notes2, RepeatListModel::LulletColumn,
                              height - metrics.lineSpacing()),
                         qPrintable(shown->notes2));
            }
        }
    }
};

LULLET_TEST_MAIN_WITH(QApplication, TestRepeatList)
#include "tst_repeatlist.moc"
