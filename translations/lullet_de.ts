<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Autostart</name>
    <message>
        <source>Cannot make the folder %1.</source>
        <translation>Der Ordner %1 kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Cannot remove %1: %2</source>
        <translation>%1 kann nicht entfernt werden: %2</translation>
    </message>
</context>
<context>
    <name>Backups</name>
    <message>
        <source>Backup</source>
        <translation>Sicherung</translation>
    </message>
    <message>
        <source>Restored Backup</source>
        <translation>Vor Wiederherstellung</translation>
    </message>
</context>
<context>
    <name>CalDavClient</name>
    <message>
        <source>HTTP status %1</source>
        <translation>HTTP-Status %1</translation>
    </message>
    <message>
        <source>no WebDAV answer</source>
        <translation>keine WebDAV-Antwort</translation>
    </message>
    <message>
        <source>no sync token</source>
        <translation>kein Sync-Token</translation>
    </message>
</context>
<context>
    <name>CatalogueEntries</name>
    <message>
        <source>Rest breaks</source>
        <translation>Erholungspausen</translation>
    </message>
    <message>
        <source>Nutrition breaks</source>
        <translation>Ernährungspausen</translation>
    </message>
    <message>
        <source>Fitness breaks</source>
        <translation>Fitnesspausen</translation>
    </message>
    <message>
        <source>Light Food breaks</source>
        <translation>Snackpausen</translation>
    </message>
    <message>
        <source>Lunch break</source>
        <translation>Mittagspause</translation>
    </message>
    <message>
        <source>Its time for lunch. Make sure you are having it on time.</source>
        <translation>Zeit fürs Mittagessen. Achten Sie darauf, pünktlich zu essen.</translation>
    </message>
    <message>
        <source>Tea break</source>
        <translation>Teepause</translation>
    </message>
    <message>
        <source>Small tea breaks improve concentration and garner energy.</source>
        <translation>Kleine Teepausen fördern die Konzentration und geben neue Energie.</translation>
    </message>
    <message>
        <source>Washroom</source>
        <translation>Frisch machen</translation>
    </message>
    <message>
        <source>Remove any dirts and always keep yourself clean and fresh.</source>
        <translation>Waschen Sie sich und halten Sie sich stets sauber und frisch.</translation>
    </message>
    <message>
        <source>Breakfast time</source>
        <translation>Zeit fürs Frühstück</translation>
    </message>
    <message>
        <source>Never skip your breakfast and do it on time, every day!</source>
        <translation>Lassen Sie das Frühstück nie ausfallen und frühstücken Sie jeden Tag pünktlich!</translation>
    </message>
    <message>
        <source>Fruits time</source>
        <translation>Zeit für Obst</translation>
    </message>
    <message>
        <source>Eat plenty of fruits and make your diet healthier.</source>
        <translation>Essen Sie reichlich Obst und ernähren Sie sich so gesünder.</translation>
    </message>
    <message>
        <source>Water time</source>
        <translation>Zeit für Wasser</translation>
    </message>
    <message>
        <source>Drink lots of water to hydrate your body through out the day.</source>
        <translation>Trinken Sie über den Tag verteilt viel Wasser, damit Ihr Körper gut versorgt ist.</translation>
    </message>
    <message>
        <source>Body stretching</source>
        <translation>Dehnübungen</translation>
    </message>
    <message>
        <source>Stretching exercises can improve your posture as well as relief stress.</source>
        <translation>Dehnübungen können Ihre Haltung verbessern und Stress abbauen.</translation>
    </message>
    <message>
        <source>Walk break</source>
        <translation>Spaziergang</translation>
    </message>
    <message>
        <source>A 20 minutes walk can increase blood flow to the brain and boost creativity.</source>
        <translation>Ein Spaziergang von 20 Minuten kann die Durchblutung des Gehirns steigern und die Kreativität fördern.</translation>
    </message>
    <message>
        <source>Stand up</source>
        <translation>Aufstehen</translation>
    </message>
    <message>
        <source>Stand up and take some steps around the room.</source>
        <translation>Stehen Sie auf und gehen Sie ein paar Schritte durch den Raum.</translation>
    </message>
    <message>
        <source>power nap</source>
        <translation>Powernap</translation>
    </message>
    <message>
        <source>A 10 minutes has been shown to improve cognitive function and decrease sleepiness and fatigue.</source>
        <translation>Ein Nickerchen von 10 Minuten verbessert nachweislich die geistige Leistungsfähigkeit und verringert Schläfrigkeit und Müdigkeit.</translation>
    </message>
    <message>
        <source>Exercise break</source>
        <translation>Bewegungspause</translation>
    </message>
    <message>
        <source>Pick a decent workout in under 10 minutes to give your mind the needed rest.</source>
        <translation>Wählen Sie ein gutes Training von unter 10 Minuten, um Ihrem Kopf die nötige Erholung zu gönnen.</translation>
    </message>
    <message>
        <source>Meditation break</source>
        <translation>Meditationspause</translation>
    </message>
    <message>
        <source>Relax your brain in a short amount of time by meditating.</source>
        <translation>Entspannen Sie Ihren Kopf in kurzer Zeit durch Meditation.</translation>
    </message>
    <message>
        <source>Eye exercise</source>
        <translation>Augenübung</translation>
    </message>
    <message>
        <source>In every 20 minutes, take a break for at least 20 seconds and look at objects that are 20 feet away.</source>
        <translation>Machen Sie alle 20 Minuten eine Pause von mindestens 20 Sekunden und schauen Sie auf Dinge, die etwa 6 Meter entfernt sind.</translation>
    </message>
    <message>
        <source>Go out side and see some nature</source>
        <translation>Raus in die Natur</translation>
    </message>
    <message>
        <source>Spending time in nature is good for your immune system and has been shown to improve focus and relieve stress.</source>
        <translation>Zeit in der Natur stärkt das Immunsystem, fördert nachweislich die Konzentration und baut Stress ab.</translation>
    </message>
    <message>
        <source>Snack break</source>
        <translation>Snackpause</translation>
    </message>
    <message>
        <source>Take healthy snack breaks and store enough energy to run through out the day.</source>
        <translation>Gönnen Sie sich gesunde Snackpausen und tanken Sie genug Energie für den ganzen Tag.</translation>
    </message>
    <message>
        <source>Coffee break</source>
        <translation>Kaffeepause</translation>
    </message>
    <message>
        <source>Coffee breaks can stimulate your focus and make you stay awake if you are feeling drowsy.</source>
        <translation>Kaffeepausen können die Konzentration fördern und Sie wach halten, wenn Sie müde werden.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Usage: lullet %1</source>
        <translation>Aufruf: lullet %1</translation>
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
        <translation>
Plant kurze Gesundheitspausen und Ihre Aufgaben, von der Systemleiste aus.

  --quick-add  das Schnelleingabe-Fenster des laufenden Lullet öffnen
  --in-tray    in der Systemleiste starten, ohne das Fenster zu öffnen
  --pause [MINUTES]
               die Erinnerungen des laufenden Lullet für MINUTES Minuten oder
               bis zur Fortsetzung pausieren
  --resume     die Erinnerungen fortsetzen
  --help       diese Hilfe anzeigen und beenden
  --version    die Version anzeigen und beenden

Ein zweiter Start holt das laufende Lullet in den Vordergrund.
</translation>
    </message>
    <message>
        <source>lullet: unknown option &apos;%1&apos;</source>
        <translation>lullet: unbekannte Option „%1“</translation>
    </message>
</context>
<context>
    <name>DashboardSummary</name>
    <message>
        <source>JAN</source>
        <translation>JAN</translation>
    </message>
    <message>
        <source>FEB</source>
        <translation>FEB</translation>
    </message>
    <message>
        <source>MAR</source>
        <translation>MÄR</translation>
    </message>
    <message>
        <source>APR</source>
        <translation>APR</translation>
    </message>
    <message>
        <source>MAY</source>
        <translation>MAI</translation>
    </message>
    <message>
        <source>JUN</source>
        <translation>JUN</translation>
    </message>
    <message>
        <source>JUL</source>
        <translation>JUL</translation>
    </message>
    <message>
        <source>AUG</source>
        <translation>AUG</translation>
    </message>
    <message>
        <source>SEP</source>
        <translation>SEP</translation>
    </message>
    <message>
        <source>OCT</source>
        <translation>OKT</translation>
    </message>
    <message>
        <source>NOV</source>
        <translation>NOV</translation>
    </message>
    <message>
        <source>DEC</source>
        <translation>DEZ</translation>
    </message>
    <message>
        <source>Not in Project</source>
        <translation>Ohne Projekt</translation>
    </message>
</context>
<context>
    <name>DashboardView</name>
    <message>
        <source>Overdue</source>
        <translation>Überfällig</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Aktuell</translation>
    </message>
    <message>
        <source>Upcoming</source>
        <translation>Demnächst</translation>
    </message>
</context>
<context>
    <name>Db</name>
    <message>
        <source>the disk is full</source>
        <translation>der Datenträger ist voll</translation>
    </message>
    <message>
        <source>the store cannot be written</source>
        <translation>die Datenbank ist schreibgeschützt</translation>
    </message>
    <message>
        <source>another program is using the store</source>
        <translation>ein anderes Programm verwendet die Datenbank</translation>
    </message>
    <message>
        <source>the store is damaged</source>
        <translation>die Datenbank ist beschädigt</translation>
    </message>
    <message>
        <source>the disk could not be read or written</source>
        <translation>der Datenträger konnte nicht gelesen oder beschrieben werden</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>GeneralTab</name>
    <message numerus="yes">
        <source>%n mins</source>
        <translation>
            <numerusform>%n Minute</numerusform>
            <numerusform>%n Minuten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>IdlePrompt</name>
    <message>
        <source>(%1)</source>
        <translation>(%1)</translation>
    </message>
    <message>
        <source>(%1 - %2)</source>
        <translation>(%1–%2)</translation>
    </message>
    <message>
        <source>What are you doing now ?</source>
        <translation>Was machen Sie gerade?</translation>
    </message>
    <message numerus="yes">
        <source>What were you doing for last %n minutes ?</source>
        <translation>
            <numerusform>Was haben Sie in der letzten %n Minute gemacht?</numerusform>
            <numerusform>Was haben Sie in den letzten %n Minuten gemacht?</numerusform>
        </translation>
    </message>
    <message>
        <source> Task name is blank! Please enter task name. </source>
        <translation> Der Name der Aufgabe ist leer. Bitte geben Sie einen Namen ein. </translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>A task is already running.</source>
        <translation>Es läuft bereits eine Aufgabe.</translation>
    </message>
    <message>
        <source>Another Task is already running. 
Do you want to complete that, and start this?</source>
        <translation>Es läuft bereits eine andere Aufgabe. 
Möchten Sie diese abschließen und die neue starten?</translation>
    </message>
    <message>
        <source>Cannot postpone now</source>
        <translation>Verschieben nicht möglich</translation>
    </message>
    <message>
        <source>Cannot postpone now as this Lullet is running</source>
        <translation>Dieser Eintrag läuft gerade und kann daher nicht verschoben werden</translation>
    </message>
</context>
<context>
    <name>KeyringSecretStore</name>
    <message>
        <source>The keyring did not say why.</source>
        <translation>Der Schlüsselbund hat keinen Grund genannt.</translation>
    </message>
    <message>
        <source>Your keyring is locked and could not be unlocked.</source>
        <translation>Ihr Schlüsselbund ist gesperrt und konnte nicht entsperrt werden.</translation>
    </message>
</context>
<context>
    <name>ListBuilder</name>
    <message>
        <source>%1 %2, %3 %4</source>
        <translation>%1, %2. %3 %4</translation>
    </message>
</context>
<context>
    <name>PasswordRules</name>
    <message>
        <source>Please insert values in text fields</source>
        <translation>Bitte füllen Sie die Textfelder aus</translation>
    </message>
    <message>
        <source>Password should be minimum 4 character</source>
        <translation>Das Passwort muss mindestens 4 Zeichen lang sein</translation>
    </message>
    <message>
        <source>Passwords does not match</source>
        <translation>Die Passwörter stimmen nicht überein</translation>
    </message>
    <message>
        <source>Wrong Password</source>
        <translation>Falsches Passwort</translation>
    </message>
</context>
<context>
    <name>Postponing</name>
    <message>
        <source>Tomorrow eve</source>
        <translation>Morgen Abend</translation>
    </message>
    <message>
        <source>Next evening</source>
        <translation>Nächster Abend</translation>
    </message>
    <message>
        <source>This evening</source>
        <translation>Heute Abend</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Morgen</translation>
    </message>
    <message>
        <source>Next day</source>
        <translation>Nächster Tag</translation>
    </message>
    <message>
        <source>This weekend</source>
        <translation>Dieses Wochenende</translation>
    </message>
    <message>
        <source>Next weekend</source>
        <translation>Nächstes Wochenende</translation>
    </message>
</context>
<context>
    <name>PreferencesWindow</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sicherheit</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Sicherung</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronisation</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Zeitplan</translation>
    </message>
    <message>
        <source>More Info</source>
        <translation>Weitere Infos</translation>
    </message>
</context>
<context>
    <name>ProjectActions</name>
    <message>
        <source>Name is blank
Please set a name</source>
        <translation>Der Name ist leer
Bitte geben Sie einen Namen ein</translation>
    </message>
    <message>
        <source>Project alreday exists
Please enter different name</source>
        <translation>Dieses Projekt gibt es bereits
Bitte geben Sie einen anderen Namen ein</translation>
    </message>
    <message>
        <source>Confirm before delete</source>
        <translation>Löschen bestätigen</translation>
    </message>
    <message>
        <source>All tasks under this Project will be deleted.
Are you sure to delete ?</source>
        <translation>Alle Aufgaben dieses Projekts werden gelöscht.
Wirklich löschen?</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Lullet could not open %1.</source>
        <translation>Lullet konnte %1 nicht öffnen.</translation>
    </message>
    <message>
        <source>No program on this computer opens such addresses.</source>
        <translation>Kein Programm auf diesem Computer kann solche Adressen öffnen.</translation>
    </message>
    <message>
        <source>The user&apos;s guide is not installed.</source>
        <translation>Das Benutzerhandbuch ist nicht installiert.</translation>
    </message>
    <message>
        <source>You can read it on the website: %1</source>
        <translation>Sie können es auf der Website lesen: %1</translation>
    </message>
    <message>
        <source>Welcome to Lullet</source>
        <translation>Willkommen bei Lullet</translation>
    </message>
    <message>
        <source>Short pauses keep you well through the day: a rest, a meal, a stretch, a glass of water. Lullet reminds you of them, and of your tasks.</source>
        <translation>Kurze Pausen halten Sie den ganzen Tag über fit: eine Verschnaufpause, eine Mahlzeit, etwas Dehnen, ein Glas Wasser. Lullet erinnert Sie daran und an Ihre Aufgaben.</translation>
    </message>
    <message>
        <source>Choose your lullets</source>
        <translation>Wählen Sie Ihre Pausen</translation>
    </message>
    <message>
        <source>Open Lullets and switch on the suggestions you want. Each repeats by its own rule: every hour, at noon, on weekdays. Change a rule, or add your own.</source>
        <translation>Öffnen Sie „Pausen“ und schalten Sie die gewünschten Vorschläge ein. Jede wiederholt sich nach ihrer eigenen Regel: stündlich, mittags, an Werktagen. Ändern Sie eine Regel oder fügen Sie eigene hinzu.</translation>
    </message>
    <message>
        <source>Tasks and projects</source>
        <translation>Aufgaben und Projekte</translation>
    </message>
    <message>
        <source>Add a task from anywhere with Quick Add. Group tasks into projects, and see how much of the time you planned is used.</source>
        <translation>Fügen Sie mit der Schnelleingabe von überall Aufgaben hinzu. Fassen Sie Aufgaben in Projekten zusammen und sehen Sie, wie viel der geplanten Zeit verbraucht ist.</translation>
    </message>
    <message>
        <source>Your working hours</source>
        <translation>Ihre Arbeitszeiten</translation>
    </message>
    <message>
        <source>Tell Lullet when you work. When nothing runs during those hours, it asks what you have been doing, and records the answer.</source>
        <translation>Sagen Sie Lullet, wann Sie arbeiten. Läuft in dieser Zeit nichts, fragt Lullet, was Sie gemacht haben, und hält die Antwort fest.</translation>
    </message>
    <message>
        <source>Always at hand in the tray</source>
        <translation>Immer griffbereit in der Systemleiste</translation>
    </message>
    <message>
        <source>Click the tray icon to see what runs and what comes next. Reminders open there too, and never take the keyboard from what you are typing.</source>
        <translation>Klicken Sie auf das Symbol in der Systemleiste, um zu sehen, was läuft und was als Nächstes kommt. Auch Erinnerungen erscheinen dort und nehmen Ihnen beim Tippen nie die Tastatur weg.</translation>
    </message>
    <message>
        <source>The report could not be saved.</source>
        <translation>Der Bericht konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Lullet could not write %1.</source>
        <translation>Lullet konnte %1 nicht schreiben.</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Drucken…</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>Als PDF speichern…</translation>
    </message>
    <message>
        <source>Mail…</source>
        <translation>Per E-Mail senden…</translation>
    </message>
    <message>
        <source>Save the Report as PDF</source>
        <translation>Bericht als PDF speichern</translation>
    </message>
    <message>
        <source>The report could not be printed.</source>
        <translation>Der Bericht konnte nicht gedruckt werden.</translation>
    </message>
    <message>
        <source>The printer did not accept it.</source>
        <translation>Der Drucker hat ihn nicht angenommen.</translation>
    </message>
    <message>
        <source>Lullet could not open your mail program.</source>
        <translation>Lullet konnte Ihr E-Mail-Programm nicht öffnen.</translation>
    </message>
    <message>
        <source>The report is saved as %1: attach it to a message yourself.</source>
        <translation>Der Bericht ist als %1 gespeichert: Hängen Sie ihn selbst an eine Nachricht an.</translation>
    </message>
</context>
<context>
    <name>QuickAddForm</name>
    <message>
        <source>No duration</source>
        <translation>Keine Dauer</translation>
    </message>
    <message>
        <source>1 Hour</source>
        <translation>1 Stunde</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 Min.</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Kein</translation>
    </message>
    <message>
        <source>%1 %2 %3</source>
        <translation>%1. %2 %3</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>at %1</source>
        <translation>um %1</translation>
    </message>
    <message>
        <source> Task name is blank! Please enter task name. </source>
        <translation> Der Name der Aufgabe ist leer. Bitte geben Sie einen Namen ein. </translation>
    </message>
</context>
<context>
    <name>RemindBefore</name>
    <message>
        <source>On date</source>
        <translation>Am Tag selbst</translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n Tag vorher</numerusform>
            <numerusform>%n Tage vorher</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReminderPrompt</name>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Time for : %1, at :%2</source>
        <translation>Zeit für: %1, um %2</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>Tasks: %1</source>
        <translation>Aufgaben: %1</translation>
    </message>
    <message>
        <source>Complete: %1</source>
        <translation>Erledigt: %1</translation>
    </message>
    <message>
        <source>Due: %1</source>
        <translation>Fällig: %1</translation>
    </message>
    <message>
        <source>Today: %1</source>
        <translation>Heute: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Today %1</source>
        <translation>Heute %1</translation>
    </message>
</context>
<context>
    <name>ReportCommands</name>
    <message>
        <source>Oops!</source>
        <translation>Hoppla!</translation>
    </message>
    <message>
        <source>Lullet report</source>
        <translation>Lullet-Bericht</translation>
    </message>
    <message>
        <source>Lullet list report</source>
        <translation>Lullet-Listenbericht</translation>
    </message>
    <message>
        <source>There is no task data to export.</source>
        <translation>Es gibt keine Aufgaben zum Exportieren.</translation>
    </message>
    <message>
        <source>There is no task data to export for this Project.</source>
        <translation>Dieses Projekt hat keine Aufgaben zum Exportieren.</translation>
    </message>
</context>
<context>
    <name>ReportPainter</name>
    <message>
        <source>Page %1</source>
        <translation>Seite %1</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>Zeit: %1</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1  ·  %2</source>
        <translation>%1  ·  %2</translation>
    </message>
    <message>
        <source>h</source>
        <translation>h</translation>
    </message>
</context>
<context>
    <name>RestoreCheck</name>
    <message>
        <source>The file could not be read.</source>
        <translation>Die Datei konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Only a file can be restored, and this is a folder, a device or another special file.</source>
        <translation>Nur eine Datei kann wiederhergestellt werden, dies ist aber ein Ordner, ein Gerät oder eine andere Spezialdatei.</translation>
    </message>
    <message>
        <source>The file is not a database, so it is no Lullet backup.</source>
        <translation>Die Datei ist keine Datenbank und daher keine Lullet-Sicherung.</translation>
    </message>
    <message>
        <source>The file is damaged: %1</source>
        <translation>Die Datei ist beschädigt: %1</translation>
    </message>
    <message>
        <source>The file is an empty database, not a Lullet store.</source>
        <translation>Die Datei ist eine leere Datenbank, keine Lullet-Datenbank.</translation>
    </message>
    <message>
        <source>The file is a database of another program, not a Lullet store.</source>
        <translation>Die Datei ist die Datenbank eines anderen Programms, keine Lullet-Datenbank.</translation>
    </message>
    <message>
        <source>The file was written by a newer version of Lullet. Update Lullet to restore it.</source>
        <translation>Die Datei stammt von einer neueren Version von Lullet. Aktualisieren Sie Lullet, um sie wiederherzustellen.</translation>
    </message>
    <message>
        <source>The file lacks the tables of a Lullet store.</source>
        <translation>Der Datei fehlen die Tabellen einer Lullet-Datenbank.</translation>
    </message>
</context>
<context>
    <name>RowTexts</name>
    <message numerus="yes">
        <source>In %n days</source>
        <translation>
            <numerusform>In %n Tag</numerusform>
            <numerusform>In %n Tagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Overdue by %n days</source>
        <translation>
            <numerusform>Seit %n Tag überfällig</numerusform>
            <numerusform>Seit %n Tagen überfällig</numerusform>
        </translation>
    </message>
    <message>
        <source>Due from %1 hr %2 min</source>
        <translation>Seit %1 Std. %2 Min. fällig</translation>
    </message>
    <message>
        <source>Due from %1 hr </source>
        <translation>Seit %1 Std. fällig </translation>
    </message>
    <message>
        <source>Due from %1 min</source>
        <translation>Seit %1 Min. fällig</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 um %2</translation>
    </message>
    <message>
        <source>Lullet</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Lullet  |  %1</source>
        <translation>Pause  |  %1</translation>
    </message>
</context>
<context>
    <name>RuleForm</name>
    <message>
        <source>To-do</source>
        <translation>To-do</translation>
    </message>
    <message>
        <source>Timed task</source>
        <translation>Aufgabe mit Dauer</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Stunden</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>Weeks</source>
        <translation>Wochen</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Monate</translation>
    </message>
    <message>
        <source>Years</source>
        <translation>Jahre</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Until a date</source>
        <translation>An einem Datum</translation>
    </message>
    <message>
        <source>How often should it repeat? Please enter a number above 0.</source>
        <translation>Wie oft soll wiederholt werden? Bitte geben Sie eine Zahl größer als 0 ein.</translation>
    </message>
</context>
<context>
    <name>RunningStatus</name>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>%1: %2 of %3 min</source>
        <translation>%1: %2 von %3 Min.</translation>
    </message>
    <message>
        <source>%1: %2 min</source>
        <translation>%1: %2 Min.</translation>
    </message>
    <message>
        <source>Lullet</source>
        <translation>Lullet</translation>
    </message>
    <message>
        <source>Next: %1 at %2</source>
        <translation>Als Nächstes: %1 um %2</translation>
    </message>
    <message>
        <source>Next: %1 on %2 at %3</source>
        <translation>Als Nächstes: %1 am %2 um %3</translation>
    </message>
</context>
<context>
    <name>ScheduleTexts</name>
    <message>
        <source>minute</source>
        <translation>jede Minute</translation>
    </message>
    <message>
        <source>hour</source>
        <translation>jede Stunde</translation>
    </message>
    <message>
        <source>day</source>
        <translation>jeden Tag</translation>
    </message>
    <message>
        <source>week</source>
        <translation>jede Woche</translation>
    </message>
    <message>
        <source>month</source>
        <translation>jeden Monat</translation>
    </message>
    <message>
        <source>year</source>
        <translation>jedes Jahr</translation>
    </message>
    <message numerus="yes">
        <source>%n mins</source>
        <translation>
            <numerusform>im Abstand von %n Minute</numerusform>
            <numerusform>alle %n Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours</source>
        <translation>
            <numerusform>im Abstand von %n Stunde</numerusform>
            <numerusform>alle %n Stunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>im Abstand von %n Tag</numerusform>
            <numerusform>alle %n Tage</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n weeks</source>
        <translation>
            <numerusform>im Abstand von %n Woche</numerusform>
            <numerusform>alle %n Wochen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n months</source>
        <translation>
            <numerusform>im Abstand von %n Monat</numerusform>
            <numerusform>alle %n Monate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n years</source>
        <translation>
            <numerusform>im Abstand von %n Jahr</numerusform>
            <numerusform>alle %n Jahre</numerusform>
        </translation>
    </message>
    <message>
        <source>On %1 %2, %3 %4</source>
        <translation>Am %1, %2. %3 %4</translation>
    </message>
    <message>
        <source>Lullet : %1 at %2, repeats every %3</source>
        <translation>Pause: %1 um %2, wiederholt sich %3</translation>
    </message>
    <message>
        <source>Task : %1 at %2, repeats every %3</source>
        <translation>Aufgabe: %1 um %2, wiederholt sich %3</translation>
    </message>
    <message>
        <source>No further repeat</source>
        <translation>Keine weitere Wiederholung</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>In next %1 hr %2 min</source>
        <translation>In %1 Std. %2 Min.</translation>
    </message>
    <message>
        <source>In next %1 hr </source>
        <translation>In %1 Std. </translation>
    </message>
    <message>
        <source>In next %1 min</source>
        <translation>In %1 Min.</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 um %2</translation>
    </message>
    <message numerus="yes">
        <source>In next %n days at %1</source>
        <translation>
            <numerusform>In %n Tag um %1</numerusform>
            <numerusform>In %n Tagen um %1</numerusform>
        </translation>
    </message>
    <message>
        <source>On %1 %2 %3 at %4</source>
        <translation>Am %1. %2 %3 um %4</translation>
    </message>
    <message numerus="yes">
        <source>Repeat every %n mins</source>
        <translation>
            <numerusform>Wiederholung im Abstand von %n Minute</numerusform>
            <numerusform>Wiederholung alle %n Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Repeat every %n hrs</source>
        <translation>
            <numerusform>Wiederholung im Abstand von %n Stunde</numerusform>
            <numerusform>Wiederholung alle %n Stunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Repeat every %n days</source>
        <translation>
            <numerusform>Wiederholung im Abstand von %n Tag</numerusform>
            <numerusform>Wiederholung alle %n Tage</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Repeat every %n weeks</source>
        <translation>
            <numerusform>Wiederholung im Abstand von %n Woche</numerusform>
            <numerusform>Wiederholung alle %n Wochen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Repeat every %n months</source>
        <translation>
            <numerusform>Wiederholung im Abstand von %n Monat</numerusform>
            <numerusform>Wiederholung alle %n Monate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Repeat every %n years</source>
        <translation>
            <numerusform>Wiederholung im Abstand von %n Jahr</numerusform>
            <numerusform>Wiederholung alle %n Jahre</numerusform>
        </translation>
    </message>
    <message>
        <source>, On %1 %2 %3</source>
        <translation>, am %1. %2 %3</translation>
    </message>
    <message>
        <source>, at %1</source>
        <translation>, um %1</translation>
    </message>
    <message>
        <source>, For : %1hr:%2min</source>
        <translation>, Dauer: %1 Std. %2 Min.</translation>
    </message>
</context>
<context>
    <name>SecurityTab</name>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Ändern</translation>
    </message>
</context>
<context>
    <name>Segment</name>
    <message>
        <source>Dashboard</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Lullets</source>
        <translation>Pausen</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Upcoming</source>
        <translation>Demnächst</translation>
    </message>
    <message>
        <source>Anytime</source>
        <translation>Jederzeit</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Erledigt</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
</context>
<context>
    <name>Store</name>
    <message>
        <source>Expected a folder to store application data, found a file %1.</source>
        <translation>Für die Programmdaten wurde ein Ordner erwartet, gefunden wurde aber die Datei %1.</translation>
    </message>
    <message>
        <source>There was an error creating or loading the application&apos;s saved data. The folder %1 could not be created.</source>
        <translation>Beim Erstellen oder Laden der gespeicherten Programmdaten ist ein Fehler aufgetreten. Der Ordner %1 konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Lullet was stopped during a restore, and your store could not be put back. Rename %1 to %2, then start Lullet again.</source>
        <translation>Lullet wurde während einer Wiederherstellung beendet, und Ihre Datenbank konnte nicht an ihren Platz zurückgebracht werden. Benennen Sie %1 in %2 um und starten Sie Lullet dann erneut.</translation>
    </message>
    <message>
        <source>Lullet was stopped during a restore. Your data is as it was before it.</source>
        <translation>Lullet wurde während einer Wiederherstellung beendet. Ihre Daten sind so wie vor der Wiederherstellung.</translation>
    </message>
    <message>
        <source>The disk that holds your Lullet store (%1) is full. Free some space, then start Lullet again.</source>
        <translation>Der Datenträger mit Ihrer Lullet-Datenbank (%1) ist voll. Geben Sie Speicherplatz frei und starten Sie Lullet dann erneut.</translation>
    </message>
    <message>
        <source>the file is not a database</source>
        <translation>die Datei ist keine Datenbank</translation>
    </message>
    <message>
        <source>the file is not a Lullet store</source>
        <translation>die Datei ist keine Lullet-Datenbank</translation>
    </message>
    <message>
        <source>the store was written by a newer version of Lullet</source>
        <translation>die Datenbank stammt von einer neueren Version von Lullet</translation>
    </message>
    <message>
        <source>the store is damaged</source>
        <translation>die Datenbank ist beschädigt</translation>
    </message>
    <message>
        <source>The store %1 is in use by another program. Close it and start Lullet again.</source>
        <translation>Die Datenbank %1 wird von einem anderen Programm verwendet. Schließen Sie es und starten Sie Lullet erneut.</translation>
    </message>
    <message>
        <source>The store %1 cannot be read.</source>
        <translation>Die Datenbank %1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The store %1 is read-only. Lullet saves every change as it happens: make the file writable and start Lullet again.</source>
        <translation>Die Datenbank %1 ist schreibgeschützt. Lullet speichert jede Änderung sofort: Machen Sie die Datei beschreibbar und starten Sie Lullet erneut.</translation>
    </message>
    <message>
        <source>The store %1 cannot be opened.</source>
        <translation>Die Datenbank %1 kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The store %1 cannot be brought up to date.</source>
        <translation>Die Datenbank %1 kann nicht auf den neuesten Stand gebracht werden.</translation>
    </message>
    <message>
        <source>The store %1 lacks Lullet&apos;s tables. Move that file aside (rename it), and Lullet will start afresh with an empty store.</source>
        <translation>Der Datenbank %1 fehlen die Tabellen von Lullet. Legen Sie die Datei beiseite (benennen Sie sie um), dann beginnt Lullet neu mit einer leeren Datenbank.</translation>
    </message>
    <message>
        <source>The store %1 cannot be loaded.</source>
        <translation>Die Datenbank %1 kann nicht geladen werden.</translation>
    </message>
    <message>
        <source>The store %1 could not be used (%2), and could not be moved aside either.</source>
        <translation>Die Datenbank %1 konnte nicht verwendet (%2) und auch nicht beiseitegelegt werden.</translation>
    </message>
    <message>
        <source>The store could not be used (%1). It was moved to %2; Lullet will start with an empty store next time.</source>
        <translation>Die Datenbank konnte nicht verwendet werden (%1). Sie wurde nach %2 verschoben; beim nächsten Start beginnt Lullet mit einer leeren Datenbank.</translation>
    </message>
    <message>
        <source>The restored copy could not be written to the disk, so nothing was restored.</source>
        <translation>Die wiederhergestellte Kopie konnte nicht auf den Datenträger geschrieben werden, daher wurde nichts wiederhergestellt.</translation>
    </message>
    <message>
        <source>Your store could not be set aside for the restore, so nothing was restored.</source>
        <translation>Ihre Datenbank konnte für die Wiederherstellung nicht beiseitegelegt werden, daher wurde nichts wiederhergestellt.</translation>
    </message>
    <message>
        <source>The restored copy could not be put in place.</source>
        <translation>Die wiederhergestellte Kopie konnte nicht an ihren Platz gebracht werden.</translation>
    </message>
    <message>
        <source>The restore failed (%1); your store was put back as it was.</source>
        <translation>Die Wiederherstellung ist fehlgeschlagen (%1); Ihre Datenbank wurde in ihren vorigen Zustand zurückversetzt.</translation>
    </message>
</context>
<context>
    <name>StoreCopy</name>
    <message>
        <source>The store %1 does not exist.</source>
        <translation>Die Datenbank %1 existiert nicht.</translation>
    </message>
    <message>
        <source>%1 already exists; it was left as it was.</source>
        <translation>%1 existiert bereits und wurde nicht verändert.</translation>
    </message>
    <message>
        <source>%1 could not be read: %2</source>
        <translation>%1 konnte nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>%1 konnte nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>The store could not be copied: %1</source>
        <translation>Die Datenbank konnte nicht kopiert werden: %1</translation>
    </message>
    <message>
        <source>The copy could not be made a single file: %1</source>
        <translation>Die Kopie konnte nicht zu einer einzigen Datei zusammengeführt werden: %1</translation>
    </message>
    <message>
        <source>The copy could not be written to %1.</source>
        <translation>Die Kopie konnte nicht nach %1 geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>TimeOverPrompt</name>
    <message>
        <source>Have you finished : %1 ?</source>
        <translation>Sind Sie mit „%1“ fertig?</translation>
    </message>
</context>
<context>
    <name>TodoPrompt</name>
    <message>
        <source>Time for : %1. Done ?</source>
        <translation>Zeit für: %1. Erledigt?</translation>
    </message>
</context>
<context>
    <name>WeekdayNames</name>
    <message>
        <source>Sunday</source>
        <translation>Sonntag</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Montag</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Dienstag</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mittwoch</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Donnerstag</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Freitag</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samstag</translation>
    </message>
</context>
<context>
    <name>lullet::AddTaskView</name>
    <message>
        <source>Task</source>
        <translation>Aufgabe</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Wann</translation>
    </message>
    <message>
        <source>Add Task…</source>
        <translation>Aufgabe hinzufügen…</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Bearbeiten…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Are you sure to delete ?</source>
        <translation>Wirklich löschen?</translation>
    </message>
    <message>
        <source>This Reminder will be deleted.</source>
        <translation>Diese Aufgabe wird gelöscht.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
</context>
<context>
    <name>lullet::AppController</name>
    <message>
        <source>Reason for activity</source>
        <translation>Grund für die Aktivität</translation>
    </message>
</context>
<context>
    <name>lullet::BackupCommands</name>
    <message>
        <source>The backup could not be made.</source>
        <translation>Die Sicherung konnte nicht erstellt werden.</translation>
    </message>
    <message>
        <source>This file can&apos;t be restored. Nothing was changed.</source>
        <translation>Diese Datei kann nicht wiederhergestellt werden. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>The restore could not be done.</source>
        <translation>Die Wiederherstellung ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Some old backups could not be deleted, so they stay in the list.</source>
        <translation>Einige alte Sicherungen konnten nicht gelöscht werden und bleiben daher in der Liste.</translation>
    </message>
    <message>
        <source>Lullet is locked.</source>
        <translation>Lullet ist gesperrt.</translation>
    </message>
    <message>
        <source>Enter your password first, then back up or restore your data.</source>
        <translation>Geben Sie zuerst Ihr Passwort ein, dann können Sie Ihre Daten sichern oder wiederherstellen.</translation>
    </message>
    <message>
        <source>Back Up Now</source>
        <translation>Jetzt sichern</translation>
    </message>
    <message>
        <source>Confirm Restore</source>
        <translation>Wiederherstellung bestätigen</translation>
    </message>
    <message>
        <source>All data will be replaced.
Do you want to proceed?</source>
        <translation>Alle Daten werden ersetzt.
Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Restore From File</source>
        <translation>Aus Datei wiederherstellen</translation>
    </message>
    <message>
        <source>This backup&apos;s file is gone, so it can&apos;t be restored.</source>
        <translation>Die Datei dieser Sicherung fehlt, daher kann sie nicht wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>Save a Copy</source>
        <translation>Kopie speichern</translation>
    </message>
    <message>
        <source>The copy could not be saved.</source>
        <translation>Die Kopie konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>%1 is in the way and can&apos;t be replaced.</source>
        <translation>%1 steht im Weg und kann nicht ersetzt werden.</translation>
    </message>
</context>
<context>
    <name>lullet::BackupTab</name>
    <message>
        <source>Back up at each launch</source>
        <translation>Bei jedem Start sichern</translation>
    </message>
    <message>
        <source>Keep all backups</source>
        <translation>Alle Sicherungen behalten</translation>
    </message>
    <message>
        <source>Keep backups for a week</source>
        <translation>Sicherungen eine Woche lang behalten</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Sicherungen</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Restore…</source>
        <translation>Wiederherstellen…</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>Löschen…</translation>
    </message>
    <message>
        <source>Back Up Now…</source>
        <translation>Jetzt sichern…</translation>
    </message>
    <message>
        <source>Restore From File…</source>
        <translation>Aus Datei wiederherstellen…</translation>
    </message>
    <message>
        <source>Delete All…</source>
        <translation>Alle löschen…</translation>
    </message>
    <message>
        <source>Save a Copy…</source>
        <translation>Kopie speichern…</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>Im Dateimanager zeigen</translation>
    </message>
    <message>
        <source>Selected backup will be deleted.</source>
        <translation>Die ausgewählte Sicherung wird gelöscht.</translation>
    </message>
    <message>
        <source>Are you sure to delete ?</source>
        <translation>Wirklich löschen?</translation>
    </message>
    <message>
        <source>The backup&apos;s file could not be deleted.</source>
        <translation>Die Datei der Sicherung konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>All backups will be deleted.</source>
        <translation>Alle Sicherungen werden gelöscht.</translation>
    </message>
    <message>
        <source>Some backup files could not be deleted.</source>
        <translation>Einige Sicherungsdateien konnten nicht gelöscht werden.</translation>
    </message>
</context>
<context>
    <name>lullet::Backups</name>
    <message>
        <source>No backup was made: the folder %1 could not be created.</source>
        <translation>Es wurde keine Sicherung erstellt: Der Ordner %1 konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>No backup was made. %1</source>
        <translation>Es wurde keine Sicherung erstellt. %1</translation>
    </message>
    <message>
        <source>That file is the store Lullet is using now.</source>
        <translation>Diese Datei ist die Datenbank, die Lullet gerade verwendet.</translation>
    </message>
    <message>
        <source>That file is one Lullet works with while it copies or restores, not a backup.</source>
        <translation>Diese Datei verwendet Lullet beim Kopieren oder Wiederherstellen; sie ist keine Sicherung.</translation>
    </message>
    <message>
        <source>Your latest changes could not be saved, so nothing was restored.</source>
        <translation>Ihre letzten Änderungen konnten nicht gespeichert werden, daher wurde nichts wiederhergestellt.</translation>
    </message>
    <message>
        <source>No safety copy of your present data could be made, so nothing was restored.</source>
        <translation>Von Ihren aktuellen Daten konnte keine Sicherheitskopie erstellt werden, daher wurde nichts wiederhergestellt.</translation>
    </message>
</context>
<context>
    <name>lullet::Catalogue</name>
    <message>
        <source>Custom breaks</source>
        <translation>Eigene Pausen</translation>
    </message>
</context>
<context>
    <name>lullet::CircularProgress</name>
    <message>
        <source>%1 % complete</source>
        <translation>%1 % erledigt</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>lullet::ContactWindow</name>
    <message>
        <source>Contact Us</source>
        <translation>Kontakt</translation>
    </message>
    <message>
        <source>A question, an idea, or something that does not work as it should? Write to us at %1, or use the form on %2.</source>
        <translation>Eine Frage, eine Idee oder funktioniert etwas nicht wie erwartet? Schreiben Sie uns an %1 oder nutzen Sie das Formular auf %2.</translation>
    </message>
    <message>
        <source>our contact page</source>
        <translation>unserer Kontaktseite</translation>
    </message>
    <message>
        <source>Many answers are already in the %1.</source>
        <translation>Viele Antworten finden Sie bereits in den %1.</translation>
    </message>
    <message>
        <source>FAQ</source>
        <translation>FAQ</translation>
    </message>
</context>
<context>
    <name>lullet::DashboardView</name>
    <message>
        <source>You need to provide data for the chart.</source>
        <translation>Für das Diagramm liegen keine Daten vor.</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Projekte</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>Aufgaben</translation>
    </message>
    <message>
        <source>Planned</source>
        <translation>Geplant</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren…</translation>
    </message>
    <message>
        <source>Print, save as PDF or mail</source>
        <translation>Drucken, als PDF speichern oder per E-Mail senden</translation>
    </message>
</context>
<context>
    <name>lullet::DateChooser</name>
    <message>
        <source>No date</source>
        <translation>Kein Datum</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Festlegen</translation>
    </message>
</context>
<context>
    <name>lullet::GeneralTab</name>
    <message>
        <source>Start Lullet at login</source>
        <translation>Lullet bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Show the window in the taskbar at launch</source>
        <translation>Beim Start das Fenster in der Taskleiste zeigen</translation>
    </message>
    <message>
        <source>Show the icon in the tray</source>
        <translation>Symbol in der Systemleiste zeigen</translation>
    </message>
    <message>
        <source> min</source>
        <translation> Min.</translation>
    </message>
    <message>
        <source>Hold prompts when I&apos;m away for</source>
        <translation>Hinweise zurückhalten bei Abwesenheit ab</translation>
    </message>
    <message>
        <source>Hold prompts while another program is full screen</source>
        <translation>Hinweise zurückhalten, solange ein anderes Programm im Vollbild läuft</translation>
    </message>
    <message>
        <source>A break due while I&apos;m away for its length counts as taken</source>
        <translation>Abwesenheit über die volle Dauer einer fälligen Pause zählt als Pause</translation>
    </message>
    <message>
        <source>Play a sound with each prompt</source>
        <translation>Bei jedem Hinweis einen Ton abspielen</translation>
    </message>
    <message>
        <source>Ask what I&apos;m doing after</source>
        <translation>Fragen, was ich tue, nach</translation>
    </message>
    <message>
        <source>During your working hours, when nothing has run for this long, Lullet asks what you have been doing.</source>
        <translation>Wenn während Ihrer Arbeitszeiten so lange nichts gelaufen ist, fragt Lullet, was Sie gemacht haben.</translation>
    </message>
    <message>
        <source>Lullet could not change how it starts at login.</source>
        <translation>Lullet konnte den Start bei der Anmeldung nicht ändern.</translation>
    </message>
    <message>
        <source>You must now restart app</source>
        <translation>Lullet muss jetzt neu gestartet werden</translation>
    </message>
    <message>
        <source>Your new setting for the taskbar won&apos;t show up until you relaunch this application.</source>
        <translation>Ihre neue Einstellung für die Taskleiste wird erst wirksam, wenn Sie das Programm neu starten.</translation>
    </message>
    <message>
        <source>Relaunch Now</source>
        <translation>Jetzt neu starten</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Lullet could not be started again.</source>
        <translation>Lullet konnte nicht neu gestartet werden.</translation>
    </message>
    <message>
        <source>Quit Lullet and start it yourself to see the new setting.</source>
        <translation>Beenden Sie Lullet und starten Sie es selbst neu, damit die neue Einstellung wirkt.</translation>
    </message>
</context>
<context>
    <name>lullet::HelpWindow</name>
    <message>
        <source>Lullet Help</source>
        <translation>Lullet-Hilfe</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>lullet::IdlePromptView</name>
    <message>
        <source>What have you been doing?</source>
        <translation>Was haben Sie gemacht?</translation>
    </message>
    <message>
        <source>What you have been doing</source>
        <translation>Was Sie gemacht haben</translation>
    </message>
    <message>
        <source>Meeting</source>
        <translation>Besprechung</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Phone call</source>
        <translation>Telefonat</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Lunch</source>
        <translation>Mittagessen</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Ask again in one prompt period</source>
        <translation>Nach der eingestellten Wartezeit erneut fragen</translation>
    </message>
    <message>
        <source>Done already</source>
        <translation>Schon erledigt</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
</context>
<context>
    <name>lullet::ItemListModel</name>
    <message>
        <source>%1  (%2)</source>
        <translation>%1  (%2)</translation>
    </message>
    <message>
        <source>%1  (%2)   %3</source>
        <translation>%1  (%2)   %3</translation>
    </message>
    <message>
        <source>Stop: it is done</source>
        <translation>Stoppen: erledigt</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Verbraucht</translation>
    </message>
</context>
<context>
    <name>lullet::ItemListView</name>
    <message>
        <source>Items</source>
        <translation>Einträge</translation>
    </message>
    <message>
        <source>Nothing here. Enjoy the calm.</source>
        <translation>Hier ist nichts. Genießen Sie die Ruhe.</translation>
    </message>
    <message>
        <source>Task completed</source>
        <translation>Aufgabe erledigt</translation>
    </message>
    <message>
        <source>%1 has been completed now</source>
        <translation>%1 ist jetzt erledigt</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Lullet postponed</source>
        <translation>Eintrag verschoben</translation>
    </message>
    <message>
        <source>%1 has been postponed to %2 %3 %4</source>
        <translation>%1 wurde auf den %2. %3 %4 verschoben</translation>
    </message>
</context>
<context>
    <name>lullet::ItemMenu</name>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Abschließen</translation>
    </message>
    <message>
        <source>Postpone…</source>
        <translation>Verschieben…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Postpone</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>In 3 hours</source>
        <translation>In 3 Stunden</translation>
    </message>
    <message>
        <source>Next week</source>
        <translation>Nächste Woche</translation>
    </message>
    <message>
        <source>In a month</source>
        <translation>In einem Monat</translation>
    </message>
    <message>
        <source>Move to</source>
        <translation>Verschieben nach</translation>
    </message>
    <message>
        <source>Duplicate to</source>
        <translation>Duplizieren nach</translation>
    </message>
    <message>
        <source>No Project</source>
        <translation>Kein Projekt</translation>
    </message>
</context>
<context>
    <name>lullet::Library</name>
    <message>
        <source>Your changes could not be saved: %1. Lullet keeps them and saves them with your next change.</source>
        <translation>Ihre Änderungen konnten nicht gespeichert werden: %1. Lullet behält sie und speichert sie mit Ihrer nächsten Änderung.</translation>
    </message>
</context>
<context>
    <name>lullet::ListHeader</name>
    <message>
        <source>h</source>
        <translation>h</translation>
    </message>
    <message>
        <source>Ask when idle</source>
        <translation>Bei Leerlauf fragen</translation>
    </message>
    <message>
        <source>When nothing runs in working hours, ask what you have been doing</source>
        <translation>Wenn während der Arbeitszeiten nichts läuft, fragen, was Sie gemacht haben</translation>
    </message>
    <message>
        <source>Started only</source>
        <translation>Nur gestartete</translation>
    </message>
    <message>
        <source>List only the items that have been started</source>
        <translation>Nur die Einträge zeigen, die gestartet wurden</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Erledigt</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Add Tasks…</source>
        <translation>Aufgaben hinzufügen…</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Time used %1</source>
        <translation>Verbrauchte Zeit %1</translation>
    </message>
    <message>
        <source>No Lullet</source>
        <translation>Keine Einträge</translation>
    </message>
    <message>
        <source>Ongoing</source>
        <translation>In Arbeit</translation>
    </message>
    <message>
        <source>Running: %1</source>
        <translation>Läuft: %1</translation>
    </message>
</context>
<context>
    <name>lullet::LoginPage</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>PLEASE ENTER PASSWORD...</source>
        <translation>BITTE PASSWORT EINGEBEN...</translation>
    </message>
    <message>
        <source>INCORRECT PASSWORD...</source>
        <translation>FALSCHES PASSWORT...</translation>
    </message>
    <message>
        <source>Lullet cannot reach your keyring, so it cannot check the password. Your data stays locked.
%1</source>
        <translation>Lullet erreicht Ihren Schlüsselbund nicht und kann das Passwort daher nicht prüfen. Ihre Daten bleiben gesperrt.
%1</translation>
    </message>
</context>
<context>
    <name>lullet::MainWindow</name>
    <message>
        <source>&amp;Lullet</source>
        <translation>&amp;Lullet</translation>
    </message>
    <message>
        <source>Quick &amp;Add</source>
        <translation>&amp;Schnelleingabe</translation>
    </message>
    <message>
        <source>&amp;Back Up Now…</source>
        <translation>Jetzt &amp;sichern…</translation>
    </message>
    <message>
        <source>&amp;Restore From File…</source>
        <translation>Aus Datei &amp;wiederherstellen…</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Einstellungen…</translation>
    </message>
    <message>
        <source>&amp;Quit Lullet</source>
        <translation>Lullet &amp;beenden</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Lullet &amp;Help</source>
        <translation>Lullet-&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;User&apos;s Guide</source>
        <translation>&amp;Benutzerhandbuch</translation>
    </message>
    <message>
        <source>&amp;Frequently Asked Questions</source>
        <translation>Häufig gestellte &amp;Fragen</translation>
    </message>
    <message>
        <source>&amp;Website</source>
        <translation>&amp;Website</translation>
    </message>
    <message>
        <source>&amp;Privacy Policy</source>
        <translation>&amp;Datenschutzerklärung</translation>
    </message>
    <message>
        <source>&amp;Terms and Conditions</source>
        <translation>&amp;Nutzungsbedingungen</translation>
    </message>
    <message>
        <source>&amp;Contact Us…</source>
        <translation>&amp;Kontakt…</translation>
    </message>
</context>
<context>
    <name>lullet::MoreInfoTab</name>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Lullet keeps you to short, healthy pauses through the day and to your tasks, and asks what you have been doing when nothing runs during your working hours. Your data stays on this computer.</source>
        <translation>Lullet hält Sie den Tag über zu kurzen, gesunden Pausen und zu Ihren Aufgaben an und fragt, was Sie gemacht haben, wenn während Ihrer Arbeitszeiten nichts läuft. Ihre Daten bleiben auf diesem Computer.</translation>
    </message>
    <message>
        <source>Open the User&apos;s Guide</source>
        <translation>Benutzerhandbuch öffnen</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Frequently Asked Questions</source>
        <translation>Häufig gestellte Fragen</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>Datenschutzerklärung</translation>
    </message>
    <message>
        <source>Terms and Conditions</source>
        <translation>Nutzungsbedingungen</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>Kontakt</translation>
    </message>
</context>
<context>
    <name>lullet::MoreTimeMenu</name>
    <message numerus="yes">
        <source>%n minute(s)</source>
        <translation>
            <numerusform>%n Minute</numerusform>
            <numerusform>%n Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s)</source>
        <translation>
            <numerusform>%n Stunde</numerusform>
            <numerusform>%n Stunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> %n minute(s)</source>
        <translation>
            <numerusform> %n Minute</numerusform>
            <numerusform> %n Minuten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lullet::PauseActions</name>
    <message>
        <source>Pause Reminders</source>
        <translation>Erinnerungen pausieren</translation>
    </message>
    <message>
        <source>For 30 Minutes</source>
        <translation>30 Minuten lang</translation>
    </message>
    <message>
        <source>For 1 Hour</source>
        <translation>1 Stunde lang</translation>
    </message>
    <message>
        <source>For 2 Hours</source>
        <translation>2 Stunden lang</translation>
    </message>
    <message>
        <source>Until Tomorrow</source>
        <translation>Bis morgen</translation>
    </message>
    <message>
        <source>Until I Resume</source>
        <translation>Bis ich fortsetze</translation>
    </message>
    <message>
        <source>Resume Reminders</source>
        <translation>Erinnerungen fortsetzen</translation>
    </message>
</context>
<context>
    <name>lullet::PostponePanel</name>
    <message>
        <source>Postpone %1</source>
        <translation>%1 verschieben</translation>
    </message>
    <message>
        <source>In 3 hours</source>
        <translation>In 3 Stunden</translation>
    </message>
    <message>
        <source>Next week</source>
        <translation>Nächste Woche</translation>
    </message>
    <message>
        <source>No date</source>
        <translation>Kein Datum</translation>
    </message>
    <message>
        <source>Pick date…</source>
        <translation>Datum wählen…</translation>
    </message>
    <message>
        <source>EEE d MMM</source>
        <comment>ICU date pattern</comment>
        <translation>EEE, d. MMM</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Postpone</source>
        <translation>Verschieben</translation>
    </message>
</context>
<context>
    <name>lullet::PreferencesWindow</name>
    <message>
        <source>Lullet Preferences</source>
        <translation>Lullet-Einstellungen</translation>
    </message>
</context>
<context>
    <name>lullet::PromptView</name>
    <message>
        <source>Finished</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Need more time</source>
        <translation>Mehr Zeit nötig</translation>
    </message>
</context>
<context>
    <name>lullet::Protection</name>
    <message>
        <source>Your keyring did not answer.</source>
        <translation>Ihr Schlüsselbund hat nicht geantwortet.</translation>
    </message>
</context>
<context>
    <name>lullet::QuickAddView</name>
    <message>
        <source>No Project</source>
        <translation>Kein Projekt</translation>
    </message>
    <message>
        <source>Quick add</source>
        <translation>Schnelleingabe</translation>
    </message>
    <message>
        <source>Task name</source>
        <translation>Name der Aufgabe</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>Fälligkeitsdatum</translation>
    </message>
</context>
<context>
    <name>lullet::ReminderNotice</name>
    <message>
        <source>Reminder</source>
        <translation>Erinnerung</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>In 10 min</source>
        <translation>In 10 Min.</translation>
    </message>
</context>
<context>
    <name>lullet::ReminderPause</name>
    <message>
        <source>Reminders paused until you resume them</source>
        <translation>Erinnerungen pausiert, bis Sie sie fortsetzen</translation>
    </message>
    <message>
        <source>Reminders paused until %1</source>
        <translation>Erinnerungen pausiert bis %1</translation>
    </message>
</context>
<context>
    <name>lullet::ReminderPromptView</name>
    <message>
        <source>Reminder</source>
        <translation>Erinnerung</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>In 10 min</source>
        <translation>In 10 Min.</translation>
    </message>
    <message>
        <source>In 30 min</source>
        <translation>In 30 Min.</translation>
    </message>
</context>
<context>
    <name>lullet::RepeatListModel</name>
    <message>
        <source>%1 - %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>On</source>
        <translation>An</translation>
    </message>
    <message>
        <source>Lullet</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nächste</translation>
    </message>
</context>
<context>
    <name>lullet::RepeatListView</name>
    <message>
        <source>Lullets</source>
        <translation>Pausen</translation>
    </message>
    <message>
        <source>New lullet…</source>
        <translation>Neue Pause…</translation>
    </message>
    <message>
        <source>Today: %1 of %2 done   Time used %3 of %4</source>
        <translation>Heute: %1 von %2 erledigt   Verbrauchte Zeit %3 von %4</translation>
    </message>
    <message>
        <source>Are you sure to delete ?</source>
        <translation>Wirklich löschen?</translation>
    </message>
    <message>
        <source>This Reminder will be deleted.</source>
        <translation>Diese Pause wird gelöscht.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Bearbeiten…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>lullet::RuleFormView</name>
    <message>
        <source>Edit lullet</source>
        <translation>Pause bearbeiten</translation>
    </message>
    <message>
        <source>New lullet</source>
        <translation>Neue Pause</translation>
    </message>
    <message>
        <source>Edit task</source>
        <translation>Aufgabe bearbeiten</translation>
    </message>
    <message>
        <source>New task</source>
        <translation>Neue Aufgabe</translation>
    </message>
    <message>
        <source>Due on</source>
        <translation>Fällig am</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Vorwarnung</translation>
    </message>
    <message>
        <source>Duration in hours</source>
        <translation>Dauer in Stunden</translation>
    </message>
    <message>
        <source> hr</source>
        <translation> Std.</translation>
    </message>
    <message>
        <source>Duration in minutes</source>
        <translation>Dauer in Minuten</translation>
    </message>
    <message>
        <source> min</source>
        <translation> Min.</translation>
    </message>
    <message>
        <source>A to-do takes no time: it is confirmed when done.</source>
        <translation>Ein To-do braucht keine Zeit: Es wird bestätigt, wenn es erledigt ist.</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Remind me when it is due</source>
        <translation>Erinnern, wenn fällig</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>First on</source>
        <translation>Erstmals am</translation>
    </message>
    <message>
        <source>Repeat every</source>
        <translation>Wiederholen alle</translation>
    </message>
    <message>
        <source>Ends</source>
        <translation>Endet</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Switched on</source>
        <translation>Eingeschaltet</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>lullet::RunningListView</name>
    <message>
        <source>Lullet is locked. Enter your password in its window to see your tasks.</source>
        <translation>Lullet ist gesperrt. Geben Sie im Lullet-Fenster Ihr Passwort ein, um Ihre Aufgaben zu sehen.</translation>
    </message>
    <message>
        <source>Running now</source>
        <translation>Läuft gerade</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Open Lullet</source>
        <translation>Lullet öffnen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Nothing is running.</source>
        <translation>Es läuft nichts.</translation>
    </message>
</context>
<context>
    <name>lullet::ScheduleTab</name>
    <message>
        <source>Working hours</source>
        <translation>Arbeitszeiten</translation>
    </message>
    <message>
        <source>Lullet asks what you have been doing only on working days, between these times.</source>
        <translation>Lullet fragt nur an Arbeitstagen zwischen diesen Zeiten, was Sie gemacht haben.</translation>
    </message>
</context>
<context>
    <name>lullet::ScheduleTableModel</name>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Working day</source>
        <translation>Arbeitstag</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
</context>
<context>
    <name>lullet::SecurityTab</name>
    <message>
        <source>Protect Lullet with a password</source>
        <translation>Lullet mit einem Passwort schützen</translation>
    </message>
    <message>
        <source>With a password, Lullet asks for it each time it starts, before it shows anything of your tasks.</source>
        <translation>Mit Passwort fragt Lullet bei jedem Start danach, bevor es etwas von Ihren Aufgaben zeigt.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Current password:</source>
        <translation>Aktuelles Passwort:</translation>
    </message>
    <message>
        <source>New password:</source>
        <translation>Neues Passwort:</translation>
    </message>
    <message>
        <source>Confirm password:</source>
        <translation>Passwort bestätigen:</translation>
    </message>
    <message>
        <source>Reading the keyring…</source>
        <translation>Schlüsselbund wird gelesen…</translation>
    </message>
    <message>
        <source>Lullet cannot reach your keyring, where the password is kept. Nothing here can change until it can.
%1</source>
        <translation>Lullet erreicht Ihren Schlüsselbund nicht, in dem das Passwort liegt. Hier lässt sich nichts ändern, bis er erreichbar ist.
%1</translation>
    </message>
    <message>
        <source>Protection is off, but your keyring could not remove the password.</source>
        <translation>Der Schutz ist aus, aber Ihr Schlüsselbund konnte das Passwort nicht entfernen.</translation>
    </message>
    <message>
        <source>Password protection is set!</source>
        <translation>Der Passwortschutz ist eingerichtet!</translation>
    </message>
    <message>
        <source>Your keyring could not store the password, so protection stays off.
%1</source>
        <translation>Ihr Schlüsselbund konnte das Passwort nicht speichern, daher bleibt der Schutz aus.
%1</translation>
    </message>
</context>
<context>
    <name>lullet::Shell</name>
    <message>
        <source>Loading…</source>
        <translation>Wird geladen…</translation>
    </message>
    <message>
        <source>Lullet is locked</source>
        <translation>Lullet ist gesperrt</translation>
    </message>
    <message>
        <source>Open Lullet</source>
        <translation>Lullet öffnen</translation>
    </message>
    <message>
        <source>Quick Add</source>
        <translation>Schnelleingabe</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Einstellungen…</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Quit Lullet</source>
        <translation>Lullet beenden</translation>
    </message>
    <message>
        <source>Lullet is locked.</source>
        <translation>Lullet ist gesperrt.</translation>
    </message>
    <message>
        <source>Enter your password first, then add the task.</source>
        <translation>Geben Sie zuerst Ihr Passwort ein, dann können Sie die Aufgabe hinzufügen.</translation>
    </message>
</context>
<context>
    <name>lullet::SidebarView</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Quick Add (%1)</source>
        <translation>Schnelleingabe (%1)</translation>
    </message>
    <message>
        <source>Quick Add</source>
        <translation>Schnelleingabe</translation>
    </message>
    <message>
        <source>Lists and projects</source>
        <translation>Listen und Projekte</translation>
    </message>
    <message>
        <source>New project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Duplicate as new</source>
        <translation>Als neues duplizieren</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>• %1</source>
        <translation>• %1</translation>
    </message>
    <message>
        <source>%1   %2</source>
        <translation>%1   %2</translation>
    </message>
    <message>
        <source>%1   %2%</source>
        <translation>%1   %2 %</translation>
    </message>
    <message>
        <source>%1
Progress: time used of time planned. A task with no planned length counts only the time it has run.</source>
        <translation>%1
Fortschritt: verbrauchte von geplanter Zeit. Eine Aufgabe ohne geplante Dauer zählt nur die Zeit, die sie gelaufen ist.</translation>
    </message>
</context>
<context>
    <name>lullet::SingleInstance</name>
    <message>
        <source>Cannot make the folder %1.</source>
        <translation>Der Ordner %1 kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The folder %1 is not private to this user; Lullet will not use it to talk to itself.</source>
        <translation>Der Ordner %1 gehört nicht allein diesem Benutzer; Lullet verwendet ihn daher nicht für die Verständigung zwischen seinen Instanzen.</translation>
    </message>
    <message>
        <source>Cannot open the lock file in %1.</source>
        <translation>Die Sperrdatei in %1 kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Cannot listen on %1.</source>
        <translation>Auf %1 kann nicht gelauscht werden.</translation>
    </message>
</context>
<context>
    <name>lullet::SyncTab</name>
    <message>
        <source>Sync Now</source>
        <translation>Jetzt synchronisieren</translation>
    </message>
    <message>
        <source>Stop Syncing</source>
        <translation>Synchronisation beenden</translation>
    </message>
    <message>
        <source>Keep your tasks, projects and repeating lullets in step with a CalDAV server (Nextcloud, Radicale, Fastmail and others), and so with your other computers and your phone.</source>
        <translation>Halten Sie Ihre Aufgaben, Projekte und wiederkehrenden Pausen mit einem CalDAV-Server (Nextcloud, Radicale, Fastmail und andere) abgeglichen, und damit auch mit Ihren anderen Computern und Ihrem Telefon.</translation>
    </message>
    <message>
        <source>Server or collection:</source>
        <translation>Server oder Sammlung:</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Benutzername:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
    <message>
        <source>Leave the user name empty for a server without logins. The password is kept in your keyring.</source>
        <translation>Lassen Sie den Benutzernamen bei einem Server ohne Anmeldung leer. Das Passwort wird in Ihrem Schlüsselbund aufbewahrt.</translation>
    </message>
    <message>
        <source>Last sync:</source>
        <translation>Letzte Synchronisation:</translation>
    </message>
    <message>
        <source>Enter the address of a CalDAV server or collection, such as https://dav.example.com/.</source>
        <translation>Geben Sie die Adresse eines CalDAV-Servers oder einer Sammlung ein, etwa https://dav.example.com/.</translation>
    </message>
    <message>
        <source>Your keyring could not keep the password (%1), so nothing was changed.</source>
        <translation>Ihr Schlüsselbund konnte das Passwort nicht aufbewahren (%1), daher wurde nichts geändert.</translation>
    </message>
    <message>
        <source>Save Changes</source>
        <translation>Änderungen speichern</translation>
    </message>
    <message>
        <source>Start Syncing</source>
        <translation>Synchronisation starten</translation>
    </message>
    <message>
        <source>Kept in your keyring</source>
        <translation>In Ihrem Schlüsselbund aufbewahrt</translation>
    </message>
    <message>
        <source>Sync is off: your data stays on this computer.</source>
        <translation>Die Synchronisation ist aus: Ihre Daten bleiben auf diesem Computer.</translation>
    </message>
    <message>
        <source>Syncing…</source>
        <translation>Wird synchronisiert…</translation>
    </message>
    <message>
        <source>Not synced yet.</source>
        <translation>Noch nicht synchronisiert.</translation>
    </message>
    <message numerus="yes">
        <source>%n item(s) on the server could not be read and were left there.</source>
        <translation>
            <numerusform>%n Eintrag auf dem Server konnte nicht gelesen werden und wurde dort belassen.</numerusform>
            <numerusform>%n Einträge auf dem Server konnten nicht gelesen werden und wurden dort belassen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The server refused %n change(s); they wait here.</source>
        <translation>
            <numerusform>Der Server hat %n Änderung abgelehnt; sie bleibt hier gespeichert.</numerusform>
            <numerusform>Der Server hat %n Änderungen abgelehnt; sie bleiben hier gespeichert.</numerusform>
        </translation>
    </message>
    <message>
        <source>Synced %1.</source>
        <translation>Synchronisiert %1.</translation>
    </message>
    <message>
        <source>Your keyring could not give the password (%1).</source>
        <translation>Ihr Schlüsselbund konnte das Passwort nicht herausgeben (%1).</translation>
    </message>
    <message>
        <source>What came from the server could not be saved here; the next sync tries again.</source>
        <translation>Was vom Server kam, konnte hier nicht gespeichert werden; die nächste Synchronisation versucht es erneut.</translation>
    </message>
    <message>
        <source>The server could not be reached (%1). Your changes wait here and go at the next sync.</source>
        <translation>Der Server war nicht erreichbar (%1). Ihre Änderungen bleiben hier und werden bei der nächsten Synchronisation übertragen.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate is not trusted (%1), so nothing was sent.</source>
        <translation>Dem Zertifikat des Servers wird nicht vertraut (%1), daher wurde nichts gesendet.</translation>
    </message>
    <message>
        <source>The server refused the user name or password.</source>
        <translation>Der Server hat den Benutzernamen oder das Passwort abgelehnt.</translation>
    </message>
    <message>
        <source>There is no collection at this address.</source>
        <translation>Unter dieser Adresse gibt es keine Sammlung.</translation>
    </message>
    <message>
        <source>No calendar that holds tasks was found at this address.</source>
        <translation>Unter dieser Adresse wurde kein Kalender für Aufgaben gefunden.</translation>
    </message>
    <message>
        <source>The server failed (%1). Your changes wait here and go at the next sync.</source>
        <translation>Beim Server ist ein Fehler aufgetreten (%1). Ihre Änderungen bleiben hier und werden bei der nächsten Synchronisation übertragen.</translation>
    </message>
    <message>
        <source>The last sync was cut short. Your changes wait here and go at the next sync.</source>
        <translation>Die letzte Synchronisation wurde abgebrochen. Ihre Änderungen bleiben hier und werden bei der nächsten Synchronisation übertragen.</translation>
    </message>
    <message>
        <source>The server&apos;s answer made no sense (%1), so nothing was changed.</source>
        <translation>Die Antwort des Servers ergab keinen Sinn (%1), daher wurde nichts geändert.</translation>
    </message>
    <message>
        <source>The server refused the sync (%1). Your changes wait here.</source>
        <translation>Der Server hat die Synchronisation abgelehnt (%1). Ihre Änderungen bleiben hier gespeichert.</translation>
    </message>
</context>
<context>
    <name>lullet::TimeOverPromptView</name>
    <message>
        <source>Time is up</source>
        <translation>Die Zeit ist um</translation>
    </message>
</context>
<context>
    <name>lullet::TodoPromptView</name>
    <message>
        <source>Lullet</source>
        <translation>Lullet</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Erledigt</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Nicht jetzt</translation>
    </message>
</context>
<context>
    <name>lullet::WelcomeSlides</name>
    <message>
        <source>Previous</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>User&apos;s Guide</source>
        <translation>Benutzerhandbuch</translation>
    </message>
    <message>
        <source>Slide %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
</context>
<context>
    <name>lullet::WindowContent</name>
    <message>
        <source>Get Started</source>
        <translation>Los geht’s</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Some of your older history could not be read: lists and counts may be short.</source>
        <translation>Ein Teil Ihres älteren Verlaufs konnte nicht gelesen werden: Listen und Zählungen sind möglicherweise unvollständig.</translation>
    </message>
    <message>
        <source>Your working hours could not be read.</source>
        <translation>Ihre Arbeitszeiten konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Lullet uses Monday to Friday, 9:00 to 18:00, until you set them again. What could not be read is kept under &quot;schedulesUnreadable&quot; in %1.</source>
        <translation>Lullet verwendet Montag bis Freitag, 9:00 bis 18:00 Uhr, bis Sie sie neu festlegen. Was nicht gelesen werden konnte, ist unter „schedulesUnreadable“ in %1 aufbewahrt.</translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>Die Änderungen konnten beim Beenden nicht gespeichert werden. Trotzdem beenden?</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>Wenn Sie jetzt beenden, gehen alle Änderungen seit dem letzten erfolgreichen Speichern verloren</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>Trotzdem beenden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>no display. Start Lullet in your desktop session.</source>
        <translation>keine Anzeige gefunden. Starten Sie Lullet in Ihrer Desktop-Sitzung.</translation>
    </message>
    <message>
        <source>Another Lullet is running but does not answer.</source>
        <translation>Eine andere Lullet-Instanz läuft, antwortet aber nicht.</translation>
    </message>
</context>
</TS>
