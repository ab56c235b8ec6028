#pragma once

#include <QCoreApplication>
#include <QString>

#include <functional>

class QMenu;
class QWidget;

namespace lullet {

class Clock;
class Library;
struct Report;

// What the user can do with a report: save it as a PDF and open it, print it, or hand it to the
// mail program. Each failure is said; an empty report is refused with the reason.
class ReportCommands {
    Q_DECLARE_TR_FUNCTIONS(ReportCommands)

public:
    // `mailFolder` holds the one file that mail attaches, replaced each time.
    ReportCommands(const Clock& clock, QString mailFolder);
    // Mail's file in "temp" of the program's data folder.
    ReportCommands(const Clock& clock, const Library& library);

    // What a list says when it has nothing to report, and what a project says.
    static QString emptyListText() { return tr("There is no task data to export."); }
    static QString emptyProjectText()
    {
        return tr("There is no task data to export for this Project.");
    }

    void savePdf(const Report& report, QWidget* from, const QString& emptyText) const;
    void print(const Report& report, QWidget* from, const QString& emptyText) const;
    void mail(const Report& report, QWidget* from, const QString& emptyText) const;

    // Print…, Save as PDF… and Mail… in `menu`, each on the report `make` gives when chosen.
    void addActions(QMenu* menu, QWidget* from, const std::function<Report()>& make,
                    const QString& emptyText) const;

    // A4, or Letter where the locale measures in inches; false when the file can't be written.
    static bool writePdf(const Report& report, const QString& path);

private:
    static bool refuseEmpty(const Report& report, QWidget* from, const QString& emptyText);

    const Clock& m_clock;
    QString m_mailFolder;
};

} // namespace lullet
