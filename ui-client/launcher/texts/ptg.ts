<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Keep your data safe and synced at all times</source>
        <translation>Mantenha os seus dados sempre seguros e sincronizados</translation>
    </message>
    <message>
        <source>The quota on the NAS has been used up. Free up some space or ask the administrator to raise your quota, and then select the folder again.</source>
        <translation>A quota no NAS esgotou-se. Liberte algum espaço ou peça ao administrador que aumente a sua quota e, em seguida, volte a selecionar a pasta.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-user license agreement</source>
        <translation>[DlgTitleFont]Contrato de licença do utilizador final</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Escolher um modo de configuração</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Pronto para instalar [ProductName]</translation>
    </message>
    <message>
        <source>This shared folder has been disabled for your account. Contact the administrator of the NAS to regain access.</source>
        <translation>Esta pasta partilhada foi desativada para a sua conta. Contacte o administrador do NAS para recuperar o acesso.</translation>
    </message>
    <message>
        <source>Merge the folders</source>
        <translation>Unir as pastas</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>Hiperligação de partilha</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Erro de sincronização</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Clique no botão “Concluir” para sair do Assistente de Instalação.</translation>
    </message>
    <message>
        <source>Set a start date for this link</source>
        <translation>Definir uma data de início para esta hiperligação</translation>
    </message>
    <message>
        <source>The local sync database cannot be read. Restart Quillmere Drive. If the problem persists, link this computer again.</source>
        <translation>Não é possível ler a base de dados de sincronização local. Reinicie Quillmere Drive. Se o problema persistir, associe novamente este computador ao NAS.</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Escolher as pastas a sincronizar</translation>
    </message>
    <message>
        <source>Every file you put in a synced folder is copied to your NAS automatically. Just save your work and let Quillmere Drive do the rest.</source>
        <translation>Todos os ficheiros que colocar numa pasta sincronizada são copiados automaticamente para o seu NAS. Basta guardar o seu trabalho: Quillmere Drive trata do resto.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Tentar novamente</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Excluir estas pastas da sincronização</translation>
    </message>
    <message>
        <source>The local folder of this sync task cannot be found. It may have been moved, renamed, or deleted.</source>
        <translation>Não é possível encontrar a pasta local desta tarefa de sincronização. Pode ter sido movida ou eliminada, ou o nome pode ter sido alterado.</translation>
    </message>
    <message>
        <source>Quillmere Drive is starting...</source>
        <translation>A iniciar Quillmere Drive...</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>A aplicar as definições...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Make sure that Quillmere Drive Server is installed and running on your NAS before you continue.</source>
        <translation>Antes de continuar, certifique-se de que Quillmere Drive Server está instalada e em execução no seu NAS.</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Reinicie %1 para aplicar as novas definições de idioma.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>A transferir...</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versões incompatíveis</translation>
    </message>
    <message>
        <source>The icon in the system tray shows the sync status at a glance. Click it to pause syncing, view recent changes, or open the settings.</source>
        <translation>O ícone no tabuleiro do sistema mostra de imediato o estado da sincronização. Clique no ícone para colocar a sincronização em pausa, ver as alterações recentes ou abrir as definições.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Em pausa</translation>
    </message>
    <message>
        <source>Keep both versions and rename the conflicting file</source>
        <translation>Manter as duas versões e mudar o nome do ficheiro em conflito</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Ponto de montagem não suportado</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>A associar...</translation>
    </message>
    <message>
        <source>About Quillmere Drive</source>
        <translation>Acerca de Quillmere Drive</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ativada</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Consultar versões anteriores</translation>
    </message>
    <message>
        <source>The Setup Wizard for [ProductName] stopped early because of an error. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>O Assistente de Instalação de [ProductName] foi interrompido devido a um erro. O sistema não foi alterado. Para instalar o programa mais tarde, execute novamente o programa de instalação.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Informações da ligação</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS. Free up some space to continue syncing.</source>
        <translation>Não existe espaço livre suficiente no NAS. Liberte algum espaço para continuar a sincronização.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inativa</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Eliminação</translation>
    </message>
    <message>
        <source>The selected folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>A pasta selecionada é um ponto de montagem e não pode ser sincronizada. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>Upgrade now</source>
        <translation>Atualizar versão agora</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nome do computador</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Informações de estado</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Instalação de [ProductName]</translation>
    </message>
    <message>
        <source>Open the management page</source>
        <translation>Abrir a página de gestão</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Ficheiros em utilização</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>quinta-feira</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Aguarde enquanto o Assistente de Instalação instala [ProductName]. Esta operação pode demorar vários minutos.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>sábado</translation>
    </message>
    <message>
        <source>Link expires after</source>
        <translation>A hiperligação expira após</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to leave this page without saving them?</source>
        <translation>Existem alterações por guardar. Pretende sair desta página sem as guardar?</translation>
    </message>
    <message>
        <source>Select the operation that you want to perform.</source>
        <translation>Selecione a operação que pretende efetuar.</translation>
    </message>
    <message>
        <source>This file was changed on the computer and on the NAS at the same time, and the conflict could not be resolved.</source>
        <translation>Este ficheiro foi alterado simultaneamente no computador e no NAS e não foi possível resolver o conflito.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Rede local</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Atualizada</translation>
    </message>
    <message>
        <source>A sync task named &quot;%1&quot; already exists. Please enter another name.</source>
        <translation>Já existe uma tarefa de sincronização com o nome “%1”. Introduza outro nome.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder. Please choose another folder or contact the administrator.</source>
        <translation>Não tem permissão para aceder a esta pasta. Escolha outra pasta ou contacte o administrador.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Associar novamente</translation>
    </message>
    <message>
        <source>Select how you want to sync files between this computer and your NAS. You can add more sync tasks later.</source>
        <translation>Selecione como pretende sincronizar ficheiros entre este computador e o seu NAS. Pode adicionar outras tarefas de sincronização mais tarde.</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>O servidor proxy requer autenticação</translation>
    </message>
    <message>
        <source>Choose what happens when the same file has been changed on the computer and on the NAS.</source>
        <translation>Escolha o que acontece quando o mesmo ficheiro é alterado no computador e no NAS.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Escolher outra pasta</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Pronto para remover [ProductName]</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Check the certificate before you connect again.</source>
        <translation>O certificado SSL do NAS foi alterado. Verifique o certificado antes de voltar a estabelecer a ligação.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Mês passado</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Ação</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Só de leitura</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Intervalo de datas</translation>
    </message>
    <message>
        <source>The download failed. Please try again later.</source>
        <translation>A transferência falhou. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>A configuração está concluída.</translation>
    </message>
    <message>
        <source>Quillmere Drive on this computer is outdated. Please update it to version %1 or later.</source>
        <translation>A versão de Quillmere Drive neste computador está desatualizada. Atualize-a para a versão %1 ou posterior.</translation>
    </message>
    <message>
        <source>This computer is now linked to your NAS. Syncing starts as soon as you close the wizard.</source>
        <translation>Este computador está agora associado ao seu NAS. A sincronização começa assim que fechar o assistente.</translation>
    </message>
    <message>
        <source>Enable sync for this shared folder</source>
        <translation>Ativar a sincronização desta pasta partilhada</translation>
    </message>
    <message>
        <source>Download complete</source>
        <translation>Transferência concluída</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Retomar a sincronização desta pasta</translation>
    </message>
    <message>
        <source>Setup is in progress. Please wait...</source>
        <translation>Configuração em curso. Aguarde...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Agora mesmo</translation>
    </message>
    <message>
        <source>This computer is already linked to the same NAS. Edit the existing connection instead.</source>
        <translation>Este computador já está associado ao mesmo NAS. Em alternativa, edite a ligação existente.</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>%1 item(ns)</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Colocar ligação em pausa</translation>
    </message>
    <message>
        <source>Quillmere Drive is ready.</source>
        <translation>Quillmere Drive pronta.</translation>
    </message>
    <message>
        <source>Keep an eye on the system tray</source>
        <translation>Acompanhe tudo no tabuleiro do sistema</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Mais detalhes</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. The copies on the NAS will be kept. Do you want to continue?</source>
        <translation>As pastas que desmarcar aqui serão removidas deste computador. As cópias no NAS serão mantidas. Pretende continuar?</translation>
    </message>
    <message>
        <source>October</source>
        <translation>outubro</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>A pasta não está vazia</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Restrict access to this link</source>
        <translation>Restringir o acesso a esta hiperligação</translation>
    </message>
    <message>
        <source>The link could not be created. Make sure that file sharing is enabled in Quillmere Drive Server.</source>
        <translation>Não foi possível criar a hiperligação. Certifique-se de que a partilha de ficheiros está ativada em Quillmere Drive Server.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>Mais tutoriais</translation>
    </message>
    <message>
        <source>Setup requires administrator rights. Do you want to restart it as an administrator?</source>
        <translation>O programa de instalação requer direitos de administrador. Pretende reiniciá-lo como administrador?</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Copy to:</source>
        <translation>Copiar para:</translation>
    </message>
    <message>
        <source>No previous versions of this file are available.</source>
        <translation>Não existem versões anteriores deste ficheiro disponíveis.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Começar agora</translation>
    </message>
    <message>
        <source>The NAS at this address is not the one that this computer was linked to. Check the address or link the computer again.</source>
        <translation>O NAS neste endereço não é aquele a que este computador foi associado. Verifique o endereço ou associe novamente o computador.</translation>
    </message>
    <message>
        <source>The upgrade failed. Please download the latest version and install it manually.</source>
        <translation>A atualização de versão falhou. Transfira a versão mais recente e instale-a manualmente.</translation>
    </message>
    <message>
        <source>Add sync task</source>
        <translation>Adicionar tarefa de sincronização</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Data de início</translation>
    </message>
    <message>
        <source>This shared folder could not be enabled for syncing. Please try again later.</source>
        <translation>Não foi possível ativar a sincronização desta pasta partilhada. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>In the system tray</source>
        <translation>No tabuleiro do sistema</translation>
    </message>
    <message>
        <source>The folder home\Quillmere on your NAS has already been linked to this PC. We will launch the synced folder when you click Done. Or you can set up a seperate task: %1</source>
        <translation>A pasta home\Quillmere do seu NAS já foi associada a este computador. A pasta sincronizada será aberta quando clicar em “Concluído”. Em alternativa, pode configurar uma tarefa separada: %1</translation>
    </message>
    <message>
        <source>The port number is invalid. Enter a number from 1 to 65535.</source>
        <translation>O número da porta é inválido. Introduza um número de 1 a 65535.</translation>
    </message>
    <message>
        <source>Quillmere Drive could not be initialized. Please restart your computer and try again.</source>
        <translation>Não foi possível inicializar Quillmere Drive. Reinicie o computador e tente novamente.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes made on this computer will not be synced to the NAS.</source>
        <translation>Tem acesso só de leitura a esta pasta. As alterações efetuadas neste computador não serão sincronizadas com o NAS.</translation>
    </message>
    <message>
        <source>The version of Quillmere Drive on this computer is too old for the NAS. Version %1 or later is required.</source>
        <translation>A versão de Quillmere Drive neste computador é demasiado antiga para o NAS. É necessária a versão %1 ou posterior.</translation>
    </message>
    <message>
        <source>Files and folders that match the rules of the file filter will not be synced.</source>
        <translation>Os ficheiros e as pastas que correspondam às regras do filtro de ficheiros não serão sincronizados.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Pronto para reparar [ProductName]</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Retomar a sincronização destas pastas</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>Save a file and it is synced</source>
        <translation>Guarde um ficheiro e ele fica sincronizado</translation>
    </message>
    <message>
        <source>Files that could not be synced</source>
        <translation>Ficheiros que não foi possível sincronizar</translation>
    </message>
    <message>
        <source>The connection to the NAS was lost. Quillmere Drive will try to connect again automatically.</source>
        <translation>A ligação ao NAS foi perdida. Quillmere Drive tentará restabelecê-la automaticamente.</translation>
    </message>
    <message>
        <source>Detecting file changes...</source>
        <translation>A detetar alterações nos ficheiros...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Ligação estabelecida com êxito.</translation>
    </message>
    <message>
        <source>The administrator requires two-factor verification for your account. Sign in to the NAS in a web browser and set it up first.</source>
        <translation>O administrador exige a verificação de dois fatores para a sua conta. Inicie sessão no NAS através de um browser e configure-a primeiro.</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the permissions on the NAS. Please change the sync direction.</source>
        <translation>A direção de sincronização desta pasta não corresponde às permissões no NAS. Altere a direção de sincronização.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Bem-vindo ao Assistente de Instalação de [ProductName]</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive. This wizard will help you link this computer to your NAS.</source>
        <translation>Bem-vindo a Quillmere Drive. Este assistente ajuda a associar este computador ao seu NAS.</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files and folders</source>
        <translation>Mostrar sobreposições de ícone nos ficheiros e nas pastas sincronizados</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Falha na autenticação</translation>
    </message>
    <message>
        <source>An invalid value was entered. Please check your input and try again.</source>
        <translation>Foi introduzido um valor inválido. Verifique os dados introduzidos e tente novamente.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Todos os eventos</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Seguinte</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choice.</source>
        <translation>Clique em “Remover” para remover [ProductName] do computador. Clique em “Anterior” para rever a sua escolha.</translation>
    </message>
    <message>
        <source>Quillmere Drive Server is not running on the NAS. Start it or contact the administrator.</source>
        <translation>Quillmere Drive Server não está em execução no NAS. Inicie-a ou contacte o administrador.</translation>
    </message>
    <message>
        <source>Open Quillmere Drive</source>
        <translation>Abrir Quillmere Drive</translation>
    </message>
    <message>
        <source>The SSL certificate of this NAS differs from the one saved earlier. Continue only if you trust the new certificate.</source>
        <translation>O certificado SSL deste NAS é diferente do guardado anteriormente. Continue apenas se confiar no novo certificado.</translation>
    </message>
    <message>
        <source>The selected folder is already synced by another cloud storage program. Please choose a different folder to avoid conflicts.</source>
        <translation>A pasta selecionada já está a ser sincronizada por outro programa de armazenamento na nuvem. Escolha outra pasta para evitar conflitos.</translation>
    </message>
    <message>
        <source>Right-click the tray icon to open the menu with all commands.</source>
        <translation>Clique com o botão direito do rato no ícone do tabuleiro para abrir o menu com todos os comandos.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Syncing will start when indexing is complete.</source>
        <translation>Esta pasta está a ser indexada. A sincronização terá início quando a indexação estiver concluída.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desativada</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>A verificar os dados...</translation>
    </message>
    <message>
        <source>Click Install to begin installing [ProductName]. Click Back to review or change your settings. Click Cancel to exit the wizard.</source>
        <translation>Clique em “Instalar” para iniciar a instalação de [ProductName]. Clique em “Anterior” para rever ou alterar as definições. Clique em “Cancelar” para sair do assistente.</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>A sincronizar</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Abrir a pasta que contém o ficheiro</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] não tem funcionalidades que possam ser selecionadas em separado.</translation>
    </message>
    <message>
        <source>The local folder could not be created. Check the path and your permissions, and then try again.</source>
        <translation>Não foi possível criar a pasta local. Verifique o caminho e as suas permissões e tente novamente.</translation>
    </message>
    <message>
        <source>NAS address</source>
        <translation>Endereço do NAS</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. It may have been deleted, or you may not have permission to access it.</source>
        <translation>Não é possível transferir este ficheiro. Pode ter sido eliminado ou pode não ter permissão para lhe aceder.</translation>
    </message>
    <message>
        <source>The IP address of this computer is not allowed to access the NAS. Contact the administrator.</source>
        <translation>O endereço IP deste computador não tem autorização para aceder ao NAS. Contacte o administrador.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Alguns ficheiros que têm de ser atualizados estão a ser utilizados.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Última página</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data e hora</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Mudança de nome</translation>
    </message>
    <message>
        <source>View sync status</source>
        <translation>Ver estado da sincronização</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>domingo</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]A instalar [ProductName]</translation>
    </message>
    <message>
        <source>Enter the names of the files that should not be synced. An asterisk (*) stands for any number of characters.</source>
        <translation>Introduza os nomes dos ficheiros que não devem ser sincronizados. Um asterisco (*) representa qualquer número de carateres.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Colocar em pausa</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Pastas a sincronizar</translation>
    </message>
    <message>
        <source>RapidHail</source>
        <translation>RapidHail</translation>
    </message>
    <message>
        <source>Enter the IP address, hostname, or RapidHail ID of your NAS.</source>
        <translation>Introduza o endereço IP, o nome do anfitrião ou o ID RapidHail do seu NAS.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>quarta-feira</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Sincronizar uma nova pasta</translation>
    </message>
    <message>
        <source>NAS changed</source>
        <translation>O NAS mudou</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>If you disable this folder, it will no longer be synced. The files on this computer will be kept. Do you want to continue?</source>
        <translation>Se desativar esta pasta, deixará de ser sincronizada. Os ficheiros neste computador serão mantidos. Pretende continuar?</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Abrir ficheiro</translation>
    </message>
    <message>
        <source>This folder cannot be synced because its path is invalid. Please choose another folder.</source>
        <translation>Não é possível sincronizar esta pasta porque o respetivo caminho é inválido. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>The shared folder on the NAS is not mounted. If it is encrypted, mount it first.</source>
        <translation>A pasta partilhada no NAS não está montada. Se estiver encriptada, monte-a primeiro.</translation>
    </message>
    <message>
        <source>Expiration time</source>
        <translation>Hora de expiração</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nome de utilizador</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up.</source>
        <translation>A sua quota no NAS esgotou-se.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please correct them before you continue.</source>
        <translation>Alguns campos contêm valores inválidos. Corrija-os antes de continuar.</translation>
    </message>
    <message>
        <source>The RapidHail service cannot be reached. Check your internet connection and try again.</source>
        <translation>Não é possível aceder ao serviço RapidHail. Verifique a ligação à Internet e tente novamente.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>sexta-feira</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Abrir a janela principal</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Porta do proxy</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; has been used up. Free up some space to continue syncing.</source>
        <translation>A quota da pasta partilhada “%1” esgotou-se. Liberte algum espaço para continuar a sincronização.</translation>
    </message>
    <message>
        <source>Link to a new NAS</source>
        <translation>Associar a um novo NAS</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Semana passada</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is too old for this computer. Version %1 or later is required.</source>
        <translation>A versão de Quillmere Drive Server no NAS é demasiado antiga para este computador. É necessária a versão %1 ou posterior.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>junho</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a network error. Check your network connection and try again.</source>
        <translation>Não é possível verificar a pasta devido a um erro de rede. Verifique a ligação de rede e tente novamente.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]Remo&amp;ver</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>July</source>
        <translation>julho</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Compreendi</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Bem-vindo</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Remove [ProductName] do computador.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Retomar</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Palavra-passe</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>You can open the synced folder at any time from the Quillmere Drive icon in the system tray.</source>
        <translation>Pode abrir a pasta sincronizada em qualquer altura a partir do ícone de Quillmere Drive no tabuleiro do sistema.</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Ficheiros atualizados</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;pair</source>
        <translation>[DlgTitleFont]R&amp;eparar</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>terça-feira</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Nenhuma opção disponível</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>The NAS at this address has changed. Please link this computer again.</source>
        <translation>O NAS neste endereço mudou. Associe novamente este computador.</translation>
    </message>
    <message>
        <source>The installation of [ProductName] was interrupted. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>A instalação de [ProductName] foi interrompida. O sistema não foi alterado. Para instalar o programa mais tarde, execute novamente o programa de instalação.</translation>
    </message>
    <message>
        <source>The connection test failed. The username or password is incorrect.</source>
        <translation>O teste da ligação falhou. O nome de utilizador ou a palavra-passe estão incorretos.</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>R&amp;eparar</translation>
    </message>
    <message>
        <source>A sync task has stopped because of an error. Click here for details.</source>
        <translation>Uma tarefa de sincronização foi interrompida devido a um erro. Clique aqui para obter detalhes.</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and the account that you want to use for syncing.</source>
        <translation>Introduza o endereço do seu NAS e a conta que pretende utilizar para a sincronização.</translation>
    </message>
    <message>
        <source>Connect anyway</source>
        <translation>Ligar mesmo assim</translation>
    </message>
    <message>
        <source>The files on this computer and the files in the shared folder will be merged. If two files have the same name, the newer one is used.</source>
        <translation>Os ficheiros neste computador e os ficheiros na pasta partilhada serão unidos. Se dois ficheiros tiverem o mesmo nome, será utilizado o mais recente.</translation>
    </message>
    <message>
        <source>Start Quillmere Drive automatically when I sign in</source>
        <translation>Iniciar Quillmere Drive automaticamente ao iniciar sessão</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this link? People who have it will no longer be able to open the file.</source>
        <translation>Tem a certeza de que pretende eliminar esta hiperligação? As pessoas que a tenham deixarão de poder abrir o ficheiro.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Alterar pasta</translation>
    </message>
    <message>
        <source>The username or password is incorrect, or the account has been disabled.</source>
        <translation>O nome de utilizador ou a palavra-passe estão incorretos ou a conta foi desativada.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Concluir</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;do not accept the terms of the license agreement</source>
        <translation>{\DlgFont8}&amp;Não aceito os termos do contrato de licença</translation>
    </message>
    <message>
        <source>Right-click a file and select &quot;Share link&quot; to create a link. Send it to anyone who needs the file, even if they have no account on your NAS.</source>
        <translation>Clique com o botão direito do rato num ficheiro e selecione “Partilhar hiperligação” para criar uma hiperligação. Envie-a a quem precisar do ficheiro, mesmo que não tenha conta no seu NAS.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Modo de sincronização</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps earlier versions of your files. Right-click a file and select &quot;Browse previous versions&quot; to restore one of them.</source>
        <translation>Quillmere Drive mantém as versões anteriores dos seus ficheiros. Clique com o botão direito do rato num ficheiro e selecione “Consultar versões anteriores” para restaurar uma delas.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 páginas seguintes</translation>
    </message>
    <message>
        <source>Quillmere Drive is already running. You can find its icon in the system tray.</source>
        <translation>Quillmere Drive já está em execução. O respetivo ícone encontra-se no tabuleiro do sistema.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>A carregar as pastas partilhadas...</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primeira página</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Configurar o proxy manualmente</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>Há %1 hora(s)</translation>
    </message>
    <message>
        <source>This folder cannot be synced because of a system error. Please try again later.</source>
        <translation>Não é possível sincronizar esta pasta devido a um erro de sistema. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Ao fazer duplo clique no ícone do tabuleiro</translation>
    </message>
    <message>
        <source>Selective sync by folder</source>
        <translation>Sincronização seletiva por pasta</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Pastas partilhadas</translation>
    </message>
    <message>
        <source>Sync with another NAS</source>
        <translation>Sincronizar com outro NAS</translation>
    </message>
    <message>
        <source>This creates a Quillmere folder on your computer and keeps it synced with your home folder on your Orvane NAS (recommended for personal use).</source>
        <translation>Cria uma pasta Quillmere no computador e mantém-na sincronizada com a sua pasta pessoal no NAS da Orvane (recomendado para utilização pessoal).</translation>
    </message>
    <message>
        <source>Click here to upgrade</source>
        <translation>Clique aqui para atualizar a versão</translation>
    </message>
    <message>
        <source>April</source>
        <translation>abril</translation>
    </message>
    <message>
        <source>On your computer</source>
        <translation>No seu computador</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of [ProductName]?</source>
        <translation>Tem a certeza de que pretende cancelar a instalação de [ProductName]?</translation>
    </message>
    <message>
        <source>Files and folders excluded from sync</source>
        <translation>Ficheiros e pastas excluídos da sincronização</translation>
    </message>
    <message>
        <source>This version of Quillmere Drive is already installed. Do you want to install it again?</source>
        <translation>Esta versão de Quillmere Drive já está instalada. Pretende instalá-la novamente?</translation>
    </message>
    <message>
        <source>has been shared. The link was copied to the clipboard.</source>
        <translation>foi partilhado. A hiperligação foi copiada para a área de transferência.</translation>
    </message>
    <message>
        <source>The NAS sent an unexpected response. Make sure that Quillmere Drive and Quillmere Drive Server are both up to date.</source>
        <translation>O NAS enviou uma resposta inesperada. Certifique-se de que Quillmere Drive e Quillmere Drive Server estão atualizadas.</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Excluir esta pasta da sincronização</translation>
    </message>
    <message>
        <source>March</source>
        <translation>março</translation>
    </message>
    <message>
        <source>The RapidHail service encountered a system error. Please try again later.</source>
        <translation>O serviço RapidHail encontrou um erro de sistema. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Sincronização seletiva</translation>
    </message>
    <message>
        <source>Folder is read-only</source>
        <translation>A pasta é só de leitura</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;accept the terms of the license agreement</source>
        <translation>{\DlgFont8}A&amp;ceito os termos do contrato de licença</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Direção da sincronização</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Histórico de transferências</translation>
    </message>
    <message>
        <source>Select a folder on this computer and the shared folder on the NAS that it will be synced with.</source>
        <translation>Selecione uma pasta neste computador e a pasta partilhada do NAS com a qual será sincronizada.</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>Este campo não pode ficar em branco.</translation>
    </message>
    <message>
        <source>Choose a shared folder on your NAS that is not yet synced with this computer.</source>
        <translation>Escolha uma pasta partilhada do seu NAS que ainda não esteja sincronizada com este computador.</translation>
    </message>
    <message>
        <source>How existing files are merged</source>
        <translation>Como são unidos os ficheiros existentes</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Definições de rede</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Repor</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Eliminar hiperligação</translation>
    </message>
    <message>
        <source>This sync task is inactive because the shared folder is not available.</source>
        <translation>Esta tarefa de sincronização está inativa porque a pasta partilhada não está disponível.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Transferência unidirecional</translation>
    </message>
    <message>
        <source>Go back to an earlier version</source>
        <translation>Volte a uma versão anterior</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Carregamento</translation>
    </message>
    <message>
        <source>Changes the set of [ProductName] features that are installed.</source>
        <translation>Altera o conjunto de funcionalidades instaladas de [ProductName].</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Definições</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maio</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome do ficheiro</translation>
    </message>
    <message>
        <source>Link this computer to your NAS in just a few steps.</source>
        <translation>Associe este computador ao seu NAS em poucos passos.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Concluir</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Encriptar a ligação com SSL</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Modo de ligação</translation>
    </message>
    <message>
        <source>Keep the file that was modified last</source>
        <translation>Manter o ficheiro modificado mais recentemente</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>A newer version of Quillmere Drive is already installed. Setup will now close.</source>
        <translation>Já está instalada uma versão mais recente de Quillmere Drive. O programa de instalação será encerrado.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Confirm the new certificate before you select a folder.</source>
        <translation>O certificado SSL do NAS foi alterado. Confirme o novo certificado antes de selecionar uma pasta.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Unir</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Pasta partilhada não encontrada</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Desassociar</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Pasta local</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Selecionar uma pasta</translation>
    </message>
    <message>
        <source>Set up the folder to sync</source>
        <translation>Configurar a pasta a sincronizar</translation>
    </message>
    <message>
        <source>Enter the connection settings for your NAS.</source>
        <translation>Introduza as definições de ligação ao seu NAS.</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>Aviso de certificado SSL</translation>
    </message>
    <message>
        <source>Share files with a link</source>
        <translation>Partilhe ficheiros através de uma hiperligação</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo de ficheiro</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Retomar ligação</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>I&amp;gnorar</translation>
    </message>
    <message>
        <source>The maximum file size must be a whole number greater than 0.</source>
        <translation>O tamanho máximo do ficheiro tem de ser um número inteiro superior a 0.</translation>
    </message>
    <message>
        <source>Insufficient permissions</source>
        <translation>Permissões insuficientes</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Atualizado: %1</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive</source>
        <translation>Bem-vindo a Quillmere Drive</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Palavra-chave</translation>
    </message>
    <message>
        <source>This allows you to specify a folder on your computer to keep synced with a shared folder on your Orvane NAS. (Recommended for teamwork)​.</source>
        <translation>Permite escolher uma pasta do computador para a manter sincronizada com uma pasta partilhada no NAS da Orvane (recomendado para trabalho em equipa).</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin repairing [ProductName].</source>
        <translation>O Assistente de Instalação está pronto para iniciar a reparação de [ProductName].</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>A network error occurred. Check your network connection and try again.</source>
        <translation>Ocorreu um erro de rede. Verifique a ligação de rede e tente novamente.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already being synced. Please choose another folder.</source>
        <translation>Esta pasta sobrepõe-se a uma pasta que já está a ser sincronizada. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}O Assistente de Instalação de [ProductName] foi interrompido</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Anterior</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Hora de início</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Mostrar o tutorial</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>Si&amp;m</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Configuração rápida</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gerir</translation>
    </message>
    <message>
        <source>Links cannot be created over a RapidHail connection because file sharing is disabled on the NAS.</source>
        <translation>Não é possível criar hiperligações de partilha através de uma ligação RapidHail porque a partilha de ficheiros está desativada no NAS.</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Gerir pastas partilhadas</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Leia com atenção o seguinte contrato de licença.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>A preparar...</translation>
    </message>
    <message>
        <source>Keep the version on the NAS and overwrite the one on this computer</source>
        <translation>Manter a versão do NAS e substituir a deste computador</translation>
    </message>
    <message>
        <source>August</source>
        <translation>agosto</translation>
    </message>
    <message>
        <source>Use a RapidHail connection</source>
        <translation>Utilizar uma ligação RapidHail</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard ended early</source>
        <translation>{\VerdanaBold13}O Assistente de Instalação de [ProductName] terminou prematuramente</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up. Files can no longer be uploaded until you free up some space.</source>
        <translation>A sua quota no NAS esgotou-se. Não será possível carregar ficheiros até libertar algum espaço.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]A&amp;lterar</translation>
    </message>
    <message>
        <source>Set an expiration date for this link</source>
        <translation>Definir uma data de expiração para esta hiperligação</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Alterar pasta local</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Tamanho máximo do ficheiro</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Remo&amp;ver</translation>
    </message>
    <message>
        <source>Quillmere Drive is initializing...</source>
        <translation>Quillmere Drive a iniciar...</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Sincronização bidirecional</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Utilizar as definições de proxy do sistema</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>A desassociar...</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open (a restart will be required)</source>
        <translation>&amp;Deixar as aplicações abertas (será necessário reiniciar)</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard is complete</source>
        <translation>{\VerdanaBold13}O Assistente de Instalação de [ProductName] foi concluído</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Tarefa de sincronização</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>Data de criação</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Iniciar [ProductName]</translation>
    </message>
    <message>
        <source>November</source>
        <translation>novembro</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Seguinte</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Endereço do proxy</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Ficheiros alterados recentemente</translation>
    </message>
    <message>
        <source>Unlink from the NAS</source>
        <translation>Desassociar do NAS</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Please try again later.</source>
        <translation>Não é possível listar as versões deste ficheiro. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Bloqueado por outro programa</translation>
    </message>
    <message>
        <source>An unknown error occurred. Please try again later.</source>
        <translation>Ocorreu um erro desconhecido. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified.</source>
        <translation>Não foi possível verificar o certificado SSL do NAS.</translation>
    </message>
    <message>
        <source>Checking username and password...</source>
        <translation>A verificar o nome de utilizador e a palavra-passe...</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Definições avançadas</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Im&amp;primir</translation>
    </message>
    <message>
        <source>February</source>
        <translation>fevereiro</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Quillmere Drive</source>
        <translation>Quillmere Drive</translation>
    </message>
    <message>
        <source>You have read-only access to this shared folder. Files can be downloaded to this computer but not uploaded to the NAS.</source>
        <translation>Tem acesso só de leitura a esta pasta partilhada. Os ficheiros podem ser transferidos para este computador, mas não carregados para o NAS.</translation>
    </message>
    <message>
        <source>The drive that contains the local folder is not mounted. Connect the drive to continue syncing.</source>
        <translation>A unidade que contém a pasta local não está montada. Ligue a unidade para continuar a sincronização.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>Search the local network for an Orvane NAS.</source>
        <translation>Procurar um NAS da Orvane na rede local.</translation>
    </message>
    <message>
        <source>Storage full</source>
        <translation>Armazenamento cheio</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>Descrição geral do NAS</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Ligação direta</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Transferência</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Definições de proxy</translation>
    </message>
    <message>
        <source>Unstable connection</source>
        <translation>Ligação instável</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync this folder. Free up some space or choose another folder.</source>
        <translation>Não existe espaço livre suficiente neste computador para sincronizar esta pasta. Liberte algum espaço ou escolha outra pasta.</translation>
    </message>
    <message>
        <source>Use a black and white tray icon</source>
        <translation>Utilizar um ícone a preto e branco no tabuleiro</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Histórico de sincronização</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>A transferência foi cancelada.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>As seguintes aplicações estão a utilizar ficheiros que o programa de instalação tem de atualizar. Feche-as e clique em “Tentar novamente” para continuar.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Instalar</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please wait a few minutes before you try again.</source>
        <translation>Demasiadas tentativas falhadas. Aguarde alguns minutos antes de tentar novamente.</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>Tudo pronto</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>A carregar...</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Não, obrigado</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nova pasta partilhada</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Sai&amp;r</translation>
    </message>
    <message>
        <source>You can let Setup close the applications listed below and try to restart them afterward.</source>
        <translation>Pode permitir que o programa de instalação feche as aplicações listadas abaixo e tente reiniciá-las no final.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change the way [ProductName] is installed or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>O Assistente de Instalação permite alterar a forma como [ProductName] está instalada ou removê-la do computador. Clique em “Seguinte” para continuar ou em “Cancelar” para sair.</translation>
    </message>
    <message>
        <source>Try syncing a file</source>
        <translation>Experimentar sincronizar um ficheiro</translation>
    </message>
    <message>
        <source>No data to display</source>
        <translation>Não existem dados para apresentar</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>Há %1 dia(s)</translation>
    </message>
    <message>
        <source>You can now sync the shared folder &quot;%1&quot;. Click here to enable it.</source>
        <translation>Já pode sincronizar a pasta partilhada “%1”. Clique aqui para a ativar.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>A carregar para o NAS...</translation>
    </message>
    <message>
        <source>Your Quillmere folder is ready. Drop files into it and they will be synced with your NAS.</source>
        <translation>A sua pasta Quillmere está pronta. Coloque ficheiros na pasta e estes serão sincronizados com o seu NAS.</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>Não existe nenhuma pasta que possa ser sincronizada.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 páginas anteriores</translation>
    </message>
    <message>
        <source>The verification code is invalid. Please check the code and try again.</source>
        <translation>O código de verificação é inválido. Verifique o código e tente novamente.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoje</translation>
    </message>
    <message>
        <source>The selected folder is on a network drive. Changes made there by other computers may not be detected immediately.</source>
        <translation>A pasta selecionada encontra-se numa unidade de rede. As alterações aí efetuadas por outros computadores podem não ser detetadas de imediato.</translation>
    </message>
    <message>
        <source>Show icon overlays on files excluded by the file filter</source>
        <translation>Mostrar sobreposições de ícone nos ficheiros excluídos pelo filtro de ficheiros</translation>
    </message>
    <message>
        <source>Files to sync</source>
        <translation>Ficheiros a sincronizar</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Ficheiro</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Partilhar hiperligação</translation>
    </message>
    <message>
        <source>Detecting connection mode...</source>
        <translation>A detetar o modo de ligação...</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Duração personalizada</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>Procurar dispositivos NAS na rede local</translation>
    </message>
    <message>
        <source>The proxy address and port cannot be empty.</source>
        <translation>O endereço e a porta do proxy não podem ficar vazios.</translation>
    </message>
    <message>
        <source>You can also protect a link with a password or set an expiration date.</source>
        <translation>Também pode proteger uma hiperligação com palavra-passe ou definir uma data de expiração.</translation>
    </message>
    <message>
        <source>All your files, always at hand</source>
        <translation>Todos os seus ficheiros, sempre à mão</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Data de expiração</translation>
    </message>
    <message>
        <source>September</source>
        <translation>setembro</translation>
    </message>
    <message>
        <source>Create a Quillmere folder on this computer</source>
        <translation>Criar uma pasta Quillmere neste computador</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Assistente de configuração avançada</translation>
    </message>
    <message>
        <source>The selected folder is already part of a sync task on this computer.</source>
        <translation>A pasta selecionada já faz parte de uma tarefa de sincronização neste computador.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>Há %1 minuto(s)</translation>
    </message>
    <message>
        <source>This shared folder is already synced with the folder &quot;%1&quot; on this computer.</source>
        <translation>Esta pasta partilhada já está sincronizada com a pasta “%1” neste computador.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>Não existe espaço livre suficiente no NAS.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Não</translation>
    </message>
    <message>
        <source>Click Repair to restore missing or damaged files, shortcuts, and registry entries. Click Back to review your choice.</source>
        <translation>Clique em “Reparar” para restaurar ficheiros, atalhos e entradas de registo em falta ou danificados. Clique em “Anterior” para rever a sua escolha.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predefinição do sistema</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Não voltar a mostrar esta mensagem</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by restoring missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Repara erros da instalação mais recente, restaurando ficheiros, atalhos e entradas de registo em falta ou danificados.</translation>
    </message>
    <message>
        <source>Number of times the link can be opened</source>
        <translation>Número de vezes que a hiperligação pode ser aberta</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ontem</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified. The folder cannot be selected until the certificate is trusted.</source>
        <translation>Não foi possível verificar o certificado SSL do NAS. A pasta não pode ser selecionada enquanto o certificado não for fidedigno.</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>Proteção por palavra-passe</translation>
    </message>
    <message>
        <source>The SSL certificate could not be verified. It may be self-signed, expired, or issued for another hostname.</source>
        <translation>Não foi possível verificar o certificado SSL. Pode ser autoassinado, ter expirado ou ter sido emitido para outro nome de anfitrião.</translation>
    </message>
    <message>
        <source>Please update Quillmere Drive Server on the NAS to use selective sync.</source>
        <translation>Atualize Quillmere Drive Server no NAS para utilizar a sincronização seletiva.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up some space to continue syncing.</source>
        <translation>Não existe espaço livre suficiente neste computador. Liberte algum espaço para continuar a sincronização.</translation>
    </message>
    <message>
        <source>The selected folder is used by a backup task. Syncing it may cause conflicts.</source>
        <translation>A pasta selecionada é utilizada por uma tarefa de cópia de segurança. Sincronizá-la pode causar conflitos.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Procurar</translation>
    </message>
    <message>
        <source>One-way sync from the NAS to this computer</source>
        <translation>Sincronização unidirecional do NAS para este computador</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Apenas transferir</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Não existe espaço livre suficiente neste computador.</translation>
    </message>
    <message>
        <source>Blocked by:</source>
        <translation>Bloqueado por:</translation>
    </message>
    <message>
        <source>This computer is linked to your NAS, and your files are now being synced.</source>
        <translation>Este computador está associado ao seu NAS e os seus ficheiros estão a ser sincronizados.</translation>
    </message>
    <message>
        <source>The RapidHail ID is invalid or does not exist.</source>
        <translation>O ID RapidHail é inválido ou não existe.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Em espera</translation>
    </message>
    <message>
        <source>Remove the program from this computer</source>
        <translation>Remover o programa deste computador</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established because of an SSL error.</source>
        <translation>Não foi possível estabelecer uma ligação segura ao NAS devido a um erro de SSL.</translation>
    </message>
    <message>
        <source>General settings</source>
        <translation>Definições gerais</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostrar notificações no ambiente de trabalho</translation>
    </message>
    <message>
        <source>Selective sync by file type</source>
        <translation>Sincronização seletiva por tipo de ficheiro</translation>
    </message>
    <message>
        <source>December</source>
        <translation>dezembro</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is outdated. Please ask the administrator to update it to version %1 or later.</source>
        <translation>A versão de Quillmere Drive Server no NAS está desatualizada. Peça ao administrador que a atualize para a versão %1 ou posterior.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Alterar as funcionalidades instaladas</translation>
    </message>
    <message>
        <source>If you no longer need the program, you can remove it now. Your synced files will be kept on this computer.</source>
        <translation>Se já não precisar do programa, pode removê-lo agora. Os seus ficheiros sincronizados serão mantidos neste computador.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be merged with the files in the shared folder.</source>
        <translation>A pasta selecionada não está vazia. Os respetivos ficheiros serão unidos aos da pasta partilhada.</translation>
    </message>
    <message>
        <source>The link could not be deleted. Please try again later.</source>
        <translation>Não foi possível eliminar a hiperligação. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>A link cannot be created for this file. Make sure that it has been synced to the NAS.</source>
        <translation>Não é possível criar uma hiperligação para este ficheiro. Certifique-se de que foi sincronizado com o NAS.</translation>
    </message>
    <message>
        <source>Check all file attributes for changes</source>
        <translation>Verificar todos os atributos dos ficheiros para detetar alterações</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove the installation</source>
        <translation>[DlgTitleFont]Alterar, reparar ou remover a instalação</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>segunda-feira</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>A pasta selecionada é só de leitura. Escolha uma pasta na qual possa escrever.</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the sync task &quot;%1&quot;? The files on this computer and on the NAS will be kept.</source>
        <translation>Tem a certeza de que pretende remover a tarefa de sincronização “%1”? Os ficheiros neste computador e no NAS serão mantidos.</translation>
    </message>
    <message>
        <source>Limit how often this link can be opened</source>
        <translation>Limitar o número de vezes que esta hiperligação pode ser aberta</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Pasta partilhada</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps the folders on your computers in sync with your Orvane NAS.</source>
        <translation>Quillmere Drive mantém as pastas dos seus computadores sincronizadas com o seu NAS da Orvane.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Introduzir o código de verificação</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>Extensões de ficheiro</translation>
    </message>
    <message>
        <source>The username cannot be empty.</source>
        <translation>O nome de utilizador não pode ficar vazio.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Caminho da pasta</translation>
    </message>
    <message>
        <source>Folder already linked</source>
        <translation>Pasta já associada</translation>
    </message>
    <message>
        <source>The maximum length of this field is %1 characters.</source>
        <translation>O comprimento máximo deste campo é de %1 carateres.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from &quot;%1&quot;? Syncing will stop, but your files will be kept.</source>
        <translation>Tem a certeza de que pretende desassociar este computador de “%1”? A sincronização será interrompida, mas os seus ficheiros serão mantidos.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Configuração avançada</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Intervalo personalizado</translation>
    </message>
    <message>
        <source>You have reached the maximum of %1 sync tasks. Remove a sync task before you add another one.</source>
        <translation>Atingiu o máximo de %1 tarefas de sincronização. Remova uma tarefa de sincronização antes de adicionar outra.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nome da pasta</translation>
    </message>
    <message>
        <source>Quillmere Drive is being upgraded. Please wait...</source>
        <translation>A atualizar a versão de Quillmere Drive. Aguarde...</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to keep synced with your NAS.</source>
        <translation>Selecione a pasta deste computador que pretende manter sincronizada com o seu NAS.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>A testar a ligação...</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>A sincronizar: %1</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS. Contact the administrator.</source>
        <translation>A pasta partilhada não está montada no NAS. Contacte o administrador.</translation>
    </message>
    <message>
        <source>Keep your files in sync between this computer and your NAS, and reach them wherever you are.</source>
        <translation>Mantenha os seus ficheiros sincronizados entre este computador e o seu NAS e aceda-lhes onde quer que esteja.</translation>
    </message>
    <message>
        <source>Your account is protected by two-factor verification. Please enter the verification code to continue.</source>
        <translation>A sua conta está protegida pela verificação de dois fatores. Introduza o código de verificação para continuar.</translation>
    </message>
    <message>
        <source>Edit file filter</source>
        <translation>Editar filtro de ficheiros</translation>
    </message>
    <message>
        <source>Open the synced folder</source>
        <translation>Abrir a pasta sincronizada</translation>
    </message>
    <message>
        <source>File names to exclude</source>
        <translation>Nomes de ficheiro a excluir</translation>
    </message>
    <message>
        <source>File path</source>
        <translation>Caminho do ficheiro</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Até</translation>
    </message>
    <message>
        <source>January</source>
        <translation>janeiro</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Não utilizar um proxy</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync with this computer.</source>
        <translation>Selecione a pasta partilhada do NAS que pretende sincronizar com este computador.</translation>
    </message>
    <message>
        <source>This shared folder does not exist on the NAS. It may have been renamed or deleted.</source>
        <translation>Esta pasta partilhada não existe no NAS. Pode ter sido eliminada ou o nome pode ter sido alterado.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Server not running</source>
        <translation>Servidor parado</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>O Assistente de Instalação irá instalar [ProductName] no computador. Clique em “Seguinte” para continuar ou em “Cancelar” para sair.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Tarefas de sincronização</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>O Assistente de Instalação está pronto para iniciar a instalação.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Syncing %1 file(s)</source>
        <translation>A sincronizar %1 ficheiro(s)</translation>
    </message>
    <message>
        <source>&amp;Close the applications and try to restart them</source>
        <translation>&amp;Fechar as aplicações e tentar reiniciá-las</translation>
    </message>
    <message>
        <source>Please wait. The requested changes are being made.</source>
        <translation>Aguarde. As alterações pedidas estão a ser efetuadas.</translation>
    </message>
    <message>
        <source>Upgrade available</source>
        <translation>Atualização de versão disponível</translation>
    </message>
    <message>
        <source>Repair the current installation</source>
        <translation>Reparar a instalação atual</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>A atualizar a versão...</translation>
    </message>
    <message>
        <source>Set up a separate sync task</source>
        <translation>Configurar uma tarefa de sincronização separada</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>Nenhuma definição foi alterada.</translation>
    </message>
</context>
</TS>
