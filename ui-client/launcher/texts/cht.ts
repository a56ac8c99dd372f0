<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Keep your data safe and synced at all times</source>
        <translation>資料安全無虞，隨時保持同步</translation>
    </message>
    <message>
        <source>The quota on the NAS has been used up. Free up some space or ask the administrator to raise your quota, and then select the folder again.</source>
        <translation>NAS 上的配額已用完。請釋出部分空間，或聯絡管理員提高您的配額，然後重新選取此資料夾。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-user license agreement</source>
        <translation>[DlgTitleFont]使用者授權合約</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>選擇設定模式</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]準備安裝 [ProductName]</translation>
    </message>
    <message>
        <source>This shared folder has been disabled for your account. Contact the administrator of the NAS to regain access.</source>
        <translation>此共用資料夾已針對您的帳戶停用。若要恢復存取權，請聯絡 NAS 管理員。</translation>
    </message>
    <message>
        <source>Merge the folders</source>
        <translation>合併資料夾</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>共用連結</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>同步錯誤</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>按一下「完成」按鈕以結束安裝精靈。</translation>
    </message>
    <message>
        <source>Set a start date for this link</source>
        <translation>設定此連結的開始日期</translation>
    </message>
    <message>
        <source>The local sync database cannot be read. Restart Quillmere Drive. If the problem persists, link this computer again.</source>
        <translation>無法讀取本機同步資料庫。請重新啟動 Quillmere Drive。如果問題持續發生，請為這部電腦重新建立關聯。</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>選擇要同步的資料夾</translation>
    </message>
    <message>
        <source>Every file you put in a synced folder is copied to your NAS automatically. Just save your work and let Quillmere Drive do the rest.</source>
        <translation>放入同步資料夾的每個檔案都會自動複製到您的 NAS。您只要儲存工作成果，其餘的交給 Quillmere Drive 即可。</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>重試(&amp;R)</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>不同步這些資料夾</translation>
    </message>
    <message>
        <source>The local folder of this sync task cannot be found. It may have been moved, renamed, or deleted.</source>
        <translation>找不到此同步工作的本機資料夾。該資料夾可能已移動、重新命名或刪除。</translation>
    </message>
    <message>
        <source>Quillmere Drive is starting...</source>
        <translation>正在啟動 Quillmere Drive...</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>正在套用設定...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>Make sure that Quillmere Drive Server is installed and running on your NAS before you continue.</source>
        <translation>繼續之前，請確認 NAS 上已安裝 Quillmere Drive Server 且正在執行。</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>請重新啟動 %1 以套用新的語言設定。</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>正在下載...</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>版本不符</translation>
    </message>
    <message>
        <source>The icon in the system tray shows the sync status at a glance. Click it to pause syncing, view recent changes, or open the settings.</source>
        <translation>系統匣中的圖示可讓您一眼掌握同步狀態。按一下圖示即可暫停同步、檢視最近的變更或開啟設定。</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暫停</translation>
    </message>
    <message>
        <source>Keep both versions and rename the conflicting file</source>
        <translation>保留兩個版本，並重新命名發生衝突的檔案</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>不支援掛接點</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>正在建立關聯...</translation>
    </message>
    <message>
        <source>About Quillmere Drive</source>
        <translation>關於 Quillmere Drive</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>已啟用</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>瀏覽先前的版本</translation>
    </message>
    <message>
        <source>The Setup Wizard for [ProductName] stopped early because of an error. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>由於發生錯誤，[ProductName] 安裝精靈已提前結束。您的系統未經任何變更。若要稍後安裝此程式，請再次執行安裝程式。</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>連線資訊</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS. Free up some space to continue syncing.</source>
        <translation>NAS 上的可用空間不足。請釋出部分空間以繼續同步。</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>未運作</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>已刪除</translation>
    </message>
    <message>
        <source>The selected folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>選取的資料夾是掛接點，無法同步。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>Upgrade now</source>
        <translation>立即升級</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>電腦名稱</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>狀態資訊</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] 安裝程式</translation>
    </message>
    <message>
        <source>Open the management page</source>
        <translation>開啟管理頁面</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]檔案使用中</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>星期四</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>安裝精靈正在安裝 [ProductName]，請稍候。這可能需要幾分鐘的時間。</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>星期六</translation>
    </message>
    <message>
        <source>Link expires after</source>
        <translation>連結有效期限</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to leave this page without saving them?</source>
        <translation>您有尚未儲存的變更。要離開此頁面而不儲存嗎？</translation>
    </message>
    <message>
        <source>Select the operation that you want to perform.</source>
        <translation>請選取您要執行的作業。</translation>
    </message>
    <message>
        <source>This file was changed on the computer and on the NAS at the same time, and the conflict could not be resolved.</source>
        <translation>此檔案在電腦和 NAS 上同時有變更，且無法解決衝突。</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>區域網路</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>已是最新狀態</translation>
    </message>
    <message>
        <source>A sync task named &quot;%1&quot; already exists. Please enter another name.</source>
        <translation>名稱為「%1」的同步工作已存在。請輸入其他名稱。</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder. Please choose another folder or contact the administrator.</source>
        <translation>您沒有存取此資料夾的權限。請選擇其他資料夾或聯絡管理員。</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>重新建立關聯</translation>
    </message>
    <message>
        <source>Select how you want to sync files between this computer and your NAS. You can add more sync tasks later.</source>
        <translation>請選取這部電腦與 NAS 之間的檔案同步方式。您稍後可以新增更多同步工作。</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Proxy 伺服器需要驗證</translation>
    </message>
    <message>
        <source>Choose what happens when the same file has been changed on the computer and on the NAS.</source>
        <translation>選擇同一個檔案在電腦和 NAS 上都有變更時的處理方式。</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>選擇其他資料夾</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]準備移除 [ProductName]</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Check the certificate before you connect again.</source>
        <translation>NAS 的 SSL 憑證已變更。請先檢查憑證，再重新連線。</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>上個月</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>動作</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>唯讀</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>日期範圍</translation>
    </message>
    <message>
        <source>The download failed. Please try again later.</source>
        <translation>下載失敗。請稍後再試一次。</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>設定完成。</translation>
    </message>
    <message>
        <source>Quillmere Drive on this computer is outdated. Please update it to version %1 or later.</source>
        <translation>這部電腦上的 Quillmere Drive 版本過舊。請更新至 %1 或以上版本。</translation>
    </message>
    <message>
        <source>This computer is now linked to your NAS. Syncing starts as soon as you close the wizard.</source>
        <translation>這部電腦已與您的 NAS 建立關聯。關閉精靈後即會開始同步。</translation>
    </message>
    <message>
        <source>Enable sync for this shared folder</source>
        <translation>啟用此共用資料夾的同步</translation>
    </message>
    <message>
        <source>Download complete</source>
        <translation>下載完成</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>繼續同步此資料夾</translation>
    </message>
    <message>
        <source>Setup is in progress. Please wait...</source>
        <translation>正在進行設定，請稍候...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>剛剛</translation>
    </message>
    <message>
        <source>This computer is already linked to the same NAS. Edit the existing connection instead.</source>
        <translation>這部電腦已與同一部 NAS 建立關聯。請改為編輯現有的連線。</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>%1 個項目</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>暫停連線</translation>
    </message>
    <message>
        <source>Quillmere Drive is ready.</source>
        <translation>Quillmere Drive 準備完成</translation>
    </message>
    <message>
        <source>Keep an eye on the system tray</source>
        <translation>留意系統匣</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>更多詳細資訊</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. The copies on the NAS will be kept. Do you want to continue?</source>
        <translation>在此取消勾選的資料夾將從這部電腦移除，NAS 上的複本則會保留。要繼續嗎？</translation>
    </message>
    <message>
        <source>October</source>
        <translation>十月</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>資料夾不是空的</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>Restrict access to this link</source>
        <translation>限制此連結的存取權</translation>
    </message>
    <message>
        <source>The link could not be created. Make sure that file sharing is enabled in Quillmere Drive Server.</source>
        <translation>無法建立連結。請確認 Quillmere Drive Server 已啟用檔案共用。</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>更多教學課程</translation>
    </message>
    <message>
        <source>Setup requires administrator rights. Do you want to restart it as an administrator?</source>
        <translation>安裝程式需要系統管理員權限。要以系統管理員身分重新啟動安裝程式嗎？</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Copy to:</source>
        <translation>複製到：</translation>
    </message>
    <message>
        <source>No previous versions of this file are available.</source>
        <translation>此檔案沒有先前的版本。</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>立即開始</translation>
    </message>
    <message>
        <source>The NAS at this address is not the one that this computer was linked to. Check the address or link the computer again.</source>
        <translation>此位址的 NAS 並非這部電腦先前建立關聯的 NAS。請檢查位址，或為這部電腦重新建立關聯。</translation>
    </message>
    <message>
        <source>The upgrade failed. Please download the latest version and install it manually.</source>
        <translation>升級失敗。請下載最新版本並手動安裝。</translation>
    </message>
    <message>
        <source>Add sync task</source>
        <translation>新增同步工作</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>開始日期</translation>
    </message>
    <message>
        <source>This shared folder could not be enabled for syncing. Please try again later.</source>
        <translation>無法啟用此共用資料夾的同步。請稍後再試一次。</translation>
    </message>
    <message>
        <source>In the system tray</source>
        <translation>在系統匣中</translation>
    </message>
    <message>
        <source>The folder home\Quillmere on your NAS has already been linked to this PC. We will launch the synced folder when you click Done. Or you can set up a seperate task: %1</source>
        <translation>您 NAS 上的資料夾 home\Quillmere 已與這部電腦建立關聯。按一下「完成」後，將會開啟同步資料夾。您也可以設定另一個同步工作：%1</translation>
    </message>
    <message>
        <source>The port number is invalid. Enter a number from 1 to 65535.</source>
        <translation>連接埠號碼無效。請輸入 1 到 65535 之間的數字。</translation>
    </message>
    <message>
        <source>Quillmere Drive could not be initialized. Please restart your computer and try again.</source>
        <translation>Quillmere Drive 初始化失敗。請重新啟動電腦，然後再試一次。</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>狀態：</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes made on this computer will not be synced to the NAS.</source>
        <translation>您對此資料夾只有唯讀權限。在這部電腦上所做的變更不會同步至 NAS。</translation>
    </message>
    <message>
        <source>The version of Quillmere Drive on this computer is too old for the NAS. Version %1 or later is required.</source>
        <translation>這部電腦上的 Quillmere Drive 版本過舊，無法搭配此 NAS 使用。需要 %1 或以上版本。</translation>
    </message>
    <message>
        <source>Files and folders that match the rules of the file filter will not be synced.</source>
        <translation>符合檔案篩選器規則的檔案和資料夾將不會同步。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]準備修復 [ProductName]</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>繼續同步這些資料夾</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>開啟資料夾</translation>
    </message>
    <message>
        <source>Save a file and it is synced</source>
        <translation>儲存檔案即自動同步</translation>
    </message>
    <message>
        <source>Files that could not be synced</source>
        <translation>無法同步的檔案</translation>
    </message>
    <message>
        <source>The connection to the NAS was lost. Quillmere Drive will try to connect again automatically.</source>
        <translation>與 NAS 的連線已中斷。Quillmere Drive 將自動嘗試重新連線。</translation>
    </message>
    <message>
        <source>Detecting file changes...</source>
        <translation>正在偵測檔案變更...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>連線成功。</translation>
    </message>
    <message>
        <source>The administrator requires two-factor verification for your account. Sign in to the NAS in a web browser and set it up first.</source>
        <translation>管理員要求您的帳戶使用雙重驗證。請先以網頁瀏覽器登入 NAS 並完成設定。</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the permissions on the NAS. Please change the sync direction.</source>
        <translation>此資料夾的同步方向與 NAS 上的權限不符。請變更同步方向。</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}歡迎使用 [ProductName] 安裝精靈</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive. This wizard will help you link this computer to your NAS.</source>
        <translation>歡迎使用 Quillmere Drive。此精靈將協助您在這部電腦與 NAS 之間建立關聯。</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files and folders</source>
        <translation>在已同步的檔案和資料夾上顯示圖示覆疊</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>驗證失敗</translation>
    </message>
    <message>
        <source>An invalid value was entered. Please check your input and try again.</source>
        <translation>輸入的值無效。請檢查您輸入的內容，然後再試一次。</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>所有事件</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>下一步(&amp;N)</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choice.</source>
        <translation>按一下「移除」，從電腦移除 [ProductName]。按一下「上一步」，檢查您的選擇。</translation>
    </message>
    <message>
        <source>Quillmere Drive Server is not running on the NAS. Start it or contact the administrator.</source>
        <translation>NAS 上的 Quillmere Drive Server 未執行。請將其啟動或聯絡管理員。</translation>
    </message>
    <message>
        <source>Open Quillmere Drive</source>
        <translation>開啟 Quillmere Drive</translation>
    </message>
    <message>
        <source>The SSL certificate of this NAS differs from the one saved earlier. Continue only if you trust the new certificate.</source>
        <translation>此 NAS 的 SSL 憑證與先前儲存的憑證不同。請僅在您信任新憑證時繼續。</translation>
    </message>
    <message>
        <source>The selected folder is already synced by another cloud storage program. Please choose a different folder to avoid conflicts.</source>
        <translation>選取的資料夾已由其他雲端儲存程式同步。請選擇其他資料夾以避免衝突。</translation>
    </message>
    <message>
        <source>Right-click the tray icon to open the menu with all commands.</source>
        <translation>以滑鼠右鍵按一下系統匣圖示，即可開啟包含所有命令的功能表。</translation>
    </message>
    <message>
        <source>This folder is being indexed. Syncing will start when indexing is complete.</source>
        <translation>正在為此資料夾建立索引。索引建立完成後即會開始同步。</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>已停用</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>正在檢查資料...</translation>
    </message>
    <message>
        <source>Click Install to begin installing [ProductName]. Click Back to review or change your settings. Click Cancel to exit the wizard.</source>
        <translation>按一下「安裝」，開始安裝 [ProductName]。按一下「上一步」，檢查或變更您的設定。按一下「取消」，結束精靈。</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>正在同步</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>開啟檔案所在的資料夾</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] 沒有可個別選取的功能。</translation>
    </message>
    <message>
        <source>The local folder could not be created. Check the path and your permissions, and then try again.</source>
        <translation>無法建立本機資料夾。請檢查路徑和您的權限，然後再試一次。</translation>
    </message>
    <message>
        <source>NAS address</source>
        <translation>NAS 位址</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. It may have been deleted, or you may not have permission to access it.</source>
        <translation>無法下載此檔案。檔案可能已刪除，或您沒有存取權限。</translation>
    </message>
    <message>
        <source>The IP address of this computer is not allowed to access the NAS. Contact the administrator.</source>
        <translation>NAS 不允許這部電腦的 IP 位址存取。請聯絡管理員。</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>部分需要更新的檔案目前正在使用中。</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最後一頁</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>日期和時間</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>已重新命名</translation>
    </message>
    <message>
        <source>View sync status</source>
        <translation>檢視同步狀態</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>星期日</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]正在安裝 [ProductName]</translation>
    </message>
    <message>
        <source>Enter the names of the files that should not be synced. An asterisk (*) stands for any number of characters.</source>
        <translation>請輸入不要同步的檔案名稱。星號（*）代表任意數目的字元。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>要同步的資料夾</translation>
    </message>
    <message>
        <source>RapidHail</source>
        <translation>RapidHail</translation>
    </message>
    <message>
        <source>Enter the IP address, hostname, or RapidHail ID of your NAS.</source>
        <translation>請輸入 NAS 的 IP 位址、主機名稱或 RapidHail ID。</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>星期三</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>同步新的資料夾</translation>
    </message>
    <message>
        <source>NAS changed</source>
        <translation>NAS 已變更</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
    <message>
        <source>If you disable this folder, it will no longer be synced. The files on this computer will be kept. Do you want to continue?</source>
        <translation>如果停用此資料夾，該資料夾將不再同步，但這部電腦上的檔案會保留。要繼續嗎？</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>開啟檔案</translation>
    </message>
    <message>
        <source>This folder cannot be synced because its path is invalid. Please choose another folder.</source>
        <translation>路徑無效，因此無法同步此資料夾。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>The shared folder on the NAS is not mounted. If it is encrypted, mount it first.</source>
        <translation>NAS 上的共用資料夾尚未掛接。如果該資料夾已加密，請先將其掛接。</translation>
    </message>
    <message>
        <source>Expiration time</source>
        <translation>到期時間</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>使用者名稱</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up.</source>
        <translation>您在 NAS 上的配額已用完。</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please correct them before you continue.</source>
        <translation>部分欄位包含無效的值。請先更正再繼續。</translation>
    </message>
    <message>
        <source>The RapidHail service cannot be reached. Check your internet connection and try again.</source>
        <translation>無法連線至 RapidHail 服務。請檢查網際網路連線，然後再試一次。</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>星期五</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>開啟主視窗</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Proxy 連接埠</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; has been used up. Free up some space to continue syncing.</source>
        <translation>共用資料夾「%1」的配額已用完。請釋出部分空間以繼續同步。</translation>
    </message>
    <message>
        <source>Link to a new NAS</source>
        <translation>與新的 NAS 建立關聯</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>上週</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is too old for this computer. Version %1 or later is required.</source>
        <translation>NAS 上的 Quillmere Drive Server 版本過舊，無法搭配這部電腦使用。需要 %1 或以上版本。</translation>
    </message>
    <message>
        <source>June</source>
        <translation>六月</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a network error. Check your network connection and try again.</source>
        <translation>發生網路錯誤，無法檢查此資料夾。請檢查網路連線，然後再試一次。</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]移除(&amp;M)</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>網際網路</translation>
    </message>
    <message>
        <source>July</source>
        <translation>七月</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>我知道了</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>歡迎</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>從電腦移除 [ProductName]。</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密碼</translation>
    </message>
    <message>
        <source>From</source>
        <translation>從</translation>
    </message>
    <message>
        <source>You can open the synced folder at any time from the Quillmere Drive icon in the system tray.</source>
        <translation>您隨時可以透過系統匣中的 Quillmere Drive 圖示開啟同步資料夾。</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>檔案已更新</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;pair</source>
        <translation>[DlgTitleFont]修復(&amp;P)</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>星期二</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>沒有可用的選項</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>The NAS at this address has changed. Please link this computer again.</source>
        <translation>此位址的 NAS 已變更。請為這部電腦重新建立關聯。</translation>
    </message>
    <message>
        <source>The installation of [ProductName] was interrupted. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>[ProductName] 的安裝已中斷。您的系統未經任何變更。若要稍後安裝此程式，請再次執行安裝程式。</translation>
    </message>
    <message>
        <source>The connection test failed. The username or password is incorrect.</source>
        <translation>連線測試失敗。使用者名稱或密碼不正確。</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>修復(&amp;P)</translation>
    </message>
    <message>
        <source>A sync task has stopped because of an error. Click here for details.</source>
        <translation>同步工作因發生錯誤而停止。按一下這裡以查看詳細資訊。</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and the account that you want to use for syncing.</source>
        <translation>請輸入 NAS 的位址，以及要用於同步的帳戶。</translation>
    </message>
    <message>
        <source>Connect anyway</source>
        <translation>仍要連線</translation>
    </message>
    <message>
        <source>The files on this computer and the files in the shared folder will be merged. If two files have the same name, the newer one is used.</source>
        <translation>這部電腦上的檔案將與共用資料夾中的檔案合併。如果有兩個檔案名稱相同，將使用較新的檔案。</translation>
    </message>
    <message>
        <source>Start Quillmere Drive automatically when I sign in</source>
        <translation>登入時自動啟動 Quillmere Drive</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this link? People who have it will no longer be able to open the file.</source>
        <translation>確定要刪除此連結嗎？擁有此連結的人將無法再開啟該檔案。</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>變更資料夾</translation>
    </message>
    <message>
        <source>The username or password is incorrect, or the account has been disabled.</source>
        <translation>使用者名稱或密碼不正確，或帳戶已停用。</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;do not accept the terms of the license agreement</source>
        <translation>{\DlgFont8}我不接受授權合約的條款(&amp;D)</translation>
    </message>
    <message>
        <source>Right-click a file and select &quot;Share link&quot; to create a link. Send it to anyone who needs the file, even if they have no account on your NAS.</source>
        <translation>以滑鼠右鍵按一下檔案，然後選取「共用連結」以建立連結。將連結傳送給需要該檔案的人，即使對方在您的 NAS 上沒有帳戶也沒問題。</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>同步模式</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps earlier versions of your files. Right-click a file and select &quot;Browse previous versions&quot; to restore one of them.</source>
        <translation>Quillmere Drive 會保留檔案的先前版本。以滑鼠右鍵按一下檔案，然後選取「瀏覽先前的版本」，即可還原其中一個版本。</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>往後 %1 頁</translation>
    </message>
    <message>
        <source>Quillmere Drive is already running. You can find its icon in the system tray.</source>
        <translation>Quillmere Drive 已在執行中。您可以在系統匣中找到它的圖示。</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy 伺服器</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>正在載入共用資料夾...</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>第一頁</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>手動設定 Proxy 伺服器</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>%1 小時前</translation>
    </message>
    <message>
        <source>This folder cannot be synced because of a system error. Please try again later.</source>
        <translation>發生系統錯誤，無法同步此資料夾。請稍後再試一次。</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>按兩下系統匣圖示時</translation>
    </message>
    <message>
        <source>Selective sync by folder</source>
        <translation>依資料夾選擇性同步</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>共用資料夾</translation>
    </message>
    <message>
        <source>Sync with another NAS</source>
        <translation>與其他 NAS 同步</translation>
    </message>
    <message>
        <source>This creates a Quillmere folder on your computer and keeps it synced with your home folder on your Orvane NAS (recommended for personal use).</source>
        <translation>在電腦上建立 Quillmere 資料夾，並與 Orvane NAS 上您的 home 資料夾保持同步（建議用於個人用途）。</translation>
    </message>
    <message>
        <source>Click here to upgrade</source>
        <translation>按一下這裡以升級</translation>
    </message>
    <message>
        <source>April</source>
        <translation>四月</translation>
    </message>
    <message>
        <source>On your computer</source>
        <translation>在您的電腦上</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of [ProductName]?</source>
        <translation>確定要取消安裝 [ProductName] 嗎？</translation>
    </message>
    <message>
        <source>Files and folders excluded from sync</source>
        <translation>不同步的檔案和資料夾</translation>
    </message>
    <message>
        <source>This version of Quillmere Drive is already installed. Do you want to install it again?</source>
        <translation>此版本的 Quillmere Drive 已安裝。要重新安裝嗎？</translation>
    </message>
    <message>
        <source>has been shared. The link was copied to the clipboard.</source>
        <translation>已共用。連結已複製到剪貼簿。</translation>
    </message>
    <message>
        <source>The NAS sent an unexpected response. Make sure that Quillmere Drive and Quillmere Drive Server are both up to date.</source>
        <translation>NAS 傳回非預期的回應。請確認 Quillmere Drive 和 Quillmere Drive Server 都是最新版本。</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>不同步此資料夾</translation>
    </message>
    <message>
        <source>March</source>
        <translation>三月</translation>
    </message>
    <message>
        <source>The RapidHail service encountered a system error. Please try again later.</source>
        <translation>RapidHail 服務發生系統錯誤。請稍後再試一次。</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>選擇性同步</translation>
    </message>
    <message>
        <source>Folder is read-only</source>
        <translation>資料夾為唯讀</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;accept the terms of the license agreement</source>
        <translation>{\DlgFont8}我接受授權合約的條款(&amp;A)</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>同步方向</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>下載歷程記錄</translation>
    </message>
    <message>
        <source>Select a folder on this computer and the shared folder on the NAS that it will be synced with.</source>
        <translation>請選取這部電腦上的資料夾，以及要與其同步的 NAS 共用資料夾。</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>此欄位不可空白。</translation>
    </message>
    <message>
        <source>Choose a shared folder on your NAS that is not yet synced with this computer.</source>
        <translation>請選擇 NAS 上尚未與這部電腦同步的共用資料夾。</translation>
    </message>
    <message>
        <source>How existing files are merged</source>
        <translation>現有檔案的合併方式</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>網路設定</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>刪除連結</translation>
    </message>
    <message>
        <source>This sync task is inactive because the shared folder is not available.</source>
        <translation>共用資料夾無法使用，因此這個同步工作目前未運作。</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>單向下載</translation>
    </message>
    <message>
        <source>Go back to an earlier version</source>
        <translation>還原至先前的版本</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>已上傳</translation>
    </message>
    <message>
        <source>Changes the set of [ProductName] features that are installed.</source>
        <translation>變更已安裝的 [ProductName] 功能。</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>May</source>
        <translation>五月</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>檔案名稱</translation>
    </message>
    <message>
        <source>Link this computer to your NAS in just a few steps.</source>
        <translation>只需幾個步驟，即可在這部電腦與您的 NAS 之間建立關聯。</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>完成(&amp;F)</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>使用 SSL 加密連線</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>連線模式</translation>
    </message>
    <message>
        <source>Keep the file that was modified last</source>
        <translation>保留最後修改的檔案</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編輯</translation>
    </message>
    <message>
        <source>A newer version of Quillmere Drive is already installed. Setup will now close.</source>
        <translation>已安裝較新版本的 Quillmere Drive。安裝程式即將關閉。</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Confirm the new certificate before you select a folder.</source>
        <translation>NAS 的 SSL 憑證已變更。選取資料夾之前，請先確認新的憑證。</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>合併</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>找不到共用資料夾</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>取消關聯</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>本機資料夾</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>選取資料夾</translation>
    </message>
    <message>
        <source>Set up the folder to sync</source>
        <translation>設定要同步的資料夾</translation>
    </message>
    <message>
        <source>Enter the connection settings for your NAS.</source>
        <translation>請輸入 NAS 的連線設定。</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>SSL 憑證警告</translation>
    </message>
    <message>
        <source>Share files with a link</source>
        <translation>透過連結共用檔案</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>檔案類型</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>繼續連線</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>略過(&amp;I)</translation>
    </message>
    <message>
        <source>The maximum file size must be a whole number greater than 0.</source>
        <translation>檔案大小上限必須是大於 0 的整數。</translation>
    </message>
    <message>
        <source>Insufficient permissions</source>
        <translation>權限不足</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>已更新：%1</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive</source>
        <translation>歡迎使用 Quillmere Drive</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>關鍵字</translation>
    </message>
    <message>
        <source>This allows you to specify a folder on your computer to keep synced with a shared folder on your Orvane NAS. (Recommended for teamwork)​.</source>
        <translation>您可以指定電腦上的資料夾，與 Orvane NAS 上的共用資料夾保持同步（建議用於團隊合作）。</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin repairing [ProductName].</source>
        <translation>安裝精靈已準備好開始修復 [ProductName]。</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>套用</translation>
    </message>
    <message>
        <source>A network error occurred. Check your network connection and try again.</source>
        <translation>發生網路錯誤。請檢查網路連線，然後再試一次。</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already being synced. Please choose another folder.</source>
        <translation>此資料夾與已在同步的資料夾重疊。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}[ProductName] 安裝精靈已中斷</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>上一步(&amp;B)</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>開始時間</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>顯示教學課程</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>快速設定模式</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>Links cannot be created over a RapidHail connection because file sharing is disabled on the NAS.</source>
        <translation>NAS 已停用檔案共用，因此無法透過 RapidHail 連線建立連結。</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>管理共用資料夾</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>請仔細閱讀下列授權合約。</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>正在準備...</translation>
    </message>
    <message>
        <source>Keep the version on the NAS and overwrite the one on this computer</source>
        <translation>保留 NAS 上的版本，並覆寫這部電腦上的版本</translation>
    </message>
    <message>
        <source>August</source>
        <translation>八月</translation>
    </message>
    <message>
        <source>Use a RapidHail connection</source>
        <translation>使用 RapidHail 連線</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard ended early</source>
        <translation>{\VerdanaBold13}[ProductName] 安裝精靈已提前結束</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>類型</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up. Files can no longer be uploaded until you free up some space.</source>
        <translation>您在 NAS 上的配額已用完。釋出部分空間之前，將無法再上傳檔案。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]變更(&amp;C)</translation>
    </message>
    <message>
        <source>Set an expiration date for this link</source>
        <translation>設定此連結的到期日</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>變更本機資料夾</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>檔案大小上限</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>移除(&amp;M)</translation>
    </message>
    <message>
        <source>Quillmere Drive is initializing...</source>
        <translation>Quillmere Drive 準備中...</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>雙向同步</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>使用系統的 Proxy 設定</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>正在取消關聯...</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open (a restart will be required)</source>
        <translation>不關閉應用程式（需要重新啟動電腦）(&amp;L)</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard is complete</source>
        <translation>{\VerdanaBold13}[ProductName] 安裝精靈已完成</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>同步工作</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>建立時間</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>啟動 [ProductName]</translation>
    </message>
    <message>
        <source>November</source>
        <translation>十一月</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Proxy 位址</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>最近變更的檔案</translation>
    </message>
    <message>
        <source>Unlink from the NAS</source>
        <translation>取消與 NAS 的關聯</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Please try again later.</source>
        <translation>無法列出此檔案的版本。請稍後再試一次。</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>已被其他程式鎖定</translation>
    </message>
    <message>
        <source>An unknown error occurred. Please try again later.</source>
        <translation>發生不明錯誤。請稍後再試一次。</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified.</source>
        <translation>無法驗證 NAS 的 SSL 憑證。</translation>
    </message>
    <message>
        <source>Checking username and password...</source>
        <translation>正在檢查使用者名稱和密碼...</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>進階設定</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>列印(&amp;P)</translation>
    </message>
    <message>
        <source>February</source>
        <translation>二月</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Quillmere Drive</source>
        <translation>Quillmere Drive</translation>
    </message>
    <message>
        <source>You have read-only access to this shared folder. Files can be downloaded to this computer but not uploaded to the NAS.</source>
        <translation>您對此共用資料夾只有唯讀權限。可將檔案下載至這部電腦，但無法上傳至 NAS。</translation>
    </message>
    <message>
        <source>The drive that contains the local folder is not mounted. Connect the drive to continue syncing.</source>
        <translation>本機資料夾所在的磁碟機尚未掛接。請連接磁碟機以繼續同步。</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>目的地</translation>
    </message>
    <message>
        <source>Search the local network for an Orvane NAS.</source>
        <translation>在區域網路上搜尋 Orvane NAS。</translation>
    </message>
    <message>
        <source>Storage full</source>
        <translation>儲存空間已滿</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>NAS 總覽</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>直接連線</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>已下載</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxy 設定</translation>
    </message>
    <message>
        <source>Unstable connection</source>
        <translation>連線不穩定</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync this folder. Free up some space or choose another folder.</source>
        <translation>這部電腦的可用空間不足，無法同步此資料夾。請釋出部分空間或選擇其他資料夾。</translation>
    </message>
    <message>
        <source>Use a black and white tray icon</source>
        <translation>使用黑白的系統匣圖示</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>同步歷程記錄</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>下載已取消。</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>下列應用程式正在使用安裝程式需要更新的檔案。請關閉這些應用程式，然後按一下「重試」以繼續。</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>安裝(&amp;I)</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please wait a few minutes before you try again.</source>
        <translation>失敗次數過多。請稍候幾分鐘再試一次。</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>一切就緒</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在載入...</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>不用了，謝謝</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>新的共用資料夾</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>結束(&amp;X)</translation>
    </message>
    <message>
        <source>You can let Setup close the applications listed below and try to restart them afterward.</source>
        <translation>您可以讓安裝程式關閉下列應用程式，並在之後嘗試重新啟動這些應用程式。</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change the way [ProductName] is installed or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>安裝精靈可讓您變更 [ProductName] 的安裝方式，或從電腦移除該程式。按一下「下一步」繼續，或按一下「取消」結束。</translation>
    </message>
    <message>
        <source>Try syncing a file</source>
        <translation>試試同步檔案</translation>
    </message>
    <message>
        <source>No data to display</source>
        <translation>沒有可顯示的資料</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>%1 天前</translation>
    </message>
    <message>
        <source>You can now sync the shared folder &quot;%1&quot;. Click here to enable it.</source>
        <translation>您現在可以同步共用資料夾「%1」。按一下這裡以啟用。</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>正在上傳...</translation>
    </message>
    <message>
        <source>Your Quillmere folder is ready. Drop files into it and they will be synced with your NAS.</source>
        <translation>您的 Quillmere 資料夾已準備完成。只要將檔案放入其中，即會與 NAS 同步。</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>沒有可同步的資料夾。</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>往前 %1 頁</translation>
    </message>
    <message>
        <source>The verification code is invalid. Please check the code and try again.</source>
        <translation>驗證碼無效。請檢查驗證碼，然後再試一次。</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>The selected folder is on a network drive. Changes made there by other computers may not be detected immediately.</source>
        <translation>選取的資料夾位於網路磁碟機上。可能無法立即偵測到其他電腦在此資料夾中所做的變更。</translation>
    </message>
    <message>
        <source>Show icon overlays on files excluded by the file filter</source>
        <translation>在檔案篩選器排除的檔案上顯示圖示覆疊</translation>
    </message>
    <message>
        <source>Files to sync</source>
        <translation>要同步的檔案</translation>
    </message>
    <message>
        <source>File</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>共用連結</translation>
    </message>
    <message>
        <source>Detecting connection mode...</source>
        <translation>正在偵測連線模式...</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>自訂有效期限</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>搜尋區域網路上的 NAS 裝置</translation>
    </message>
    <message>
        <source>The proxy address and port cannot be empty.</source>
        <translation>Proxy 位址和連接埠不可空白。</translation>
    </message>
    <message>
        <source>You can also protect a link with a password or set an expiration date.</source>
        <translation>您也可以使用密碼保護連結，或設定到期日。</translation>
    </message>
    <message>
        <source>All your files, always at hand</source>
        <translation>所有檔案，隨手可得</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>到期日</translation>
    </message>
    <message>
        <source>September</source>
        <translation>九月</translation>
    </message>
    <message>
        <source>Create a Quillmere folder on this computer</source>
        <translation>在這部電腦上建立 Quillmere 資料夾</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>進階設定精靈</translation>
    </message>
    <message>
        <source>The selected folder is already part of a sync task on this computer.</source>
        <translation>選取的資料夾已屬於這部電腦上的某個同步工作。</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>%1 分鐘前</translation>
    </message>
    <message>
        <source>This shared folder is already synced with the folder &quot;%1&quot; on this computer.</source>
        <translation>此共用資料夾已與這部電腦上的資料夾「%1」同步。</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>NAS 上的可用空間不足。</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>Click Repair to restore missing or damaged files, shortcuts, and registry entries. Click Back to review your choice.</source>
        <translation>按一下「修復」，還原遺失或損毀的檔案、捷徑和登錄項目。按一下「上一步」，檢查您的選擇。</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>系統預設</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>不要再顯示此訊息</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by restoring missing or damaged files, shortcuts, and registry entries.</source>
        <translation>還原遺失或損毀的檔案、捷徑和登錄項目，以修復最近一次安裝中的錯誤。</translation>
    </message>
    <message>
        <source>Number of times the link can be opened</source>
        <translation>連結可開啟的次數</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified. The folder cannot be selected until the certificate is trusted.</source>
        <translation>無法驗證 NAS 的 SSL 憑證。信任該憑證之前，無法選取此資料夾。</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>密碼保護</translation>
    </message>
    <message>
        <source>The SSL certificate could not be verified. It may be self-signed, expired, or issued for another hostname.</source>
        <translation>無法驗證 SSL 憑證。憑證可能是自我簽署、已過期，或核發給其他主機名稱。</translation>
    </message>
    <message>
        <source>Please update Quillmere Drive Server on the NAS to use selective sync.</source>
        <translation>若要使用選擇性同步，請更新 NAS 上的 Quillmere Drive Server。</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up some space to continue syncing.</source>
        <translation>這部電腦的可用空間不足。請釋出部分空間以繼續同步。</translation>
    </message>
    <message>
        <source>The selected folder is used by a backup task. Syncing it may cause conflicts.</source>
        <translation>選取的資料夾正由備份工作使用。同步此資料夾可能會造成衝突。</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜尋</translation>
    </message>
    <message>
        <source>One-way sync from the NAS to this computer</source>
        <translation>從 NAS 單向同步至這部電腦</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>僅下載</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>這部電腦的可用空間不足。</translation>
    </message>
    <message>
        <source>Blocked by:</source>
        <translation>遭下列項目封鎖：</translation>
    </message>
    <message>
        <source>This computer is linked to your NAS, and your files are now being synced.</source>
        <translation>這部電腦已與您的 NAS 建立關聯，現在正在同步您的檔案。</translation>
    </message>
    <message>
        <source>The RapidHail ID is invalid or does not exist.</source>
        <translation>RapidHail ID 無效或不存在。</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>待命</translation>
    </message>
    <message>
        <source>Remove the program from this computer</source>
        <translation>從這部電腦移除程式</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established because of an SSL error.</source>
        <translation>發生 SSL 錯誤，無法與 NAS 建立安全連線。</translation>
    </message>
    <message>
        <source>General settings</source>
        <translation>一般設定</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>顯示桌面通知</translation>
    </message>
    <message>
        <source>Selective sync by file type</source>
        <translation>依檔案類型選擇性同步</translation>
    </message>
    <message>
        <source>December</source>
        <translation>十二月</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is outdated. Please ask the administrator to update it to version %1 or later.</source>
        <translation>NAS 上的 Quillmere Drive Server 版本過舊。請聯絡管理員將其更新至 %1 或以上版本。</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>變更已安裝的功能</translation>
    </message>
    <message>
        <source>If you no longer need the program, you can remove it now. Your synced files will be kept on this computer.</source>
        <translation>如果您不再需要此程式，可以立即移除。已同步的檔案會保留在這部電腦上。</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be merged with the files in the shared folder.</source>
        <translation>選取的資料夾不是空的。其中的檔案將與共用資料夾中的檔案合併。</translation>
    </message>
    <message>
        <source>The link could not be deleted. Please try again later.</source>
        <translation>無法刪除連結。請稍後再試一次。</translation>
    </message>
    <message>
        <source>A link cannot be created for this file. Make sure that it has been synced to the NAS.</source>
        <translation>無法為此檔案建立連結。請確認檔案已同步至 NAS。</translation>
    </message>
    <message>
        <source>Check all file attributes for changes</source>
        <translation>檢查所有檔案屬性是否有變更</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove the installation</source>
        <translation>[DlgTitleFont]變更、修復或移除安裝</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>星期一</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>選取的資料夾為唯讀。請選擇您可以寫入的資料夾。</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the sync task &quot;%1&quot;? The files on this computer and on the NAS will be kept.</source>
        <translation>確定要移除同步工作「%1」嗎？這部電腦和 NAS 上的檔案都會保留。</translation>
    </message>
    <message>
        <source>Limit how often this link can be opened</source>
        <translation>限制此連結可開啟的次數</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>共用資料夾</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps the folders on your computers in sync with your Orvane NAS.</source>
        <translation>Quillmere Drive 可讓您電腦上的資料夾與 Orvane NAS 保持同步。</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>輸入驗證碼</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>副檔名</translation>
    </message>
    <message>
        <source>The username cannot be empty.</source>
        <translation>使用者名稱不可空白。</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>資料夾路徑</translation>
    </message>
    <message>
        <source>Folder already linked</source>
        <translation>資料夾已建立關聯</translation>
    </message>
    <message>
        <source>The maximum length of this field is %1 characters.</source>
        <translation>此欄位的長度上限為 %1 個字元。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from &quot;%1&quot;? Syncing will stop, but your files will be kept.</source>
        <translation>確定要取消這部電腦與「%1」的關聯嗎？同步將會停止，但您的檔案會保留。</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>進階設定模式</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>自訂範圍</translation>
    </message>
    <message>
        <source>You have reached the maximum of %1 sync tasks. Remove a sync task before you add another one.</source>
        <translation>您的同步工作已達 %1 個的上限。請先移除某個同步工作，再新增其他同步工作。</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>資料夾名稱</translation>
    </message>
    <message>
        <source>Quillmere Drive is being upgraded. Please wait...</source>
        <translation>正在升級 Quillmere Drive，請稍候...</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to keep synced with your NAS.</source>
        <translation>請選取這部電腦上要與 NAS 保持同步的資料夾。</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>正在測試連線...</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>正在同步：%1</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS. Contact the administrator.</source>
        <translation>共用資料夾未在 NAS 上掛接。請聯絡管理員。</translation>
    </message>
    <message>
        <source>Keep your files in sync between this computer and your NAS, and reach them wherever you are.</source>
        <translation>讓這部電腦與 NAS 之間的檔案保持同步，無論身在何處都能隨時存取。</translation>
    </message>
    <message>
        <source>Your account is protected by two-factor verification. Please enter the verification code to continue.</source>
        <translation>您的帳戶受雙重驗證保護。請輸入驗證碼以繼續。</translation>
    </message>
    <message>
        <source>Edit file filter</source>
        <translation>編輯檔案篩選器</translation>
    </message>
    <message>
        <source>Open the synced folder</source>
        <translation>開啟同步資料夾</translation>
    </message>
    <message>
        <source>File names to exclude</source>
        <translation>要排除的檔案名稱</translation>
    </message>
    <message>
        <source>File path</source>
        <translation>檔案路徑</translation>
    </message>
    <message>
        <source>To</source>
        <translation>到</translation>
    </message>
    <message>
        <source>January</source>
        <translation>一月</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>不使用 Proxy 伺服器</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync with this computer.</source>
        <translation>請選取 NAS 上要與這部電腦同步的共用資料夾。</translation>
    </message>
    <message>
        <source>This shared folder does not exist on the NAS. It may have been renamed or deleted.</source>
        <translation>NAS 上沒有此共用資料夾。該資料夾可能已重新命名或刪除。</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Server not running</source>
        <translation>伺服器未執行</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>安裝精靈將在您的電腦上安裝 [ProductName]。按一下「下一步」繼續，或按一下「取消」結束。</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>同步工作</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>安裝精靈已準備好開始安裝。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Syncing %1 file(s)</source>
        <translation>正在同步 %1 個檔案</translation>
    </message>
    <message>
        <source>&amp;Close the applications and try to restart them</source>
        <translation>關閉應用程式並嘗試重新啟動(&amp;C)</translation>
    </message>
    <message>
        <source>Please wait. The requested changes are being made.</source>
        <translation>請稍候。正在進行您要求的變更。</translation>
    </message>
    <message>
        <source>Upgrade available</source>
        <translation>有新版本可升級</translation>
    </message>
    <message>
        <source>Repair the current installation</source>
        <translation>修復目前的安裝</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>正在升級...</translation>
    </message>
    <message>
        <source>Set up a separate sync task</source>
        <translation>設定另一個同步工作</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>未變更任何設定。</translation>
    </message>
</context>
</TS>
