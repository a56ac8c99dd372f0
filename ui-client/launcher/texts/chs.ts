<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Keep your data safe and synced at all times</source>
        <translation>让您的数据时刻保持安全与同步</translation>
    </message>
    <message>
        <source>The quota on the NAS has been used up. Free up some space or ask the administrator to raise your quota, and then select the folder again.</source>
        <translation>NAS 上的配额已用完。请释放一些空间或联系管理员提高配额，然后重新选择文件夹。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-user license agreement</source>
        <translation>[DlgTitleFont]最终用户许可协议</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>选择配置模式</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]准备安装 [ProductName]</translation>
    </message>
    <message>
        <source>This shared folder has been disabled for your account. Contact the administrator of the NAS to regain access.</source>
        <translation>此共享文件夹已对您的帐户禁用。请联系 NAS 管理员以恢复访问权限。</translation>
    </message>
    <message>
        <source>Merge the folders</source>
        <translation>合并文件夹</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>共享链接</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>同步错误</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>单击“完成”按钮退出安装向导。</translation>
    </message>
    <message>
        <source>Set a start date for this link</source>
        <translation>设置此链接的生效日期</translation>
    </message>
    <message>
        <source>The local sync database cannot be read. Restart Quillmere Drive. If the problem persists, link this computer again.</source>
        <translation>无法读取本地同步数据库。请重新启动 Quillmere Drive。如果问题仍然存在，请重新关联此计算机。</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>选择要同步的文件夹</translation>
    </message>
    <message>
        <source>Every file you put in a synced folder is copied to your NAS automatically. Just save your work and let Quillmere Drive do the rest.</source>
        <translation>放入同步文件夹的每个文件都会自动复制到您的 NAS。您只需保存工作内容，其余的交给 Quillmere Drive 即可。</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>重试(&amp;R)</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>不同步这些文件夹</translation>
    </message>
    <message>
        <source>The local folder of this sync task cannot be found. It may have been moved, renamed, or deleted.</source>
        <translation>找不到此同步任务的本地文件夹。该文件夹可能已被移动、重命名或删除。</translation>
    </message>
    <message>
        <source>Quillmere Drive is starting...</source>
        <translation>Quillmere Drive 正在启动...</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>正在应用设置...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Make sure that Quillmere Drive Server is installed and running on your NAS before you continue.</source>
        <translation>继续之前，请确保 NAS 上已安装并正在运行 Quillmere Drive Server。</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>请重新启动 %1 以应用新的语言设置。</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>正在下载...</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>版本不匹配</translation>
    </message>
    <message>
        <source>The icon in the system tray shows the sync status at a glance. Click it to pause syncing, view recent changes, or open the settings.</source>
        <translation>系统托盘中的图标让同步状态一目了然。单击该图标可暂停同步、查看最近的更改或打开设置。</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>Keep both versions and rename the conflicting file</source>
        <translation>保留两个版本，并重命名有冲突的文件</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>不支持装载点</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>正在关联...</translation>
    </message>
    <message>
        <source>About Quillmere Drive</source>
        <translation>关于 Quillmere Drive</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>已启用</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>浏览以前的版本</translation>
    </message>
    <message>
        <source>The Setup Wizard for [ProductName] stopped early because of an error. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>[ProductName] 安装向导因出错而提前结束。您的系统未作任何更改。若要以后安装此程序，请再次运行安装程序。</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>连接信息</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS. Free up some space to continue syncing.</source>
        <translation>NAS 上的可用空间不足。请释放一些空间以继续同步。</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>非活动</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>已删除</translation>
    </message>
    <message>
        <source>The selected folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>所选文件夹是装载点，无法同步。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>Upgrade now</source>
        <translation>立即升级</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>计算机名称</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>状态信息</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] 安装程序</translation>
    </message>
    <message>
        <source>Open the management page</source>
        <translation>打开管理页面</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]文件正在使用</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>星期四</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>安装向导正在安装 [ProductName]，请稍候。这可能需要几分钟时间。</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>星期六</translation>
    </message>
    <message>
        <source>Link expires after</source>
        <translation>链接有效期</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to leave this page without saving them?</source>
        <translation>您有未保存的更改。确定要离开此页面而不保存更改吗？</translation>
    </message>
    <message>
        <source>Select the operation that you want to perform.</source>
        <translation>选择要执行的操作。</translation>
    </message>
    <message>
        <source>This file was changed on the computer and on the NAS at the same time, and the conflict could not be resolved.</source>
        <translation>此文件在计算机和 NAS 上被同时更改，冲突无法解决。</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>局域网</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>已是最新</translation>
    </message>
    <message>
        <source>A sync task named &quot;%1&quot; already exists. Please enter another name.</source>
        <translation>名为“%1”的同步任务已存在。请输入其他名称。</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder. Please choose another folder or contact the administrator.</source>
        <translation>您没有访问此文件夹的权限。请选择其他文件夹或联系管理员。</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>重新关联</translation>
    </message>
    <message>
        <source>Select how you want to sync files between this computer and your NAS. You can add more sync tasks later.</source>
        <translation>选择此计算机与 NAS 之间同步文件的方式。您以后可以添加更多同步任务。</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>代理服务器要求身份验证</translation>
    </message>
    <message>
        <source>Choose what happens when the same file has been changed on the computer and on the NAS.</source>
        <translation>选择同一文件在计算机和 NAS 上均被更改时的处理方式。</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>选择其他文件夹</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]准备删除 [ProductName]</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Check the certificate before you connect again.</source>
        <translation>NAS 的 SSL 证书已更改。重新连接之前，请检查该证书。</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>上个月</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>日期范围</translation>
    </message>
    <message>
        <source>The download failed. Please try again later.</source>
        <translation>下载失败。请稍后重试。</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>配置已完成。</translation>
    </message>
    <message>
        <source>Quillmere Drive on this computer is outdated. Please update it to version %1 or later.</source>
        <translation>此计算机上的 Quillmere Drive 版本过旧。请更新到 %1 或更高版本。</translation>
    </message>
    <message>
        <source>This computer is now linked to your NAS. Syncing starts as soon as you close the wizard.</source>
        <translation>此计算机现已与您的 NAS 关联。关闭向导后将立即开始同步。</translation>
    </message>
    <message>
        <source>Enable sync for this shared folder</source>
        <translation>为此共享文件夹启用同步</translation>
    </message>
    <message>
        <source>Download complete</source>
        <translation>下载完成</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>恢复同步此文件夹</translation>
    </message>
    <message>
        <source>Setup is in progress. Please wait...</source>
        <translation>正在配置，请稍候...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>刚刚</translation>
    </message>
    <message>
        <source>This computer is already linked to the same NAS. Edit the existing connection instead.</source>
        <translation>此计算机已与同一台 NAS 关联。请改为编辑现有连接。</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>%1 个项目</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>暂停连接</translation>
    </message>
    <message>
        <source>Quillmere Drive is ready.</source>
        <translation>Quillmere Drive 已就绪。</translation>
    </message>
    <message>
        <source>Keep an eye on the system tray</source>
        <translation>留意系统托盘</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>更多详细信息</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. The copies on the NAS will be kept. Do you want to continue?</source>
        <translation>在此处取消选择的文件夹将从此计算机上删除，NAS 上的副本将会保留。是否继续？</translation>
    </message>
    <message>
        <source>October</source>
        <translation>十月</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>文件夹不为空</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Restrict access to this link</source>
        <translation>限制对此链接的访问</translation>
    </message>
    <message>
        <source>The link could not be created. Make sure that file sharing is enabled in Quillmere Drive Server.</source>
        <translation>无法创建链接。请确保已在 Quillmere Drive Server 中启用文件共享。</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>更多教程</translation>
    </message>
    <message>
        <source>Setup requires administrator rights. Do you want to restart it as an administrator?</source>
        <translation>安装程序需要管理员权限。是否以管理员身份重新启动安装程序？</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Copy to:</source>
        <translation>复制到：</translation>
    </message>
    <message>
        <source>No previous versions of this file are available.</source>
        <translation>此文件没有可用的以前版本。</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>立即开始</translation>
    </message>
    <message>
        <source>The NAS at this address is not the one that this computer was linked to. Check the address or link the computer again.</source>
        <translation>此地址上的 NAS 不是此计算机之前关联的 NAS。请检查地址或重新关联此计算机。</translation>
    </message>
    <message>
        <source>The upgrade failed. Please download the latest version and install it manually.</source>
        <translation>升级失败。请下载最新版本并手动安装。</translation>
    </message>
    <message>
        <source>Add sync task</source>
        <translation>添加同步任务</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>生效日期</translation>
    </message>
    <message>
        <source>This shared folder could not be enabled for syncing. Please try again later.</source>
        <translation>无法为此共享文件夹启用同步。请稍后重试。</translation>
    </message>
    <message>
        <source>In the system tray</source>
        <translation>在系统托盘中</translation>
    </message>
    <message>
        <source>The folder home\Quillmere on your NAS has already been linked to this PC. We will launch the synced folder when you click Done. Or you can set up a seperate task: %1</source>
        <translation>NAS 上的文件夹 home\Quillmere 已与此计算机关联。单击“完成”后将打开该同步文件夹。您也可以单独设置一个任务：%1</translation>
    </message>
    <message>
        <source>The port number is invalid. Enter a number from 1 to 65535.</source>
        <translation>端口号无效。请输入 1 到 65535 之间的数字。</translation>
    </message>
    <message>
        <source>Quillmere Drive could not be initialized. Please restart your computer and try again.</source>
        <translation>无法初始化 Quillmere Drive。请重新启动计算机，然后重试。</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>状态：</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes made on this computer will not be synced to the NAS.</source>
        <translation>您对此文件夹只有只读权限。在此计算机上所做的更改不会同步到 NAS。</translation>
    </message>
    <message>
        <source>The version of Quillmere Drive on this computer is too old for the NAS. Version %1 or later is required.</source>
        <translation>此计算机上的 Quillmere Drive 版本过旧，与 NAS 不兼容。需要 %1 或更高版本。</translation>
    </message>
    <message>
        <source>Files and folders that match the rules of the file filter will not be synced.</source>
        <translation>符合文件过滤器规则的文件和文件夹将不会同步。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]准备修复 [ProductName]</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>恢复同步这些文件夹</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Save a file and it is synced</source>
        <translation>保存文件即可同步</translation>
    </message>
    <message>
        <source>Files that could not be synced</source>
        <translation>无法同步的文件</translation>
    </message>
    <message>
        <source>The connection to the NAS was lost. Quillmere Drive will try to connect again automatically.</source>
        <translation>与 NAS 的连接已断开。Quillmere Drive 将自动尝试重新连接。</translation>
    </message>
    <message>
        <source>Detecting file changes...</source>
        <translation>正在检测文件更改...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>连接成功。</translation>
    </message>
    <message>
        <source>The administrator requires two-factor verification for your account. Sign in to the NAS in a web browser and set it up first.</source>
        <translation>管理员要求您的帐户使用双重验证。请先在网页浏览器中登录 NAS 并进行设置。</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the permissions on the NAS. Please change the sync direction.</source>
        <translation>此文件夹的同步方向与 NAS 上的权限不一致。请更改同步方向。</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}欢迎使用 [ProductName] 安装向导</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive. This wizard will help you link this computer to your NAS.</source>
        <translation>欢迎使用 Quillmere Drive。此向导将帮助您将此计算机与 NAS 关联。</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files and folders</source>
        <translation>在已同步的文件和文件夹上显示图标覆盖</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>身份验证失败</translation>
    </message>
    <message>
        <source>An invalid value was entered. Please check your input and try again.</source>
        <translation>输入的值无效。请检查输入内容，然后重试。</translation>
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
        <translation>单击“删除”从计算机中删除 [ProductName]。单击“上一步”重新检查您的选择。</translation>
    </message>
    <message>
        <source>Quillmere Drive Server is not running on the NAS. Start it or contact the administrator.</source>
        <translation>NAS 上未运行 Quillmere Drive Server。请启动该程序或联系管理员。</translation>
    </message>
    <message>
        <source>Open Quillmere Drive</source>
        <translation>打开 Quillmere Drive</translation>
    </message>
    <message>
        <source>The SSL certificate of this NAS differs from the one saved earlier. Continue only if you trust the new certificate.</source>
        <translation>此 NAS 的 SSL 证书与之前保存的证书不同。请仅在信任新证书时继续。</translation>
    </message>
    <message>
        <source>The selected folder is already synced by another cloud storage program. Please choose a different folder to avoid conflicts.</source>
        <translation>所选文件夹已由其他云存储程序同步。请选择其他文件夹以避免冲突。</translation>
    </message>
    <message>
        <source>Right-click the tray icon to open the menu with all commands.</source>
        <translation>右键单击托盘图标可打开包含所有命令的菜单。</translation>
    </message>
    <message>
        <source>This folder is being indexed. Syncing will start when indexing is complete.</source>
        <translation>正在为此文件夹建立索引。索引完成后将开始同步。</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>已禁用</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>正在检查数据...</translation>
    </message>
    <message>
        <source>Click Install to begin installing [ProductName]. Click Back to review or change your settings. Click Cancel to exit the wizard.</source>
        <translation>单击“安装”开始安装 [ProductName]。单击“上一步”检查或更改设置。单击“取消”退出向导。</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>正在同步</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>打开所在文件夹</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] 没有可单独选择的功能。</translation>
    </message>
    <message>
        <source>The local folder could not be created. Check the path and your permissions, and then try again.</source>
        <translation>无法创建本地文件夹。请检查路径和您的权限，然后重试。</translation>
    </message>
    <message>
        <source>NAS address</source>
        <translation>NAS 地址</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. It may have been deleted, or you may not have permission to access it.</source>
        <translation>无法下载此文件。该文件可能已被删除，或者您没有访问权限。</translation>
    </message>
    <message>
        <source>The IP address of this computer is not allowed to access the NAS. Contact the administrator.</source>
        <translation>不允许此计算机的 IP 地址访问该 NAS。请联系管理员。</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>一些需要更新的文件当前正在使用。</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最后一页</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>日期和时间</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>已重命名</translation>
    </message>
    <message>
        <source>View sync status</source>
        <translation>查看同步状态</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>星期日</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]正在安装 [ProductName]</translation>
    </message>
    <message>
        <source>Enter the names of the files that should not be synced. An asterisk (*) stands for any number of characters.</source>
        <translation>请输入不应同步的文件的名称。星号（*）代表任意数量的字符。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>要同步的文件夹</translation>
    </message>
    <message>
        <source>RapidHail</source>
        <translation>RapidHail</translation>
    </message>
    <message>
        <source>Enter the IP address, hostname, or RapidHail ID of your NAS.</source>
        <translation>请输入 NAS 的 IP 地址、主机名或 RapidHail ID。</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>星期三</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>同步新文件夹</translation>
    </message>
    <message>
        <source>NAS changed</source>
        <translation>NAS 已更换</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
    <message>
        <source>If you disable this folder, it will no longer be synced. The files on this computer will be kept. Do you want to continue?</source>
        <translation>如果禁用此文件夹，将不再同步该文件夹。此计算机上的文件将会保留。是否继续？</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>打开文件</translation>
    </message>
    <message>
        <source>This folder cannot be synced because its path is invalid. Please choose another folder.</source>
        <translation>此文件夹的路径无效，因此无法同步。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>The shared folder on the NAS is not mounted. If it is encrypted, mount it first.</source>
        <translation>NAS 上的共享文件夹未装载。如果该文件夹已加密，请先装载。</translation>
    </message>
    <message>
        <source>Expiration time</source>
        <translation>到期时间</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up.</source>
        <translation>您在 NAS 上的配额已用完。</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please correct them before you continue.</source>
        <translation>某些字段包含无效值。请先更正再继续。</translation>
    </message>
    <message>
        <source>The RapidHail service cannot be reached. Check your internet connection and try again.</source>
        <translation>无法连接 RapidHail 服务。请检查您的互联网连接，然后重试。</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>星期五</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>打开主窗口</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>代理服务器端口</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; has been used up. Free up some space to continue syncing.</source>
        <translation>共享文件夹“%1”的配额已用完。请释放一些空间以继续同步。</translation>
    </message>
    <message>
        <source>Link to a new NAS</source>
        <translation>关联新的 NAS</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>上周</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is too old for this computer. Version %1 or later is required.</source>
        <translation>NAS 上的 Quillmere Drive Server 版本过旧，与此计算机不兼容。需要 %1 或更高版本。</translation>
    </message>
    <message>
        <source>June</source>
        <translation>六月</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a network error. Check your network connection and try again.</source>
        <translation>由于网络错误，无法检查该文件夹。请检查您的网络连接，然后重试。</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]删除(&amp;M)</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>互联网</translation>
    </message>
    <message>
        <source>July</source>
        <translation>七月</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>知道了</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>欢迎</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>从计算机中删除 [ProductName]。</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>From</source>
        <translation>从</translation>
    </message>
    <message>
        <source>You can open the synced folder at any time from the Quillmere Drive icon in the system tray.</source>
        <translation>您可以随时通过系统托盘中的 Quillmere Drive 图标打开同步文件夹。</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>文件已更新</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;pair</source>
        <translation>[DlgTitleFont]修复(&amp;P)</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>星期二</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>没有可用选项</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>The NAS at this address has changed. Please link this computer again.</source>
        <translation>此地址上的 NAS 已更换。请重新关联此计算机。</translation>
    </message>
    <message>
        <source>The installation of [ProductName] was interrupted. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>[ProductName] 的安装已中断。您的系统未作任何更改。若要以后安装此程序，请再次运行安装程序。</translation>
    </message>
    <message>
        <source>The connection test failed. The username or password is incorrect.</source>
        <translation>连接测试失败。用户名或密码不正确。</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>修复(&amp;P)</translation>
    </message>
    <message>
        <source>A sync task has stopped because of an error. Click here for details.</source>
        <translation>一个同步任务因出错而停止。单击此处查看详细信息。</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and the account that you want to use for syncing.</source>
        <translation>请输入 NAS 的地址以及用于同步的帐户。</translation>
    </message>
    <message>
        <source>Connect anyway</source>
        <translation>仍要连接</translation>
    </message>
    <message>
        <source>The files on this computer and the files in the shared folder will be merged. If two files have the same name, the newer one is used.</source>
        <translation>此计算机上的文件将与共享文件夹中的文件合并。如果两个文件同名，则使用较新的文件。</translation>
    </message>
    <message>
        <source>Start Quillmere Drive automatically when I sign in</source>
        <translation>登录时自动启动 Quillmere Drive</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this link? People who have it will no longer be able to open the file.</source>
        <translation>确定要删除此链接吗？拥有此链接的人将无法再打开该文件。</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>更改文件夹</translation>
    </message>
    <message>
        <source>The username or password is incorrect, or the account has been disabled.</source>
        <translation>用户名或密码不正确，或者帐户已被禁用。</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;do not accept the terms of the license agreement</source>
        <translation>{\DlgFont8}我不接受许可协议中的条款(&amp;D)</translation>
    </message>
    <message>
        <source>Right-click a file and select &quot;Share link&quot; to create a link. Send it to anyone who needs the file, even if they have no account on your NAS.</source>
        <translation>右键单击文件并选择“共享链接”即可创建链接。您可以将链接发送给任何需要该文件的人，即使对方在您的 NAS 上没有帐户。</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>同步模式</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps earlier versions of your files. Right-click a file and select &quot;Browse previous versions&quot; to restore one of them.</source>
        <translation>Quillmere Drive 会保留文件的早期版本。右键单击文件并选择“浏览以前的版本”，即可还原其中的某个版本。</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>向后翻 %1 页</translation>
    </message>
    <message>
        <source>Quillmere Drive is already running. You can find its icon in the system tray.</source>
        <translation>Quillmere Drive 已在运行。您可以在系统托盘中找到它的图标。</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>正在加载共享文件夹...</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>第一页</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>手动设置代理</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>%1 小时前</translation>
    </message>
    <message>
        <source>This folder cannot be synced because of a system error. Please try again later.</source>
        <translation>由于系统错误，无法同步此文件夹。请稍后重试。</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>双击托盘图标时</translation>
    </message>
    <message>
        <source>Selective sync by folder</source>
        <translation>按文件夹选择性同步</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>共享文件夹</translation>
    </message>
    <message>
        <source>Sync with another NAS</source>
        <translation>与其他 NAS 同步</translation>
    </message>
    <message>
        <source>This creates a Quillmere folder on your computer and keeps it synced with your home folder on your Orvane NAS (recommended for personal use).</source>
        <translation>将在您的计算机上创建 Quillmere 文件夹，并使其与 Orvane NAS 上您的 home 文件夹保持同步（推荐个人使用）。</translation>
    </message>
    <message>
        <source>Click here to upgrade</source>
        <translation>单击此处升级</translation>
    </message>
    <message>
        <source>April</source>
        <translation>四月</translation>
    </message>
    <message>
        <source>On your computer</source>
        <translation>在您的计算机上</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of [ProductName]?</source>
        <translation>确定要取消安装 [ProductName] 吗？</translation>
    </message>
    <message>
        <source>Files and folders excluded from sync</source>
        <translation>不参与同步的文件和文件夹</translation>
    </message>
    <message>
        <source>This version of Quillmere Drive is already installed. Do you want to install it again?</source>
        <translation>此版本的 Quillmere Drive 已安装。是否重新安装？</translation>
    </message>
    <message>
        <source>has been shared. The link was copied to the clipboard.</source>
        <translation>已共享。链接已复制到剪贴板。</translation>
    </message>
    <message>
        <source>The NAS sent an unexpected response. Make sure that Quillmere Drive and Quillmere Drive Server are both up to date.</source>
        <translation>NAS 返回了意外的响应。请确保 Quillmere Drive 和 Quillmere Drive Server 均为最新版本。</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>不同步此文件夹</translation>
    </message>
    <message>
        <source>March</source>
        <translation>三月</translation>
    </message>
    <message>
        <source>The RapidHail service encountered a system error. Please try again later.</source>
        <translation>RapidHail 服务遇到系统错误。请稍后重试。</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>选择性同步</translation>
    </message>
    <message>
        <source>Folder is read-only</source>
        <translation>文件夹为只读</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;accept the terms of the license agreement</source>
        <translation>{\DlgFont8}我接受许可协议中的条款(&amp;A)</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>同步方向</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>下载历史记录</translation>
    </message>
    <message>
        <source>Select a folder on this computer and the shared folder on the NAS that it will be synced with.</source>
        <translation>选择此计算机上的文件夹，以及要与其同步的 NAS 共享文件夹。</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>此字段不能为空。</translation>
    </message>
    <message>
        <source>Choose a shared folder on your NAS that is not yet synced with this computer.</source>
        <translation>在 NAS 上选择一个尚未与此计算机同步的共享文件夹。</translation>
    </message>
    <message>
        <source>How existing files are merged</source>
        <translation>现有文件的合并方式</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>网络设置</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>删除链接</translation>
    </message>
    <message>
        <source>This sync task is inactive because the shared folder is not available.</source>
        <translation>由于共享文件夹不可用，此同步任务处于非活动状态。</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>单向下载</translation>
    </message>
    <message>
        <source>Go back to an earlier version</source>
        <translation>还原到早期版本</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>已上传</translation>
    </message>
    <message>
        <source>Changes the set of [ProductName] features that are installed.</source>
        <translation>更改已安装的 [ProductName] 功能。</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>May</source>
        <translation>五月</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>Link this computer to your NAS in just a few steps.</source>
        <translation>只需几步，即可将此计算机与您的 NAS 关联。</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>完成(&amp;F)</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>使用 SSL 加密连接</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>连接模式</translation>
    </message>
    <message>
        <source>Keep the file that was modified last</source>
        <translation>保留最后修改的文件</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>A newer version of Quillmere Drive is already installed. Setup will now close.</source>
        <translation>已安装更高版本的 Quillmere Drive。安装程序即将关闭。</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Confirm the new certificate before you select a folder.</source>
        <translation>NAS 的 SSL 证书已更改。选择文件夹之前，请确认新证书。</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>合并</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>找不到共享文件夹</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>取消关联</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>本地文件夹</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Set up the folder to sync</source>
        <translation>设置要同步的文件夹</translation>
    </message>
    <message>
        <source>Enter the connection settings for your NAS.</source>
        <translation>请输入 NAS 的连接设置。</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>SSL 证书警告</translation>
    </message>
    <message>
        <source>Share files with a link</source>
        <translation>通过链接共享文件</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>文件类型</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>恢复连接</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>忽略(&amp;I)</translation>
    </message>
    <message>
        <source>The maximum file size must be a whole number greater than 0.</source>
        <translation>最大文件大小必须是大于 0 的整数。</translation>
    </message>
    <message>
        <source>Insufficient permissions</source>
        <translation>权限不足</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>已更新：%1</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive</source>
        <translation>欢迎使用 Quillmere Drive</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>关键字</translation>
    </message>
    <message>
        <source>This allows you to specify a folder on your computer to keep synced with a shared folder on your Orvane NAS. (Recommended for teamwork)​.</source>
        <translation>可指定计算机上的文件夹，使其与 Orvane NAS 上的共享文件夹保持同步（推荐团队使用）。</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin repairing [ProductName].</source>
        <translation>安装向导已准备好开始修复 [ProductName]。</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>A network error occurred. Check your network connection and try again.</source>
        <translation>发生网络错误。请检查您的网络连接，然后重试。</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already being synced. Please choose another folder.</source>
        <translation>此文件夹与正在同步的文件夹重叠。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}[ProductName] 安装向导已中断</translation>
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
        <translation>生效时间</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>显示教程</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>快速配置</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>Links cannot be created over a RapidHail connection because file sharing is disabled on the NAS.</source>
        <translation>由于 NAS 上的文件共享已禁用，无法通过 RapidHail 连接创建链接。</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>管理共享文件夹</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>请仔细阅读以下许可协议。</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>正在准备...</translation>
    </message>
    <message>
        <source>Keep the version on the NAS and overwrite the one on this computer</source>
        <translation>保留 NAS 上的版本，并覆盖此计算机上的版本</translation>
    </message>
    <message>
        <source>August</source>
        <translation>八月</translation>
    </message>
    <message>
        <source>Use a RapidHail connection</source>
        <translation>使用 RapidHail 连接</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard ended early</source>
        <translation>{\VerdanaBold13}[ProductName] 安装向导提前结束</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up. Files can no longer be uploaded until you free up some space.</source>
        <translation>您在 NAS 上的配额已用完。释放一些空间后才能继续上传文件。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]更改(&amp;C)</translation>
    </message>
    <message>
        <source>Set an expiration date for this link</source>
        <translation>设置此链接的到期日期</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>更改本地文件夹</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>最大文件大小</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>删除(&amp;M)</translation>
    </message>
    <message>
        <source>Quillmere Drive is initializing...</source>
        <translation>Quillmere Drive 正在初始化...</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>双向同步</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>使用系统代理设置</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>正在取消关联...</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open (a restart will be required)</source>
        <translation>让应用程序保持打开（需要重新启动）(&amp;L)</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard is complete</source>
        <translation>{\VerdanaBold13}[ProductName] 安装向导已完成</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>同步任务</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>创建时间</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>启动 [ProductName]</translation>
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
        <translation>代理服务器地址</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>最近更改的文件</translation>
    </message>
    <message>
        <source>Unlink from the NAS</source>
        <translation>取消与 NAS 的关联</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Please try again later.</source>
        <translation>无法列出此文件的版本。请稍后重试。</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>被其他程序锁定</translation>
    </message>
    <message>
        <source>An unknown error occurred. Please try again later.</source>
        <translation>发生未知错误。请稍后重试。</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified.</source>
        <translation>无法验证 NAS 的 SSL 证书。</translation>
    </message>
    <message>
        <source>Checking username and password...</source>
        <translation>正在检查用户名和密码...</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>高级设置</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>打印(&amp;P)</translation>
    </message>
    <message>
        <source>February</source>
        <translation>二月</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Quillmere Drive</source>
        <translation>Quillmere Drive</translation>
    </message>
    <message>
        <source>You have read-only access to this shared folder. Files can be downloaded to this computer but not uploaded to the NAS.</source>
        <translation>您对此共享文件夹只有只读权限。文件可以下载到此计算机，但无法上传到 NAS。</translation>
    </message>
    <message>
        <source>The drive that contains the local folder is not mounted. Connect the drive to continue syncing.</source>
        <translation>本地文件夹所在的驱动器未装载。请连接该驱动器以继续同步。</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>目标位置</translation>
    </message>
    <message>
        <source>Search the local network for an Orvane NAS.</source>
        <translation>在局域网中搜索 Orvane NAS。</translation>
    </message>
    <message>
        <source>Storage full</source>
        <translation>存储空间已满</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>NAS 概览</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>直接连接</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>已下载</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>代理设置</translation>
    </message>
    <message>
        <source>Unstable connection</source>
        <translation>连接不稳定</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync this folder. Free up some space or choose another folder.</source>
        <translation>此计算机上的可用空间不足，无法同步此文件夹。请释放一些空间或选择其他文件夹。</translation>
    </message>
    <message>
        <source>Use a black and white tray icon</source>
        <translation>使用黑白托盘图标</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>同步历史记录</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>下载已取消。</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>以下应用程序正在使用安装程序需要更新的文件。请关闭这些应用程序，然后单击“重试”继续。</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>安装(&amp;I)</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please wait a few minutes before you try again.</source>
        <translation>失败次数过多。请等待几分钟后重试。</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>一切就绪</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在加载...</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>不用了，谢谢</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>新的共享文件夹</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>退出(&amp;X)</translation>
    </message>
    <message>
        <source>You can let Setup close the applications listed below and try to restart them afterward.</source>
        <translation>您可以让安装程序关闭下列应用程序，并在之后尝试重新启动它们。</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change the way [ProductName] is installed or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>通过安装向导，您可以更改 [ProductName] 的安装方式，或将其从计算机中删除。单击“下一步”继续，或单击“取消”退出。</translation>
    </message>
    <message>
        <source>Try syncing a file</source>
        <translation>试着同步一个文件</translation>
    </message>
    <message>
        <source>No data to display</source>
        <translation>没有可显示的数据</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>%1 天前</translation>
    </message>
    <message>
        <source>You can now sync the shared folder &quot;%1&quot;. Click here to enable it.</source>
        <translation>您现在可以同步共享文件夹“%1”。单击此处启用。</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>正在上传...</translation>
    </message>
    <message>
        <source>Your Quillmere folder is ready. Drop files into it and they will be synced with your NAS.</source>
        <translation>您的 Quillmere 文件夹已就绪。将文件放入其中，即可与 NAS 同步。</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>没有可同步的文件夹。</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>向前翻 %1 页</translation>
    </message>
    <message>
        <source>The verification code is invalid. Please check the code and try again.</source>
        <translation>验证码无效。请检查验证码，然后重试。</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>The selected folder is on a network drive. Changes made there by other computers may not be detected immediately.</source>
        <translation>所选文件夹位于网络驱动器上。其他计算机在其中所做的更改可能无法立即检测到。</translation>
    </message>
    <message>
        <source>Show icon overlays on files excluded by the file filter</source>
        <translation>在被文件过滤器排除的文件上显示图标覆盖</translation>
    </message>
    <message>
        <source>Files to sync</source>
        <translation>要同步的文件</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>共享链接</translation>
    </message>
    <message>
        <source>Detecting connection mode...</source>
        <translation>正在检测连接模式...</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>自定义有效期</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>在局域网中搜索 NAS 设备</translation>
    </message>
    <message>
        <source>The proxy address and port cannot be empty.</source>
        <translation>代理服务器地址和端口不能为空。</translation>
    </message>
    <message>
        <source>You can also protect a link with a password or set an expiration date.</source>
        <translation>您还可以为链接设置密码保护或到期日期。</translation>
    </message>
    <message>
        <source>All your files, always at hand</source>
        <translation>您的所有文件，随时触手可及</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>到期日期</translation>
    </message>
    <message>
        <source>September</source>
        <translation>九月</translation>
    </message>
    <message>
        <source>Create a Quillmere folder on this computer</source>
        <translation>在此计算机上创建 Quillmere 文件夹</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>高级配置向导</translation>
    </message>
    <message>
        <source>The selected folder is already part of a sync task on this computer.</source>
        <translation>所选文件夹已属于此计算机上的某个同步任务。</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>%1 分钟前</translation>
    </message>
    <message>
        <source>This shared folder is already synced with the folder &quot;%1&quot; on this computer.</source>
        <translation>此共享文件夹已与此计算机上的文件夹“%1”同步。</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>NAS 上的可用空间不足。</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>Click Repair to restore missing or damaged files, shortcuts, and registry entries. Click Back to review your choice.</source>
        <translation>单击“修复”还原丢失或损坏的文件、快捷方式和注册表项。单击“上一步”重新检查您的选择。</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>系统默认</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>不再显示此消息</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by restoring missing or damaged files, shortcuts, and registry entries.</source>
        <translation>通过还原丢失或损坏的文件、快捷方式和注册表项，修复最近一次安装中的错误。</translation>
    </message>
    <message>
        <source>Number of times the link can be opened</source>
        <translation>链接可打开的次数</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified. The folder cannot be selected until the certificate is trusted.</source>
        <translation>无法验证 NAS 的 SSL 证书。在信任该证书之前，无法选择文件夹。</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>密码保护</translation>
    </message>
    <message>
        <source>The SSL certificate could not be verified. It may be self-signed, expired, or issued for another hostname.</source>
        <translation>无法验证 SSL 证书。该证书可能是自签名证书，可能已过期，也可能是颁发给其他主机名的。</translation>
    </message>
    <message>
        <source>Please update Quillmere Drive Server on the NAS to use selective sync.</source>
        <translation>请更新 NAS 上的 Quillmere Drive Server 以使用选择性同步。</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up some space to continue syncing.</source>
        <translation>此计算机上的可用空间不足。请释放一些空间以继续同步。</translation>
    </message>
    <message>
        <source>The selected folder is used by a backup task. Syncing it may cause conflicts.</source>
        <translation>所选文件夹正由备份任务使用。同步该文件夹可能会导致冲突。</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>One-way sync from the NAS to this computer</source>
        <translation>从 NAS 单向同步到此计算机</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>仅下载</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>此计算机上的可用空间不足。</translation>
    </message>
    <message>
        <source>Blocked by:</source>
        <translation>被以下项阻止：</translation>
    </message>
    <message>
        <source>This computer is linked to your NAS, and your files are now being synced.</source>
        <translation>此计算机已与您的 NAS 关联，您的文件正在同步。</translation>
    </message>
    <message>
        <source>The RapidHail ID is invalid or does not exist.</source>
        <translation>RapidHail ID 无效或不存在。</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>待机</translation>
    </message>
    <message>
        <source>Remove the program from this computer</source>
        <translation>从此计算机中删除程序</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established because of an SSL error.</source>
        <translation>由于 SSL 错误，无法与 NAS 建立安全连接。</translation>
    </message>
    <message>
        <source>General settings</source>
        <translation>常规设置</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>显示桌面通知</translation>
    </message>
    <message>
        <source>Selective sync by file type</source>
        <translation>按文件类型选择性同步</translation>
    </message>
    <message>
        <source>December</source>
        <translation>十二月</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is outdated. Please ask the administrator to update it to version %1 or later.</source>
        <translation>NAS 上的 Quillmere Drive Server 版本过旧。请联系管理员将其更新到 %1 或更高版本。</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>更改已安装的功能</translation>
    </message>
    <message>
        <source>If you no longer need the program, you can remove it now. Your synced files will be kept on this computer.</source>
        <translation>如果您不再需要此程序，现在可以将其删除。已同步的文件将保留在此计算机上。</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be merged with the files in the shared folder.</source>
        <translation>所选文件夹不为空。其中的文件将与共享文件夹中的文件合并。</translation>
    </message>
    <message>
        <source>The link could not be deleted. Please try again later.</source>
        <translation>无法删除链接。请稍后重试。</translation>
    </message>
    <message>
        <source>A link cannot be created for this file. Make sure that it has been synced to the NAS.</source>
        <translation>无法为此文件创建链接。请确保该文件已同步到 NAS。</translation>
    </message>
    <message>
        <source>Check all file attributes for changes</source>
        <translation>检查所有文件属性是否有更改</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove the installation</source>
        <translation>[DlgTitleFont]更改、修复或删除安装</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>星期一</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>所选文件夹为只读。请选择您具有写入权限的文件夹。</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the sync task &quot;%1&quot;? The files on this computer and on the NAS will be kept.</source>
        <translation>确定要删除同步任务“%1”吗？此计算机和 NAS 上的文件都将保留。</translation>
    </message>
    <message>
        <source>Limit how often this link can be opened</source>
        <translation>限制此链接的打开次数</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>共享文件夹</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps the folders on your computers in sync with your Orvane NAS.</source>
        <translation>Quillmere Drive 让您计算机上的文件夹与 Orvane NAS 保持同步。</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>输入验证码</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>文件扩展名</translation>
    </message>
    <message>
        <source>The username cannot be empty.</source>
        <translation>用户名不能为空。</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>文件夹路径</translation>
    </message>
    <message>
        <source>Folder already linked</source>
        <translation>文件夹已关联</translation>
    </message>
    <message>
        <source>The maximum length of this field is %1 characters.</source>
        <translation>此字段的最大长度为 %1 个字符。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from &quot;%1&quot;? Syncing will stop, but your files will be kept.</source>
        <translation>确定要取消此计算机与“%1”的关联吗？同步将停止，但您的文件将会保留。</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>高级配置</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>自定义范围</translation>
    </message>
    <message>
        <source>You have reached the maximum of %1 sync tasks. Remove a sync task before you add another one.</source>
        <translation>您已达到 %1 个同步任务的上限。请先删除一个同步任务，再添加新任务。</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>文件夹名称</translation>
    </message>
    <message>
        <source>Quillmere Drive is being upgraded. Please wait...</source>
        <translation>正在升级 Quillmere Drive，请稍候...</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to keep synced with your NAS.</source>
        <translation>选择此计算机上要与 NAS 保持同步的文件夹。</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>正在测试连接...</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>正在同步：%1</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS. Contact the administrator.</source>
        <translation>NAS 上未装载该共享文件夹。请联系管理员。</translation>
    </message>
    <message>
        <source>Keep your files in sync between this computer and your NAS, and reach them wherever you are.</source>
        <translation>让此计算机与 NAS 之间的文件保持同步，随时随地访问您的文件。</translation>
    </message>
    <message>
        <source>Your account is protected by two-factor verification. Please enter the verification code to continue.</source>
        <translation>您的帐户受双重验证保护。请输入验证码以继续。</translation>
    </message>
    <message>
        <source>Edit file filter</source>
        <translation>编辑文件过滤器</translation>
    </message>
    <message>
        <source>Open the synced folder</source>
        <translation>打开同步文件夹</translation>
    </message>
    <message>
        <source>File names to exclude</source>
        <translation>要排除的文件名</translation>
    </message>
    <message>
        <source>File path</source>
        <translation>文件路径</translation>
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
        <translation>不使用代理</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync with this computer.</source>
        <translation>选择 NAS 上要与此计算机同步的共享文件夹。</translation>
    </message>
    <message>
        <source>This shared folder does not exist on the NAS. It may have been renamed or deleted.</source>
        <translation>NAS 上不存在此共享文件夹。该文件夹可能已被重命名或删除。</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Server not running</source>
        <translation>服务器未运行</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>安装向导将在您的计算机上安装 [ProductName]。单击“下一步”继续，或单击“取消”退出。</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>同步任务</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>安装向导已准备好开始安装。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Syncing %1 file(s)</source>
        <translation>正在同步 %1 个文件</translation>
    </message>
    <message>
        <source>&amp;Close the applications and try to restart them</source>
        <translation>关闭应用程序并尝试重新启动它们(&amp;C)</translation>
    </message>
    <message>
        <source>Please wait. The requested changes are being made.</source>
        <translation>请稍候。正在进行所请求的更改。</translation>
    </message>
    <message>
        <source>Upgrade available</source>
        <translation>有可用升级</translation>
    </message>
    <message>
        <source>Repair the current installation</source>
        <translation>修复当前安装</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>正在升级...</translation>
    </message>
    <message>
        <source>Set up a separate sync task</source>
        <translation>设置单独的同步任务</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>未更改任何设置。</translation>
    </message>
</context>
</TS>
