<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Keep your data safe and synced at all times</source>
        <translation>Vaše data vždy v bezpečí a synchronizovaná</translation>
    </message>
    <message>
        <source>The quota on the NAS has been used up. Free up some space or ask the administrator to raise your quota, and then select the folder again.</source>
        <translation>Kvóta na zařízení NAS je vyčerpána. Uvolněte místo nebo požádejte správce o navýšení kvóty a pak složku vyberte znovu.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-user license agreement</source>
        <translation>[DlgTitleFont]Licenční smlouva s koncovým uživatelem</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Zvolte režim konfigurace</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Vše je připraveno k instalaci aplikace [ProductName]</translation>
    </message>
    <message>
        <source>This shared folder has been disabled for your account. Contact the administrator of the NAS to regain access.</source>
        <translation>Tato sdílená složka je pro váš účet zakázána. Chcete-li k ní znovu získat přístup, obraťte se na správce zařízení NAS.</translation>
    </message>
    <message>
        <source>Merge the folders</source>
        <translation>Sloučit složky</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Ukončit</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>Odkaz ke sdílení</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Chyba synchronizace</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Kliknutím na tlačítko „Dokončit“ ukončíte Průvodce instalací.</translation>
    </message>
    <message>
        <source>Set a start date for this link</source>
        <translation>Nastavit datum začátku platnosti odkazu</translation>
    </message>
    <message>
        <source>The local sync database cannot be read. Restart Quillmere Drive. If the problem persists, link this computer again.</source>
        <translation>Místní databázi synchronizace nelze načíst. Restartujte aplikaci Quillmere Drive. Pokud potíže přetrvají, propojte tento počítač se zařízením NAS znovu.</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Vyberte složky k synchronizaci</translation>
    </message>
    <message>
        <source>Every file you put in a synced folder is copied to your NAS automatically. Just save your work and let Quillmere Drive do the rest.</source>
        <translation>Každý soubor, který vložíte do synchronizované složky, se automaticky zkopíruje na zařízení NAS. Stačí práci uložit a o zbytek se postará Quillmere Drive.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>Z&amp;kusit znovu</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Vyloučit tyto složky ze synchronizace</translation>
    </message>
    <message>
        <source>The local folder of this sync task cannot be found. It may have been moved, renamed, or deleted.</source>
        <translation>Místní složku této úlohy synchronizace nelze najít. Mohla být přesunuta, přejmenována nebo odstraněna.</translation>
    </message>
    <message>
        <source>Quillmere Drive is starting...</source>
        <translation>Spouštění aplikace Quillmere Drive...</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Uplatňování nastavení...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Přidat</translation>
    </message>
    <message>
        <source>Make sure that Quillmere Drive Server is installed and running on your NAS before you continue.</source>
        <translation>Než budete pokračovat, ujistěte se, že je na zařízení NAS nainstalován a spuštěn balíček Quillmere Drive Server.</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Aby se nové nastavení jazyka projevilo, restartujte aplikaci %1.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Stahování...</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Neshoda verzí</translation>
    </message>
    <message>
        <source>The icon in the system tray shows the sync status at a glance. Click it to pause syncing, view recent changes, or open the settings.</source>
        <translation>Ikona v oznamovací oblasti ukazuje stav synchronizace na první pohled. Kliknutím na ni můžete pozastavit synchronizaci, zobrazit poslední změny nebo otevřít nastavení.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pozastaveno</translation>
    </message>
    <message>
        <source>Keep both versions and rename the conflicting file</source>
        <translation>Ponechat obě verze a přejmenovat konfliktní soubor</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Nepodporovaný přípojný bod</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>Propojování...</translation>
    </message>
    <message>
        <source>About Quillmere Drive</source>
        <translation>O aplikaci Quillmere Drive</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Povoleno</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Procházet předchozí verze</translation>
    </message>
    <message>
        <source>The Setup Wizard for [ProductName] stopped early because of an error. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>Průvodce instalací aplikace [ProductName] byl kvůli chybě předčasně ukončen. Systém nebyl změněn. Chcete-li program nainstalovat později, spusťte instalaci znovu.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Informace o připojení</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS. Free up some space to continue syncing.</source>
        <translation>Na zařízení NAS není dost volného místa. Chcete-li pokračovat v synchronizaci, uvolněte místo.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Neaktivní</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Odstraněno</translation>
    </message>
    <message>
        <source>The selected folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>Vybraná složka je přípojný bod a nelze ji synchronizovat. Vyberte jinou složku.</translation>
    </message>
    <message>
        <source>Upgrade now</source>
        <translation>Upgradovat nyní</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Název počítače</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Informace o stavu</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Instalace aplikace [ProductName]</translation>
    </message>
    <message>
        <source>Open the management page</source>
        <translation>Otevřít stránku správy</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Používané soubory</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Čtvrtek</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Počkejte, než Průvodce instalací nainstaluje aplikaci [ProductName]. Může to trvat několik minut.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sobota</translation>
    </message>
    <message>
        <source>Link expires after</source>
        <translation>Doba platnosti odkazu</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to leave this page without saving them?</source>
        <translation>Některé změny nejsou uloženy. Chcete tuto stránku opustit bez uložení?</translation>
    </message>
    <message>
        <source>Select the operation that you want to perform.</source>
        <translation>Vyberte operaci, kterou chcete provést.</translation>
    </message>
    <message>
        <source>This file was changed on the computer and on the NAS at the same time, and the conflict could not be resolved.</source>
        <translation>Tento soubor byl současně změněn v počítači i na zařízení NAS a konflikt se nepodařilo vyřešit.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Místní síť</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aktuální</translation>
    </message>
    <message>
        <source>A sync task named &quot;%1&quot; already exists. Please enter another name.</source>
        <translation>Úloha synchronizace s názvem „%1“ již existuje. Zadejte jiný název.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder. Please choose another folder or contact the administrator.</source>
        <translation>Nemáte oprávnění k přístupu do této složky. Vyberte jinou složku nebo se obraťte na správce.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Znovu propojit</translation>
    </message>
    <message>
        <source>Select how you want to sync files between this computer and your NAS. You can add more sync tasks later.</source>
        <translation>Vyberte, jak chcete synchronizovat soubory mezi tímto počítačem a zařízením NAS. Další úlohy synchronizace můžete přidat později.</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Proxy server vyžaduje ověření</translation>
    </message>
    <message>
        <source>Choose what happens when the same file has been changed on the computer and on the NAS.</source>
        <translation>Zvolte, co se má stát, pokud byl stejný soubor změněn v počítači i na zařízení NAS.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Vybrat jinou složku</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Vše je připraveno k odebrání aplikace [ProductName]</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Check the certificate before you connect again.</source>
        <translation>Certifikát SSL zařízení NAS se změnil. Než se znovu připojíte, certifikát zkontrolujte.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Minulý měsíc</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Akce</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Jen pro čtení</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Období</translation>
    </message>
    <message>
        <source>The download failed. Please try again later.</source>
        <translation>Stažení se nezdařilo. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>Konfigurace je dokončena.</translation>
    </message>
    <message>
        <source>Quillmere Drive on this computer is outdated. Please update it to version %1 or later.</source>
        <translation>Aplikace Quillmere Drive v tomto počítači je zastaralá. Aktualizujte ji na verzi %1 nebo novější.</translation>
    </message>
    <message>
        <source>This computer is now linked to your NAS. Syncing starts as soon as you close the wizard.</source>
        <translation>Tento počítač je nyní propojen se zařízením NAS. Synchronizace začne, jakmile průvodce zavřete.</translation>
    </message>
    <message>
        <source>Enable sync for this shared folder</source>
        <translation>Povolit synchronizaci této sdílené složky</translation>
    </message>
    <message>
        <source>Download complete</source>
        <translation>Stahování dokončeno</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Pokračovat v synchronizaci této složky</translation>
    </message>
    <message>
        <source>Setup is in progress. Please wait...</source>
        <translation>Probíhá konfigurace. Čekejte prosím...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Právě teď</translation>
    </message>
    <message>
        <source>This computer is already linked to the same NAS. Edit the existing connection instead.</source>
        <translation>Tento počítač je již propojen se stejným zařízením NAS. Upravte místo toho stávající připojení.</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>Počet položek: %1</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Pozastavit připojení</translation>
    </message>
    <message>
        <source>Quillmere Drive is ready.</source>
        <translation>Quillmere Drive je připravena.</translation>
    </message>
    <message>
        <source>Keep an eye on the system tray</source>
        <translation>Sledujte oznamovací oblast</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Další podrobnosti</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. The copies on the NAS will be kept. Do you want to continue?</source>
        <translation>Složky, jejichž výběr zde zrušíte, budou z tohoto počítače odebrány. Kopie na zařízení NAS zůstanou zachovány. Chcete pokračovat?</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Říjen</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Složka není prázdná</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Chyba</translation>
    </message>
    <message>
        <source>Restrict access to this link</source>
        <translation>Omezit přístup k tomuto odkazu</translation>
    </message>
    <message>
        <source>The link could not be created. Make sure that file sharing is enabled in Quillmere Drive Server.</source>
        <translation>Odkaz se nepodařilo vytvořit. Ujistěte se, že je v balíčku Quillmere Drive Server povoleno sdílení souborů.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>Další výukové programy</translation>
    </message>
    <message>
        <source>Setup requires administrator rights. Do you want to restart it as an administrator?</source>
        <translation>Instalace vyžaduje oprávnění správce. Chcete ji znovu spustit jako správce?</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>Copy to:</source>
        <translation>Kopírovat do umístění:</translation>
    </message>
    <message>
        <source>No previous versions of this file are available.</source>
        <translation>Žádné předchozí verze tohoto souboru nejsou k dispozici.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Začít nyní</translation>
    </message>
    <message>
        <source>The NAS at this address is not the one that this computer was linked to. Check the address or link the computer again.</source>
        <translation>Na této adrese je jiné zařízení NAS než to, se kterým byl počítač propojen. Zkontrolujte adresu nebo počítač propojte znovu.</translation>
    </message>
    <message>
        <source>The upgrade failed. Please download the latest version and install it manually.</source>
        <translation>Upgrade se nezdařil. Stáhněte si nejnovější verzi a nainstalujte ji ručně.</translation>
    </message>
    <message>
        <source>Add sync task</source>
        <translation>Přidat úlohu synchronizace</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Datum začátku platnosti</translation>
    </message>
    <message>
        <source>This shared folder could not be enabled for syncing. Please try again later.</source>
        <translation>Synchronizaci této sdílené složky se nepodařilo povolit. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>In the system tray</source>
        <translation>V oznamovací oblasti</translation>
    </message>
    <message>
        <source>The folder home\Quillmere on your NAS has already been linked to this PC. We will launch the synced folder when you click Done. Or you can set up a seperate task: %1</source>
        <translation>Složka home\Quillmere na zařízení NAS je již s tímto počítačem propojena. Po kliknutí na tlačítko „Hotovo“ se synchronizovaná složka otevře. Můžete také nastavit samostatnou úlohu: %1</translation>
    </message>
    <message>
        <source>The port number is invalid. Enter a number from 1 to 65535.</source>
        <translation>Číslo portu je neplatné. Zadejte číslo od 1 do 65535.</translation>
    </message>
    <message>
        <source>Quillmere Drive could not be initialized. Please restart your computer and try again.</source>
        <translation>Aplikaci Quillmere Drive se nepodařilo inicializovat. Restartujte počítač a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Stav:</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes made on this computer will not be synced to the NAS.</source>
        <translation>K této složce máte přístup jen pro čtení. Změny provedené v tomto počítači se na zařízení NAS nesynchronizují.</translation>
    </message>
    <message>
        <source>The version of Quillmere Drive on this computer is too old for the NAS. Version %1 or later is required.</source>
        <translation>Verze aplikace Quillmere Drive v tomto počítači je pro zařízení NAS příliš stará. Je vyžadována verze %1 nebo novější.</translation>
    </message>
    <message>
        <source>Files and folders that match the rules of the file filter will not be synced.</source>
        <translation>Soubory a složky, které odpovídají pravidlům filtru souborů, se nesynchronizují.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Vše je připraveno k opravě aplikace [ProductName]</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Pokračovat v synchronizaci těchto složek</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Otevřít složku</translation>
    </message>
    <message>
        <source>Save a file and it is synced</source>
        <translation>Uložený soubor se hned synchronizuje</translation>
    </message>
    <message>
        <source>Files that could not be synced</source>
        <translation>Soubory, které se nepodařilo synchronizovat</translation>
    </message>
    <message>
        <source>The connection to the NAS was lost. Quillmere Drive will try to connect again automatically.</source>
        <translation>Připojení k zařízení NAS bylo přerušeno. Quillmere Drive se automaticky pokusí připojit znovu.</translation>
    </message>
    <message>
        <source>Detecting file changes...</source>
        <translation>Zjišťování změn souborů...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Připojení proběhlo úspěšně.</translation>
    </message>
    <message>
        <source>The administrator requires two-factor verification for your account. Sign in to the NAS in a web browser and set it up first.</source>
        <translation>Správce pro váš účet vyžaduje dvoufaktorové ověření. Nejprve se k zařízení NAS přihlaste ve webovém prohlížeči a ověření nastavte.</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the permissions on the NAS. Please change the sync direction.</source>
        <translation>Směr synchronizace této složky neodpovídá oprávněním na zařízení NAS. Změňte směr synchronizace.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Vítá vás Průvodce instalací aplikace [ProductName]</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive. This wizard will help you link this computer to your NAS.</source>
        <translation>Vítá vás Quillmere Drive. Tento průvodce vám pomůže propojit počítač se zařízením NAS.</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files and folders</source>
        <translation>Zobrazovat překryvné ikony u synchronizovaných souborů a složek</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Ověření se nezdařilo</translation>
    </message>
    <message>
        <source>An invalid value was entered. Please check your input and try again.</source>
        <translation>Byla zadána neplatná hodnota. Zkontrolujte zadané údaje a zkuste to znovu.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Všechny události</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Další</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choice.</source>
        <translation>Kliknutím na tlačítko „Odebrat“ odeberete aplikaci [ProductName] z počítače. Chcete-li volbu zkontrolovat, klikněte na tlačítko „Zpět“.</translation>
    </message>
    <message>
        <source>Quillmere Drive Server is not running on the NAS. Start it or contact the administrator.</source>
        <translation>Balíček Quillmere Drive Server není na zařízení NAS spuštěn. Spusťte ho nebo se obraťte na správce.</translation>
    </message>
    <message>
        <source>Open Quillmere Drive</source>
        <translation>Otevřít aplikaci Quillmere Drive</translation>
    </message>
    <message>
        <source>The SSL certificate of this NAS differs from the one saved earlier. Continue only if you trust the new certificate.</source>
        <translation>Certifikát SSL tohoto zařízení NAS se liší od dříve uloženého. Pokračujte, jen pokud novému certifikátu důvěřujete.</translation>
    </message>
    <message>
        <source>The selected folder is already synced by another cloud storage program. Please choose a different folder to avoid conflicts.</source>
        <translation>Vybranou složku již synchronizuje jiný program pro cloudové úložiště. Vyberte jinou složku, aby nedocházelo ke konfliktům.</translation>
    </message>
    <message>
        <source>Right-click the tray icon to open the menu with all commands.</source>
        <translation>Kliknutím pravým tlačítkem na ikonu v oznamovací oblasti otevřete nabídku se všemi příkazy.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Syncing will start when indexing is complete.</source>
        <translation>Tato složka se indexuje. Synchronizace začne po dokončení indexování.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Zakázáno</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Pokračovat</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Kontrola dat...</translation>
    </message>
    <message>
        <source>Click Install to begin installing [ProductName]. Click Back to review or change your settings. Click Cancel to exit the wizard.</source>
        <translation>Kliknutím na tlačítko „Instalovat“ zahájíte instalaci aplikace [ProductName]. Chcete-li nastavení zkontrolovat nebo změnit, klikněte na tlačítko „Zpět“. Průvodce ukončíte tlačítkem „Zrušit“.</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>Probíhá synchronizace</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Otevřít umístění souboru</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>Aplikace [ProductName] nemá žádné součásti, které by bylo možné vybrat samostatně.</translation>
    </message>
    <message>
        <source>The local folder could not be created. Check the path and your permissions, and then try again.</source>
        <translation>Místní složku se nepodařilo vytvořit. Zkontrolujte cestu a svá oprávnění a zkuste to znovu.</translation>
    </message>
    <message>
        <source>NAS address</source>
        <translation>Adresa zařízení NAS</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. It may have been deleted, or you may not have permission to access it.</source>
        <translation>Tento soubor nelze stáhnout. Možná byl odstraněn nebo k němu nemáte oprávnění.</translation>
    </message>
    <message>
        <source>The IP address of this computer is not allowed to access the NAS. Contact the administrator.</source>
        <translation>IP adresa tohoto počítače nemá povolený přístup k zařízení NAS. Obraťte se na správce.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Některé soubory, které je třeba aktualizovat, se právě používají.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Poslední stránka</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum a čas</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Přejmenováno</translation>
    </message>
    <message>
        <source>View sync status</source>
        <translation>Zobrazit stav synchronizace</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Neděle</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]Instalace aplikace [ProductName]</translation>
    </message>
    <message>
        <source>Enter the names of the files that should not be synced. An asterisk (*) stands for any number of characters.</source>
        <translation>Zadejte názvy souborů, které se nemají synchronizovat. Hvězdička (*) zastupuje libovolný počet znaků.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pozastavit</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Obecné</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Složky k synchronizaci</translation>
    </message>
    <message>
        <source>RapidHail</source>
        <translation>RapidHail</translation>
    </message>
    <message>
        <source>Enter the IP address, hostname, or RapidHail ID of your NAS.</source>
        <translation>Zadejte IP adresu, název hostitele nebo ID RapidHail zařízení NAS.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Středa</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Synchronizace nové složky</translation>
    </message>
    <message>
        <source>NAS changed</source>
        <translation>Zařízení NAS se změnilo</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zpět</translation>
    </message>
    <message>
        <source>If you disable this folder, it will no longer be synced. The files on this computer will be kept. Do you want to continue?</source>
        <translation>Pokud tuto složku zakážete, nebude se již synchronizovat. Soubory v tomto počítači zůstanou zachovány. Chcete pokračovat?</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Otevřít soubor</translation>
    </message>
    <message>
        <source>This folder cannot be synced because its path is invalid. Please choose another folder.</source>
        <translation>Tuto složku nelze synchronizovat, protože její cesta je neplatná. Vyberte jinou složku.</translation>
    </message>
    <message>
        <source>The shared folder on the NAS is not mounted. If it is encrypted, mount it first.</source>
        <translation>Sdílená složka na zařízení NAS není připojena. Pokud je šifrovaná, nejprve ji připojte.</translation>
    </message>
    <message>
        <source>Expiration time</source>
        <translation>Čas vypršení platnosti</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Uživatelské jméno</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up.</source>
        <translation>Vaše kvóta na zařízení NAS je vyčerpána.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please correct them before you continue.</source>
        <translation>Některá pole obsahují neplatné hodnoty. Než budete pokračovat, opravte je.</translation>
    </message>
    <message>
        <source>The RapidHail service cannot be reached. Check your internet connection and try again.</source>
        <translation>Služba RapidHail není dostupná. Zkontrolujte připojení k internetu a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Pátek</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Otevřít hlavní okno</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Port proxy serveru</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; has been used up. Free up some space to continue syncing.</source>
        <translation>Kvóta sdílené složky „%1“ je vyčerpána. Chcete-li pokračovat v synchronizaci, uvolněte místo.</translation>
    </message>
    <message>
        <source>Link to a new NAS</source>
        <translation>Propojit s novým zařízením NAS</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Minulý týden</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is too old for this computer. Version %1 or later is required.</source>
        <translation>Balíček Quillmere Drive Server na zařízení NAS je pro tento počítač příliš starý. Je vyžadována verze %1 nebo novější.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Červen</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a network error. Check your network connection and try again.</source>
        <translation>Složku nelze zkontrolovat kvůli chybě sítě. Zkontrolujte připojení k síti a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Hodnota</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]Ode&amp;brat</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ano</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Červenec</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Rozumím</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Vítejte</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Odebere aplikaci [ProductName] z počítače.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Verze</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Pokračovat</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Heslo</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>You can open the synced folder at any time from the Quillmere Drive icon in the system tray.</source>
        <translation>Synchronizovanou složku můžete kdykoli otevřít pomocí ikony Quillmere Drive v oznamovací oblasti.</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Soubory aktualizovány</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;pair</source>
        <translation>[DlgTitleFont]O&amp;pravit</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Úterý</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Žádné dostupné možnosti</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Nápověda</translation>
    </message>
    <message>
        <source>The NAS at this address has changed. Please link this computer again.</source>
        <translation>Zařízení NAS na této adrese se změnilo. Propojte s ním tento počítač znovu.</translation>
    </message>
    <message>
        <source>The installation of [ProductName] was interrupted. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>Instalace aplikace [ProductName] byla přerušena. Systém nebyl změněn. Chcete-li program nainstalovat později, spusťte instalaci znovu.</translation>
    </message>
    <message>
        <source>The connection test failed. The username or password is incorrect.</source>
        <translation>Test připojení se nezdařil. Uživatelské jméno nebo heslo není správné.</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>O&amp;pravit</translation>
    </message>
    <message>
        <source>A sync task has stopped because of an error. Click here for details.</source>
        <translation>Úloha synchronizace se zastavila kvůli chybě. Podrobnosti zobrazíte kliknutím sem.</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and the account that you want to use for syncing.</source>
        <translation>Zadejte adresu zařízení NAS a účet, který chcete k synchronizaci používat.</translation>
    </message>
    <message>
        <source>Connect anyway</source>
        <translation>Přesto se připojit</translation>
    </message>
    <message>
        <source>The files on this computer and the files in the shared folder will be merged. If two files have the same name, the newer one is used.</source>
        <translation>Soubory v tomto počítači a soubory ve sdílené složce budou sloučeny. Pokud mají dva soubory stejný název, použije se novější z nich.</translation>
    </message>
    <message>
        <source>Start Quillmere Drive automatically when I sign in</source>
        <translation>Spouštět aplikaci Quillmere Drive automaticky po přihlášení</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this link? People who have it will no longer be able to open the file.</source>
        <translation>Opravdu chcete tento odkaz odstranit? Lidé, kteří ho mají, již soubor neotevřou.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Změnit složku</translation>
    </message>
    <message>
        <source>The username or password is incorrect, or the account has been disabled.</source>
        <translation>Uživatelské jméno nebo heslo není správné, nebo je účet zakázán.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Dokončit</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;do not accept the terms of the license agreement</source>
        <translation>{\DlgFont8}N&amp;esouhlasím s podmínkami licenční smlouvy</translation>
    </message>
    <message>
        <source>Right-click a file and select &quot;Share link&quot; to create a link. Send it to anyone who needs the file, even if they have no account on your NAS.</source>
        <translation>Klikněte na soubor pravým tlačítkem a výběrem příkazu „Sdílet odkaz“ vytvořte odkaz. Pošlete ho komukoli, kdo soubor potřebuje, i když nemá na vašem zařízení NAS účet.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Režim synchronizace</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps earlier versions of your files. Right-click a file and select &quot;Browse previous versions&quot; to restore one of them.</source>
        <translation>Quillmere Drive uchovává starší verze vašich souborů. Chcete-li některou z nich obnovit, klikněte na soubor pravým tlačítkem a vyberte příkaz „Procházet předchozí verze“.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>O %1 str. vpřed</translation>
    </message>
    <message>
        <source>Quillmere Drive is already running. You can find its icon in the system tray.</source>
        <translation>Aplikace Quillmere Drive je již spuštěna. Její ikonu najdete v oznamovací oblasti.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy server</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Načítání sdílených složek...</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>První stránka</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Nastavit proxy server ručně</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>Před %1 h</translation>
    </message>
    <message>
        <source>This folder cannot be synced because of a system error. Please try again later.</source>
        <translation>Tuto složku nelze synchronizovat kvůli systémové chybě. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Při dvojitém kliknutí na ikonu v oznamovací oblasti</translation>
    </message>
    <message>
        <source>Selective sync by folder</source>
        <translation>Selektivní synchronizace podle složek</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Sdílené složky</translation>
    </message>
    <message>
        <source>Sync with another NAS</source>
        <translation>Synchronizovat s jiným zařízením NAS</translation>
    </message>
    <message>
        <source>This creates a Quillmere folder on your computer and keeps it synced with your home folder on your Orvane NAS (recommended for personal use).</source>
        <translation>V počítači se vytvoří složka Quillmere, která se bude synchronizovat s vaší domovskou složkou na zařízení NAS Orvane (doporučeno pro osobní použití).</translation>
    </message>
    <message>
        <source>Click here to upgrade</source>
        <translation>Kliknutím sem spustíte upgrade</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Duben</translation>
    </message>
    <message>
        <source>On your computer</source>
        <translation>V počítači</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of [ProductName]?</source>
        <translation>Opravdu chcete zrušit instalaci aplikace [ProductName]?</translation>
    </message>
    <message>
        <source>Files and folders excluded from sync</source>
        <translation>Soubory a složky vyloučené ze synchronizace</translation>
    </message>
    <message>
        <source>This version of Quillmere Drive is already installed. Do you want to install it again?</source>
        <translation>Tato verze aplikace Quillmere Drive je již nainstalována. Chcete ji nainstalovat znovu?</translation>
    </message>
    <message>
        <source>has been shared. The link was copied to the clipboard.</source>
        <translation>se nyní sdílí. Odkaz byl zkopírován do schránky.</translation>
    </message>
    <message>
        <source>The NAS sent an unexpected response. Make sure that Quillmere Drive and Quillmere Drive Server are both up to date.</source>
        <translation>Zařízení NAS odeslalo neočekávanou odpověď. Ujistěte se, že jsou aplikace Quillmere Drive i balíček Quillmere Drive Server aktuální.</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Vyloučit tuto složku ze synchronizace</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Březen</translation>
    </message>
    <message>
        <source>The RapidHail service encountered a system error. Please try again later.</source>
        <translation>Ve službě RapidHail došlo k systémové chybě. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selektivní synchronizace</translation>
    </message>
    <message>
        <source>Folder is read-only</source>
        <translation>Složka je jen pro čtení</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;accept the terms of the license agreement</source>
        <translation>{\DlgFont8}&amp;Souhlasím s podmínkami licenční smlouvy</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Směr synchronizace</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Historie stahování</translation>
    </message>
    <message>
        <source>Select a folder on this computer and the shared folder on the NAS that it will be synced with.</source>
        <translation>Vyberte složku v tomto počítači a sdílenou složku na zařízení NAS, se kterou se bude synchronizovat.</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>Toto pole nesmí zůstat prázdné.</translation>
    </message>
    <message>
        <source>Choose a shared folder on your NAS that is not yet synced with this computer.</source>
        <translation>Vyberte na zařízení NAS sdílenou složku, která se s tímto počítačem ještě nesynchronizuje.</translation>
    </message>
    <message>
        <source>How existing files are merged</source>
        <translation>Způsob slučování existujících souborů</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Nastavení sítě</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetovat</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Odstranit odkaz</translation>
    </message>
    <message>
        <source>This sync task is inactive because the shared folder is not available.</source>
        <translation>Tato úloha synchronizace je neaktivní, protože sdílená složka není k dispozici.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Jednosměrné stahování</translation>
    </message>
    <message>
        <source>Go back to an earlier version</source>
        <translation>Návrat ke starší verzi</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Nahráno</translation>
    </message>
    <message>
        <source>Changes the set of [ProductName] features that are installed.</source>
        <translation>Změní sadu nainstalovaných součástí aplikace [ProductName].</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Květen</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Název souboru</translation>
    </message>
    <message>
        <source>Link this computer to your NAS in just a few steps.</source>
        <translation>Propojte tento počítač se zařízením NAS v několika krocích.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>D&amp;okončit</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Šifrovat připojení pomocí SSL</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Režim připojení</translation>
    </message>
    <message>
        <source>Keep the file that was modified last</source>
        <translation>Ponechat naposledy změněný soubor</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Upravit</translation>
    </message>
    <message>
        <source>A newer version of Quillmere Drive is already installed. Setup will now close.</source>
        <translation>Je již nainstalována novější verze aplikace Quillmere Drive. Instalace se nyní ukončí.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Confirm the new certificate before you select a folder.</source>
        <translation>Certifikát SSL zařízení NAS se změnil. Než vyberete složku, potvrďte nový certifikát.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odebrat</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Sloučit</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Sdílená složka nenalezena</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Zrušit propojení</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Místní složka</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Vyberte složku</translation>
    </message>
    <message>
        <source>Set up the folder to sync</source>
        <translation>Nastavení složky k synchronizaci</translation>
    </message>
    <message>
        <source>Enter the connection settings for your NAS.</source>
        <translation>Zadejte nastavení připojení k zařízení NAS.</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>Upozornění na certifikát SSL</translation>
    </message>
    <message>
        <source>Share files with a link</source>
        <translation>Sdílejte soubory pomocí odkazu</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Typ souboru</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Obnovit připojení</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>I&amp;gnorovat</translation>
    </message>
    <message>
        <source>The maximum file size must be a whole number greater than 0.</source>
        <translation>Maximální velikost souboru musí být celé číslo větší než 0.</translation>
    </message>
    <message>
        <source>Insufficient permissions</source>
        <translation>Nedostatečná oprávnění</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Aktualizováno: %1</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive</source>
        <translation>Vítá vás Quillmere Drive</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Klíčové slovo</translation>
    </message>
    <message>
        <source>This allows you to specify a folder on your computer to keep synced with a shared folder on your Orvane NAS. (Recommended for teamwork)​.</source>
        <translation>V počítači můžete určit složku, která se bude synchronizovat se sdílenou složkou na zařízení NAS Orvane (doporučeno pro týmovou spolupráci).</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin repairing [ProductName].</source>
        <translation>Průvodce instalací je připraven zahájit opravu aplikace [ProductName].</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Použít</translation>
    </message>
    <message>
        <source>A network error occurred. Check your network connection and try again.</source>
        <translation>Došlo k chybě sítě. Zkontrolujte připojení k síti a zkuste to znovu.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already being synced. Please choose another folder.</source>
        <translation>Tato složka se překrývá se složkou, která se již synchronizuje. Vyberte jinou složku.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}Průvodce instalací aplikace [ProductName] byl přerušen</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zpět</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Čas začátku platnosti</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Zobrazit výukový program</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ano</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Rychlá konfigurace</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Spravovat</translation>
    </message>
    <message>
        <source>Links cannot be created over a RapidHail connection because file sharing is disabled on the NAS.</source>
        <translation>Přes připojení RapidHail nelze vytvářet odkazy, protože sdílení souborů je na zařízení NAS zakázáno.</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Správa sdílených složek</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Přečtěte si pozorně následující licenční smlouvu.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Příprava...</translation>
    </message>
    <message>
        <source>Keep the version on the NAS and overwrite the one on this computer</source>
        <translation>Ponechat verzi na zařízení NAS a přepsat verzi v tomto počítači</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Srpen</translation>
    </message>
    <message>
        <source>Use a RapidHail connection</source>
        <translation>Použít připojení RapidHail</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard ended early</source>
        <translation>{\VerdanaBold13}Průvodce instalací aplikace [ProductName] byl předčasně ukončen</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up. Files can no longer be uploaded until you free up some space.</source>
        <translation>Vaše kvóta na zařízení NAS je vyčerpána. Dokud neuvolníte místo, nelze nahrávat soubory.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]Z&amp;měnit</translation>
    </message>
    <message>
        <source>Set an expiration date for this link</source>
        <translation>Nastavit datum vypršení platnosti odkazu</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Změnit místní složku</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximální velikost souboru</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Ode&amp;brat</translation>
    </message>
    <message>
        <source>Quillmere Drive is initializing...</source>
        <translation>Quillmere Drive se inicializuje...</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Obousměrná synchronizace</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Použít systémové nastavení proxy serveru</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Rušení propojení...</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open (a restart will be required)</source>
        <translation>&amp;Ponechat aplikace spuštěné (bude nutné restartovat počítač)</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard is complete</source>
        <translation>{\VerdanaBold13}Průvodce instalací aplikace [ProductName] byl dokončen</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Úloha synchronizace</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>Vytvořeno</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Spustit aplikaci [ProductName]</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Listopad</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Další</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Adresa proxy serveru</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Nedávno změněné soubory</translation>
    </message>
    <message>
        <source>Unlink from the NAS</source>
        <translation>Zrušit propojení se zařízením NAS</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Please try again later.</source>
        <translation>Nelze zobrazit seznam verzí tohoto souboru. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Uzamčeno jiným programem</translation>
    </message>
    <message>
        <source>An unknown error occurred. Please try again later.</source>
        <translation>Došlo k neznámé chybě. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified.</source>
        <translation>Certifikát SSL zařízení NAS se nepodařilo ověřit.</translation>
    </message>
    <message>
        <source>Checking username and password...</source>
        <translation>Ověřování uživatelského jména a hesla...</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Pokročilá nastavení</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Vy&amp;tisknout</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Únor</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Quillmere Drive</source>
        <translation>Quillmere Drive</translation>
    </message>
    <message>
        <source>You have read-only access to this shared folder. Files can be downloaded to this computer but not uploaded to the NAS.</source>
        <translation>K této sdílené složce máte přístup jen pro čtení. Soubory lze stahovat do tohoto počítače, ale ne nahrávat na zařízení NAS.</translation>
    </message>
    <message>
        <source>The drive that contains the local folder is not mounted. Connect the drive to continue syncing.</source>
        <translation>Jednotka s místní složkou není připojena. Chcete-li pokračovat v synchronizaci, připojte ji.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Cílové umístění</translation>
    </message>
    <message>
        <source>Search the local network for an Orvane NAS.</source>
        <translation>Vyhledat v místní síti zařízení NAS Orvane.</translation>
    </message>
    <message>
        <source>Storage full</source>
        <translation>Úložiště je plné</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>Přehled zařízení NAS</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Přímé připojení</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Staženo</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Nastavení proxy serveru</translation>
    </message>
    <message>
        <source>Unstable connection</source>
        <translation>Nestabilní připojení</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync this folder. Free up some space or choose another folder.</source>
        <translation>V tomto počítači není dost volného místa k synchronizaci této složky. Uvolněte místo nebo vyberte jinou složku.</translation>
    </message>
    <message>
        <source>Use a black and white tray icon</source>
        <translation>Použít černobílou ikonu v oznamovací oblasti</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Historie synchronizace</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Stahování bylo zrušeno.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>Následující aplikace používají soubory, které instalace potřebuje aktualizovat. Zavřete je a pokračujte kliknutím na tlačítko „Zkusit znovu“.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Instalovat</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please wait a few minutes before you try again.</source>
        <translation>Příliš mnoho neúspěšných pokusů. Počkejte několik minut a zkuste to znovu.</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>Vše je hotovo</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Načítání...</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Ne, děkuji</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nová sdílená složka</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Ukončit</translation>
    </message>
    <message>
        <source>You can let Setup close the applications listed below and try to restart them afterward.</source>
        <translation>Instalace může níže uvedené aplikace zavřít a poté se pokusit je znovu spustit.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change the way [ProductName] is installed or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Průvodce instalací umožňuje změnit způsob instalace aplikace [ProductName] nebo ji z počítače odebrat. Pokračujte tlačítkem „Další“ nebo průvodce ukončete tlačítkem „Zrušit“.</translation>
    </message>
    <message>
        <source>Try syncing a file</source>
        <translation>Vyzkoušejte synchronizaci souboru</translation>
    </message>
    <message>
        <source>No data to display</source>
        <translation>Žádná data k zobrazení</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>Před %1 d</translation>
    </message>
    <message>
        <source>You can now sync the shared folder &quot;%1&quot;. Click here to enable it.</source>
        <translation>Nyní můžete synchronizovat sdílenou složku „%1“. Kliknutím sem ji povolíte.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Nahrávání...</translation>
    </message>
    <message>
        <source>Your Quillmere folder is ready. Drop files into it and they will be synced with your NAS.</source>
        <translation>Složka Quillmere je připravena. Přetáhněte do ní soubory a budou se synchronizovat se zařízením NAS.</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>Není k dispozici žádná složka, kterou by bylo možné synchronizovat.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>O %1 str. zpět</translation>
    </message>
    <message>
        <source>The verification code is invalid. Please check the code and try again.</source>
        <translation>Ověřovací kód je neplatný. Zkontrolujte ho a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dnes</translation>
    </message>
    <message>
        <source>The selected folder is on a network drive. Changes made there by other computers may not be detected immediately.</source>
        <translation>Vybraná složka je na síťové jednotce. Změny, které v ní provedou jiné počítače, nemusí být zjištěny okamžitě.</translation>
    </message>
    <message>
        <source>Show icon overlays on files excluded by the file filter</source>
        <translation>Zobrazovat překryvné ikony u souborů vyloučených filtrem souborů</translation>
    </message>
    <message>
        <source>Files to sync</source>
        <translation>Soubory k synchronizaci</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Soubor</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Sdílet odkaz</translation>
    </message>
    <message>
        <source>Detecting connection mode...</source>
        <translation>Zjišťování režimu připojení...</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Vlastní doba platnosti</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>Vyhledat zařízení NAS v místní síti</translation>
    </message>
    <message>
        <source>The proxy address and port cannot be empty.</source>
        <translation>Adresa a port proxy serveru nesmí být prázdné.</translation>
    </message>
    <message>
        <source>You can also protect a link with a password or set an expiration date.</source>
        <translation>Odkaz můžete také chránit heslem nebo pro něj nastavit datum vypršení platnosti.</translation>
    </message>
    <message>
        <source>All your files, always at hand</source>
        <translation>Všechny vaše soubory vždy po ruce</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Datum vypršení platnosti</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Září</translation>
    </message>
    <message>
        <source>Create a Quillmere folder on this computer</source>
        <translation>Vytvořit v tomto počítači složku Quillmere</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Průvodce pokročilou konfigurací</translation>
    </message>
    <message>
        <source>The selected folder is already part of a sync task on this computer.</source>
        <translation>Vybraná složka je již součástí úlohy synchronizace v tomto počítači.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>Před %1 min</translation>
    </message>
    <message>
        <source>This shared folder is already synced with the folder &quot;%1&quot; on this computer.</source>
        <translation>Tato sdílená složka se již synchronizuje se složkou „%1“ v tomto počítači.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>Na zařízení NAS není dost volného místa.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Ne</translation>
    </message>
    <message>
        <source>Click Repair to restore missing or damaged files, shortcuts, and registry entries. Click Back to review your choice.</source>
        <translation>Kliknutím na tlačítko „Opravit“ obnovíte chybějící nebo poškozené soubory, zástupce a položky registru. Chcete-li volbu zkontrolovat, klikněte na tlačítko „Zpět“.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Výchozí nastavení systému</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Tuto zprávu již nezobrazovat</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by restoring missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Opraví chyby v poslední instalaci: obnoví chybějící nebo poškozené soubory, zástupce a položky registru.</translation>
    </message>
    <message>
        <source>Number of times the link can be opened</source>
        <translation>Povolený počet otevření odkazu</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Včera</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified. The folder cannot be selected until the certificate is trusted.</source>
        <translation>Certifikát SSL zařízení NAS se nepodařilo ověřit. Dokud nebude certifikát důvěryhodný, nelze složku vybrat.</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>Ochrana heslem</translation>
    </message>
    <message>
        <source>The SSL certificate could not be verified. It may be self-signed, expired, or issued for another hostname.</source>
        <translation>Certifikát SSL se nepodařilo ověřit. Může být podepsaný svým držitelem, prošlý nebo vystavený pro jiný název hostitele.</translation>
    </message>
    <message>
        <source>Please update Quillmere Drive Server on the NAS to use selective sync.</source>
        <translation>Chcete-li používat selektivní synchronizaci, aktualizujte balíček Quillmere Drive Server na zařízení NAS.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up some space to continue syncing.</source>
        <translation>V tomto počítači není dost volného místa. Chcete-li pokračovat v synchronizaci, uvolněte místo.</translation>
    </message>
    <message>
        <source>The selected folder is used by a backup task. Syncing it may cause conflicts.</source>
        <translation>Vybranou složku používá úloha zálohování. Její synchronizace může způsobit konflikty.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hledat</translation>
    </message>
    <message>
        <source>One-way sync from the NAS to this computer</source>
        <translation>Jednosměrná synchronizace ze zařízení NAS do tohoto počítače</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Jen stahování</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>V tomto počítači není dost volného místa.</translation>
    </message>
    <message>
        <source>Blocked by:</source>
        <translation>Blokuje:</translation>
    </message>
    <message>
        <source>This computer is linked to your NAS, and your files are now being synced.</source>
        <translation>Tento počítač je propojen se zařízením NAS a vaše soubory se již synchronizují.</translation>
    </message>
    <message>
        <source>The RapidHail ID is invalid or does not exist.</source>
        <translation>ID RapidHail je neplatné nebo neexistuje.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Pohotovostní režim</translation>
    </message>
    <message>
        <source>Remove the program from this computer</source>
        <translation>Odebrat program z tohoto počítače</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established because of an SSL error.</source>
        <translation>Zabezpečené připojení k zařízení NAS se nepodařilo navázat kvůli chybě SSL.</translation>
    </message>
    <message>
        <source>General settings</source>
        <translation>Obecná nastavení</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Zobrazovat oznámení na ploše</translation>
    </message>
    <message>
        <source>Selective sync by file type</source>
        <translation>Selektivní synchronizace podle typu souboru</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Prosinec</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Složka</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is outdated. Please ask the administrator to update it to version %1 or later.</source>
        <translation>Balíček Quillmere Drive Server na zařízení NAS je zastaralý. Požádejte správce, aby ho aktualizoval na verzi %1 nebo novější.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hotovo</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Změnit nainstalované součásti</translation>
    </message>
    <message>
        <source>If you no longer need the program, you can remove it now. Your synced files will be kept on this computer.</source>
        <translation>Pokud program již nepotřebujete, můžete ho nyní odebrat. Synchronizované soubory v tomto počítači zůstanou.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be merged with the files in the shared folder.</source>
        <translation>Vybraná složka není prázdná. Soubory v ní budou sloučeny se soubory ve sdílené složce.</translation>
    </message>
    <message>
        <source>The link could not be deleted. Please try again later.</source>
        <translation>Odkaz se nepodařilo odstranit. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>A link cannot be created for this file. Make sure that it has been synced to the NAS.</source>
        <translation>Pro tento soubor nelze vytvořit odkaz. Ujistěte se, že je synchronizován se zařízením NAS.</translation>
    </message>
    <message>
        <source>Check all file attributes for changes</source>
        <translation>Kontrolovat změny všech atributů souborů</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove the installation</source>
        <translation>[DlgTitleFont]Změna, oprava nebo odebrání instalace</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Pondělí</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>Vybraná složka je jen pro čtení. Vyberte složku, do které můžete zapisovat.</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the sync task &quot;%1&quot;? The files on this computer and on the NAS will be kept.</source>
        <translation>Opravdu chcete odebrat úlohu synchronizace „%1“? Soubory v tomto počítači i na zařízení NAS zůstanou zachovány.</translation>
    </message>
    <message>
        <source>Limit how often this link can be opened</source>
        <translation>Omezit počet otevření tohoto odkazu</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Sdílená složka</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps the folders on your computers in sync with your Orvane NAS.</source>
        <translation>Quillmere Drive synchronizuje složky ve vašich počítačích se zařízením NAS Orvane.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Zadejte ověřovací kód</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Souhrn</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>Přípony souborů</translation>
    </message>
    <message>
        <source>The username cannot be empty.</source>
        <translation>Uživatelské jméno nesmí být prázdné.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Cesta ke složce</translation>
    </message>
    <message>
        <source>Folder already linked</source>
        <translation>Složka je již propojena</translation>
    </message>
    <message>
        <source>The maximum length of this field is %1 characters.</source>
        <translation>Maximální počet znaků v tomto poli je %1.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Jazyk</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from &quot;%1&quot;? Syncing will stop, but your files will be kept.</source>
        <translation>Opravdu chcete zrušit propojení tohoto počítače se zařízením „%1“? Synchronizace se zastaví, ale soubory zůstanou zachovány.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Pokročilá konfigurace</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Vlastní období</translation>
    </message>
    <message>
        <source>You have reached the maximum of %1 sync tasks. Remove a sync task before you add another one.</source>
        <translation>Byl dosažen maximální počet úloh synchronizace (%1). Než přidáte další, odeberte některou z nich.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Název složky</translation>
    </message>
    <message>
        <source>Quillmere Drive is being upgraded. Please wait...</source>
        <translation>Probíhá upgrade aplikace Quillmere Drive. Čekejte prosím...</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to keep synced with your NAS.</source>
        <translation>Vyberte v tomto počítači složku, kterou chcete synchronizovat se zařízením NAS.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testování připojení...</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Synchronizace: %1</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS. Contact the administrator.</source>
        <translation>Sdílená složka není na zařízení NAS připojena. Obraťte se na správce.</translation>
    </message>
    <message>
        <source>Keep your files in sync between this computer and your NAS, and reach them wherever you are.</source>
        <translation>Synchronizujte soubory mezi tímto počítačem a zařízením NAS a mějte je po ruce, ať jste kdekoli.</translation>
    </message>
    <message>
        <source>Your account is protected by two-factor verification. Please enter the verification code to continue.</source>
        <translation>Váš účet je chráněn dvoufaktorovým ověřením. Chcete-li pokračovat, zadejte ověřovací kód.</translation>
    </message>
    <message>
        <source>Edit file filter</source>
        <translation>Upravit filtr souborů</translation>
    </message>
    <message>
        <source>Open the synced folder</source>
        <translation>Otevřít synchronizovanou složku</translation>
    </message>
    <message>
        <source>File names to exclude</source>
        <translation>Názvy vyloučených souborů</translation>
    </message>
    <message>
        <source>File path</source>
        <translation>Cesta k souboru</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Leden</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Nepoužívat proxy server</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync with this computer.</source>
        <translation>Vyberte na zařízení NAS sdílenou složku, kterou chcete synchronizovat s tímto počítačem.</translation>
    </message>
    <message>
        <source>This shared folder does not exist on the NAS. It may have been renamed or deleted.</source>
        <translation>Tato sdílená složka na zařízení NAS neexistuje. Mohla být přejmenována nebo odstraněna.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Velikost</translation>
    </message>
    <message>
        <source>Server not running</source>
        <translation>Server není spuštěn</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Průvodce instalací nainstaluje aplikaci [ProductName] do počítače. Pokračujte tlačítkem „Další“ nebo průvodce ukončete tlačítkem „Zrušit“.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Úlohy synchronizace</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>Průvodce instalací je připraven zahájit instalaci.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Odstranit</translation>
    </message>
    <message>
        <source>Syncing %1 file(s)</source>
        <translation>Synchronizace souborů: %1</translation>
    </message>
    <message>
        <source>&amp;Close the applications and try to restart them</source>
        <translation>&amp;Zavřít aplikace a pokusit se je znovu spustit</translation>
    </message>
    <message>
        <source>Please wait. The requested changes are being made.</source>
        <translation>Čekejte prosím. Provádějí se požadované změny.</translation>
    </message>
    <message>
        <source>Upgrade available</source>
        <translation>K dispozici je upgrade</translation>
    </message>
    <message>
        <source>Repair the current installation</source>
        <translation>Opravit stávající instalaci</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Probíhá upgrade...</translation>
    </message>
    <message>
        <source>Set up a separate sync task</source>
        <translation>Nastavit samostatnou úlohu synchronizace</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>Žádná nastavení nebyla změněna.</translation>
    </message>
</context>
</TS>
