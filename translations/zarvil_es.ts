<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AboutTab</name>
    <message>
        <source>Zarvil</source>
        <translation>Zarvil</translation>
    </message>
    <message>
        <source>Watches the power devices of this computer and shuts it down in order when the power fails.</source>
        <translation>Vigila la alimentación de este equipo y lo apaga de forma ordenada si falla la corriente.</translation>
    </message>
    <message>
        <source>Opens the maker&apos;s web site</source>
        <translation>Abre el sitio web del fabricante</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Asistencia</translation>
    </message>
    <message>
        <source>Opens the support page</source>
        <translation>Abre la página de asistencia</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Enviar comentarios</translation>
    </message>
    <message>
        <source>Writes an e-mail to the makers</source>
        <translation>Escribe un correo a los autores</translation>
    </message>
    <message>
        <source>Follow us</source>
        <translation>Síganos</translation>
    </message>
    <message>
        <source>Opens the maker&apos;s page on a social network</source>
        <translation>Abre la página del fabricante en una red social</translation>
    </message>
    <message>
        <source>Recommend Zarvil</source>
        <translation>Recomendar Zarvil</translation>
    </message>
    <message>
        <source>Composes a post about Zarvil</source>
        <translation>Redacta una publicación sobre Zarvil</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Actualizaciones</translation>
    </message>
    <message>
        <source>Check for updates auto&amp;matically</source>
        <translation>Buscar actua&amp;lizaciones automáticamente</translation>
    </message>
    <message>
        <source>The agent looks for new versions by itself</source>
        <translation>El agente busca nuevas versiones por sí mismo</translation>
    </message>
    <message>
        <source>Look for a new version now</source>
        <translation>Buscar una versión nueva ahora</translation>
    </message>
    <message>
        <source>The result is shown by Zarvil.</source>
        <translation>Zarvil muestra el resultado.</translation>
    </message>
    <message>
        <source>Check for &amp;Updates Now</source>
        <translation>&amp;Buscar ahora</translation>
    </message>
    <message>
        <source>Asks the agent to look for a new version</source>
        <translation>Pide al agente que busque una versión nueva</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Mantenimiento</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>What Zarvil has done and when.</source>
        <translation>Qué ha hecho Zarvil y cuándo.</translation>
    </message>
    <message>
        <source>View &amp;Log</source>
        <translation>&amp;Ver el registro</translation>
    </message>
    <message>
        <source>Shows the agent&apos;s log</source>
        <translation>Muestra el registro del agente</translation>
    </message>
    <message>
        <source>Uninstall Zarvil</source>
        <translation>Desinstalar Zarvil</translation>
    </message>
    <message>
        <source>Removes Zarvil, this pane and the settings. Your scripts are kept.</source>
        <translation>Quita Zarvil, este panel y los ajustes. Los scripts se conservan.</translation>
    </message>
    <message>
        <source>Un&amp;install…</source>
        <translation>Des&amp;instalar…</translation>
    </message>
    <message>
        <source>Asks before anything is removed</source>
        <translation>Pregunta antes de quitar nada</translation>
    </message>
</context>
<context>
    <name>AlertsTab</name>
    <message>
        <source>E-mail</source>
        <translation>Correo electrónico</translation>
    </message>
    <message>
        <source>Send an &amp;e-mail when the power fails</source>
        <translation>Enviar un co&amp;rreo si falla la corriente</translation>
    </message>
    <message>
        <source>The agent sends the message</source>
        <translation>El agente envía el mensaje</translation>
    </message>
    <message>
        <source>Add&amp;ress</source>
        <translation>D&amp;irección</translation>
    </message>
    <message>
        <source>Press Return to store the address. Only a complete address is stored.</source>
        <translation>Pulse Intro para guardar la dirección. Solo se guarda una dirección completa.</translation>
    </message>
    <message>
        <source>name@example.org</source>
        <translation>nombre@example.org</translation>
    </message>
    <message>
        <source>Pushover</source>
        <translation>Pushover</translation>
    </message>
    <message>
        <source>What is Pushover?</source>
        <translation>¿Qué es Pushover?</translation>
    </message>
    <message>
        <source>Opens the Pushover web site</source>
        <translation>Abre el sitio web de Pushover</translation>
    </message>
    <message>
        <source>Send a &amp;push notification when the power fails</source>
        <translation>Enviar una notificación &amp;push si falla la corriente</translation>
    </message>
    <message>
        <source>Pushover delivers notifications to your phone</source>
        <translation>Pushover entrega notificaciones en el teléfono</translation>
    </message>
    <message>
        <source>To your phone, through the Pushover service.</source>
        <translation>Al teléfono, a través del servicio Pushover.</translation>
    </message>
    <message>
        <source>&amp;User ID</source>
        <translation>ID de &amp;usuario</translation>
    </message>
    <message>
        <source>Your Pushover user key. Press Return to store it.</source>
        <translation>Su clave de usuario de Pushover. Pulse Intro para guardarla.</translation>
    </message>
    <message>
        <source>Pushover user ID</source>
        <translation>ID de usuario de Pushover</translation>
    </message>
    <message>
        <source>De&amp;vice ID</source>
        <translation>ID del disposi&amp;tivo</translation>
    </message>
    <message>
        <source>Name of one of your devices; leave it empty for all. Press Return to store it.</source>
        <translation>Nombre de uno de sus dispositivos; déjelo vacío para todos. Pulse Intro para guardarlo.</translation>
    </message>
    <message>
        <source>All devices</source>
        <translation>Todos los dispositivos</translation>
    </message>
    <message>
        <source>Pushover device ID</source>
        <translation>ID del dispositivo en Pushover</translation>
    </message>
    <message>
        <source>Leave it empty to reach all your devices.</source>
        <translation>Déjelo vacío para llegar a todos sus dispositivos.</translation>
    </message>
    <message>
        <source>Send a &amp;Test</source>
        <translation>En&amp;viar una prueba</translation>
    </message>
    <message>
        <source>Sends a test notification and shows whether the IDs are right</source>
        <translation>Envía una notificación de prueba y muestra si los ID son correctos</translation>
    </message>
    <message>
        <source>Check under way</source>
        <translation>Comprobación en curso</translation>
    </message>
</context>
<context>
    <name>Bundle</name>
    <message>
        <source>&quot;%1&quot; is not a preference pane: its Contents/Info.json cannot be read.</source>
        <translation>«%1» no es un panel de preferencias: no se puede leer su Contents/Info.json.</translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; is broken: Contents/Info.json is not valid JSON at byte %2 (%3).</source>
        <translation>El panel de preferencias «%1» está dañado: Contents/Info.json no es JSON válido en el byte %2 (%3).</translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; is broken: Contents/Info.json does not hold an object.</source>
        <translation>El panel de preferencias «%1» está dañado: Contents/Info.json no contiene un objeto.</translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; is broken: the text &quot;%2&quot; is missing in Contents/Info.json.</source>
        <translation>El panel de preferencias «%1» está dañado: falta el texto «%2» en Contents/Info.json.</translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; does not exist.</source>
        <translation>El panel de preferencias «%1» no existe.</translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; is broken: its library &quot;%2&quot; is missing.</source>
        <translation>El panel de preferencias «%1» está dañado: falta su biblioteca «%2».</translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; was made for another program: its library offers &quot;%2&quot; instead of &quot;%3&quot;.</source>
        <translation>El panel de preferencias «%1» se hizo para otro programa: su biblioteca ofrece «%2» en lugar de «%3».</translation>
    </message>
    <message>
        <source>The library of the preference pane &quot;%1&quot; cannot be loaded: %2</source>
        <translation>No se puede cargar la biblioteca del panel de preferencias «%1»: %2</translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; is broken: its library offers the class &quot;%2&quot; instead of &quot;%3&quot;.</source>
        <translation>El panel de preferencias «%1» está dañado: su biblioteca ofrece la clase «%2» en lugar de «%3».</translation>
    </message>
</context>
<context>
    <name>DevicesTab</name>
    <message>
        <source>Tick a device to have Zarvil watch it. Untick it to stop.</source>
        <translation>Marque un dispositivo para que Zarvil lo vigile. Desmárquelo para dejar de hacerlo.</translation>
    </message>
    <message>
        <source>&amp;Connected</source>
        <translation>Co&amp;nectados</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Conectados</translation>
    </message>
    <message>
        <source>&amp;Watched</source>
        <translation>&amp;Vigilados</translation>
    </message>
    <message>
        <source>Watched</source>
        <translation>Vigilados</translation>
    </message>
</context>
<context>
    <name>GeneralTab</name>
    <message>
        <source>Shutdown</source>
        <translation>Apagado</translation>
    </message>
    <message>
        <source>Shut down a&amp;fter</source>
        <translation>Apagar &amp;tras</translation>
    </message>
    <message>
        <source>How long to wait after a power failure before shutting down. Press Return to store it.</source>
        <translation>Cuánto se espera tras un corte de corriente antes de apagar. Pulse Intro para guardarlo.</translation>
    </message>
    <message>
        <source>Shutdown delay</source>
        <translation>Tiempo hasta el apagado</translation>
    </message>
    <message>
        <source>Shows the delay in minutes or in seconds</source>
        <translation>Muestra el tiempo en minutos o en segundos</translation>
    </message>
    <message>
        <source>Delay in minutes</source>
        <translation>Tiempo en minutos</translation>
    </message>
    <message>
        <source>&amp;Quit applications by force</source>
        <translation>&amp;Forzar el cierre de las aplicaciones</translation>
    </message>
    <message>
        <source>Ends applications that do not quit by themselves; unsaved changes in them are lost</source>
        <translation>Cierra las aplicaciones que no terminan por sí mismas; sus cambios sin guardar se pierden</translation>
    </message>
    <message>
        <source>Unsaved changes in them are lost.</source>
        <translation>Sus cambios sin guardar se pierden.</translation>
    </message>
    <message>
        <source>Test the shutdown</source>
        <translation>Probar el apagado</translation>
    </message>
    <message>
        <source>Test under way</source>
        <translation>Prueba en curso</translation>
    </message>
    <message>
        <source>&amp;Test Shutdown</source>
        <translation>&amp;Probar el apagado</translation>
    </message>
    <message>
        <source>Plays the shutdown sequence without shutting down</source>
        <translation>Reproduce la secuencia de apagado sin apagar</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Mensajes</translation>
    </message>
    <message>
        <source>&amp;Warn me before shutting down</source>
        <translation>A&amp;visar antes de apagar</translation>
    </message>
    <message>
        <source>Shows a message with a countdown when the power has failed</source>
        <translation>Muestra un mensaje con cuenta atrás cuando ha fallado la corriente</translation>
    </message>
    <message>
        <source>A message counts down to the shutdown.</source>
        <translation>Un mensaje muestra la cuenta atrás hasta el apagado.</translation>
    </message>
    <message>
        <source>The message hides itself</source>
        <translation>El mensaje se oculta solo</translation>
    </message>
    <message>
        <source>Shown as the agent has it; it is set in the shutdown message itself.</source>
        <translation>Se muestra tal como lo tiene el agente; se ajusta en el propio mensaje de apagado.</translation>
    </message>
    <message>
        <source>Set in the message itself. The countdown goes on when it is hidden.</source>
        <translation>Se ajusta en el propio mensaje. La cuenta atrás sigue aunque esté oculto.</translation>
    </message>
    <message>
        <source>&amp;Notify me when the power fails</source>
        <translation>&amp;Notificar los cortes de corriente</translation>
    </message>
    <message>
        <source>Shows a desktop notification at the moment of a power failure</source>
        <translation>Muestra una notificación en el momento del corte de corriente</translation>
    </message>
    <message>
        <source>A desktop notification at the moment of the failure.</source>
        <translation>Una notificación de escritorio en el momento del corte.</translation>
    </message>
    <message>
        <source>Tell me when a device is &amp;connected</source>
        <translation>Avisar cuando se conecte &amp;un dispositivo</translation>
    </message>
    <message>
        <source>Shows a message when a power device is plugged in</source>
        <translation>Muestra un mensaje cuando se enchufa un dispositivo de alimentación</translation>
    </message>
    <message>
        <source>The message goes away by itself.</source>
        <translation>El mensaje desaparece solo.</translation>
    </message>
    <message>
        <source>Startup and status icon</source>
        <translation>Inicio e icono de estado</translation>
    </message>
    <message>
        <source>&amp;Launch Zarvil at login</source>
        <translation>&amp;Iniciar Zarvil al iniciar sesión</translation>
    </message>
    <message>
        <source>Starts the agent whenever you log in</source>
        <translation>Inicia el agente cada vez que inicia sesión</translation>
    </message>
    <message>
        <source>Protection starts as soon as you log in.</source>
        <translation>La protección empieza en cuanto inicia sesión.</translation>
    </message>
    <message>
        <source>Show Zarvil &amp;in the status bar</source>
        <translation>&amp;Mostrar Zarvil en la barra de estado</translation>
    </message>
    <message>
        <source>Shows an icon of the agent in the status bar</source>
        <translation>Muestra un icono del agente en la barra de estado</translation>
    </message>
    <message>
        <source>&amp;Monochrome icon</source>
        <translation>Icono monoc&amp;romo</translation>
    </message>
    <message>
        <source>Draws the status-bar icon in one color</source>
        <translation>Dibuja el icono de la barra de estado en un solo color</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>There is no preference pane in &quot;%1&quot; and none in &quot;%2&quot;.</source>
        <translation>No hay ningún panel de preferencias en «%1» ni en «%2».</translation>
    </message>
    <message>
        <source>The preferences are open already, but their window does not answer.</source>
        <translation>Las preferencias ya están abiertas, pero su ventana no responde.</translation>
    </message>
</context>
<context>
    <name>MainBundle</name>
    <message numerus="yes">
        <source>%n devices watched</source>
        <translation>
            <numerusform>%n dispositivo vigilado</numerusform>
            <numerusform>%n dispositivos vigilados</numerusform>
        </translation>
    </message>
    <message>
        <source>A test is running. Nothing is shut down.</source>
        <translation>Hay una prueba en curso. No se apaga nada.</translation>
    </message>
    <message>
        <source>Administrator rights: checking</source>
        <translation>Derechos de administrador: comprobando</translation>
    </message>
    <message>
        <source>Administrator rights: locked</source>
        <translation>Derechos de administrador: bloqueados</translation>
    </message>
    <message>
        <source>Administrator rights: unlocked</source>
        <translation>Derechos de administrador: desbloqueados</translation>
    </message>
    <message>
        <source>Can&apos;t execute empty script!</source>
        <translation>¡No se puede ejecutar un script vacío!</translation>
    </message>
    <message>
        <source>Cannot be changed while the warning hides itself.</source>
        <translation>No se puede cambiar mientras el aviso se oculte solo.</translation>
    </message>
    <message>
        <source>Connect a power supply with a data cable. It appears here by itself.</source>
        <translation>Conecte una fuente de alimentación con un cable de datos. Aparecerá aquí por sí sola.</translation>
    </message>
    <message>
        <source>Connection timeout! Check your Internet connection!</source>
        <translation>¡Se agotó el tiempo de conexión! ¡Compruebe la conexión a Internet!</translation>
    </message>
    <message>
        <source>Delete this script and its file at once. This cannot be undone.</source>
        <translation>Elimina de inmediato este script y su archivo. No se puede deshacer.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Edit the title and the text in place.</source>
        <translation>Editar el título y el texto aquí mismo.</translation>
    </message>
    <message>
        <source>Edit “%1”</source>
        <translation>Editar «%1»</translation>
    </message>
    <message>
        <source>Editing. Done saves the title and the text.</source>
        <translation>Editando. «Hecho» guarda el título y el texto.</translation>
    </message>
    <message>
        <source>Failed with exit status %1: %2</source>
        <translation>Falló con el estado de salida %1: %2</translation>
    </message>
    <message>
        <source>Invalid settings! Check your User ID and Device ID(if any)</source>
        <translation>¡Ajustes no válidos! Compruebe el ID de usuario y el ID del dispositivo (si lo hay)</translation>
    </message>
    <message>
        <source>Launch it to see your devices and change the settings.</source>
        <translation>Inícielo para ver los dispositivos y cambiar los ajustes.</translation>
    </message>
    <message>
        <source>Launching it…</source>
        <translation>Iniciando…</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Bloqueado</translation>
    </message>
    <message>
        <source>Looking for Zarvil…</source>
        <translation>Buscando Zarvil…</translation>
    </message>
    <message>
        <source>Minutes from the power failure. Return stores the number.</source>
        <translation>Minutos desde el corte de corriente. Intro guarda el número.</translation>
    </message>
    <message>
        <source>No device connected</source>
        <translation>Ningún dispositivo conectado</translation>
    </message>
    <message>
        <source>No device is watched, so a power failure goes unnoticed.</source>
        <translation>No se vigila ningún dispositivo, así que un corte pasaría inadvertido.</translation>
    </message>
    <message>
        <source>No device watched</source>
        <translation>Ningún dispositivo vigilado</translation>
    </message>
    <message>
        <source>No devices to show</source>
        <translation>No hay dispositivos que mostrar</translation>
    </message>
    <message>
        <source>No scripts to show</source>
        <translation>No hay scripts que mostrar</translation>
    </message>
    <message>
        <source>No scripts yet</source>
        <translation>Aún no hay scripts</translation>
    </message>
    <message>
        <source>No serial number</source>
        <translation>Sin número de serie</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>No guardado</translation>
    </message>
    <message>
        <source>Not stored while Zarvil is not running.</source>
        <translation>No se guarda mientras Zarvil no esté en ejecución.</translation>
    </message>
    <message>
        <source>Nothing happens when the power fails.</source>
        <translation>Si falla la corriente, no ocurre nada.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Only a number of 0 or more is taken, such as %1. The delay stays as it was.</source>
        <translation>Solo se acepta un número igual o mayor que 0, como %1. El tiempo sigue como estaba.</translation>
    </message>
    <message>
        <source>Plays the whole sequence without shutting down.</source>
        <translation>Reproduce toda la secuencia sin apagar.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Remove “%1”</source>
        <translation>Quitar «%1»</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Ejecutar</translation>
    </message>
    <message>
        <source>Run this script once, now. The window waits until it has ended.</source>
        <translation>Ejecuta este script una vez, ahora. La ventana espera a que termine.</translation>
    </message>
    <message>
        <source>Run “%1”</source>
        <translation>Ejecutar «%1»</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>Ejecutando…</translation>
    </message>
    <message>
        <source>Save the title and the text.</source>
        <translation>Guardar el título y el texto.</translation>
    </message>
    <message>
        <source>Save “%1”</source>
        <translation>Guardar «%1»</translation>
    </message>
    <message>
        <source>Script “%1”</source>
        <translation>Script «%1»</translation>
    </message>
    <message>
        <source>Scripts are off</source>
        <translation>Los scripts están desactivados</translation>
    </message>
    <message>
        <source>Seconds from the power failure. Return stores the number.</source>
        <translation>Segundos desde el corte de corriente. Intro guarda el número.</translation>
    </message>
    <message>
        <source>Settings are valid!</source>
        <translation>¡Los ajustes son válidos!</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Stored with Return, once it is complete and ends in two to four letters.</source>
        <translation>Se guarda con Intro cuando está completa y termina en entre dos y cuatro letras.</translation>
    </message>
    <message>
        <source>Switch the protection on to test it.</source>
        <translation>Active la protección para probarla.</translation>
    </message>
    <message>
        <source>Text of the script</source>
        <translation>Texto del script</translation>
    </message>
    <message>
        <source>The operation could not be completed.</source>
        <translation>No se pudo completar la operación.</translation>
    </message>
    <message>
        <source>The session bus does not answer, so Zarvil cannot be reached.</source>
        <translation>El bus de sesión no responde, así que no se puede contactar con Zarvil.</translation>
    </message>
    <message>
        <source>The test has ended. Nothing was shut down.</source>
        <translation>La prueba ha terminado. No se ha apagado nada.</translation>
    </message>
    <message>
        <source>There is a script of this title already.</source>
        <translation>Ya hay un script con este título.</translation>
    </message>
    <message>
        <source>They are kept. Switch them on to see them.</source>
        <translation>Se conservan. Actívelos para verlos.</translation>
    </message>
    <message>
        <source>This script is empty. Edit it before you run it.</source>
        <translation>Este script está vacío. Edítelo antes de ejecutarlo.</translation>
    </message>
    <message>
        <source>This script is too large to be edited here (%1). Its text stays as it is; its title can be changed.</source>
        <translation>Este script es demasiado grande para editarlo aquí (%1). Su texto queda como está; su título se puede cambiar.</translation>
    </message>
    <message>
        <source>This system has no authority that could unlock it.</source>
        <translation>Este sistema no tiene ninguna autoridad que pueda desbloquearlo.</translation>
    </message>
    <message>
        <source>Tick a connected device. Until then a power failure goes unnoticed.</source>
        <translation>Marque un dispositivo conectado. Hasta entonces, un corte pasará inadvertido.</translation>
    </message>
    <message>
        <source>Title of the script</source>
        <translation>Título del script</translation>
    </message>
    <message>
        <source>Type a title above to create the first one.</source>
        <translation>Escriba un título arriba para crear el primero.</translation>
    </message>
    <message>
        <source>Unknow error!</source>
        <translation>¡Error desconocido!</translation>
    </message>
    <message>
        <source>Unlocked</source>
        <translation>Desbloqueado</translation>
    </message>
    <message>
        <source>Unnamed device</source>
        <translation>Dispositivo sin nombre</translation>
    </message>
    <message>
        <source>Your devices are listed here while Zarvil runs.</source>
        <translation>Los dispositivos aparecen aquí mientras Zarvil está en ejecución.</translation>
    </message>
    <message>
        <source>Your scripts are listed here while Zarvil runs.</source>
        <translation>Los scripts aparecen aquí mientras Zarvil está en ejecución.</translation>
    </message>
    <message>
        <source>Zarvil is not installed.</source>
        <translation>Zarvil no está instalado.</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>minutos</translation>
    </message>
    <message>
        <source>not needed for any setting here</source>
        <translation>no hacen falta para ningún ajuste de aquí</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>segundos</translation>
    </message>
    <message numerus="yes">
        <source>shuts down after %n minutes</source>
        <translation>
            <numerusform>apaga tras %n minuto</numerusform>
            <numerusform>apaga tras %n minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>shuts down after %n seconds</source>
        <translation>
            <numerusform>apaga tras %n segundo</numerusform>
            <numerusform>apaga tras %n segundos</numerusform>
        </translation>
    </message>
    <message>
        <source>shuts down at once</source>
        <translation>apaga de inmediato</translation>
    </message>
    <message>
        <source>The script “%1” is running.</source>
        <translation>El script «%1» se está ejecutando.</translation>
    </message>
    <message>
        <source>Administrator rights</source>
        <translation>Derechos de administrador</translation>
    </message>
    <message>
        <source>Alerts by e-mail</source>
        <translation>Alertas por correo</translation>
    </message>
    <message>
        <source>Alerts through Pushover</source>
        <translation>Alertas a través de Pushover</translation>
    </message>
    <message>
        <source>An alert reaches you only if your router and modem still have power, so connect them to the power supply too.</source>
        <translation>Una alerta solo le llega si el router y el módem siguen con corriente, así que conéctelos también a la fuente de alimentación.</translation>
    </message>
    <message>
        <source>Applications that ask whether to save can hold a shutdown up until the battery is empty. By force they are ended without asking, and what was not saved is lost.</source>
        <translation>Las aplicaciones que preguntan si se debe guardar pueden retrasar el apagado hasta que se agote la batería. Si se fuerza su cierre, terminan sin preguntar y se pierde lo que no se haya guardado.</translation>
    </message>
    <message>
        <source>Asks first, then removes Zarvil, this pane and the settings. Your scripts are kept.</source>
        <translation>Pregunta primero y luego quita Zarvil, este panel y los ajustes. Los scripts se conservan.</translation>
    </message>
    <message>
        <source>Choosing devices</source>
        <translation>Elegir los dispositivos</translation>
    </message>
    <message>
        <source>Connect a power supply with its data cable. It appears under Connected. Tick it, and it moves to Watched. Untick it, and Zarvil no longer watches it.</source>
        <translation>Conecte una fuente de alimentación con su cable de datos. Aparece en «Conectados». Márquela y pasará a «Vigilados». Desmárquela y Zarvil dejará de vigilarla.</translation>
    </message>
    <message>
        <source>Devices are listed while Zarvil runs. Launch it with the button above the tabs. A power supply without a data cable cannot be watched.</source>
        <translation>Los dispositivos aparecen mientras Zarvil está en ejecución. Inícielo con el botón que hay sobre las pestañas. Una fuente de alimentación sin cable de datos no se puede vigilar.</translation>
    </message>
    <message>
        <source>Each script is a file of its own in the folder %1, named after its title with the ending .zvscript. Copy that folder to keep them safe.</source>
        <translation>Cada script es un archivo propio en la carpeta %1, con su título como nombre y la extensión .zvscript. Copie esa carpeta para tenerlos a salvo.</translation>
    </message>
    <message>
        <source>Ends applications that do not quit by themselves, so that none of them can hold the shutdown up. What was not saved in them is lost.</source>
        <translation>Cierra las aplicaciones que no terminan por sí mismas, para que ninguna retrase el apagado. Se pierde lo que no se haya guardado en ellas.</translation>
    </message>
    <message>
        <source>Goes through the shutdown as if the power had failed, and stops before the computer would be shut down.</source>
        <translation>Recorre el apagado como si hubiera fallado la corriente y se detiene antes de apagar el equipo.</translation>
    </message>
    <message>
        <source>Help: About</source>
        <translation>Ayuda: Acerca de</translation>
    </message>
    <message>
        <source>Help: Alerts</source>
        <translation>Ayuda: Alertas</translation>
    </message>
    <message>
        <source>Help: Devices</source>
        <translation>Ayuda: Dispositivos</translation>
    </message>
    <message>
        <source>Help: General</source>
        <translation>Ayuda: General</translation>
    </message>
    <message>
        <source>Help: Scripts</source>
        <translation>Ayuda: Scripts</translation>
    </message>
    <message>
        <source>If no device appears</source>
        <translation>Si no aparece ningún dispositivo</translation>
    </message>
    <message>
        <source>If the protection is off</source>
        <translation>Si la protección está desactivada</translation>
    </message>
    <message>
        <source>Keep the network up</source>
        <translation>Mantener la red en marcha</translation>
    </message>
    <message>
        <source>New versions</source>
        <translation>Versiones nuevas</translation>
    </message>
    <message>
        <source>Pushover is a service that brings messages to your phone. You need an account there; its user ID goes into the first field. With a device ID only that device gets the message, otherwise all of yours.</source>
        <translation>Pushover es un servicio que lleva mensajes al teléfono. Necesita una cuenta en él; su ID de usuario va en el primer campo. Con un ID de dispositivo solo ese recibe el mensaje; si no, todos los suyos.</translation>
    </message>
    <message>
        <source>Quitting applications by force</source>
        <translation>Forzar el cierre de las aplicaciones</translation>
    </message>
    <message>
        <source>Removes Zarvil, this pane and the settings, after it has asked you. Your scripts stay in the folder %1.</source>
        <translation>Quita Zarvil, este panel y los ajustes tras preguntarle. Los scripts se quedan en la carpeta %1.</translation>
    </message>
    <message>
        <source>Run starts the script at once, without a power failure, and does all that it says. If it fails, its exit status and its last error are shown.</source>
        <translation>«Ejecutar» inicia el script de inmediato, sin corte de corriente, y hace todo lo que dice. Si falla, se muestran su estado de salida y su último error.</translation>
    </message>
    <message>
        <source>Send a Test sends a message at once and tells you whether it went out. IDs that Pushover does not know are cleared and have to be typed again.</source>
        <translation>«Enviar una prueba» envía un mensaje de inmediato y le dice si ha salido. Los ID que Pushover no conoce se borran y hay que escribirlos de nuevo.</translation>
    </message>
    <message>
        <source>Shows the delay in minutes or in seconds. The delay itself stays the same.</source>
        <translation>Muestra el tiempo en minutos o en segundos. El tiempo en sí no cambia.</translation>
    </message>
    <message>
        <source>Shows whether the warning hides itself. You choose that in the warning, so it cannot be changed here.</source>
        <translation>Muestra si el aviso se oculta solo. Eso se elige en el aviso, así que aquí no se puede cambiar.</translation>
    </message>
    <message>
        <source>Shows whether your account may administer this computer. No setting here needs the lock to be open.</source>
        <translation>Muestra si su cuenta puede administrar este equipo. Ningún ajuste de aquí necesita que el candado esté abierto.</translation>
    </message>
    <message>
        <source>Starts Zarvil, the program that watches the power, or ends it. While it does not run, nothing is watched and no setting can be changed.</source>
        <translation>Inicia o cierra Zarvil, el programa que vigila la alimentación. Mientras no esté en ejecución, no se vigila nada ni se puede cambiar ningún ajuste.</translation>
    </message>
    <message>
        <source>Switches the protection. While it is off, Zarvil does nothing when the power fails. The choice takes effect at once.</source>
        <translation>Activa o desactiva la protección. Mientras está desactivada, Zarvil no hace nada si falla la corriente. El cambio surte efecto de inmediato.</translation>
    </message>
    <message>
        <source>The delay</source>
        <translation>El tiempo de espera</translation>
    </message>
    <message>
        <source>The key of your account at Pushover. You find it on Pushover&apos;s page once you have logged in.</source>
        <translation>La clave de su cuenta de Pushover. La encontrará en la página de Pushover una vez iniciada la sesión.</translation>
    </message>
    <message>
        <source>The lock below the tabs shows whether your account may administer this computer. No setting here needs it to be open.</source>
        <translation>El candado bajo las pestañas muestra si su cuenta puede administrar este equipo. Ningún ajuste de aquí necesita que esté abierto.</translation>
    </message>
    <message>
        <source>The log</source>
        <translation>El registro</translation>
    </message>
    <message>
        <source>The name of one of your devices at Pushover. Leave it empty, and all of them get the message.</source>
        <translation>El nombre de uno de sus dispositivos en Pushover. Si lo deja vacío, todos reciben el mensaje.</translation>
    </message>
    <message>
        <source>The time between the power failure and the shutdown. Numbers of 0 or more are stored with Return; anything else leaves the last value as it is.</source>
        <translation>El tiempo entre el corte de corriente y el apagado. Los números iguales o mayores que 0 se guardan con Intro; cualquier otra cosa deja el último valor como está.</translation>
    </message>
    <message>
        <source>The title of a new script. It becomes the name of the script&apos;s file, so that no two scripts can have the same one.</source>
        <translation>El título de un script nuevo. Se convierte en el nombre de su archivo, así que no puede haber dos scripts con el mismo.</translation>
    </message>
    <message>
        <source>This much time passes between the power failure and the shutdown. Choose seconds or minutes with the switch, type a number and press Return. With 0 the computer is shut down at once.</source>
        <translation>Es el tiempo que pasa entre el corte de corriente y el apagado. Elija segundos o minutos con el interruptor, escriba un número y pulse Intro. Con 0 el equipo se apaga de inmediato.</translation>
    </message>
    <message>
        <source>Trying Pushover out</source>
        <translation>Probar Pushover</translation>
    </message>
    <message>
        <source>Trying a script out</source>
        <translation>Probar un script</translation>
    </message>
    <message>
        <source>Type a title, press Create, then Edit. A text that begins with #! is run by the program named in that line, any other by the shell. Done saves it.</source>
        <translation>Escriba un título, pulse «Crear» y luego «Editar». Un texto que empieza por #! lo ejecuta el programa indicado en esa línea; cualquier otro, la shell. «Hecho» lo guarda.</translation>
    </message>
    <message>
        <source>Uninstalling Zarvil</source>
        <translation>Desinstalar Zarvil</translation>
    </message>
    <message>
        <source>What a test does</source>
        <translation>Qué hace una prueba</translation>
    </message>
    <message>
        <source>What happens when the power fails</source>
        <translation>Qué ocurre si falla la corriente</translation>
    </message>
    <message>
        <source>What scripts are for</source>
        <translation>Para qué sirven los scripts</translation>
    </message>
    <message>
        <source>When a watched device reports a power failure, Zarvil warns you, runs your scripts, sends the alerts that you have chosen and, after the delay, shuts the computer down. You choose each of these in the other tabs.</source>
        <translation>Cuando un dispositivo vigilado informa de un corte de corriente, Zarvil le avisa, ejecuta los scripts, envía las alertas elegidas y, pasado el tiempo fijado, apaga el equipo. Todo ello se elige en las otras pestañas.</translation>
    </message>
    <message>
        <source>Where scripts lie</source>
        <translation>Dónde están los scripts</translation>
    </message>
    <message>
        <source>Writing a script</source>
        <translation>Escribir un script</translation>
    </message>
    <message>
        <source>Zarvil goes on running and shows your devices, but does nothing when the power fails. Switch it on with the switch at the top.</source>
        <translation>Zarvil sigue en ejecución y muestra los dispositivos, pero no hace nada si falla la corriente. Active la protección con el interruptor de arriba.</translation>
    </message>
    <message>
        <source>Zarvil goes through the shutdown as if the power had failed, and stops before the computer would be shut down. The protection must be on for a test.</source>
        <translation>Zarvil recorre el apagado como si hubiera fallado la corriente y se detiene antes de apagar el equipo. Para una prueba, la protección debe estar activada.</translation>
    </message>
    <message>
        <source>Zarvil looks for new versions itself, at your word or by itself, and tells you what it has found.</source>
        <translation>Zarvil busca versiones nuevas, cuando usted lo pide o por sí mismo, y le dice qué ha encontrado.</translation>
    </message>
    <message>
        <source>Zarvil runs them when the power fails, before it shuts the computer down: to save your work, for example, or to stop a server in order.</source>
        <translation>Zarvil los ejecuta si falla la corriente, antes de apagar el equipo: por ejemplo, para guardar su trabajo o detener un servidor de forma ordenada.</translation>
    </message>
    <message>
        <source>Zarvil sends a message to the address when the power fails. Type the whole address and press Return; an incomplete one is not stored.</source>
        <translation>Zarvil envía un mensaje a la dirección si falla la corriente. Escriba la dirección entera y pulse Intro; si está incompleta, no se guarda.</translation>
    </message>
    <message>
        <source>Zarvil writes down what it does and when: power failures, shutdowns and alerts. Look there first if something went otherwise than you expected.</source>
        <translation>Zarvil anota lo que hace y cuándo: cortes de corriente, apagados y alertas. Mire ahí primero si algo no fue como esperaba.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Cancel editing “%1”</source>
        <translation>Cancelar la edición de «%1»</translation>
    </message>
    <message>
        <source>End editing without saving. Esc leads here.</source>
        <translation>Termina la edición sin guardar. Esc hace lo mismo.</translation>
    </message>
    <message>
        <source>Connected: %1</source>
        <translation>Conectado: %1</translation>
    </message>
    <message>
        <source>Disconnected: %1</source>
        <translation>Desconectado: %1</translation>
    </message>
    <message>
        <source>Could not create the folder “%1”: %2.</source>
        <translation>No se pudo crear la carpeta «%1»: %2.</translation>
    </message>
    <message>
        <source>Could not prepare the script for running: %1.</source>
        <translation>No se pudo preparar el script para ejecutarlo: %1.</translation>
    </message>
    <message>
        <source>Could not remove “%1”: %2.</source>
        <translation>No se pudo eliminar «%1»: %2.</translation>
    </message>
    <message>
        <source>Could not save the file “%1”: %2.</source>
        <translation>No se pudo guardar el archivo «%1»: %2.</translation>
    </message>
    <message>
        <source>Could not start the script&apos;s interpreter “%1”: %2.</source>
        <translation>No se pudo iniciar el intérprete del script «%1»: %2.</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Min</translation>
    </message>
    <message>
        <source>Sec</source>
        <translation>Seg</translation>
    </message>
    <message>
        <source>Signal %1 (%2) ended the script.</source>
        <translation>La señal %1 (%2) terminó el script.</translation>
    </message>
    <message>
        <source>Signal %1 ended the script.</source>
        <translation>La señal %1 terminó el script.</translation>
    </message>
    <message>
        <source>The script contains a NUL character, so it cannot be run.</source>
        <translation>El script contiene un carácter NUL, por lo que no se puede ejecutar.</translation>
    </message>
    <message>
        <source>The script failed with exit status %1 and gave no reason.</source>
        <translation>El script falló con el estado de salida %1 y no dio ningún motivo.</translation>
    </message>
    <message>
        <source>The script has ended, but its result got lost.</source>
        <translation>El script ha terminado, pero su resultado se perdió.</translation>
    </message>
    <message>
        <source>a part of its path is not a folder</source>
        <translation>una parte de la ruta no es una carpeta</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>it would be larger than files may be here</source>
        <translation>sería mayor de lo que aquí pueden ser los archivos</translation>
    </message>
    <message>
        <source>its name contains a character that is not allowed</source>
        <translation>el nombre contiene un carácter no permitido</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>el nombre es demasiado largo</translation>
    </message>
    <message>
        <source>its symbolic links lead in a circle</source>
        <translation>los enlaces simbólicos forman un círculo</translation>
    </message>
    <message>
        <source>something of that name is already there</source>
        <translation>ya hay algo con ese nombre</translation>
    </message>
    <message>
        <source>the disk can only be read</source>
        <translation>el disco es de solo lectura</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>el disco está lleno</translation>
    </message>
    <message>
        <source>the disk reported a fault</source>
        <translation>el disco informó de un fallo</translation>
    </message>
    <message>
        <source>there is no such file or folder</source>
        <translation>no existe ese archivo o carpeta</translation>
    </message>
    <message>
        <source>too many files are open</source>
        <translation>hay demasiados archivos abiertos</translation>
    </message>
    <message>
        <source>you do not have permission</source>
        <translation>no tiene permiso</translation>
    </message>
    <message>
        <source>your share of the disk is used up</source>
        <translation>su cuota de disco está agotada</translation>
    </message>
    <message>
        <source>Ended without an error.</source>
        <translation>Terminado sin errores.</translation>
    </message>
    <message>
        <source>Administrator rights: %1 missing</source>
        <translation>Derechos de administrador: falta %1</translation>
    </message>
</context>
<context>
    <name>PaneView</name>
    <message>
        <source>Zarvil</source>
        <translation>Zarvil</translation>
    </message>
    <message>
        <source>Protection is on</source>
        <translation>La protección está activada</translation>
    </message>
    <message>
        <source>Protection is off</source>
        <translation>La protección está desactivada</translation>
    </message>
    <message>
        <source>Looking for Zarvil</source>
        <translation>Buscando Zarvil</translation>
    </message>
    <message>
        <source>Choose devices</source>
        <translation>Elegir dispositivos</translation>
    </message>
    <message>
        <source>Shows the tab where you choose the devices to watch</source>
        <translation>Muestra la pestaña donde se eligen los dispositivos que vigilar</translation>
    </message>
    <message>
        <source>Switches the power-failure protection on or off</source>
        <translation>Activa o desactiva la protección frente a cortes de corriente</translation>
    </message>
    <message>
        <source>Power protection</source>
        <translation>Protección frente a cortes</translation>
    </message>
    <message>
        <source>Launching Zarvil</source>
        <translation>Iniciando Zarvil</translation>
    </message>
    <message>
        <source>Zarvil is running</source>
        <translation>Zarvil está en ejecución</translation>
    </message>
    <message>
        <source>Zarvil is not running</source>
        <translation>Zarvil no está en ejecución</translation>
    </message>
    <message>
        <source>Launch Zarvil</source>
        <translation>Iniciar Zarvil</translation>
    </message>
    <message>
        <source>Starts or quits the background agent that watches the power</source>
        <translation>Inicia o cierra el agente que vigila la alimentación en segundo plano</translation>
    </message>
    <message>
        <source>&amp;Devices</source>
        <translation>&amp;Dispositivos</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;General</translation>
    </message>
    <message>
        <source>&amp;Alerts</source>
        <translation>&amp;Alertas</translation>
    </message>
    <message>
        <source>&amp;Scripts</source>
        <translation>&amp;Scripts</translation>
    </message>
    <message>
        <source>A&amp;bout</source>
        <translation>A&amp;cerca de</translation>
    </message>
    <message>
        <source>Administrator rights</source>
        <translation>Derechos de administrador</translation>
    </message>
    <message>
        <source>Shows whether this account may administer the computer. No setting of this pane needs the lock to be open.</source>
        <translation>Muestra si esta cuenta puede administrar el equipo. Ningún ajuste de este panel necesita que el candado esté abierto.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Explains this tab (F1)</source>
        <translation>Explica esta pestaña (F1)</translation>
    </message>
    <message>
        <source>o</source>
        <comment>The letter of the title “Protection is on” or “off” that is its access key; - for none</comment>
        <translation>o</translation>
    </message>
</context>
<context>
    <name>PolkitAuthorization</name>
    <message>
        <source>Administrator rights cannot be checked: the authorization service (polkit) is not available.</source>
        <translation>No se pueden comprobar los derechos de administrador: el servicio de autorización (polkit) no está disponible.</translation>
    </message>
    <message>
        <source>The authentication was cancelled.</source>
        <translation>Se canceló la autenticación.</translation>
    </message>
    <message>
        <source>Administrator rights cannot be checked: Zarvil&apos;s policy for the authorization service (polkit) is not installed.</source>
        <translation>No se pueden comprobar los derechos de administrador: la directiva de Zarvil para el servicio de autorización (polkit) no está instalada.</translation>
    </message>
    <message>
        <source>Administrator rights cannot be checked: the authorization service (polkit) has failed.</source>
        <translation>No se pueden comprobar los derechos de administrador: el servicio de autorización (polkit) ha fallado.</translation>
    </message>
    <message>
        <source>No authentication agent is running that could ask for an administrator&apos;s password.</source>
        <translation>No hay en ejecución ningún agente de autenticación que pueda pedir la contraseña de un administrador.</translation>
    </message>
    <message>
        <source>An administrator&apos;s password is needed.</source>
        <translation>Se necesita la contraseña de un administrador.</translation>
    </message>
    <message>
        <source>The authentication has failed.</source>
        <translation>La autenticación ha fallado.</translation>
    </message>
    <message>
        <source>You do not have administrator rights.</source>
        <translation>No tiene derechos de administrador.</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <translation>LTR</translation>
    </message>
</context>
<context>
    <name>ScriptsTab</name>
    <message>
        <source>&amp;Run these scripts when the power fails</source>
        <translation>&amp;Ejecutar estos scripts si falla la corriente</translation>
    </message>
    <message>
        <source>The agent runs the scripts before the shutdown</source>
        <translation>El agente ejecuta los scripts antes de apagar</translation>
    </message>
    <message>
        <source>Zarvil runs them before it shuts the computer down.</source>
        <translation>Zarvil los ejecuta antes de apagar el equipo.</translation>
    </message>
    <message>
        <source>Ne&amp;w script</source>
        <translation>&amp;Nuevo script</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Title of the new script</source>
        <translation>Título del nuevo script</translation>
    </message>
    <message>
        <source>Title of the new script; it is also the name of its file</source>
        <translation>Título del nuevo script; es también el nombre de su archivo</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>C&amp;rear</translation>
    </message>
    <message>
        <source>Creates an empty script of this title</source>
        <translation>Crea un script vacío con este título</translation>
    </message>
    <message>
        <source>Scripts</source>
        <translation>Scripts</translation>
    </message>
</context>
<context>
    <name>UninstallPanel</name>
    <message>
        <source>Uninstall Zarvil</source>
        <translation>Desinstalar Zarvil</translation>
    </message>
    <message>
        <source>Uninstall Zarvil?</source>
        <translation>¿Desinstalar Zarvil?</translation>
    </message>
    <message>
        <source>Zarvil quits, and these are removed:</source>
        <translation>Zarvil se cierra y se quita lo siguiente:</translation>
    </message>
    <message>
        <source>•  the Zarvil application
•  this pane
•  the settings of Zarvil</source>
        <translation>•  la aplicación Zarvil
•  este panel
•  los ajustes de Zarvil</translation>
    </message>
    <message>
        <source>Your scripts are kept. This window closes at once, and none of it can be undone.</source>
        <translation>Los scripts se conservan. Esta ventana se cierra de inmediato y nada de ello se puede deshacer.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Desinstalar</translation>
    </message>
</context>
<context>
    <name>zarvil::BusConnection</name>
    <message>
        <source>The message bus does not answer</source>
        <translation>El bus de mensajes no responde</translation>
    </message>
    <message>
        <source>The connection to the message bus was lost</source>
        <translation>Se perdió la conexión con el bus de mensajes</translation>
    </message>
</context>
<context>
    <name>zarvil::host::HostWindow</name>
    <message>
        <source>Preference panes</source>
        <translation>Paneles de preferencias</translation>
    </message>
    <message>
        <source>Broken pane</source>
        <translation>Panel dañado</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
</context>
<context>
    <name>zarvil::qt::HelpWindow</name>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>What Is &amp;This?</source>
        <translation>¿&amp;Qué es esto?</translation>
    </message>
    <message>
        <source>Explains the control of the window that you click next</source>
        <translation>Explica el control de la ventana que pulse a continuación</translation>
    </message>
</context>
</TS>
