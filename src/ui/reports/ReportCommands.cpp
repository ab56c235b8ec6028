#include "ui/reports/ReportCommands.h"

#include "core/dates/Clock.h"
#include "core/library/Library.h"
#include "core/reports/Report.h"
#include "ui/desktop/FileManager.h"
#include "ui/reports/ReportPainter.h"
#include "ui/widgets/Dialogs.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QMenu>
#include <QPageSize>
#include <QPdfWriter>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QUrl>

namespace lullet {

namespace {

QPageSize localPaper()
{
    return QPageSize(QLocale().measurementSystem() == QLocale::ImperialUSSystem ? QPageSize::Letter
                                                                                : QPageSize::A4);
}

void cannotWrite(QWidget* from, const QString& path)
{
    Dialogs::inform(from, QObject::tr("The report could not be saved."),
                    QObject::tr("Lullet could not write %1.").arg(path));
}

} // namespace

ReportCommands::ReportCommands(const Clock& clock, QString mailFolder)
    : m_clock(clock)
    , m_mailFolder(std::move(mailFolder))
{
}

ReportCommands::ReportCommands(const Clock& clock, const Library& library)
    : ReportCommands(clock, QDir(library.dataFolder()).filePath(QStringLiteral("temp")))
{
}

void ReportCommands::addActions(QMenu* menu, QWidget* from, const std::function<Report()>& make,
                                const QString& emptyText) const
{
    using Command = void (ReportCommands::*)(const Report&, QWidget*, const QString&) const;
    const std::pair<QString, Command> actions[] = {
        {QObject::tr("Print…"), &ReportCommands::print},
        {QObject::tr("Save as PDF…"), &ReportCommands::savePdf},
        {QObject::tr("Mail…"), &ReportCommands::mail},
    };
    for (const auto& [title, command] : actions) {
        QObject::connect(menu->addAction(title), &QAction::triggered, from,
                         [commands = *this, command = command, from, make, emptyText] {
                             (commands.*command)(make(), from, emptyText);
                         });
    }
}

bool ReportCommands::refuseEmpty(const Report& report, QWidget* from, const QString& emptyText)
{
    if (report.hasItems())
        return false;
    Dialogs::inform(from, tr("Oops!"), emptyText);
    return true;
}

bool ReportCommands::writePdf(const Report& report, const QString& path)
{
    QPdfWriter pdf(path);
    pdf.setTitle(report.title);
    pdf.setCreator(QStringLiteral("Lullet"));
    pdf.setPageSize(localPaper());
    pdf.setPageMargins(QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter);
    return ReportPainter::paint(report, pdf) && QFile(path).size() > 0;
}

void ReportCommands::savePdf(const Report& report, QWidget* from, const QString& emptyText) const
{
    if (refuseEmpty(report, from, emptyText))
        return;
    const QString path = Dialogs::chooseFileToSave(from, QObject::tr("Save the Report as PDF"),
                                                   Report::proposedFileName(m_clock.now()));
    if (path.isEmpty())
        return;
    if (!writePdf(report, path)) {
        cannotWrite(from, path);
        return;
    }
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        FileManager::showFile(path);
}

void ReportCommands::print(const Report& report, QWidget* from, const QString& emptyText) const
{
    if (refuseEmpty(report, from, emptyText))
        return;
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(localPaper());
    printer.setDocName(report.title);
    QPrintDialog dialog(&printer, from);
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (!ReportPainter::paint(report, printer))
        Dialogs::inform(from, QObject::tr("The report could not be printed."),
                        QObject::tr("The printer did not accept it."));
}

void ReportCommands::mail(const Report& report, QWidget* from, const QString& emptyText) const
{
    if (refuseEmpty(report, from, emptyText))
        return;
    if (!QDir().mkpath(m_mailFolder)) {
        cannotWrite(from, m_mailFolder);
        return;
    }
    const QString path = QDir(m_mailFolder).filePath(Report::mailFileName());
    QFile::remove(path);
    if (!writePdf(report, path)) {
        cannotWrite(from, path);
        return;
    }
    // The desktop's mail program, through xdg-email; without one the file is shown instead.
    auto* composer = new QProcess;
    const auto fallBack = [from = QPointer<QWidget>(from), path] {
        FileManager::showFile(path);
        Dialogs::inform(
            from, QObject::tr("Lullet could not open your mail program."),
            QObject::tr("The report is saved as %1: attach it to a message yourself.").arg(path));
    };
    QObject::connect(composer, &QProcess::finished, composer,
                     [composer, fallBack](int exitCode, QProcess::ExitStatus status) {
                         composer->deleteLater();
                         if (status != QProcess::NormalExit || exitCode != 0)
                             fallBack();
                     });
    QObject::connect(composer, &QProcess::errorOccurred, composer,
                     [composer, fallBack](QProcess::ProcessError error) {
                         if (error != QProcess::FailedToStart)
                             return;
                         composer->deleteLater();
                         fallBack();
                     });
    composer->start(QStringLiteral("xdg-email"),
                    {QStringLiteral("--subject"), tr("Lullet report"), QStringLiteral("--body"),
                     tr("Lullet list report"), QStringLiteral("--attach"), path});
}

} // namespace lullet
