<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Keep your data safe and synced at all times</source>
        <translation>Uw gegevens altijd veilig en gesynchroniseerd</translation>
    </message>
    <message>
        <source>The quota on the NAS has been used up. Free up some space or ask the administrator to raise your quota, and then select the folder again.</source>
        <translation>Het quotum op de NAS is opgebruikt. Maak ruimte vrij of vraag de beheerder om uw quotum te verhogen en selecteer de map daarna opnieuw.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-user license agreement</source>
        <translation>[DlgTitleFont]Licentieovereenkomst voor eindgebruikers</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Kies een configuratiemodus</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Gereed om [ProductName] te installeren</translation>
    </message>
    <message>
        <source>This shared folder has been disabled for your account. Contact the administrator of the NAS to regain access.</source>
        <translation>Deze gedeelde map is uitgeschakeld voor uw account. Neem contact op met de beheerder van de NAS om weer toegang te krijgen.</translation>
    </message>
    <message>
        <source>Merge the folders</source>
        <translation>De mappen samenvoegen</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>Deellink</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Synchronisatiefout</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Klik op de knop &quot;Voltooien&quot; om de Installatiewizard af te sluiten.</translation>
    </message>
    <message>
        <source>Set a start date for this link</source>
        <translation>Een startdatum instellen voor deze link</translation>
    </message>
    <message>
        <source>The local sync database cannot be read. Restart Quillmere Drive. If the problem persists, link this computer again.</source>
        <translation>De lokale synchronisatiedatabase kan niet worden gelezen. Start Quillmere Drive opnieuw op. Als het probleem zich blijft voordoen, koppelt u deze computer opnieuw.</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Kies de mappen die u wilt synchroniseren</translation>
    </message>
    <message>
        <source>Every file you put in a synced folder is copied to your NAS automatically. Just save your work and let Quillmere Drive do the rest.</source>
        <translation>Elk bestand dat u in een gesynchroniseerde map plaatst, wordt automatisch naar uw NAS gekopieerd. Sla gewoon uw werk op en laat de rest aan Quillmere Drive over.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>O&amp;pnieuw proberen</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Deze mappen uitsluiten van synchronisatie</translation>
    </message>
    <message>
        <source>The local folder of this sync task cannot be found. It may have been moved, renamed, or deleted.</source>
        <translation>De lokale map van deze synchronisatietaak kan niet worden gevonden. Mogelijk is de map verplaatst, hernoemd of verwijderd.</translation>
    </message>
    <message>
        <source>Quillmere Drive is starting...</source>
        <translation>Quillmere Drive wordt gestart...</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Instellingen worden toegepast...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Toevoegen</translation>
    </message>
    <message>
        <source>Make sure that Quillmere Drive Server is installed and running on your NAS before you continue.</source>
        <translation>Controleer voordat u doorgaat of Quillmere Drive Server op uw NAS is geïnstalleerd en actief is.</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Start %1 opnieuw op om de nieuwe taalinstellingen toe te passen.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloaden...</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versies komen niet overeen</translation>
    </message>
    <message>
        <source>The icon in the system tray shows the sync status at a glance. Click it to pause syncing, view recent changes, or open the settings.</source>
        <translation>Het pictogram in het systeemvak laat in één oogopslag de synchronisatiestatus zien. Klik erop om de synchronisatie te onderbreken, recente wijzigingen te bekijken of de instellingen te openen.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Onderbroken</translation>
    </message>
    <message>
        <source>Keep both versions and rename the conflicting file</source>
        <translation>Beide versies behouden en de naam van het conflicterende bestand wijzigen</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Koppelpunt niet ondersteund</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>Wordt gekoppeld...</translation>
    </message>
    <message>
        <source>About Quillmere Drive</source>
        <translation>Over Quillmere Drive</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ingeschakeld</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Eerdere versies bekijken</translation>
    </message>
    <message>
        <source>The Setup Wizard for [ProductName] stopped early because of an error. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>De Installatiewizard van [ProductName] is voortijdig gestopt vanwege een fout. Uw systeem is niet gewijzigd. Als u het programma later wilt installeren, voert u het installatieprogramma opnieuw uit.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Verbindingsgegevens</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS. Free up some space to continue syncing.</source>
        <translation>Er is onvoldoende vrije ruimte op de NAS. Maak ruimte vrij om door te gaan met synchroniseren.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactief</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Verwijderd</translation>
    </message>
    <message>
        <source>The selected folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>De geselecteerde map is een koppelpunt en kan niet worden gesynchroniseerd. Kies een andere map.</translation>
    </message>
    <message>
        <source>Upgrade now</source>
        <translation>Nu upgraden</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Computernaam</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Statusinformatie</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installatie van [ProductName]</translation>
    </message>
    <message>
        <source>Open the management page</source>
        <translation>De beheerpagina openen</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Bestanden in gebruik</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>donderdag</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Een ogenblik geduld. De Installatiewizard installeert [ProductName]. Dit kan enkele minuten duren.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>zaterdag</translation>
    </message>
    <message>
        <source>Link expires after</source>
        <translation>Link verloopt na</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to leave this page without saving them?</source>
        <translation>U hebt niet-opgeslagen wijzigingen. Wilt u deze pagina verlaten zonder de wijzigingen op te slaan?</translation>
    </message>
    <message>
        <source>Select the operation that you want to perform.</source>
        <translation>Selecteer de bewerking die u wilt uitvoeren.</translation>
    </message>
    <message>
        <source>This file was changed on the computer and on the NAS at the same time, and the conflict could not be resolved.</source>
        <translation>Dit bestand is tegelijkertijd op de computer en op de NAS gewijzigd en het conflict kon niet worden opgelost.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokaal netwerk</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Bijgewerkt</translation>
    </message>
    <message>
        <source>A sync task named &quot;%1&quot; already exists. Please enter another name.</source>
        <translation>Er bestaat al een synchronisatietaak met de naam &quot;%1&quot;. Voer een andere naam in.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder. Please choose another folder or contact the administrator.</source>
        <translation>U bent niet gemachtigd om deze map te openen. Kies een andere map of neem contact op met de beheerder.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Opnieuw koppelen</translation>
    </message>
    <message>
        <source>Select how you want to sync files between this computer and your NAS. You can add more sync tasks later.</source>
        <translation>Selecteer hoe u bestanden wilt synchroniseren tussen deze computer en uw NAS. U kunt later meer synchronisatietaken toevoegen.</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>De proxyserver vereist verificatie</translation>
    </message>
    <message>
        <source>Choose what happens when the same file has been changed on the computer and on the NAS.</source>
        <translation>Kies wat er moet gebeuren als hetzelfde bestand op de computer en op de NAS is gewijzigd.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Een andere map kiezen</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Gereed om [ProductName] te verwijderen</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Check the certificate before you connect again.</source>
        <translation>Het SSL-certificaat van de NAS is gewijzigd. Controleer het certificaat voordat u opnieuw verbinding maakt.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Vorige maand</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Actie</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Alleen-lezen</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Datumbereik</translation>
    </message>
    <message>
        <source>The download failed. Please try again later.</source>
        <translation>Het downloaden is mislukt. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>De configuratie is voltooid.</translation>
    </message>
    <message>
        <source>Quillmere Drive on this computer is outdated. Please update it to version %1 or later.</source>
        <translation>Quillmere Drive op deze computer is verouderd. Werk het programma bij naar versie %1 of hoger.</translation>
    </message>
    <message>
        <source>This computer is now linked to your NAS. Syncing starts as soon as you close the wizard.</source>
        <translation>Deze computer is nu gekoppeld aan uw NAS. De synchronisatie begint zodra u de wizard sluit.</translation>
    </message>
    <message>
        <source>Enable sync for this shared folder</source>
        <translation>Synchronisatie inschakelen voor deze gedeelde map</translation>
    </message>
    <message>
        <source>Download complete</source>
        <translation>Download voltooid</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Synchronisatie van deze map hervatten</translation>
    </message>
    <message>
        <source>Setup is in progress. Please wait...</source>
        <translation>De configuratie wordt uitgevoerd. Een ogenblik geduld...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Zojuist</translation>
    </message>
    <message>
        <source>This computer is already linked to the same NAS. Edit the existing connection instead.</source>
        <translation>Deze computer is al gekoppeld aan dezelfde NAS. Bewerk in plaats daarvan de bestaande verbinding.</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>%1 item(s)</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Verbinding onderbreken</translation>
    </message>
    <message>
        <source>Quillmere Drive is ready.</source>
        <translation>Quillmere Drive is gereed.</translation>
    </message>
    <message>
        <source>Keep an eye on the system tray</source>
        <translation>Houd het systeemvak in de gaten</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Meer details</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. The copies on the NAS will be kept. Do you want to continue?</source>
        <translation>Mappen die u hier deselecteert, worden van deze computer verwijderd. De kopieën op de NAS blijven behouden. Wilt u doorgaan?</translation>
    </message>
    <message>
        <source>October</source>
        <translation>oktober</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Map is niet leeg</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fout</translation>
    </message>
    <message>
        <source>Restrict access to this link</source>
        <translation>Toegang tot deze link beperken</translation>
    </message>
    <message>
        <source>The link could not be created. Make sure that file sharing is enabled in Quillmere Drive Server.</source>
        <translation>De link kan niet worden gemaakt. Controleer of het delen van bestanden is ingeschakeld in Quillmere Drive Server.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>Meer zelfstudies</translation>
    </message>
    <message>
        <source>Setup requires administrator rights. Do you want to restart it as an administrator?</source>
        <translation>Het installatieprogramma vereist beheerdersrechten. Wilt u het opnieuw opstarten als beheerder?</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Copy to:</source>
        <translation>Kopiëren naar:</translation>
    </message>
    <message>
        <source>No previous versions of this file are available.</source>
        <translation>Er zijn geen eerdere versies van dit bestand beschikbaar.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Nu beginnen</translation>
    </message>
    <message>
        <source>The NAS at this address is not the one that this computer was linked to. Check the address or link the computer again.</source>
        <translation>De NAS op dit adres is niet de NAS waaraan deze computer was gekoppeld. Controleer het adres of koppel de computer opnieuw.</translation>
    </message>
    <message>
        <source>The upgrade failed. Please download the latest version and install it manually.</source>
        <translation>De upgrade is mislukt. Download de nieuwste versie en installeer deze handmatig.</translation>
    </message>
    <message>
        <source>Add sync task</source>
        <translation>Synchronisatietaak toevoegen</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Startdatum</translation>
    </message>
    <message>
        <source>This shared folder could not be enabled for syncing. Please try again later.</source>
        <translation>Synchronisatie van deze gedeelde map kan niet worden ingeschakeld. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>In the system tray</source>
        <translation>In het systeemvak</translation>
    </message>
    <message>
        <source>The folder home\Quillmere on your NAS has already been linked to this PC. We will launch the synced folder when you click Done. Or you can set up a seperate task: %1</source>
        <translation>De map home\Quillmere op uw NAS is al gekoppeld aan deze pc. De gesynchroniseerde map wordt geopend wanneer u op &quot;Gereed&quot; klikt. U kunt ook een aparte taak instellen: %1</translation>
    </message>
    <message>
        <source>The port number is invalid. Enter a number from 1 to 65535.</source>
        <translation>Het poortnummer is ongeldig. Voer een getal in van 1 tot en met 65535.</translation>
    </message>
    <message>
        <source>Quillmere Drive could not be initialized. Please restart your computer and try again.</source>
        <translation>Quillmere Drive kan niet worden geïnitialiseerd. Start de computer opnieuw op en probeer het nogmaals.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes made on this computer will not be synced to the NAS.</source>
        <translation>U hebt alleen-lezentoegang tot deze map. Wijzigingen op deze computer worden niet gesynchroniseerd met de NAS.</translation>
    </message>
    <message>
        <source>The version of Quillmere Drive on this computer is too old for the NAS. Version %1 or later is required.</source>
        <translation>De versie van Quillmere Drive op deze computer is te oud voor de NAS. Versie %1 of hoger is vereist.</translation>
    </message>
    <message>
        <source>Files and folders that match the rules of the file filter will not be synced.</source>
        <translation>Bestanden en mappen die overeenkomen met de regels van het bestandsfilter, worden niet gesynchroniseerd.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Gereed om [ProductName] te herstellen</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Synchronisatie van deze mappen hervatten</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Map openen</translation>
    </message>
    <message>
        <source>Save a file and it is synced</source>
        <translation>Sla een bestand op en het wordt gesynchroniseerd</translation>
    </message>
    <message>
        <source>Files that could not be synced</source>
        <translation>Bestanden die niet konden worden gesynchroniseerd</translation>
    </message>
    <message>
        <source>The connection to the NAS was lost. Quillmere Drive will try to connect again automatically.</source>
        <translation>De verbinding met de NAS is verbroken. Quillmere Drive probeert automatisch opnieuw verbinding te maken.</translation>
    </message>
    <message>
        <source>Detecting file changes...</source>
        <translation>Bestandswijzigingen worden gedetecteerd...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Verbinding gemaakt.</translation>
    </message>
    <message>
        <source>The administrator requires two-factor verification for your account. Sign in to the NAS in a web browser and set it up first.</source>
        <translation>De beheerder vereist tweefactorauthenticatie voor uw account. Meld u eerst in een webbrowser aan bij de NAS om dit in te stellen.</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the permissions on the NAS. Please change the sync direction.</source>
        <translation>De synchronisatierichting van deze map komt niet overeen met de machtigingen op de NAS. Wijzig de synchronisatierichting.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Welkom bij de Installatiewizard van [ProductName]</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive. This wizard will help you link this computer to your NAS.</source>
        <translation>Welkom bij Quillmere Drive. Deze wizard helpt u om deze computer aan uw NAS te koppelen.</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files and folders</source>
        <translation>Pictogramoverlays weergeven op gesynchroniseerde bestanden en mappen</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Verificatie mislukt</translation>
    </message>
    <message>
        <source>An invalid value was entered. Please check your input and try again.</source>
        <translation>Er is een ongeldige waarde ingevoerd. Controleer uw invoer en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle gebeurtenissen</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Volgende</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choice.</source>
        <translation>Klik op &quot;Verwijderen&quot; om [ProductName] van uw computer te verwijderen. Klik op &quot;Vorige&quot; om uw keuze te controleren.</translation>
    </message>
    <message>
        <source>Quillmere Drive Server is not running on the NAS. Start it or contact the administrator.</source>
        <translation>Quillmere Drive Server is niet actief op de NAS. Start het programma of neem contact op met de beheerder.</translation>
    </message>
    <message>
        <source>Open Quillmere Drive</source>
        <translation>Quillmere Drive openen</translation>
    </message>
    <message>
        <source>The SSL certificate of this NAS differs from the one saved earlier. Continue only if you trust the new certificate.</source>
        <translation>Het SSL-certificaat van deze NAS verschilt van het eerder opgeslagen certificaat. Ga alleen door als u het nieuwe certificaat vertrouwt.</translation>
    </message>
    <message>
        <source>The selected folder is already synced by another cloud storage program. Please choose a different folder to avoid conflicts.</source>
        <translation>De geselecteerde map wordt al gesynchroniseerd door een ander programma voor cloudopslag. Kies een andere map om conflicten te voorkomen.</translation>
    </message>
    <message>
        <source>Right-click the tray icon to open the menu with all commands.</source>
        <translation>Klik met de rechtermuisknop op het pictogram in het systeemvak om het menu met alle opdrachten te openen.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Syncing will start when indexing is complete.</source>
        <translation>Deze map wordt geïndexeerd. De synchronisatie begint zodra het indexeren is voltooid.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Uitgeschakeld</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Doorgaan</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Gegevens worden gecontroleerd...</translation>
    </message>
    <message>
        <source>Click Install to begin installing [ProductName]. Click Back to review or change your settings. Click Cancel to exit the wizard.</source>
        <translation>Klik op &quot;Installeren&quot; om de installatie van [ProductName] te starten. Klik op &quot;Vorige&quot; om uw instellingen te controleren of te wijzigen. Klik op &quot;Annuleren&quot; om de wizard af te sluiten.</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>Wordt gesynchroniseerd</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Bestandslocatie openen</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] heeft geen onderdelen die afzonderlijk kunnen worden geselecteerd.</translation>
    </message>
    <message>
        <source>The local folder could not be created. Check the path and your permissions, and then try again.</source>
        <translation>De lokale map kan niet worden gemaakt. Controleer het pad en uw machtigingen en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>NAS address</source>
        <translation>NAS-adres</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. It may have been deleted, or you may not have permission to access it.</source>
        <translation>Dit bestand kan niet worden gedownload. Mogelijk is het verwijderd of bent u niet gemachtigd om het te openen.</translation>
    </message>
    <message>
        <source>The IP address of this computer is not allowed to access the NAS. Contact the administrator.</source>
        <translation>Het IP-adres van deze computer heeft geen toegang tot de NAS. Neem contact op met de beheerder.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Sommige bestanden die moeten worden bijgewerkt, zijn momenteel in gebruik.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Laatste pagina</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum en tijd</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Naam gewijzigd</translation>
    </message>
    <message>
        <source>View sync status</source>
        <translation>Synchronisatiestatus weergeven</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>zondag</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] wordt geïnstalleerd</translation>
    </message>
    <message>
        <source>Enter the names of the files that should not be synced. An asterisk (*) stands for any number of characters.</source>
        <translation>Voer de namen in van de bestanden die u niet wilt synchroniseren. Een sterretje (*) staat voor een willekeurig aantal tekens.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Onderbreken</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Te synchroniseren mappen</translation>
    </message>
    <message>
        <source>RapidHail</source>
        <translation>RapidHail</translation>
    </message>
    <message>
        <source>Enter the IP address, hostname, or RapidHail ID of your NAS.</source>
        <translation>Voer het IP-adres, de hostnaam of de RapidHail-ID van uw NAS in.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>woensdag</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Een nieuwe map synchroniseren</translation>
    </message>
    <message>
        <source>NAS changed</source>
        <translation>NAS gewijzigd</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vorige</translation>
    </message>
    <message>
        <source>If you disable this folder, it will no longer be synced. The files on this computer will be kept. Do you want to continue?</source>
        <translation>Als u deze map uitschakelt, wordt deze niet meer gesynchroniseerd. De bestanden op deze computer blijven behouden. Wilt u doorgaan?</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Bestand openen</translation>
    </message>
    <message>
        <source>This folder cannot be synced because its path is invalid. Please choose another folder.</source>
        <translation>Deze map kan niet worden gesynchroniseerd omdat het pad ongeldig is. Kies een andere map.</translation>
    </message>
    <message>
        <source>The shared folder on the NAS is not mounted. If it is encrypted, mount it first.</source>
        <translation>De gedeelde map op de NAS is niet gemount. Als de map is versleuteld, moet u deze eerst mounten.</translation>
    </message>
    <message>
        <source>Expiration time</source>
        <translation>Vervaltijd</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Gebruikersnaam</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up.</source>
        <translation>Uw quotum op de NAS is opgebruikt.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please correct them before you continue.</source>
        <translation>Sommige velden bevatten ongeldige waarden. Corrigeer deze voordat u doorgaat.</translation>
    </message>
    <message>
        <source>The RapidHail service cannot be reached. Check your internet connection and try again.</source>
        <translation>De RapidHail-service is niet bereikbaar. Controleer uw internetverbinding en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>vrijdag</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Het hoofdvenster openen</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Proxypoort</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; has been used up. Free up some space to continue syncing.</source>
        <translation>Het quotum van de gedeelde map &quot;%1&quot; is opgebruikt. Maak ruimte vrij om door te gaan met synchroniseren.</translation>
    </message>
    <message>
        <source>Link to a new NAS</source>
        <translation>Koppelen aan een nieuwe NAS</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Vorige week</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is too old for this computer. Version %1 or later is required.</source>
        <translation>Quillmere Drive Server op de NAS is te oud voor deze computer. Versie %1 of hoger is vereist.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juni</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a network error. Check your network connection and try again.</source>
        <translation>De map kan niet worden gecontroleerd vanwege een netwerkfout. Controleer uw netwerkverbinding en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Waarde</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]Ver&amp;wijderen</translation>
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
        <translation>juli</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Begrepen</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Welkom</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Verwijdert [ProductName] van uw computer.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versie</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Hervatten</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Wachtwoord</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Van</translation>
    </message>
    <message>
        <source>You can open the synced folder at any time from the Quillmere Drive icon in the system tray.</source>
        <translation>U kunt de gesynchroniseerde map altijd openen via het pictogram van Quillmere Drive in het systeemvak.</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Bestanden bijgewerkt</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;pair</source>
        <translation>[DlgTitleFont]&amp;Herstellen</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>dinsdag</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Geen opties beschikbaar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>The NAS at this address has changed. Please link this computer again.</source>
        <translation>De NAS op dit adres is gewijzigd. Koppel deze computer opnieuw.</translation>
    </message>
    <message>
        <source>The installation of [ProductName] was interrupted. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>De installatie van [ProductName] is afgebroken. Uw systeem is niet gewijzigd. Als u het programma later wilt installeren, voert u het installatieprogramma opnieuw uit.</translation>
    </message>
    <message>
        <source>The connection test failed. The username or password is incorrect.</source>
        <translation>De verbindingstest is mislukt. De gebruikersnaam of het wachtwoord is onjuist.</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>&amp;Herstellen</translation>
    </message>
    <message>
        <source>A sync task has stopped because of an error. Click here for details.</source>
        <translation>Een synchronisatietaak is gestopt vanwege een fout. Klik hier voor meer informatie.</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and the account that you want to use for syncing.</source>
        <translation>Voer het adres van uw NAS in en het account dat u voor de synchronisatie wilt gebruiken.</translation>
    </message>
    <message>
        <source>Connect anyway</source>
        <translation>Toch verbinding maken</translation>
    </message>
    <message>
        <source>The files on this computer and the files in the shared folder will be merged. If two files have the same name, the newer one is used.</source>
        <translation>De bestanden op deze computer en de bestanden in de gedeelde map worden samengevoegd. Als twee bestanden dezelfde naam hebben, wordt het nieuwste gebruikt.</translation>
    </message>
    <message>
        <source>Start Quillmere Drive automatically when I sign in</source>
        <translation>Quillmere Drive automatisch starten wanneer ik me aanmeld</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this link? People who have it will no longer be able to open the file.</source>
        <translation>Weet u zeker dat u deze link wilt verwijderen? Personen die de link hebben, kunnen het bestand niet meer openen.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Map wijzigen</translation>
    </message>
    <message>
        <source>The username or password is incorrect, or the account has been disabled.</source>
        <translation>De gebruikersnaam of het wachtwoord is onjuist of het account is uitgeschakeld.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Voltooien</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;do not accept the terms of the license agreement</source>
        <translation>{\DlgFont8}Ik ga &amp;niet akkoord met de voorwaarden van de licentieovereenkomst</translation>
    </message>
    <message>
        <source>Right-click a file and select &quot;Share link&quot; to create a link. Send it to anyone who needs the file, even if they have no account on your NAS.</source>
        <translation>Klik met de rechtermuisknop op een bestand en selecteer &quot;Link delen&quot; om een deellink te maken. Stuur de link naar iedereen die het bestand nodig heeft, ook als diegene geen account op uw NAS heeft.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synchronisatiemodus</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps earlier versions of your files. Right-click a file and select &quot;Browse previous versions&quot; to restore one of them.</source>
        <translation>Quillmere Drive bewaart eerdere versies van uw bestanden. Klik met de rechtermuisknop op een bestand en selecteer &quot;Eerdere versies bekijken&quot; om een van die versies te herstellen.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Volgende %1 pagina&apos;s</translation>
    </message>
    <message>
        <source>Quillmere Drive is already running. You can find its icon in the system tray.</source>
        <translation>Quillmere Drive is al actief. U vindt het pictogram in het systeemvak.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Gedeelde mappen worden geladen...</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Eerste pagina</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>De proxy handmatig instellen</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>%1 uur geleden</translation>
    </message>
    <message>
        <source>This folder cannot be synced because of a system error. Please try again later.</source>
        <translation>Deze map kan niet worden gesynchroniseerd vanwege een systeemfout. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Bij dubbelklikken op het pictogram in het systeemvak</translation>
    </message>
    <message>
        <source>Selective sync by folder</source>
        <translation>Selectieve synchronisatie per map</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Gedeelde mappen</translation>
    </message>
    <message>
        <source>Sync with another NAS</source>
        <translation>Synchroniseren met een andere NAS</translation>
    </message>
    <message>
        <source>This creates a Quillmere folder on your computer and keeps it synced with your home folder on your Orvane NAS (recommended for personal use).</source>
        <translation>Hiermee maakt u een Quillmere-map op uw computer die gesynchroniseerd blijft met uw home-map op uw Orvane-NAS (aanbevolen voor persoonlijk gebruik).</translation>
    </message>
    <message>
        <source>Click here to upgrade</source>
        <translation>Klik hier om te upgraden</translation>
    </message>
    <message>
        <source>April</source>
        <translation>april</translation>
    </message>
    <message>
        <source>On your computer</source>
        <translation>Op uw computer</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of [ProductName]?</source>
        <translation>Weet u zeker dat u de installatie van [ProductName] wilt annuleren?</translation>
    </message>
    <message>
        <source>Files and folders excluded from sync</source>
        <translation>Bestanden en mappen die zijn uitgesloten van synchronisatie</translation>
    </message>
    <message>
        <source>This version of Quillmere Drive is already installed. Do you want to install it again?</source>
        <translation>Deze versie van Quillmere Drive is al geïnstalleerd. Wilt u deze opnieuw installeren?</translation>
    </message>
    <message>
        <source>has been shared. The link was copied to the clipboard.</source>
        <translation>is gedeeld. De link is naar het klembord gekopieerd.</translation>
    </message>
    <message>
        <source>The NAS sent an unexpected response. Make sure that Quillmere Drive and Quillmere Drive Server are both up to date.</source>
        <translation>De NAS heeft een onverwacht antwoord verzonden. Controleer of Quillmere Drive en Quillmere Drive Server beide up-to-date zijn.</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Deze map uitsluiten van synchronisatie</translation>
    </message>
    <message>
        <source>March</source>
        <translation>maart</translation>
    </message>
    <message>
        <source>The RapidHail service encountered a system error. Please try again later.</source>
        <translation>Er is een systeemfout opgetreden in de RapidHail-service. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selectieve synchronisatie</translation>
    </message>
    <message>
        <source>Folder is read-only</source>
        <translation>Map is alleen-lezen</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;accept the terms of the license agreement</source>
        <translation>{\DlgFont8}Ik ga &amp;akkoord met de voorwaarden van de licentieovereenkomst</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synchronisatierichting</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Downloadgeschiedenis</translation>
    </message>
    <message>
        <source>Select a folder on this computer and the shared folder on the NAS that it will be synced with.</source>
        <translation>Selecteer een map op deze computer en de gedeelde map op de NAS waarmee deze wordt gesynchroniseerd.</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>Dit veld mag niet leeg zijn.</translation>
    </message>
    <message>
        <source>Choose a shared folder on your NAS that is not yet synced with this computer.</source>
        <translation>Kies een gedeelde map op uw NAS die nog niet met deze computer wordt gesynchroniseerd.</translation>
    </message>
    <message>
        <source>How existing files are merged</source>
        <translation>Hoe bestaande bestanden worden samengevoegd</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Netwerkinstellingen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Opnieuw instellen</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Link verwijderen</translation>
    </message>
    <message>
        <source>This sync task is inactive because the shared folder is not available.</source>
        <translation>Deze synchronisatietaak is inactief omdat de gedeelde map niet beschikbaar is.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Eenrichtingsdownload</translation>
    </message>
    <message>
        <source>Go back to an earlier version</source>
        <translation>Ga terug naar een eerdere versie</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Geüpload</translation>
    </message>
    <message>
        <source>Changes the set of [ProductName] features that are installed.</source>
        <translation>Wijzigt welke onderdelen van [ProductName] zijn geïnstalleerd.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mei</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Bestandsnaam</translation>
    </message>
    <message>
        <source>Link this computer to your NAS in just a few steps.</source>
        <translation>Koppel deze computer in slechts enkele stappen aan uw NAS.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>V&amp;oltooien</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>De verbinding versleutelen met SSL</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Verbindingsmodus</translation>
    </message>
    <message>
        <source>Keep the file that was modified last</source>
        <translation>Het laatst gewijzigde bestand behouden</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bewerken</translation>
    </message>
    <message>
        <source>A newer version of Quillmere Drive is already installed. Setup will now close.</source>
        <translation>Er is al een nieuwere versie van Quillmere Drive geïnstalleerd. Het installatieprogramma wordt nu gesloten.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Confirm the new certificate before you select a folder.</source>
        <translation>Het SSL-certificaat van de NAS is gewijzigd. Bevestig het nieuwe certificaat voordat u een map selecteert.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Samenvoegen</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Gedeelde map niet gevonden</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Ontkoppelen</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Lokale map</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Een map selecteren</translation>
    </message>
    <message>
        <source>Set up the folder to sync</source>
        <translation>De te synchroniseren map instellen</translation>
    </message>
    <message>
        <source>Enter the connection settings for your NAS.</source>
        <translation>Voer de verbindingsinstellingen voor uw NAS in.</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>Waarschuwing over SSL-certificaat</translation>
    </message>
    <message>
        <source>Share files with a link</source>
        <translation>Deel bestanden met een link</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Bestandstype</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Verbinding hervatten</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>Ne&amp;geren</translation>
    </message>
    <message>
        <source>The maximum file size must be a whole number greater than 0.</source>
        <translation>De maximale bestandsgrootte moet een geheel getal groter dan 0 zijn.</translation>
    </message>
    <message>
        <source>Insufficient permissions</source>
        <translation>Onvoldoende machtigingen</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Bijgewerkt: %1</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive</source>
        <translation>Welkom bij Quillmere Drive</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Trefwoord</translation>
    </message>
    <message>
        <source>This allows you to specify a folder on your computer to keep synced with a shared folder on your Orvane NAS. (Recommended for teamwork)​.</source>
        <translation>Hiermee kunt u een map op uw computer opgeven die gesynchroniseerd blijft met een gedeelde map op uw Orvane-NAS (aanbevolen voor teamwerk).</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin repairing [ProductName].</source>
        <translation>De Installatiewizard is gereed om te beginnen met het herstellen van [ProductName].</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>A network error occurred. Check your network connection and try again.</source>
        <translation>Er is een netwerkfout opgetreden. Controleer uw netwerkverbinding en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already being synced. Please choose another folder.</source>
        <translation>Deze map overlapt met een map die al wordt gesynchroniseerd. Kies een andere map.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}De Installatiewizard van [ProductName] is afgebroken</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>Vo&amp;rige</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Starttijd</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>De zelfstudie weergeven</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Snelle configuratie</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Beheren</translation>
    </message>
    <message>
        <source>Links cannot be created over a RapidHail connection because file sharing is disabled on the NAS.</source>
        <translation>Er kunnen geen deellinks worden gemaakt via een RapidHail-verbinding omdat het delen van bestanden is uitgeschakeld op de NAS.</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Gedeelde mappen beheren</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Lees de volgende licentieovereenkomst zorgvuldig door.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Voorbereiden...</translation>
    </message>
    <message>
        <source>Keep the version on the NAS and overwrite the one on this computer</source>
        <translation>De versie op de NAS behouden en de versie op deze computer overschrijven</translation>
    </message>
    <message>
        <source>August</source>
        <translation>augustus</translation>
    </message>
    <message>
        <source>Use a RapidHail connection</source>
        <translation>Een RapidHail-verbinding gebruiken</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard ended early</source>
        <translation>{\VerdanaBold13}De Installatiewizard van [ProductName] is voortijdig beëindigd</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up. Files can no longer be uploaded until you free up some space.</source>
        <translation>Uw quotum op de NAS is opgebruikt. U kunt pas weer bestanden uploaden nadat u ruimte hebt vrijgemaakt.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]Wij&amp;zigen</translation>
    </message>
    <message>
        <source>Set an expiration date for this link</source>
        <translation>Een vervaldatum instellen voor deze link</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Lokale map wijzigen</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximale bestandsgrootte</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Ver&amp;wijderen</translation>
    </message>
    <message>
        <source>Quillmere Drive is initializing...</source>
        <translation>Quillmere Drive is bezig met initialisatie...</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Tweerichtingssynchronisatie</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>De proxyinstellingen van het systeem gebruiken</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Wordt ontkoppeld...</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open (a restart will be required)</source>
        <translation>De toepassingen ge&amp;opend laten (opnieuw opstarten is vereist)</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard is complete</source>
        <translation>{\VerdanaBold13}De Installatiewizard van [ProductName] is voltooid</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Synchronisatietaak</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>Gemaakt op</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>[ProductName] starten</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Volgende</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Proxyadres</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Recent gewijzigde bestanden</translation>
    </message>
    <message>
        <source>Unlink from the NAS</source>
        <translation>Van de NAS ontkoppelen</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Please try again later.</source>
        <translation>De versies van dit bestand kunnen niet worden weergegeven. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Vergrendeld door een ander programma</translation>
    </message>
    <message>
        <source>An unknown error occurred. Please try again later.</source>
        <translation>Er is een onbekende fout opgetreden. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified.</source>
        <translation>Het SSL-certificaat van de NAS kan niet worden geverifieerd.</translation>
    </message>
    <message>
        <source>Checking username and password...</source>
        <translation>Gebruikersnaam en wachtwoord worden gecontroleerd...</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Geavanceerde instellingen</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Af&amp;drukken</translation>
    </message>
    <message>
        <source>February</source>
        <translation>februari</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Quillmere Drive</source>
        <translation>Quillmere Drive</translation>
    </message>
    <message>
        <source>You have read-only access to this shared folder. Files can be downloaded to this computer but not uploaded to the NAS.</source>
        <translation>U hebt alleen-lezentoegang tot deze gedeelde map. U kunt bestanden naar deze computer downloaden, maar niet naar de NAS uploaden.</translation>
    </message>
    <message>
        <source>The drive that contains the local folder is not mounted. Connect the drive to continue syncing.</source>
        <translation>Het station met de lokale map is niet aangesloten. Sluit het station aan om door te gaan met synchroniseren.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Bestemming</translation>
    </message>
    <message>
        <source>Search the local network for an Orvane NAS.</source>
        <translation>Op het lokale netwerk zoeken naar een Orvane-NAS.</translation>
    </message>
    <message>
        <source>Storage full</source>
        <translation>Opslag vol</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>NAS-overzicht</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Directe verbinding</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Gedownload</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxyinstellingen</translation>
    </message>
    <message>
        <source>Unstable connection</source>
        <translation>Instabiele verbinding</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync this folder. Free up some space or choose another folder.</source>
        <translation>Er is op deze computer onvoldoende vrije ruimte om deze map te synchroniseren. Maak ruimte vrij of kies een andere map.</translation>
    </message>
    <message>
        <source>Use a black and white tray icon</source>
        <translation>Zwart-witpictogram gebruiken in het systeemvak</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Synchronisatiegeschiedenis</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Het downloaden is geannuleerd.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>De volgende toepassingen gebruiken bestanden die het installatieprogramma moet bijwerken. Sluit deze toepassingen en klik op &quot;Opnieuw proberen&quot; om door te gaan.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installeren</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please wait a few minutes before you try again.</source>
        <translation>Te veel mislukte pogingen. Wacht enkele minuten voordat u het opnieuw probeert.</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>Alles is klaar</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Laden...</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nee, bedankt</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nieuwe gedeelde map</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Afsluiten</translation>
    </message>
    <message>
        <source>You can let Setup close the applications listed below and try to restart them afterward.</source>
        <translation>Het installatieprogramma kan de onderstaande toepassingen sluiten en daarna proberen ze opnieuw op te starten.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change the way [ProductName] is installed or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Met de Installatiewizard kunt u de installatie van [ProductName] wijzigen of het programma van uw computer verwijderen. Klik op &quot;Volgende&quot; om door te gaan of op &quot;Annuleren&quot; om af te sluiten.</translation>
    </message>
    <message>
        <source>Try syncing a file</source>
        <translation>Probeer een bestand te synchroniseren</translation>
    </message>
    <message>
        <source>No data to display</source>
        <translation>Geen gegevens om weer te geven</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>%1 dag(en) geleden</translation>
    </message>
    <message>
        <source>You can now sync the shared folder &quot;%1&quot;. Click here to enable it.</source>
        <translation>U kunt nu de gedeelde map &quot;%1&quot; synchroniseren. Klik hier om de map in te schakelen.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Uploaden...</translation>
    </message>
    <message>
        <source>Your Quillmere folder is ready. Drop files into it and they will be synced with your NAS.</source>
        <translation>Uw Quillmere-map is gereed. Plaats er bestanden in en ze worden gesynchroniseerd met uw NAS.</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>Er is geen map die kan worden gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Vorige %1 pagina&apos;s</translation>
    </message>
    <message>
        <source>The verification code is invalid. Please check the code and try again.</source>
        <translation>De verificatiecode is ongeldig. Controleer de code en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Vandaag</translation>
    </message>
    <message>
        <source>The selected folder is on a network drive. Changes made there by other computers may not be detected immediately.</source>
        <translation>De geselecteerde map bevindt zich op een netwerkstation. Wijzigingen die daar door andere computers worden aangebracht, worden mogelijk niet direct gedetecteerd.</translation>
    </message>
    <message>
        <source>Show icon overlays on files excluded by the file filter</source>
        <translation>Pictogramoverlays weergeven op bestanden die door het bestandsfilter zijn uitgesloten</translation>
    </message>
    <message>
        <source>Files to sync</source>
        <translation>Te synchroniseren bestanden</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Link delen</translation>
    </message>
    <message>
        <source>Detecting connection mode...</source>
        <translation>Verbindingsmodus wordt gedetecteerd...</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Aangepaste duur</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>Op het lokale netwerk zoeken naar NAS-apparaten</translation>
    </message>
    <message>
        <source>The proxy address and port cannot be empty.</source>
        <translation>Het proxyadres en de proxypoort mogen niet leeg zijn.</translation>
    </message>
    <message>
        <source>You can also protect a link with a password or set an expiration date.</source>
        <translation>U kunt een link ook beveiligen met een wachtwoord of een vervaldatum instellen.</translation>
    </message>
    <message>
        <source>All your files, always at hand</source>
        <translation>Al uw bestanden, altijd bij de hand</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Vervaldatum</translation>
    </message>
    <message>
        <source>September</source>
        <translation>september</translation>
    </message>
    <message>
        <source>Create a Quillmere folder on this computer</source>
        <translation>Een Quillmere-map maken op deze computer</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Wizard voor geavanceerde configuratie</translation>
    </message>
    <message>
        <source>The selected folder is already part of a sync task on this computer.</source>
        <translation>De geselecteerde map maakt al deel uit van een synchronisatietaak op deze computer.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>%1 min. geleden</translation>
    </message>
    <message>
        <source>This shared folder is already synced with the folder &quot;%1&quot; on this computer.</source>
        <translation>Deze gedeelde map wordt al gesynchroniseerd met de map &quot;%1&quot; op deze computer.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>Er is onvoldoende vrije ruimte op de NAS.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nee</translation>
    </message>
    <message>
        <source>Click Repair to restore missing or damaged files, shortcuts, and registry entries. Click Back to review your choice.</source>
        <translation>Klik op &quot;Herstellen&quot; om ontbrekende of beschadigde bestanden, snelkoppelingen en registervermeldingen te herstellen. Klik op &quot;Vorige&quot; om uw keuze te controleren.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Standaardtaal van het systeem</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Dit bericht niet meer weergeven</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by restoring missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Lost fouten in de meest recente installatie op door ontbrekende of beschadigde bestanden, snelkoppelingen en registervermeldingen te herstellen.</translation>
    </message>
    <message>
        <source>Number of times the link can be opened</source>
        <translation>Aantal keren dat de link kan worden geopend</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gisteren</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified. The folder cannot be selected until the certificate is trusted.</source>
        <translation>Het SSL-certificaat van de NAS kan niet worden geverifieerd. De map kan pas worden geselecteerd als het certificaat wordt vertrouwd.</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>Wachtwoordbeveiliging</translation>
    </message>
    <message>
        <source>The SSL certificate could not be verified. It may be self-signed, expired, or issued for another hostname.</source>
        <translation>Het SSL-certificaat kan niet worden geverifieerd. Mogelijk is het zelfondertekend, verlopen of uitgegeven voor een andere hostnaam.</translation>
    </message>
    <message>
        <source>Please update Quillmere Drive Server on the NAS to use selective sync.</source>
        <translation>Werk Quillmere Drive Server op de NAS bij om selectieve synchronisatie te gebruiken.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up some space to continue syncing.</source>
        <translation>Er is onvoldoende vrije ruimte op deze computer. Maak ruimte vrij om door te gaan met synchroniseren.</translation>
    </message>
    <message>
        <source>The selected folder is used by a backup task. Syncing it may cause conflicts.</source>
        <translation>De geselecteerde map wordt gebruikt door een back-uptaak. Synchronisatie van deze map kan conflicten veroorzaken.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>One-way sync from the NAS to this computer</source>
        <translation>Eenrichtingssynchronisatie van de NAS naar deze computer</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Alleen downloaden</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Er is onvoldoende vrije ruimte op deze computer.</translation>
    </message>
    <message>
        <source>Blocked by:</source>
        <translation>Geblokkeerd door:</translation>
    </message>
    <message>
        <source>This computer is linked to your NAS, and your files are now being synced.</source>
        <translation>Deze computer is gekoppeld aan uw NAS en uw bestanden worden nu gesynchroniseerd.</translation>
    </message>
    <message>
        <source>The RapidHail ID is invalid or does not exist.</source>
        <translation>De RapidHail-ID is ongeldig of bestaat niet.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Stand-by</translation>
    </message>
    <message>
        <source>Remove the program from this computer</source>
        <translation>Het programma van deze computer verwijderen</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established because of an SSL error.</source>
        <translation>Vanwege een SSL-fout kan er geen beveiligde verbinding met de NAS worden gemaakt.</translation>
    </message>
    <message>
        <source>General settings</source>
        <translation>Algemene instellingen</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Bureaubladmeldingen weergeven</translation>
    </message>
    <message>
        <source>Selective sync by file type</source>
        <translation>Selectieve synchronisatie per bestandstype</translation>
    </message>
    <message>
        <source>December</source>
        <translation>december</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is outdated. Please ask the administrator to update it to version %1 or later.</source>
        <translation>Quillmere Drive Server op de NAS is verouderd. Vraag de beheerder om het programma bij te werken naar versie %1 of hoger.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gereed</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>De geïnstalleerde onderdelen wijzigen</translation>
    </message>
    <message>
        <source>If you no longer need the program, you can remove it now. Your synced files will be kept on this computer.</source>
        <translation>Als u het programma niet meer nodig hebt, kunt u het nu verwijderen. Uw gesynchroniseerde bestanden blijven behouden op deze computer.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be merged with the files in the shared folder.</source>
        <translation>De geselecteerde map is niet leeg. De bestanden in deze map worden samengevoegd met de bestanden in de gedeelde map.</translation>
    </message>
    <message>
        <source>The link could not be deleted. Please try again later.</source>
        <translation>De link kan niet worden verwijderd. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>A link cannot be created for this file. Make sure that it has been synced to the NAS.</source>
        <translation>Er kan geen link worden gemaakt voor dit bestand. Controleer of het met de NAS is gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Check all file attributes for changes</source>
        <translation>Alle bestandskenmerken controleren op wijzigingen</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove the installation</source>
        <translation>[DlgTitleFont]De installatie wijzigen, herstellen of verwijderen</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>maandag</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>De geselecteerde map is alleen-lezen. Kies een map waarin u kunt schrijven.</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the sync task &quot;%1&quot;? The files on this computer and on the NAS will be kept.</source>
        <translation>Weet u zeker dat u de synchronisatietaak &quot;%1&quot; wilt verwijderen? De bestanden op deze computer en op de NAS blijven behouden.</translation>
    </message>
    <message>
        <source>Limit how often this link can be opened</source>
        <translation>Beperken hoe vaak deze link kan worden geopend</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Gedeelde map</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps the folders on your computers in sync with your Orvane NAS.</source>
        <translation>Quillmere Drive houdt de mappen op uw computers gesynchroniseerd met uw Orvane-NAS.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Voer de verificatiecode in</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Samenvatting</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>Bestandsextensies</translation>
    </message>
    <message>
        <source>The username cannot be empty.</source>
        <translation>De gebruikersnaam mag niet leeg zijn.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappad</translation>
    </message>
    <message>
        <source>Folder already linked</source>
        <translation>Map is al gekoppeld</translation>
    </message>
    <message>
        <source>The maximum length of this field is %1 characters.</source>
        <translation>De maximale lengte van dit veld is %1 tekens.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from &quot;%1&quot;? Syncing will stop, but your files will be kept.</source>
        <translation>Weet u zeker dat u deze computer wilt ontkoppelen van &quot;%1&quot;? De synchronisatie stopt, maar uw bestanden blijven behouden.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Geavanceerde configuratie</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Aangepast bereik</translation>
    </message>
    <message>
        <source>You have reached the maximum of %1 sync tasks. Remove a sync task before you add another one.</source>
        <translation>U hebt het maximum van %1 synchronisatietaken bereikt. Verwijder een synchronisatietaak voordat u er nog een toevoegt.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mapnaam</translation>
    </message>
    <message>
        <source>Quillmere Drive is being upgraded. Please wait...</source>
        <translation>Quillmere Drive wordt geüpgraded. Een ogenblik geduld...</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to keep synced with your NAS.</source>
        <translation>Selecteer de map op deze computer die u gesynchroniseerd wilt houden met uw NAS.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Verbinding wordt getest...</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Wordt gesynchroniseerd: %1</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS. Contact the administrator.</source>
        <translation>De gedeelde map is niet gemount op de NAS. Neem contact op met de beheerder.</translation>
    </message>
    <message>
        <source>Keep your files in sync between this computer and your NAS, and reach them wherever you are.</source>
        <translation>Houd uw bestanden gesynchroniseerd tussen deze computer en uw NAS en open ze waar u ook bent.</translation>
    </message>
    <message>
        <source>Your account is protected by two-factor verification. Please enter the verification code to continue.</source>
        <translation>Uw account is beveiligd met tweefactorauthenticatie. Voer de verificatiecode in om door te gaan.</translation>
    </message>
    <message>
        <source>Edit file filter</source>
        <translation>Bestandsfilter bewerken</translation>
    </message>
    <message>
        <source>Open the synced folder</source>
        <translation>De gesynchroniseerde map openen</translation>
    </message>
    <message>
        <source>File names to exclude</source>
        <translation>Uit te sluiten bestandsnamen</translation>
    </message>
    <message>
        <source>File path</source>
        <translation>Bestandspad</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Tot</translation>
    </message>
    <message>
        <source>January</source>
        <translation>januari</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Geen proxy gebruiken</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync with this computer.</source>
        <translation>Selecteer de gedeelde map op de NAS die u met deze computer wilt synchroniseren.</translation>
    </message>
    <message>
        <source>This shared folder does not exist on the NAS. It may have been renamed or deleted.</source>
        <translation>Deze gedeelde map bestaat niet op de NAS. Mogelijk is de map hernoemd of verwijderd.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Server not running</source>
        <translation>Server niet actief</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>De Installatiewizard installeert [ProductName] op uw computer. Klik op &quot;Volgende&quot; om door te gaan of op &quot;Annuleren&quot; om af te sluiten.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synchronisatietaken</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>De Installatiewizard is gereed om met de installatie te beginnen.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Syncing %1 file(s)</source>
        <translation>Bezig met synchroniseren van %1 bestand(en)</translation>
    </message>
    <message>
        <source>&amp;Close the applications and try to restart them</source>
        <translation>De toepassingen &amp;sluiten en proberen ze opnieuw op te starten</translation>
    </message>
    <message>
        <source>Please wait. The requested changes are being made.</source>
        <translation>Een ogenblik geduld. De gevraagde wijzigingen worden aangebracht.</translation>
    </message>
    <message>
        <source>Upgrade available</source>
        <translation>Upgrade beschikbaar</translation>
    </message>
    <message>
        <source>Repair the current installation</source>
        <translation>De huidige installatie herstellen</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Wordt geüpgraded...</translation>
    </message>
    <message>
        <source>Set up a separate sync task</source>
        <translation>Een aparte synchronisatietaak instellen</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>Er zijn geen instellingen gewijzigd.</translation>
    </message>
</context>
</TS>
