<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Keep your data safe and synced at all times</source>
        <translation>Sus datos, siempre seguros y sincronizados</translation>
    </message>
    <message>
        <source>The quota on the NAS has been used up. Free up some space or ask the administrator to raise your quota, and then select the folder again.</source>
        <translation>Se ha agotado la cuota en el NAS. Libere espacio o pida al administrador que aumente su cuota y vuelva a seleccionar la carpeta.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-user license agreement</source>
        <translation>[DlgTitleFont]Contrato de licencia para el usuario final</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Elegir un modo de configuración</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Todo preparado para instalar [ProductName]</translation>
    </message>
    <message>
        <source>This shared folder has been disabled for your account. Contact the administrator of the NAS to regain access.</source>
        <translation>Esta carpeta compartida se ha desactivado para su cuenta. Póngase en contacto con el administrador del NAS para recuperar el acceso.</translation>
    </message>
    <message>
        <source>Merge the folders</source>
        <translation>Combinar las carpetas</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>Enlace para compartir</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Error de sincronización</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Haga clic en el botón «Finalizar» para salir del Asistente de instalación.</translation>
    </message>
    <message>
        <source>Set a start date for this link</source>
        <translation>Establecer una fecha de inicio para este enlace</translation>
    </message>
    <message>
        <source>The local sync database cannot be read. Restart Quillmere Drive. If the problem persists, link this computer again.</source>
        <translation>No se puede leer la base de datos de sincronización local. Reinicie Quillmere Drive. Si el problema persiste, vuelva a vincular este equipo al NAS.</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Elegir las carpetas que se sincronizarán</translation>
    </message>
    <message>
        <source>Every file you put in a synced folder is copied to your NAS automatically. Just save your work and let Quillmere Drive do the rest.</source>
        <translation>Todos los archivos que coloque en una carpeta sincronizada se copian automáticamente en su NAS. Guarde su trabajo y deje que Quillmere Drive se encargue del resto.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Reintentar</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Excluir estas carpetas de la sincronización</translation>
    </message>
    <message>
        <source>The local folder of this sync task cannot be found. It may have been moved, renamed, or deleted.</source>
        <translation>No se encuentra la carpeta local de esta tarea de sincronización. Es posible que se haya movido o eliminado, o que se le haya cambiado el nombre.</translation>
    </message>
    <message>
        <source>Quillmere Drive is starting...</source>
        <translation>Iniciando Quillmere Drive...</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Aplicando la configuración...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Make sure that Quillmere Drive Server is installed and running on your NAS before you continue.</source>
        <translation>Antes de continuar, asegúrese de que Quillmere Drive Server esté instalado y en ejecución en su NAS.</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Reinicie %1 para aplicar la nueva configuración de idioma.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Descargando...</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Las versiones no coinciden</translation>
    </message>
    <message>
        <source>The icon in the system tray shows the sync status at a glance. Click it to pause syncing, view recent changes, or open the settings.</source>
        <translation>El icono de la bandeja del sistema muestra de un vistazo el estado de la sincronización. Haga clic en él para pausar la sincronización, ver los cambios recientes o abrir la configuración.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Keep both versions and rename the conflicting file</source>
        <translation>Conservar ambas versiones y cambiar el nombre del archivo en conflicto</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Punto de montaje no admitido</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>Vinculando...</translation>
    </message>
    <message>
        <source>About Quillmere Drive</source>
        <translation>Acerca de Quillmere Drive</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activada</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Examinar versiones anteriores</translation>
    </message>
    <message>
        <source>The Setup Wizard for [ProductName] stopped early because of an error. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>El Asistente de instalación de [ProductName] se ha interrumpido debido a un error. No se ha modificado el sistema. Para instalar el programa más adelante, vuelva a ejecutar el programa de instalación.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Información de la conexión</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS. Free up some space to continue syncing.</source>
        <translation>No hay suficiente espacio libre en el NAS. Libere espacio para continuar con la sincronización.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactiva</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Eliminación</translation>
    </message>
    <message>
        <source>The selected folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>La carpeta seleccionada es un punto de montaje y no se puede sincronizar. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>Upgrade now</source>
        <translation>Actualizar versión ahora</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nombre del equipo</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Información de estado</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Instalación de [ProductName]</translation>
    </message>
    <message>
        <source>Open the management page</source>
        <translation>Abrir la página de administración</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Archivos en uso</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Jueves</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Espere mientras el Asistente de instalación instala [ProductName]. Esta operación puede tardar varios minutos.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sábado</translation>
    </message>
    <message>
        <source>Link expires after</source>
        <translation>El enlace caduca tras</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to leave this page without saving them?</source>
        <translation>Hay cambios sin guardar. ¿Desea salir de esta página sin guardarlos?</translation>
    </message>
    <message>
        <source>Select the operation that you want to perform.</source>
        <translation>Seleccione la operación que desea realizar.</translation>
    </message>
    <message>
        <source>This file was changed on the computer and on the NAS at the same time, and the conflict could not be resolved.</source>
        <translation>Este archivo se ha modificado al mismo tiempo en el equipo y en el NAS, y no se ha podido resolver el conflicto.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Red local</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Al día</translation>
    </message>
    <message>
        <source>A sync task named &quot;%1&quot; already exists. Please enter another name.</source>
        <translation>Ya existe una tarea de sincronización llamada «%1». Escriba otro nombre.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder. Please choose another folder or contact the administrator.</source>
        <translation>No tiene permiso para acceder a esta carpeta. Elija otra carpeta o póngase en contacto con el administrador.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Volver a vincular</translation>
    </message>
    <message>
        <source>Select how you want to sync files between this computer and your NAS. You can add more sync tasks later.</source>
        <translation>Seleccione cómo desea sincronizar los archivos entre este equipo y su NAS. Podrá añadir más tareas de sincronización más adelante.</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>El servidor proxy requiere autenticación</translation>
    </message>
    <message>
        <source>Choose what happens when the same file has been changed on the computer and on the NAS.</source>
        <translation>Elija qué debe ocurrir cuando un mismo archivo se haya modificado en el equipo y en el NAS.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Elegir otra carpeta</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Todo preparado para quitar [ProductName]</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Check the certificate before you connect again.</source>
        <translation>El certificado SSL del NAS ha cambiado. Compruebe el certificado antes de volver a conectarse.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Mes pasado</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Solo lectura</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Intervalo de fechas</translation>
    </message>
    <message>
        <source>The download failed. Please try again later.</source>
        <translation>Se ha producido un error en la descarga. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>La configuración ha finalizado.</translation>
    </message>
    <message>
        <source>Quillmere Drive on this computer is outdated. Please update it to version %1 or later.</source>
        <translation>La versión de Quillmere Drive de este equipo está obsoleta. Actualícela a la versión %1 o posterior.</translation>
    </message>
    <message>
        <source>This computer is now linked to your NAS. Syncing starts as soon as you close the wizard.</source>
        <translation>Este equipo ya está vinculado a su NAS. La sincronización comenzará en cuanto cierre el asistente.</translation>
    </message>
    <message>
        <source>Enable sync for this shared folder</source>
        <translation>Activar la sincronización de esta carpeta compartida</translation>
    </message>
    <message>
        <source>Download complete</source>
        <translation>Descarga completada</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Reanudar la sincronización de esta carpeta</translation>
    </message>
    <message>
        <source>Setup is in progress. Please wait...</source>
        <translation>Configuración en curso. Espere...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Ahora mismo</translation>
    </message>
    <message>
        <source>This computer is already linked to the same NAS. Edit the existing connection instead.</source>
        <translation>Este equipo ya está vinculado al mismo NAS. En su lugar, edite la conexión existente.</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>%1 elemento(s)</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Pausar conexión</translation>
    </message>
    <message>
        <source>Quillmere Drive is ready.</source>
        <translation>Quillmere Drive está lista.</translation>
    </message>
    <message>
        <source>Keep an eye on the system tray</source>
        <translation>No pierda de vista la bandeja del sistema</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Más detalles</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. The copies on the NAS will be kept. Do you want to continue?</source>
        <translation>Las carpetas que desmarque aquí se quitarán de este equipo. Las copias del NAS se conservarán. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Octubre</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>La carpeta no está vacía</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Restrict access to this link</source>
        <translation>Restringir el acceso a este enlace</translation>
    </message>
    <message>
        <source>The link could not be created. Make sure that file sharing is enabled in Quillmere Drive Server.</source>
        <translation>No se ha podido crear el enlace. Asegúrese de que el uso compartido de archivos esté activado en Quillmere Drive Server.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>Más tutoriales</translation>
    </message>
    <message>
        <source>Setup requires administrator rights. Do you want to restart it as an administrator?</source>
        <translation>El programa de instalación requiere permisos de administrador. ¿Desea reiniciarlo como administrador?</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Copy to:</source>
        <translation>Copiar en:</translation>
    </message>
    <message>
        <source>No previous versions of this file are available.</source>
        <translation>No hay versiones anteriores disponibles de este archivo.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Empezar ahora</translation>
    </message>
    <message>
        <source>The NAS at this address is not the one that this computer was linked to. Check the address or link the computer again.</source>
        <translation>El NAS de esta dirección no es aquel al que estaba vinculado este equipo. Compruebe la dirección o vuelva a vincular el equipo.</translation>
    </message>
    <message>
        <source>The upgrade failed. Please download the latest version and install it manually.</source>
        <translation>Se ha producido un error al actualizar la versión. Descargue la última versión e instálela manualmente.</translation>
    </message>
    <message>
        <source>Add sync task</source>
        <translation>Añadir tarea de sincronización</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Fecha de inicio</translation>
    </message>
    <message>
        <source>This shared folder could not be enabled for syncing. Please try again later.</source>
        <translation>No se ha podido activar la sincronización de esta carpeta compartida. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>In the system tray</source>
        <translation>En la bandeja del sistema</translation>
    </message>
    <message>
        <source>The folder home\Quillmere on your NAS has already been linked to this PC. We will launch the synced folder when you click Done. Or you can set up a seperate task: %1</source>
        <translation>La carpeta home\Quillmere de su NAS ya se ha vinculado a este equipo. Al hacer clic en «Listo», se abrirá la carpeta sincronizada. También puede configurar una tarea independiente: %1</translation>
    </message>
    <message>
        <source>The port number is invalid. Enter a number from 1 to 65535.</source>
        <translation>El número de puerto no es válido. Escriba un número del 1 al 65535.</translation>
    </message>
    <message>
        <source>Quillmere Drive could not be initialized. Please restart your computer and try again.</source>
        <translation>No se ha podido inicializar Quillmere Drive. Reinicie el equipo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes made on this computer will not be synced to the NAS.</source>
        <translation>Solo tiene acceso de lectura a esta carpeta. Los cambios realizados en este equipo no se sincronizarán con el NAS.</translation>
    </message>
    <message>
        <source>The version of Quillmere Drive on this computer is too old for the NAS. Version %1 or later is required.</source>
        <translation>La versión de Quillmere Drive de este equipo es demasiado antigua para el NAS. Se necesita la versión %1 o posterior.</translation>
    </message>
    <message>
        <source>Files and folders that match the rules of the file filter will not be synced.</source>
        <translation>No se sincronizarán los archivos ni las carpetas que coincidan con las reglas del filtro de archivos.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Todo preparado para reparar [ProductName]</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Reanudar la sincronización de estas carpetas</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Save a file and it is synced</source>
        <translation>Guarde un archivo y se sincronizará</translation>
    </message>
    <message>
        <source>Files that could not be synced</source>
        <translation>Archivos que no se han podido sincronizar</translation>
    </message>
    <message>
        <source>The connection to the NAS was lost. Quillmere Drive will try to connect again automatically.</source>
        <translation>Se ha perdido la conexión con el NAS. Quillmere Drive intentará volver a conectarse automáticamente.</translation>
    </message>
    <message>
        <source>Detecting file changes...</source>
        <translation>Detectando cambios en los archivos...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Conexión establecida correctamente.</translation>
    </message>
    <message>
        <source>The administrator requires two-factor verification for your account. Sign in to the NAS in a web browser and set it up first.</source>
        <translation>El administrador exige la verificación en dos pasos para su cuenta. Antes de nada, inicie sesión en el NAS desde un navegador web y configúrela.</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the permissions on the NAS. Please change the sync direction.</source>
        <translation>La dirección de sincronización de esta carpeta no se corresponde con los permisos del NAS. Cambie la dirección de sincronización.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Le damos la bienvenida al Asistente de instalación de [ProductName]</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive. This wizard will help you link this computer to your NAS.</source>
        <translation>Le damos la bienvenida a Quillmere Drive. Este asistente le ayudará a vincular este equipo a su NAS.</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files and folders</source>
        <translation>Mostrar superposiciones de iconos en los archivos y carpetas sincronizados</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Error de autenticación</translation>
    </message>
    <message>
        <source>An invalid value was entered. Please check your input and try again.</source>
        <translation>Se ha introducido un valor no válido. Compruebe los datos e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Todos los eventos</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choice.</source>
        <translation>Haga clic en «Quitar» para quitar [ProductName] del equipo. Haga clic en «Atrás» para revisar su elección.</translation>
    </message>
    <message>
        <source>Quillmere Drive Server is not running on the NAS. Start it or contact the administrator.</source>
        <translation>Quillmere Drive Server no se está ejecutando en el NAS. Inicie el servidor o póngase en contacto con el administrador.</translation>
    </message>
    <message>
        <source>Open Quillmere Drive</source>
        <translation>Abrir Quillmere Drive</translation>
    </message>
    <message>
        <source>The SSL certificate of this NAS differs from the one saved earlier. Continue only if you trust the new certificate.</source>
        <translation>El certificado SSL de este NAS no coincide con el guardado anteriormente. Continúe solo si confía en el nuevo certificado.</translation>
    </message>
    <message>
        <source>The selected folder is already synced by another cloud storage program. Please choose a different folder to avoid conflicts.</source>
        <translation>Otro programa de almacenamiento en la nube ya sincroniza la carpeta seleccionada. Elija una carpeta distinta para evitar conflictos.</translation>
    </message>
    <message>
        <source>Right-click the tray icon to open the menu with all commands.</source>
        <translation>Haga clic con el botón derecho en el icono de la bandeja para abrir el menú con todos los comandos.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Syncing will start when indexing is complete.</source>
        <translation>Se está indexando esta carpeta. La sincronización comenzará cuando finalice la indexación.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desactivada</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Comprobando los datos...</translation>
    </message>
    <message>
        <source>Click Install to begin installing [ProductName]. Click Back to review or change your settings. Click Cancel to exit the wizard.</source>
        <translation>Haga clic en «Instalar» para comenzar la instalación de [ProductName]. Haga clic en «Atrás» para revisar o cambiar la configuración. Haga clic en «Cancelar» para salir del asistente.</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>Sincronizando</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Abrir la carpeta contenedora</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] no tiene características que se puedan seleccionar por separado.</translation>
    </message>
    <message>
        <source>The local folder could not be created. Check the path and your permissions, and then try again.</source>
        <translation>No se ha podido crear la carpeta local. Compruebe la ruta y sus permisos e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>NAS address</source>
        <translation>Dirección del NAS</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. It may have been deleted, or you may not have permission to access it.</source>
        <translation>No se puede descargar este archivo. Es posible que se haya eliminado o que usted no tenga permiso para acceder a él.</translation>
    </message>
    <message>
        <source>The IP address of this computer is not allowed to access the NAS. Contact the administrator.</source>
        <translation>La dirección IP de este equipo no tiene permitido el acceso al NAS. Póngase en contacto con el administrador.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Algunos de los archivos que deben actualizarse están en uso.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Última página</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Fecha y hora</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Cambio de nombre</translation>
    </message>
    <message>
        <source>View sync status</source>
        <translation>Ver el estado de la sincronización</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Domingo</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]Instalando [ProductName]</translation>
    </message>
    <message>
        <source>Enter the names of the files that should not be synced. An asterisk (*) stands for any number of characters.</source>
        <translation>Escriba los nombres de los archivos que no deban sincronizarse. Un asterisco (*) representa cualquier número de caracteres.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Carpetas que se sincronizarán</translation>
    </message>
    <message>
        <source>RapidHail</source>
        <translation>RapidHail</translation>
    </message>
    <message>
        <source>Enter the IP address, hostname, or RapidHail ID of your NAS.</source>
        <translation>Escriba la dirección IP, el nombre de host o el ID de RapidHail de su NAS.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Miércoles</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Sincronizar una carpeta nueva</translation>
    </message>
    <message>
        <source>NAS changed</source>
        <translation>El NAS ha cambiado</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>If you disable this folder, it will no longer be synced. The files on this computer will be kept. Do you want to continue?</source>
        <translation>Si desactiva esta carpeta, dejará de sincronizarse. Los archivos de este equipo se conservarán. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Abrir archivo</translation>
    </message>
    <message>
        <source>This folder cannot be synced because its path is invalid. Please choose another folder.</source>
        <translation>No se puede sincronizar esta carpeta porque la ruta no es válida. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>The shared folder on the NAS is not mounted. If it is encrypted, mount it first.</source>
        <translation>La carpeta compartida del NAS no está montada. Si está cifrada, móntela primero.</translation>
    </message>
    <message>
        <source>Expiration time</source>
        <translation>Hora de caducidad</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up.</source>
        <translation>Se ha agotado su cuota en el NAS.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please correct them before you continue.</source>
        <translation>Algunos campos contienen valores no válidos. Corríjalos antes de continuar.</translation>
    </message>
    <message>
        <source>The RapidHail service cannot be reached. Check your internet connection and try again.</source>
        <translation>No se puede acceder al servicio RapidHail. Compruebe la conexión a Internet e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Viernes</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Abrir la ventana principal</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Puerto del proxy</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; has been used up. Free up some space to continue syncing.</source>
        <translation>Se ha agotado la cuota de la carpeta compartida «%1». Libere espacio para continuar con la sincronización.</translation>
    </message>
    <message>
        <source>Link to a new NAS</source>
        <translation>Vincular a un nuevo NAS</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Semana pasada</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is too old for this computer. Version %1 or later is required.</source>
        <translation>La versión de Quillmere Drive Server del NAS es demasiado antigua para este equipo. Se necesita la versión %1 o posterior.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Junio</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a network error. Check your network connection and try again.</source>
        <translation>No se puede comprobar la carpeta debido a un error de red. Compruebe la conexión de red e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]&amp;Quitar</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Julio</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Entendido</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Le damos la bienvenida</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Quita [ProductName] del equipo.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>You can open the synced folder at any time from the Quillmere Drive icon in the system tray.</source>
        <translation>Puede abrir la carpeta sincronizada en cualquier momento desde el icono de Quillmere Drive de la bandeja del sistema.</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Archivos actualizados</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;pair</source>
        <translation>[DlgTitleFont]Re&amp;parar</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Martes</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>No hay opciones disponibles</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>The NAS at this address has changed. Please link this computer again.</source>
        <translation>El NAS de esta dirección ha cambiado. Vuelva a vincular este equipo.</translation>
    </message>
    <message>
        <source>The installation of [ProductName] was interrupted. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>Se ha interrumpido la instalación de [ProductName]. No se ha modificado el sistema. Para instalar el programa más adelante, vuelva a ejecutar el programa de instalación.</translation>
    </message>
    <message>
        <source>The connection test failed. The username or password is incorrect.</source>
        <translation>No se ha superado la prueba de conexión. El nombre de usuario o la contraseña no son correctos.</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>Re&amp;parar</translation>
    </message>
    <message>
        <source>A sync task has stopped because of an error. Click here for details.</source>
        <translation>Una tarea de sincronización se ha detenido debido a un error. Haga clic aquí para obtener más información.</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and the account that you want to use for syncing.</source>
        <translation>Escriba la dirección de su NAS y la cuenta que desea usar para la sincronización.</translation>
    </message>
    <message>
        <source>Connect anyway</source>
        <translation>Conectar de todos modos</translation>
    </message>
    <message>
        <source>The files on this computer and the files in the shared folder will be merged. If two files have the same name, the newer one is used.</source>
        <translation>Los archivos de este equipo y los de la carpeta compartida se combinarán. Si dos archivos tienen el mismo nombre, se usará el más reciente.</translation>
    </message>
    <message>
        <source>Start Quillmere Drive automatically when I sign in</source>
        <translation>Iniciar Quillmere Drive automáticamente al abrir sesión</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this link? People who have it will no longer be able to open the file.</source>
        <translation>¿Seguro que desea eliminar este enlace? Las personas que lo tengan ya no podrán abrir el archivo.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Cambiar carpeta</translation>
    </message>
    <message>
        <source>The username or password is incorrect, or the account has been disabled.</source>
        <translation>El nombre de usuario o la contraseña no son correctos, o la cuenta se ha desactivado.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Finalizar</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;do not accept the terms of the license agreement</source>
        <translation>{\DlgFont8}&amp;No acepto los términos del contrato de licencia</translation>
    </message>
    <message>
        <source>Right-click a file and select &quot;Share link&quot; to create a link. Send it to anyone who needs the file, even if they have no account on your NAS.</source>
        <translation>Haga clic con el botón derecho en un archivo y seleccione «Compartir enlace» para crear un enlace. Envíelo a quien necesite el archivo, aunque no tenga una cuenta en su NAS.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Modo de sincronización</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps earlier versions of your files. Right-click a file and select &quot;Browse previous versions&quot; to restore one of them.</source>
        <translation>Quillmere Drive conserva versiones anteriores de sus archivos. Haga clic con el botón derecho en un archivo y seleccione «Examinar versiones anteriores» para restaurar una de ellas.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 páginas siguientes</translation>
    </message>
    <message>
        <source>Quillmere Drive is already running. You can find its icon in the system tray.</source>
        <translation>Quillmere Drive ya se está ejecutando. Encontrará su icono en la bandeja del sistema.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Cargando las carpetas compartidas...</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primera página</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Configurar el proxy manualmente</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>Hace %1 hora(s)</translation>
    </message>
    <message>
        <source>This folder cannot be synced because of a system error. Please try again later.</source>
        <translation>No se puede sincronizar esta carpeta debido a un error del sistema. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Al hacer doble clic en el icono de la bandeja</translation>
    </message>
    <message>
        <source>Selective sync by folder</source>
        <translation>Sincronización selectiva por carpeta</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Carpetas compartidas</translation>
    </message>
    <message>
        <source>Sync with another NAS</source>
        <translation>Sincronizar con otro NAS</translation>
    </message>
    <message>
        <source>This creates a Quillmere folder on your computer and keeps it synced with your home folder on your Orvane NAS (recommended for personal use).</source>
        <translation>Crea una carpeta Quillmere en su equipo y la mantiene sincronizada con la carpeta personal de su NAS de Orvane (recomendado para uso personal).</translation>
    </message>
    <message>
        <source>Click here to upgrade</source>
        <translation>Haga clic aquí para actualizar la versión</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Abril</translation>
    </message>
    <message>
        <source>On your computer</source>
        <translation>En su equipo</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of [ProductName]?</source>
        <translation>¿Seguro que desea cancelar la instalación de [ProductName]?</translation>
    </message>
    <message>
        <source>Files and folders excluded from sync</source>
        <translation>Archivos y carpetas excluidos de la sincronización</translation>
    </message>
    <message>
        <source>This version of Quillmere Drive is already installed. Do you want to install it again?</source>
        <translation>Esta versión de Quillmere Drive ya está instalada. ¿Desea volver a instalarla?</translation>
    </message>
    <message>
        <source>has been shared. The link was copied to the clipboard.</source>
        <translation>se ha compartido. El enlace se ha copiado en el portapapeles.</translation>
    </message>
    <message>
        <source>The NAS sent an unexpected response. Make sure that Quillmere Drive and Quillmere Drive Server are both up to date.</source>
        <translation>El NAS ha enviado una respuesta inesperada. Asegúrese de que tanto Quillmere Drive como Quillmere Drive Server estén actualizados.</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Excluir esta carpeta de la sincronización</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Marzo</translation>
    </message>
    <message>
        <source>The RapidHail service encountered a system error. Please try again later.</source>
        <translation>Se ha producido un error del sistema en el servicio RapidHail. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Sincronización selectiva</translation>
    </message>
    <message>
        <source>Folder is read-only</source>
        <translation>La carpeta es de solo lectura</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;accept the terms of the license agreement</source>
        <translation>{\DlgFont8}A&amp;cepto los términos del contrato de licencia</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Dirección de sincronización</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Historial de descargas</translation>
    </message>
    <message>
        <source>Select a folder on this computer and the shared folder on the NAS that it will be synced with.</source>
        <translation>Seleccione una carpeta de este equipo y la carpeta compartida del NAS con la que se sincronizará.</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>Este campo no puede quedar en blanco.</translation>
    </message>
    <message>
        <source>Choose a shared folder on your NAS that is not yet synced with this computer.</source>
        <translation>Elija una carpeta compartida de su NAS que aún no esté sincronizada con este equipo.</translation>
    </message>
    <message>
        <source>How existing files are merged</source>
        <translation>Cómo se combinan los archivos existentes</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Configuración de red</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Eliminar enlace</translation>
    </message>
    <message>
        <source>This sync task is inactive because the shared folder is not available.</source>
        <translation>Esta tarea de sincronización está inactiva porque la carpeta compartida no está disponible.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Descarga unidireccional</translation>
    </message>
    <message>
        <source>Go back to an earlier version</source>
        <translation>Vuelva a una versión anterior</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Carga</translation>
    </message>
    <message>
        <source>Changes the set of [ProductName] features that are installed.</source>
        <translation>Cambia el conjunto de características instaladas de [ProductName].</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mayo</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>Link this computer to your NAS in just a few steps.</source>
        <translation>Vincule este equipo a su NAS en unos pocos pasos.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Finalizar</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Cifrar la conexión con SSL</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Modo de conexión</translation>
    </message>
    <message>
        <source>Keep the file that was modified last</source>
        <translation>Conservar el archivo modificado más recientemente</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>A newer version of Quillmere Drive is already installed. Setup will now close.</source>
        <translation>Ya hay instalada una versión más reciente de Quillmere Drive. El programa de instalación se cerrará.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Confirm the new certificate before you select a folder.</source>
        <translation>El certificado SSL del NAS ha cambiado. Confirme el nuevo certificado antes de seleccionar una carpeta.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Combinar</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>No se encuentra la carpeta compartida</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Desvincular</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Carpeta local</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Seleccionar una carpeta</translation>
    </message>
    <message>
        <source>Set up the folder to sync</source>
        <translation>Configurar la carpeta que se sincronizará</translation>
    </message>
    <message>
        <source>Enter the connection settings for your NAS.</source>
        <translation>Especifique la configuración de conexión con su NAS.</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>Advertencia de certificado SSL</translation>
    </message>
    <message>
        <source>Share files with a link</source>
        <translation>Comparta archivos con un enlace</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo de archivo</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Reanudar conexión</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Omitir</translation>
    </message>
    <message>
        <source>The maximum file size must be a whole number greater than 0.</source>
        <translation>El tamaño máximo de archivo debe ser un número entero mayor que 0.</translation>
    </message>
    <message>
        <source>Insufficient permissions</source>
        <translation>Permisos insuficientes</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Actualizado: %1</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive</source>
        <translation>Le damos la bienvenida a Quillmere Drive</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Palabra clave</translation>
    </message>
    <message>
        <source>This allows you to specify a folder on your computer to keep synced with a shared folder on your Orvane NAS. (Recommended for teamwork)​.</source>
        <translation>Permite especificar una carpeta de su equipo para mantenerla sincronizada con una carpeta compartida de su NAS de Orvane (recomendado para el trabajo en grupo).</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin repairing [ProductName].</source>
        <translation>El Asistente de instalación está preparado para comenzar la reparación de [ProductName].</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>A network error occurred. Check your network connection and try again.</source>
        <translation>Se ha producido un error de red. Compruebe la conexión de red e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already being synced. Please choose another folder.</source>
        <translation>Esta carpeta se solapa con otra que ya se está sincronizando. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}Se ha interrumpido el Asistente de instalación de [ProductName]</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Atrás</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Hora de inicio</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Mostrar el tutorial</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Modo rápido</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Administrar</translation>
    </message>
    <message>
        <source>Links cannot be created over a RapidHail connection because file sharing is disabled on the NAS.</source>
        <translation>No se pueden crear enlaces mediante una conexión RapidHail porque el uso compartido de archivos está desactivado en el NAS.</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Administrar las carpetas compartidas</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Lea detenidamente el siguiente contrato de licencia.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparando...</translation>
    </message>
    <message>
        <source>Keep the version on the NAS and overwrite the one on this computer</source>
        <translation>Conservar la versión del NAS y sobrescribir la de este equipo</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Agosto</translation>
    </message>
    <message>
        <source>Use a RapidHail connection</source>
        <translation>Usar una conexión RapidHail</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard ended early</source>
        <translation>{\VerdanaBold13}El Asistente de instalación de [ProductName] ha finalizado antes de tiempo</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up. Files can no longer be uploaded until you free up some space.</source>
        <translation>Se ha agotado su cuota en el NAS. No se podrán cargar más archivos hasta que libere espacio.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]&amp;Cambiar</translation>
    </message>
    <message>
        <source>Set an expiration date for this link</source>
        <translation>Establecer una fecha de caducidad para este enlace</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Cambiar la carpeta local</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Tamaño máximo de archivo</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Quillmere Drive is initializing...</source>
        <translation>Quillmere Drive se está inicializando...</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Sincronización bidireccional</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Usar la configuración de proxy del sistema</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Desvinculando...</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open (a restart will be required)</source>
        <translation>&amp;Dejar abiertas las aplicaciones (será necesario reiniciar)</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard is complete</source>
        <translation>{\VerdanaBold13}El Asistente de instalación de [ProductName] ha finalizado</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Tarea de sincronización</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>Fecha de creación</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Iniciar [ProductName]</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Noviembre</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Dirección del proxy</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Archivos modificados recientemente</translation>
    </message>
    <message>
        <source>Unlink from the NAS</source>
        <translation>Desvincular del NAS</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Please try again later.</source>
        <translation>No se puede mostrar la lista de versiones de este archivo. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Bloqueado por otro programa</translation>
    </message>
    <message>
        <source>An unknown error occurred. Please try again later.</source>
        <translation>Se ha producido un error desconocido. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified.</source>
        <translation>No se ha podido verificar el certificado SSL del NAS.</translation>
    </message>
    <message>
        <source>Checking username and password...</source>
        <translation>Comprobando el nombre de usuario y la contraseña...</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Configuración avanzada</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>I&amp;mprimir</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Febrero</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Quillmere Drive</source>
        <translation>Quillmere Drive</translation>
    </message>
    <message>
        <source>You have read-only access to this shared folder. Files can be downloaded to this computer but not uploaded to the NAS.</source>
        <translation>Solo tiene acceso de lectura a esta carpeta compartida. Los archivos se pueden descargar en este equipo, pero no cargar en el NAS.</translation>
    </message>
    <message>
        <source>The drive that contains the local folder is not mounted. Connect the drive to continue syncing.</source>
        <translation>La unidad que contiene la carpeta local no está montada. Conecte la unidad para continuar con la sincronización.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>Search the local network for an Orvane NAS.</source>
        <translation>Buscar un NAS de Orvane en la red local.</translation>
    </message>
    <message>
        <source>Storage full</source>
        <translation>Almacenamiento lleno</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>Información general del NAS</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Conexión directa</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Descarga</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Configuración del proxy</translation>
    </message>
    <message>
        <source>Unstable connection</source>
        <translation>Conexión inestable</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync this folder. Free up some space or choose another folder.</source>
        <translation>No hay suficiente espacio libre en este equipo para sincronizar esta carpeta. Libere espacio o elija otra carpeta.</translation>
    </message>
    <message>
        <source>Use a black and white tray icon</source>
        <translation>Usar un icono de bandeja en blanco y negro</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Historial de sincronización</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Se ha cancelado la descarga.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>Las siguientes aplicaciones están usando archivos que el programa de instalación debe actualizar. Ciérrelas y haga clic en «Reintentar» para continuar.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Instalar</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please wait a few minutes before you try again.</source>
        <translation>Demasiados intentos fallidos. Espere unos minutos antes de volver a intentarlo.</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>Todo listo</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Cargando...</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>No, gracias</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nueva carpeta compartida</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Sa&amp;lir</translation>
    </message>
    <message>
        <source>You can let Setup close the applications listed below and try to restart them afterward.</source>
        <translation>Puede permitir que el programa de instalación cierre las aplicaciones de la siguiente lista e intente reiniciarlas después.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change the way [ProductName] is installed or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>El Asistente de instalación le permite cambiar el modo de instalación de [ProductName] o quitar el programa del equipo. Haga clic en «Siguiente» para continuar o en «Cancelar» para salir.</translation>
    </message>
    <message>
        <source>Try syncing a file</source>
        <translation>Probar a sincronizar un archivo</translation>
    </message>
    <message>
        <source>No data to display</source>
        <translation>No hay datos que mostrar</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>Hace %1 día(s)</translation>
    </message>
    <message>
        <source>You can now sync the shared folder &quot;%1&quot;. Click here to enable it.</source>
        <translation>Ya puede sincronizar la carpeta compartida «%1». Haga clic aquí para activarla.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Cargando en el NAS...</translation>
    </message>
    <message>
        <source>Your Quillmere folder is ready. Drop files into it and they will be synced with your NAS.</source>
        <translation>Su carpeta Quillmere está lista. Coloque archivos en ella y se sincronizarán con su NAS.</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>No hay ninguna carpeta que se pueda sincronizar.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 páginas anteriores</translation>
    </message>
    <message>
        <source>The verification code is invalid. Please check the code and try again.</source>
        <translation>El código de verificación no es válido. Compruebe el código e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>The selected folder is on a network drive. Changes made there by other computers may not be detected immediately.</source>
        <translation>La carpeta seleccionada está en una unidad de red. Es posible que los cambios realizados en ella por otros equipos no se detecten de inmediato.</translation>
    </message>
    <message>
        <source>Show icon overlays on files excluded by the file filter</source>
        <translation>Mostrar superposiciones de iconos en los archivos excluidos por el filtro de archivos</translation>
    </message>
    <message>
        <source>Files to sync</source>
        <translation>Archivos que se sincronizarán</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Compartir enlace</translation>
    </message>
    <message>
        <source>Detecting connection mode...</source>
        <translation>Detectando el modo de conexión...</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Duración personalizada</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>Buscar dispositivos NAS en la red local</translation>
    </message>
    <message>
        <source>The proxy address and port cannot be empty.</source>
        <translation>La dirección y el puerto del proxy no pueden estar vacíos.</translation>
    </message>
    <message>
        <source>You can also protect a link with a password or set an expiration date.</source>
        <translation>También puede proteger un enlace con una contraseña o establecer una fecha de caducidad.</translation>
    </message>
    <message>
        <source>All your files, always at hand</source>
        <translation>Todos sus archivos, siempre a mano</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Fecha de caducidad</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Septiembre</translation>
    </message>
    <message>
        <source>Create a Quillmere folder on this computer</source>
        <translation>Crear una carpeta Quillmere en este equipo</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Asistente del modo avanzado</translation>
    </message>
    <message>
        <source>The selected folder is already part of a sync task on this computer.</source>
        <translation>La carpeta seleccionada ya forma parte de una tarea de sincronización de este equipo.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>Hace %1 minuto(s)</translation>
    </message>
    <message>
        <source>This shared folder is already synced with the folder &quot;%1&quot; on this computer.</source>
        <translation>Esta carpeta compartida ya está sincronizada con la carpeta «%1» de este equipo.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>No hay suficiente espacio libre en el NAS.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Click Repair to restore missing or damaged files, shortcuts, and registry entries. Click Back to review your choice.</source>
        <translation>Haga clic en «Reparar» para restaurar los archivos, accesos directos y entradas del Registro que falten o estén dañados. Haga clic en «Atrás» para revisar su elección.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predeterminado del sistema</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>No volver a mostrar este mensaje</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by restoring missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Repara los errores de la instalación más reciente restaurando los archivos, accesos directos y entradas del Registro que falten o estén dañados.</translation>
    </message>
    <message>
        <source>Number of times the link can be opened</source>
        <translation>Número de veces que se puede abrir el enlace</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ayer</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified. The folder cannot be selected until the certificate is trusted.</source>
        <translation>No se ha podido verificar el certificado SSL del NAS. No podrá seleccionar la carpeta hasta que el certificado sea de confianza.</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>Protección con contraseña</translation>
    </message>
    <message>
        <source>The SSL certificate could not be verified. It may be self-signed, expired, or issued for another hostname.</source>
        <translation>No se ha podido verificar el certificado SSL. Es posible que sea autofirmado, que haya caducado o que se haya emitido para otro nombre de host.</translation>
    </message>
    <message>
        <source>Please update Quillmere Drive Server on the NAS to use selective sync.</source>
        <translation>Actualice Quillmere Drive Server en el NAS para usar la sincronización selectiva.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up some space to continue syncing.</source>
        <translation>No hay suficiente espacio libre en este equipo. Libere espacio para continuar con la sincronización.</translation>
    </message>
    <message>
        <source>The selected folder is used by a backup task. Syncing it may cause conflicts.</source>
        <translation>Una tarea de copia de seguridad utiliza la carpeta seleccionada. Sincronizarla puede provocar conflictos.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>One-way sync from the NAS to this computer</source>
        <translation>Sincronización unidireccional del NAS a este equipo</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Solo descarga</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>No hay suficiente espacio libre en este equipo.</translation>
    </message>
    <message>
        <source>Blocked by:</source>
        <translation>Bloqueado por:</translation>
    </message>
    <message>
        <source>This computer is linked to your NAS, and your files are now being synced.</source>
        <translation>Este equipo está vinculado a su NAS y sus archivos se están sincronizando.</translation>
    </message>
    <message>
        <source>The RapidHail ID is invalid or does not exist.</source>
        <translation>El ID de RapidHail no es válido o no existe.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>Remove the program from this computer</source>
        <translation>Quitar el programa de este equipo</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established because of an SSL error.</source>
        <translation>No se ha podido establecer una conexión segura con el NAS debido a un error de SSL.</translation>
    </message>
    <message>
        <source>General settings</source>
        <translation>Configuración general</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostrar notificaciones de escritorio</translation>
    </message>
    <message>
        <source>Selective sync by file type</source>
        <translation>Sincronización selectiva por tipo de archivo</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Diciembre</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is outdated. Please ask the administrator to update it to version %1 or later.</source>
        <translation>La versión de Quillmere Drive Server del NAS está obsoleta. Pida al administrador que la actualice a la versión %1 o posterior.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Cambiar las características instaladas</translation>
    </message>
    <message>
        <source>If you no longer need the program, you can remove it now. Your synced files will be kept on this computer.</source>
        <translation>Si ya no necesita el programa, puede quitarlo ahora. Los archivos sincronizados se conservarán en este equipo.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be merged with the files in the shared folder.</source>
        <translation>La carpeta seleccionada no está vacía. Sus archivos se combinarán con los de la carpeta compartida.</translation>
    </message>
    <message>
        <source>The link could not be deleted. Please try again later.</source>
        <translation>No se ha podido eliminar el enlace. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>A link cannot be created for this file. Make sure that it has been synced to the NAS.</source>
        <translation>No se puede crear un enlace para este archivo. Asegúrese de que se haya sincronizado con el NAS.</translation>
    </message>
    <message>
        <source>Check all file attributes for changes</source>
        <translation>Comprobar todos los atributos de los archivos para detectar cambios</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove the installation</source>
        <translation>[DlgTitleFont]Cambiar, reparar o quitar la instalación</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lunes</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>La carpeta seleccionada es de solo lectura. Elija una carpeta en la que pueda escribir.</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the sync task &quot;%1&quot;? The files on this computer and on the NAS will be kept.</source>
        <translation>¿Seguro que desea quitar la tarea de sincronización «%1»? Los archivos de este equipo y del NAS se conservarán.</translation>
    </message>
    <message>
        <source>Limit how often this link can be opened</source>
        <translation>Limitar el número de veces que se puede abrir este enlace</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Carpeta compartida</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps the folders on your computers in sync with your Orvane NAS.</source>
        <translation>Quillmere Drive mantiene las carpetas de sus equipos sincronizadas con su NAS de Orvane.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Escriba el código de verificación</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>Extensiones de archivo</translation>
    </message>
    <message>
        <source>The username cannot be empty.</source>
        <translation>El nombre de usuario no puede estar vacío.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Ruta de la carpeta</translation>
    </message>
    <message>
        <source>Folder already linked</source>
        <translation>Carpeta ya vinculada</translation>
    </message>
    <message>
        <source>The maximum length of this field is %1 characters.</source>
        <translation>La longitud máxima de este campo es de %1 caracteres.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from &quot;%1&quot;? Syncing will stop, but your files will be kept.</source>
        <translation>¿Seguro que desea desvincular este equipo de «%1»? La sincronización se detendrá, pero sus archivos se conservarán.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Modo avanzado</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Intervalo personalizado</translation>
    </message>
    <message>
        <source>You have reached the maximum of %1 sync tasks. Remove a sync task before you add another one.</source>
        <translation>Ha alcanzado el máximo de %1 tareas de sincronización. Quite una tarea de sincronización antes de añadir otra.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nombre de la carpeta</translation>
    </message>
    <message>
        <source>Quillmere Drive is being upgraded. Please wait...</source>
        <translation>Se está actualizando la versión de Quillmere Drive. Espere...</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to keep synced with your NAS.</source>
        <translation>Seleccione la carpeta de este equipo que desea mantener sincronizada con su NAS.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Probando la conexión...</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Sincronizando: %1</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS. Contact the administrator.</source>
        <translation>La carpeta compartida no está montada en el NAS. Póngase en contacto con el administrador.</translation>
    </message>
    <message>
        <source>Keep your files in sync between this computer and your NAS, and reach them wherever you are.</source>
        <translation>Mantenga sus archivos sincronizados entre este equipo y su NAS, y acceda a ellos esté donde esté.</translation>
    </message>
    <message>
        <source>Your account is protected by two-factor verification. Please enter the verification code to continue.</source>
        <translation>Su cuenta está protegida con la verificación en dos pasos. Escriba el código de verificación para continuar.</translation>
    </message>
    <message>
        <source>Edit file filter</source>
        <translation>Editar el filtro de archivos</translation>
    </message>
    <message>
        <source>Open the synced folder</source>
        <translation>Abrir la carpeta sincronizada</translation>
    </message>
    <message>
        <source>File names to exclude</source>
        <translation>Nombres de archivo que se excluirán</translation>
    </message>
    <message>
        <source>File path</source>
        <translation>Ruta del archivo</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Enero</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>No usar proxy</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync with this computer.</source>
        <translation>Seleccione la carpeta compartida del NAS que desea sincronizar con este equipo.</translation>
    </message>
    <message>
        <source>This shared folder does not exist on the NAS. It may have been renamed or deleted.</source>
        <translation>Esta carpeta compartida no existe en el NAS. Es posible que se haya eliminado o que se le haya cambiado el nombre.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Server not running</source>
        <translation>Servidor detenido</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>El Asistente de instalación instalará [ProductName] en el equipo. Haga clic en «Siguiente» para continuar o en «Cancelar» para salir.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Tareas de sincronización</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>El Asistente de instalación está preparado para comenzar la instalación.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Syncing %1 file(s)</source>
        <translation>Sincronizando %1 archivo(s)</translation>
    </message>
    <message>
        <source>&amp;Close the applications and try to restart them</source>
        <translation>&amp;Cerrar las aplicaciones e intentar reiniciarlas</translation>
    </message>
    <message>
        <source>Please wait. The requested changes are being made.</source>
        <translation>Espere. Se están realizando los cambios solicitados.</translation>
    </message>
    <message>
        <source>Upgrade available</source>
        <translation>Actualización de versión disponible</translation>
    </message>
    <message>
        <source>Repair the current installation</source>
        <translation>Reparar la instalación actual</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Actualizando la versión...</translation>
    </message>
    <message>
        <source>Set up a separate sync task</source>
        <translation>Configurar una tarea de sincronización independiente</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>No se han realizado cambios en la configuración.</translation>
    </message>
</context>
</TS>
