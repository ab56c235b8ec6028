#include "core/reports/Report.h"
#include "support/DesktopTest.h"
#include "ui/main/DashboardView.h"
#include "ui/reports/ReportCommands.h"

#include <QDesktopServices>
#include <QHeaderView>
#include <QMenu>
#include <QProcess>
#include <QStandardPaths>
#include <QTreeWidget>

using namespace lullet;
using namespace lullet::test;

// Stands in for the desktop's PDF viewer.
class OpenedFiles : public QObject {
    Q_OBJECT
public:
    QList<QUrl> urls;
public Q_SLOTS:
    void open(const QUrl& url) { urls.append(url); }
};

// Reports: what they hold, and the PDF read back as a reader would.
class TestReports : public DesktopTest {
    Q_OBJECT
    Date launchedAt() const override { return at(2026, 11, 23, 10, 0); }

    static QString pdfText(const QString& path)
    {
        QProcess reader;
        reader.start(QStringLiteral("pdftotext"),
                     {QStringLiteral("-layout"), path, QStringLiteral("-")});
        if (!reader.waitForFinished(20000) || reader.exitCode() != 0)
            return {};
        return QString::fromUtf8(reader.readAllStandardOutput());
    }

private Q_SLOTS:
    // A project's report: its items by day, the undated last, under totals; on paper, page
    // after page, every heading and row readable.
    void aProjectReportOnPaper()
    {
        QVERIFY2(!QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty(),
                 "pdftotext (poppler-utils) is needed");
        const Services& s = services();
        Project* garden =
            s.projectActions.addProject(QStringLiteral("Garden with a rather long name")).project;
        for (int i = 0; i < 60; ++i) {
            Item* item = app().addItem(QStringLiteral("Weed bed %1").arg(i),
                                       at(2026, 11, 24 + i / 20, 9, i % 20));
            item->setToProject(garden);
            item->setDurationMin(15);
            if (i < 6)
                item->setHasFinished(true);
        }
        app().addItem(QStringLiteral("Buy seeds"), std::nullopt)->setToProject(garden);

        Report report = Report::ofProject(s.library, s.history, garden, s.clock, s.running);
        // Upcoming and Completed print their chart under the head.
        report.hoursByDay = {{QStringLiteral("24 Nov"), 1.5}, {QStringLiteral("25 Nov"), 0.25}};
        QCOMPARE(report.stats.totalCount, 61);
        QCOMPARE(report.headCounts(),
                 QStringList({QStringLiteral("Tasks: 61"), QStringLiteral("Complete: 6"),
                              QStringLiteral("Due: 55"), QStringLiteral("Today: 0")}));
        QCOMPARE(report.rows.back().title, QStringLiteral("Buy seeds"));

        const QString pdf = path(QStringLiteral("garden.pdf"));
        QVERIFY(ReportCommands::writePdf(report, pdf));
        // For review, beside the pictures of the windows.
        if (const QString shots = qEnvironmentVariable("LULLET_SHOTS"); !shots.isEmpty())
            QFile::copy(pdf, shots + QStringLiteral("/report.pdf"));
        const QString text = pdfText(pdf);
        for (const char* read : {"Garden with a rather long name", "Tasks: 61", "Due: 55",
                                 "Weed bed 59", "Anytime", "Page 3", "25 Nov", "1.5 h"})
            QVERIFY2(text.contains(QLatin1String(read)), read);
        // Every day's heading, in order.
        const qsizetype first = text.indexOf(QStringLiteral("Tue 24, Nov 2026"));
        const qsizetype second = text.indexOf(QStringLiteral("Wed 25, Nov 2026"));
        QVERIFY(first >= 0 && second > first);
    }

    // Every dashboard row exports, by its button or from the keyboard: "Not in Project" reports
    // the items in no project, and only those.
    void theDashboardExportsEachRow()
    {
        const Services& s = services();
        Project* errands = s.projectActions.addProject(QStringLiteral("Errands")).project;
        app()
            .addItem(QStringLiteral("Post a letter"), at(2026, 11, 23, 15, 0))
            ->setToProject(errands);
        app().addItem(QStringLiteral("Water the plants"), at(2026, 11, 23, 17, 0));
        DashboardView dashboard(s);
        dashboard.show();
        QTreeWidget* table = dashboard.projects();
        QCOMPARE(table->topLevelItemCount(), 2);
        // A click on a row's "Export…" opens its menu.
        QTreeWidgetItem* errandsRow = table->topLevelItem(1);
        QCOMPARE(errandsRow->text(3), QStringLiteral("Export…"));
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                          table->visualItemRect(errandsRow).topLeft() +
                              QPoint(table->header()->sectionViewportPosition(3) + 4, 4));
        QMenu* clicked = nullptr;
        QTRY_VERIFY((clicked = dashboard.findChild<QMenu*>(QStringLiteral("exportMenu"))));
        QCOMPARE(clicked->actions().size(), 3);
        clicked->close();
        QTRY_VERIFY(!dashboard.findChild<QMenu*>(QStringLiteral("exportMenu")));

        OpenedFiles viewer;
        QDesktopServices::setUrlHandler(QStringLiteral("file"), &viewer, "open");
        const QString pdf = path(QStringLiteral("loose.pdf"));
        Dialogs::chooseFileNext(pdf);
        table->setFocus();
        table->setCurrentItem(table->topLevelItem(0));
        QTest::keyClick(table, Qt::Key_F10, Qt::ShiftModifier);
        auto* menu = dashboard.findChild<QMenu*>(QStringLiteral("exportMenu"));
        QVERIFY(menu);
        QCOMPARE(menu->actions().size(), 3);
        menu->actions().at(1)->trigger();
        menu->close();
        QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
        QCOMPARE(viewer.urls, QList<QUrl>{QUrl::fromLocalFile(pdf)});
        const QString text = pdfText(pdf);
        QVERIFY(text.contains(QStringLiteral("Not in Project")));
        QVERIFY(text.contains(QStringLiteral("Water the plants")));
        QVERIFY(!text.contains(QStringLiteral("Post a letter")));
    }

    // Nothing to report is said rather than written; the proposed name suits any file system.
    void emptyReportsAndFileNames()
    {
        ReportCommands commands(services().clock, path(QStringLiteral("temp")));
        Report empty;
        empty.title = QStringLiteral("Today");
        Dialogs::answerNext(QStringLiteral("Ok"));
        Dialogs::answerNext(QStringLiteral("Ok"));
        commands.savePdf(empty, nullptr, ReportCommands::emptyListText());
        QCOMPARE(Dialogs::asked().size(), 1);
        QCOMPARE(Dialogs::asked().front().text, QStringLiteral("Oops!"));
        QCOMPARE(Dialogs::asked().front().information,
                 QStringLiteral("There is no task data to export."));
        commands.mail(empty, nullptr, ReportCommands::emptyProjectText());
        QVERIFY(!QFile::exists(path(QStringLiteral("temp/LulletReport.pdf"))));

        const QString name = Report::proposedFileName(at(2026, 11, 23, 14, 5, 9));
        QVERIFY(name.startsWith(QStringLiteral("Lullet -")));
        QVERIFY(name.endsWith(QStringLiteral(".pdf")));
        for (const QChar bad : {QChar(u':'), QChar(u'/'), QChar(0x202F), QChar(0x00A0)})
            QVERIFY2(!name.contains(bad), qPrintable(name));
    }
};

LULLET_TEST_MAIN_WITH(QApplication, TestReports)
#include "tst_reports.moc"
