<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Keep your data safe and synced at all times</source>
        <translation>Adatai mindig biztonságban és szinkronban</translation>
    </message>
    <message>
        <source>The quota on the NAS has been used up. Free up some space or ask the administrator to raise your quota, and then select the folder again.</source>
        <translation>A NAS eszközön elérhető kvótája betelt. Szabadítson fel helyet, vagy kérje meg a rendszergazdát a kvóta növelésére, majd jelölje ki újra a mappát.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-user license agreement</source>
        <translation>[DlgTitleFont]Végfelhasználói licencszerződés</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Beállítási mód kiválasztása</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]A [ProductName] készen áll a telepítésre</translation>
    </message>
    <message>
        <source>This shared folder has been disabled for your account. Contact the administrator of the NAS to regain access.</source>
        <translation>Ez a megosztott mappa le van tiltva az ön fiókja számára. A hozzáférés visszaállításához forduljon a NAS eszköz rendszergazdájához.</translation>
    </message>
    <message>
        <source>Merge the folders</source>
        <translation>Mappák egyesítése</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Kilépés</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>Megosztási hivatkozás</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Szinkronizálási hiba</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>A Telepítővarázsló bezárásához kattintson a „Befejezés” gombra.</translation>
    </message>
    <message>
        <source>Set a start date for this link</source>
        <translation>Kezdő dátum beállítása ehhez a hivatkozáshoz</translation>
    </message>
    <message>
        <source>The local sync database cannot be read. Restart Quillmere Drive. If the problem persists, link this computer again.</source>
        <translation>Nem olvasható a helyi szinkronizálási adatbázis. Indítsa újra a Quillmere Drive alkalmazást. Ha a probléma továbbra is fennáll, kapcsolja össze újra ezt a számítógépet a NAS eszközzel.</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>A szinkronizálandó mappák kiválasztása</translation>
    </message>
    <message>
        <source>Every file you put in a synced folder is copied to your NAS automatically. Just save your work and let Quillmere Drive do the rest.</source>
        <translation>A szinkronizált mappákba helyezett fájlok automatikusan a NAS eszközre másolódnak. Csak mentenie kell a munkáját, a többit elvégzi a Quillmere Drive.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>Ú&amp;jra</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Mappák kizárása a szinkronizálásból</translation>
    </message>
    <message>
        <source>The local folder of this sync task cannot be found. It may have been moved, renamed, or deleted.</source>
        <translation>Nem található a szinkronizálási feladathoz tartozó helyi mappa. Lehet, hogy áthelyezték, átnevezték vagy törölték.</translation>
    </message>
    <message>
        <source>Quillmere Drive is starting...</source>
        <translation>A Quillmere Drive indítása...</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Beállítások alkalmazása...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hozzáadás</translation>
    </message>
    <message>
        <source>Make sure that Quillmere Drive Server is installed and running on your NAS before you continue.</source>
        <translation>Mielőtt folytatná, győződjön meg arról, hogy a Quillmere Drive Server telepítve van, és fut a NAS eszközön.</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Az új nyelvi beállítások alkalmazásához indítsa újra a(z) %1 alkalmazást.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Letöltés...</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Eltérő verziók</translation>
    </message>
    <message>
        <source>The icon in the system tray shows the sync status at a glance. Click it to pause syncing, view recent changes, or open the settings.</source>
        <translation>Az értesítési területen lévő ikon egy pillantásra megmutatja a szinkronizálás állapotát. Az ikonra kattintva szüneteltetheti a szinkronizálást, megtekintheti a legutóbbi módosításokat, vagy megnyithatja a beállításokat.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Szüneteltetve</translation>
    </message>
    <message>
        <source>Keep both versions and rename the conflicting file</source>
        <translation>Mindkét verzió megtartása és az ütköző fájl átnevezése</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Nem támogatott csatolási pont</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>Összekapcsolás...</translation>
    </message>
    <message>
        <source>About Quillmere Drive</source>
        <translation>A Quillmere Drive névjegye</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Engedélyezve</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Korábbi verziók tallózása</translation>
    </message>
    <message>
        <source>The Setup Wizard for [ProductName] stopped early because of an error. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>A [ProductName] Telepítővarázslója hiba miatt idő előtt leállt. A rendszer nem módosult. Ha később szeretné telepíteni a programot, futtassa újra a telepítőt.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Azonosító</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Kapcsolati adatok</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS. Free up some space to continue syncing.</source>
        <translation>Nincs elég szabad hely a NAS eszközön. A szinkronizálás folytatásához szabadítson fel helyet.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktív</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Törölve</translation>
    </message>
    <message>
        <source>The selected folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>A kijelölt mappa csatolási pont, ezért nem szinkronizálható. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>Upgrade now</source>
        <translation>Verziófrissítés most</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Számítógép neve</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Állapotinformációk</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>A [ProductName] telepítése</translation>
    </message>
    <message>
        <source>Open the management page</source>
        <translation>A felügyeleti oldal megnyitása</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Használatban lévő fájlok</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>csütörtök</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Várjon, amíg a Telepítővarázsló telepíti a [ProductName] alkalmazást. Ez több percig is eltarthat.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>szombat</translation>
    </message>
    <message>
        <source>Link expires after</source>
        <translation>A hivatkozás érvényességi ideje</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to leave this page without saving them?</source>
        <translation>A módosításokat még nem mentette. Mentés nélkül elhagyja ezt az oldalt?</translation>
    </message>
    <message>
        <source>Select the operation that you want to perform.</source>
        <translation>Válassza ki a végrehajtani kívánt műveletet.</translation>
    </message>
    <message>
        <source>This file was changed on the computer and on the NAS at the same time, and the conflict could not be resolved.</source>
        <translation>Ez a fájl egyszerre módosult a számítógépen és a NAS eszközön, és az ütközést nem sikerült feloldani.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Helyi hálózat</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Naprakész</translation>
    </message>
    <message>
        <source>A sync task named &quot;%1&quot; already exists. Please enter another name.</source>
        <translation>Már létezik „%1” nevű szinkronizálási feladat. Adjon meg másik nevet.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder. Please choose another folder or contact the administrator.</source>
        <translation>Nincs jogosultsága a mappa eléréséhez. Válasszon másik mappát, vagy forduljon a rendszergazdához.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Újbóli összekapcsolás</translation>
    </message>
    <message>
        <source>Select how you want to sync files between this computer and your NAS. You can add more sync tasks later.</source>
        <translation>Válassza ki, hogyan szeretné szinkronizálni a fájlokat a számítógép és a NAS eszköz között. Később további szinkronizálási feladatokat is hozzáadhat.</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>A proxykiszolgáló hitelesítést igényel</translation>
    </message>
    <message>
        <source>Choose what happens when the same file has been changed on the computer and on the NAS.</source>
        <translation>Válassza ki, mi történjen, ha ugyanaz a fájl a számítógépen és a NAS eszközön is módosult.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Másik mappa választása</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]A [ProductName] készen áll az eltávolításra</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Check the certificate before you connect again.</source>
        <translation>A NAS eszköz SSL-tanúsítványa megváltozott. Ellenőrizze a tanúsítványt, mielőtt újra csatlakozna.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Múlt hónap</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Művelet</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Írásvédett</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Dátumtartomány</translation>
    </message>
    <message>
        <source>The download failed. Please try again later.</source>
        <translation>A letöltés nem sikerült. Próbálkozzon újra később.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>A beállítás befejeződött.</translation>
    </message>
    <message>
        <source>Quillmere Drive on this computer is outdated. Please update it to version %1 or later.</source>
        <translation>A számítógépen lévő Quillmere Drive elavult. Frissítse a(z) %1 vagy újabb verzióra.</translation>
    </message>
    <message>
        <source>This computer is now linked to your NAS. Syncing starts as soon as you close the wizard.</source>
        <translation>A számítógép most már össze van kapcsolva a NAS eszközzel. A szinkronizálás a varázsló bezárásakor azonnal elindul.</translation>
    </message>
    <message>
        <source>Enable sync for this shared folder</source>
        <translation>A megosztott mappa szinkronizálásának engedélyezése</translation>
    </message>
    <message>
        <source>Download complete</source>
        <translation>A letöltés befejeződött</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Mappa szinkronizálásának folytatása</translation>
    </message>
    <message>
        <source>Setup is in progress. Please wait...</source>
        <translation>A beállítás folyamatban van. Kis türelmet...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Az imént</translation>
    </message>
    <message>
        <source>This computer is already linked to the same NAS. Edit the existing connection instead.</source>
        <translation>Ez a számítógép már össze van kapcsolva ugyanezzel a NAS eszközzel. Szerkessze inkább a meglévő kapcsolatot.</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>%1 elem</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Kapcsolat szüneteltetése</translation>
    </message>
    <message>
        <source>Quillmere Drive is ready.</source>
        <translation>A Quillmere Drive készen áll.</translation>
    </message>
    <message>
        <source>Keep an eye on the system tray</source>
        <translation>Tartsa szemmel az értesítési területet</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>További részletek</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. The copies on the NAS will be kept. Do you want to continue?</source>
        <translation>Azokat a mappákat, amelyek jelölését itt törli, a rendszer eltávolítja erről a számítógépről. A NAS eszközön lévő másolatok megmaradnak. Folytatja?</translation>
    </message>
    <message>
        <source>October</source>
        <translation>október</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>A mappa nem üres</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hiba</translation>
    </message>
    <message>
        <source>Restrict access to this link</source>
        <translation>A hivatkozás elérésének korlátozása</translation>
    </message>
    <message>
        <source>The link could not be created. Make sure that file sharing is enabled in Quillmere Drive Server.</source>
        <translation>Nem sikerült létrehozni a hivatkozást. Győződjön meg arról, hogy a Quillmere Drive Server alkalmazásban engedélyezve van a fájlmegosztás.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>További oktatóanyagok</translation>
    </message>
    <message>
        <source>Setup requires administrator rights. Do you want to restart it as an administrator?</source>
        <translation>A telepítéshez rendszergazdai jogok szükségesek. Újraindítja a telepítőt rendszergazdaként?</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Állapot</translation>
    </message>
    <message>
        <source>Copy to:</source>
        <translation>Másolás ide:</translation>
    </message>
    <message>
        <source>No previous versions of this file are available.</source>
        <translation>Ennek a fájlnak nem érhetők el korábbi verziói.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Kezdés most</translation>
    </message>
    <message>
        <source>The NAS at this address is not the one that this computer was linked to. Check the address or link the computer again.</source>
        <translation>Az ezen a címen lévő NAS nem az, amellyel ez a számítógép össze lett kapcsolva. Ellenőrizze a címet, vagy kapcsolja össze újra a számítógépet a NAS eszközzel.</translation>
    </message>
    <message>
        <source>The upgrade failed. Please download the latest version and install it manually.</source>
        <translation>A verziófrissítés nem sikerült. Töltse le és telepítse kézzel a legújabb verziót.</translation>
    </message>
    <message>
        <source>Add sync task</source>
        <translation>Szinkronizálási feladat hozzáadása</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Kezdő dátum</translation>
    </message>
    <message>
        <source>This shared folder could not be enabled for syncing. Please try again later.</source>
        <translation>Nem sikerült engedélyezni a megosztott mappa szinkronizálását. Próbálkozzon újra később.</translation>
    </message>
    <message>
        <source>In the system tray</source>
        <translation>Az értesítési területen</translation>
    </message>
    <message>
        <source>The folder home\Quillmere on your NAS has already been linked to this PC. We will launch the synced folder when you click Done. Or you can set up a seperate task: %1</source>
        <translation>A NAS eszközön lévő home\Quillmere mappa már össze van kapcsolva ezzel a számítógéppel. Ha a „Kész” gombra kattint, megnyílik a szinkronizált mappa. Beállíthat külön feladatot is: %1</translation>
    </message>
    <message>
        <source>The port number is invalid. Enter a number from 1 to 65535.</source>
        <translation>Érvénytelen portszám. Adjon meg egy 1 és 65535 közötti számot.</translation>
    </message>
    <message>
        <source>Quillmere Drive could not be initialized. Please restart your computer and try again.</source>
        <translation>Nem sikerült inicializálni a Quillmere Drive alkalmazást. Indítsa újra a számítógépet, és próbálkozzon újra.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Állapot:</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes made on this computer will not be synced to the NAS.</source>
        <translation>Ehhez a mappához csak olvasási hozzáféréssel rendelkezik. Az ezen a számítógépen végzett módosítások nem szinkronizálódnak a NAS eszközre.</translation>
    </message>
    <message>
        <source>The version of Quillmere Drive on this computer is too old for the NAS. Version %1 or later is required.</source>
        <translation>A számítógépen lévő Quillmere Drive verziója túl régi a NAS eszközhöz. A(z) %1 vagy újabb verzió szükséges.</translation>
    </message>
    <message>
        <source>Files and folders that match the rules of the file filter will not be synced.</source>
        <translation>A fájlszűrő szabályainak megfelelő fájlok és mappák nem lesznek szinkronizálva.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]A [ProductName] készen áll a javításra</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Mappák szinkronizálásának folytatása</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Mappa megnyitása</translation>
    </message>
    <message>
        <source>Save a file and it is synced</source>
        <translation>Mentse a fájlt, és már szinkronizálva is van</translation>
    </message>
    <message>
        <source>Files that could not be synced</source>
        <translation>Fájlok, amelyeket nem sikerült szinkronizálni</translation>
    </message>
    <message>
        <source>The connection to the NAS was lost. Quillmere Drive will try to connect again automatically.</source>
        <translation>Megszakadt a kapcsolat a NAS eszközzel. A Quillmere Drive automatikusan megpróbál újra csatlakozni.</translation>
    </message>
    <message>
        <source>Detecting file changes...</source>
        <translation>Fájlmódosítások keresése...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>A csatlakozás sikerült.</translation>
    </message>
    <message>
        <source>The administrator requires two-factor verification for your account. Sign in to the NAS in a web browser and set it up first.</source>
        <translation>A rendszergazda kétfaktoros hitelesítést ír elő a fiókjához. Előbb jelentkezzen be a NAS eszközre egy webböngészőben, és állítsa be a hitelesítést.</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the permissions on the NAS. Please change the sync direction.</source>
        <translation>A mappa szinkronizálási iránya nem felel meg a NAS eszközön érvényes jogosultságoknak. Módosítsa a szinkronizálás irányát.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Üdvözli a [ProductName] Telepítővarázslója</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive. This wizard will help you link this computer to your NAS.</source>
        <translation>Üdvözli a Quillmere Drive. Ez a varázsló segít összekapcsolni a számítógépet a NAS eszközzel.</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files and folders</source>
        <translation>Ikonátfedések megjelenítése a szinkronizált fájlokon és mappákon</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Sikertelen hitelesítés</translation>
    </message>
    <message>
        <source>An invalid value was entered. Please check your input and try again.</source>
        <translation>Érvénytelen értéket adott meg. Ellenőrizze a bevitt adatokat, és próbálkozzon újra.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Minden esemény</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Tovább</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choice.</source>
        <translation>A [ProductName] számítógépről való eltávolításához kattintson az „Eltávolítás” gombra. A választás áttekintéséhez kattintson a „Vissza” gombra.</translation>
    </message>
    <message>
        <source>Quillmere Drive Server is not running on the NAS. Start it or contact the administrator.</source>
        <translation>A Quillmere Drive Server nem fut a NAS eszközön. Indítsa el, vagy forduljon a rendszergazdához.</translation>
    </message>
    <message>
        <source>Open Quillmere Drive</source>
        <translation>A Quillmere Drive megnyitása</translation>
    </message>
    <message>
        <source>The SSL certificate of this NAS differs from the one saved earlier. Continue only if you trust the new certificate.</source>
        <translation>A NAS eszköz SSL-tanúsítványa eltér a korábban mentettől. Csak akkor folytassa, ha megbízik az új tanúsítványban.</translation>
    </message>
    <message>
        <source>The selected folder is already synced by another cloud storage program. Please choose a different folder to avoid conflicts.</source>
        <translation>A kijelölt mappát már egy másik felhőalapú tárhelyprogram szinkronizálja. Az ütközések elkerülése érdekében válasszon másik mappát.</translation>
    </message>
    <message>
        <source>Right-click the tray icon to open the menu with all commands.</source>
        <translation>Kattintson a jobb gombbal az értesítési területen lévő ikonra az összes parancsot tartalmazó menü megnyitásához.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Syncing will start when indexing is complete.</source>
        <translation>A mappa indexelése folyamatban van. A szinkronizálás az indexelés befejezése után indul el.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Letiltva</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Folytatás</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Adatok ellenőrzése...</translation>
    </message>
    <message>
        <source>Click Install to begin installing [ProductName]. Click Back to review or change your settings. Click Cancel to exit the wizard.</source>
        <translation>A [ProductName] telepítésének megkezdéséhez kattintson a „Telepítés” gombra. A beállítások áttekintéséhez vagy módosításához kattintson a „Vissza” gombra. A varázsló bezárásához kattintson a „Mégse” gombra.</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>Szinkronizálás folyamatban</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Tartalmazó mappa megnyitása</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>A [ProductName] nem tartalmaz külön kiválasztható összetevőket.</translation>
    </message>
    <message>
        <source>The local folder could not be created. Check the path and your permissions, and then try again.</source>
        <translation>Nem sikerült létrehozni a helyi mappát. Ellenőrizze az elérési utat és a jogosultságait, majd próbálkozzon újra.</translation>
    </message>
    <message>
        <source>NAS address</source>
        <translation>NAS címe</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. It may have been deleted, or you may not have permission to access it.</source>
        <translation>A fájl nem tölthető le. Lehet, hogy törölték, vagy nincs jogosultsága az eléréséhez.</translation>
    </message>
    <message>
        <source>The IP address of this computer is not allowed to access the NAS. Contact the administrator.</source>
        <translation>A számítógép IP-címéről nem engedélyezett a NAS eszköz elérése. Forduljon a rendszergazdához.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Néhány frissítendő fájl jelenleg használatban van.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Utolsó oldal</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Dátum és idő</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Átnevezve</translation>
    </message>
    <message>
        <source>View sync status</source>
        <translation>Szinkronizálási állapot megtekintése</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>vasárnap</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]A [ProductName] telepítése folyamatban</translation>
    </message>
    <message>
        <source>Enter the names of the files that should not be synced. An asterisk (*) stands for any number of characters.</source>
        <translation>Adja meg azoknak a fájloknak a nevét, amelyeket nem kell szinkronizálni. A csillag (*) tetszőleges számú karaktert helyettesít.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Szüneteltetés</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Általános</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Szinkronizálandó mappák</translation>
    </message>
    <message>
        <source>RapidHail</source>
        <translation>RapidHail</translation>
    </message>
    <message>
        <source>Enter the IP address, hostname, or RapidHail ID of your NAS.</source>
        <translation>Adja meg a NAS eszköz IP-címét, állomásnevét vagy RapidHail-azonosítóját.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>szerda</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Új mappa szinkronizálása</translation>
    </message>
    <message>
        <source>NAS changed</source>
        <translation>A NAS megváltozott</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vissza</translation>
    </message>
    <message>
        <source>If you disable this folder, it will no longer be synced. The files on this computer will be kept. Do you want to continue?</source>
        <translation>Ha letiltja ezt a mappát, az a továbbiakban nem lesz szinkronizálva. A számítógépen lévő fájlok megmaradnak. Folytatja?</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Fájl megnyitása</translation>
    </message>
    <message>
        <source>This folder cannot be synced because its path is invalid. Please choose another folder.</source>
        <translation>A mappa nem szinkronizálható, mert az elérési útja érvénytelen. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>The shared folder on the NAS is not mounted. If it is encrypted, mount it first.</source>
        <translation>A NAS eszközön lévő megosztott mappa nincs csatolva. Ha titkosítva van, először csatolja.</translation>
    </message>
    <message>
        <source>Expiration time</source>
        <translation>Lejárati időpont</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Felhasználónév</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up.</source>
        <translation>A NAS eszközön elérhető kvótája betelt.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please correct them before you continue.</source>
        <translation>Néhány mező érvénytelen értéket tartalmaz. A folytatás előtt javítsa őket.</translation>
    </message>
    <message>
        <source>The RapidHail service cannot be reached. Check your internet connection and try again.</source>
        <translation>A RapidHail szolgáltatás nem érhető el. Ellenőrizze az internetkapcsolatot, és próbálkozzon újra.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>péntek</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>A főablak megnyitása</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Proxyport</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; has been used up. Free up some space to continue syncing.</source>
        <translation>A(z) „%1” megosztott mappa kvótája betelt. A szinkronizálás folytatásához szabadítson fel helyet.</translation>
    </message>
    <message>
        <source>Link to a new NAS</source>
        <translation>Összekapcsolás új NAS eszközzel</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Múlt hét</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is too old for this computer. Version %1 or later is required.</source>
        <translation>A NAS eszközön lévő Quillmere Drive Server túl régi ehhez a számítógéphez. A(z) %1 vagy újabb verzió szükséges.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>június</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a network error. Check your network connection and try again.</source>
        <translation>A mappa hálózati hiba miatt nem ellenőrizhető. Ellenőrizze a hálózati kapcsolatot, és próbálkozzon újra.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Érték</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]&amp;Eltávolítás</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Igen</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>July</source>
        <translation>július</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Értem</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Üdvözöljük</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Eltávolítja a [ProductName] alkalmazást a számítógépről.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Verzió</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Folytatás</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Jelszó</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Ettől</translation>
    </message>
    <message>
        <source>You can open the synced folder at any time from the Quillmere Drive icon in the system tray.</source>
        <translation>A szinkronizált mappát bármikor megnyithatja az értesítési területen lévő Quillmere Drive ikonról.</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Frissített fájlok</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;pair</source>
        <translation>[DlgTitleFont]J&amp;avítás</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>kedd</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Nincsenek elérhető lehetőségek</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Súgó</translation>
    </message>
    <message>
        <source>The NAS at this address has changed. Please link this computer again.</source>
        <translation>Az ezen a címen lévő NAS megváltozott. Kapcsolja össze újra ezt a számítógépet a NAS eszközzel.</translation>
    </message>
    <message>
        <source>The installation of [ProductName] was interrupted. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>A [ProductName] telepítése megszakadt. A rendszer nem módosult. Ha később szeretné telepíteni a programot, futtassa újra a telepítőt.</translation>
    </message>
    <message>
        <source>The connection test failed. The username or password is incorrect.</source>
        <translation>A kapcsolat tesztelése nem sikerült. Hibás a felhasználónév vagy a jelszó.</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>J&amp;avítás</translation>
    </message>
    <message>
        <source>A sync task has stopped because of an error. Click here for details.</source>
        <translation>Egy szinkronizálási feladat hiba miatt leállt. A részletekért kattintson ide.</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and the account that you want to use for syncing.</source>
        <translation>Adja meg a NAS eszköz címét és a szinkronizáláshoz használni kívánt fiókot.</translation>
    </message>
    <message>
        <source>Connect anyway</source>
        <translation>Csatlakozás mindenképp</translation>
    </message>
    <message>
        <source>The files on this computer and the files in the shared folder will be merged. If two files have the same name, the newer one is used.</source>
        <translation>A számítógépen és a megosztott mappában lévő fájlokat a rendszer egyesíti. Ha két fájl neve megegyezik, az újabb marad meg.</translation>
    </message>
    <message>
        <source>Start Quillmere Drive automatically when I sign in</source>
        <translation>A Quillmere Drive automatikus indítása bejelentkezéskor</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this link? People who have it will no longer be able to open the file.</source>
        <translation>Biztosan törli ezt a hivatkozást? Akik megkapták, a továbbiakban nem tudják megnyitni a fájlt.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Másik mappa választása</translation>
    </message>
    <message>
        <source>The username or password is incorrect, or the account has been disabled.</source>
        <translation>Hibás a felhasználónév vagy a jelszó, vagy a fiók le van tiltva.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Befejezés</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;do not accept the terms of the license agreement</source>
        <translation>{\DlgFont8}&amp;Nem fogadom el a licencszerződés feltételeit</translation>
    </message>
    <message>
        <source>Right-click a file and select &quot;Share link&quot; to create a link. Send it to anyone who needs the file, even if they have no account on your NAS.</source>
        <translation>Kattintson a jobb gombbal egy fájlra, és hivatkozás létrehozásához válassza a „Hivatkozás megosztása” parancsot. Küldje el a hivatkozást bárkinek, akinek szüksége van a fájlra, akkor is, ha nincs fiókja a NAS eszközön.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Szinkronizálási mód</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps earlier versions of your files. Right-click a file and select &quot;Browse previous versions&quot; to restore one of them.</source>
        <translation>A Quillmere Drive megőrzi a fájlok korábbi verzióit. Ha vissza szeretne állítani egyet közülük, kattintson a jobb gombbal a fájlra, és válassza a „Korábbi verziók tallózása” parancsot.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Következő %1 oldal</translation>
    </message>
    <message>
        <source>Quillmere Drive is already running. You can find its icon in the system tray.</source>
        <translation>A Quillmere Drive már fut. Ikonját az értesítési területen találja.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Megosztott mappák betöltése...</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Első oldal</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Proxy beállítása kézzel</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>%1 órája</translation>
    </message>
    <message>
        <source>This folder cannot be synced because of a system error. Please try again later.</source>
        <translation>A mappa rendszerhiba miatt nem szinkronizálható. Próbálkozzon újra később.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Ha duplán kattint az értesítési terület ikonjára</translation>
    </message>
    <message>
        <source>Selective sync by folder</source>
        <translation>Szelektív szinkronizálás mappák szerint</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Megosztott mappák</translation>
    </message>
    <message>
        <source>Sync with another NAS</source>
        <translation>Szinkronizálás másik NAS eszközzel</translation>
    </message>
    <message>
        <source>This creates a Quillmere folder on your computer and keeps it synced with your home folder on your Orvane NAS (recommended for personal use).</source>
        <translation>Létrehoz egy Quillmere mappát a számítógépen, és szinkronban tartja az Orvane NAS eszközön lévő home mappájával (személyes használatra ajánlott).</translation>
    </message>
    <message>
        <source>Click here to upgrade</source>
        <translation>A verziófrissítéshez kattintson ide</translation>
    </message>
    <message>
        <source>April</source>
        <translation>április</translation>
    </message>
    <message>
        <source>On your computer</source>
        <translation>A számítógépen</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of [ProductName]?</source>
        <translation>Biztosan megszakítja a [ProductName] telepítését?</translation>
    </message>
    <message>
        <source>Files and folders excluded from sync</source>
        <translation>A szinkronizálásból kizárt fájlok és mappák</translation>
    </message>
    <message>
        <source>This version of Quillmere Drive is already installed. Do you want to install it again?</source>
        <translation>A Quillmere Drive ezen verziója már telepítve van. Újra telepíti?</translation>
    </message>
    <message>
        <source>has been shared. The link was copied to the clipboard.</source>
        <translation>megosztva. A hivatkozás a vágólapra került.</translation>
    </message>
    <message>
        <source>The NAS sent an unexpected response. Make sure that Quillmere Drive and Quillmere Drive Server are both up to date.</source>
        <translation>A NAS eszköz váratlan választ küldött. Győződjön meg arról, hogy a Quillmere Drive és a Quillmere Drive Server egyaránt naprakész.</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Mappa kizárása a szinkronizálásból</translation>
    </message>
    <message>
        <source>March</source>
        <translation>március</translation>
    </message>
    <message>
        <source>The RapidHail service encountered a system error. Please try again later.</source>
        <translation>A RapidHail szolgáltatásban rendszerhiba történt. Próbálkozzon újra később.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Szelektív szinkronizálás</translation>
    </message>
    <message>
        <source>Folder is read-only</source>
        <translation>A mappa írásvédett</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;accept the terms of the license agreement</source>
        <translation>{\DlgFont8}&amp;Elfogadom a licencszerződés feltételeit</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Szinkronizálás iránya</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Letöltési előzmények</translation>
    </message>
    <message>
        <source>Select a folder on this computer and the shared folder on the NAS that it will be synced with.</source>
        <translation>Válasszon ki egy mappát ezen a számítógépen, valamint a NAS eszköz azon megosztott mappáját, amellyel szinkronizálni szeretné.</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>Ez a mező nem maradhat üresen.</translation>
    </message>
    <message>
        <source>Choose a shared folder on your NAS that is not yet synced with this computer.</source>
        <translation>Válasszon egy olyan megosztott mappát a NAS eszközön, amely még nincs szinkronizálva ezzel a számítógéppel.</translation>
    </message>
    <message>
        <source>How existing files are merged</source>
        <translation>A meglévő fájlok egyesítésének módja</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Hálózati beállítások</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Alaphelyzet</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Hivatkozás törlése</translation>
    </message>
    <message>
        <source>This sync task is inactive because the shared folder is not available.</source>
        <translation>Ez a szinkronizálási feladat inaktív, mert a megosztott mappa nem érhető el.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Egyirányú letöltés</translation>
    </message>
    <message>
        <source>Go back to an earlier version</source>
        <translation>Visszatérés korábbi verzióhoz</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Feltöltve</translation>
    </message>
    <message>
        <source>Changes the set of [ProductName] features that are installed.</source>
        <translation>Módosítja a [ProductName] telepített összetevőit.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>May</source>
        <translation>május</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Fájlnév</translation>
    </message>
    <message>
        <source>Link this computer to your NAS in just a few steps.</source>
        <translation>Kapcsolja össze számítógépét a NAS eszközzel néhány egyszerű lépésben.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>Be&amp;fejezés</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>A kapcsolat titkosítása SSL használatával</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Kapcsolódási mód</translation>
    </message>
    <message>
        <source>Keep the file that was modified last</source>
        <translation>Az utoljára módosított fájl megtartása</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Szerkesztés</translation>
    </message>
    <message>
        <source>A newer version of Quillmere Drive is already installed. Setup will now close.</source>
        <translation>A Quillmere Drive egy újabb verziója már telepítve van. A telepítő most bezárul.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Confirm the new certificate before you select a folder.</source>
        <translation>A NAS eszköz SSL-tanúsítványa megváltozott. A mappa kiválasztása előtt erősítse meg az új tanúsítványt.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eltávolítás</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Egyesítés</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>A megosztott mappa nem található</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Leválasztás</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Helyi mappa</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Mappa kiválasztása</translation>
    </message>
    <message>
        <source>Set up the folder to sync</source>
        <translation>Szinkronizálandó mappa beállítása</translation>
    </message>
    <message>
        <source>Enter the connection settings for your NAS.</source>
        <translation>Adja meg a NAS eszköz kapcsolati beállításait.</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>SSL-tanúsítvánnyal kapcsolatos figyelmeztetés</translation>
    </message>
    <message>
        <source>Share files with a link</source>
        <translation>Fájlok megosztása hivatkozással</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Fájltípus</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Kapcsolat folytatása</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Kihagyás</translation>
    </message>
    <message>
        <source>The maximum file size must be a whole number greater than 0.</source>
        <translation>A maximális fájlméret csak 0-nál nagyobb egész szám lehet.</translation>
    </message>
    <message>
        <source>Insufficient permissions</source>
        <translation>Nincs megfelelő jogosultság</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Frissítve: %1</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive</source>
        <translation>Üdvözli a Quillmere Drive</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Kulcsszó</translation>
    </message>
    <message>
        <source>This allows you to specify a folder on your computer to keep synced with a shared folder on your Orvane NAS. (Recommended for teamwork)​.</source>
        <translation>Megadhatja, hogy a számítógép melyik mappája legyen szinkronban az Orvane NAS eszköz egy megosztott mappájával (csapatmunkához ajánlott).</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin repairing [ProductName].</source>
        <translation>A Telepítővarázsló készen áll a [ProductName] javításának megkezdésére.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Alkalmaz</translation>
    </message>
    <message>
        <source>A network error occurred. Check your network connection and try again.</source>
        <translation>Hálózati hiba történt. Ellenőrizze a hálózati kapcsolatot, és próbálkozzon újra.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already being synced. Please choose another folder.</source>
        <translation>Ez a mappa átfedésben van egy már szinkronizált mappával. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}A [ProductName] Telepítővarázslója megszakadt</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Dátum</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Vissza</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Kezdő időpont</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Oktatóanyag megjelenítése</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Igen</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Gyors mód</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Kezelés</translation>
    </message>
    <message>
        <source>Links cannot be created over a RapidHail connection because file sharing is disabled on the NAS.</source>
        <translation>RapidHail-kapcsolaton keresztül nem hozhatók létre hivatkozások, mert a NAS eszközön le van tiltva a fájlmegosztás.</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Megosztott mappák kezelése</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Olvassa el figyelmesen az alábbi licencszerződést.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Előkészítés...</translation>
    </message>
    <message>
        <source>Keep the version on the NAS and overwrite the one on this computer</source>
        <translation>A NAS eszközön lévő verzió megtartása és a számítógépen lévő felülírása</translation>
    </message>
    <message>
        <source>August</source>
        <translation>augusztus</translation>
    </message>
    <message>
        <source>Use a RapidHail connection</source>
        <translation>RapidHail-kapcsolat használata</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard ended early</source>
        <translation>{\VerdanaBold13}A [ProductName] Telepítővarázslója idő előtt véget ért</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Típus</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up. Files can no longer be uploaded until you free up some space.</source>
        <translation>A NAS eszközön elérhető kvótája betelt. Amíg nem szabadít fel helyet, nem tölthet fel fájlokat.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]&amp;Módosítás</translation>
    </message>
    <message>
        <source>Set an expiration date for this link</source>
        <translation>Lejárati dátum beállítása ehhez a hivatkozáshoz</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Másik helyi mappa választása</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximális fájlméret</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Eltávolítás</translation>
    </message>
    <message>
        <source>Quillmere Drive is initializing...</source>
        <translation>A Quillmere Drive inicializálása folyamatban...</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Kétirányú szinkronizálás</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>A rendszer proxybeállításainak használata</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Leválasztás...</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open (a restart will be required)</source>
        <translation>Az alkalmazások nyitva &amp;hagyása (újraindítás szükséges)</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard is complete</source>
        <translation>{\VerdanaBold13}A [ProductName] Telepítővarázslója befejeződött</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Szinkronizálási feladat</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>Létrehozva</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>A [ProductName] indítása</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Tovább</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Proxycím</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Legutóbb módosított fájlok</translation>
    </message>
    <message>
        <source>Unlink from the NAS</source>
        <translation>Leválasztás a NAS eszközről</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Please try again later.</source>
        <translation>Nem sikerült listázni a fájl verzióit. Próbálkozzon újra később.</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Másik program zárolta</translation>
    </message>
    <message>
        <source>An unknown error occurred. Please try again later.</source>
        <translation>Ismeretlen hiba történt. Próbálkozzon újra később.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified.</source>
        <translation>Nem sikerült ellenőrizni a NAS eszköz SSL-tanúsítványát.</translation>
    </message>
    <message>
        <source>Checking username and password...</source>
        <translation>Felhasználónév és jelszó ellenőrzése...</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Speciális beállítások</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Nyo&amp;mtatás</translation>
    </message>
    <message>
        <source>February</source>
        <translation>február</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Név</translation>
    </message>
    <message>
        <source>Quillmere Drive</source>
        <translation>Quillmere Drive</translation>
    </message>
    <message>
        <source>You have read-only access to this shared folder. Files can be downloaded to this computer but not uploaded to the NAS.</source>
        <translation>Ehhez a megosztott mappához csak olvasási hozzáféréssel rendelkezik. A fájlok letölthetők erre a számítógépre, de nem tölthetők fel a NAS eszközre.</translation>
    </message>
    <message>
        <source>The drive that contains the local folder is not mounted. Connect the drive to continue syncing.</source>
        <translation>A helyi mappát tartalmazó meghajtó nincs csatolva. A szinkronizálás folytatásához csatlakoztassa a meghajtót.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Cél</translation>
    </message>
    <message>
        <source>Search the local network for an Orvane NAS.</source>
        <translation>Orvane NAS keresése a helyi hálózaton.</translation>
    </message>
    <message>
        <source>Storage full</source>
        <translation>Megtelt a tárhely</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>NAS áttekintése</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Közvetlen kapcsolat</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Letöltve</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxybeállítások</translation>
    </message>
    <message>
        <source>Unstable connection</source>
        <translation>Instabil kapcsolat</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync this folder. Free up some space or choose another folder.</source>
        <translation>Nincs elég szabad hely ezen a számítógépen a mappa szinkronizálásához. Szabadítson fel helyet, vagy válasszon másik mappát.</translation>
    </message>
    <message>
        <source>Use a black and white tray icon</source>
        <translation>Fekete-fehér ikon használata az értesítési területen</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Szinkronizálási előzmények</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>A letöltést megszakították.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>A következő alkalmazások olyan fájlokat használnak, amelyeket a telepítőnek frissítenie kell. Zárja be őket, majd a folytatáshoz kattintson az „Újra” gombra.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>Te&amp;lepítés</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please wait a few minutes before you try again.</source>
        <translation>Túl sok sikertelen kísérlet. Várjon néhány percet, mielőtt újra próbálkozna.</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>Minden készen áll</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Betöltés...</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Köszönöm, nem</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Új megosztott mappa</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Kilé&amp;pés</translation>
    </message>
    <message>
        <source>You can let Setup close the applications listed below and try to restart them afterward.</source>
        <translation>Engedélyezheti, hogy a telepítő bezárja az alább felsorolt alkalmazásokat, majd megpróbálja újraindítani őket.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change the way [ProductName] is installed or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>A Telepítővarázsló segítségével módosíthatja a [ProductName] telepítését, vagy eltávolíthatja az alkalmazást a számítógépről. A folytatáshoz kattintson a „Tovább”, a kilépéshez a „Mégse” gombra.</translation>
    </message>
    <message>
        <source>Try syncing a file</source>
        <translation>Próbálja ki egy fájl szinkronizálását</translation>
    </message>
    <message>
        <source>No data to display</source>
        <translation>Nincs megjeleníthető adat</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>%1 napja</translation>
    </message>
    <message>
        <source>You can now sync the shared folder &quot;%1&quot;. Click here to enable it.</source>
        <translation>Mostantól szinkronizálhatja a(z) „%1” megosztott mappát. Az engedélyezéshez kattintson ide.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Feltöltés...</translation>
    </message>
    <message>
        <source>Your Quillmere folder is ready. Drop files into it and they will be synced with your NAS.</source>
        <translation>A Quillmere mappa készen áll. A belehelyezett fájlok szinkronizálódnak a NAS eszközzel.</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>Nincs szinkronizálható mappa.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Előző %1 oldal</translation>
    </message>
    <message>
        <source>The verification code is invalid. Please check the code and try again.</source>
        <translation>Érvénytelen ellenőrző kód. Ellenőrizze a kódot, és próbálkozzon újra.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Ma</translation>
    </message>
    <message>
        <source>The selected folder is on a network drive. Changes made there by other computers may not be detected immediately.</source>
        <translation>A kijelölt mappa hálózati meghajtón található. Előfordulhat, hogy a más számítógépekről ott végzett módosítások észlelése nem azonnali.</translation>
    </message>
    <message>
        <source>Show icon overlays on files excluded by the file filter</source>
        <translation>Ikonátfedések megjelenítése a fájlszűrő által kizárt fájlokon</translation>
    </message>
    <message>
        <source>Files to sync</source>
        <translation>Szinkronizálandó fájlok</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fájl</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Hivatkozás megosztása</translation>
    </message>
    <message>
        <source>Detecting connection mode...</source>
        <translation>Kapcsolódási mód észlelése...</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Egyéni időtartam</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>NAS eszközök keresése a helyi hálózaton</translation>
    </message>
    <message>
        <source>The proxy address and port cannot be empty.</source>
        <translation>A proxycím és a port nem lehet üres.</translation>
    </message>
    <message>
        <source>You can also protect a link with a password or set an expiration date.</source>
        <translation>A hivatkozást jelszóval is védheti, vagy lejárati dátumot is beállíthat hozzá.</translation>
    </message>
    <message>
        <source>All your files, always at hand</source>
        <translation>Minden fájlja, mindig kéznél</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Lejárati dátum</translation>
    </message>
    <message>
        <source>September</source>
        <translation>szeptember</translation>
    </message>
    <message>
        <source>Create a Quillmere folder on this computer</source>
        <translation>Quillmere mappa létrehozása ezen a számítógépen</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Speciális mód varázslója</translation>
    </message>
    <message>
        <source>The selected folder is already part of a sync task on this computer.</source>
        <translation>A kijelölt mappa már egy szinkronizálási feladat része ezen a számítógépen.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>%1 perce</translation>
    </message>
    <message>
        <source>This shared folder is already synced with the folder &quot;%1&quot; on this computer.</source>
        <translation>Ez a megosztott mappa már szinkronizálva van a számítógépen lévő „%1” mappával.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>Nincs elég szabad hely a NAS eszközön.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nem</translation>
    </message>
    <message>
        <source>Click Repair to restore missing or damaged files, shortcuts, and registry entries. Click Back to review your choice.</source>
        <translation>A hiányzó vagy sérült fájlok, parancsikonok és beállításjegyzék-bejegyzések helyreállításához kattintson a „Javítás” gombra. A választás áttekintéséhez kattintson a „Vissza” gombra.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>A rendszer alapértelmezett nyelve</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Ne jelenjen meg többé ez az üzenet</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by restoring missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Javítja a legutóbbi telepítés hibáit: helyreállítja a hiányzó vagy sérült fájlokat, parancsikonokat és beállításjegyzék-bejegyzéseket.</translation>
    </message>
    <message>
        <source>Number of times the link can be opened</source>
        <translation>A megnyitások engedélyezett száma</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Tegnap</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified. The folder cannot be selected until the certificate is trusted.</source>
        <translation>Nem sikerült ellenőrizni a NAS eszköz SSL-tanúsítványát. A mappa csak akkor választható ki, ha a tanúsítvány megbízható.</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>Jelszavas védelem</translation>
    </message>
    <message>
        <source>The SSL certificate could not be verified. It may be self-signed, expired, or issued for another hostname.</source>
        <translation>Nem sikerült ellenőrizni az SSL-tanúsítványt. Lehet, hogy önaláírt, lejárt, vagy másik állomásnévhez állították ki.</translation>
    </message>
    <message>
        <source>Please update Quillmere Drive Server on the NAS to use selective sync.</source>
        <translation>A szelektív szinkronizálás használatához frissítse a Quillmere Drive Server alkalmazást a NAS eszközön.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up some space to continue syncing.</source>
        <translation>Nincs elég szabad hely ezen a számítógépen. A szinkronizálás folytatásához szabadítson fel helyet.</translation>
    </message>
    <message>
        <source>The selected folder is used by a backup task. Syncing it may cause conflicts.</source>
        <translation>A kijelölt mappát egy biztonsági mentési feladat használja. A szinkronizálása ütközéseket okozhat.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Keresés</translation>
    </message>
    <message>
        <source>One-way sync from the NAS to this computer</source>
        <translation>Egyirányú szinkronizálás a NAS eszközről erre a számítógépre</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Csak letöltés</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Nincs elég szabad hely ezen a számítógépen.</translation>
    </message>
    <message>
        <source>Blocked by:</source>
        <translation>Blokkolja:</translation>
    </message>
    <message>
        <source>This computer is linked to your NAS, and your files are now being synced.</source>
        <translation>A számítógép össze van kapcsolva a NAS eszközzel, és a fájlok szinkronizálása folyamatban van.</translation>
    </message>
    <message>
        <source>The RapidHail ID is invalid or does not exist.</source>
        <translation>A RapidHail-azonosító érvénytelen vagy nem létezik.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Készenlét</translation>
    </message>
    <message>
        <source>Remove the program from this computer</source>
        <translation>A program eltávolítása a számítógépről</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established because of an SSL error.</source>
        <translation>SSL-hiba miatt nem sikerült biztonságos kapcsolatot létesíteni a NAS eszközzel.</translation>
    </message>
    <message>
        <source>General settings</source>
        <translation>Általános beállítások</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Asztali értesítések megjelenítése</translation>
    </message>
    <message>
        <source>Selective sync by file type</source>
        <translation>Szelektív szinkronizálás fájltípus szerint</translation>
    </message>
    <message>
        <source>December</source>
        <translation>december</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappa</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is outdated. Please ask the administrator to update it to version %1 or later.</source>
        <translation>A NAS eszközön lévő Quillmere Drive Server elavult. Kérje meg a rendszergazdát, hogy frissítse a(z) %1 vagy újabb verzióra.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Kész</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>A telepített összetevők módosítása</translation>
    </message>
    <message>
        <source>If you no longer need the program, you can remove it now. Your synced files will be kept on this computer.</source>
        <translation>Ha már nincs szüksége a programra, most eltávolíthatja. A szinkronizált fájlok megmaradnak ezen a számítógépen.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be merged with the files in the shared folder.</source>
        <translation>A kijelölt mappa nem üres. A benne lévő fájlok egyesítve lesznek a megosztott mappában lévő fájlokkal.</translation>
    </message>
    <message>
        <source>The link could not be deleted. Please try again later.</source>
        <translation>Nem sikerült törölni a hivatkozást. Próbálkozzon újra később.</translation>
    </message>
    <message>
        <source>A link cannot be created for this file. Make sure that it has been synced to the NAS.</source>
        <translation>Ehhez a fájlhoz nem hozható létre hivatkozás. Győződjön meg arról, hogy a fájl szinkronizálása a NAS eszközre megtörtént.</translation>
    </message>
    <message>
        <source>Check all file attributes for changes</source>
        <translation>Minden fájlattribútum változásának ellenőrzése</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove the installation</source>
        <translation>[DlgTitleFont]A telepítés módosítása, javítása vagy eltávolítása</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>hétfő</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>A kijelölt mappa írásvédett. Válasszon olyan mappát, amelybe írhat.</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the sync task &quot;%1&quot;? The files on this computer and on the NAS will be kept.</source>
        <translation>Biztosan eltávolítja a(z) „%1” szinkronizálási feladatot? A számítógépen és a NAS eszközön lévő fájlok megmaradnak.</translation>
    </message>
    <message>
        <source>Limit how often this link can be opened</source>
        <translation>A hivatkozás megnyitási számának korlátozása</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Megosztott mappa</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps the folders on your computers in sync with your Orvane NAS.</source>
        <translation>A Quillmere Drive szinkronban tartja a számítógépein lévő mappákat az Orvane NAS eszközzel.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Adja meg az ellenőrző kódot</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Összegzés</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>Fájlkiterjesztések</translation>
    </message>
    <message>
        <source>The username cannot be empty.</source>
        <translation>A felhasználónév nem lehet üres.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappa elérési útja</translation>
    </message>
    <message>
        <source>Folder already linked</source>
        <translation>A mappa már össze van kapcsolva</translation>
    </message>
    <message>
        <source>The maximum length of this field is %1 characters.</source>
        <translation>A mező maximális hossza %1 karakter.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Nyelv</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from &quot;%1&quot;? Syncing will stop, but your files will be kept.</source>
        <translation>Biztosan leválasztja ezt a számítógépet a(z) „%1” eszközről? A szinkronizálás leáll, de a fájlok megmaradnak.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Speciális mód</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Egyéni tartomány</translation>
    </message>
    <message>
        <source>You have reached the maximum of %1 sync tasks. Remove a sync task before you add another one.</source>
        <translation>Elérte a szinkronizálási feladatok maximális számát (%1). Új hozzáadása előtt távolítson el egy szinkronizálási feladatot.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappanév</translation>
    </message>
    <message>
        <source>Quillmere Drive is being upgraded. Please wait...</source>
        <translation>A Quillmere Drive verziófrissítése folyamatban van. Kis türelmet...</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to keep synced with your NAS.</source>
        <translation>Válassza ki a számítógépnek azt a mappáját, amelyet szinkronban szeretne tartani a NAS eszközzel.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>A kapcsolat tesztelése...</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Szinkronizálás: %1</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS. Contact the administrator.</source>
        <translation>A megosztott mappa nincs csatolva a NAS eszközön. Forduljon a rendszergazdához.</translation>
    </message>
    <message>
        <source>Keep your files in sync between this computer and your NAS, and reach them wherever you are.</source>
        <translation>Tartsa szinkronban fájljait a számítógép és a NAS eszköz között, és érje el őket bárhonnan.</translation>
    </message>
    <message>
        <source>Your account is protected by two-factor verification. Please enter the verification code to continue.</source>
        <translation>Fiókját kétfaktoros hitelesítés védi. A folytatáshoz adja meg az ellenőrző kódot.</translation>
    </message>
    <message>
        <source>Edit file filter</source>
        <translation>Fájlszűrő szerkesztése</translation>
    </message>
    <message>
        <source>Open the synced folder</source>
        <translation>A szinkronizált mappa megnyitása</translation>
    </message>
    <message>
        <source>File names to exclude</source>
        <translation>Kizárandó fájlnevek</translation>
    </message>
    <message>
        <source>File path</source>
        <translation>Fájl elérési útja</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Eddig</translation>
    </message>
    <message>
        <source>January</source>
        <translation>január</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Proxy használata nélkül</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync with this computer.</source>
        <translation>Válassza ki a NAS eszköznek azt a megosztott mappáját, amelyet szinkronizálni szeretne ezzel a számítógéppel.</translation>
    </message>
    <message>
        <source>This shared folder does not exist on the NAS. It may have been renamed or deleted.</source>
        <translation>Ez a megosztott mappa nem létezik a NAS eszközön. Lehet, hogy átnevezték vagy törölték.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Méret</translation>
    </message>
    <message>
        <source>Server not running</source>
        <translation>A kiszolgáló nem fut</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>A Telepítővarázsló telepíti a [ProductName] alkalmazást a számítógépre. A folytatáshoz kattintson a „Tovább”, a kilépéshez a „Mégse” gombra.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Szinkronizálási feladatok</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>A Telepítővarázsló készen áll a telepítés megkezdésére.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Törlés</translation>
    </message>
    <message>
        <source>Syncing %1 file(s)</source>
        <translation>%1 fájl szinkronizálása</translation>
    </message>
    <message>
        <source>&amp;Close the applications and try to restart them</source>
        <translation>Az alkalmazások &amp;bezárása, majd újraindításuk megkísérlése</translation>
    </message>
    <message>
        <source>Please wait. The requested changes are being made.</source>
        <translation>Kis türelmet. A kért módosítások végrehajtása folyamatban van.</translation>
    </message>
    <message>
        <source>Upgrade available</source>
        <translation>Verziófrissítés érhető el</translation>
    </message>
    <message>
        <source>Repair the current installation</source>
        <translation>A jelenlegi telepítés javítása</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Verziófrissítés...</translation>
    </message>
    <message>
        <source>Set up a separate sync task</source>
        <translation>Külön szinkronizálási feladat beállítása</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>Egyetlen beállítás sem módosult.</translation>
    </message>
</context>
</TS>
