<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutTab</name>
    <message>
        <source>Zarvil</source>
        <translation>Zarvil</translation>
    </message>
    <message>
        <source>Watches the power devices of this computer and shuts it down in order when the power fails.</source>
        <translation>Überwacht die Stromversorgung dieses Computers und fährt ihn bei Stromausfall geordnet herunter.</translation>
    </message>
    <message>
        <source>Opens the maker&apos;s web site</source>
        <translation>Öffnet die Website des Herstellers</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Hilfe und Support</translation>
    </message>
    <message>
        <source>Opens the support page</source>
        <translation>Öffnet die Support-Seite</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Rückmeldung senden</translation>
    </message>
    <message>
        <source>Writes an e-mail to the makers</source>
        <translation>Schreibt eine E-Mail an die Hersteller</translation>
    </message>
    <message>
        <source>Follow us</source>
        <translation>Folgen Sie uns</translation>
    </message>
    <message>
        <source>Opens the maker&apos;s page on a social network</source>
        <translation>Öffnet die Seite des Herstellers in einem sozialen Netzwerk</translation>
    </message>
    <message>
        <source>Recommend Zarvil</source>
        <translation>Zarvil empfehlen</translation>
    </message>
    <message>
        <source>Composes a post about Zarvil</source>
        <translation>Verfasst einen Beitrag über Zarvil</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
    <message>
        <source>Check for updates auto&amp;matically</source>
        <translation>Auto&amp;matisch nach Updates suchen</translation>
    </message>
    <message>
        <source>The agent looks for new versions by itself</source>
        <translation>Der Agent sucht selbst nach neuen Versionen</translation>
    </message>
    <message>
        <source>Look for a new version now</source>
        <translation>Jetzt nach einer neuen Version suchen</translation>
    </message>
    <message>
        <source>The result is shown by Zarvil.</source>
        <translation>Das Ergebnis zeigt Zarvil an.</translation>
    </message>
    <message>
        <source>Check for &amp;Updates Now</source>
        <translation>Jetzt nach &amp;Updates suchen</translation>
    </message>
    <message>
        <source>Asks the agent to look for a new version</source>
        <translation>Bittet den Agenten, nach einer neuen Version zu suchen</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Wartung</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>What Zarvil has done and when.</source>
        <translation>Was Zarvil wann getan hat.</translation>
    </message>
    <message>
        <source>View &amp;Log</source>
        <translation>&amp;Protokoll anzeigen</translation>
    </message>
    <message>
        <source>Shows the agent&apos;s log</source>
        <translation>Zeigt das Protokoll des Agenten an</translation>
    </message>
    <message>
        <source>Uninstall Zarvil</source>
        <translation>Zarvil deinstallieren</translation>
    </message>
    <message>
        <source>Removes Zarvil, this pane and the settings. Your scripts are kept.</source>
        <translation>Entfernt Zarvil, diesen Einstellungsbereich und die Einstellungen. Ihre Skripte bleiben erhalten.</translation>
    </message>
    <message>
        <source>Un&amp;install…</source>
        <translation>&amp;Deinstallieren…</translation>
    </message>
    <message>
        <source>Asks before anything is removed</source>
        <translation>Fragt nach, bevor etwas entfernt wird</translation>
    </message>
</context>
<context>
    <name>AlertsTab</name>
    <message>
        <source>E-mail</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Send an &amp;e-mail when the power fails</source>
        <translation>Bei Stromausfall eine &amp;E-Mail senden</translation>
    </message>
    <message>
        <source>The agent sends the message</source>
        <translation>Der Agent sendet die Nachricht</translation>
    </message>
    <message>
        <source>Add&amp;ress</source>
        <translation>A&amp;dresse</translation>
    </message>
    <message>
        <source>Press Return to store the address. Only a complete address is stored.</source>
        <translation>Drücken Sie die Eingabetaste, um die Adresse zu speichern. Nur eine vollständige Adresse wird gespeichert.</translation>
    </message>
    <message>
        <source>name@example.org</source>
        <translation>name@example.org</translation>
    </message>
    <message>
        <source>Pushover</source>
        <translation>Pushover</translation>
    </message>
    <message>
        <source>What is Pushover?</source>
        <translation>Was ist Pushover?</translation>
    </message>
    <message>
        <source>Opens the Pushover web site</source>
        <translation>Öffnet die Website von Pushover</translation>
    </message>
    <message>
        <source>Send a &amp;push notification when the power fails</source>
        <translation>Bei Stromausfall eine &amp;Push-Nachricht senden</translation>
    </message>
    <message>
        <source>Pushover delivers notifications to your phone</source>
        <translation>Pushover stellt Nachrichten auf Ihrem Telefon zu</translation>
    </message>
    <message>
        <source>To your phone, through the Pushover service.</source>
        <translation>An Ihr Telefon, über den Dienst Pushover.</translation>
    </message>
    <message>
        <source>&amp;User ID</source>
        <translation>Ben&amp;utzer-ID</translation>
    </message>
    <message>
        <source>Your Pushover user key. Press Return to store it.</source>
        <translation>Ihr Pushover-Benutzerschlüssel. Drücken Sie die Eingabetaste, um ihn zu speichern.</translation>
    </message>
    <message>
        <source>Pushover user ID</source>
        <translation>Pushover-Benutzer-ID</translation>
    </message>
    <message>
        <source>De&amp;vice ID</source>
        <translation>Geräte-&amp;ID</translation>
    </message>
    <message>
        <source>Name of one of your devices; leave it empty for all. Press Return to store it.</source>
        <translation>Name eines Ihrer Geräte; leer lassen für alle. Drücken Sie die Eingabetaste, um ihn zu speichern.</translation>
    </message>
    <message>
        <source>All devices</source>
        <translation>Alle Geräte</translation>
    </message>
    <message>
        <source>Pushover device ID</source>
        <translation>Pushover-Geräte-ID</translation>
    </message>
    <message>
        <source>Leave it empty to reach all your devices.</source>
        <translation>Leer lassen, um alle Ihre Geräte zu erreichen.</translation>
    </message>
    <message>
        <source>Send a &amp;Test</source>
        <translation>&amp;Test senden</translation>
    </message>
    <message>
        <source>Sends a test notification and shows whether the IDs are right</source>
        <translation>Sendet eine Testnachricht und zeigt, ob die IDs stimmen</translation>
    </message>
    <message>
        <source>Check under way</source>
        <translation>Prüfung läuft</translation>
    </message>
</context>
<context>
    <name>Bundle</name>
    <message>
        <source>&quot;%1&quot; is not a preference pane: its Contents/Info.json cannot be read.</source>
        <translation>„%1“ ist kein Einstellungsbereich: Contents/Info.json darin ist nicht lesbar.</translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; is broken: Contents/Info.json is not valid JSON at byte %2 (%3).</source>
        <translation>Der Einstellungsbereich „%1“ ist beschädigt: Contents/Info.json ist bei Byte %2 kein gültiges JSON (%3).</translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; is broken: Contents/Info.json does not hold an object.</source>
        <translation>Der Einstellungsbereich „%1“ ist beschädigt: Contents/Info.json enthält kein Objekt.</translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; is broken: the text &quot;%2&quot; is missing in Contents/Info.json.</source>
        <translation>Der Einstellungsbereich „%1“ ist beschädigt: In Contents/Info.json fehlt der Text „%2“.</translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; does not exist.</source>
        <translation>Der Einstellungsbereich „%1“ existiert nicht.</translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; is broken: its library &quot;%2&quot; is missing.</source>
        <translation>Der Einstellungsbereich „%1“ ist beschädigt: Seine Bibliothek „%2“ fehlt.</translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; was made for another program: its library offers &quot;%2&quot; instead of &quot;%3&quot;.</source>
        <translation>Der Einstellungsbereich „%1“ wurde für ein anderes Programm gemacht: Seine Bibliothek bietet „%2“ statt „%3“.</translation>
    </message>
    <message>
        <source>The library of the preference pane &quot;%1&quot; cannot be loaded: %2</source>
        <translation>Die Bibliothek des Einstellungsbereichs „%1“ kann nicht geladen werden: %2</translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; is broken: its library offers the class &quot;%2&quot; instead of &quot;%3&quot;.</source>
        <translation>Der Einstellungsbereich „%1“ ist beschädigt: Seine Bibliothek bietet die Klasse „%2“ statt „%3“.</translation>
    </message>
</context>
<context>
    <name>DevicesTab</name>
    <message>
        <source>Tick a device to have Zarvil watch it. Untick it to stop.</source>
        <translation>Haken Sie ein Gerät an, damit Zarvil es überwacht. Entfernen Sie den Haken, um das zu beenden.</translation>
    </message>
    <message>
        <source>&amp;Connected</source>
        <translation>Angesc&amp;hlossen</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Angeschlossen</translation>
    </message>
    <message>
        <source>&amp;Watched</source>
        <translation>Über&amp;wacht</translation>
    </message>
    <message>
        <source>Watched</source>
        <translation>Überwacht</translation>
    </message>
</context>
<context>
    <name>GeneralTab</name>
    <message>
        <source>Shutdown</source>
        <translation>Herunterfahren</translation>
    </message>
    <message>
        <source>Shut down a&amp;fter</source>
        <translation>&amp;Herunterfahren nach</translation>
    </message>
    <message>
        <source>How long to wait after a power failure before shutting down. Press Return to store it.</source>
        <translation>Wie lange nach einem Stromausfall bis zum Herunterfahren gewartet wird. Drücken Sie die Eingabetaste, um den Wert zu speichern.</translation>
    </message>
    <message>
        <source>Shutdown delay</source>
        <translation>Verzögerung bis zum Herunterfahren</translation>
    </message>
    <message>
        <source>Shows the delay in minutes or in seconds</source>
        <translation>Zeigt die Verzögerung in Minuten oder in Sekunden an</translation>
    </message>
    <message>
        <source>Delay in minutes</source>
        <translation>Verzögerung in Minuten</translation>
    </message>
    <message>
        <source>&amp;Quit applications by force</source>
        <translation>Anwend&amp;ungen zwangsweise beenden</translation>
    </message>
    <message>
        <source>Ends applications that do not quit by themselves; unsaved changes in them are lost</source>
        <translation>Beendet Anwendungen, die sich nicht selbst beenden; ungespeicherte Änderungen darin gehen verloren</translation>
    </message>
    <message>
        <source>Unsaved changes in them are lost.</source>
        <translation>Ungespeicherte Änderungen darin gehen verloren.</translation>
    </message>
    <message>
        <source>Test the shutdown</source>
        <translation>Herunterfahren testen</translation>
    </message>
    <message>
        <source>Test under way</source>
        <translation>Test läuft</translation>
    </message>
    <message>
        <source>&amp;Test Shutdown</source>
        <translation>&amp;Test starten</translation>
    </message>
    <message>
        <source>Plays the shutdown sequence without shutting down</source>
        <translation>Spielt den Ablauf durch, ohne herunterzufahren</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>&amp;Warn me before shutting down</source>
        <translation>Vor dem Herunterfahren &amp;warnen</translation>
    </message>
    <message>
        <source>Shows a message with a countdown when the power has failed</source>
        <translation>Zeigt nach einem Stromausfall eine Meldung mit Countdown</translation>
    </message>
    <message>
        <source>A message counts down to the shutdown.</source>
        <translation>Eine Meldung zählt bis zum Herunterfahren herunter.</translation>
    </message>
    <message>
        <source>The message hides itself</source>
        <translation>Die Meldung blendet sich aus</translation>
    </message>
    <message>
        <source>Shown as the agent has it; it is set in the shutdown message itself.</source>
        <translation>Wird so gezeigt, wie der Agent es eingestellt hat; festgelegt wird es in der Meldung selbst.</translation>
    </message>
    <message>
        <source>Set in the message itself. The countdown goes on when it is hidden.</source>
        <translation>Wird in der Meldung selbst eingestellt. Der Countdown läuft auch ausgeblendet weiter.</translation>
    </message>
    <message>
        <source>&amp;Notify me when the power fails</source>
        <translation>Bei Stromausfall be&amp;nachrichtigen</translation>
    </message>
    <message>
        <source>Shows a desktop notification at the moment of a power failure</source>
        <translation>Zeigt im Moment des Stromausfalls eine Desktop-Benachrichtigung</translation>
    </message>
    <message>
        <source>A desktop notification at the moment of the failure.</source>
        <translation>Eine Desktop-Benachrichtigung im Moment des Ausfalls.</translation>
    </message>
    <message>
        <source>Tell me when a device is &amp;connected</source>
        <translation>Me&amp;lden, wenn ein Gerät angeschlossen wird</translation>
    </message>
    <message>
        <source>Shows a message when a power device is plugged in</source>
        <translation>Zeigt eine Meldung, wenn ein Stromgerät angesteckt wird</translation>
    </message>
    <message>
        <source>The message goes away by itself.</source>
        <translation>Die Meldung verschwindet von selbst.</translation>
    </message>
    <message>
        <source>Startup and status icon</source>
        <translation>Start und Statussymbol</translation>
    </message>
    <message>
        <source>&amp;Launch Zarvil at login</source>
        <translation>Zarvil bei der Anmeldung sta&amp;rten</translation>
    </message>
    <message>
        <source>Starts the agent whenever you log in</source>
        <translation>Startet den Agenten bei jeder Anmeldung</translation>
    </message>
    <message>
        <source>Protection starts as soon as you log in.</source>
        <translation>Der Schutz beginnt, sobald Sie sich anmelden.</translation>
    </message>
    <message>
        <source>Show Zarvil &amp;in the status bar</source>
        <translation>Zarvil &amp;in der Statusleiste anzeigen</translation>
    </message>
    <message>
        <source>Shows an icon of the agent in the status bar</source>
        <translation>Zeigt ein Symbol des Agenten in der Statusleiste</translation>
    </message>
    <message>
        <source>&amp;Monochrome icon</source>
        <translation>&amp;Einfarbiges Symbol</translation>
    </message>
    <message>
        <source>Draws the status-bar icon in one color</source>
        <translation>Zeichnet das Symbol der Statusleiste in einer Farbe</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>There is no preference pane in &quot;%1&quot; and none in &quot;%2&quot;.</source>
        <translation>Weder in „%1“ noch in „%2“ gibt es einen Einstellungsbereich.</translation>
    </message>
    <message>
        <source>The preferences are open already, but their window does not answer.</source>
        <translation>Die Einstellungen sind bereits geöffnet, aber ihr Fenster antwortet nicht.</translation>
    </message>
</context>
<context>
    <name>MainBundle</name>
    <message numerus="yes">
        <source>%n devices watched</source>
        <translation>
            <numerusform>%n Gerät überwacht</numerusform>
            <numerusform>%n Geräte überwacht</numerusform>
        </translation>
    </message>
    <message>
        <source>A test is running. Nothing is shut down.</source>
        <translation>Ein Test läuft. Es wird nichts heruntergefahren.</translation>
    </message>
    <message>
        <source>Administrator rights: checking</source>
        <translation>Administratorrechte: werden geprüft</translation>
    </message>
    <message>
        <source>Administrator rights: locked</source>
        <translation>Administratorrechte: gesperrt</translation>
    </message>
    <message>
        <source>Administrator rights: unlocked</source>
        <translation>Administratorrechte: freigegeben</translation>
    </message>
    <message>
        <source>Can&apos;t execute empty script!</source>
        <translation>Ein leeres Skript kann nicht ausgeführt werden!</translation>
    </message>
    <message>
        <source>Cannot be changed while the warning hides itself.</source>
        <translation>Nicht änderbar, solange sich die Warnung selbst ausblendet.</translation>
    </message>
    <message>
        <source>Connect a power supply with a data cable. It appears here by itself.</source>
        <translation>Schließen Sie eine Stromversorgung mit einem Datenkabel an. Sie erscheint hier von selbst.</translation>
    </message>
    <message>
        <source>Connection timeout! Check your Internet connection!</source>
        <translation>Zeitüberschreitung der Verbindung! Prüfen Sie Ihre Internetverbindung!</translation>
    </message>
    <message>
        <source>Delete this script and its file at once. This cannot be undone.</source>
        <translation>Löscht dieses Skript und seine Datei sofort. Das kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Edit the title and the text in place.</source>
        <translation>Titel und Text an Ort und Stelle bearbeiten.</translation>
    </message>
    <message>
        <source>Edit “%1”</source>
        <translation>„%1“ bearbeiten</translation>
    </message>
    <message>
        <source>Editing. Done saves the title and the text.</source>
        <translation>Wird bearbeitet. „Fertig“ speichert Titel und Text.</translation>
    </message>
    <message>
        <source>Failed with exit status %1: %2</source>
        <translation>Fehlgeschlagen mit Exit-Status %1: %2</translation>
    </message>
    <message>
        <source>Invalid settings! Check your User ID and Device ID(if any)</source>
        <translation>Ungültige Einstellungen! Prüfen Sie Benutzer-ID und Geräte-ID (falls angegeben)</translation>
    </message>
    <message>
        <source>Launch it to see your devices and change the settings.</source>
        <translation>Starten Sie es, um Ihre Geräte zu sehen und die Einstellungen zu ändern.</translation>
    </message>
    <message>
        <source>Launching it…</source>
        <translation>Wird gestartet…</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>Looking for Zarvil…</source>
        <translation>Zarvil wird gesucht…</translation>
    </message>
    <message>
        <source>Minutes from the power failure. Return stores the number.</source>
        <translation>Minuten ab dem Stromausfall. Die Eingabetaste speichert die Zahl.</translation>
    </message>
    <message>
        <source>No device connected</source>
        <translation>Kein Gerät angeschlossen</translation>
    </message>
    <message>
        <source>No device is watched, so a power failure goes unnoticed.</source>
        <translation>Kein Gerät wird überwacht, ein Stromausfall bleibt daher unbemerkt.</translation>
    </message>
    <message>
        <source>No device watched</source>
        <translation>Kein Gerät überwacht</translation>
    </message>
    <message>
        <source>No devices to show</source>
        <translation>Keine Geräte anzuzeigen</translation>
    </message>
    <message>
        <source>No scripts to show</source>
        <translation>Keine Skripte anzuzeigen</translation>
    </message>
    <message>
        <source>No scripts yet</source>
        <translation>Noch keine Skripte</translation>
    </message>
    <message>
        <source>No serial number</source>
        <translation>Keine Seriennummer</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Nicht gespeichert</translation>
    </message>
    <message>
        <source>Not stored while Zarvil is not running.</source>
        <translation>Wird nicht gespeichert, solange Zarvil nicht läuft.</translation>
    </message>
    <message>
        <source>Nothing happens when the power fails.</source>
        <translation>Bei Stromausfall geschieht nichts.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Only a number of 0 or more is taken, such as %1. The delay stays as it was.</source>
        <translation>Nur eine Zahl ab 0 wird angenommen, etwa %1. Die Verzögerung bleibt, wie sie war.</translation>
    </message>
    <message>
        <source>Plays the whole sequence without shutting down.</source>
        <translation>Spielt den ganzen Ablauf durch, ohne herunterzufahren.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove “%1”</source>
        <translation>„%1“ entfernen</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Ausführen</translation>
    </message>
    <message>
        <source>Run this script once, now. The window waits until it has ended.</source>
        <translation>Führt dieses Skript jetzt einmal aus. Das Fenster wartet, bis es beendet ist.</translation>
    </message>
    <message>
        <source>Run “%1”</source>
        <translation>„%1“ ausführen</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>Läuft…</translation>
    </message>
    <message>
        <source>Save the title and the text.</source>
        <translation>Titel und Text speichern.</translation>
    </message>
    <message>
        <source>Save “%1”</source>
        <translation>„%1“ speichern</translation>
    </message>
    <message>
        <source>Script “%1”</source>
        <translation>Skript „%1“</translation>
    </message>
    <message>
        <source>Scripts are off</source>
        <translation>Skripte sind ausgeschaltet</translation>
    </message>
    <message>
        <source>Seconds from the power failure. Return stores the number.</source>
        <translation>Sekunden ab dem Stromausfall. Die Eingabetaste speichert die Zahl.</translation>
    </message>
    <message>
        <source>Settings are valid!</source>
        <translation>Die Einstellungen sind gültig!</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Stored with Return, once it is complete and ends in two to four letters.</source>
        <translation>Wird mit der Eingabetaste gespeichert, sobald sie vollständig ist und auf zwei bis vier Buchstaben endet.</translation>
    </message>
    <message>
        <source>Switch the protection on to test it.</source>
        <translation>Schalten Sie den Schutz ein, um ihn zu testen.</translation>
    </message>
    <message>
        <source>Text of the script</source>
        <translation>Text des Skripts</translation>
    </message>
    <message>
        <source>The operation could not be completed.</source>
        <translation>Der Vorgang konnte nicht abgeschlossen werden.</translation>
    </message>
    <message>
        <source>The session bus does not answer, so Zarvil cannot be reached.</source>
        <translation>Der Sitzungsbus antwortet nicht, Zarvil ist daher nicht erreichbar.</translation>
    </message>
    <message>
        <source>The test has ended. Nothing was shut down.</source>
        <translation>Der Test ist beendet. Es wurde nichts heruntergefahren.</translation>
    </message>
    <message>
        <source>There is a script of this title already.</source>
        <translation>Ein Skript mit diesem Titel gibt es bereits.</translation>
    </message>
    <message>
        <source>They are kept. Switch them on to see them.</source>
        <translation>Sie bleiben erhalten. Schalten Sie sie ein, um sie zu sehen.</translation>
    </message>
    <message>
        <source>This script is empty. Edit it before you run it.</source>
        <translation>Dieses Skript ist leer. Bearbeiten Sie es, bevor Sie es ausführen.</translation>
    </message>
    <message>
        <source>This script is too large to be edited here (%1). Its text stays as it is; its title can be changed.</source>
        <translation>Dieses Skript ist zu groß, um hier bearbeitet zu werden (%1). Sein Text bleibt, wie er ist; sein Titel lässt sich ändern.</translation>
    </message>
    <message>
        <source>This system has no authority that could unlock it.</source>
        <translation>Auf diesem System gibt es keine Stelle, die es freigeben könnte.</translation>
    </message>
    <message>
        <source>Tick a connected device. Until then a power failure goes unnoticed.</source>
        <translation>Haken Sie ein angeschlossenes Gerät an. Bis dahin bleibt ein Stromausfall unbemerkt.</translation>
    </message>
    <message>
        <source>Title of the script</source>
        <translation>Titel des Skripts</translation>
    </message>
    <message>
        <source>Type a title above to create the first one.</source>
        <translation>Geben Sie oben einen Titel ein, um das erste zu erstellen.</translation>
    </message>
    <message>
        <source>Unknow error!</source>
        <translation>Unbekannter Fehler!</translation>
    </message>
    <message>
        <source>Unlocked</source>
        <translation>Freigegeben</translation>
    </message>
    <message>
        <source>Unnamed device</source>
        <translation>Gerät ohne Namen</translation>
    </message>
    <message>
        <source>Your devices are listed here while Zarvil runs.</source>
        <translation>Ihre Geräte werden hier aufgelistet, während Zarvil läuft.</translation>
    </message>
    <message>
        <source>Your scripts are listed here while Zarvil runs.</source>
        <translation>Ihre Skripte werden hier aufgelistet, während Zarvil läuft.</translation>
    </message>
    <message>
        <source>Zarvil is not installed.</source>
        <translation>Zarvil ist nicht installiert.</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>not needed for any setting here</source>
        <translation>für keine Einstellung hier nötig</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message numerus="yes">
        <source>shuts down after %n minutes</source>
        <translation>
            <numerusform>fährt nach %n Minute herunter</numerusform>
            <numerusform>fährt nach %n Minuten herunter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>shuts down after %n seconds</source>
        <translation>
            <numerusform>fährt nach %n Sekunde herunter</numerusform>
            <numerusform>fährt nach %n Sekunden herunter</numerusform>
        </translation>
    </message>
    <message>
        <source>shuts down at once</source>
        <translation>fährt sofort herunter</translation>
    </message>
    <message>
        <source>The script “%1” is running.</source>
        <translation>Das Skript „%1“ läuft.</translation>
    </message>
    <message>
        <source>Administrator rights</source>
        <translation>Administratorrechte</translation>
    </message>
    <message>
        <source>Alerts by e-mail</source>
        <translation>Benachrichtigung per E-Mail</translation>
    </message>
    <message>
        <source>Alerts through Pushover</source>
        <translation>Benachrichtigung über Pushover</translation>
    </message>
    <message>
        <source>An alert reaches you only if your router and modem still have power, so connect them to the power supply too.</source>
        <translation>Eine Benachrichtigung erreicht Sie nur, wenn Router und Modem noch Strom haben. Schließen Sie auch diese an die Stromversorgung an.</translation>
    </message>
    <message>
        <source>Applications that ask whether to save can hold a shutdown up until the battery is empty. By force they are ended without asking, and what was not saved is lost.</source>
        <translation>Anwendungen, die nach dem Speichern fragen, können das Herunterfahren aufhalten, bis die Batterie leer ist. Zwangsweise werden sie ohne Rückfrage beendet, und nicht Gespeichertes geht verloren.</translation>
    </message>
    <message>
        <source>Asks first, then removes Zarvil, this pane and the settings. Your scripts are kept.</source>
        <translation>Fragt zuerst nach und entfernt dann Zarvil, diesen Einstellungsbereich und die Einstellungen. Ihre Skripte bleiben erhalten.</translation>
    </message>
    <message>
        <source>Choosing devices</source>
        <translation>Geräte auswählen</translation>
    </message>
    <message>
        <source>Connect a power supply with its data cable. It appears under Connected. Tick it, and it moves to Watched. Untick it, and Zarvil no longer watches it.</source>
        <translation>Schließen Sie eine Stromversorgung mit ihrem Datenkabel an. Sie erscheint unter „Angeschlossen“. Haken Sie sie an, wechselt sie zu „Überwacht“. Entfernen Sie den Haken, überwacht Zarvil sie nicht mehr.</translation>
    </message>
    <message>
        <source>Devices are listed while Zarvil runs. Launch it with the button above the tabs. A power supply without a data cable cannot be watched.</source>
        <translation>Geräte werden aufgelistet, während Zarvil läuft. Starten Sie es mit der Schaltfläche über den Reitern. Eine Stromversorgung ohne Datenkabel kann nicht überwacht werden.</translation>
    </message>
    <message>
        <source>Each script is a file of its own in the folder %1, named after its title with the ending .zvscript. Copy that folder to keep them safe.</source>
        <translation>Jedes Skript ist eine eigene Datei im Ordner %1, benannt nach seinem Titel mit der Endung .zvscript. Kopieren Sie diesen Ordner, um sie zu sichern.</translation>
    </message>
    <message>
        <source>Ends applications that do not quit by themselves, so that none of them can hold the shutdown up. What was not saved in them is lost.</source>
        <translation>Beendet Anwendungen, die sich nicht selbst beenden, damit keine das Herunterfahren aufhält. Nicht Gespeichertes darin geht verloren.</translation>
    </message>
    <message>
        <source>Goes through the shutdown as if the power had failed, and stops before the computer would be shut down.</source>
        <translation>Spielt das Herunterfahren durch, als wäre der Strom ausgefallen, und hält an, bevor der Computer heruntergefahren würde.</translation>
    </message>
    <message>
        <source>Help: About</source>
        <translation>Hilfe: Info</translation>
    </message>
    <message>
        <source>Help: Alerts</source>
        <translation>Hilfe: Benachrichtigungen</translation>
    </message>
    <message>
        <source>Help: Devices</source>
        <translation>Hilfe: Geräte</translation>
    </message>
    <message>
        <source>Help: General</source>
        <translation>Hilfe: Allgemein</translation>
    </message>
    <message>
        <source>Help: Scripts</source>
        <translation>Hilfe: Skripte</translation>
    </message>
    <message>
        <source>If no device appears</source>
        <translation>Wenn kein Gerät erscheint</translation>
    </message>
    <message>
        <source>If the protection is off</source>
        <translation>Wenn der Schutz ausgeschaltet ist</translation>
    </message>
    <message>
        <source>Keep the network up</source>
        <translation>Das Netzwerk in Betrieb halten</translation>
    </message>
    <message>
        <source>New versions</source>
        <translation>Neue Versionen</translation>
    </message>
    <message>
        <source>Pushover is a service that brings messages to your phone. You need an account there; its user ID goes into the first field. With a device ID only that device gets the message, otherwise all of yours.</source>
        <translation>Pushover ist ein Dienst, der Nachrichten auf Ihr Telefon bringt. Sie brauchen dort ein Konto; dessen Benutzer-ID gehört in das erste Feld. Mit einer Geräte-ID erhält nur dieses Gerät die Nachricht, sonst alle Ihre Geräte.</translation>
    </message>
    <message>
        <source>Quitting applications by force</source>
        <translation>Anwendungen zwangsweise beenden</translation>
    </message>
    <message>
        <source>Removes Zarvil, this pane and the settings, after it has asked you. Your scripts stay in the folder %1.</source>
        <translation>Entfernt nach einer Rückfrage Zarvil, diesen Einstellungsbereich und die Einstellungen. Ihre Skripte bleiben im Ordner %1.</translation>
    </message>
    <message>
        <source>Run starts the script at once, without a power failure, and does all that it says. If it fails, its exit status and its last error are shown.</source>
        <translation>„Ausführen“ startet das Skript sofort, ohne Stromausfall, und tut alles, was darin steht. Schlägt es fehl, werden sein Exit-Status und sein letzter Fehler gezeigt.</translation>
    </message>
    <message>
        <source>Send a Test sends a message at once and tells you whether it went out. IDs that Pushover does not know are cleared and have to be typed again.</source>
        <translation>„Test senden“ verschickt sofort eine Nachricht und sagt Ihnen, ob sie hinausging. IDs, die Pushover nicht kennt, werden gelöscht und müssen neu eingegeben werden.</translation>
    </message>
    <message>
        <source>Shows the delay in minutes or in seconds. The delay itself stays the same.</source>
        <translation>Zeigt die Verzögerung in Minuten oder in Sekunden an. Die Verzögerung selbst bleibt gleich.</translation>
    </message>
    <message>
        <source>Shows whether the warning hides itself. You choose that in the warning, so it cannot be changed here.</source>
        <translation>Zeigt, ob sich die Warnung selbst ausblendet. Das wählen Sie in der Warnung, deshalb lässt es sich hier nicht ändern.</translation>
    </message>
    <message>
        <source>Shows whether your account may administer this computer. No setting here needs the lock to be open.</source>
        <translation>Zeigt, ob Ihr Konto diesen Computer verwalten darf. Keine Einstellung hier erfordert ein geöffnetes Schloss.</translation>
    </message>
    <message>
        <source>Starts Zarvil, the program that watches the power, or ends it. While it does not run, nothing is watched and no setting can be changed.</source>
        <translation>Startet oder beendet Zarvil, das Programm, das die Stromversorgung überwacht. Solange es nicht läuft, wird nichts überwacht, und keine Einstellung lässt sich ändern.</translation>
    </message>
    <message>
        <source>Switches the protection. While it is off, Zarvil does nothing when the power fails. The choice takes effect at once.</source>
        <translation>Schaltet den Schutz ein oder aus. Solange er ausgeschaltet ist, tut Zarvil bei Stromausfall nichts. Die Wahl gilt sofort.</translation>
    </message>
    <message>
        <source>The delay</source>
        <translation>Die Verzögerung</translation>
    </message>
    <message>
        <source>The key of your account at Pushover. You find it on Pushover&apos;s page once you have logged in.</source>
        <translation>Der Schlüssel Ihres Kontos bei Pushover. Sie finden ihn nach der Anmeldung auf der Seite von Pushover.</translation>
    </message>
    <message>
        <source>The lock below the tabs shows whether your account may administer this computer. No setting here needs it to be open.</source>
        <translation>Das Schloss unter den Reitern zeigt, ob Ihr Konto diesen Computer verwalten darf. Keine Einstellung hier erfordert, dass es geöffnet ist.</translation>
    </message>
    <message>
        <source>The log</source>
        <translation>Das Protokoll</translation>
    </message>
    <message>
        <source>The name of one of your devices at Pushover. Leave it empty, and all of them get the message.</source>
        <translation>Der Name eines Ihrer Geräte bei Pushover. Lassen Sie das Feld leer, erhalten alle die Nachricht.</translation>
    </message>
    <message>
        <source>The time between the power failure and the shutdown. Numbers of 0 or more are stored with Return; anything else leaves the last value as it is.</source>
        <translation>Die Zeit zwischen dem Stromausfall und dem Herunterfahren. Zahlen ab 0 werden mit der Eingabetaste gespeichert; bei allem anderen bleibt der letzte Wert, wie er ist.</translation>
    </message>
    <message>
        <source>The title of a new script. It becomes the name of the script&apos;s file, so that no two scripts can have the same one.</source>
        <translation>Der Titel eines neuen Skripts. Er wird zum Namen der Skriptdatei, daher können zwei Skripte nicht denselben haben.</translation>
    </message>
    <message>
        <source>This much time passes between the power failure and the shutdown. Choose seconds or minutes with the switch, type a number and press Return. With 0 the computer is shut down at once.</source>
        <translation>So viel Zeit vergeht zwischen dem Stromausfall und dem Herunterfahren. Wählen Sie mit dem Schalter Sekunden oder Minuten, geben Sie eine Zahl ein und drücken Sie die Eingabetaste. Bei 0 wird der Computer sofort heruntergefahren.</translation>
    </message>
    <message>
        <source>Trying Pushover out</source>
        <translation>Pushover ausprobieren</translation>
    </message>
    <message>
        <source>Trying a script out</source>
        <translation>Ein Skript ausprobieren</translation>
    </message>
    <message>
        <source>Type a title, press Create, then Edit. A text that begins with #! is run by the program named in that line, any other by the shell. Done saves it.</source>
        <translation>Geben Sie einen Titel ein und drücken Sie „Erstellen“, dann „Bearbeiten“. Ein Text, der mit #! beginnt, wird von dem Programm in dieser Zeile ausgeführt, jeder andere von der Shell. „Fertig“ speichert ihn.</translation>
    </message>
    <message>
        <source>Uninstalling Zarvil</source>
        <translation>Zarvil deinstallieren</translation>
    </message>
    <message>
        <source>What a test does</source>
        <translation>Was ein Test tut</translation>
    </message>
    <message>
        <source>What happens when the power fails</source>
        <translation>Was bei einem Stromausfall geschieht</translation>
    </message>
    <message>
        <source>What scripts are for</source>
        <translation>Wozu Skripte dienen</translation>
    </message>
    <message>
        <source>When a watched device reports a power failure, Zarvil warns you, runs your scripts, sends the alerts that you have chosen and, after the delay, shuts the computer down. You choose each of these in the other tabs.</source>
        <translation>Meldet ein überwachtes Gerät einen Stromausfall, warnt Zarvil Sie, führt Ihre Skripte aus, sendet die gewählten Benachrichtigungen und fährt den Computer nach der Verzögerung herunter. All das wählen Sie auf den anderen Seiten.</translation>
    </message>
    <message>
        <source>Where scripts lie</source>
        <translation>Wo Skripte liegen</translation>
    </message>
    <message>
        <source>Writing a script</source>
        <translation>Ein Skript schreiben</translation>
    </message>
    <message>
        <source>Zarvil goes on running and shows your devices, but does nothing when the power fails. Switch it on with the switch at the top.</source>
        <translation>Zarvil läuft weiter und zeigt Ihre Geräte, tut bei Stromausfall aber nichts. Schalten Sie den Schutz mit dem Schalter oben ein.</translation>
    </message>
    <message>
        <source>Zarvil goes through the shutdown as if the power had failed, and stops before the computer would be shut down. The protection must be on for a test.</source>
        <translation>Zarvil spielt das Herunterfahren durch, als wäre der Strom ausgefallen, und hält an, bevor der Computer heruntergefahren würde. Für einen Test muss der Schutz eingeschaltet sein.</translation>
    </message>
    <message>
        <source>Zarvil looks for new versions itself, at your word or by itself, and tells you what it has found.</source>
        <translation>Zarvil sucht selbst nach neuen Versionen, auf Ihren Wunsch oder von sich aus, und sagt Ihnen, was es gefunden hat.</translation>
    </message>
    <message>
        <source>Zarvil runs them when the power fails, before it shuts the computer down: to save your work, for example, or to stop a server in order.</source>
        <translation>Zarvil führt sie bei Stromausfall aus, bevor es den Computer herunterfährt: etwa um Ihre Arbeit zu sichern oder einen Server geordnet anzuhalten.</translation>
    </message>
    <message>
        <source>Zarvil sends a message to the address when the power fails. Type the whole address and press Return; an incomplete one is not stored.</source>
        <translation>Zarvil sendet bei Stromausfall eine Nachricht an die Adresse. Geben Sie die ganze Adresse ein und drücken Sie die Eingabetaste; eine unvollständige wird nicht gespeichert.</translation>
    </message>
    <message>
        <source>Zarvil writes down what it does and when: power failures, shutdowns and alerts. Look there first if something went otherwise than you expected.</source>
        <translation>Zarvil hält fest, was es wann tut: Stromausfälle, Herunterfahren und Benachrichtigungen. Sehen Sie dort zuerst nach, wenn etwas anders lief als erwartet.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Cancel editing “%1”</source>
        <translation>Bearbeiten von „%1“ abbrechen</translation>
    </message>
    <message>
        <source>End editing without saving. Esc leads here.</source>
        <translation>Beendet das Bearbeiten, ohne zu speichern. Auch mit Esc.</translation>
    </message>
    <message>
        <source>Connected: %1</source>
        <translation>Angeschlossen: %1</translation>
    </message>
    <message>
        <source>Disconnected: %1</source>
        <translation>Getrennt: %1</translation>
    </message>
    <message>
        <source>Could not create the folder “%1”: %2.</source>
        <translation>Der Ordner „%1“ konnte nicht angelegt werden: %2.</translation>
    </message>
    <message>
        <source>Could not prepare the script for running: %1.</source>
        <translation>Das Skript konnte nicht zum Ausführen vorbereitet werden: %1.</translation>
    </message>
    <message>
        <source>Could not remove “%1”: %2.</source>
        <translation>„%1“ konnte nicht entfernt werden: %2.</translation>
    </message>
    <message>
        <source>Could not save the file “%1”: %2.</source>
        <translation>Die Datei „%1“ konnte nicht gesichert werden: %2.</translation>
    </message>
    <message>
        <source>Could not start the script&apos;s interpreter “%1”: %2.</source>
        <translation>Der Interpreter „%1“ des Skripts konnte nicht gestartet werden: %2.</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Min</translation>
    </message>
    <message>
        <source>Sec</source>
        <translation>Sek</translation>
    </message>
    <message>
        <source>Signal %1 (%2) ended the script.</source>
        <translation>Das Signal %1 (%2) hat das Skript beendet.</translation>
    </message>
    <message>
        <source>Signal %1 ended the script.</source>
        <translation>Das Signal %1 hat das Skript beendet.</translation>
    </message>
    <message>
        <source>The script contains a NUL character, so it cannot be run.</source>
        <translation>Das Skript enthält ein NUL-Zeichen und kann deshalb nicht ausgeführt werden.</translation>
    </message>
    <message>
        <source>The script failed with exit status %1 and gave no reason.</source>
        <translation>Das Skript ist mit dem Status %1 fehlgeschlagen und hat keinen Grund genannt.</translation>
    </message>
    <message>
        <source>The script has ended, but its result got lost.</source>
        <translation>Das Skript ist zu Ende, aber sein Ergebnis ist verloren gegangen.</translation>
    </message>
    <message>
        <source>a part of its path is not a folder</source>
        <translation>ein Teil des Pfads ist kein Ordner</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es ist ein Ordner</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>it would be larger than files may be here</source>
        <translation>sie würde größer, als Dateien hier sein dürfen</translation>
    </message>
    <message>
        <source>its name contains a character that is not allowed</source>
        <translation>der Name enthält ein unzulässiges Zeichen</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>der Name ist zu lang</translation>
    </message>
    <message>
        <source>its symbolic links lead in a circle</source>
        <translation>die symbolischen Verknüpfungen führen im Kreis</translation>
    </message>
    <message>
        <source>something of that name is already there</source>
        <translation>es gibt schon etwas mit diesem Namen</translation>
    </message>
    <message>
        <source>the disk can only be read</source>
        <translation>der Datenträger kann nur gelesen werden</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>der Datenträger ist voll</translation>
    </message>
    <message>
        <source>the disk reported a fault</source>
        <translation>der Datenträger hat einen Fehler gemeldet</translation>
    </message>
    <message>
        <source>there is no such file or folder</source>
        <translation>die Datei oder den Ordner gibt es nicht</translation>
    </message>
    <message>
        <source>too many files are open</source>
        <translation>zu viele Dateien sind geöffnet</translation>
    </message>
    <message>
        <source>you do not have permission</source>
        <translation>Sie haben keine Berechtigung</translation>
    </message>
    <message>
        <source>your share of the disk is used up</source>
        <translation>Ihr Anteil am Speicherplatz ist aufgebraucht</translation>
    </message>
    <message>
        <source>Ended without an error.</source>
        <translation>Ohne Fehler beendet.</translation>
    </message>
    <message>
        <source>Administrator rights: %1 missing</source>
        <translation>Administratorrechte: %1 fehlt</translation>
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
        <translation>Der Schutz ist eingeschaltet</translation>
    </message>
    <message>
        <source>Protection is off</source>
        <translation>Der Schutz ist ausgeschaltet</translation>
    </message>
    <message>
        <source>Looking for Zarvil</source>
        <translation>Zarvil wird gesucht</translation>
    </message>
    <message>
        <source>Choose devices</source>
        <translation>Geräte auswählen</translation>
    </message>
    <message>
        <source>Shows the tab where you choose the devices to watch</source>
        <translation>Zeigt die Seite, auf der Sie die zu überwachenden Geräte auswählen</translation>
    </message>
    <message>
        <source>Switches the power-failure protection on or off</source>
        <translation>Schaltet den Schutz bei Stromausfall ein oder aus</translation>
    </message>
    <message>
        <source>Power protection</source>
        <translation>Schutz bei Stromausfall</translation>
    </message>
    <message>
        <source>Launching Zarvil</source>
        <translation>Zarvil wird gestartet</translation>
    </message>
    <message>
        <source>Zarvil is running</source>
        <translation>Zarvil läuft</translation>
    </message>
    <message>
        <source>Zarvil is not running</source>
        <translation>Zarvil läuft nicht</translation>
    </message>
    <message>
        <source>Launch Zarvil</source>
        <translation>Zarvil starten</translation>
    </message>
    <message>
        <source>Starts or quits the background agent that watches the power</source>
        <translation>Startet oder beendet den Hintergrund-Agenten, der die Stromversorgung überwacht</translation>
    </message>
    <message>
        <source>&amp;Devices</source>
        <translation>&amp;Geräte</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Allgemein</translation>
    </message>
    <message>
        <source>&amp;Alerts</source>
        <translation>&amp;Benachrichtigungen</translation>
    </message>
    <message>
        <source>&amp;Scripts</source>
        <translation>&amp;Skripte</translation>
    </message>
    <message>
        <source>A&amp;bout</source>
        <translation>Inf&amp;o</translation>
    </message>
    <message>
        <source>Administrator rights</source>
        <translation>Administratorrechte</translation>
    </message>
    <message>
        <source>Shows whether this account may administer the computer. No setting of this pane needs the lock to be open.</source>
        <translation>Zeigt, ob dieses Konto den Computer verwalten darf. Keine Einstellung hier erfordert ein geöffnetes Schloss.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Explains this tab (F1)</source>
        <translation>Erklärt diese Seite (F1)</translation>
    </message>
    <message>
        <source>o</source>
        <comment>The letter of the title “Protection is on” or “off” that is its access key; - for none</comment>
        <translation>c</translation>
    </message>
</context>
<context>
    <name>PolkitAuthorization</name>
    <message>
        <source>Administrator rights cannot be checked: the authorization service (polkit) is not available.</source>
        <translation>Administratorrechte können nicht geprüft werden: Der Autorisierungsdienst (polkit) ist nicht verfügbar.</translation>
    </message>
    <message>
        <source>The authentication was cancelled.</source>
        <translation>Die Authentifizierung wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Administrator rights cannot be checked: Zarvil&apos;s policy for the authorization service (polkit) is not installed.</source>
        <translation>Administratorrechte können nicht geprüft werden: Die Richtlinie von Zarvil für den Autorisierungsdienst (polkit) ist nicht installiert.</translation>
    </message>
    <message>
        <source>Administrator rights cannot be checked: the authorization service (polkit) has failed.</source>
        <translation>Administratorrechte können nicht geprüft werden: Der Autorisierungsdienst (polkit) ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>No authentication agent is running that could ask for an administrator&apos;s password.</source>
        <translation>Es läuft kein Authentifizierungsprogramm, das nach einem Administratorpasswort fragen könnte.</translation>
    </message>
    <message>
        <source>An administrator&apos;s password is needed.</source>
        <translation>Ein Administratorpasswort wird benötigt.</translation>
    </message>
    <message>
        <source>The authentication has failed.</source>
        <translation>Die Authentifizierung ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>You do not have administrator rights.</source>
        <translation>Sie haben keine Administratorrechte.</translation>
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
        <translation>Diese Skripte bei Stromausfall aus&amp;führen</translation>
    </message>
    <message>
        <source>The agent runs the scripts before the shutdown</source>
        <translation>Der Agent führt die Skripte vor dem Herunterfahren aus</translation>
    </message>
    <message>
        <source>Zarvil runs them before it shuts the computer down.</source>
        <translation>Zarvil führt sie aus, bevor es den Computer herunterfährt.</translation>
    </message>
    <message>
        <source>Ne&amp;w script</source>
        <translation>&amp;Neues Skript</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Title of the new script</source>
        <translation>Titel des neuen Skripts</translation>
    </message>
    <message>
        <source>Title of the new script; it is also the name of its file</source>
        <translation>Titel des neuen Skripts; so heißt auch seine Datei</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>&amp;Erstellen</translation>
    </message>
    <message>
        <source>Creates an empty script of this title</source>
        <translation>Erstellt ein leeres Skript mit diesem Titel</translation>
    </message>
    <message>
        <source>Scripts</source>
        <translation>Skripte</translation>
    </message>
</context>
<context>
    <name>UninstallPanel</name>
    <message>
        <source>Uninstall Zarvil</source>
        <translation>Zarvil deinstallieren</translation>
    </message>
    <message>
        <source>Uninstall Zarvil?</source>
        <translation>Zarvil deinstallieren?</translation>
    </message>
    <message>
        <source>Zarvil quits, and these are removed:</source>
        <translation>Zarvil wird beendet, und Folgendes wird entfernt:</translation>
    </message>
    <message>
        <source>•  the Zarvil application
•  this pane
•  the settings of Zarvil</source>
        <translation>•  die Anwendung Zarvil
•  dieser Einstellungsbereich
•  die Einstellungen von Zarvil</translation>
    </message>
    <message>
        <source>Your scripts are kept. This window closes at once, and none of it can be undone.</source>
        <translation>Ihre Skripte bleiben erhalten. Dieses Fenster schließt sich sofort, und nichts davon kann rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Deinstallieren</translation>
    </message>
</context>
<context>
    <name>zarvil::BusConnection</name>
    <message>
        <source>The message bus does not answer</source>
        <translation>Der Nachrichtenbus antwortet nicht</translation>
    </message>
    <message>
        <source>The connection to the message bus was lost</source>
        <translation>Die Verbindung zum Nachrichtenbus ging verloren</translation>
    </message>
</context>
<context>
    <name>zarvil::host::HostWindow</name>
    <message>
        <source>Preference panes</source>
        <translation>Einstellungsbereiche</translation>
    </message>
    <message>
        <source>Broken pane</source>
        <translation>Beschädigter Bereich</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>zarvil::qt::HelpWindow</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>What Is &amp;This?</source>
        <translation>&amp;Was ist das?</translation>
    </message>
    <message>
        <source>Explains the control of the window that you click next</source>
        <translation>Erklärt das Bedienelement des Fensters, das Sie als Nächstes anklicken</translation>
    </message>
</context>
</TS>
