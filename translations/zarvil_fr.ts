<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AboutTab</name>
    <message>
        <source>Zarvil</source>
        <translation>Zarvil</translation>
    </message>
    <message>
        <source>Watches the power devices of this computer and shuts it down in order when the power fails.</source>
        <translation>Surveille l’alimentation de cet ordinateur et l’éteint proprement en cas de coupure de courant.</translation>
    </message>
    <message>
        <source>Opens the maker&apos;s web site</source>
        <translation>Ouvre le site web de l’éditeur</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Assistance</translation>
    </message>
    <message>
        <source>Opens the support page</source>
        <translation>Ouvre la page d’assistance</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Envoyer un avis</translation>
    </message>
    <message>
        <source>Writes an e-mail to the makers</source>
        <translation>Rédige un courriel aux auteurs</translation>
    </message>
    <message>
        <source>Follow us</source>
        <translation>Nous suivre</translation>
    </message>
    <message>
        <source>Opens the maker&apos;s page on a social network</source>
        <translation>Ouvre la page de l’éditeur sur un réseau social</translation>
    </message>
    <message>
        <source>Recommend Zarvil</source>
        <translation>Recommander Zarvil</translation>
    </message>
    <message>
        <source>Composes a post about Zarvil</source>
        <translation>Rédige une publication sur Zarvil</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Mises à jour</translation>
    </message>
    <message>
        <source>Check for updates auto&amp;matically</source>
        <translation>Rechercher auto&amp;matiquement les mises à jour</translation>
    </message>
    <message>
        <source>The agent looks for new versions by itself</source>
        <translation>L’agent recherche lui-même les nouvelles versions</translation>
    </message>
    <message>
        <source>Look for a new version now</source>
        <translation>Rechercher une nouvelle version maintenant</translation>
    </message>
    <message>
        <source>The result is shown by Zarvil.</source>
        <translation>Zarvil affiche le résultat.</translation>
    </message>
    <message>
        <source>Check for &amp;Updates Now</source>
        <translation>Rec&amp;hercher maintenant</translation>
    </message>
    <message>
        <source>Asks the agent to look for a new version</source>
        <translation>Demande à l’agent de rechercher une nouvelle version</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Maintenance</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>What Zarvil has done and when.</source>
        <translation>Ce que Zarvil a fait et quand.</translation>
    </message>
    <message>
        <source>View &amp;Log</source>
        <translation>Afficher le &amp;journal</translation>
    </message>
    <message>
        <source>Shows the agent&apos;s log</source>
        <translation>Affiche le journal de l’agent</translation>
    </message>
    <message>
        <source>Uninstall Zarvil</source>
        <translation>Désinstaller Zarvil</translation>
    </message>
    <message>
        <source>Removes Zarvil, this pane and the settings. Your scripts are kept.</source>
        <translation>Supprime Zarvil, ce panneau et les réglages. Vos scripts sont conservés.</translation>
    </message>
    <message>
        <source>Un&amp;install…</source>
        <translation>&amp;Désinstaller…</translation>
    </message>
    <message>
        <source>Asks before anything is removed</source>
        <translation>Demande confirmation avant toute suppression</translation>
    </message>
</context>
<context>
    <name>AlertsTab</name>
    <message>
        <source>E-mail</source>
        <translation>Courriel</translation>
    </message>
    <message>
        <source>Send an &amp;e-mail when the power fails</source>
        <translation>&amp;Envoyer un courriel en cas de coupure de courant</translation>
    </message>
    <message>
        <source>The agent sends the message</source>
        <translation>L’agent envoie le message</translation>
    </message>
    <message>
        <source>Add&amp;ress</source>
        <translation>A&amp;dresse</translation>
    </message>
    <message>
        <source>Press Return to store the address. Only a complete address is stored.</source>
        <translation>Appuyez sur Entrée pour enregistrer l’adresse. Seule une adresse complète est enregistrée.</translation>
    </message>
    <message>
        <source>name@example.org</source>
        <translation>nom@example.org</translation>
    </message>
    <message>
        <source>Pushover</source>
        <translation>Pushover</translation>
    </message>
    <message>
        <source>What is Pushover?</source>
        <translation>Qu’est-ce que Pushover&#xa0;?</translation>
    </message>
    <message>
        <source>Opens the Pushover web site</source>
        <translation>Ouvre le site web de Pushover</translation>
    </message>
    <message>
        <source>Send a &amp;push notification when the power fails</source>
        <translation>Envoyer une &amp;notification push en cas de coupure de courant</translation>
    </message>
    <message>
        <source>Pushover delivers notifications to your phone</source>
        <translation>Pushover transmet des notifications à votre téléphone</translation>
    </message>
    <message>
        <source>To your phone, through the Pushover service.</source>
        <translation>Sur votre téléphone, par le service Pushover.</translation>
    </message>
    <message>
        <source>&amp;User ID</source>
        <translation>ID &amp;utilisateur</translation>
    </message>
    <message>
        <source>Your Pushover user key. Press Return to store it.</source>
        <translation>Votre clé d’utilisateur Pushover. Appuyez sur Entrée pour l’enregistrer.</translation>
    </message>
    <message>
        <source>Pushover user ID</source>
        <translation>ID utilisateur Pushover</translation>
    </message>
    <message>
        <source>De&amp;vice ID</source>
        <translation>ID de l’appa&amp;reil</translation>
    </message>
    <message>
        <source>Name of one of your devices; leave it empty for all. Press Return to store it.</source>
        <translation>Nom de l’un de vos appareils&#xa0;; laissez vide pour tous. Appuyez sur Entrée pour l’enregistrer.</translation>
    </message>
    <message>
        <source>All devices</source>
        <translation>Tous les appareils</translation>
    </message>
    <message>
        <source>Pushover device ID</source>
        <translation>ID de l’appareil Pushover</translation>
    </message>
    <message>
        <source>Leave it empty to reach all your devices.</source>
        <translation>Laissez vide pour atteindre tous vos appareils.</translation>
    </message>
    <message>
        <source>Send a &amp;Test</source>
        <translation>Envoyer un &amp;test</translation>
    </message>
    <message>
        <source>Sends a test notification and shows whether the IDs are right</source>
        <translation>Envoie une notification d’essai et indique si les ID sont corrects</translation>
    </message>
    <message>
        <source>Check under way</source>
        <translation>Vérification en cours</translation>
    </message>
</context>
<context>
    <name>Bundle</name>
    <message>
        <source>&quot;%1&quot; is not a preference pane: its Contents/Info.json cannot be read.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un panneau de préférences&#xa0;: son fichier Contents/Info.json est illisible.</translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; is broken: Contents/Info.json is not valid JSON at byte %2 (%3).</source>
        <translation>Le panneau de préférences «&#xa0;%1&#xa0;» est endommagé&#xa0;: Contents/Info.json n’est pas du JSON valide à l’octet %2 (%3).</translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; is broken: Contents/Info.json does not hold an object.</source>
        <translation>Le panneau de préférences «&#xa0;%1&#xa0;» est endommagé&#xa0;: Contents/Info.json ne contient pas d’objet.</translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; is broken: the text &quot;%2&quot; is missing in Contents/Info.json.</source>
        <translation>Le panneau de préférences «&#xa0;%1&#xa0;» est endommagé&#xa0;: le texte «&#xa0;%2&#xa0;» manque dans Contents/Info.json.</translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; does not exist.</source>
        <translation>Le panneau de préférences «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; is broken: its library &quot;%2&quot; is missing.</source>
        <translation>Le panneau de préférences «&#xa0;%1&#xa0;» est endommagé&#xa0;: sa bibliothèque «&#xa0;%2&#xa0;» est absente.</translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; was made for another program: its library offers &quot;%2&quot; instead of &quot;%3&quot;.</source>
        <translation>Le panneau de préférences «&#xa0;%1&#xa0;» est destiné à un autre programme&#xa0;: sa bibliothèque offre «&#xa0;%2&#xa0;» au lieu de «&#xa0;%3&#xa0;».</translation>
    </message>
    <message>
        <source>The library of the preference pane &quot;%1&quot; cannot be loaded: %2</source>
        <translation>La bibliothèque du panneau de préférences «&#xa0;%1&#xa0;» ne peut pas être chargée&#xa0;: %2</translation>
    </message>
    <message>
        <source>The preference pane &quot;%1&quot; is broken: its library offers the class &quot;%2&quot; instead of &quot;%3&quot;.</source>
        <translation>Le panneau de préférences «&#xa0;%1&#xa0;» est endommagé&#xa0;: sa bibliothèque offre la classe «&#xa0;%2&#xa0;» au lieu de «&#xa0;%3&#xa0;».</translation>
    </message>
</context>
<context>
    <name>DevicesTab</name>
    <message>
        <source>Tick a device to have Zarvil watch it. Untick it to stop.</source>
        <translation>Cochez un appareil pour que Zarvil le surveille. Décochez-le pour arrêter.</translation>
    </message>
    <message>
        <source>&amp;Connected</source>
        <translation>&amp;Connectés</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connectés</translation>
    </message>
    <message>
        <source>&amp;Watched</source>
        <translation>Sur&amp;veillés</translation>
    </message>
    <message>
        <source>Watched</source>
        <translation>Surveillés</translation>
    </message>
</context>
<context>
    <name>GeneralTab</name>
    <message>
        <source>Shutdown</source>
        <translation>Arrêt</translation>
    </message>
    <message>
        <source>Shut down a&amp;fter</source>
        <translation>&amp;Délai avant l’arrêt</translation>
    </message>
    <message>
        <source>How long to wait after a power failure before shutting down. Press Return to store it.</source>
        <translation>Temps d’attente entre la coupure de courant et l’arrêt. Appuyez sur Entrée pour l’enregistrer.</translation>
    </message>
    <message>
        <source>Shutdown delay</source>
        <translation>Délai avant l’arrêt</translation>
    </message>
    <message>
        <source>Shows the delay in minutes or in seconds</source>
        <translation>Affiche le délai en minutes ou en secondes</translation>
    </message>
    <message>
        <source>Delay in minutes</source>
        <translation>Délai en minutes</translation>
    </message>
    <message>
        <source>&amp;Quit applications by force</source>
        <translation>&amp;Forcer la fermeture des applications</translation>
    </message>
    <message>
        <source>Ends applications that do not quit by themselves; unsaved changes in them are lost</source>
        <translation>Ferme les applications qui ne quittent pas d’elles-mêmes&#xa0;; leurs modifications non enregistrées sont perdues</translation>
    </message>
    <message>
        <source>Unsaved changes in them are lost.</source>
        <translation>Leurs modifications non enregistrées sont perdues.</translation>
    </message>
    <message>
        <source>Test the shutdown</source>
        <translation>Tester l’arrêt</translation>
    </message>
    <message>
        <source>Test under way</source>
        <translation>Test en cours</translation>
    </message>
    <message>
        <source>&amp;Test Shutdown</source>
        <translation>&amp;Tester l’arrêt</translation>
    </message>
    <message>
        <source>Plays the shutdown sequence without shutting down</source>
        <translation>Déroule la séquence d’arrêt sans éteindre</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>&amp;Warn me before shutting down</source>
        <translation>M’a&amp;vertir avant l’arrêt</translation>
    </message>
    <message>
        <source>Shows a message with a countdown when the power has failed</source>
        <translation>Affiche un message avec compte à rebours après une coupure de courant</translation>
    </message>
    <message>
        <source>A message counts down to the shutdown.</source>
        <translation>Un message affiche le compte à rebours.</translation>
    </message>
    <message>
        <source>The message hides itself</source>
        <translation>Le message se masque de lui-même</translation>
    </message>
    <message>
        <source>Shown as the agent has it; it is set in the shutdown message itself.</source>
        <translation>Affiché tel que l’agent l’a enregistré&#xa0;; se règle dans le message d’arrêt lui-même.</translation>
    </message>
    <message>
        <source>Set in the message itself. The countdown goes on when it is hidden.</source>
        <translation>Se règle dans le message lui-même. Le compte à rebours continue quand il est masqué.</translation>
    </message>
    <message>
        <source>&amp;Notify me when the power fails</source>
        <translation>M’i&amp;nformer en cas de coupure de courant</translation>
    </message>
    <message>
        <source>Shows a desktop notification at the moment of a power failure</source>
        <translation>Affiche une notification au moment de la coupure de courant</translation>
    </message>
    <message>
        <source>A desktop notification at the moment of the failure.</source>
        <translation>Une notification du bureau au moment de la coupure.</translation>
    </message>
    <message>
        <source>Tell me when a device is &amp;connected</source>
        <translation>Signaler la &amp;connexion d’un appareil</translation>
    </message>
    <message>
        <source>Shows a message when a power device is plugged in</source>
        <translation>Affiche un message quand un appareil d’alimentation est branché</translation>
    </message>
    <message>
        <source>The message goes away by itself.</source>
        <translation>Le message disparaît de lui-même.</translation>
    </message>
    <message>
        <source>Startup and status icon</source>
        <translation>Démarrage et icône d’état</translation>
    </message>
    <message>
        <source>&amp;Launch Zarvil at login</source>
        <translation>Lancer Zarvil à l’&amp;ouverture de session</translation>
    </message>
    <message>
        <source>Starts the agent whenever you log in</source>
        <translation>Démarre l’agent à chaque ouverture de session</translation>
    </message>
    <message>
        <source>Protection starts as soon as you log in.</source>
        <translation>La protection commence dès l’ouverture de session.</translation>
    </message>
    <message>
        <source>Show Zarvil &amp;in the status bar</source>
        <translation>Afficher Zarvil dans la &amp;barre d’état</translation>
    </message>
    <message>
        <source>Shows an icon of the agent in the status bar</source>
        <translation>Affiche une icône de l’agent dans la barre d’état</translation>
    </message>
    <message>
        <source>&amp;Monochrome icon</source>
        <translation>Icône &amp;monochrome</translation>
    </message>
    <message>
        <source>Draws the status-bar icon in one color</source>
        <translation>Dessine l’icône de la barre d’état en une seule couleur</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>There is no preference pane in &quot;%1&quot; and none in &quot;%2&quot;.</source>
        <translation>Il n’y a aucun panneau de préférences dans «&#xa0;%1&#xa0;» ni dans «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>The preferences are open already, but their window does not answer.</source>
        <translation>Les préférences sont déjà ouvertes, mais leur fenêtre ne répond pas.</translation>
    </message>
</context>
<context>
    <name>MainBundle</name>
    <message numerus="yes">
        <source>%n devices watched</source>
        <translation>
            <numerusform>%n appareil surveillé</numerusform>
            <numerusform>%n appareils surveillés</numerusform>
        </translation>
    </message>
    <message>
        <source>A test is running. Nothing is shut down.</source>
        <translation>Un test est en cours. Rien n’est éteint.</translation>
    </message>
    <message>
        <source>Administrator rights: checking</source>
        <translation>Droits d’administrateur&#xa0;: vérification</translation>
    </message>
    <message>
        <source>Administrator rights: locked</source>
        <translation>Droits d’administrateur&#xa0;: verrouillés</translation>
    </message>
    <message>
        <source>Administrator rights: unlocked</source>
        <translation>Droits d’administrateur&#xa0;: déverrouillés</translation>
    </message>
    <message>
        <source>Can&apos;t execute empty script!</source>
        <translation>Impossible d’exécuter un script vide&#xa0;!</translation>
    </message>
    <message>
        <source>Cannot be changed while the warning hides itself.</source>
        <translation>Non modifiable tant que l’avertissement se masque de lui-même.</translation>
    </message>
    <message>
        <source>Connect a power supply with a data cable. It appears here by itself.</source>
        <translation>Branchez une alimentation avec un câble de données. Elle apparaît ici d’elle-même.</translation>
    </message>
    <message>
        <source>Connection timeout! Check your Internet connection!</source>
        <translation>Délai de connexion dépassé&#xa0;! Vérifiez votre connexion Internet&#xa0;!</translation>
    </message>
    <message>
        <source>Delete this script and its file at once. This cannot be undone.</source>
        <translation>Supprime aussitôt ce script et son fichier. Cette action est irréversible.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Edit the title and the text in place.</source>
        <translation>Modifier sur place le titre et le texte.</translation>
    </message>
    <message>
        <source>Edit “%1”</source>
        <translation>Modifier «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Editing. Done saves the title and the text.</source>
        <translation>Modification en cours. «&#xa0;Terminé&#xa0;» enregistre le titre et le texte.</translation>
    </message>
    <message>
        <source>Failed with exit status %1: %2</source>
        <translation>Échec avec le code de sortie %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Invalid settings! Check your User ID and Device ID(if any)</source>
        <translation>Réglages non valides&#xa0;! Vérifiez l’ID utilisateur et l’ID de l’appareil (s’il y en a un)</translation>
    </message>
    <message>
        <source>Launch it to see your devices and change the settings.</source>
        <translation>Lancez-le pour voir vos appareils et modifier les réglages.</translation>
    </message>
    <message>
        <source>Launching it…</source>
        <translation>Lancement…</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Verrouillé</translation>
    </message>
    <message>
        <source>Looking for Zarvil…</source>
        <translation>Recherche de Zarvil…</translation>
    </message>
    <message>
        <source>Minutes from the power failure. Return stores the number.</source>
        <translation>Minutes à partir de la coupure. La touche Entrée enregistre le nombre.</translation>
    </message>
    <message>
        <source>No device connected</source>
        <translation>Aucun appareil connecté</translation>
    </message>
    <message>
        <source>No device is watched, so a power failure goes unnoticed.</source>
        <translation>Aucun appareil n’est surveillé&#xa0;: une coupure passerait inaperçue.</translation>
    </message>
    <message>
        <source>No device watched</source>
        <translation>Aucun appareil surveillé</translation>
    </message>
    <message>
        <source>No devices to show</source>
        <translation>Aucun appareil à afficher</translation>
    </message>
    <message>
        <source>No scripts to show</source>
        <translation>Aucun script à afficher</translation>
    </message>
    <message>
        <source>No scripts yet</source>
        <translation>Aucun script pour l’instant</translation>
    </message>
    <message>
        <source>No serial number</source>
        <translation>Pas de numéro de série</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Non enregistré</translation>
    </message>
    <message>
        <source>Not stored while Zarvil is not running.</source>
        <translation>Non enregistré tant que Zarvil n’est pas lancé.</translation>
    </message>
    <message>
        <source>Nothing happens when the power fails.</source>
        <translation>Rien ne se passe en cas de coupure de courant.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Only a number of 0 or more is taken, such as %1. The delay stays as it was.</source>
        <translation>Seul un nombre supérieur ou égal à 0 est accepté, par exemple %1. Le délai reste inchangé.</translation>
    </message>
    <message>
        <source>Plays the whole sequence without shutting down.</source>
        <translation>Déroule toute la séquence sans éteindre.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Remove “%1”</source>
        <translation>Supprimer «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Exécuter</translation>
    </message>
    <message>
        <source>Run this script once, now. The window waits until it has ended.</source>
        <translation>Exécute ce script une fois, maintenant. La fenêtre attend qu’il soit terminé.</translation>
    </message>
    <message>
        <source>Run “%1”</source>
        <translation>Exécuter «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>En cours…</translation>
    </message>
    <message>
        <source>Save the title and the text.</source>
        <translation>Enregistrer le titre et le texte.</translation>
    </message>
    <message>
        <source>Save “%1”</source>
        <translation>Enregistrer «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Script “%1”</source>
        <translation>Script «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Scripts are off</source>
        <translation>Les scripts sont désactivés</translation>
    </message>
    <message>
        <source>Seconds from the power failure. Return stores the number.</source>
        <translation>Secondes à partir de la coupure. La touche Entrée enregistre le nombre.</translation>
    </message>
    <message>
        <source>Settings are valid!</source>
        <translation>Les réglages sont valides&#xa0;!</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Stored with Return, once it is complete and ends in two to four letters.</source>
        <translation>Enregistrée par la touche Entrée, dès qu’elle est complète et se termine par deux à quatre lettres.</translation>
    </message>
    <message>
        <source>Switch the protection on to test it.</source>
        <translation>Activez la protection pour la tester.</translation>
    </message>
    <message>
        <source>Text of the script</source>
        <translation>Texte du script</translation>
    </message>
    <message>
        <source>The operation could not be completed.</source>
        <translation>L’opération n’a pas pu être terminée.</translation>
    </message>
    <message>
        <source>The session bus does not answer, so Zarvil cannot be reached.</source>
        <translation>Le bus de session ne répond pas&#xa0;: Zarvil est injoignable.</translation>
    </message>
    <message>
        <source>The test has ended. Nothing was shut down.</source>
        <translation>Le test est terminé. Rien n’a été éteint.</translation>
    </message>
    <message>
        <source>There is a script of this title already.</source>
        <translation>Il existe déjà un script portant ce titre.</translation>
    </message>
    <message>
        <source>They are kept. Switch them on to see them.</source>
        <translation>Ils sont conservés. Activez-les pour les voir.</translation>
    </message>
    <message>
        <source>This script is empty. Edit it before you run it.</source>
        <translation>Ce script est vide. Modifiez-le avant de l’exécuter.</translation>
    </message>
    <message>
        <source>This script is too large to be edited here (%1). Its text stays as it is; its title can be changed.</source>
        <translation>Ce script est trop grand pour être modifié ici (%1). Son texte reste tel quel&#xa0;; son titre peut être modifié.</translation>
    </message>
    <message>
        <source>This system has no authority that could unlock it.</source>
        <translation>Ce système n’a aucune autorité qui pourrait le déverrouiller.</translation>
    </message>
    <message>
        <source>Tick a connected device. Until then a power failure goes unnoticed.</source>
        <translation>Cochez un appareil connecté. D’ici là, une coupure passe inaperçue.</translation>
    </message>
    <message>
        <source>Title of the script</source>
        <translation>Titre du script</translation>
    </message>
    <message>
        <source>Type a title above to create the first one.</source>
        <translation>Saisissez un titre ci-dessus pour créer le premier.</translation>
    </message>
    <message>
        <source>Unknow error!</source>
        <translation>Erreur inconnue&#xa0;!</translation>
    </message>
    <message>
        <source>Unlocked</source>
        <translation>Déverrouillé</translation>
    </message>
    <message>
        <source>Unnamed device</source>
        <translation>Appareil sans nom</translation>
    </message>
    <message>
        <source>Your devices are listed here while Zarvil runs.</source>
        <translation>Vos appareils sont affichés ici quand Zarvil est lancé.</translation>
    </message>
    <message>
        <source>Your scripts are listed here while Zarvil runs.</source>
        <translation>Vos scripts sont affichés ici quand Zarvil est lancé.</translation>
    </message>
    <message>
        <source>Zarvil is not installed.</source>
        <translation>Zarvil n’est pas installé.</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>minutes</translation>
    </message>
    <message>
        <source>not needed for any setting here</source>
        <translation>inutiles pour les réglages de ce panneau</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>secondes</translation>
    </message>
    <message numerus="yes">
        <source>shuts down after %n minutes</source>
        <translation>
            <numerusform>arrêt après %n minute</numerusform>
            <numerusform>arrêt après %n minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>shuts down after %n seconds</source>
        <translation>
            <numerusform>arrêt après %n seconde</numerusform>
            <numerusform>arrêt après %n secondes</numerusform>
        </translation>
    </message>
    <message>
        <source>shuts down at once</source>
        <translation>arrêt immédiat</translation>
    </message>
    <message>
        <source>The script “%1” is running.</source>
        <translation>Le script «&#xa0;%1&#xa0;» est en cours d’exécution.</translation>
    </message>
    <message>
        <source>Administrator rights</source>
        <translation>Droits d’administrateur</translation>
    </message>
    <message>
        <source>Alerts by e-mail</source>
        <translation>Alertes par courriel</translation>
    </message>
    <message>
        <source>Alerts through Pushover</source>
        <translation>Alertes par Pushover</translation>
    </message>
    <message>
        <source>An alert reaches you only if your router and modem still have power, so connect them to the power supply too.</source>
        <translation>Une alerte ne vous parvient que si votre routeur et votre modem sont encore alimentés&#xa0;: branchez-les aussi sur l’alimentation de secours.</translation>
    </message>
    <message>
        <source>Applications that ask whether to save can hold a shutdown up until the battery is empty. By force they are ended without asking, and what was not saved is lost.</source>
        <translation>Les applications qui demandent s’il faut enregistrer peuvent retarder l’arrêt jusqu’à l’épuisement de la batterie. La fermeture forcée se fait sans rien demander, et ce qui n’est pas enregistré est perdu.</translation>
    </message>
    <message>
        <source>Asks first, then removes Zarvil, this pane and the settings. Your scripts are kept.</source>
        <translation>Demande confirmation, puis supprime Zarvil, ce panneau et les réglages. Vos scripts sont conservés.</translation>
    </message>
    <message>
        <source>Choosing devices</source>
        <translation>Choisir les appareils</translation>
    </message>
    <message>
        <source>Connect a power supply with its data cable. It appears under Connected. Tick it, and it moves to Watched. Untick it, and Zarvil no longer watches it.</source>
        <translation>Branchez une alimentation avec son câble de données. Elle apparaît sous «&#xa0;Connectés&#xa0;». Cochez-la&#xa0;: elle passe sous «&#xa0;Surveillés&#xa0;». Décochez-la&#xa0;: Zarvil ne la surveille plus.</translation>
    </message>
    <message>
        <source>Devices are listed while Zarvil runs. Launch it with the button above the tabs. A power supply without a data cable cannot be watched.</source>
        <translation>Les appareils sont affichés quand Zarvil est lancé. Lancez-le avec le bouton au-dessus des onglets. Une alimentation sans câble de données ne peut pas être surveillée.</translation>
    </message>
    <message>
        <source>Each script is a file of its own in the folder %1, named after its title with the ending .zvscript. Copy that folder to keep them safe.</source>
        <translation>Chaque script est un fichier distinct dans le dossier %1, qui porte son titre et l’extension .zvscript. Copiez ce dossier pour les sauvegarder.</translation>
    </message>
    <message>
        <source>Ends applications that do not quit by themselves, so that none of them can hold the shutdown up. What was not saved in them is lost.</source>
        <translation>Ferme les applications qui ne quittent pas d’elles-mêmes, pour qu’aucune ne retarde l’arrêt. Ce qui n’y est pas enregistré est perdu.</translation>
    </message>
    <message>
        <source>Goes through the shutdown as if the power had failed, and stops before the computer would be shut down.</source>
        <translation>Déroule l’arrêt comme si le courant était coupé et s’interrompt avant d’éteindre l’ordinateur.</translation>
    </message>
    <message>
        <source>Help: About</source>
        <translation>Aide&#xa0;: À propos</translation>
    </message>
    <message>
        <source>Help: Alerts</source>
        <translation>Aide&#xa0;: Alertes</translation>
    </message>
    <message>
        <source>Help: Devices</source>
        <translation>Aide&#xa0;: Appareils</translation>
    </message>
    <message>
        <source>Help: General</source>
        <translation>Aide&#xa0;: Général</translation>
    </message>
    <message>
        <source>Help: Scripts</source>
        <translation>Aide&#xa0;: Scripts</translation>
    </message>
    <message>
        <source>If no device appears</source>
        <translation>Si aucun appareil n’apparaît</translation>
    </message>
    <message>
        <source>If the protection is off</source>
        <translation>Si la protection est désactivée</translation>
    </message>
    <message>
        <source>Keep the network up</source>
        <translation>Garder le réseau en service</translation>
    </message>
    <message>
        <source>New versions</source>
        <translation>Nouvelles versions</translation>
    </message>
    <message>
        <source>Pushover is a service that brings messages to your phone. You need an account there; its user ID goes into the first field. With a device ID only that device gets the message, otherwise all of yours.</source>
        <translation>Pushover est un service qui transmet des messages à votre téléphone. Il vous faut y avoir un compte&#xa0;; son ID utilisateur va dans le premier champ. Avec un ID d’appareil, seul celui-ci reçoit le message&#xa0;; sinon, tous les vôtres.</translation>
    </message>
    <message>
        <source>Quitting applications by force</source>
        <translation>Forcer la fermeture des applications</translation>
    </message>
    <message>
        <source>Removes Zarvil, this pane and the settings, after it has asked you. Your scripts stay in the folder %1.</source>
        <translation>Supprime Zarvil, ce panneau et les réglages, après confirmation. Vos scripts restent dans le dossier %1.</translation>
    </message>
    <message>
        <source>Run starts the script at once, without a power failure, and does all that it says. If it fails, its exit status and its last error are shown.</source>
        <translation>«&#xa0;Exécuter&#xa0;» lance le script aussitôt, sans coupure de courant, et fait tout ce qu’il contient. S’il échoue, son code de sortie et sa dernière erreur sont affichés.</translation>
    </message>
    <message>
        <source>Send a Test sends a message at once and tells you whether it went out. IDs that Pushover does not know are cleared and have to be typed again.</source>
        <translation>«&#xa0;Envoyer un test&#xa0;» envoie aussitôt un message et vous indique s’il est parti. Les ID que Pushover ne connaît pas sont effacés et doivent être saisis de nouveau.</translation>
    </message>
    <message>
        <source>Shows the delay in minutes or in seconds. The delay itself stays the same.</source>
        <translation>Affiche le délai en minutes ou en secondes. Le délai lui-même reste le même.</translation>
    </message>
    <message>
        <source>Shows whether the warning hides itself. You choose that in the warning, so it cannot be changed here.</source>
        <translation>Indique si l’avertissement se masque de lui-même. Cela se choisit dans l’avertissement et ne peut donc pas être modifié ici.</translation>
    </message>
    <message>
        <source>Shows whether your account may administer this computer. No setting here needs the lock to be open.</source>
        <translation>Indique si votre compte peut administrer cet ordinateur. Aucun réglage ici n’exige que le verrou soit ouvert.</translation>
    </message>
    <message>
        <source>Starts Zarvil, the program that watches the power, or ends it. While it does not run, nothing is watched and no setting can be changed.</source>
        <translation>Lance ou ferme Zarvil, le programme qui surveille l’alimentation. Tant qu’il n’est pas lancé, rien n’est surveillé et aucun réglage ne peut être modifié.</translation>
    </message>
    <message>
        <source>Switches the protection. While it is off, Zarvil does nothing when the power fails. The choice takes effect at once.</source>
        <translation>Active ou désactive la protection. Tant qu’elle est désactivée, Zarvil ne fait rien en cas de coupure de courant. Le choix prend effet aussitôt.</translation>
    </message>
    <message>
        <source>The delay</source>
        <translation>Le délai</translation>
    </message>
    <message>
        <source>The key of your account at Pushover. You find it on Pushover&apos;s page once you have logged in.</source>
        <translation>La clé de votre compte Pushover. Vous la trouvez sur la page de Pushover une fois connecté.</translation>
    </message>
    <message>
        <source>The lock below the tabs shows whether your account may administer this computer. No setting here needs it to be open.</source>
        <translation>Le verrou sous les onglets indique si votre compte peut administrer cet ordinateur. Aucun réglage ici n’exige qu’il soit ouvert.</translation>
    </message>
    <message>
        <source>The log</source>
        <translation>Le journal</translation>
    </message>
    <message>
        <source>The name of one of your devices at Pushover. Leave it empty, and all of them get the message.</source>
        <translation>Le nom de l’un de vos appareils chez Pushover. Laissez vide et tous reçoivent le message.</translation>
    </message>
    <message>
        <source>The time between the power failure and the shutdown. Numbers of 0 or more are stored with Return; anything else leaves the last value as it is.</source>
        <translation>Le temps entre la coupure de courant et l’arrêt. Les nombres supérieurs ou égaux à 0 sont enregistrés par la touche Entrée&#xa0;; toute autre saisie laisse la dernière valeur inchangée.</translation>
    </message>
    <message>
        <source>The title of a new script. It becomes the name of the script&apos;s file, so that no two scripts can have the same one.</source>
        <translation>Le titre d’un nouveau script. Il devient le nom du fichier, si bien que deux scripts ne peuvent pas porter le même.</translation>
    </message>
    <message>
        <source>This much time passes between the power failure and the shutdown. Choose seconds or minutes with the switch, type a number and press Return. With 0 the computer is shut down at once.</source>
        <translation>C’est le temps qui s’écoule entre la coupure de courant et l’arrêt. Choisissez secondes ou minutes avec l’interrupteur, saisissez un nombre et appuyez sur Entrée. Avec 0, l’ordinateur s’éteint aussitôt.</translation>
    </message>
    <message>
        <source>Trying Pushover out</source>
        <translation>Essayer Pushover</translation>
    </message>
    <message>
        <source>Trying a script out</source>
        <translation>Essayer un script</translation>
    </message>
    <message>
        <source>Type a title, press Create, then Edit. A text that begins with #! is run by the program named in that line, any other by the shell. Done saves it.</source>
        <translation>Saisissez un titre, appuyez sur «&#xa0;Créer&#xa0;», puis sur «&#xa0;Modifier&#xa0;». Un texte qui commence par #! est exécuté par le programme nommé sur cette ligne, tout autre par le shell. «&#xa0;Terminé&#xa0;» l’enregistre.</translation>
    </message>
    <message>
        <source>Uninstalling Zarvil</source>
        <translation>Désinstaller Zarvil</translation>
    </message>
    <message>
        <source>What a test does</source>
        <translation>Ce que fait un test</translation>
    </message>
    <message>
        <source>What happens when the power fails</source>
        <translation>Ce qui se passe en cas de coupure de courant</translation>
    </message>
    <message>
        <source>What scripts are for</source>
        <translation>À quoi servent les scripts</translation>
    </message>
    <message>
        <source>When a watched device reports a power failure, Zarvil warns you, runs your scripts, sends the alerts that you have chosen and, after the delay, shuts the computer down. You choose each of these in the other tabs.</source>
        <translation>Quand un appareil surveillé signale une coupure de courant, Zarvil vous avertit, exécute vos scripts, envoie les alertes choisies et, une fois le délai écoulé, éteint l’ordinateur. Tout cela se règle dans les autres onglets.</translation>
    </message>
    <message>
        <source>Where scripts lie</source>
        <translation>Où se trouvent les scripts</translation>
    </message>
    <message>
        <source>Writing a script</source>
        <translation>Écrire un script</translation>
    </message>
    <message>
        <source>Zarvil goes on running and shows your devices, but does nothing when the power fails. Switch it on with the switch at the top.</source>
        <translation>Zarvil continue de fonctionner et affiche vos appareils, mais ne fait rien en cas de coupure de courant. Activez la protection avec l’interrupteur en haut.</translation>
    </message>
    <message>
        <source>Zarvil goes through the shutdown as if the power had failed, and stops before the computer would be shut down. The protection must be on for a test.</source>
        <translation>Zarvil déroule l’arrêt comme si le courant était coupé et s’interrompt avant d’éteindre l’ordinateur. La protection doit être activée pour un test.</translation>
    </message>
    <message>
        <source>Zarvil looks for new versions itself, at your word or by itself, and tells you what it has found.</source>
        <translation>Zarvil recherche lui-même les nouvelles versions, à votre demande ou automatiquement, et vous indique ce qu’il a trouvé.</translation>
    </message>
    <message>
        <source>Zarvil runs them when the power fails, before it shuts the computer down: to save your work, for example, or to stop a server in order.</source>
        <translation>Zarvil les exécute en cas de coupure de courant, avant d’éteindre l’ordinateur&#xa0;: par exemple pour enregistrer votre travail ou arrêter proprement un serveur.</translation>
    </message>
    <message>
        <source>Zarvil sends a message to the address when the power fails. Type the whole address and press Return; an incomplete one is not stored.</source>
        <translation>Zarvil envoie un message à cette adresse en cas de coupure de courant. Saisissez l’adresse entière et appuyez sur Entrée&#xa0;; une adresse incomplète n’est pas enregistrée.</translation>
    </message>
    <message>
        <source>Zarvil writes down what it does and when: power failures, shutdowns and alerts. Look there first if something went otherwise than you expected.</source>
        <translation>Zarvil note ce qu’il fait et quand&#xa0;: coupures, arrêts et alertes. Consultez-le d’abord si quelque chose ne s’est pas passé comme prévu.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Cancel editing “%1”</source>
        <translation>Annuler la modification de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>End editing without saving. Esc leads here.</source>
        <translation>Termine la modification sans enregistrer. Échap fait de même.</translation>
    </message>
    <message>
        <source>Connected: %1</source>
        <translation>Connecté&#xa0;: %1</translation>
    </message>
    <message>
        <source>Disconnected: %1</source>
        <translation>Déconnecté&#xa0;: %1</translation>
    </message>
    <message>
        <source>Could not create the folder “%1”: %2.</source>
        <translation>Impossible de créer le dossier «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Could not prepare the script for running: %1.</source>
        <translation>Impossible de préparer l’exécution du script&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Could not remove “%1”: %2.</source>
        <translation>Impossible de supprimer «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Could not save the file “%1”: %2.</source>
        <translation>Impossible d’enregistrer le fichier «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Could not start the script&apos;s interpreter “%1”: %2.</source>
        <translation>Impossible de lancer l’interpréteur du script «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Min</translation>
    </message>
    <message>
        <source>Sec</source>
        <translation>Sec</translation>
    </message>
    <message>
        <source>Signal %1 (%2) ended the script.</source>
        <translation>Le signal %1 (%2) a mis fin au script.</translation>
    </message>
    <message>
        <source>Signal %1 ended the script.</source>
        <translation>Le signal %1 a mis fin au script.</translation>
    </message>
    <message>
        <source>The script contains a NUL character, so it cannot be run.</source>
        <translation>Le script contient un caractère NUL et ne peut donc pas être exécuté.</translation>
    </message>
    <message>
        <source>The script failed with exit status %1 and gave no reason.</source>
        <translation>Le script a échoué avec le code de sortie %1 sans donner de raison.</translation>
    </message>
    <message>
        <source>The script has ended, but its result got lost.</source>
        <translation>Le script est terminé, mais son résultat s’est perdu.</translation>
    </message>
    <message>
        <source>a part of its path is not a folder</source>
        <translation>une partie du chemin n’est pas un dossier</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>it would be larger than files may be here</source>
        <translation>il dépasserait la taille permise ici</translation>
    </message>
    <message>
        <source>its name contains a character that is not allowed</source>
        <translation>le nom contient un caractère interdit</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>le nom est trop long</translation>
    </message>
    <message>
        <source>its symbolic links lead in a circle</source>
        <translation>les liens symboliques tournent en rond</translation>
    </message>
    <message>
        <source>something of that name is already there</source>
        <translation>quelque chose porte déjà ce nom</translation>
    </message>
    <message>
        <source>the disk can only be read</source>
        <translation>le disque est en lecture seule</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>le disque est plein</translation>
    </message>
    <message>
        <source>the disk reported a fault</source>
        <translation>le disque a signalé une erreur</translation>
    </message>
    <message>
        <source>there is no such file or folder</source>
        <translation>ce fichier ou dossier n’existe pas</translation>
    </message>
    <message>
        <source>too many files are open</source>
        <translation>trop de fichiers sont ouverts</translation>
    </message>
    <message>
        <source>you do not have permission</source>
        <translation>vous n’avez pas la permission</translation>
    </message>
    <message>
        <source>your share of the disk is used up</source>
        <translation>votre quota de disque est épuisé</translation>
    </message>
    <message>
        <source>Ended without an error.</source>
        <translation>Terminé sans erreur.</translation>
    </message>
    <message>
        <source>Administrator rights: %1 missing</source>
        <translation>Droits d’administrateur&#xa0;: %1 absent</translation>
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
        <translation>La protection est activée</translation>
    </message>
    <message>
        <source>Protection is off</source>
        <translation>La protection est désactivée</translation>
    </message>
    <message>
        <source>Looking for Zarvil</source>
        <translation>Recherche de Zarvil</translation>
    </message>
    <message>
        <source>Choose devices</source>
        <translation>Choisir les appareils</translation>
    </message>
    <message>
        <source>Shows the tab where you choose the devices to watch</source>
        <translation>Affiche l’onglet où choisir les appareils à surveiller</translation>
    </message>
    <message>
        <source>Switches the power-failure protection on or off</source>
        <translation>Active ou désactive la protection contre les coupures de courant</translation>
    </message>
    <message>
        <source>Power protection</source>
        <translation>Protection contre les coupures</translation>
    </message>
    <message>
        <source>Launching Zarvil</source>
        <translation>Lancement de Zarvil</translation>
    </message>
    <message>
        <source>Zarvil is running</source>
        <translation>Zarvil est en cours d’exécution</translation>
    </message>
    <message>
        <source>Zarvil is not running</source>
        <translation>Zarvil n’est pas lancé</translation>
    </message>
    <message>
        <source>Launch Zarvil</source>
        <translation>Lancer Zarvil</translation>
    </message>
    <message>
        <source>Starts or quits the background agent that watches the power</source>
        <translation>Démarre ou quitte l’agent qui surveille l’alimentation en arrière-plan</translation>
    </message>
    <message>
        <source>&amp;Devices</source>
        <translation>&amp;Appareils</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Général</translation>
    </message>
    <message>
        <source>&amp;Alerts</source>
        <translation>A&amp;lertes</translation>
    </message>
    <message>
        <source>&amp;Scripts</source>
        <translation>&amp;Scripts</translation>
    </message>
    <message>
        <source>A&amp;bout</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>Administrator rights</source>
        <translation>Droits d’administrateur</translation>
    </message>
    <message>
        <source>Shows whether this account may administer the computer. No setting of this pane needs the lock to be open.</source>
        <translation>Indique si ce compte peut administrer l’ordinateur. Aucun réglage de ce panneau n’exige que le verrou soit ouvert.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Explains this tab (F1)</source>
        <translation>Explique cet onglet (F1)</translation>
    </message>
    <message>
        <source>o</source>
        <comment>The letter of the title “Protection is on” or “off” that is its access key; - for none</comment>
        <translation>i</translation>
    </message>
</context>
<context>
    <name>PolkitAuthorization</name>
    <message>
        <source>Administrator rights cannot be checked: the authorization service (polkit) is not available.</source>
        <translation>Les droits d’administrateur ne peuvent pas être vérifiés&#xa0;: le service d’autorisation (polkit) n’est pas disponible.</translation>
    </message>
    <message>
        <source>The authentication was cancelled.</source>
        <translation>L’authentification a été annulée.</translation>
    </message>
    <message>
        <source>Administrator rights cannot be checked: Zarvil&apos;s policy for the authorization service (polkit) is not installed.</source>
        <translation>Les droits d’administrateur ne peuvent pas être vérifiés&#xa0;: la règle de Zarvil pour le service d’autorisation (polkit) n’est pas installée.</translation>
    </message>
    <message>
        <source>Administrator rights cannot be checked: the authorization service (polkit) has failed.</source>
        <translation>Les droits d’administrateur ne peuvent pas être vérifiés&#xa0;: le service d’autorisation (polkit) a échoué.</translation>
    </message>
    <message>
        <source>No authentication agent is running that could ask for an administrator&apos;s password.</source>
        <translation>Aucun agent d’authentification en cours d’exécution ne peut demander le mot de passe d’un administrateur.</translation>
    </message>
    <message>
        <source>An administrator&apos;s password is needed.</source>
        <translation>Le mot de passe d’un administrateur est nécessaire.</translation>
    </message>
    <message>
        <source>The authentication has failed.</source>
        <translation>L’authentification a échoué.</translation>
    </message>
    <message>
        <source>You do not have administrator rights.</source>
        <translation>Vous n’avez pas les droits d’administrateur.</translation>
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
        <translation>E&amp;xécuter ces scripts en cas de coupure de courant</translation>
    </message>
    <message>
        <source>The agent runs the scripts before the shutdown</source>
        <translation>L’agent exécute les scripts avant l’arrêt</translation>
    </message>
    <message>
        <source>Zarvil runs them before it shuts the computer down.</source>
        <translation>Zarvil les exécute avant d’éteindre l’ordinateur.</translation>
    </message>
    <message>
        <source>Ne&amp;w script</source>
        <translation>&amp;Nouveau script</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Title of the new script</source>
        <translation>Titre du nouveau script</translation>
    </message>
    <message>
        <source>Title of the new script; it is also the name of its file</source>
        <translation>Titre du nouveau script&#xa0;; c’est aussi le nom de son fichier</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>&amp;Créer</translation>
    </message>
    <message>
        <source>Creates an empty script of this title</source>
        <translation>Crée un script vide portant ce titre</translation>
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
        <translation>Désinstaller Zarvil</translation>
    </message>
    <message>
        <source>Uninstall Zarvil?</source>
        <translation>Désinstaller Zarvil&#xa0;?</translation>
    </message>
    <message>
        <source>Zarvil quits, and these are removed:</source>
        <translation>Zarvil se ferme, et ces éléments sont supprimés&#xa0;:</translation>
    </message>
    <message>
        <source>•  the Zarvil application
•  this pane
•  the settings of Zarvil</source>
        <translation>•  l’application Zarvil
•  ce panneau
•  les réglages de Zarvil</translation>
    </message>
    <message>
        <source>Your scripts are kept. This window closes at once, and none of it can be undone.</source>
        <translation>Vos scripts sont conservés. Cette fenêtre se ferme aussitôt, et rien de cela ne peut être annulé.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Désinstaller</translation>
    </message>
</context>
<context>
    <name>zarvil::BusConnection</name>
    <message>
        <source>The message bus does not answer</source>
        <translation>Le bus de messages ne répond pas</translation>
    </message>
    <message>
        <source>The connection to the message bus was lost</source>
        <translation>La connexion au bus de messages a été perdue</translation>
    </message>
</context>
<context>
    <name>zarvil::host::HostWindow</name>
    <message>
        <source>Preference panes</source>
        <translation>Panneaux de préférences</translation>
    </message>
    <message>
        <source>Broken pane</source>
        <translation>Panneau endommagé</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
</context>
<context>
    <name>zarvil::qt::HelpWindow</name>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>What Is &amp;This?</source>
        <translation>&amp;Qu’est-ce que c’est&#xa0;?</translation>
    </message>
    <message>
        <source>Explains the control of the window that you click next</source>
        <translation>Explique l’élément de la fenêtre sur lequel vous cliquez ensuite</translation>
    </message>
</context>
</TS>
