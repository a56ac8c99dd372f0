<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Keep your data safe and synced at all times</source>
        <translation>Hold dataene dine trygge og synkroniserte til enhver tid</translation>
    </message>
    <message>
        <source>The quota on the NAS has been used up. Free up some space or ask the administrator to raise your quota, and then select the folder again.</source>
        <translation>Kvoten på NAS-enheten er brukt opp. Frigjør plass eller be administratoren om å øke kvoten din, og velg deretter mappen på nytt.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-user license agreement</source>
        <translation>[DlgTitleFont]Lisensavtale for sluttbrukere</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Velg oppsettsmodus</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Klar til å installere [ProductName]</translation>
    </message>
    <message>
        <source>This shared folder has been disabled for your account. Contact the administrator of the NAS to regain access.</source>
        <translation>Denne delte mappen er deaktivert for kontoen din. Kontakt administratoren for NAS-enheten for å få tilgang igjen.</translation>
    </message>
    <message>
        <source>Merge the folders</source>
        <translation>Slå sammen mappene</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Avslutt</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>Delingslenke</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Synkroniseringsfeil</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Klikk på «Fullfør» for å avslutte installasjonsveiviseren.</translation>
    </message>
    <message>
        <source>Set a start date for this link</source>
        <translation>Angi en startdato for denne lenken</translation>
    </message>
    <message>
        <source>The local sync database cannot be read. Restart Quillmere Drive. If the problem persists, link this computer again.</source>
        <translation>Den lokale synkroniseringsdatabasen kan ikke leses. Start Quillmere Drive på nytt. Hvis problemet vedvarer, må du knytte denne datamaskinen til NAS-enheten på nytt.</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Velg mappene som skal synkroniseres</translation>
    </message>
    <message>
        <source>Every file you put in a synced folder is copied to your NAS automatically. Just save your work and let Quillmere Drive do the rest.</source>
        <translation>Alle filer du legger i en synkronisert mappe, kopieres automatisk til NAS-enheten. Bare lagre arbeidet ditt, så tar Quillmere Drive seg av resten.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>Prø&amp;v på nytt</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Utelat disse mappene fra synkronisering</translation>
    </message>
    <message>
        <source>The local folder of this sync task cannot be found. It may have been moved, renamed, or deleted.</source>
        <translation>Finner ikke den lokale mappen for denne synkroniseringsoppgaven. Den kan være flyttet, ha fått nytt navn eller være slettet.</translation>
    </message>
    <message>
        <source>Quillmere Drive is starting...</source>
        <translation>Quillmere Drive starter...</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Tar i bruk innstillingene...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Legg til</translation>
    </message>
    <message>
        <source>Make sure that Quillmere Drive Server is installed and running on your NAS before you continue.</source>
        <translation>Kontroller at Quillmere Drive Server er installert og kjører på NAS-enheten før du fortsetter.</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Start %1 på nytt for å ta i bruk de nye språkinnstillingene.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Laster ned...</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versjonene stemmer ikke overens</translation>
    </message>
    <message>
        <source>The icon in the system tray shows the sync status at a glance. Click it to pause syncing, view recent changes, or open the settings.</source>
        <translation>Et blikk på ikonet i systemstatusfeltet viser deg synkroniseringsstatusen. Klikk på ikonet for å sette synkroniseringen på pause, se nylige endringer eller åpne innstillingene.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Satt på pause</translation>
    </message>
    <message>
        <source>Keep both versions and rename the conflicting file</source>
        <translation>Behold begge versjonene og gi konfliktfilen nytt navn</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Monteringspunktet støttes ikke</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>Knytter til NAS-enheten...</translation>
    </message>
    <message>
        <source>About Quillmere Drive</source>
        <translation>Om Quillmere Drive</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktivert</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Bla gjennom tidligere versjoner</translation>
    </message>
    <message>
        <source>The Setup Wizard for [ProductName] stopped early because of an error. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>Installasjonsveiviseren for [ProductName] stoppet for tidlig på grunn av en feil. Systemet er ikke endret. Kjør installasjonsprogrammet på nytt hvis du vil installere programmet senere.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Tilkoblingsinformasjon</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS. Free up some space to continue syncing.</source>
        <translation>Det er ikke nok ledig plass på NAS-enheten. Frigjør plass for å fortsette synkroniseringen.</translation>
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
        <translation>Den valgte mappen er et monteringspunkt og kan ikke synkroniseres. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>Upgrade now</source>
        <translation>Oppgrader nå</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Datamaskinnavn</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Statusinformasjon</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installasjon av [ProductName]</translation>
    </message>
    <message>
        <source>Open the management page</source>
        <translation>Åpne administrasjonssiden</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Filer i bruk</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Torsdag</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Vent mens installasjonsveiviseren installerer [ProductName]. Dette kan ta flere minutter.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Lørdag</translation>
    </message>
    <message>
        <source>Link expires after</source>
        <translation>Lenken utløper etter</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to leave this page without saving them?</source>
        <translation>Du har endringer som ikke er lagret. Vil du forlate denne siden uten å lagre dem?</translation>
    </message>
    <message>
        <source>Select the operation that you want to perform.</source>
        <translation>Velg hva du vil gjøre.</translation>
    </message>
    <message>
        <source>This file was changed on the computer and on the NAS at the same time, and the conflict could not be resolved.</source>
        <translation>Denne filen ble endret på datamaskinen og NAS-enheten samtidig, og konflikten kunne ikke løses.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokalt nettverk</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Oppdatert</translation>
    </message>
    <message>
        <source>A sync task named &quot;%1&quot; already exists. Please enter another name.</source>
        <translation>Det finnes allerede en synkroniseringsoppgave som heter «%1». Skriv inn et annet navn.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder. Please choose another folder or contact the administrator.</source>
        <translation>Du har ikke tilgang til denne mappen. Velg en annen mappe eller kontakt administratoren.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Knytt til NAS-enheten på nytt</translation>
    </message>
    <message>
        <source>Select how you want to sync files between this computer and your NAS. You can add more sync tasks later.</source>
        <translation>Velg hvordan du vil synkronisere filer mellom denne datamaskinen og NAS-enheten. Du kan legge til flere synkroniseringsoppgaver senere.</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Proxyserveren krever godkjenning</translation>
    </message>
    <message>
        <source>Choose what happens when the same file has been changed on the computer and on the NAS.</source>
        <translation>Velg hva som skal skje når samme fil er endret både på datamaskinen og på NAS-enheten.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Velg en annen mappe</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Klar til å fjerne [ProductName]</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Check the certificate before you connect again.</source>
        <translation>SSL-sertifikatet for NAS-enheten er endret. Kontroller sertifikatet før du kobler til på nytt.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Forrige måned</translation>
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
        <translation>Datointervall</translation>
    </message>
    <message>
        <source>The download failed. Please try again later.</source>
        <translation>Nedlastingen mislyktes. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>Oppsettet er fullført.</translation>
    </message>
    <message>
        <source>Quillmere Drive on this computer is outdated. Please update it to version %1 or later.</source>
        <translation>Quillmere Drive på denne datamaskinen er utdatert. Oppdater til versjon %1 eller nyere.</translation>
    </message>
    <message>
        <source>This computer is now linked to your NAS. Syncing starts as soon as you close the wizard.</source>
        <translation>Denne datamaskinen er nå knyttet til NAS-enheten. Synkroniseringen starter så snart du lukker veiviseren.</translation>
    </message>
    <message>
        <source>Enable sync for this shared folder</source>
        <translation>Aktiver synkronisering for denne delte mappen</translation>
    </message>
    <message>
        <source>Download complete</source>
        <translation>Nedlastingen er fullført</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Fortsett synkroniseringen av denne mappen</translation>
    </message>
    <message>
        <source>Setup is in progress. Please wait...</source>
        <translation>Oppsettet pågår. Vent litt...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Akkurat nå</translation>
    </message>
    <message>
        <source>This computer is already linked to the same NAS. Edit the existing connection instead.</source>
        <translation>Denne datamaskinen er allerede knyttet til den samme NAS-enheten. Rediger den eksisterende tilkoblingen i stedet.</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>%1 element(er)</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Sett tilkoblingen på pause</translation>
    </message>
    <message>
        <source>Quillmere Drive is ready.</source>
        <translation>Quillmere Drive er klar.</translation>
    </message>
    <message>
        <source>Keep an eye on the system tray</source>
        <translation>Følg med på systemstatusfeltet</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Flere detaljer</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. The copies on the NAS will be kept. Do you want to continue?</source>
        <translation>Mapper du fjerner merket for her, blir fjernet fra denne datamaskinen. Kopiene på NAS-enheten beholdes. Vil du fortsette?</translation>
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
        <translation>Feil</translation>
    </message>
    <message>
        <source>Restrict access to this link</source>
        <translation>Begrens tilgangen til denne lenken</translation>
    </message>
    <message>
        <source>The link could not be created. Make sure that file sharing is enabled in Quillmere Drive Server.</source>
        <translation>Kan ikke opprette lenken. Kontroller at fildeling er aktivert i Quillmere Drive Server.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>Mer opplæring</translation>
    </message>
    <message>
        <source>Setup requires administrator rights. Do you want to restart it as an administrator?</source>
        <translation>Installasjonsprogrammet krever administratorrettigheter. Vil du starte det på nytt som administrator?</translation>
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
        <translation>Ingen tidligere versjoner av denne filen er tilgjengelige.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Start nå</translation>
    </message>
    <message>
        <source>The NAS at this address is not the one that this computer was linked to. Check the address or link the computer again.</source>
        <translation>NAS-enheten på denne adressen er ikke den som denne datamaskinen ble knyttet til. Kontroller adressen, eller knytt datamaskinen til NAS-enheten på nytt.</translation>
    </message>
    <message>
        <source>The upgrade failed. Please download the latest version and install it manually.</source>
        <translation>Oppgraderingen mislyktes. Last ned den nyeste versjonen og installer den manuelt.</translation>
    </message>
    <message>
        <source>Add sync task</source>
        <translation>Legg til synkroniseringsoppgave</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Startdato</translation>
    </message>
    <message>
        <source>This shared folder could not be enabled for syncing. Please try again later.</source>
        <translation>Kan ikke aktivere synkronisering for denne delte mappen. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>In the system tray</source>
        <translation>I systemstatusfeltet</translation>
    </message>
    <message>
        <source>The folder home\Quillmere on your NAS has already been linked to this PC. We will launch the synced folder when you click Done. Or you can set up a seperate task: %1</source>
        <translation>Mappen home\Quillmere på NAS-enheten er allerede knyttet til denne PC-en. Den synkroniserte mappen åpnes når du klikker på «Ferdig». Du kan også konfigurere en egen oppgave: %1</translation>
    </message>
    <message>
        <source>The port number is invalid. Enter a number from 1 to 65535.</source>
        <translation>Portnummeret er ugyldig. Skriv inn et tall fra 1 til 65535.</translation>
    </message>
    <message>
        <source>Quillmere Drive could not be initialized. Please restart your computer and try again.</source>
        <translation>Quillmere Drive kunne ikke startes opp. Start datamaskinen på nytt og prøv igjen.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes made on this computer will not be synced to the NAS.</source>
        <translation>Du har bare lesetilgang til denne mappen. Endringer på denne datamaskinen blir ikke synkronisert til NAS-enheten.</translation>
    </message>
    <message>
        <source>The version of Quillmere Drive on this computer is too old for the NAS. Version %1 or later is required.</source>
        <translation>Versjonen av Quillmere Drive på denne datamaskinen er for gammel for NAS-enheten. Versjon %1 eller nyere kreves.</translation>
    </message>
    <message>
        <source>Files and folders that match the rules of the file filter will not be synced.</source>
        <translation>Filer og mapper som samsvarer med reglene i filfilteret, blir ikke synkronisert.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Klar til å reparere [ProductName]</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Fortsett synkroniseringen av disse mappene</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Åpne mappe</translation>
    </message>
    <message>
        <source>Save a file and it is synced</source>
        <translation>Lagre en fil, så blir den synkronisert</translation>
    </message>
    <message>
        <source>Files that could not be synced</source>
        <translation>Filer som ikke kunne synkroniseres</translation>
    </message>
    <message>
        <source>The connection to the NAS was lost. Quillmere Drive will try to connect again automatically.</source>
        <translation>Tilkoblingen til NAS-enheten ble brutt. Quillmere Drive prøver automatisk å koble til på nytt.</translation>
    </message>
    <message>
        <source>Detecting file changes...</source>
        <translation>Ser etter filendringer...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Tilkoblingen er opprettet.</translation>
    </message>
    <message>
        <source>The administrator requires two-factor verification for your account. Sign in to the NAS in a web browser and set it up first.</source>
        <translation>Administratoren krever totrinnsbekreftelse for kontoen din. Logg på NAS-enheten i en nettleser og konfigurer totrinnsbekreftelsen først.</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the permissions on the NAS. Please change the sync direction.</source>
        <translation>Synkroniseringsretningen for denne mappen samsvarer ikke med tillatelsene på NAS-enheten. Endre synkroniseringsretningen.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Velkommen til installasjonsveiviseren for [ProductName]</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive. This wizard will help you link this computer to your NAS.</source>
        <translation>Velkommen til Quillmere Drive. Denne veiviseren hjelper deg med å knytte denne datamaskinen til NAS-enheten.</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files and folders</source>
        <translation>Vis ikonoverlegg på synkroniserte filer og mapper</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Godkjenningen mislyktes</translation>
    </message>
    <message>
        <source>An invalid value was entered. Please check your input and try again.</source>
        <translation>En ugyldig verdi ble angitt. Kontroller det du skrev inn, og prøv på nytt.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle hendelser</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Neste</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choice.</source>
        <translation>Klikk på «Fjern» for å fjerne [ProductName] fra datamaskinen. Klikk på «Tilbake» for å se gjennom valget ditt.</translation>
    </message>
    <message>
        <source>Quillmere Drive Server is not running on the NAS. Start it or contact the administrator.</source>
        <translation>Quillmere Drive Server kjører ikke på NAS-enheten. Start serveren eller kontakt administratoren.</translation>
    </message>
    <message>
        <source>Open Quillmere Drive</source>
        <translation>Åpne Quillmere Drive</translation>
    </message>
    <message>
        <source>The SSL certificate of this NAS differs from the one saved earlier. Continue only if you trust the new certificate.</source>
        <translation>SSL-sertifikatet for denne NAS-enheten er et annet enn det som ble lagret tidligere. Fortsett bare hvis du stoler på det nye sertifikatet.</translation>
    </message>
    <message>
        <source>The selected folder is already synced by another cloud storage program. Please choose a different folder to avoid conflicts.</source>
        <translation>Den valgte mappen synkroniseres allerede av et annet program for skylagring. Velg en annen mappe for å unngå konflikter.</translation>
    </message>
    <message>
        <source>Right-click the tray icon to open the menu with all commands.</source>
        <translation>Høyreklikk på ikonet i systemstatusfeltet for å åpne menyen med alle kommandoene.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Syncing will start when indexing is complete.</source>
        <translation>Denne mappen indekseres. Synkroniseringen starter når indekseringen er fullført.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktivert</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsett</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Kontrollerer data...</translation>
    </message>
    <message>
        <source>Click Install to begin installing [ProductName]. Click Back to review or change your settings. Click Cancel to exit the wizard.</source>
        <translation>Klikk på «Installer» for å starte installasjonen av [ProductName]. Klikk på «Tilbake» for å se gjennom eller endre innstillingene. Klikk på «Avbryt» for å avslutte veiviseren.</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>Synkroniserer</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Åpne filplassering</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] har ingen funksjoner som kan velges separat.</translation>
    </message>
    <message>
        <source>The local folder could not be created. Check the path and your permissions, and then try again.</source>
        <translation>Kan ikke opprette den lokale mappen. Kontroller banen og tillatelsene dine, og prøv på nytt.</translation>
    </message>
    <message>
        <source>NAS address</source>
        <translation>NAS-adresse</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. It may have been deleted, or you may not have permission to access it.</source>
        <translation>Denne filen kan ikke lastes ned. Den kan ha blitt slettet, eller du har kanskje ikke tilgang til den.</translation>
    </message>
    <message>
        <source>The IP address of this computer is not allowed to access the NAS. Contact the administrator.</source>
        <translation>IP-adressen til denne datamaskinen har ikke tilgang til NAS-enheten. Kontakt administratoren.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Noen av filene som må oppdateres, er i bruk.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Siste side</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Dato og klokkeslett</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Gitt nytt navn</translation>
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
        <translation>Skriv inn navnene på filene som ikke skal synkroniseres. En stjerne (*) står for et hvilket som helst antall tegn.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sett på pause</translation>
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
        <translation>Mapper som skal synkroniseres</translation>
    </message>
    <message>
        <source>RapidHail</source>
        <translation>RapidHail</translation>
    </message>
    <message>
        <source>Enter the IP address, hostname, or RapidHail ID of your NAS.</source>
        <translation>Skriv inn IP-adressen, vertsnavnet eller RapidHail-ID-en for NAS-enheten.</translation>
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
        <translation>NAS-enheten er endret</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbake</translation>
    </message>
    <message>
        <source>If you disable this folder, it will no longer be synced. The files on this computer will be kept. Do you want to continue?</source>
        <translation>Hvis du deaktiverer denne mappen, blir den ikke lenger synkronisert. Filene på denne datamaskinen beholdes. Vil du fortsette?</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Åpne fil</translation>
    </message>
    <message>
        <source>This folder cannot be synced because its path is invalid. Please choose another folder.</source>
        <translation>Denne mappen kan ikke synkroniseres fordi banen er ugyldig. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>The shared folder on the NAS is not mounted. If it is encrypted, mount it first.</source>
        <translation>Den delte mappen på NAS-enheten er ikke montert. Hvis den er kryptert, må du montere den først.</translation>
    </message>
    <message>
        <source>Expiration time</source>
        <translation>Utløpstidspunkt</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Brukernavn</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up.</source>
        <translation>Kvoten din på NAS-enheten er brukt opp.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please correct them before you continue.</source>
        <translation>Noen felt inneholder ugyldige verdier. Rett dem før du fortsetter.</translation>
    </message>
    <message>
        <source>The RapidHail service cannot be reached. Check your internet connection and try again.</source>
        <translation>Får ikke kontakt med RapidHail-tjenesten. Kontroller internettilkoblingen og prøv på nytt.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Fredag</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Åpne hovedvinduet</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Proxyport</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; has been used up. Free up some space to continue syncing.</source>
        <translation>Kvoten for den delte mappen «%1» er brukt opp. Frigjør plass for å fortsette synkroniseringen.</translation>
    </message>
    <message>
        <source>Link to a new NAS</source>
        <translation>Knytt til en ny NAS-enhet</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Forrige uke</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is too old for this computer. Version %1 or later is required.</source>
        <translation>Quillmere Drive Server på NAS-enheten er for gammel for denne datamaskinen. Versjon %1 eller nyere kreves.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Juni</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a network error. Check your network connection and try again.</source>
        <translation>Mappen kan ikke kontrolleres på grunn av en nettverksfeil. Kontroller nettverkstilkoblingen og prøv på nytt.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Verdi</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]Fje&amp;rn</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internett</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Juli</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Forstått</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Velkommen</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Fjerner [ProductName] fra datamaskinen.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versjon</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsett</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passord</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Fra</translation>
    </message>
    <message>
        <source>You can open the synced folder at any time from the Quillmere Drive icon in the system tray.</source>
        <translation>Du kan når som helst åpne den synkroniserte mappen fra Quillmere Drive-ikonet i systemstatusfeltet.</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Filer oppdatert</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;pair</source>
        <translation>[DlgTitleFont]Re&amp;parer</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Tirsdag</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Ingen tilgjengelige alternativer</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjelp</translation>
    </message>
    <message>
        <source>The NAS at this address has changed. Please link this computer again.</source>
        <translation>NAS-enheten på denne adressen er endret. Knytt denne datamaskinen til NAS-enheten på nytt.</translation>
    </message>
    <message>
        <source>The installation of [ProductName] was interrupted. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>Installasjonen av [ProductName] ble avbrutt. Systemet er ikke endret. Kjør installasjonsprogrammet på nytt hvis du vil installere programmet senere.</translation>
    </message>
    <message>
        <source>The connection test failed. The username or password is incorrect.</source>
        <translation>Tilkoblingstesten mislyktes. Feil brukernavn eller passord.</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>Re&amp;parer</translation>
    </message>
    <message>
        <source>A sync task has stopped because of an error. Click here for details.</source>
        <translation>En synkroniseringsoppgave har stoppet på grunn av en feil. Klikk her hvis du vil vite mer.</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and the account that you want to use for syncing.</source>
        <translation>Skriv inn adressen til NAS-enheten og kontoen du vil bruke til synkronisering.</translation>
    </message>
    <message>
        <source>Connect anyway</source>
        <translation>Koble til likevel</translation>
    </message>
    <message>
        <source>The files on this computer and the files in the shared folder will be merged. If two files have the same name, the newer one is used.</source>
        <translation>Filene på denne datamaskinen og filene i den delte mappen blir slått sammen. Hvis to filer har samme navn, brukes den nyeste.</translation>
    </message>
    <message>
        <source>Start Quillmere Drive automatically when I sign in</source>
        <translation>Start Quillmere Drive automatisk når jeg logger på</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this link? People who have it will no longer be able to open the file.</source>
        <translation>Er du sikker på at du vil slette denne lenken? De som har den, kan ikke lenger åpne filen.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Bytt mappe</translation>
    </message>
    <message>
        <source>The username or password is incorrect, or the account has been disabled.</source>
        <translation>Brukernavnet eller passordet er feil, eller kontoen er deaktivert.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fullfør</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;do not accept the terms of the license agreement</source>
        <translation>{\DlgFont8}Jeg go&amp;dtar ikke vilkårene i lisensavtalen</translation>
    </message>
    <message>
        <source>Right-click a file and select &quot;Share link&quot; to create a link. Send it to anyone who needs the file, even if they have no account on your NAS.</source>
        <translation>Høyreklikk på en fil og velg «Del lenke» for å opprette en lenke. Send den til alle som trenger filen, selv om de ikke har konto på NAS-enheten din.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synkroniseringsmodus</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps earlier versions of your files. Right-click a file and select &quot;Browse previous versions&quot; to restore one of them.</source>
        <translation>Quillmere Drive tar vare på tidligere versjoner av filene dine. Høyreklikk på en fil og velg «Bla gjennom tidligere versjoner» for å gjenopprette en av dem.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>De neste %1 sidene</translation>
    </message>
    <message>
        <source>Quillmere Drive is already running. You can find its icon in the system tray.</source>
        <translation>Quillmere Drive kjører allerede. Du finner ikonet i systemstatusfeltet.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Laster inn delte mapper...</translation>
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
        <translation>Denne mappen kan ikke synkroniseres på grunn av en systemfeil. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Ved dobbeltklikk på ikonet i systemstatusfeltet</translation>
    </message>
    <message>
        <source>Selective sync by folder</source>
        <translation>Selektiv synkronisering etter mappe</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Delte mapper</translation>
    </message>
    <message>
        <source>Sync with another NAS</source>
        <translation>Synkroniser med en annen NAS-enhet</translation>
    </message>
    <message>
        <source>This creates a Quillmere folder on your computer and keeps it synced with your home folder on your Orvane NAS (recommended for personal use).</source>
        <translation>Oppretter en Quillmere-mappe på datamaskinen og holder den synkronisert med hjemmemappen din på NAS-enheten fra Orvane (anbefales for personlig bruk).</translation>
    </message>
    <message>
        <source>Click here to upgrade</source>
        <translation>Klikk her for å oppgradere</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>On your computer</source>
        <translation>På datamaskinen</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of [ProductName]?</source>
        <translation>Er du sikker på at du vil avbryte installasjonen av [ProductName]?</translation>
    </message>
    <message>
        <source>Files and folders excluded from sync</source>
        <translation>Filer og mapper som er utelatt fra synkronisering</translation>
    </message>
    <message>
        <source>This version of Quillmere Drive is already installed. Do you want to install it again?</source>
        <translation>Denne versjonen av Quillmere Drive er allerede installert. Vil du installere den på nytt?</translation>
    </message>
    <message>
        <source>has been shared. The link was copied to the clipboard.</source>
        <translation>er delt. Lenken er kopiert til utklippstavlen.</translation>
    </message>
    <message>
        <source>The NAS sent an unexpected response. Make sure that Quillmere Drive and Quillmere Drive Server are both up to date.</source>
        <translation>NAS-enheten sendte et uventet svar. Kontroller at både Quillmere Drive og Quillmere Drive Server er oppdatert.</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Utelat denne mappen fra synkronisering</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Mars</translation>
    </message>
    <message>
        <source>The RapidHail service encountered a system error. Please try again later.</source>
        <translation>Det oppstod en systemfeil i RapidHail-tjenesten. Prøv på nytt senere.</translation>
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
        <translation>{\DlgFont8}Jeg &amp;godtar vilkårene i lisensavtalen</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synkroniseringsretning</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Nedlastingshistorikk</translation>
    </message>
    <message>
        <source>Select a folder on this computer and the shared folder on the NAS that it will be synced with.</source>
        <translation>Velg en mappe på denne datamaskinen og den delte mappen på NAS-enheten som den skal synkroniseres med.</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>Dette feltet kan ikke stå tomt.</translation>
    </message>
    <message>
        <source>Choose a shared folder on your NAS that is not yet synced with this computer.</source>
        <translation>Velg en delt mappe på NAS-enheten som ennå ikke er synkronisert med denne datamaskinen.</translation>
    </message>
    <message>
        <source>How existing files are merged</source>
        <translation>Hvordan eksisterende filer slås sammen</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Nettverksinnstillinger</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Tilbakestill</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Slett lenke</translation>
    </message>
    <message>
        <source>This sync task is inactive because the shared folder is not available.</source>
        <translation>Denne synkroniseringsoppgaven er inaktiv fordi den delte mappen ikke er tilgjengelig.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Enveisnedlasting</translation>
    </message>
    <message>
        <source>Go back to an earlier version</source>
        <translation>Gå tilbake til en tidligere versjon</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Lastet opp</translation>
    </message>
    <message>
        <source>Changes the set of [ProductName] features that are installed.</source>
        <translation>Endrer hvilke funksjoner i [ProductName] som er installert.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Innstillinger</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Filnavn</translation>
    </message>
    <message>
        <source>Link this computer to your NAS in just a few steps.</source>
        <translation>Knytt denne datamaskinen til NAS-enheten med bare noen få trinn.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fullfør</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Krypter tilkoblingen med SSL</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Tilkoblingsmodus</translation>
    </message>
    <message>
        <source>Keep the file that was modified last</source>
        <translation>Behold filen som sist ble endret</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Rediger</translation>
    </message>
    <message>
        <source>A newer version of Quillmere Drive is already installed. Setup will now close.</source>
        <translation>En nyere versjon av Quillmere Drive er allerede installert. Installasjonsprogrammet avsluttes nå.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Confirm the new certificate before you select a folder.</source>
        <translation>SSL-sertifikatet for NAS-enheten er endret. Bekreft det nye sertifikatet før du velger en mappe.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Slå sammen</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Finner ikke den delte mappen</translation>
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
        <translation>Velg en mappe</translation>
    </message>
    <message>
        <source>Set up the folder to sync</source>
        <translation>Konfigurer mappen som skal synkroniseres</translation>
    </message>
    <message>
        <source>Enter the connection settings for your NAS.</source>
        <translation>Angi tilkoblingsinnstillingene for NAS-enheten.</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>Advarsel om SSL-sertifikat</translation>
    </message>
    <message>
        <source>Share files with a link</source>
        <translation>Del filer med en lenke</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Filtype</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Fortsett tilkoblingen</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>I&amp;gnorer</translation>
    </message>
    <message>
        <source>The maximum file size must be a whole number greater than 0.</source>
        <translation>Maksimal filstørrelse må være et heltall større enn 0.</translation>
    </message>
    <message>
        <source>Insufficient permissions</source>
        <translation>Utilstrekkelige tillatelser</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Oppdatert: %1</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive</source>
        <translation>Velkommen til Quillmere Drive</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Søkeord</translation>
    </message>
    <message>
        <source>This allows you to specify a folder on your computer to keep synced with a shared folder on your Orvane NAS. (Recommended for teamwork)​.</source>
        <translation>Lar deg velge en mappe på datamaskinen som skal holdes synkronisert med en delt mappe på NAS-enheten fra Orvane (anbefales for samarbeid).</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin repairing [ProductName].</source>
        <translation>Installasjonsveiviseren er klar til å begynne reparasjonen av [ProductName].</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Bruk</translation>
    </message>
    <message>
        <source>A network error occurred. Check your network connection and try again.</source>
        <translation>Det oppstod en nettverksfeil. Kontroller nettverkstilkoblingen og prøv på nytt.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already being synced. Please choose another folder.</source>
        <translation>Denne mappen overlapper med en mappe som allerede synkroniseres. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}Installasjonsveiviseren for [ProductName] ble avbrutt</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Dato</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Tilbake</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Starttidspunkt</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Vis opplæringen</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Hurtigoppsett</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Administrer</translation>
    </message>
    <message>
        <source>Links cannot be created over a RapidHail connection because file sharing is disabled on the NAS.</source>
        <translation>Kan ikke opprette lenker over en RapidHail-tilkobling fordi fildeling er deaktivert på NAS-enheten.</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Administrer delte mapper</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Les følgende lisensavtale nøye.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Forbereder...</translation>
    </message>
    <message>
        <source>Keep the version on the NAS and overwrite the one on this computer</source>
        <translation>Behold versjonen på NAS-enheten og overskriv versjonen på denne datamaskinen</translation>
    </message>
    <message>
        <source>August</source>
        <translation>August</translation>
    </message>
    <message>
        <source>Use a RapidHail connection</source>
        <translation>Bruk en RapidHail-tilkobling</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard ended early</source>
        <translation>{\VerdanaBold13}Installasjonsveiviseren for [ProductName] ble avsluttet for tidlig</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up. Files can no longer be uploaded until you free up some space.</source>
        <translation>Kvoten din på NAS-enheten er brukt opp. Du kan ikke laste opp flere filer før du har frigjort plass.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]&amp;Endre</translation>
    </message>
    <message>
        <source>Set an expiration date for this link</source>
        <translation>Angi en utløpsdato for denne lenken</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Bytt lokal mappe</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maksimal filstørrelse</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Fje&amp;rn</translation>
    </message>
    <message>
        <source>Quillmere Drive is initializing...</source>
        <translation>Quillmere Drive starter opp...</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Toveissynkronisering</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Bruk systemets proxyinnstillinger</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Fjerner tilknytning...</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open (a restart will be required)</source>
        <translation>La &amp;programmene være åpne (omstart vil være nødvendig)</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard is complete</source>
        <translation>{\VerdanaBold13}Installasjonsveiviseren for [ProductName] er fullført</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Synkroniseringsoppgave</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>Opprettet</translation>
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
        <translation>Neste</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Proxyadresse</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Nylig endrede filer</translation>
    </message>
    <message>
        <source>Unlink from the NAS</source>
        <translation>Fjern tilknytningen til NAS-enheten</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Please try again later.</source>
        <translation>Kan ikke vise versjonene av denne filen. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Låst av et annet program</translation>
    </message>
    <message>
        <source>An unknown error occurred. Please try again later.</source>
        <translation>Det oppstod en ukjent feil. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified.</source>
        <translation>SSL-sertifikatet for NAS-enheten kunne ikke bekreftes.</translation>
    </message>
    <message>
        <source>Checking username and password...</source>
        <translation>Kontrollerer brukernavn og passord...</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Avanserte innstillinger</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Skriv ut</translation>
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
        <translation>Du har bare lesetilgang til denne delte mappen. Filer kan lastes ned til denne datamaskinen, men ikke lastes opp til NAS-enheten.</translation>
    </message>
    <message>
        <source>The drive that contains the local folder is not mounted. Connect the drive to continue syncing.</source>
        <translation>Stasjonen som inneholder den lokale mappen, er ikke montert. Koble til stasjonen for å fortsette synkroniseringen.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Mål</translation>
    </message>
    <message>
        <source>Search the local network for an Orvane NAS.</source>
        <translation>Søk etter en NAS-enhet fra Orvane i det lokale nettverket.</translation>
    </message>
    <message>
        <source>Storage full</source>
        <translation>Lagringsplassen er full</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>NAS-oversikt</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direkte tilkobling</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Lastet ned</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxyinnstillinger</translation>
    </message>
    <message>
        <source>Unstable connection</source>
        <translation>Ustabil tilkobling</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync this folder. Free up some space or choose another folder.</source>
        <translation>Det er ikke nok ledig plass på denne datamaskinen til å synkronisere denne mappen. Frigjør plass eller velg en annen mappe.</translation>
    </message>
    <message>
        <source>Use a black and white tray icon</source>
        <translation>Bruk et svart-hvitt ikon i systemstatusfeltet</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Synkroniseringshistorikk</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Nedlastingen ble avbrutt.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>Følgende programmer bruker filer som installasjonsprogrammet må oppdatere. Lukk dem og klikk på «Prøv på nytt» for å fortsette.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installer</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please wait a few minutes before you try again.</source>
        <translation>For mange mislykkede forsøk. Vent noen minutter før du prøver på nytt.</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>Alt er klart</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Laster inn...</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nei takk</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Ny delt mappe</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Avslutt</translation>
    </message>
    <message>
        <source>You can let Setup close the applications listed below and try to restart them afterward.</source>
        <translation>Du kan la installasjonsprogrammet lukke programmene nedenfor og prøve å starte dem på nytt etterpå.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change the way [ProductName] is installed or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Med installasjonsveiviseren kan du endre hvordan [ProductName] er installert, eller fjerne programmet fra datamaskinen. Klikk på «Neste» for å fortsette eller på «Avbryt» for å avslutte.</translation>
    </message>
    <message>
        <source>Try syncing a file</source>
        <translation>Prøv å synkronisere en fil</translation>
    </message>
    <message>
        <source>No data to display</source>
        <translation>Ingen data å vise</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>For %1 dag(er) siden</translation>
    </message>
    <message>
        <source>You can now sync the shared folder &quot;%1&quot;. Click here to enable it.</source>
        <translation>Du kan nå synkronisere den delte mappen «%1». Klikk her for å aktivere den.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Laster opp...</translation>
    </message>
    <message>
        <source>Your Quillmere folder is ready. Drop files into it and they will be synced with your NAS.</source>
        <translation>Quillmere-mappen er klar. Legg filer i den, så blir de synkronisert med NAS-enheten.</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>Det finnes ingen mappe som kan synkroniseres.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>De forrige %1 sidene</translation>
    </message>
    <message>
        <source>The verification code is invalid. Please check the code and try again.</source>
        <translation>Bekreftelseskoden er ugyldig. Kontroller koden og prøv på nytt.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>I dag</translation>
    </message>
    <message>
        <source>The selected folder is on a network drive. Changes made there by other computers may not be detected immediately.</source>
        <translation>Den valgte mappen ligger på en nettverksstasjon. Det kan ta tid før endringer som andre datamaskiner gjør der, blir oppdaget.</translation>
    </message>
    <message>
        <source>Show icon overlays on files excluded by the file filter</source>
        <translation>Vis ikonoverlegg på filer som er utelatt av filfilteret</translation>
    </message>
    <message>
        <source>Files to sync</source>
        <translation>Filer som skal synkroniseres</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Del lenke</translation>
    </message>
    <message>
        <source>Detecting connection mode...</source>
        <translation>Finner tilkoblingsmodus...</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Egendefinert varighet</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>Søk etter NAS-enheter i det lokale nettverket</translation>
    </message>
    <message>
        <source>The proxy address and port cannot be empty.</source>
        <translation>Proxyadressen og porten kan ikke stå tomme.</translation>
    </message>
    <message>
        <source>You can also protect a link with a password or set an expiration date.</source>
        <translation>Du kan også beskytte en lenke med et passord eller angi en utløpsdato.</translation>
    </message>
    <message>
        <source>All your files, always at hand</source>
        <translation>Alle filene dine, alltid for hånden</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Utløpsdato</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message>
        <source>Create a Quillmere folder on this computer</source>
        <translation>Opprett en Quillmere-mappe på denne datamaskinen</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Veiviser for avansert oppsett</translation>
    </message>
    <message>
        <source>The selected folder is already part of a sync task on this computer.</source>
        <translation>Den valgte mappen er allerede en del av en synkroniseringsoppgave på denne datamaskinen.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>For %1 minutt(er) siden</translation>
    </message>
    <message>
        <source>This shared folder is already synced with the folder &quot;%1&quot; on this computer.</source>
        <translation>Denne delte mappen er allerede synkronisert med mappen «%1» på denne datamaskinen.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>Det er ikke nok ledig plass på NAS-enheten.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>N&amp;ei</translation>
    </message>
    <message>
        <source>Click Repair to restore missing or damaged files, shortcuts, and registry entries. Click Back to review your choice.</source>
        <translation>Klikk på «Reparer» for å gjenopprette manglende eller skadede filer, snarveier og registeroppføringer. Klikk på «Tilbake» for å se gjennom valget ditt.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Ikke vis denne meldingen igjen</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by restoring missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Reparerer feil i den siste installasjonen ved å gjenopprette manglende eller skadede filer, snarveier og registeroppføringer.</translation>
    </message>
    <message>
        <source>Number of times the link can be opened</source>
        <translation>Antall ganger lenken kan åpnes</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>I går</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified. The folder cannot be selected until the certificate is trusted.</source>
        <translation>SSL-sertifikatet for NAS-enheten kunne ikke bekreftes. Mappen kan ikke velges før sertifikatet er klarert.</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>Passordbeskyttelse</translation>
    </message>
    <message>
        <source>The SSL certificate could not be verified. It may be self-signed, expired, or issued for another hostname.</source>
        <translation>SSL-sertifikatet kunne ikke bekreftes. Det kan være selvsignert, utløpt eller utstedt for et annet vertsnavn.</translation>
    </message>
    <message>
        <source>Please update Quillmere Drive Server on the NAS to use selective sync.</source>
        <translation>Oppdater Quillmere Drive Server på NAS-enheten for å bruke selektiv synkronisering.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up some space to continue syncing.</source>
        <translation>Det er ikke nok ledig plass på denne datamaskinen. Frigjør plass for å fortsette synkroniseringen.</translation>
    </message>
    <message>
        <source>The selected folder is used by a backup task. Syncing it may cause conflicts.</source>
        <translation>Den valgte mappen brukes av en sikkerhetskopieringsoppgave. Det kan oppstå konflikter hvis du synkroniserer den.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Søk</translation>
    </message>
    <message>
        <source>One-way sync from the NAS to this computer</source>
        <translation>Enveissynkronisering fra NAS-enheten til denne datamaskinen</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Bare nedlasting</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Det er ikke nok ledig plass på denne datamaskinen.</translation>
    </message>
    <message>
        <source>Blocked by:</source>
        <translation>Blokkert av:</translation>
    </message>
    <message>
        <source>This computer is linked to your NAS, and your files are now being synced.</source>
        <translation>Denne datamaskinen er knyttet til NAS-enheten, og filene dine synkroniseres nå.</translation>
    </message>
    <message>
        <source>The RapidHail ID is invalid or does not exist.</source>
        <translation>RapidHail-ID-en er ugyldig eller finnes ikke.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Ventemodus</translation>
    </message>
    <message>
        <source>Remove the program from this computer</source>
        <translation>Fjern programmet fra denne datamaskinen</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established because of an SSL error.</source>
        <translation>Kan ikke opprette en sikker tilkobling til NAS-enheten på grunn av en SSL-feil.</translation>
    </message>
    <message>
        <source>General settings</source>
        <translation>Generelle innstillinger</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Vis skrivebordsvarsler</translation>
    </message>
    <message>
        <source>Selective sync by file type</source>
        <translation>Selektiv synkronisering etter filtype</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Desember</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappe</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is outdated. Please ask the administrator to update it to version %1 or later.</source>
        <translation>Quillmere Drive Server på NAS-enheten er utdatert. Be administratoren om å oppdatere til versjon %1 eller nyere.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Ferdig</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Endre de installerte funksjonene</translation>
    </message>
    <message>
        <source>If you no longer need the program, you can remove it now. Your synced files will be kept on this computer.</source>
        <translation>Hvis du ikke lenger trenger programmet, kan du fjerne det nå. De synkroniserte filene beholdes på denne datamaskinen.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be merged with the files in the shared folder.</source>
        <translation>Den valgte mappen er ikke tom. Filene i den blir slått sammen med filene i den delte mappen.</translation>
    </message>
    <message>
        <source>The link could not be deleted. Please try again later.</source>
        <translation>Kan ikke slette lenken. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>A link cannot be created for this file. Make sure that it has been synced to the NAS.</source>
        <translation>Kan ikke opprette en lenke for denne filen. Kontroller at den er synkronisert til NAS-enheten.</translation>
    </message>
    <message>
        <source>Check all file attributes for changes</source>
        <translation>Se etter endringer i alle filattributter</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove the installation</source>
        <translation>[DlgTitleFont]Endre, reparer eller fjern installasjonen</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Mandag</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>Den valgte mappen er skrivebeskyttet. Velg en mappe du kan skrive til.</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the sync task &quot;%1&quot;? The files on this computer and on the NAS will be kept.</source>
        <translation>Er du sikker på at du vil fjerne synkroniseringsoppgaven «%1»? Filene på denne datamaskinen og på NAS-enheten beholdes.</translation>
    </message>
    <message>
        <source>Limit how often this link can be opened</source>
        <translation>Begrens hvor mange ganger denne lenken kan åpnes</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Delt mappe</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps the folders on your computers in sync with your Orvane NAS.</source>
        <translation>Quillmere Drive holder mappene på datamaskinene dine synkronisert med NAS-enheten fra Orvane.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Skriv inn bekreftelseskoden</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Sammendrag</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>Filendelser</translation>
    </message>
    <message>
        <source>The username cannot be empty.</source>
        <translation>Brukernavnet kan ikke være tomt.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappebane</translation>
    </message>
    <message>
        <source>Folder already linked</source>
        <translation>Mappen er allerede tilknyttet</translation>
    </message>
    <message>
        <source>The maximum length of this field is %1 characters.</source>
        <translation>Maksimal lengde på dette feltet er %1 tegn.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from &quot;%1&quot;? Syncing will stop, but your files will be kept.</source>
        <translation>Er du sikker på at du vil fjerne denne datamaskinens tilknytning til «%1»? Synkroniseringen stopper, men filene dine beholdes.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Avansert oppsett</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Egendefinert intervall</translation>
    </message>
    <message>
        <source>You have reached the maximum of %1 sync tasks. Remove a sync task before you add another one.</source>
        <translation>Du har nådd grensen på %1 synkroniseringsoppgaver. Fjern en synkroniseringsoppgave før du legger til en ny.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappenavn</translation>
    </message>
    <message>
        <source>Quillmere Drive is being upgraded. Please wait...</source>
        <translation>Quillmere Drive oppgraderes. Vent litt...</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to keep synced with your NAS.</source>
        <translation>Velg mappen på denne datamaskinen som du vil holde synkronisert med NAS-enheten.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Tester tilkoblingen...</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Synkroniserer: %1</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS. Contact the administrator.</source>
        <translation>Den delte mappen er ikke montert på NAS-enheten. Kontakt administratoren.</translation>
    </message>
    <message>
        <source>Keep your files in sync between this computer and your NAS, and reach them wherever you are.</source>
        <translation>Hold filene dine synkronisert mellom denne datamaskinen og NAS-enheten, og få tilgang til dem uansett hvor du er.</translation>
    </message>
    <message>
        <source>Your account is protected by two-factor verification. Please enter the verification code to continue.</source>
        <translation>Kontoen din er beskyttet med totrinnsbekreftelse. Skriv inn bekreftelseskoden for å fortsette.</translation>
    </message>
    <message>
        <source>Edit file filter</source>
        <translation>Rediger filfilter</translation>
    </message>
    <message>
        <source>Open the synced folder</source>
        <translation>Åpne den synkroniserte mappen</translation>
    </message>
    <message>
        <source>File names to exclude</source>
        <translation>Filnavn som skal utelates</translation>
    </message>
    <message>
        <source>File path</source>
        <translation>Filbane</translation>
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
        <translation>Ikke bruk proxy</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync with this computer.</source>
        <translation>Velg den delte mappen på NAS-enheten som du vil synkronisere med denne datamaskinen.</translation>
    </message>
    <message>
        <source>This shared folder does not exist on the NAS. It may have been renamed or deleted.</source>
        <translation>Denne delte mappen finnes ikke på NAS-enheten. Den kan ha fått nytt navn eller være slettet.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>Server not running</source>
        <translation>Serveren kjører ikke</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Installasjonsveiviseren installerer [ProductName] på datamaskinen. Klikk på «Neste» for å fortsette eller på «Avbryt» for å avslutte.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synkroniseringsoppgaver</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>Installasjonsveiviseren er klar til å begynne installasjonen.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Slett</translation>
    </message>
    <message>
        <source>Syncing %1 file(s)</source>
        <translation>Synkroniserer %1 fil(er)</translation>
    </message>
    <message>
        <source>&amp;Close the applications and try to restart them</source>
        <translation>&amp;Lukk programmene og prøv å starte dem på nytt</translation>
    </message>
    <message>
        <source>Please wait. The requested changes are being made.</source>
        <translation>Vent litt. De ønskede endringene utføres.</translation>
    </message>
    <message>
        <source>Upgrade available</source>
        <translation>Oppgradering tilgjengelig</translation>
    </message>
    <message>
        <source>Repair the current installation</source>
        <translation>Reparer gjeldende installasjon</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Oppgraderer...</translation>
    </message>
    <message>
        <source>Set up a separate sync task</source>
        <translation>Konfigurer en egen synkroniseringsoppgave</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>Ingen innstillinger ble endret.</translation>
    </message>
</context>
</TS>
