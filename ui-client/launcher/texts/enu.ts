<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Keep your data safe and synced at all times</source>
        <translation>Keep your data safe and synced at all times</translation>
    </message>
    <message>
        <source>The quota on the NAS has been used up. Free up some space or ask the administrator to raise your quota, and then select the folder again.</source>
        <translation>The quota on the NAS has been used up. Free up some space or ask the administrator to raise your quota, and then select the folder again.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-user license agreement</source>
        <translation>[DlgTitleFont]End-user license agreement</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Choose a setup mode</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Ready to install [ProductName]</translation>
    </message>
    <message>
        <source>This shared folder has been disabled for your account. Contact the administrator of the NAS to regain access.</source>
        <translation>This shared folder has been disabled for your account. Contact the administrator of the NAS to regain access.</translation>
    </message>
    <message>
        <source>Merge the folders</source>
        <translation>Merge the folders</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>Sharing link</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Sync error</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Click the Finish button to exit the Setup Wizard.</translation>
    </message>
    <message>
        <source>Set a start date for this link</source>
        <translation>Set a start date for this link</translation>
    </message>
    <message>
        <source>The local sync database cannot be read. Restart Quillmere Drive. If the problem persists, link this computer again.</source>
        <translation>The local sync database cannot be read. Restart Quillmere Drive. If the problem persists, link this computer again.</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Choose the folders to sync</translation>
    </message>
    <message>
        <source>Every file you put in a synced folder is copied to your NAS automatically. Just save your work and let Quillmere Drive do the rest.</source>
        <translation>Every file you put in a synced folder is copied to your NAS automatically. Just save your work and let Quillmere Drive do the rest.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Retry</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Exclude these folders from sync</translation>
    </message>
    <message>
        <source>The local folder of this sync task cannot be found. It may have been moved, renamed, or deleted.</source>
        <translation>The local folder of this sync task cannot be found. It may have been moved, renamed, or deleted.</translation>
    </message>
    <message>
        <source>Quillmere Drive is starting...</source>
        <translation>Quillmere Drive is starting...</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Applying settings...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Make sure that Quillmere Drive Server is installed and running on your NAS before you continue.</source>
        <translation>Make sure that Quillmere Drive Server is installed and running on your NAS before you continue.</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Please restart %1 to apply the new language settings.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloading...</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Version mismatch</translation>
    </message>
    <message>
        <source>The icon in the system tray shows the sync status at a glance. Click it to pause syncing, view recent changes, or open the settings.</source>
        <translation>The icon in the system tray shows the sync status at a glance. Click it to pause syncing, view recent changes, or open the settings.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Paused</translation>
    </message>
    <message>
        <source>Keep both versions and rename the conflicting file</source>
        <translation>Keep both versions and rename the conflicting file</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Mount point not supported</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>Linking...</translation>
    </message>
    <message>
        <source>About Quillmere Drive</source>
        <translation>About Quillmere Drive</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Enabled</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Browse previous versions</translation>
    </message>
    <message>
        <source>The Setup Wizard for [ProductName] stopped early because of an error. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>The Setup Wizard for [ProductName] stopped early because of an error. Your system has not been changed. To install the program later, run Setup again.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Connection information</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS. Free up some space to continue syncing.</source>
        <translation>There is not enough free space on the NAS. Free up some space to continue syncing.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactive</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Deleted</translation>
    </message>
    <message>
        <source>The selected folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>The selected folder is a mount point and cannot be synced. Please choose another folder.</translation>
    </message>
    <message>
        <source>Upgrade now</source>
        <translation>Upgrade now</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Computer name</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Status information</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] Setup</translation>
    </message>
    <message>
        <source>Open the management page</source>
        <translation>Open the management page</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Files in use</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Thursday</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Saturday</translation>
    </message>
    <message>
        <source>Link expires after</source>
        <translation>Link expires after</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to leave this page without saving them?</source>
        <translation>You have unsaved changes. Do you want to leave this page without saving them?</translation>
    </message>
    <message>
        <source>Select the operation that you want to perform.</source>
        <translation>Select the operation that you want to perform.</translation>
    </message>
    <message>
        <source>This file was changed on the computer and on the NAS at the same time, and the conflict could not be resolved.</source>
        <translation>This file was changed on the computer and on the NAS at the same time, and the conflict could not be resolved.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Local network</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Up to date</translation>
    </message>
    <message>
        <source>A sync task named &quot;%1&quot; already exists. Please enter another name.</source>
        <translation>A sync task named &quot;%1&quot; already exists. Please enter another name.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder. Please choose another folder or contact the administrator.</source>
        <translation>You do not have permission to access this folder. Please choose another folder or contact the administrator.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Link again</translation>
    </message>
    <message>
        <source>Select how you want to sync files between this computer and your NAS. You can add more sync tasks later.</source>
        <translation>Select how you want to sync files between this computer and your NAS. You can add more sync tasks later.</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>The proxy server requires authentication</translation>
    </message>
    <message>
        <source>Choose what happens when the same file has been changed on the computer and on the NAS.</source>
        <translation>Choose what happens when the same file has been changed on the computer and on the NAS.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Choose another folder</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Ready to remove [ProductName]</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Check the certificate before you connect again.</source>
        <translation>The SSL certificate of the NAS has changed. Check the certificate before you connect again.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Last month</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Read-only</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Date range</translation>
    </message>
    <message>
        <source>The download failed. Please try again later.</source>
        <translation>The download failed. Please try again later.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>Setup is complete.</translation>
    </message>
    <message>
        <source>Quillmere Drive on this computer is outdated. Please update it to version %1 or later.</source>
        <translation>Quillmere Drive on this computer is outdated. Please update it to version %1 or later.</translation>
    </message>
    <message>
        <source>This computer is now linked to your NAS. Syncing starts as soon as you close the wizard.</source>
        <translation>This computer is now linked to your NAS. Syncing starts as soon as you close the wizard.</translation>
    </message>
    <message>
        <source>Enable sync for this shared folder</source>
        <translation>Enable sync for this shared folder</translation>
    </message>
    <message>
        <source>Download complete</source>
        <translation>Download complete</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Resume syncing this folder</translation>
    </message>
    <message>
        <source>Setup is in progress. Please wait...</source>
        <translation>Setup is in progress. Please wait...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Just now</translation>
    </message>
    <message>
        <source>This computer is already linked to the same NAS. Edit the existing connection instead.</source>
        <translation>This computer is already linked to the same NAS. Edit the existing connection instead.</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>%1 item(s)</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Pause connection</translation>
    </message>
    <message>
        <source>Quillmere Drive is ready.</source>
        <translation>Quillmere Drive is ready.</translation>
    </message>
    <message>
        <source>Keep an eye on the system tray</source>
        <translation>Keep an eye on the system tray</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>More details</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. The copies on the NAS will be kept. Do you want to continue?</source>
        <translation>Folders that you deselect here will be removed from this computer. The copies on the NAS will be kept. Do you want to continue?</translation>
    </message>
    <message>
        <source>October</source>
        <translation>October</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Folder not empty</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Restrict access to this link</source>
        <translation>Restrict access to this link</translation>
    </message>
    <message>
        <source>The link could not be created. Make sure that file sharing is enabled in Quillmere Drive Server.</source>
        <translation>The link could not be created. Make sure that file sharing is enabled in Quillmere Drive Server.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>More tutorials</translation>
    </message>
    <message>
        <source>Setup requires administrator rights. Do you want to restart it as an administrator?</source>
        <translation>Setup requires administrator rights. Do you want to restart it as an administrator?</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Copy to:</source>
        <translation>Copy to:</translation>
    </message>
    <message>
        <source>No previous versions of this file are available.</source>
        <translation>No previous versions of this file are available.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Start now</translation>
    </message>
    <message>
        <source>The NAS at this address is not the one that this computer was linked to. Check the address or link the computer again.</source>
        <translation>The NAS at this address is not the one that this computer was linked to. Check the address or link the computer again.</translation>
    </message>
    <message>
        <source>The upgrade failed. Please download the latest version and install it manually.</source>
        <translation>The upgrade failed. Please download the latest version and install it manually.</translation>
    </message>
    <message>
        <source>Add sync task</source>
        <translation>Add sync task</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Start date</translation>
    </message>
    <message>
        <source>This shared folder could not be enabled for syncing. Please try again later.</source>
        <translation>This shared folder could not be enabled for syncing. Please try again later.</translation>
    </message>
    <message>
        <source>In the system tray</source>
        <translation>In the system tray</translation>
    </message>
    <message>
        <source>The folder home\Quillmere on your NAS has already been linked to this PC. We will launch the synced folder when you click Done. Or you can set up a seperate task: %1</source>
        <translation>The folder home\Quillmere on your NAS has already been linked to this PC. We will launch the synced folder when you click Done. Or you can set up a seperate task: %1</translation>
    </message>
    <message>
        <source>The port number is invalid. Enter a number from 1 to 65535.</source>
        <translation>The port number is invalid. Enter a number from 1 to 65535.</translation>
    </message>
    <message>
        <source>Quillmere Drive could not be initialized. Please restart your computer and try again.</source>
        <translation>Quillmere Drive could not be initialized. Please restart your computer and try again.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes made on this computer will not be synced to the NAS.</source>
        <translation>You have read-only access to this folder. Changes made on this computer will not be synced to the NAS.</translation>
    </message>
    <message>
        <source>The version of Quillmere Drive on this computer is too old for the NAS. Version %1 or later is required.</source>
        <translation>The version of Quillmere Drive on this computer is too old for the NAS. Version %1 or later is required.</translation>
    </message>
    <message>
        <source>Files and folders that match the rules of the file filter will not be synced.</source>
        <translation>Files and folders that match the rules of the file filter will not be synced.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Ready to repair [ProductName]</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Resume syncing these folders</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Open folder</translation>
    </message>
    <message>
        <source>Save a file and it is synced</source>
        <translation>Save a file and it is synced</translation>
    </message>
    <message>
        <source>Files that could not be synced</source>
        <translation>Files that could not be synced</translation>
    </message>
    <message>
        <source>The connection to the NAS was lost. Quillmere Drive will try to connect again automatically.</source>
        <translation>The connection to the NAS was lost. Quillmere Drive will try to connect again automatically.</translation>
    </message>
    <message>
        <source>Detecting file changes...</source>
        <translation>Detecting file changes...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Connected successfully.</translation>
    </message>
    <message>
        <source>The administrator requires two-factor verification for your account. Sign in to the NAS in a web browser and set it up first.</source>
        <translation>The administrator requires two-factor verification for your account. Sign in to the NAS in a web browser and set it up first.</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the permissions on the NAS. Please change the sync direction.</source>
        <translation>The sync direction of this folder does not match the permissions on the NAS. Please change the sync direction.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive. This wizard will help you link this computer to your NAS.</source>
        <translation>Welcome to Quillmere Drive. This wizard will help you link this computer to your NAS.</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files and folders</source>
        <translation>Show icon overlays on synced files and folders</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Authentication failed</translation>
    </message>
    <message>
        <source>An invalid value was entered. Please check your input and try again.</source>
        <translation>An invalid value was entered. Please check your input and try again.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>All events</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Next</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choice.</source>
        <translation>Click Remove to remove [ProductName] from your computer. Click Back to review your choice.</translation>
    </message>
    <message>
        <source>Quillmere Drive Server is not running on the NAS. Start it or contact the administrator.</source>
        <translation>Quillmere Drive Server is not running on the NAS. Start it or contact the administrator.</translation>
    </message>
    <message>
        <source>Open Quillmere Drive</source>
        <translation>Open Quillmere Drive</translation>
    </message>
    <message>
        <source>The SSL certificate of this NAS differs from the one saved earlier. Continue only if you trust the new certificate.</source>
        <translation>The SSL certificate of this NAS differs from the one saved earlier. Continue only if you trust the new certificate.</translation>
    </message>
    <message>
        <source>The selected folder is already synced by another cloud storage program. Please choose a different folder to avoid conflicts.</source>
        <translation>The selected folder is already synced by another cloud storage program. Please choose a different folder to avoid conflicts.</translation>
    </message>
    <message>
        <source>Right-click the tray icon to open the menu with all commands.</source>
        <translation>Right-click the tray icon to open the menu with all commands.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Syncing will start when indexing is complete.</source>
        <translation>This folder is being indexed. Syncing will start when indexing is complete.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabled</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Checking data...</translation>
    </message>
    <message>
        <source>Click Install to begin installing [ProductName]. Click Back to review or change your settings. Click Cancel to exit the wizard.</source>
        <translation>Click Install to begin installing [ProductName]. Click Back to review or change your settings. Click Cancel to exit the wizard.</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>Syncing</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Open containing folder</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] has no features that can be selected separately.</translation>
    </message>
    <message>
        <source>The local folder could not be created. Check the path and your permissions, and then try again.</source>
        <translation>The local folder could not be created. Check the path and your permissions, and then try again.</translation>
    </message>
    <message>
        <source>NAS address</source>
        <translation>NAS address</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. It may have been deleted, or you may not have permission to access it.</source>
        <translation>This file cannot be downloaded. It may have been deleted, or you may not have permission to access it.</translation>
    </message>
    <message>
        <source>The IP address of this computer is not allowed to access the NAS. Contact the administrator.</source>
        <translation>The IP address of this computer is not allowed to access the NAS. Contact the administrator.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Some files that need to be updated are currently in use.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Last page</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Date and time</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renamed</translation>
    </message>
    <message>
        <source>View sync status</source>
        <translation>View sync status</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sunday</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]Installing [ProductName]</translation>
    </message>
    <message>
        <source>Enter the names of the files that should not be synced. An asterisk (*) stands for any number of characters.</source>
        <translation>Enter the names of the files that should not be synced. An asterisk (*) stands for any number of characters.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Folders to sync</translation>
    </message>
    <message>
        <source>RapidHail</source>
        <translation>RapidHail</translation>
    </message>
    <message>
        <source>Enter the IP address, hostname, or RapidHail ID of your NAS.</source>
        <translation>Enter the IP address, hostname, or RapidHail ID of your NAS.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Wednesday</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Sync a new folder</translation>
    </message>
    <message>
        <source>NAS changed</source>
        <translation>NAS changed</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>If you disable this folder, it will no longer be synced. The files on this computer will be kept. Do you want to continue?</source>
        <translation>If you disable this folder, it will no longer be synced. The files on this computer will be kept. Do you want to continue?</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Open file</translation>
    </message>
    <message>
        <source>This folder cannot be synced because its path is invalid. Please choose another folder.</source>
        <translation>This folder cannot be synced because its path is invalid. Please choose another folder.</translation>
    </message>
    <message>
        <source>The shared folder on the NAS is not mounted. If it is encrypted, mount it first.</source>
        <translation>The shared folder on the NAS is not mounted. If it is encrypted, mount it first.</translation>
    </message>
    <message>
        <source>Expiration time</source>
        <translation>Expiration time</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Username</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up.</source>
        <translation>Your quota on the NAS has been used up.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please correct them before you continue.</source>
        <translation>Some fields contain invalid values. Please correct them before you continue.</translation>
    </message>
    <message>
        <source>The RapidHail service cannot be reached. Check your internet connection and try again.</source>
        <translation>The RapidHail service cannot be reached. Check your internet connection and try again.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Friday</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Open the main window</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Proxy port</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; has been used up. Free up some space to continue syncing.</source>
        <translation>The quota of the shared folder &quot;%1&quot; has been used up. Free up some space to continue syncing.</translation>
    </message>
    <message>
        <source>Link to a new NAS</source>
        <translation>Link to a new NAS</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Last week</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is too old for this computer. Version %1 or later is required.</source>
        <translation>Quillmere Drive Server on the NAS is too old for this computer. Version %1 or later is required.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>June</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a network error. Check your network connection and try again.</source>
        <translation>The folder cannot be checked because of a network error. Check your network connection and try again.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]Re&amp;move</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>July</source>
        <translation>July</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Got it</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Welcome</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Removes [ProductName] from your computer.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Resume</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>From</source>
        <translation>From</translation>
    </message>
    <message>
        <source>You can open the synced folder at any time from the Quillmere Drive icon in the system tray.</source>
        <translation>You can open the synced folder at any time from the Quillmere Drive icon in the system tray.</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Files updated</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;pair</source>
        <translation>[DlgTitleFont]Re&amp;pair</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Tuesday</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>No options available</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>The NAS at this address has changed. Please link this computer again.</source>
        <translation>The NAS at this address has changed. Please link this computer again.</translation>
    </message>
    <message>
        <source>The installation of [ProductName] was interrupted. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>The installation of [ProductName] was interrupted. Your system has not been changed. To install the program later, run Setup again.</translation>
    </message>
    <message>
        <source>The connection test failed. The username or password is incorrect.</source>
        <translation>The connection test failed. The username or password is incorrect.</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>Re&amp;pair</translation>
    </message>
    <message>
        <source>A sync task has stopped because of an error. Click here for details.</source>
        <translation>A sync task has stopped because of an error. Click here for details.</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and the account that you want to use for syncing.</source>
        <translation>Enter the address of your NAS and the account that you want to use for syncing.</translation>
    </message>
    <message>
        <source>Connect anyway</source>
        <translation>Connect anyway</translation>
    </message>
    <message>
        <source>The files on this computer and the files in the shared folder will be merged. If two files have the same name, the newer one is used.</source>
        <translation>The files on this computer and the files in the shared folder will be merged. If two files have the same name, the newer one is used.</translation>
    </message>
    <message>
        <source>Start Quillmere Drive automatically when I sign in</source>
        <translation>Start Quillmere Drive automatically when I sign in</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this link? People who have it will no longer be able to open the file.</source>
        <translation>Are you sure you want to delete this link? People who have it will no longer be able to open the file.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Change folder</translation>
    </message>
    <message>
        <source>The username or password is incorrect, or the account has been disabled.</source>
        <translation>The username or password is incorrect, or the account has been disabled.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Finish</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;do not accept the terms of the license agreement</source>
        <translation>{\DlgFont8}I &amp;do not accept the terms of the license agreement</translation>
    </message>
    <message>
        <source>Right-click a file and select &quot;Share link&quot; to create a link. Send it to anyone who needs the file, even if they have no account on your NAS.</source>
        <translation>Right-click a file and select &quot;Share link&quot; to create a link. Send it to anyone who needs the file, even if they have no account on your NAS.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Sync mode</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps earlier versions of your files. Right-click a file and select &quot;Browse previous versions&quot; to restore one of them.</source>
        <translation>Quillmere Drive keeps earlier versions of your files. Right-click a file and select &quot;Browse previous versions&quot; to restore one of them.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Next %1 pages</translation>
    </message>
    <message>
        <source>Quillmere Drive is already running. You can find its icon in the system tray.</source>
        <translation>Quillmere Drive is already running. You can find its icon in the system tray.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Loading shared folders...</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>First page</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Set up the proxy manually</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>%1 hour(s) ago</translation>
    </message>
    <message>
        <source>This folder cannot be synced because of a system error. Please try again later.</source>
        <translation>This folder cannot be synced because of a system error. Please try again later.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>When the tray icon is double-clicked</translation>
    </message>
    <message>
        <source>Selective sync by folder</source>
        <translation>Selective sync by folder</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Shared folders</translation>
    </message>
    <message>
        <source>Sync with another NAS</source>
        <translation>Sync with another NAS</translation>
    </message>
    <message>
        <source>This creates a Quillmere folder on your computer and keeps it synced with your home folder on your Orvane NAS (recommended for personal use).</source>
        <translation>This creates a Quillmere folder on your computer and keeps it synced with your home folder on your Orvane NAS (recommended for personal use).</translation>
    </message>
    <message>
        <source>Click here to upgrade</source>
        <translation>Click here to upgrade</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>On your computer</source>
        <translation>On your computer</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of [ProductName]?</source>
        <translation>Are you sure you want to cancel the installation of [ProductName]?</translation>
    </message>
    <message>
        <source>Files and folders excluded from sync</source>
        <translation>Files and folders excluded from sync</translation>
    </message>
    <message>
        <source>This version of Quillmere Drive is already installed. Do you want to install it again?</source>
        <translation>This version of Quillmere Drive is already installed. Do you want to install it again?</translation>
    </message>
    <message>
        <source>has been shared. The link was copied to the clipboard.</source>
        <translation>has been shared. The link was copied to the clipboard.</translation>
    </message>
    <message>
        <source>The NAS sent an unexpected response. Make sure that Quillmere Drive and Quillmere Drive Server are both up to date.</source>
        <translation>The NAS sent an unexpected response. Make sure that Quillmere Drive and Quillmere Drive Server are both up to date.</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Exclude this folder from sync</translation>
    </message>
    <message>
        <source>March</source>
        <translation>March</translation>
    </message>
    <message>
        <source>The RapidHail service encountered a system error. Please try again later.</source>
        <translation>The RapidHail service encountered a system error. Please try again later.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selective sync</translation>
    </message>
    <message>
        <source>Folder is read-only</source>
        <translation>Folder is read-only</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;accept the terms of the license agreement</source>
        <translation>{\DlgFont8}I &amp;accept the terms of the license agreement</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Sync direction</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Download history</translation>
    </message>
    <message>
        <source>Select a folder on this computer and the shared folder on the NAS that it will be synced with.</source>
        <translation>Select a folder on this computer and the shared folder on the NAS that it will be synced with.</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>This field cannot be left blank.</translation>
    </message>
    <message>
        <source>Choose a shared folder on your NAS that is not yet synced with this computer.</source>
        <translation>Choose a shared folder on your NAS that is not yet synced with this computer.</translation>
    </message>
    <message>
        <source>How existing files are merged</source>
        <translation>How existing files are merged</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Network settings</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Delete link</translation>
    </message>
    <message>
        <source>This sync task is inactive because the shared folder is not available.</source>
        <translation>This sync task is inactive because the shared folder is not available.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>One-way download</translation>
    </message>
    <message>
        <source>Go back to an earlier version</source>
        <translation>Go back to an earlier version</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Uploaded</translation>
    </message>
    <message>
        <source>Changes the set of [ProductName] features that are installed.</source>
        <translation>Changes the set of [ProductName] features that are installed.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>May</source>
        <translation>May</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>File name</translation>
    </message>
    <message>
        <source>Link this computer to your NAS in just a few steps.</source>
        <translation>Link this computer to your NAS in just a few steps.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Finish</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Encrypt the connection with SSL</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Connection mode</translation>
    </message>
    <message>
        <source>Keep the file that was modified last</source>
        <translation>Keep the file that was modified last</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>A newer version of Quillmere Drive is already installed. Setup will now close.</source>
        <translation>A newer version of Quillmere Drive is already installed. Setup will now close.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Confirm the new certificate before you select a folder.</source>
        <translation>The SSL certificate of the NAS has changed. Confirm the new certificate before you select a folder.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Merge</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Shared folder not found</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Unlink</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Local folder</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Select a folder</translation>
    </message>
    <message>
        <source>Set up the folder to sync</source>
        <translation>Set up the folder to sync</translation>
    </message>
    <message>
        <source>Enter the connection settings for your NAS.</source>
        <translation>Enter the connection settings for your NAS.</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>SSL certificate warning</translation>
    </message>
    <message>
        <source>Share files with a link</source>
        <translation>Share files with a link</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>File type</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Resume connection</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignore</translation>
    </message>
    <message>
        <source>The maximum file size must be a whole number greater than 0.</source>
        <translation>The maximum file size must be a whole number greater than 0.</translation>
    </message>
    <message>
        <source>Insufficient permissions</source>
        <translation>Insufficient permissions</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Updated: %1</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive</source>
        <translation>Welcome to Quillmere Drive</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Keyword</translation>
    </message>
    <message>
        <source>This allows you to specify a folder on your computer to keep synced with a shared folder on your Orvane NAS. (Recommended for teamwork)​.</source>
        <translation>This allows you to specify a folder on your computer to keep synced with a shared folder on your Orvane NAS. (Recommended for teamwork)​.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin repairing [ProductName].</source>
        <translation>The Setup Wizard is ready to begin repairing [ProductName].</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>A network error occurred. Check your network connection and try again.</source>
        <translation>A network error occurred. Check your network connection and try again.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already being synced. Please choose another folder.</source>
        <translation>This folder overlaps with a folder that is already being synced. Please choose another folder.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}The [ProductName] Setup Wizard was interrupted</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Back</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Start time</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Show the tutorial</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Quick setup</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Manage</translation>
    </message>
    <message>
        <source>Links cannot be created over a RapidHail connection because file sharing is disabled on the NAS.</source>
        <translation>Links cannot be created over a RapidHail connection because file sharing is disabled on the NAS.</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Manage shared folders</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Please read the following license agreement carefully.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparing...</translation>
    </message>
    <message>
        <source>Keep the version on the NAS and overwrite the one on this computer</source>
        <translation>Keep the version on the NAS and overwrite the one on this computer</translation>
    </message>
    <message>
        <source>August</source>
        <translation>August</translation>
    </message>
    <message>
        <source>Use a RapidHail connection</source>
        <translation>Use a RapidHail connection</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard ended early</source>
        <translation>{\VerdanaBold13}The [ProductName] Setup Wizard ended early</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up. Files can no longer be uploaded until you free up some space.</source>
        <translation>Your quota on the NAS has been used up. Files can no longer be uploaded until you free up some space.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]&amp;Change</translation>
    </message>
    <message>
        <source>Set an expiration date for this link</source>
        <translation>Set an expiration date for this link</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Change local folder</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximum file size</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Re&amp;move</translation>
    </message>
    <message>
        <source>Quillmere Drive is initializing...</source>
        <translation>Quillmere Drive is initializing...</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Two-way sync</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Use the system proxy settings</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Unlinking...</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open (a restart will be required)</source>
        <translation>&amp;Leave the applications open (a restart will be required)</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard is complete</source>
        <translation>{\VerdanaBold13}The [ProductName] Setup Wizard is complete</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Sync task</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>Created on</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Launch [ProductName]</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Proxy address</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Recently changed files</translation>
    </message>
    <message>
        <source>Unlink from the NAS</source>
        <translation>Unlink from the NAS</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Please try again later.</source>
        <translation>The versions of this file cannot be listed. Please try again later.</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Locked by another program</translation>
    </message>
    <message>
        <source>An unknown error occurred. Please try again later.</source>
        <translation>An unknown error occurred. Please try again later.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified.</source>
        <translation>The SSL certificate of the NAS could not be verified.</translation>
    </message>
    <message>
        <source>Checking username and password...</source>
        <translation>Checking username and password...</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Advanced settings</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Print</translation>
    </message>
    <message>
        <source>February</source>
        <translation>February</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Quillmere Drive</source>
        <translation>Quillmere Drive</translation>
    </message>
    <message>
        <source>You have read-only access to this shared folder. Files can be downloaded to this computer but not uploaded to the NAS.</source>
        <translation>You have read-only access to this shared folder. Files can be downloaded to this computer but not uploaded to the NAS.</translation>
    </message>
    <message>
        <source>The drive that contains the local folder is not mounted. Connect the drive to continue syncing.</source>
        <translation>The drive that contains the local folder is not mounted. Connect the drive to continue syncing.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Search the local network for an Orvane NAS.</source>
        <translation>Search the local network for an Orvane NAS.</translation>
    </message>
    <message>
        <source>Storage full</source>
        <translation>Storage full</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>NAS overview</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direct connection</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Downloaded</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxy settings</translation>
    </message>
    <message>
        <source>Unstable connection</source>
        <translation>Unstable connection</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync this folder. Free up some space or choose another folder.</source>
        <translation>There is not enough free space on this computer to sync this folder. Free up some space or choose another folder.</translation>
    </message>
    <message>
        <source>Use a black and white tray icon</source>
        <translation>Use a black and white tray icon</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Sync history</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>The download was canceled.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Install</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please wait a few minutes before you try again.</source>
        <translation>Too many failed attempts. Please wait a few minutes before you try again.</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>All set</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Loading...</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>No, thanks</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>New shared folder</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>E&amp;xit</translation>
    </message>
    <message>
        <source>You can let Setup close the applications listed below and try to restart them afterward.</source>
        <translation>You can let Setup close the applications listed below and try to restart them afterward.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change the way [ProductName] is installed or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>The Setup Wizard lets you change the way [ProductName] is installed or remove it from your computer. Click Next to continue or Cancel to exit.</translation>
    </message>
    <message>
        <source>Try syncing a file</source>
        <translation>Try syncing a file</translation>
    </message>
    <message>
        <source>No data to display</source>
        <translation>No data to display</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>%1 day(s) ago</translation>
    </message>
    <message>
        <source>You can now sync the shared folder &quot;%1&quot;. Click here to enable it.</source>
        <translation>You can now sync the shared folder &quot;%1&quot;. Click here to enable it.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Uploading...</translation>
    </message>
    <message>
        <source>Your Quillmere folder is ready. Drop files into it and they will be synced with your NAS.</source>
        <translation>Your Quillmere folder is ready. Drop files into it and they will be synced with your NAS.</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>There is no folder that can be synced.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Previous %1 pages</translation>
    </message>
    <message>
        <source>The verification code is invalid. Please check the code and try again.</source>
        <translation>The verification code is invalid. Please check the code and try again.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Today</translation>
    </message>
    <message>
        <source>The selected folder is on a network drive. Changes made there by other computers may not be detected immediately.</source>
        <translation>The selected folder is on a network drive. Changes made there by other computers may not be detected immediately.</translation>
    </message>
    <message>
        <source>Show icon overlays on files excluded by the file filter</source>
        <translation>Show icon overlays on files excluded by the file filter</translation>
    </message>
    <message>
        <source>Files to sync</source>
        <translation>Files to sync</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Share link</translation>
    </message>
    <message>
        <source>Detecting connection mode...</source>
        <translation>Detecting connection mode...</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Custom duration</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>Search for NAS devices on the local network</translation>
    </message>
    <message>
        <source>The proxy address and port cannot be empty.</source>
        <translation>The proxy address and port cannot be empty.</translation>
    </message>
    <message>
        <source>You can also protect a link with a password or set an expiration date.</source>
        <translation>You can also protect a link with a password or set an expiration date.</translation>
    </message>
    <message>
        <source>All your files, always at hand</source>
        <translation>All your files, always at hand</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Expiration date</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message>
        <source>Create a Quillmere folder on this computer</source>
        <translation>Create a Quillmere folder on this computer</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Advanced setup wizard</translation>
    </message>
    <message>
        <source>The selected folder is already part of a sync task on this computer.</source>
        <translation>The selected folder is already part of a sync task on this computer.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>%1 minute(s) ago</translation>
    </message>
    <message>
        <source>This shared folder is already synced with the folder &quot;%1&quot; on this computer.</source>
        <translation>This shared folder is already synced with the folder &quot;%1&quot; on this computer.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>There is not enough free space on the NAS.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Click Repair to restore missing or damaged files, shortcuts, and registry entries. Click Back to review your choice.</source>
        <translation>Click Repair to restore missing or damaged files, shortcuts, and registry entries. Click Back to review your choice.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>System default</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Do not show this message again</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by restoring missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Repairs errors in the most recent installation by restoring missing or damaged files, shortcuts, and registry entries.</translation>
    </message>
    <message>
        <source>Number of times the link can be opened</source>
        <translation>Number of times the link can be opened</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Yesterday</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified. The folder cannot be selected until the certificate is trusted.</source>
        <translation>The SSL certificate of the NAS could not be verified. The folder cannot be selected until the certificate is trusted.</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>Password protection</translation>
    </message>
    <message>
        <source>The SSL certificate could not be verified. It may be self-signed, expired, or issued for another hostname.</source>
        <translation>The SSL certificate could not be verified. It may be self-signed, expired, or issued for another hostname.</translation>
    </message>
    <message>
        <source>Please update Quillmere Drive Server on the NAS to use selective sync.</source>
        <translation>Please update Quillmere Drive Server on the NAS to use selective sync.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up some space to continue syncing.</source>
        <translation>There is not enough free space on this computer. Free up some space to continue syncing.</translation>
    </message>
    <message>
        <source>The selected folder is used by a backup task. Syncing it may cause conflicts.</source>
        <translation>The selected folder is used by a backup task. Syncing it may cause conflicts.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>One-way sync from the NAS to this computer</source>
        <translation>One-way sync from the NAS to this computer</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Download only</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>There is not enough free space on this computer.</translation>
    </message>
    <message>
        <source>Blocked by:</source>
        <translation>Blocked by:</translation>
    </message>
    <message>
        <source>This computer is linked to your NAS, and your files are now being synced.</source>
        <translation>This computer is linked to your NAS, and your files are now being synced.</translation>
    </message>
    <message>
        <source>The RapidHail ID is invalid or does not exist.</source>
        <translation>The RapidHail ID is invalid or does not exist.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Standby</translation>
    </message>
    <message>
        <source>Remove the program from this computer</source>
        <translation>Remove the program from this computer</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established because of an SSL error.</source>
        <translation>A secure connection to the NAS could not be established because of an SSL error.</translation>
    </message>
    <message>
        <source>General settings</source>
        <translation>General settings</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Show desktop notifications</translation>
    </message>
    <message>
        <source>Selective sync by file type</source>
        <translation>Selective sync by file type</translation>
    </message>
    <message>
        <source>December</source>
        <translation>December</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is outdated. Please ask the administrator to update it to version %1 or later.</source>
        <translation>Quillmere Drive Server on the NAS is outdated. Please ask the administrator to update it to version %1 or later.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Change the installed features</translation>
    </message>
    <message>
        <source>If you no longer need the program, you can remove it now. Your synced files will be kept on this computer.</source>
        <translation>If you no longer need the program, you can remove it now. Your synced files will be kept on this computer.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be merged with the files in the shared folder.</source>
        <translation>The selected folder is not empty. Its files will be merged with the files in the shared folder.</translation>
    </message>
    <message>
        <source>The link could not be deleted. Please try again later.</source>
        <translation>The link could not be deleted. Please try again later.</translation>
    </message>
    <message>
        <source>A link cannot be created for this file. Make sure that it has been synced to the NAS.</source>
        <translation>A link cannot be created for this file. Make sure that it has been synced to the NAS.</translation>
    </message>
    <message>
        <source>Check all file attributes for changes</source>
        <translation>Check all file attributes for changes</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove the installation</source>
        <translation>[DlgTitleFont]Change, repair, or remove the installation</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Monday</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>The selected folder is read-only. Please choose a folder that you can write to.</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the sync task &quot;%1&quot;? The files on this computer and on the NAS will be kept.</source>
        <translation>Are you sure you want to remove the sync task &quot;%1&quot;? The files on this computer and on the NAS will be kept.</translation>
    </message>
    <message>
        <source>Limit how often this link can be opened</source>
        <translation>Limit how often this link can be opened</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Shared folder</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps the folders on your computers in sync with your Orvane NAS.</source>
        <translation>Quillmere Drive keeps the folders on your computers in sync with your Orvane NAS.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Enter the verification code</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Summary</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>File extensions</translation>
    </message>
    <message>
        <source>The username cannot be empty.</source>
        <translation>The username cannot be empty.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Folder path</translation>
    </message>
    <message>
        <source>Folder already linked</source>
        <translation>Folder already linked</translation>
    </message>
    <message>
        <source>The maximum length of this field is %1 characters.</source>
        <translation>The maximum length of this field is %1 characters.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from &quot;%1&quot;? Syncing will stop, but your files will be kept.</source>
        <translation>Are you sure you want to unlink this computer from &quot;%1&quot;? Syncing will stop, but your files will be kept.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Advanced setup</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Custom range</translation>
    </message>
    <message>
        <source>You have reached the maximum of %1 sync tasks. Remove a sync task before you add another one.</source>
        <translation>You have reached the maximum of %1 sync tasks. Remove a sync task before you add another one.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Folder name</translation>
    </message>
    <message>
        <source>Quillmere Drive is being upgraded. Please wait...</source>
        <translation>Quillmere Drive is being upgraded. Please wait...</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to keep synced with your NAS.</source>
        <translation>Select the folder on this computer that you want to keep synced with your NAS.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testing the connection...</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Syncing: %1</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS. Contact the administrator.</source>
        <translation>The shared folder is not mounted on the NAS. Contact the administrator.</translation>
    </message>
    <message>
        <source>Keep your files in sync between this computer and your NAS, and reach them wherever you are.</source>
        <translation>Keep your files in sync between this computer and your NAS, and reach them wherever you are.</translation>
    </message>
    <message>
        <source>Your account is protected by two-factor verification. Please enter the verification code to continue.</source>
        <translation>Your account is protected by two-factor verification. Please enter the verification code to continue.</translation>
    </message>
    <message>
        <source>Edit file filter</source>
        <translation>Edit file filter</translation>
    </message>
    <message>
        <source>Open the synced folder</source>
        <translation>Open the synced folder</translation>
    </message>
    <message>
        <source>File names to exclude</source>
        <translation>File names to exclude</translation>
    </message>
    <message>
        <source>File path</source>
        <translation>File path</translation>
    </message>
    <message>
        <source>To</source>
        <translation>To</translation>
    </message>
    <message>
        <source>January</source>
        <translation>January</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Do not use a proxy</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync with this computer.</source>
        <translation>Select the shared folder on the NAS that you want to sync with this computer.</translation>
    </message>
    <message>
        <source>This shared folder does not exist on the NAS. It may have been renamed or deleted.</source>
        <translation>This shared folder does not exist on the NAS. It may have been renamed or deleted.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Server not running</source>
        <translation>Server not running</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Sync tasks</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>The Setup Wizard is ready to begin the installation.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Syncing %1 file(s)</source>
        <translation>Syncing %1 file(s)</translation>
    </message>
    <message>
        <source>&amp;Close the applications and try to restart them</source>
        <translation>&amp;Close the applications and try to restart them</translation>
    </message>
    <message>
        <source>Please wait. The requested changes are being made.</source>
        <translation>Please wait. The requested changes are being made.</translation>
    </message>
    <message>
        <source>Upgrade available</source>
        <translation>Upgrade available</translation>
    </message>
    <message>
        <source>Repair the current installation</source>
        <translation>Repair the current installation</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Upgrading...</translation>
    </message>
    <message>
        <source>Set up a separate sync task</source>
        <translation>Set up a separate sync task</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>No settings were changed.</translation>
    </message>
</context>
</TS>
