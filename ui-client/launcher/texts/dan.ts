<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Keep your data safe and synced at all times</source>
        <translation>Dine data – altid sikre og synkroniserede</translation>
    </message>
    <message>
        <source>The quota on the NAS has been used up. Free up some space or ask the administrator to raise your quota, and then select the folder again.</source>
        <translation>Kvoten på NAS-enheden er opbrugt. Frigør plads, eller bed administratoren om at øge din kvote, og vælg derefter mappen igen.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-user license agreement</source>
        <translation>[DlgTitleFont]Slutbrugerlicensaftale</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Vælg en konfigurationstype</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Klar til at installere [ProductName]</translation>
    </message>
    <message>
        <source>This shared folder has been disabled for your account. Contact the administrator of the NAS to regain access.</source>
        <translation>Denne delte mappe er blevet deaktiveret for din konto. Kontakt administratoren af NAS-enheden for at få adgang igen.</translation>
    </message>
    <message>
        <source>Merge the folders</source>
        <translation>Flet mapperne</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Afslut</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>Delingslink</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Synkroniseringsfejl</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Klik på knappen &quot;Udfør&quot; for at afslutte installationsguiden.</translation>
    </message>
    <message>
        <source>Set a start date for this link</source>
        <translation>Angiv en startdato for linket</translation>
    </message>
    <message>
        <source>The local sync database cannot be read. Restart Quillmere Drive. If the problem persists, link this computer again.</source>
        <translation>Den lokale synkroniseringsdatabase kan ikke læses. Genstart Quillmere Drive. Hvis problemet fortsætter, skal du tilknytte denne computer til NAS-enheden igen.</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Vælg de mapper, der skal synkroniseres</translation>
    </message>
    <message>
        <source>Every file you put in a synced folder is copied to your NAS automatically. Just save your work and let Quillmere Drive do the rest.</source>
        <translation>Alle filer, du lægger i en synkroniseret mappe, kopieres automatisk til din NAS. Du skal bare gemme dit arbejde, så klarer Quillmere Drive resten.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Prøv igen</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Udelad disse mapper fra synkronisering</translation>
    </message>
    <message>
        <source>The local folder of this sync task cannot be found. It may have been moved, renamed, or deleted.</source>
        <translation>Den lokale mappe for denne synkroniseringsopgave blev ikke fundet. Den kan være blevet flyttet, omdøbt eller slettet.</translation>
    </message>
    <message>
        <source>Quillmere Drive is starting...</source>
        <translation>Quillmere Drive starter...</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Anvender indstillinger...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Tilføj</translation>
    </message>
    <message>
        <source>Make sure that Quillmere Drive Server is installed and running on your NAS before you continue.</source>
        <translation>Sørg for, at Quillmere Drive Server er installeret og kører på din NAS, før du fortsætter.</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Genstart %1 for at anvende de nye sprogindstillinger.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloader...</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versionerne passer ikke sammen</translation>
    </message>
    <message>
        <source>The icon in the system tray shows the sync status at a glance. Click it to pause syncing, view recent changes, or open the settings.</source>
        <translation>Ikonet i systembakken giver dig et hurtigt overblik over synkroniseringsstatus. Klik på det for at sætte synkroniseringen på pause, se de seneste ændringer eller åbne indstillingerne.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Sat på pause</translation>
    </message>
    <message>
        <source>Keep both versions and rename the conflicting file</source>
        <translation>Behold begge versioner, og omdøb konfliktfilen</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Monteringspunktet understøttes ikke</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>Tilknytter...</translation>
    </message>
    <message>
        <source>About Quillmere Drive</source>
        <translation>Om Quillmere Drive</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiveret</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Gennemse tidligere versioner</translation>
    </message>
    <message>
        <source>The Setup Wizard for [ProductName] stopped early because of an error. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>Installationsguiden til [ProductName] stoppede før tid på grund af en fejl. Systemet er ikke blevet ændret. Kør installationsprogrammet igen for at installere programmet senere.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Id</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Forbindelsesoplysninger</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS. Free up some space to continue syncing.</source>
        <translation>Der er ikke nok ledig plads på NAS-enheden. Frigør plads for at fortsætte synkroniseringen.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Slettet</translation>
    </message>
    <message>
        <source>The selected folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>Den valgte mappe er et monteringspunkt og kan ikke synkroniseres. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>Upgrade now</source>
        <translation>Opgrader nu</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Computernavn</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Statusoplysninger</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installation af [ProductName]</translation>
    </message>
    <message>
        <source>Open the management page</source>
        <translation>Åbn administrationssiden</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Filer i brug</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Torsdag</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Vent, mens installationsguiden installerer [ProductName]. Det kan tage flere minutter.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Lørdag</translation>
    </message>
    <message>
        <source>Link expires after</source>
        <translation>Linket udløber efter</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to leave this page without saving them?</source>
        <translation>Du har ændringer, der ikke er gemt. Vil du forlade siden uden at gemme dem?</translation>
    </message>
    <message>
        <source>Select the operation that you want to perform.</source>
        <translation>Vælg den handling, du vil udføre.</translation>
    </message>
    <message>
        <source>This file was changed on the computer and on the NAS at the same time, and the conflict could not be resolved.</source>
        <translation>Filen blev ændret på computeren og på NAS-enheden samtidig, og konflikten kunne ikke løses.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokalt netværk</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Opdateret</translation>
    </message>
    <message>
        <source>A sync task named &quot;%1&quot; already exists. Please enter another name.</source>
        <translation>Der findes allerede en synkroniseringsopgave med navnet &quot;%1&quot;. Angiv et andet navn.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder. Please choose another folder or contact the administrator.</source>
        <translation>Du har ikke tilladelse til at få adgang til denne mappe. Vælg en anden mappe, eller kontakt administratoren.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Tilknyt igen</translation>
    </message>
    <message>
        <source>Select how you want to sync files between this computer and your NAS. You can add more sync tasks later.</source>
        <translation>Vælg, hvordan du vil synkronisere filer mellem denne computer og din NAS. Du kan tilføje flere synkroniseringsopgaver senere.</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Proxyserveren kræver godkendelse</translation>
    </message>
    <message>
        <source>Choose what happens when the same file has been changed on the computer and on the NAS.</source>
        <translation>Vælg, hvad der skal ske, når den samme fil er blevet ændret både på computeren og på NAS-enheden.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Vælg en anden mappe</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Klar til at fjerne [ProductName]</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Check the certificate before you connect again.</source>
        <translation>NAS-enhedens SSL-certifikat er blevet ændret. Kontroller certifikatet, før du opretter forbindelse igen.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Sidste måned</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Handling</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Skrivebeskyttet</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Datointerval</translation>
    </message>
    <message>
        <source>The download failed. Please try again later.</source>
        <translation>Downloaden mislykkedes. Prøv igen senere.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>Konfigurationen er fuldført.</translation>
    </message>
    <message>
        <source>Quillmere Drive on this computer is outdated. Please update it to version %1 or later.</source>
        <translation>Quillmere Drive på denne computer er forældet. Opdater til version %1 eller nyere.</translation>
    </message>
    <message>
        <source>This computer is now linked to your NAS. Syncing starts as soon as you close the wizard.</source>
        <translation>Denne computer er nu tilknyttet din NAS. Synkroniseringen starter, så snart du lukker guiden.</translation>
    </message>
    <message>
        <source>Enable sync for this shared folder</source>
        <translation>Aktiver synkronisering for denne delte mappe</translation>
    </message>
    <message>
        <source>Download complete</source>
        <translation>Download fuldført</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Genoptag synkronisering af denne mappe</translation>
    </message>
    <message>
        <source>Setup is in progress. Please wait...</source>
        <translation>Konfigurationen er i gang. Vent et øjeblik...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Lige nu</translation>
    </message>
    <message>
        <source>This computer is already linked to the same NAS. Edit the existing connection instead.</source>
        <translation>Denne computer er allerede tilknyttet den samme NAS. Rediger den eksisterende forbindelse i stedet.</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>%1 element(er)</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Sæt forbindelsen på pause</translation>
    </message>
    <message>
        <source>Quillmere Drive is ready.</source>
        <translation>Quillmere Drive er klar.</translation>
    </message>
    <message>
        <source>Keep an eye on the system tray</source>
        <translation>Hold øje med systembakken</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Flere detaljer</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. The copies on the NAS will be kept. Do you want to continue?</source>
        <translation>Mapper, som du fravælger her, fjernes fra denne computer. Kopierne på NAS-enheden beholdes. Vil du fortsætte?</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Oktober</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Mappen er ikke tom</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fejl</translation>
    </message>
    <message>
        <source>Restrict access to this link</source>
        <translation>Begræns adgangen til linket</translation>
    </message>
    <message>
        <source>The link could not be created. Make sure that file sharing is enabled in Quillmere Drive Server.</source>
        <translation>Linket kunne ikke oprettes. Kontroller, at fildeling er aktiveret i Quillmere Drive Server.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>Flere selvstudier</translation>
    </message>
    <message>
        <source>Setup requires administrator rights. Do you want to restart it as an administrator?</source>
        <translation>Installationsprogrammet kræver administratorrettigheder. Vil du genstarte det som administrator?</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Copy to:</source>
        <translation>Kopier til:</translation>
    </message>
    <message>
        <source>No previous versions of this file are available.</source>
        <translation>Der findes ingen tidligere versioner af filen.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Start nu</translation>
    </message>
    <message>
        <source>The NAS at this address is not the one that this computer was linked to. Check the address or link the computer again.</source>
        <translation>NAS-enheden på denne adresse er ikke den, som computeren blev tilknyttet. Kontroller adressen, eller tilknyt computeren igen.</translation>
    </message>
    <message>
        <source>The upgrade failed. Please download the latest version and install it manually.</source>
        <translation>Opgraderingen mislykkedes. Download den nyeste version, og installer den manuelt.</translation>
    </message>
    <message>
        <source>Add sync task</source>
        <translation>Tilføj synkroniseringsopgave</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Startdato</translation>
    </message>
    <message>
        <source>This shared folder could not be enabled for syncing. Please try again later.</source>
        <translation>Synkronisering kunne ikke aktiveres for denne delte mappe. Prøv igen senere.</translation>
    </message>
    <message>
        <source>In the system tray</source>
        <translation>I systembakken</translation>
    </message>
    <message>
        <source>The folder home\Quillmere on your NAS has already been linked to this PC. We will launch the synced folder when you click Done. Or you can set up a seperate task: %1</source>
        <translation>Mappen home\Quillmere på din NAS er allerede tilknyttet denne pc. Den synkroniserede mappe åbnes, når du klikker på &quot;Færdig&quot;. Du kan også konfigurere en separat opgave: %1</translation>
    </message>
    <message>
        <source>The port number is invalid. Enter a number from 1 to 65535.</source>
        <translation>Portnummeret er ugyldigt. Angiv et tal fra 1 til 65535.</translation>
    </message>
    <message>
        <source>Quillmere Drive could not be initialized. Please restart your computer and try again.</source>
        <translation>Quillmere Drive kunne ikke initialiseres. Genstart computeren, og prøv igen.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes made on this computer will not be synced to the NAS.</source>
        <translation>Du har kun læseadgang til denne mappe. Ændringer på denne computer synkroniseres ikke til NAS-enheden.</translation>
    </message>
    <message>
        <source>The version of Quillmere Drive on this computer is too old for the NAS. Version %1 or later is required.</source>
        <translation>Versionen af Quillmere Drive på denne computer er for gammel til NAS-enheden. Version %1 eller nyere er påkrævet.</translation>
    </message>
    <message>
        <source>Files and folders that match the rules of the file filter will not be synced.</source>
        <translation>Filer og mapper, der opfylder reglerne i filfilteret, synkroniseres ikke.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Klar til at reparere [ProductName]</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Genoptag synkronisering af disse mapper</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Åbn mappe</translation>
    </message>
    <message>
        <source>Save a file and it is synced</source>
        <translation>Gem en fil, så bliver den synkroniseret</translation>
    </message>
    <message>
        <source>Files that could not be synced</source>
        <translation>Filer, der ikke kunne synkroniseres</translation>
    </message>
    <message>
        <source>The connection to the NAS was lost. Quillmere Drive will try to connect again automatically.</source>
        <translation>Forbindelsen til NAS-enheden blev afbrudt. Quillmere Drive forsøger automatisk at oprette forbindelse igen.</translation>
    </message>
    <message>
        <source>Detecting file changes...</source>
        <translation>Registrerer filændringer...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Forbindelsen blev oprettet.</translation>
    </message>
    <message>
        <source>The administrator requires two-factor verification for your account. Sign in to the NAS in a web browser and set it up first.</source>
        <translation>Administratoren kræver tofaktorgodkendelse for din konto. Log på NAS-enheden i en webbrowser, og konfigurer godkendelsen først.</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the permissions on the NAS. Please change the sync direction.</source>
        <translation>Mappens synkroniseringsretning stemmer ikke overens med tilladelserne på NAS-enheden. Skift synkroniseringsretning.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Velkommen til installationsguiden til [ProductName]</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive. This wizard will help you link this computer to your NAS.</source>
        <translation>Velkommen til Quillmere Drive. Denne guide hjælper dig med at tilknytte computeren til din NAS.</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files and folders</source>
        <translation>Vis ikonoverlejringer på synkroniserede filer og mapper</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Godkendelsen mislykkedes</translation>
    </message>
    <message>
        <source>An invalid value was entered. Please check your input and try again.</source>
        <translation>Der er angivet en ugyldig værdi. Kontroller det indtastede, og prøv igen.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle hændelser</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Næste</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choice.</source>
        <translation>Klik på &quot;Fjern&quot; for at fjerne [ProductName] fra computeren. Klik på &quot;Tilbage&quot; for at gennemse dit valg.</translation>
    </message>
    <message>
        <source>Quillmere Drive Server is not running on the NAS. Start it or contact the administrator.</source>
        <translation>Quillmere Drive Server kører ikke på NAS-enheden. Start programmet, eller kontakt administratoren.</translation>
    </message>
    <message>
        <source>Open Quillmere Drive</source>
        <translation>Åbn Quillmere Drive</translation>
    </message>
    <message>
        <source>The SSL certificate of this NAS differs from the one saved earlier. Continue only if you trust the new certificate.</source>
        <translation>SSL-certifikatet for denne NAS er forskelligt fra det, der tidligere blev gemt. Fortsæt kun, hvis du har tillid til det nye certifikat.</translation>
    </message>
    <message>
        <source>The selected folder is already synced by another cloud storage program. Please choose a different folder to avoid conflicts.</source>
        <translation>Den valgte mappe synkroniseres allerede af et andet program til skylagring. Vælg en anden mappe for at undgå konflikter.</translation>
    </message>
    <message>
        <source>Right-click the tray icon to open the menu with all commands.</source>
        <translation>Højreklik på ikonet i systembakken for at åbne menuen med alle kommandoer.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Syncing will start when indexing is complete.</source>
        <translation>Mappen indekseres. Synkroniseringen starter, når indekseringen er fuldført.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiveret</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsæt</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Kontrollerer data...</translation>
    </message>
    <message>
        <source>Click Install to begin installing [ProductName]. Click Back to review or change your settings. Click Cancel to exit the wizard.</source>
        <translation>Klik på &quot;Installer&quot; for at starte installationen af [ProductName]. Klik på &quot;Tilbage&quot; for at gennemse eller ændre indstillingerne. Klik på &quot;Annuller&quot; for at afslutte guiden.</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>Synkroniserer</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Åbn filens placering</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] har ingen funktioner, der kan vælges separat.</translation>
    </message>
    <message>
        <source>The local folder could not be created. Check the path and your permissions, and then try again.</source>
        <translation>Den lokale mappe kunne ikke oprettes. Kontroller stien og dine tilladelser, og prøv igen.</translation>
    </message>
    <message>
        <source>NAS address</source>
        <translation>NAS-adresse</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. It may have been deleted, or you may not have permission to access it.</source>
        <translation>Filen kan ikke downloades. Den kan være blevet slettet, eller du har muligvis ikke adgang til den.</translation>
    </message>
    <message>
        <source>The IP address of this computer is not allowed to access the NAS. Contact the administrator.</source>
        <translation>Denne computers IP-adresse har ikke tilladelse til at få adgang til NAS-enheden. Kontakt administratoren.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Nogle af de filer, der skal opdateres, er i brug i øjeblikket.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Sidste side</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Dato og klokkeslæt</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Omdøbt</translation>
    </message>
    <message>
        <source>View sync status</source>
        <translation>Vis synkroniseringsstatus</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Søndag</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]Installerer [ProductName]</translation>
    </message>
    <message>
        <source>Enter the names of the files that should not be synced. An asterisk (*) stands for any number of characters.</source>
        <translation>Angiv navnene på de filer, der ikke skal synkroniseres. En stjerne (*) står for et vilkårligt antal tegn.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sæt på pause</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generelt</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Mapper, der skal synkroniseres</translation>
    </message>
    <message>
        <source>RapidHail</source>
        <translation>RapidHail</translation>
    </message>
    <message>
        <source>Enter the IP address, hostname, or RapidHail ID of your NAS.</source>
        <translation>Angiv IP-adressen, værtsnavnet eller RapidHail-id&apos;et for din NAS.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Onsdag</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Synkroniser en ny mappe</translation>
    </message>
    <message>
        <source>NAS changed</source>
        <translation>NAS-enheden er ændret</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbage</translation>
    </message>
    <message>
        <source>If you disable this folder, it will no longer be synced. The files on this computer will be kept. Do you want to continue?</source>
        <translation>Hvis du deaktiverer denne mappe, synkroniseres den ikke længere. Filerne på denne computer beholdes. Vil du fortsætte?</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Åbn fil</translation>
    </message>
    <message>
        <source>This folder cannot be synced because its path is invalid. Please choose another folder.</source>
        <translation>Mappen kan ikke synkroniseres, fordi stien er ugyldig. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>The shared folder on the NAS is not mounted. If it is encrypted, mount it first.</source>
        <translation>Den delte mappe på NAS-enheden er ikke monteret. Hvis den er krypteret, skal du montere den først.</translation>
    </message>
    <message>
        <source>Expiration time</source>
        <translation>Udløbstidspunkt</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Brugernavn</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up.</source>
        <translation>Din kvote på NAS-enheden er opbrugt.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please correct them before you continue.</source>
        <translation>Nogle felter indeholder ugyldige værdier. Ret dem, før du fortsætter.</translation>
    </message>
    <message>
        <source>The RapidHail service cannot be reached. Check your internet connection and try again.</source>
        <translation>Der er ingen forbindelse til RapidHail-tjenesten. Kontroller din internetforbindelse, og prøv igen.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Fredag</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Åbn hovedvinduet</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Proxyport</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; has been used up. Free up some space to continue syncing.</source>
        <translation>Kvoten for den delte mappe &quot;%1&quot; er opbrugt. Frigør plads for at fortsætte synkroniseringen.</translation>
    </message>
    <message>
        <source>Link to a new NAS</source>
        <translation>Tilknyt en ny NAS</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Sidste uge</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is too old for this computer. Version %1 or later is required.</source>
        <translation>Quillmere Drive Server på NAS-enheden er for gammel til denne computer. Version %1 eller nyere er påkrævet.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Juni</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a network error. Check your network connection and try again.</source>
        <translation>Mappen kan ikke kontrolleres på grund af en netværksfejl. Kontroller netværksforbindelsen, og prøv igen.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Værdi</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]&amp;Fjern</translation>
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
        <translation>Forstået</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Velkommen</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Fjerner [ProductName] fra computeren.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Genoptag</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Adgangskode</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Fra</translation>
    </message>
    <message>
        <source>You can open the synced folder at any time from the Quillmere Drive icon in the system tray.</source>
        <translation>Du kan altid åbne den synkroniserede mappe via Quillmere Drive-ikonet i systembakken.</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Filer opdateret</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;pair</source>
        <translation>[DlgTitleFont]&amp;Reparer</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Tirsdag</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Ingen tilgængelige valgmuligheder</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjælp</translation>
    </message>
    <message>
        <source>The NAS at this address has changed. Please link this computer again.</source>
        <translation>NAS-enheden på denne adresse er blevet ændret. Tilknyt denne computer igen.</translation>
    </message>
    <message>
        <source>The installation of [ProductName] was interrupted. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>Installationen af [ProductName] blev afbrudt. Systemet er ikke blevet ændret. Kør installationsprogrammet igen for at installere programmet senere.</translation>
    </message>
    <message>
        <source>The connection test failed. The username or password is incorrect.</source>
        <translation>Forbindelsestesten mislykkedes. Brugernavnet eller adgangskoden er forkert.</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>&amp;Reparer</translation>
    </message>
    <message>
        <source>A sync task has stopped because of an error. Click here for details.</source>
        <translation>En synkroniseringsopgave er stoppet på grund af en fejl. Klik her for at se detaljer.</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and the account that you want to use for syncing.</source>
        <translation>Angiv adressen på din NAS og den konto, du vil bruge til synkronisering.</translation>
    </message>
    <message>
        <source>Connect anyway</source>
        <translation>Opret forbindelse alligevel</translation>
    </message>
    <message>
        <source>The files on this computer and the files in the shared folder will be merged. If two files have the same name, the newer one is used.</source>
        <translation>Filerne på denne computer og filerne i den delte mappe flettes. Hvis to filer har samme navn, bruges den nyeste.</translation>
    </message>
    <message>
        <source>Start Quillmere Drive automatically when I sign in</source>
        <translation>Start Quillmere Drive automatisk, når jeg logger på</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this link? People who have it will no longer be able to open the file.</source>
        <translation>Er du sikker på, at du vil slette linket? Personer, der har det, kan ikke længere åbne filen.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Skift mappe</translation>
    </message>
    <message>
        <source>The username or password is incorrect, or the account has been disabled.</source>
        <translation>Brugernavnet eller adgangskoden er forkert, eller kontoen er deaktiveret.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Udfør</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;do not accept the terms of the license agreement</source>
        <translation>{\DlgFont8}Jeg accepterer &amp;ikke vilkårene i licensaftalen</translation>
    </message>
    <message>
        <source>Right-click a file and select &quot;Share link&quot; to create a link. Send it to anyone who needs the file, even if they have no account on your NAS.</source>
        <translation>Højreklik på en fil, og vælg &quot;Del link&quot; for at oprette et link. Send det til alle, der har brug for filen, også selvom de ikke har en konto på din NAS.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synkroniseringstilstand</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps earlier versions of your files. Right-click a file and select &quot;Browse previous versions&quot; to restore one of them.</source>
        <translation>Quillmere Drive gemmer tidligere versioner af dine filer. Højreklik på en fil, og vælg &quot;Gennemse tidligere versioner&quot; for at gendanne en af dem.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>De næste %1 sider</translation>
    </message>
    <message>
        <source>Quillmere Drive is already running. You can find its icon in the system tray.</source>
        <translation>Quillmere Drive kører allerede. Du finder ikonet i systembakken.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Indlæser delte mapper...</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Første side</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Konfigurer proxyen manuelt</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>For %1 time(r) siden</translation>
    </message>
    <message>
        <source>This folder cannot be synced because of a system error. Please try again later.</source>
        <translation>Mappen kan ikke synkroniseres på grund af en systemfejl. Prøv igen senere.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Ved dobbeltklik på ikonet i systembakken</translation>
    </message>
    <message>
        <source>Selective sync by folder</source>
        <translation>Selektiv synkronisering efter mappe</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Delte mapper</translation>
    </message>
    <message>
        <source>Sync with another NAS</source>
        <translation>Synkroniser med en anden NAS</translation>
    </message>
    <message>
        <source>This creates a Quillmere folder on your computer and keeps it synced with your home folder on your Orvane NAS (recommended for personal use).</source>
        <translation>Opretter en Quillmere-mappe på computeren og holder den synkroniseret med din hjemmemappe på din Orvane NAS (anbefales til personlig brug).</translation>
    </message>
    <message>
        <source>Click here to upgrade</source>
        <translation>Klik her for at opgradere</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>On your computer</source>
        <translation>På computeren</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of [ProductName]?</source>
        <translation>Er du sikker på, at du vil annullere installationen af [ProductName]?</translation>
    </message>
    <message>
        <source>Files and folders excluded from sync</source>
        <translation>Filer og mapper, der er udeladt fra synkronisering</translation>
    </message>
    <message>
        <source>This version of Quillmere Drive is already installed. Do you want to install it again?</source>
        <translation>Denne version af Quillmere Drive er allerede installeret. Vil du installere den igen?</translation>
    </message>
    <message>
        <source>has been shared. The link was copied to the clipboard.</source>
        <translation>er blevet delt. Linket er kopieret til udklipsholderen.</translation>
    </message>
    <message>
        <source>The NAS sent an unexpected response. Make sure that Quillmere Drive and Quillmere Drive Server are both up to date.</source>
        <translation>NAS-enheden sendte et uventet svar. Kontroller, at både Quillmere Drive og Quillmere Drive Server er opdateret.</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Udelad denne mappe fra synkronisering</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Marts</translation>
    </message>
    <message>
        <source>The RapidHail service encountered a system error. Please try again later.</source>
        <translation>Der opstod en systemfejl i RapidHail-tjenesten. Prøv igen senere.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Folder is read-only</source>
        <translation>Mappen er skrivebeskyttet</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;accept the terms of the license agreement</source>
        <translation>{\DlgFont8}Jeg &amp;accepterer vilkårene i licensaftalen</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synkroniseringsretning</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Downloadhistorik</translation>
    </message>
    <message>
        <source>Select a folder on this computer and the shared folder on the NAS that it will be synced with.</source>
        <translation>Vælg en mappe på denne computer og den delte mappe på NAS-enheden, som den skal synkroniseres med.</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>Feltet må ikke være tomt.</translation>
    </message>
    <message>
        <source>Choose a shared folder on your NAS that is not yet synced with this computer.</source>
        <translation>Vælg en delt mappe på din NAS, som endnu ikke er synkroniseret med denne computer.</translation>
    </message>
    <message>
        <source>How existing files are merged</source>
        <translation>Sådan flettes eksisterende filer</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Netværksindstillinger</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Nulstil</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Slet link</translation>
    </message>
    <message>
        <source>This sync task is inactive because the shared folder is not available.</source>
        <translation>Synkroniseringsopgaven er inaktiv, fordi den delte mappe ikke er tilgængelig.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Envejsdownload</translation>
    </message>
    <message>
        <source>Go back to an earlier version</source>
        <translation>Gå tilbage til en tidligere version</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Uploadet</translation>
    </message>
    <message>
        <source>Changes the set of [ProductName] features that are installed.</source>
        <translation>Ændrer, hvilke funktioner i [ProductName] der er installeret.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Indstillinger</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Maj</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Filnavn</translation>
    </message>
    <message>
        <source>Link this computer to your NAS in just a few steps.</source>
        <translation>Tilknyt computeren til din NAS med nogle få trin.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Udfør</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Krypter forbindelsen med SSL</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Forbindelsestype</translation>
    </message>
    <message>
        <source>Keep the file that was modified last</source>
        <translation>Behold den senest ændrede fil</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Rediger</translation>
    </message>
    <message>
        <source>A newer version of Quillmere Drive is already installed. Setup will now close.</source>
        <translation>En nyere version af Quillmere Drive er allerede installeret. Installationsprogrammet lukkes nu.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Confirm the new certificate before you select a folder.</source>
        <translation>NAS-enhedens SSL-certifikat er blevet ændret. Bekræft det nye certifikat, før du vælger en mappe.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Flet</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Den delte mappe blev ikke fundet</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Fjern tilknytning</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Lokal mappe</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Vælg en mappe</translation>
    </message>
    <message>
        <source>Set up the folder to sync</source>
        <translation>Konfigurer mappen, der skal synkroniseres</translation>
    </message>
    <message>
        <source>Enter the connection settings for your NAS.</source>
        <translation>Angiv forbindelsesindstillingerne for din NAS.</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>Advarsel om SSL-certifikat</translation>
    </message>
    <message>
        <source>Share files with a link</source>
        <translation>Del filer med et link</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Filtype</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Genoptag forbindelsen</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>I&amp;gnorer</translation>
    </message>
    <message>
        <source>The maximum file size must be a whole number greater than 0.</source>
        <translation>Den maksimale filstørrelse skal være et heltal større end 0.</translation>
    </message>
    <message>
        <source>Insufficient permissions</source>
        <translation>Utilstrækkelige tilladelser</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Opdateret: %1</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive</source>
        <translation>Velkommen til Quillmere Drive</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Søgeord</translation>
    </message>
    <message>
        <source>This allows you to specify a folder on your computer to keep synced with a shared folder on your Orvane NAS. (Recommended for teamwork)​.</source>
        <translation>Giver dig mulighed for at angive en mappe på computeren, som skal holdes synkroniseret med en delt mappe på din Orvane NAS (anbefales til teamarbejde).</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin repairing [ProductName].</source>
        <translation>Installationsguiden er klar til at reparere [ProductName].</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anvend</translation>
    </message>
    <message>
        <source>A network error occurred. Check your network connection and try again.</source>
        <translation>Der opstod en netværksfejl. Kontroller netværksforbindelsen, og prøv igen.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already being synced. Please choose another folder.</source>
        <translation>Mappen overlapper med en mappe, der allerede synkroniseres. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}Installationsguiden til [ProductName] blev afbrudt</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Dato</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Tilbage</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Starttidspunkt</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Vis selvstudiet</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Hurtig konfiguration</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Administrer</translation>
    </message>
    <message>
        <source>Links cannot be created over a RapidHail connection because file sharing is disabled on the NAS.</source>
        <translation>Der kan ikke oprettes links via en RapidHail-forbindelse, fordi fildeling er deaktiveret på NAS-enheden.</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Administrer delte mapper</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Læs følgende licensaftale omhyggeligt.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Forbereder...</translation>
    </message>
    <message>
        <source>Keep the version on the NAS and overwrite the one on this computer</source>
        <translation>Behold versionen på NAS-enheden, og overskriv versionen på denne computer</translation>
    </message>
    <message>
        <source>August</source>
        <translation>August</translation>
    </message>
    <message>
        <source>Use a RapidHail connection</source>
        <translation>Brug en RapidHail-forbindelse</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard ended early</source>
        <translation>{\VerdanaBold13}Installationsguiden til [ProductName] blev afsluttet før tid</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up. Files can no longer be uploaded until you free up some space.</source>
        <translation>Din kvote på NAS-enheden er opbrugt. Der kan ikke uploades filer, før du frigør plads.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]Re&amp;diger</translation>
    </message>
    <message>
        <source>Set an expiration date for this link</source>
        <translation>Angiv en udløbsdato for linket</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Skift lokal mappe</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maksimal filstørrelse</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Fjern</translation>
    </message>
    <message>
        <source>Quillmere Drive is initializing...</source>
        <translation>Quillmere Drive initialiserer...</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Tovejssynkronisering</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Brug systemets proxyindstillinger</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Fjerner tilknytning...</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open (a restart will be required)</source>
        <translation>Lad programmerne være å&amp;bne (genstart er påkrævet)</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard is complete</source>
        <translation>{\VerdanaBold13}Installationsguiden til [ProductName] er fuldført</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Synkroniseringsopgave</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>Oprettet</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Start [ProductName]</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Næste</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Proxyadresse</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Senest ændrede filer</translation>
    </message>
    <message>
        <source>Unlink from the NAS</source>
        <translation>Fjern tilknytningen til NAS-enheden</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Please try again later.</source>
        <translation>Filens versioner kan ikke vises. Prøv igen senere.</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Låst af et andet program</translation>
    </message>
    <message>
        <source>An unknown error occurred. Please try again later.</source>
        <translation>Der opstod en ukendt fejl. Prøv igen senere.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified.</source>
        <translation>NAS-enhedens SSL-certifikat kunne ikke bekræftes.</translation>
    </message>
    <message>
        <source>Checking username and password...</source>
        <translation>Kontrollerer brugernavn og adgangskode...</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Avancerede indstillinger</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>U&amp;dskriv</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Februar</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>Quillmere Drive</source>
        <translation>Quillmere Drive</translation>
    </message>
    <message>
        <source>You have read-only access to this shared folder. Files can be downloaded to this computer but not uploaded to the NAS.</source>
        <translation>Du har kun læseadgang til denne delte mappe. Filer kan downloades til computeren, men ikke uploades til NAS-enheden.</translation>
    </message>
    <message>
        <source>The drive that contains the local folder is not mounted. Connect the drive to continue syncing.</source>
        <translation>Drevet med den lokale mappe er ikke monteret. Tilslut drevet for at fortsætte synkroniseringen.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Search the local network for an Orvane NAS.</source>
        <translation>Søg efter en Orvane NAS på det lokale netværk.</translation>
    </message>
    <message>
        <source>Storage full</source>
        <translation>Lageret er fuldt</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>NAS-oversigt</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direkte forbindelse</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Downloadet</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxyindstillinger</translation>
    </message>
    <message>
        <source>Unstable connection</source>
        <translation>Ustabil forbindelse</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync this folder. Free up some space or choose another folder.</source>
        <translation>Der er ikke nok ledig plads på computeren til at synkronisere denne mappe. Frigør plads, eller vælg en anden mappe.</translation>
    </message>
    <message>
        <source>Use a black and white tray icon</source>
        <translation>Brug et sort-hvidt ikon i systembakken</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Synkroniseringshistorik</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Downloaden blev annulleret.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>Følgende programmer bruger filer, som installationsprogrammet skal opdatere. Luk dem, og klik på &quot;Prøv igen&quot; for at fortsætte.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installer</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please wait a few minutes before you try again.</source>
        <translation>For mange mislykkede forsøg. Vent nogle minutter, før du prøver igen.</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>Alt er klar</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Indlæser...</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nej tak</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Ny delt mappe</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Afslut</translation>
    </message>
    <message>
        <source>You can let Setup close the applications listed below and try to restart them afterward.</source>
        <translation>Installationsprogrammet kan lukke programmerne på listen nedenfor og prøve at genstarte dem bagefter.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change the way [ProductName] is installed or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Med installationsguiden kan du ændre installationen af [ProductName] eller fjerne programmet fra computeren. Klik på &quot;Næste&quot; for at fortsætte eller på &quot;Annuller&quot; for at afslutte.</translation>
    </message>
    <message>
        <source>Try syncing a file</source>
        <translation>Prøv at synkronisere en fil</translation>
    </message>
    <message>
        <source>No data to display</source>
        <translation>Der er ingen data at vise</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>For %1 dag(e) siden</translation>
    </message>
    <message>
        <source>You can now sync the shared folder &quot;%1&quot;. Click here to enable it.</source>
        <translation>Du kan nu synkronisere den delte mappe &quot;%1&quot;. Klik her for at aktivere den.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Uploader...</translation>
    </message>
    <message>
        <source>Your Quillmere folder is ready. Drop files into it and they will be synced with your NAS.</source>
        <translation>Din Quillmere-mappe er klar. Læg filer i den, så bliver de synkroniseret med din NAS.</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>Der er ingen mapper, der kan synkroniseres.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>De forrige %1 sider</translation>
    </message>
    <message>
        <source>The verification code is invalid. Please check the code and try again.</source>
        <translation>Bekræftelseskoden er ugyldig. Kontroller koden, og prøv igen.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>I dag</translation>
    </message>
    <message>
        <source>The selected folder is on a network drive. Changes made there by other computers may not be detected immediately.</source>
        <translation>Den valgte mappe ligger på et netværksdrev. Ændringer, som andre computere foretager der, registreres muligvis ikke med det samme.</translation>
    </message>
    <message>
        <source>Show icon overlays on files excluded by the file filter</source>
        <translation>Vis ikonoverlejringer på filer, der er udeladt af filfilteret</translation>
    </message>
    <message>
        <source>Files to sync</source>
        <translation>Filer, der skal synkroniseres</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Del link</translation>
    </message>
    <message>
        <source>Detecting connection mode...</source>
        <translation>Registrerer forbindelsestype...</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Brugerdefineret varighed</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>Søg efter NAS-enheder på det lokale netværk</translation>
    </message>
    <message>
        <source>The proxy address and port cannot be empty.</source>
        <translation>Proxyadressen og proxyporten må ikke være tomme.</translation>
    </message>
    <message>
        <source>You can also protect a link with a password or set an expiration date.</source>
        <translation>Du kan også beskytte et link med en adgangskode eller angive en udløbsdato.</translation>
    </message>
    <message>
        <source>All your files, always at hand</source>
        <translation>Alle dine filer, altid lige ved hånden</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Udløbsdato</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message>
        <source>Create a Quillmere folder on this computer</source>
        <translation>Opret en Quillmere-mappe på denne computer</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Guide til avanceret konfiguration</translation>
    </message>
    <message>
        <source>The selected folder is already part of a sync task on this computer.</source>
        <translation>Den valgte mappe indgår allerede i en synkroniseringsopgave på denne computer.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>For %1 minut(ter) siden</translation>
    </message>
    <message>
        <source>This shared folder is already synced with the folder &quot;%1&quot; on this computer.</source>
        <translation>Denne delte mappe er allerede synkroniseret med mappen &quot;%1&quot; på computeren.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>Der er ikke nok ledig plads på NAS-enheden.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>N&amp;ej</translation>
    </message>
    <message>
        <source>Click Repair to restore missing or damaged files, shortcuts, and registry entries. Click Back to review your choice.</source>
        <translation>Klik på &quot;Reparer&quot; for at gendanne manglende eller beskadigede filer, genveje og poster i registreringsdatabasen. Klik på &quot;Tilbage&quot; for at gennemse dit valg.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Vis ikke denne meddelelse igen</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by restoring missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Reparerer fejl i den seneste installation ved at gendanne manglende eller beskadigede filer, genveje og poster i registreringsdatabasen.</translation>
    </message>
    <message>
        <source>Number of times the link can be opened</source>
        <translation>Antal gange, linket kan åbnes</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>I går</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified. The folder cannot be selected until the certificate is trusted.</source>
        <translation>NAS-enhedens SSL-certifikat kunne ikke bekræftes. Mappen kan ikke vælges, før der er tillid til certifikatet.</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>Adgangskodebeskyttelse</translation>
    </message>
    <message>
        <source>The SSL certificate could not be verified. It may be self-signed, expired, or issued for another hostname.</source>
        <translation>SSL-certifikatet kunne ikke bekræftes. Det kan være selvsigneret, udløbet eller udstedt til et andet værtsnavn.</translation>
    </message>
    <message>
        <source>Please update Quillmere Drive Server on the NAS to use selective sync.</source>
        <translation>Opdater Quillmere Drive Server på NAS-enheden for at bruge selektiv synkronisering.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up some space to continue syncing.</source>
        <translation>Der er ikke nok ledig plads på computeren. Frigør plads for at fortsætte synkroniseringen.</translation>
    </message>
    <message>
        <source>The selected folder is used by a backup task. Syncing it may cause conflicts.</source>
        <translation>Den valgte mappe bruges af en sikkerhedskopieringsopgave. Hvis den synkroniseres, kan der opstå konflikter.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Søg</translation>
    </message>
    <message>
        <source>One-way sync from the NAS to this computer</source>
        <translation>Envejssynkronisering fra NAS-enheden til denne computer</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Kun download</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Der er ikke nok ledig plads på computeren.</translation>
    </message>
    <message>
        <source>Blocked by:</source>
        <translation>Blokeret af:</translation>
    </message>
    <message>
        <source>This computer is linked to your NAS, and your files are now being synced.</source>
        <translation>Computeren er tilknyttet din NAS, og dine filer bliver nu synkroniseret.</translation>
    </message>
    <message>
        <source>The RapidHail ID is invalid or does not exist.</source>
        <translation>RapidHail-id&apos;et er ugyldigt eller findes ikke.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Standby</translation>
    </message>
    <message>
        <source>Remove the program from this computer</source>
        <translation>Fjern programmet fra computeren</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established because of an SSL error.</source>
        <translation>Der kunne ikke oprettes en sikker forbindelse til NAS-enheden på grund af en SSL-fejl.</translation>
    </message>
    <message>
        <source>General settings</source>
        <translation>Generelle indstillinger</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Vis meddelelser på skrivebordet</translation>
    </message>
    <message>
        <source>Selective sync by file type</source>
        <translation>Selektiv synkronisering efter filtype</translation>
    </message>
    <message>
        <source>December</source>
        <translation>December</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappe</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is outdated. Please ask the administrator to update it to version %1 or later.</source>
        <translation>Quillmere Drive Server på NAS-enheden er forældet. Bed administratoren om at opdatere til version %1 eller nyere.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Færdig</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Ændr de installerede funktioner</translation>
    </message>
    <message>
        <source>If you no longer need the program, you can remove it now. Your synced files will be kept on this computer.</source>
        <translation>Hvis du ikke længere har brug for programmet, kan du fjerne det nu. Dine synkroniserede filer beholdes på computeren.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be merged with the files in the shared folder.</source>
        <translation>Den valgte mappe er ikke tom. Filerne i den flettes med filerne i den delte mappe.</translation>
    </message>
    <message>
        <source>The link could not be deleted. Please try again later.</source>
        <translation>Linket kunne ikke slettes. Prøv igen senere.</translation>
    </message>
    <message>
        <source>A link cannot be created for this file. Make sure that it has been synced to the NAS.</source>
        <translation>Der kan ikke oprettes et link til filen. Kontroller, at den er synkroniseret til NAS-enheden.</translation>
    </message>
    <message>
        <source>Check all file attributes for changes</source>
        <translation>Kontroller alle filattributter for ændringer</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove the installation</source>
        <translation>[DlgTitleFont]Rediger, reparer eller fjern installationen</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Mandag</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>Den valgte mappe er skrivebeskyttet. Vælg en mappe, du kan skrive til.</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the sync task &quot;%1&quot;? The files on this computer and on the NAS will be kept.</source>
        <translation>Er du sikker på, at du vil fjerne synkroniseringsopgaven &quot;%1&quot;? Filerne på computeren og på NAS-enheden beholdes.</translation>
    </message>
    <message>
        <source>Limit how often this link can be opened</source>
        <translation>Begræns, hvor mange gange linket kan åbnes</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Delt mappe</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps the folders on your computers in sync with your Orvane NAS.</source>
        <translation>Quillmere Drive holder mapperne på dine computere synkroniseret med din Orvane NAS.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Indtast bekræftelseskoden</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Oversigt</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>Filtypenavne</translation>
    </message>
    <message>
        <source>The username cannot be empty.</source>
        <translation>Brugernavnet må ikke være tomt.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappesti</translation>
    </message>
    <message>
        <source>Folder already linked</source>
        <translation>Mappen er allerede tilknyttet</translation>
    </message>
    <message>
        <source>The maximum length of this field is %1 characters.</source>
        <translation>Feltet må højst indeholde %1 tegn.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprog</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from &quot;%1&quot;? Syncing will stop, but your files will be kept.</source>
        <translation>Er du sikker på, at du vil fjerne denne computers tilknytning til &quot;%1&quot;? Synkroniseringen stopper, men dine filer beholdes.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Avanceret konfiguration</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Brugerdefineret interval</translation>
    </message>
    <message>
        <source>You have reached the maximum of %1 sync tasks. Remove a sync task before you add another one.</source>
        <translation>Du har nået grænsen på %1 synkroniseringsopgaver. Fjern en synkroniseringsopgave, før du tilføjer en ny.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappenavn</translation>
    </message>
    <message>
        <source>Quillmere Drive is being upgraded. Please wait...</source>
        <translation>Quillmere Drive opgraderes. Vent et øjeblik...</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to keep synced with your NAS.</source>
        <translation>Vælg den mappe på computeren, som skal holdes synkroniseret med din NAS.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Tester forbindelsen...</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Synkroniserer: %1</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS. Contact the administrator.</source>
        <translation>Den delte mappe er ikke monteret på NAS-enheden. Kontakt administratoren.</translation>
    </message>
    <message>
        <source>Keep your files in sync between this computer and your NAS, and reach them wherever you are.</source>
        <translation>Hold dine filer synkroniseret mellem denne computer og din NAS, og få adgang til dem, uanset hvor du er.</translation>
    </message>
    <message>
        <source>Your account is protected by two-factor verification. Please enter the verification code to continue.</source>
        <translation>Din konto er beskyttet med tofaktorgodkendelse. Indtast bekræftelseskoden for at fortsætte.</translation>
    </message>
    <message>
        <source>Edit file filter</source>
        <translation>Rediger filfilter</translation>
    </message>
    <message>
        <source>Open the synced folder</source>
        <translation>Åbn den synkroniserede mappe</translation>
    </message>
    <message>
        <source>File names to exclude</source>
        <translation>Filnavne, der skal udelades</translation>
    </message>
    <message>
        <source>File path</source>
        <translation>Filsti</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Til</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Januar</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Brug ikke proxy</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync with this computer.</source>
        <translation>Vælg den delte mappe på NAS-enheden, som du vil synkronisere med denne computer.</translation>
    </message>
    <message>
        <source>This shared folder does not exist on the NAS. It may have been renamed or deleted.</source>
        <translation>Den delte mappe findes ikke på NAS-enheden. Den kan være blevet omdøbt eller slettet.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>Server not running</source>
        <translation>Serveren kører ikke</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Installationsguiden installerer [ProductName] på computeren. Klik på &quot;Næste&quot; for at fortsætte eller på &quot;Annuller&quot; for at afslutte.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synkroniseringsopgaver</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>Installationsguiden er klar til at starte installationen.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Slet</translation>
    </message>
    <message>
        <source>Syncing %1 file(s)</source>
        <translation>Synkroniserer %1 fil(er)</translation>
    </message>
    <message>
        <source>&amp;Close the applications and try to restart them</source>
        <translation>&amp;Luk programmerne, og prøv at genstarte dem</translation>
    </message>
    <message>
        <source>Please wait. The requested changes are being made.</source>
        <translation>Vent et øjeblik. De ønskede ændringer er ved at blive foretaget.</translation>
    </message>
    <message>
        <source>Upgrade available</source>
        <translation>Opgradering tilgængelig</translation>
    </message>
    <message>
        <source>Repair the current installation</source>
        <translation>Reparer den aktuelle installation</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Opgraderer...</translation>
    </message>
    <message>
        <source>Set up a separate sync task</source>
        <translation>Konfigurer en separat synkroniseringsopgave</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>Ingen indstillinger blev ændret.</translation>
    </message>
</context>
</TS>
