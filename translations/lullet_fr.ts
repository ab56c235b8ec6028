<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Autostart</name>
    <message>
        <source>Cannot make the folder %1.</source>
        <translation>Impossible de créer le dossier %1.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Impossible d’écrire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Cannot remove %1: %2</source>
        <translation>Impossible de supprimer %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>Backups</name>
    <message>
        <source>Backup</source>
        <translation>Sauvegarde</translation>
    </message>
    <message>
        <source>Restored Backup</source>
        <translation>Avant restauration</translation>
    </message>
</context>
<context>
    <name>CalDavClient</name>
    <message>
        <source>HTTP status %1</source>
        <translation>statut HTTP %1</translation>
    </message>
    <message>
        <source>no WebDAV answer</source>
        <translation>pas de réponse WebDAV</translation>
    </message>
    <message>
        <source>no sync token</source>
        <translation>pas de jeton de synchronisation</translation>
    </message>
</context>
<context>
    <name>CatalogueEntries</name>
    <message>
        <source>Rest breaks</source>
        <translation>Pauses détente</translation>
    </message>
    <message>
        <source>Nutrition breaks</source>
        <translation>Pauses nutrition</translation>
    </message>
    <message>
        <source>Fitness breaks</source>
        <translation>Pauses forme</translation>
    </message>
    <message>
        <source>Light Food breaks</source>
        <translation>Pauses en-cas</translation>
    </message>
    <message>
        <source>Lunch break</source>
        <translation>Pause déjeuner</translation>
    </message>
    <message>
        <source>Its time for lunch. Make sure you are having it on time.</source>
        <translation>C’est l’heure du déjeuner. Veillez à le prendre à l’heure.</translation>
    </message>
    <message>
        <source>Tea break</source>
        <translation>Pause thé</translation>
    </message>
    <message>
        <source>Small tea breaks improve concentration and garner energy.</source>
        <translation>De petites pauses thé améliorent la concentration et redonnent de l’énergie.</translation>
    </message>
    <message>
        <source>Washroom</source>
        <translation>Se rafraîchir</translation>
    </message>
    <message>
        <source>Remove any dirts and always keep yourself clean and fresh.</source>
        <translation>Prenez soin de votre hygiène et gardez une sensation de fraîcheur.</translation>
    </message>
    <message>
        <source>Breakfast time</source>
        <translation>Petit-déjeuner</translation>
    </message>
    <message>
        <source>Never skip your breakfast and do it on time, every day!</source>
        <translation>Ne sautez jamais le petit-déjeuner et prenez-le à l’heure, chaque jour&#xa0;!</translation>
    </message>
    <message>
        <source>Fruits time</source>
        <translation>Pause fruits</translation>
    </message>
    <message>
        <source>Eat plenty of fruits and make your diet healthier.</source>
        <translation>Mangez beaucoup de fruits pour une alimentation plus saine.</translation>
    </message>
    <message>
        <source>Water time</source>
        <translation>Boire de l’eau</translation>
    </message>
    <message>
        <source>Drink lots of water to hydrate your body through out the day.</source>
        <translation>Buvez beaucoup d’eau pour bien vous hydrater tout au long de la journée.</translation>
    </message>
    <message>
        <source>Body stretching</source>
        <translation>Étirements</translation>
    </message>
    <message>
        <source>Stretching exercises can improve your posture as well as relief stress.</source>
        <translation>Les étirements peuvent améliorer votre posture et soulager le stress.</translation>
    </message>
    <message>
        <source>Walk break</source>
        <translation>Pause marche</translation>
    </message>
    <message>
        <source>A 20 minutes walk can increase blood flow to the brain and boost creativity.</source>
        <translation>Une marche de 20 minutes peut augmenter l’afflux sanguin vers le cerveau et stimuler la créativité.</translation>
    </message>
    <message>
        <source>Stand up</source>
        <translation>Se lever</translation>
    </message>
    <message>
        <source>Stand up and take some steps around the room.</source>
        <translation>Levez-vous et faites quelques pas dans la pièce.</translation>
    </message>
    <message>
        <source>power nap</source>
        <translation>Sieste éclair</translation>
    </message>
    <message>
        <source>A 10 minutes has been shown to improve cognitive function and decrease sleepiness and fatigue.</source>
        <translation>Il est prouvé qu’une sieste de 10 minutes améliore les fonctions cognitives et réduit la somnolence et la fatigue.</translation>
    </message>
    <message>
        <source>Exercise break</source>
        <translation>Pause exercice</translation>
    </message>
    <message>
        <source>Pick a decent workout in under 10 minutes to give your mind the needed rest.</source>
        <translation>Faites une bonne séance d’exercice de moins de 10 minutes pour offrir à votre esprit le repos dont il a besoin.</translation>
    </message>
    <message>
        <source>Meditation break</source>
        <translation>Pause méditation</translation>
    </message>
    <message>
        <source>Relax your brain in a short amount of time by meditating.</source>
        <translation>Détendez votre esprit en peu de temps grâce à la méditation.</translation>
    </message>
    <message>
        <source>Eye exercise</source>
        <translation>Exercice des yeux</translation>
    </message>
    <message>
        <source>In every 20 minutes, take a break for at least 20 seconds and look at objects that are 20 feet away.</source>
        <translation>Toutes les 20 minutes, faites une pause d’au moins 20 secondes et regardez des objets situés à 6 mètres.</translation>
    </message>
    <message>
        <source>Go out side and see some nature</source>
        <translation>Sortir profiter de la nature</translation>
    </message>
    <message>
        <source>Spending time in nature is good for your immune system and has been shown to improve focus and relieve stress.</source>
        <translation>Passer du temps dans la nature est bon pour votre système immunitaire, et il est prouvé que cela améliore la concentration et soulage le stress.</translation>
    </message>
    <message>
        <source>Snack break</source>
        <translation>Pause en-cas</translation>
    </message>
    <message>
        <source>Take healthy snack breaks and store enough energy to run through out the day.</source>
        <translation>Prenez des en-cas sains pour garder assez d’énergie tout au long de la journée.</translation>
    </message>
    <message>
        <source>Coffee break</source>
        <translation>Pause café</translation>
    </message>
    <message>
        <source>Coffee breaks can stimulate your focus and make you stay awake if you are feeling drowsy.</source>
        <translation>Les pauses café peuvent stimuler votre concentration et vous aider à rester alerte en cas de somnolence.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Usage: lullet %1</source>
        <translation>Utilisation&#xa0;: lullet %1</translation>
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
Planifie de courtes pauses santé et vos tâches, depuis la zone de notification.

  --quick-add  ouvre la fenêtre d’ajout rapide de l’instance de Lullet lancée
  --in-tray    démarre dans la zone de notification sans ouvrir la fenêtre
  --pause [MINUTES]
               suspend les rappels de l’instance de Lullet lancée pendant
               MINUTES, ou jusqu’à leur reprise
  --resume     reprend les rappels
  --help       affiche cette aide et quitte
  --version    affiche la version et quitte

Un second lancement met au premier plan l’instance de Lullet déjà lancée.
</translation>
    </message>
    <message>
        <source>lullet: unknown option &apos;%1&apos;</source>
        <translation>lullet&#xa0;: option inconnue «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>DashboardSummary</name>
    <message>
        <source>JAN</source>
        <translation>JANV</translation>
    </message>
    <message>
        <source>FEB</source>
        <translation>FÉVR</translation>
    </message>
    <message>
        <source>MAR</source>
        <translation>MARS</translation>
    </message>
    <message>
        <source>APR</source>
        <translation>AVR</translation>
    </message>
    <message>
        <source>MAY</source>
        <translation>MAI</translation>
    </message>
    <message>
        <source>JUN</source>
        <translation>JUIN</translation>
    </message>
    <message>
        <source>JUL</source>
        <translation>JUIL</translation>
    </message>
    <message>
        <source>AUG</source>
        <translation>AOÛT</translation>
    </message>
    <message>
        <source>SEP</source>
        <translation>SEPT</translation>
    </message>
    <message>
        <source>OCT</source>
        <translation>OCT</translation>
    </message>
    <message>
        <source>NOV</source>
        <translation>NOV</translation>
    </message>
    <message>
        <source>DEC</source>
        <translation>DÉC</translation>
    </message>
    <message>
        <source>Not in Project</source>
        <translation>Hors projet</translation>
    </message>
</context>
<context>
    <name>DashboardView</name>
    <message>
        <source>Overdue</source>
        <translation>En retard</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Upcoming</source>
        <translation>À venir</translation>
    </message>
</context>
<context>
    <name>Db</name>
    <message>
        <source>the disk is full</source>
        <translation>le disque est plein</translation>
    </message>
    <message>
        <source>the store cannot be written</source>
        <translation>la base de données est en lecture seule</translation>
    </message>
    <message>
        <source>another program is using the store</source>
        <translation>un autre programme utilise la base de données</translation>
    </message>
    <message>
        <source>the store is damaged</source>
        <translation>la base de données est endommagée</translation>
    </message>
    <message>
        <source>the disk could not be read or written</source>
        <translation>le disque n’a pas pu être lu ou écrit</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
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
            <numerusform>%n min</numerusform>
            <numerusform>%n min</numerusform>
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
        <translation>(%1 - %2)</translation>
    </message>
    <message>
        <source>What are you doing now ?</source>
        <translation>Que faites-vous maintenant&#xa0;?</translation>
    </message>
    <message numerus="yes">
        <source>What were you doing for last %n minutes ?</source>
        <translation>
            <numerusform>Qu’avez-vous fait depuis %n minute&#xa0;?</numerusform>
            <numerusform>Qu’avez-vous fait depuis %n minutes&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source> Task name is blank! Please enter task name. </source>
        <translation> Le nom de la tâche est vide&#xa0;! Veuillez saisir un nom. </translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>A task is already running.</source>
        <translation>Une tâche est déjà en cours.</translation>
    </message>
    <message>
        <source>Another Task is already running. 
Do you want to complete that, and start this?</source>
        <translation>Une autre tâche est déjà en cours. 
Voulez-vous la terminer et démarrer cet élément&#xa0;?</translation>
    </message>
    <message>
        <source>Cannot postpone now</source>
        <translation>Impossible de reporter maintenant</translation>
    </message>
    <message>
        <source>Cannot postpone now as this Lullet is running</source>
        <translation>Impossible de reporter maintenant&#xa0;: ce lullet est en cours</translation>
    </message>
</context>
<context>
    <name>KeyringSecretStore</name>
    <message>
        <source>The keyring did not say why.</source>
        <translation>Le trousseau n’a pas indiqué pourquoi.</translation>
    </message>
    <message>
        <source>Your keyring is locked and could not be unlocked.</source>
        <translation>Votre trousseau est verrouillé et n’a pas pu être déverrouillé.</translation>
    </message>
</context>
<context>
    <name>ListBuilder</name>
    <message>
        <source>%1 %2, %3 %4</source>
        <translation>%1 %2 %3 %4</translation>
    </message>
</context>
<context>
    <name>PasswordRules</name>
    <message>
        <source>Please insert values in text fields</source>
        <translation>Veuillez remplir les champs</translation>
    </message>
    <message>
        <source>Password should be minimum 4 character</source>
        <translation>Le mot de passe doit comporter au moins 4 caractères</translation>
    </message>
    <message>
        <source>Passwords does not match</source>
        <translation>Les mots de passe ne correspondent pas</translation>
    </message>
    <message>
        <source>Wrong Password</source>
        <translation>Mot de passe incorrect</translation>
    </message>
</context>
<context>
    <name>Postponing</name>
    <message>
        <source>Tomorrow eve</source>
        <translation>Demain soir</translation>
    </message>
    <message>
        <source>Next evening</source>
        <translation>Le soir suivant</translation>
    </message>
    <message>
        <source>This evening</source>
        <translation>Ce soir</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Demain</translation>
    </message>
    <message>
        <source>Next day</source>
        <translation>Le lendemain</translation>
    </message>
    <message>
        <source>This weekend</source>
        <translation>Ce week-end</translation>
    </message>
    <message>
        <source>Next weekend</source>
        <translation>Le week-end prochain</translation>
    </message>
</context>
<context>
    <name>PreferencesWindow</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sécurité</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Sauvegarde</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronisation</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Horaires</translation>
    </message>
    <message>
        <source>More Info</source>
        <translation>À propos</translation>
    </message>
</context>
<context>
    <name>ProjectActions</name>
    <message>
        <source>Name is blank
Please set a name</source>
        <translation>Le nom est vide
Veuillez saisir un nom</translation>
    </message>
    <message>
        <source>Project alreday exists
Please enter different name</source>
        <translation>Ce projet existe déjà
Veuillez saisir un autre nom</translation>
    </message>
    <message>
        <source>Confirm before delete</source>
        <translation>Confirmer la suppression</translation>
    </message>
    <message>
        <source>All tasks under this Project will be deleted.
Are you sure to delete ?</source>
        <translation>Toutes les tâches de ce projet seront supprimées.
Voulez-vous vraiment le supprimer&#xa0;?</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Lullet could not open %1.</source>
        <translation>Lullet n’a pas pu ouvrir %1.</translation>
    </message>
    <message>
        <source>No program on this computer opens such addresses.</source>
        <translation>Aucun programme de cet ordinateur n’ouvre ce type d’adresse.</translation>
    </message>
    <message>
        <source>The user&apos;s guide is not installed.</source>
        <translation>Le guide de l’utilisateur n’est pas installé.</translation>
    </message>
    <message>
        <source>You can read it on the website: %1</source>
        <translation>Vous pouvez le lire sur le site web&#xa0;: %1</translation>
    </message>
    <message>
        <source>Welcome to Lullet</source>
        <translation>Bienvenue dans Lullet</translation>
    </message>
    <message>
        <source>Short pauses keep you well through the day: a rest, a meal, a stretch, a glass of water. Lullet reminds you of them, and of your tasks.</source>
        <translation>De courtes pauses vous gardent en forme tout au long de la journée&#xa0;: un repos, un repas, quelques étirements, un verre d’eau. Lullet vous les rappelle, ainsi que vos tâches.</translation>
    </message>
    <message>
        <source>Choose your lullets</source>
        <translation>Choisissez vos lullets</translation>
    </message>
    <message>
        <source>Open Lullets and switch on the suggestions you want. Each repeats by its own rule: every hour, at noon, on weekdays. Change a rule, or add your own.</source>
        <translation>Ouvrez Lullets et activez les suggestions qui vous conviennent. Chacune se répète selon sa propre règle&#xa0;: toutes les heures, à midi, en semaine. Modifiez une règle, ou ajoutez les vôtres.</translation>
    </message>
    <message>
        <source>Tasks and projects</source>
        <translation>Tâches et projets</translation>
    </message>
    <message>
        <source>Add a task from anywhere with Quick Add. Group tasks into projects, and see how much of the time you planned is used.</source>
        <translation>Ajoutez une tâche de n’importe où avec l’Ajout rapide. Regroupez vos tâches en projets, et voyez quelle part du temps prévu est utilisée.</translation>
    </message>
    <message>
        <source>Your working hours</source>
        <translation>Vos heures de travail</translation>
    </message>
    <message>
        <source>Tell Lullet when you work. When nothing runs during those hours, it asks what you have been doing, and records the answer.</source>
        <translation>Indiquez à Lullet quand vous travaillez. Quand rien n’est en cours pendant ces heures, il vous demande ce que vous avez fait, et enregistre la réponse.</translation>
    </message>
    <message>
        <source>Always at hand in the tray</source>
        <translation>Toujours à portée de main dans la zone de notification</translation>
    </message>
    <message>
        <source>Click the tray icon to see what runs and what comes next. Reminders open there too, and never take the keyboard from what you are typing.</source>
        <translation>Cliquez sur l’icône de la zone de notification pour voir ce qui est en cours et ce qui vient ensuite. Les rappels s’y ouvrent aussi, et ne vous prennent jamais le clavier pendant que vous tapez.</translation>
    </message>
    <message>
        <source>The report could not be saved.</source>
        <translation>Le rapport n’a pas pu être enregistré.</translation>
    </message>
    <message>
        <source>Lullet could not write %1.</source>
        <translation>Lullet n’a pas pu écrire %1.</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Imprimer…</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>Enregistrer en PDF…</translation>
    </message>
    <message>
        <source>Mail…</source>
        <translation>Envoyer par courriel…</translation>
    </message>
    <message>
        <source>Save the Report as PDF</source>
        <translation>Enregistrer le rapport en PDF</translation>
    </message>
    <message>
        <source>The report could not be printed.</source>
        <translation>Le rapport n’a pas pu être imprimé.</translation>
    </message>
    <message>
        <source>The printer did not accept it.</source>
        <translation>L’imprimante ne l’a pas accepté.</translation>
    </message>
    <message>
        <source>Lullet could not open your mail program.</source>
        <translation>Lullet n’a pas pu ouvrir votre logiciel de messagerie.</translation>
    </message>
    <message>
        <source>The report is saved as %1: attach it to a message yourself.</source>
        <translation>Le rapport est enregistré sous %1&#xa0;: joignez-le vous-même à un message.</translation>
    </message>
</context>
<context>
    <name>QuickAddForm</name>
    <message>
        <source>No duration</source>
        <translation>Sans durée</translation>
    </message>
    <message>
        <source>1 Hour</source>
        <translation>1 heure</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Sans</translation>
    </message>
    <message>
        <source>%1 %2 %3</source>
        <translation>%1 %2 %3</translation>
    </message>
    <message>
        <source>date</source>
        <translation>date</translation>
    </message>
    <message>
        <source>at %1</source>
        <translation>à %1</translation>
    </message>
    <message>
        <source> Task name is blank! Please enter task name. </source>
        <translation> Le nom de la tâche est vide&#xa0;! Veuillez saisir un nom. </translation>
    </message>
</context>
<context>
    <name>RemindBefore</name>
    <message>
        <source>On date</source>
        <translation>Le jour même</translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n jour avant</numerusform>
            <numerusform>%n jours avant</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReminderPrompt</name>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Time for : %1, at :%2</source>
        <translation>C’est l’heure&#xa0;: %1, à %2</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>Tasks: %1</source>
        <translation>Tâches&#xa0;: %1</translation>
    </message>
    <message>
        <source>Complete: %1</source>
        <translation>Terminées&#xa0;: %1</translation>
    </message>
    <message>
        <source>Due: %1</source>
        <translation>À faire&#xa0;: %1</translation>
    </message>
    <message>
        <source>Today: %1</source>
        <translation>Aujourd’hui&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Today %1</source>
        <translation>Aujourd’hui %1</translation>
    </message>
</context>
<context>
    <name>ReportCommands</name>
    <message>
        <source>Oops!</source>
        <translation>Oups&#xa0;!</translation>
    </message>
    <message>
        <source>Lullet report</source>
        <translation>Rapport Lullet</translation>
    </message>
    <message>
        <source>Lullet list report</source>
        <translation>Rapport de liste Lullet</translation>
    </message>
    <message>
        <source>There is no task data to export.</source>
        <translation>Aucune donnée de tâche à exporter.</translation>
    </message>
    <message>
        <source>There is no task data to export for this Project.</source>
        <translation>Aucune donnée de tâche à exporter pour ce projet.</translation>
    </message>
</context>
<context>
    <name>ReportPainter</name>
    <message>
        <source>Page %1</source>
        <translation>Page %1</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>Temps&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
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
        <translation>Le fichier n’a pas pu être lu.</translation>
    </message>
    <message>
        <source>Only a file can be restored, and this is a folder, a device or another special file.</source>
        <translation>Seul un fichier peut être restauré, or il s’agit d’un dossier, d’un périphérique ou d’un autre fichier spécial.</translation>
    </message>
    <message>
        <source>The file is not a database, so it is no Lullet backup.</source>
        <translation>Le fichier n’est pas une base de données&#xa0;: ce n’est donc pas une sauvegarde de Lullet.</translation>
    </message>
    <message>
        <source>The file is damaged: %1</source>
        <translation>Le fichier est endommagé&#xa0;: %1</translation>
    </message>
    <message>
        <source>The file is an empty database, not a Lullet store.</source>
        <translation>Le fichier est une base de données vide, pas une base de données de Lullet.</translation>
    </message>
    <message>
        <source>The file is a database of another program, not a Lullet store.</source>
        <translation>Le fichier est la base de données d’un autre programme, pas celle de Lullet.</translation>
    </message>
    <message>
        <source>The file was written by a newer version of Lullet. Update Lullet to restore it.</source>
        <translation>Le fichier a été écrit par une version plus récente de Lullet. Mettez Lullet à jour pour le restaurer.</translation>
    </message>
    <message>
        <source>The file lacks the tables of a Lullet store.</source>
        <translation>Il manque au fichier les tables d’une base de données de Lullet.</translation>
    </message>
</context>
<context>
    <name>RowTexts</name>
    <message numerus="yes">
        <source>In %n days</source>
        <translation>
            <numerusform>Dans %n jour</numerusform>
            <numerusform>Dans %n jours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Overdue by %n days</source>
        <translation>
            <numerusform>En retard de %n jour</numerusform>
            <numerusform>En retard de %n jours</numerusform>
        </translation>
    </message>
    <message>
        <source>Due from %1 hr %2 min</source>
        <translation>En retard de %1 h %2 min</translation>
    </message>
    <message>
        <source>Due from %1 hr </source>
        <translation>En retard de %1 h </translation>
    </message>
    <message>
        <source>Due from %1 min</source>
        <translation>En retard de %1 min</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>Lullet</source>
        <translation>Lullet</translation>
    </message>
    <message>
        <source>Lullet  |  %1</source>
        <translation>Lullet  |  %1</translation>
    </message>
</context>
<context>
    <name>RuleForm</name>
    <message>
        <source>To-do</source>
        <translation>À faire</translation>
    </message>
    <message>
        <source>Timed task</source>
        <translation>Tâche minutée</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutes</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Heures</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Jours</translation>
    </message>
    <message>
        <source>Weeks</source>
        <translation>Semaines</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>Years</source>
        <translation>Années</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Jamais</translation>
    </message>
    <message>
        <source>Until a date</source>
        <translation>À une date</translation>
    </message>
    <message>
        <source>How often should it repeat? Please enter a number above 0.</source>
        <translation>Fréquence de répétition&#xa0;: veuillez saisir un nombre supérieur à 0.</translation>
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
        <translation>%1&#xa0;: %2 sur %3 min</translation>
    </message>
    <message>
        <source>%1: %2 min</source>
        <translation>%1&#xa0;: %2 min</translation>
    </message>
    <message>
        <source>Lullet</source>
        <translation>Lullet</translation>
    </message>
    <message>
        <source>Next: %1 at %2</source>
        <translation>À suivre&#xa0;: %1 à %2</translation>
    </message>
    <message>
        <source>Next: %1 on %2 at %3</source>
        <translation>À suivre&#xa0;: %1 le %2 à %3</translation>
    </message>
</context>
<context>
    <name>ScheduleTexts</name>
    <message>
        <source>minute</source>
        <translation>toutes les minutes</translation>
    </message>
    <message>
        <source>hour</source>
        <translation>toutes les heures</translation>
    </message>
    <message>
        <source>day</source>
        <translation>tous les jours</translation>
    </message>
    <message>
        <source>week</source>
        <translation>toutes les semaines</translation>
    </message>
    <message>
        <source>month</source>
        <translation>tous les mois</translation>
    </message>
    <message>
        <source>year</source>
        <translation>tous les ans</translation>
    </message>
    <message numerus="yes">
        <source>%n mins</source>
        <translation>
            <numerusform>toutes les %n minutes</numerusform>
            <numerusform>toutes les %n minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours</source>
        <translation>
            <numerusform>toutes les %n heures</numerusform>
            <numerusform>toutes les %n heures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>tous les %n jours</numerusform>
            <numerusform>tous les %n jours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n weeks</source>
        <translation>
            <numerusform>toutes les %n semaines</numerusform>
            <numerusform>toutes les %n semaines</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n months</source>
        <translation>
            <numerusform>tous les %n mois</numerusform>
            <numerusform>tous les %n mois</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n years</source>
        <translation>
            <numerusform>tous les %n ans</numerusform>
            <numerusform>tous les %n ans</numerusform>
        </translation>
    </message>
    <message>
        <source>On %1 %2, %3 %4</source>
        <translation>le %1 %2 %3 %4</translation>
    </message>
    <message>
        <source>Lullet : %1 at %2, repeats every %3</source>
        <translation>Lullet&#xa0;: %1 à %2, se répète %3</translation>
    </message>
    <message>
        <source>Task : %1 at %2, repeats every %3</source>
        <translation>Tâche&#xa0;: %1 à %2, se répète %3</translation>
    </message>
    <message>
        <source>No further repeat</source>
        <translation>Plus de répétition</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>In next %1 hr %2 min</source>
        <translation>Dans %1 h %2 min</translation>
    </message>
    <message>
        <source>In next %1 hr </source>
        <translation>Dans %1 h </translation>
    </message>
    <message>
        <source>In next %1 min</source>
        <translation>Dans %1 min</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message numerus="yes">
        <source>In next %n days at %1</source>
        <translation>
            <numerusform>Dans %n jour à %1</numerusform>
            <numerusform>Dans %n jours à %1</numerusform>
        </translation>
    </message>
    <message>
        <source>On %1 %2 %3 at %4</source>
        <translation>Le %1 %2 %3 à %4</translation>
    </message>
    <message numerus="yes">
        <source>Repeat every %n mins</source>
        <translation>
            <numerusform>Périodicité&#xa0;: %n minute</numerusform>
            <numerusform>Périodicité&#xa0;: %n minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Repeat every %n hrs</source>
        <translation>
            <numerusform>Périodicité&#xa0;: %n heure</numerusform>
            <numerusform>Périodicité&#xa0;: %n heures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Repeat every %n days</source>
        <translation>
            <numerusform>Périodicité&#xa0;: %n jour</numerusform>
            <numerusform>Périodicité&#xa0;: %n jours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Repeat every %n weeks</source>
        <translation>
            <numerusform>Périodicité&#xa0;: %n semaine</numerusform>
            <numerusform>Périodicité&#xa0;: %n semaines</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Repeat every %n months</source>
        <translation>
            <numerusform>Périodicité&#xa0;: %n mois</numerusform>
            <numerusform>Périodicité&#xa0;: %n mois</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Repeat every %n years</source>
        <translation>
            <numerusform>Périodicité&#xa0;: %n an</numerusform>
            <numerusform>Périodicité&#xa0;: %n ans</numerusform>
        </translation>
    </message>
    <message>
        <source>, On %1 %2 %3</source>
        <translation>, le %1 %2 %3</translation>
    </message>
    <message>
        <source>, at %1</source>
        <translation>, à %1</translation>
    </message>
    <message>
        <source>, For : %1hr:%2min</source>
        <translation>, durée&#xa0;: %1 h %2 min</translation>
    </message>
</context>
<context>
    <name>SecurityTab</name>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Modifier</translation>
    </message>
</context>
<context>
    <name>Segment</name>
    <message>
        <source>Dashboard</source>
        <translation>Tableau de bord</translation>
    </message>
    <message>
        <source>Lullets</source>
        <translation>Lullets</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>Upcoming</source>
        <translation>À venir</translation>
    </message>
    <message>
        <source>Anytime</source>
        <translation>Sans date</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Terminés</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projet</translation>
    </message>
</context>
<context>
    <name>Store</name>
    <message>
        <source>Expected a folder to store application data, found a file %1.</source>
        <translation>Un dossier était attendu pour les données de l’application, mais %1 est un fichier.</translation>
    </message>
    <message>
        <source>There was an error creating or loading the application&apos;s saved data. The folder %1 could not be created.</source>
        <translation>Une erreur s’est produite lors de la création ou du chargement des données de l’application. Le dossier %1 n’a pas pu être créé.</translation>
    </message>
    <message>
        <source>Lullet was stopped during a restore, and your store could not be put back. Rename %1 to %2, then start Lullet again.</source>
        <translation>Lullet a été arrêté pendant une restauration, et votre base de données n’a pas pu être remise en place. Renommez %1 en %2, puis relancez Lullet.</translation>
    </message>
    <message>
        <source>Lullet was stopped during a restore. Your data is as it was before it.</source>
        <translation>Lullet a été arrêté pendant une restauration. Vos données sont telles qu’elles étaient avant celle-ci.</translation>
    </message>
    <message>
        <source>The disk that holds your Lullet store (%1) is full. Free some space, then start Lullet again.</source>
        <translation>Le disque qui contient les données de Lullet (%1) est plein. Libérez de l’espace, puis relancez Lullet.</translation>
    </message>
    <message>
        <source>the file is not a database</source>
        <translation>le fichier n’est pas une base de données</translation>
    </message>
    <message>
        <source>the file is not a Lullet store</source>
        <translation>le fichier n’est pas une base de données de Lullet</translation>
    </message>
    <message>
        <source>the store was written by a newer version of Lullet</source>
        <translation>la base de données a été écrite par une version plus récente de Lullet</translation>
    </message>
    <message>
        <source>the store is damaged</source>
        <translation>la base de données est endommagée</translation>
    </message>
    <message>
        <source>The store %1 is in use by another program. Close it and start Lullet again.</source>
        <translation>La base de données %1 est utilisée par un autre programme. Fermez-le et relancez Lullet.</translation>
    </message>
    <message>
        <source>The store %1 cannot be read.</source>
        <translation>La base de données %1 ne peut pas être lue.</translation>
    </message>
    <message>
        <source>The store %1 is read-only. Lullet saves every change as it happens: make the file writable and start Lullet again.</source>
        <translation>La base de données %1 est en lecture seule. Lullet enregistre chaque modification dès qu’elle a lieu&#xa0;: rendez le fichier accessible en écriture et relancez Lullet.</translation>
    </message>
    <message>
        <source>The store %1 cannot be opened.</source>
        <translation>La base de données %1 ne peut pas être ouverte.</translation>
    </message>
    <message>
        <source>The store %1 cannot be brought up to date.</source>
        <translation>La base de données %1 ne peut pas être mise à jour.</translation>
    </message>
    <message>
        <source>The store %1 lacks Lullet&apos;s tables. Move that file aside (rename it), and Lullet will start afresh with an empty store.</source>
        <translation>Il manque à la base de données %1 les tables de Lullet. Mettez ce fichier de côté (renommez-le), et Lullet repartira d’une base de données vide.</translation>
    </message>
    <message>
        <source>The store %1 cannot be loaded.</source>
        <translation>La base de données %1 ne peut pas être chargée.</translation>
    </message>
    <message>
        <source>The store %1 could not be used (%2), and could not be moved aside either.</source>
        <translation>La base de données %1 n’a pas pu être utilisée (%2), ni être mise de côté.</translation>
    </message>
    <message>
        <source>The store could not be used (%1). It was moved to %2; Lullet will start with an empty store next time.</source>
        <translation>La base de données n’a pas pu être utilisée (%1). Elle a été déplacée vers %2&#xa0;; Lullet démarrera avec une base de données vide la prochaine fois.</translation>
    </message>
    <message>
        <source>The restored copy could not be written to the disk, so nothing was restored.</source>
        <translation>La copie restaurée n’a pas pu être écrite sur le disque&#xa0;: rien n’a été restauré.</translation>
    </message>
    <message>
        <source>Your store could not be set aside for the restore, so nothing was restored.</source>
        <translation>Votre base de données n’a pas pu être mise de côté pour la restauration&#xa0;: rien n’a été restauré.</translation>
    </message>
    <message>
        <source>The restored copy could not be put in place.</source>
        <translation>La copie restaurée n’a pas pu être mise en place.</translation>
    </message>
    <message>
        <source>The restore failed (%1); your store was put back as it was.</source>
        <translation>La restauration a échoué (%1)&#xa0;; votre base de données a été remise telle qu’elle était.</translation>
    </message>
</context>
<context>
    <name>StoreCopy</name>
    <message>
        <source>The store %1 does not exist.</source>
        <translation>La base de données %1 n’existe pas.</translation>
    </message>
    <message>
        <source>%1 already exists; it was left as it was.</source>
        <translation>%1 existe déjà&#xa0;; ce fichier n’a pas été modifié.</translation>
    </message>
    <message>
        <source>%1 could not be read: %2</source>
        <translation>%1 n’a pas pu être lu&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>%1 n’a pas pu être écrit&#xa0;: %2</translation>
    </message>
    <message>
        <source>The store could not be copied: %1</source>
        <translation>La base de données n’a pas pu être copiée&#xa0;: %1</translation>
    </message>
    <message>
        <source>The copy could not be made a single file: %1</source>
        <translation>La copie n’a pas pu être réunie en un seul fichier&#xa0;: %1</translation>
    </message>
    <message>
        <source>The copy could not be written to %1.</source>
        <translation>La copie n’a pas pu être écrite dans %1.</translation>
    </message>
</context>
<context>
    <name>TimeOverPrompt</name>
    <message>
        <source>Have you finished : %1 ?</source>
        <translation>Avez-vous terminé&#xa0;: %1&#xa0;?</translation>
    </message>
</context>
<context>
    <name>TodoPrompt</name>
    <message>
        <source>Time for : %1. Done ?</source>
        <translation>C’est l’heure&#xa0;: %1. Fait&#xa0;?</translation>
    </message>
</context>
<context>
    <name>WeekdayNames</name>
    <message>
        <source>Sunday</source>
        <translation>Dimanche</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lundi</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Mardi</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mercredi</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Jeudi</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Vendredi</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samedi</translation>
    </message>
</context>
<context>
    <name>lullet::AddTaskView</name>
    <message>
        <source>Task</source>
        <translation>Tâche</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Quand</translation>
    </message>
    <message>
        <source>Add Task…</source>
        <translation>Ajouter une tâche…</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Modifier…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Are you sure to delete ?</source>
        <translation>Voulez-vous vraiment supprimer&#xa0;?</translation>
    </message>
    <message>
        <source>This Reminder will be deleted.</source>
        <translation>Ce rappel sera supprimé.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
</context>
<context>
    <name>lullet::AppController</name>
    <message>
        <source>Reason for activity</source>
        <translation>Raison de l’activité</translation>
    </message>
</context>
<context>
    <name>lullet::BackupCommands</name>
    <message>
        <source>The backup could not be made.</source>
        <translation>La sauvegarde n’a pas pu être effectuée.</translation>
    </message>
    <message>
        <source>This file can&apos;t be restored. Nothing was changed.</source>
        <translation>Ce fichier ne peut pas être restauré. Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>The restore could not be done.</source>
        <translation>La restauration n’a pas pu être effectuée.</translation>
    </message>
    <message>
        <source>Some old backups could not be deleted, so they stay in the list.</source>
        <translation>Certaines anciennes sauvegardes n’ont pas pu être supprimées&#xa0;: elles restent dans la liste.</translation>
    </message>
    <message>
        <source>Lullet is locked.</source>
        <translation>Lullet est verrouillé.</translation>
    </message>
    <message>
        <source>Enter your password first, then back up or restore your data.</source>
        <translation>Saisissez d’abord votre mot de passe, puis sauvegardez ou restaurez vos données.</translation>
    </message>
    <message>
        <source>Back Up Now</source>
        <translation>Sauvegarder maintenant</translation>
    </message>
    <message>
        <source>Confirm Restore</source>
        <translation>Confirmer la restauration</translation>
    </message>
    <message>
        <source>All data will be replaced.
Do you want to proceed?</source>
        <translation>Toutes les données seront remplacées.
Voulez-vous continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Restore From File</source>
        <translation>Restaurer depuis un fichier</translation>
    </message>
    <message>
        <source>This backup&apos;s file is gone, so it can&apos;t be restored.</source>
        <translation>Le fichier de cette sauvegarde a disparu&#xa0;: elle ne peut pas être restaurée.</translation>
    </message>
    <message>
        <source>Save a Copy</source>
        <translation>Enregistrer une copie</translation>
    </message>
    <message>
        <source>The copy could not be saved.</source>
        <translation>La copie n’a pas pu être enregistrée.</translation>
    </message>
    <message>
        <source>%1 is in the way and can&apos;t be replaced.</source>
        <translation>%1 existe déjà et ne peut pas être remplacé.</translation>
    </message>
</context>
<context>
    <name>lullet::BackupTab</name>
    <message>
        <source>Back up at each launch</source>
        <translation>Sauvegarder à chaque lancement</translation>
    </message>
    <message>
        <source>Keep all backups</source>
        <translation>Conserver toutes les sauvegardes</translation>
    </message>
    <message>
        <source>Keep backups for a week</source>
        <translation>Conserver les sauvegardes une semaine</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Sauvegardes</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Restore…</source>
        <translation>Restaurer…</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>Supprimer…</translation>
    </message>
    <message>
        <source>Back Up Now…</source>
        <translation>Sauvegarder maintenant…</translation>
    </message>
    <message>
        <source>Restore From File…</source>
        <translation>Restaurer depuis un fichier…</translation>
    </message>
    <message>
        <source>Delete All…</source>
        <translation>Tout supprimer…</translation>
    </message>
    <message>
        <source>Save a Copy…</source>
        <translation>Enregistrer une copie…</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>Afficher dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Selected backup will be deleted.</source>
        <translation>La sauvegarde sélectionnée sera supprimée.</translation>
    </message>
    <message>
        <source>Are you sure to delete ?</source>
        <translation>Voulez-vous vraiment supprimer&#xa0;?</translation>
    </message>
    <message>
        <source>The backup&apos;s file could not be deleted.</source>
        <translation>Le fichier de la sauvegarde n’a pas pu être supprimé.</translation>
    </message>
    <message>
        <source>All backups will be deleted.</source>
        <translation>Toutes les sauvegardes seront supprimées.</translation>
    </message>
    <message>
        <source>Some backup files could not be deleted.</source>
        <translation>Certains fichiers de sauvegarde n’ont pas pu être supprimés.</translation>
    </message>
</context>
<context>
    <name>lullet::Backups</name>
    <message>
        <source>No backup was made: the folder %1 could not be created.</source>
        <translation>Aucune sauvegarde n’a été effectuée&#xa0;: le dossier %1 n’a pas pu être créé.</translation>
    </message>
    <message>
        <source>No backup was made. %1</source>
        <translation>Aucune sauvegarde n’a été effectuée. %1</translation>
    </message>
    <message>
        <source>That file is the store Lullet is using now.</source>
        <translation>Ce fichier est la base de données qu’utilise actuellement Lullet.</translation>
    </message>
    <message>
        <source>That file is one Lullet works with while it copies or restores, not a backup.</source>
        <translation>Ce fichier sert à Lullet pendant une copie ou une restauration&#xa0;: ce n’est pas une sauvegarde.</translation>
    </message>
    <message>
        <source>Your latest changes could not be saved, so nothing was restored.</source>
        <translation>Vos dernières modifications n’ont pas pu être enregistrées&#xa0;: rien n’a été restauré.</translation>
    </message>
    <message>
        <source>No safety copy of your present data could be made, so nothing was restored.</source>
        <translation>Aucune copie de sécurité de vos données actuelles n’a pu être effectuée&#xa0;: rien n’a été restauré.</translation>
    </message>
</context>
<context>
    <name>lullet::Catalogue</name>
    <message>
        <source>Custom breaks</source>
        <translation>Pauses personnalisées</translation>
    </message>
</context>
<context>
    <name>lullet::CircularProgress</name>
    <message>
        <source>%1 % complete</source>
        <translation>%1&#xa0;% terminé</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>lullet::ContactWindow</name>
    <message>
        <source>Contact Us</source>
        <translation>Nous contacter</translation>
    </message>
    <message>
        <source>A question, an idea, or something that does not work as it should? Write to us at %1, or use the form on %2.</source>
        <translation>Une question, une idée, ou quelque chose qui ne fonctionne pas comme prévu&#xa0;? Écrivez-nous à %1, ou utilisez le formulaire de %2.</translation>
    </message>
    <message>
        <source>our contact page</source>
        <translation>notre page de contact</translation>
    </message>
    <message>
        <source>Many answers are already in the %1.</source>
        <translation>Beaucoup de réponses se trouvent déjà dans la %1.</translation>
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
        <translation>Aucune donnée à afficher dans le graphique.</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Projets</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projet</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>Tâches</translation>
    </message>
    <message>
        <source>Planned</source>
        <translation>Prévu</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Print, save as PDF or mail</source>
        <translation>Imprimer, enregistrer en PDF ou envoyer par courriel</translation>
    </message>
</context>
<context>
    <name>lullet::DateChooser</name>
    <message>
        <source>No date</source>
        <translation>Sans date</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Définir</translation>
    </message>
</context>
<context>
    <name>lullet::GeneralTab</name>
    <message>
        <source>Start Lullet at login</source>
        <translation>Lancer Lullet à l’ouverture de session</translation>
    </message>
    <message>
        <source>Show the window in the taskbar at launch</source>
        <translation>Afficher la fenêtre dans la barre des tâches au lancement</translation>
    </message>
    <message>
        <source>Show the icon in the tray</source>
        <translation>Afficher l’icône dans la zone de notification</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>Hold prompts when I&apos;m away for</source>
        <translation>Différer les alertes après une absence de</translation>
    </message>
    <message>
        <source>Hold prompts while another program is full screen</source>
        <translation>Différer les alertes quand un autre programme est en plein écran</translation>
    </message>
    <message>
        <source>A break due while I&apos;m away for its length counts as taken</source>
        <translation>Un lullet prévu pendant une absence d’au moins sa durée compte comme pris</translation>
    </message>
    <message>
        <source>Play a sound with each prompt</source>
        <translation>Émettre un son à chaque alerte</translation>
    </message>
    <message>
        <source>Ask what I&apos;m doing after</source>
        <translation>Demander ce que je fais après</translation>
    </message>
    <message>
        <source>During your working hours, when nothing has run for this long, Lullet asks what you have been doing.</source>
        <translation>Pendant vos heures de travail, quand rien n’a été en cours depuis ce délai, Lullet vous demande ce que vous avez fait.</translation>
    </message>
    <message>
        <source>Lullet could not change how it starts at login.</source>
        <translation>Lullet n’a pas pu modifier son lancement à l’ouverture de session.</translation>
    </message>
    <message>
        <source>You must now restart app</source>
        <translation>Vous devez maintenant relancer l’application</translation>
    </message>
    <message>
        <source>Your new setting for the taskbar won&apos;t show up until you relaunch this application.</source>
        <translation>Votre nouveau réglage de la barre des tâches ne prendra effet qu’au prochain lancement de l’application.</translation>
    </message>
    <message>
        <source>Relaunch Now</source>
        <translation>Relancer maintenant</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Lullet could not be started again.</source>
        <translation>Lullet n’a pas pu être relancé.</translation>
    </message>
    <message>
        <source>Quit Lullet and start it yourself to see the new setting.</source>
        <translation>Quittez Lullet et relancez-le vous-même pour voir le nouveau réglage.</translation>
    </message>
</context>
<context>
    <name>lullet::HelpWindow</name>
    <message>
        <source>Lullet Help</source>
        <translation>Aide de Lullet</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>lullet::IdlePromptView</name>
    <message>
        <source>What have you been doing?</source>
        <translation>Qu’avez-vous fait&#xa0;?</translation>
    </message>
    <message>
        <source>What you have been doing</source>
        <translation>Ce que vous avez fait</translation>
    </message>
    <message>
        <source>Meeting</source>
        <translation>Réunion</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Courriel</translation>
    </message>
    <message>
        <source>Phone call</source>
        <translation>Appel</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Lunch</source>
        <translation>Déjeuner</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Ask again in one prompt period</source>
        <translation>Redemander après le délai choisi</translation>
    </message>
    <message>
        <source>Done already</source>
        <translation>Déjà fait</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
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
        <translation>Arrêter&#xa0;: c’est terminé</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Utilisé</translation>
    </message>
</context>
<context>
    <name>lullet::ItemListView</name>
    <message>
        <source>Items</source>
        <translation>Éléments</translation>
    </message>
    <message>
        <source>Nothing here. Enjoy the calm.</source>
        <translation>Rien ici. Profitez du calme.</translation>
    </message>
    <message>
        <source>Task completed</source>
        <translation>Tâche terminée</translation>
    </message>
    <message>
        <source>%1 has been completed now</source>
        <translation>Vous venez de terminer %1</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Lullet postponed</source>
        <translation>Lullet reporté</translation>
    </message>
    <message>
        <source>%1 has been postponed to %2 %3 %4</source>
        <translation>Nouvelle date pour %1&#xa0;: %2 %3 %4</translation>
    </message>
</context>
<context>
    <name>lullet::ItemMenu</name>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Terminer</translation>
    </message>
    <message>
        <source>Postpone…</source>
        <translation>Reporter…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Postpone</source>
        <translation>Reporter</translation>
    </message>
    <message>
        <source>In 3 hours</source>
        <translation>Dans 3 heures</translation>
    </message>
    <message>
        <source>Next week</source>
        <translation>La semaine prochaine</translation>
    </message>
    <message>
        <source>In a month</source>
        <translation>Dans un mois</translation>
    </message>
    <message>
        <source>Move to</source>
        <translation>Déplacer vers</translation>
    </message>
    <message>
        <source>Duplicate to</source>
        <translation>Dupliquer vers</translation>
    </message>
    <message>
        <source>No Project</source>
        <translation>Aucun projet</translation>
    </message>
</context>
<context>
    <name>lullet::Library</name>
    <message>
        <source>Your changes could not be saved: %1. Lullet keeps them and saves them with your next change.</source>
        <translation>Vos modifications n’ont pas pu être enregistrées&#xa0;: %1. Lullet les conserve et les enregistrera avec votre prochaine modification.</translation>
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
        <translation>Demander si inactif</translation>
    </message>
    <message>
        <source>When nothing runs in working hours, ask what you have been doing</source>
        <translation>Quand rien n’est en cours pendant les heures de travail, demander ce que vous avez fait</translation>
    </message>
    <message>
        <source>Started only</source>
        <translation>Démarrés seulement</translation>
    </message>
    <message>
        <source>List only the items that have been started</source>
        <translation>N’afficher que les éléments démarrés</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projet</translation>
    </message>
    <message>
        <source>Add Tasks…</source>
        <translation>Ajouter des tâches…</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Time used %1</source>
        <translation>Temps utilisé %1</translation>
    </message>
    <message>
        <source>No Lullet</source>
        <translation>Aucun lullet</translation>
    </message>
    <message>
        <source>Ongoing</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Running: %1</source>
        <translation>En cours&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>lullet::LoginPage</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>PLEASE ENTER PASSWORD...</source>
        <translation>VEUILLEZ SAISIR LE MOT DE PASSE…</translation>
    </message>
    <message>
        <source>INCORRECT PASSWORD...</source>
        <translation>MOT DE PASSE INCORRECT…</translation>
    </message>
    <message>
        <source>Lullet cannot reach your keyring, so it cannot check the password. Your data stays locked.
%1</source>
        <translation>Lullet ne peut pas joindre votre trousseau, et ne peut donc pas vérifier le mot de passe. Vos données restent verrouillées.
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
        <translation>&amp;Ajout rapide</translation>
    </message>
    <message>
        <source>&amp;Back Up Now…</source>
        <translation>&amp;Sauvegarder maintenant…</translation>
    </message>
    <message>
        <source>&amp;Restore From File…</source>
        <translation>&amp;Restaurer depuis un fichier…</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Préférences…</translation>
    </message>
    <message>
        <source>&amp;Quit Lullet</source>
        <translation>&amp;Quitter Lullet</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>Lullet &amp;Help</source>
        <translation>&amp;Aide de Lullet</translation>
    </message>
    <message>
        <source>&amp;User&apos;s Guide</source>
        <translation>&amp;Guide de l’utilisateur</translation>
    </message>
    <message>
        <source>&amp;Frequently Asked Questions</source>
        <translation>&amp;Foire aux questions</translation>
    </message>
    <message>
        <source>&amp;Website</source>
        <translation>Site &amp;web</translation>
    </message>
    <message>
        <source>&amp;Privacy Policy</source>
        <translation>&amp;Politique de confidentialité</translation>
    </message>
    <message>
        <source>&amp;Terms and Conditions</source>
        <translation>&amp;Conditions d’utilisation</translation>
    </message>
    <message>
        <source>&amp;Contact Us…</source>
        <translation>&amp;Nous contacter…</translation>
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
        <translation>Lullet vous aide à prendre de courtes pauses bienfaisantes tout au long de la journée et à suivre vos tâches, et vous demande ce que vous avez fait quand rien n’est en cours pendant vos heures de travail. Vos données restent sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Open the User&apos;s Guide</source>
        <translation>Ouvrir le guide de l’utilisateur</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>Frequently Asked Questions</source>
        <translation>Foire aux questions</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>Politique de confidentialité</translation>
    </message>
    <message>
        <source>Terms and Conditions</source>
        <translation>Conditions d’utilisation</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>Nous contacter</translation>
    </message>
</context>
<context>
    <name>lullet::MoreTimeMenu</name>
    <message numerus="yes">
        <source>%n minute(s)</source>
        <translation>
            <numerusform>%n minute</numerusform>
            <numerusform>%n minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s)</source>
        <translation>
            <numerusform>%n heure</numerusform>
            <numerusform>%n heures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> %n minute(s)</source>
        <translation>
            <numerusform> %n minute</numerusform>
            <numerusform> %n minutes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lullet::PauseActions</name>
    <message>
        <source>Pause Reminders</source>
        <translation>Suspendre les rappels</translation>
    </message>
    <message>
        <source>For 30 Minutes</source>
        <translation>Pendant 30 minutes</translation>
    </message>
    <message>
        <source>For 1 Hour</source>
        <translation>Pendant 1 heure</translation>
    </message>
    <message>
        <source>For 2 Hours</source>
        <translation>Pendant 2 heures</translation>
    </message>
    <message>
        <source>Until Tomorrow</source>
        <translation>Jusqu’à demain</translation>
    </message>
    <message>
        <source>Until I Resume</source>
        <translation>Jusqu’à nouvel ordre</translation>
    </message>
    <message>
        <source>Resume Reminders</source>
        <translation>Reprendre les rappels</translation>
    </message>
</context>
<context>
    <name>lullet::PostponePanel</name>
    <message>
        <source>Postpone %1</source>
        <translation>Reporter %1</translation>
    </message>
    <message>
        <source>In 3 hours</source>
        <translation>Dans 3 heures</translation>
    </message>
    <message>
        <source>Next week</source>
        <translation>La semaine prochaine</translation>
    </message>
    <message>
        <source>No date</source>
        <translation>Sans date</translation>
    </message>
    <message>
        <source>Pick date…</source>
        <translation>Choisir une date…</translation>
    </message>
    <message>
        <source>EEE d MMM</source>
        <comment>ICU date pattern</comment>
        <translation>EEE d MMM</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Postpone</source>
        <translation>Reporter</translation>
    </message>
</context>
<context>
    <name>lullet::PreferencesWindow</name>
    <message>
        <source>Lullet Preferences</source>
        <translation>Préférences de Lullet</translation>
    </message>
</context>
<context>
    <name>lullet::PromptView</name>
    <message>
        <source>Finished</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Need more time</source>
        <translation>Prolonger</translation>
    </message>
</context>
<context>
    <name>lullet::Protection</name>
    <message>
        <source>Your keyring did not answer.</source>
        <translation>Votre trousseau n’a pas répondu.</translation>
    </message>
</context>
<context>
    <name>lullet::QuickAddView</name>
    <message>
        <source>No Project</source>
        <translation>Aucun projet</translation>
    </message>
    <message>
        <source>Quick add</source>
        <translation>Ajout rapide</translation>
    </message>
    <message>
        <source>Task name</source>
        <translation>Nom de la tâche</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>Échéance</translation>
    </message>
</context>
<context>
    <name>lullet::ReminderNotice</name>
    <message>
        <source>Reminder</source>
        <translation>Rappel</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>In 10 min</source>
        <translation>Dans 10 min</translation>
    </message>
</context>
<context>
    <name>lullet::ReminderPause</name>
    <message>
        <source>Reminders paused until you resume them</source>
        <translation>Rappels suspendus jusqu’à nouvel ordre</translation>
    </message>
    <message>
        <source>Reminders paused until %1</source>
        <translation>Rappels suspendus jusqu’à %1</translation>
    </message>
</context>
<context>
    <name>lullet::ReminderPromptView</name>
    <message>
        <source>Reminder</source>
        <translation>Rappel</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>In 10 min</source>
        <translation>Dans 10 min</translation>
    </message>
    <message>
        <source>In 30 min</source>
        <translation>Dans 30 min</translation>
    </message>
</context>
<context>
    <name>lullet::RepeatListModel</name>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Actif</translation>
    </message>
    <message>
        <source>Lullet</source>
        <translation>Lullet</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Prochain</translation>
    </message>
</context>
<context>
    <name>lullet::RepeatListView</name>
    <message>
        <source>Lullets</source>
        <translation>Lullets</translation>
    </message>
    <message>
        <source>New lullet…</source>
        <translation>Nouveau lullet…</translation>
    </message>
    <message>
        <source>Today: %1 of %2 done   Time used %3 of %4</source>
        <translation>Aujourd’hui&#xa0;: %1 sur %2 faits   Temps utilisé %3 sur %4</translation>
    </message>
    <message>
        <source>Are you sure to delete ?</source>
        <translation>Voulez-vous vraiment supprimer&#xa0;?</translation>
    </message>
    <message>
        <source>This Reminder will be deleted.</source>
        <translation>Ce rappel sera supprimé.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Modifier…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>lullet::RuleFormView</name>
    <message>
        <source>Edit lullet</source>
        <translation>Modifier le lullet</translation>
    </message>
    <message>
        <source>New lullet</source>
        <translation>Nouveau lullet</translation>
    </message>
    <message>
        <source>Edit task</source>
        <translation>Modifier la tâche</translation>
    </message>
    <message>
        <source>New task</source>
        <translation>Nouvelle tâche</translation>
    </message>
    <message>
        <source>Due on</source>
        <translation>Prévue le</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Prévenir</translation>
    </message>
    <message>
        <source>Duration in hours</source>
        <translation>Durée en heures</translation>
    </message>
    <message>
        <source> hr</source>
        <translation> h</translation>
    </message>
    <message>
        <source>Duration in minutes</source>
        <translation>Durée en minutes</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>A to-do takes no time: it is confirmed when done.</source>
        <translation>Une tâche à faire ne prend pas de temps&#xa0;: elle est confirmée une fois faite.</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Remind me when it is due</source>
        <translation>Me rappeler à l’échéance</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>First on</source>
        <translation>Commence le</translation>
    </message>
    <message>
        <source>Repeat every</source>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>Ends</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Switched on</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
</context>
<context>
    <name>lullet::RunningListView</name>
    <message>
        <source>Lullet is locked. Enter your password in its window to see your tasks.</source>
        <translation>Lullet est verrouillé. Saisissez votre mot de passe dans sa fenêtre pour voir vos tâches.</translation>
    </message>
    <message>
        <source>Running now</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>Open Lullet</source>
        <translation>Ouvrir Lullet</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Nothing is running.</source>
        <translation>Rien n’est en cours.</translation>
    </message>
</context>
<context>
    <name>lullet::ScheduleTab</name>
    <message>
        <source>Working hours</source>
        <translation>Heures de travail</translation>
    </message>
    <message>
        <source>Lullet asks what you have been doing only on working days, between these times.</source>
        <translation>Lullet ne demande ce que vous avez fait que les jours travaillés, entre ces heures.</translation>
    </message>
</context>
<context>
    <name>lullet::ScheduleTableModel</name>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>Working day</source>
        <translation>Jour travaillé</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
</context>
<context>
    <name>lullet::SecurityTab</name>
    <message>
        <source>Protect Lullet with a password</source>
        <translation>Protéger Lullet par un mot de passe</translation>
    </message>
    <message>
        <source>With a password, Lullet asks for it each time it starts, before it shows anything of your tasks.</source>
        <translation>Avec un mot de passe, Lullet le demande à chaque démarrage, avant d’afficher quoi que ce soit de vos tâches.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Current password:</source>
        <translation>Mot de passe actuel&#xa0;:</translation>
    </message>
    <message>
        <source>New password:</source>
        <translation>Nouveau mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>Confirm password:</source>
        <translation>Confirmer le mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>Reading the keyring…</source>
        <translation>Lecture du trousseau…</translation>
    </message>
    <message>
        <source>Lullet cannot reach your keyring, where the password is kept. Nothing here can change until it can.
%1</source>
        <translation>Lullet ne peut pas joindre votre trousseau, où est conservé le mot de passe. Rien ne peut être modifié ici tant qu’il reste inaccessible.
%1</translation>
    </message>
    <message>
        <source>Protection is off, but your keyring could not remove the password.</source>
        <translation>La protection est désactivée, mais votre trousseau n’a pas pu supprimer le mot de passe.</translation>
    </message>
    <message>
        <source>Password protection is set!</source>
        <translation>La protection par mot de passe est activée&#xa0;!</translation>
    </message>
    <message>
        <source>Your keyring could not store the password, so protection stays off.
%1</source>
        <translation>Votre trousseau n’a pas pu enregistrer le mot de passe&#xa0;: la protection reste désactivée.
%1</translation>
    </message>
</context>
<context>
    <name>lullet::Shell</name>
    <message>
        <source>Loading…</source>
        <translation>Chargement…</translation>
    </message>
    <message>
        <source>Lullet is locked</source>
        <translation>Lullet est verrouillé</translation>
    </message>
    <message>
        <source>Open Lullet</source>
        <translation>Ouvrir Lullet</translation>
    </message>
    <message>
        <source>Quick Add</source>
        <translation>Ajout rapide</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Préférences…</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Quit Lullet</source>
        <translation>Quitter Lullet</translation>
    </message>
    <message>
        <source>Lullet is locked.</source>
        <translation>Lullet est verrouillé.</translation>
    </message>
    <message>
        <source>Enter your password first, then add the task.</source>
        <translation>Saisissez d’abord votre mot de passe, puis ajoutez la tâche.</translation>
    </message>
</context>
<context>
    <name>lullet::SidebarView</name>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Quick Add (%1)</source>
        <translation>Ajout rapide (%1)</translation>
    </message>
    <message>
        <source>Quick Add</source>
        <translation>Ajout rapide</translation>
    </message>
    <message>
        <source>Lists and projects</source>
        <translation>Listes et projets</translation>
    </message>
    <message>
        <source>New project</source>
        <translation>Nouveau projet</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Duplicate as new</source>
        <translation>Dupliquer en nouveau projet</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
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
        <translation>%1   %2&#xa0;%</translation>
    </message>
    <message>
        <source>%1
Progress: time used of time planned. A task with no planned length counts only the time it has run.</source>
        <translation>%1
Progression&#xa0;: temps utilisé sur temps prévu. Une tâche sans durée prévue ne compte que le temps pendant lequel elle a été en cours.</translation>
    </message>
</context>
<context>
    <name>lullet::SingleInstance</name>
    <message>
        <source>Cannot make the folder %1.</source>
        <translation>Impossible de créer le dossier %1.</translation>
    </message>
    <message>
        <source>The folder %1 is not private to this user; Lullet will not use it to talk to itself.</source>
        <translation>Le dossier %1 n’est pas réservé à cet utilisateur&#xa0;: Lullet ne l’utilisera pas pour communiquer avec ses autres instances.</translation>
    </message>
    <message>
        <source>Cannot open the lock file in %1.</source>
        <translation>Impossible d’ouvrir le fichier de verrou dans %1.</translation>
    </message>
    <message>
        <source>Cannot listen on %1.</source>
        <translation>Impossible d’écouter sur %1.</translation>
    </message>
</context>
<context>
    <name>lullet::SyncTab</name>
    <message>
        <source>Sync Now</source>
        <translation>Synchroniser maintenant</translation>
    </message>
    <message>
        <source>Stop Syncing</source>
        <translation>Arrêter la synchronisation</translation>
    </message>
    <message>
        <source>Keep your tasks, projects and repeating lullets in step with a CalDAV server (Nextcloud, Radicale, Fastmail and others), and so with your other computers and your phone.</source>
        <translation>Synchronisez vos tâches, projets et lullets récurrents avec un serveur CalDAV (Nextcloud, Radicale, Fastmail et d’autres), et donc avec vos autres ordinateurs et votre téléphone.</translation>
    </message>
    <message>
        <source>Server or collection:</source>
        <translation>Serveur ou collection&#xa0;:</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nom d’utilisateur&#xa0;:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>Leave the user name empty for a server without logins. The password is kept in your keyring.</source>
        <translation>Laissez le nom d’utilisateur vide pour un serveur sans identification. Le mot de passe est conservé dans votre trousseau.</translation>
    </message>
    <message>
        <source>Last sync:</source>
        <translation>Dernière synchronisation&#xa0;:</translation>
    </message>
    <message>
        <source>Enter the address of a CalDAV server or collection, such as https://dav.example.com/.</source>
        <translation>Saisissez l’adresse d’un serveur ou d’une collection CalDAV, par exemple https://dav.example.com/.</translation>
    </message>
    <message>
        <source>Your keyring could not keep the password (%1), so nothing was changed.</source>
        <translation>Votre trousseau n’a pas pu conserver le mot de passe (%1)&#xa0;: rien n’a été modifié.</translation>
    </message>
    <message>
        <source>Save Changes</source>
        <translation>Enregistrer les modifications</translation>
    </message>
    <message>
        <source>Start Syncing</source>
        <translation>Lancer la synchronisation</translation>
    </message>
    <message>
        <source>Kept in your keyring</source>
        <translation>Conservé dans votre trousseau</translation>
    </message>
    <message>
        <source>Sync is off: your data stays on this computer.</source>
        <translation>La synchronisation est désactivée&#xa0;: vos données restent sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Syncing…</source>
        <translation>Synchronisation…</translation>
    </message>
    <message>
        <source>Not synced yet.</source>
        <translation>Pas encore synchronisé.</translation>
    </message>
    <message numerus="yes">
        <source>%n item(s) on the server could not be read and were left there.</source>
        <translation>
            <numerusform>%n élément du serveur n’a pas pu être lu et y est resté.</numerusform>
            <numerusform>%n éléments du serveur n’ont pas pu être lus et y sont restés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The server refused %n change(s); they wait here.</source>
        <translation>
            <numerusform>Le serveur a refusé %n modification&#xa0;; elle attend ici.</numerusform>
            <numerusform>Le serveur a refusé %n modifications&#xa0;; elles attendent ici.</numerusform>
        </translation>
    </message>
    <message>
        <source>Synced %1.</source>
        <translation>Synchronisé %1.</translation>
    </message>
    <message>
        <source>Your keyring could not give the password (%1).</source>
        <translation>Votre trousseau n’a pas pu fournir le mot de passe (%1).</translation>
    </message>
    <message>
        <source>What came from the server could not be saved here; the next sync tries again.</source>
        <translation>Les données reçues du serveur n’ont pas pu être enregistrées ici&#xa0;; la prochaine synchronisation réessaiera.</translation>
    </message>
    <message>
        <source>The server could not be reached (%1). Your changes wait here and go at the next sync.</source>
        <translation>Le serveur est injoignable (%1). Vos modifications attendent ici et partiront à la prochaine synchronisation.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate is not trusted (%1), so nothing was sent.</source>
        <translation>Le certificat du serveur n’est pas approuvé (%1)&#xa0;: rien n’a été envoyé.</translation>
    </message>
    <message>
        <source>The server refused the user name or password.</source>
        <translation>Le serveur a refusé le nom d’utilisateur ou le mot de passe.</translation>
    </message>
    <message>
        <source>There is no collection at this address.</source>
        <translation>Il n’y a aucune collection à cette adresse.</translation>
    </message>
    <message>
        <source>No calendar that holds tasks was found at this address.</source>
        <translation>Aucun calendrier de tâches n’a été trouvé à cette adresse.</translation>
    </message>
    <message>
        <source>The server failed (%1). Your changes wait here and go at the next sync.</source>
        <translation>Erreur du serveur (%1). Vos modifications attendent ici et partiront à la prochaine synchronisation.</translation>
    </message>
    <message>
        <source>The last sync was cut short. Your changes wait here and go at the next sync.</source>
        <translation>La dernière synchronisation a été interrompue. Vos modifications attendent ici et partiront à la prochaine synchronisation.</translation>
    </message>
    <message>
        <source>The server&apos;s answer made no sense (%1), so nothing was changed.</source>
        <translation>La réponse du serveur est incompréhensible (%1)&#xa0;: rien n’a été modifié.</translation>
    </message>
    <message>
        <source>The server refused the sync (%1). Your changes wait here.</source>
        <translation>Le serveur a refusé la synchronisation (%1). Vos modifications attendent ici.</translation>
    </message>
</context>
<context>
    <name>lullet::TimeOverPromptView</name>
    <message>
        <source>Time is up</source>
        <translation>Temps écoulé</translation>
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
        <translation>Fait</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Pas maintenant</translation>
    </message>
</context>
<context>
    <name>lullet::WelcomeSlides</name>
    <message>
        <source>Previous</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Passer</translation>
    </message>
    <message>
        <source>User&apos;s Guide</source>
        <translation>Guide de l’utilisateur</translation>
    </message>
    <message>
        <source>Slide %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
</context>
<context>
    <name>lullet::WindowContent</name>
    <message>
        <source>Get Started</source>
        <translation>Commencer</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Some of your older history could not be read: lists and counts may be short.</source>
        <translation>Une partie de votre historique ancien n’a pas pu être lue&#xa0;: les listes et les décomptes peuvent être incomplets.</translation>
    </message>
    <message>
        <source>Your working hours could not be read.</source>
        <translation>Vos heures de travail n’ont pas pu être lues.</translation>
    </message>
    <message>
        <source>Lullet uses Monday to Friday, 9:00 to 18:00, until you set them again. What could not be read is kept under &quot;schedulesUnreadable&quot; in %1.</source>
        <translation>Lullet utilise les horaires du lundi au vendredi, de 9 h à 18 h, jusqu’à ce que vous les redéfinissiez. Ce qui n’a pas pu être lu est conservé sous «&#xa0;schedulesUnreadable&#xa0;» dans %1.</translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>Impossible d’enregistrer les modifications en quittant. Quitter quand même&#xa0;?</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>Si vous quittez maintenant, les modifications effectuées depuis le dernier enregistrement réussi seront perdues</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>Quitter quand même</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>no display. Start Lullet in your desktop session.</source>
        <translation>aucun affichage disponible. Lancez Lullet depuis votre session de bureau.</translation>
    </message>
    <message>
        <source>Another Lullet is running but does not answer.</source>
        <translation>Une autre instance de Lullet est en cours d’exécution mais ne répond pas.</translation>
    </message>
</context>
</TS>
