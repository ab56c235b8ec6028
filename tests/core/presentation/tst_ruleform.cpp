#include "core/presentation/RuleForm.h"
#include "core/presentation/TaskForm.h"
#include "support/LaunchedTest.h"

using namespace lullet;
using namespace lullet::test;

// The rule form's Done: what it stores, and when the rule's open occurrence must go.
class TestRuleForm : public LaunchedTest {
    Q_OBJECT
    Date launchedAt() const override { return at(2026, 11, 23, 9, 0, 17); }

    RuleForm form()
    {
        const Services& s = services();
        return RuleForm({s.clock, s.library, s.generator, s.catalogue});
    }

    std::vector<Item*> openOf(const Rule* rule)
    {
        std::vector<Item*> found;
        for (Item* item : library().items()) {
            if (item->uniqueId() == rule->uniqueId() && !item->isFinished())
                found.push_back(item);
        }
        return found;
    }

    // A timed rule every two hours from 10:00 today, switched on, with its occurrence.
    Rule* timedRule()
    {
        RuleForm::Fields fields = form().blankFields();
        fields.title = QStringLiteral("Stretch");
        fields.toDo = false;
        fields.minutes = 10;
        fields.time = at(2026, 11, 23, 10, 0);
        fields.repeatCount = QStringLiteral("2");
        fields.unit = RepeatUnit::Hour;
        RuleForm f = form();
        if (f.done(fields, nullptr, false) != RuleForm::Outcome::Saved)
            return nullptr;
        return library().rules().back();
    }

private Q_SLOTS:
    // Refusals change nothing; a new rule is stored with its id and its occurrence, and the
    // notice's menu row as that row.
    void aNewRuleIsStoredWithItsIdAndOccurrence()
    {
        RuleForm f = form();
        RuleForm::Fields fields = f.blankFields();
        fields.title = QStringLiteral("   ");
        QCOMPARE(f.done(fields, nullptr, false), RuleForm::Outcome::BlankName);
        fields.title = QStringLiteral("Review");
        for (const QString& count : {QString(), QStringLiteral("0")}) {
            fields.repeatCount = count;
            QCOMPARE(f.done(fields, nullptr, false), RuleForm::Outcome::NoRepeatCount);
        }
        QVERIFY(library().rules().empty());
        QVERIFY(library().items().empty());

        Rule* rule = timedRule();
        QVERIFY(rule);
        QCOMPARE(*rule->uniqueId(), QStringLiteral("Stretch_1795420817.0"));
        QCOMPARE(*rule->isCustom(), true);
        QCOMPARE(*rule->isToDoOrJob(), false);
        QCOMPARE(*rule->shouldRemind(), true);
        QCOMPARE(*rule->dtReminder(), at(2026, 11, 23, 10, 0));
        QCOMPARE(openOf(rule).size(), std::size_t(1));
        QCOMPARE(*openOf(rule).front()->dtReminder(), at(2026, 11, 23, 10, 0));

        fields = f.blankFields();
        fields.title = QStringLiteral("Review");
        fields.remindBeforeRow = 8; // "10 days"
        QCOMPARE(f.done(fields, nullptr, false), RuleForm::Outcome::Saved);
        rule = library().rules().back();
        QCOMPARE(*rule->remindBefore(), 8);
        QCOMPARE(RuleForm::fieldsOf(*rule).remindBeforeRow, 8);
        QCOMPARE(RemindBefore::labels().at(8), QStringLiteral("10 days"));
    }

    // Only a change of the schedule replaces the open occurrence; notes or a new time of day on
    // the same day leave it as it is.
    void aScheduleChangeReplacesTheOccurrence()
    {
        Rule* rule = timedRule();
        Item* first = openOf(rule).front();
        RuleForm f = form();

        RuleForm::Fields fields = RuleForm::fieldsOf(*rule);
        fields.notes = QStringLiteral("gently");
        QCOMPARE(f.done(fields, rule, false), RuleForm::Outcome::Saved);
        QCOMPARE(openOf(rule), std::vector<Item*>{first});
        QCOMPARE(*rule->notes(), QStringLiteral("gently"));

        fields.time = at(2026, 11, 23, 10, 30);
        QCOMPARE(f.done(fields, rule, false), RuleForm::Outcome::Saved);
        QCOMPARE(openOf(rule), std::vector<Item*>{first});
        QCOMPARE(*first->dtReminder(), at(2026, 11, 23, 10, 0));

        fields.unit = RepeatUnit::Day;
        fields.repeatCount = QStringLiteral("1");
        QCOMPARE(f.done(fields, rule, false), RuleForm::Outcome::Saved);
        QCOMPARE(openOf(rule).size(), std::size_t(1));
        QVERIFY(openOf(rule).front() != first);
        QVERIFY(!first->hasContext());
        QCOMPARE(*openOf(rule).front()->dtReminder(), at(2026, 11, 23, 10, 30));

        // A to-do rule starts afresh at every edit, notes included.
        fields.toDo = true;
        QCOMPARE(f.done(fields, rule, false), RuleForm::Outcome::Saved);
        Item* toDo = openOf(rule).front();
        fields.notes = QStringLiteral("again");
        QCOMPARE(f.done(fields, rule, false), RuleForm::Outcome::Saved);
        QCOMPARE(openOf(rule).size(), std::size_t(1));
        QVERIFY(openOf(rule).front() != toDo);
        QCOMPARE(*openOf(rule).front()->notes(), QStringLiteral("again"));

        // Switched off: no open occurrence is left.
        fields.active = false;
        QCOMPARE(f.done(fields, rule, false), RuleForm::Outcome::Saved);
        QVERIFY(openOf(rule).empty());
    }

    // A suggestion's defaults fill the form; stored from there it stays a suggestion's rule.
    void aSuggestionOpensWithItsDefaults()
    {
        const Catalogue& catalogue = services().catalogue;
        CatalogueRowPtr walk;
        for (const CatalogueRowPtr& row : catalogue.rows()) {
            if (row->title == QStringLiteral("Walk break"))
                walk = row;
        }
        QVERIFY(walk && walk->isDummy());
        RuleForm f = form();
        const RuleForm::Fields fields = f.fieldsFor(*walk);
        QCOMPARE(fields.title, walk->title);
        QCOMPARE(fields.toDo, walk->isToDoOrJob.value_or(true));
        QCOMPARE(fields.repeatCount, QString::number(walk->defaultRepeatValue.value_or(15)));
        QCOMPARE(f.done(fields, nullptr, true), RuleForm::Outcome::Saved);
        QCOMPARE(*library().rules().back()->isCustom(), false);
        QCOMPARE(walk->representedObject, library().rules().back());
    }

    // The task mode makes a plain task of the project, announced as added; an edit that leaves
    // the date as shown keeps a postponement, or the task's having no date; a new date replaces
    // both.
    void theTaskMode()
    {
        const Services& s = services();
        Project* home = s.projectActions.addProject(QStringLiteral("Home")).project;
        QVERIFY(home);
        TaskForm tasks(s.clock, s.library);
        RuleForm::Fields fields = tasks.blankFields();
        QCOMPARE(fields.time, at(2026, 11, 23, 9, 10));
        QVERIFY(!tasks.done(fields, nullptr, home));
        fields.title = QStringLiteral("  water the plants ");
        fields.minutes = 20;
        QSignalSpy added(&s.library, &Library::itemsChanged);
        Item* task = tasks.done(fields, nullptr, home);
        QVERIFY(task);
        QCOMPARE(added.count(), 1);
        QCOMPARE(added.at(0).at(0).value<Item*>(), task);
        QCOMPARE(task->title(), std::optional(QStringLiteral("Water the plants")));
        QCOMPARE(task->toProject(), home);
        QCOMPARE(task->uniqueId(), std::optional(placeholderId()));
        QCOMPARE(task->dtReminder(), std::optional(at(2026, 11, 23, 9, 10)));
        QCOMPARE(task->durationMin(), std::optional(20));

        task->setDtReminderPostponed(at(2026, 11, 23, 11, 0, 30));
        fields = tasks.fieldsOf(*task);
        QCOMPARE(fields.time, at(2026, 11, 23, 11, 0));
        fields.notes = QStringLiteral("The ones by the window");
        QCOMPARE(tasks.done(fields, task, nullptr), task);
        QCOMPARE(task->dtReminderPostponed(), std::optional(at(2026, 11, 23, 11, 0, 30)));
        QCOMPARE(task->toProject(), home);
        fields.time = at(2026, 11, 23, 14, 0);
        tasks.done(fields, task, nullptr);
        QCOMPARE(task->dtReminder(), std::optional(at(2026, 11, 23, 14, 0)));
        QVERIFY(!task->dtReminderPostponed());

        Item* anytime = app().addItem(QStringLiteral("Read"), std::nullopt);
        fields = tasks.fieldsOf(*anytime);
        fields.hours = 1;
        tasks.done(fields, anytime, nullptr);
        QVERIFY(!anytime->dtReminder());
        QCOMPARE(anytime->durationHr(), std::optional(1));
    }
};

LULLET_TEST_MAIN(TestRuleForm)
#include "tst_ruleform.moc"
