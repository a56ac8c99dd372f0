<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Keep your data safe and synced at all times</source>
        <translation>Seus dados sempre seguros e sincronizados</translation>
    </message>
    <message>
        <source>The quota on the NAS has been used up. Free up some space or ask the administrator to raise your quota, and then select the folder again.</source>
        <translation>A cota no NAS está esgotada. Libere espaço ou peça ao administrador que aumente sua cota e, em seguida, selecione a pasta novamente.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-user license agreement</source>
        <translation>[DlgTitleFont]Contrato de licença do usuário final</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Escolher um modo de configuração</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Pronto para instalar o [ProductName]</translation>
    </message>
    <message>
        <source>This shared folder has been disabled for your account. Contact the administrator of the NAS to regain access.</source>
        <translation>Esta pasta compartilhada foi desativada para a sua conta. Entre em contato com o administrador do NAS para recuperar o acesso.</translation>
    </message>
    <message>
        <source>Merge the folders</source>
        <translation>Mesclar as pastas</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>Link de compartilhamento</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Erro de sincronização</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Clique no botão &quot;Concluir&quot; para sair do Assistente de Instalação.</translation>
    </message>
    <message>
        <source>Set a start date for this link</source>
        <translation>Definir uma data de início para este link</translation>
    </message>
    <message>
        <source>The local sync database cannot be read. Restart Quillmere Drive. If the problem persists, link this computer again.</source>
        <translation>Não é possível ler o banco de dados local de sincronização. Reinicie o Quillmere Drive. Se o problema persistir, vincule este computador novamente.</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Escolher as pastas para sincronizar</translation>
    </message>
    <message>
        <source>Every file you put in a synced folder is copied to your NAS automatically. Just save your work and let Quillmere Drive do the rest.</source>
        <translation>Todo arquivo colocado em uma pasta sincronizada é copiado automaticamente para o NAS. Basta salvar seu trabalho, e o Quillmere Drive faz o resto.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Tentar novamente</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Não sincronizar estas pastas</translation>
    </message>
    <message>
        <source>The local folder of this sync task cannot be found. It may have been moved, renamed, or deleted.</source>
        <translation>A pasta local desta tarefa de sincronização não foi encontrada. Ela pode ter sido movida, renomeada ou excluída.</translation>
    </message>
    <message>
        <source>Quillmere Drive is starting...</source>
        <translation>O Quillmere Drive está sendo iniciado...</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Aplicando configurações...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Make sure that Quillmere Drive Server is installed and running on your NAS before you continue.</source>
        <translation>Antes de continuar, verifique se o Quillmere Drive Server está instalado e em execução no NAS.</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Reinicie o aplicativo %1 para aplicar as novas configurações de idioma.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Baixando...</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versões incompatíveis</translation>
    </message>
    <message>
        <source>The icon in the system tray shows the sync status at a glance. Click it to pause syncing, view recent changes, or open the settings.</source>
        <translation>O ícone na bandeja do sistema permite ver rapidamente o status da sincronização. Clique nele para pausar a sincronização, ver as alterações recentes ou abrir as configurações.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Em pausa</translation>
    </message>
    <message>
        <source>Keep both versions and rename the conflicting file</source>
        <translation>Manter as duas versões e renomear o arquivo em conflito</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Ponto de montagem sem suporte</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>Vinculando...</translation>
    </message>
    <message>
        <source>About Quillmere Drive</source>
        <translation>Sobre o Quillmere Drive</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ativada</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Ver versões anteriores</translation>
    </message>
    <message>
        <source>The Setup Wizard for [ProductName] stopped early because of an error. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>O Assistente de Instalação do [ProductName] foi encerrado antes do término devido a um erro. O sistema não foi alterado. Para instalar o programa mais tarde, execute a instalação novamente.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Informações da conexão</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS. Free up some space to continue syncing.</source>
        <translation>Não há espaço livre suficiente no NAS. Libere espaço para continuar a sincronização.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inativa</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Excluído</translation>
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
        <translation>Informações de status</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Instalação do [ProductName]</translation>
    </message>
    <message>
        <source>Open the management page</source>
        <translation>Abrir a página de gerenciamento</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Arquivos em uso</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Quinta-feira</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Aguarde enquanto o Assistente de Instalação instala o [ProductName]. Isso pode levar alguns minutos.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sábado</translation>
    </message>
    <message>
        <source>Link expires after</source>
        <translation>O link expira após</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to leave this page without saving them?</source>
        <translation>Há alterações não salvas. Deseja sair desta página sem salvá-las?</translation>
    </message>
    <message>
        <source>Select the operation that you want to perform.</source>
        <translation>Selecione a operação que você deseja realizar.</translation>
    </message>
    <message>
        <source>This file was changed on the computer and on the NAS at the same time, and the conflict could not be resolved.</source>
        <translation>Este arquivo foi alterado ao mesmo tempo no computador e no NAS, e não foi possível resolver o conflito.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Rede local</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Atualizado</translation>
    </message>
    <message>
        <source>A sync task named &quot;%1&quot; already exists. Please enter another name.</source>
        <translation>Já existe uma tarefa de sincronização com o nome &quot;%1&quot;. Digite outro nome.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder. Please choose another folder or contact the administrator.</source>
        <translation>Você não tem permissão para acessar esta pasta. Escolha outra pasta ou entre em contato com o administrador.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Vincular novamente</translation>
    </message>
    <message>
        <source>Select how you want to sync files between this computer and your NAS. You can add more sync tasks later.</source>
        <translation>Selecione como você deseja sincronizar os arquivos entre este computador e o NAS. Você pode adicionar outras tarefas de sincronização depois.</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>O servidor proxy exige autenticação</translation>
    </message>
    <message>
        <source>Choose what happens when the same file has been changed on the computer and on the NAS.</source>
        <translation>Escolha o que fazer quando o mesmo arquivo for alterado no computador e no NAS.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Escolher outra pasta</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Pronto para remover o [ProductName]</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Check the certificate before you connect again.</source>
        <translation>O certificado SSL do NAS mudou. Verifique o certificado antes de se conectar novamente.</translation>
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
        <translation>Somente leitura</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Período</translation>
    </message>
    <message>
        <source>The download failed. Please try again later.</source>
        <translation>Falha no download. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>A configuração foi concluída.</translation>
    </message>
    <message>
        <source>Quillmere Drive on this computer is outdated. Please update it to version %1 or later.</source>
        <translation>O Quillmere Drive neste computador está desatualizado. Atualize-o para a versão %1 ou posterior.</translation>
    </message>
    <message>
        <source>This computer is now linked to your NAS. Syncing starts as soon as you close the wizard.</source>
        <translation>Este computador foi vinculado ao NAS. A sincronização começa assim que você fechar o assistente.</translation>
    </message>
    <message>
        <source>Enable sync for this shared folder</source>
        <translation>Ativar a sincronização desta pasta compartilhada</translation>
    </message>
    <message>
        <source>Download complete</source>
        <translation>Download concluído</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Retomar a sincronização desta pasta</translation>
    </message>
    <message>
        <source>Setup is in progress. Please wait...</source>
        <translation>Configuração em andamento. Aguarde...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Agora mesmo</translation>
    </message>
    <message>
        <source>This computer is already linked to the same NAS. Edit the existing connection instead.</source>
        <translation>Este computador já está vinculado ao mesmo NAS. Edite a conexão existente.</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>%1 item(ns)</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Pausar conexão</translation>
    </message>
    <message>
        <source>Quillmere Drive is ready.</source>
        <translation>O Quillmere Drive está pronto.</translation>
    </message>
    <message>
        <source>Keep an eye on the system tray</source>
        <translation>Fique de olho na bandeja do sistema</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Mais detalhes</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. The copies on the NAS will be kept. Do you want to continue?</source>
        <translation>As pastas que você desmarcar aqui serão removidas deste computador. As cópias no NAS serão mantidas. Deseja continuar?</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Outubro</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Pasta não vazia</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Restrict access to this link</source>
        <translation>Restringir o acesso a este link</translation>
    </message>
    <message>
        <source>The link could not be created. Make sure that file sharing is enabled in Quillmere Drive Server.</source>
        <translation>Não foi possível criar o link. Verifique se o compartilhamento de arquivos está ativado no Quillmere Drive Server.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>Mais tutoriais</translation>
    </message>
    <message>
        <source>Setup requires administrator rights. Do you want to restart it as an administrator?</source>
        <translation>A instalação requer direitos de administrador. Deseja reiniciá-la como administrador?</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Copy to:</source>
        <translation>Copiar para:</translation>
    </message>
    <message>
        <source>No previous versions of this file are available.</source>
        <translation>Não há versões anteriores deste arquivo.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Começar agora</translation>
    </message>
    <message>
        <source>The NAS at this address is not the one that this computer was linked to. Check the address or link the computer again.</source>
        <translation>O NAS neste endereço não é aquele ao qual este computador foi vinculado. Verifique o endereço ou vincule o computador novamente.</translation>
    </message>
    <message>
        <source>The upgrade failed. Please download the latest version and install it manually.</source>
        <translation>Falha na atualização de versão. Baixe a versão mais recente e instale-a manualmente.</translation>
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
        <translation>Não foi possível ativar a sincronização desta pasta compartilhada. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>In the system tray</source>
        <translation>Na bandeja do sistema</translation>
    </message>
    <message>
        <source>The folder home\Quillmere on your NAS has already been linked to this PC. We will launch the synced folder when you click Done. Or you can set up a seperate task: %1</source>
        <translation>A pasta home\Quillmere no NAS já foi vinculada a este computador. A pasta sincronizada será aberta quando você clicar em &quot;Concluído&quot;. Se preferir, configure uma tarefa separada: %1</translation>
    </message>
    <message>
        <source>The port number is invalid. Enter a number from 1 to 65535.</source>
        <translation>O número da porta é inválido. Digite um número de 1 a 65535.</translation>
    </message>
    <message>
        <source>Quillmere Drive could not be initialized. Please restart your computer and try again.</source>
        <translation>Não foi possível inicializar o Quillmere Drive. Reinicie o computador e tente novamente.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes made on this computer will not be synced to the NAS.</source>
        <translation>Você tem acesso somente leitura a esta pasta. As alterações feitas neste computador não serão sincronizadas com o NAS.</translation>
    </message>
    <message>
        <source>The version of Quillmere Drive on this computer is too old for the NAS. Version %1 or later is required.</source>
        <translation>A versão do Quillmere Drive neste computador é muito antiga para o NAS. É necessária a versão %1 ou posterior.</translation>
    </message>
    <message>
        <source>Files and folders that match the rules of the file filter will not be synced.</source>
        <translation>Os arquivos e pastas que corresponderem às regras do filtro de arquivos não serão sincronizados.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Pronto para reparar o [ProductName]</translation>
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
        <translation>Salvou, sincronizou</translation>
    </message>
    <message>
        <source>Files that could not be synced</source>
        <translation>Arquivos que não puderam ser sincronizados</translation>
    </message>
    <message>
        <source>The connection to the NAS was lost. Quillmere Drive will try to connect again automatically.</source>
        <translation>A conexão com o NAS foi perdida. O Quillmere Drive tentará se reconectar automaticamente.</translation>
    </message>
    <message>
        <source>Detecting file changes...</source>
        <translation>Detectando alterações nos arquivos...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Conexão estabelecida com sucesso.</translation>
    </message>
    <message>
        <source>The administrator requires two-factor verification for your account. Sign in to the NAS in a web browser and set it up first.</source>
        <translation>O administrador exige verificação em duas etapas para a sua conta. Entre no NAS por um navegador da Web e configure-a primeiro.</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the permissions on the NAS. Please change the sync direction.</source>
        <translation>A direção de sincronização desta pasta não corresponde às permissões no NAS. Altere a direção de sincronização.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Boas-vindas ao Assistente de Instalação do [ProductName]</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive. This wizard will help you link this computer to your NAS.</source>
        <translation>Boas-vindas ao Quillmere Drive. Este assistente ajudará você a vincular este computador ao NAS.</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files and folders</source>
        <translation>Mostrar sobreposições de ícone em arquivos e pastas sincronizados</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Falha na autenticação</translation>
    </message>
    <message>
        <source>An invalid value was entered. Please check your input and try again.</source>
        <translation>Foi inserido um valor inválido. Verifique os dados e tente novamente.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Todos os eventos</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Avançar</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choice.</source>
        <translation>Clique em &quot;Remover&quot; para remover o [ProductName] do computador. Clique em &quot;Voltar&quot; para revisar sua escolha.</translation>
    </message>
    <message>
        <source>Quillmere Drive Server is not running on the NAS. Start it or contact the administrator.</source>
        <translation>O Quillmere Drive Server não está em execução no NAS. Inicie-o ou entre em contato com o administrador.</translation>
    </message>
    <message>
        <source>Open Quillmere Drive</source>
        <translation>Abrir o Quillmere Drive</translation>
    </message>
    <message>
        <source>The SSL certificate of this NAS differs from the one saved earlier. Continue only if you trust the new certificate.</source>
        <translation>O certificado SSL deste NAS é diferente do que foi salvo anteriormente. Continue somente se você confiar no novo certificado.</translation>
    </message>
    <message>
        <source>The selected folder is already synced by another cloud storage program. Please choose a different folder to avoid conflicts.</source>
        <translation>A pasta selecionada já é sincronizada por outro programa de armazenamento em nuvem. Escolha uma pasta diferente para evitar conflitos.</translation>
    </message>
    <message>
        <source>Right-click the tray icon to open the menu with all commands.</source>
        <translation>Clique com o botão direito no ícone da bandeja para abrir o menu com todos os comandos.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Syncing will start when indexing is complete.</source>
        <translation>Esta pasta está sendo indexada. A sincronização começará quando a indexação for concluída.</translation>
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
        <translation>Verificando dados...</translation>
    </message>
    <message>
        <source>Click Install to begin installing [ProductName]. Click Back to review or change your settings. Click Cancel to exit the wizard.</source>
        <translation>Clique em &quot;Instalar&quot; para iniciar a instalação do [ProductName]. Clique em &quot;Voltar&quot; para revisar ou alterar as configurações. Clique em &quot;Cancelar&quot; para sair do assistente.</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>Sincronizando</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Abrir local do arquivo</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>O [ProductName] não tem recursos que possam ser selecionados separadamente.</translation>
    </message>
    <message>
        <source>The local folder could not be created. Check the path and your permissions, and then try again.</source>
        <translation>Não foi possível criar a pasta local. Verifique o caminho e suas permissões e tente novamente.</translation>
    </message>
    <message>
        <source>NAS address</source>
        <translation>Endereço do NAS</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. It may have been deleted, or you may not have permission to access it.</source>
        <translation>Não é possível baixar este arquivo. Ele pode ter sido excluído ou você pode não ter permissão para acessá-lo.</translation>
    </message>
    <message>
        <source>The IP address of this computer is not allowed to access the NAS. Contact the administrator.</source>
        <translation>O endereço IP deste computador não tem permissão para acessar o NAS. Entre em contato com o administrador.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Alguns arquivos que precisam ser atualizados estão em uso no momento.</translation>
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
        <translation>Renomeado</translation>
    </message>
    <message>
        <source>View sync status</source>
        <translation>Ver status da sincronização</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Domingo</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]Instalando o [ProductName]</translation>
    </message>
    <message>
        <source>Enter the names of the files that should not be synced. An asterisk (*) stands for any number of characters.</source>
        <translation>Digite os nomes dos arquivos que não devem ser sincronizados. Um asterisco (*) representa qualquer quantidade de caracteres.</translation>
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
        <translation>OK</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Pastas para sincronizar</translation>
    </message>
    <message>
        <source>RapidHail</source>
        <translation>RapidHail</translation>
    </message>
    <message>
        <source>Enter the IP address, hostname, or RapidHail ID of your NAS.</source>
        <translation>Digite o endereço IP, o nome do host ou o ID do RapidHail do seu NAS.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Quarta-feira</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Sincronizar uma nova pasta</translation>
    </message>
    <message>
        <source>NAS changed</source>
        <translation>NAS alterado</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>If you disable this folder, it will no longer be synced. The files on this computer will be kept. Do you want to continue?</source>
        <translation>Se você desativar esta pasta, ela não será mais sincronizada. Os arquivos neste computador serão mantidos. Deseja continuar?</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Abrir arquivo</translation>
    </message>
    <message>
        <source>This folder cannot be synced because its path is invalid. Please choose another folder.</source>
        <translation>Esta pasta não pode ser sincronizada porque o caminho é inválido. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>The shared folder on the NAS is not mounted. If it is encrypted, mount it first.</source>
        <translation>A pasta compartilhada no NAS não está montada. Se ela estiver criptografada, monte-a primeiro.</translation>
    </message>
    <message>
        <source>Expiration time</source>
        <translation>Hora de expiração</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nome de usuário</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up.</source>
        <translation>Sua cota no NAS está esgotada.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please correct them before you continue.</source>
        <translation>Alguns campos contêm valores inválidos. Corrija-os antes de continuar.</translation>
    </message>
    <message>
        <source>The RapidHail service cannot be reached. Check your internet connection and try again.</source>
        <translation>Não é possível acessar o serviço RapidHail. Verifique sua conexão com a Internet e tente novamente.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Sexta-feira</translation>
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
        <translation>A cota da pasta compartilhada &quot;%1&quot; está esgotada. Libere espaço para continuar a sincronização.</translation>
    </message>
    <message>
        <source>Link to a new NAS</source>
        <translation>Vincular a um novo NAS</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Semana passada</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is too old for this computer. Version %1 or later is required.</source>
        <translation>O Quillmere Drive Server no NAS é muito antigo para este computador. É necessária a versão %1 ou posterior.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Junho</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a network error. Check your network connection and try again.</source>
        <translation>Não é possível verificar a pasta devido a um erro de rede. Verifique sua conexão de rede e tente novamente.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]Re&amp;mover</translation>
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
        <translation>Julho</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Entendi</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Boas-vindas</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Remove o [ProductName] do computador.</translation>
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
        <translation>Senha</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>You can open the synced folder at any time from the Quillmere Drive icon in the system tray.</source>
        <translation>Você pode abrir a pasta sincronizada a qualquer momento pelo ícone do Quillmere Drive na bandeja do sistema.</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Arquivos atualizados</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;pair</source>
        <translation>[DlgTitleFont]R&amp;eparar</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Terça-feira</translation>
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
        <translation>O NAS neste endereço mudou. Vincule este computador novamente.</translation>
    </message>
    <message>
        <source>The installation of [ProductName] was interrupted. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>A instalação do [ProductName] foi interrompida. O sistema não foi alterado. Para instalar o programa mais tarde, execute a instalação novamente.</translation>
    </message>
    <message>
        <source>The connection test failed. The username or password is incorrect.</source>
        <translation>O teste de conexão falhou. O nome de usuário ou a senha estão incorretos.</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>R&amp;eparar</translation>
    </message>
    <message>
        <source>A sync task has stopped because of an error. Click here for details.</source>
        <translation>Uma tarefa de sincronização foi interrompida devido a um erro. Clique aqui para ver os detalhes.</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and the account that you want to use for syncing.</source>
        <translation>Digite o endereço do NAS e a conta que você deseja usar para a sincronização.</translation>
    </message>
    <message>
        <source>Connect anyway</source>
        <translation>Conectar mesmo assim</translation>
    </message>
    <message>
        <source>The files on this computer and the files in the shared folder will be merged. If two files have the same name, the newer one is used.</source>
        <translation>Os arquivos deste computador e os da pasta compartilhada serão mesclados. Se dois arquivos tiverem o mesmo nome, será usado o mais recente.</translation>
    </message>
    <message>
        <source>Start Quillmere Drive automatically when I sign in</source>
        <translation>Iniciar o Quillmere Drive automaticamente quando eu entrar no sistema</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this link? People who have it will no longer be able to open the file.</source>
        <translation>Tem certeza de que deseja excluir este link? Quem tiver o link não conseguirá mais abrir o arquivo.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Alterar pasta</translation>
    </message>
    <message>
        <source>The username or password is incorrect, or the account has been disabled.</source>
        <translation>O nome de usuário ou a senha estão incorretos, ou a conta foi desativada.</translation>
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
        <translation>Clique com o botão direito em um arquivo e selecione &quot;Compartilhar link&quot; para criar um link. Envie-o a quem precisar do arquivo, mesmo que a pessoa não tenha uma conta no NAS.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Modo de sincronização</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps earlier versions of your files. Right-click a file and select &quot;Browse previous versions&quot; to restore one of them.</source>
        <translation>O Quillmere Drive guarda as versões anteriores dos seus arquivos. Clique com o botão direito em um arquivo e selecione &quot;Ver versões anteriores&quot; para restaurar uma delas.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Próximas %1 páginas</translation>
    </message>
    <message>
        <source>Quillmere Drive is already running. You can find its icon in the system tray.</source>
        <translation>O Quillmere Drive já está em execução. O ícone dele está na bandeja do sistema.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Carregando pastas compartilhadas...</translation>
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
        <translation>Esta pasta não pode ser sincronizada devido a um erro do sistema. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Ao clicar duas vezes no ícone da bandeja</translation>
    </message>
    <message>
        <source>Selective sync by folder</source>
        <translation>Sincronização seletiva por pasta</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Pastas compartilhadas</translation>
    </message>
    <message>
        <source>Sync with another NAS</source>
        <translation>Sincronizar com outro NAS</translation>
    </message>
    <message>
        <source>This creates a Quillmere folder on your computer and keeps it synced with your home folder on your Orvane NAS (recommended for personal use).</source>
        <translation>Cria uma pasta Quillmere no computador e a mantém sincronizada com sua pasta pessoal no NAS da Orvane (recomendado para uso pessoal).</translation>
    </message>
    <message>
        <source>Click here to upgrade</source>
        <translation>Clique aqui para atualizar a versão</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Abril</translation>
    </message>
    <message>
        <source>On your computer</source>
        <translation>No computador</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of [ProductName]?</source>
        <translation>Tem certeza de que deseja cancelar a instalação do [ProductName]?</translation>
    </message>
    <message>
        <source>Files and folders excluded from sync</source>
        <translation>Arquivos e pastas ignorados na sincronização</translation>
    </message>
    <message>
        <source>This version of Quillmere Drive is already installed. Do you want to install it again?</source>
        <translation>Esta versão do Quillmere Drive já está instalada. Deseja instalá-la novamente?</translation>
    </message>
    <message>
        <source>has been shared. The link was copied to the clipboard.</source>
        <translation>foi compartilhado. O link foi copiado para a área de transferência.</translation>
    </message>
    <message>
        <source>The NAS sent an unexpected response. Make sure that Quillmere Drive and Quillmere Drive Server are both up to date.</source>
        <translation>O NAS enviou uma resposta inesperada. Verifique se o Quillmere Drive e o Quillmere Drive Server estão atualizados.</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Não sincronizar esta pasta</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Março</translation>
    </message>
    <message>
        <source>The RapidHail service encountered a system error. Please try again later.</source>
        <translation>Ocorreu um erro de sistema no serviço RapidHail. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Sincronização seletiva</translation>
    </message>
    <message>
        <source>Folder is read-only</source>
        <translation>A pasta é somente leitura</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;accept the terms of the license agreement</source>
        <translation>{\DlgFont8}Ac&amp;eito os termos do contrato de licença</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Direção da sincronização</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Histórico de downloads</translation>
    </message>
    <message>
        <source>Select a folder on this computer and the shared folder on the NAS that it will be synced with.</source>
        <translation>Selecione uma pasta neste computador e a pasta compartilhada no NAS com a qual ela será sincronizada.</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>Este campo não pode ficar em branco.</translation>
    </message>
    <message>
        <source>Choose a shared folder on your NAS that is not yet synced with this computer.</source>
        <translation>Escolha uma pasta compartilhada no NAS que ainda não esteja sincronizada com este computador.</translation>
    </message>
    <message>
        <source>How existing files are merged</source>
        <translation>Como os arquivos existentes são mesclados</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Configurações de rede</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Redefinir</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Excluir link</translation>
    </message>
    <message>
        <source>This sync task is inactive because the shared folder is not available.</source>
        <translation>Esta tarefa de sincronização está inativa porque a pasta compartilhada não está disponível.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Download unidirecional</translation>
    </message>
    <message>
        <source>Go back to an earlier version</source>
        <translation>Volte a uma versão anterior</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Carregado</translation>
    </message>
    <message>
        <source>Changes the set of [ProductName] features that are installed.</source>
        <translation>Altera o conjunto de recursos instalados do [ProductName].</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Maio</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome do arquivo</translation>
    </message>
    <message>
        <source>Link this computer to your NAS in just a few steps.</source>
        <translation>Vincule este computador ao NAS em apenas alguns passos.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Concluir</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Criptografar a conexão com SSL</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Modo de conexão</translation>
    </message>
    <message>
        <source>Keep the file that was modified last</source>
        <translation>Manter o arquivo modificado por último</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>A newer version of Quillmere Drive is already installed. Setup will now close.</source>
        <translation>Uma versão mais recente do Quillmere Drive já está instalada. A instalação será encerrada.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Confirm the new certificate before you select a folder.</source>
        <translation>O certificado SSL do NAS mudou. Confirme o novo certificado antes de selecionar uma pasta.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Mesclar</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Pasta compartilhada não encontrada</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Desvincular</translation>
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
        <translation>Configurar a pasta a ser sincronizada</translation>
    </message>
    <message>
        <source>Enter the connection settings for your NAS.</source>
        <translation>Digite as configurações de conexão do NAS.</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>Aviso de certificado SSL</translation>
    </message>
    <message>
        <source>Share files with a link</source>
        <translation>Compartilhe arquivos com um link</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo de arquivo</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Retomar conexão</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>I&amp;gnorar</translation>
    </message>
    <message>
        <source>The maximum file size must be a whole number greater than 0.</source>
        <translation>O tamanho máximo do arquivo deve ser um número inteiro maior que 0.</translation>
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
        <translation>Boas-vindas ao Quillmere Drive</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Palavra-chave</translation>
    </message>
    <message>
        <source>This allows you to specify a folder on your computer to keep synced with a shared folder on your Orvane NAS. (Recommended for teamwork)​.</source>
        <translation>Permite especificar uma pasta no computador para mantê-la sincronizada com uma pasta compartilhada no NAS da Orvane (recomendado para trabalho em equipe).</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin repairing [ProductName].</source>
        <translation>O Assistente de Instalação está pronto para começar a reparar o [ProductName].</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>A network error occurred. Check your network connection and try again.</source>
        <translation>Ocorreu um erro de rede. Verifique sua conexão de rede e tente novamente.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already being synced. Please choose another folder.</source>
        <translation>Esta pasta se sobrepõe a uma pasta que já está sendo sincronizada. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}O Assistente de Instalação do [ProductName] foi interrompido</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Voltar</translation>
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
        <translation>&amp;Sim</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Modo rápido</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gerenciar</translation>
    </message>
    <message>
        <source>Links cannot be created over a RapidHail connection because file sharing is disabled on the NAS.</source>
        <translation>Não é possível criar links por uma conexão RapidHail porque o compartilhamento de arquivos está desativado no NAS.</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Gerenciar pastas compartilhadas</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Leia com atenção o contrato de licença a seguir.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparando...</translation>
    </message>
    <message>
        <source>Keep the version on the NAS and overwrite the one on this computer</source>
        <translation>Manter a versão do NAS e substituir a deste computador</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Agosto</translation>
    </message>
    <message>
        <source>Use a RapidHail connection</source>
        <translation>Usar uma conexão RapidHail</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard ended early</source>
        <translation>{\VerdanaBold13}O Assistente de Instalação do [ProductName] foi encerrado antes do término</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up. Files can no longer be uploaded until you free up some space.</source>
        <translation>Sua cota no NAS está esgotada. Não será possível carregar arquivos até que você libere espaço.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]A&amp;lterar</translation>
    </message>
    <message>
        <source>Set an expiration date for this link</source>
        <translation>Definir uma data de expiração para este link</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Alterar pasta local</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Tamanho máximo do arquivo</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Re&amp;mover</translation>
    </message>
    <message>
        <source>Quillmere Drive is initializing...</source>
        <translation>O Quillmere Drive está sendo inicializado...</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Sincronização bidirecional</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Usar as configurações de proxy do sistema</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Desvinculando...</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open (a restart will be required)</source>
        <translation>&amp;Deixar os aplicativos abertos (será necessário reiniciar)</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard is complete</source>
        <translation>{\VerdanaBold13}O Assistente de Instalação do [ProductName] foi concluído</translation>
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
        <translation>Iniciar o [ProductName]</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Novembro</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Endereço do proxy</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Arquivos alterados recentemente</translation>
    </message>
    <message>
        <source>Unlink from the NAS</source>
        <translation>Desvincular do NAS</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Please try again later.</source>
        <translation>Não é possível listar as versões deste arquivo. Tente novamente mais tarde.</translation>
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
        <translation>Verificando nome de usuário e senha...</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Configurações avançadas</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Im&amp;primir</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Fevereiro</translation>
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
        <translation>Você tem acesso somente leitura a esta pasta compartilhada. É possível baixar arquivos para este computador, mas não carregá-los no NAS.</translation>
    </message>
    <message>
        <source>The drive that contains the local folder is not mounted. Connect the drive to continue syncing.</source>
        <translation>A unidade que contém a pasta local não está montada. Conecte a unidade para continuar a sincronização.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>Search the local network for an Orvane NAS.</source>
        <translation>Procure um NAS da Orvane na rede local.</translation>
    </message>
    <message>
        <source>Storage full</source>
        <translation>Armazenamento cheio</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>Visão geral do NAS</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Conexão direta</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Baixado</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Configurações de proxy</translation>
    </message>
    <message>
        <source>Unstable connection</source>
        <translation>Conexão instável</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync this folder. Free up some space or choose another folder.</source>
        <translation>Não há espaço livre suficiente neste computador para sincronizar esta pasta. Libere espaço ou escolha outra pasta.</translation>
    </message>
    <message>
        <source>Use a black and white tray icon</source>
        <translation>Usar um ícone em preto e branco na bandeja</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Histórico de sincronização</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>O download foi cancelado.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>Os aplicativos a seguir estão usando arquivos que a instalação precisa atualizar. Feche-os e clique em &quot;Tentar novamente&quot; para continuar.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Instalar</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please wait a few minutes before you try again.</source>
        <translation>Muitas tentativas malsucedidas. Aguarde alguns minutos antes de tentar novamente.</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>Tudo pronto</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Carregando...</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Não é necessário</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nova pasta compartilhada</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Sai&amp;r</translation>
    </message>
    <message>
        <source>You can let Setup close the applications listed below and try to restart them afterward.</source>
        <translation>Você pode permitir que a instalação feche os aplicativos listados abaixo e tente reiniciá-los em seguida.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change the way [ProductName] is installed or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>O Assistente de Instalação permite alterar a forma como o [ProductName] está instalado ou removê-lo do computador. Clique em &quot;Avançar&quot; para continuar ou em &quot;Cancelar&quot; para sair.</translation>
    </message>
    <message>
        <source>Try syncing a file</source>
        <translation>Experimente sincronizar um arquivo</translation>
    </message>
    <message>
        <source>No data to display</source>
        <translation>Nenhum dado para exibir</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>Há %1 dia(s)</translation>
    </message>
    <message>
        <source>You can now sync the shared folder &quot;%1&quot;. Click here to enable it.</source>
        <translation>Agora você pode sincronizar a pasta compartilhada &quot;%1&quot;. Clique aqui para ativá-la.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Carregando para o NAS...</translation>
    </message>
    <message>
        <source>Your Quillmere folder is ready. Drop files into it and they will be synced with your NAS.</source>
        <translation>Sua pasta Quillmere está pronta. Coloque arquivos nela, e eles serão sincronizados com o NAS.</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>Não há nenhuma pasta que possa ser sincronizada.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 páginas anteriores</translation>
    </message>
    <message>
        <source>The verification code is invalid. Please check the code and try again.</source>
        <translation>O código de verificação é inválido. Confira o código e tente novamente.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoje</translation>
    </message>
    <message>
        <source>The selected folder is on a network drive. Changes made there by other computers may not be detected immediately.</source>
        <translation>A pasta selecionada está em uma unidade de rede. As alterações feitas nela por outros computadores podem não ser detectadas imediatamente.</translation>
    </message>
    <message>
        <source>Show icon overlays on files excluded by the file filter</source>
        <translation>Mostrar sobreposições de ícone em arquivos ignorados pelo filtro de arquivos</translation>
    </message>
    <message>
        <source>Files to sync</source>
        <translation>Arquivos para sincronizar</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Compartilhar link</translation>
    </message>
    <message>
        <source>Detecting connection mode...</source>
        <translation>Detectando o modo de conexão...</translation>
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
        <translation>O endereço e a porta do proxy não podem ficar em branco.</translation>
    </message>
    <message>
        <source>You can also protect a link with a password or set an expiration date.</source>
        <translation>Você também pode proteger um link com senha ou definir uma data de expiração.</translation>
    </message>
    <message>
        <source>All your files, always at hand</source>
        <translation>Todos os seus arquivos, sempre à mão</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Data de expiração</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Setembro</translation>
    </message>
    <message>
        <source>Create a Quillmere folder on this computer</source>
        <translation>Criar uma pasta Quillmere neste computador</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Assistente do Modo Avançado</translation>
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
        <translation>Esta pasta compartilhada já está sincronizada com a pasta &quot;%1&quot; neste computador.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>Não há espaço livre suficiente no NAS.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Não</translation>
    </message>
    <message>
        <source>Click Repair to restore missing or damaged files, shortcuts, and registry entries. Click Back to review your choice.</source>
        <translation>Clique em &quot;Reparar&quot; para restaurar arquivos, atalhos e entradas do Registro ausentes ou danificados. Clique em &quot;Voltar&quot; para revisar sua escolha.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Padrão do sistema</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Não mostrar esta mensagem novamente</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by restoring missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Repara erros na instalação mais recente, restaurando arquivos, atalhos e entradas do Registro ausentes ou danificados.</translation>
    </message>
    <message>
        <source>Number of times the link can be opened</source>
        <translation>Número de vezes em que o link pode ser aberto</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ontem</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified. The folder cannot be selected until the certificate is trusted.</source>
        <translation>Não foi possível verificar o certificado SSL do NAS. A pasta só poderá ser selecionada quando o certificado for confiável.</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>Proteção por senha</translation>
    </message>
    <message>
        <source>The SSL certificate could not be verified. It may be self-signed, expired, or issued for another hostname.</source>
        <translation>Não foi possível verificar o certificado SSL. Ele pode ser autoassinado, ter expirado ou ter sido emitido para outro nome de host.</translation>
    </message>
    <message>
        <source>Please update Quillmere Drive Server on the NAS to use selective sync.</source>
        <translation>Atualize o Quillmere Drive Server no NAS para usar a sincronização seletiva.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up some space to continue syncing.</source>
        <translation>Não há espaço livre suficiente neste computador. Libere espaço para continuar a sincronização.</translation>
    </message>
    <message>
        <source>The selected folder is used by a backup task. Syncing it may cause conflicts.</source>
        <translation>A pasta selecionada é usada por uma tarefa de backup. Sincronizá-la pode causar conflitos.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>One-way sync from the NAS to this computer</source>
        <translation>Sincronização unidirecional do NAS para este computador</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Somente download</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Não há espaço livre suficiente neste computador.</translation>
    </message>
    <message>
        <source>Blocked by:</source>
        <translation>Bloqueado por:</translation>
    </message>
    <message>
        <source>This computer is linked to your NAS, and your files are now being synced.</source>
        <translation>Este computador está vinculado ao NAS, e seus arquivos já estão sendo sincronizados.</translation>
    </message>
    <message>
        <source>The RapidHail ID is invalid or does not exist.</source>
        <translation>O ID do RapidHail é inválido ou não existe.</translation>
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
        <translation>Não foi possível estabelecer uma conexão segura com o NAS devido a um erro de SSL.</translation>
    </message>
    <message>
        <source>General settings</source>
        <translation>Configurações gerais</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostrar notificações na área de trabalho</translation>
    </message>
    <message>
        <source>Selective sync by file type</source>
        <translation>Sincronização seletiva por tipo de arquivo</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Dezembro</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is outdated. Please ask the administrator to update it to version %1 or later.</source>
        <translation>O Quillmere Drive Server no NAS está desatualizado. Peça ao administrador que o atualize para a versão %1 ou posterior.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Alterar os recursos instalados</translation>
    </message>
    <message>
        <source>If you no longer need the program, you can remove it now. Your synced files will be kept on this computer.</source>
        <translation>Se você não precisa mais do programa, pode removê-lo agora. Seus arquivos sincronizados serão mantidos neste computador.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be merged with the files in the shared folder.</source>
        <translation>A pasta selecionada não está vazia. Os arquivos dela serão mesclados com os da pasta compartilhada.</translation>
    </message>
    <message>
        <source>The link could not be deleted. Please try again later.</source>
        <translation>Não foi possível excluir o link. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>A link cannot be created for this file. Make sure that it has been synced to the NAS.</source>
        <translation>Não é possível criar um link para este arquivo. Verifique se ele foi sincronizado com o NAS.</translation>
    </message>
    <message>
        <source>Check all file attributes for changes</source>
        <translation>Verificar alterações em todos os atributos dos arquivos</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove the installation</source>
        <translation>[DlgTitleFont]Alterar, reparar ou remover a instalação</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Segunda-feira</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>A pasta selecionada é somente leitura. Escolha uma pasta em que você possa gravar.</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the sync task &quot;%1&quot;? The files on this computer and on the NAS will be kept.</source>
        <translation>Tem certeza de que deseja remover a tarefa de sincronização &quot;%1&quot;? Os arquivos neste computador e no NAS serão mantidos.</translation>
    </message>
    <message>
        <source>Limit how often this link can be opened</source>
        <translation>Limitar quantas vezes este link pode ser aberto</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Pasta compartilhada</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps the folders on your computers in sync with your Orvane NAS.</source>
        <translation>O Quillmere Drive mantém as pastas dos seus computadores sincronizadas com o NAS da Orvane.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Digite o código de verificação</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>Extensões de arquivo</translation>
    </message>
    <message>
        <source>The username cannot be empty.</source>
        <translation>O nome de usuário não pode ficar em branco.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Caminho da pasta</translation>
    </message>
    <message>
        <source>Folder already linked</source>
        <translation>Pasta já vinculada</translation>
    </message>
    <message>
        <source>The maximum length of this field is %1 characters.</source>
        <translation>O comprimento máximo deste campo é de %1 caracteres.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from &quot;%1&quot;? Syncing will stop, but your files will be kept.</source>
        <translation>Tem certeza de que deseja desvincular este computador de &quot;%1&quot;? A sincronização será interrompida, mas seus arquivos serão mantidos.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Modo avançado</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Período personalizado</translation>
    </message>
    <message>
        <source>You have reached the maximum of %1 sync tasks. Remove a sync task before you add another one.</source>
        <translation>Você atingiu o limite de tarefas de sincronização (%1). Remova uma tarefa de sincronização antes de adicionar outra.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nome da pasta</translation>
    </message>
    <message>
        <source>Quillmere Drive is being upgraded. Please wait...</source>
        <translation>A versão do Quillmere Drive está sendo atualizada. Aguarde...</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to keep synced with your NAS.</source>
        <translation>Selecione a pasta deste computador que você deseja manter sincronizada com o NAS.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testando a conexão...</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Sincronizando: %1</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS. Contact the administrator.</source>
        <translation>A pasta compartilhada não está montada no NAS. Entre em contato com o administrador.</translation>
    </message>
    <message>
        <source>Keep your files in sync between this computer and your NAS, and reach them wherever you are.</source>
        <translation>Mantenha seus arquivos sincronizados entre este computador e o NAS e acesse-os onde quer que você esteja.</translation>
    </message>
    <message>
        <source>Your account is protected by two-factor verification. Please enter the verification code to continue.</source>
        <translation>Sua conta está protegida pela verificação em duas etapas. Digite o código de verificação para continuar.</translation>
    </message>
    <message>
        <source>Edit file filter</source>
        <translation>Editar filtro de arquivos</translation>
    </message>
    <message>
        <source>Open the synced folder</source>
        <translation>Abrir a pasta sincronizada</translation>
    </message>
    <message>
        <source>File names to exclude</source>
        <translation>Nomes de arquivos a ignorar</translation>
    </message>
    <message>
        <source>File path</source>
        <translation>Caminho do arquivo</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Até</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Janeiro</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Não usar um proxy</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync with this computer.</source>
        <translation>Selecione a pasta compartilhada no NAS que você deseja sincronizar com este computador.</translation>
    </message>
    <message>
        <source>This shared folder does not exist on the NAS. It may have been renamed or deleted.</source>
        <translation>Esta pasta compartilhada não existe no NAS. Ela pode ter sido renomeada ou excluída.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Server not running</source>
        <translation>O servidor não está em execução</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>O Assistente de Instalação instalará o [ProductName] no computador. Clique em &quot;Avançar&quot; para continuar ou em &quot;Cancelar&quot; para sair.</translation>
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
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Syncing %1 file(s)</source>
        <translation>Sincronizando %1 arquivo(s)</translation>
    </message>
    <message>
        <source>&amp;Close the applications and try to restart them</source>
        <translation>&amp;Fechar os aplicativos e tentar reiniciá-los</translation>
    </message>
    <message>
        <source>Please wait. The requested changes are being made.</source>
        <translation>Aguarde. As alterações solicitadas estão sendo feitas.</translation>
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
        <translation>Atualizando a versão...</translation>
    </message>
    <message>
        <source>Set up a separate sync task</source>
        <translation>Configurar uma tarefa de sincronização separada</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>Nenhuma configuração foi alterada.</translation>
    </message>
</context>
</TS>
