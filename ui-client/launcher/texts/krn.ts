<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Keep your data safe and synced at all times</source>
        <translation>데이터를 언제나 안전하게, 언제나 최신 상태로</translation>
    </message>
    <message>
        <source>The quota on the NAS has been used up. Free up some space or ask the administrator to raise your quota, and then select the folder again.</source>
        <translation>NAS의 할당량을 모두 사용했습니다. 공간을 확보하거나 관리자에게 할당량 상향을 요청한 후 폴더를 다시 선택하십시오.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-user license agreement</source>
        <translation>[DlgTitleFont]최종 사용자 사용권 계약</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>설정 모드 선택</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] 설치 준비 완료</translation>
    </message>
    <message>
        <source>This shared folder has been disabled for your account. Contact the administrator of the NAS to regain access.</source>
        <translation>이 공유 폴더는 현재 계정에서 사용할 수 없도록 설정되었습니다. 다시 사용하려면 NAS 관리자에게 문의하십시오.</translation>
    </message>
    <message>
        <source>Merge the folders</source>
        <translation>폴더 병합</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>공유 링크</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>동기화 오류</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>설치 마법사를 종료하려면 &apos;마침&apos; 버튼을 클릭하십시오.</translation>
    </message>
    <message>
        <source>Set a start date for this link</source>
        <translation>이 링크의 시작 날짜 설정</translation>
    </message>
    <message>
        <source>The local sync database cannot be read. Restart Quillmere Drive. If the problem persists, link this computer again.</source>
        <translation>로컬 동기화 데이터베이스를 읽을 수 없습니다. Quillmere Drive를 다시 시작하십시오. 문제가 계속되면 이 컴퓨터를 NAS와 다시 연동하십시오.</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>동기화할 폴더 선택</translation>
    </message>
    <message>
        <source>Every file you put in a synced folder is copied to your NAS automatically. Just save your work and let Quillmere Drive do the rest.</source>
        <translation>동기화 폴더에 넣은 파일은 모두 NAS에 자동으로 복사됩니다. 작업을 저장하기만 하면 나머지는 Quillmere Drive가 처리합니다.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>다시 시도(&amp;R)</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>선택한 폴더를 동기화에서 제외</translation>
    </message>
    <message>
        <source>The local folder of this sync task cannot be found. It may have been moved, renamed, or deleted.</source>
        <translation>이 동기화 작업의 로컬 폴더를 찾을 수 없습니다. 이동되었거나 이름이 바뀌었거나 삭제되었을 수 있습니다.</translation>
    </message>
    <message>
        <source>Quillmere Drive is starting...</source>
        <translation>Quillmere Drive 시작 중...</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>설정 적용 중...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>추가</translation>
    </message>
    <message>
        <source>Make sure that Quillmere Drive Server is installed and running on your NAS before you continue.</source>
        <translation>계속하기 전에 NAS에 Quillmere Drive Server가 설치되어 실행 중인지 확인하십시오.</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>새 언어 설정을 적용하려면 %1을(를) 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>다운로드 중...</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>버전 불일치</translation>
    </message>
    <message>
        <source>The icon in the system tray shows the sync status at a glance. Click it to pause syncing, view recent changes, or open the settings.</source>
        <translation>시스템 트레이 아이콘으로 동기화 상태를 한눈에 확인할 수 있습니다. 아이콘을 클릭하면 동기화를 일시 중지하거나 최근 변경 사항을 보거나 설정을 열 수 있습니다.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>일시 중지됨</translation>
    </message>
    <message>
        <source>Keep both versions and rename the conflicting file</source>
        <translation>두 버전을 모두 유지하고 충돌하는 파일의 이름 바꾸기</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>지원되지 않는 탑재 지점</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>연동 중...</translation>
    </message>
    <message>
        <source>About Quillmere Drive</source>
        <translation>Quillmere Drive 정보</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>사용</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>이전 버전 찾아보기</translation>
    </message>
    <message>
        <source>The Setup Wizard for [ProductName] stopped early because of an error. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>오류로 인해 [ProductName] 설치 마법사가 중간에 중지되었습니다. 시스템은 변경되지 않았습니다. 나중에 프로그램을 설치하려면 설치 프로그램을 다시 실행하십시오.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>연결 정보</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS. Free up some space to continue syncing.</source>
        <translation>NAS에 사용 가능한 공간이 부족합니다. 동기화를 계속하려면 공간을 확보하십시오.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>비활성</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>삭제됨</translation>
    </message>
    <message>
        <source>The selected folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>선택한 폴더는 탑재 지점이므로 동기화할 수 없습니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Upgrade now</source>
        <translation>지금 업그레이드</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>컴퓨터 이름</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>상태 정보</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] 설치</translation>
    </message>
    <message>
        <source>Open the management page</source>
        <translation>관리 페이지 열기</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]사용 중인 파일</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>목요일</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>설치 마법사가 [ProductName]을(를) 설치하는 동안 기다려 주십시오. 몇 분 정도 걸릴 수 있습니다.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>토요일</translation>
    </message>
    <message>
        <source>Link expires after</source>
        <translation>링크 유효 기간</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to leave this page without saving them?</source>
        <translation>저장하지 않은 변경 사항이 있습니다. 저장하지 않고 이 페이지에서 나가시겠습니까?</translation>
    </message>
    <message>
        <source>Select the operation that you want to perform.</source>
        <translation>수행할 작업을 선택하십시오.</translation>
    </message>
    <message>
        <source>This file was changed on the computer and on the NAS at the same time, and the conflict could not be resolved.</source>
        <translation>이 파일이 컴퓨터와 NAS에서 동시에 변경되었으며 충돌을 해결할 수 없습니다.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>로컬 네트워크</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>최신 상태</translation>
    </message>
    <message>
        <source>A sync task named &quot;%1&quot; already exists. Please enter another name.</source>
        <translation>이름이 &apos;%1&apos;인 동기화 작업이 이미 있습니다. 다른 이름을 입력하십시오.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder. Please choose another folder or contact the administrator.</source>
        <translation>이 폴더에 액세스할 권한이 없습니다. 다른 폴더를 선택하거나 관리자에게 문의하십시오.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>다시 연동</translation>
    </message>
    <message>
        <source>Select how you want to sync files between this computer and your NAS. You can add more sync tasks later.</source>
        <translation>이 컴퓨터와 NAS 간에 파일을 동기화할 방법을 선택하십시오. 동기화 작업은 나중에 더 추가할 수 있습니다.</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>프록시 서버 인증 필요</translation>
    </message>
    <message>
        <source>Choose what happens when the same file has been changed on the computer and on the NAS.</source>
        <translation>같은 파일이 컴퓨터와 NAS에서 모두 변경된 경우의 처리 방법을 선택하십시오.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>다른 폴더 선택</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] 제거 준비 완료</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Check the certificate before you connect again.</source>
        <translation>NAS의 SSL 인증서가 변경되었습니다. 다시 연결하기 전에 인증서를 확인하십시오.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>지난달</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>동작</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>읽기 전용</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>날짜 범위</translation>
    </message>
    <message>
        <source>The download failed. Please try again later.</source>
        <translation>다운로드하지 못했습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>설정이 완료되었습니다.</translation>
    </message>
    <message>
        <source>Quillmere Drive on this computer is outdated. Please update it to version %1 or later.</source>
        <translation>이 컴퓨터의 Quillmere Drive가 오래된 버전입니다. 버전 %1 이상으로 업데이트하십시오.</translation>
    </message>
    <message>
        <source>This computer is now linked to your NAS. Syncing starts as soon as you close the wizard.</source>
        <translation>이제 이 컴퓨터가 NAS와 연동되었습니다. 마법사를 닫으면 바로 동기화가 시작됩니다.</translation>
    </message>
    <message>
        <source>Enable sync for this shared folder</source>
        <translation>이 공유 폴더의 동기화 사용</translation>
    </message>
    <message>
        <source>Download complete</source>
        <translation>다운로드 완료</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>이 폴더의 동기화 다시 시작</translation>
    </message>
    <message>
        <source>Setup is in progress. Please wait...</source>
        <translation>설정을 진행하고 있습니다. 잠시 기다려 주십시오...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>방금 전</translation>
    </message>
    <message>
        <source>This computer is already linked to the same NAS. Edit the existing connection instead.</source>
        <translation>이 컴퓨터는 이미 같은 NAS와 연동되어 있습니다. 기존 연결을 편집하십시오.</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>항목 %1개</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>연결 일시 중지</translation>
    </message>
    <message>
        <source>Quillmere Drive is ready.</source>
        <translation>Quillmere Drive 사용 준비가 되었습니다.</translation>
    </message>
    <message>
        <source>Keep an eye on the system tray</source>
        <translation>시스템 트레이에서 상태 확인</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>자세한 정보</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. The copies on the NAS will be kept. Do you want to continue?</source>
        <translation>여기에서 선택을 취소한 폴더는 이 컴퓨터에서 제거됩니다. NAS에 있는 사본은 유지됩니다. 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>October</source>
        <translation>10월</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>비어 있지 않은 폴더</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Restrict access to this link</source>
        <translation>이 링크에 대한 액세스 제한</translation>
    </message>
    <message>
        <source>The link could not be created. Make sure that file sharing is enabled in Quillmere Drive Server.</source>
        <translation>링크를 만들 수 없습니다. Quillmere Drive Server에서 파일 공유가 사용 설정되어 있는지 확인하십시오.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>자습서 더 보기</translation>
    </message>
    <message>
        <source>Setup requires administrator rights. Do you want to restart it as an administrator?</source>
        <translation>설치하려면 관리자 권한이 필요합니다. 관리자 권한으로 다시 시작하시겠습니까?</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Copy to:</source>
        <translation>다음 위치로 복사:</translation>
    </message>
    <message>
        <source>No previous versions of this file are available.</source>
        <translation>이 파일의 이전 버전이 없습니다.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>지금 시작</translation>
    </message>
    <message>
        <source>The NAS at this address is not the one that this computer was linked to. Check the address or link the computer again.</source>
        <translation>이 주소의 NAS는 이 컴퓨터가 연동되었던 NAS가 아닙니다. 주소를 확인하거나 컴퓨터를 다시 연동하십시오.</translation>
    </message>
    <message>
        <source>The upgrade failed. Please download the latest version and install it manually.</source>
        <translation>업그레이드하지 못했습니다. 최신 버전을 다운로드하여 직접 설치하십시오.</translation>
    </message>
    <message>
        <source>Add sync task</source>
        <translation>동기화 작업 추가</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>시작 날짜</translation>
    </message>
    <message>
        <source>This shared folder could not be enabled for syncing. Please try again later.</source>
        <translation>이 공유 폴더의 동기화를 사용하도록 설정할 수 없습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>In the system tray</source>
        <translation>시스템 트레이</translation>
    </message>
    <message>
        <source>The folder home\Quillmere on your NAS has already been linked to this PC. We will launch the synced folder when you click Done. Or you can set up a seperate task: %1</source>
        <translation>NAS의 home\Quillmere 폴더는 이미 이 PC와 연동되어 있습니다. &apos;완료&apos;를 클릭하면 동기화 폴더가 열립니다. 또는 별도의 작업을 설정할 수 있습니다: %1</translation>
    </message>
    <message>
        <source>The port number is invalid. Enter a number from 1 to 65535.</source>
        <translation>포트 번호가 잘못되었습니다. 1에서 65535 사이의 숫자를 입력하십시오.</translation>
    </message>
    <message>
        <source>Quillmere Drive could not be initialized. Please restart your computer and try again.</source>
        <translation>Quillmere Drive를 초기화할 수 없습니다. 컴퓨터를 다시 시작한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>상태:</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes made on this computer will not be synced to the NAS.</source>
        <translation>이 폴더에는 읽기 전용으로만 액세스할 수 있습니다. 이 컴퓨터에서 변경한 내용은 NAS에 동기화되지 않습니다.</translation>
    </message>
    <message>
        <source>The version of Quillmere Drive on this computer is too old for the NAS. Version %1 or later is required.</source>
        <translation>이 컴퓨터의 Quillmere Drive 버전이 NAS에 비해 너무 낮습니다. 버전 %1 이상이 필요합니다.</translation>
    </message>
    <message>
        <source>Files and folders that match the rules of the file filter will not be synced.</source>
        <translation>파일 필터의 규칙과 일치하는 파일 및 폴더는 동기화되지 않습니다.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] 복구 준비 완료</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>선택한 폴더의 동기화 다시 시작</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>폴더 열기</translation>
    </message>
    <message>
        <source>Save a file and it is synced</source>
        <translation>저장하면 바로 동기화</translation>
    </message>
    <message>
        <source>Files that could not be synced</source>
        <translation>동기화하지 못한 파일</translation>
    </message>
    <message>
        <source>The connection to the NAS was lost. Quillmere Drive will try to connect again automatically.</source>
        <translation>NAS와의 연결이 끊어졌습니다. Quillmere Drive가 자동으로 다시 연결을 시도합니다.</translation>
    </message>
    <message>
        <source>Detecting file changes...</source>
        <translation>파일 변경 감지 중...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>연결되었습니다.</translation>
    </message>
    <message>
        <source>The administrator requires two-factor verification for your account. Sign in to the NAS in a web browser and set it up first.</source>
        <translation>관리자가 이 계정에 2단계 인증을 요구합니다. 먼저 웹 브라우저에서 NAS에 로그인하여 2단계 인증을 설정하십시오.</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the permissions on the NAS. Please change the sync direction.</source>
        <translation>이 폴더의 동기화 방향이 NAS의 권한과 맞지 않습니다. 동기화 방향을 변경하십시오.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}[ProductName] 설치 마법사 시작</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive. This wizard will help you link this computer to your NAS.</source>
        <translation>Quillmere Drive에 오신 것을 환영합니다. 이 마법사는 이 컴퓨터를 NAS와 연동하는 과정을 안내합니다.</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files and folders</source>
        <translation>동기화된 파일과 폴더에 아이콘 오버레이 표시</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>인증 실패</translation>
    </message>
    <message>
        <source>An invalid value was entered. Please check your input and try again.</source>
        <translation>잘못된 값이 입력되었습니다. 입력한 내용을 확인한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>모든 이벤트</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>다음(&amp;N)</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choice.</source>
        <translation>컴퓨터에서 [ProductName]을(를) 제거하려면 &apos;제거&apos;를 클릭하십시오. 선택한 내용을 다시 확인하려면 &apos;뒤로&apos;를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Quillmere Drive Server is not running on the NAS. Start it or contact the administrator.</source>
        <translation>NAS에서 Quillmere Drive Server가 실행되고 있지 않습니다. 서버를 시작하거나 관리자에게 문의하십시오.</translation>
    </message>
    <message>
        <source>Open Quillmere Drive</source>
        <translation>Quillmere Drive 열기</translation>
    </message>
    <message>
        <source>The SSL certificate of this NAS differs from the one saved earlier. Continue only if you trust the new certificate.</source>
        <translation>이 NAS의 SSL 인증서가 이전에 저장된 인증서와 다릅니다. 새 인증서를 신뢰하는 경우에만 계속하십시오.</translation>
    </message>
    <message>
        <source>The selected folder is already synced by another cloud storage program. Please choose a different folder to avoid conflicts.</source>
        <translation>선택한 폴더는 이미 다른 클라우드 저장소 프로그램에서 동기화하고 있습니다. 충돌을 방지하려면 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Right-click the tray icon to open the menu with all commands.</source>
        <translation>트레이 아이콘을 마우스 오른쪽 버튼으로 클릭하면 모든 명령이 있는 메뉴가 열립니다.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Syncing will start when indexing is complete.</source>
        <translation>이 폴더의 색인을 생성하는 중입니다. 색인 생성이 완료되면 동기화가 시작됩니다.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>사용 안 함</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>데이터 확인 중...</translation>
    </message>
    <message>
        <source>Click Install to begin installing [ProductName]. Click Back to review or change your settings. Click Cancel to exit the wizard.</source>
        <translation>[ProductName] 설치를 시작하려면 &apos;설치&apos;를 클릭하십시오. 설정을 검토하거나 변경하려면 &apos;뒤로&apos;를 클릭하십시오. 마법사를 종료하려면 &apos;취소&apos;를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>동기화 중</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>파일 위치 열기</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName]에는 개별적으로 선택할 수 있는 기능이 없습니다.</translation>
    </message>
    <message>
        <source>The local folder could not be created. Check the path and your permissions, and then try again.</source>
        <translation>로컬 폴더를 만들 수 없습니다. 경로와 권한을 확인한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>NAS address</source>
        <translation>NAS 주소</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. It may have been deleted, or you may not have permission to access it.</source>
        <translation>이 파일을 다운로드할 수 없습니다. 파일이 삭제되었거나 액세스 권한이 없을 수 있습니다.</translation>
    </message>
    <message>
        <source>The IP address of this computer is not allowed to access the NAS. Contact the administrator.</source>
        <translation>이 컴퓨터의 IP 주소로는 NAS에 액세스할 수 없습니다. 관리자에게 문의하십시오.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>업데이트해야 하는 일부 파일이 현재 사용 중입니다.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>마지막 페이지</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>날짜 및 시간</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>이름 변경됨</translation>
    </message>
    <message>
        <source>View sync status</source>
        <translation>동기화 상태 보기</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>일요일</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] 설치 중</translation>
    </message>
    <message>
        <source>Enter the names of the files that should not be synced. An asterisk (*) stands for any number of characters.</source>
        <translation>동기화하지 않을 파일의 이름을 입력하십시오. 별표(*)는 길이에 관계없이 모든 문자열을 나타냅니다.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시 중지</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>동기화할 폴더</translation>
    </message>
    <message>
        <source>RapidHail</source>
        <translation>RapidHail</translation>
    </message>
    <message>
        <source>Enter the IP address, hostname, or RapidHail ID of your NAS.</source>
        <translation>NAS의 IP 주소, 호스트 이름 또는 RapidHail ID를 입력하십시오.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>수요일</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>새 폴더 동기화</translation>
    </message>
    <message>
        <source>NAS changed</source>
        <translation>NAS 변경됨</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>If you disable this folder, it will no longer be synced. The files on this computer will be kept. Do you want to continue?</source>
        <translation>이 폴더를 사용하지 않도록 설정하면 더 이상 동기화되지 않습니다. 이 컴퓨터의 파일은 유지됩니다. 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>파일 열기</translation>
    </message>
    <message>
        <source>This folder cannot be synced because its path is invalid. Please choose another folder.</source>
        <translation>경로가 잘못되어 이 폴더를 동기화할 수 없습니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>The shared folder on the NAS is not mounted. If it is encrypted, mount it first.</source>
        <translation>NAS의 공유 폴더가 탑재되어 있지 않습니다. 암호화된 폴더인 경우 먼저 탑재하십시오.</translation>
    </message>
    <message>
        <source>Expiration time</source>
        <translation>만료 시간</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>사용자 이름</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up.</source>
        <translation>NAS에서 사용자 할당량을 모두 사용했습니다.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please correct them before you continue.</source>
        <translation>일부 필드의 값이 잘못되었습니다. 계속하기 전에 수정하십시오.</translation>
    </message>
    <message>
        <source>The RapidHail service cannot be reached. Check your internet connection and try again.</source>
        <translation>RapidHail 서비스에 연결할 수 없습니다. 인터넷 연결을 확인한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>금요일</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>메인 창 열기</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>프록시 포트</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; has been used up. Free up some space to continue syncing.</source>
        <translation>공유 폴더 &apos;%1&apos;의 할당량을 모두 사용했습니다. 동기화를 계속하려면 공간을 확보하십시오.</translation>
    </message>
    <message>
        <source>Link to a new NAS</source>
        <translation>새 NAS와 연동</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>지난주</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is too old for this computer. Version %1 or later is required.</source>
        <translation>NAS의 Quillmere Drive Server 버전이 이 컴퓨터에 비해 너무 낮습니다. 버전 %1 이상이 필요합니다.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>6월</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a network error. Check your network connection and try again.</source>
        <translation>네트워크 오류로 인해 폴더를 확인할 수 없습니다. 네트워크 연결을 확인한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]제거(&amp;M)</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>인터넷</translation>
    </message>
    <message>
        <source>July</source>
        <translation>7월</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>환영합니다</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>컴퓨터에서 [ProductName]을(를) 제거합니다.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>버전</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>다시 시작</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>암호</translation>
    </message>
    <message>
        <source>From</source>
        <translation>시작일</translation>
    </message>
    <message>
        <source>You can open the synced folder at any time from the Quillmere Drive icon in the system tray.</source>
        <translation>시스템 트레이의 Quillmere Drive 아이콘에서 언제든지 동기화 폴더를 열 수 있습니다.</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>파일이 업데이트됨</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;pair</source>
        <translation>[DlgTitleFont]복구(&amp;P)</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>화요일</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>사용 가능한 옵션 없음</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>The NAS at this address has changed. Please link this computer again.</source>
        <translation>이 주소의 NAS가 변경되었습니다. 이 컴퓨터를 다시 연동하십시오.</translation>
    </message>
    <message>
        <source>The installation of [ProductName] was interrupted. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>[ProductName] 설치가 중단되었습니다. 시스템은 변경되지 않았습니다. 나중에 프로그램을 설치하려면 설치 프로그램을 다시 실행하십시오.</translation>
    </message>
    <message>
        <source>The connection test failed. The username or password is incorrect.</source>
        <translation>연결 테스트에 실패했습니다. 사용자 이름 또는 암호가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>복구(&amp;P)</translation>
    </message>
    <message>
        <source>A sync task has stopped because of an error. Click here for details.</source>
        <translation>오류로 인해 동기화 작업이 중지되었습니다. 자세한 내용을 보려면 여기를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and the account that you want to use for syncing.</source>
        <translation>NAS의 주소와 동기화에 사용할 계정을 입력하십시오.</translation>
    </message>
    <message>
        <source>Connect anyway</source>
        <translation>그래도 연결</translation>
    </message>
    <message>
        <source>The files on this computer and the files in the shared folder will be merged. If two files have the same name, the newer one is used.</source>
        <translation>이 컴퓨터의 파일과 공유 폴더의 파일이 병합됩니다. 이름이 같은 파일이 있으면 더 최근 파일이 사용됩니다.</translation>
    </message>
    <message>
        <source>Start Quillmere Drive automatically when I sign in</source>
        <translation>로그인 시 Quillmere Drive 자동 시작</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this link? People who have it will no longer be able to open the file.</source>
        <translation>이 링크를 삭제하시겠습니까? 링크를 받은 사람이 더 이상 파일을 열 수 없게 됩니다.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>폴더 변경</translation>
    </message>
    <message>
        <source>The username or password is incorrect, or the account has been disabled.</source>
        <translation>사용자 이름 또는 암호가 올바르지 않거나 계정이 사용 중지되었습니다.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>마침</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;do not accept the terms of the license agreement</source>
        <translation>{\DlgFont8}사용권 계약의 조건에 동의하지 않습니다(&amp;D)</translation>
    </message>
    <message>
        <source>Right-click a file and select &quot;Share link&quot; to create a link. Send it to anyone who needs the file, even if they have no account on your NAS.</source>
        <translation>파일을 마우스 오른쪽 버튼으로 클릭하고 &apos;링크 공유&apos;를 선택하여 링크를 만드십시오. NAS 계정이 없더라도 파일이 필요한 사람이라면 누구에게나 링크를 보낼 수 있습니다.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>동기화 모드</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps earlier versions of your files. Right-click a file and select &quot;Browse previous versions&quot; to restore one of them.</source>
        <translation>Quillmere Drive는 파일의 이전 버전을 보관합니다. 이전 버전을 복원하려면 파일을 마우스 오른쪽 버튼으로 클릭하고 &apos;이전 버전 찾아보기&apos;를 선택하십시오.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>다음 %1개 페이지</translation>
    </message>
    <message>
        <source>Quillmere Drive is already running. You can find its icon in the system tray.</source>
        <translation>Quillmere Drive가 이미 실행 중입니다. 시스템 트레이에서 아이콘을 찾을 수 있습니다.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>프록시</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>공유 폴더 불러오는 중...</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>첫 페이지</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>프록시 수동 설정</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>%1시간 전</translation>
    </message>
    <message>
        <source>This folder cannot be synced because of a system error. Please try again later.</source>
        <translation>시스템 오류로 인해 이 폴더를 동기화할 수 없습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>트레이 아이콘을 두 번 클릭할 때</translation>
    </message>
    <message>
        <source>Selective sync by folder</source>
        <translation>폴더별 선택적 동기화</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>공유 폴더</translation>
    </message>
    <message>
        <source>Sync with another NAS</source>
        <translation>다른 NAS와 동기화</translation>
    </message>
    <message>
        <source>This creates a Quillmere folder on your computer and keeps it synced with your home folder on your Orvane NAS (recommended for personal use).</source>
        <translation>컴퓨터에 Quillmere 폴더를 만들고 Orvane NAS의 홈 폴더와 항상 동기화합니다(개인 용도에 권장).</translation>
    </message>
    <message>
        <source>Click here to upgrade</source>
        <translation>업그레이드하려면 여기를 클릭</translation>
    </message>
    <message>
        <source>April</source>
        <translation>4월</translation>
    </message>
    <message>
        <source>On your computer</source>
        <translation>컴퓨터</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of [ProductName]?</source>
        <translation>[ProductName] 설치를 취소하시겠습니까?</translation>
    </message>
    <message>
        <source>Files and folders excluded from sync</source>
        <translation>동기화에서 제외된 파일 및 폴더</translation>
    </message>
    <message>
        <source>This version of Quillmere Drive is already installed. Do you want to install it again?</source>
        <translation>이 버전의 Quillmere Drive가 이미 설치되어 있습니다. 다시 설치하시겠습니까?</translation>
    </message>
    <message>
        <source>has been shared. The link was copied to the clipboard.</source>
        <translation>공유가 완료되었습니다. 링크가 클립보드에 복사되었습니다.</translation>
    </message>
    <message>
        <source>The NAS sent an unexpected response. Make sure that Quillmere Drive and Quillmere Drive Server are both up to date.</source>
        <translation>NAS에서 예기치 않은 응답을 보냈습니다. Quillmere Drive와 Quillmere Drive Server가 모두 최신 버전인지 확인하십시오.</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>이 폴더를 동기화에서 제외</translation>
    </message>
    <message>
        <source>March</source>
        <translation>3월</translation>
    </message>
    <message>
        <source>The RapidHail service encountered a system error. Please try again later.</source>
        <translation>RapidHail 서비스에서 시스템 오류가 발생했습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>선택적 동기화</translation>
    </message>
    <message>
        <source>Folder is read-only</source>
        <translation>읽기 전용 폴더</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;accept the terms of the license agreement</source>
        <translation>{\DlgFont8}사용권 계약의 조건에 동의합니다(&amp;A)</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>동기화 방향</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>다운로드 기록</translation>
    </message>
    <message>
        <source>Select a folder on this computer and the shared folder on the NAS that it will be synced with.</source>
        <translation>이 컴퓨터의 폴더와 그 폴더를 동기화할 NAS의 공유 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>이 필드는 비워 둘 수 없습니다.</translation>
    </message>
    <message>
        <source>Choose a shared folder on your NAS that is not yet synced with this computer.</source>
        <translation>NAS의 공유 폴더 중 아직 이 컴퓨터와 동기화되지 않은 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>How existing files are merged</source>
        <translation>기존 파일 병합 방식</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>네트워크 설정</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>초기화</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>링크 삭제</translation>
    </message>
    <message>
        <source>This sync task is inactive because the shared folder is not available.</source>
        <translation>공유 폴더를 사용할 수 없어 이 동기화 작업이 비활성 상태입니다.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>단방향 다운로드</translation>
    </message>
    <message>
        <source>Go back to an earlier version</source>
        <translation>이전 버전으로 되돌리기</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>업로드됨</translation>
    </message>
    <message>
        <source>Changes the set of [ProductName] features that are installed.</source>
        <translation>설치된 [ProductName] 기능의 구성을 변경합니다.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>May</source>
        <translation>5월</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>파일 이름</translation>
    </message>
    <message>
        <source>Link this computer to your NAS in just a few steps.</source>
        <translation>몇 단계만 거치면 이 컴퓨터를 NAS와 연동할 수 있습니다.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>마침(&amp;F)</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>SSL로 연결 암호화</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>연결 모드</translation>
    </message>
    <message>
        <source>Keep the file that was modified last</source>
        <translation>마지막으로 수정된 파일 유지</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>편집</translation>
    </message>
    <message>
        <source>A newer version of Quillmere Drive is already installed. Setup will now close.</source>
        <translation>더 높은 버전의 Quillmere Drive가 이미 설치되어 있습니다. 설치 프로그램을 종료합니다.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Confirm the new certificate before you select a folder.</source>
        <translation>NAS의 SSL 인증서가 변경되었습니다. 폴더를 선택하기 전에 새 인증서를 확인하십시오.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>병합</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>공유 폴더를 찾을 수 없음</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>연동 해제</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>로컬 폴더</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>폴더 선택</translation>
    </message>
    <message>
        <source>Set up the folder to sync</source>
        <translation>동기화할 폴더 설정</translation>
    </message>
    <message>
        <source>Enter the connection settings for your NAS.</source>
        <translation>NAS의 연결 설정을 입력하십시오.</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>SSL 인증서 경고</translation>
    </message>
    <message>
        <source>Share files with a link</source>
        <translation>링크로 파일 공유</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>파일 형식</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>연결 다시 시작</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>무시(&amp;I)</translation>
    </message>
    <message>
        <source>The maximum file size must be a whole number greater than 0.</source>
        <translation>최대 파일 크기는 0보다 큰 정수여야 합니다.</translation>
    </message>
    <message>
        <source>Insufficient permissions</source>
        <translation>권한 부족</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>업데이트됨: %1</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive</source>
        <translation>Quillmere Drive에 오신 것을 환영합니다</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>키워드</translation>
    </message>
    <message>
        <source>This allows you to specify a folder on your computer to keep synced with a shared folder on your Orvane NAS. (Recommended for teamwork)​.</source>
        <translation>컴퓨터의 폴더를 지정하여 Orvane NAS의 공유 폴더와 항상 동기화할 수 있습니다(팀 작업에 권장).</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin repairing [ProductName].</source>
        <translation>설치 마법사가 [ProductName] 복구를 시작할 준비가 되었습니다.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>A network error occurred. Check your network connection and try again.</source>
        <translation>네트워크 오류가 발생했습니다. 네트워크 연결을 확인한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already being synced. Please choose another folder.</source>
        <translation>이 폴더는 이미 동기화 중인 폴더와 겹칩니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}[ProductName] 설치 마법사가 중단됨</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>날짜</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>뒤로(&amp;B)</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>시작 시간</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>자습서 표시</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>예(&amp;Y)</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>빠른 설정 모드</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>관리</translation>
    </message>
    <message>
        <source>Links cannot be created over a RapidHail connection because file sharing is disabled on the NAS.</source>
        <translation>NAS에서 파일 공유가 사용 중지되어 있어 RapidHail 연결에서는 링크를 만들 수 없습니다.</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>공유 폴더 관리</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>다음 사용권 계약을 주의 깊게 읽어 주십시오.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>준비 중...</translation>
    </message>
    <message>
        <source>Keep the version on the NAS and overwrite the one on this computer</source>
        <translation>NAS의 버전을 유지하고 이 컴퓨터의 버전 덮어쓰기</translation>
    </message>
    <message>
        <source>August</source>
        <translation>8월</translation>
    </message>
    <message>
        <source>Use a RapidHail connection</source>
        <translation>RapidHail 연결 사용</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard ended early</source>
        <translation>{\VerdanaBold13}[ProductName] 설치 마법사가 중간에 종료됨</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>유형</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up. Files can no longer be uploaded until you free up some space.</source>
        <translation>NAS에서 사용자 할당량을 모두 사용했습니다. 공간을 확보할 때까지 파일을 더 이상 업로드할 수 없습니다.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]변경(&amp;C)</translation>
    </message>
    <message>
        <source>Set an expiration date for this link</source>
        <translation>이 링크의 만료 날짜 설정</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>로컬 폴더 변경</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>최대 파일 크기</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>제거(&amp;M)</translation>
    </message>
    <message>
        <source>Quillmere Drive is initializing...</source>
        <translation>Quillmere Drive 초기화 중...</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>양방향 동기화</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>시스템 프록시 설정 사용</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>연동 해제 중...</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open (a restart will be required)</source>
        <translation>응용 프로그램 열어 두기(다시 시작해야 함)(&amp;L)</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard is complete</source>
        <translation>{\VerdanaBold13}[ProductName] 설치 마법사 완료</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>동기화 작업</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>만든 날짜</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>[ProductName] 실행</translation>
    </message>
    <message>
        <source>November</source>
        <translation>11월</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>프록시 주소</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>최근 변경된 파일</translation>
    </message>
    <message>
        <source>Unlink from the NAS</source>
        <translation>NAS 연동 해제</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Please try again later.</source>
        <translation>이 파일의 버전 목록을 표시할 수 없습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>다른 프로그램에 의해 잠김</translation>
    </message>
    <message>
        <source>An unknown error occurred. Please try again later.</source>
        <translation>알 수 없는 오류가 발생했습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified.</source>
        <translation>NAS의 SSL 인증서를 확인할 수 없습니다.</translation>
    </message>
    <message>
        <source>Checking username and password...</source>
        <translation>사용자 이름 및 암호 확인 중...</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>고급 설정</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>인쇄(&amp;P)</translation>
    </message>
    <message>
        <source>February</source>
        <translation>2월</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Quillmere Drive</source>
        <translation>Quillmere Drive</translation>
    </message>
    <message>
        <source>You have read-only access to this shared folder. Files can be downloaded to this computer but not uploaded to the NAS.</source>
        <translation>이 공유 폴더에는 읽기 전용으로만 액세스할 수 있습니다. 파일을 이 컴퓨터로 다운로드할 수는 있지만 NAS에 업로드할 수는 없습니다.</translation>
    </message>
    <message>
        <source>The drive that contains the local folder is not mounted. Connect the drive to continue syncing.</source>
        <translation>로컬 폴더가 있는 드라이브가 탑재되어 있지 않습니다. 동기화를 계속하려면 드라이브를 연결하십시오.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>대상 위치</translation>
    </message>
    <message>
        <source>Search the local network for an Orvane NAS.</source>
        <translation>로컬 네트워크에서 Orvane NAS를 검색합니다.</translation>
    </message>
    <message>
        <source>Storage full</source>
        <translation>저장 공간이 가득 참</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>NAS 개요</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>직접 연결</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>다운로드됨</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>프록시 설정</translation>
    </message>
    <message>
        <source>Unstable connection</source>
        <translation>불안정한 연결</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync this folder. Free up some space or choose another folder.</source>
        <translation>이 컴퓨터에 이 폴더를 동기화할 공간이 부족합니다. 공간을 확보하거나 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Use a black and white tray icon</source>
        <translation>흑백 트레이 아이콘 사용</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>동기화 기록</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>다운로드가 취소되었습니다.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>설치 프로그램에서 업데이트해야 하는 파일을 다음 응용 프로그램이 사용하고 있습니다. 해당 응용 프로그램을 닫고 &apos;다시 시도&apos;를 클릭하여 계속하십시오.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>설치(&amp;I)</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please wait a few minutes before you try again.</source>
        <translation>실패 횟수가 너무 많습니다. 몇 분 후에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>모든 준비 완료</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>불러오는 중...</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>아니요, 괜찮습니다</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>새 공유 폴더</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>종료(&amp;X)</translation>
    </message>
    <message>
        <source>You can let Setup close the applications listed below and try to restart them afterward.</source>
        <translation>설치 프로그램이 아래에 나열된 응용 프로그램을 닫았다가 나중에 다시 시작하도록 할 수 있습니다.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change the way [ProductName] is installed or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>설치 마법사를 사용하여 [ProductName]의 설치 방식을 변경하거나 컴퓨터에서 제거할 수 있습니다. 계속하려면 &apos;다음&apos;을, 종료하려면 &apos;취소&apos;를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Try syncing a file</source>
        <translation>파일 동기화해 보기</translation>
    </message>
    <message>
        <source>No data to display</source>
        <translation>표시할 데이터 없음</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>%1일 전</translation>
    </message>
    <message>
        <source>You can now sync the shared folder &quot;%1&quot;. Click here to enable it.</source>
        <translation>이제 공유 폴더 &apos;%1&apos;의 동기화를 사용할 수 있습니다. 사용하도록 설정하려면 여기를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>업로드 중...</translation>
    </message>
    <message>
        <source>Your Quillmere folder is ready. Drop files into it and they will be synced with your NAS.</source>
        <translation>Quillmere 폴더가 준비되었습니다. 폴더에 파일을 넣으면 NAS와 동기화됩니다.</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>동기화할 수 있는 폴더가 없습니다.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>이전 %1개 페이지</translation>
    </message>
    <message>
        <source>The verification code is invalid. Please check the code and try again.</source>
        <translation>인증 코드가 잘못되었습니다. 코드를 확인한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>오늘</translation>
    </message>
    <message>
        <source>The selected folder is on a network drive. Changes made there by other computers may not be detected immediately.</source>
        <translation>선택한 폴더는 네트워크 드라이브에 있습니다. 다른 컴퓨터에서 변경한 내용이 바로 감지되지 않을 수 있습니다.</translation>
    </message>
    <message>
        <source>Show icon overlays on files excluded by the file filter</source>
        <translation>파일 필터로 제외된 파일에 아이콘 오버레이 표시</translation>
    </message>
    <message>
        <source>Files to sync</source>
        <translation>동기화할 파일</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>링크 공유</translation>
    </message>
    <message>
        <source>Detecting connection mode...</source>
        <translation>연결 모드 감지 중...</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>사용자 지정 기간</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>로컬 네트워크에서 NAS 장치 검색</translation>
    </message>
    <message>
        <source>The proxy address and port cannot be empty.</source>
        <translation>프록시 주소와 포트는 비워 둘 수 없습니다.</translation>
    </message>
    <message>
        <source>You can also protect a link with a password or set an expiration date.</source>
        <translation>암호로 링크를 보호하거나 만료 날짜를 설정할 수도 있습니다.</translation>
    </message>
    <message>
        <source>All your files, always at hand</source>
        <translation>내 모든 파일을 언제나 가까이</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>만료 날짜</translation>
    </message>
    <message>
        <source>September</source>
        <translation>9월</translation>
    </message>
    <message>
        <source>Create a Quillmere folder on this computer</source>
        <translation>이 컴퓨터에 Quillmere 폴더 만들기</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>고급 설정 모드 마법사</translation>
    </message>
    <message>
        <source>The selected folder is already part of a sync task on this computer.</source>
        <translation>선택한 폴더는 이미 이 컴퓨터의 동기화 작업에 포함되어 있습니다.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>%1분 전</translation>
    </message>
    <message>
        <source>This shared folder is already synced with the folder &quot;%1&quot; on this computer.</source>
        <translation>이 공유 폴더는 이미 이 컴퓨터의 &apos;%1&apos; 폴더와 동기화되고 있습니다.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>NAS에 사용 가능한 공간이 부족합니다.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>아니요(&amp;N)</translation>
    </message>
    <message>
        <source>Click Repair to restore missing or damaged files, shortcuts, and registry entries. Click Back to review your choice.</source>
        <translation>누락되거나 손상된 파일, 바로 가기 및 레지스트리 항목을 복원하려면 &apos;복구&apos;를 클릭하십시오. 선택한 내용을 다시 확인하려면 &apos;뒤로&apos;를 클릭하십시오.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>시스템 기본값</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>이 메시지를 다시 표시하지 않음</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by restoring missing or damaged files, shortcuts, and registry entries.</source>
        <translation>누락되거나 손상된 파일, 바로 가기 및 레지스트리 항목을 복원하여 최근 설치의 오류를 복구합니다.</translation>
    </message>
    <message>
        <source>Number of times the link can be opened</source>
        <translation>링크를 열 수 있는 횟수</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>어제</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified. The folder cannot be selected until the certificate is trusted.</source>
        <translation>NAS의 SSL 인증서를 확인할 수 없습니다. 인증서를 신뢰하도록 설정하기 전에는 폴더를 선택할 수 없습니다.</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>암호 보호</translation>
    </message>
    <message>
        <source>The SSL certificate could not be verified. It may be self-signed, expired, or issued for another hostname.</source>
        <translation>SSL 인증서를 확인할 수 없습니다. 자체 서명되었거나 만료되었거나 다른 호스트 이름에 발급된 인증서일 수 있습니다.</translation>
    </message>
    <message>
        <source>Please update Quillmere Drive Server on the NAS to use selective sync.</source>
        <translation>선택적 동기화를 사용하려면 NAS의 Quillmere Drive Server를 업데이트하십시오.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up some space to continue syncing.</source>
        <translation>이 컴퓨터에 사용 가능한 공간이 부족합니다. 동기화를 계속하려면 공간을 확보하십시오.</translation>
    </message>
    <message>
        <source>The selected folder is used by a backup task. Syncing it may cause conflicts.</source>
        <translation>선택한 폴더는 백업 작업에서 사용되고 있습니다. 이 폴더를 동기화하면 충돌이 발생할 수 있습니다.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>One-way sync from the NAS to this computer</source>
        <translation>NAS에서 이 컴퓨터로 단방향 동기화</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>다운로드만</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>이 컴퓨터에 사용 가능한 공간이 부족합니다.</translation>
    </message>
    <message>
        <source>Blocked by:</source>
        <translation>차단한 항목:</translation>
    </message>
    <message>
        <source>This computer is linked to your NAS, and your files are now being synced.</source>
        <translation>이 컴퓨터가 NAS와 연동되었으며 현재 파일을 동기화하고 있습니다.</translation>
    </message>
    <message>
        <source>The RapidHail ID is invalid or does not exist.</source>
        <translation>RapidHail ID가 잘못되었거나 존재하지 않습니다.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>대기 중</translation>
    </message>
    <message>
        <source>Remove the program from this computer</source>
        <translation>이 컴퓨터에서 프로그램 제거</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established because of an SSL error.</source>
        <translation>SSL 오류로 인해 NAS와 보안 연결을 설정할 수 없습니다.</translation>
    </message>
    <message>
        <source>General settings</source>
        <translation>일반 설정</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>데스크톱 알림 표시</translation>
    </message>
    <message>
        <source>Selective sync by file type</source>
        <translation>파일 형식별 선택적 동기화</translation>
    </message>
    <message>
        <source>December</source>
        <translation>12월</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is outdated. Please ask the administrator to update it to version %1 or later.</source>
        <translation>NAS의 Quillmere Drive Server가 오래된 버전입니다. 관리자에게 버전 %1 이상으로 업데이트하도록 요청하십시오.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>설치된 기능 변경</translation>
    </message>
    <message>
        <source>If you no longer need the program, you can remove it now. Your synced files will be kept on this computer.</source>
        <translation>프로그램이 더 이상 필요하지 않으면 지금 제거할 수 있습니다. 동기화된 파일은 이 컴퓨터에 유지됩니다.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be merged with the files in the shared folder.</source>
        <translation>선택한 폴더가 비어 있지 않습니다. 폴더의 파일이 공유 폴더의 파일과 병합됩니다.</translation>
    </message>
    <message>
        <source>The link could not be deleted. Please try again later.</source>
        <translation>링크를 삭제할 수 없습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>A link cannot be created for this file. Make sure that it has been synced to the NAS.</source>
        <translation>이 파일의 링크를 만들 수 없습니다. 파일이 NAS에 동기화되었는지 확인하십시오.</translation>
    </message>
    <message>
        <source>Check all file attributes for changes</source>
        <translation>모든 파일 특성의 변경 여부 확인</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove the installation</source>
        <translation>[DlgTitleFont]설치 변경, 복구 또는 제거</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>월요일</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>선택한 폴더는 읽기 전용입니다. 쓰기 가능한 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the sync task &quot;%1&quot;? The files on this computer and on the NAS will be kept.</source>
        <translation>동기화 작업 &apos;%1&apos;을(를) 제거하시겠습니까? 이 컴퓨터와 NAS에 있는 파일은 유지됩니다.</translation>
    </message>
    <message>
        <source>Limit how often this link can be opened</source>
        <translation>이 링크를 열 수 있는 횟수 제한</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>공유 폴더</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps the folders on your computers in sync with your Orvane NAS.</source>
        <translation>Quillmere Drive는 컴퓨터의 폴더를 Orvane NAS와 항상 동기화된 상태로 유지합니다.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>인증 코드 입력</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>요약</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>파일 확장명</translation>
    </message>
    <message>
        <source>The username cannot be empty.</source>
        <translation>사용자 이름은 비워 둘 수 없습니다.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>폴더 경로</translation>
    </message>
    <message>
        <source>Folder already linked</source>
        <translation>이미 연동된 폴더</translation>
    </message>
    <message>
        <source>The maximum length of this field is %1 characters.</source>
        <translation>이 필드의 최대 길이는 %1자입니다.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from &quot;%1&quot;? Syncing will stop, but your files will be kept.</source>
        <translation>&apos;%1&apos;에서 이 컴퓨터의 연동을 해제하시겠습니까? 동기화는 중지되지만 파일은 유지됩니다.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>고급 설정 모드</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>사용자 지정 범위</translation>
    </message>
    <message>
        <source>You have reached the maximum of %1 sync tasks. Remove a sync task before you add another one.</source>
        <translation>동기화 작업의 최대 개수인 %1개에 도달했습니다. 다른 작업을 추가하려면 먼저 기존 동기화 작업을 제거하십시오.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>폴더 이름</translation>
    </message>
    <message>
        <source>Quillmere Drive is being upgraded. Please wait...</source>
        <translation>Quillmere Drive를 업그레이드하고 있습니다. 잠시 기다려 주십시오...</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to keep synced with your NAS.</source>
        <translation>이 컴퓨터에서 NAS와 항상 동기화할 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>연결 테스트 중...</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>동기화 중: %1</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS. Contact the administrator.</source>
        <translation>NAS에 공유 폴더가 탑재되어 있지 않습니다. 관리자에게 문의하십시오.</translation>
    </message>
    <message>
        <source>Keep your files in sync between this computer and your NAS, and reach them wherever you are.</source>
        <translation>이 컴퓨터와 NAS의 파일을 항상 동기화하고 어디에서나 이용하십시오.</translation>
    </message>
    <message>
        <source>Your account is protected by two-factor verification. Please enter the verification code to continue.</source>
        <translation>이 계정은 2단계 인증으로 보호되고 있습니다. 계속하려면 인증 코드를 입력하십시오.</translation>
    </message>
    <message>
        <source>Edit file filter</source>
        <translation>파일 필터 편집</translation>
    </message>
    <message>
        <source>Open the synced folder</source>
        <translation>동기화 폴더 열기</translation>
    </message>
    <message>
        <source>File names to exclude</source>
        <translation>제외할 파일 이름</translation>
    </message>
    <message>
        <source>File path</source>
        <translation>파일 경로</translation>
    </message>
    <message>
        <source>To</source>
        <translation>종료일</translation>
    </message>
    <message>
        <source>January</source>
        <translation>1월</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>프록시 사용 안 함</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync with this computer.</source>
        <translation>이 컴퓨터와 동기화할 NAS의 공유 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>This shared folder does not exist on the NAS. It may have been renamed or deleted.</source>
        <translation>이 공유 폴더가 NAS에 없습니다. 이름이 바뀌었거나 삭제되었을 수 있습니다.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>Server not running</source>
        <translation>서버가 실행되고 있지 않음</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>설치 마법사가 컴퓨터에 [ProductName]을(를) 설치합니다. 계속하려면 &apos;다음&apos;을, 종료하려면 &apos;취소&apos;를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>동기화 작업</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>설치 마법사가 설치를 시작할 준비가 되었습니다.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Syncing %1 file(s)</source>
        <translation>파일 %1개 동기화 중</translation>
    </message>
    <message>
        <source>&amp;Close the applications and try to restart them</source>
        <translation>응용 프로그램을 닫은 후 다시 시작 시도(&amp;C)</translation>
    </message>
    <message>
        <source>Please wait. The requested changes are being made.</source>
        <translation>잠시 기다려 주십시오. 요청한 변경을 진행하고 있습니다.</translation>
    </message>
    <message>
        <source>Upgrade available</source>
        <translation>업그레이드 사용 가능</translation>
    </message>
    <message>
        <source>Repair the current installation</source>
        <translation>현재 설치 복구</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>업그레이드 중...</translation>
    </message>
    <message>
        <source>Set up a separate sync task</source>
        <translation>별도의 동기화 작업 설정</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>변경된 설정이 없습니다.</translation>
    </message>
</context>
</TS>
