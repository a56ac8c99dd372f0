<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Keep your data safe and synced at all times</source>
        <translation>Twoje dane zawsze bezpieczne i zsynchronizowane</translation>
    </message>
    <message>
        <source>The quota on the NAS has been used up. Free up some space or ask the administrator to raise your quota, and then select the folder again.</source>
        <translation>Limit miejsca na serwerze NAS został wyczerpany. Zwolnij trochę miejsca lub poproś administratora o zwiększenie limitu, a następnie ponownie wybierz folder.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-user license agreement</source>
        <translation>[DlgTitleFont]Umowa licencyjna użytkownika oprogramowania</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Wybierz tryb konfiguracji</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Gotowość do instalacji aplikacji [ProductName]</translation>
    </message>
    <message>
        <source>This shared folder has been disabled for your account. Contact the administrator of the NAS to regain access.</source>
        <translation>Ten folder udostępniony został wyłączony dla Twojego konta. Aby odzyskać dostęp, skontaktuj się z administratorem serwera NAS.</translation>
    </message>
    <message>
        <source>Merge the folders</source>
        <translation>Scal foldery</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Wyjdź</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>Link udostępniania</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Błąd synchronizacji</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Kliknij przycisk „Zakończ”, aby zamknąć Kreator instalacji.</translation>
    </message>
    <message>
        <source>Set a start date for this link</source>
        <translation>Ustaw datę rozpoczęcia ważności tego linku</translation>
    </message>
    <message>
        <source>The local sync database cannot be read. Restart Quillmere Drive. If the problem persists, link this computer again.</source>
        <translation>Nie można odczytać lokalnej bazy danych synchronizacji. Uruchom ponownie aplikację Quillmere Drive. Jeśli problem będzie się powtarzać, powiąż ten komputer ponownie z serwerem NAS.</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Wybierz foldery do synchronizacji</translation>
    </message>
    <message>
        <source>Every file you put in a synced folder is copied to your NAS automatically. Just save your work and let Quillmere Drive do the rest.</source>
        <translation>Każdy plik umieszczony w synchronizowanym folderze jest automatycznie kopiowany na serwer NAS. Po prostu zapisz swoją pracę, a aplikacja Quillmere Drive zajmie się resztą.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Ponów próbę</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Wyklucz te foldery z synchronizacji</translation>
    </message>
    <message>
        <source>The local folder of this sync task cannot be found. It may have been moved, renamed, or deleted.</source>
        <translation>Nie można odnaleźć folderu lokalnego tego zadania synchronizacji. Być może został przeniesiony, usunięty lub zmieniono jego nazwę.</translation>
    </message>
    <message>
        <source>Quillmere Drive is starting...</source>
        <translation>Uruchamianie aplikacji Quillmere Drive...</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Stosowanie ustawień...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Make sure that Quillmere Drive Server is installed and running on your NAS before you continue.</source>
        <translation>Zanim przejdziesz dalej, upewnij się, że aplikacja Quillmere Drive Server jest zainstalowana i uruchomiona na serwerze NAS.</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Uruchom ponownie aplikację %1, aby zastosować nowe ustawienia języka.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Pobieranie...</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Niezgodność wersji</translation>
    </message>
    <message>
        <source>The icon in the system tray shows the sync status at a glance. Click it to pause syncing, view recent changes, or open the settings.</source>
        <translation>Ikona w zasobniku systemowym pozwala szybko sprawdzić stan synchronizacji. Kliknij ją, aby wstrzymać synchronizację, wyświetlić ostatnie zmiany lub otworzyć ustawienia.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Wstrzymano</translation>
    </message>
    <message>
        <source>Keep both versions and rename the conflicting file</source>
        <translation>Zachowaj obie wersje i zmień nazwę pliku powodującego konflikt</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Nieobsługiwany punkt montowania</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>Tworzenie powiązania...</translation>
    </message>
    <message>
        <source>About Quillmere Drive</source>
        <translation>O aplikacji Quillmere Drive</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Włączono</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Przeglądaj poprzednie wersje</translation>
    </message>
    <message>
        <source>The Setup Wizard for [ProductName] stopped early because of an error. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>Kreator instalacji aplikacji [ProductName] zakończył działanie przedwcześnie z powodu błędu. System nie został zmieniony. Aby zainstalować program później, ponownie uruchom instalator.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Informacje o połączeniu</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS. Free up some space to continue syncing.</source>
        <translation>Na serwerze NAS brakuje wolnego miejsca. Zwolnij trochę miejsca, aby kontynuować synchronizację.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Nieaktywne</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Usunięcie</translation>
    </message>
    <message>
        <source>The selected folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>Wybrany folder jest punktem montowania i nie można go synchronizować. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>Upgrade now</source>
        <translation>Uaktualnij teraz</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nazwa komputera</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Informacje o stanie</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Instalator aplikacji [ProductName]</translation>
    </message>
    <message>
        <source>Open the management page</source>
        <translation>Otwórz stronę zarządzania</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Pliki w użyciu</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Czwartek</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Zaczekaj, aż Kreator instalacji zainstaluje aplikację [ProductName]. Może to potrwać kilka minut.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sobota</translation>
    </message>
    <message>
        <source>Link expires after</source>
        <translation>Link wygasa po</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to leave this page without saving them?</source>
        <translation>Niektóre zmiany nie zostały zapisane. Czy chcesz opuścić tę stronę bez ich zapisywania?</translation>
    </message>
    <message>
        <source>Select the operation that you want to perform.</source>
        <translation>Wybierz operację, którą chcesz wykonać.</translation>
    </message>
    <message>
        <source>This file was changed on the computer and on the NAS at the same time, and the conflict could not be resolved.</source>
        <translation>Ten plik został zmieniony jednocześnie na komputerze i na serwerze NAS, a konfliktu nie udało się rozwiązać.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Sieć lokalna</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aktualne</translation>
    </message>
    <message>
        <source>A sync task named &quot;%1&quot; already exists. Please enter another name.</source>
        <translation>Zadanie synchronizacji o nazwie „%1” już istnieje. Wpisz inną nazwę.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder. Please choose another folder or contact the administrator.</source>
        <translation>Nie masz uprawnień dostępu do tego folderu. Wybierz inny folder lub skontaktuj się z administratorem.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Powiąż ponownie</translation>
    </message>
    <message>
        <source>Select how you want to sync files between this computer and your NAS. You can add more sync tasks later.</source>
        <translation>Wybierz sposób synchronizacji plików między tym komputerem a serwerem NAS. Kolejne zadania synchronizacji można dodać później.</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Serwer proxy wymaga uwierzytelniania</translation>
    </message>
    <message>
        <source>Choose what happens when the same file has been changed on the computer and on the NAS.</source>
        <translation>Wybierz, co ma się stać, gdy ten sam plik został zmieniony na komputerze i na serwerze NAS.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Wybierz inny folder</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Gotowość do usunięcia aplikacji [ProductName]</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Check the certificate before you connect again.</source>
        <translation>Certyfikat SSL serwera NAS uległ zmianie. Sprawdź certyfikat przed ponownym połączeniem.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Ubiegły miesiąc</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Akcja</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Tylko do odczytu</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Zakres dat</translation>
    </message>
    <message>
        <source>The download failed. Please try again later.</source>
        <translation>Pobieranie nie powiodło się. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>Konfiguracja została zakończona.</translation>
    </message>
    <message>
        <source>Quillmere Drive on this computer is outdated. Please update it to version %1 or later.</source>
        <translation>Aplikacja Quillmere Drive na tym komputerze jest nieaktualna. Zaktualizuj ją do wersji %1 lub nowszej.</translation>
    </message>
    <message>
        <source>This computer is now linked to your NAS. Syncing starts as soon as you close the wizard.</source>
        <translation>Ten komputer jest teraz powiązany z serwerem NAS. Synchronizacja rozpocznie się zaraz po zamknięciu kreatora.</translation>
    </message>
    <message>
        <source>Enable sync for this shared folder</source>
        <translation>Włącz synchronizację tego folderu udostępnionego</translation>
    </message>
    <message>
        <source>Download complete</source>
        <translation>Pobieranie ukończone</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Wznów synchronizację tego folderu</translation>
    </message>
    <message>
        <source>Setup is in progress. Please wait...</source>
        <translation>Trwa konfiguracja. Zaczekaj...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Przed chwilą</translation>
    </message>
    <message>
        <source>This computer is already linked to the same NAS. Edit the existing connection instead.</source>
        <translation>Ten komputer jest już powiązany z tym samym serwerem NAS. Zamiast tego edytuj istniejące połączenie.</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>Elementy: %1</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Wstrzymaj połączenie</translation>
    </message>
    <message>
        <source>Quillmere Drive is ready.</source>
        <translation>Aplikacja Quillmere Drive jest gotowa.</translation>
    </message>
    <message>
        <source>Keep an eye on the system tray</source>
        <translation>Obserwuj zasobnik systemowy</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Więcej szczegółów</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. The copies on the NAS will be kept. Do you want to continue?</source>
        <translation>Odznaczone tutaj foldery zostaną usunięte z tego komputera. Kopie na serwerze NAS zostaną zachowane. Czy chcesz kontynuować?</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Październik</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Folder nie jest pusty</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>Restrict access to this link</source>
        <translation>Ogranicz dostęp do tego linku</translation>
    </message>
    <message>
        <source>The link could not be created. Make sure that file sharing is enabled in Quillmere Drive Server.</source>
        <translation>Nie można utworzyć linku. Upewnij się, że udostępnianie plików jest włączone w aplikacji Quillmere Drive Server.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>Więcej samouczków</translation>
    </message>
    <message>
        <source>Setup requires administrator rights. Do you want to restart it as an administrator?</source>
        <translation>Instalator wymaga uprawnień administratora. Czy chcesz uruchomić go ponownie jako administrator?</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Copy to:</source>
        <translation>Kopiuj do:</translation>
    </message>
    <message>
        <source>No previous versions of this file are available.</source>
        <translation>Brak dostępnych poprzednich wersji tego pliku.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Rozpocznij teraz</translation>
    </message>
    <message>
        <source>The NAS at this address is not the one that this computer was linked to. Check the address or link the computer again.</source>
        <translation>Serwer NAS pod tym adresem nie jest serwerem, z którym powiązano ten komputer. Sprawdź adres lub powiąż komputer ponownie z serwerem NAS.</translation>
    </message>
    <message>
        <source>The upgrade failed. Please download the latest version and install it manually.</source>
        <translation>Uaktualnianie nie powiodło się. Pobierz najnowszą wersję i zainstaluj ją ręcznie.</translation>
    </message>
    <message>
        <source>Add sync task</source>
        <translation>Dodaj zadanie synchronizacji</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Data rozpoczęcia</translation>
    </message>
    <message>
        <source>This shared folder could not be enabled for syncing. Please try again later.</source>
        <translation>Nie można włączyć synchronizacji tego folderu udostępnionego. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>In the system tray</source>
        <translation>W zasobniku systemowym</translation>
    </message>
    <message>
        <source>The folder home\Quillmere on your NAS has already been linked to this PC. We will launch the synced folder when you click Done. Or you can set up a seperate task: %1</source>
        <translation>Folder home\Quillmere na serwerze NAS jest już powiązany z tym komputerem. Synchronizowany folder zostanie otwarty po kliknięciu przycisku „Gotowe”. Możesz też skonfigurować osobne zadanie: %1</translation>
    </message>
    <message>
        <source>The port number is invalid. Enter a number from 1 to 65535.</source>
        <translation>Numer portu jest nieprawidłowy. Wpisz liczbę od 1 do 65535.</translation>
    </message>
    <message>
        <source>Quillmere Drive could not be initialized. Please restart your computer and try again.</source>
        <translation>Nie można zainicjować aplikacji Quillmere Drive. Uruchom ponownie komputer i spróbuj jeszcze raz.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Stan:</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes made on this computer will not be synced to the NAS.</source>
        <translation>Masz do tego folderu dostęp tylko do odczytu. Zmiany wprowadzone na tym komputerze nie będą synchronizowane z serwerem NAS.</translation>
    </message>
    <message>
        <source>The version of Quillmere Drive on this computer is too old for the NAS. Version %1 or later is required.</source>
        <translation>Wersja aplikacji Quillmere Drive na tym komputerze jest zbyt stara dla serwera NAS. Wymagana jest wersja %1 lub nowsza.</translation>
    </message>
    <message>
        <source>Files and folders that match the rules of the file filter will not be synced.</source>
        <translation>Pliki i foldery pasujące do reguł filtra plików nie będą synchronizowane.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Gotowość do naprawy aplikacji [ProductName]</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Wznów synchronizację tych folderów</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Otwórz folder</translation>
    </message>
    <message>
        <source>Save a file and it is synced</source>
        <translation>Zapisz plik, a zostanie zsynchronizowany</translation>
    </message>
    <message>
        <source>Files that could not be synced</source>
        <translation>Pliki, których nie udało się zsynchronizować</translation>
    </message>
    <message>
        <source>The connection to the NAS was lost. Quillmere Drive will try to connect again automatically.</source>
        <translation>Utracono połączenie z serwerem NAS. Aplikacja Quillmere Drive automatycznie spróbuje połączyć się ponownie.</translation>
    </message>
    <message>
        <source>Detecting file changes...</source>
        <translation>Wykrywanie zmian w plikach...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Nawiązano połączenie.</translation>
    </message>
    <message>
        <source>The administrator requires two-factor verification for your account. Sign in to the NAS in a web browser and set it up first.</source>
        <translation>Administrator wymaga uwierzytelniania dwuskładnikowego dla Twojego konta. Najpierw zaloguj się na serwerze NAS w przeglądarce internetowej i skonfiguruj je.</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the permissions on the NAS. Please change the sync direction.</source>
        <translation>Kierunek synchronizacji tego folderu jest niezgodny z uprawnieniami na serwerze NAS. Zmień kierunek synchronizacji.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Witamy w Kreatorze instalacji aplikacji [ProductName]</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive. This wizard will help you link this computer to your NAS.</source>
        <translation>Witamy w aplikacji Quillmere Drive. Ten kreator pomoże Ci powiązać komputer z serwerem NAS.</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files and folders</source>
        <translation>Pokazuj nakładki ikon na synchronizowanych plikach i folderach</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Uwierzytelnianie nie powiodło się</translation>
    </message>
    <message>
        <source>An invalid value was entered. Please check your input and try again.</source>
        <translation>Wpisano nieprawidłową wartość. Sprawdź wprowadzone dane i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Wszystkie zdarzenia</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Dalej</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choice.</source>
        <translation>Kliknij przycisk „Usuń”, aby usunąć aplikację [ProductName] z komputera. Kliknij przycisk „Wstecz”, aby sprawdzić swój wybór.</translation>
    </message>
    <message>
        <source>Quillmere Drive Server is not running on the NAS. Start it or contact the administrator.</source>
        <translation>Aplikacja Quillmere Drive Server nie jest uruchomiona na serwerze NAS. Uruchom ją lub skontaktuj się z administratorem.</translation>
    </message>
    <message>
        <source>Open Quillmere Drive</source>
        <translation>Otwórz aplikację Quillmere Drive</translation>
    </message>
    <message>
        <source>The SSL certificate of this NAS differs from the one saved earlier. Continue only if you trust the new certificate.</source>
        <translation>Certyfikat SSL tego serwera NAS różni się od wcześniej zapisanego. Kontynuuj tylko wtedy, gdy ufasz nowemu certyfikatowi.</translation>
    </message>
    <message>
        <source>The selected folder is already synced by another cloud storage program. Please choose a different folder to avoid conflicts.</source>
        <translation>Wybrany folder jest już synchronizowany przez inny program do przechowywania danych w chmurze. Wybierz inny folder, aby uniknąć konfliktów.</translation>
    </message>
    <message>
        <source>Right-click the tray icon to open the menu with all commands.</source>
        <translation>Kliknij ikonę w zasobniku prawym przyciskiem myszy, aby otworzyć menu ze wszystkimi poleceniami.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Syncing will start when indexing is complete.</source>
        <translation>Trwa indeksowanie tego folderu. Synchronizacja rozpocznie się po zakończeniu indeksowania.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Wyłączono</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Kontynuuj</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Sprawdzanie danych...</translation>
    </message>
    <message>
        <source>Click Install to begin installing [ProductName]. Click Back to review or change your settings. Click Cancel to exit the wizard.</source>
        <translation>Kliknij przycisk „Zainstaluj”, aby rozpocząć instalację aplikacji [ProductName]. Kliknij przycisk „Wstecz”, aby sprawdzić lub zmienić ustawienia. Kliknij przycisk „Anuluj”, aby zamknąć kreator.</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>Synchronizowanie</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Otwórz folder zawierający plik</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>Aplikacja [ProductName] nie zawiera funkcji, które można wybrać osobno.</translation>
    </message>
    <message>
        <source>The local folder could not be created. Check the path and your permissions, and then try again.</source>
        <translation>Nie można utworzyć folderu lokalnego. Sprawdź ścieżkę i swoje uprawnienia, a następnie spróbuj ponownie.</translation>
    </message>
    <message>
        <source>NAS address</source>
        <translation>Adres serwera NAS</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. It may have been deleted, or you may not have permission to access it.</source>
        <translation>Nie można pobrać tego pliku. Być może został usunięty lub nie masz do niego dostępu.</translation>
    </message>
    <message>
        <source>The IP address of this computer is not allowed to access the NAS. Contact the administrator.</source>
        <translation>Dostęp do serwera NAS z adresu IP tego komputera jest niedozwolony. Skontaktuj się z administratorem.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Niektóre pliki wymagające aktualizacji są obecnie używane.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Ostatnia strona</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data i godzina</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Zmiana nazwy</translation>
    </message>
    <message>
        <source>View sync status</source>
        <translation>Wyświetl stan synchronizacji</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Niedziela</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]Instalowanie aplikacji [ProductName]</translation>
    </message>
    <message>
        <source>Enter the names of the files that should not be synced. An asterisk (*) stands for any number of characters.</source>
        <translation>Wpisz nazwy plików, które nie mają być synchronizowane. Gwiazdka (*) zastępuje dowolną liczbę znaków.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Foldery do synchronizacji</translation>
    </message>
    <message>
        <source>RapidHail</source>
        <translation>RapidHail</translation>
    </message>
    <message>
        <source>Enter the IP address, hostname, or RapidHail ID of your NAS.</source>
        <translation>Wpisz adres IP, nazwę hosta lub identyfikator RapidHail serwera NAS.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Środa</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Synchronizuj nowy folder</translation>
    </message>
    <message>
        <source>NAS changed</source>
        <translation>Serwer NAS został zmieniony</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>If you disable this folder, it will no longer be synced. The files on this computer will be kept. Do you want to continue?</source>
        <translation>Jeśli wyłączysz ten folder, nie będzie on już synchronizowany. Pliki na tym komputerze zostaną zachowane. Czy chcesz kontynuować?</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Otwórz plik</translation>
    </message>
    <message>
        <source>This folder cannot be synced because its path is invalid. Please choose another folder.</source>
        <translation>Nie można synchronizować tego folderu, ponieważ jego ścieżka jest nieprawidłowa. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>The shared folder on the NAS is not mounted. If it is encrypted, mount it first.</source>
        <translation>Folder udostępniony na serwerze NAS nie jest zamontowany. Jeśli jest zaszyfrowany, najpierw go zamontuj.</translation>
    </message>
    <message>
        <source>Expiration time</source>
        <translation>Godzina wygaśnięcia</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nazwa użytkownika</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up.</source>
        <translation>Twój limit miejsca na serwerze NAS został wyczerpany.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please correct them before you continue.</source>
        <translation>Niektóre pola zawierają nieprawidłowe wartości. Popraw je, zanim przejdziesz dalej.</translation>
    </message>
    <message>
        <source>The RapidHail service cannot be reached. Check your internet connection and try again.</source>
        <translation>Nie można połączyć się z usługą RapidHail. Sprawdź połączenie internetowe i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Piątek</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Otwórz okno główne</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Port serwera proxy</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; has been used up. Free up some space to continue syncing.</source>
        <translation>Limit miejsca folderu udostępnionego „%1” został wyczerpany. Zwolnij trochę miejsca, aby kontynuować synchronizację.</translation>
    </message>
    <message>
        <source>Link to a new NAS</source>
        <translation>Powiąż z nowym serwerem NAS</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Ubiegły tydzień</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is too old for this computer. Version %1 or later is required.</source>
        <translation>Wersja aplikacji Quillmere Drive Server na serwerze NAS jest zbyt stara dla tego komputera. Wymagana jest wersja %1 lub nowsza.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Czerwiec</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a network error. Check your network connection and try again.</source>
        <translation>Nie można sprawdzić folderu z powodu błędu sieci. Sprawdź połączenie sieciowe i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wartość</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]&amp;Usuń</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Lipiec</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Rozumiem</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Witamy</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Usuwa aplikację [ProductName] z komputera.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Wersja</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Wznów</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>You can open the synced folder at any time from the Quillmere Drive icon in the system tray.</source>
        <translation>Synchronizowany folder możesz w każdej chwili otworzyć za pomocą ikony aplikacji Quillmere Drive w zasobniku systemowym.</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Zaktualizowano pliki</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;pair</source>
        <translation>[DlgTitleFont]N&amp;apraw</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Wtorek</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Brak dostępnych opcji</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>The NAS at this address has changed. Please link this computer again.</source>
        <translation>Serwer NAS pod tym adresem uległ zmianie. Powiąż ten komputer ponownie z serwerem NAS.</translation>
    </message>
    <message>
        <source>The installation of [ProductName] was interrupted. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>Instalacja aplikacji [ProductName] została przerwana. System nie został zmieniony. Aby zainstalować program później, ponownie uruchom instalator.</translation>
    </message>
    <message>
        <source>The connection test failed. The username or password is incorrect.</source>
        <translation>Test połączenia nie powiódł się. Nazwa użytkownika lub hasło są nieprawidłowe.</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>N&amp;apraw</translation>
    </message>
    <message>
        <source>A sync task has stopped because of an error. Click here for details.</source>
        <translation>Zadanie synchronizacji zostało zatrzymane z powodu błędu. Kliknij tutaj, aby wyświetlić szczegóły.</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and the account that you want to use for syncing.</source>
        <translation>Wpisz adres serwera NAS i dane konta, którego chcesz używać do synchronizacji.</translation>
    </message>
    <message>
        <source>Connect anyway</source>
        <translation>Połącz mimo to</translation>
    </message>
    <message>
        <source>The files on this computer and the files in the shared folder will be merged. If two files have the same name, the newer one is used.</source>
        <translation>Pliki na tym komputerze i pliki w folderze udostępnionym zostaną scalone. Jeśli dwa pliki mają tę samą nazwę, zostanie użyty nowszy.</translation>
    </message>
    <message>
        <source>Start Quillmere Drive automatically when I sign in</source>
        <translation>Automatycznie uruchamiaj aplikację Quillmere Drive po zalogowaniu</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this link? People who have it will no longer be able to open the file.</source>
        <translation>Czy na pewno chcesz usunąć ten link? Osoby, które go mają, nie będą już mogły otworzyć pliku.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Zmień folder</translation>
    </message>
    <message>
        <source>The username or password is incorrect, or the account has been disabled.</source>
        <translation>Nazwa użytkownika lub hasło są nieprawidłowe albo konto zostało wyłączone.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;do not accept the terms of the license agreement</source>
        <translation>{\DlgFont8}Ni&amp;e akceptuję warunków umowy licencyjnej</translation>
    </message>
    <message>
        <source>Right-click a file and select &quot;Share link&quot; to create a link. Send it to anyone who needs the file, even if they have no account on your NAS.</source>
        <translation>Kliknij plik prawym przyciskiem myszy i wybierz polecenie „Udostępnij link”, aby utworzyć link. Wyślij go każdemu, kto potrzebuje tego pliku, nawet jeśli nie ma konta na Twoim serwerze NAS.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Tryb synchronizacji</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps earlier versions of your files. Right-click a file and select &quot;Browse previous versions&quot; to restore one of them.</source>
        <translation>Aplikacja Quillmere Drive przechowuje wcześniejsze wersje plików. Kliknij plik prawym przyciskiem myszy i wybierz polecenie „Przeglądaj poprzednie wersje”, aby przywrócić jedną z nich.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Przejdź o %1 str. dalej</translation>
    </message>
    <message>
        <source>Quillmere Drive is already running. You can find its icon in the system tray.</source>
        <translation>Aplikacja Quillmere Drive jest już uruchomiona. Jej ikona znajduje się w zasobniku systemowym.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Serwer proxy</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Ładowanie folderów udostępnionych...</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Pierwsza strona</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Skonfiguruj serwer proxy ręcznie</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>%1 godz. temu</translation>
    </message>
    <message>
        <source>This folder cannot be synced because of a system error. Please try again later.</source>
        <translation>Nie można synchronizować tego folderu z powodu błędu systemu. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Po dwukrotnym kliknięciu ikony w zasobniku</translation>
    </message>
    <message>
        <source>Selective sync by folder</source>
        <translation>Synchronizacja selektywna według folderów</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Foldery udostępnione</translation>
    </message>
    <message>
        <source>Sync with another NAS</source>
        <translation>Synchronizuj z innym serwerem NAS</translation>
    </message>
    <message>
        <source>This creates a Quillmere folder on your computer and keeps it synced with your home folder on your Orvane NAS (recommended for personal use).</source>
        <translation>Na komputerze zostanie utworzony folder Quillmere, synchronizowany z Twoim folderem domowym na serwerze NAS firmy Orvane (zalecane do użytku osobistego).</translation>
    </message>
    <message>
        <source>Click here to upgrade</source>
        <translation>Kliknij tutaj, aby uaktualnić</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Kwiecień</translation>
    </message>
    <message>
        <source>On your computer</source>
        <translation>Na komputerze</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of [ProductName]?</source>
        <translation>Czy na pewno chcesz anulować instalację aplikacji [ProductName]?</translation>
    </message>
    <message>
        <source>Files and folders excluded from sync</source>
        <translation>Pliki i foldery wykluczone z synchronizacji</translation>
    </message>
    <message>
        <source>This version of Quillmere Drive is already installed. Do you want to install it again?</source>
        <translation>Ta wersja aplikacji Quillmere Drive jest już zainstalowana. Czy chcesz zainstalować ją ponownie?</translation>
    </message>
    <message>
        <source>has been shared. The link was copied to the clipboard.</source>
        <translation>został udostępniony. Link skopiowano do schowka.</translation>
    </message>
    <message>
        <source>The NAS sent an unexpected response. Make sure that Quillmere Drive and Quillmere Drive Server are both up to date.</source>
        <translation>Serwer NAS wysłał nieoczekiwaną odpowiedź. Upewnij się, że aplikacje Quillmere Drive i Quillmere Drive Server są aktualne.</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Wyklucz ten folder z synchronizacji</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Marzec</translation>
    </message>
    <message>
        <source>The RapidHail service encountered a system error. Please try again later.</source>
        <translation>W usłudze RapidHail wystąpił błąd systemu. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Synchronizacja selektywna</translation>
    </message>
    <message>
        <source>Folder is read-only</source>
        <translation>Folder jest tylko do odczytu</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;accept the terms of the license agreement</source>
        <translation>{\DlgFont8}&amp;Akceptuję warunki umowy licencyjnej</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Kierunek synchronizacji</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Historia pobierania</translation>
    </message>
    <message>
        <source>Select a folder on this computer and the shared folder on the NAS that it will be synced with.</source>
        <translation>Wybierz folder na tym komputerze i folder udostępniony na serwerze NAS, z którym będzie on synchronizowany.</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>To pole nie może być puste.</translation>
    </message>
    <message>
        <source>Choose a shared folder on your NAS that is not yet synced with this computer.</source>
        <translation>Wybierz na serwerze NAS folder udostępniony, który nie jest jeszcze synchronizowany z tym komputerem.</translation>
    </message>
    <message>
        <source>How existing files are merged</source>
        <translation>Sposób scalania istniejących plików</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Ustawienia sieci</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetuj</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Usuń link</translation>
    </message>
    <message>
        <source>This sync task is inactive because the shared folder is not available.</source>
        <translation>To zadanie synchronizacji jest nieaktywne, ponieważ folder udostępniony jest niedostępny.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Pobieranie jednokierunkowe</translation>
    </message>
    <message>
        <source>Go back to an earlier version</source>
        <translation>Wróć do wcześniejszej wersji</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Przesłanie</translation>
    </message>
    <message>
        <source>Changes the set of [ProductName] features that are installed.</source>
        <translation>Zmienia zestaw zainstalowanych funkcji aplikacji [ProductName].</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Maj</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nazwa pliku</translation>
    </message>
    <message>
        <source>Link this computer to your NAS in just a few steps.</source>
        <translation>Powiąż ten komputer z serwerem NAS w zaledwie kilku krokach.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Zakończ</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Szyfruj połączenie za pomocą protokołu SSL</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Tryb połączenia</translation>
    </message>
    <message>
        <source>Keep the file that was modified last</source>
        <translation>Zachowaj ostatnio zmodyfikowany plik</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edytuj</translation>
    </message>
    <message>
        <source>A newer version of Quillmere Drive is already installed. Setup will now close.</source>
        <translation>Nowsza wersja aplikacji Quillmere Drive jest już zainstalowana. Instalator zostanie teraz zamknięty.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Confirm the new certificate before you select a folder.</source>
        <translation>Certyfikat SSL serwera NAS uległ zmianie. Potwierdź nowy certyfikat przed wybraniem folderu.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Scal</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Nie znaleziono folderu udostępnionego</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Usuń powiązanie</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Folder lokalny</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Wybierz folder</translation>
    </message>
    <message>
        <source>Set up the folder to sync</source>
        <translation>Skonfiguruj folder do synchronizacji</translation>
    </message>
    <message>
        <source>Enter the connection settings for your NAS.</source>
        <translation>Wprowadź ustawienia połączenia z serwerem NAS.</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>Ostrzeżenie dotyczące certyfikatu SSL</translation>
    </message>
    <message>
        <source>Share files with a link</source>
        <translation>Udostępniaj pliki za pomocą linku</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Typ pliku</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Wznów połączenie</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignoruj</translation>
    </message>
    <message>
        <source>The maximum file size must be a whole number greater than 0.</source>
        <translation>Maksymalny rozmiar pliku musi być liczbą całkowitą większą od 0.</translation>
    </message>
    <message>
        <source>Insufficient permissions</source>
        <translation>Niewystarczające uprawnienia</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Zaktualizowano: %1</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive</source>
        <translation>Witamy w aplikacji Quillmere Drive</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Słowo kluczowe</translation>
    </message>
    <message>
        <source>This allows you to specify a folder on your computer to keep synced with a shared folder on your Orvane NAS. (Recommended for teamwork)​.</source>
        <translation>Możesz wskazać na komputerze folder, który będzie synchronizowany z folderem udostępnionym na serwerze NAS firmy Orvane (zalecane do pracy zespołowej).</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin repairing [ProductName].</source>
        <translation>Kreator instalacji jest gotowy do rozpoczęcia naprawy aplikacji [ProductName].</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Zastosuj</translation>
    </message>
    <message>
        <source>A network error occurred. Check your network connection and try again.</source>
        <translation>Wystąpił błąd sieci. Sprawdź połączenie sieciowe i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already being synced. Please choose another folder.</source>
        <translation>Ten folder nakłada się na folder, który jest już synchronizowany. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}Działanie Kreatora instalacji aplikacji [ProductName] zostało przerwane</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Wstecz</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Godzina rozpoczęcia</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Pokaż samouczek</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Tak</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Szybka konfiguracja</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Zarządzaj</translation>
    </message>
    <message>
        <source>Links cannot be created over a RapidHail connection because file sharing is disabled on the NAS.</source>
        <translation>Nie można tworzyć linków przez połączenie RapidHail, ponieważ udostępnianie plików jest wyłączone na serwerze NAS.</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Zarządzaj folderami udostępnionymi</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Przeczytaj uważnie poniższą umowę licencyjną.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Przygotowywanie...</translation>
    </message>
    <message>
        <source>Keep the version on the NAS and overwrite the one on this computer</source>
        <translation>Zachowaj wersję z serwera NAS i zastąp wersję na tym komputerze</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Sierpień</translation>
    </message>
    <message>
        <source>Use a RapidHail connection</source>
        <translation>Używaj połączenia RapidHail</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard ended early</source>
        <translation>{\VerdanaBold13}Kreator instalacji aplikacji [ProductName] zakończył działanie przedwcześnie</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up. Files can no longer be uploaded until you free up some space.</source>
        <translation>Twój limit miejsca na serwerze NAS został wyczerpany. Przesyłanie plików nie będzie możliwe, dopóki nie zwolnisz miejsca.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]Z&amp;mień</translation>
    </message>
    <message>
        <source>Set an expiration date for this link</source>
        <translation>Ustaw datę ważności tego linku</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Zmień folder lokalny</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maksymalny rozmiar pliku</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>Quillmere Drive is initializing...</source>
        <translation>Aplikacja Quillmere Drive jest inicjowana...</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Synchronizacja dwukierunkowa</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Używaj systemowych ustawień serwera proxy</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Usuwanie powiązania...</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open (a restart will be required)</source>
        <translation>Pozostaw aplikacje &amp;otwarte (konieczne będzie ponowne uruchomienie)</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard is complete</source>
        <translation>{\VerdanaBold13}Kreator instalacji aplikacji [ProductName] zakończył pracę</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Zadanie synchronizacji</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>Utworzono</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Uruchom aplikację [ProductName]</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Listopad</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Adres serwera proxy</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Ostatnio zmienione pliki</translation>
    </message>
    <message>
        <source>Unlink from the NAS</source>
        <translation>Usuń powiązanie z serwerem NAS</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Please try again later.</source>
        <translation>Nie można wyświetlić listy wersji tego pliku. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Zablokowany przez inny program</translation>
    </message>
    <message>
        <source>An unknown error occurred. Please try again later.</source>
        <translation>Wystąpił nieznany błąd. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified.</source>
        <translation>Nie można zweryfikować certyfikatu SSL serwera NAS.</translation>
    </message>
    <message>
        <source>Checking username and password...</source>
        <translation>Sprawdzanie nazwy użytkownika i hasła...</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Ustawienia zaawansowane</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>D&amp;rukuj</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Luty</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Quillmere Drive</source>
        <translation>Quillmere Drive</translation>
    </message>
    <message>
        <source>You have read-only access to this shared folder. Files can be downloaded to this computer but not uploaded to the NAS.</source>
        <translation>Masz do tego folderu udostępnionego dostęp tylko do odczytu. Pliki można pobierać na ten komputer, ale nie można ich przesyłać na serwer NAS.</translation>
    </message>
    <message>
        <source>The drive that contains the local folder is not mounted. Connect the drive to continue syncing.</source>
        <translation>Dysk zawierający folder lokalny nie jest zamontowany. Podłącz dysk, aby kontynuować synchronizację.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Miejsce docelowe</translation>
    </message>
    <message>
        <source>Search the local network for an Orvane NAS.</source>
        <translation>Wyszukaj serwer NAS firmy Orvane w sieci lokalnej.</translation>
    </message>
    <message>
        <source>Storage full</source>
        <translation>Brak wolnego miejsca</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>Informacje o serwerze NAS</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Połączenie bezpośrednie</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Pobranie</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Ustawienia serwera proxy</translation>
    </message>
    <message>
        <source>Unstable connection</source>
        <translation>Niestabilne połączenie</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync this folder. Free up some space or choose another folder.</source>
        <translation>Na tym komputerze brakuje wolnego miejsca na zsynchronizowanie tego folderu. Zwolnij trochę miejsca lub wybierz inny folder.</translation>
    </message>
    <message>
        <source>Use a black and white tray icon</source>
        <translation>Używaj czarno-białej ikony w zasobniku</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Historia synchronizacji</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Pobieranie zostało anulowane.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>Następujące aplikacje używają plików, które instalator musi zaktualizować. Zamknij je i kliknij przycisk „Ponów próbę”, aby kontynuować.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>Zain&amp;staluj</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please wait a few minutes before you try again.</source>
        <translation>Zbyt wiele nieudanych prób. Odczekaj kilka minut przed kolejną próbą.</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>Wszystko gotowe</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Ładowanie...</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nie, dziękuję</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nowy folder udostępniony</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>W&amp;yjdź</translation>
    </message>
    <message>
        <source>You can let Setup close the applications listed below and try to restart them afterward.</source>
        <translation>Instalator może zamknąć aplikacje z poniższej listy, a następnie spróbować uruchomić je ponownie.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change the way [ProductName] is installed or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Kreator instalacji umożliwia zmianę sposobu instalacji aplikacji [ProductName] lub usunięcie jej z komputera. Kliknij przycisk „Dalej”, aby kontynuować, lub przycisk „Anuluj”, aby zamknąć kreator.</translation>
    </message>
    <message>
        <source>Try syncing a file</source>
        <translation>Spróbuj zsynchronizować plik</translation>
    </message>
    <message>
        <source>No data to display</source>
        <translation>Brak danych do wyświetlenia</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>%1 dzień (dni) temu</translation>
    </message>
    <message>
        <source>You can now sync the shared folder &quot;%1&quot;. Click here to enable it.</source>
        <translation>Możesz teraz synchronizować folder udostępniony „%1”. Kliknij tutaj, aby go włączyć.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Przesyłanie...</translation>
    </message>
    <message>
        <source>Your Quillmere folder is ready. Drop files into it and they will be synced with your NAS.</source>
        <translation>Folder Quillmere jest gotowy. Umieszczaj w nim pliki, a będą synchronizowane z serwerem NAS.</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>Brak folderów, które można synchronizować.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Przejdź o %1 str. wstecz</translation>
    </message>
    <message>
        <source>The verification code is invalid. Please check the code and try again.</source>
        <translation>Kod weryfikacyjny jest nieprawidłowy. Sprawdź kod i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dzisiaj</translation>
    </message>
    <message>
        <source>The selected folder is on a network drive. Changes made there by other computers may not be detected immediately.</source>
        <translation>Wybrany folder znajduje się na dysku sieciowym. Zmiany wprowadzane tam przez inne komputery mogą nie być wykrywane od razu.</translation>
    </message>
    <message>
        <source>Show icon overlays on files excluded by the file filter</source>
        <translation>Pokazuj nakładki ikon na plikach wykluczonych przez filtr plików</translation>
    </message>
    <message>
        <source>Files to sync</source>
        <translation>Pliki do synchronizacji</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Udostępnij link</translation>
    </message>
    <message>
        <source>Detecting connection mode...</source>
        <translation>Wykrywanie trybu połączenia...</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Niestandardowy czas</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>Wyszukaj serwery NAS w sieci lokalnej</translation>
    </message>
    <message>
        <source>The proxy address and port cannot be empty.</source>
        <translation>Adres i port serwera proxy nie mogą być puste.</translation>
    </message>
    <message>
        <source>You can also protect a link with a password or set an expiration date.</source>
        <translation>Możesz też zabezpieczyć link hasłem lub ustawić jego datę ważności.</translation>
    </message>
    <message>
        <source>All your files, always at hand</source>
        <translation>Wszystkie Twoje pliki zawsze pod ręką</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Data ważności</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Wrzesień</translation>
    </message>
    <message>
        <source>Create a Quillmere folder on this computer</source>
        <translation>Utwórz folder Quillmere na tym komputerze</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Kreator konfiguracji zaawansowanej</translation>
    </message>
    <message>
        <source>The selected folder is already part of a sync task on this computer.</source>
        <translation>Wybrany folder jest już częścią zadania synchronizacji na tym komputerze.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>%1 min temu</translation>
    </message>
    <message>
        <source>This shared folder is already synced with the folder &quot;%1&quot; on this computer.</source>
        <translation>Ten folder udostępniony jest już synchronizowany z folderem „%1” na tym komputerze.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>Na serwerze NAS brakuje wolnego miejsca.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nie</translation>
    </message>
    <message>
        <source>Click Repair to restore missing or damaged files, shortcuts, and registry entries. Click Back to review your choice.</source>
        <translation>Kliknij przycisk „Napraw”, aby przywrócić brakujące lub uszkodzone pliki, skróty i wpisy rejestru. Kliknij przycisk „Wstecz”, aby sprawdzić swój wybór.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Domyślny język systemu</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Nie pokazuj więcej tego komunikatu</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by restoring missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Naprawia błędy ostatniej instalacji, przywracając brakujące lub uszkodzone pliki, skróty i wpisy rejestru.</translation>
    </message>
    <message>
        <source>Number of times the link can be opened</source>
        <translation>Dozwolona liczba otwarć linku</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Wczoraj</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified. The folder cannot be selected until the certificate is trusted.</source>
        <translation>Nie można zweryfikować certyfikatu SSL serwera NAS. Nie można wybrać folderu, dopóki certyfikat nie zostanie uznany za zaufany.</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>Ochrona hasłem</translation>
    </message>
    <message>
        <source>The SSL certificate could not be verified. It may be self-signed, expired, or issued for another hostname.</source>
        <translation>Nie można zweryfikować certyfikatu SSL. Może to być certyfikat z podpisem własnym, wygasły lub wystawiony dla innej nazwy hosta.</translation>
    </message>
    <message>
        <source>Please update Quillmere Drive Server on the NAS to use selective sync.</source>
        <translation>Aby korzystać z synchronizacji selektywnej, zaktualizuj aplikację Quillmere Drive Server na serwerze NAS.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up some space to continue syncing.</source>
        <translation>Na tym komputerze brakuje wolnego miejsca. Zwolnij trochę miejsca, aby kontynuować synchronizację.</translation>
    </message>
    <message>
        <source>The selected folder is used by a backup task. Syncing it may cause conflicts.</source>
        <translation>Wybrany folder jest używany przez zadanie kopii zapasowej. Jego synchronizacja może powodować konflikty.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>One-way sync from the NAS to this computer</source>
        <translation>Synchronizacja jednokierunkowa z serwera NAS na ten komputer</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Tylko pobieranie</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Na tym komputerze brakuje wolnego miejsca.</translation>
    </message>
    <message>
        <source>Blocked by:</source>
        <translation>Zablokowane przez:</translation>
    </message>
    <message>
        <source>This computer is linked to your NAS, and your files are now being synced.</source>
        <translation>Ten komputer jest powiązany z serwerem NAS, a Twoje pliki są teraz synchronizowane.</translation>
    </message>
    <message>
        <source>The RapidHail ID is invalid or does not exist.</source>
        <translation>Identyfikator RapidHail jest nieprawidłowy lub nie istnieje.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Oczekiwanie</translation>
    </message>
    <message>
        <source>Remove the program from this computer</source>
        <translation>Usuń program z tego komputera</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established because of an SSL error.</source>
        <translation>Nie można nawiązać bezpiecznego połączenia z serwerem NAS z powodu błędu SSL.</translation>
    </message>
    <message>
        <source>General settings</source>
        <translation>Ustawienia ogólne</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Pokazuj powiadomienia na pulpicie</translation>
    </message>
    <message>
        <source>Selective sync by file type</source>
        <translation>Synchronizacja selektywna według typów plików</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Grudzień</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is outdated. Please ask the administrator to update it to version %1 or later.</source>
        <translation>Aplikacja Quillmere Drive Server na serwerze NAS jest nieaktualna. Poproś administratora o zaktualizowanie jej do wersji %1 lub nowszej.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Zmień zainstalowane funkcje</translation>
    </message>
    <message>
        <source>If you no longer need the program, you can remove it now. Your synced files will be kept on this computer.</source>
        <translation>Jeśli program nie jest już potrzebny, możesz go teraz usunąć. Zsynchronizowane pliki pozostaną na tym komputerze.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be merged with the files in the shared folder.</source>
        <translation>Wybrany folder nie jest pusty. Jego pliki zostaną scalone z plikami w folderze udostępnionym.</translation>
    </message>
    <message>
        <source>The link could not be deleted. Please try again later.</source>
        <translation>Nie można usunąć linku. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>A link cannot be created for this file. Make sure that it has been synced to the NAS.</source>
        <translation>Nie można utworzyć linku do tego pliku. Upewnij się, że plik został zsynchronizowany z serwerem NAS.</translation>
    </message>
    <message>
        <source>Check all file attributes for changes</source>
        <translation>Wykrywaj zmiany wszystkich atrybutów plików</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove the installation</source>
        <translation>[DlgTitleFont]Zmiana, naprawa lub usunięcie instalacji</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Poniedziałek</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>Wybrany folder jest tylko do odczytu. Wybierz folder z możliwością zapisu.</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the sync task &quot;%1&quot;? The files on this computer and on the NAS will be kept.</source>
        <translation>Czy na pewno chcesz usunąć zadanie synchronizacji „%1”? Pliki na tym komputerze i na serwerze NAS zostaną zachowane.</translation>
    </message>
    <message>
        <source>Limit how often this link can be opened</source>
        <translation>Ogranicz liczbę otwarć tego linku</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Folder udostępniony</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps the folders on your computers in sync with your Orvane NAS.</source>
        <translation>Aplikacja Quillmere Drive synchronizuje foldery na Twoich komputerach z serwerem NAS firmy Orvane.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Wpisz kod weryfikacyjny</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Podsumowanie</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>Rozszerzenia plików</translation>
    </message>
    <message>
        <source>The username cannot be empty.</source>
        <translation>Nazwa użytkownika nie może być pusta.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Ścieżka folderu</translation>
    </message>
    <message>
        <source>Folder already linked</source>
        <translation>Folder jest już powiązany</translation>
    </message>
    <message>
        <source>The maximum length of this field is %1 characters.</source>
        <translation>Maksymalna liczba znaków w tym polu: %1.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from &quot;%1&quot;? Syncing will stop, but your files will be kept.</source>
        <translation>Czy na pewno chcesz usunąć powiązanie tego komputera z serwerem „%1”? Synchronizacja zostanie zatrzymana, ale pliki zostaną zachowane.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Konfiguracja zaawansowana</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Zakres niestandardowy</translation>
    </message>
    <message>
        <source>You have reached the maximum of %1 sync tasks. Remove a sync task before you add another one.</source>
        <translation>Osiągnięto maksymalną liczbę zadań synchronizacji (%1). Zanim dodasz kolejne, usuń jedno z zadań synchronizacji.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nazwa folderu</translation>
    </message>
    <message>
        <source>Quillmere Drive is being upgraded. Please wait...</source>
        <translation>Trwa uaktualnianie aplikacji Quillmere Drive. Zaczekaj...</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to keep synced with your NAS.</source>
        <translation>Wybierz na tym komputerze folder, który chcesz synchronizować z serwerem NAS.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testowanie połączenia...</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Synchronizowanie: %1</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS. Contact the administrator.</source>
        <translation>Folder udostępniony nie jest zamontowany na serwerze NAS. Skontaktuj się z administratorem.</translation>
    </message>
    <message>
        <source>Keep your files in sync between this computer and your NAS, and reach them wherever you are.</source>
        <translation>Synchronizuj pliki między tym komputerem a serwerem NAS i korzystaj z nich, gdziekolwiek jesteś.</translation>
    </message>
    <message>
        <source>Your account is protected by two-factor verification. Please enter the verification code to continue.</source>
        <translation>Twoje konto jest chronione uwierzytelnianiem dwuskładnikowym. Wpisz kod weryfikacyjny, aby kontynuować.</translation>
    </message>
    <message>
        <source>Edit file filter</source>
        <translation>Edytuj filtr plików</translation>
    </message>
    <message>
        <source>Open the synced folder</source>
        <translation>Otwórz synchronizowany folder</translation>
    </message>
    <message>
        <source>File names to exclude</source>
        <translation>Nazwy plików do wykluczenia</translation>
    </message>
    <message>
        <source>File path</source>
        <translation>Ścieżka pliku</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Styczeń</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Nie używaj serwera proxy</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync with this computer.</source>
        <translation>Wybierz na serwerze NAS folder udostępniony, który chcesz synchronizować z tym komputerem.</translation>
    </message>
    <message>
        <source>This shared folder does not exist on the NAS. It may have been renamed or deleted.</source>
        <translation>Ten folder udostępniony nie istnieje na serwerze NAS. Być może został usunięty lub zmieniono jego nazwę.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Server not running</source>
        <translation>Serwer nie działa</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Kreator instalacji zainstaluje aplikację [ProductName] na tym komputerze. Kliknij przycisk „Dalej”, aby kontynuować, lub przycisk „Anuluj”, aby zamknąć kreator.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Zadania synchronizacji</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>Kreator instalacji jest gotowy do rozpoczęcia instalacji.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Syncing %1 file(s)</source>
        <translation>Synchronizowane pliki: %1</translation>
    </message>
    <message>
        <source>&amp;Close the applications and try to restart them</source>
        <translation>&amp;Zamknij aplikacje i spróbuj uruchomić je ponownie</translation>
    </message>
    <message>
        <source>Please wait. The requested changes are being made.</source>
        <translation>Zaczekaj. Trwa wprowadzanie żądanych zmian.</translation>
    </message>
    <message>
        <source>Upgrade available</source>
        <translation>Dostępne uaktualnienie</translation>
    </message>
    <message>
        <source>Repair the current installation</source>
        <translation>Napraw bieżącą instalację</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Uaktualnianie...</translation>
    </message>
    <message>
        <source>Set up a separate sync task</source>
        <translation>Skonfiguruj osobne zadanie synchronizacji</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>Brak zmian w ustawieniach.</translation>
    </message>
</context>
</TS>
