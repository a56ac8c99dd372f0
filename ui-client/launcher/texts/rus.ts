<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Keep your data safe and synced at all times</source>
        <translation>Ваши данные всегда в безопасности и синхронизированы</translation>
    </message>
    <message>
        <source>The quota on the NAS has been used up. Free up some space or ask the administrator to raise your quota, and then select the folder again.</source>
        <translation>Квота на устройстве NAS исчерпана. Освободите место или попросите администратора увеличить квоту, а затем выберите папку снова.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-user license agreement</source>
        <translation>[DlgTitleFont]Лицензионное соглашение с конечным пользователем</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Выберите режим настройки</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Все готово к установке [ProductName]</translation>
    </message>
    <message>
        <source>This shared folder has been disabled for your account. Contact the administrator of the NAS to regain access.</source>
        <translation>Эта общая папка отключена для вашей учетной записи. Чтобы восстановить доступ, обратитесь к администратору устройства NAS.</translation>
    </message>
    <message>
        <source>Merge the folders</source>
        <translation>Объединить папки</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>Ссылка для общего доступа</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Ошибка синхронизации</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Нажмите кнопку «Готово», чтобы выйти из мастера установки.</translation>
    </message>
    <message>
        <source>Set a start date for this link</source>
        <translation>Задать дату начала действия ссылки</translation>
    </message>
    <message>
        <source>The local sync database cannot be read. Restart Quillmere Drive. If the problem persists, link this computer again.</source>
        <translation>Не удается прочитать локальную базу данных синхронизации. Перезапустите приложение Quillmere Drive. Если проблема сохранится, привяжите этот компьютер к устройству NAS повторно.</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Выберите папки для синхронизации</translation>
    </message>
    <message>
        <source>Every file you put in a synced folder is copied to your NAS automatically. Just save your work and let Quillmere Drive do the rest.</source>
        <translation>Каждый файл, помещенный в синхронизируемую папку, автоматически копируется на устройство NAS. Просто сохраняйте результаты работы, а Quillmere Drive сделает все остальное.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Исключить эти папки из синхронизации</translation>
    </message>
    <message>
        <source>The local folder of this sync task cannot be found. It may have been moved, renamed, or deleted.</source>
        <translation>Не удается найти локальную папку этой задачи синхронизации. Возможно, она перемещена, переименована или удалена.</translation>
    </message>
    <message>
        <source>Quillmere Drive is starting...</source>
        <translation>Запуск приложения Quillmere Drive...</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Применение настроек...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Make sure that Quillmere Drive Server is installed and running on your NAS before you continue.</source>
        <translation>Прежде чем продолжить, убедитесь, что на устройстве NAS установлен и запущен пакет Quillmere Drive Server.</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Чтобы применить новые настройки языка, перезапустите %1.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Скачивание...</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Несовместимая версия</translation>
    </message>
    <message>
        <source>The icon in the system tray shows the sync status at a glance. Click it to pause syncing, view recent changes, or open the settings.</source>
        <translation>Значок в системном трее всегда показывает состояние синхронизации. Щелкните его, чтобы приостановить синхронизацию, просмотреть последние изменения или открыть настройки.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Приостановлено</translation>
    </message>
    <message>
        <source>Keep both versions and rename the conflicting file</source>
        <translation>Сохранить обе версии и переименовать конфликтующий файл</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Точка подключения не поддерживается</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>Привязка...</translation>
    </message>
    <message>
        <source>About Quillmere Drive</source>
        <translation>О приложении Quillmere Drive</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Включено</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Просмотреть предыдущие версии</translation>
    </message>
    <message>
        <source>The Setup Wizard for [ProductName] stopped early because of an error. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>Работа мастера установки [ProductName] прервана из-за ошибки. Изменения в систему не внесены. Чтобы установить приложение позже, снова запустите программу установки.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Сведения о подключении</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS. Free up some space to continue syncing.</source>
        <translation>На устройстве NAS недостаточно свободного места. Чтобы продолжить синхронизацию, освободите место.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Неактивно</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Удаление</translation>
    </message>
    <message>
        <source>The selected folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>Выбранная папка является точкой подключения, и синхронизировать ее нельзя. Выберите другую папку.</translation>
    </message>
    <message>
        <source>Upgrade now</source>
        <translation>Перейти на новую версию</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Имя компьютера</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Сведения о состоянии</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Установка [ProductName]</translation>
    </message>
    <message>
        <source>Open the management page</source>
        <translation>Открыть страницу управления</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Используемые файлы</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Четверг</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Подождите, выполняется установка [ProductName]. Это может занять несколько минут.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Суббота</translation>
    </message>
    <message>
        <source>Link expires after</source>
        <translation>Срок действия ссылки</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to leave this page without saving them?</source>
        <translation>Есть несохраненные изменения. Покинуть эту страницу без сохранения?</translation>
    </message>
    <message>
        <source>Select the operation that you want to perform.</source>
        <translation>Выберите операцию, которую нужно выполнить.</translation>
    </message>
    <message>
        <source>This file was changed on the computer and on the NAS at the same time, and the conflict could not be resolved.</source>
        <translation>Этот файл был одновременно изменен на компьютере и на устройстве NAS. Разрешить конфликт не удалось.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Локальная сеть</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Актуально</translation>
    </message>
    <message>
        <source>A sync task named &quot;%1&quot; already exists. Please enter another name.</source>
        <translation>Задача синхронизации с именем «%1» уже существует. Введите другое имя.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder. Please choose another folder or contact the administrator.</source>
        <translation>У вас нет разрешения на доступ к этой папке. Выберите другую папку или обратитесь к администратору.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Привязать повторно</translation>
    </message>
    <message>
        <source>Select how you want to sync files between this computer and your NAS. You can add more sync tasks later.</source>
        <translation>Выберите способ синхронизации файлов между этим компьютером и устройством NAS. Другие задачи синхронизации можно добавить позже.</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Прокси-сервер требует аутентификации</translation>
    </message>
    <message>
        <source>Choose what happens when the same file has been changed on the computer and on the NAS.</source>
        <translation>Выберите действие для случаев, когда один и тот же файл изменен и на компьютере, и на устройстве NAS.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Выбрать другую папку</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Все готово к удалению [ProductName]</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Check the certificate before you connect again.</source>
        <translation>Сертификат SSL устройства NAS изменился. Проверьте его, прежде чем подключаться снова.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Прошлый месяц</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Действие</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Только для чтения</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Диапазон дат</translation>
    </message>
    <message>
        <source>The download failed. Please try again later.</source>
        <translation>Не удалось скачать. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>Настройка завершена.</translation>
    </message>
    <message>
        <source>Quillmere Drive on this computer is outdated. Please update it to version %1 or later.</source>
        <translation>Приложение Quillmere Drive на этом компьютере устарело. Обновите его до версии %1 или более поздней.</translation>
    </message>
    <message>
        <source>This computer is now linked to your NAS. Syncing starts as soon as you close the wizard.</source>
        <translation>Этот компьютер привязан к устройству NAS. Синхронизация начнется, как только вы закроете мастер.</translation>
    </message>
    <message>
        <source>Enable sync for this shared folder</source>
        <translation>Включить синхронизацию этой общей папки</translation>
    </message>
    <message>
        <source>Download complete</source>
        <translation>Скачивание завершено</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Возобновить синхронизацию этой папки</translation>
    </message>
    <message>
        <source>Setup is in progress. Please wait...</source>
        <translation>Выполняется настройка. Подождите...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Только что</translation>
    </message>
    <message>
        <source>This computer is already linked to the same NAS. Edit the existing connection instead.</source>
        <translation>Этот компьютер уже привязан к тому же устройству NAS. Измените существующее подключение.</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>Элементов: %1</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Приостановить подключение</translation>
    </message>
    <message>
        <source>Quillmere Drive is ready.</source>
        <translation>Quillmere Drive готов.</translation>
    </message>
    <message>
        <source>Keep an eye on the system tray</source>
        <translation>Следите за значком в системном трее</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Подробнее</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. The copies on the NAS will be kept. Do you want to continue?</source>
        <translation>Папки, с которых вы снимете флажки, будут удалены с этого компьютера. Копии на устройстве NAS сохранятся. Продолжить?</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Октябрь</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Папка не пуста</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Restrict access to this link</source>
        <translation>Ограничить доступ к этой ссылке</translation>
    </message>
    <message>
        <source>The link could not be created. Make sure that file sharing is enabled in Quillmere Drive Server.</source>
        <translation>Не удалось создать ссылку. Убедитесь, что в пакете Quillmere Drive Server включен общий доступ к файлам.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>Другие учебные руководства</translation>
    </message>
    <message>
        <source>Setup requires administrator rights. Do you want to restart it as an administrator?</source>
        <translation>Для установки требуются права администратора. Перезапустить программу установки от имени администратора?</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Copy to:</source>
        <translation>Копировать в:</translation>
    </message>
    <message>
        <source>No previous versions of this file are available.</source>
        <translation>Предыдущие версии этого файла отсутствуют.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Начать сейчас</translation>
    </message>
    <message>
        <source>The NAS at this address is not the one that this computer was linked to. Check the address or link the computer again.</source>
        <translation>По этому адресу находится не то устройство NAS, к которому был привязан компьютер. Проверьте адрес или привяжите компьютер повторно.</translation>
    </message>
    <message>
        <source>The upgrade failed. Please download the latest version and install it manually.</source>
        <translation>Не удалось перейти на новую версию. Скачайте последнюю версию и установите ее вручную.</translation>
    </message>
    <message>
        <source>Add sync task</source>
        <translation>Добавить задачу синхронизации</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Дата начала</translation>
    </message>
    <message>
        <source>This shared folder could not be enabled for syncing. Please try again later.</source>
        <translation>Не удалось включить синхронизацию этой общей папки. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>In the system tray</source>
        <translation>В системном трее</translation>
    </message>
    <message>
        <source>The folder home\Quillmere on your NAS has already been linked to this PC. We will launch the synced folder when you click Done. Or you can set up a seperate task: %1</source>
        <translation>Папка home\Quillmere на устройстве NAS уже привязана к этому компьютеру. При нажатии кнопки «Готово» откроется синхронизируемая папка. Можно также создать отдельную задачу: %1</translation>
    </message>
    <message>
        <source>The port number is invalid. Enter a number from 1 to 65535.</source>
        <translation>Недопустимый номер порта. Введите число от 1 до 65535.</translation>
    </message>
    <message>
        <source>Quillmere Drive could not be initialized. Please restart your computer and try again.</source>
        <translation>Не удалось инициализировать приложение Quillmere Drive. Перезагрузите компьютер и повторите попытку.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Состояние:</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes made on this computer will not be synced to the NAS.</source>
        <translation>Эта папка доступна вам только для чтения. Изменения, внесенные на этом компьютере, не будут синхронизироваться с устройством NAS.</translation>
    </message>
    <message>
        <source>The version of Quillmere Drive on this computer is too old for the NAS. Version %1 or later is required.</source>
        <translation>Версия приложения Quillmere Drive на этом компьютере слишком старая для устройства NAS. Требуется версия %1 или более поздняя.</translation>
    </message>
    <message>
        <source>Files and folders that match the rules of the file filter will not be synced.</source>
        <translation>Файлы и папки, соответствующие правилам фильтра файлов, не синхронизируются.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Все готово к восстановлению [ProductName]</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Возобновить синхронизацию этих папок</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Открыть папку</translation>
    </message>
    <message>
        <source>Save a file and it is synced</source>
        <translation>Сохраненный файл сразу синхронизируется</translation>
    </message>
    <message>
        <source>Files that could not be synced</source>
        <translation>Файлы, которые не удалось синхронизировать</translation>
    </message>
    <message>
        <source>The connection to the NAS was lost. Quillmere Drive will try to connect again automatically.</source>
        <translation>Подключение к устройству NAS прервано. Quillmere Drive автоматически попытается подключиться снова.</translation>
    </message>
    <message>
        <source>Detecting file changes...</source>
        <translation>Поиск изменений в файлах...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Подключение установлено.</translation>
    </message>
    <message>
        <source>The administrator requires two-factor verification for your account. Sign in to the NAS in a web browser and set it up first.</source>
        <translation>Администратор требует двухфакторную аутентификацию для вашей учетной записи. Сначала войдите на устройство NAS через веб-браузер и настройте аутентификацию.</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the permissions on the NAS. Please change the sync direction.</source>
        <translation>Направление синхронизации этой папки не соответствует разрешениям на устройстве NAS. Измените направление синхронизации.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Вас приветствует мастер установки [ProductName]</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive. This wizard will help you link this computer to your NAS.</source>
        <translation>Вас приветствует Quillmere Drive. Этот мастер поможет привязать компьютер к устройству NAS.</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files and folders</source>
        <translation>Показывать наложения значков на синхронизируемых файлах и папках</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Ошибка аутентификации</translation>
    </message>
    <message>
        <source>An invalid value was entered. Please check your input and try again.</source>
        <translation>Введено недопустимое значение. Проверьте введенные данные и повторите попытку.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Все события</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Далее</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choice.</source>
        <translation>Нажмите кнопку «Удалить», чтобы удалить [ProductName] с компьютера. Чтобы изменить выбор, нажмите кнопку «Назад».</translation>
    </message>
    <message>
        <source>Quillmere Drive Server is not running on the NAS. Start it or contact the administrator.</source>
        <translation>Пакет Quillmere Drive Server на устройстве NAS не запущен. Запустите его или обратитесь к администратору.</translation>
    </message>
    <message>
        <source>Open Quillmere Drive</source>
        <translation>Открыть Quillmere Drive</translation>
    </message>
    <message>
        <source>The SSL certificate of this NAS differs from the one saved earlier. Continue only if you trust the new certificate.</source>
        <translation>Сертификат SSL этого устройства NAS отличается от сохраненного ранее. Продолжайте, только если доверяете новому сертификату.</translation>
    </message>
    <message>
        <source>The selected folder is already synced by another cloud storage program. Please choose a different folder to avoid conflicts.</source>
        <translation>Выбранная папка уже синхронизируется другой программой облачного хранения. Чтобы избежать конфликтов, выберите другую папку.</translation>
    </message>
    <message>
        <source>Right-click the tray icon to open the menu with all commands.</source>
        <translation>Щелкните значок в трее правой кнопкой мыши, чтобы открыть меню со всеми командами.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Syncing will start when indexing is complete.</source>
        <translation>Эта папка индексируется. Синхронизация начнется после завершения индексации.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Отключено</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Проверка данных...</translation>
    </message>
    <message>
        <source>Click Install to begin installing [ProductName]. Click Back to review or change your settings. Click Cancel to exit the wizard.</source>
        <translation>Нажмите кнопку «Установить», чтобы начать установку [ProductName]. Чтобы просмотреть или изменить настройки, нажмите кнопку «Назад». Чтобы выйти из мастера, нажмите кнопку «Отмена».</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>Синхронизация</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Открыть расположение файла</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] не содержит компонентов, которые можно выбрать отдельно.</translation>
    </message>
    <message>
        <source>The local folder could not be created. Check the path and your permissions, and then try again.</source>
        <translation>Не удалось создать локальную папку. Проверьте путь и свои разрешения, а затем повторите попытку.</translation>
    </message>
    <message>
        <source>NAS address</source>
        <translation>Адрес устройства NAS</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. It may have been deleted, or you may not have permission to access it.</source>
        <translation>Не удается скачать этот файл. Возможно, он удален или у вас нет разрешения на доступ к нему.</translation>
    </message>
    <message>
        <source>The IP address of this computer is not allowed to access the NAS. Contact the administrator.</source>
        <translation>IP-адресу этого компьютера запрещен доступ к устройству NAS. Обратитесь к администратору.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Некоторые файлы, которые необходимо обновить, сейчас используются.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Последняя страница</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Дата и время</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Переименование</translation>
    </message>
    <message>
        <source>View sync status</source>
        <translation>Показать состояние синхронизации</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Воскресенье</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]Выполняется установка [ProductName]</translation>
    </message>
    <message>
        <source>Enter the names of the files that should not be synced. An asterisk (*) stands for any number of characters.</source>
        <translation>Введите имена файлов, которые не нужно синхронизировать. Звездочка (*) заменяет любое количество символов.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Приостановить</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Папки для синхронизации</translation>
    </message>
    <message>
        <source>RapidHail</source>
        <translation>RapidHail</translation>
    </message>
    <message>
        <source>Enter the IP address, hostname, or RapidHail ID of your NAS.</source>
        <translation>Введите IP-адрес, имя узла или ID RapidHail устройства NAS.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Среда</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Синхронизация новой папки</translation>
    </message>
    <message>
        <source>NAS changed</source>
        <translation>Устройство NAS изменилось</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>If you disable this folder, it will no longer be synced. The files on this computer will be kept. Do you want to continue?</source>
        <translation>Если отключить эту папку, она больше не будет синхронизироваться. Файлы на этом компьютере сохранятся. Продолжить?</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Открыть файл</translation>
    </message>
    <message>
        <source>This folder cannot be synced because its path is invalid. Please choose another folder.</source>
        <translation>Эту папку нельзя синхронизировать, так как путь к ней недопустим. Выберите другую папку.</translation>
    </message>
    <message>
        <source>The shared folder on the NAS is not mounted. If it is encrypted, mount it first.</source>
        <translation>Общая папка на устройстве NAS не подключена. Если она зашифрована, сначала подключите ее.</translation>
    </message>
    <message>
        <source>Expiration time</source>
        <translation>Время окончания срока действия</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Имя пользователя</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up.</source>
        <translation>Ваша квота на устройстве NAS исчерпана.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please correct them before you continue.</source>
        <translation>Некоторые поля содержат недопустимые значения. Исправьте их, прежде чем продолжить.</translation>
    </message>
    <message>
        <source>The RapidHail service cannot be reached. Check your internet connection and try again.</source>
        <translation>Служба RapidHail недоступна. Проверьте подключение к Интернету и повторите попытку.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Пятница</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Открыть главное окно</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Порт прокси-сервера</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; has been used up. Free up some space to continue syncing.</source>
        <translation>Квота общей папки «%1» исчерпана. Чтобы продолжить синхронизацию, освободите место.</translation>
    </message>
    <message>
        <source>Link to a new NAS</source>
        <translation>Привязать к новому устройству NAS</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Прошлая неделя</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is too old for this computer. Version %1 or later is required.</source>
        <translation>Версия пакета Quillmere Drive Server на устройстве NAS слишком старая для этого компьютера. Требуется версия %1 или более поздняя.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Июнь</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a network error. Check your network connection and try again.</source>
        <translation>Не удается проверить папку из-за сетевой ошибки. Проверьте подключение к сети и повторите попытку.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]Уда&amp;лить</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Интернет</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Июль</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Понятно</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Добро пожаловать</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Удаление [ProductName] с компьютера.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Версия</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Возобновить</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>From</source>
        <translation>С</translation>
    </message>
    <message>
        <source>You can open the synced folder at any time from the Quillmere Drive icon in the system tray.</source>
        <translation>Синхронизируемую папку можно в любой момент открыть с помощью значка Quillmere Drive в системном трее.</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Файлы обновлены</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;pair</source>
        <translation>[DlgTitleFont]Во&amp;сстановить</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Вторник</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Нет доступных команд</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>The NAS at this address has changed. Please link this computer again.</source>
        <translation>Устройство NAS по этому адресу изменилось. Привяжите этот компьютер повторно.</translation>
    </message>
    <message>
        <source>The installation of [ProductName] was interrupted. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>Установка [ProductName] прервана. Изменения в систему не внесены. Чтобы установить приложение позже, снова запустите программу установки.</translation>
    </message>
    <message>
        <source>The connection test failed. The username or password is incorrect.</source>
        <translation>Проверка подключения не пройдена. Неверное имя пользователя или пароль.</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>Во&amp;сстановить</translation>
    </message>
    <message>
        <source>A sync task has stopped because of an error. Click here for details.</source>
        <translation>Задача синхронизации остановлена из-за ошибки. Щелкните здесь, чтобы узнать подробности.</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and the account that you want to use for syncing.</source>
        <translation>Введите адрес устройства NAS и учетную запись, которую нужно использовать для синхронизации.</translation>
    </message>
    <message>
        <source>Connect anyway</source>
        <translation>Все равно подключиться</translation>
    </message>
    <message>
        <source>The files on this computer and the files in the shared folder will be merged. If two files have the same name, the newer one is used.</source>
        <translation>Файлы на этом компьютере и файлы в общей папке будут объединены. Если имена двух файлов совпадут, будет использован более новый.</translation>
    </message>
    <message>
        <source>Start Quillmere Drive automatically when I sign in</source>
        <translation>Запускать Quillmere Drive автоматически при входе в систему</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this link? People who have it will no longer be able to open the file.</source>
        <translation>Удалить эту ссылку? Те, у кого она есть, больше не смогут открыть файл.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Изменить папку</translation>
    </message>
    <message>
        <source>The username or password is incorrect, or the account has been disabled.</source>
        <translation>Неверное имя пользователя или пароль, либо учетная запись отключена.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;do not accept the terms of the license agreement</source>
        <translation>{\DlgFont8}Я н&amp;е принимаю условия лицензионного соглашения</translation>
    </message>
    <message>
        <source>Right-click a file and select &quot;Share link&quot; to create a link. Send it to anyone who needs the file, even if they have no account on your NAS.</source>
        <translation>Щелкните файл правой кнопкой мыши и выберите команду «Поделиться ссылкой», чтобы создать ссылку. Отправьте ее всем, кому нужен файл, даже если у них нет учетной записи на вашем устройстве NAS.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Режим синхронизации</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps earlier versions of your files. Right-click a file and select &quot;Browse previous versions&quot; to restore one of them.</source>
        <translation>Quillmere Drive хранит предыдущие версии файлов. Чтобы восстановить одну из них, щелкните файл правой кнопкой мыши и выберите команду «Просмотреть предыдущие версии».</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>На %1 стр. вперед</translation>
    </message>
    <message>
        <source>Quillmere Drive is already running. You can find its icon in the system tray.</source>
        <translation>Quillmere Drive уже запущен. Его значок находится в системном трее.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Прокси-сервер</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Загрузка списка общих папок...</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Первая страница</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Настроить прокси-сервер вручную</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>%1 ч назад</translation>
    </message>
    <message>
        <source>This folder cannot be synced because of a system error. Please try again later.</source>
        <translation>Эту папку нельзя синхронизировать из-за системной ошибки. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>При двойном щелчке значка в трее</translation>
    </message>
    <message>
        <source>Selective sync by folder</source>
        <translation>Выборочная синхронизация по папкам</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Общие папки</translation>
    </message>
    <message>
        <source>Sync with another NAS</source>
        <translation>Синхронизация с другим устройством NAS</translation>
    </message>
    <message>
        <source>This creates a Quillmere folder on your computer and keeps it synced with your home folder on your Orvane NAS (recommended for personal use).</source>
        <translation>На компьютере будет создана папка Quillmere, которая будет синхронизироваться с вашей домашней папкой на устройстве NAS Orvane (рекомендуется для личного использования).</translation>
    </message>
    <message>
        <source>Click here to upgrade</source>
        <translation>Щелкните здесь, чтобы перейти на новую версию</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Апрель</translation>
    </message>
    <message>
        <source>On your computer</source>
        <translation>На компьютере</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of [ProductName]?</source>
        <translation>Отменить установку [ProductName]?</translation>
    </message>
    <message>
        <source>Files and folders excluded from sync</source>
        <translation>Файлы и папки, исключенные из синхронизации</translation>
    </message>
    <message>
        <source>This version of Quillmere Drive is already installed. Do you want to install it again?</source>
        <translation>Эта версия приложения Quillmere Drive уже установлена. Установить ее еще раз?</translation>
    </message>
    <message>
        <source>has been shared. The link was copied to the clipboard.</source>
        <translation>теперь в общем доступе. Ссылка скопирована в буфер обмена.</translation>
    </message>
    <message>
        <source>The NAS sent an unexpected response. Make sure that Quillmere Drive and Quillmere Drive Server are both up to date.</source>
        <translation>Получен неожиданный ответ от устройства NAS. Убедитесь, что установлены последние версии Quillmere Drive и Quillmere Drive Server.</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Исключить эту папку из синхронизации</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Март</translation>
    </message>
    <message>
        <source>The RapidHail service encountered a system error. Please try again later.</source>
        <translation>В службе RapidHail произошла системная ошибка. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Выборочная синхронизация</translation>
    </message>
    <message>
        <source>Folder is read-only</source>
        <translation>Папка доступна только для чтения</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;accept the terms of the license agreement</source>
        <translation>{\DlgFont8}Я &amp;принимаю условия лицензионного соглашения</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Направление синхронизации</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>История скачиваний</translation>
    </message>
    <message>
        <source>Select a folder on this computer and the shared folder on the NAS that it will be synced with.</source>
        <translation>Выберите папку на этом компьютере и общую папку на устройстве NAS, с которой она будет синхронизироваться.</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>Это поле обязательно для заполнения.</translation>
    </message>
    <message>
        <source>Choose a shared folder on your NAS that is not yet synced with this computer.</source>
        <translation>Выберите общую папку на устройстве NAS, которая еще не синхронизируется с этим компьютером.</translation>
    </message>
    <message>
        <source>How existing files are merged</source>
        <translation>Способ объединения существующих файлов</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Настройки сети</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Удалить ссылку</translation>
    </message>
    <message>
        <source>This sync task is inactive because the shared folder is not available.</source>
        <translation>Эта задача синхронизации неактивна, так как общая папка недоступна.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Одностороннее скачивание</translation>
    </message>
    <message>
        <source>Go back to an earlier version</source>
        <translation>Возвращайтесь к более ранним версиям</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Загрузка на сервер</translation>
    </message>
    <message>
        <source>Changes the set of [ProductName] features that are installed.</source>
        <translation>Изменение набора установленных компонентов [ProductName].</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Май</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>Link this computer to your NAS in just a few steps.</source>
        <translation>Привяжите этот компьютер к устройству NAS всего за несколько шагов.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Готово</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Шифровать подключение с помощью SSL</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Режим подключения</translation>
    </message>
    <message>
        <source>Keep the file that was modified last</source>
        <translation>Сохранить файл, измененный последним</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>A newer version of Quillmere Drive is already installed. Setup will now close.</source>
        <translation>Уже установлена более новая версия приложения Quillmere Drive. Программа установки будет закрыта.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Confirm the new certificate before you select a folder.</source>
        <translation>Сертификат SSL устройства NAS изменился. Подтвердите новый сертификат, прежде чем выбирать папку.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Объединить</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Общая папка не найдена</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Отвязать</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Локальная папка</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Выберите папку</translation>
    </message>
    <message>
        <source>Set up the folder to sync</source>
        <translation>Настройка папки для синхронизации</translation>
    </message>
    <message>
        <source>Enter the connection settings for your NAS.</source>
        <translation>Введите параметры подключения к устройству NAS.</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>Предупреждение о сертификате SSL</translation>
    </message>
    <message>
        <source>Share files with a link</source>
        <translation>Делитесь файлами по ссылке</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Тип файла</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Возобновить подключение</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>П&amp;ропустить</translation>
    </message>
    <message>
        <source>The maximum file size must be a whole number greater than 0.</source>
        <translation>Максимальный размер файла должен быть целым числом больше 0.</translation>
    </message>
    <message>
        <source>Insufficient permissions</source>
        <translation>Недостаточно прав</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Обновлено: %1</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive</source>
        <translation>Вас приветствует Quillmere Drive</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Ключевое слово</translation>
    </message>
    <message>
        <source>This allows you to specify a folder on your computer to keep synced with a shared folder on your Orvane NAS. (Recommended for teamwork)​.</source>
        <translation>Вы сможете указать папку на компьютере, которая будет синхронизироваться с общей папкой на устройстве NAS Orvane (рекомендуется для совместной работы).</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin repairing [ProductName].</source>
        <translation>Мастер установки готов начать восстановление [ProductName].</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>A network error occurred. Check your network connection and try again.</source>
        <translation>Произошла сетевая ошибка. Проверьте подключение к сети и повторите попытку.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already being synced. Please choose another folder.</source>
        <translation>Эта папка пересекается с папкой, которая уже синхронизируется. Выберите другую папку.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}Работа мастера установки [ProductName] прервана</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Назад</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Время начала</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Показать учебное руководство</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>Д&amp;а</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Быстрая настройка</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Управление</translation>
    </message>
    <message>
        <source>Links cannot be created over a RapidHail connection because file sharing is disabled on the NAS.</source>
        <translation>Не удается создать ссылки через подключение RapidHail, так как на устройстве NAS отключен общий доступ к файлам.</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Управление общими папками</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Внимательно прочитайте следующее лицензионное соглашение.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Подготовка...</translation>
    </message>
    <message>
        <source>Keep the version on the NAS and overwrite the one on this computer</source>
        <translation>Сохранить версию на устройстве NAS и заменить ею версию на этом компьютере</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Август</translation>
    </message>
    <message>
        <source>Use a RapidHail connection</source>
        <translation>Использовать подключение RapidHail</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard ended early</source>
        <translation>{\VerdanaBold13}Работа мастера установки [ProductName] завершена преждевременно</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up. Files can no longer be uploaded until you free up some space.</source>
        <translation>Ваша квота на устройстве NAS исчерпана. Загружать файлы на сервер будет нельзя, пока вы не освободите место.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]&amp;Изменить</translation>
    </message>
    <message>
        <source>Set an expiration date for this link</source>
        <translation>Задать срок действия ссылки</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Изменить локальную папку</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Максимальный размер файла</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Уда&amp;лить</translation>
    </message>
    <message>
        <source>Quillmere Drive is initializing...</source>
        <translation>Quillmere Drive выполняет инициализацию...</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Двусторонняя синхронизация</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Использовать системные настройки прокси-сервера</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Отмена привязки...</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open (a restart will be required)</source>
        <translation>&amp;Оставить приложения открытыми (потребуется перезагрузка)</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard is complete</source>
        <translation>{\VerdanaBold13}Мастер установки [ProductName] завершил работу</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Задача синхронизации</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>Дата создания</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Запустить [ProductName]</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Ноябрь</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далее</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Адрес прокси-сервера</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Недавно измененные файлы</translation>
    </message>
    <message>
        <source>Unlink from the NAS</source>
        <translation>Отвязать от устройства NAS</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Please try again later.</source>
        <translation>Не удается получить список версий этого файла. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Файл заблокирован другой программой</translation>
    </message>
    <message>
        <source>An unknown error occurred. Please try again later.</source>
        <translation>Произошла неизвестная ошибка. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified.</source>
        <translation>Не удалось проверить сертификат SSL устройства NAS.</translation>
    </message>
    <message>
        <source>Checking username and password...</source>
        <translation>Проверка имени пользователя и пароля...</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Дополнительные настройки</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Пе&amp;чать</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Февраль</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Quillmere Drive</source>
        <translation>Quillmere Drive</translation>
    </message>
    <message>
        <source>You have read-only access to this shared folder. Files can be downloaded to this computer but not uploaded to the NAS.</source>
        <translation>Эта общая папка доступна вам только для чтения. Файлы можно скачивать на этот компьютер, но нельзя загружать на устройство NAS.</translation>
    </message>
    <message>
        <source>The drive that contains the local folder is not mounted. Connect the drive to continue syncing.</source>
        <translation>Диск с локальной папкой не подключен. Чтобы продолжить синхронизацию, подключите диск.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Место назначения</translation>
    </message>
    <message>
        <source>Search the local network for an Orvane NAS.</source>
        <translation>Найти устройство NAS Orvane в локальной сети.</translation>
    </message>
    <message>
        <source>Storage full</source>
        <translation>Хранилище заполнено</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>Сведения об устройстве NAS</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Прямое подключение</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Скачивание</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Настройки прокси-сервера</translation>
    </message>
    <message>
        <source>Unstable connection</source>
        <translation>Нестабильное подключение</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync this folder. Free up some space or choose another folder.</source>
        <translation>На этом компьютере недостаточно места для синхронизации этой папки. Освободите место или выберите другую папку.</translation>
    </message>
    <message>
        <source>Use a black and white tray icon</source>
        <translation>Использовать черно-белый значок в трее</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>История синхронизации</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Скачивание отменено.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>Следующие приложения используют файлы, которые программе установки нужно обновить. Закройте их и нажмите кнопку «Повторить», чтобы продолжить.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Установить</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please wait a few minutes before you try again.</source>
        <translation>Слишком много неудачных попыток. Подождите несколько минут и повторите попытку.</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>Все готово</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Загрузка...</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Нет, спасибо</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Новая общая папка</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Выход</translation>
    </message>
    <message>
        <source>You can let Setup close the applications listed below and try to restart them afterward.</source>
        <translation>Программа установки может закрыть перечисленные ниже приложения, а затем попытаться запустить их снова.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change the way [ProductName] is installed or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Мастер установки позволяет изменить установленное приложение [ProductName] или удалить его с компьютера. Нажмите кнопку «Далее», чтобы продолжить, или «Отмена», чтобы выйти.</translation>
    </message>
    <message>
        <source>Try syncing a file</source>
        <translation>Попробуйте синхронизировать файл</translation>
    </message>
    <message>
        <source>No data to display</source>
        <translation>Нет данных для отображения</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>%1 дн. назад</translation>
    </message>
    <message>
        <source>You can now sync the shared folder &quot;%1&quot;. Click here to enable it.</source>
        <translation>Теперь можно синхронизировать общую папку «%1». Щелкните здесь, чтобы включить ее.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Загрузка на сервер...</translation>
    </message>
    <message>
        <source>Your Quillmere folder is ready. Drop files into it and they will be synced with your NAS.</source>
        <translation>Папка Quillmere готова. Перетащите в нее файлы, и они синхронизируются с устройством NAS.</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>Нет папок, которые можно синхронизировать.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>На %1 стр. назад</translation>
    </message>
    <message>
        <source>The verification code is invalid. Please check the code and try again.</source>
        <translation>Неверный код подтверждения. Проверьте код и повторите попытку.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Сегодня</translation>
    </message>
    <message>
        <source>The selected folder is on a network drive. Changes made there by other computers may not be detected immediately.</source>
        <translation>Выбранная папка находится на сетевом диске. Изменения, внесенные в нее с других компьютеров, могут обнаруживаться не сразу.</translation>
    </message>
    <message>
        <source>Show icon overlays on files excluded by the file filter</source>
        <translation>Показывать наложения значков на файлах, исключенных фильтром файлов</translation>
    </message>
    <message>
        <source>Files to sync</source>
        <translation>Файлы для синхронизации</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Поделиться ссылкой</translation>
    </message>
    <message>
        <source>Detecting connection mode...</source>
        <translation>Определение режима подключения...</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Другой срок</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>Поиск устройств NAS в локальной сети</translation>
    </message>
    <message>
        <source>The proxy address and port cannot be empty.</source>
        <translation>Адрес и порт прокси-сервера не могут быть пустыми.</translation>
    </message>
    <message>
        <source>You can also protect a link with a password or set an expiration date.</source>
        <translation>Ссылку также можно защитить паролем или ограничить срок ее действия.</translation>
    </message>
    <message>
        <source>All your files, always at hand</source>
        <translation>Все ваши файлы всегда под рукой</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Дата окончания срока действия</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Сентябрь</translation>
    </message>
    <message>
        <source>Create a Quillmere folder on this computer</source>
        <translation>Создать папку Quillmere на этом компьютере</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Мастер расширенной настройки</translation>
    </message>
    <message>
        <source>The selected folder is already part of a sync task on this computer.</source>
        <translation>Выбранная папка уже входит в задачу синхронизации на этом компьютере.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>%1 мин назад</translation>
    </message>
    <message>
        <source>This shared folder is already synced with the folder &quot;%1&quot; on this computer.</source>
        <translation>Эта общая папка уже синхронизируется с папкой «%1» на этом компьютере.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>На устройстве NAS недостаточно свободного места.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>Н&amp;ет</translation>
    </message>
    <message>
        <source>Click Repair to restore missing or damaged files, shortcuts, and registry entries. Click Back to review your choice.</source>
        <translation>Нажмите кнопку «Восстановить», чтобы восстановить отсутствующие или поврежденные файлы, ярлыки и записи реестра. Чтобы изменить выбор, нажмите кнопку «Назад».</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Как в системе</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Больше не показывать это сообщение</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by restoring missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Исправление ошибок последней установки путем восстановления отсутствующих или поврежденных файлов, ярлыков и записей реестра.</translation>
    </message>
    <message>
        <source>Number of times the link can be opened</source>
        <translation>Допустимое количество открытий ссылки</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Вчера</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified. The folder cannot be selected until the certificate is trusted.</source>
        <translation>Не удалось проверить сертификат SSL устройства NAS. Выбрать папку можно будет только после того, как сертификат станет доверенным.</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>Защита паролем</translation>
    </message>
    <message>
        <source>The SSL certificate could not be verified. It may be self-signed, expired, or issued for another hostname.</source>
        <translation>Не удалось проверить сертификат SSL. Возможно, это самозаверяющий сертификат, срок его действия истек или он выдан для другого имени узла.</translation>
    </message>
    <message>
        <source>Please update Quillmere Drive Server on the NAS to use selective sync.</source>
        <translation>Чтобы использовать выборочную синхронизацию, обновите пакет Quillmere Drive Server на устройстве NAS.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up some space to continue syncing.</source>
        <translation>На этом компьютере недостаточно свободного места. Чтобы продолжить синхронизацию, освободите место.</translation>
    </message>
    <message>
        <source>The selected folder is used by a backup task. Syncing it may cause conflicts.</source>
        <translation>Выбранная папка используется задачей резервного копирования. Ее синхронизация может привести к конфликтам.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>One-way sync from the NAS to this computer</source>
        <translation>Односторонняя синхронизация с устройства NAS на этот компьютер</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Только скачивание</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>На этом компьютере недостаточно свободного места.</translation>
    </message>
    <message>
        <source>Blocked by:</source>
        <translation>Блокирует:</translation>
    </message>
    <message>
        <source>This computer is linked to your NAS, and your files are now being synced.</source>
        <translation>Этот компьютер привязан к устройству NAS, и ваши файлы уже синхронизируются.</translation>
    </message>
    <message>
        <source>The RapidHail ID is invalid or does not exist.</source>
        <translation>Указанный ID RapidHail недопустим или не существует.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Ожидание</translation>
    </message>
    <message>
        <source>Remove the program from this computer</source>
        <translation>Удалить приложение с этого компьютера</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established because of an SSL error.</source>
        <translation>Не удалось установить безопасное подключение к устройству NAS из-за ошибки SSL.</translation>
    </message>
    <message>
        <source>General settings</source>
        <translation>Общие настройки</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Показывать уведомления на рабочем столе</translation>
    </message>
    <message>
        <source>Selective sync by file type</source>
        <translation>Выборочная синхронизация по типам файлов</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Декабрь</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is outdated. Please ask the administrator to update it to version %1 or later.</source>
        <translation>Пакет Quillmere Drive Server на устройстве NAS устарел. Попросите администратора обновить его до версии %1 или более поздней.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Изменить состав установленных компонентов</translation>
    </message>
    <message>
        <source>If you no longer need the program, you can remove it now. Your synced files will be kept on this computer.</source>
        <translation>Если приложение больше не нужно, его можно удалить. Синхронизированные файлы останутся на этом компьютере.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be merged with the files in the shared folder.</source>
        <translation>Выбранная папка не пуста. Ее файлы будут объединены с файлами в общей папке.</translation>
    </message>
    <message>
        <source>The link could not be deleted. Please try again later.</source>
        <translation>Не удалось удалить ссылку. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>A link cannot be created for this file. Make sure that it has been synced to the NAS.</source>
        <translation>Не удается создать ссылку на этот файл. Убедитесь, что он синхронизирован с устройством NAS.</translation>
    </message>
    <message>
        <source>Check all file attributes for changes</source>
        <translation>Проверять все атрибуты файлов на наличие изменений</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove the installation</source>
        <translation>[DlgTitleFont]Изменение, восстановление или удаление установленного приложения</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Понедельник</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>Выбранная папка доступна только для чтения. Выберите папку, в которую разрешена запись.</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the sync task &quot;%1&quot;? The files on this computer and on the NAS will be kept.</source>
        <translation>Удалить задачу синхронизации «%1»? Файлы на этом компьютере и на устройстве NAS сохранятся.</translation>
    </message>
    <message>
        <source>Limit how often this link can be opened</source>
        <translation>Ограничить количество открытий ссылки</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Общая папка</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps the folders on your computers in sync with your Orvane NAS.</source>
        <translation>Quillmere Drive синхронизирует папки на ваших компьютерах с устройством NAS Orvane.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Введите код подтверждения</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Сводка</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>Расширения файлов</translation>
    </message>
    <message>
        <source>The username cannot be empty.</source>
        <translation>Имя пользователя не может быть пустым.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Путь к папке</translation>
    </message>
    <message>
        <source>Folder already linked</source>
        <translation>Папка уже привязана</translation>
    </message>
    <message>
        <source>The maximum length of this field is %1 characters.</source>
        <translation>Максимальное количество символов в этом поле: %1.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from &quot;%1&quot;? Syncing will stop, but your files will be kept.</source>
        <translation>Отвязать этот компьютер от устройства «%1»? Синхронизация прекратится, но ваши файлы сохранятся.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Расширенная настройка</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Другой период</translation>
    </message>
    <message>
        <source>You have reached the maximum of %1 sync tasks. Remove a sync task before you add another one.</source>
        <translation>Достигнуто максимальное количество задач синхронизации: %1. Чтобы добавить новую задачу, удалите одну из существующих.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Имя папки</translation>
    </message>
    <message>
        <source>Quillmere Drive is being upgraded. Please wait...</source>
        <translation>Выполняется переход на новую версию приложения Quillmere Drive. Подождите...</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to keep synced with your NAS.</source>
        <translation>Выберите на этом компьютере папку, которую нужно синхронизировать с устройством NAS.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Проверка подключения...</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Синхронизация: %1</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS. Contact the administrator.</source>
        <translation>Общая папка не подключена на устройстве NAS. Обратитесь к администратору.</translation>
    </message>
    <message>
        <source>Keep your files in sync between this computer and your NAS, and reach them wherever you are.</source>
        <translation>Синхронизируйте файлы между этим компьютером и устройством NAS и работайте с ними, где бы вы ни находились.</translation>
    </message>
    <message>
        <source>Your account is protected by two-factor verification. Please enter the verification code to continue.</source>
        <translation>Ваша учетная запись защищена двухфакторной аутентификацией. Чтобы продолжить, введите код подтверждения.</translation>
    </message>
    <message>
        <source>Edit file filter</source>
        <translation>Изменить фильтр файлов</translation>
    </message>
    <message>
        <source>Open the synced folder</source>
        <translation>Открыть синхронизируемую папку</translation>
    </message>
    <message>
        <source>File names to exclude</source>
        <translation>Имена исключаемых файлов</translation>
    </message>
    <message>
        <source>File path</source>
        <translation>Путь к файлу</translation>
    </message>
    <message>
        <source>To</source>
        <translation>По</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Январь</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Не использовать прокси-сервер</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync with this computer.</source>
        <translation>Выберите на устройстве NAS общую папку, которую нужно синхронизировать с этим компьютером.</translation>
    </message>
    <message>
        <source>This shared folder does not exist on the NAS. It may have been renamed or deleted.</source>
        <translation>Этой общей папки нет на устройстве NAS. Возможно, она переименована или удалена.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Server not running</source>
        <translation>Сервер не запущен</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>[ProductName] будет установлен на ваш компьютер. Нажмите кнопку «Далее», чтобы продолжить, или «Отмена», чтобы выйти.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Задачи синхронизации</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>Мастер установки готов начать установку.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Syncing %1 file(s)</source>
        <translation>Синхронизация файлов: %1</translation>
    </message>
    <message>
        <source>&amp;Close the applications and try to restart them</source>
        <translation>&amp;Закрыть приложения и попытаться перезапустить их</translation>
    </message>
    <message>
        <source>Please wait. The requested changes are being made.</source>
        <translation>Подождите. Выполняются запрошенные изменения.</translation>
    </message>
    <message>
        <source>Upgrade available</source>
        <translation>Доступна новая версия</translation>
    </message>
    <message>
        <source>Repair the current installation</source>
        <translation>Восстановить установленное приложение</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Переход на новую версию...</translation>
    </message>
    <message>
        <source>Set up a separate sync task</source>
        <translation>Создать отдельную задачу синхронизации</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>Настройки не изменены.</translation>
    </message>
</context>
</TS>
