#pragma once

#include "core/dates/Date.h"

#include <QString>
#include <QStringList>

namespace lullet {

class AppDelegate;

// What has the user been doing since `since` (or, in the automatic mode, what now)? The answer
// becomes an item that began when the gap began and is at once the running item, with the gap
// already counted as run; or, answered as already done, an item finished at once. A question
// that goes unanswered hands its start on to the next one, so that covers the whole gap.
class IdlePrompt {
public:
    IdlePrompt(AppDelegate& app, Date since, bool autoPromptMode);
    ~IdlePrompt();
    IdlePrompt(const IdlePrompt&) = delete;
    IdlePrompt& operator=(const IdlePrompt&) = delete;

    static QString blankMessage()
    {
        return QStringLiteral(" Task name is blank! Please enter task name. ");
    }

    // "Today" and then every project's name; the selection is the selected project, else 0.
    QStringList projectChoices() const;
    int selectedProjectIndex() const;
    // "(10:00 - 10:25)" and "What were you doing for last 25 minutes ?", or in the automatic
    // mode "(10:25)" and "What are you doing now ?".
    QString rangeText() const;
    QString questionText() const;

    // Another question came while this one is open: it keeps counting, in the mode given.
    void onIdleTimeExtended(bool autoPromptMode);

    enum class Result { Blank, Accepted };
    // The answer, with the chosen entry of the project choices. A blank answer changes nothing.
    Result onDone(const QString& text, const QString& projectChoice, bool alreadyDone);

    Date dtIdleTimeSince;
    bool bIsAutoPrompt = false;
    Date dtTimePromptedOn;
    int intExtraIdleTime = 0;
    bool bIsDone = false;

private:
    AppDelegate& m_app;
};

} // namespace lullet
