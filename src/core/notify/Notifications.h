#pragma once

#include <QLatin1String>

// The names under which the parts of the program tell each other what changed. Each carries at
// most one object.
namespace lullet::notification {

// Item life
inline constexpr QLatin1String onItemAddedOrEdited{"onItemAddedOrEdited"};
inline constexpr QLatin1String onItemDeleted{"onItemDeleted"};
inline constexpr QLatin1String preRemoveInOther{"preRemoveInOther"};
inline constexpr QLatin1String onReminderStarted{"onReminderStarted"};
inline constexpr QLatin1String onReminderFinished{"onReminderFinished"};
inline constexpr QLatin1String onReminderPostponed{"onReminderPostponed"};
inline constexpr QLatin1String onReminderExtended{"onReminderExtended"};
inline constexpr QLatin1String onRepeatItemAddedOrEdited{"onRepeatItemAddedOrEdited"};
inline constexpr QLatin1String onChangeInDefaultRepeats{"onChangeInDefaultRepeats"};
inline constexpr QLatin1String onQuickAddFromPrompt{"onQuickAddFromPrompt"};
inline constexpr QLatin1String onChangeInData{"onChangeInData"};

// Projects
inline constexpr QLatin1String onProjectContentChanged{"onProjectContentChanged"};
inline constexpr QLatin1String onProjectAddedOrRemoved{"onProjectAddedOrRemoved"};
inline constexpr QLatin1String onChangeInProjectList{"onChangeInProjectList"};
inline constexpr QLatin1String onDeleteRequested{"onDeleteRequested"};
inline constexpr QLatin1String onDuplicationRequested{"onDuplicationRequested"};

// Monitor and prompts
inline constexpr QLatin1String onMonitoringDone{"onMonitoringDone"};
inline constexpr QLatin1String updateNextReminderDisplay{"updateNextReminderDisplay"};
inline constexpr QLatin1String updateDueStatusDisplay{"updateDueStatusDisplay"};
inline constexpr QLatin1String onIdleTimeExtended{"onIdleTimeExtended"};

// Navigation and layout
inline constexpr QLatin1String onChangeView{"onChangeView"};
inline constexpr QLatin1String onChangeView2{"onChangeView2"};
inline constexpr QLatin1String onExternallyShiftSegment{"onExternallyShiftSegment"};
inline constexpr QLatin1String onToggleSegment{"onToggleSegment"};
inline constexpr QLatin1String onSegmentVisible{"onSegmentVisible"};
inline constexpr QLatin1String onWindowResize{"onWindowResize"};
inline constexpr QLatin1String onViewDidResize{"onViewDidResize"};
inline constexpr QLatin1String onCallQuickAdd{"onCallQuickAdd"};
inline constexpr QLatin1String doAskQuickAdd{"doAskQuickAdd"};
inline constexpr QLatin1String AddLullet{"AddLullet"};
inline constexpr QLatin1String doSelectDate{"doSelectDate"};
inline constexpr QLatin1String doUnsetDate{"doUnsetDate"};

// Application and store
inline constexpr QLatin1String onApplicationBecomeActive{"onApplicationBecomeActive"};
inline constexpr QLatin1String onApplicationResignActive{"onApplicationResignActive"};
inline constexpr QLatin1String onSynciCloud{"onSynciCloud"};
inline constexpr QLatin1String onBackupCreated{"onBackupCreated"};
inline constexpr QLatin1String onRestoreDatabaseDone{"onRestoreDatabaseDone"};
inline constexpr QLatin1String onIndividualRestoreDone{"onIndividualRestoreDone"};
inline constexpr QLatin1String showHideChart{"showHideChart"};

// Welcome, login, preferences
inline constexpr QLatin1String onProceedFromWelcome{"onProceedFromWelcome"};
inline constexpr QLatin1String onAppearedFromWelcome{"onAppearedFromWelcome"};
inline constexpr QLatin1String onViewBecameReady{"onViewBecameReady"};
inline constexpr QLatin1String onSecurityLogin{"onSecurityLogin"};
inline constexpr QLatin1String onPressedIcon{"onPressedIcon"};
inline constexpr QLatin1String onWindowSizeChange{"onWindowSizeChange"};
inline constexpr QLatin1String unPrepareTransitionTimer{"_unPrepareTransitionTimer"};

} // namespace lullet::notification
