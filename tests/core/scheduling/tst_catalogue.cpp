#include "support/LaunchedTest.h"

using namespace lullet;
using namespace lullet::test;

// A monday at 08:00, before the working hours start.
class TestCatalogue : public LaunchedTest {
    Q_OBJECT
    Date launchedAt() const override { return at(2026, 11, 23, 8, 0); }

    Catalogue& catalogue() { return services().catalogue; }
    const std::vector<CatalogueRowPtr>& rows() { return catalogue().rows(); }

    CatalogueRowPtr row(const QString& title)
    {
        for (const CatalogueRowPtr& r : rows()) {
            if (r->title == title && r->type == CatalogueRow::ItemRow)
                return r;
        }
        return {};
    }

    // Launches again, after the seed is written into the store.
    void launch(const std::function<void(ObjectContext&)>& seed)
    {
        relaunch(launchedAt(), Open::No);
        Store store(path(QStringLiteral("data")), clock());
        QCOMPARE(store.open().outcome, Store::Outcome::Opened);
        seed(store.context());
        QVERIFY(store.context().save());
        QVERIFY(app().open());
    }

    static Rule* storedRule(ObjectContext& ctx, const QString& title, std::optional<bool> custom)
    {
        Rule* r = ctx.insertRule();
        r->setTitle(title);
        r->setUniqueId(title + QStringLiteral("_1795000000.0"));
        r->setNotes(QStringLiteral("mine"));
        r->setIsCustom(custom);
        r->setIsActive(true);
        r->setRepeatInterval(1);
        r->setRepeatIntervalType(RepeatUnit::Day);
        r->setRepeatOption(0);
        r->setDtReminder(at(2026, 11, 20, 12));
        return r;
    }

private Q_SLOTS:
    void anEmptyStoreListsTheSixteenSuggestions()
    {
        QCOMPARE(rows().size(), std::size_t(20));
        QStringList headers;
        int dummies = 0;
        for (const CatalogueRowPtr& r : rows()) {
            if (r->type == CatalogueRow::Header) {
                headers << r->title;
                QVERIFY(!r->isDummy() && !r->representedObject);
            } else if (r->isDummy()) {
                ++dummies;
                QVERIFY(!r->isActive);
                QVERIFY(!r->notes2.isEmpty());
            }
        }
        QCOMPARE(
            headers,
            (QStringList{QStringLiteral("Rest breaks"), QStringLiteral("Nutrition breaks"),
                         QStringLiteral("Fitness breaks"), QStringLiteral("Light Food breaks")}));
        QCOMPARE(dummies, 16);
        QCOMPARE(rows()[1]->title, QStringLiteral("Lunch break"));
        QCOMPARE(rows().back()->title, QStringLiteral("Coffee break"));
        QVERIFY(library().items().empty());

        // A suggestion's defaults reach its row each in its place.
        const CatalogueRowPtr tea = row(QStringLiteral("Tea break"));
        QCOMPARE(tea->defaultDurationHr, std::optional<int>(0));
        QCOMPARE(tea->defaultDurationMin, std::optional<int>(10));
        QCOMPARE(tea->defaultRepeatValue, std::optional<int>(3));
        QCOMPARE(tea->defaultRepeatType, std::optional<int>(RepeatUnit::Hour));
    }

    void storedRulesClaimTheirSuggestions()
    {
        launch([](ObjectContext& ctx) {
            storedRule(ctx, QStringLiteral("LUNCH BREAK"), std::nullopt);
            storedRule(ctx, QStringLiteral("Tea break"), true);
            storedRule(ctx, QStringLiteral("Walk break"), false);
            storedRule(ctx, QStringLiteral("walk BREAK"), false);
            storedRule(ctx, QStringLiteral("Ständ up"), false);
        });
        const CatalogueRowPtr lunch = row(QStringLiteral("LUNCH BREAK"));
        QVERIFY(lunch && lunch->representedObject && !lunch->isCustom);
        QVERIFY(lunch->isActive);
        QCOMPARE(lunch->notes, QStringLiteral("mine"));
        QVERIFY(lunch->nextRepeatOn);
        // A custom rule of the same name keeps to itself, and two claims cancel each other.
        QVERIFY(row(QStringLiteral("Tea break"))->isDummy());
        QVERIFY(row(QStringLiteral("Walk break"))->isDummy());
        QVERIFY(row(QStringLiteral("Ständ up"))->representedObject);

        const auto header =
            std::find_if(rows().begin(), rows().end(), [](const CatalogueRowPtr& r) {
                return r->title == QStringLiteral("Custom breaks");
            });
        QVERIFY(header != rows().end());
        QStringList custom;
        for (auto it = header + 1; it != rows().end(); ++it) {
            QVERIFY((*it)->isCustom);
            custom << (*it)->title;
        }
        QCOMPARE(custom, (QStringList{QStringLiteral("Tea break"), QStringLiteral("Walk break"),
                                      QStringLiteral("walk BREAK")}));
    }

    void aRuleAtItsEndShowsAsOff_data()
    {
        QTest::addColumn<Date>("upto");
        QTest::addColumn<bool>("active");
        QTest::newRow("ends at today 00:00:00") << at(2026, 11, 23, 0, 0, 0) << false;
        QTest::newRow("ends at today 00:00:01") << at(2026, 11, 23, 0, 0, 1) << true;
    }

    void aRuleAtItsEndShowsAsOff()
    {
        QFETCH(Date, upto);
        QFETCH(bool, active);
        launch([upto](ObjectContext& ctx) {
            Rule* r = storedRule(ctx, QStringLiteral("Mine"), true);
            r->setRepeatOption(1);
            r->setDtRepeatUpto(upto);
        });
        const CatalogueRowPtr mine = row(QStringLiteral("Mine"));
        QCOMPARE(mine->isActive, active);
        QCOMPARE(mine->nextRepeatOn.has_value(), active);
        // The rule itself stays switched on.
        QVERIFY(mine->representedObject->isActive().value_or(false));
    }

    void switchingASuggestionOnMakesItsRule()
    {
        const CatalogueRowPtr water = row(QStringLiteral("Water time"));
        clock().set(at(2026, 11, 23, 8, 0, 17));
        Rule* rule = catalogue().createRuleFor(*water);
        QCOMPARE(water->representedObject, rule);
        QCOMPARE(*rule->uniqueId(), QStringLiteral("Water time_1795417217.0"));
        // Anchored at the start of Monday's working hours, and off until switched on.
        QCOMPARE(*rule->dtReminder(), at(2026, 11, 23, 9, 0));
        QCOMPARE(*rule->dtRepeatUpto(), at(2026, 11, 23, 9, 0));
        QCOMPARE(*rule->isToDoOrJob(), true);
        QCOMPARE(*rule->isActive(), false);
        QCOMPARE(*rule->durationMin(), 0);
        QCOMPARE(*rule->repeatIntervalType(), int(RepeatUnit::Hour));
        QVERIFY(library().items().empty());

        rule->setIsActive(true);
        catalogue().refreshRow(*water);
        library().save();
        QVERIFY(water->isActive);
        QCOMPARE(library().items().size(), std::size_t(1));
        QCOMPARE(*library().items().front()->dtReminder(), at(2026, 11, 23, 9, 0));
    }

    // The row's switch: a suggestion becomes a rule with one occurrence; off keeps the rule and
    // what was done; a rule past its end stays off, without a word.
    void theSwitchOfARow()
    {
        launch([](ObjectContext& ctx) {
            Rule* ended = storedRule(ctx, QStringLiteral("Ended"), true);
            ended->setIsActive(false);
            ended->setRepeatOption(RepeatEnd::untilDate);
            ended->setDtRepeatUpto(at(2026, 11, 22));
        });
        const CatalogueRowPtr water = row(QStringLiteral("Water time"));
        QVERIFY(water->isDummy());
        QVERIFY(catalogue().switchRow(*water, true));
        Rule* rule = water->representedObject;
        QVERIFY(rule && *rule->isActive());
        const auto occurrencesOf = [this](const Rule* r) {
            std::vector<Item*> found;
            for (Item* item : library().items()) {
                if (item->uniqueId() == r->uniqueId())
                    found.push_back(item);
            }
            return found;
        };
        QCOMPARE(occurrencesOf(rule).size(), std::size_t(1));
        // Switching on again makes no second occurrence.
        QVERIFY(catalogue().switchRow(*water, true));
        QCOMPARE(occurrencesOf(rule).size(), std::size_t(1));

        Item* done = app().addItem(QStringLiteral("Water time"), at(2026, 11, 22, 10));
        done->setUniqueId(rule->uniqueId());
        done->setHasFinished(true);
        QVERIFY(!catalogue().switchRow(*water, false));
        QVERIFY(!*rule->isActive());
        QVERIFY(rule->hasContext());
        QCOMPARE(occurrencesOf(rule), std::vector<Item*>{done});
        QVERIFY(water->nextRepeatOn == std::nullopt);

        const CatalogueRowPtr ended = row(QStringLiteral("Ended"));
        QSignalSpy told(&library(), &Library::rulesChanged);
        QVERIFY(!catalogue().switchRow(*ended, true));
        QVERIFY(!*ended->representedObject->isActive());
        QCOMPARE(told.count(), 1);
        QCOMPARE(services().texts.nextTimeLabel(*ended), QStringLiteral("No further repeat"));

        // Deleting a custom rule takes its row, and the custom header with the last one.
        catalogue().deleteRule(ended->representedObject);
        QVERIFY(!row(QStringLiteral("Ended")));
        QVERIFY(rows().back()->title != Catalogue::customHeaderTitle());
    }

    void nextTimeLabels_data()
    {
        QTest::addColumn<Date>("next");
        QTest::addColumn<int>("remindBefore");
        QTest::addColumn<QString>("label");
        const Date now = at(2026, 11, 23, 8, 0);
        const auto time = [](Date d) { return d.toString(DateStyle::None, DateStyle::Short); };
        QTest::newRow("in an hour and five")
            << now.dateByAddingMinutes(65) << 0 << QStringLiteral("In next 1 hr 5 min");
        QTest::newRow("in two hours")
            << now.dateByAddingHours(2) << 0 << QStringLiteral("In next 2 hr ");
        QTest::newRow("now") << now.dateByAddingSeconds(30) << 0 << QStringLiteral("Now");
        QTest::newRow("gone by") << now.dateBySubtractingMinutes(1) << 0 << QString();
        const Date tomorrow = at(2026, 11, 24, 9, 30);
        QTest::newRow("tomorrow, within notice")
            << tomorrow << 1 << QStringLiteral("Tomorrow at ") + time(tomorrow);
        const Date thursday = at(2026, 11, 26, 9, 30);
        QTest::newRow("three days, within notice")
            << thursday << 3 << QStringLiteral("In next 3 days at ") + time(thursday);
        QTest::newRow("beyond notice")
            << thursday << 0 << QStringLiteral("On 26 Nov 2026 at ") + time(thursday);
    }

    void nextTimeLabels()
    {
        QFETCH(Date, next);
        QFETCH(int, remindBefore);
        QFETCH(QString, label);
        CatalogueRow row;
        row.nextRepeatOn = next;
        row.remindBefore = remindBefore;
        QCOMPARE(services().texts.nextTimeLabel(row), label);
        row.nextRepeatOn.reset();
        QVERIFY(services().texts.nextTimeLabel(row).isEmpty());
    }

    void onlySuggestionsWithoutARuleAreRefreshed()
    {
        QSignalSpy posted(&catalogue(), &Catalogue::suggestionsChanged);
        catalogue().refreshSuggestionTexts();
        QCoreApplication::processEvents();
        QCOMPARE(posted.count(), 1);

        for (const CatalogueRowPtr& r : rows()) {
            if (r->type == CatalogueRow::ItemRow)
                catalogue().createRuleFor(*r);
        }
        catalogue().refreshSuggestionTexts();
        QCoreApplication::processEvents();
        QCOMPARE(posted.count(), 1);
    }

    void scheduleTexts()
    {
        const ScheduleTexts& notes = services().texts;
        const Date three = at(2026, 11, 23, 15, 0);
        const QString threePm = three.toString(DateStyle::None, DateStyle::Short);
        QVERIFY(notes.ruleText(nullptr).isEmpty());

        Rule toDo;
        toDo.setDtReminder(three);
        toDo.setRepeatIntervalType(RepeatUnit::Hour);
        toDo.setRepeatInterval(2);
        QCOMPARE(notes.ruleText(&toDo), QStringLiteral("Lullet : Today at ") + threePm +
                                            QStringLiteral(", repeats every 2 hours"));

        // Not today: one step from the anchor.
        Rule monthly;
        monthly.setIsToDoOrJob(false);
        monthly.setDtReminder(at(2026, 12, 5, 15, 0));
        monthly.setRepeatIntervalType(RepeatUnit::Month);
        monthly.setRepeatInterval(1);
        QCOMPARE(notes.ruleText(&monthly), QStringLiteral("Task : On Tue 5, Jan 2027 at ") +
                                               threePm + QStringLiteral(", repeats every month"));

        const QString water = notes.suggestionText(*row(QStringLiteral("Water time")));
        QCOMPARE(water, QStringLiteral("Lullet : Today at ") +
                            at(2026, 11, 23, 10, 0).toString(DateStyle::None, DateStyle::Short) +
                            QStringLiteral(", repeats every hour"));
        QCOMPARE(ScheduleTexts::intervalText(RepeatUnit::Minute, 20), QStringLiteral("20 mins"));
        QCOMPARE(ScheduleTexts::intervalText(RepeatUnit::Year, 1), QStringLiteral("year"));
        QCOMPARE(ScheduleTexts::intervalText(7, 2), QString());

        Item item;
        item.setShouldRemind(true);
        item.setRepeatInterval(2);
        item.setRepeatIntervalType(RepeatUnit::Day);
        item.setDtReminder(three);
        item.setDurationHr(1);
        item.setDurationMin(30);
        QCOMPARE(notes.itemText(item), QStringLiteral("Repeat every 2 days, Today, at ") + threePm +
                                           QStringLiteral(", For : 1hr:30min"));
        item.setRepeatIntervalType(9);
        item.setRepeatInterval(1);
        item.setDtReminder(at(2026, 12, 5, 15, 0));
        item.setDurationHr(0);
        item.setDurationMin(0);
        QCOMPARE(notes.itemText(item),
                 QStringLiteral("Repeat every 1 year, , On 05 Dec 2026, at ") + threePm);
    }
};

LULLET_TEST_MAIN(TestCatalogue)
#include "tst_catalogue.moc"
