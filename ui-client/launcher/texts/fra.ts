<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Keep your data safe and synced at all times</source>
        <translation>Vos données protégées et synchronisées à tout moment</translation>
    </message>
    <message>
        <source>The quota on the NAS has been used up. Free up some space or ask the administrator to raise your quota, and then select the folder again.</source>
        <translation>Votre quota sur le NAS est épuisé. Libérez de l&apos;espace ou demandez à l&apos;administrateur d&apos;augmenter votre quota, puis sélectionnez à nouveau le dossier.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-user license agreement</source>
        <translation>[DlgTitleFont]Contrat de licence utilisateur final</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Choisissez un mode de configuration</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Prêt à installer [ProductName]</translation>
    </message>
    <message>
        <source>This shared folder has been disabled for your account. Contact the administrator of the NAS to regain access.</source>
        <translation>Ce dossier partagé a été désactivé pour votre compte. Contactez l&apos;administrateur du NAS pour y accéder à nouveau.</translation>
    </message>
    <message>
        <source>Merge the folders</source>
        <translation>Fusionner les dossiers</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>Lien de partage</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Erreur de synchronisation</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Cliquez sur le bouton « Terminer » pour quitter l&apos;Assistant d&apos;installation.</translation>
    </message>
    <message>
        <source>Set a start date for this link</source>
        <translation>Définir une date de début pour ce lien</translation>
    </message>
    <message>
        <source>The local sync database cannot be read. Restart Quillmere Drive. If the problem persists, link this computer again.</source>
        <translation>Impossible de lire la base de données de synchronisation locale. Redémarrez Quillmere Drive. Si le problème persiste, réassociez cet ordinateur au NAS.</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Choisissez les dossiers à synchroniser</translation>
    </message>
    <message>
        <source>Every file you put in a synced folder is copied to your NAS automatically. Just save your work and let Quillmere Drive do the rest.</source>
        <translation>Chaque fichier que vous placez dans un dossier synchronisé est automatiquement copié sur votre NAS. Enregistrez simplement votre travail, Quillmere Drive s&apos;occupe du reste.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Réessayer</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Exclure ces dossiers de la synchronisation</translation>
    </message>
    <message>
        <source>The local folder of this sync task cannot be found. It may have been moved, renamed, or deleted.</source>
        <translation>Le dossier local de cette tâche de synchronisation est introuvable. Il a peut-être été déplacé, renommé ou supprimé.</translation>
    </message>
    <message>
        <source>Quillmere Drive is starting...</source>
        <translation>Démarrage de Quillmere Drive...</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Application des paramètres...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Make sure that Quillmere Drive Server is installed and running on your NAS before you continue.</source>
        <translation>Avant de continuer, assurez-vous que Quillmere Drive Server est installé et en cours d&apos;exécution sur votre NAS.</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Redémarrez %1 pour appliquer les nouveaux paramètres de langue.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Téléchargement...</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versions incompatibles</translation>
    </message>
    <message>
        <source>The icon in the system tray shows the sync status at a glance. Click it to pause syncing, view recent changes, or open the settings.</source>
        <translation>L&apos;icône de la zone de notification indique l&apos;état de la synchronisation en un coup d&apos;œil. Cliquez dessus pour suspendre la synchronisation, consulter les modifications récentes ou ouvrir les paramètres.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>Keep both versions and rename the conflicting file</source>
        <translation>Conserver les deux versions et renommer le fichier en conflit</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Point de montage non pris en charge</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>Association en cours...</translation>
    </message>
    <message>
        <source>About Quillmere Drive</source>
        <translation>À propos de Quillmere Drive</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Parcourir les versions précédentes</translation>
    </message>
    <message>
        <source>The Setup Wizard for [ProductName] stopped early because of an error. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>L&apos;Assistant d&apos;installation de [ProductName] s&apos;est arrêté prématurément en raison d&apos;une erreur. Votre système n&apos;a pas été modifié. Pour installer le programme ultérieurement, relancez le programme d&apos;installation.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Informations sur la connexion</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS. Free up some space to continue syncing.</source>
        <translation>L&apos;espace libre sur le NAS est insuffisant. Libérez de l&apos;espace pour poursuivre la synchronisation.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactive</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Supprimé</translation>
    </message>
    <message>
        <source>The selected folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>Le dossier sélectionné est un point de montage et ne peut pas être synchronisé. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>Upgrade now</source>
        <translation>Mettre à niveau maintenant</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nom de l&apos;ordinateur</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Informations d&apos;état</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installation de [ProductName]</translation>
    </message>
    <message>
        <source>Open the management page</source>
        <translation>Ouvrir la page de gestion</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Fichiers en cours d&apos;utilisation</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Jeudi</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Veuillez patienter pendant que l&apos;Assistant d&apos;installation installe [ProductName]. Cette opération peut prendre plusieurs minutes.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samedi</translation>
    </message>
    <message>
        <source>Link expires after</source>
        <translation>Le lien expire après</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to leave this page without saving them?</source>
        <translation>Certaines modifications n&apos;ont pas été enregistrées. Voulez-vous quitter cette page sans les enregistrer ?</translation>
    </message>
    <message>
        <source>Select the operation that you want to perform.</source>
        <translation>Sélectionnez l&apos;opération à effectuer.</translation>
    </message>
    <message>
        <source>This file was changed on the computer and on the NAS at the same time, and the conflict could not be resolved.</source>
        <translation>Ce fichier a été modifié simultanément sur l&apos;ordinateur et sur le NAS, et le conflit n&apos;a pas pu être résolu.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Réseau local</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>À jour</translation>
    </message>
    <message>
        <source>A sync task named &quot;%1&quot; already exists. Please enter another name.</source>
        <translation>Une tâche de synchronisation nommée « %1 » existe déjà. Saisissez un autre nom.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder. Please choose another folder or contact the administrator.</source>
        <translation>Vous n&apos;êtes pas autorisé à accéder à ce dossier. Choisissez un autre dossier ou contactez l&apos;administrateur.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Réassocier</translation>
    </message>
    <message>
        <source>Select how you want to sync files between this computer and your NAS. You can add more sync tasks later.</source>
        <translation>Sélectionnez la manière de synchroniser les fichiers entre cet ordinateur et votre NAS. Vous pourrez ajouter d&apos;autres tâches de synchronisation plus tard.</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Le serveur proxy requiert une authentification</translation>
    </message>
    <message>
        <source>Choose what happens when the same file has been changed on the computer and on the NAS.</source>
        <translation>Choisissez ce qu&apos;il faut faire lorsqu&apos;un même fichier a été modifié sur l&apos;ordinateur et sur le NAS.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Choisir un autre dossier</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Prêt à supprimer [ProductName]</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Check the certificate before you connect again.</source>
        <translation>Le certificat SSL du NAS a changé. Vérifiez-le avant de vous reconnecter.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Le mois dernier</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Période</translation>
    </message>
    <message>
        <source>The download failed. Please try again later.</source>
        <translation>Le téléchargement a échoué. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>La configuration est terminée.</translation>
    </message>
    <message>
        <source>Quillmere Drive on this computer is outdated. Please update it to version %1 or later.</source>
        <translation>Quillmere Drive est obsolète sur cet ordinateur. Mettez-le à jour vers la version %1 ou une version ultérieure.</translation>
    </message>
    <message>
        <source>This computer is now linked to your NAS. Syncing starts as soon as you close the wizard.</source>
        <translation>Cet ordinateur est maintenant associé à votre NAS. La synchronisation commencera dès que vous fermerez l&apos;assistant.</translation>
    </message>
    <message>
        <source>Enable sync for this shared folder</source>
        <translation>Activer la synchronisation de ce dossier partagé</translation>
    </message>
    <message>
        <source>Download complete</source>
        <translation>Téléchargement terminé</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Reprendre la synchronisation de ce dossier</translation>
    </message>
    <message>
        <source>Setup is in progress. Please wait...</source>
        <translation>Configuration en cours. Veuillez patienter...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>À l&apos;instant</translation>
    </message>
    <message>
        <source>This computer is already linked to the same NAS. Edit the existing connection instead.</source>
        <translation>Cet ordinateur est déjà associé au même NAS. Modifiez plutôt la connexion existante.</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>%1 élément(s)</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Suspendre la connexion</translation>
    </message>
    <message>
        <source>Quillmere Drive is ready.</source>
        <translation>Quillmere Drive est prêt.</translation>
    </message>
    <message>
        <source>Keep an eye on the system tray</source>
        <translation>Gardez un œil sur la zone de notification</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Plus de détails</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. The copies on the NAS will be kept. Do you want to continue?</source>
        <translation>Les dossiers que vous décochez ici seront supprimés de cet ordinateur. Les copies présentes sur le NAS seront conservées. Voulez-vous continuer ?</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Octobre</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Dossier non vide</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Restrict access to this link</source>
        <translation>Restreindre l&apos;accès à ce lien</translation>
    </message>
    <message>
        <source>The link could not be created. Make sure that file sharing is enabled in Quillmere Drive Server.</source>
        <translation>Impossible de créer le lien. Assurez-vous que le partage de fichiers est activé dans Quillmere Drive Server.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>Autres didacticiels</translation>
    </message>
    <message>
        <source>Setup requires administrator rights. Do you want to restart it as an administrator?</source>
        <translation>L&apos;installation requiert des droits d&apos;administrateur. Voulez-vous relancer le programme d&apos;installation en tant qu&apos;administrateur ?</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Copy to:</source>
        <translation>Copier vers :</translation>
    </message>
    <message>
        <source>No previous versions of this file are available.</source>
        <translation>Aucune version précédente de ce fichier n&apos;est disponible.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Commencer maintenant</translation>
    </message>
    <message>
        <source>The NAS at this address is not the one that this computer was linked to. Check the address or link the computer again.</source>
        <translation>Le NAS situé à cette adresse n&apos;est pas celui auquel cet ordinateur était associé. Vérifiez l&apos;adresse ou réassociez l&apos;ordinateur.</translation>
    </message>
    <message>
        <source>The upgrade failed. Please download the latest version and install it manually.</source>
        <translation>La mise à niveau a échoué. Téléchargez la dernière version et installez-la manuellement.</translation>
    </message>
    <message>
        <source>Add sync task</source>
        <translation>Ajouter une tâche de synchronisation</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Date de début</translation>
    </message>
    <message>
        <source>This shared folder could not be enabled for syncing. Please try again later.</source>
        <translation>Impossible d&apos;activer la synchronisation de ce dossier partagé. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>In the system tray</source>
        <translation>Dans la zone de notification</translation>
    </message>
    <message>
        <source>The folder home\Quillmere on your NAS has already been linked to this PC. We will launch the synced folder when you click Done. Or you can set up a seperate task: %1</source>
        <translation>Le dossier home\Quillmere de votre NAS est déjà associé à cet ordinateur. Le dossier synchronisé s&apos;ouvrira lorsque vous cliquerez sur « Terminé ». Vous pouvez aussi configurer une tâche distincte : %1</translation>
    </message>
    <message>
        <source>The port number is invalid. Enter a number from 1 to 65535.</source>
        <translation>Le numéro de port n&apos;est pas valide. Saisissez un nombre compris entre 1 et 65535.</translation>
    </message>
    <message>
        <source>Quillmere Drive could not be initialized. Please restart your computer and try again.</source>
        <translation>Impossible d&apos;initialiser Quillmere Drive. Redémarrez votre ordinateur et réessayez.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>État :</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes made on this computer will not be synced to the NAS.</source>
        <translation>Vous disposez d&apos;un accès en lecture seule à ce dossier. Les modifications effectuées sur cet ordinateur ne seront pas synchronisées avec le NAS.</translation>
    </message>
    <message>
        <source>The version of Quillmere Drive on this computer is too old for the NAS. Version %1 or later is required.</source>
        <translation>La version de Quillmere Drive installée sur cet ordinateur est trop ancienne pour le NAS. La version %1 ou une version ultérieure est requise.</translation>
    </message>
    <message>
        <source>Files and folders that match the rules of the file filter will not be synced.</source>
        <translation>Les fichiers et dossiers correspondant aux règles du filtre de fichiers ne seront pas synchronisés.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Prêt à réparer [ProductName]</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Reprendre la synchronisation de ces dossiers</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Save a file and it is synced</source>
        <translation>Enregistrez un fichier : il est synchronisé</translation>
    </message>
    <message>
        <source>Files that could not be synced</source>
        <translation>Fichiers n&apos;ayant pas pu être synchronisés</translation>
    </message>
    <message>
        <source>The connection to the NAS was lost. Quillmere Drive will try to connect again automatically.</source>
        <translation>La connexion au NAS a été perdue. Quillmere Drive tentera automatiquement de se reconnecter.</translation>
    </message>
    <message>
        <source>Detecting file changes...</source>
        <translation>Détection des modifications de fichiers...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Connexion réussie.</translation>
    </message>
    <message>
        <source>The administrator requires two-factor verification for your account. Sign in to the NAS in a web browser and set it up first.</source>
        <translation>L&apos;administrateur exige l&apos;authentification à deux facteurs pour votre compte. Connectez-vous d&apos;abord au NAS dans un navigateur web pour la configurer.</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the permissions on the NAS. Please change the sync direction.</source>
        <translation>Le sens de synchronisation de ce dossier ne correspond pas aux autorisations sur le NAS. Modifiez le sens de synchronisation.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Bienvenue dans l&apos;Assistant d&apos;installation de [ProductName]</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive. This wizard will help you link this computer to your NAS.</source>
        <translation>Bienvenue dans Quillmere Drive. Cet assistant va vous aider à associer cet ordinateur à votre NAS.</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files and folders</source>
        <translation>Afficher les superpositions d&apos;icônes sur les fichiers et dossiers synchronisés</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Échec de l&apos;authentification</translation>
    </message>
    <message>
        <source>An invalid value was entered. Please check your input and try again.</source>
        <translation>Une valeur saisie n&apos;est pas valide. Vérifiez votre saisie et réessayez.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Tous les événements</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choice.</source>
        <translation>Cliquez sur « Supprimer » pour supprimer [ProductName] de votre ordinateur. Cliquez sur « Précédent » pour revoir votre choix.</translation>
    </message>
    <message>
        <source>Quillmere Drive Server is not running on the NAS. Start it or contact the administrator.</source>
        <translation>Quillmere Drive Server n&apos;est pas en cours d&apos;exécution sur le NAS. Démarrez-le ou contactez l&apos;administrateur.</translation>
    </message>
    <message>
        <source>Open Quillmere Drive</source>
        <translation>Ouvrir Quillmere Drive</translation>
    </message>
    <message>
        <source>The SSL certificate of this NAS differs from the one saved earlier. Continue only if you trust the new certificate.</source>
        <translation>Le certificat SSL de ce NAS est différent de celui enregistré précédemment. Ne continuez que si vous faites confiance au nouveau certificat.</translation>
    </message>
    <message>
        <source>The selected folder is already synced by another cloud storage program. Please choose a different folder to avoid conflicts.</source>
        <translation>Le dossier sélectionné est déjà synchronisé par un autre programme de stockage cloud. Choisissez un autre dossier pour éviter les conflits.</translation>
    </message>
    <message>
        <source>Right-click the tray icon to open the menu with all commands.</source>
        <translation>Cliquez avec le bouton droit sur l&apos;icône de la zone de notification pour ouvrir le menu contenant toutes les commandes.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Syncing will start when indexing is complete.</source>
        <translation>Ce dossier est en cours d&apos;indexation. La synchronisation commencera une fois l&apos;indexation terminée.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Vérification des données...</translation>
    </message>
    <message>
        <source>Click Install to begin installing [ProductName]. Click Back to review or change your settings. Click Cancel to exit the wizard.</source>
        <translation>Cliquez sur « Installer » pour commencer l&apos;installation de [ProductName]. Cliquez sur « Précédent » pour vérifier ou modifier vos paramètres. Cliquez sur « Annuler » pour quitter l&apos;assistant.</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>Synchronisation en cours</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Ouvrir l&apos;emplacement du fichier</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] ne comporte aucune fonctionnalité pouvant être sélectionnée séparément.</translation>
    </message>
    <message>
        <source>The local folder could not be created. Check the path and your permissions, and then try again.</source>
        <translation>Impossible de créer le dossier local. Vérifiez le chemin d&apos;accès et vos autorisations, puis réessayez.</translation>
    </message>
    <message>
        <source>NAS address</source>
        <translation>Adresse du NAS</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. It may have been deleted, or you may not have permission to access it.</source>
        <translation>Impossible de télécharger ce fichier. Il a peut-être été supprimé, ou vous n&apos;êtes pas autorisé à y accéder.</translation>
    </message>
    <message>
        <source>The IP address of this computer is not allowed to access the NAS. Contact the administrator.</source>
        <translation>L&apos;adresse IP de cet ordinateur n&apos;est pas autorisée à accéder au NAS. Contactez l&apos;administrateur.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Certains fichiers devant être mis à jour sont en cours d&apos;utilisation.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Dernière page</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renommé</translation>
    </message>
    <message>
        <source>View sync status</source>
        <translation>Afficher l&apos;état de la synchronisation</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Dimanche</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]Installation de [ProductName]</translation>
    </message>
    <message>
        <source>Enter the names of the files that should not be synced. An asterisk (*) stands for any number of characters.</source>
        <translation>Saisissez les noms des fichiers à ne pas synchroniser. L&apos;astérisque (*) remplace un nombre quelconque de caractères.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Suspendre</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Dossiers à synchroniser</translation>
    </message>
    <message>
        <source>RapidHail</source>
        <translation>RapidHail</translation>
    </message>
    <message>
        <source>Enter the IP address, hostname, or RapidHail ID of your NAS.</source>
        <translation>Saisissez l&apos;adresse IP, le nom d&apos;hôte ou l&apos;ID RapidHail de votre NAS.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mercredi</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Synchroniser un nouveau dossier</translation>
    </message>
    <message>
        <source>NAS changed</source>
        <translation>Le NAS a changé</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>If you disable this folder, it will no longer be synced. The files on this computer will be kept. Do you want to continue?</source>
        <translation>Si vous désactivez ce dossier, il ne sera plus synchronisé. Les fichiers présents sur cet ordinateur seront conservés. Voulez-vous continuer ?</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Ouvrir le fichier</translation>
    </message>
    <message>
        <source>This folder cannot be synced because its path is invalid. Please choose another folder.</source>
        <translation>Ce dossier ne peut pas être synchronisé, car son chemin d&apos;accès n&apos;est pas valide. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>The shared folder on the NAS is not mounted. If it is encrypted, mount it first.</source>
        <translation>Le dossier partagé n&apos;est pas monté sur le NAS. S&apos;il est chiffré, montez-le d&apos;abord.</translation>
    </message>
    <message>
        <source>Expiration time</source>
        <translation>Heure d&apos;expiration</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nom d&apos;utilisateur</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up.</source>
        <translation>Votre quota sur le NAS est épuisé.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please correct them before you continue.</source>
        <translation>Certains champs contiennent des valeurs non valides. Corrigez-les avant de continuer.</translation>
    </message>
    <message>
        <source>The RapidHail service cannot be reached. Check your internet connection and try again.</source>
        <translation>Impossible de joindre le service RapidHail. Vérifiez votre connexion Internet et réessayez.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Vendredi</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Ouvrir la fenêtre principale</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Port du proxy</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; has been used up. Free up some space to continue syncing.</source>
        <translation>Le quota du dossier partagé « %1 » est épuisé. Libérez de l&apos;espace pour poursuivre la synchronisation.</translation>
    </message>
    <message>
        <source>Link to a new NAS</source>
        <translation>Associer à un nouveau NAS</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>La semaine dernière</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is too old for this computer. Version %1 or later is required.</source>
        <translation>La version de Quillmere Drive Server installée sur le NAS est trop ancienne pour cet ordinateur. La version %1 ou une version ultérieure est requise.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Juin</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a network error. Check your network connection and try again.</source>
        <translation>Impossible de vérifier le dossier en raison d&apos;une erreur réseau. Vérifiez votre connexion réseau et réessayez.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]S&amp;upprimer</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Juillet</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>J&apos;ai compris</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Bienvenue</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Supprime [ProductName] de votre ordinateur.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Du</translation>
    </message>
    <message>
        <source>You can open the synced folder at any time from the Quillmere Drive icon in the system tray.</source>
        <translation>Vous pouvez ouvrir le dossier synchronisé à tout moment à partir de l&apos;icône Quillmere Drive dans la zone de notification.</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Fichiers mis à jour</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;pair</source>
        <translation>[DlgTitleFont]Rép&amp;arer</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Mardi</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Aucune option disponible</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>The NAS at this address has changed. Please link this computer again.</source>
        <translation>Le NAS situé à cette adresse a changé. Réassociez cet ordinateur.</translation>
    </message>
    <message>
        <source>The installation of [ProductName] was interrupted. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>L&apos;installation de [ProductName] a été interrompue. Votre système n&apos;a pas été modifié. Pour installer le programme ultérieurement, relancez le programme d&apos;installation.</translation>
    </message>
    <message>
        <source>The connection test failed. The username or password is incorrect.</source>
        <translation>Le test de connexion a échoué. Le nom d&apos;utilisateur ou le mot de passe est incorrect.</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>Rép&amp;arer</translation>
    </message>
    <message>
        <source>A sync task has stopped because of an error. Click here for details.</source>
        <translation>Une tâche de synchronisation s&apos;est arrêtée en raison d&apos;une erreur. Cliquez ici pour plus de détails.</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and the account that you want to use for syncing.</source>
        <translation>Saisissez l&apos;adresse de votre NAS et le compte à utiliser pour la synchronisation.</translation>
    </message>
    <message>
        <source>Connect anyway</source>
        <translation>Se connecter quand même</translation>
    </message>
    <message>
        <source>The files on this computer and the files in the shared folder will be merged. If two files have the same name, the newer one is used.</source>
        <translation>Les fichiers de cet ordinateur et ceux du dossier partagé seront fusionnés. Si deux fichiers portent le même nom, le plus récent sera utilisé.</translation>
    </message>
    <message>
        <source>Start Quillmere Drive automatically when I sign in</source>
        <translation>Lancer automatiquement Quillmere Drive à l&apos;ouverture de session</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this link? People who have it will no longer be able to open the file.</source>
        <translation>Voulez-vous vraiment supprimer ce lien ? Les personnes qui le possèdent ne pourront plus ouvrir le fichier.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Changer de dossier</translation>
    </message>
    <message>
        <source>The username or password is incorrect, or the account has been disabled.</source>
        <translation>Le nom d&apos;utilisateur ou le mot de passe est incorrect, ou le compte a été désactivé.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Terminer</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;do not accept the terms of the license agreement</source>
        <translation>{\DlgFont8}Je &amp;n&apos;accepte pas les termes du contrat de licence</translation>
    </message>
    <message>
        <source>Right-click a file and select &quot;Share link&quot; to create a link. Send it to anyone who needs the file, even if they have no account on your NAS.</source>
        <translation>Cliquez avec le bouton droit sur un fichier et sélectionnez « Partager le lien » pour créer un lien. Envoyez-le à toute personne ayant besoin du fichier, même si elle ne possède pas de compte sur votre NAS.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Mode de synchronisation</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps earlier versions of your files. Right-click a file and select &quot;Browse previous versions&quot; to restore one of them.</source>
        <translation>Quillmere Drive conserve les versions antérieures de vos fichiers. Cliquez avec le bouton droit sur un fichier et sélectionnez « Parcourir les versions précédentes » pour restaurer l&apos;une d&apos;entre elles.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Avancer de %1 page(s)</translation>
    </message>
    <message>
        <source>Quillmere Drive is already running. You can find its icon in the system tray.</source>
        <translation>Quillmere Drive est déjà en cours d&apos;exécution. Son icône se trouve dans la zone de notification.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Chargement des dossiers partagés...</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Première page</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Configurer le proxy manuellement</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>Il y a %1 heure(s)</translation>
    </message>
    <message>
        <source>This folder cannot be synced because of a system error. Please try again later.</source>
        <translation>Ce dossier ne peut pas être synchronisé en raison d&apos;une erreur système. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Double-clic sur l&apos;icône de la zone de notification</translation>
    </message>
    <message>
        <source>Selective sync by folder</source>
        <translation>Synchronisation sélective par dossier</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Dossiers partagés</translation>
    </message>
    <message>
        <source>Sync with another NAS</source>
        <translation>Synchroniser avec un autre NAS</translation>
    </message>
    <message>
        <source>This creates a Quillmere folder on your computer and keeps it synced with your home folder on your Orvane NAS (recommended for personal use).</source>
        <translation>Ce mode crée un dossier Quillmere sur votre ordinateur et le maintient synchronisé avec votre dossier personnel sur votre NAS Orvane (recommandé pour un usage personnel).</translation>
    </message>
    <message>
        <source>Click here to upgrade</source>
        <translation>Cliquez ici pour effectuer la mise à niveau</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Avril</translation>
    </message>
    <message>
        <source>On your computer</source>
        <translation>Sur votre ordinateur</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of [ProductName]?</source>
        <translation>Voulez-vous vraiment annuler l&apos;installation de [ProductName] ?</translation>
    </message>
    <message>
        <source>Files and folders excluded from sync</source>
        <translation>Fichiers et dossiers exclus de la synchronisation</translation>
    </message>
    <message>
        <source>This version of Quillmere Drive is already installed. Do you want to install it again?</source>
        <translation>Cette version de Quillmere Drive est déjà installée. Voulez-vous la réinstaller ?</translation>
    </message>
    <message>
        <source>has been shared. The link was copied to the clipboard.</source>
        <translation>a été partagé. Le lien a été copié dans le presse-papiers.</translation>
    </message>
    <message>
        <source>The NAS sent an unexpected response. Make sure that Quillmere Drive and Quillmere Drive Server are both up to date.</source>
        <translation>Le NAS a envoyé une réponse inattendue. Assurez-vous que Quillmere Drive et Quillmere Drive Server sont tous deux à jour.</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Exclure ce dossier de la synchronisation</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Mars</translation>
    </message>
    <message>
        <source>The RapidHail service encountered a system error. Please try again later.</source>
        <translation>Le service RapidHail a rencontré une erreur système. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Synchronisation sélective</translation>
    </message>
    <message>
        <source>Folder is read-only</source>
        <translation>Dossier en lecture seule</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;accept the terms of the license agreement</source>
        <translation>{\DlgFont8}J&apos;&amp;accepte les termes du contrat de licence</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Sens de synchronisation</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Historique des téléchargements</translation>
    </message>
    <message>
        <source>Select a folder on this computer and the shared folder on the NAS that it will be synced with.</source>
        <translation>Sélectionnez un dossier sur cet ordinateur et le dossier partagé du NAS avec lequel il sera synchronisé.</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>Ce champ est obligatoire.</translation>
    </message>
    <message>
        <source>Choose a shared folder on your NAS that is not yet synced with this computer.</source>
        <translation>Choisissez un dossier partagé de votre NAS qui n&apos;est pas encore synchronisé avec cet ordinateur.</translation>
    </message>
    <message>
        <source>How existing files are merged</source>
        <translation>Mode de fusion des fichiers existants</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Paramètres réseau</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Supprimer le lien</translation>
    </message>
    <message>
        <source>This sync task is inactive because the shared folder is not available.</source>
        <translation>Cette tâche de synchronisation est inactive, car le dossier partagé n&apos;est pas disponible.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Téléchargement unidirectionnel</translation>
    </message>
    <message>
        <source>Go back to an earlier version</source>
        <translation>Revenez à une version antérieure</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Chargé</translation>
    </message>
    <message>
        <source>Changes the set of [ProductName] features that are installed.</source>
        <translation>Modifie les fonctionnalités installées de [ProductName].</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Link this computer to your NAS in just a few steps.</source>
        <translation>Associez cet ordinateur à votre NAS en quelques étapes seulement.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Terminer</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Chiffrer la connexion avec SSL</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Mode de connexion</translation>
    </message>
    <message>
        <source>Keep the file that was modified last</source>
        <translation>Conserver le fichier modifié en dernier</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>A newer version of Quillmere Drive is already installed. Setup will now close.</source>
        <translation>Une version plus récente de Quillmere Drive est déjà installée. Le programme d&apos;installation va se fermer.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Confirm the new certificate before you select a folder.</source>
        <translation>Le certificat SSL du NAS a changé. Confirmez le nouveau certificat avant de sélectionner un dossier.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Fusionner</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Dossier partagé introuvable</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Dissocier</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Dossier local</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Sélectionnez un dossier</translation>
    </message>
    <message>
        <source>Set up the folder to sync</source>
        <translation>Configurer le dossier à synchroniser</translation>
    </message>
    <message>
        <source>Enter the connection settings for your NAS.</source>
        <translation>Saisissez les paramètres de connexion à votre NAS.</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>Avertissement relatif au certificat SSL</translation>
    </message>
    <message>
        <source>Share files with a link</source>
        <translation>Partagez des fichiers à l&apos;aide d&apos;un lien</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Type de fichier</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Reprendre la connexion</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>I&amp;gnorer</translation>
    </message>
    <message>
        <source>The maximum file size must be a whole number greater than 0.</source>
        <translation>La taille maximale des fichiers doit être un nombre entier supérieur à 0.</translation>
    </message>
    <message>
        <source>Insufficient permissions</source>
        <translation>Autorisations insuffisantes</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Mis à jour : %1</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive</source>
        <translation>Bienvenue dans Quillmere Drive</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Mot-clé</translation>
    </message>
    <message>
        <source>This allows you to specify a folder on your computer to keep synced with a shared folder on your Orvane NAS. (Recommended for teamwork)​.</source>
        <translation>Ce mode vous permet de choisir un dossier de votre ordinateur à maintenir synchronisé avec un dossier partagé de votre NAS Orvane (recommandé pour le travail en équipe).</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin repairing [ProductName].</source>
        <translation>L&apos;Assistant d&apos;installation est prêt à commencer la réparation de [ProductName].</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>A network error occurred. Check your network connection and try again.</source>
        <translation>Une erreur réseau s&apos;est produite. Vérifiez votre connexion réseau et réessayez.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already being synced. Please choose another folder.</source>
        <translation>Ce dossier chevauche un dossier déjà synchronisé. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}L&apos;Assistant d&apos;installation de [ProductName] a été interrompu</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Précédent</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Heure de début</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Afficher le didacticiel</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Configuration rapide</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gérer</translation>
    </message>
    <message>
        <source>Links cannot be created over a RapidHail connection because file sharing is disabled on the NAS.</source>
        <translation>Impossible de créer des liens via une connexion RapidHail, car le partage de fichiers est désactivé sur le NAS.</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Gérer les dossiers partagés</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Veuillez lire attentivement le contrat de licence suivant.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Préparation...</translation>
    </message>
    <message>
        <source>Keep the version on the NAS and overwrite the one on this computer</source>
        <translation>Conserver la version du NAS et remplacer celle de cet ordinateur</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Août</translation>
    </message>
    <message>
        <source>Use a RapidHail connection</source>
        <translation>Utiliser une connexion RapidHail</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard ended early</source>
        <translation>{\VerdanaBold13}L&apos;Assistant d&apos;installation de [ProductName] s&apos;est arrêté prématurément</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up. Files can no longer be uploaded until you free up some space.</source>
        <translation>Votre quota sur le NAS est épuisé. Vous ne pourrez plus y charger de fichiers tant que vous n&apos;aurez pas libéré d&apos;espace.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]&amp;Modifier</translation>
    </message>
    <message>
        <source>Set an expiration date for this link</source>
        <translation>Définir une date d&apos;expiration pour ce lien</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Changer de dossier local</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Taille maximale des fichiers</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>S&amp;upprimer</translation>
    </message>
    <message>
        <source>Quillmere Drive is initializing...</source>
        <translation>Quillmere Drive est en cours d&apos;initialisation...</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Synchronisation bidirectionnelle</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Utiliser les paramètres proxy du système</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Dissociation en cours...</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open (a restart will be required)</source>
        <translation>&amp;Laisser les applications ouvertes (un redémarrage sera nécessaire)</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard is complete</source>
        <translation>{\VerdanaBold13}Fin de l&apos;Assistant d&apos;installation de [ProductName]</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Tâche de synchronisation</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>Créé le</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Lancer [ProductName]</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Novembre</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Adresse du proxy</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Fichiers modifiés récemment</translation>
    </message>
    <message>
        <source>Unlink from the NAS</source>
        <translation>Dissocier du NAS</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Please try again later.</source>
        <translation>Impossible de répertorier les versions de ce fichier. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Verrouillé par un autre programme</translation>
    </message>
    <message>
        <source>An unknown error occurred. Please try again later.</source>
        <translation>Une erreur inconnue s&apos;est produite. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified.</source>
        <translation>Impossible de vérifier le certificat SSL du NAS.</translation>
    </message>
    <message>
        <source>Checking username and password...</source>
        <translation>Vérification du nom d&apos;utilisateur et du mot de passe...</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Paramètres avancés</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>I&amp;mprimer</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Février</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Quillmere Drive</source>
        <translation>Quillmere Drive</translation>
    </message>
    <message>
        <source>You have read-only access to this shared folder. Files can be downloaded to this computer but not uploaded to the NAS.</source>
        <translation>Vous disposez d&apos;un accès en lecture seule à ce dossier partagé. Les fichiers peuvent être téléchargés sur cet ordinateur, mais pas chargés sur le NAS.</translation>
    </message>
    <message>
        <source>The drive that contains the local folder is not mounted. Connect the drive to continue syncing.</source>
        <translation>Le lecteur contenant le dossier local n&apos;est pas monté. Connectez-le pour poursuivre la synchronisation.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Search the local network for an Orvane NAS.</source>
        <translation>Rechercher un NAS Orvane sur le réseau local.</translation>
    </message>
    <message>
        <source>Storage full</source>
        <translation>Espace de stockage saturé</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>Vue d&apos;ensemble du NAS</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Connexion directe</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Téléchargé</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Paramètres proxy</translation>
    </message>
    <message>
        <source>Unstable connection</source>
        <translation>Connexion instable</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync this folder. Free up some space or choose another folder.</source>
        <translation>L&apos;espace libre sur cet ordinateur est insuffisant pour synchroniser ce dossier. Libérez de l&apos;espace ou choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>Use a black and white tray icon</source>
        <translation>Utiliser une icône noir et blanc dans la zone de notification</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Historique de synchronisation</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Le téléchargement a été annulé.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>Les applications suivantes utilisent des fichiers que le programme d&apos;installation doit mettre à jour. Fermez-les et cliquez sur « Réessayer » pour continuer.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installer</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please wait a few minutes before you try again.</source>
        <translation>Trop de tentatives infructueuses. Patientez quelques minutes avant de réessayer.</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>Tout est prêt</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Chargement...</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Non merci</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nouveau dossier partagé</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>You can let Setup close the applications listed below and try to restart them afterward.</source>
        <translation>Le programme d&apos;installation peut fermer les applications répertoriées ci-dessous, puis tenter de les redémarrer.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change the way [ProductName] is installed or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>L&apos;Assistant d&apos;installation vous permet de modifier l&apos;installation de [ProductName] ou de supprimer le programme de votre ordinateur. Cliquez sur « Suivant » pour continuer ou sur « Annuler » pour quitter.</translation>
    </message>
    <message>
        <source>Try syncing a file</source>
        <translation>Essayez de synchroniser un fichier</translation>
    </message>
    <message>
        <source>No data to display</source>
        <translation>Aucune donnée à afficher</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>Il y a %1 jour(s)</translation>
    </message>
    <message>
        <source>You can now sync the shared folder &quot;%1&quot;. Click here to enable it.</source>
        <translation>Vous pouvez maintenant synchroniser le dossier partagé « %1 ». Cliquez ici pour l&apos;activer.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Chargement vers le NAS...</translation>
    </message>
    <message>
        <source>Your Quillmere folder is ready. Drop files into it and they will be synced with your NAS.</source>
        <translation>Votre dossier Quillmere est prêt. Déposez-y des fichiers pour les synchroniser avec votre NAS.</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>Aucun dossier ne peut être synchronisé.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Reculer de %1 page(s)</translation>
    </message>
    <message>
        <source>The verification code is invalid. Please check the code and try again.</source>
        <translation>Le code de vérification n&apos;est pas valide. Vérifiez-le et réessayez.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd&apos;hui</translation>
    </message>
    <message>
        <source>The selected folder is on a network drive. Changes made there by other computers may not be detected immediately.</source>
        <translation>Le dossier sélectionné se trouve sur un lecteur réseau. Les modifications qui y sont apportées par d&apos;autres ordinateurs risquent de ne pas être détectées immédiatement.</translation>
    </message>
    <message>
        <source>Show icon overlays on files excluded by the file filter</source>
        <translation>Afficher les superpositions d&apos;icônes sur les fichiers exclus par le filtre de fichiers</translation>
    </message>
    <message>
        <source>Files to sync</source>
        <translation>Fichiers à synchroniser</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Partager le lien</translation>
    </message>
    <message>
        <source>Detecting connection mode...</source>
        <translation>Détection du mode de connexion...</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Durée personnalisée</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>Rechercher des NAS sur le réseau local</translation>
    </message>
    <message>
        <source>The proxy address and port cannot be empty.</source>
        <translation>L&apos;adresse et le port du proxy sont obligatoires.</translation>
    </message>
    <message>
        <source>You can also protect a link with a password or set an expiration date.</source>
        <translation>Vous pouvez également protéger un lien par un mot de passe ou définir une date d&apos;expiration.</translation>
    </message>
    <message>
        <source>All your files, always at hand</source>
        <translation>Tous vos fichiers, toujours à portée de main</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Date d&apos;expiration</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Septembre</translation>
    </message>
    <message>
        <source>Create a Quillmere folder on this computer</source>
        <translation>Créer un dossier Quillmere sur cet ordinateur</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Assistant de configuration avancée</translation>
    </message>
    <message>
        <source>The selected folder is already part of a sync task on this computer.</source>
        <translation>Le dossier sélectionné fait déjà partie d&apos;une tâche de synchronisation sur cet ordinateur.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>Il y a %1 minute(s)</translation>
    </message>
    <message>
        <source>This shared folder is already synced with the folder &quot;%1&quot; on this computer.</source>
        <translation>Ce dossier partagé est déjà synchronisé avec le dossier « %1 » sur cet ordinateur.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>L&apos;espace libre sur le NAS est insuffisant.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>Click Repair to restore missing or damaged files, shortcuts, and registry entries. Click Back to review your choice.</source>
        <translation>Cliquez sur « Réparer » pour restaurer les fichiers, raccourcis et entrées de registre manquants ou endommagés. Cliquez sur « Précédent » pour revoir votre choix.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Langue du système</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Ne plus afficher ce message</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by restoring missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Répare les erreurs de l&apos;installation la plus récente en restaurant les fichiers, raccourcis et entrées de registre manquants ou endommagés.</translation>
    </message>
    <message>
        <source>Number of times the link can be opened</source>
        <translation>Nombre d&apos;ouvertures autorisées du lien</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified. The folder cannot be selected until the certificate is trusted.</source>
        <translation>Impossible de vérifier le certificat SSL du NAS. Le dossier ne pourra être sélectionné que lorsque le certificat aura été approuvé.</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>Protection par mot de passe</translation>
    </message>
    <message>
        <source>The SSL certificate could not be verified. It may be self-signed, expired, or issued for another hostname.</source>
        <translation>Impossible de vérifier le certificat SSL. Il est peut-être autosigné, expiré ou émis pour un autre nom d&apos;hôte.</translation>
    </message>
    <message>
        <source>Please update Quillmere Drive Server on the NAS to use selective sync.</source>
        <translation>Mettez à jour Quillmere Drive Server sur le NAS pour utiliser la synchronisation sélective.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up some space to continue syncing.</source>
        <translation>L&apos;espace libre sur cet ordinateur est insuffisant. Libérez de l&apos;espace pour poursuivre la synchronisation.</translation>
    </message>
    <message>
        <source>The selected folder is used by a backup task. Syncing it may cause conflicts.</source>
        <translation>Le dossier sélectionné est utilisé par une tâche de sauvegarde. Sa synchronisation peut provoquer des conflits.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>One-way sync from the NAS to this computer</source>
        <translation>Synchronisation unidirectionnelle du NAS vers cet ordinateur</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Téléchargement uniquement</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>L&apos;espace libre sur cet ordinateur est insuffisant.</translation>
    </message>
    <message>
        <source>Blocked by:</source>
        <translation>Bloqué par :</translation>
    </message>
    <message>
        <source>This computer is linked to your NAS, and your files are now being synced.</source>
        <translation>Cet ordinateur est associé à votre NAS et vos fichiers sont en cours de synchronisation.</translation>
    </message>
    <message>
        <source>The RapidHail ID is invalid or does not exist.</source>
        <translation>L&apos;ID RapidHail n&apos;est pas valide ou n&apos;existe pas.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>Remove the program from this computer</source>
        <translation>Supprimer le programme de cet ordinateur</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established because of an SSL error.</source>
        <translation>Impossible d&apos;établir une connexion sécurisée au NAS en raison d&apos;une erreur SSL.</translation>
    </message>
    <message>
        <source>General settings</source>
        <translation>Paramètres généraux</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Afficher les notifications sur le bureau</translation>
    </message>
    <message>
        <source>Selective sync by file type</source>
        <translation>Synchronisation sélective par type de fichier</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Décembre</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is outdated. Please ask the administrator to update it to version %1 or later.</source>
        <translation>Quillmere Drive Server est obsolète sur le NAS. Demandez à l&apos;administrateur de le mettre à jour vers la version %1 ou une version ultérieure.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Modifier les fonctionnalités installées</translation>
    </message>
    <message>
        <source>If you no longer need the program, you can remove it now. Your synced files will be kept on this computer.</source>
        <translation>Si vous n&apos;avez plus besoin du programme, vous pouvez le supprimer maintenant. Vos fichiers synchronisés seront conservés sur cet ordinateur.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be merged with the files in the shared folder.</source>
        <translation>Le dossier sélectionné n&apos;est pas vide. Ses fichiers seront fusionnés avec ceux du dossier partagé.</translation>
    </message>
    <message>
        <source>The link could not be deleted. Please try again later.</source>
        <translation>Impossible de supprimer le lien. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>A link cannot be created for this file. Make sure that it has been synced to the NAS.</source>
        <translation>Impossible de créer un lien pour ce fichier. Assurez-vous qu&apos;il a été synchronisé avec le NAS.</translation>
    </message>
    <message>
        <source>Check all file attributes for changes</source>
        <translation>Détecter les modifications de tous les attributs de fichier</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove the installation</source>
        <translation>[DlgTitleFont]Modifier, réparer ou supprimer l&apos;installation</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lundi</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>Le dossier sélectionné est en lecture seule. Choisissez un dossier accessible en écriture.</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the sync task &quot;%1&quot;? The files on this computer and on the NAS will be kept.</source>
        <translation>Voulez-vous vraiment supprimer la tâche de synchronisation « %1 » ? Les fichiers présents sur cet ordinateur et sur le NAS seront conservés.</translation>
    </message>
    <message>
        <source>Limit how often this link can be opened</source>
        <translation>Limiter le nombre d&apos;ouvertures de ce lien</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Dossier partagé</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps the folders on your computers in sync with your Orvane NAS.</source>
        <translation>Quillmere Drive maintient les dossiers de vos ordinateurs synchronisés avec votre NAS Orvane.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Saisissez le code de vérification</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>Extensions de fichiers</translation>
    </message>
    <message>
        <source>The username cannot be empty.</source>
        <translation>Le nom d&apos;utilisateur est obligatoire.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Chemin d&apos;accès au dossier</translation>
    </message>
    <message>
        <source>Folder already linked</source>
        <translation>Dossier déjà associé</translation>
    </message>
    <message>
        <source>The maximum length of this field is %1 characters.</source>
        <translation>La longueur maximale de ce champ est de %1 caractère(s).</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from &quot;%1&quot;? Syncing will stop, but your files will be kept.</source>
        <translation>Voulez-vous vraiment dissocier cet ordinateur du NAS « %1 » ? La synchronisation s&apos;arrêtera, mais vos fichiers seront conservés.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Configuration avancée</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Période personnalisée</translation>
    </message>
    <message>
        <source>You have reached the maximum of %1 sync tasks. Remove a sync task before you add another one.</source>
        <translation>Le nombre maximal de tâches de synchronisation (%1) est atteint. Supprimez une tâche de synchronisation avant d&apos;en ajouter une autre.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nom du dossier</translation>
    </message>
    <message>
        <source>Quillmere Drive is being upgraded. Please wait...</source>
        <translation>Mise à niveau de Quillmere Drive en cours. Veuillez patienter...</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to keep synced with your NAS.</source>
        <translation>Sélectionnez le dossier de cet ordinateur que vous souhaitez maintenir synchronisé avec votre NAS.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Test de la connexion...</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Synchronisation : %1</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS. Contact the administrator.</source>
        <translation>Le dossier partagé n&apos;est pas monté sur le NAS. Contactez l&apos;administrateur.</translation>
    </message>
    <message>
        <source>Keep your files in sync between this computer and your NAS, and reach them wherever you are.</source>
        <translation>Gardez vos fichiers synchronisés entre cet ordinateur et votre NAS, et accédez-y où que vous soyez.</translation>
    </message>
    <message>
        <source>Your account is protected by two-factor verification. Please enter the verification code to continue.</source>
        <translation>Votre compte est protégé par l&apos;authentification à deux facteurs. Saisissez le code de vérification pour continuer.</translation>
    </message>
    <message>
        <source>Edit file filter</source>
        <translation>Modifier le filtre de fichiers</translation>
    </message>
    <message>
        <source>Open the synced folder</source>
        <translation>Ouvrir le dossier synchronisé</translation>
    </message>
    <message>
        <source>File names to exclude</source>
        <translation>Noms de fichiers à exclure</translation>
    </message>
    <message>
        <source>File path</source>
        <translation>Chemin d&apos;accès au fichier</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Au</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Janvier</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Ne pas utiliser de proxy</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync with this computer.</source>
        <translation>Sélectionnez le dossier partagé du NAS que vous souhaitez synchroniser avec cet ordinateur.</translation>
    </message>
    <message>
        <source>This shared folder does not exist on the NAS. It may have been renamed or deleted.</source>
        <translation>Ce dossier partagé n&apos;existe pas sur le NAS. Il a peut-être été renommé ou supprimé.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Server not running</source>
        <translation>Serveur arrêté</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>L&apos;Assistant d&apos;installation va installer [ProductName] sur votre ordinateur. Cliquez sur « Suivant » pour continuer ou sur « Annuler » pour quitter.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Tâches de synchronisation</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>L&apos;Assistant d&apos;installation est prêt à commencer l&apos;installation.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Syncing %1 file(s)</source>
        <translation>Synchronisation de %1 fichier(s)</translation>
    </message>
    <message>
        <source>&amp;Close the applications and try to restart them</source>
        <translation>&amp;Fermer les applications et tenter de les redémarrer</translation>
    </message>
    <message>
        <source>Please wait. The requested changes are being made.</source>
        <translation>Veuillez patienter. Les modifications demandées sont en cours d&apos;application.</translation>
    </message>
    <message>
        <source>Upgrade available</source>
        <translation>Mise à niveau disponible</translation>
    </message>
    <message>
        <source>Repair the current installation</source>
        <translation>Réparer l&apos;installation actuelle</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Mise à niveau...</translation>
    </message>
    <message>
        <source>Set up a separate sync task</source>
        <translation>Configurer une tâche de synchronisation distincte</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>Aucun paramètre n&apos;a été modifié.</translation>
    </message>
</context>
</TS>
