#include "ui/widgets/Dialogs.h"

#include <QAbstractButton>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QQueue>
#include <QStandardPaths>

namespace lullet {

namespace {

QQueue<QString>& answers()
{
    static QQueue<QString> queue;
    return queue;
}

// The index of the button a test answers with.
int answeredButton(const Dialogs::Question& question, const QString& label)
{
    const qsizetype index = question.buttons.indexOf(label);
    if (index < 0)
        qFatal("The question \"%s\" has no button \"%s\", only \"%s\".",
               qUtf8Printable(question.text), qUtf8Printable(label),
               qUtf8Printable(question.buttons.join(QStringLiteral("\", \""))));
    return int(index);
}

QQueue<QString>& chosenFiles()
{
    static QQueue<QString> queue;
    return queue;
}

QList<Dialogs::Question>& history()
{
    static QList<Dialogs::Question> list;
    return list;
}

// Where a file panel starts when no folder of its own is there: the user's documents, or home.
QString usersFolder()
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return !documents.isEmpty() && QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

} // namespace

int Dialogs::ask(QWidget* parent, const Question& question)
{
    history().append(question);
    if (!answers().isEmpty())
        return answeredButton(question, answers().dequeue());
    QMessageBox box(QMessageBox::NoIcon, QStringLiteral("Lullet"), question.text,
                    QMessageBox::NoButton, parent);
    box.setInformativeText(question.information);
    QList<QAbstractButton*> buttons;
    for (int i = 0; i < question.buttons.size(); ++i) {
        const bool last = i == question.buttons.size() - 1;
        buttons << box.addButton(question.buttons[i],
                                 last && i > 0 ? QMessageBox::RejectRole : QMessageBox::AcceptRole);
    }
    if (!buttons.isEmpty())
        box.setEscapeButton(buttons.last());
    box.exec();
    const qsizetype chosen = buttons.indexOf(box.clickedButton());
    return chosen >= 0 ? int(chosen) : int(buttons.size()) - 1;
}

bool Dialogs::confirm(QWidget* parent, const QString& text, const QString& information,
                      const QString& yes, const QString& no)
{
    return ask(parent, {text,
                        information,
                        {yes.isEmpty() ? tr("Yes") : yes, no.isEmpty() ? tr("No") : no}}) == 0;
}

void Dialogs::inform(QWidget* parent, const QString& text, const QString& information)
{
    ask(parent, {text, information, {tr("Ok")}});
}

QString Dialogs::chooseFileToSave(QWidget* parent, const QString& caption, const QString& name)
{
    const QString proposed = QDir(usersFolder()).filePath(name);
    history().append({caption, proposed, {}});
    if (!chosenFiles().isEmpty())
        return chosenFiles().dequeue();
    return QFileDialog::getSaveFileName(parent, caption, proposed);
}

QString Dialogs::chooseFileToOpen(QWidget* parent, const QString& caption, const QString& folder)
{
    const QString start = QFileInfo(folder).isDir() ? folder : usersFolder();
    history().append({caption, start, {}});
    if (!chosenFiles().isEmpty())
        return chosenFiles().dequeue();
    return QFileDialog::getOpenFileName(parent, caption, start);
}

void Dialogs::chooseFileNext(const QString& path)
{
    chosenFiles().enqueue(path);
}

void Dialogs::answerNext(const QString& buttonLabel)
{
    answers().enqueue(buttonLabel);
}

const QList<Dialogs::Question>& Dialogs::asked()
{
    return history();
}

void Dialogs::forgetAsked()
{
    history().clear();
    answers().clear();
    chosenFiles().clear();
}

} // namespace lullet
