<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Keep your data safe and synced at all times</source>
        <translation>Dati sempre protetti e sincronizzati</translation>
    </message>
    <message>
        <source>The quota on the NAS has been used up. Free up some space or ask the administrator to raise your quota, and then select the folder again.</source>
        <translation>La quota disponibile sul NAS è esaurita. Liberare spazio o chiedere all&apos;amministratore di aumentare la quota, quindi selezionare di nuovo la cartella.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-user license agreement</source>
        <translation>[DlgTitleFont]Contratto di licenza con l&apos;utente finale</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Scegliere una modalità di configurazione</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Pronto per l&apos;installazione di [ProductName]</translation>
    </message>
    <message>
        <source>This shared folder has been disabled for your account. Contact the administrator of the NAS to regain access.</source>
        <translation>Questa cartella condivisa è stata disabilitata per l&apos;account in uso. Contattare l&apos;amministratore del NAS per ottenere di nuovo l&apos;accesso.</translation>
    </message>
    <message>
        <source>Merge the folders</source>
        <translation>Unisci le cartelle</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>Link di condivisione</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Errore di sincronizzazione</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Fare clic su &quot;Fine&quot; per uscire dall&apos;Installazione guidata.</translation>
    </message>
    <message>
        <source>Set a start date for this link</source>
        <translation>Imposta una data di inizio per questo link</translation>
    </message>
    <message>
        <source>The local sync database cannot be read. Restart Quillmere Drive. If the problem persists, link this computer again.</source>
        <translation>Impossibile leggere il database di sincronizzazione locale. Riavviare Quillmere Drive. Se il problema persiste, ricollegare il computer al NAS.</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Scegliere le cartelle da sincronizzare</translation>
    </message>
    <message>
        <source>Every file you put in a synced folder is copied to your NAS automatically. Just save your work and let Quillmere Drive do the rest.</source>
        <translation>Ogni file inserito in una cartella sincronizzata viene copiato automaticamente sul NAS. Basta salvare il lavoro: al resto pensa Quillmere Drive.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Riprova</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Escludi queste cartelle dalla sincronizzazione</translation>
    </message>
    <message>
        <source>The local folder of this sync task cannot be found. It may have been moved, renamed, or deleted.</source>
        <translation>Impossibile trovare la cartella locale di questa attività di sincronizzazione. Potrebbe essere stata spostata, rinominata o eliminata.</translation>
    </message>
    <message>
        <source>Quillmere Drive is starting...</source>
        <translation>Avvio di Quillmere Drive in corso...</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Applicazione delle impostazioni in corso...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Make sure that Quillmere Drive Server is installed and running on your NAS before you continue.</source>
        <translation>Prima di continuare, assicurarsi che sul NAS sia installata e in esecuzione l&apos;applicazione Quillmere Drive Server.</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Riavviare %1 per applicare le nuove impostazioni della lingua.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Download in corso...</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versioni non corrispondenti</translation>
    </message>
    <message>
        <source>The icon in the system tray shows the sync status at a glance. Click it to pause syncing, view recent changes, or open the settings.</source>
        <translation>L&apos;icona nell&apos;area di notifica mostra a colpo d&apos;occhio lo stato della sincronizzazione. Fare clic sull&apos;icona per sospendere la sincronizzazione, visualizzare le modifiche recenti o aprire le impostazioni.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>In pausa</translation>
    </message>
    <message>
        <source>Keep both versions and rename the conflicting file</source>
        <translation>Mantieni entrambe le versioni e rinomina il file in conflitto</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Punto di montaggio non supportato</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>Collegamento in corso...</translation>
    </message>
    <message>
        <source>About Quillmere Drive</source>
        <translation>Informazioni su Quillmere Drive</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Abilitata</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Sfoglia versioni precedenti</translation>
    </message>
    <message>
        <source>The Setup Wizard for [ProductName] stopped early because of an error. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>L&apos;Installazione guidata di [ProductName] è stata interrotta a causa di un errore. Il sistema non è stato modificato. Per installare il programma in un secondo momento, eseguire di nuovo il programma di installazione.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Informazioni sulla connessione</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS. Free up some space to continue syncing.</source>
        <translation>Lo spazio disponibile sul NAS non è sufficiente. Liberare spazio per continuare la sincronizzazione.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Non attiva</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Eliminazione</translation>
    </message>
    <message>
        <source>The selected folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>La cartella selezionata è un punto di montaggio e non può essere sincronizzata. Scegliere un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>Upgrade now</source>
        <translation>Aggiorna versione ora</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nome computer</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Informazioni sullo stato</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installazione di [ProductName]</translation>
    </message>
    <message>
        <source>Open the management page</source>
        <translation>Apri la pagina di gestione</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]File in uso</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>giovedì</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Attendere mentre l&apos;Installazione guidata installa [ProductName]. L&apos;operazione potrebbe richiedere alcuni minuti.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>sabato</translation>
    </message>
    <message>
        <source>Link expires after</source>
        <translation>Il link scade dopo</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to leave this page without saving them?</source>
        <translation>Alcune modifiche non sono state salvate. Uscire dalla pagina senza salvarle?</translation>
    </message>
    <message>
        <source>Select the operation that you want to perform.</source>
        <translation>Selezionare l&apos;operazione da eseguire.</translation>
    </message>
    <message>
        <source>This file was changed on the computer and on the NAS at the same time, and the conflict could not be resolved.</source>
        <translation>Questo file è stato modificato contemporaneamente sul computer e sul NAS e non è stato possibile risolvere il conflitto.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Rete locale</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aggiornata</translation>
    </message>
    <message>
        <source>A sync task named &quot;%1&quot; already exists. Please enter another name.</source>
        <translation>Esiste già un&apos;attività di sincronizzazione denominata &quot;%1&quot;. Immettere un altro nome.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder. Please choose another folder or contact the administrator.</source>
        <translation>Non si dispone dell&apos;autorizzazione per accedere a questa cartella. Scegliere un&apos;altra cartella o contattare l&apos;amministratore.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Ricollega</translation>
    </message>
    <message>
        <source>Select how you want to sync files between this computer and your NAS. You can add more sync tasks later.</source>
        <translation>Selezionare come sincronizzare i file tra questo computer e il NAS. Sarà possibile aggiungere altre attività di sincronizzazione in seguito.</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Il server proxy richiede l&apos;autenticazione</translation>
    </message>
    <message>
        <source>Choose what happens when the same file has been changed on the computer and on the NAS.</source>
        <translation>Scegliere cosa fare quando lo stesso file è stato modificato sia sul computer sia sul NAS.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Scegli un&apos;altra cartella</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Pronto per la rimozione di [ProductName]</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Check the certificate before you connect again.</source>
        <translation>Il certificato SSL del NAS è cambiato. Controllare il certificato prima di riconnettersi.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Mese scorso</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Azione</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Sola lettura</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Intervallo di date</translation>
    </message>
    <message>
        <source>The download failed. Please try again later.</source>
        <translation>Download non riuscito. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>Configurazione completata.</translation>
    </message>
    <message>
        <source>Quillmere Drive on this computer is outdated. Please update it to version %1 or later.</source>
        <translation>La versione di Quillmere Drive su questo computer è obsoleta. Eseguire l&apos;aggiornamento alla versione %1 o successiva.</translation>
    </message>
    <message>
        <source>This computer is now linked to your NAS. Syncing starts as soon as you close the wizard.</source>
        <translation>Questo computer è ora collegato al NAS. La sincronizzazione inizierà alla chiusura della procedura guidata.</translation>
    </message>
    <message>
        <source>Enable sync for this shared folder</source>
        <translation>Abilita la sincronizzazione per questa cartella condivisa</translation>
    </message>
    <message>
        <source>Download complete</source>
        <translation>Download completato</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Riprendi la sincronizzazione di questa cartella</translation>
    </message>
    <message>
        <source>Setup is in progress. Please wait...</source>
        <translation>Configurazione in corso. Attendere...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Poco fa</translation>
    </message>
    <message>
        <source>This computer is already linked to the same NAS. Edit the existing connection instead.</source>
        <translation>Questo computer è già collegato allo stesso NAS. Modificare invece la connessione esistente.</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>Elementi: %1</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Sospendi connessione</translation>
    </message>
    <message>
        <source>Quillmere Drive is ready.</source>
        <translation>Quillmere Drive pronta.</translation>
    </message>
    <message>
        <source>Keep an eye on the system tray</source>
        <translation>Tutto sotto controllo dall&apos;area di notifica</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Ulteriori dettagli</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. The copies on the NAS will be kept. Do you want to continue?</source>
        <translation>Le cartelle deselezionate qui verranno rimosse da questo computer. Le copie sul NAS verranno mantenute. Continuare?</translation>
    </message>
    <message>
        <source>October</source>
        <translation>ottobre</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Cartella non vuota</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Restrict access to this link</source>
        <translation>Limita l&apos;accesso a questo link</translation>
    </message>
    <message>
        <source>The link could not be created. Make sure that file sharing is enabled in Quillmere Drive Server.</source>
        <translation>Impossibile creare il link. Assicurarsi che la condivisione dei file sia abilitata in Quillmere Drive Server.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>Altre esercitazioni</translation>
    </message>
    <message>
        <source>Setup requires administrator rights. Do you want to restart it as an administrator?</source>
        <translation>Il programma di installazione richiede i diritti di amministratore. Riavviarlo come amministratore?</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Copy to:</source>
        <translation>Copia in:</translation>
    </message>
    <message>
        <source>No previous versions of this file are available.</source>
        <translation>Non sono disponibili versioni precedenti di questo file.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Inizia ora</translation>
    </message>
    <message>
        <source>The NAS at this address is not the one that this computer was linked to. Check the address or link the computer again.</source>
        <translation>Il NAS a questo indirizzo non è quello a cui era collegato il computer. Controllare l&apos;indirizzo o ricollegare il computer.</translation>
    </message>
    <message>
        <source>The upgrade failed. Please download the latest version and install it manually.</source>
        <translation>Aggiornamento di versione non riuscito. Scaricare la versione più recente e installarla manualmente.</translation>
    </message>
    <message>
        <source>Add sync task</source>
        <translation>Aggiungi attività di sincronizzazione</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Data di inizio</translation>
    </message>
    <message>
        <source>This shared folder could not be enabled for syncing. Please try again later.</source>
        <translation>Impossibile abilitare la sincronizzazione di questa cartella condivisa. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>In the system tray</source>
        <translation>Nell&apos;area di notifica</translation>
    </message>
    <message>
        <source>The folder home\Quillmere on your NAS has already been linked to this PC. We will launch the synced folder when you click Done. Or you can set up a seperate task: %1</source>
        <translation>La cartella home\Quillmere sul NAS è già stata collegata a questo computer. Facendo clic su &quot;Fine&quot; verrà aperta la cartella sincronizzata. In alternativa, è possibile configurare un&apos;attività separata: %1</translation>
    </message>
    <message>
        <source>The port number is invalid. Enter a number from 1 to 65535.</source>
        <translation>Numero di porta non valido. Immettere un numero compreso tra 1 e 65535.</translation>
    </message>
    <message>
        <source>Quillmere Drive could not be initialized. Please restart your computer and try again.</source>
        <translation>Impossibile inizializzare Quillmere Drive. Riavviare il computer e riprovare.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Stato:</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes made on this computer will not be synced to the NAS.</source>
        <translation>L&apos;accesso a questa cartella è di sola lettura. Le modifiche apportate su questo computer non verranno sincronizzate sul NAS.</translation>
    </message>
    <message>
        <source>The version of Quillmere Drive on this computer is too old for the NAS. Version %1 or later is required.</source>
        <translation>La versione di Quillmere Drive su questo computer è troppo vecchia per il NAS. È richiesta la versione %1 o successiva.</translation>
    </message>
    <message>
        <source>Files and folders that match the rules of the file filter will not be synced.</source>
        <translation>I file e le cartelle che corrispondono alle regole del filtro file non verranno sincronizzati.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Pronto per il ripristino di [ProductName]</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Riprendi la sincronizzazione di queste cartelle</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>Save a file and it is synced</source>
        <translation>Basta salvare un file per sincronizzarlo</translation>
    </message>
    <message>
        <source>Files that could not be synced</source>
        <translation>File che non è stato possibile sincronizzare</translation>
    </message>
    <message>
        <source>The connection to the NAS was lost. Quillmere Drive will try to connect again automatically.</source>
        <translation>La connessione al NAS è stata interrotta. Quillmere Drive tenterà di riconnettersi automaticamente.</translation>
    </message>
    <message>
        <source>Detecting file changes...</source>
        <translation>Rilevamento delle modifiche ai file in corso...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Connessione riuscita.</translation>
    </message>
    <message>
        <source>The administrator requires two-factor verification for your account. Sign in to the NAS in a web browser and set it up first.</source>
        <translation>L&apos;amministratore richiede la verifica a due fattori per questo account. Accedere prima al NAS da un browser Web e configurarla.</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the permissions on the NAS. Please change the sync direction.</source>
        <translation>La direzione di sincronizzazione di questa cartella non corrisponde alle autorizzazioni sul NAS. Modificare la direzione di sincronizzazione.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Benvenuti nell&apos;Installazione guidata di [ProductName]</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive. This wizard will help you link this computer to your NAS.</source>
        <translation>Benvenuti in Quillmere Drive. Questa procedura guidata aiuta a collegare il computer al NAS.</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files and folders</source>
        <translation>Mostra icone sovrapposte su file e cartelle sincronizzati</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Autenticazione non riuscita</translation>
    </message>
    <message>
        <source>An invalid value was entered. Please check your input and try again.</source>
        <translation>È stato immesso un valore non valido. Controllare i dati immessi e riprovare.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Tutti gli eventi</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Avanti</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choice.</source>
        <translation>Fare clic su &quot;Rimuovi&quot; per rimuovere [ProductName] dal computer. Fare clic su &quot;Indietro&quot; per rivedere la scelta effettuata.</translation>
    </message>
    <message>
        <source>Quillmere Drive Server is not running on the NAS. Start it or contact the administrator.</source>
        <translation>Quillmere Drive Server non è in esecuzione sul NAS. Avviare l&apos;applicazione o contattare l&apos;amministratore.</translation>
    </message>
    <message>
        <source>Open Quillmere Drive</source>
        <translation>Apri Quillmere Drive</translation>
    </message>
    <message>
        <source>The SSL certificate of this NAS differs from the one saved earlier. Continue only if you trust the new certificate.</source>
        <translation>Il certificato SSL di questo NAS è diverso da quello salvato in precedenza. Continuare solo se si considera attendibile il nuovo certificato.</translation>
    </message>
    <message>
        <source>The selected folder is already synced by another cloud storage program. Please choose a different folder to avoid conflicts.</source>
        <translation>La cartella selezionata è già sincronizzata da un altro programma di archiviazione cloud. Scegliere un&apos;altra cartella per evitare conflitti.</translation>
    </message>
    <message>
        <source>Right-click the tray icon to open the menu with all commands.</source>
        <translation>Fare clic con il pulsante destro del mouse sull&apos;icona nell&apos;area di notifica per aprire il menu con tutti i comandi.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Syncing will start when indexing is complete.</source>
        <translation>Indicizzazione della cartella in corso. La sincronizzazione inizierà al termine dell&apos;indicizzazione.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabilitata</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Verifica dei dati in corso...</translation>
    </message>
    <message>
        <source>Click Install to begin installing [ProductName]. Click Back to review or change your settings. Click Cancel to exit the wizard.</source>
        <translation>Fare clic su &quot;Installa&quot; per avviare l&apos;installazione di [ProductName]. Fare clic su &quot;Indietro&quot; per rivedere o modificare le impostazioni. Fare clic su &quot;Annulla&quot; per uscire dalla procedura guidata.</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>Sincronizzazione in corso</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Apri percorso file</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] non include funzionalità selezionabili separatamente.</translation>
    </message>
    <message>
        <source>The local folder could not be created. Check the path and your permissions, and then try again.</source>
        <translation>Impossibile creare la cartella locale. Controllare il percorso e le autorizzazioni, quindi riprovare.</translation>
    </message>
    <message>
        <source>NAS address</source>
        <translation>Indirizzo NAS</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. It may have been deleted, or you may not have permission to access it.</source>
        <translation>Impossibile scaricare questo file. Potrebbe essere stato eliminato oppure non si dispone dell&apos;autorizzazione per accedervi.</translation>
    </message>
    <message>
        <source>The IP address of this computer is not allowed to access the NAS. Contact the administrator.</source>
        <translation>L&apos;indirizzo IP di questo computer non è autorizzato ad accedere al NAS. Contattare l&apos;amministratore.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Alcuni file da aggiornare sono attualmente in uso.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Ultima pagina</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data e ora</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Ridenominazione</translation>
    </message>
    <message>
        <source>View sync status</source>
        <translation>Visualizza stato di sincronizzazione</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>domenica</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]Installazione di [ProductName] in corso</translation>
    </message>
    <message>
        <source>Enter the names of the files that should not be synced. An asterisk (*) stands for any number of characters.</source>
        <translation>Immettere i nomi dei file da non sincronizzare. L&apos;asterisco (*) rappresenta un numero qualsiasi di caratteri.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sospendi</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Cartelle da sincronizzare</translation>
    </message>
    <message>
        <source>RapidHail</source>
        <translation>RapidHail</translation>
    </message>
    <message>
        <source>Enter the IP address, hostname, or RapidHail ID of your NAS.</source>
        <translation>Immettere l&apos;indirizzo IP, il nome host o l&apos;ID RapidHail del NAS.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>mercoledì</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Sincronizza una nuova cartella</translation>
    </message>
    <message>
        <source>NAS changed</source>
        <translation>NAS cambiato</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>If you disable this folder, it will no longer be synced. The files on this computer will be kept. Do you want to continue?</source>
        <translation>Se si disabilita questa cartella, non verrà più sincronizzata. I file su questo computer verranno mantenuti. Continuare?</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Apri file</translation>
    </message>
    <message>
        <source>This folder cannot be synced because its path is invalid. Please choose another folder.</source>
        <translation>Impossibile sincronizzare questa cartella perché il percorso non è valido. Scegliere un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>The shared folder on the NAS is not mounted. If it is encrypted, mount it first.</source>
        <translation>La cartella condivisa sul NAS non è montata. Se è crittografata, montarla prima di continuare.</translation>
    </message>
    <message>
        <source>Expiration time</source>
        <translation>Ora di scadenza</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up.</source>
        <translation>La quota disponibile sul NAS è esaurita.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please correct them before you continue.</source>
        <translation>Alcuni campi contengono valori non validi. Correggerli prima di continuare.</translation>
    </message>
    <message>
        <source>The RapidHail service cannot be reached. Check your internet connection and try again.</source>
        <translation>Impossibile raggiungere il servizio RapidHail. Controllare la connessione Internet e riprovare.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>venerdì</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Apri la finestra principale</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Porta proxy</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; has been used up. Free up some space to continue syncing.</source>
        <translation>La quota della cartella condivisa &quot;%1&quot; è esaurita. Liberare spazio per continuare la sincronizzazione.</translation>
    </message>
    <message>
        <source>Link to a new NAS</source>
        <translation>Collega a un nuovo NAS</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Settimana scorsa</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is too old for this computer. Version %1 or later is required.</source>
        <translation>La versione di Quillmere Drive Server sul NAS è troppo vecchia per questo computer. È richiesta la versione %1 o successiva.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>giugno</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a network error. Check your network connection and try again.</source>
        <translation>Impossibile verificare la cartella a causa di un errore di rete. Controllare la connessione di rete e riprovare.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]Ri&amp;muovi</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>July</source>
        <translation>luglio</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Ho capito</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Benvenuti</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Rimuove [ProductName] dal computer.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Da</translation>
    </message>
    <message>
        <source>You can open the synced folder at any time from the Quillmere Drive icon in the system tray.</source>
        <translation>È possibile aprire la cartella sincronizzata in qualsiasi momento dall&apos;icona di Quillmere Drive nell&apos;area di notifica.</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>File aggiornati</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;pair</source>
        <translation>[DlgTitleFont]Ripris&amp;tina</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>martedì</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Nessuna opzione disponibile</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
    </message>
    <message>
        <source>The NAS at this address has changed. Please link this computer again.</source>
        <translation>Il NAS a questo indirizzo è cambiato. Ricollegare il computer al NAS.</translation>
    </message>
    <message>
        <source>The installation of [ProductName] was interrupted. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>L&apos;installazione di [ProductName] è stata interrotta. Il sistema non è stato modificato. Per installare il programma in un secondo momento, eseguire di nuovo il programma di installazione.</translation>
    </message>
    <message>
        <source>The connection test failed. The username or password is incorrect.</source>
        <translation>Test di connessione non riuscito. Nome utente o password non corretti.</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>Ripris&amp;tina</translation>
    </message>
    <message>
        <source>A sync task has stopped because of an error. Click here for details.</source>
        <translation>Un&apos;attività di sincronizzazione è stata interrotta a causa di un errore. Fare clic qui per i dettagli.</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and the account that you want to use for syncing.</source>
        <translation>Immettere l&apos;indirizzo del NAS e l&apos;account da utilizzare per la sincronizzazione.</translation>
    </message>
    <message>
        <source>Connect anyway</source>
        <translation>Connetti comunque</translation>
    </message>
    <message>
        <source>The files on this computer and the files in the shared folder will be merged. If two files have the same name, the newer one is used.</source>
        <translation>I file su questo computer e quelli nella cartella condivisa verranno uniti. Se due file hanno lo stesso nome, viene utilizzato il più recente.</translation>
    </message>
    <message>
        <source>Start Quillmere Drive automatically when I sign in</source>
        <translation>Avvia automaticamente Quillmere Drive all&apos;accesso</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this link? People who have it will no longer be able to open the file.</source>
        <translation>Eliminare questo link? Chi ne dispone non potrà più aprire il file.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Cambia cartella</translation>
    </message>
    <message>
        <source>The username or password is incorrect, or the account has been disabled.</source>
        <translation>Il nome utente o la password non sono corretti oppure l&apos;account è stato disabilitato.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;do not accept the terms of the license agreement</source>
        <translation>{\DlgFont8}N&amp;on accetto i termini del contratto di licenza</translation>
    </message>
    <message>
        <source>Right-click a file and select &quot;Share link&quot; to create a link. Send it to anyone who needs the file, even if they have no account on your NAS.</source>
        <translation>Fare clic con il pulsante destro del mouse su un file e selezionare &quot;Condividi link&quot; per creare un link. Inviarlo a chi ha bisogno del file, anche se non dispone di un account sul NAS.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Modalità di sincronizzazione</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps earlier versions of your files. Right-click a file and select &quot;Browse previous versions&quot; to restore one of them.</source>
        <translation>Quillmere Drive conserva le versioni precedenti dei file. Fare clic con il pulsante destro del mouse su un file e selezionare &quot;Sfoglia versioni precedenti&quot; per ripristinarne una.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 pagine successive</translation>
    </message>
    <message>
        <source>Quillmere Drive is already running. You can find its icon in the system tray.</source>
        <translation>Quillmere Drive è già in esecuzione. La sua icona si trova nell&apos;area di notifica.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Caricamento delle cartelle condivise in corso...</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Prima pagina</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Configura il proxy manualmente</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>%1 ora/e fa</translation>
    </message>
    <message>
        <source>This folder cannot be synced because of a system error. Please try again later.</source>
        <translation>Impossibile sincronizzare questa cartella a causa di un errore di sistema. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Al doppio clic sull&apos;icona nell&apos;area di notifica</translation>
    </message>
    <message>
        <source>Selective sync by folder</source>
        <translation>Sincronizzazione selettiva per cartella</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Cartelle condivise</translation>
    </message>
    <message>
        <source>Sync with another NAS</source>
        <translation>Sincronizza con un altro NAS</translation>
    </message>
    <message>
        <source>This creates a Quillmere folder on your computer and keeps it synced with your home folder on your Orvane NAS (recommended for personal use).</source>
        <translation>Crea una cartella Quillmere sul computer e la mantiene sincronizzata con la cartella home sul NAS Orvane (modalità consigliata per uso personale).</translation>
    </message>
    <message>
        <source>Click here to upgrade</source>
        <translation>Fare clic qui per aggiornare la versione</translation>
    </message>
    <message>
        <source>April</source>
        <translation>aprile</translation>
    </message>
    <message>
        <source>On your computer</source>
        <translation>Sul computer</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of [ProductName]?</source>
        <translation>Annullare l&apos;installazione di [ProductName]?</translation>
    </message>
    <message>
        <source>Files and folders excluded from sync</source>
        <translation>File e cartelle esclusi dalla sincronizzazione</translation>
    </message>
    <message>
        <source>This version of Quillmere Drive is already installed. Do you want to install it again?</source>
        <translation>Questa versione di Quillmere Drive è già installata. Installarla di nuovo?</translation>
    </message>
    <message>
        <source>has been shared. The link was copied to the clipboard.</source>
        <translation>è stato condiviso. Il link è stato copiato negli Appunti.</translation>
    </message>
    <message>
        <source>The NAS sent an unexpected response. Make sure that Quillmere Drive and Quillmere Drive Server are both up to date.</source>
        <translation>Il NAS ha inviato una risposta imprevista. Assicurarsi che Quillmere Drive e Quillmere Drive Server siano entrambe aggiornate.</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Escludi questa cartella dalla sincronizzazione</translation>
    </message>
    <message>
        <source>March</source>
        <translation>marzo</translation>
    </message>
    <message>
        <source>The RapidHail service encountered a system error. Please try again later.</source>
        <translation>Il servizio RapidHail ha riscontrato un errore di sistema. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Sincronizzazione selettiva</translation>
    </message>
    <message>
        <source>Folder is read-only</source>
        <translation>Cartella di sola lettura</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;accept the terms of the license agreement</source>
        <translation>{\DlgFont8}A&amp;ccetto i termini del contratto di licenza</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Direzione di sincronizzazione</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Cronologia download</translation>
    </message>
    <message>
        <source>Select a folder on this computer and the shared folder on the NAS that it will be synced with.</source>
        <translation>Selezionare una cartella su questo computer e la cartella condivisa sul NAS con cui sincronizzarla.</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>Questo campo non può essere vuoto.</translation>
    </message>
    <message>
        <source>Choose a shared folder on your NAS that is not yet synced with this computer.</source>
        <translation>Scegliere una cartella condivisa sul NAS non ancora sincronizzata con questo computer.</translation>
    </message>
    <message>
        <source>How existing files are merged</source>
        <translation>Modalità di unione dei file esistenti</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Impostazioni di rete</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reimposta</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Elimina link</translation>
    </message>
    <message>
        <source>This sync task is inactive because the shared folder is not available.</source>
        <translation>Questa attività di sincronizzazione non è attiva perché la cartella condivisa non è disponibile.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Download unidirezionale</translation>
    </message>
    <message>
        <source>Go back to an earlier version</source>
        <translation>Tornare a una versione precedente</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Caricamento</translation>
    </message>
    <message>
        <source>Changes the set of [ProductName] features that are installed.</source>
        <translation>Modifica l&apos;insieme delle funzionalità installate di [ProductName].</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maggio</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome file</translation>
    </message>
    <message>
        <source>Link this computer to your NAS in just a few steps.</source>
        <translation>Bastano pochi passaggi per collegare il computer al NAS.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fine</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Crittografa la connessione con SSL</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Modalità di connessione</translation>
    </message>
    <message>
        <source>Keep the file that was modified last</source>
        <translation>Mantieni il file modificato per ultimo</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>A newer version of Quillmere Drive is already installed. Setup will now close.</source>
        <translation>È già installata una versione più recente di Quillmere Drive. Il programma di installazione verrà chiuso.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Confirm the new certificate before you select a folder.</source>
        <translation>Il certificato SSL del NAS è cambiato. Confermare il nuovo certificato prima di selezionare una cartella.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Unisci</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Cartella condivisa non trovata</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Scollega</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Cartella locale</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Selezionare una cartella</translation>
    </message>
    <message>
        <source>Set up the folder to sync</source>
        <translation>Configurare la cartella da sincronizzare</translation>
    </message>
    <message>
        <source>Enter the connection settings for your NAS.</source>
        <translation>Immettere le impostazioni di connessione al NAS.</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>Avviso certificato SSL</translation>
    </message>
    <message>
        <source>Share files with a link</source>
        <translation>Condividere file con un link</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo di file</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Riprendi connessione</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>I&amp;gnora</translation>
    </message>
    <message>
        <source>The maximum file size must be a whole number greater than 0.</source>
        <translation>La dimensione massima dei file deve essere un numero intero maggiore di 0.</translation>
    </message>
    <message>
        <source>Insufficient permissions</source>
        <translation>Autorizzazioni insufficienti</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Aggiornato: %1</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive</source>
        <translation>Benvenuti in Quillmere Drive</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Parola chiave</translation>
    </message>
    <message>
        <source>This allows you to specify a folder on your computer to keep synced with a shared folder on your Orvane NAS. (Recommended for teamwork)​.</source>
        <translation>Consente di specificare una cartella sul computer da mantenere sincronizzata con una cartella condivisa sul NAS Orvane (modalità consigliata per il lavoro in team).</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin repairing [ProductName].</source>
        <translation>L&apos;Installazione guidata è pronta per avviare il ripristino di [ProductName].</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>A network error occurred. Check your network connection and try again.</source>
        <translation>Si è verificato un errore di rete. Controllare la connessione di rete e riprovare.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already being synced. Please choose another folder.</source>
        <translation>Questa cartella si sovrappone a una cartella già sincronizzata. Scegliere un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}L&apos;Installazione guidata di [ProductName] è stata interrotta</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Indietro</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Ora di inizio</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Mostra l&apos;esercitazione</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sì</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Configurazione rapida</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gestisci</translation>
    </message>
    <message>
        <source>Links cannot be created over a RapidHail connection because file sharing is disabled on the NAS.</source>
        <translation>Impossibile creare link tramite una connessione RapidHail perché la condivisione dei file è disabilitata sul NAS.</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Gestisci cartelle condivise</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Leggere attentamente il seguente contratto di licenza.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparazione in corso...</translation>
    </message>
    <message>
        <source>Keep the version on the NAS and overwrite the one on this computer</source>
        <translation>Mantieni la versione sul NAS e sovrascrivi quella su questo computer</translation>
    </message>
    <message>
        <source>August</source>
        <translation>agosto</translation>
    </message>
    <message>
        <source>Use a RapidHail connection</source>
        <translation>Usa una connessione RapidHail</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard ended early</source>
        <translation>{\VerdanaBold13}L&apos;Installazione guidata di [ProductName] è terminata prima del previsto</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up. Files can no longer be uploaded until you free up some space.</source>
        <translation>La quota disponibile sul NAS è esaurita. Non sarà possibile caricare altri file finché non si libera spazio.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]Modifi&amp;ca</translation>
    </message>
    <message>
        <source>Set an expiration date for this link</source>
        <translation>Imposta una data di scadenza per questo link</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Cambia cartella locale</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Dimensione massima dei file</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Ri&amp;muovi</translation>
    </message>
    <message>
        <source>Quillmere Drive is initializing...</source>
        <translation>Quillmere Drive sta inizializzando...</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Sincronizzazione bidirezionale</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Usa le impostazioni proxy di sistema</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Scollegamento in corso...</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open (a restart will be required)</source>
        <translation>&amp;Lascia aperte le applicazioni (sarà necessario un riavvio)</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard is complete</source>
        <translation>{\VerdanaBold13}L&apos;Installazione guidata di [ProductName] è stata completata</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Attività di sincronizzazione</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>Data di creazione</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Avvia [ProductName]</translation>
    </message>
    <message>
        <source>November</source>
        <translation>novembre</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Indirizzo proxy</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>File modificati di recente</translation>
    </message>
    <message>
        <source>Unlink from the NAS</source>
        <translation>Scollega dal NAS</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Please try again later.</source>
        <translation>Impossibile elencare le versioni di questo file. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Bloccato da un altro programma</translation>
    </message>
    <message>
        <source>An unknown error occurred. Please try again later.</source>
        <translation>Si è verificato un errore sconosciuto. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified.</source>
        <translation>Impossibile verificare il certificato SSL del NAS.</translation>
    </message>
    <message>
        <source>Checking username and password...</source>
        <translation>Verifica di nome utente e password in corso...</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Impostazioni avanzate</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Stam&amp;pa</translation>
    </message>
    <message>
        <source>February</source>
        <translation>febbraio</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Quillmere Drive</source>
        <translation>Quillmere Drive</translation>
    </message>
    <message>
        <source>You have read-only access to this shared folder. Files can be downloaded to this computer but not uploaded to the NAS.</source>
        <translation>L&apos;accesso a questa cartella condivisa è di sola lettura. È possibile scaricare i file su questo computer, ma non caricarli sul NAS.</translation>
    </message>
    <message>
        <source>The drive that contains the local folder is not mounted. Connect the drive to continue syncing.</source>
        <translation>L&apos;unità che contiene la cartella locale non è montata. Collegare l&apos;unità per continuare la sincronizzazione.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destinazione</translation>
    </message>
    <message>
        <source>Search the local network for an Orvane NAS.</source>
        <translation>Cerca un NAS Orvane nella rete locale.</translation>
    </message>
    <message>
        <source>Storage full</source>
        <translation>Spazio di archiviazione esaurito</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>Panoramica del NAS</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Connessione diretta</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Download</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Impostazioni proxy</translation>
    </message>
    <message>
        <source>Unstable connection</source>
        <translation>Connessione instabile</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync this folder. Free up some space or choose another folder.</source>
        <translation>Lo spazio disponibile su questo computer non è sufficiente per sincronizzare la cartella. Liberare spazio o scegliere un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>Use a black and white tray icon</source>
        <translation>Usa un&apos;icona in bianco e nero nell&apos;area di notifica</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Cronologia di sincronizzazione</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Il download è stato annullato.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>Le seguenti applicazioni utilizzano file che il programma di installazione deve aggiornare. Chiuderle e fare clic su &quot;Riprova&quot; per continuare.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>Insta&amp;lla</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please wait a few minutes before you try again.</source>
        <translation>Troppi tentativi non riusciti. Attendere qualche minuto prima di riprovare.</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>Tutto pronto</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Caricamento in corso...</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>No, grazie</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nuova cartella condivisa</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>You can let Setup close the applications listed below and try to restart them afterward.</source>
        <translation>Il programma di installazione può chiudere le applicazioni elencate di seguito e poi tentare di riavviarle.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change the way [ProductName] is installed or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>L&apos;Installazione guidata consente di modificare la modalità di installazione di [ProductName] o di rimuovere il programma dal computer. Fare clic su &quot;Avanti&quot; per continuare o su &quot;Annulla&quot; per uscire.</translation>
    </message>
    <message>
        <source>Try syncing a file</source>
        <translation>Prova a sincronizzare un file</translation>
    </message>
    <message>
        <source>No data to display</source>
        <translation>Nessun dato da visualizzare</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>%1 giorno/i fa</translation>
    </message>
    <message>
        <source>You can now sync the shared folder &quot;%1&quot;. Click here to enable it.</source>
        <translation>È ora possibile sincronizzare la cartella condivisa &quot;%1&quot;. Fare clic qui per abilitarla.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Caricamento sul NAS in corso...</translation>
    </message>
    <message>
        <source>Your Quillmere folder is ready. Drop files into it and they will be synced with your NAS.</source>
        <translation>La cartella Quillmere è pronta. I file inseriti al suo interno verranno sincronizzati con il NAS.</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>Nessuna cartella disponibile per la sincronizzazione.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 pagine precedenti</translation>
    </message>
    <message>
        <source>The verification code is invalid. Please check the code and try again.</source>
        <translation>Il codice di verifica non è valido. Controllare il codice e riprovare.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Oggi</translation>
    </message>
    <message>
        <source>The selected folder is on a network drive. Changes made there by other computers may not be detected immediately.</source>
        <translation>La cartella selezionata si trova su un&apos;unità di rete. Le modifiche apportate al suo contenuto da altri computer potrebbero non essere rilevate immediatamente.</translation>
    </message>
    <message>
        <source>Show icon overlays on files excluded by the file filter</source>
        <translation>Mostra icone sovrapposte sui file esclusi dal filtro file</translation>
    </message>
    <message>
        <source>Files to sync</source>
        <translation>File da sincronizzare</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Condividi link</translation>
    </message>
    <message>
        <source>Detecting connection mode...</source>
        <translation>Rilevamento della modalità di connessione in corso...</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Durata personalizzata</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>Cerca dispositivi NAS nella rete locale</translation>
    </message>
    <message>
        <source>The proxy address and port cannot be empty.</source>
        <translation>L&apos;indirizzo e la porta del proxy non possono essere vuoti.</translation>
    </message>
    <message>
        <source>You can also protect a link with a password or set an expiration date.</source>
        <translation>È anche possibile proteggere un link con una password o impostare una data di scadenza.</translation>
    </message>
    <message>
        <source>All your files, always at hand</source>
        <translation>Tutti i file, sempre a portata di mano</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Data di scadenza</translation>
    </message>
    <message>
        <source>September</source>
        <translation>settembre</translation>
    </message>
    <message>
        <source>Create a Quillmere folder on this computer</source>
        <translation>Crea una cartella Quillmere su questo computer</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Procedura guidata di configurazione avanzata</translation>
    </message>
    <message>
        <source>The selected folder is already part of a sync task on this computer.</source>
        <translation>La cartella selezionata fa già parte di un&apos;attività di sincronizzazione su questo computer.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>%1 minuto/i fa</translation>
    </message>
    <message>
        <source>This shared folder is already synced with the folder &quot;%1&quot; on this computer.</source>
        <translation>Questa cartella condivisa è già sincronizzata con la cartella &quot;%1&quot; su questo computer.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>Lo spazio disponibile sul NAS non è sufficiente.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Click Repair to restore missing or damaged files, shortcuts, and registry entries. Click Back to review your choice.</source>
        <translation>Fare clic su &quot;Ripristina&quot; per ripristinare file, collegamenti e voci del Registro di sistema mancanti o danneggiati. Fare clic su &quot;Indietro&quot; per rivedere la scelta effettuata.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predefinita del sistema</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Non mostrare più questo messaggio</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by restoring missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Corregge gli errori dell&apos;installazione più recente ripristinando file, collegamenti e voci del Registro di sistema mancanti o danneggiati.</translation>
    </message>
    <message>
        <source>Number of times the link can be opened</source>
        <translation>Numero di aperture consentite del link</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ieri</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified. The folder cannot be selected until the certificate is trusted.</source>
        <translation>Impossibile verificare il certificato SSL del NAS. Non è possibile selezionare la cartella finché il certificato non è attendibile.</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>Protezione con password</translation>
    </message>
    <message>
        <source>The SSL certificate could not be verified. It may be self-signed, expired, or issued for another hostname.</source>
        <translation>Impossibile verificare il certificato SSL. Potrebbe essere autofirmato, scaduto o emesso per un altro nome host.</translation>
    </message>
    <message>
        <source>Please update Quillmere Drive Server on the NAS to use selective sync.</source>
        <translation>Aggiornare Quillmere Drive Server sul NAS per utilizzare la sincronizzazione selettiva.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up some space to continue syncing.</source>
        <translation>Lo spazio disponibile su questo computer non è sufficiente. Liberare spazio per continuare la sincronizzazione.</translation>
    </message>
    <message>
        <source>The selected folder is used by a backup task. Syncing it may cause conflicts.</source>
        <translation>La cartella selezionata è utilizzata da un&apos;attività di backup. La sua sincronizzazione potrebbe causare conflitti.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>One-way sync from the NAS to this computer</source>
        <translation>Sincronizzazione unidirezionale dal NAS a questo computer</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Solo download</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Lo spazio disponibile su questo computer non è sufficiente.</translation>
    </message>
    <message>
        <source>Blocked by:</source>
        <translation>Bloccato da:</translation>
    </message>
    <message>
        <source>This computer is linked to your NAS, and your files are now being synced.</source>
        <translation>Questo computer è collegato al NAS e la sincronizzazione dei file è in corso.</translation>
    </message>
    <message>
        <source>The RapidHail ID is invalid or does not exist.</source>
        <translation>L&apos;ID RapidHail non è valido o non esiste.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Standby</translation>
    </message>
    <message>
        <source>Remove the program from this computer</source>
        <translation>Rimuovi il programma da questo computer</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established because of an SSL error.</source>
        <translation>Impossibile stabilire una connessione sicura al NAS a causa di un errore SSL.</translation>
    </message>
    <message>
        <source>General settings</source>
        <translation>Impostazioni generali</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostra notifiche sul desktop</translation>
    </message>
    <message>
        <source>Selective sync by file type</source>
        <translation>Sincronizzazione selettiva per tipo di file</translation>
    </message>
    <message>
        <source>December</source>
        <translation>dicembre</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is outdated. Please ask the administrator to update it to version %1 or later.</source>
        <translation>La versione di Quillmere Drive Server sul NAS è obsoleta. Chiedere all&apos;amministratore di eseguire l&apos;aggiornamento alla versione %1 o successiva.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Modifica le funzionalità installate</translation>
    </message>
    <message>
        <source>If you no longer need the program, you can remove it now. Your synced files will be kept on this computer.</source>
        <translation>Se il programma non è più necessario, è possibile rimuoverlo ora. I file sincronizzati verranno mantenuti su questo computer.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be merged with the files in the shared folder.</source>
        <translation>La cartella selezionata non è vuota. I file contenuti verranno uniti a quelli nella cartella condivisa.</translation>
    </message>
    <message>
        <source>The link could not be deleted. Please try again later.</source>
        <translation>Impossibile eliminare il link. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>A link cannot be created for this file. Make sure that it has been synced to the NAS.</source>
        <translation>Impossibile creare un link per questo file. Assicurarsi che sia stato sincronizzato sul NAS.</translation>
    </message>
    <message>
        <source>Check all file attributes for changes</source>
        <translation>Controlla tutti gli attributi dei file per rilevare le modifiche</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove the installation</source>
        <translation>[DlgTitleFont]Modifica, ripristino o rimozione dell&apos;installazione</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>lunedì</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>La cartella selezionata è di sola lettura. Scegliere una cartella in cui sia possibile scrivere.</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the sync task &quot;%1&quot;? The files on this computer and on the NAS will be kept.</source>
        <translation>Rimuovere l&apos;attività di sincronizzazione &quot;%1&quot;? I file su questo computer e sul NAS verranno mantenuti.</translation>
    </message>
    <message>
        <source>Limit how often this link can be opened</source>
        <translation>Limita il numero di aperture di questo link</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Cartella condivisa</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps the folders on your computers in sync with your Orvane NAS.</source>
        <translation>Quillmere Drive mantiene le cartelle dei computer sincronizzate con il NAS Orvane.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Immettere il codice di verifica</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>Estensioni file</translation>
    </message>
    <message>
        <source>The username cannot be empty.</source>
        <translation>Il nome utente non può essere vuoto.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Percorso cartella</translation>
    </message>
    <message>
        <source>Folder already linked</source>
        <translation>Cartella già collegata</translation>
    </message>
    <message>
        <source>The maximum length of this field is %1 characters.</source>
        <translation>La lunghezza massima di questo campo è di %1 caratteri.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from &quot;%1&quot;? Syncing will stop, but your files will be kept.</source>
        <translation>Scollegare questo computer da &quot;%1&quot;? La sincronizzazione verrà interrotta, ma i file verranno mantenuti.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Configurazione avanzata</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Intervallo personalizzato</translation>
    </message>
    <message>
        <source>You have reached the maximum of %1 sync tasks. Remove a sync task before you add another one.</source>
        <translation>È stato raggiunto il numero massimo di attività di sincronizzazione (%1). Rimuovere un&apos;attività prima di aggiungerne un&apos;altra.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nome cartella</translation>
    </message>
    <message>
        <source>Quillmere Drive is being upgraded. Please wait...</source>
        <translation>Aggiornamento di versione di Quillmere Drive in corso. Attendere...</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to keep synced with your NAS.</source>
        <translation>Selezionare la cartella di questo computer da mantenere sincronizzata con il NAS.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Test della connessione in corso...</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Sincronizzazione: %1</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS. Contact the administrator.</source>
        <translation>La cartella condivisa non è montata sul NAS. Contattare l&apos;amministratore.</translation>
    </message>
    <message>
        <source>Keep your files in sync between this computer and your NAS, and reach them wherever you are.</source>
        <translation>File sempre sincronizzati tra questo computer e il NAS, accessibili ovunque.</translation>
    </message>
    <message>
        <source>Your account is protected by two-factor verification. Please enter the verification code to continue.</source>
        <translation>L&apos;account è protetto dalla verifica a due fattori. Immettere il codice di verifica per continuare.</translation>
    </message>
    <message>
        <source>Edit file filter</source>
        <translation>Modifica filtro file</translation>
    </message>
    <message>
        <source>Open the synced folder</source>
        <translation>Apri la cartella sincronizzata</translation>
    </message>
    <message>
        <source>File names to exclude</source>
        <translation>Nomi di file da escludere</translation>
    </message>
    <message>
        <source>File path</source>
        <translation>Percorso file</translation>
    </message>
    <message>
        <source>To</source>
        <translation>A</translation>
    </message>
    <message>
        <source>January</source>
        <translation>gennaio</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Non usare un proxy</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync with this computer.</source>
        <translation>Selezionare la cartella condivisa sul NAS da sincronizzare con questo computer.</translation>
    </message>
    <message>
        <source>This shared folder does not exist on the NAS. It may have been renamed or deleted.</source>
        <translation>Questa cartella condivisa non esiste sul NAS. Potrebbe essere stata rinominata o eliminata.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Server not running</source>
        <translation>Server non in esecuzione</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>L&apos;Installazione guidata installerà [ProductName] sul computer. Fare clic su &quot;Avanti&quot; per continuare o su &quot;Annulla&quot; per uscire.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Attività di sincronizzazione</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>L&apos;Installazione guidata è pronta per avviare l&apos;installazione.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Syncing %1 file(s)</source>
        <translation>Sincronizzazione di %1 file</translation>
    </message>
    <message>
        <source>&amp;Close the applications and try to restart them</source>
        <translation>&amp;Chiudi le applicazioni e prova a riavviarle</translation>
    </message>
    <message>
        <source>Please wait. The requested changes are being made.</source>
        <translation>Attendere. È in corso l&apos;applicazione delle modifiche richieste.</translation>
    </message>
    <message>
        <source>Upgrade available</source>
        <translation>Aggiornamento di versione disponibile</translation>
    </message>
    <message>
        <source>Repair the current installation</source>
        <translation>Ripristina l&apos;installazione corrente</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Aggiornamento di versione in corso...</translation>
    </message>
    <message>
        <source>Set up a separate sync task</source>
        <translation>Configura un&apos;attività di sincronizzazione separata</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>Nessuna impostazione modificata.</translation>
    </message>
</context>
</TS>
