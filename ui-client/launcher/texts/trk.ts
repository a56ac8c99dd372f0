<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Keep your data safe and synced at all times</source>
        <translation>Verileriniz her zaman güvende ve eşitlenmiş</translation>
    </message>
    <message>
        <source>The quota on the NAS has been used up. Free up some space or ask the administrator to raise your quota, and then select the folder again.</source>
        <translation>NAS cihazındaki kota doldu. Biraz yer açın veya yöneticiden kotanızı artırmasını isteyin, ardından klasörü yeniden seçin.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-user license agreement</source>
        <translation>[DlgTitleFont]Son kullanıcı lisans sözleşmesi</translation>
    </message>
    <message>
        <source>Choose a setup mode</source>
        <translation>Bir kurulum modu seçin</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] yüklenmeye hazır</translation>
    </message>
    <message>
        <source>This shared folder has been disabled for your account. Contact the administrator of the NAS to regain access.</source>
        <translation>Bu paylaşılan klasör hesabınız için devre dışı bırakıldı. Yeniden erişim sağlamak için NAS yöneticisine başvurun.</translation>
    </message>
    <message>
        <source>Merge the folders</source>
        <translation>Klasörleri birleştir</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Çıkış</translation>
    </message>
    <message>
        <source>Sharing link</source>
        <translation>Paylaşım bağlantısı</translation>
    </message>
    <message>
        <source>Sync error</source>
        <translation>Eşitleme hatası</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Kurulum Sihirbazı&apos;ndan çıkmak için &quot;Son&quot; düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Set a start date for this link</source>
        <translation>Bu bağlantı için bir başlangıç tarihi belirle</translation>
    </message>
    <message>
        <source>The local sync database cannot be read. Restart Quillmere Drive. If the problem persists, link this computer again.</source>
        <translation>Yerel eşitleme veritabanı okunamıyor. Quillmere Drive uygulamasını yeniden başlatın. Sorun devam ederse bu bilgisayarı NAS cihazıyla yeniden ilişkilendirin.</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Eşitlenecek klasörleri seçin</translation>
    </message>
    <message>
        <source>Every file you put in a synced folder is copied to your NAS automatically. Just save your work and let Quillmere Drive do the rest.</source>
        <translation>Eşitlenen bir klasöre koyduğunuz her dosya otomatik olarak NAS cihazınıza kopyalanır. Siz çalışmanızı kaydedin, gerisini Quillmere Drive halletsin.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>Yeniden &amp;dene</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Bu klasörleri eşitleme dışında bırak</translation>
    </message>
    <message>
        <source>The local folder of this sync task cannot be found. It may have been moved, renamed, or deleted.</source>
        <translation>Bu eşitleme görevinin yerel klasörü bulunamıyor. Klasör taşınmış, yeniden adlandırılmış veya silinmiş olabilir.</translation>
    </message>
    <message>
        <source>Quillmere Drive is starting...</source>
        <translation>Quillmere Drive başlatılıyor...</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Ayarlar uygulanıyor...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ekle</translation>
    </message>
    <message>
        <source>Make sure that Quillmere Drive Server is installed and running on your NAS before you continue.</source>
        <translation>Devam etmeden önce, NAS cihazınızda Quillmere Drive Server uygulamasının yüklü olduğundan ve çalıştığından emin olun.</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Yeni dil ayarlarını uygulamak için lütfen %1 uygulamasını yeniden başlatın.</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>İndiriliyor...</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Sürüm uyuşmazlığı</translation>
    </message>
    <message>
        <source>The icon in the system tray shows the sync status at a glance. Click it to pause syncing, view recent changes, or open the settings.</source>
        <translation>Sistem tepsisindeki simge, eşitleme durumunu bir bakışta gösterir. Eşitlemeyi duraklatmak, son değişiklikleri görüntülemek veya ayarları açmak için simgeye tıklayın.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Duraklatıldı</translation>
    </message>
    <message>
        <source>Keep both versions and rename the conflicting file</source>
        <translation>İki sürümü de koru ve çakışan dosyayı yeniden adlandır</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Bağlama noktası desteklenmiyor</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>İlişkilendiriliyor...</translation>
    </message>
    <message>
        <source>About Quillmere Drive</source>
        <translation>Quillmere Drive hakkında</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Etkin</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Önceki sürümlere göz at</translation>
    </message>
    <message>
        <source>The Setup Wizard for [ProductName] stopped early because of an error. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>[ProductName] Kurulum Sihirbazı bir hata nedeniyle erken sona erdi. Sisteminizde hiçbir değişiklik yapılmadı. Programı daha sonra yüklemek için Kurulum programını yeniden çalıştırın.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Kimlik</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Bağlantı bilgileri</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS. Free up some space to continue syncing.</source>
        <translation>NAS cihazında yeterli boş alan yok. Eşitlemeye devam etmek için biraz yer açın.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Etkin değil</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Silindi</translation>
    </message>
    <message>
        <source>The selected folder is a mount point and cannot be synced. Please choose another folder.</source>
        <translation>Seçilen klasör bir bağlama noktası olduğundan eşitlenemez. Lütfen başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>Upgrade now</source>
        <translation>Şimdi yükselt</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Bilgisayar adı</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Durum bilgileri</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] Kurulumu</translation>
    </message>
    <message>
        <source>Open the management page</source>
        <translation>Yönetim sayfasını aç</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Kullanımdaki dosyalar</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Perşembe</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Kurulum Sihirbazı [ProductName] uygulamasını yüklerken lütfen bekleyin. Bu işlem birkaç dakika sürebilir.</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Cumartesi</translation>
    </message>
    <message>
        <source>Link expires after</source>
        <translation>Bağlantının geçerlilik süresi</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to leave this page without saving them?</source>
        <translation>Kaydedilmemiş değişiklikleriniz var. Değişiklikleri kaydetmeden bu sayfadan ayrılmak istiyor musunuz?</translation>
    </message>
    <message>
        <source>Select the operation that you want to perform.</source>
        <translation>Yapmak istediğiniz işlemi seçin.</translation>
    </message>
    <message>
        <source>This file was changed on the computer and on the NAS at the same time, and the conflict could not be resolved.</source>
        <translation>Bu dosya bilgisayarda ve NAS cihazında aynı anda değiştirildi ve çakışma çözümlenemedi.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Yerel ağ</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Güncel</translation>
    </message>
    <message>
        <source>A sync task named &quot;%1&quot; already exists. Please enter another name.</source>
        <translation>&quot;%1&quot; adlı bir eşitleme görevi zaten var. Lütfen başka bir ad girin.</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder. Please choose another folder or contact the administrator.</source>
        <translation>Bu klasöre erişim izniniz yok. Lütfen başka bir klasör seçin veya yöneticiye başvurun.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Yeniden ilişkilendir</translation>
    </message>
    <message>
        <source>Select how you want to sync files between this computer and your NAS. You can add more sync tasks later.</source>
        <translation>Dosyaların bu bilgisayar ile NAS cihazınız arasında nasıl eşitleneceğini seçin. Daha sonra başka eşitleme görevleri ekleyebilirsiniz.</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Ara sunucu, kimlik doğrulaması gerektiriyor</translation>
    </message>
    <message>
        <source>Choose what happens when the same file has been changed on the computer and on the NAS.</source>
        <translation>Aynı dosya hem bilgisayarda hem de NAS cihazında değiştirildiğinde ne yapılacağını seçin.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Başka bir klasör seç</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] kaldırılmaya hazır</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Check the certificate before you connect again.</source>
        <translation>NAS cihazının SSL sertifikası değişti. Yeniden bağlanmadan önce sertifikayı kontrol edin.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Geçen ay</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>İşlem</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Salt okunur</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Tarih aralığı</translation>
    </message>
    <message>
        <source>The download failed. Please try again later.</source>
        <translation>İndirme başarısız oldu. Lütfen daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>Kurulum tamamlandı.</translation>
    </message>
    <message>
        <source>Quillmere Drive on this computer is outdated. Please update it to version %1 or later.</source>
        <translation>Bu bilgisayardaki Quillmere Drive uygulaması eski. Lütfen uygulamayı %1 veya daha yeni bir sürüme güncelleyin.</translation>
    </message>
    <message>
        <source>This computer is now linked to your NAS. Syncing starts as soon as you close the wizard.</source>
        <translation>Bu bilgisayar artık NAS cihazınızla ilişkilendirildi. Sihirbazı kapattığınızda eşitleme başlar.</translation>
    </message>
    <message>
        <source>Enable sync for this shared folder</source>
        <translation>Bu paylaşılan klasör için eşitlemeyi etkinleştir</translation>
    </message>
    <message>
        <source>Download complete</source>
        <translation>İndirme tamamlandı</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Bu klasörü eşitlemeyi sürdür</translation>
    </message>
    <message>
        <source>Setup is in progress. Please wait...</source>
        <translation>Kurulum sürüyor. Lütfen bekleyin...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Az önce</translation>
    </message>
    <message>
        <source>This computer is already linked to the same NAS. Edit the existing connection instead.</source>
        <translation>Bu bilgisayar zaten aynı NAS cihazıyla ilişkilendirilmiş. Bunun yerine mevcut bağlantıyı düzenleyin.</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>%1 öğe</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Bağlantıyı duraklat</translation>
    </message>
    <message>
        <source>Quillmere Drive is ready.</source>
        <translation>Quillmere Drive hazır.</translation>
    </message>
    <message>
        <source>Keep an eye on the system tray</source>
        <translation>Gözünüz sistem tepsisinde olsun</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Daha fazla ayrıntı</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. The copies on the NAS will be kept. Do you want to continue?</source>
        <translation>Burada işaretini kaldırdığınız klasörler bu bilgisayardan kaldırılacak. NAS cihazındaki kopyalar korunacak. Devam etmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Ekim</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>Klasör boş değil</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hata</translation>
    </message>
    <message>
        <source>Restrict access to this link</source>
        <translation>Bu bağlantıya erişimi kısıtla</translation>
    </message>
    <message>
        <source>The link could not be created. Make sure that file sharing is enabled in Quillmere Drive Server.</source>
        <translation>Paylaşım bağlantısı oluşturulamadı. Quillmere Drive Server uygulamasında dosya paylaşımının etkin olduğundan emin olun.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>Diğer öğreticiler</translation>
    </message>
    <message>
        <source>Setup requires administrator rights. Do you want to restart it as an administrator?</source>
        <translation>Kurulum için yönetici hakları gerekiyor. Kurulumu yönetici olarak yeniden başlatmak istiyor musunuz?</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Durum</translation>
    </message>
    <message>
        <source>Copy to:</source>
        <translation>Şuraya kopyala:</translation>
    </message>
    <message>
        <source>No previous versions of this file are available.</source>
        <translation>Bu dosyanın önceki sürümü yok.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Şimdi başla</translation>
    </message>
    <message>
        <source>The NAS at this address is not the one that this computer was linked to. Check the address or link the computer again.</source>
        <translation>Bu adresteki NAS, bu bilgisayarın ilişkilendirildiği NAS değil. Adresi kontrol edin veya bilgisayarı yeniden ilişkilendirin.</translation>
    </message>
    <message>
        <source>The upgrade failed. Please download the latest version and install it manually.</source>
        <translation>Yükseltme başarısız oldu. Lütfen en son sürümü indirip elle yükleyin.</translation>
    </message>
    <message>
        <source>Add sync task</source>
        <translation>Eşitleme görevi ekle</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Başlangıç tarihi</translation>
    </message>
    <message>
        <source>This shared folder could not be enabled for syncing. Please try again later.</source>
        <translation>Bu paylaşılan klasör için eşitleme etkinleştirilemedi. Lütfen daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>In the system tray</source>
        <translation>Sistem tepsisinde</translation>
    </message>
    <message>
        <source>The folder home\Quillmere on your NAS has already been linked to this PC. We will launch the synced folder when you click Done. Or you can set up a seperate task: %1</source>
        <translation>NAS cihazınızdaki home\Quillmere klasörü zaten bu bilgisayarla ilişkilendirilmiş. &quot;Bitti&quot; düğmesine tıkladığınızda eşitlenen klasör açılacak. Dilerseniz ayrı bir görev de oluşturabilirsiniz: %1</translation>
    </message>
    <message>
        <source>The port number is invalid. Enter a number from 1 to 65535.</source>
        <translation>Bağlantı noktası numarası geçersiz. 1 ile 65535 arasında bir sayı girin.</translation>
    </message>
    <message>
        <source>Quillmere Drive could not be initialized. Please restart your computer and try again.</source>
        <translation>Quillmere Drive başlatılamadı. Lütfen bilgisayarınızı yeniden başlatıp tekrar deneyin.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Durum:</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes made on this computer will not be synced to the NAS.</source>
        <translation>Bu klasöre salt okunur erişiminiz var. Bu bilgisayarda yapılan değişiklikler NAS cihazıyla eşitlenmez.</translation>
    </message>
    <message>
        <source>The version of Quillmere Drive on this computer is too old for the NAS. Version %1 or later is required.</source>
        <translation>Bu bilgisayardaki Quillmere Drive sürümü NAS cihazı için çok eski. %1 veya daha yeni bir sürüm gerekiyor.</translation>
    </message>
    <message>
        <source>Files and folders that match the rules of the file filter will not be synced.</source>
        <translation>Dosya filtresindeki kurallarla eşleşen dosya ve klasörler eşitlenmez.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] onarılmaya hazır</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Bu klasörleri eşitlemeyi sürdür</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Klasörü aç</translation>
    </message>
    <message>
        <source>Save a file and it is synced</source>
        <translation>Dosyayı kaydedin, eşitlensin</translation>
    </message>
    <message>
        <source>Files that could not be synced</source>
        <translation>Eşitlenemeyen dosyalar</translation>
    </message>
    <message>
        <source>The connection to the NAS was lost. Quillmere Drive will try to connect again automatically.</source>
        <translation>NAS cihazıyla bağlantı kesildi. Quillmere Drive otomatik olarak yeniden bağlanmayı deneyecek.</translation>
    </message>
    <message>
        <source>Detecting file changes...</source>
        <translation>Dosya değişiklikleri algılanıyor...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Bağlantı başarıyla kuruldu.</translation>
    </message>
    <message>
        <source>The administrator requires two-factor verification for your account. Sign in to the NAS in a web browser and set it up first.</source>
        <translation>Yönetici, hesabınız için iki faktörlü doğrulamayı zorunlu kılıyor. Önce bir web tarayıcısından NAS cihazında oturum açıp doğrulamayı ayarlayın.</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the permissions on the NAS. Please change the sync direction.</source>
        <translation>Bu klasörün eşitleme yönü NAS cihazındaki izinlerle uyuşmuyor. Lütfen eşitleme yönünü değiştirin.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}[ProductName] Kurulum Sihirbazı&apos;na hoş geldiniz</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive. This wizard will help you link this computer to your NAS.</source>
        <translation>Quillmere Drive uygulamasına hoş geldiniz. Bu sihirbaz, bu bilgisayarı NAS cihazınızla ilişkilendirmenize yardımcı olur.</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files and folders</source>
        <translation>Eşitlenen dosya ve klasörlerde simge katmanlarını göster</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Kimlik doğrulaması başarısız</translation>
    </message>
    <message>
        <source>An invalid value was entered. Please check your input and try again.</source>
        <translation>Geçersiz bir değer girildi. Lütfen girdiğiniz değeri kontrol edip yeniden deneyin.</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Tüm olaylar</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;İleri</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choice.</source>
        <translation>[ProductName] uygulamasını bilgisayarınızdan kaldırmak için &quot;Kaldır&quot; düğmesine tıklayın. Seçiminizi gözden geçirmek için &quot;Geri&quot; düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Quillmere Drive Server is not running on the NAS. Start it or contact the administrator.</source>
        <translation>Quillmere Drive Server, NAS cihazında çalışmıyor. Uygulamayı başlatın veya yöneticiye başvurun.</translation>
    </message>
    <message>
        <source>Open Quillmere Drive</source>
        <translation>Quillmere Drive uygulamasını aç</translation>
    </message>
    <message>
        <source>The SSL certificate of this NAS differs from the one saved earlier. Continue only if you trust the new certificate.</source>
        <translation>Bu NAS cihazının SSL sertifikası daha önce kaydedilenden farklı. Yalnızca yeni sertifikaya güveniyorsanız devam edin.</translation>
    </message>
    <message>
        <source>The selected folder is already synced by another cloud storage program. Please choose a different folder to avoid conflicts.</source>
        <translation>Seçilen klasör zaten başka bir bulut depolama programı tarafından eşitleniyor. Çakışmaları önlemek için lütfen başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>Right-click the tray icon to open the menu with all commands.</source>
        <translation>Tüm komutları içeren menüyü açmak için tepsi simgesine sağ tıklayın.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Syncing will start when indexing is complete.</source>
        <translation>Bu klasör için dizin oluşturuluyor. Dizin oluşturma tamamlandığında eşitleme başlayacak.</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Devre dışı</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Devam et</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Veriler denetleniyor...</translation>
    </message>
    <message>
        <source>Click Install to begin installing [ProductName]. Click Back to review or change your settings. Click Cancel to exit the wizard.</source>
        <translation>[ProductName] uygulamasını yüklemeye başlamak için &quot;Yükle&quot; düğmesine tıklayın. Ayarlarınızı gözden geçirmek veya değiştirmek için &quot;Geri&quot; düğmesine tıklayın. Sihirbazdan çıkmak için &quot;İptal&quot; düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>Eşitleniyor</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Dosyanın bulunduğu klasörü aç</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] uygulamasında ayrı ayrı seçilebilecek özellik yok.</translation>
    </message>
    <message>
        <source>The local folder could not be created. Check the path and your permissions, and then try again.</source>
        <translation>Yerel klasör oluşturulamadı. Yolu ve izinlerinizi kontrol edip yeniden deneyin.</translation>
    </message>
    <message>
        <source>NAS address</source>
        <translation>NAS adresi</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. It may have been deleted, or you may not have permission to access it.</source>
        <translation>Bu dosya indirilemiyor. Dosya silinmiş olabilir veya dosyaya erişim izniniz olmayabilir.</translation>
    </message>
    <message>
        <source>The IP address of this computer is not allowed to access the NAS. Contact the administrator.</source>
        <translation>Bu bilgisayarın IP adresinin NAS cihazına erişmesine izin verilmiyor. Yöneticiye başvurun.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Güncellenmesi gereken bazı dosyalar şu anda kullanılıyor.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Son sayfa</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Tarih ve saat</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Yeniden adlandırıldı</translation>
    </message>
    <message>
        <source>View sync status</source>
        <translation>Eşitleme durumunu görüntüle</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Pazar</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] yükleniyor</translation>
    </message>
    <message>
        <source>Enter the names of the files that should not be synced. An asterisk (*) stands for any number of characters.</source>
        <translation>Eşitlenmemesi gereken dosyaların adlarını girin. Yıldız işareti (*) herhangi bir sayıda karakterin yerini tutar.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Duraklat</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Genel</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Eşitlenecek klasörler</translation>
    </message>
    <message>
        <source>RapidHail</source>
        <translation>RapidHail</translation>
    </message>
    <message>
        <source>Enter the IP address, hostname, or RapidHail ID of your NAS.</source>
        <translation>NAS cihazınızın IP adresini, ana bilgisayar adını veya RapidHail kimliğini girin.</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Çarşamba</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Yeni bir klasör eşitle</translation>
    </message>
    <message>
        <source>NAS changed</source>
        <translation>NAS değişti</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>If you disable this folder, it will no longer be synced. The files on this computer will be kept. Do you want to continue?</source>
        <translation>Bu klasörü devre dışı bırakırsanız artık eşitlenmez. Bu bilgisayardaki dosyalar korunur. Devam etmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Dosyayı aç</translation>
    </message>
    <message>
        <source>This folder cannot be synced because its path is invalid. Please choose another folder.</source>
        <translation>Yolu geçersiz olduğundan bu klasör eşitlenemez. Lütfen başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>The shared folder on the NAS is not mounted. If it is encrypted, mount it first.</source>
        <translation>NAS cihazındaki paylaşılan klasör bağlama noktasına bağlanmamış. Klasör şifreliyse önce bağlayın.</translation>
    </message>
    <message>
        <source>Expiration time</source>
        <translation>Bitiş saati</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Kullanıcı adı</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up.</source>
        <translation>NAS cihazındaki kotanız doldu.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values. Please correct them before you continue.</source>
        <translation>Bazı alanlarda geçersiz değerler var. Lütfen devam etmeden önce bunları düzeltin.</translation>
    </message>
    <message>
        <source>The RapidHail service cannot be reached. Check your internet connection and try again.</source>
        <translation>RapidHail hizmetine ulaşılamıyor. İnternet bağlantınızı kontrol edip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Cuma</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Ana pencereyi aç</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Ara sunucu bağlantı noktası</translation>
    </message>
    <message>
        <source>The quota of the shared folder &quot;%1&quot; has been used up. Free up some space to continue syncing.</source>
        <translation>&quot;%1&quot; paylaşılan klasörünün kotası doldu. Eşitlemeye devam etmek için biraz yer açın.</translation>
    </message>
    <message>
        <source>Link to a new NAS</source>
        <translation>Yeni bir NAS cihazıyla ilişkilendir</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Geçen hafta</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is too old for this computer. Version %1 or later is required.</source>
        <translation>NAS cihazındaki Quillmere Drive Server uygulaması bu bilgisayar için çok eski. %1 veya daha yeni bir sürüm gerekiyor.</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Haziran</translation>
    </message>
    <message>
        <source>The folder cannot be checked because of a network error. Check your network connection and try again.</source>
        <translation>Bir ağ hatası nedeniyle klasör denetlenemiyor. Ağ bağlantınızı kontrol edip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Değer</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]&amp;Kaldır</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Evet</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>İnternet</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Temmuz</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Anladım</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Hoş geldiniz</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>[ProductName] uygulamasını bilgisayarınızdan kaldırır.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Sürüm</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Sürdür</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Parola</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Başlangıç</translation>
    </message>
    <message>
        <source>You can open the synced folder at any time from the Quillmere Drive icon in the system tray.</source>
        <translation>Eşitlenen klasörü istediğiniz zaman sistem tepsisindeki Quillmere Drive simgesinden açabilirsiniz.</translation>
    </message>
    <message>
        <source>Files updated</source>
        <translation>Dosyalar güncellendi</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;pair</source>
        <translation>[DlgTitleFont]On&amp;ar</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Salı</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Kullanılabilir seçenek yok</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Yardım</translation>
    </message>
    <message>
        <source>The NAS at this address has changed. Please link this computer again.</source>
        <translation>Bu adresteki NAS değişti. Lütfen bu bilgisayarı NAS cihazıyla yeniden ilişkilendirin.</translation>
    </message>
    <message>
        <source>The installation of [ProductName] was interrupted. Your system has not been changed. To install the program later, run Setup again.</source>
        <translation>[ProductName] kurulumu yarıda kesildi. Sisteminizde hiçbir değişiklik yapılmadı. Programı daha sonra yüklemek için Kurulum programını yeniden çalıştırın.</translation>
    </message>
    <message>
        <source>The connection test failed. The username or password is incorrect.</source>
        <translation>Bağlantı testi başarısız oldu. Kullanıcı adı veya parola yanlış.</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>On&amp;ar</translation>
    </message>
    <message>
        <source>A sync task has stopped because of an error. Click here for details.</source>
        <translation>Bir eşitleme görevi bir hata nedeniyle durdu. Ayrıntılar için buraya tıklayın.</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and the account that you want to use for syncing.</source>
        <translation>NAS cihazınızın adresini ve eşitleme için kullanmak istediğiniz hesabı girin.</translation>
    </message>
    <message>
        <source>Connect anyway</source>
        <translation>Yine de bağlan</translation>
    </message>
    <message>
        <source>The files on this computer and the files in the shared folder will be merged. If two files have the same name, the newer one is used.</source>
        <translation>Bu bilgisayardaki dosyalar paylaşılan klasördeki dosyalarla birleştirilecek. Aynı ada sahip iki dosya varsa daha yeni olan kullanılır.</translation>
    </message>
    <message>
        <source>Start Quillmere Drive automatically when I sign in</source>
        <translation>Oturum açtığımda Quillmere Drive uygulamasını otomatik olarak başlat</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this link? People who have it will no longer be able to open the file.</source>
        <translation>Bu bağlantıyı silmek istediğinizden emin misiniz? Bağlantıya sahip kişiler artık dosyayı açamayacak.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Klasörü değiştir</translation>
    </message>
    <message>
        <source>The username or password is incorrect, or the account has been disabled.</source>
        <translation>Kullanıcı adı veya parola yanlış ya da hesap devre dışı bırakılmış.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;do not accept the terms of the license agreement</source>
        <translation>{\DlgFont8}Lisans sözleşmesinin koşullarını kabul et&amp;miyorum</translation>
    </message>
    <message>
        <source>Right-click a file and select &quot;Share link&quot; to create a link. Send it to anyone who needs the file, even if they have no account on your NAS.</source>
        <translation>Bağlantı oluşturmak için bir dosyaya sağ tıklayıp &quot;Bağlantıyı paylaş&quot; seçeneğini belirleyin. Bağlantıyı, NAS cihazınızda hesabı olmasa bile dosyaya ihtiyacı olan herkese gönderin.</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Eşitleme modu</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps earlier versions of your files. Right-click a file and select &quot;Browse previous versions&quot; to restore one of them.</source>
        <translation>Quillmere Drive, dosyalarınızın önceki sürümlerini saklar. Bu sürümlerden birini geri yüklemek için bir dosyaya sağ tıklayıp &quot;Önceki sürümlere göz at&quot; seçeneğini belirleyin.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Sonraki %1 sayfa</translation>
    </message>
    <message>
        <source>Quillmere Drive is already running. You can find its icon in the system tray.</source>
        <translation>Quillmere Drive zaten çalışıyor. Simgesini sistem tepsisinde bulabilirsiniz.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Ara sunucu</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Paylaşılan klasörler yükleniyor...</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>İlk sayfa</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Ara sunucuyu elle ayarla</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>%1 saat önce</translation>
    </message>
    <message>
        <source>This folder cannot be synced because of a system error. Please try again later.</source>
        <translation>Bir sistem hatası nedeniyle bu klasör eşitlenemez. Lütfen daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Tepsi simgesine çift tıklandığında</translation>
    </message>
    <message>
        <source>Selective sync by folder</source>
        <translation>Klasöre göre seçmeli eşitleme</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Paylaşılan klasörler</translation>
    </message>
    <message>
        <source>Sync with another NAS</source>
        <translation>Başka bir NAS cihazıyla eşitle</translation>
    </message>
    <message>
        <source>This creates a Quillmere folder on your computer and keeps it synced with your home folder on your Orvane NAS (recommended for personal use).</source>
        <translation>Bilgisayarınızda bir Quillmere klasörü oluşturur ve bu klasörü Orvane NAS cihazınızdaki home klasörünüzle eşitlenmiş durumda tutar (kişisel kullanım için önerilir).</translation>
    </message>
    <message>
        <source>Click here to upgrade</source>
        <translation>Yükseltmek için buraya tıklayın</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Nisan</translation>
    </message>
    <message>
        <source>On your computer</source>
        <translation>Bilgisayarınızda</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of [ProductName]?</source>
        <translation>[ProductName] kurulumunu iptal etmek istediğinizden emin misiniz?</translation>
    </message>
    <message>
        <source>Files and folders excluded from sync</source>
        <translation>Eşitleme dışında bırakılan dosya ve klasörler</translation>
    </message>
    <message>
        <source>This version of Quillmere Drive is already installed. Do you want to install it again?</source>
        <translation>Quillmere Drive uygulamasının bu sürümü zaten yüklü. Yeniden yüklemek istiyor musunuz?</translation>
    </message>
    <message>
        <source>has been shared. The link was copied to the clipboard.</source>
        <translation>paylaşıldı. Bağlantı panoya kopyalandı.</translation>
    </message>
    <message>
        <source>The NAS sent an unexpected response. Make sure that Quillmere Drive and Quillmere Drive Server are both up to date.</source>
        <translation>NAS beklenmeyen bir yanıt gönderdi. Hem Quillmere Drive hem de Quillmere Drive Server uygulamasının güncel olduğundan emin olun.</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Bu klasörü eşitleme dışında bırak</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Mart</translation>
    </message>
    <message>
        <source>The RapidHail service encountered a system error. Please try again later.</source>
        <translation>RapidHail hizmetinde bir sistem hatası oluştu. Lütfen daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Seçmeli eşitleme</translation>
    </message>
    <message>
        <source>Folder is read-only</source>
        <translation>Klasör salt okunur</translation>
    </message>
    <message>
        <source>{\DlgFont8}I &amp;accept the terms of the license agreement</source>
        <translation>{\DlgFont8}Lisans sözleşmesinin koşullarını kabul &amp;ediyorum</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Eşitleme yönü</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>İndirme geçmişi</translation>
    </message>
    <message>
        <source>Select a folder on this computer and the shared folder on the NAS that it will be synced with.</source>
        <translation>Bu bilgisayardaki bir klasörü ve NAS cihazında onunla eşitlenecek paylaşılan klasörü seçin.</translation>
    </message>
    <message>
        <source>This field cannot be left blank.</source>
        <translation>Bu alan boş bırakılamaz.</translation>
    </message>
    <message>
        <source>Choose a shared folder on your NAS that is not yet synced with this computer.</source>
        <translation>NAS cihazınızda henüz bu bilgisayarla eşitlenmeyen bir paylaşılan klasör seçin.</translation>
    </message>
    <message>
        <source>How existing files are merged</source>
        <translation>Mevcut dosyaların birleştirilme şekli</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Ağ ayarları</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Sıfırla</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Bağlantıyı sil</translation>
    </message>
    <message>
        <source>This sync task is inactive because the shared folder is not available.</source>
        <translation>Paylaşılan klasör kullanılamadığından bu eşitleme görevi etkin değil.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Tek yönlü indirme</translation>
    </message>
    <message>
        <source>Go back to an earlier version</source>
        <translation>Önceki bir sürüme dönün</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Karşıya yüklendi</translation>
    </message>
    <message>
        <source>Changes the set of [ProductName] features that are installed.</source>
        <translation>Yüklü [ProductName] özelliklerini değiştirir.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mayıs</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dosya adı</translation>
    </message>
    <message>
        <source>Link this computer to your NAS in just a few steps.</source>
        <translation>Bu bilgisayarı birkaç adımda NAS cihazınızla ilişkilendirin.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Son</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Bağlantıyı SSL ile şifrele</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Bağlantı modu</translation>
    </message>
    <message>
        <source>Keep the file that was modified last</source>
        <translation>En son değiştirilen dosyayı koru</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Düzenle</translation>
    </message>
    <message>
        <source>A newer version of Quillmere Drive is already installed. Setup will now close.</source>
        <translation>Quillmere Drive uygulamasının daha yeni bir sürümü zaten yüklü. Kurulum şimdi kapatılacak.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS has changed. Confirm the new certificate before you select a folder.</source>
        <translation>NAS cihazının SSL sertifikası değişti. Klasör seçmeden önce yeni sertifikayı onaylayın.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Birleştir</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Paylaşılan klasör bulunamadı</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>İlişkilendirmeyi kaldır</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Yerel klasör</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Klasör seçin</translation>
    </message>
    <message>
        <source>Set up the folder to sync</source>
        <translation>Eşitlenecek klasörü ayarla</translation>
    </message>
    <message>
        <source>Enter the connection settings for your NAS.</source>
        <translation>NAS cihazınızın bağlantı ayarlarını girin.</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>SSL sertifikası uyarısı</translation>
    </message>
    <message>
        <source>Share files with a link</source>
        <translation>Dosyaları bağlantıyla paylaşın</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Dosya türü</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Bağlantıyı sürdür</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>Y&amp;oksay</translation>
    </message>
    <message>
        <source>The maximum file size must be a whole number greater than 0.</source>
        <translation>Maksimum dosya boyutu 0&apos;dan büyük bir tam sayı olmalıdır.</translation>
    </message>
    <message>
        <source>Insufficient permissions</source>
        <translation>İzinler yetersiz</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Güncellendi: %1</translation>
    </message>
    <message>
        <source>Welcome to Quillmere Drive</source>
        <translation>Quillmere Drive uygulamasına hoş geldiniz</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Anahtar sözcük</translation>
    </message>
    <message>
        <source>This allows you to specify a folder on your computer to keep synced with a shared folder on your Orvane NAS. (Recommended for teamwork)​.</source>
        <translation>Bilgisayarınızda, Orvane NAS cihazınızdaki bir paylaşılan klasörle eşitlenmiş durumda tutulacak bir klasör belirlemenizi sağlar (ekip çalışması için önerilir).</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin repairing [ProductName].</source>
        <translation>Kurulum Sihirbazı [ProductName] uygulamasını onarmaya hazır.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Uygula</translation>
    </message>
    <message>
        <source>A network error occurred. Check your network connection and try again.</source>
        <translation>Bir ağ hatası oluştu. Ağ bağlantınızı kontrol edip yeniden deneyin.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already being synced. Please choose another folder.</source>
        <translation>Bu klasör, zaten eşitlenen bir klasörle çakışıyor. Lütfen başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}[ProductName] Kurulum Sihirbazı yarıda kesildi</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Tarih</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Geri</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>Başlangıç saati</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Öğreticiyi göster</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Evet</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Hızlı kurulum</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Yönet</translation>
    </message>
    <message>
        <source>Links cannot be created over a RapidHail connection because file sharing is disabled on the NAS.</source>
        <translation>NAS cihazında dosya paylaşımı devre dışı olduğundan RapidHail üzerinden paylaşım bağlantısı oluşturulamıyor.</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Paylaşılan klasörleri yönet</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Lütfen aşağıdaki lisans sözleşmesini dikkatle okuyun.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Hazırlanıyor...</translation>
    </message>
    <message>
        <source>Keep the version on the NAS and overwrite the one on this computer</source>
        <translation>NAS cihazındaki sürümü koru ve bu bilgisayardakinin üzerine yaz</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Ağustos</translation>
    </message>
    <message>
        <source>Use a RapidHail connection</source>
        <translation>RapidHail bağlantısı kullan</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard ended early</source>
        <translation>{\VerdanaBold13}[ProductName] Kurulum Sihirbazı erken sona erdi</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tür</translation>
    </message>
    <message>
        <source>Your quota on the NAS has been used up. Files can no longer be uploaded until you free up some space.</source>
        <translation>NAS cihazındaki kotanız doldu. Biraz yer açana kadar dosyalar karşıya yüklenemez.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]&amp;Değiştir</translation>
    </message>
    <message>
        <source>Set an expiration date for this link</source>
        <translation>Bu bağlantı için bir bitiş tarihi belirle</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Yerel klasörü değiştir</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maksimum dosya boyutu</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Kaldır</translation>
    </message>
    <message>
        <source>Quillmere Drive is initializing...</source>
        <translation>Quillmere Drive başlıyor...</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Çift yönlü eşitleme</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Sistemin ara sunucu ayarlarını kullan</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>İlişkilendirme kaldırılıyor...</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open (a restart will be required)</source>
        <translation>Uygulamaları açık &amp;bırak (yeniden başlatma gerekecek)</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}The [ProductName] Setup Wizard is complete</source>
        <translation>{\VerdanaBold13}[ProductName] Kurulum Sihirbazı tamamlandı</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Eşitleme görevi</translation>
    </message>
    <message>
        <source>Created on</source>
        <translation>Oluşturulma tarihi</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>[ProductName] uygulamasını başlat</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Kasım</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>İleri</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Ara sunucu adresi</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Son değiştirilen dosyalar</translation>
    </message>
    <message>
        <source>Unlink from the NAS</source>
        <translation>NAS ilişkilendirmesini kaldır</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Please try again later.</source>
        <translation>Bu dosyanın sürümleri listelenemiyor. Lütfen daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>Locked by another program</source>
        <translation>Başka bir program tarafından kilitlenmiş</translation>
    </message>
    <message>
        <source>An unknown error occurred. Please try again later.</source>
        <translation>Bilinmeyen bir hata oluştu. Lütfen daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified.</source>
        <translation>NAS cihazının SSL sertifikası doğrulanamadı.</translation>
    </message>
    <message>
        <source>Checking username and password...</source>
        <translation>Kullanıcı adı ve parola denetleniyor...</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Gelişmiş ayarlar</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Ya&amp;zdır</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Şubat</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Quillmere Drive</source>
        <translation>Quillmere Drive</translation>
    </message>
    <message>
        <source>You have read-only access to this shared folder. Files can be downloaded to this computer but not uploaded to the NAS.</source>
        <translation>Bu paylaşılan klasöre salt okunur erişiminiz var. Dosyalar bu bilgisayara indirilebilir ancak NAS cihazına yüklenemez.</translation>
    </message>
    <message>
        <source>The drive that contains the local folder is not mounted. Connect the drive to continue syncing.</source>
        <translation>Yerel klasörün bulunduğu sürücü bağlı değil. Eşitlemeye devam etmek için sürücüyü bağlayın.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Hedef</translation>
    </message>
    <message>
        <source>Search the local network for an Orvane NAS.</source>
        <translation>Yerel ağda bir Orvane NAS cihazı arar.</translation>
    </message>
    <message>
        <source>Storage full</source>
        <translation>Depolama alanı dolu</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>NAS cihazına genel bakış</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Doğrudan bağlantı</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>İndirildi</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Ara sunucu ayarları</translation>
    </message>
    <message>
        <source>Unstable connection</source>
        <translation>Kararsız bağlantı</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync this folder. Free up some space or choose another folder.</source>
        <translation>Bu klasörü eşitlemek için bu bilgisayarda yeterli boş alan yok. Biraz yer açın veya başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>Use a black and white tray icon</source>
        <translation>Siyah beyaz tepsi simgesi kullan</translation>
    </message>
    <message>
        <source>Sync history</source>
        <translation>Eşitleme geçmişi</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>İndirme iptal edildi.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>Aşağıdaki uygulamalar, Kurulum programının güncellemesi gereken dosyaları kullanıyor. Devam etmek için bu uygulamaları kapatıp &quot;Yeniden dene&quot; düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Yükle</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please wait a few minutes before you try again.</source>
        <translation>Çok fazla başarısız deneme yapıldı. Lütfen yeniden denemeden önce birkaç dakika bekleyin.</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>Her şey hazır</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Yükleniyor...</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Hayır, teşekkürler</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Yeni paylaşılan klasör</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Çıkış</translation>
    </message>
    <message>
        <source>You can let Setup close the applications listed below and try to restart them afterward.</source>
        <translation>Kurulum programının aşağıda listelenen uygulamaları kapatmasına ve sonrasında yeniden başlatmayı denemesine izin verebilirsiniz.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change the way [ProductName] is installed or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Kurulum Sihirbazı, [ProductName] kurulumunu değiştirmenizi veya uygulamayı bilgisayarınızdan kaldırmanızı sağlar. Devam etmek için &quot;İleri&quot;, çıkmak için &quot;İptal&quot; düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Try syncing a file</source>
        <translation>Bir dosya eşitlemeyi deneyin</translation>
    </message>
    <message>
        <source>No data to display</source>
        <translation>Görüntülenecek veri yok</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>%1 gün önce</translation>
    </message>
    <message>
        <source>You can now sync the shared folder &quot;%1&quot;. Click here to enable it.</source>
        <translation>Artık &quot;%1&quot; paylaşılan klasörünü eşitleyebilirsiniz. Etkinleştirmek için buraya tıklayın.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Karşıya yükleniyor...</translation>
    </message>
    <message>
        <source>Your Quillmere folder is ready. Drop files into it and they will be synced with your NAS.</source>
        <translation>Quillmere klasörünüz hazır. Dosyaları içine bırakın, NAS cihazınızla eşitlensin.</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>Eşitlenebilecek klasör yok.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Önceki %1 sayfa</translation>
    </message>
    <message>
        <source>The verification code is invalid. Please check the code and try again.</source>
        <translation>Doğrulama kodu geçersiz. Lütfen kodu kontrol edip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Bugün</translation>
    </message>
    <message>
        <source>The selected folder is on a network drive. Changes made there by other computers may not be detected immediately.</source>
        <translation>Seçilen klasör bir ağ sürücüsünde. Diğer bilgisayarların burada yaptığı değişiklikler hemen algılanmayabilir.</translation>
    </message>
    <message>
        <source>Show icon overlays on files excluded by the file filter</source>
        <translation>Dosya filtresinin dışarıda bıraktığı dosyalarda simge katmanlarını göster</translation>
    </message>
    <message>
        <source>Files to sync</source>
        <translation>Eşitlenecek dosyalar</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Dosya</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Bağlantıyı paylaş</translation>
    </message>
    <message>
        <source>Detecting connection mode...</source>
        <translation>Bağlantı modu algılanıyor...</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Özel süre</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>Yerel ağda NAS cihazı ara</translation>
    </message>
    <message>
        <source>The proxy address and port cannot be empty.</source>
        <translation>Ara sunucu adresi ve bağlantı noktası boş olamaz.</translation>
    </message>
    <message>
        <source>You can also protect a link with a password or set an expiration date.</source>
        <translation>Ayrıca bir bağlantıyı parolayla koruyabilir veya bağlantı için bir bitiş tarihi belirleyebilirsiniz.</translation>
    </message>
    <message>
        <source>All your files, always at hand</source>
        <translation>Tüm dosyalarınız her an elinizin altında</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Bitiş tarihi</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Eylül</translation>
    </message>
    <message>
        <source>Create a Quillmere folder on this computer</source>
        <translation>Bu bilgisayarda bir Quillmere klasörü oluştur</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Gelişmiş kurulum sihirbazı</translation>
    </message>
    <message>
        <source>The selected folder is already part of a sync task on this computer.</source>
        <translation>Seçilen klasör zaten bu bilgisayardaki bir eşitleme görevine ait.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>%1 dakika önce</translation>
    </message>
    <message>
        <source>This shared folder is already synced with the folder &quot;%1&quot; on this computer.</source>
        <translation>Bu paylaşılan klasör zaten bu bilgisayardaki &quot;%1&quot; klasörüyle eşitleniyor.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>NAS cihazında yeterli boş alan yok.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Hayır</translation>
    </message>
    <message>
        <source>Click Repair to restore missing or damaged files, shortcuts, and registry entries. Click Back to review your choice.</source>
        <translation>Eksik veya hasarlı dosyaları, kısayolları ve kayıt defteri girdilerini geri yüklemek için &quot;Onar&quot; düğmesine tıklayın. Seçiminizi gözden geçirmek için &quot;Geri&quot; düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Sistem varsayılanı</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Bu iletiyi bir daha gösterme</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by restoring missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Eksik veya hasarlı dosyaları, kısayolları ve kayıt defteri girdilerini geri yükleyerek son kurulumdaki hataları onarır.</translation>
    </message>
    <message>
        <source>Number of times the link can be opened</source>
        <translation>Bağlantının kaç kez açılabileceği</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Dün</translation>
    </message>
    <message>
        <source>The SSL certificate of the NAS could not be verified. The folder cannot be selected until the certificate is trusted.</source>
        <translation>NAS cihazının SSL sertifikası doğrulanamadı. Sertifikaya güvenilene kadar klasör seçilemez.</translation>
    </message>
    <message>
        <source>Password protection</source>
        <translation>Parola koruması</translation>
    </message>
    <message>
        <source>The SSL certificate could not be verified. It may be self-signed, expired, or issued for another hostname.</source>
        <translation>SSL sertifikası doğrulanamadı. Sertifika kendinden imzalı olabilir, süresi dolmuş olabilir veya başka bir ana bilgisayar adı için verilmiş olabilir.</translation>
    </message>
    <message>
        <source>Please update Quillmere Drive Server on the NAS to use selective sync.</source>
        <translation>Seçmeli eşitlemeyi kullanmak için lütfen NAS cihazındaki Quillmere Drive Server uygulamasını güncelleyin.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer. Free up some space to continue syncing.</source>
        <translation>Bu bilgisayarda yeterli boş alan yok. Eşitlemeye devam etmek için biraz yer açın.</translation>
    </message>
    <message>
        <source>The selected folder is used by a backup task. Syncing it may cause conflicts.</source>
        <translation>Seçilen klasör bir yedekleme görevi tarafından kullanılıyor. Klasörün eşitlenmesi çakışmalara neden olabilir.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>One-way sync from the NAS to this computer</source>
        <translation>NAS cihazından bu bilgisayara tek yönlü eşitleme</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Yalnızca indir</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Bu bilgisayarda yeterli boş alan yok.</translation>
    </message>
    <message>
        <source>Blocked by:</source>
        <translation>Engelleyen:</translation>
    </message>
    <message>
        <source>This computer is linked to your NAS, and your files are now being synced.</source>
        <translation>Bu bilgisayar NAS cihazınızla ilişkilendirildi ve dosyalarınız şimdi eşitleniyor.</translation>
    </message>
    <message>
        <source>The RapidHail ID is invalid or does not exist.</source>
        <translation>RapidHail kimliği geçersiz veya mevcut değil.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Beklemede</translation>
    </message>
    <message>
        <source>Remove the program from this computer</source>
        <translation>Programı bu bilgisayardan kaldır</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established because of an SSL error.</source>
        <translation>Bir SSL hatası nedeniyle NAS cihazıyla güvenli bağlantı kurulamadı.</translation>
    </message>
    <message>
        <source>General settings</source>
        <translation>Genel ayarlar</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Masaüstü bildirimlerini göster</translation>
    </message>
    <message>
        <source>Selective sync by file type</source>
        <translation>Dosya türüne göre seçmeli eşitleme</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Aralık</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Klasör</translation>
    </message>
    <message>
        <source>Quillmere Drive Server on the NAS is outdated. Please ask the administrator to update it to version %1 or later.</source>
        <translation>NAS cihazındaki Quillmere Drive Server uygulaması eski. Lütfen yöneticiden uygulamayı %1 veya daha yeni bir sürüme güncellemesini isteyin.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Bitti</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Yüklü özellikleri değiştir</translation>
    </message>
    <message>
        <source>If you no longer need the program, you can remove it now. Your synced files will be kept on this computer.</source>
        <translation>Programa artık ihtiyacınız yoksa şimdi kaldırabilirsiniz. Eşitlenen dosyalarınız bu bilgisayarda korunur.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be merged with the files in the shared folder.</source>
        <translation>Seçilen klasör boş değil. İçindeki dosyalar, paylaşılan klasördeki dosyalarla birleştirilecek.</translation>
    </message>
    <message>
        <source>The link could not be deleted. Please try again later.</source>
        <translation>Bağlantı silinemedi. Lütfen daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>A link cannot be created for this file. Make sure that it has been synced to the NAS.</source>
        <translation>Bu dosya için paylaşım bağlantısı oluşturulamıyor. Dosyanın NAS cihazıyla eşitlendiğinden emin olun.</translation>
    </message>
    <message>
        <source>Check all file attributes for changes</source>
        <translation>Tüm dosya özniteliklerindeki değişiklikleri denetle</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove the installation</source>
        <translation>[DlgTitleFont]Kurulumu değiştir, onar veya kaldır</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Pazartesi</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>Seçilen klasör salt okunur. Lütfen yazabileceğiniz bir klasör seçin.</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the sync task &quot;%1&quot;? The files on this computer and on the NAS will be kept.</source>
        <translation>&quot;%1&quot; eşitleme görevini kaldırmak istediğinizden emin misiniz? Bu bilgisayardaki ve NAS cihazındaki dosyalar korunur.</translation>
    </message>
    <message>
        <source>Limit how often this link can be opened</source>
        <translation>Bu bağlantının kaç kez açılabileceğini sınırla</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Paylaşılan klasör</translation>
    </message>
    <message>
        <source>Quillmere Drive keeps the folders on your computers in sync with your Orvane NAS.</source>
        <translation>Quillmere Drive, bilgisayarlarınızdaki klasörleri Orvane NAS cihazınızla eşitlenmiş durumda tutar.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Doğrulama kodunu girin</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Özet</translation>
    </message>
    <message>
        <source>File extensions</source>
        <translation>Dosya uzantıları</translation>
    </message>
    <message>
        <source>The username cannot be empty.</source>
        <translation>Kullanıcı adı boş olamaz.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Klasör yolu</translation>
    </message>
    <message>
        <source>Folder already linked</source>
        <translation>Klasör zaten ilişkilendirilmiş</translation>
    </message>
    <message>
        <source>The maximum length of this field is %1 characters.</source>
        <translation>Bu alan en fazla %1 karakter içerebilir.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Dil</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this computer from &quot;%1&quot;? Syncing will stop, but your files will be kept.</source>
        <translation>Bu bilgisayarın &quot;%1&quot; ile olan ilişkilendirmesini kaldırmak istediğinizden emin misiniz? Eşitleme duracak ancak dosyalarınız korunacak.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Gelişmiş kurulum</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Özel aralık</translation>
    </message>
    <message>
        <source>You have reached the maximum of %1 sync tasks. Remove a sync task before you add another one.</source>
        <translation>Eşitleme görevi üst sınırına (%1) ulaştınız. Yeni bir eşitleme görevi eklemeden önce mevcut görevlerden birini kaldırın.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Klasör adı</translation>
    </message>
    <message>
        <source>Quillmere Drive is being upgraded. Please wait...</source>
        <translation>Quillmere Drive yükseltiliyor. Lütfen bekleyin...</translation>
    </message>
    <message>
        <source>Select the folder on this computer that you want to keep synced with your NAS.</source>
        <translation>Bu bilgisayarda, NAS cihazınızla eşitlenmiş durumda tutmak istediğiniz klasörü seçin.</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Bağlantı test ediliyor...</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Eşitleniyor: %1</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS. Contact the administrator.</source>
        <translation>Paylaşılan klasör NAS cihazında bağlama noktasına bağlanmamış. Yöneticiye başvurun.</translation>
    </message>
    <message>
        <source>Keep your files in sync between this computer and your NAS, and reach them wherever you are.</source>
        <translation>Dosyalarınızı bu bilgisayar ile NAS cihazınız arasında eşitlenmiş durumda tutun ve nerede olursanız olun onlara ulaşın.</translation>
    </message>
    <message>
        <source>Your account is protected by two-factor verification. Please enter the verification code to continue.</source>
        <translation>Hesabınız iki faktörlü doğrulamayla korunuyor. Devam etmek için lütfen doğrulama kodunu girin.</translation>
    </message>
    <message>
        <source>Edit file filter</source>
        <translation>Dosya filtresini düzenle</translation>
    </message>
    <message>
        <source>Open the synced folder</source>
        <translation>Eşitlenen klasörü aç</translation>
    </message>
    <message>
        <source>File names to exclude</source>
        <translation>Dışarıda bırakılacak dosya adları</translation>
    </message>
    <message>
        <source>File path</source>
        <translation>Dosya yolu</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bitiş</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Ocak</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Ara sunucu olmadan bağlan</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync with this computer.</source>
        <translation>NAS cihazında bu bilgisayarla eşitlemek istediğiniz paylaşılan klasörü seçin.</translation>
    </message>
    <message>
        <source>This shared folder does not exist on the NAS. It may have been renamed or deleted.</source>
        <translation>Bu paylaşılan klasör NAS cihazında yok. Klasör yeniden adlandırılmış veya silinmiş olabilir.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>Server not running</source>
        <translation>Sunucu çalışmıyor</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Kurulum Sihirbazı, [ProductName] uygulamasını bilgisayarınıza yükleyecek. Devam etmek için &quot;İleri&quot;, çıkmak için &quot;İptal&quot; düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Eşitleme görevleri</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>Kurulum Sihirbazı kurulumu başlatmaya hazır.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Syncing %1 file(s)</source>
        <translation>%1 dosya eşitleniyor</translation>
    </message>
    <message>
        <source>&amp;Close the applications and try to restart them</source>
        <translation>Uygulamaları &amp;kapat ve yeniden başlatmayı dene</translation>
    </message>
    <message>
        <source>Please wait. The requested changes are being made.</source>
        <translation>Lütfen bekleyin. İstenen değişiklikler yapılıyor.</translation>
    </message>
    <message>
        <source>Upgrade available</source>
        <translation>Yükseltme mevcut</translation>
    </message>
    <message>
        <source>Repair the current installation</source>
        <translation>Geçerli kurulumu onar</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Yükseltiliyor...</translation>
    </message>
    <message>
        <source>Set up a separate sync task</source>
        <translation>Ayrı bir eşitleme görevi oluştur</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>Hiçbir ayar değiştirilmedi.</translation>
    </message>
</context>
</TS>
