<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Keep your data safe and synced at all times</source>
        <translation>Dina data alltid säkra och synkroniserade</translation>
    </message>
    <message>
        <source>The quota on the NAS has been used up. Free up some space or ask the administrator to raise your quota, and then select the folder again.</source>
        <translation>Kvoten på NAS-enheten är förbrukad. Frigör utrymme eller be administratören att höja din kvot och välj sedan mappen igen.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-user license agreement</source>
        <translation>[DlgTitleFont]Licensavtal för slutanvändare</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Välj konfigurationsläge</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Klart att installera [ProductName]</translation>
    </message>
    <message>
        <source>This shared folder has been disabled for your account. Contact the administrator of the NAS to regain access.</source>
        <translation>Den här delade mappen har inaktiverats för ditt konto. Kontakta NAS-enhetens administratör för att få åtkomst igen.</translation>
    </message>
    <message>
        <source>Merge the folders</source>
        <translation>Slå ihop mapparna</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>Delningslänk</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Synkroniseringsfel</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Klicka på ”Slutför” för att avsluta Installationsguiden.</translation>
    </message>
    <message>
        <source>Set a start date for this link</source>
        <translation>Ange ett startdatum för länken</translation>
    </message>
    <message>
        <source>The local sync database cannot be read. Restart Quillmere Drive. If the problem persists, link this computer again.</source>
        <translation>Det går inte att läsa den lokala synkroniseringsdatabasen. Starta om Quillmere Drive. Om problemet kvarstår kopplar du datorn till NAS-enheten på nytt.</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Välj mappar att synkronisera</translation>
    </message>
    <message>
        <source>Every file you put in a synced folder is copied to your NAS automatically. Just save your work and let Quillmere Drive do the rest.</source>
        <translation>Alla filer som du lägger i en synkroniserad mapp kopieras automatiskt till NAS-enheten. Spara ditt arbete så sköter Quillmere Drive resten.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Försök igen</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Undanta mapparna från synkronisering</translation>
    </message>
    <message>
        <source>The local folder of this sync task cannot be found. It may have been moved, renamed, or deleted.</source>
        <translation>Det går inte att hitta den lokala mappen för synkroniseringsuppgiften. Den kan ha flyttats, bytt namn eller tagits bort.</translation>
    </message>
    <message>
        <source>Quillmere Drive is starting...</source>
        <translation>Quillmere Drive startar...</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Verkställer inställningar...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Lägg till</translation>
    </message>
    <message>
        <source>Make sure that Quillmere Drive Server is installed and running on your NAS before you continue.</source>
        <translation>Kontrollera att Quillmere Drive Server är installerad och körs på NAS-enheten innan du fortsätter.</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Starta om %1 för att de nya språkinställningarna ska börja gälla.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Laddar ned...</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versionerna stämmer inte överens</translation>
    </message>
    <message>
        <source>The icon in the system tray shows the sync status at a glance. Click it to pause syncing, view recent changes, or open the settings.</source>
        <translation>Ikonen i systemfältet visar synkroniseringsstatusen direkt. Klicka på den för att pausa synkroniseringen, se de senaste ändringarna eller öppna inställningarna.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausad</translation>
    </message>
    <message>
        <source>Keep both versions and rename the conflicting file</source>
        <translation>Behåll båda versionerna och byt namn på filen med konflikten</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Monteringspunkten stöds inte</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>Kopplar datorn...</translation>
    </message>
    <message>
        <source>About Quillmere Drive</source>
        <translation>Om Quillmere Drive</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiverad</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Bläddra bland tidigare versioner</translation>
    </message>
    <message>
        <source>The Setup Wizard for [ProductName] stopped early because of an error. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>Installationsguiden för [ProductName] avbröts i förtid på grund av ett fel. Inga ändringar har gjorts i systemet. Kör installationsprogrammet igen om du vill installera programmet senare.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Anslutningsinformation</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS. Free up some space to continue syncing.</source>
        <translation>Det finns inte tillräckligt med ledigt utrymme på NAS-enheten. Frigör utrymme för att fortsätta synkroniseringen.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Borttagning</translation>
    </message>
    <message>
        <source>The selected folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>Den valda mappen är en monteringspunkt och kan inte synkroniseras. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>Upgrade now</source>
        <translation>Uppgradera nu</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Datornamn</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Statusinformation</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installation av [ProductName]</translation>
    </message>
    <message>
        <source>Open the management page</source>
        <translation>Öppna hanteringssidan</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Filer som används</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>torsdag</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Vänta medan Installationsguiden installerar [ProductName]. Det kan ta flera minuter.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>lördag</translation>
    </message>
    <message>
        <source>Link expires after</source>
        <translation>Länken upphör att gälla efter</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to leave this page without saving them?</source>
        <translation>Du har ändringar som inte har sparats. Vill du lämna sidan utan att spara dem?</translation>
    </message>
    <message>
        <source>Select the operation that you want to perform.</source>
        <translation>Välj den åtgärd som du vill utföra.</translation>
    </message>
    <message>
        <source>This file was changed on the computer and on the NAS at the same time, and the conflict could not be resolved.</source>
        <translation>Filen ändrades samtidigt på datorn och på NAS-enheten, och konflikten kunde inte lösas.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokalt nätverk</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Uppdaterad</translation>
    </message>
    <message>
        <source>A sync task named &quot;%1&quot; already exists. Please enter another name.</source>
        <translation>Det finns redan en synkroniseringsuppgift med namnet ”%1”. Ange ett annat namn.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder. Please choose another folder or contact the administrator.</source>
        <translation>Du har inte behörighet till den här mappen. Välj en annan mapp eller kontakta administratören.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Koppla på nytt</translation>
    </message>
    <message>
        <source>Select how you want to sync files between this computer and your NAS. You can add more sync tasks later.</source>
        <translation>Välj hur du vill synkronisera filer mellan datorn och NAS-enheten. Du kan lägga till fler synkroniseringsuppgifter senare.</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Proxyservern kräver autentisering</translation>
    </message>
    <message>
        <source>Choose what happens when the same file has been changed on the computer and on the NAS.</source>
        <translation>Välj vad som ska hända när samma fil har ändrats både på datorn och på NAS-enheten.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Välj en annan mapp</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Klart att ta bort [ProductName]</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Check the certificate before you connect again.</source>
        <translation>NAS-enhetens SSL-certifikat har ändrats. Kontrollera certifikatet innan du ansluter igen.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Förra månaden</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Åtgärd</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Skrivskyddad</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Datumintervall</translation>
    </message>
    <message>
        <source>The download failed. Please try again later.</source>
        <translation>Nedladdningen misslyckades. Försök igen senare.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>Konfigurationen är klar.</translation>
    </message>
    <message>
        <source>Quillmere Drive on this computer is outdated. Please update it to version %1 or later.</source>
        <translation>Quillmere Drive på den här datorn är inaktuell. Uppdatera till version %1 eller senare.</translation>
    </message>
    <message>
        <source>This computer is now linked to your NAS. Syncing starts as soon as you close the wizard.</source>
        <translation>Datorn är nu kopplad till NAS-enheten. Synkroniseringen startar så snart du stänger guiden.</translation>
    </message>
    <message>
        <source>Enable sync for this shared folder</source>
        <translation>Aktivera synkronisering för den delade mappen</translation>
    </message>
    <message>
        <source>Download complete</source>
        <translation>Nedladdningen är klar</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Återuppta synkroniseringen av mappen</translation>
    </message>
    <message>
        <source>Setup is in progress. Please wait...</source>
        <translation>Konfigurationen pågår. Vänta...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Alldeles nyss</translation>
    </message>
    <message>
        <source>This computer is already linked to the same NAS. Edit the existing connection instead.</source>
        <translation>Datorn är redan kopplad till samma NAS-enhet. Redigera den befintliga anslutningen i stället.</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>%1 objekt</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Pausa anslutning</translation>
    </message>
    <message>
        <source>Quillmere Drive is ready.</source>
        <translation>Quillmere Drive är klar.</translation>
    </message>
    <message>
        <source>Keep an eye on the system tray</source>
        <translation>Håll ett öga på systemfältet</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Mer information</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. The copies on the NAS will be kept. Do you want to continue?</source>
        <translation>Mappar som du avmarkerar här tas bort från datorn. Kopiorna på NAS-enheten behålls. Vill du fortsätta?</translation>
    </message>
    <message>
        <source>October</source>
        <translation>oktober</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Mappen är inte tom</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fel</translation>
    </message>
    <message>
        <source>Restrict access to this link</source>
        <translation>Begränsa åtkomsten till länken</translation>
    </message>
    <message>
        <source>The link could not be created. Make sure that file sharing is enabled in Quillmere Drive Server.</source>
        <translation>Det gick inte att skapa länken. Kontrollera att fildelning är aktiverad i Quillmere Drive Server.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>Fler självstudier</translation>
    </message>
    <message>
        <source>Setup requires administrator rights. Do you want to restart it as an administrator?</source>
        <translation>Installationsprogrammet kräver administratörsbehörighet. Vill du starta om det som administratör?</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Copy to:</source>
        <translation>Kopiera till:</translation>
    </message>
    <message>
        <source>No previous versions of this file are available.</source>
        <translation>Det finns inga tidigare versioner av filen.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Starta nu</translation>
    </message>
    <message>
        <source>The NAS at this address is not the one that this computer was linked to. Check the address or link the computer again.</source>
        <translation>NAS-enheten på den här adressen är inte den som datorn kopplades till. Kontrollera adressen eller koppla datorn på nytt.</translation>
    </message>
    <message>
        <source>The upgrade failed. Please download the latest version and install it manually.</source>
        <translation>Uppgraderingen misslyckades. Ladda ned den senaste versionen och installera den manuellt.</translation>
    </message>
    <message>
        <source>Add sync task</source>
        <translation>Lägg till synkroniseringsuppgift</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Startdatum</translation>
    </message>
    <message>
        <source>This shared folder could not be enabled for syncing. Please try again later.</source>
        <translation>Det gick inte att aktivera synkronisering för den delade mappen. Försök igen senare.</translation>
    </message>
    <message>
        <source>In the system tray</source>
        <translation>I systemfältet</translation>
    </message>
    <message>
        <source>The folder home\Quillmere on your NAS has already been linked to this PC. We will launch the synced folder when you click Done. Or you can set up a seperate task: %1</source>
        <translation>Mappen home\Quillmere på NAS-enheten är redan kopplad till den här datorn. Den synkroniserade mappen öppnas när du klickar på ”Klart”. Du kan också skapa en separat uppgift: %1</translation>
    </message>
    <message>
        <source>The port number is invalid. Enter a number from 1 to 65535.</source>
        <translation>Portnumret är ogiltigt. Ange ett tal mellan 1 och 65535.</translation>
    </message>
    <message>
        <source>Quillmere Drive could not be initialized. Please restart your computer and try again.</source>
        <translation>Det gick inte att initialisera Quillmere Drive. Starta om datorn och försök igen.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes made on this computer will not be synced to the NAS.</source>
        <translation>Du har endast läsbehörighet till mappen. Ändringar som görs på den här datorn synkroniseras inte till NAS-enheten.</translation>
    </message>
    <message>
        <source>The version of Quillmere Drive on this computer is too old for the NAS. Version %1 or later is required.</source>
        <translation>Versionen av Quillmere Drive på den här datorn är för gammal för NAS-enheten. Version %1 eller senare krävs.</translation>
    </message>
    <message>
        <source>Files and folders that match the rules of the file filter will not be synced.</source>
        <translation>Filer och mappar som matchar reglerna i filfiltret synkroniseras inte.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Klart att reparera [ProductName]</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Återuppta synkroniseringen av mapparna</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Öppna mapp</translation>
    </message>
    <message>
        <source>Save a file and it is synced</source>
        <translation>Spara en fil så synkroniseras den</translation>
    </message>
    <message>
        <source>Files that could not be synced</source>
        <translation>Filer som inte kunde synkroniseras</translation>
    </message>
    <message>
        <source>The connection to the NAS was lost. Quillmere Drive will try to connect again automatically.</source>
        <translation>Anslutningen till NAS-enheten bröts. Quillmere Drive försöker ansluta igen automatiskt.</translation>
    </message>
    <message>
        <source>Detecting file changes...</source>
        <translation>Söker efter filändringar...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Anslutningen har upprättats.</translation>
    </message>
    <message>
        <source>The administrator requires two-factor verification for your account. Sign in to the NAS in a web browser and set it up first.</source>
        <translation>Administratören kräver tvåfaktorsautentisering för ditt konto. Logga in på NAS-enheten i en webbläsare och konfigurera den först.</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the permissions on the NAS. Please change the sync direction.</source>
        <translation>Mappens synkroniseringsriktning stämmer inte överens med behörigheterna på NAS-enheten. Ändra synkroniseringsriktningen.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Välkommen till Installationsguiden för [ProductName]</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive. This wizard will help you link this computer to your NAS.</source>
        <translation>Välkommen till Quillmere Drive. Den här guiden hjälper dig att koppla datorn till din NAS-enhet.</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files and folders</source>
        <translation>Visa ikonöverlägg på synkroniserade filer och mappar</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Autentiseringen misslyckades</translation>
    </message>
    <message>
        <source>An invalid value was entered. Please check your input and try again.</source>
        <translation>Ett ogiltigt värde har angetts. Kontrollera det du har angett och försök igen.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alla händelser</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Nästa</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choice.</source>
        <translation>Klicka på ”Ta bort” för att ta bort [ProductName] från datorn. Klicka på ”Tillbaka” för att granska ditt val.</translation>
    </message>
    <message>
        <source>Quillmere Drive Server is not running on the NAS. Start it or contact the administrator.</source>
        <translation>Quillmere Drive Server körs inte på NAS-enheten. Starta programmet eller kontakta administratören.</translation>
    </message>
    <message>
        <source>Open Quillmere Drive</source>
        <translation>Öppna Quillmere Drive</translation>
    </message>
    <message>
        <source>The SSL certificate of this NAS differs from the one saved earlier. Continue only if you trust the new certificate.</source>
        <translation>NAS-enhetens SSL-certifikat skiljer sig från det som sparades tidigare. Fortsätt bara om du litar på det nya certifikatet.</translation>
    </message>
    <message>
        <source>The selected folder is already synced by another cloud storage program. Please choose a different folder to avoid conflicts.</source>
        <translation>Den valda mappen synkroniseras redan av ett annat molnlagringsprogram. Välj en annan mapp för att undvika konflikter.</translation>
    </message>
    <message>
        <source>Right-click the tray icon to open the menu with all commands.</source>
        <translation>Högerklicka på ikonen i systemfältet för att öppna menyn med alla kommandon.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Syncing will start when indexing is complete.</source>
        <translation>Mappen indexeras. Synkroniseringen startar när indexeringen är klar.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Inaktiverad</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsätt</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Kontrollerar data...</translation>
    </message>
    <message>
        <source>Click Install to begin installing [ProductName]. Click Back to review or change your settings. Click Cancel to exit the wizard.</source>
        <translation>Klicka på ”Installera” för att påbörja installationen av [ProductName]. Klicka på ”Tillbaka” för att granska eller ändra inställningarna. Klicka på ”Avbryt” för att avsluta guiden.</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>Synkroniserar</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Öppna mappen som innehåller filen</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] har inga funktioner som kan väljas separat.</translation>
    </message>
    <message>
        <source>The local folder could not be created. Check the path and your permissions, and then try again.</source>
        <translation>Det gick inte att skapa den lokala mappen. Kontrollera sökvägen och dina behörigheter och försök sedan igen.</translation>
    </message>
    <message>
        <source>NAS address</source>
        <translation>NAS-adress</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. It may have been deleted, or you may not have permission to access it.</source>
        <translation>Det går inte att ladda ned filen. Den kan ha tagits bort, eller så har du inte behörighet till den.</translation>
    </message>
    <message>
        <source>The IP address of this computer is not allowed to access the NAS. Contact the administrator.</source>
        <translation>Datorns IP-adress har inte behörighet att ansluta till NAS-enheten. Kontakta administratören.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Några filer som behöver uppdateras används just nu.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Sista sidan</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum och tid</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Namnbyte</translation>
    </message>
    <message>
        <source>View sync status</source>
        <translation>Visa synkroniseringsstatus</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>söndag</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]Installerar [ProductName]</translation>
    </message>
    <message>
        <source>Enter the names of the files that should not be synced. An asterisk (*) stands for any number of characters.</source>
        <translation>Ange namnen på de filer som inte ska synkroniseras. En asterisk (*) står för valfritt antal tecken.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allmänt</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Mappar att synkronisera</translation>
    </message>
    <message>
        <source>RapidHail</source>
        <translation>RapidHail</translation>
    </message>
    <message>
        <source>Enter the IP address, hostname, or RapidHail ID of your NAS.</source>
        <translation>Ange NAS-enhetens IP-adress, värdnamn eller RapidHail-ID.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>onsdag</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Synkronisera en ny mapp</translation>
    </message>
    <message>
        <source>NAS changed</source>
        <translation>NAS-enheten har ändrats</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tillbaka</translation>
    </message>
    <message>
        <source>If you disable this folder, it will no longer be synced. The files on this computer will be kept. Do you want to continue?</source>
        <translation>Om du inaktiverar mappen synkroniseras den inte längre. Filerna på datorn behålls. Vill du fortsätta?</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Öppna fil</translation>
    </message>
    <message>
        <source>This folder cannot be synced because its path is invalid. Please choose another folder.</source>
        <translation>Mappen kan inte synkroniseras eftersom sökvägen är ogiltig. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>The shared folder on the NAS is not mounted. If it is encrypted, mount it first.</source>
        <translation>Den delade mappen på NAS-enheten är inte monterad. Om den är krypterad måste du montera den först.</translation>
    </message>
    <message>
        <source>Expiration time</source>
        <translation>Utgångstid</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Användarnamn</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up.</source>
        <translation>Din kvot på NAS-enheten är förbrukad.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please correct them before you continue.</source>
        <translation>Några fält innehåller ogiltiga värden. Korrigera dem innan du fortsätter.</translation>
    </message>
    <message>
        <source>The RapidHail service cannot be reached. Check your internet connection and try again.</source>
        <translation>Det går inte att nå RapidHail-tjänsten. Kontrollera internetanslutningen och försök igen.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>fredag</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Öppna huvudfönstret</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Proxyport</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; has been used up. Free up some space to continue syncing.</source>
        <translation>Kvoten för den delade mappen ”%1” är förbrukad. Frigör utrymme för att fortsätta synkroniseringen.</translation>
    </message>
    <message>
        <source>Link to a new NAS</source>
        <translation>Koppla till en ny NAS-enhet</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Förra veckan</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is too old for this computer. Version %1 or later is required.</source>
        <translation>Quillmere Drive Server på NAS-enheten är för gammal för den här datorn. Version %1 eller senare krävs.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juni</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a network error. Check your network connection and try again.</source>
        <translation>Det går inte att kontrollera mappen på grund av ett nätverksfel. Kontrollera nätverksanslutningen och försök igen.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Värde</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]Ta &amp;bort</translation>
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
        <translation>Jag förstår</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Välkommen</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Tar bort [ProductName] från datorn.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Återuppta</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Lösenord</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Från</translation>
    </message>
    <message>
        <source>You can open the synced folder at any time from the Quillmere Drive icon in the system tray.</source>
        <translation>Du kan när som helst öppna den synkroniserade mappen via Quillmere Drive-ikonen i systemfältet.</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Filer har uppdaterats</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;pair</source>
        <translation>[DlgTitleFont]&amp;Reparera</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>tisdag</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Inga tillgängliga alternativ</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjälp</translation>
    </message>
    <message>
        <source>The NAS at this address has changed. Please link this computer again.</source>
        <translation>NAS-enheten på den här adressen har ändrats. Koppla datorn till NAS-enheten på nytt.</translation>
    </message>
    <message>
        <source>The installation of [ProductName] was interrupted. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>Installationen av [ProductName] avbröts. Inga ändringar har gjorts i systemet. Kör installationsprogrammet igen om du vill installera programmet senare.</translation>
    </message>
    <message>
        <source>The connection test failed. The username or password is incorrect.</source>
        <translation>Anslutningstestet misslyckades. Användarnamnet eller lösenordet är felaktigt.</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>&amp;Reparera</translation>
    </message>
    <message>
        <source>A sync task has stopped because of an error. Click here for details.</source>
        <translation>En synkroniseringsuppgift har stoppats på grund av ett fel. Klicka här för mer information.</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and the account that you want to use for syncing.</source>
        <translation>Ange adressen till NAS-enheten och det konto som du vill använda för synkronisering.</translation>
    </message>
    <message>
        <source>Connect anyway</source>
        <translation>Anslut ändå</translation>
    </message>
    <message>
        <source>The files on this computer and the files in the shared folder will be merged. If two files have the same name, the newer one is used.</source>
        <translation>Filerna på datorn och filerna i den delade mappen slås ihop. Om två filer har samma namn används den nyare filen.</translation>
    </message>
    <message>
        <source>Start Quillmere Drive automatically when I sign in</source>
        <translation>Starta Quillmere Drive automatiskt när jag loggar in</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this link? People who have it will no longer be able to open the file.</source>
        <translation>Vill du ta bort länken? Personer som har den kommer inte längre att kunna öppna filen.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Byt mapp</translation>
    </message>
    <message>
        <source>The username or password is incorrect, or the account has been disabled.</source>
        <translation>Användarnamnet eller lösenordet är felaktigt, eller så har kontot inaktiverats.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Slutför</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;do not accept the terms of the license agreement</source>
        <translation>{\DlgFont8}Jag go&amp;dkänner inte villkoren i licensavtalet</translation>
    </message>
    <message>
        <source>Right-click a file and select &quot;Share link&quot; to create a link. Send it to anyone who needs the file, even if they have no account on your NAS.</source>
        <translation>Högerklicka på en fil och välj ”Dela länk” för att skapa en länk. Skicka den till alla som behöver filen, även om de inte har något konto på din NAS-enhet.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synkroniseringsläge</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps earlier versions of your files. Right-click a file and select &quot;Browse previous versions&quot; to restore one of them.</source>
        <translation>Quillmere Drive sparar tidigare versioner av dina filer. Högerklicka på en fil och välj ”Bläddra bland tidigare versioner” för att återställa en av dem.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Följande %1 sidor</translation>
    </message>
    <message>
        <source>Quillmere Drive is already running. You can find its icon in the system tray.</source>
        <translation>Quillmere Drive körs redan. Du hittar ikonen i systemfältet.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Läser in delade mappar...</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Första sidan</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Konfigurera proxy manuellt</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>För %1 tim sedan</translation>
    </message>
    <message>
        <source>This folder cannot be synced because of a system error. Please try again later.</source>
        <translation>Mappen kan inte synkroniseras på grund av ett systemfel. Försök igen senare.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Vid dubbelklick på ikonen i systemfältet</translation>
    </message>
    <message>
        <source>Selective sync by folder</source>
        <translation>Selektiv synkronisering efter mapp</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Delade mappar</translation>
    </message>
    <message>
        <source>Sync with another NAS</source>
        <translation>Synkronisera med en annan NAS-enhet</translation>
    </message>
    <message>
        <source>This creates a Quillmere folder on your computer and keeps it synced with your home folder on your Orvane NAS (recommended for personal use).</source>
        <translation>Skapar en Quillmere-mapp på datorn och håller den synkroniserad med din home-mapp på din Orvane NAS (rekommenderas för personligt bruk).</translation>
    </message>
    <message>
        <source>Click here to upgrade</source>
        <translation>Klicka här för att uppgradera</translation>
    </message>
    <message>
        <source>April</source>
        <translation>april</translation>
    </message>
    <message>
        <source>On your computer</source>
        <translation>På datorn</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of [ProductName]?</source>
        <translation>Vill du avbryta installationen av [ProductName]?</translation>
    </message>
    <message>
        <source>Files and folders excluded from sync</source>
        <translation>Filer och mappar som undantas från synkronisering</translation>
    </message>
    <message>
        <source>This version of Quillmere Drive is already installed. Do you want to install it again?</source>
        <translation>Den här versionen av Quillmere Drive är redan installerad. Vill du installera den igen?</translation>
    </message>
    <message>
        <source>has been shared. The link was copied to the clipboard.</source>
        <translation>har delats. Länken har kopierats till Urklipp.</translation>
    </message>
    <message>
        <source>The NAS sent an unexpected response. Make sure that Quillmere Drive and Quillmere Drive Server are both up to date.</source>
        <translation>NAS-enheten skickade ett oväntat svar. Kontrollera att både Quillmere Drive och Quillmere Drive Server är uppdaterade.</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Undanta mappen från synkronisering</translation>
    </message>
    <message>
        <source>March</source>
        <translation>mars</translation>
    </message>
    <message>
        <source>The RapidHail service encountered a system error. Please try again later.</source>
        <translation>Ett systemfel uppstod i RapidHail-tjänsten. Försök igen senare.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Folder is read-only</source>
        <translation>Mappen är skrivskyddad</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;accept the terms of the license agreement</source>
        <translation>{\DlgFont8}Jag &amp;godkänner villkoren i licensavtalet</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synkroniseringsriktning</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Nedladdningshistorik</translation>
    </message>
    <message>
        <source>Select a folder on this computer and the shared folder on the NAS that it will be synced with.</source>
        <translation>Välj en mapp på den här datorn och den delade mapp på NAS-enheten som den ska synkroniseras med.</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>Fältet får inte lämnas tomt.</translation>
    </message>
    <message>
        <source>Choose a shared folder on your NAS that is not yet synced with this computer.</source>
        <translation>Välj en delad mapp på NAS-enheten som ännu inte synkroniseras med den här datorn.</translation>
    </message>
    <message>
        <source>How existing files are merged</source>
        <translation>Hur befintliga filer slås ihop</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Nätverksinställningar</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Återställ</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Ta bort länk</translation>
    </message>
    <message>
        <source>This sync task is inactive because the shared folder is not available.</source>
        <translation>Synkroniseringsuppgiften är inaktiv eftersom den delade mappen inte är tillgänglig.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Enkelriktad nedladdning</translation>
    </message>
    <message>
        <source>Go back to an earlier version</source>
        <translation>Gå tillbaka till en tidigare version</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Uppladdning</translation>
    </message>
    <message>
        <source>Changes the set of [ProductName] features that are installed.</source>
        <translation>Ändrar vilka [ProductName]-funktioner som är installerade.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maj</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Filnamn</translation>
    </message>
    <message>
        <source>Link this computer to your NAS in just a few steps.</source>
        <translation>Koppla datorn till din NAS-enhet i några få steg.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Slutför</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Kryptera anslutningen med SSL</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Anslutningsläge</translation>
    </message>
    <message>
        <source>Keep the file that was modified last</source>
        <translation>Behåll den fil som ändrades senast</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Redigera</translation>
    </message>
    <message>
        <source>A newer version of Quillmere Drive is already installed. Setup will now close.</source>
        <translation>En nyare version av Quillmere Drive är redan installerad. Installationsprogrammet avslutas nu.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Confirm the new certificate before you select a folder.</source>
        <translation>NAS-enhetens SSL-certifikat har ändrats. Bekräfta det nya certifikatet innan du väljer en mapp.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Slå ihop</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Den delade mappen hittades inte</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Ta bort koppling</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Lokal mapp</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Välj en mapp</translation>
    </message>
    <message>
        <source>Set up the folder to sync</source>
        <translation>Konfigurera mappen som ska synkroniseras</translation>
    </message>
    <message>
        <source>Enter the connection settings for your NAS.</source>
        <translation>Ange anslutningsinställningarna för NAS-enheten.</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>Varning om SSL-certifikat</translation>
    </message>
    <message>
        <source>Share files with a link</source>
        <translation>Dela filer med en länk</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Filtyp</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Återuppta anslutning</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>I&amp;gnorera</translation>
    </message>
    <message>
        <source>The maximum file size must be a whole number greater than 0.</source>
        <translation>Den maximala filstorleken måste vara ett heltal större än 0.</translation>
    </message>
    <message>
        <source>Insufficient permissions</source>
        <translation>Otillräcklig behörighet</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Uppdaterad: %1</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive</source>
        <translation>Välkommen till Quillmere Drive</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Nyckelord</translation>
    </message>
    <message>
        <source>This allows you to specify a folder on your computer to keep synced with a shared folder on your Orvane NAS. (Recommended for teamwork)​.</source>
        <translation>Låter dig ange en mapp på datorn som ska hållas synkroniserad med en delad mapp på din Orvane NAS (rekommenderas för samarbete).</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin repairing [ProductName].</source>
        <translation>Installationsguiden är redo att börja reparera [ProductName].</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Verkställ</translation>
    </message>
    <message>
        <source>A network error occurred. Check your network connection and try again.</source>
        <translation>Ett nätverksfel uppstod. Kontrollera nätverksanslutningen och försök igen.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already being synced. Please choose another folder.</source>
        <translation>Mappen överlappar en mapp som redan synkroniseras. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}Installationsguiden för [ProductName] avbröts</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Tillbaka</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Starttid</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Visa självstudierna</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Snabbkonfiguration</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Hantera</translation>
    </message>
    <message>
        <source>Links cannot be created over a RapidHail connection because file sharing is disabled on the NAS.</source>
        <translation>Det går inte att skapa länkar via en RapidHail-anslutning eftersom fildelning är inaktiverad på NAS-enheten.</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Hantera delade mappar</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Läs följande licensavtal noggrant.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Förbereder...</translation>
    </message>
    <message>
        <source>Keep the version on the NAS and overwrite the one on this computer</source>
        <translation>Behåll versionen på NAS-enheten och skriv över den på datorn</translation>
    </message>
    <message>
        <source>August</source>
        <translation>augusti</translation>
    </message>
    <message>
        <source>Use a RapidHail connection</source>
        <translation>Använd en RapidHail-anslutning</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard ended early</source>
        <translation>{\VerdanaBold13}Installationsguiden för [ProductName] avslutades i förtid</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up. Files can no longer be uploaded until you free up some space.</source>
        <translation>Din kvot på NAS-enheten är förbrukad. Inga fler filer kan laddas upp förrän du frigör utrymme.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]Än&amp;dra</translation>
    </message>
    <message>
        <source>Set an expiration date for this link</source>
        <translation>Ange ett utgångsdatum för länken</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Byt lokal mapp</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximal filstorlek</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Ta &amp;bort</translation>
    </message>
    <message>
        <source>Quillmere Drive is initializing...</source>
        <translation>Quillmere Drive initialiserar...</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Dubbelriktad synkronisering</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Använd systemets proxyinställningar</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Tar bort koppling...</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open (a restart will be required)</source>
        <translation>&amp;Lämna programmen öppna (omstart krävs)</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard is complete</source>
        <translation>{\VerdanaBold13}Installationsguiden för [ProductName] har slutförts</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Synkroniseringsuppgift</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>Skapad</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Starta [ProductName]</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nästa</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Proxyadress</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Nyligen ändrade filer</translation>
    </message>
    <message>
        <source>Unlink from the NAS</source>
        <translation>Ta bort kopplingen till NAS-enheten</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Please try again later.</source>
        <translation>Det går inte att visa filens versioner. Försök igen senare.</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Låst av ett annat program</translation>
    </message>
    <message>
        <source>An unknown error occurred. Please try again later.</source>
        <translation>Ett okänt fel uppstod. Försök igen senare.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified.</source>
        <translation>Det gick inte att verifiera NAS-enhetens SSL-certifikat.</translation>
    </message>
    <message>
        <source>Checking username and password...</source>
        <translation>Kontrollerar användarnamn och lösenord...</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Avancerade inställningar</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Skriv &amp;ut</translation>
    </message>
    <message>
        <source>February</source>
        <translation>februari</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>Quillmere Drive</source>
        <translation>Quillmere Drive</translation>
    </message>
    <message>
        <source>You have read-only access to this shared folder. Files can be downloaded to this computer but not uploaded to the NAS.</source>
        <translation>Du har endast läsbehörighet till den delade mappen. Filer kan laddas ned till den här datorn men inte laddas upp till NAS-enheten.</translation>
    </message>
    <message>
        <source>The drive that contains the local folder is not mounted. Connect the drive to continue syncing.</source>
        <translation>Enheten som innehåller den lokala mappen är inte monterad. Anslut enheten för att fortsätta synkroniseringen.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Mål</translation>
    </message>
    <message>
        <source>Search the local network for an Orvane NAS.</source>
        <translation>Sök efter en Orvane NAS i det lokala nätverket.</translation>
    </message>
    <message>
        <source>Storage full</source>
        <translation>Lagringsutrymmet är fullt</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>NAS-översikt</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direktanslutning</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Nedladdning</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxyinställningar</translation>
    </message>
    <message>
        <source>Unstable connection</source>
        <translation>Instabil anslutning</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync this folder. Free up some space or choose another folder.</source>
        <translation>Det finns inte tillräckligt med ledigt utrymme på datorn för att synkronisera mappen. Frigör utrymme eller välj en annan mapp.</translation>
    </message>
    <message>
        <source>Use a black and white tray icon</source>
        <translation>Använd en svartvit ikon i systemfältet</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Synkroniseringshistorik</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Nedladdningen avbröts.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>Följande program använder filer som installationsprogrammet behöver uppdatera. Stäng dem och klicka på ”Försök igen” för att fortsätta.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installera</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please wait a few minutes before you try again.</source>
        <translation>För många misslyckade försök. Vänta några minuter innan du försöker igen.</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>Allt är klart</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Läser in...</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nej tack</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Ny delad mapp</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Avsluta</translation>
    </message>
    <message>
        <source>You can let Setup close the applications listed below and try to restart them afterward.</source>
        <translation>Installationsprogrammet kan stänga programmen nedan och försöka starta om dem efteråt.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change the way [ProductName] is installed or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Med Installationsguiden kan du ändra hur [ProductName] är installerad eller ta bort programmet från datorn. Klicka på ”Nästa” för att fortsätta eller på ”Avbryt” för att avsluta.</translation>
    </message>
    <message>
        <source>Try syncing a file</source>
        <translation>Prova att synkronisera en fil</translation>
    </message>
    <message>
        <source>No data to display</source>
        <translation>Det finns inga data att visa</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>För %1 dag(ar) sedan</translation>
    </message>
    <message>
        <source>You can now sync the shared folder &quot;%1&quot;. Click here to enable it.</source>
        <translation>Nu kan du synkronisera den delade mappen ”%1”. Klicka här för att aktivera den.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Laddar upp...</translation>
    </message>
    <message>
        <source>Your Quillmere folder is ready. Drop files into it and they will be synced with your NAS.</source>
        <translation>Din Quillmere-mapp är klar. Lägg filer i den så synkroniseras de med NAS-enheten.</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>Det finns ingen mapp som kan synkroniseras.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Föregående %1 sidor</translation>
    </message>
    <message>
        <source>The verification code is invalid. Please check the code and try again.</source>
        <translation>Verifieringskoden är ogiltig. Kontrollera koden och försök igen.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>I dag</translation>
    </message>
    <message>
        <source>The selected folder is on a network drive. Changes made there by other computers may not be detected immediately.</source>
        <translation>Den valda mappen finns på en nätverksenhet. Ändringar som görs där av andra datorer kanske inte upptäcks omedelbart.</translation>
    </message>
    <message>
        <source>Show icon overlays on files excluded by the file filter</source>
        <translation>Visa ikonöverlägg på filer som undantas av filfiltret</translation>
    </message>
    <message>
        <source>Files to sync</source>
        <translation>Filer att synkronisera</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Dela länk</translation>
    </message>
    <message>
        <source>Detecting connection mode...</source>
        <translation>Identifierar anslutningsläge...</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Anpassad giltighetstid</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>Sök efter NAS-enheter i det lokala nätverket</translation>
    </message>
    <message>
        <source>The proxy address and port cannot be empty.</source>
        <translation>Proxyadress och port måste anges.</translation>
    </message>
    <message>
        <source>You can also protect a link with a password or set an expiration date.</source>
        <translation>Du kan även skydda en länk med ett lösenord eller ange ett utgångsdatum.</translation>
    </message>
    <message>
        <source>All your files, always at hand</source>
        <translation>Alla dina filer, alltid nära till hands</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Utgångsdatum</translation>
    </message>
    <message>
        <source>September</source>
        <translation>september</translation>
    </message>
    <message>
        <source>Create a Quillmere folder on this computer</source>
        <translation>Skapa en Quillmere-mapp på den här datorn</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Guide för avancerad konfiguration</translation>
    </message>
    <message>
        <source>The selected folder is already part of a sync task on this computer.</source>
        <translation>Den valda mappen ingår redan i en synkroniseringsuppgift på den här datorn.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>För %1 min sedan</translation>
    </message>
    <message>
        <source>This shared folder is already synced with the folder &quot;%1&quot; on this computer.</source>
        <translation>Den delade mappen synkroniseras redan med mappen ”%1” på den här datorn.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>Det finns inte tillräckligt med ledigt utrymme på NAS-enheten.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>N&amp;ej</translation>
    </message>
    <message>
        <source>Click Repair to restore missing or damaged files, shortcuts, and registry entries. Click Back to review your choice.</source>
        <translation>Klicka på ”Reparera” för att återställa saknade eller skadade filer, genvägar och registerposter. Klicka på ”Tillbaka” för att granska ditt val.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Visa inte det här meddelandet igen</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by restoring missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Reparerar fel i den senaste installationen genom att återställa saknade eller skadade filer, genvägar och registerposter.</translation>
    </message>
    <message>
        <source>Number of times the link can be opened</source>
        <translation>Antal gånger som länken kan öppnas</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>I går</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified. The folder cannot be selected until the certificate is trusted.</source>
        <translation>Det gick inte att verifiera NAS-enhetens SSL-certifikat. Mappen kan inte väljas förrän certifikatet är betrott.</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>Lösenordsskydd</translation>
    </message>
    <message>
        <source>The SSL certificate could not be verified. It may be self-signed, expired, or issued for another hostname.</source>
        <translation>Det gick inte att verifiera SSL-certifikatet. Det kan vara självsignerat, ha upphört att gälla eller vara utfärdat för ett annat värdnamn.</translation>
    </message>
    <message>
        <source>Please update Quillmere Drive Server on the NAS to use selective sync.</source>
        <translation>Uppdatera Quillmere Drive Server på NAS-enheten för att använda selektiv synkronisering.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up some space to continue syncing.</source>
        <translation>Det finns inte tillräckligt med ledigt utrymme på datorn. Frigör utrymme för att fortsätta synkroniseringen.</translation>
    </message>
    <message>
        <source>The selected folder is used by a backup task. Syncing it may cause conflicts.</source>
        <translation>Den valda mappen används av en säkerhetskopieringsuppgift. Om du synkroniserar den kan det uppstå konflikter.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>One-way sync from the NAS to this computer</source>
        <translation>Enkelriktad synkronisering från NAS-enheten till den här datorn</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Endast nedladdning</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Det finns inte tillräckligt med ledigt utrymme på datorn.</translation>
    </message>
    <message>
        <source>Blocked by:</source>
        <translation>Blockeras av:</translation>
    </message>
    <message>
        <source>This computer is linked to your NAS, and your files are now being synced.</source>
        <translation>Datorn är kopplad till NAS-enheten och dina filer synkroniseras nu.</translation>
    </message>
    <message>
        <source>The RapidHail ID is invalid or does not exist.</source>
        <translation>Angivet RapidHail-ID är ogiltigt eller finns inte.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Vänteläge</translation>
    </message>
    <message>
        <source>Remove the program from this computer</source>
        <translation>Ta bort programmet från datorn</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established because of an SSL error.</source>
        <translation>Det gick inte att upprätta en säker anslutning till NAS-enheten på grund av ett SSL-fel.</translation>
    </message>
    <message>
        <source>General settings</source>
        <translation>Allmänna inställningar</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Visa skrivbordsaviseringar</translation>
    </message>
    <message>
        <source>Selective sync by file type</source>
        <translation>Selektiv synkronisering efter filtyp</translation>
    </message>
    <message>
        <source>December</source>
        <translation>december</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mapp</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is outdated. Please ask the administrator to update it to version %1 or later.</source>
        <translation>Quillmere Drive Server på NAS-enheten är inaktuell. Be administratören att uppdatera till version %1 eller senare.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Klart</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Ändra vilka funktioner som är installerade</translation>
    </message>
    <message>
        <source>If you no longer need the program, you can remove it now. Your synced files will be kept on this computer.</source>
        <translation>Om du inte längre behöver programmet kan du ta bort det nu. Dina synkroniserade filer behålls på datorn.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be merged with the files in the shared folder.</source>
        <translation>Den valda mappen är inte tom. Filerna i den slås ihop med filerna i den delade mappen.</translation>
    </message>
    <message>
        <source>The link could not be deleted. Please try again later.</source>
        <translation>Det gick inte att ta bort länken. Försök igen senare.</translation>
    </message>
    <message>
        <source>A link cannot be created for this file. Make sure that it has been synced to the NAS.</source>
        <translation>Det går inte att skapa en länk för filen. Kontrollera att den har synkroniserats till NAS-enheten.</translation>
    </message>
    <message>
        <source>Check all file attributes for changes</source>
        <translation>Kontrollera alla filattribut för att hitta ändringar</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove the installation</source>
        <translation>[DlgTitleFont]Ändra, reparera eller ta bort installationen</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>måndag</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>Den valda mappen är skrivskyddad. Välj en mapp som du har skrivbehörighet till.</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the sync task &quot;%1&quot;? The files on this computer and on the NAS will be kept.</source>
        <translation>Vill du ta bort synkroniseringsuppgiften ”%1”? Filerna på datorn och på NAS-enheten behålls.</translation>
    </message>
    <message>
        <source>Limit how often this link can be opened</source>
        <translation>Begränsa hur många gånger länken kan öppnas</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Delad mapp</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps the folders on your computers in sync with your Orvane NAS.</source>
        <translation>Quillmere Drive håller mapparna på dina datorer synkroniserade med din Orvane NAS.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Ange verifieringskoden</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Sammanfattning</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>Filnamnstillägg</translation>
    </message>
    <message>
        <source>The username cannot be empty.</source>
        <translation>Användarnamn måste anges.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappsökväg</translation>
    </message>
    <message>
        <source>Folder already linked</source>
        <translation>Mappen är redan kopplad</translation>
    </message>
    <message>
        <source>The maximum length of this field is %1 characters.</source>
        <translation>Fältet får innehålla högst %1 tecken.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from &quot;%1&quot;? Syncing will stop, but your files will be kept.</source>
        <translation>Vill du ta bort kopplingen mellan datorn och ”%1”? Synkroniseringen stoppas, men dina filer behålls.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Avancerad konfiguration</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Anpassat intervall</translation>
    </message>
    <message>
        <source>You have reached the maximum of %1 sync tasks. Remove a sync task before you add another one.</source>
        <translation>Du har nått gränsen på %1 synkroniseringsuppgifter. Ta bort en synkroniseringsuppgift innan du lägger till en ny.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappnamn</translation>
    </message>
    <message>
        <source>Quillmere Drive is being upgraded. Please wait...</source>
        <translation>Quillmere Drive uppgraderas. Vänta...</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to keep synced with your NAS.</source>
        <translation>Välj den mapp på datorn som du vill hålla synkroniserad med NAS-enheten.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testar anslutningen...</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Synkroniserar: %1</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS. Contact the administrator.</source>
        <translation>Den delade mappen är inte monterad på NAS-enheten. Kontakta administratören.</translation>
    </message>
    <message>
        <source>Keep your files in sync between this computer and your NAS, and reach them wherever you are.</source>
        <translation>Håll filerna synkroniserade mellan datorn och NAS-enheten och kom åt dem var du än är.</translation>
    </message>
    <message>
        <source>Your account is protected by two-factor verification. Please enter the verification code to continue.</source>
        <translation>Ditt konto skyddas av tvåfaktorsautentisering. Ange verifieringskoden för att fortsätta.</translation>
    </message>
    <message>
        <source>Edit file filter</source>
        <translation>Redigera filfilter</translation>
    </message>
    <message>
        <source>Open the synced folder</source>
        <translation>Öppna den synkroniserade mappen</translation>
    </message>
    <message>
        <source>File names to exclude</source>
        <translation>Filnamn att undanta</translation>
    </message>
    <message>
        <source>File path</source>
        <translation>Filsökväg</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Till</translation>
    </message>
    <message>
        <source>January</source>
        <translation>januari</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Använd inte proxy</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync with this computer.</source>
        <translation>Välj den delade mapp på NAS-enheten som du vill synkronisera med den här datorn.</translation>
    </message>
    <message>
        <source>This shared folder does not exist on the NAS. It may have been renamed or deleted.</source>
        <translation>Den delade mappen finns inte på NAS-enheten. Den kan ha bytt namn eller tagits bort.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Storlek</translation>
    </message>
    <message>
        <source>Server not running</source>
        <translation>Servern körs inte</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Installationsguiden installerar [ProductName] på datorn. Klicka på ”Nästa” för att fortsätta eller på ”Avbryt” för att avsluta.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synkroniseringsuppgifter</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>Installationsguiden är redo att påbörja installationen.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Syncing %1 file(s)</source>
        <translation>Synkroniserar %1 fil(er)</translation>
    </message>
    <message>
        <source>&amp;Close the applications and try to restart them</source>
        <translation>&amp;Stäng programmen och försök starta om dem</translation>
    </message>
    <message>
        <source>Please wait. The requested changes are being made.</source>
        <translation>Vänta. De begärda ändringarna genomförs.</translation>
    </message>
    <message>
        <source>Upgrade available</source>
        <translation>Uppgradering tillgänglig</translation>
    </message>
    <message>
        <source>Repair the current installation</source>
        <translation>Reparera den aktuella installationen</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Uppgraderar...</translation>
    </message>
    <message>
        <source>Set up a separate sync task</source>
        <translation>Skapa en separat synkroniseringsuppgift</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>Inga inställningar har ändrats.</translation>
    </message>
</context>
</TS>
