<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Keep your data safe and synced at all times</source>
        <translation>Ihre Daten jederzeit sicher und synchron</translation>
    </message>
    <message>
        <source>The quota on the NAS has been used up. Free up some space or ask the administrator to raise your quota, and then select the folder again.</source>
        <translation>Das Kontingent auf dem NAS ist aufgebraucht. Geben Sie Speicherplatz frei oder bitten Sie den Administrator, Ihr Kontingent zu erhöhen, und wählen Sie den Ordner dann erneut aus.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-user license agreement</source>
        <translation>[DlgTitleFont]Endbenutzer-Lizenzvertrag</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Einrichtungsmodus wählen</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Bereit zur Installation von [ProductName]</translation>
    </message>
    <message>
        <source>This shared folder has been disabled for your account. Contact the administrator of the NAS to regain access.</source>
        <translation>Dieser freigegebene Ordner wurde für Ihr Konto deaktiviert. Wenden Sie sich an den Administrator des NAS, um wieder Zugriff zu erhalten.</translation>
    </message>
    <message>
        <source>Merge the folders</source>
        <translation>Ordner zusammenführen</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>Freigabelink</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Synchronisierungsfehler</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Klicken Sie auf „Fertigstellen“, um den Setup-Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>Set a start date for this link</source>
        <translation>Startdatum für diesen Link festlegen</translation>
    </message>
    <message>
        <source>The local sync database cannot be read. Restart Quillmere Drive. If the problem persists, link this computer again.</source>
        <translation>Die lokale Synchronisierungsdatenbank kann nicht gelesen werden. Starten Sie Quillmere Drive neu. Wenn das Problem weiterhin besteht, verknüpfen Sie diesen Computer erneut mit dem NAS.</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Zu synchronisierende Ordner auswählen</translation>
    </message>
    <message>
        <source>Every file you put in a synced folder is copied to your NAS automatically. Just save your work and let Quillmere Drive do the rest.</source>
        <translation>Jede Datei, die Sie in einem synchronisierten Ordner ablegen, wird automatisch auf Ihr NAS kopiert. Speichern Sie einfach Ihre Arbeit – den Rest erledigt Quillmere Drive.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>Wieder&amp;holen</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Diese Ordner von der Synchronisierung ausschließen</translation>
    </message>
    <message>
        <source>The local folder of this sync task cannot be found. It may have been moved, renamed, or deleted.</source>
        <translation>Der lokale Ordner dieser Synchronisierungsaufgabe wurde nicht gefunden. Möglicherweise wurde er verschoben, umbenannt oder gelöscht.</translation>
    </message>
    <message>
        <source>Quillmere Drive is starting...</source>
        <translation>Quillmere Drive wird gestartet ...</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Einstellungen werden übernommen ...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Make sure that Quillmere Drive Server is installed and running on your NAS before you continue.</source>
        <translation>Vergewissern Sie sich, dass Quillmere Drive Server auf Ihrem NAS installiert ist und ausgeführt wird, bevor Sie fortfahren.</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Bitte starten Sie %1 neu, um die neuen Spracheinstellungen zu übernehmen.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Wird heruntergeladen ...</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versionen stimmen nicht überein</translation>
    </message>
    <message>
        <source>The icon in the system tray shows the sync status at a glance. Click it to pause syncing, view recent changes, or open the settings.</source>
        <translation>Das Symbol im Infobereich zeigt den Synchronisierungsstatus auf einen Blick. Klicken Sie darauf, um die Synchronisierung anzuhalten, die letzten Änderungen anzuzeigen oder die Einstellungen zu öffnen.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Keep both versions and rename the conflicting file</source>
        <translation>Beide Versionen behalten und die in Konflikt stehende Datei umbenennen</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Bereitstellungspunkt nicht unterstützt</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>Wird verknüpft ...</translation>
    </message>
    <message>
        <source>About Quillmere Drive</source>
        <translation>Info zu Quillmere Drive</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Frühere Versionen durchsuchen</translation>
    </message>
    <message>
        <source>The Setup Wizard for [ProductName] stopped early because of an error. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>Der Setup-Assistent für [ProductName] wurde aufgrund eines Fehlers vorzeitig beendet. An Ihrem System wurden keine Änderungen vorgenommen. Wenn Sie das Programm später installieren möchten, führen Sie Setup erneut aus.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Verbindungsinformationen</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS. Free up some space to continue syncing.</source>
        <translation>Auf dem NAS ist nicht genügend Speicherplatz frei. Geben Sie Speicherplatz frei, um die Synchronisierung fortzusetzen.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Gelöscht</translation>
    </message>
    <message>
        <source>The selected folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>Der ausgewählte Ordner ist ein Bereitstellungspunkt und kann nicht synchronisiert werden. Bitte wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Upgrade now</source>
        <translation>Upgrade jetzt durchführen</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Computername</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Statusinformationen</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Setup von [ProductName]</translation>
    </message>
    <message>
        <source>Open the management page</source>
        <translation>Verwaltungsseite öffnen</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Dateien werden verwendet</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Donnerstag</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Bitte warten Sie, während der Setup-Assistent [ProductName] installiert. Dies kann einige Minuten dauern.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samstag</translation>
    </message>
    <message>
        <source>Link expires after</source>
        <translation>Link läuft ab nach</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to leave this page without saving them?</source>
        <translation>Es gibt nicht gespeicherte Änderungen. Möchten Sie diese Seite verlassen, ohne sie zu speichern?</translation>
    </message>
    <message>
        <source>Select the operation that you want to perform.</source>
        <translation>Wählen Sie den Vorgang aus, den Sie ausführen möchten.</translation>
    </message>
    <message>
        <source>This file was changed on the computer and on the NAS at the same time, and the conflict could not be resolved.</source>
        <translation>Diese Datei wurde gleichzeitig auf dem Computer und auf dem NAS geändert und der Konflikt konnte nicht gelöst werden.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokales Netzwerk</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aktuell</translation>
    </message>
    <message>
        <source>A sync task named &quot;%1&quot; already exists. Please enter another name.</source>
        <translation>Eine Synchronisierungsaufgabe mit dem Namen „%1“ ist bereits vorhanden. Bitte geben Sie einen anderen Namen ein.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder. Please choose another folder or contact the administrator.</source>
        <translation>Sie haben keine Berechtigung für den Zugriff auf diesen Ordner. Bitte wählen Sie einen anderen Ordner oder wenden Sie sich an den Administrator.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Erneut verknüpfen</translation>
    </message>
    <message>
        <source>Select how you want to sync files between this computer and your NAS. You can add more sync tasks later.</source>
        <translation>Wählen Sie, wie Dateien zwischen diesem Computer und Ihrem NAS synchronisiert werden sollen. Sie können später weitere Synchronisierungsaufgaben hinzufügen.</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Proxyserver erfordert Authentifizierung</translation>
    </message>
    <message>
        <source>Choose what happens when the same file has been changed on the computer and on the NAS.</source>
        <translation>Legen Sie fest, was geschehen soll, wenn dieselbe Datei auf dem Computer und auf dem NAS geändert wurde.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Anderen Ordner wählen</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Bereit zum Entfernen von [ProductName]</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Check the certificate before you connect again.</source>
        <translation>Das SSL-Zertifikat des NAS hat sich geändert. Prüfen Sie das Zertifikat, bevor Sie erneut eine Verbindung herstellen.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Letzter Monat</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Schreibgeschützt</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Zeitraum</translation>
    </message>
    <message>
        <source>The download failed. Please try again later.</source>
        <translation>Der Download ist fehlgeschlagen. Bitte versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>Die Einrichtung ist abgeschlossen.</translation>
    </message>
    <message>
        <source>Quillmere Drive on this computer is outdated. Please update it to version %1 or later.</source>
        <translation>Quillmere Drive auf diesem Computer ist veraltet. Bitte aktualisieren Sie es auf Version %1 oder höher.</translation>
    </message>
    <message>
        <source>This computer is now linked to your NAS. Syncing starts as soon as you close the wizard.</source>
        <translation>Dieser Computer ist jetzt mit Ihrem NAS verknüpft. Die Synchronisierung beginnt, sobald Sie den Assistenten schließen.</translation>
    </message>
    <message>
        <source>Enable sync for this shared folder</source>
        <translation>Synchronisierung für diesen freigegebenen Ordner aktivieren</translation>
    </message>
    <message>
        <source>Download complete</source>
        <translation>Download abgeschlossen</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Synchronisierung dieses Ordners fortsetzen</translation>
    </message>
    <message>
        <source>Setup is in progress. Please wait...</source>
        <translation>Die Einrichtung läuft. Bitte warten ...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Gerade eben</translation>
    </message>
    <message>
        <source>This computer is already linked to the same NAS. Edit the existing connection instead.</source>
        <translation>Dieser Computer ist bereits mit demselben NAS verknüpft. Bearbeiten Sie stattdessen die vorhandene Verbindung.</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>%1 Element(e)</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Verbindung anhalten</translation>
    </message>
    <message>
        <source>Quillmere Drive is ready.</source>
        <translation>Quillmere Drive ist bereit.</translation>
    </message>
    <message>
        <source>Keep an eye on the system tray</source>
        <translation>Behalten Sie den Infobereich im Blick</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Weitere Details</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. The copies on the NAS will be kept. Do you want to continue?</source>
        <translation>Ordner, deren Auswahl Sie hier aufheben, werden von diesem Computer entfernt. Die Kopien auf dem NAS bleiben erhalten. Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Oktober</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Ordner nicht leer</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Restrict access to this link</source>
        <translation>Zugriff auf diesen Link einschränken</translation>
    </message>
    <message>
        <source>The link could not be created. Make sure that file sharing is enabled in Quillmere Drive Server.</source>
        <translation>Der Link konnte nicht erstellt werden. Vergewissern Sie sich, dass die Dateifreigabe in Quillmere Drive Server aktiviert ist.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>Weitere Tutorials</translation>
    </message>
    <message>
        <source>Setup requires administrator rights. Do you want to restart it as an administrator?</source>
        <translation>Setup erfordert Administratorrechte. Möchten Sie es als Administrator neu starten?</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Copy to:</source>
        <translation>Kopieren nach:</translation>
    </message>
    <message>
        <source>No previous versions of this file are available.</source>
        <translation>Von dieser Datei sind keine früheren Versionen verfügbar.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Jetzt starten</translation>
    </message>
    <message>
        <source>The NAS at this address is not the one that this computer was linked to. Check the address or link the computer again.</source>
        <translation>Das NAS unter dieser Adresse ist nicht dasjenige, mit dem dieser Computer verknüpft wurde. Prüfen Sie die Adresse oder verknüpfen Sie den Computer erneut mit dem NAS.</translation>
    </message>
    <message>
        <source>The upgrade failed. Please download the latest version and install it manually.</source>
        <translation>Das Upgrade ist fehlgeschlagen. Bitte laden Sie die neueste Version herunter und installieren Sie sie manuell.</translation>
    </message>
    <message>
        <source>Add sync task</source>
        <translation>Synchronisierungsaufgabe hinzufügen</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Startdatum</translation>
    </message>
    <message>
        <source>This shared folder could not be enabled for syncing. Please try again later.</source>
        <translation>Dieser freigegebene Ordner konnte nicht für die Synchronisierung aktiviert werden. Bitte versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>In the system tray</source>
        <translation>Im Infobereich</translation>
    </message>
    <message>
        <source>The folder home\Quillmere on your NAS has already been linked to this PC. We will launch the synced folder when you click Done. Or you can set up a seperate task: %1</source>
        <translation>Der Ordner home\Quillmere auf Ihrem NAS wurde bereits mit diesem PC verknüpft. Wenn Sie auf „Fertig“ klicken, wird der synchronisierte Ordner geöffnet. Sie können auch eine separate Aufgabe einrichten: %1</translation>
    </message>
    <message>
        <source>The port number is invalid. Enter a number from 1 to 65535.</source>
        <translation>Die Portnummer ist ungültig. Geben Sie eine Zahl von 1 bis 65535 ein.</translation>
    </message>
    <message>
        <source>Quillmere Drive could not be initialized. Please restart your computer and try again.</source>
        <translation>Quillmere Drive konnte nicht initialisiert werden. Bitte starten Sie Ihren Computer neu und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes made on this computer will not be synced to the NAS.</source>
        <translation>Sie haben auf diesen Ordner nur Lesezugriff. Änderungen auf diesem Computer werden nicht mit dem NAS synchronisiert.</translation>
    </message>
    <message>
        <source>The version of Quillmere Drive on this computer is too old for the NAS. Version %1 or later is required.</source>
        <translation>Die Version von Quillmere Drive auf diesem Computer ist zu alt für das NAS. Version %1 oder höher ist erforderlich.</translation>
    </message>
    <message>
        <source>Files and folders that match the rules of the file filter will not be synced.</source>
        <translation>Dateien und Ordner, auf die die Regeln des Dateifilters zutreffen, werden nicht synchronisiert.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Bereit zur Reparatur von [ProductName]</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Synchronisierung dieser Ordner fortsetzen</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Save a file and it is synced</source>
        <translation>Datei speichern – schon ist sie synchronisiert</translation>
    </message>
    <message>
        <source>Files that could not be synced</source>
        <translation>Dateien, die nicht synchronisiert werden konnten</translation>
    </message>
    <message>
        <source>The connection to the NAS was lost. Quillmere Drive will try to connect again automatically.</source>
        <translation>Die Verbindung zum NAS wurde getrennt. Quillmere Drive versucht automatisch, die Verbindung wiederherzustellen.</translation>
    </message>
    <message>
        <source>Detecting file changes...</source>
        <translation>Dateiänderungen werden ermittelt ...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Die Verbindung wurde hergestellt.</translation>
    </message>
    <message>
        <source>The administrator requires two-factor verification for your account. Sign in to the NAS in a web browser and set it up first.</source>
        <translation>Der Administrator verlangt für Ihr Konto die Zwei-Faktor-Authentifizierung. Melden Sie sich zuerst in einem Webbrowser am NAS an und richten Sie sie dort ein.</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the permissions on the NAS. Please change the sync direction.</source>
        <translation>Die Synchronisierungsrichtung dieses Ordners passt nicht zu den Berechtigungen auf dem NAS. Bitte ändern Sie die Synchronisierungsrichtung.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Willkommen beim Setup-Assistenten für [ProductName]</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive. This wizard will help you link this computer to your NAS.</source>
        <translation>Willkommen bei Quillmere Drive. Dieser Assistent hilft Ihnen, diesen Computer mit Ihrem NAS zu verknüpfen.</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files and folders</source>
        <translation>Symbolüberlagerungen für synchronisierte Dateien und Ordner anzeigen</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Authentifizierung fehlgeschlagen</translation>
    </message>
    <message>
        <source>An invalid value was entered. Please check your input and try again.</source>
        <translation>Es wurde ein ungültiger Wert eingegeben. Bitte prüfen Sie Ihre Eingabe und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle Ereignisse</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choice.</source>
        <translation>Klicken Sie auf „Entfernen“, um [ProductName] von Ihrem Computer zu entfernen. Klicken Sie auf „Zurück“, um Ihre Auswahl zu überprüfen.</translation>
    </message>
    <message>
        <source>Quillmere Drive Server is not running on the NAS. Start it or contact the administrator.</source>
        <translation>Quillmere Drive Server wird auf dem NAS nicht ausgeführt. Starten Sie die Anwendung oder wenden Sie sich an den Administrator.</translation>
    </message>
    <message>
        <source>Open Quillmere Drive</source>
        <translation>Quillmere Drive öffnen</translation>
    </message>
    <message>
        <source>The SSL certificate of this NAS differs from the one saved earlier. Continue only if you trust the new certificate.</source>
        <translation>Das SSL-Zertifikat dieses NAS unterscheidet sich vom zuvor gespeicherten Zertifikat. Fahren Sie nur fort, wenn Sie dem neuen Zertifikat vertrauen.</translation>
    </message>
    <message>
        <source>The selected folder is already synced by another cloud storage program. Please choose a different folder to avoid conflicts.</source>
        <translation>Der ausgewählte Ordner wird bereits von einem anderen Cloud-Speicherprogramm synchronisiert. Bitte wählen Sie einen anderen Ordner, um Konflikte zu vermeiden.</translation>
    </message>
    <message>
        <source>Right-click the tray icon to open the menu with all commands.</source>
        <translation>Klicken Sie mit der rechten Maustaste auf das Symbol im Infobereich, um das Menü mit allen Befehlen zu öffnen.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Syncing will start when indexing is complete.</source>
        <translation>Dieser Ordner wird indiziert. Die Synchronisierung beginnt, sobald die Indizierung abgeschlossen ist.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Daten werden geprüft ...</translation>
    </message>
    <message>
        <source>Click Install to begin installing [ProductName]. Click Back to review or change your settings. Click Cancel to exit the wizard.</source>
        <translation>Klicken Sie auf „Installieren“, um mit der Installation von [ProductName] zu beginnen. Klicken Sie auf „Zurück“, um Ihre Einstellungen zu überprüfen oder zu ändern. Klicken Sie auf „Abbrechen“, um den Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>Wird synchronisiert</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Dateispeicherort öffnen</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] enthält keine Funktionen, die einzeln ausgewählt werden können.</translation>
    </message>
    <message>
        <source>The local folder could not be created. Check the path and your permissions, and then try again.</source>
        <translation>Der lokale Ordner konnte nicht erstellt werden. Prüfen Sie den Pfad und Ihre Berechtigungen und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>NAS address</source>
        <translation>NAS-Adresse</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. It may have been deleted, or you may not have permission to access it.</source>
        <translation>Diese Datei kann nicht heruntergeladen werden. Möglicherweise wurde sie gelöscht oder Sie haben keine Zugriffsberechtigung.</translation>
    </message>
    <message>
        <source>The IP address of this computer is not allowed to access the NAS. Contact the administrator.</source>
        <translation>Die IP-Adresse dieses Computers ist für den Zugriff auf das NAS nicht zugelassen. Wenden Sie sich an den Administrator.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Einige Dateien, die aktualisiert werden müssen, werden gerade verwendet.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Letzte Seite</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Umbenannt</translation>
    </message>
    <message>
        <source>View sync status</source>
        <translation>Synchronisierungsstatus anzeigen</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sonntag</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] wird installiert</translation>
    </message>
    <message>
        <source>Enter the names of the files that should not be synced. An asterisk (*) stands for any number of characters.</source>
        <translation>Geben Sie die Namen der Dateien ein, die nicht synchronisiert werden sollen. Ein Sternchen (*) steht für beliebig viele Zeichen.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Zu synchronisierende Ordner</translation>
    </message>
    <message>
        <source>RapidHail</source>
        <translation>RapidHail</translation>
    </message>
    <message>
        <source>Enter the IP address, hostname, or RapidHail ID of your NAS.</source>
        <translation>Geben Sie die IP-Adresse, den Hostnamen oder die RapidHail-ID Ihres NAS ein.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mittwoch</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Neuen Ordner synchronisieren</translation>
    </message>
    <message>
        <source>NAS changed</source>
        <translation>NAS geändert</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>If you disable this folder, it will no longer be synced. The files on this computer will be kept. Do you want to continue?</source>
        <translation>Wenn Sie diesen Ordner deaktivieren, wird er nicht mehr synchronisiert. Die Dateien auf diesem Computer bleiben erhalten. Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>This folder cannot be synced because its path is invalid. Please choose another folder.</source>
        <translation>Dieser Ordner kann nicht synchronisiert werden, weil sein Pfad ungültig ist. Bitte wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>The shared folder on the NAS is not mounted. If it is encrypted, mount it first.</source>
        <translation>Der freigegebene Ordner auf dem NAS ist nicht bereitgestellt. Falls er verschlüsselt ist, stellen Sie ihn zuerst bereit.</translation>
    </message>
    <message>
        <source>Expiration time</source>
        <translation>Ablaufzeit</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up.</source>
        <translation>Ihr Kontingent auf dem NAS ist aufgebraucht.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please correct them before you continue.</source>
        <translation>Einige Felder enthalten ungültige Werte. Bitte korrigieren Sie diese, bevor Sie fortfahren.</translation>
    </message>
    <message>
        <source>The RapidHail service cannot be reached. Check your internet connection and try again.</source>
        <translation>Der RapidHail-Dienst ist nicht erreichbar. Prüfen Sie Ihre Internetverbindung und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Freitag</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Hauptfenster öffnen</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Proxy-Port</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; has been used up. Free up some space to continue syncing.</source>
        <translation>Das Kontingent des freigegebenen Ordners „%1“ ist aufgebraucht. Geben Sie Speicherplatz frei, um die Synchronisierung fortzusetzen.</translation>
    </message>
    <message>
        <source>Link to a new NAS</source>
        <translation>Mit neuem NAS verknüpfen</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Letzte Woche</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is too old for this computer. Version %1 or later is required.</source>
        <translation>Quillmere Drive Server auf dem NAS ist zu alt für diesen Computer. Version %1 oder höher ist erforderlich.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Juni</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a network error. Check your network connection and try again.</source>
        <translation>Der Ordner kann wegen eines Netzwerkfehlers nicht überprüft werden. Prüfen Sie Ihre Netzwerkverbindung und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]&amp;Entfernen</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Juli</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Verstanden</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Willkommen</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Entfernt [ProductName] von Ihrem Computer.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>You can open the synced folder at any time from the Quillmere Drive icon in the system tray.</source>
        <translation>Sie können den synchronisierten Ordner jederzeit über das Symbol von Quillmere Drive im Infobereich öffnen.</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Dateien aktualisiert</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;pair</source>
        <translation>[DlgTitleFont]&amp;Reparieren</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Dienstag</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Keine Optionen verfügbar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>The NAS at this address has changed. Please link this computer again.</source>
        <translation>Das NAS unter dieser Adresse hat sich geändert. Bitte verknüpfen Sie diesen Computer erneut mit dem NAS.</translation>
    </message>
    <message>
        <source>The installation of [ProductName] was interrupted. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>Die Installation von [ProductName] wurde unterbrochen. An Ihrem System wurden keine Änderungen vorgenommen. Wenn Sie das Programm später installieren möchten, führen Sie Setup erneut aus.</translation>
    </message>
    <message>
        <source>The connection test failed. The username or password is incorrect.</source>
        <translation>Der Verbindungstest ist fehlgeschlagen. Der Benutzername oder das Passwort ist falsch.</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>&amp;Reparieren</translation>
    </message>
    <message>
        <source>A sync task has stopped because of an error. Click here for details.</source>
        <translation>Eine Synchronisierungsaufgabe wurde aufgrund eines Fehlers gestoppt. Klicken Sie hier, um Details anzuzeigen.</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and the account that you want to use for syncing.</source>
        <translation>Geben Sie die Adresse Ihres NAS und das Konto ein, das Sie für die Synchronisierung verwenden möchten.</translation>
    </message>
    <message>
        <source>Connect anyway</source>
        <translation>Trotzdem verbinden</translation>
    </message>
    <message>
        <source>The files on this computer and the files in the shared folder will be merged. If two files have the same name, the newer one is used.</source>
        <translation>Die Dateien auf diesem Computer werden mit den Dateien im freigegebenen Ordner zusammengeführt. Haben zwei Dateien denselben Namen, wird die neuere verwendet.</translation>
    </message>
    <message>
        <source>Start Quillmere Drive automatically when I sign in</source>
        <translation>Quillmere Drive bei der Anmeldung automatisch starten</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this link? People who have it will no longer be able to open the file.</source>
        <translation>Möchten Sie diesen Link wirklich löschen? Wer den Link hat, kann die Datei dann nicht mehr öffnen.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Ordner ändern</translation>
    </message>
    <message>
        <source>The username or password is incorrect, or the account has been disabled.</source>
        <translation>Der Benutzername oder das Passwort ist falsch oder das Konto wurde deaktiviert.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fertigstellen</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;do not accept the terms of the license agreement</source>
        <translation>{\DlgFont8}Ich stimme den Bedingungen des Lizenzvertrags &amp;nicht zu</translation>
    </message>
    <message>
        <source>Right-click a file and select &quot;Share link&quot; to create a link. Send it to anyone who needs the file, even if they have no account on your NAS.</source>
        <translation>Klicken Sie mit der rechten Maustaste auf eine Datei und wählen Sie „Link freigeben“, um einen Link zu erstellen. Senden Sie ihn an alle, die die Datei benötigen – auch wenn sie kein Konto auf Ihrem NAS haben.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synchronisierungsmodus</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps earlier versions of your files. Right-click a file and select &quot;Browse previous versions&quot; to restore one of them.</source>
        <translation>Quillmere Drive bewahrt frühere Versionen Ihrer Dateien auf. Klicken Sie mit der rechten Maustaste auf eine Datei und wählen Sie „Frühere Versionen durchsuchen“, um eine davon wiederherzustellen.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Nächste %1 Seiten</translation>
    </message>
    <message>
        <source>Quillmere Drive is already running. You can find its icon in the system tray.</source>
        <translation>Quillmere Drive wird bereits ausgeführt. Das Symbol finden Sie im Infobereich.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Freigegebene Ordner werden geladen ...</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Erste Seite</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Proxy manuell einrichten</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>Vor %1 Stunde(n)</translation>
    </message>
    <message>
        <source>This folder cannot be synced because of a system error. Please try again later.</source>
        <translation>Dieser Ordner kann wegen eines Systemfehlers nicht synchronisiert werden. Bitte versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Beim Doppelklicken auf das Symbol im Infobereich</translation>
    </message>
    <message>
        <source>Selective sync by folder</source>
        <translation>Selektive Synchronisierung nach Ordner</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Freigegebene Ordner</translation>
    </message>
    <message>
        <source>Sync with another NAS</source>
        <translation>Mit einem anderen NAS synchronisieren</translation>
    </message>
    <message>
        <source>This creates a Quillmere folder on your computer and keeps it synced with your home folder on your Orvane NAS (recommended for personal use).</source>
        <translation>Damit wird auf Ihrem Computer ein Quillmere-Ordner erstellt und mit Ihrem Home-Ordner auf Ihrem Orvane-NAS synchron gehalten (für die private Nutzung empfohlen).</translation>
    </message>
    <message>
        <source>Click here to upgrade</source>
        <translation>Für das Upgrade hier klicken</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>On your computer</source>
        <translation>Auf Ihrem Computer</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of [ProductName]?</source>
        <translation>Möchten Sie die Installation von [ProductName] wirklich abbrechen?</translation>
    </message>
    <message>
        <source>Files and folders excluded from sync</source>
        <translation>Von der Synchronisierung ausgeschlossene Dateien und Ordner</translation>
    </message>
    <message>
        <source>This version of Quillmere Drive is already installed. Do you want to install it again?</source>
        <translation>Diese Version von Quillmere Drive ist bereits installiert. Möchten Sie sie erneut installieren?</translation>
    </message>
    <message>
        <source>has been shared. The link was copied to the clipboard.</source>
        <translation>wurde freigegeben. Der Link wurde in die Zwischenablage kopiert.</translation>
    </message>
    <message>
        <source>The NAS sent an unexpected response. Make sure that Quillmere Drive and Quillmere Drive Server are both up to date.</source>
        <translation>Das NAS hat eine unerwartete Antwort gesendet. Vergewissern Sie sich, dass Quillmere Drive und Quillmere Drive Server auf dem neuesten Stand sind.</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Diesen Ordner von der Synchronisierung ausschließen</translation>
    </message>
    <message>
        <source>March</source>
        <translation>März</translation>
    </message>
    <message>
        <source>The RapidHail service encountered a system error. Please try again later.</source>
        <translation>Im RapidHail-Dienst ist ein Systemfehler aufgetreten. Bitte versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selektive Synchronisierung</translation>
    </message>
    <message>
        <source>Folder is read-only</source>
        <translation>Ordner ist schreibgeschützt</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;accept the terms of the license agreement</source>
        <translation>{\DlgFont8}Ich &amp;stimme den Bedingungen des Lizenzvertrags zu</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synchronisierungsrichtung</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Download-Verlauf</translation>
    </message>
    <message>
        <source>Select a folder on this computer and the shared folder on the NAS that it will be synced with.</source>
        <translation>Wählen Sie einen Ordner auf diesem Computer und den freigegebenen Ordner auf dem NAS aus, mit dem er synchronisiert werden soll.</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>Dieses Feld darf nicht leer sein.</translation>
    </message>
    <message>
        <source>Choose a shared folder on your NAS that is not yet synced with this computer.</source>
        <translation>Wählen Sie einen freigegebenen Ordner auf Ihrem NAS, der noch nicht mit diesem Computer synchronisiert wird.</translation>
    </message>
    <message>
        <source>How existing files are merged</source>
        <translation>Zusammenführen vorhandener Dateien</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Netzwerkeinstellungen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Link löschen</translation>
    </message>
    <message>
        <source>This sync task is inactive because the shared folder is not available.</source>
        <translation>Diese Synchronisierungsaufgabe ist inaktiv, weil der freigegebene Ordner nicht verfügbar ist.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Unidirektionaler Download</translation>
    </message>
    <message>
        <source>Go back to an earlier version</source>
        <translation>Zu einer früheren Version zurückkehren</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Hochgeladen</translation>
    </message>
    <message>
        <source>Changes the set of [ProductName] features that are installed.</source>
        <translation>Ändert die Auswahl der installierten Funktionen von [ProductName].</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Link this computer to your NAS in just a few steps.</source>
        <translation>Verknüpfen Sie diesen Computer in wenigen Schritten mit Ihrem NAS.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fertigstellen</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Verbindung mit SSL verschlüsseln</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Verbindungsmodus</translation>
    </message>
    <message>
        <source>Keep the file that was modified last</source>
        <translation>Zuletzt geänderte Datei behalten</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>A newer version of Quillmere Drive is already installed. Setup will now close.</source>
        <translation>Eine neuere Version von Quillmere Drive ist bereits installiert. Setup wird jetzt beendet.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Confirm the new certificate before you select a folder.</source>
        <translation>Das SSL-Zertifikat des NAS hat sich geändert. Bestätigen Sie das neue Zertifikat, bevor Sie einen Ordner auswählen.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Zusammenführen</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Freigegebener Ordner nicht gefunden</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Verknüpfung aufheben</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Lokaler Ordner</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <source>Set up the folder to sync</source>
        <translation>Zu synchronisierenden Ordner einrichten</translation>
    </message>
    <message>
        <source>Enter the connection settings for your NAS.</source>
        <translation>Geben Sie die Verbindungseinstellungen für Ihr NAS ein.</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>Warnung zum SSL-Zertifikat</translation>
    </message>
    <message>
        <source>Share files with a link</source>
        <translation>Dateien per Link freigeben</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Dateityp</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Verbindung fortsetzen</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>I&amp;gnorieren</translation>
    </message>
    <message>
        <source>The maximum file size must be a whole number greater than 0.</source>
        <translation>Die maximale Dateigröße muss eine ganze Zahl größer als 0 sein.</translation>
    </message>
    <message>
        <source>Insufficient permissions</source>
        <translation>Unzureichende Berechtigungen</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Aktualisiert: %1</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive</source>
        <translation>Willkommen bei Quillmere Drive</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Stichwort</translation>
    </message>
    <message>
        <source>This allows you to specify a folder on your computer to keep synced with a shared folder on your Orvane NAS. (Recommended for teamwork)​.</source>
        <translation>Damit können Sie einen Ordner auf Ihrem Computer festlegen, der mit einem freigegebenen Ordner auf Ihrem Orvane-NAS synchron gehalten wird (für die Teamarbeit empfohlen).</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin repairing [ProductName].</source>
        <translation>Der Setup-Assistent ist bereit, mit der Reparatur von [ProductName] zu beginnen.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>A network error occurred. Check your network connection and try again.</source>
        <translation>Es ist ein Netzwerkfehler aufgetreten. Prüfen Sie Ihre Netzwerkverbindung und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already being synced. Please choose another folder.</source>
        <translation>Dieser Ordner überschneidet sich mit einem Ordner, der bereits synchronisiert wird. Bitte wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}Der Setup-Assistent für [ProductName] wurde unterbrochen</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Startzeit</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Tutorial anzeigen</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Schnelleinrichtung</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Verwalten</translation>
    </message>
    <message>
        <source>Links cannot be created over a RapidHail connection because file sharing is disabled on the NAS.</source>
        <translation>Über eine RapidHail-Verbindung können keine Links erstellt werden, weil die Dateifreigabe auf dem NAS deaktiviert ist.</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Freigegebene Ordner verwalten</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Bitte lesen Sie den folgenden Lizenzvertrag sorgfältig durch.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Wird vorbereitet ...</translation>
    </message>
    <message>
        <source>Keep the version on the NAS and overwrite the one on this computer</source>
        <translation>Version auf dem NAS behalten und die Version auf diesem Computer überschreiben</translation>
    </message>
    <message>
        <source>August</source>
        <translation>August</translation>
    </message>
    <message>
        <source>Use a RapidHail connection</source>
        <translation>RapidHail-Verbindung verwenden</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard ended early</source>
        <translation>{\VerdanaBold13}Der Setup-Assistent für [ProductName] wurde vorzeitig beendet</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up. Files can no longer be uploaded until you free up some space.</source>
        <translation>Ihr Kontingent auf dem NAS ist aufgebraucht. Es können keine Dateien mehr hochgeladen werden, bis Sie Speicherplatz freigeben.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]Ä&amp;ndern</translation>
    </message>
    <message>
        <source>Set an expiration date for this link</source>
        <translation>Ablaufdatum für diesen Link festlegen</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Lokalen Ordner ändern</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximale Dateigröße</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Quillmere Drive is initializing...</source>
        <translation>Quillmere Drive wird initialisiert ...</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Bidirektionale Synchronisierung</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Proxy-Einstellungen des Systems verwenden</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Verknüpfung wird aufgehoben ...</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open (a restart will be required)</source>
        <translation>&amp;Anwendungen geöffnet lassen (Neustart erforderlich)</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard is complete</source>
        <translation>{\VerdanaBold13}Der Setup-Assistent für [ProductName] ist abgeschlossen</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Synchronisierungsaufgabe</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>Erstellt am</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>[ProductName] starten</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Proxy-Adresse</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Zuletzt geänderte Dateien</translation>
    </message>
    <message>
        <source>Unlink from the NAS</source>
        <translation>Verknüpfung mit dem NAS aufheben</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Please try again later.</source>
        <translation>Die Versionen dieser Datei können nicht aufgelistet werden. Bitte versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Durch ein anderes Programm gesperrt</translation>
    </message>
    <message>
        <source>An unknown error occurred. Please try again later.</source>
        <translation>Ein unbekannter Fehler ist aufgetreten. Bitte versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified.</source>
        <translation>Das SSL-Zertifikat des NAS konnte nicht verifiziert werden.</translation>
    </message>
    <message>
        <source>Checking username and password...</source>
        <translation>Benutzername und Passwort werden geprüft ...</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Erweiterte Einstellungen</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Februar</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Quillmere Drive</source>
        <translation>Quillmere Drive</translation>
    </message>
    <message>
        <source>You have read-only access to this shared folder. Files can be downloaded to this computer but not uploaded to the NAS.</source>
        <translation>Sie haben auf diesen freigegebenen Ordner nur Lesezugriff. Dateien können auf diesen Computer heruntergeladen, aber nicht auf das NAS hochgeladen werden.</translation>
    </message>
    <message>
        <source>The drive that contains the local folder is not mounted. Connect the drive to continue syncing.</source>
        <translation>Das Laufwerk mit dem lokalen Ordner ist nicht bereitgestellt. Schließen Sie das Laufwerk an, um die Synchronisierung fortzusetzen.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Search the local network for an Orvane NAS.</source>
        <translation>Lokales Netzwerk nach einem Orvane-NAS durchsuchen.</translation>
    </message>
    <message>
        <source>Storage full</source>
        <translation>Speicher voll</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>NAS-Übersicht</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direktverbindung</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Heruntergeladen</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxy-Einstellungen</translation>
    </message>
    <message>
        <source>Unstable connection</source>
        <translation>Instabile Verbindung</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync this folder. Free up some space or choose another folder.</source>
        <translation>Auf diesem Computer ist nicht genügend Speicherplatz frei, um diesen Ordner zu synchronisieren. Geben Sie Speicherplatz frei oder wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Use a black and white tray icon</source>
        <translation>Schwarz-weißes Symbol im Infobereich verwenden</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Synchronisierungsverlauf</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Der Download wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>Die folgenden Anwendungen verwenden Dateien, die Setup aktualisieren muss. Schließen Sie die Anwendungen und klicken Sie auf „Wiederholen“, um fortzufahren.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installieren</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please wait a few minutes before you try again.</source>
        <translation>Zu viele fehlgeschlagene Versuche. Bitte warten Sie einige Minuten, bevor Sie es erneut versuchen.</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>Alles bereit</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Wird geladen ...</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nein, danke</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Neuer freigegebener Ordner</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>You can let Setup close the applications listed below and try to restart them afterward.</source>
        <translation>Setup kann die unten aufgeführten Anwendungen schließen und anschließend versuchen, sie neu zu starten.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change the way [ProductName] is installed or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Mit dem Setup-Assistenten können Sie die Installation von [ProductName] ändern oder das Programm von Ihrem Computer entfernen. Klicken Sie auf „Weiter“, um fortzufahren, oder auf „Abbrechen“, um den Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>Try syncing a file</source>
        <translation>Synchronisieren Sie probeweise eine Datei</translation>
    </message>
    <message>
        <source>No data to display</source>
        <translation>Keine Daten vorhanden</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>Vor %1 Tag(en)</translation>
    </message>
    <message>
        <source>You can now sync the shared folder &quot;%1&quot;. Click here to enable it.</source>
        <translation>Sie können jetzt den freigegebenen Ordner „%1“ synchronisieren. Klicken Sie hier, um ihn zu aktivieren.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Wird hochgeladen ...</translation>
    </message>
    <message>
        <source>Your Quillmere folder is ready. Drop files into it and they will be synced with your NAS.</source>
        <translation>Ihr Quillmere-Ordner ist bereit. Dateien, die Sie darin ablegen, werden mit Ihrem NAS synchronisiert.</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>Es gibt keinen Ordner, der synchronisiert werden kann.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Vorherige %1 Seiten</translation>
    </message>
    <message>
        <source>The verification code is invalid. Please check the code and try again.</source>
        <translation>Der Verifizierungscode ist ungültig. Bitte prüfen Sie den Code und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>The selected folder is on a network drive. Changes made there by other computers may not be detected immediately.</source>
        <translation>Der ausgewählte Ordner befindet sich auf einem Netzlaufwerk. Änderungen, die andere Computer dort vornehmen, werden möglicherweise nicht sofort erkannt.</translation>
    </message>
    <message>
        <source>Show icon overlays on files excluded by the file filter</source>
        <translation>Symbolüberlagerungen für vom Dateifilter ausgeschlossene Dateien anzeigen</translation>
    </message>
    <message>
        <source>Files to sync</source>
        <translation>Zu synchronisierende Dateien</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Link freigeben</translation>
    </message>
    <message>
        <source>Detecting connection mode...</source>
        <translation>Verbindungsmodus wird ermittelt ...</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Benutzerdefinierte Dauer</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>Im lokalen Netzwerk nach NAS-Geräten suchen</translation>
    </message>
    <message>
        <source>The proxy address and port cannot be empty.</source>
        <translation>Proxy-Adresse und Port dürfen nicht leer sein.</translation>
    </message>
    <message>
        <source>You can also protect a link with a password or set an expiration date.</source>
        <translation>Sie können einen Link auch mit einem Passwort schützen oder ein Ablaufdatum festlegen.</translation>
    </message>
    <message>
        <source>All your files, always at hand</source>
        <translation>Alle Dateien, immer zur Hand</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Ablaufdatum</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message>
        <source>Create a Quillmere folder on this computer</source>
        <translation>Quillmere-Ordner auf diesem Computer erstellen</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Assistent für die erweiterte Einrichtung</translation>
    </message>
    <message>
        <source>The selected folder is already part of a sync task on this computer.</source>
        <translation>Der ausgewählte Ordner gehört bereits zu einer Synchronisierungsaufgabe auf diesem Computer.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>Vor %1 Minute(n)</translation>
    </message>
    <message>
        <source>This shared folder is already synced with the folder &quot;%1&quot; on this computer.</source>
        <translation>Dieser freigegebene Ordner wird bereits mit dem Ordner „%1“ auf diesem Computer synchronisiert.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>Auf dem NAS ist nicht genügend Speicherplatz frei.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>Click Repair to restore missing or damaged files, shortcuts, and registry entries. Click Back to review your choice.</source>
        <translation>Klicken Sie auf „Reparieren“, um fehlende oder beschädigte Dateien, Verknüpfungen und Registrierungseinträge wiederherzustellen. Klicken Sie auf „Zurück“, um Ihre Auswahl zu überprüfen.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Diese Meldung nicht mehr anzeigen</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by restoring missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Behebt Fehler der letzten Installation, indem fehlende oder beschädigte Dateien, Verknüpfungen und Registrierungseinträge wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>Number of times the link can be opened</source>
        <translation>Anzahl der möglichen Linkaufrufe</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified. The folder cannot be selected until the certificate is trusted.</source>
        <translation>Das SSL-Zertifikat des NAS konnte nicht verifiziert werden. Der Ordner kann erst ausgewählt werden, wenn dem Zertifikat vertraut wird.</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>Passwortschutz</translation>
    </message>
    <message>
        <source>The SSL certificate could not be verified. It may be self-signed, expired, or issued for another hostname.</source>
        <translation>Das SSL-Zertifikat konnte nicht verifiziert werden. Möglicherweise ist es selbstsigniert, abgelaufen oder für einen anderen Hostnamen ausgestellt.</translation>
    </message>
    <message>
        <source>Please update Quillmere Drive Server on the NAS to use selective sync.</source>
        <translation>Bitte aktualisieren Sie Quillmere Drive Server auf dem NAS, um die selektive Synchronisierung zu verwenden.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up some space to continue syncing.</source>
        <translation>Auf diesem Computer ist nicht genügend Speicherplatz frei. Geben Sie Speicherplatz frei, um die Synchronisierung fortzusetzen.</translation>
    </message>
    <message>
        <source>The selected folder is used by a backup task. Syncing it may cause conflicts.</source>
        <translation>Der ausgewählte Ordner wird von einer Sicherungsaufgabe verwendet. Wird er synchronisiert, können Konflikte auftreten.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>One-way sync from the NAS to this computer</source>
        <translation>Unidirektionale Synchronisierung vom NAS auf diesen Computer</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Nur herunterladen</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Auf diesem Computer ist nicht genügend Speicherplatz frei.</translation>
    </message>
    <message>
        <source>Blocked by:</source>
        <translation>Blockiert durch:</translation>
    </message>
    <message>
        <source>This computer is linked to your NAS, and your files are now being synced.</source>
        <translation>Dieser Computer ist mit Ihrem NAS verknüpft und Ihre Dateien werden jetzt synchronisiert.</translation>
    </message>
    <message>
        <source>The RapidHail ID is invalid or does not exist.</source>
        <translation>Die RapidHail-ID ist ungültig oder nicht vorhanden.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Bereitschaft</translation>
    </message>
    <message>
        <source>Remove the program from this computer</source>
        <translation>Programm von diesem Computer entfernen</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established because of an SSL error.</source>
        <translation>Wegen eines SSL-Fehlers konnte keine sichere Verbindung zum NAS hergestellt werden.</translation>
    </message>
    <message>
        <source>General settings</source>
        <translation>Allgemeine Einstellungen</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Desktopbenachrichtigungen anzeigen</translation>
    </message>
    <message>
        <source>Selective sync by file type</source>
        <translation>Selektive Synchronisierung nach Dateityp</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Dezember</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is outdated. Please ask the administrator to update it to version %1 or later.</source>
        <translation>Quillmere Drive Server auf dem NAS ist veraltet. Bitten Sie den Administrator, die Anwendung auf Version %1 oder höher zu aktualisieren.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Installierte Funktionen ändern</translation>
    </message>
    <message>
        <source>If you no longer need the program, you can remove it now. Your synced files will be kept on this computer.</source>
        <translation>Wenn Sie das Programm nicht mehr benötigen, können Sie es jetzt entfernen. Ihre synchronisierten Dateien bleiben auf diesem Computer erhalten.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be merged with the files in the shared folder.</source>
        <translation>Der ausgewählte Ordner ist nicht leer. Seine Dateien werden mit den Dateien im freigegebenen Ordner zusammengeführt.</translation>
    </message>
    <message>
        <source>The link could not be deleted. Please try again later.</source>
        <translation>Der Link konnte nicht gelöscht werden. Bitte versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>A link cannot be created for this file. Make sure that it has been synced to the NAS.</source>
        <translation>Für diese Datei kann kein Link erstellt werden. Vergewissern Sie sich, dass sie mit dem NAS synchronisiert wurde.</translation>
    </message>
    <message>
        <source>Check all file attributes for changes</source>
        <translation>Alle Dateiattribute auf Änderungen prüfen</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove the installation</source>
        <translation>[DlgTitleFont]Installation ändern, reparieren oder entfernen</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Montag</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>Der ausgewählte Ordner ist schreibgeschützt. Bitte wählen Sie einen Ordner, in den Sie schreiben können.</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the sync task &quot;%1&quot;? The files on this computer and on the NAS will be kept.</source>
        <translation>Möchten Sie die Synchronisierungsaufgabe „%1“ wirklich entfernen? Die Dateien auf diesem Computer und auf dem NAS bleiben erhalten.</translation>
    </message>
    <message>
        <source>Limit how often this link can be opened</source>
        <translation>Anzahl der Aufrufe dieses Links begrenzen</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Freigegebener Ordner</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps the folders on your computers in sync with your Orvane NAS.</source>
        <translation>Quillmere Drive hält die Ordner auf Ihren Computern mit Ihrem Orvane-NAS synchron.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Verifizierungscode eingeben</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>Dateierweiterungen</translation>
    </message>
    <message>
        <source>The username cannot be empty.</source>
        <translation>Der Benutzername darf nicht leer sein.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Ordnerpfad</translation>
    </message>
    <message>
        <source>Folder already linked</source>
        <translation>Ordner bereits verknüpft</translation>
    </message>
    <message>
        <source>The maximum length of this field is %1 characters.</source>
        <translation>Dieses Feld darf höchstens %1 Zeichen enthalten.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from &quot;%1&quot;? Syncing will stop, but your files will be kept.</source>
        <translation>Möchten Sie die Verknüpfung dieses Computers mit „%1“ wirklich aufheben? Die Synchronisierung wird beendet, Ihre Dateien bleiben jedoch erhalten.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Erweiterte Einrichtung</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Benutzerdefinierter Zeitraum</translation>
    </message>
    <message>
        <source>You have reached the maximum of %1 sync tasks. Remove a sync task before you add another one.</source>
        <translation>Sie haben die maximale Anzahl von %1 Synchronisierungsaufgaben erreicht. Entfernen Sie eine Synchronisierungsaufgabe, bevor Sie eine weitere hinzufügen.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Ordnername</translation>
    </message>
    <message>
        <source>Quillmere Drive is being upgraded. Please wait...</source>
        <translation>Das Upgrade von Quillmere Drive wird durchgeführt. Bitte warten ...</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to keep synced with your NAS.</source>
        <translation>Wählen Sie den Ordner auf diesem Computer aus, den Sie mit Ihrem NAS synchron halten möchten.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Verbindung wird getestet ...</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Wird synchronisiert: %1</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS. Contact the administrator.</source>
        <translation>Der freigegebene Ordner ist auf dem NAS nicht bereitgestellt. Wenden Sie sich an den Administrator.</translation>
    </message>
    <message>
        <source>Keep your files in sync between this computer and your NAS, and reach them wherever you are.</source>
        <translation>Halten Sie Ihre Dateien auf diesem Computer und Ihrem NAS synchron und greifen Sie von überall darauf zu.</translation>
    </message>
    <message>
        <source>Your account is protected by two-factor verification. Please enter the verification code to continue.</source>
        <translation>Ihr Konto ist durch die Zwei-Faktor-Authentifizierung geschützt. Bitte geben Sie den Verifizierungscode ein, um fortzufahren.</translation>
    </message>
    <message>
        <source>Edit file filter</source>
        <translation>Dateifilter bearbeiten</translation>
    </message>
    <message>
        <source>Open the synced folder</source>
        <translation>Synchronisierten Ordner öffnen</translation>
    </message>
    <message>
        <source>File names to exclude</source>
        <translation>Auszuschließende Dateinamen</translation>
    </message>
    <message>
        <source>File path</source>
        <translation>Dateipfad</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Januar</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Keinen Proxy verwenden</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync with this computer.</source>
        <translation>Wählen Sie den freigegebenen Ordner auf dem NAS aus, den Sie mit diesem Computer synchronisieren möchten.</translation>
    </message>
    <message>
        <source>This shared folder does not exist on the NAS. It may have been renamed or deleted.</source>
        <translation>Dieser freigegebene Ordner ist auf dem NAS nicht vorhanden. Möglicherweise wurde er umbenannt oder gelöscht.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Server not running</source>
        <translation>Server wird nicht ausgeführt</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Der Setup-Assistent installiert [ProductName] auf Ihrem Computer. Klicken Sie auf „Weiter“, um fortzufahren, oder auf „Abbrechen“, um den Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synchronisierungsaufgaben</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>Der Setup-Assistent ist bereit, mit der Installation zu beginnen.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Syncing %1 file(s)</source>
        <translation>%1 Datei(en) werden synchronisiert</translation>
    </message>
    <message>
        <source>&amp;Close the applications and try to restart them</source>
        <translation>Anwendungen &amp;schließen und versuchen, sie neu zu starten</translation>
    </message>
    <message>
        <source>Please wait. The requested changes are being made.</source>
        <translation>Bitte warten Sie. Die angeforderten Änderungen werden vorgenommen.</translation>
    </message>
    <message>
        <source>Upgrade available</source>
        <translation>Upgrade verfügbar</translation>
    </message>
    <message>
        <source>Repair the current installation</source>
        <translation>Aktuelle Installation reparieren</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Upgrade wird durchgeführt ...</translation>
    </message>
    <message>
        <source>Set up a separate sync task</source>
        <translation>Separate Synchronisierungsaufgabe einrichten</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>Es wurden keine Einstellungen geändert.</translation>
    </message>
</context>
</TS>
