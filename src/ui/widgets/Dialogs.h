#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

class QWidget;

namespace lullet {

// Every question and message the program puts to the user goes through here, as a small modal
// panel with the message in its body and buttons that read as given. Tests answer the next
// questions in advance, so no dialog needs a timer to press it.
class Dialogs {
    Q_DECLARE_TR_FUNCTIONS(Dialogs)

public:
    struct Question {
        QString text;
        QString information;
        // The buttons, left to right; the last one is the way out (Escape, closing the panel).
        QStringList buttons;
    };

    // The index of the button chosen.
    static int ask(QWidget* parent, const Question& question);
    // True for "Yes" (or the given first button), false for "No" (or the given second) and for
    // closing the panel.
    static bool confirm(QWidget* parent, const QString& text, const QString& information,
                        const QString& yes = {}, const QString& no = {});
    // A message with one button, "Ok".
    static void inform(QWidget* parent, const QString& text, const QString& information = {});
    // The desktop's file panels: a file to write, offered under `name` in the user's documents
    // folder (at home where there is none), or a file to read, starting in `folder` while it
    // exists. Never in the folder the program was started from. Empty when the user cancels.
    static QString chooseFileToSave(QWidget* parent, const QString& caption, const QString& name);
    static QString chooseFileToOpen(QWidget* parent, const QString& caption, const QString& folder);

    // Tests: the next question is answered with the button of this label, without a panel.
    // Answers queue up. A label the question has no button for ends the program, loudly.
    static void answerNext(const QString& buttonLabel);
    // Tests: the next file panel answers with this path (empty: cancelled), without a panel.
    static void chooseFileNext(const QString& path);
    // Tests: every question asked so far, the pre-answered ones included.
    static const QList<Question>& asked();
    static void forgetAsked();
};

} // namespace lullet
