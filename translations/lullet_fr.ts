<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Autostart</name>
    <message>
        <source>Cannot make the folder %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot remove %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Backups</name>
    <message>
        <source>Backup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restored Backup</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CalDavClient</name>
    <message>
        <source>HTTP status %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no WebDAV answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no sync token</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CatalogueEntries</name>
    <message>
        <source>Rest breaks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nutrition breaks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fitness breaks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light Food breaks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lunch break</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its time for lunch. Make sure you are having it on time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tea break</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Small tea breaks improve concentration and garner energy.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Washroom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove any dirts and always keep yourself clean and fresh.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Breakfast time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Never skip your breakfast and do it on time, every day!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fruits time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eat plenty of fruits and make your diet healthier.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Water time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drink lots of water to hydrate your body through out the day.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Body stretching</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stretching exercises can improve your posture as well as relief stress.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Walk break</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A 20 minutes walk can increase blood flow to the brain and boost creativity.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stand up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stand up and take some steps around the room.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>power nap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A 10 minutes has been shown to improve cognitive function and decrease sleepiness and fatigue.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exercise break</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick a decent workout in under 10 minutes to give your mind the needed rest.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meditation break</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Relax your brain in a short amount of time by meditating.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eye exercise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In every 20 minutes, take a break for at least 20 seconds and look at objects that are 20 feet away.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go out side and see some nature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spending time in nature is good for your immune system and has been shown to improve focus and relieve stress.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snack break</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take healthy snack breaks and store enough energy to run through out the day.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Coffee break</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Coffee breaks can stimulate your focus and make you stay awake if you are feeling drowsy.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Usage: lullet %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
Schedules short health pauses and your tasks, from the tray.

  --quick-add  open the quick-add window of the running Lullet
  --in-tray    start in the tray without opening the window
  --pause [MINUTES]
               pause the reminders of the running Lullet for MINUTES, or until
               resumed
  --resume     resume the reminders
  --help       show this help and exit
  --version    show the version and exit

A second launch brings the running Lullet forward.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lullet: unknown option &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DashboardSummary</name>
    <message>
        <source>JAN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FEB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MAR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>APR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MAY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JUN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JUL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AUG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SEP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OCT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NOV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DEC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not in Project</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DashboardView</name>
    <message>
        <source>Overdue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upcoming</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Db</name>
    <message>
        <source>the disk is full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the store cannot be written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another program is using the store</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the store is damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the disk could not be read or written</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ok</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GeneralTab</name>
    <message numerus="yes">
        <source>%n mins</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>IdlePrompt</name>
    <message>
        <source>(%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(%1 - %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What are you doing now ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>What were you doing for last %n minutes ?</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source> Task name is blank! Please enter task name. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Today</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>A task is already running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another Task is already running. 
Do you want to complete that, and start this?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot postpone now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot postpone now as this Lullet is running</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeyringSecretStore</name>
    <message>
        <source>The keyring did not say why.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your keyring is locked and could not be unlocked.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ListBuilder</name>
    <message>
        <source>%1 %2, %3 %4</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PasswordRules</name>
    <message>
        <source>Please insert values in text fields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password should be minimum 4 character</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Passwords does not match</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wrong Password</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Postponing</name>
    <message>
        <source>Tomorrow eve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next evening</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This evening</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This weekend</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next weekend</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PreferencesWindow</name>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Security</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sync</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More Info</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProjectActions</name>
    <message>
        <source>Name is blank
Please set a name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Project alreday exists
Please enter different name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm before delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All tasks under this Project will be deleted.
Are you sure to delete ?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Lullet could not open %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No program on this computer opens such addresses.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The user&apos;s guide is not installed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You can read it on the website: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Welcome to Lullet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Short pauses keep you well through the day: a rest, a meal, a stretch, a glass of water. Lullet reminds you of them, and of your tasks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose your lullets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Lullets and switch on the suggestions you want. Each repeats by its own rule: every hour, at noon, on weekdays. Change a rule, or add your own.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tasks and projects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a task from anywhere with Quick Add. Group tasks into projects, and see how much of the time you planned is used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your working hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell Lullet when you work. When nothing runs during those hours, it asks what you have been doing, and records the answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Always at hand in the tray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click the tray icon to see what runs and what comes next. Reminders open there too, and never take the keyboard from what you are typing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The report could not be saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lullet could not write %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mail…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the Report as PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The report could not be printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer did not accept it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lullet could not open your mail program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The report is saved as %1: attach it to a message yourself.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QuickAddForm</name>
    <message>
        <source>No duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 Hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Task name is blank! Please enter task name. </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RemindBefore</name>
    <message>
        <source>On date</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReminderPrompt</name>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time for : %1, at :%2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>Tasks: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Complete: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Due: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Today: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Today %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReportCommands</name>
    <message>
        <source>Oops!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lullet report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lullet list report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no task data to export.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no task data to export for this Project.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReportPainter</name>
    <message>
        <source>Page %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1  ·  %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>h</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RestoreCheck</name>
    <message>
        <source>The file could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only a file can be restored, and this is a folder, a device or another special file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is not a database, so it is no Lullet backup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is damaged: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is an empty database, not a Lullet store.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is a database of another program, not a Lullet store.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file was written by a newer version of Lullet. Update Lullet to restore it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file lacks the tables of a Lullet store.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RowTexts</name>
    <message numerus="yes">
        <source>In %n days</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Overdue by %n days</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Due from %1 hr %2 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Due from %1 hr </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Due from %1 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lullet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lullet  |  %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RuleForm</name>
    <message>
        <source>To-do</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Timed task</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weeks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Months</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Years</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Never</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Until a date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How often should it repeat? Please enter a number above 0.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RunningStatus</name>
    <message>
        <source>%1 / %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 of %3 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lullet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next: %1 at %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next: %1 on %2 at %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScheduleTexts</name>
    <message>
        <source>minute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>year</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n mins</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n weeks</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n months</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n years</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>On %1 %2, %3 %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lullet : %1 at %2, repeats every %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Task : %1 at %2, repeats every %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No further repeat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In next %1 hr %2 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In next %1 hr </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In next %1 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>In next %n days at %1</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>On %1 %2 %3 at %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Repeat every %n mins</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Repeat every %n hrs</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Repeat every %n days</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Repeat every %n weeks</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Repeat every %n months</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Repeat every %n years</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>, On %1 %2 %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, For : %1hr:%2min</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SecurityTab</name>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Segment</name>
    <message>
        <source>Dashboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lullets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upcoming</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Anytime</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Completed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Project</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Store</name>
    <message>
        <source>Expected a folder to store application data, found a file %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There was an error creating or loading the application&apos;s saved data. The folder %1 could not be created.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lullet was stopped during a restore, and your store could not be put back. Rename %1 to %2, then start Lullet again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lullet was stopped during a restore. Your data is as it was before it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk that holds your Lullet store (%1) is full. Free some space, then start Lullet again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is not a database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is not a Lullet store</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the store was written by a newer version of Lullet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the store is damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store %1 is in use by another program. Close it and start Lullet again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store %1 cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store %1 is read-only. Lullet saves every change as it happens: make the file writable and start Lullet again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store %1 cannot be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store %1 cannot be brought up to date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store %1 lacks Lullet&apos;s tables. Move that file aside (rename it), and Lullet will start afresh with an empty store.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store %1 cannot be loaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store %1 could not be used (%2), and could not be moved aside either.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store could not be used (%1). It was moved to %2; Lullet will start with an empty store next time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The restored copy could not be written to the disk, so nothing was restored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your store could not be set aside for the restore, so nothing was restored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The restored copy could not be put in place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The restore failed (%1); your store was put back as it was.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StoreCopy</name>
    <message>
        <source>The store %1 does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 already exists; it was left as it was.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be read: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The store could not be copied: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy could not be made a single file: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy could not be written to %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TimeOverPrompt</name>
    <message>
        <source>Have you finished : %1 ?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TodoPrompt</name>
    <message>
        <source>Time for : %1. Done ?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WeekdayNames</name>
    <message>
        <source>Sunday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Monday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Friday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::AddTaskView</name>
    <message>
        <source>Task</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Task…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure to delete ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This Reminder will be deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::AppController</name>
    <message>
        <source>Reason for activity</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::BackupCommands</name>
    <message>
        <source>The backup could not be made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file can&apos;t be restored. Nothing was changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The restore could not be done.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some old backups could not be deleted, so they stay in the list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lullet is locked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter your password first, then back up or restore your data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back Up Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm Restore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All data will be replaced.
Do you want to proceed?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore From File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This backup&apos;s file is gone, so it can&apos;t be restored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save a Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy could not be saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is in the way and can&apos;t be replaced.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::BackupTab</name>
    <message>
        <source>Back up at each launch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep all backups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep backups for a week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back Up Now…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore From File…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete All…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save a Copy…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selected backup will be deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure to delete ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The backup&apos;s file could not be deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All backups will be deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some backup files could not be deleted.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::Backups</name>
    <message>
        <source>No backup was made: the folder %1 could not be created.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No backup was made. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That file is the store Lullet is using now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That file is one Lullet works with while it copies or restores, not a backup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your latest changes could not be saved, so nothing was restored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No safety copy of your present data could be made, so nothing was restored.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::Catalogue</name>
    <message>
        <source>Custom breaks</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::CircularProgress</name>
    <message>
        <source>%1 % complete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1%</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::ContactWindow</name>
    <message>
        <source>Contact Us</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A question, an idea, or something that does not work as it should? Write to us at %1, or use the form on %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>our contact page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Many answers are already in the %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FAQ</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::DashboardView</name>
    <message>
        <source>You need to provide data for the chart.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Planned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print, save as PDF or mail</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::DateChooser</name>
    <message>
        <source>No date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::GeneralTab</name>
    <message>
        <source>Start Lullet at login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the window in the taskbar at launch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the icon in the tray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hold prompts when I&apos;m away for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hold prompts while another program is full screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A break due while I&apos;m away for its length counts as taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play a sound with each prompt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask what I&apos;m doing after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>During your working hours, when nothing has run for this long, Lullet asks what you have been doing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lullet could not change how it starts at login.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You must now restart app</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your new setting for the taskbar won&apos;t show up until you relaunch this application.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Relaunch Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lullet could not be started again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Lullet and start it yourself to see the new setting.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::HelpWindow</name>
    <message>
        <source>Lullet Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::IdlePromptView</name>
    <message>
        <source>What have you been doing?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What you have been doing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meeting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phone call</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Break</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lunch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask again in one prompt period</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::ItemListModel</name>
    <message>
        <source>%1  (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1  (%2)   %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop: it is done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Used</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::ItemListView</name>
    <message>
        <source>Items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing here. Enjoy the calm.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Task completed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has been completed now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lullet postponed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has been postponed to %2 %3 %4</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::ItemMenu</name>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Postpone…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Postpone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In 3 hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In a month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Project</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::Library</name>
    <message>
        <source>Your changes could not be saved: %1. Lullet keeps them and saves them with your next change.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::ListHeader</name>
    <message>
        <source>h</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask when idle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When nothing runs in working hours, ask what you have been doing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Started only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List only the items that have been started</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Completed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Tasks…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time used %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Lullet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ongoing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Running: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::LoginPage</name>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Retry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PLEASE ENTER PASSWORD...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>INCORRECT PASSWORD...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lullet cannot reach your keyring, so it cannot check the password. Your data stays locked.
%1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::MainWindow</name>
    <message>
        <source>&amp;Lullet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quick &amp;Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Back Up Now…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Restore From File…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit Lullet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lullet &amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;User&apos;s Guide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Frequently Asked Questions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Website</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Privacy Policy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Terms and Conditions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Contact Us…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::MoreInfoTab</name>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lullet keeps you to short, healthy pauses through the day and to your tasks, and asks what you have been doing when nothing runs during your working hours. Your data stays on this computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the User&apos;s Guide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Website</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequently Asked Questions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Terms and Conditions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::MoreTimeMenu</name>
    <message numerus="yes">
        <source>%n minute(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> %n minute(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lullet::PauseActions</name>
    <message>
        <source>Pause Reminders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For 30 Minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For 1 Hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For 2 Hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Until Tomorrow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Until I Resume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume Reminders</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::PostponePanel</name>
    <message>
        <source>Postpone %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In 3 hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick date…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EEE d MMM</source>
        <comment>ICU date pattern</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Postpone</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::PreferencesWindow</name>
    <message>
        <source>Lullet Preferences</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::PromptView</name>
    <message>
        <source>Finished</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Need more time</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::Protection</name>
    <message>
        <source>Your keyring did not answer.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::QuickAddView</name>
    <message>
        <source>No Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quick add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Task name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Due date</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::ReminderNotice</name>
    <message>
        <source>Reminder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In 10 min</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::ReminderPause</name>
    <message>
        <source>Reminders paused until you resume them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reminders paused until %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::ReminderPromptView</name>
    <message>
        <source>Reminder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In 10 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In 30 min</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::RepeatListModel</name>
    <message>
        <source>%1 - %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lullet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::RepeatListView</name>
    <message>
        <source>Lullets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New lullet…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Today: %1 of %2 done   Time used %3 of %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure to delete ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This Reminder will be deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::RuleFormView</name>
    <message>
        <source>Edit lullet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New lullet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit task</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New task</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Due on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration in hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> hr</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration in minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A to-do takes no time: it is confirmed when done.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remind me when it is due</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repeat every</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switched on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::RunningListView</name>
    <message>
        <source>Lullet is locked. Enter your password in its window to see your tasks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Running now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Lullet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is running.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::ScheduleTab</name>
    <message>
        <source>Working hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lullet asks what you have been doing only on working days, between these times.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::ScheduleTableModel</name>
    <message>
        <source>Day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Working day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::SecurityTab</name>
    <message>
        <source>Protect Lullet with a password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With a password, Lullet asks for it each time it starts, before it shows anything of your tasks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Retry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading the keyring…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lullet cannot reach your keyring, where the password is kept. Nothing here can change until it can.
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protection is off, but your keyring could not remove the password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password protection is set!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your keyring could not store the password, so protection stays off.
%1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::Shell</name>
    <message>
        <source>Loading…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lullet is locked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Lullet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quick Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Lullet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lullet is locked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter your password first, then add the task.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::SidebarView</name>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quick Add (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quick Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lists and projects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate as new</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>• %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1   %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1   %2%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1
Progress: time used of time planned. A task with no planned length counts only the time it has run.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::SingleInstance</name>
    <message>
        <source>Cannot make the folder %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1 is not private to this user; Lullet will not use it to talk to itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot open the lock file in %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot listen on %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::SyncTab</name>
    <message>
        <source>Sync Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop Syncing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep your tasks, projects and repeating lullets in step with a CalDAV server (Nextcloud, Radicale, Fastmail and others), and so with your other computers and your phone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server or collection:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave the user name empty for a server without logins. The password is kept in your keyring.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last sync:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the address of a CalDAV server or collection, such as https://dav.example.com/.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your keyring could not keep the password (%1), so nothing was changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Syncing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kept in your keyring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sync is off: your data stays on this computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Syncing…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not synced yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n item(s) on the server could not be read and were left there.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The server refused %n change(s); they wait here.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Synced %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your keyring could not give the password (%1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What came from the server could not be saved here; the next sync tries again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server could not be reached (%1). Your changes wait here and go at the next sync.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server&apos;s certificate is not trusted (%1), so nothing was sent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server refused the user name or password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no collection at this address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No calendar that holds tasks was found at this address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server failed (%1). Your changes wait here and go at the next sync.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last sync was cut short. Your changes wait here and go at the next sync.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server&apos;s answer made no sense (%1), so nothing was changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server refused the sync (%1). Your changes wait here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::TimeOverPromptView</name>
    <message>
        <source>Time is up</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::TodoPromptView</name>
    <message>
        <source>Lullet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not now</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::WelcomeSlides</name>
    <message>
        <source>Previous</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User&apos;s Guide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slide %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lullet::WindowContent</name>
    <message>
        <source>Get Started</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Some of your older history could not be read: lists and counts may be short.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your working hours could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lullet uses Monday to Friday, 9:00 to 18:00, until you set them again. What could not be read is kept under &quot;schedulesUnreadable&quot; in %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no display. Start Lullet in your desktop session.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another Lullet is running but does not answer.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
