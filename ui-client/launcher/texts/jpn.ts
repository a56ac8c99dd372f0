<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Keep your data safe and synced at all times</source>
        <translation>大切なデータを、いつも安全に、いつも同期</translation>
    </message>
    <message>
        <source>The quota on the NAS has been used up. Free up some space or ask the administrator to raise your quota, and then select the folder again.</source>
        <translation>NASのクォータを使い切りました。空き領域を増やすか、管理者にクォータの引き上げを依頼してから、もう一度フォルダーを選択してください。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-user license agreement</source>
        <translation>[DlgTitleFont]エンドユーザー使用許諾契約</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>セットアップモードを選択</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] のインストール準備完了</translation>
    </message>
    <message>
        <source>This shared folder has been disabled for your account. Contact the administrator of the NAS to regain access.</source>
        <translation>この共有フォルダーは、お使いのアカウントでは無効になっています。再びアクセスできるようにするには、NASの管理者にお問い合わせください。</translation>
    </message>
    <message>
        <source>Merge the folders</source>
        <translation>フォルダーを統合</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>共有リンク</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>同期エラー</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>「完了」ボタンをクリックして、セットアップウィザードを終了してください。</translation>
    </message>
    <message>
        <source>Set a start date for this link</source>
        <translation>このリンクの開始日を設定する</translation>
    </message>
    <message>
        <source>The local sync database cannot be read. Restart Quillmere Drive. If the problem persists, link this computer again.</source>
        <translation>ローカルの同期データベースを読み取れません。Quillmere Drive を再起動してください。問題が解決しない場合は、このコンピューターをもう一度NASに関連付けてください。</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>同期するフォルダーを選択</translation>
    </message>
    <message>
        <source>Every file you put in a synced folder is copied to your NAS automatically. Just save your work and let Quillmere Drive do the rest.</source>
        <translation>同期フォルダーに入れたファイルは、すべて自動的にNASにコピーされます。ファイルを保存するだけで、あとはQuillmere Drive にお任せください。</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>再試行(&amp;R)</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>これらのフォルダーを同期から除外</translation>
    </message>
    <message>
        <source>The local folder of this sync task cannot be found. It may have been moved, renamed, or deleted.</source>
        <translation>この同期タスクのローカルフォルダーが見つかりません。移動、名前の変更、または削除された可能性があります。</translation>
    </message>
    <message>
        <source>Quillmere Drive is starting...</source>
        <translation>Quillmere Drive を起動しています...</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>設定を適用しています...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Make sure that Quillmere Drive Server is installed and running on your NAS before you continue.</source>
        <translation>続行する前に、NASにQuillmere Drive Server がインストールされ、実行されていることを確認してください。</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>新しい言語設定を適用するには、%1 を再起動してください。</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>ダウンロード中...</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>バージョンの不一致</translation>
    </message>
    <message>
        <source>The icon in the system tray shows the sync status at a glance. Click it to pause syncing, view recent changes, or open the settings.</source>
        <translation>システムトレイのアイコンで、同期の状態がひと目でわかります。クリックすると、同期の一時停止、最近の変更の確認、設定の表示ができます。</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>Keep both versions and rename the conflicting file</source>
        <translation>両方のバージョンを保持し、競合するファイルの名前を変更する</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>サポートされていないマウントポイント</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>関連付け中...</translation>
    </message>
    <message>
        <source>About Quillmere Drive</source>
        <translation>Quillmere Drive について</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>以前のバージョンを参照</translation>
    </message>
    <message>
        <source>The Setup Wizard for [ProductName] stopped early because of an error. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>エラーが発生したため、[ProductName] のセットアップウィザードは途中で終了しました。システムは変更されていません。後でインストールするには、セットアップをもう一度実行してください。</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>接続情報</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS. Free up some space to continue syncing.</source>
        <translation>NASの空き領域が不足しています。同期を続けるには、空き領域を増やしてください。</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>非アクティブ</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>The selected folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>選択したフォルダーはマウントポイントのため、同期できません。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Upgrade now</source>
        <translation>今すぐアップグレード</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>コンピューター名</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>状態情報</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] セットアップ</translation>
    </message>
    <message>
        <source>Open the management page</source>
        <translation>管理ページを開く</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]使用中のファイル</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>木曜日</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>[ProductName] をインストールしています。しばらくお待ちください。この処理には数分かかることがあります。</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>土曜日</translation>
    </message>
    <message>
        <source>Link expires after</source>
        <translation>リンクの有効期間</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to leave this page without saving them?</source>
        <translation>保存されていない変更があります。保存せずにこのページを離れますか？</translation>
    </message>
    <message>
        <source>Select the operation that you want to perform.</source>
        <translation>実行する操作を選択してください。</translation>
    </message>
    <message>
        <source>This file was changed on the computer and on the NAS at the same time, and the conflict could not be resolved.</source>
        <translation>このファイルはコンピューターとNASで同時に変更され、競合を解決できませんでした。</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>ローカルネットワーク</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>最新の状態</translation>
    </message>
    <message>
        <source>A sync task named &quot;%1&quot; already exists. Please enter another name.</source>
        <translation>「%1」という名前の同期タスクはすでに存在します。別の名前を入力してください。</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder. Please choose another folder or contact the administrator.</source>
        <translation>このフォルダーへのアクセス許可がありません。別のフォルダーを選択するか、管理者にお問い合わせください。</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>もう一度関連付ける</translation>
    </message>
    <message>
        <source>Select how you want to sync files between this computer and your NAS. You can add more sync tasks later.</source>
        <translation>このコンピューターとNASの間でファイルを同期する方法を選択してください。同期タスクは後から追加できます。</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>プロキシサーバーに認証が必要</translation>
    </message>
    <message>
        <source>Choose what happens when the same file has been changed on the computer and on the NAS.</source>
        <translation>コンピューターとNASで同じファイルが変更された場合の処理を選択してください。</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>別のフォルダーを選択</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] の削除準備完了</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Check the certificate before you connect again.</source>
        <translation>NASのSSL証明書が変更されました。再度接続する前に、証明書を確認してください。</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>先月</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>期間</translation>
    </message>
    <message>
        <source>The download failed. Please try again later.</source>
        <translation>ダウンロードに失敗しました。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>セットアップが完了しました。</translation>
    </message>
    <message>
        <source>Quillmere Drive on this computer is outdated. Please update it to version %1 or later.</source>
        <translation>このコンピューターのQuillmere Drive は古いバージョンです。バージョン%1以降にアップデートしてください。</translation>
    </message>
    <message>
        <source>This computer is now linked to your NAS. Syncing starts as soon as you close the wizard.</source>
        <translation>このコンピューターがNASに関連付けられました。ウィザードを閉じると、すぐに同期が始まります。</translation>
    </message>
    <message>
        <source>Enable sync for this shared folder</source>
        <translation>この共有フォルダーの同期を有効にする</translation>
    </message>
    <message>
        <source>Download complete</source>
        <translation>ダウンロード完了</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>このフォルダーの同期を再開</translation>
    </message>
    <message>
        <source>Setup is in progress. Please wait...</source>
        <translation>セットアップを実行しています。お待ちください...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>たった今</translation>
    </message>
    <message>
        <source>This computer is already linked to the same NAS. Edit the existing connection instead.</source>
        <translation>このコンピューターは、すでに同じNASに関連付けられています。既存の接続を編集してください。</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>%1件</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>接続を一時停止</translation>
    </message>
    <message>
        <source>Quillmere Drive is ready.</source>
        <translation>Quillmere Drive は準備完了です。</translation>
    </message>
    <message>
        <source>Keep an eye on the system tray</source>
        <translation>システムトレイで状態をチェック</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>詳細情報</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. The copies on the NAS will be kept. Do you want to continue?</source>
        <translation>ここで選択を解除したフォルダーは、このコンピューターから削除されます。NAS上のコピーは保持されます。続行しますか？</translation>
    </message>
    <message>
        <source>October</source>
        <translation>10月</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>フォルダーが空ではありません</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Restrict access to this link</source>
        <translation>このリンクへのアクセスを制限</translation>
    </message>
    <message>
        <source>The link could not be created. Make sure that file sharing is enabled in Quillmere Drive Server.</source>
        <translation>リンクを作成できませんでした。Quillmere Drive Server でファイル共有が有効になっていることを確認してください。</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>その他のチュートリアル</translation>
    </message>
    <message>
        <source>Setup requires administrator rights. Do you want to restart it as an administrator?</source>
        <translation>セットアップには管理者権限が必要です。管理者として再起動しますか？</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Copy to:</source>
        <translation>コピー先：</translation>
    </message>
    <message>
        <source>No previous versions of this file are available.</source>
        <translation>このファイルには以前のバージョンがありません。</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>今すぐ開始</translation>
    </message>
    <message>
        <source>The NAS at this address is not the one that this computer was linked to. Check the address or link the computer again.</source>
        <translation>このアドレスのNASは、このコンピューターが関連付けられていたNASではありません。アドレスを確認するか、コンピューターをもう一度関連付けてください。</translation>
    </message>
    <message>
        <source>The upgrade failed. Please download the latest version and install it manually.</source>
        <translation>アップグレードに失敗しました。最新バージョンをダウンロードし、手動でインストールしてください。</translation>
    </message>
    <message>
        <source>Add sync task</source>
        <translation>同期タスクを追加</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>開始日</translation>
    </message>
    <message>
        <source>This shared folder could not be enabled for syncing. Please try again later.</source>
        <translation>この共有フォルダーの同期を有効にできませんでした。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>In the system tray</source>
        <translation>システムトレイ</translation>
    </message>
    <message>
        <source>The folder home\Quillmere on your NAS has already been linked to this PC. We will launch the synced folder when you click Done. Or you can set up a seperate task: %1</source>
        <translation>NASのフォルダー「home\Quillmere」は、すでにこのPCに関連付けられています。「完了」をクリックすると、同期フォルダーが開きます。別のタスクを設定することもできます：%1</translation>
    </message>
    <message>
        <source>The port number is invalid. Enter a number from 1 to 65535.</source>
        <translation>ポート番号が無効です。1から65535までの数値を入力してください。</translation>
    </message>
    <message>
        <source>Quillmere Drive could not be initialized. Please restart your computer and try again.</source>
        <translation>Quillmere Drive を初期化できませんでした。コンピューターを再起動して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>状態：</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes made on this computer will not be synced to the NAS.</source>
        <translation>このフォルダーへのアクセスは読み取り専用です。このコンピューターで行った変更は、NASに同期されません。</translation>
    </message>
    <message>
        <source>The version of Quillmere Drive on this computer is too old for the NAS. Version %1 or later is required.</source>
        <translation>このコンピューターのQuillmere Drive は、このNASで使用するには古すぎます。バージョン%1以降が必要です。</translation>
    </message>
    <message>
        <source>Files and folders that match the rules of the file filter will not be synced.</source>
        <translation>ファイルフィルターのルールに一致するファイルとフォルダーは同期されません。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] の修復準備完了</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>これらのフォルダーの同期を再開</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>Save a file and it is synced</source>
        <translation>保存するだけでファイルを同期</translation>
    </message>
    <message>
        <source>Files that could not be synced</source>
        <translation>同期できなかったファイル</translation>
    </message>
    <message>
        <source>The connection to the NAS was lost. Quillmere Drive will try to connect again automatically.</source>
        <translation>NASとの接続が切断されました。Quillmere Drive は自動的に再接続を試みます。</translation>
    </message>
    <message>
        <source>Detecting file changes...</source>
        <translation>ファイルの変更を検出しています...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>接続に成功しました。</translation>
    </message>
    <message>
        <source>The administrator requires two-factor verification for your account. Sign in to the NAS in a web browser and set it up first.</source>
        <translation>管理者により、お使いのアカウントに2要素認証が義務付けられています。WebブラウザーでNASにサインインし、先に設定を行ってください。</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the permissions on the NAS. Please change the sync direction.</source>
        <translation>このフォルダーの同期方向が、NASのアクセス許可と一致していません。同期方向を変更してください。</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}[ProductName] セットアップウィザードへようこそ</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive. This wizard will help you link this computer to your NAS.</source>
        <translation>Quillmere Drive へようこそ。このウィザードでは、このコンピューターをNASに関連付けます。</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files and folders</source>
        <translation>同期したファイルとフォルダーにアイコンオーバーレイを表示する</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>認証に失敗しました</translation>
    </message>
    <message>
        <source>An invalid value was entered. Please check your input and try again.</source>
        <translation>無効な値が入力されました。入力内容を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>すべてのイベント</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>次へ(&amp;N)</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choice.</source>
        <translation>[ProductName] をコンピューターから削除するには、「削除」をクリックしてください。選択内容を確認するには、「戻る」をクリックしてください。</translation>
    </message>
    <message>
        <source>Quillmere Drive Server is not running on the NAS. Start it or contact the administrator.</source>
        <translation>NASでQuillmere Drive Server が実行されていません。起動するか、管理者にお問い合わせください。</translation>
    </message>
    <message>
        <source>Open Quillmere Drive</source>
        <translation>Quillmere Drive を開く</translation>
    </message>
    <message>
        <source>The SSL certificate of this NAS differs from the one saved earlier. Continue only if you trust the new certificate.</source>
        <translation>このNASのSSL証明書は、以前に保存されたものと異なります。新しい証明書を信頼する場合のみ続行してください。</translation>
    </message>
    <message>
        <source>The selected folder is already synced by another cloud storage program. Please choose a different folder to avoid conflicts.</source>
        <translation>選択したフォルダーは、すでに別のクラウドストレージプログラムで同期されています。競合を避けるため、別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Right-click the tray icon to open the menu with all commands.</source>
        <translation>トレイアイコンを右クリックすると、すべてのコマンドを含むメニューが開きます。</translation>
    </message>
    <message>
        <source>This folder is being indexed. Syncing will start when indexing is complete.</source>
        <translation>このフォルダーのインデックスを作成しています。完了すると同期が始まります。</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続行</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>データを確認しています...</translation>
    </message>
    <message>
        <source>Click Install to begin installing [ProductName]. Click Back to review or change your settings. Click Cancel to exit the wizard.</source>
        <translation>[ProductName] のインストールを開始するには、「インストール」をクリックしてください。設定を確認または変更するには、「戻る」をクリックしてください。ウィザードを終了するには、「キャンセル」をクリックしてください。</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>同期中</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>ファイルの場所を開く</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] には、個別に選択できる機能はありません。</translation>
    </message>
    <message>
        <source>The local folder could not be created. Check the path and your permissions, and then try again.</source>
        <translation>ローカルフォルダーを作成できませんでした。パスとアクセス許可を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>NAS address</source>
        <translation>NASのアドレス</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. It may have been deleted, or you may not have permission to access it.</source>
        <translation>このファイルをダウンロードできません。ファイルが削除されたか、アクセス許可がない可能性があります。</translation>
    </message>
    <message>
        <source>The IP address of this computer is not allowed to access the NAS. Contact the administrator.</source>
        <translation>このコンピューターのIPアドレスからNASへのアクセスは許可されていません。管理者にお問い合わせください。</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>更新が必要なファイルの一部が、現在使用されています。</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最後のページ</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>名前の変更</translation>
    </message>
    <message>
        <source>View sync status</source>
        <translation>同期の状態を表示</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>日曜日</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] をインストールしています</translation>
    </message>
    <message>
        <source>Enter the names of the files that should not be synced. An asterisk (*) stands for any number of characters.</source>
        <translation>同期しないファイルの名前を入力してください。アスタリスク（*）は任意の数の文字を表します。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>同期するフォルダー</translation>
    </message>
    <message>
        <source>RapidHail</source>
        <translation>RapidHail</translation>
    </message>
    <message>
        <source>Enter the IP address, hostname, or RapidHail ID of your NAS.</source>
        <translation>NASのIPアドレス、ホスト名、またはRapidHail IDを入力してください。</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>水曜日</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>新しいフォルダーを同期</translation>
    </message>
    <message>
        <source>NAS changed</source>
        <translation>NASが変更されました</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>If you disable this folder, it will no longer be synced. The files on this computer will be kept. Do you want to continue?</source>
        <translation>このフォルダーを無効にすると、同期されなくなります。このコンピューター上のファイルは保持されます。続行しますか？</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>ファイルを開く</translation>
    </message>
    <message>
        <source>This folder cannot be synced because its path is invalid. Please choose another folder.</source>
        <translation>パスが無効なため、このフォルダーは同期できません。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>The shared folder on the NAS is not mounted. If it is encrypted, mount it first.</source>
        <translation>NASの共有フォルダーがマウントされていません。暗号化されている場合は、先にマウントしてください。</translation>
    </message>
    <message>
        <source>Expiration time</source>
        <translation>有効期限の時刻</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up.</source>
        <translation>NASのクォータを使い切りました。</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please correct them before you continue.</source>
        <translation>無効な値が入力されている項目があります。修正してから続行してください。</translation>
    </message>
    <message>
        <source>The RapidHail service cannot be reached. Check your internet connection and try again.</source>
        <translation>RapidHailサービスに接続できません。インターネット接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>金曜日</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>メインウィンドウを開く</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>プロキシのポート</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; has been used up. Free up some space to continue syncing.</source>
        <translation>共有フォルダー「%1」のクォータを使い切りました。同期を続けるには、空き領域を増やしてください。</translation>
    </message>
    <message>
        <source>Link to a new NAS</source>
        <translation>新しいNASに関連付ける</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>先週</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is too old for this computer. Version %1 or later is required.</source>
        <translation>NASのQuillmere Drive Server は、このコンピューターで使用するには古すぎます。バージョン%1以降が必要です。</translation>
    </message>
    <message>
        <source>June</source>
        <translation>6月</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a network error. Check your network connection and try again.</source>
        <translation>ネットワークエラーのため、フォルダーを確認できません。ネットワーク接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]削除(&amp;M)</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>インターネット</translation>
    </message>
    <message>
        <source>July</source>
        <translation>7月</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>了解</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>ようこそ</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>[ProductName] をコンピューターから削除します。</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>From</source>
        <translation>開始日</translation>
    </message>
    <message>
        <source>You can open the synced folder at any time from the Quillmere Drive icon in the system tray.</source>
        <translation>システムトレイのQuillmere Drive アイコンから、いつでも同期フォルダーを開くことができます。</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>更新されたファイル</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;pair</source>
        <translation>[DlgTitleFont]修復(&amp;P)</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>火曜日</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>利用できるオプションがありません</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>The NAS at this address has changed. Please link this computer again.</source>
        <translation>このアドレスのNASが変更されました。このコンピューターをもう一度関連付けてください。</translation>
    </message>
    <message>
        <source>The installation of [ProductName] was interrupted. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>[ProductName] のインストールは中断されました。システムは変更されていません。後でインストールするには、セットアップをもう一度実行してください。</translation>
    </message>
    <message>
        <source>The connection test failed. The username or password is incorrect.</source>
        <translation>接続テストに失敗しました。ユーザー名またはパスワードが正しくありません。</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>修復(&amp;P)</translation>
    </message>
    <message>
        <source>A sync task has stopped because of an error. Click here for details.</source>
        <translation>エラーのため、同期タスクが停止しました。詳細を確認するには、ここをクリックしてください。</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and the account that you want to use for syncing.</source>
        <translation>NASのアドレスと、同期に使用するアカウントを入力してください。</translation>
    </message>
    <message>
        <source>Connect anyway</source>
        <translation>このまま接続</translation>
    </message>
    <message>
        <source>The files on this computer and the files in the shared folder will be merged. If two files have the same name, the newer one is used.</source>
        <translation>このコンピューター上のファイルと共有フォルダー内のファイルが統合されます。同じ名前のファイルがある場合は、新しい方のファイルが使用されます。</translation>
    </message>
    <message>
        <source>Start Quillmere Drive automatically when I sign in</source>
        <translation>サインイン時にQuillmere Drive を自動的に起動する</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this link? People who have it will no longer be able to open the file.</source>
        <translation>このリンクを削除しますか？リンクを知っている人は、ファイルを開けなくなります。</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>フォルダーを変更</translation>
    </message>
    <message>
        <source>The username or password is incorrect, or the account has been disabled.</source>
        <translation>ユーザー名またはパスワードが正しくないか、アカウントが無効になっています。</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;do not accept the terms of the license agreement</source>
        <translation>{\DlgFont8}使用許諾契約の条項に同意しません(&amp;D)</translation>
    </message>
    <message>
        <source>Right-click a file and select &quot;Share link&quot; to create a link. Send it to anyone who needs the file, even if they have no account on your NAS.</source>
        <translation>ファイルを右クリックし、「リンクを共有」を選択してリンクを作成します。NASのアカウントを持っていない相手にも、リンクを送るだけでファイルを渡せます。</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>同期モード</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps earlier versions of your files. Right-click a file and select &quot;Browse previous versions&quot; to restore one of them.</source>
        <translation>Quillmere Drive は、ファイルの以前のバージョンを保存しています。復元するには、ファイルを右クリックし、「以前のバージョンを参照」を選択してください。</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>次の%1ページ</translation>
    </message>
    <message>
        <source>Quillmere Drive is already running. You can find its icon in the system tray.</source>
        <translation>Quillmere Drive はすでに実行されています。システムトレイのアイコンをご確認ください。</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>プロキシ</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>共有フォルダーを読み込んでいます...</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>最初のページ</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>プロキシを手動で設定する</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>%1時間前</translation>
    </message>
    <message>
        <source>This folder cannot be synced because of a system error. Please try again later.</source>
        <translation>システムエラーのため、このフォルダーを同期できません。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>トレイアイコンをダブルクリックしたときの動作</translation>
    </message>
    <message>
        <source>Selective sync by folder</source>
        <translation>フォルダー別の選択型同期</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>共有フォルダー</translation>
    </message>
    <message>
        <source>Sync with another NAS</source>
        <translation>別のNASと同期</translation>
    </message>
    <message>
        <source>This creates a Quillmere folder on your computer and keeps it synced with your home folder on your Orvane NAS (recommended for personal use).</source>
        <translation>コンピューターにQuillmereフォルダーを作成し、Orvane NASのホームフォルダーと常に同期します（個人での使用におすすめ）。</translation>
    </message>
    <message>
        <source>Click here to upgrade</source>
        <translation>ここをクリックしてアップグレード</translation>
    </message>
    <message>
        <source>April</source>
        <translation>4月</translation>
    </message>
    <message>
        <source>On your computer</source>
        <translation>コンピューター</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of [ProductName]?</source>
        <translation>[ProductName] のインストールをキャンセルしますか？</translation>
    </message>
    <message>
        <source>Files and folders excluded from sync</source>
        <translation>同期から除外するファイルとフォルダー</translation>
    </message>
    <message>
        <source>This version of Quillmere Drive is already installed. Do you want to install it again?</source>
        <translation>このバージョンのQuillmere Drive はすでにインストールされています。もう一度インストールしますか？</translation>
    </message>
    <message>
        <source>has been shared. The link was copied to the clipboard.</source>
        <translation>を共有しました。リンクをクリップボードにコピーしました。</translation>
    </message>
    <message>
        <source>The NAS sent an unexpected response. Make sure that Quillmere Drive and Quillmere Drive Server are both up to date.</source>
        <translation>NASから予期しない応答がありました。Quillmere Drive とQuillmere Drive Server の両方が最新であることを確認してください。</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>このフォルダーを同期から除外</translation>
    </message>
    <message>
        <source>March</source>
        <translation>3月</translation>
    </message>
    <message>
        <source>The RapidHail service encountered a system error. Please try again later.</source>
        <translation>RapidHailサービスでシステムエラーが発生しました。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>選択型同期</translation>
    </message>
    <message>
        <source>Folder is read-only</source>
        <translation>フォルダーは読み取り専用です</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;accept the terms of the license agreement</source>
        <translation>{\DlgFont8}使用許諾契約の条項に同意します(&amp;A)</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>同期方向</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>ダウンロード履歴</translation>
    </message>
    <message>
        <source>Select a folder on this computer and the shared folder on the NAS that it will be synced with.</source>
        <translation>このコンピューターのフォルダーと、同期先となるNASの共有フォルダーを選択してください。</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>この項目は入力必須です。</translation>
    </message>
    <message>
        <source>Choose a shared folder on your NAS that is not yet synced with this computer.</source>
        <translation>まだこのコンピューターと同期していないNASの共有フォルダーを選択してください。</translation>
    </message>
    <message>
        <source>How existing files are merged</source>
        <translation>既存ファイルの統合方法</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>ネットワーク設定</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>リンクを削除</translation>
    </message>
    <message>
        <source>This sync task is inactive because the shared folder is not available.</source>
        <translation>共有フォルダーを利用できないため、この同期タスクは非アクティブです。</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>一方向ダウンロード</translation>
    </message>
    <message>
        <source>Go back to an earlier version</source>
        <translation>以前のバージョンに戻す</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>アップロード</translation>
    </message>
    <message>
        <source>Changes the set of [ProductName] features that are installed.</source>
        <translation>インストールされている[ProductName] の機能の構成を変更します。</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>May</source>
        <translation>5月</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>Link this computer to your NAS in just a few steps.</source>
        <translation>わずか数ステップで、このコンピューターをNASに関連付けられます。</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>完了(&amp;F)</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>接続をSSLで暗号化する</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>接続モード</translation>
    </message>
    <message>
        <source>Keep the file that was modified last</source>
        <translation>最後に変更されたファイルを保持する</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>A newer version of Quillmere Drive is already installed. Setup will now close.</source>
        <translation>より新しいバージョンのQuillmere Drive がすでにインストールされています。セットアップを終了します。</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Confirm the new certificate before you select a folder.</source>
        <translation>NASのSSL証明書が変更されました。フォルダーを選択する前に、新しい証明書を承認してください。</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>統合</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>共有フォルダーが見つかりません</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>関連付けを解除</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>ローカルフォルダー</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>フォルダーを選択</translation>
    </message>
    <message>
        <source>Set up the folder to sync</source>
        <translation>同期するフォルダーを設定</translation>
    </message>
    <message>
        <source>Enter the connection settings for your NAS.</source>
        <translation>NASの接続設定を入力してください。</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>SSL証明書の警告</translation>
    </message>
    <message>
        <source>Share files with a link</source>
        <translation>リンクでファイルを共有</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>ファイルの種類</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>接続を再開</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>無視(&amp;I)</translation>
    </message>
    <message>
        <source>The maximum file size must be a whole number greater than 0.</source>
        <translation>最大ファイルサイズは、0より大きい整数で指定してください。</translation>
    </message>
    <message>
        <source>Insufficient permissions</source>
        <translation>アクセス許可が不足しています</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>更新：%1</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive</source>
        <translation>Quillmere Drive へようこそ</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>キーワード</translation>
    </message>
    <message>
        <source>This allows you to specify a folder on your computer to keep synced with a shared folder on your Orvane NAS. (Recommended for teamwork)​.</source>
        <translation>コンピューターのフォルダーを指定し、Orvane NASの共有フォルダーと常に同期します（チームでの作業におすすめ）。</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin repairing [ProductName].</source>
        <translation>[ProductName] の修復を開始する準備ができました。</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>A network error occurred. Check your network connection and try again.</source>
        <translation>ネットワークエラーが発生しました。ネットワーク接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already being synced. Please choose another folder.</source>
        <translation>このフォルダーは、すでに同期されているフォルダーと重複しています。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}[ProductName] セットアップウィザードは中断されました</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>戻る(&amp;B)</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>開始時刻</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>チュートリアルを表示</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>はい(&amp;Y)</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>クイックセットアップ</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>Links cannot be created over a RapidHail connection because file sharing is disabled on the NAS.</source>
        <translation>NASでファイル共有が無効になっているため、RapidHail接続ではリンクを作成できません。</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>共有フォルダーの管理</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>次の使用許諾契約をよくお読みください。</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>準備中...</translation>
    </message>
    <message>
        <source>Keep the version on the NAS and overwrite the one on this computer</source>
        <translation>NAS上のバージョンを保持し、このコンピューター上のバージョンを上書きする</translation>
    </message>
    <message>
        <source>August</source>
        <translation>8月</translation>
    </message>
    <message>
        <source>Use a RapidHail connection</source>
        <translation>RapidHail接続を使用する</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard ended early</source>
        <translation>{\VerdanaBold13}[ProductName] セットアップウィザードは途中で終了しました</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up. Files can no longer be uploaded until you free up some space.</source>
        <translation>NASのクォータを使い切りました。空き領域を増やすまで、ファイルをアップロードできません。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]変更(&amp;C)</translation>
    </message>
    <message>
        <source>Set an expiration date for this link</source>
        <translation>このリンクの有効期限を設定する</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>ローカルフォルダーを変更</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>最大ファイルサイズ</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>削除(&amp;M)</translation>
    </message>
    <message>
        <source>Quillmere Drive is initializing...</source>
        <translation>Quillmere Drive は初期化中です。</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>双方向同期</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>システムのプロキシ設定を使用する</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>関連付けを解除しています...</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open (a restart will be required)</source>
        <translation>アプリケーションを開いたままにする（再起動が必要）(&amp;L)</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard is complete</source>
        <translation>{\VerdanaBold13}[ProductName] セットアップウィザードが完了しました</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>同期タスク</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>作成日時</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>[ProductName] を起動する</translation>
    </message>
    <message>
        <source>November</source>
        <translation>11月</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>プロキシのアドレス</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>最近変更されたファイル</translation>
    </message>
    <message>
        <source>Unlink from the NAS</source>
        <translation>NASとの関連付けを解除</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Please try again later.</source>
        <translation>このファイルのバージョンを一覧表示できません。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>別のプログラムによりロックされています</translation>
    </message>
    <message>
        <source>An unknown error occurred. Please try again later.</source>
        <translation>不明なエラーが発生しました。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified.</source>
        <translation>NASのSSL証明書を検証できませんでした。</translation>
    </message>
    <message>
        <source>Checking username and password...</source>
        <translation>ユーザー名とパスワードを確認しています...</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>詳細設定</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>印刷(&amp;P)</translation>
    </message>
    <message>
        <source>February</source>
        <translation>2月</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Quillmere Drive</source>
        <translation>Quillmere Drive</translation>
    </message>
    <message>
        <source>You have read-only access to this shared folder. Files can be downloaded to this computer but not uploaded to the NAS.</source>
        <translation>この共有フォルダーへのアクセスは読み取り専用です。このコンピューターへのダウンロードはできますが、NASへのアップロードはできません。</translation>
    </message>
    <message>
        <source>The drive that contains the local folder is not mounted. Connect the drive to continue syncing.</source>
        <translation>ローカルフォルダーのあるドライブがマウントされていません。同期を続けるには、ドライブを接続してください。</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>保存先</translation>
    </message>
    <message>
        <source>Search the local network for an Orvane NAS.</source>
        <translation>ローカルネットワーク上のOrvane NASを検索します。</translation>
    </message>
    <message>
        <source>Storage full</source>
        <translation>ストレージがいっぱいです</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>NASの概要</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>直接接続</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>プロキシ設定</translation>
    </message>
    <message>
        <source>Unstable connection</source>
        <translation>接続が不安定です</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync this folder. Free up some space or choose another folder.</source>
        <translation>このコンピューターの空き領域が不足しているため、このフォルダーを同期できません。空き領域を増やすか、別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Use a black and white tray icon</source>
        <translation>白黒のトレイアイコンを使用する</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>同期履歴</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>ダウンロードはキャンセルされました。</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>次のアプリケーションが、セットアップで更新する必要のあるファイルを使用しています。アプリケーションを閉じ、「再試行」をクリックして続行してください。</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>インストール(&amp;I)</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please wait a few minutes before you try again.</source>
        <translation>失敗回数が多すぎます。数分待ってから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>読み込み中...</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>いいえ、結構です</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>新しい共有フォルダー</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>終了(&amp;X)</translation>
    </message>
    <message>
        <source>You can let Setup close the applications listed below and try to restart them afterward.</source>
        <translation>以下のアプリケーションをセットアップで自動的に閉じ、後で再起動を試みることができます。</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change the way [ProductName] is installed or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>セットアップウィザードでは、[ProductName] のインストール方法を変更したり、コンピューターから削除したりできます。続行するには「次へ」、終了するには「キャンセル」をクリックしてください。</translation>
    </message>
    <message>
        <source>Try syncing a file</source>
        <translation>ファイルを同期してみる</translation>
    </message>
    <message>
        <source>No data to display</source>
        <translation>表示するデータがありません</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>%1日前</translation>
    </message>
    <message>
        <source>You can now sync the shared folder &quot;%1&quot;. Click here to enable it.</source>
        <translation>共有フォルダー「%1」を同期できるようになりました。有効にするには、ここをクリックしてください。</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>アップロード中...</translation>
    </message>
    <message>
        <source>Your Quillmere folder is ready. Drop files into it and they will be synced with your NAS.</source>
        <translation>Quillmereフォルダーの準備ができました。ファイルを入れると、NASと同期されます。</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>同期できるフォルダーがありません。</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>前の%1ページ</translation>
    </message>
    <message>
        <source>The verification code is invalid. Please check the code and try again.</source>
        <translation>確認コードが無効です。コードを確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今日</translation>
    </message>
    <message>
        <source>The selected folder is on a network drive. Changes made there by other computers may not be detected immediately.</source>
        <translation>選択したフォルダーはネットワークドライブ上にあります。他のコンピューターによる変更は、すぐに検出されないことがあります。</translation>
    </message>
    <message>
        <source>Show icon overlays on files excluded by the file filter</source>
        <translation>ファイルフィルターで除外されたファイルにアイコンオーバーレイを表示する</translation>
    </message>
    <message>
        <source>Files to sync</source>
        <translation>同期するファイル</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>リンクを共有</translation>
    </message>
    <message>
        <source>Detecting connection mode...</source>
        <translation>接続モードを検出しています...</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>期間を指定</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>ローカルネットワーク上のNASを検索</translation>
    </message>
    <message>
        <source>The proxy address and port cannot be empty.</source>
        <translation>プロキシのアドレスとポートは空にできません。</translation>
    </message>
    <message>
        <source>You can also protect a link with a password or set an expiration date.</source>
        <translation>リンクをパスワードで保護したり、有効期限を設定したりすることもできます。</translation>
    </message>
    <message>
        <source>All your files, always at hand</source>
        <translation>すべてのファイルを、いつでも手元に</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>有効期限</translation>
    </message>
    <message>
        <source>September</source>
        <translation>9月</translation>
    </message>
    <message>
        <source>Create a Quillmere folder on this computer</source>
        <translation>このコンピューターにQuillmereフォルダーを作成</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>詳細セットアップウィザード</translation>
    </message>
    <message>
        <source>The selected folder is already part of a sync task on this computer.</source>
        <translation>選択したフォルダーは、すでにこのコンピューターの同期タスクに含まれています。</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>%1分前</translation>
    </message>
    <message>
        <source>This shared folder is already synced with the folder &quot;%1&quot; on this computer.</source>
        <translation>この共有フォルダーは、すでにこのコンピューターのフォルダー「%1」と同期されています。</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>NASの空き領域が不足しています。</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>いいえ(&amp;N)</translation>
    </message>
    <message>
        <source>Click Repair to restore missing or damaged files, shortcuts, and registry entries. Click Back to review your choice.</source>
        <translation>不足または破損しているファイル、ショートカット、レジストリエントリを復元するには、「修復」をクリックしてください。選択内容を確認するには、「戻る」をクリックしてください。</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>システムの既定</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>今後このメッセージを表示しない</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by restoring missing or damaged files, shortcuts, and registry entries.</source>
        <translation>不足または破損しているファイル、ショートカット、レジストリエントリを復元し、最新のインストールのエラーを解決します。</translation>
    </message>
    <message>
        <source>Number of times the link can be opened</source>
        <translation>リンクを開ける回数</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨日</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified. The folder cannot be selected until the certificate is trusted.</source>
        <translation>NASのSSL証明書を検証できませんでした。証明書が信頼されるまで、フォルダーを選択できません。</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>パスワード保護</translation>
    </message>
    <message>
        <source>The SSL certificate could not be verified. It may be self-signed, expired, or issued for another hostname.</source>
        <translation>SSL証明書を検証できませんでした。自己署名証明書であるか、期限切れであるか、別のホスト名に対して発行された可能性があります。</translation>
    </message>
    <message>
        <source>Please update Quillmere Drive Server on the NAS to use selective sync.</source>
        <translation>選択型同期を使用するには、NASのQuillmere Drive Server をアップデートしてください。</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up some space to continue syncing.</source>
        <translation>このコンピューターの空き領域が不足しています。同期を続けるには、空き領域を増やしてください。</translation>
    </message>
    <message>
        <source>The selected folder is used by a backup task. Syncing it may cause conflicts.</source>
        <translation>選択したフォルダーはバックアップタスクで使用されています。同期すると競合が発生する可能性があります。</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>One-way sync from the NAS to this computer</source>
        <translation>NASからこのコンピューターへの一方向同期</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>ダウンロードのみ</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>このコンピューターの空き領域が不足しています。</translation>
    </message>
    <message>
        <source>Blocked by:</source>
        <translation>ブロック元：</translation>
    </message>
    <message>
        <source>This computer is linked to your NAS, and your files are now being synced.</source>
        <translation>このコンピューターがNASに関連付けられ、ファイルの同期が始まりました。</translation>
    </message>
    <message>
        <source>The RapidHail ID is invalid or does not exist.</source>
        <translation>RapidHail IDが無効であるか、存在しません。</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>スタンバイ</translation>
    </message>
    <message>
        <source>Remove the program from this computer</source>
        <translation>このコンピューターからプログラムを削除</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established because of an SSL error.</source>
        <translation>SSLエラーのため、NASへの安全な接続を確立できませんでした。</translation>
    </message>
    <message>
        <source>General settings</source>
        <translation>全般設定</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>デスクトップ通知を表示する</translation>
    </message>
    <message>
        <source>Selective sync by file type</source>
        <translation>ファイルの種類別の選択型同期</translation>
    </message>
    <message>
        <source>December</source>
        <translation>12月</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is outdated. Please ask the administrator to update it to version %1 or later.</source>
        <translation>NASのQuillmere Drive Server は古いバージョンです。管理者にバージョン%1以降へのアップデートを依頼してください。</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>インストールされている機能を変更</translation>
    </message>
    <message>
        <source>If you no longer need the program, you can remove it now. Your synced files will be kept on this computer.</source>
        <translation>プログラムが不要になった場合は、今すぐ削除できます。同期したファイルは、このコンピューターに保持されます。</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be merged with the files in the shared folder.</source>
        <translation>選択したフォルダーは空ではありません。このフォルダー内のファイルは、共有フォルダー内のファイルと統合されます。</translation>
    </message>
    <message>
        <source>The link could not be deleted. Please try again later.</source>
        <translation>リンクを削除できませんでした。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>A link cannot be created for this file. Make sure that it has been synced to the NAS.</source>
        <translation>このファイルのリンクを作成できません。ファイルがNASに同期されていることを確認してください。</translation>
    </message>
    <message>
        <source>Check all file attributes for changes</source>
        <translation>すべてのファイル属性の変更を確認する</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove the installation</source>
        <translation>[DlgTitleFont]インストールの変更、修復、または削除</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>月曜日</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>選択したフォルダーは読み取り専用です。書き込み可能なフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the sync task &quot;%1&quot;? The files on this computer and on the NAS will be kept.</source>
        <translation>同期タスク「%1」を削除しますか？このコンピューターとNASのファイルは保持されます。</translation>
    </message>
    <message>
        <source>Limit how often this link can be opened</source>
        <translation>このリンクを開ける回数を制限する</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>共有フォルダー</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps the folders on your computers in sync with your Orvane NAS.</source>
        <translation>Quillmere Drive は、コンピューターのフォルダーをOrvane NASと常に同期します。</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>確認コードを入力</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>ファイル拡張子</translation>
    </message>
    <message>
        <source>The username cannot be empty.</source>
        <translation>ユーザー名は空にできません。</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>フォルダーのパス</translation>
    </message>
    <message>
        <source>Folder already linked</source>
        <translation>フォルダーは関連付け済みです</translation>
    </message>
    <message>
        <source>The maximum length of this field is %1 characters.</source>
        <translation>この項目に入力できるのは最大%1文字です。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from &quot;%1&quot;? Syncing will stop, but your files will be kept.</source>
        <translation>このコンピューターと「%1」の関連付けを解除しますか？同期は停止しますが、ファイルは保持されます。</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>詳細セットアップ</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>期間を指定</translation>
    </message>
    <message>
        <source>You have reached the maximum of %1 sync tasks. Remove a sync task before you add another one.</source>
        <translation>同期タスクの最大数（%1）に達しました。新しい同期タスクを追加する前に、いずれかの同期タスクを削除してください。</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>フォルダー名</translation>
    </message>
    <message>
        <source>Quillmere Drive is being upgraded. Please wait...</source>
        <translation>Quillmere Drive をアップグレードしています。お待ちください...</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to keep synced with your NAS.</source>
        <translation>NASと常に同期する、このコンピューターのフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>接続をテストしています...</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>同期中：%1</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS. Contact the administrator.</source>
        <translation>共有フォルダーがNASにマウントされていません。管理者にお問い合わせください。</translation>
    </message>
    <message>
        <source>Keep your files in sync between this computer and your NAS, and reach them wherever you are.</source>
        <translation>このコンピューターとNASの間でファイルを常に同期し、どこからでもアクセスできます。</translation>
    </message>
    <message>
        <source>Your account is protected by two-factor verification. Please enter the verification code to continue.</source>
        <translation>お使いのアカウントは2要素認証で保護されています。続行するには、確認コードを入力してください。</translation>
    </message>
    <message>
        <source>Edit file filter</source>
        <translation>ファイルフィルターを編集</translation>
    </message>
    <message>
        <source>Open the synced folder</source>
        <translation>同期フォルダーを開く</translation>
    </message>
    <message>
        <source>File names to exclude</source>
        <translation>除外するファイル名</translation>
    </message>
    <message>
        <source>File path</source>
        <translation>ファイルのパス</translation>
    </message>
    <message>
        <source>To</source>
        <translation>終了日</translation>
    </message>
    <message>
        <source>January</source>
        <translation>1月</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>プロキシを使用しない</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync with this computer.</source>
        <translation>このコンピューターと同期するNASの共有フォルダーを選択してください。</translation>
    </message>
    <message>
        <source>This shared folder does not exist on the NAS. It may have been renamed or deleted.</source>
        <translation>この共有フォルダーはNASに存在しません。名前が変更されたか、削除された可能性があります。</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Server not running</source>
        <translation>サーバーが実行されていません</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>[ProductName] をコンピューターにインストールします。続行するには「次へ」、終了するには「キャンセル」をクリックしてください。</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>同期タスク</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>インストールを開始する準備ができました。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Syncing %1 file(s)</source>
        <translation>%1個のファイルを同期中</translation>
    </message>
    <message>
        <source>&amp;Close the applications and try to restart them</source>
        <translation>アプリケーションを閉じて再起動を試みる(&amp;C)</translation>
    </message>
    <message>
        <source>Please wait. The requested changes are being made.</source>
        <translation>お待ちください。要求された変更を行っています。</translation>
    </message>
    <message>
        <source>Upgrade available</source>
        <translation>アップグレードを利用できます</translation>
    </message>
    <message>
        <source>Repair the current installation</source>
        <translation>現在のインストールを修復</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>アップグレード中...</translation>
    </message>
    <message>
        <source>Set up a separate sync task</source>
        <translation>別の同期タスクを設定</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>設定は変更されていません。</translation>
    </message>
</context>
</TS>
