<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>Autostart</name>
    <message>
        <source>Cannot make the folder %1.</source>
        <translation>No se puede crear la carpeta %1.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>Cannot remove %1: %2</source>
        <translation>No se puede eliminar %1: %2</translation>
    </message>
</context>
<context>
    <name>Backups</name>
    <message>
        <source>Backup</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Restored Backup</source>
        <translation>Copia antes de restaurar</translation>
    </message>
</context>
<context>
    <name>CalDavClient</name>
    <message>
        <source>HTTP status %1</source>
        <translation>estado HTTP %1</translation>
    </message>
    <message>
        <source>no WebDAV answer</source>
        <translation>sin respuesta WebDAV</translation>
    </message>
    <message>
        <source>no sync token</source>
        <translation>sin token de sincronización</translation>
    </message>
</context>
<context>
    <name>CatalogueEntries</name>
    <message>
        <source>Rest breaks</source>
        <translation>Pausas de descanso</translation>
    </message>
    <message>
        <source>Nutrition breaks</source>
        <translation>Pausas de alimentación</translation>
    </message>
    <message>
        <source>Fitness breaks</source>
        <translation>Pausas de ejercicio</translation>
    </message>
    <message>
        <source>Light Food breaks</source>
        <translation>Pausas de comida ligera</translation>
    </message>
    <message>
        <source>Lunch break</source>
        <translation>Pausa para el almuerzo</translation>
    </message>
    <message>
        <source>Its time for lunch. Make sure you are having it on time.</source>
        <translation>Es la hora del almuerzo. Procura comer a tu hora.</translation>
    </message>
    <message>
        <source>Tea break</source>
        <translation>Pausa para el té</translation>
    </message>
    <message>
        <source>Small tea breaks improve concentration and garner energy.</source>
        <translation>Las pequeñas pausas para el té mejoran la concentración y dan energía.</translation>
    </message>
    <message>
        <source>Washroom</source>
        <translation>Aseo</translation>
    </message>
    <message>
        <source>Remove any dirts and always keep yourself clean and fresh.</source>
        <translation>Aséate y refréscate: cuida siempre tu higiene personal.</translation>
    </message>
    <message>
        <source>Breakfast time</source>
        <translation>Hora del desayuno</translation>
    </message>
    <message>
        <source>Never skip your breakfast and do it on time, every day!</source>
        <translation>¡No te saltes nunca el desayuno y tómalo a su hora, todos los días!</translation>
    </message>
    <message>
        <source>Fruits time</source>
        <translation>Hora de la fruta</translation>
    </message>
    <message>
        <source>Eat plenty of fruits and make your diet healthier.</source>
        <translation>Come mucha fruta y haz tu dieta más saludable.</translation>
    </message>
    <message>
        <source>Water time</source>
        <translation>Hora de beber agua</translation>
    </message>
    <message>
        <source>Drink lots of water to hydrate your body through out the day.</source>
        <translation>Bebe mucha agua para hidratar tu cuerpo a lo largo del día.</translation>
    </message>
    <message>
        <source>Body stretching</source>
        <translation>Estiramientos</translation>
    </message>
    <message>
        <source>Stretching exercises can improve your posture as well as relief stress.</source>
        <translation>Los estiramientos pueden mejorar tu postura y aliviar el estrés.</translation>
    </message>
    <message>
        <source>Walk break</source>
        <translation>Pausa para caminar</translation>
    </message>
    <message>
        <source>A 20 minutes walk can increase blood flow to the brain and boost creativity.</source>
        <translation>Un paseo de 20 minutos puede aumentar el flujo de sangre al cerebro y estimular la creatividad.</translation>
    </message>
    <message>
        <source>Stand up</source>
        <translation>Levántate</translation>
    </message>
    <message>
        <source>Stand up and take some steps around the room.</source>
        <translation>Levántate y da unos pasos por la habitación.</translation>
    </message>
    <message>
        <source>power nap</source>
        <translation>Siesta corta</translation>
    </message>
    <message>
        <source>A 10 minutes has been shown to improve cognitive function and decrease sleepiness and fatigue.</source>
        <translation>Se ha demostrado que una siesta de 10 minutos mejora la función cognitiva y reduce la somnolencia y el cansancio.</translation>
    </message>
    <message>
        <source>Exercise break</source>
        <translation>Pausa para hacer ejercicio</translation>
    </message>
    <message>
        <source>Pick a decent workout in under 10 minutes to give your mind the needed rest.</source>
        <translation>Haz un buen ejercicio de menos de 10 minutos para darle a tu mente el descanso que necesita.</translation>
    </message>
    <message>
        <source>Meditation break</source>
        <translation>Pausa para meditar</translation>
    </message>
    <message>
        <source>Relax your brain in a short amount of time by meditating.</source>
        <translation>Relaja tu mente en poco tiempo meditando.</translation>
    </message>
    <message>
        <source>Eye exercise</source>
        <translation>Ejercicio para los ojos</translation>
    </message>
    <message>
        <source>In every 20 minutes, take a break for at least 20 seconds and look at objects that are 20 feet away.</source>
        <translation>Cada 20 minutos, descansa al menos 20 segundos mirando objetos que estén a unos 6 metros.</translation>
    </message>
    <message>
        <source>Go out side and see some nature</source>
        <translation>Sal fuera y disfruta de la naturaleza</translation>
    </message>
    <message>
        <source>Spending time in nature is good for your immune system and has been shown to improve focus and relieve stress.</source>
        <translation>Pasar tiempo en la naturaleza es bueno para tu sistema inmunitario y se ha demostrado que mejora la concentración y alivia el estrés.</translation>
    </message>
    <message>
        <source>Snack break</source>
        <translation>Pausa para un tentempié</translation>
    </message>
    <message>
        <source>Take healthy snack breaks and store enough energy to run through out the day.</source>
        <translation>Toma tentempiés saludables y acumula energía suficiente para todo el día.</translation>
    </message>
    <message>
        <source>Coffee break</source>
        <translation>Pausa para el café</translation>
    </message>
    <message>
        <source>Coffee breaks can stimulate your focus and make you stay awake if you are feeling drowsy.</source>
        <translation>Las pausas para el café pueden mejorar tu concentración y ayudarte a espabilar si tienes sueño.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Usage: lullet %1</source>
        <translation>Uso: lullet %1</translation>
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
Programa pausas breves para tu salud y tus tareas, desde la bandeja.

  --quick-add  abre la ventana «Añadir rápido» del Lullet en marcha
  --in-tray    inicia en la bandeja sin abrir la ventana
  --pause [MINUTOS]
               pausa los recordatorios del Lullet en marcha durante MINUTOS,
               o hasta que se reanuden
  --resume     reanuda los recordatorios
  --help       muestra esta ayuda y sale
  --version    muestra la versión y sale

Iniciarlo por segunda vez trae al frente el Lullet que ya está en marcha.
</translation>
    </message>
    <message>
        <source>lullet: unknown option &apos;%1&apos;</source>
        <translation>lullet: opción desconocida «%1»</translation>
    </message>
</context>
<context>
    <name>DashboardSummary</name>
    <message>
        <source>JAN</source>
        <translation>ENE</translation>
    </message>
    <message>
        <source>FEB</source>
        <translation>FEB</translation>
    </message>
    <message>
        <source>MAR</source>
        <translation>MAR</translation>
    </message>
    <message>
        <source>APR</source>
        <translation>ABR</translation>
    </message>
    <message>
        <source>MAY</source>
        <translation>MAY</translation>
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
        <translation>AGO</translation>
    </message>
    <message>
        <source>SEP</source>
        <translation>SEP</translation>
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
        <translation>DIC</translation>
    </message>
    <message>
        <source>Not in Project</source>
        <translation>Sin proyecto</translation>
    </message>
</context>
<context>
    <name>DashboardView</name>
    <message>
        <source>Overdue</source>
        <translation>Vencidas</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Actuales</translation>
    </message>
    <message>
        <source>Upcoming</source>
        <translation>Próximas</translation>
    </message>
</context>
<context>
    <name>Db</name>
    <message>
        <source>the disk is full</source>
        <translation>el disco está lleno</translation>
    </message>
    <message>
        <source>the store cannot be written</source>
        <translation>no se puede escribir en la base de datos</translation>
    </message>
    <message>
        <source>another program is using the store</source>
        <translation>otro programa está usando la base de datos</translation>
    </message>
    <message>
        <source>the store is damaged</source>
        <translation>la base de datos está dañada</translation>
    </message>
    <message>
        <source>the disk could not be read or written</source>
        <translation>no se pudo leer o escribir en el disco</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
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
        <translation>¿Qué estás haciendo ahora?</translation>
    </message>
    <message numerus="yes">
        <source>What were you doing for last %n minutes ?</source>
        <translation>
            <numerusform>¿Qué has estado haciendo durante %n minuto?</numerusform>
            <numerusform>¿Qué has estado haciendo durante los últimos %n minutos?</numerusform>
        </translation>
    </message>
    <message>
        <source> Task name is blank! Please enter task name. </source>
        <translation> El nombre de la tarea está vacío. Escribe un nombre. </translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>A task is already running.</source>
        <translation>Ya hay una tarea en marcha.</translation>
    </message>
    <message>
        <source>Another Task is already running. 
Do you want to complete that, and start this?</source>
        <translation>Ya hay otra tarea en marcha. 
¿Quieres completarla y empezar esta?</translation>
    </message>
    <message>
        <source>Cannot postpone now</source>
        <translation>No se puede aplazar ahora</translation>
    </message>
    <message>
        <source>Cannot postpone now as this Lullet is running</source>
        <translation>No se puede aplazar ahora porque este lullet está en marcha</translation>
    </message>
</context>
<context>
    <name>KeyringSecretStore</name>
    <message>
        <source>The keyring did not say why.</source>
        <translation>El depósito de claves no indicó el motivo.</translation>
    </message>
    <message>
        <source>Your keyring is locked and could not be unlocked.</source>
        <translation>Tu depósito de claves está bloqueado y no se pudo desbloquear.</translation>
    </message>
</context>
<context>
    <name>ListBuilder</name>
    <message>
        <source>%1 %2, %3 %4</source>
        <translation>%1, %2 %3 %4</translation>
    </message>
</context>
<context>
    <name>PasswordRules</name>
    <message>
        <source>Please insert values in text fields</source>
        <translation>Rellena los campos de texto</translation>
    </message>
    <message>
        <source>Password should be minimum 4 character</source>
        <translation>La contraseña debe tener al menos 4 caracteres</translation>
    </message>
    <message>
        <source>Passwords does not match</source>
        <translation>Las contraseñas no coinciden</translation>
    </message>
    <message>
        <source>Wrong Password</source>
        <translation>Contraseña incorrecta</translation>
    </message>
</context>
<context>
    <name>Postponing</name>
    <message>
        <source>Tomorrow eve</source>
        <translation>Mañana por la tarde</translation>
    </message>
    <message>
        <source>Next evening</source>
        <translation>La tarde siguiente</translation>
    </message>
    <message>
        <source>This evening</source>
        <translation>Esta tarde</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Mañana</translation>
    </message>
    <message>
        <source>Next day</source>
        <translation>Al día siguiente</translation>
    </message>
    <message>
        <source>This weekend</source>
        <translation>Este fin de semana</translation>
    </message>
    <message>
        <source>Next weekend</source>
        <translation>El próximo fin de semana</translation>
    </message>
</context>
<context>
    <name>PreferencesWindow</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Seguridad</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Sincronización</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Horario</translation>
    </message>
    <message>
        <source>More Info</source>
        <translation>Acerca de</translation>
    </message>
</context>
<context>
    <name>ProjectActions</name>
    <message>
        <source>Name is blank
Please set a name</source>
        <translation>El nombre está vacío
Escribe un nombre</translation>
    </message>
    <message>
        <source>Project alreday exists
Please enter different name</source>
        <translation>El proyecto ya existe
Escribe otro nombre</translation>
    </message>
    <message>
        <source>Confirm before delete</source>
        <translation>Confirmar la eliminación</translation>
    </message>
    <message>
        <source>All tasks under this Project will be deleted.
Are you sure to delete ?</source>
        <translation>Se eliminarán todas las tareas de este proyecto.
¿Seguro que quieres eliminarlo?</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Lullet could not open %1.</source>
        <translation>Lullet no pudo abrir %1.</translation>
    </message>
    <message>
        <source>No program on this computer opens such addresses.</source>
        <translation>Ningún programa de este equipo abre este tipo de direcciones.</translation>
    </message>
    <message>
        <source>The user&apos;s guide is not installed.</source>
        <translation>La guía del usuario no está instalada.</translation>
    </message>
    <message>
        <source>You can read it on the website: %1</source>
        <translation>Puedes leerla en el sitio web: %1</translation>
    </message>
    <message>
        <source>Welcome to Lullet</source>
        <translation>Te damos la bienvenida a Lullet</translation>
    </message>
    <message>
        <source>Short pauses keep you well through the day: a rest, a meal, a stretch, a glass of water. Lullet reminds you of them, and of your tasks.</source>
        <translation>Las pausas breves te mantienen bien a lo largo del día: un descanso, una comida, un estiramiento, un vaso de agua. Lullet te las recuerda, y también tus tareas.</translation>
    </message>
    <message>
        <source>Choose your lullets</source>
        <translation>Elige tus lullets</translation>
    </message>
    <message>
        <source>Open Lullets and switch on the suggestions you want. Each repeats by its own rule: every hour, at noon, on weekdays. Change a rule, or add your own.</source>
        <translation>Abre Lullets y activa las sugerencias que quieras. Cada una se repite según su propia regla: cada hora, a mediodía, entre semana. Cambia una regla o añade las tuyas.</translation>
    </message>
    <message>
        <source>Tasks and projects</source>
        <translation>Tareas y proyectos</translation>
    </message>
    <message>
        <source>Add a task from anywhere with Quick Add. Group tasks into projects, and see how much of the time you planned is used.</source>
        <translation>Añade una tarea desde cualquier sitio con «Añadir rápido». Agrupa las tareas en proyectos y comprueba cuánto has usado del tiempo previsto.</translation>
    </message>
    <message>
        <source>Your working hours</source>
        <translation>Tu horario laboral</translation>
    </message>
    <message>
        <source>Tell Lullet when you work. When nothing runs during those hours, it asks what you have been doing, and records the answer.</source>
        <translation>Dile a Lullet cuándo trabajas. Si no hay nada en marcha en esas horas, te pregunta qué has estado haciendo y guarda la respuesta.</translation>
    </message>
    <message>
        <source>Always at hand in the tray</source>
        <translation>Siempre a mano en la bandeja</translation>
    </message>
    <message>
        <source>Click the tray icon to see what runs and what comes next. Reminders open there too, and never take the keyboard from what you are typing.</source>
        <translation>Pulsa el icono de la bandeja para ver lo que está en marcha y lo que viene después. Los recordatorios también se abren ahí, y nunca le quitan el teclado a lo que estás escribiendo.</translation>
    </message>
    <message>
        <source>The report could not be saved.</source>
        <translation>No se pudo guardar el informe.</translation>
    </message>
    <message>
        <source>Lullet could not write %1.</source>
        <translation>Lullet no pudo escribir %1.</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Imprimir…</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>Guardar como PDF…</translation>
    </message>
    <message>
        <source>Mail…</source>
        <translation>Enviar por correo…</translation>
    </message>
    <message>
        <source>Save the Report as PDF</source>
        <translation>Guardar el informe como PDF</translation>
    </message>
    <message>
        <source>The report could not be printed.</source>
        <translation>No se pudo imprimir el informe.</translation>
    </message>
    <message>
        <source>The printer did not accept it.</source>
        <translation>La impresora no lo aceptó.</translation>
    </message>
    <message>
        <source>Lullet could not open your mail program.</source>
        <translation>Lullet no pudo abrir tu programa de correo.</translation>
    </message>
    <message>
        <source>The report is saved as %1: attach it to a message yourself.</source>
        <translation>El informe se ha guardado como %1: adjúntalo tú a un mensaje.</translation>
    </message>
</context>
<context>
    <name>QuickAddForm</name>
    <message>
        <source>No duration</source>
        <translation>Sin duración</translation>
    </message>
    <message>
        <source>1 Hour</source>
        <translation>1 hora</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Sin</translation>
    </message>
    <message>
        <source>%1 %2 %3</source>
        <translation>%1 %2 %3</translation>
    </message>
    <message>
        <source>date</source>
        <translation>fecha</translation>
    </message>
    <message>
        <source>at %1</source>
        <translation>a las %1</translation>
    </message>
    <message>
        <source> Task name is blank! Please enter task name. </source>
        <translation> El nombre de la tarea está vacío. Escribe un nombre. </translation>
    </message>
</context>
<context>
    <name>RemindBefore</name>
    <message>
        <source>On date</source>
        <translation>En la fecha</translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n día</numerusform>
            <numerusform>%n días</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReminderPrompt</name>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Time for : %1, at :%2</source>
        <translation>Es hora de: %1, a las %2</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>Tasks: %1</source>
        <translation>Tareas: %1</translation>
    </message>
    <message>
        <source>Complete: %1</source>
        <translation>Completadas: %1</translation>
    </message>
    <message>
        <source>Due: %1</source>
        <translation>Pendientes: %1</translation>
    </message>
    <message>
        <source>Today: %1</source>
        <translation>Hoy: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Today %1</source>
        <translation>Hoy %1</translation>
    </message>
</context>
<context>
    <name>ReportCommands</name>
    <message>
        <source>Oops!</source>
        <translation>¡Vaya!</translation>
    </message>
    <message>
        <source>Lullet report</source>
        <translation>Informe de Lullet</translation>
    </message>
    <message>
        <source>Lullet list report</source>
        <translation>Informe de una lista de Lullet</translation>
    </message>
    <message>
        <source>There is no task data to export.</source>
        <translation>No hay datos de tareas para exportar.</translation>
    </message>
    <message>
        <source>There is no task data to export for this Project.</source>
        <translation>No hay datos de tareas de este proyecto para exportar.</translation>
    </message>
</context>
<context>
    <name>ReportPainter</name>
    <message>
        <source>Page %1</source>
        <translation>Página %1</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>Tiempo: %1</translation>
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
        <translation>No se pudo leer el archivo.</translation>
    </message>
    <message>
        <source>Only a file can be restored, and this is a folder, a device or another special file.</source>
        <translation>Solo se puede restaurar un archivo, y esto es una carpeta, un dispositivo u otro archivo especial.</translation>
    </message>
    <message>
        <source>The file is not a database, so it is no Lullet backup.</source>
        <translation>El archivo no es una base de datos, así que no es una copia de seguridad de Lullet.</translation>
    </message>
    <message>
        <source>The file is damaged: %1</source>
        <translation>El archivo está dañado: %1</translation>
    </message>
    <message>
        <source>The file is an empty database, not a Lullet store.</source>
        <translation>El archivo es una base de datos vacía, no una base de datos de Lullet.</translation>
    </message>
    <message>
        <source>The file is a database of another program, not a Lullet store.</source>
        <translation>El archivo es una base de datos de otro programa, no de Lullet.</translation>
    </message>
    <message>
        <source>The file was written by a newer version of Lullet. Update Lullet to restore it.</source>
        <translation>El archivo lo escribió una versión más reciente de Lullet. Actualiza Lullet para restaurarlo.</translation>
    </message>
    <message>
        <source>The file lacks the tables of a Lullet store.</source>
        <translation>Al archivo le faltan las tablas de una base de datos de Lullet.</translation>
    </message>
</context>
<context>
    <name>RowTexts</name>
    <message numerus="yes">
        <source>In %n days</source>
        <translation>
            <numerusform>Dentro de %n día</numerusform>
            <numerusform>Dentro de %n días</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Overdue by %n days</source>
        <translation>
            <numerusform>Venció hace %n día</numerusform>
            <numerusform>Venció hace %n días</numerusform>
        </translation>
    </message>
    <message>
        <source>Due from %1 hr %2 min</source>
        <translation>Venció hace %1 h %2 min</translation>
    </message>
    <message>
        <source>Due from %1 hr </source>
        <translation>Venció hace %1 h </translation>
    </message>
    <message>
        <source>Due from %1 min</source>
        <translation>Venció hace %1 min</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 a las %2</translation>
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
        <translation>Tarea pendiente</translation>
    </message>
    <message>
        <source>Timed task</source>
        <translation>Tarea cronometrada</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutos</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Horas</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Días</translation>
    </message>
    <message>
        <source>Weeks</source>
        <translation>Semanas</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Meses</translation>
    </message>
    <message>
        <source>Years</source>
        <translation>Años</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nunca</translation>
    </message>
    <message>
        <source>Until a date</source>
        <translation>Hasta una fecha</translation>
    </message>
    <message>
        <source>How often should it repeat? Please enter a number above 0.</source>
        <translation>¿Cada cuánto debe repetirse? Introduce un número mayor que 0.</translation>
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
        <translation>%1: %2 de %3 min</translation>
    </message>
    <message>
        <source>%1: %2 min</source>
        <translation>%1: %2 min</translation>
    </message>
    <message>
        <source>Lullet</source>
        <translation>Lullet</translation>
    </message>
    <message>
        <source>Next: %1 at %2</source>
        <translation>Siguiente: %1 a las %2</translation>
    </message>
    <message>
        <source>Next: %1 on %2 at %3</source>
        <translation>Siguiente: %1 el %2 a las %3</translation>
    </message>
</context>
<context>
    <name>ScheduleTexts</name>
    <message>
        <source>minute</source>
        <translation>minuto</translation>
    </message>
    <message>
        <source>hour</source>
        <translation>hora</translation>
    </message>
    <message>
        <source>day</source>
        <translation>día</translation>
    </message>
    <message>
        <source>week</source>
        <translation>semana</translation>
    </message>
    <message>
        <source>month</source>
        <translation>mes</translation>
    </message>
    <message>
        <source>year</source>
        <translation>año</translation>
    </message>
    <message numerus="yes">
        <source>%n mins</source>
        <translation>
            <numerusform>%n min</numerusform>
            <numerusform>%n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours</source>
        <translation>
            <numerusform>%n hora</numerusform>
            <numerusform>%n horas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n día</numerusform>
            <numerusform>%n días</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n weeks</source>
        <translation>
            <numerusform>%n semana</numerusform>
            <numerusform>%n semanas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n months</source>
        <translation>
            <numerusform>%n mes</numerusform>
            <numerusform>%n meses</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n years</source>
        <translation>
            <numerusform>%n año</numerusform>
            <numerusform>%n años</numerusform>
        </translation>
    </message>
    <message>
        <source>On %1 %2, %3 %4</source>
        <translation>%1, %2 %3 %4</translation>
    </message>
    <message>
        <source>Lullet : %1 at %2, repeats every %3</source>
        <translation>Lullet: %1 a las %2, se repite cada %3</translation>
    </message>
    <message>
        <source>Task : %1 at %2, repeats every %3</source>
        <translation>Tarea: %1 a las %2, se repite cada %3</translation>
    </message>
    <message>
        <source>No further repeat</source>
        <translation>Sin más repeticiones</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>In next %1 hr %2 min</source>
        <translation>Dentro de %1 h %2 min</translation>
    </message>
    <message>
        <source>In next %1 hr </source>
        <translation>Dentro de %1 h </translation>
    </message>
    <message>
        <source>In next %1 min</source>
        <translation>Dentro de %1 min</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 a las %2</translation>
    </message>
    <message numerus="yes">
        <source>In next %n days at %1</source>
        <translation>
            <numerusform>Dentro de %n día a las %1</numerusform>
            <numerusform>Dentro de %n días a las %1</numerusform>
        </translation>
    </message>
    <message>
        <source>On %1 %2 %3 at %4</source>
        <translation>El %1 %2 %3 a las %4</translation>
    </message>
    <message numerus="yes">
        <source>Repeat every %n mins</source>
        <translation>
            <numerusform>Se repite cada %n min</numerusform>
            <numerusform>Se repite cada %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Repeat every %n hrs</source>
        <translation>
            <numerusform>Se repite cada %n h</numerusform>
            <numerusform>Se repite cada %n h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Repeat every %n days</source>
        <translation>
            <numerusform>Se repite cada %n día</numerusform>
            <numerusform>Se repite cada %n días</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Repeat every %n weeks</source>
        <translation>
            <numerusform>Se repite cada %n semana</numerusform>
            <numerusform>Se repite cada %n semanas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Repeat every %n months</source>
        <translation>
            <numerusform>Se repite cada %n mes</numerusform>
            <numerusform>Se repite cada %n meses</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Repeat every %n years</source>
        <translation>
            <numerusform>Se repite cada %n año</numerusform>
            <numerusform>Se repite cada %n años</numerusform>
        </translation>
    </message>
    <message>
        <source>, On %1 %2 %3</source>
        <translation>, el %1 %2 %3</translation>
    </message>
    <message>
        <source>, at %1</source>
        <translation>, a las %1</translation>
    </message>
    <message>
        <source>, For : %1hr:%2min</source>
        <translation>, duración: %1 h %2 min</translation>
    </message>
</context>
<context>
    <name>SecurityTab</name>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambiar</translation>
    </message>
</context>
<context>
    <name>Segment</name>
    <message>
        <source>Dashboard</source>
        <translation>Panel</translation>
    </message>
    <message>
        <source>Lullets</source>
        <translation>Lullets</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Upcoming</source>
        <translation>Próximas</translation>
    </message>
    <message>
        <source>Anytime</source>
        <translation>Sin fecha</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Completadas</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Proyecto</translation>
    </message>
</context>
<context>
    <name>Store</name>
    <message>
        <source>Expected a folder to store application data, found a file %1.</source>
        <translation>Se esperaba una carpeta para guardar los datos de la aplicación, pero %1 es un archivo.</translation>
    </message>
    <message>
        <source>There was an error creating or loading the application&apos;s saved data. The folder %1 could not be created.</source>
        <translation>Se produjo un error al crear o cargar los datos guardados de la aplicación. No se pudo crear la carpeta %1.</translation>
    </message>
    <message>
        <source>Lullet was stopped during a restore, and your store could not be put back. Rename %1 to %2, then start Lullet again.</source>
        <translation>Lullet se detuvo durante una restauración y no se pudo recuperar tu base de datos. Cambia el nombre de %1 a %2 y vuelve a iniciar Lullet.</translation>
    </message>
    <message>
        <source>Lullet was stopped during a restore. Your data is as it was before it.</source>
        <translation>Lullet se detuvo durante una restauración. Tus datos están como estaban antes.</translation>
    </message>
    <message>
        <source>The disk that holds your Lullet store (%1) is full. Free some space, then start Lullet again.</source>
        <translation>El disco que contiene la base de datos de Lullet (%1) está lleno. Libera algo de espacio y vuelve a iniciar Lullet.</translation>
    </message>
    <message>
        <source>the file is not a database</source>
        <translation>el archivo no es una base de datos</translation>
    </message>
    <message>
        <source>the file is not a Lullet store</source>
        <translation>el archivo no es una base de datos de Lullet</translation>
    </message>
    <message>
        <source>the store was written by a newer version of Lullet</source>
        <translation>la base de datos la escribió una versión más reciente de Lullet</translation>
    </message>
    <message>
        <source>the store is damaged</source>
        <translation>la base de datos está dañada</translation>
    </message>
    <message>
        <source>The store %1 is in use by another program. Close it and start Lullet again.</source>
        <translation>Otro programa está usando la base de datos %1. Ciérralo y vuelve a iniciar Lullet.</translation>
    </message>
    <message>
        <source>The store %1 cannot be read.</source>
        <translation>No se puede leer la base de datos %1.</translation>
    </message>
    <message>
        <source>The store %1 is read-only. Lullet saves every change as it happens: make the file writable and start Lullet again.</source>
        <translation>La base de datos %1 es de solo lectura. Lullet guarda cada cambio al momento: permite escribir en el archivo y vuelve a iniciar Lullet.</translation>
    </message>
    <message>
        <source>The store %1 cannot be opened.</source>
        <translation>No se puede abrir la base de datos %1.</translation>
    </message>
    <message>
        <source>The store %1 cannot be brought up to date.</source>
        <translation>No se puede actualizar la base de datos %1.</translation>
    </message>
    <message>
        <source>The store %1 lacks Lullet&apos;s tables. Move that file aside (rename it), and Lullet will start afresh with an empty store.</source>
        <translation>A la base de datos %1 le faltan las tablas de Lullet. Aparta ese archivo (cámbiale el nombre) y Lullet empezará de cero con una base de datos vacía.</translation>
    </message>
    <message>
        <source>The store %1 cannot be loaded.</source>
        <translation>No se puede cargar la base de datos %1.</translation>
    </message>
    <message>
        <source>The store %1 could not be used (%2), and could not be moved aside either.</source>
        <translation>No se pudo usar la base de datos %1 (%2), y tampoco se pudo apartar.</translation>
    </message>
    <message>
        <source>The store could not be used (%1). It was moved to %2; Lullet will start with an empty store next time.</source>
        <translation>No se pudo usar la base de datos (%1). Se ha movido a %2; la próxima vez Lullet empezará con una base de datos vacía.</translation>
    </message>
    <message>
        <source>The restored copy could not be written to the disk, so nothing was restored.</source>
        <translation>No se pudo escribir en el disco la copia restaurada, así que no se ha restaurado nada.</translation>
    </message>
    <message>
        <source>Your store could not be set aside for the restore, so nothing was restored.</source>
        <translation>No se pudo apartar tu base de datos para la restauración, así que no se ha restaurado nada.</translation>
    </message>
    <message>
        <source>The restored copy could not be put in place.</source>
        <translation>No se pudo colocar en su sitio la copia restaurada.</translation>
    </message>
    <message>
        <source>The restore failed (%1); your store was put back as it was.</source>
        <translation>La restauración falló (%1); tu base de datos ha vuelto a quedar como estaba.</translation>
    </message>
</context>
<context>
    <name>StoreCopy</name>
    <message>
        <source>The store %1 does not exist.</source>
        <translation>La base de datos %1 no existe.</translation>
    </message>
    <message>
        <source>%1 already exists; it was left as it was.</source>
        <translation>%1 ya existe; se ha dejado como estaba.</translation>
    </message>
    <message>
        <source>%1 could not be read: %2</source>
        <translation>No se pudo leer %1: %2</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>No se pudo escribir %1: %2</translation>
    </message>
    <message>
        <source>The store could not be copied: %1</source>
        <translation>No se pudo copiar la base de datos: %1</translation>
    </message>
    <message>
        <source>The copy could not be made a single file: %1</source>
        <translation>No se pudo convertir la copia en un único archivo: %1</translation>
    </message>
    <message>
        <source>The copy could not be written to %1.</source>
        <translation>No se pudo escribir la copia en %1.</translation>
    </message>
</context>
<context>
    <name>TimeOverPrompt</name>
    <message>
        <source>Have you finished : %1 ?</source>
        <translation>¿Has terminado: %1?</translation>
    </message>
</context>
<context>
    <name>TodoPrompt</name>
    <message>
        <source>Time for : %1. Done ?</source>
        <translation>Es hora de: %1. ¿Hecho?</translation>
    </message>
</context>
<context>
    <name>WeekdayNames</name>
    <message>
        <source>Sunday</source>
        <translation>Domingo</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lunes</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Martes</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Miércoles</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Jueves</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Viernes</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sábado</translation>
    </message>
</context>
<context>
    <name>lullet::AddTaskView</name>
    <message>
        <source>Task</source>
        <translation>Tarea</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Cuándo</translation>
    </message>
    <message>
        <source>Add Task…</source>
        <translation>Añadir tarea…</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Editar…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Are you sure to delete ?</source>
        <translation>¿Seguro que quieres eliminarlo?</translation>
    </message>
    <message>
        <source>This Reminder will be deleted.</source>
        <translation>Se eliminará este recordatorio.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
</context>
<context>
    <name>lullet::AppController</name>
    <message>
        <source>Reason for activity</source>
        <translation>Actividad en curso</translation>
    </message>
</context>
<context>
    <name>lullet::BackupCommands</name>
    <message>
        <source>The backup could not be made.</source>
        <translation>No se pudo hacer la copia de seguridad.</translation>
    </message>
    <message>
        <source>This file can&apos;t be restored. Nothing was changed.</source>
        <translation>Este archivo no se puede restaurar. No se ha cambiado nada.</translation>
    </message>
    <message>
        <source>The restore could not be done.</source>
        <translation>No se pudo hacer la restauración.</translation>
    </message>
    <message>
        <source>Some old backups could not be deleted, so they stay in the list.</source>
        <translation>Algunas copias antiguas no se pudieron eliminar, así que siguen en la lista.</translation>
    </message>
    <message>
        <source>Lullet is locked.</source>
        <translation>Lullet está bloqueado.</translation>
    </message>
    <message>
        <source>Enter your password first, then back up or restore your data.</source>
        <translation>Introduce primero tu contraseña; después podrás hacer copias de seguridad o restaurar tus datos.</translation>
    </message>
    <message>
        <source>Back Up Now</source>
        <translation>Hacer copia de seguridad ahora</translation>
    </message>
    <message>
        <source>Confirm Restore</source>
        <translation>Confirmar la restauración</translation>
    </message>
    <message>
        <source>All data will be replaced.
Do you want to proceed?</source>
        <translation>Se reemplazarán todos los datos.
¿Quieres continuar?</translation>
    </message>
    <message>
        <source>Restore From File</source>
        <translation>Restaurar desde archivo</translation>
    </message>
    <message>
        <source>This backup&apos;s file is gone, so it can&apos;t be restored.</source>
        <translation>El archivo de esta copia ya no existe, así que no se puede restaurar.</translation>
    </message>
    <message>
        <source>Save a Copy</source>
        <translation>Guardar una copia</translation>
    </message>
    <message>
        <source>The copy could not be saved.</source>
        <translation>No se pudo guardar la copia.</translation>
    </message>
    <message>
        <source>%1 is in the way and can&apos;t be replaced.</source>
        <translation>%1 ya existe y no se puede reemplazar.</translation>
    </message>
</context>
<context>
    <name>lullet::BackupTab</name>
    <message>
        <source>Back up at each launch</source>
        <translation>Hacer una copia en cada inicio</translation>
    </message>
    <message>
        <source>Keep all backups</source>
        <translation>Conservar todas las copias</translation>
    </message>
    <message>
        <source>Keep backups for a week</source>
        <translation>Conservar las copias una semana</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Copias de seguridad</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Restore…</source>
        <translation>Restaurar…</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>Eliminar…</translation>
    </message>
    <message>
        <source>Back Up Now…</source>
        <translation>Hacer copia ahora…</translation>
    </message>
    <message>
        <source>Restore From File…</source>
        <translation>Restaurar desde archivo…</translation>
    </message>
    <message>
        <source>Delete All…</source>
        <translation>Eliminar todas…</translation>
    </message>
    <message>
        <source>Save a Copy…</source>
        <translation>Guardar una copia…</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>Mostrar en el gestor de archivos</translation>
    </message>
    <message>
        <source>Selected backup will be deleted.</source>
        <translation>Se eliminará la copia seleccionada.</translation>
    </message>
    <message>
        <source>Are you sure to delete ?</source>
        <translation>¿Seguro que quieres continuar?</translation>
    </message>
    <message>
        <source>The backup&apos;s file could not be deleted.</source>
        <translation>No se pudo eliminar el archivo de la copia.</translation>
    </message>
    <message>
        <source>All backups will be deleted.</source>
        <translation>Se eliminarán todas las copias.</translation>
    </message>
    <message>
        <source>Some backup files could not be deleted.</source>
        <translation>No se pudieron eliminar algunos archivos de copia.</translation>
    </message>
</context>
<context>
    <name>lullet::Backups</name>
    <message>
        <source>No backup was made: the folder %1 could not be created.</source>
        <translation>No se hizo ninguna copia de seguridad: no se pudo crear la carpeta %1.</translation>
    </message>
    <message>
        <source>No backup was made. %1</source>
        <translation>No se hizo ninguna copia de seguridad. %1</translation>
    </message>
    <message>
        <source>That file is the store Lullet is using now.</source>
        <translation>Ese archivo es la base de datos que Lullet está usando ahora.</translation>
    </message>
    <message>
        <source>That file is one Lullet works with while it copies or restores, not a backup.</source>
        <translation>Lullet usa ese archivo mientras copia o restaura; no es una copia de seguridad.</translation>
    </message>
    <message>
        <source>Your latest changes could not be saved, so nothing was restored.</source>
        <translation>No se pudieron guardar tus últimos cambios, así que no se ha restaurado nada.</translation>
    </message>
    <message>
        <source>No safety copy of your present data could be made, so nothing was restored.</source>
        <translation>No se pudo hacer una copia de seguridad de tus datos actuales, así que no se ha restaurado nada.</translation>
    </message>
</context>
<context>
    <name>lullet::Catalogue</name>
    <message>
        <source>Custom breaks</source>
        <translation>Pausas personalizadas</translation>
    </message>
</context>
<context>
    <name>lullet::CircularProgress</name>
    <message>
        <source>%1 % complete</source>
        <translation>%1 % completado</translation>
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
        <translation>Contacto</translation>
    </message>
    <message>
        <source>A question, an idea, or something that does not work as it should? Write to us at %1, or use the form on %2.</source>
        <translation>¿Una pregunta, una idea o algo que no funciona como debería? Escríbenos a %1 o usa el formulario de %2.</translation>
    </message>
    <message>
        <source>our contact page</source>
        <translation>nuestra página de contacto</translation>
    </message>
    <message>
        <source>Many answers are already in the %1.</source>
        <translation>Muchas respuestas ya están en las %1.</translation>
    </message>
    <message>
        <source>FAQ</source>
        <translation>preguntas frecuentes</translation>
    </message>
</context>
<context>
    <name>lullet::DashboardView</name>
    <message>
        <source>You need to provide data for the chart.</source>
        <translation>No hay datos para mostrar en el gráfico.</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Proyectos</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Proyecto</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>Tareas</translation>
    </message>
    <message>
        <source>Planned</source>
        <translation>Previsto</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Print, save as PDF or mail</source>
        <translation>Imprimir, guardar como PDF o enviar por correo</translation>
    </message>
</context>
<context>
    <name>lullet::DateChooser</name>
    <message>
        <source>No date</source>
        <translation>Sin fecha</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Establecer</translation>
    </message>
</context>
<context>
    <name>lullet::GeneralTab</name>
    <message>
        <source>Start Lullet at login</source>
        <translation>Abrir Lullet al iniciar sesión</translation>
    </message>
    <message>
        <source>Show the window in the taskbar at launch</source>
        <translation>Mostrar la ventana en la barra de tareas al iniciar</translation>
    </message>
    <message>
        <source>Show the icon in the tray</source>
        <translation>Mostrar el icono en la bandeja</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>Hold prompts when I&apos;m away for</source>
        <translation>Retener los avisos si me ausento durante</translation>
    </message>
    <message>
        <source>Hold prompts while another program is full screen</source>
        <translation>Retener los avisos mientras otro programa está a pantalla completa</translation>
    </message>
    <message>
        <source>A break due while I&apos;m away for its length counts as taken</source>
        <translation>Una pausa cuenta como hecha si estoy ausente todo lo que dura</translation>
    </message>
    <message>
        <source>Play a sound with each prompt</source>
        <translation>Reproducir un sonido con cada aviso</translation>
    </message>
    <message>
        <source>Ask what I&apos;m doing after</source>
        <translation>Preguntar qué estoy haciendo tras</translation>
    </message>
    <message>
        <source>During your working hours, when nothing has run for this long, Lullet asks what you have been doing.</source>
        <translation>En tu horario laboral, si no hay nada en marcha durante ese tiempo, Lullet te pregunta qué has estado haciendo.</translation>
    </message>
    <message>
        <source>Lullet could not change how it starts at login.</source>
        <translation>Lullet no pudo cambiar si se abre al iniciar sesión.</translation>
    </message>
    <message>
        <source>You must now restart app</source>
        <translation>Tienes que reiniciar la aplicación</translation>
    </message>
    <message>
        <source>Your new setting for the taskbar won&apos;t show up until you relaunch this application.</source>
        <translation>El nuevo ajuste de la barra de tareas no se verá hasta que vuelvas a abrir la aplicación.</translation>
    </message>
    <message>
        <source>Relaunch Now</source>
        <translation>Reiniciar ahora</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>Lullet could not be started again.</source>
        <translation>Lullet no se pudo volver a iniciar.</translation>
    </message>
    <message>
        <source>Quit Lullet and start it yourself to see the new setting.</source>
        <translation>Sal de Lullet y vuelve a abrirlo tú para ver el nuevo ajuste.</translation>
    </message>
</context>
<context>
    <name>lullet::HelpWindow</name>
    <message>
        <source>Lullet Help</source>
        <translation>Ayuda de Lullet</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>lullet::IdlePromptView</name>
    <message>
        <source>What have you been doing?</source>
        <translation>¿Qué has estado haciendo?</translation>
    </message>
    <message>
        <source>What you have been doing</source>
        <translation>Lo que has estado haciendo</translation>
    </message>
    <message>
        <source>Meeting</source>
        <translation>Reunión</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Correo</translation>
    </message>
    <message>
        <source>Phone call</source>
        <translation>Llamada</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Descanso</translation>
    </message>
    <message>
        <source>Lunch</source>
        <translation>Almuerzo</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lectura</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>Ask again in one prompt period</source>
        <translation>Volver a preguntar tras un intervalo de aviso</translation>
    </message>
    <message>
        <source>Done already</source>
        <translation>Ya está hecho</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Empezar</translation>
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
        <translation>Detener: ya está hecho</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Empezar</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Usado</translation>
    </message>
</context>
<context>
    <name>lullet::ItemListView</name>
    <message>
        <source>Items</source>
        <translation>Elementos</translation>
    </message>
    <message>
        <source>Nothing here. Enjoy the calm.</source>
        <translation>Nada por aquí. Disfruta de la calma.</translation>
    </message>
    <message>
        <source>Task completed</source>
        <translation>Tarea completada</translation>
    </message>
    <message>
        <source>%1 has been completed now</source>
        <translation>%1 se ha completado</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Empezar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Lullet postponed</source>
        <translation>Lullet aplazado</translation>
    </message>
    <message>
        <source>%1 has been postponed to %2 %3 %4</source>
        <translation>%1 se ha aplazado al %2 %3 %4</translation>
    </message>
</context>
<context>
    <name>lullet::ItemMenu</name>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Empezar</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Terminar</translation>
    </message>
    <message>
        <source>Postpone…</source>
        <translation>Aplazar…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Postpone</source>
        <translation>Aplazar</translation>
    </message>
    <message>
        <source>In 3 hours</source>
        <translation>En 3 horas</translation>
    </message>
    <message>
        <source>Next week</source>
        <translation>La próxima semana</translation>
    </message>
    <message>
        <source>In a month</source>
        <translation>En un mes</translation>
    </message>
    <message>
        <source>Move to</source>
        <translation>Mover a</translation>
    </message>
    <message>
        <source>Duplicate to</source>
        <translation>Duplicar en</translation>
    </message>
    <message>
        <source>No Project</source>
        <translation>Sin proyecto</translation>
    </message>
</context>
<context>
    <name>lullet::Library</name>
    <message>
        <source>Your changes could not be saved: %1. Lullet keeps them and saves them with your next change.</source>
        <translation>No se pudieron guardar tus cambios: %1. Lullet los conserva y los guardará con tu próximo cambio.</translation>
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
        <translation>Preguntar en inactividad</translation>
    </message>
    <message>
        <source>When nothing runs in working hours, ask what you have been doing</source>
        <translation>Si no hay nada en marcha en horario laboral, preguntar qué has estado haciendo</translation>
    </message>
    <message>
        <source>Started only</source>
        <translation>Solo empezados</translation>
    </message>
    <message>
        <source>List only the items that have been started</source>
        <translation>Mostrar solo los elementos que se han empezado</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Completado</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Proyecto</translation>
    </message>
    <message>
        <source>Add Tasks…</source>
        <translation>Añadir tareas…</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Time used %1</source>
        <translation>Tiempo usado %1</translation>
    </message>
    <message>
        <source>No Lullet</source>
        <translation>Sin lullets</translation>
    </message>
    <message>
        <source>Ongoing</source>
        <translation>En curso</translation>
    </message>
    <message>
        <source>Running: %1</source>
        <translation>En marcha: %1</translation>
    </message>
</context>
<context>
    <name>lullet::LoginPage</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Entrar</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>PLEASE ENTER PASSWORD...</source>
        <translation>INTRODUCE LA CONTRASEÑA...</translation>
    </message>
    <message>
        <source>INCORRECT PASSWORD...</source>
        <translation>CONTRASEÑA INCORRECTA...</translation>
    </message>
    <message>
        <source>Lullet cannot reach your keyring, so it cannot check the password. Your data stays locked.
%1</source>
        <translation>Lullet no puede acceder a tu depósito de claves, así que no puede comprobar la contraseña. Tus datos siguen bloqueados.
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
        <translation>&amp;Añadir rápido</translation>
    </message>
    <message>
        <source>&amp;Back Up Now…</source>
        <translation>Hacer &amp;copia ahora…</translation>
    </message>
    <message>
        <source>&amp;Restore From File…</source>
        <translation>&amp;Restaurar desde archivo…</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferencias…</translation>
    </message>
    <message>
        <source>&amp;Quit Lullet</source>
        <translation>&amp;Salir de Lullet</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Lullet &amp;Help</source>
        <translation>&amp;Ayuda de Lullet</translation>
    </message>
    <message>
        <source>&amp;User&apos;s Guide</source>
        <translation>&amp;Guía del usuario</translation>
    </message>
    <message>
        <source>&amp;Frequently Asked Questions</source>
        <translation>Preguntas &amp;frecuentes</translation>
    </message>
    <message>
        <source>&amp;Website</source>
        <translation>Sitio &amp;web</translation>
    </message>
    <message>
        <source>&amp;Privacy Policy</source>
        <translation>&amp;Política de privacidad</translation>
    </message>
    <message>
        <source>&amp;Terms and Conditions</source>
        <translation>&amp;Términos y condiciones</translation>
    </message>
    <message>
        <source>&amp;Contact Us…</source>
        <translation>&amp;Contactar…</translation>
    </message>
</context>
<context>
    <name>lullet::MoreInfoTab</name>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Lullet keeps you to short, healthy pauses through the day and to your tasks, and asks what you have been doing when nothing runs during your working hours. Your data stays on this computer.</source>
        <translation>Lullet te ayuda a hacer pausas breves y saludables a lo largo del día y a cumplir con tus tareas, y te pregunta qué has estado haciendo cuando no hay nada en marcha en tu horario laboral. Tus datos se quedan en este equipo.</translation>
    </message>
    <message>
        <source>Open the User&apos;s Guide</source>
        <translation>Abrir la guía del usuario</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Sitio web</translation>
    </message>
    <message>
        <source>Frequently Asked Questions</source>
        <translation>Preguntas frecuentes</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>Política de privacidad</translation>
    </message>
    <message>
        <source>Terms and Conditions</source>
        <translation>Términos y condiciones</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>Contactar</translation>
    </message>
</context>
<context>
    <name>lullet::MoreTimeMenu</name>
    <message numerus="yes">
        <source>%n minute(s)</source>
        <translation>
            <numerusform>%n minuto</numerusform>
            <numerusform>%n minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s)</source>
        <translation>
            <numerusform>%n hora</numerusform>
            <numerusform>%n horas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> %n minute(s)</source>
        <translation>
            <numerusform> y %n minuto</numerusform>
            <numerusform> y %n minutos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lullet::PauseActions</name>
    <message>
        <source>Pause Reminders</source>
        <translation>Pausar recordatorios</translation>
    </message>
    <message>
        <source>For 30 Minutes</source>
        <translation>Durante 30 minutos</translation>
    </message>
    <message>
        <source>For 1 Hour</source>
        <translation>Durante 1 hora</translation>
    </message>
    <message>
        <source>For 2 Hours</source>
        <translation>Durante 2 horas</translation>
    </message>
    <message>
        <source>Until Tomorrow</source>
        <translation>Hasta mañana</translation>
    </message>
    <message>
        <source>Until I Resume</source>
        <translation>Hasta que los reanude</translation>
    </message>
    <message>
        <source>Resume Reminders</source>
        <translation>Reanudar recordatorios</translation>
    </message>
</context>
<context>
    <name>lullet::PostponePanel</name>
    <message>
        <source>Postpone %1</source>
        <translation>Aplazar %1</translation>
    </message>
    <message>
        <source>In 3 hours</source>
        <translation>En 3 horas</translation>
    </message>
    <message>
        <source>Next week</source>
        <translation>La próxima semana</translation>
    </message>
    <message>
        <source>No date</source>
        <translation>Sin fecha</translation>
    </message>
    <message>
        <source>Pick date…</source>
        <translation>Elegir fecha…</translation>
    </message>
    <message>
        <source>EEE d MMM</source>
        <comment>ICU date pattern</comment>
        <translation>EEE, d MMM</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Postpone</source>
        <translation>Aplazar</translation>
    </message>
</context>
<context>
    <name>lullet::PreferencesWindow</name>
    <message>
        <source>Lullet Preferences</source>
        <translation>Preferencias de Lullet</translation>
    </message>
</context>
<context>
    <name>lullet::PromptView</name>
    <message>
        <source>Finished</source>
        <translation>Terminado</translation>
    </message>
    <message>
        <source>Need more time</source>
        <translation>Necesito más tiempo</translation>
    </message>
</context>
<context>
    <name>lullet::Protection</name>
    <message>
        <source>Your keyring did not answer.</source>
        <translation>Tu depósito de claves no respondió.</translation>
    </message>
</context>
<context>
    <name>lullet::QuickAddView</name>
    <message>
        <source>No Project</source>
        <translation>Sin proyecto</translation>
    </message>
    <message>
        <source>Quick add</source>
        <translation>Añadir rápido</translation>
    </message>
    <message>
        <source>Task name</source>
        <translation>Nombre de la tarea</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>Fecha límite</translation>
    </message>
</context>
<context>
    <name>lullet::ReminderNotice</name>
    <message>
        <source>Reminder</source>
        <translation>Recordatorio</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Empezar</translation>
    </message>
    <message>
        <source>In 10 min</source>
        <translation>En 10 min</translation>
    </message>
</context>
<context>
    <name>lullet::ReminderPause</name>
    <message>
        <source>Reminders paused until you resume them</source>
        <translation>Recordatorios en pausa hasta que los reanudes</translation>
    </message>
    <message>
        <source>Reminders paused until %1</source>
        <translation>Recordatorios en pausa hasta %1</translation>
    </message>
</context>
<context>
    <name>lullet::ReminderPromptView</name>
    <message>
        <source>Reminder</source>
        <translation>Recordatorio</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Empezar</translation>
    </message>
    <message>
        <source>In 10 min</source>
        <translation>En 10 min</translation>
    </message>
    <message>
        <source>In 30 min</source>
        <translation>En 30 min</translation>
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
        <translation>Activo</translation>
    </message>
    <message>
        <source>Lullet</source>
        <translation>Lullet</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Próximo</translation>
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
        <translation>Nuevo lullet…</translation>
    </message>
    <message>
        <source>Today: %1 of %2 done   Time used %3 of %4</source>
        <translation>Hoy: %1 de %2 hechos   Tiempo usado %3 de %4</translation>
    </message>
    <message>
        <source>Are you sure to delete ?</source>
        <translation>¿Seguro que quieres eliminarlo?</translation>
    </message>
    <message>
        <source>This Reminder will be deleted.</source>
        <translation>Se eliminará este recordatorio.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Editar…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>lullet::RuleFormView</name>
    <message>
        <source>Edit lullet</source>
        <translation>Editar lullet</translation>
    </message>
    <message>
        <source>New lullet</source>
        <translation>Nuevo lullet</translation>
    </message>
    <message>
        <source>Edit task</source>
        <translation>Editar tarea</translation>
    </message>
    <message>
        <source>New task</source>
        <translation>Nueva tarea</translation>
    </message>
    <message>
        <source>Due on</source>
        <translation>Vence el</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Antelación</translation>
    </message>
    <message>
        <source>Duration in hours</source>
        <translation>Duración en horas</translation>
    </message>
    <message>
        <source> hr</source>
        <translation> h</translation>
    </message>
    <message>
        <source>Duration in minutes</source>
        <translation>Duración en minutos</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>A to-do takes no time: it is confirmed when done.</source>
        <translation>Una tarea pendiente no ocupa tiempo: se confirma al hacerla.</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Remind me when it is due</source>
        <translation>Recordármelo cuando venza</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Hora del día</translation>
    </message>
    <message>
        <source>First on</source>
        <translation>Primera vez</translation>
    </message>
    <message>
        <source>Repeat every</source>
        <translation>Repetir cada</translation>
    </message>
    <message>
        <source>Ends</source>
        <translation>Termina</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Switched on</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
</context>
<context>
    <name>lullet::RunningListView</name>
    <message>
        <source>Lullet is locked. Enter your password in its window to see your tasks.</source>
        <translation>Lullet está bloqueado. Introduce tu contraseña en su ventana para ver tus tareas.</translation>
    </message>
    <message>
        <source>Running now</source>
        <translation>En marcha ahora</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Open Lullet</source>
        <translation>Abrir Lullet</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Nothing is running.</source>
        <translation>No hay nada en marcha.</translation>
    </message>
</context>
<context>
    <name>lullet::ScheduleTab</name>
    <message>
        <source>Working hours</source>
        <translation>Horario laboral</translation>
    </message>
    <message>
        <source>Lullet asks what you have been doing only on working days, between these times.</source>
        <translation>Lullet solo pregunta qué has estado haciendo en los días laborables, entre estas horas.</translation>
    </message>
</context>
<context>
    <name>lullet::ScheduleTableModel</name>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>Working day</source>
        <translation>Día laborable</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inicio</translation>
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
        <translation>Proteger Lullet con una contraseña</translation>
    </message>
    <message>
        <source>With a password, Lullet asks for it each time it starts, before it shows anything of your tasks.</source>
        <translation>Con una contraseña, Lullet la pide cada vez que se inicia, antes de mostrar nada de tus tareas.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Current password:</source>
        <translation>Contraseña actual:</translation>
    </message>
    <message>
        <source>New password:</source>
        <translation>Contraseña nueva:</translation>
    </message>
    <message>
        <source>Confirm password:</source>
        <translation>Confirmar contraseña:</translation>
    </message>
    <message>
        <source>Reading the keyring…</source>
        <translation>Leyendo el depósito de claves…</translation>
    </message>
    <message>
        <source>Lullet cannot reach your keyring, where the password is kept. Nothing here can change until it can.
%1</source>
        <translation>Lullet no puede acceder a tu depósito de claves, donde se guarda la contraseña. Aquí no se puede cambiar nada hasta que pueda.
%1</translation>
    </message>
    <message>
        <source>Protection is off, but your keyring could not remove the password.</source>
        <translation>La protección está desactivada, pero tu depósito de claves no pudo eliminar la contraseña.</translation>
    </message>
    <message>
        <source>Password protection is set!</source>
        <translation>¡Protección con contraseña activada!</translation>
    </message>
    <message>
        <source>Your keyring could not store the password, so protection stays off.
%1</source>
        <translation>Tu depósito de claves no pudo guardar la contraseña, así que la protección sigue desactivada.
%1</translation>
    </message>
</context>
<context>
    <name>lullet::Shell</name>
    <message>
        <source>Loading…</source>
        <translation>Cargando…</translation>
    </message>
    <message>
        <source>Lullet is locked</source>
        <translation>Lullet está bloqueado</translation>
    </message>
    <message>
        <source>Open Lullet</source>
        <translation>Abrir Lullet</translation>
    </message>
    <message>
        <source>Quick Add</source>
        <translation>Añadir rápido</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Preferencias…</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Quit Lullet</source>
        <translation>Salir de Lullet</translation>
    </message>
    <message>
        <source>Lullet is locked.</source>
        <translation>Lullet está bloqueado.</translation>
    </message>
    <message>
        <source>Enter your password first, then add the task.</source>
        <translation>Introduce primero tu contraseña y luego añade la tarea.</translation>
    </message>
</context>
<context>
    <name>lullet::SidebarView</name>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Quick Add (%1)</source>
        <translation>Añadir rápido (%1)</translation>
    </message>
    <message>
        <source>Quick Add</source>
        <translation>Añadir rápido</translation>
    </message>
    <message>
        <source>Lists and projects</source>
        <translation>Listas y proyectos</translation>
    </message>
    <message>
        <source>New project</source>
        <translation>Nuevo proyecto</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renombrar</translation>
    </message>
    <message>
        <source>Duplicate as new</source>
        <translation>Duplicar como nuevo</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
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
Progreso: tiempo usado del tiempo previsto. Una tarea sin duración prevista solo cuenta el tiempo que ha estado en marcha.</translation>
    </message>
</context>
<context>
    <name>lullet::SingleInstance</name>
    <message>
        <source>Cannot make the folder %1.</source>
        <translation>No se puede crear la carpeta %1.</translation>
    </message>
    <message>
        <source>The folder %1 is not private to this user; Lullet will not use it to talk to itself.</source>
        <translation>La carpeta %1 no es privada de este usuario; Lullet no la usará para comunicarse consigo mismo.</translation>
    </message>
    <message>
        <source>Cannot open the lock file in %1.</source>
        <translation>No se puede abrir el archivo de bloqueo en %1.</translation>
    </message>
    <message>
        <source>Cannot listen on %1.</source>
        <translation>No se puede escuchar en %1.</translation>
    </message>
</context>
<context>
    <name>lullet::SyncTab</name>
    <message>
        <source>Sync Now</source>
        <translation>Sincronizar ahora</translation>
    </message>
    <message>
        <source>Stop Syncing</source>
        <translation>Dejar de sincronizar</translation>
    </message>
    <message>
        <source>Keep your tasks, projects and repeating lullets in step with a CalDAV server (Nextcloud, Radicale, Fastmail and others), and so with your other computers and your phone.</source>
        <translation>Mantén tus tareas, proyectos y lullets periódicos sincronizados con un servidor CalDAV (Nextcloud, Radicale, Fastmail y otros), y así con tus otros equipos y tu teléfono.</translation>
    </message>
    <message>
        <source>Server or collection:</source>
        <translation>Servidor o colección:</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nombre de usuario:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
    <message>
        <source>Leave the user name empty for a server without logins. The password is kept in your keyring.</source>
        <translation>Deja vacío el nombre de usuario si el servidor no pide inicio de sesión. La contraseña se guarda en tu depósito de claves.</translation>
    </message>
    <message>
        <source>Last sync:</source>
        <translation>Última sincronización:</translation>
    </message>
    <message>
        <source>Enter the address of a CalDAV server or collection, such as https://dav.example.com/.</source>
        <translation>Introduce la dirección de un servidor o colección CalDAV, como https://dav.example.com/.</translation>
    </message>
    <message>
        <source>Your keyring could not keep the password (%1), so nothing was changed.</source>
        <translation>Tu depósito de claves no pudo guardar la contraseña (%1), así que no se ha cambiado nada.</translation>
    </message>
    <message>
        <source>Save Changes</source>
        <translation>Guardar cambios</translation>
    </message>
    <message>
        <source>Start Syncing</source>
        <translation>Empezar a sincronizar</translation>
    </message>
    <message>
        <source>Kept in your keyring</source>
        <translation>Guardada en tu depósito de claves</translation>
    </message>
    <message>
        <source>Sync is off: your data stays on this computer.</source>
        <translation>La sincronización está desactivada: tus datos se quedan en este equipo.</translation>
    </message>
    <message>
        <source>Syncing…</source>
        <translation>Sincronizando…</translation>
    </message>
    <message>
        <source>Not synced yet.</source>
        <translation>Aún no se ha sincronizado.</translation>
    </message>
    <message numerus="yes">
        <source>%n item(s) on the server could not be read and were left there.</source>
        <translation>
            <numerusform>%n elemento del servidor no se pudo leer y se ha dejado allí.</numerusform>
            <numerusform>%n elementos del servidor no se pudieron leer y se han dejado allí.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The server refused %n change(s); they wait here.</source>
        <translation>
            <numerusform>El servidor rechazó %n cambio; queda esperando aquí.</numerusform>
            <numerusform>El servidor rechazó %n cambios; quedan esperando aquí.</numerusform>
        </translation>
    </message>
    <message>
        <source>Synced %1.</source>
        <translation>Sincronizado %1.</translation>
    </message>
    <message>
        <source>Your keyring could not give the password (%1).</source>
        <translation>Tu depósito de claves no pudo proporcionar la contraseña (%1).</translation>
    </message>
    <message>
        <source>What came from the server could not be saved here; the next sync tries again.</source>
        <translation>Lo que llegó del servidor no se pudo guardar aquí; la próxima sincronización lo volverá a intentar.</translation>
    </message>
    <message>
        <source>The server could not be reached (%1). Your changes wait here and go at the next sync.</source>
        <translation>No se pudo contactar con el servidor (%1). Tus cambios esperan aquí y se enviarán en la próxima sincronización.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate is not trusted (%1), so nothing was sent.</source>
        <translation>El certificado del servidor no es de confianza (%1), así que no se ha enviado nada.</translation>
    </message>
    <message>
        <source>The server refused the user name or password.</source>
        <translation>El servidor rechazó el nombre de usuario o la contraseña.</translation>
    </message>
    <message>
        <source>There is no collection at this address.</source>
        <translation>No hay ninguna colección en esta dirección.</translation>
    </message>
    <message>
        <source>No calendar that holds tasks was found at this address.</source>
        <translation>No se encontró en esta dirección ningún calendario que admita tareas.</translation>
    </message>
    <message>
        <source>The server failed (%1). Your changes wait here and go at the next sync.</source>
        <translation>El servidor falló (%1). Tus cambios esperan aquí y se enviarán en la próxima sincronización.</translation>
    </message>
    <message>
        <source>The last sync was cut short. Your changes wait here and go at the next sync.</source>
        <translation>La última sincronización se interrumpió. Tus cambios esperan aquí y se enviarán en la próxima sincronización.</translation>
    </message>
    <message>
        <source>The server&apos;s answer made no sense (%1), so nothing was changed.</source>
        <translation>La respuesta del servidor no tenía sentido (%1), así que no se ha cambiado nada.</translation>
    </message>
    <message>
        <source>The server refused the sync (%1). Your changes wait here.</source>
        <translation>El servidor rechazó la sincronización (%1). Tus cambios esperan aquí.</translation>
    </message>
</context>
<context>
    <name>lullet::TimeOverPromptView</name>
    <message>
        <source>Time is up</source>
        <translation>Se acabó el tiempo</translation>
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
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Ahora no</translation>
    </message>
</context>
<context>
    <name>lullet::WelcomeSlides</name>
    <message>
        <source>Previous</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>User&apos;s Guide</source>
        <translation>Guía del usuario</translation>
    </message>
    <message>
        <source>Slide %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
</context>
<context>
    <name>lullet::WindowContent</name>
    <message>
        <source>Get Started</source>
        <translation>Comenzar</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Some of your older history could not be read: lists and counts may be short.</source>
        <translation>No se pudo leer parte de tu historial antiguo: puede que falten elementos en las listas y los recuentos.</translation>
    </message>
    <message>
        <source>Your working hours could not be read.</source>
        <translation>No se pudo leer tu horario laboral.</translation>
    </message>
    <message>
        <source>Lullet uses Monday to Friday, 9:00 to 18:00, until you set them again. What could not be read is kept under &quot;schedulesUnreadable&quot; in %1.</source>
        <translation>Lullet usará de lunes a viernes, de 9:00 a 18:00, hasta que lo vuelvas a configurar. Lo que no se pudo leer se guarda en «schedulesUnreadable» en %1.</translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>No se pudieron guardar los cambios al salir. ¿Salir de todos modos?</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>Si sales ahora, perderás los cambios que hayas hecho desde la última vez que se guardó correctamente</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>Salir de todos modos</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>no display. Start Lullet in your desktop session.</source>
        <translation>no hay pantalla. Inicia Lullet en tu sesión de escritorio.</translation>
    </message>
    <message>
        <source>Another Lullet is running but does not answer.</source>
        <translation>Ya hay otro Lullet en marcha, pero no responde.</translation>
    </message>
</context>
</TS>
